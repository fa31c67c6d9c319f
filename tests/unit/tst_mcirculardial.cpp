// SPDX-License-Identifier: Apache-2.0
#include <MCircularDial>

#include "fusedcount.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QMouseEvent>
#include <QPainter>

#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>

namespace
{

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Action = std::function<void(MCircularDial &)>;

std::unique_ptr<MCircularDial> makeDial(const QSize &size = QSize(500, 500))
{
    auto dial = std::make_unique<MCircularDial>();
    dial->resize(size);
    return dial;
}

// 0 to 100 on a small dial: the range is wide enough for the limits of a change to be exact.
std::unique_ptr<MCircularDial> makePercent()
{
    auto dial = makeDial(QSize(221, 211));
    dial->setRadius(100);
    dial->setMinValue(0);
    dial->setMaxValue(100);
    dial->setScale(5);
    dial->setScaleLong(20);
    dial->setValue(50);
    return dial;
}

void paintBg(QPainter &p, const MCircularDial &dial)
{
    const double r = dial.radius();
    p.setPen(Qt::NoPen);
    QRadialGradient gradient(QPointF(0, 0), qreal(r), QPointF(0, 0));
    gradient.setColorAt(0, dial.bgColor().lighter(100));
    gradient.setColorAt(1, dial.bgColor());
    p.setBrush(gradient);
    p.drawEllipse(QRectF(qreal(-r), qreal(-r), qreal(2 * r), qreal(2 * r)));
}

// Whether any of a label with room around it lies on the device: what does not takes too long to
// draw a hundred thousand times. It is room for all that its letters can reach, and no more: on
// Arm, Qt draws turned letters a trace differently after it has drawn others that no one sees.
bool isNear(const QPainter &p, const QRect &label)
{
    const QRectF reach = p.deviceTransform().mapRect(QRectF(label.adjusted(-20, -20, 20, 20)));
    return reach.intersects(QRectF(QRect(0, 0, p.device()->width(), p.device()->height())));
}

// Every how many ticks, and of these every how many labels, are drawn.
struct Strides {
    int ticks = 1;
    int labels = 1;
};

void paintTicks(QPainter &p, const MCircularDial &dial, const Strides &strides)
{
    int labelIndex = 0;
    const double r = dial.radius();
    const int count = int((dial.maxValue() - dial.minValue()) / dial.scale());
    p.save();
    p.setPen(dial.textColor());
    p.rotate(qreal(dial.startAngle()));
    for (qint64 i = 0; i <= count; i += strides.ticks) {
        const double v = std::fma(double(i), dial.scale(), dial.minValue());
        if (v >= dial.minValue() && v <= dial.maxValue()) {
            const int n = int(v);
            const bool isLong = std::abs(v - n) <= 0.01 && n % dial.scaleLong() == 0;
            const double factor = isLong ? 0.1 : 0.05;
            p.drawLine(QLineF(0, qreal((0.98 - factor) * r), 0, qreal(0.98 * r)));
            if (isLong && labelIndex++ % strides.labels == 0) {
                const QRect box(QPoint(-15, 0), QPoint(14, 9));
                p.save();
                p.translate(0, qreal(0.82 * r));
                p.rotate(180);
                if (isNear(p, box))
                    p.drawText(box, Qt::AlignCenter, QString::number(v, 'g', 6));
                p.restore();
            }
        }
        if (count != 0)
            p.rotate(qreal((360 - 2 * dial.startAngle()) / count * strides.ticks));
    }
    p.restore();
}

void paintPointer(QPainter &p, const MCircularDial &dial, double angle)
{
    p.save();
    p.rotate(qreal(dial.startAngle() - 180));
    p.setPen(Qt::NoPen);
    p.setBrush(dial.centerColor());
    p.rotate(qreal(angle));
    const QPoint corners[] = {{-2, 0}, {2, 0}, {0, int(-dial.radius())}};
    p.drawConvexPolygon(corners, 3);
    p.restore();
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(dial.centerColor());
    p.drawEllipse(QRect(QPoint(-6, -6), QPoint(5, 5)));
    p.restore();
}

void paintDial(QPainter &p, const MCircularDial &dial, double angle, const Strides &strides = {})
{
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    p.translate(QPoint(dial.width() / 2, dial.height() / 2));
    p.rotate(qreal(dial.rotateAngle()));
    paintBg(p, dial);
    paintTicks(p, dial, strides);
    paintPointer(p, dial, angle);
    p.setPen(dial.textColor());
    p.drawText(QRectF(-30, qreal(0.6 * dial.radius() * 0.5), 60, 30), Qt::AlignCenter,
               QString::number(dial.value(), 'g', 6) + dial.unit());
}

double pointerAngle(const MCircularDial &dial)
{
    return (360 - 2 * dial.startAngle()) / int((dial.maxValue() - dial.minValue()) / dial.scale())
        * ((dial.value() - dial.minValue()) / dial.scale());
}

// The documented picture, made anew each time.
QImage documented(const MCircularDial &dial)
{
    return reference(dial, [&](QPainter &p) { paintDial(p, dial, pointerAngle(dial)); });
}

constexpr QRgb kGround = 0xff3a7d19;

QImage ground(const MCircularDial &dial)
{
    QImage image(dial.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(kGround);
    return image;
}

// Over an opaque ground, where a kept picture is rounded once more.
QImage paintedOnGround(MCircularDial &dial)
{
    QImage image = ground(dial);
    dial.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QImage documentedOnGround(const MCircularDial &dial)
{
    QImage image = ground(dial);
    QPainter painter(&image);
    painter.setFont(dial.font());
    paintDial(painter, dial, pointerAngle(dial));
    return image;
}

// The largest difference of any channel of any pixel, in levels of 255.
int largestDifference(const QImage &a, const QImage &b)
{
    int largest = a.size() == b.size() ? 0 : 255;
    for (int y = 0; y < a.height() && largest < 255; ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest =
                std::max({largest, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                          std::abs(qBlue(p) - qBlue(q)), std::abs(qAlpha(p) - qAlpha(q))});
        }
    }
    return largest;
}

// What a touch means: the value for a point, or no number where the point is ignored.
double touchedValue(const MCircularDial &dial, const QPoint &p)
{
    const double pi = 3.14159;
    const int cx = dial.width() / 2;
    const int cy = dial.height() / 2;
    const int dx = p.x() - cx;
    const int dy = p.y() - cy;
    const double off = std::sqrt(double(dx) * dx + double(dy) * dy) - dial.radius();
    if (off <= -200 || off >= 200 || dx == 0 || dy == 0)
        return kNaN;
    double a = 0;
    if (dx > 0 && dy < 0)
        a = std::atan2(p.x() - cx, cy - p.y()) * 180 / pi;
    else if (dx > 0)
        a = std::atan2(p.y() - cy, p.x() - cx) * 180 / pi + 90;
    else if (dy > 0)
        a = std::atan2(cx - p.x(), p.y() - cy) * 180 / pi + 180;
    else
        a = std::atan2(cy - p.y(), cx - p.x()) * 180 / pi + 270;
    a = a - dial.rotateAngle() + 0.5 * dial.startAngle();
    while (a >= 360)
        a -= 360;
    const double v =
        dial.minValue() + (dial.maxValue() - dial.minValue()) * a / (360 - 2 * dial.startAngle());
    return v < dial.minValue() || v > dial.maxValue() ? kNaN : v;
}

// Handlers are called with what a subclass may hand them.
class Handlers : public MCircularDial
{
public:
    using MCircularDial::mouseMoveEvent;
    using MCircularDial::mousePressEvent;
    using MCircularDial::mouseReleaseEvent;
};

// Both signals in order, with every digit of the value.
struct Report {
    bool isRelease;
    double value;

    bool operator==(const Report &other) const
    {
        return isRelease == other.isRelease && value == other.value;
    }
};

class Reports
{
public:
    explicit Reports(MCircularDial *dial)
    {
        QObject::connect(dial, &MCircularDial::valueChanged, &m_context, [this](double value) {
            m_all += Report{true, value};
        });
        QObject::connect(dial, &MCircularDial::currentValueChange, &m_context,
                         [this](double value) {
                             m_all += Report{false, value};
                         });
    }
    QVector<Report> take() { return std::exchange(m_all, {}); }

private:
    QObject m_context;
    QVector<Report> m_all;
};

const QSize kSizes[] = {{500, 500}, {501, 499}, {320, 240}};

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MCircularDial : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        MCircularDial dial;
        QCOMPARE(dial.radius(), 250.0);
        QCOMPARE(dial.minValue(), 87.5);
        QCOMPARE(dial.maxValue(), 108.0);
        QCOMPARE(dial.value(), 87.5);
        QCOMPARE(dial.unit(), QString());
        QCOMPARE(dial.textColor(), QColor(255, 255, 255));
        QCOMPARE(dial.bgColor(), QColor(173, 173, 173));
        QCOMPARE(dial.centerColor(), QColor(94, 94, 94));
        QCOMPARE(dial.rotateAngle(), 90.0);
        QCOMPARE(dial.scale(), 0.1);
        QCOMPARE(dial.scaleLong(), 1);
        QCOMPARE(dial.startAngle(), 120.0);
    }

    void settersRepaint_data()
    {
        const TableRows<QVariant, int, int> row("value", "repaintsOnChange", "repaintsOtherwise");
        row("radius", 90.0, 0, 0);
        row("minValue", 80.0, 1, 0);
        row("maxValue", 110.0, 1, 0);
        row("value", 90.0, 1, 0);
        row("unit", QStringLiteral("MHz"), 1, 1);
        row("textColor", QColor(Qt::red), 1, 1);
        row("bgColor", QColor(Qt::red), 1, 1);
        row("centerColor", QColor(Qt::red), 1, 1);
        row("rotateAngle", 45.0, 1, 0);
        row("scale", 0.2, 1, 1);
        row("scaleLong", 2, 1, 0);
        row("startAngle", 45.0, 1, 0);
    }

    void settersRepaint()
    {
        const auto dial = makeDial();
        SignalLog log(dial.get());
        checkRepaintsOfProperty(*dial);
        QCOMPARE(log.take(), QStringList());
    }

    // --- Value and limits -----------------------------------------------------------------------

    // 0.05 itself is a change; so is what differs by it from 0 exactly.
    void aValueChangesByAtLeastAFiveHundredth()
    {
        const auto dial = makePercent();
        dial->setValue(0);
        dial->setValue(std::nextafter(0.05, 0.0));
        QCOMPARE(dial->value(), 0.0);
        dial->setValue(0.05);
        QCOMPARE(dial->value(), 0.05);
        dial->setValue(50);
        dial->setValue(50.049);
        QCOMPARE(dial->value(), 50.0);
        dial->setValue(49.951);
        QCOMPARE(dial->value(), 50.0);
        dial->setValue(49.949);
        QCOMPARE(dial->value(), 49.949);
    }

    void aValueIsLimitedToTheRange()
    {
        const auto dial = makePercent();
        show(*dial);
        QCOMPARE(paints(*dial, [&] { dial->setValue(1000); }), 1);
        QCOMPARE(dial->value(), 100.0);
        QCOMPARE(paints(*dial, [&] { dial->setValue(1000); }),
                 1); // the check comes before the limit
        dial->setValue(-kInfinity);
        QCOMPARE(dial->value(), 0.0);
    }

    void aLimitChangesByAtLeastAFiveHundredth()
    {
        const auto dial = makePercent();
        dial->setMinValue(std::nextafter(0.05, 0.0));
        QCOMPARE(dial->minValue(), 0.0);
        dial->setMinValue(0.05);
        QCOMPARE(dial->minValue(), 0.05);
        dial->setMinValue(-1000);
        dial->setMaxValue(0); // the value goes along
        QCOMPARE(dial->value(), 0.0);
        dial->setMaxValue(std::nextafter(0.05, 0.0));
        QCOMPARE(dial->maxValue(), 0.0);
        dial->setMaxValue(0.05);
        QCOMPARE(dial->maxValue(), 0.05);
    }

    void aMinimumNotBelowTheMaximumIsIgnored()
    {
        const auto dial = makePercent();
        show(*dial);
        for (double minimum : {100.0, 100.01, 1e9, kInfinity})
            QCOMPARE(paints(*dial, [&] { dial->setMinValue(minimum); }), 0);
        QCOMPARE(dial->minValue(), 0.0);
        dial->setMinValue(99.99);
        QCOMPARE(dial->minValue(), 99.99);
    }

    void aMaximumNotAboveTheMinimumIsIgnored()
    {
        const auto dial = makePercent();
        show(*dial);
        for (double maximum : {0.0, -0.01, -1e9, -kInfinity})
            QCOMPARE(paints(*dial, [&] { dial->setMaxValue(maximum); }), 0);
        QCOMPARE(dial->maxValue(), 100.0);
        dial->setMaxValue(0.01);
        QCOMPARE(dial->maxValue(), 0.01);
    }

    void theValueFollowsALimitThatPassesIt()
    {
        const auto dial = makePercent();
        show(*dial);
        SignalLog log(dial.get());
        QCOMPARE(paints(*dial, [&] { dial->setMinValue(60); }), 1);
        QCOMPARE(dial->value(), 60.0);
        QCOMPARE(paints(*dial, [&] { dial->setMinValue(10); }), 1);
        QCOMPARE(dial->value(), 60.0);
        QCOMPARE(paints(*dial, [&] { dial->setMaxValue(40); }), 1);
        QCOMPARE(dial->value(), 40.0);
        QCOMPARE(paints(*dial, [&] { dial->setMaxValue(90); }), 1);
        QCOMPARE(dial->value(), 40.0);
        QCOMPARE(log.take(), QStringList());
    }

    void aLimitThatPassesTheValueByATraceLeavesItAndDoesNotRepaint()
    {
        const auto dial = makePercent();
        show(*dial);
        QCOMPARE(paints(*dial, [&] { dial->setMinValue(50.04); }), 0);
        QCOMPARE(dial->minValue(), 50.04);
        QCOMPARE(dial->value(), 50.0);
        dial->setMinValue(0);
        QCOMPARE(paints(*dial, [&] { dial->setMaxValue(49.96); }), 0);
        QCOMPARE(dial->maxValue(), 49.96);
        QCOMPARE(dial->value(), 50.0);
    }

    void aLimitThatTheValueIsAtIsNotPassed()
    {
        const auto dial = makePercent();
        show(*dial);
        QCOMPARE(paints(*dial, [&] { dial->setMinValue(50); }), 1);
        dial->setMinValue(0);
        QCOMPARE(paints(*dial, [&] { dial->setMaxValue(50); }), 1);
        QCOMPARE(dial->value(), 50.0);
    }

    // --- Angles and scale -----------------------------------------------------------------------

    void rotateAngleTakesAFullTurn()
    {
        MCircularDial dial;
        for (double angle : {-0.1, 360.1, -kInfinity, kInfinity, kNaN}) {
            dial.setRotateAngle(angle);
            QCOMPARE(dial.rotateAngle(), 90.0);
        }
        dial.setRotateAngle(0);
        QCOMPARE(dial.rotateAngle(), 0.0);
        dial.setRotateAngle(360);
        QCOMPARE(dial.rotateAngle(), 360.0);
    }

    void anglesChangeByAtLeastAHundredth()
    {
        MCircularDial dial;
        dial.setRotateAngle(0);
        dial.setRotateAngle(std::nextafter(0.01, 0.0));
        QCOMPARE(dial.rotateAngle(), 0.0);
        dial.setRotateAngle(0.01);
        QCOMPARE(dial.rotateAngle(), 0.01);
        dial.setStartAngle(0);
        dial.setStartAngle(-std::nextafter(0.01, 0.0));
        QVERIFY(dial.startAngle() == 0.0);
        dial.setStartAngle(0.01);
        QVERIFY(dial.startAngle() == 0.01);
    }

    void startAngleHasNoOtherLimit()
    {
        MCircularDial dial;
        for (double angle : {-720.0, 1e6, kInfinity, -5.0}) {
            dial.setStartAngle(angle);
            QCOMPARE(dial.startAngle(), angle);
        }
        dial.setStartAngle(kNaN);
        QCOMPARE(dial.startAngle(), -5.0);
    }

    void scaleIsAboveAHundredth()
    {
        MCircularDial dial;
        for (double scale : {0.01, 0.0, -1.0, kNaN, -kInfinity}) {
            dial.setScale(scale);
            QCOMPARE(dial.scale(), 0.1);
        }
        const double finest = std::nextafter(0.01, 1.0);
        dial.setScale(finest);
        QVERIFY(dial.scale() == finest);
    }

    void scaleLongIsAtLeastOne()
    {
        MCircularDial dial;
        for (int wholes : {5, 0, -1, INT_MIN})
            dial.setScaleLong(wholes);
        QCOMPARE(dial.scaleLong(), 5);
        dial.setScaleLong(1);
        QCOMPARE(dial.scaleLong(), 1);
        dial.setScaleLong(INT_MAX);
        QCOMPARE(dial.scaleLong(), INT_MAX);
    }

    void noNumberChangesNothing()
    {
        const auto dial = makePercent();
        show(*dial);
        QCOMPARE(paints(*dial,
                        [&] {
                            dial->setValue(kNaN);
                            dial->setMinValue(kNaN);
                            dial->setMaxValue(kNaN);
                        }),
                 0);
        QCOMPARE(dial->value(), 50.0);
        QCOMPARE(dial->minValue(), 0.0);
        QCOMPARE(dial->maxValue(), 100.0);
    }

    // --- Looks ----------------------------------------------------------------------------------

    void pictures_data()
    {
        const TableRows<Action> row("prepare");
        row("as it comes", [](auto &) {});
        row("value", [](auto &d) { d.setValue(98.5); });
        row("highest", [](auto &d) { d.setValue(108); });
        row("unit", [](auto &d) { d.setUnit(QStringLiteral(" MHz")); });
        row("long unit", [](auto &d) { d.setUnit(QStringLiteral(" megahertz")); });
        row("upright", [](auto &d) { d.setRotateAngle(0); });
        row("slanting", [](auto &d) { d.setRotateAngle(33); });
        row("odd size", [](auto &d) { d.resize(401, 377); });
        row("small", [](auto &d) { d.setRadius(99.6); });
        for (const double radius : {130.0, 111.0, 110.0, 109.0, 50.0, 30.0, 12.0, 5.0, 1.0})
            QTest::addRow("radius %g", radius)
                << Action([radius](auto &d) { d.setRadius(radius); });
        row("translucent ticks", [](auto &d) {
            d.setTextColor(QColor(255, 255, 0, 120));
            d.setScale(0.02);
        });
        row("other colours", [](auto &d) {
            d.setBgColor(QColor(20, 70, 110));
            d.setTextColor(Qt::yellow);
            d.setCenterColor(Qt::red);
        });
        row("translucent", [](auto &d) {
            d.setBgColor(QColor(20, 70, 110, 100));
            d.setTextColor(QColor(255, 255, 0, 120));
            d.setCenterColor(QColor(255, 0, 0, 90));
        });
        row("every fifth", [](auto &d) { d.setScaleLong(5); });
        row("wide", [](auto &d) { d.setStartAngle(45); });
        row("more than a turn", [](auto &d) { d.setStartAngle(-20); });
        row("backwards", [](auto &d) { d.setStartAngle(250); });
        row("no arc", [](auto &d) { d.setStartAngle(180); });
        row("range of uneven ticks", [](auto &d) {
            d.setScale(0.7);
            d.setValue(107.9);
        });
        row("negative", [](auto &d) {
            d.setMinValue(-12.5);
            d.setMaxValue(7);
            d.setScale(0.25);
            d.setScaleLong(3);
            d.setValue(-3.25);
        });
        // Ten tenths are a trace more than one: at zero stands what is left of it.
        row("tenths around zero", [](auto &d) {
            d.setMinValue(-1);
            d.setMaxValue(1);
        });
        row("a trace above whole numbers", [](auto &d) {
            d.setMaxValue(97.609);
            d.setMinValue(88.009);
            d.setScale(0.5);
        });
        row("just too far above whole numbers", [](auto &d) {
            d.setMinValue(88.011);
            d.setScale(0.5);
        });
        row("a trace below whole numbers", [](auto &d) {
            d.setMinValue(87.999);
            d.setScale(0.5);
        });
        row("exactly a hundredth above nothing", [](auto &d) {
            d.setMinValue(0.01);
            d.setScale(10);
        });
        row("six digits", [](auto &d) {
            d.setMaxValue(2000000);
            d.setMinValue(1000000);
            d.setScale(100000);
            d.setValue(1234567);
        });
        row("thousands of ticks", [](auto &d) {
            d.setMinValue(0);
            d.setMaxValue(100);
            d.setScale(0.02);
            d.setScaleLong(20);
        });
    }

    void pictures()
    {
        QFETCH(Action, prepare);
        const auto dial = makeDial();
        prepare(*dial);
        COMPARE_PICTURES(painted(*dial), documented(*dial));
        COMPARE_PICTURES(painted(*dial), documented(*dial)); // from what is kept
        COMPARE_PICTURES(painted(*dial), documented(*dial));
    }

    void keptEdgesAreAtMostOneLevelOff_data() { pictures_data(); }

    void keptEdgesAreAtMostOneLevelOff()
    {
        QFETCH(Action, prepare);
        const auto dial = makeDial();
        prepare(*dial);
        const QImage expected = documentedOnGround(*dial);
        for (int i = 0; i < 3; ++i)
            QVERIFY(largestDifference(paintedOnGround(*dial), expected) <= 1);
    }

    // What shines through cannot be kept, and so is drawn anew each time.
    void thousandsOfTicksAreDrawnOnce()
    {
        if (!fused::canCount)
            QSKIP("the processor has an instruction for what is counted here");
        const auto dial = makeDial();
        dial->setMaxValue(400);
        dial->setScale(0.05);
        const auto looks = [&] { return fused::during([&] { painted(*dial); }); };
        const int ticks = 6251;
        QCOMPARE(looks(), ticks);
        QCOMPARE(looks(), ticks); // composed for the next time
        QCOMPARE(looks(), 0);
        dial->setBgColor(QColor(20, 70, 110, 254));
        for (int i = 0; i < 3; ++i)
            QCOMPARE(looks(), ticks);
    }

    void everySetterShowsAtTheNextPaint()
    {
        const auto dial = makeDial();
        for (const Action &action :
             {Action([](auto &d) { d.setValue(99); }), Action([](auto &d) { d.setRadius(200); }),
              Action([](auto &d) { d.setMinValue(80); }),
              Action([](auto &d) { d.setMaxValue(120); }),
              Action([](auto &d) { d.setUnit(QStringLiteral("M")); }),
              Action([](auto &d) { d.setTextColor(Qt::yellow); }),
              Action([](auto &d) { d.setBgColor(Qt::darkBlue); }),
              Action([](auto &d) { d.setCenterColor(Qt::red); }),
              Action([](auto &d) { d.setRotateAngle(10); }),
              Action([](auto &d) { d.setScale(0.5); }), Action([](auto &d) { d.setScaleLong(10); }),
              Action([](auto &d) { d.setStartAngle(60); }), Action([](auto &d) {
                  QFont font;
                  font.setPixelSize(8);
                  d.setFont(font);
              }),
              Action([](auto &d) { d.resize(480, 520); })}) {
            const QImage before = painted(*dial);
            painted(*dial); // the face and the value are kept by now
            action(*dial);
            const QImage after = painted(*dial);
            COMPARE_PICTURES(after, documented(*dial));
            QVERIFY(before != after);
        }
    }

    void aValueLeftAboveTheMaximumPointsAFullTurnOn()
    {
        const auto dial = makePercent();
        dial->setMaxValue(49.96);
        QCOMPARE(dial->value(), 50.0);
        COMPARE_PICTURES(painted(*dial),
                         reference(*dial, [&](QPainter &p) { paintDial(p, *dial, 360); }));
    }

    void withASingleTickThePointerIsAtIt()
    {
        const auto dial = makeDial();
        dial->setScale(30);
        dial->setValue(100);
        for (int i = 0; i < 2; ++i)
            COMPARE_PICTURES(painted(*dial),
                             reference(*dial, [&](QPainter &p) { paintDial(p, *dial, 0); }));
    }

    // --- Touches --------------------------------------------------------------------------------

    void everyPointReportsItsValue_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("rotateAngle");
        QTest::addColumn<double>("startAngle");
        for (const QSize &size : kSizes) {
            const auto name = [&size](const char *what) {
                return QStringLiteral("%1, %2 x %3")
                    .arg(QString::fromLatin1(what))
                    .arg(size.width())
                    .arg(size.height())
                    .toLatin1();
            };
            QTest::newRow(name("tuner")) << size << 250.0 << 87.5 << 108.0 << 90.0 << 120.0;
            QTest::newRow(name("top")) << size << 250.0 << 87.5 << 108.0 << 0.0 << 120.0;
            QTest::newRow(name("volume")) << size << 120.0 << 0.0 << 40.0 << 270.0 << 45.0;
            QTest::newRow(name("negative")) << size << 300.0 << -50.0 << 50.0 << 60.0 << 0.0;
            QTest::newRow(name("0 to 1")) << size << 250.0 << 0.0 << 1.0 << 90.0 << 120.0;
            QTest::newRow(name("-5 to 5")) << size << 250.0 << -5.0 << 5.0 << 90.0 << 120.0;
            QTest::newRow(name("backwards")) << size << 200.0 << 16.0 << 28.0 << 360.0 << 250.0;
            QTest::newRow(name("more than a turn")) << size << 200.0 << 0.0 << 1e6 << 0.0 << -90.0;
        }
    }

    // Each point is touched by press, move and release in turn, every degree at several distances
    // and a grid of pixels.
    void everyPointReportsItsValue()
    {
        QFETCH(QSize, size);
        QFETCH(double, radius);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(double, rotateAngle);
        QFETCH(double, startAngle);
        Handlers dial;
        dial.resize(size);
        dial.setRadius(radius);
        dial.setMaxValue(2e6);
        dial.setMinValue(minimum);
        dial.setMaxValue(maximum);
        dial.setRotateAngle(rotateAngle);
        dial.setStartAngle(startAngle);
        QCOMPARE(dial.maxValue(), maximum);
        Reports reports(&dial);

        QVector<QPoint> points;
        for (int degree = 0; degree < 360; ++degree) {
            for (double r : {10.0, 60.0, dial.radius(), dial.radius() + 190}) {
                const double angle = degree * M_PI / 180;
                points += QPoint(size.width() / 2 + qRound(r * std::sin(angle)),
                                 size.height() / 2 - qRound(r * std::cos(angle)));
            }
        }
        for (int y = -3; y < size.height() + 20; y += 11) {
            for (int x = -3; x < size.width() + 20; x += 7)
                points += QPoint(x, y);
        }

        int changes = 0;
        int step = 0;
        for (const QPoint &point : qAsConst(points)) {
            const double before = dial.value();
            const double touched = touchedValue(dial, point);
            const bool isChange = !std::isnan(touched) && std::abs(touched - before) > 0.05;
            const bool isRelease = step % 3 == 2;
            const QEvent::Type types[] = {QEvent::MouseButtonPress, QEvent::MouseMove,
                                          QEvent::MouseButtonRelease};
            QMouseEvent e(types[step % 3], point, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            switch (step++ % 3) {
            case 0:
                dial.mousePressEvent(&e);
                break;
            case 1:
                dial.mouseMoveEvent(&e);
                break;
            default:
                dial.mouseReleaseEvent(&e);
            }
            QVector<Report> expected;
            if (isChange) {
                expected += Report{isRelease, touched};
                ++changes;
            }
            QVERIFY2(reports.take() == expected,
                     qPrintable(QStringLiteral("at %1, %2").arg(point.x()).arg(point.y())));
            QVERIFY(dial.value() == (isChange ? touched : before));
        }
        QVERIFY(changes > 100);
    }

    void theValueIsSetBeforeItIsReported()
    {
        const auto dial = makeDial();
        QVector<double> seen;
        connect(dial.get(), &MCircularDial::currentValueChange, this,
                [&](double value) { seen += dial->value() - value; });
        touch(dial.get()).press(450, 251);
        QCOMPARE(seen, QVector<double>{0.0});
    }

    // Near 0.07 differences of 0.05 are exact.
    void aTouchChangesTheValueByMoreThanAFiveHundredth()
    {
        const auto dial = makeDial();
        dial->setMinValue(0);
        dial->setMaxValue(1);
        QPoint point(251, 10);
        while (!(touchedValue(*dial, point) > 0.0625))
            ++point.rx();
        const double touched = touchedValue(*dial, point);
        QVERIFY(touched < 0.1);
        const auto reportsFrom = [&](double value) {
            Reports reports(dial.get());
            dial->setValue(1);
            dial->setValue(value);
            touch(dial.get()).press(point);
            return reports.take().size();
        };
        QCOMPARE(reportsFrom(touched - 0.05), 0);
        QVERIFY(dial->value() == touched - 0.05);
        QCOMPARE(reportsFrom(touched - std::nextafter(0.05, 1.0)), 1);
        QVERIFY(dial->value() == touched);
    }

    void aTouchAFullTurnOnIsAtTheMinimum()
    {
        const auto dial = makeDial();
        dial->setStartAngle(720);
        dial->setRotateAngle(std::atan2(200, 100) * 180 / 3.14159);
        dial->setValue(100);
        touch(dial.get()).press(250 + 200, 250 - 100);
        QCOMPARE(dial->value(), 87.5);
    }

    void aReleaseWhereTheFingerAlreadyWasReportsNothing()
    {
        const auto dial = makeDial();
        Reports reports(dial.get());
        touch(dial.get()).press(450, 240).moveTo(450, 300).release();
        const QVector<Report> all = reports.take();
        QCOMPARE(all.size(), 2);
        QVERIFY(!all[0].isRelease && !all[1].isRelease);
    }

    void aReleaseElsewhereReportsTheValue()
    {
        Handlers dial;
        dial.resize(500, 500);
        Reports reports(&dial);
        QMouseEvent e(QEvent::MouseButtonRelease, QPointF(450, 300), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
        dial.mouseReleaseEvent(&e);
        QCOMPARE(reports.take(), (QVector<Report>{{true, touchedValue(dial, {450, 300})}}));
        QVERIFY(!e.isAccepted());
    }

    void aTouchOnTheCentreRowOrColumnDoesNothing()
    {
        const auto dial = makeDial(QSize(501, 501));
        dial->setStartAngle(0);
        Reports reports(dial.get());
        for (const QPoint &p :
             {QPoint(250, 30), QPoint(250, 470), QPoint(30, 250), QPoint(470, 250)})
            touch(dial.get()).tap(p.x(), p.y());
        QCOMPARE(reports.take().size(), 0);
        touch(dial.get()).tap(470, 260);
        QCOMPARE(reports.take().size(), 1);
    }

    void aTouchRightOfTwelveIsBelowTheMinimum()
    {
        const auto dial = makeDial();
        Reports reports(dial.get());
        touch(dial.get()).tap(251, 20);
        QCOMPARE(reports.take().size(), 0);
        QCOMPARE(dial->value(), 87.5);
    }

    // 120 and 160 make 200: the distances are exact.
    void onlyARingOfTwoHundredPixelsResponds()
    {
        const auto dial = makeDial(QSize(1000, 1000));
        Reports reports(dial.get());
        const auto responds = [&](double radius) {
            dial->setValue(87.5);
            dial->setRadius(radius);
            touch(dial.get()).press(500 + 160, 500 + 120);
            return reports.take().size() == 1;
        };
        QVERIFY(!responds(400));
        QVERIFY(responds(399.9));
        QVERIFY(responds(200));
        QVERIFY(responds(0.1));
        QVERIFY(!responds(0));
        QVERIFY(!responds(-100));
    }

    void touchesGoOnToTheParent()
    {
        const auto dial = makeDial();
        Touch finger = touch(dial.get());
        finger.press(450, 240);
        QVERIFY(!finger.wasAccepted());
        finger.moveTo(450, 300);
        QVERIFY(!finger.wasAccepted());
        finger.release();
        QVERIFY(!finger.wasAccepted());
    }

    // QWidget goes first, and ignores the event.
    void theBaseHandlersRunBeforeTheReports()
    {
        Handlers dial;
        dial.resize(500, 500);
        const QMouseEvent *current = nullptr;
        QVector<bool> accepted;
        const auto look = [&] { accepted += current->isAccepted(); };
        connect(&dial, &MCircularDial::currentValueChange, this, look);
        connect(&dial, &MCircularDial::valueChanged, this, look);
        const auto event = [&current](QEvent::Type type, int y) {
            auto e = std::make_unique<QMouseEvent>(type, QPoint(450, y), Qt::LeftButton,
                                                   Qt::LeftButton, Qt::NoModifier);
            current = e.get();
            return e;
        };
        dial.mousePressEvent(event(QEvent::MouseButtonPress, 240).get());
        dial.mouseMoveEvent(event(QEvent::MouseMove, 270).get());
        dial.mouseReleaseEvent(event(QEvent::MouseButtonRelease, 300).get());
        QCOMPARE(accepted, (QVector<bool>{false, false, false}));
    }

    void aTouchRequestsNoClickSound()
    {
        const auto dial = makeDial();
        SignalLog log(dial.get());
        touch(dial.get()).tap(450, 240);
        QCoreApplication::processEvents();
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().startsWith(QStringLiteral("currentValueChange(")));
    }

    // --- Robustness -----------------------------------------------------------------------------

    void hostileNumbers()
    {
        const double numbers[] = {-kInfinity, INT_MIN, -1.0,  0.0,       0.3,
                                  1e4,        1e9,     1e300, kInfinity, kNaN};
        for (const char *name :
             {"radius", "minValue", "maxValue", "value", "rotateAngle", "scale", "startAngle"}) {
            for (const double number : numbers) {
                const auto dial = makePercent();
                dial->setProperty(name, number);
                QVERIFY2(fused::during([&] { painted(*dial); }) <= 100001, name);
                touch(dial.get())
                    .press(150, 160)
                    .moveTo(40, 50)
                    .moveTo(-1000000000, 1000000000)
                    .release();
                QVERIFY2(fused::during([&] { painted(*dial); }) <= 100001, name);
                QVERIFY(!std::isnan(dial->value()));
            }
        }
    }

    // 0 to so many, with a tick for each; those at the right show.
    void everyTickAndLabelIsDrawn_data()
    {
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("scaleLong");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("radius");
        QTest::newRow("across the edges") << 4000 << 40 << QSize(482, 16) << 300.0;
        QTest::newRow("400 labels") << 399 << 1 << QSize(220, 220) << 105.0;
        QTest::newRow("401 labels") << 400 << 1 << QSize(220, 220) << 105.0;
        QTest::newRow("1,000 labels") << 999 << 1 << QSize(220, 220) << 112.0;
        QTest::newRow("10,000 ticks") << 9999 << 2500 << QSize(120, 120) << 55.0;
        QTest::newRow("10,002 ticks") << 10001 << 2500 << QSize(120, 120) << 55.0;
        QTest::newRow("100,000 ticks") << 99999 << 25000 << QSize(120, 120) << 55.0;
        QTest::newRow("100,001 ticks") << 100000 << 25000 << QSize(120, 120) << 55.0;
        QTest::newRow("100,000 labels") << 99999 << 1 << QSize(600, 16) << 300.0;
        QTest::newRow("far more than on the device") << 99999 << 1 << QSize(60, 9000) << 5000.0;
    }

    void everyTickAndLabelIsDrawn()
    {
        QFETCH(int, maximum);
        QFETCH(int, scaleLong);
        QFETCH(QSize, size);
        QFETCH(double, radius);
        const auto dial = makeDial(size);
        dial->setRadius(radius);
        dial->setMaxValue(maximum);
        dial->setMinValue(0);
        dial->setScale(1);
        dial->setScaleLong(scaleLong);
        dial->setValue(0);
        for (const QColor &color : {QColor(Qt::white), QColor(255, 255, 0, 20)}) {
            dial->setTextColor(color);
            COMPARE_PICTURES(painted(*dial), documented(*dial));
        }
    }

    void moreTicksAreThinnedOutByTens_data()
    {
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("tickStride");
        QTest::addColumn<int>("labelStride");
        QTest::newRow("100,002 ticks") << 100001 << 10 << 26;
        QTest::newRow("a million") << 1000000 << 100 << 26;
        QTest::newRow("more") << 1000101 << 1000 << 3;
        QTest::newRow("the most") << INT_MAX << 1000000 << 6;
    }

    void moreTicksAreThinnedOutByTens()
    {
        QFETCH(int, maximum);
        QFETCH(int, tickStride);
        QFETCH(int, labelStride);
        const auto dial = makePercent();
        dial->setMaxValue(maximum);
        dial->setScale(1);
        dial->setScaleLong(1);
        dial->setValue(0);
        COMPARE_PICTURES(painted(*dial), reference(*dial, [&](QPainter &p) {
                             paintDial(p, *dial, 0, {tickStride, labelStride});
                         }));
    }

    void noSizeIsTooSmall()
    {
        for (const QSize &size : {QSize(0, 0), QSize(1, 1), QSize(1, 500)}) {
            const auto dial = makeDial(size);
            show(*dial);
            touch(dial.get()).tap(0, 0).tap(200, 200 + size.height() / 2);
            dial->repaint();
            QVERIFY(dial->value() > 87.5);
        }
    }

    void aDialMayBeDeletedByEitherReport()
    {
        for (const auto report :
             {&MCircularDial::currentValueChange, &MCircularDial::valueChanged}) {
            QWidget parent;
            auto *dial = new MCircularDial(&parent);
            dial->resize(500, 500);
            const QPointer<MCircularDial> guard(dial);
            connect(dial, report, dial, [dial] { delete dial; });
            Touch finger = touch(dial);
            finger.press(450, 240);
            if (guard) {
                dial->setValue(108); // for the release to be a change
                finger.release();
            }
            QVERIFY(!guard);
        }
    }
};

WIDGET_TEST_MAIN(tst_MCircularDial)
#include "tst_mcirculardial.moc"
