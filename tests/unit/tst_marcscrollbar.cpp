// SPDX-License-Identifier: Apache-2.0
#include <MArcScrollBar>

#include "parent.h"
#include "setters.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QMouseEvent>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QScreen>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>

namespace
{

using Action = std::function<void(MArcScrollBar &)>;

// The default arc in 160 x 400, with a range of 0 to 100.
std::unique_ptr<MArcScrollBar> makeBar(QWidget *parent = nullptr)
{
    auto bar = std::make_unique<MArcScrollBar>(parent);
    bar->resize(160, 400);
    bar->setRange(0, 100);
    return bar;
}

std::unique_ptr<MArcScrollBar> makeStraightBar()
{
    auto bar = makeBar();
    bar->setRadius(0.5);
    return bar;
}

// The point at this clockwise angle from straight up around the default centre.
QPoint at(double degrees, double radius = 570)
{
    const double angle = degrees * M_PI / 180;
    return {-460 + qRound(radius * std::sin(angle)), 200 - qRound(radius * std::cos(angle))};
}

// Of a size that tells the two ways of halving an odd number apart.
QPixmap marker(const QSize &size = QSize(31, 45))
{
    QPixmap pixmap(size);
    pixmap.fill(QColor(0, 90, 200, 140));
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, 9, 5, Qt::yellow);
    return pixmap;
}

void paintTicks(QPainter &p, const MArcScrollBar &bar)
{
    const double step = (360 - 2 * bar.startAngle()) / (bar.maximum() - bar.minimum());
    p.save();
    p.rotate(qreal(bar.startAngle()));
    p.setBrush(bar.lineColor());
    for (int i = 0; i <= bar.maximum() - bar.minimum(); ++i) {
        p.drawLine(
            QLineF(0, qreal(0.9299999999999999 * bar.radius()), 0, qreal(0.98 * bar.radius())));
        p.rotate(qreal(step));
    }
    p.restore();
}

void paintPointer(QPainter &p, const MArcScrollBar &bar, double angle)
{
    const QPixmap pixmap = bar.pointPixmap();
    p.save();
    p.rotate(qreal(bar.startAngle() - 180));
    if (pixmap.isNull()) {
        const int base = int(-bar.radius() * 0.8);
        const QPoint corners[] = {{-2, base}, {2, base}, {0, -int(bar.radius())}};
        p.setPen(Qt::NoPen);
        p.setBrush(bar.pointColor());
        p.rotate(qreal(angle));
        p.drawConvexPolygon(corners, 3);
    } else {
        p.rotate(qreal(angle));
        p.drawPixmap(
            QRect(-(pixmap.width() / 2), int(-bar.radius()), pixmap.width(), pixmap.height()),
            pixmap);
    }
    p.restore();
}

// What the documented bar looks like, painted step by step.
void paintBar(QPainter &p, const MArcScrollBar &bar)
{
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    p.translate(bar.centerPoint());
    p.rotate(qreal(bar.rotateAngle()));
    if (bar.showTicks())
        paintTicks(p, bar);
    paintPointer(p, bar,
                 (360 - 2 * bar.startAngle()) / (bar.maximum() - bar.minimum())
                     * (bar.value() - bar.minimum()));
}

// What the documented straight bar looks like.
void paintStraightBar(QPainter &p, const MArcScrollBar &bar)
{
    const int range = bar.maximum() - bar.minimum();
    const int pitch = range == 0 ? 0 : int(bar.height() - 100.0) / range;
    for (int i = 0; bar.showTicks() && i <= range; ++i)
        p.drawLine(QPointF(0, qreal(i * pitch + 50.0)),
                   QPointF(qreal(bar.width()), qreal(i * pitch + 50.0)));
    const double along = (bar.height() - 100.0) * (bar.value() - bar.minimum()) / range;
    p.drawPixmap(0, int(along - bar.pointPixmap().height() / 2 + 50.0), bar.pointPixmap());
}

// Counts the lines that are drawn on it. It holds no pixels, so that nothing is left out as unseen.
class LineCounter : public QPaintDevice
{
public:
    int lines() const { return m_engine.lines; }
    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 400; // px, mm, dots an inch or colours: nobody asks for more
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        int lines = 0;

        Engine() : QPaintEngine(AllFeatures) { }
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState &) override { }
        void drawLines(const QLineF *, int count) override { lines += count; }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
        Type type() const override { return User; }
    };

    mutable Engine m_engine;
};

// Every signal of the slider in order.
class Log
{
public:
    explicit Log(MArcScrollBar *bar)
    {
        const auto add = [this](const char *name) {
            return [this, name](int value) {
                m_lines += QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(value);
            };
        };
        const auto addPlain = [this](const char *name) {
            return [this, name] { m_lines += QString::fromLatin1(name); };
        };
        QObject::connect(bar, &QScrollBar::sliderPressed, &m_context, addPlain("pressed"));
        QObject::connect(bar, &QScrollBar::sliderReleased, &m_context, addPlain("released"));
        QObject::connect(bar, &QScrollBar::sliderMoved, &m_context, add("moved"));
        QObject::connect(bar, &QScrollBar::valueChanged, &m_context, add("changed"));
        QObject::connect(bar, &QScrollBar::actionTriggered, &m_context, add("action"));
    }

    QStringList take() { return std::exchange(m_lines, QStringList()); }

private:
    QObject m_context;
    QStringList m_lines;
};

const QString kAction = QStringLiteral("action(7)"); // QAbstractSlider::SliderMove

// A parent that counts the mouse and key events which come up to it.
// A plain widget with a picture.
class PaintedBy : public QWidget
{
public:
    explicit PaintedBy(std::function<void(QPainter &)> paint) : m_paint(std::move(paint)) { }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_paint(painter);
    }

private:
    std::function<void(QPainter &)> m_paint;
};

// What a widget looks like inside a window on the screen.
QImage shownInWindow(QWidget &widget)
{
    QWidget window;
    window.resize(300, 500);
    widget.setParent(&window);
    widget.setGeometry(90, 70, 160, 400);
    widget.show();
    window.show();
    virtualtime::advance(0);
    const QPixmap shown = QGuiApplication::primaryScreen()->grabWindow(window.winId());
    widget.setParent(nullptr);
    return shown.toImage();
}

class Handlers : public MArcScrollBar
{
public:
    using MArcScrollBar::mouseMoveEvent;
    using MArcScrollBar::mousePressEvent;
    using MArcScrollBar::mouseReleaseEvent;
};

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MArcScrollBar : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction and setters ---------------------------------------------------------------

    void defaults()
    {
        const MArcScrollBar bar;
        QCOMPARE(bar.radius(), 570.0);
        QCOMPARE(bar.centerPoint(), QPointF(-460, 200));
        QCOMPARE(bar.lineColor(), QColor(173, 173, 173, 255));
        QCOMPARE(bar.pointColor(), QColor(94, 94, 94, 255));
        QCOMPARE(bar.rotateAngle(), 90.0);
        QCOMPARE(bar.startAngle(), 162.0);
        QVERIFY(bar.pointPixmap().isNull());
        QCOMPARE(bar.showTicks(), true);
        QCOMPARE(bar.orientation(), Qt::Vertical);
        QCOMPARE(bar.minimum(), 0);
        QCOMPARE(bar.maximum(), 99);
        QVERIFY(bar.testAttribute(Qt::WA_WState_OwnSizePolicy));
        QVERIFY(!bar.testAttribute(Qt::WA_OpaquePaintEvent));
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("radius", 0, [](auto &b) { b.setRadius(300); });
        row("radius of a straight bar", 0, [](auto &b) { b.setRadius(0.5); });
        row("lineColor", 1, [](auto &b) { b.setLineColor(Qt::red); });
        row("pointColor", 1, [](auto &b) { b.setPointColor(Qt::red); });
        row("rotateAngle", 1, [](auto &b) { b.setRotateAngle(91); });
        row("rotateAngle unchanged", 0, [](auto &b) { b.setRotateAngle(90); });
        row("rotateAngle out of range", 0, [](auto &b) { b.setRotateAngle(400); });
        row("startAngle", 1, [](auto &b) { b.setStartAngle(-20); });
        row("startAngle unchanged", 0, [](auto &b) { b.setStartAngle(162.005); });
        row("pointPixmap", 1, [](auto &b) { b.setPointPixmap(marker()); });
        row("showTicks", 1, [](auto &b) { b.setShowTicks(false); });
        row("showTicks unchanged", 1, [](auto &b) { b.setShowTicks(true); });
        row("centerPoint", 1, [](auto &b) { b.setCenterPoint({-400, 200}); });
        row("value", 1, [](auto &b) { b.setValue(30); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeBar()); }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("radius", -3.5);
        row("lineColor", QColor(1, 2, 3, 4));
        row("pointColor", QColor(2, 2, 3, 4));
        row("rotateAngle", 12.5);
        row("startAngle", -700.0);
        row("showTicks", false);
        row("centerPoint", QPointF(1.5, -2.5));
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MArcScrollBar()); }

    void whichAnglesAreTaken_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<bool>("isTaken");
        const double nan = std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("rotation 0") << QByteArray("rotateAngle") << 90.0 << 0.0 << true;
        QTest::newRow("rotation below") << QByteArray("rotateAngle") << 90.0 << -0.01 << false;
        QTest::newRow("rotation 360") << QByteArray("rotateAngle") << 90.0 << 360.0 << true;
        QTest::newRow("rotation above") << QByteArray("rotateAngle") << 90.0 << 360.01 << false;
        QTest::newRow("rotation 400") << QByteArray("rotateAngle") << 90.0 << 400.0 << false;
        QTest::newRow("rotation near") << QByteArray("rotateAngle") << 90.0 << 90.005 << false;
        QTest::newRow("rotation nearer") << QByteArray("rotateAngle") << 90.0 << 89.9901 << false;
        QTest::newRow("rotation far enough") << QByteArray("rotateAngle") << 0.0 << 0.01 << true;
        QTest::newRow("rotation no number") << QByteArray("rotateAngle") << 90.0 << nan << false;
        QTest::newRow("start far") << QByteArray("startAngle") << 162.0 << 1e6 << true;
        QTest::newRow("start negative") << QByteArray("startAngle") << 162.0 << -90.0 << true;
        QTest::newRow("start near") << QByteArray("startAngle") << 162.0 << 162.0099 << false;
        QTest::newRow("start far enough") << QByteArray("startAngle") << 0.0 << -0.01 << true;
        QTest::newRow("start no number") << QByteArray("startAngle") << 162.0 << nan << false;
    }

    void whichAnglesAreTaken()
    {
        QFETCH(QByteArray, name);
        QFETCH(double, from);
        QFETCH(double, to);
        QFETCH(bool, isTaken);
        MArcScrollBar bar;
        bar.setProperty(name, from);
        bar.setProperty(name, to);
        QCOMPARE(bar.property(name).toDouble(), isTaken ? to : from);
    }

    // --- Pictures of the arc --------------------------------------------------------------------

    void theArcIsTheDocumentedOne_data()
    {
        const TableRows<Action> row("action");
        row("default", [](auto &) {});
        row("at its maximum", [](auto &b) { b.setValue(100); });
        row("between", [](auto &b) { b.setValue(37); });
        row("another range", [](auto &b) {
            b.setRange(-20, 25);
            b.setValue(-3);
        });
        row("dense ticks", [](auto &b) { b.setRange(0, 400); });
        row("without ticks", [](auto &b) { b.setShowTicks(false); });
        row("turned", [](auto &b) {
            b.setRotateAngle(71.3);
            b.setStartAngle(140);
        });
        row("turned to the other side", [](auto &b) {
            b.setRotateAngle(270);
            b.setCenterPoint({600, 200});
        });
        row("full circle", [](auto &b) {
            b.setStartAngle(0);
            b.setRadius(70);
            b.setCenterPoint({80, 200});
            b.setRange(0, 30);
            b.setValue(7);
        });
        row("more than a full circle", [](auto &b) {
            b.setStartAngle(-40);
            b.setRadius(70.8);
            b.setCenterPoint({80.5, 200.25});
            b.setRange(0, 30);
        });
        row("backwards", [](auto &b) { b.setStartAngle(198); });
        row("no arc left", [](auto &b) { b.setStartAngle(180); });
        row("colours", [](auto &b) {
            b.setPointColor(QColor(200, 0, 0, 120));
            b.setLineColor(Qt::green);
        });
        row("picture", [](auto &b) { b.setPointPixmap(marker()); });
        row("picture of even size", [](auto &b) {
            b.setPointPixmap(marker({40, 60}));
            b.setValue(20);
            b.setRadius(555.5);
        });
        row("smallest radius", [](auto &b) {
            b.setRadius(1.0);
            b.setCenterPoint({80, 200});
        });
    }

    void theArcIsTheDocumentedOne()
    {
        QFETCH(Action, action);
        const auto bar = makeBar();
        bar->setValue(50);
        action(*bar);
        for (int paint = 0; paint < 3; ++paint) {
            COMPARE_PICTURES(painted(*bar),
                             reference(*bar, [&](QPainter &p) { paintBar(p, *bar); }));
        }
    }

    // What is kept is composed on nothing, so that it has to be right on any ground.
    void theArcIsRightOnAnyGround()
    {
        for (int maximum : {26, 100, 115, 130, 250}) {
            const auto bar = makeBar();
            bar->setMaximum(maximum);
            bar->setValue(20);
            bar->setPointColor(QColor(200, 0, 0, 120));
            QImage expected(bar->size(), QImage::Format_RGB32);
            expected.fill(QColor(24, 28, 36));
            const QImage ground = expected;
            {
                QPainter painter(&expected);
                painter.setPen(QPen(bar->palette().color(bar->foregroundRole()), 1));
                paintBar(painter, *bar);
            }
            for (int paint = 0; paint < 3; ++paint) {
                QImage actual = ground;
                bar->render(&actual, QPoint(), QRegion(), QWidget::DrawChildren);
                COMPARE_PICTURES(actual, expected);
            }
        }
    }

    // Inside a window the pixels are those of the whole window.
    void aBarInAWindowIsPaintedWhereItStands()
    {
        const auto bar = makeBar();
        bar->setValue(30);
        PaintedBy documented([&](QPainter &p) { paintBar(p, *bar); });
        const QImage expected = shownInWindow(documented);
        for (int paint = 0; paint < 4; ++paint)
            COMPARE_PICTURES(shownInWindow(*bar), expected);
    }

    void thePointerFollowsTheValue()
    {
        const auto bar = makeBar();
        for (int value : {0, 1, 2, 50, 99, 100}) {
            bar->setValue(value);
            COMPARE_PICTURES(painted(*bar),
                             reference(*bar, [&](QPainter &p) { paintBar(p, *bar); }));
        }
    }

    void theColourOfTheLinesIsNotThatOfTheTicks()
    {
        const auto bar = makeBar();
        const QImage before = painted(*bar);
        bar->setLineColor(Qt::red);
        COMPARE_PICTURES(painted(*bar), before);
        QPalette palette = bar->palette();
        palette.setColor(bar->foregroundRole(), Qt::red);
        bar->setPalette(palette);
        COMPARE_PICTURES(painted(*bar), reference(*bar, [&](QPainter &p) { paintBar(p, *bar); }));
        QVERIFY(painted(*bar) != before);
    }

    void withoutARangeThereIsOneTick()
    {
        const auto bar = makeBar();
        bar->setRange(5, 5);
        COMPARE_PICTURES(painted(*bar), reference(*bar, [&](QPainter &p) {
                             p.setRenderHints(QPainter::Antialiasing);
                             p.translate(-460, 200);
                             p.rotate(90);
                             p.save();
                             p.rotate(162);
                             p.drawLine(
                                 QLineF(0, qreal(0.9299999999999999 * 570), 0, qreal(0.98 * 570)));
                             p.restore();
                             paintPointer(p, *bar, 0);
                         }));
    }

    void aValueAboveTheMaximumTurnsThePointerOnce()
    {
        const auto bar = makeBar();
        bar->setStartAngle(100);
        bar->setCenterPoint({80, 200});
        bar->setRadius(70);
        bar->setValue(90);
        QImage picture;
        // The range is reported before the value is brought within it.
        connect(bar.get(), &QScrollBar::rangeChanged, this, [&] {
            QCOMPARE(bar->value(), 90);
            picture = painted(*bar);
        });
        bar->setMaximum(30);
        COMPARE_PICTURES(picture, reference(*bar, [&](QPainter &p) {
                             p.setRenderHints(QPainter::Antialiasing);
                             p.translate(80, 200);
                             p.rotate(90);
                             paintTicks(p, *bar);
                             paintPointer(p, *bar, 360);
                         }));
    }

    // The turns from tick to tick add up, rounding included, and ticks that lie on each other do so
    // in their order.
    void everyTickOfAWideRangeIsDrawn_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<Action>("action");
        const Action ring = [](auto &b) {
            b.resize(60, 60);
            b.setStartAngle(0);
            b.setRadius(28);
            b.setCenterPoint({30, 30});
        };
        const Action half = [](auto &b) {
            b.resize(60, 60);
            b.setStartAngle(-17.3);
            b.setRadius(41.3);
            b.setCenterPoint({qreal(-0.25), qreal(30.5)});
        };
        QTest::newRow("4,001 on a wide arc") << 4001 << Action([](auto &b) {
            b.setRadius(2000);
            b.setCenterPoint({-1890, 200});
        });
        QTest::newRow("20,000 in a ring") << 20000 << ring;
        QTest::newRow("20,000, not all of them in sight") << 20000 << half;
        QTest::newRow("20,000, few of them in sight") << 20000 << Action([](auto &b) {
            b.setStartAngle(100);
            b.setRadius(3000);
            b.setCenterPoint({-2890, 200});
        });
        QTest::newRow("100,000 in a ring") << 100000 << ring;
        QTest::newRow("100,000, not all of them in sight") << 100000 << half;
    }

    void everyTickOfAWideRangeIsDrawn()
    {
        QFETCH(int, range);
        QFETCH(Action, action);
        const auto bar = makeBar();
        action(*bar);
        bar->setMaximum(range);
        COMPARE_PICTURES(painted(*bar), reference(*bar, [&](QPainter &p) { paintBar(p, *bar); }));
    }

    void thereAreAsManyTicksAsValuesUpTo100000_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("fewest");
        QTest::addColumn<int>("most");
        QTest::newRow("one value") << 5 << 5 << 1 << 1;
        QTest::newRow("4,001") << -1 << 4000 << 4002 << 4002;
        QTest::newRow("100,000") << 0 << 100000 << 100001 << 100001;
        QTest::newRow("100,001") << 0 << 100001 << 50000 << 100001;
        QTest::newRow("all ints") << INT_MIN << INT_MAX << 50000 << 100001;
    }

    void thereAreAsManyTicksAsValuesUpTo100000()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, fewest);
        QFETCH(int, most);
        const auto bar = makeBar();
        bar->setRange(minimum, maximum);
        for (const bool isStraight : {false, true}) {
            LineCounter counter;
            QPainter painter(&counter);
            painter.setRenderHint(QPainter::Antialiasing);
            if (isStraight)
                bar->drawTicksVert(&painter);
            else
                bar->drawTicks(&painter);
            painter.end();
            QVERIFY2(counter.lines() >= fewest, qPrintable(QString::number(counter.lines())));
            QVERIFY2(counter.lines() <= most, qPrintable(QString::number(counter.lines())));
        }
    }

    void aHugeRangeIsAClosedRing()
    {
        const auto bar = makeBar();
        bar->setRange(INT_MIN, INT_MAX);
        bar->setValue(0);
        const QImage picture = painted(*bar);
        QVERIFY(picture.pixelColor(90, 230).alpha() > 250); // between 0.93 and 0.98 of the radius
        QCOMPARE(picture.pixelColor(60, 230).alpha(), 0);
    }

    // --- Pictures of the straight bar -----------------------------------------------------------

    void theStraightBarIsTheDocumentedOne_data()
    {
        const TableRows<Action> row("action");
        row("default", [](auto &) {});
        row("picture", [](auto &b) { b.setPointPixmap(marker()); });
        row("picture of even height", [](auto &b) { b.setPointPixmap(marker({20, 30})); });
        row("without ticks", [](auto &b) {
            b.setPointPixmap(marker());
            b.setShowTicks(false);
        });
        row("range that does not divide the height", [](auto &b) {
            b.setPointPixmap(marker());
            b.setRange(-30, 51);
            b.setValue(51);
        });
        row("range larger than the height", [](auto &b) { b.setRange(0, 301); });
        row("range as large as the height", [](auto &b) { b.setRange(0, 300); });
        row("too low", [](auto &b) {
            b.resize(160, 60);
            b.setRange(0, 7);
            b.setValue(3);
            b.setPointPixmap(marker());
        });
        row("negative radius", [](auto &b) { b.setRadius(-570); });
        row("translucent foreground", [](auto &b) {
            QPalette palette = b.palette();
            palette.setColor(b.foregroundRole(), QColor(200, 0, 0, 60));
            b.setPalette(palette);
            b.setRange(0, 301);
        });
        row("translucent foreground of many ticks", [](auto &b) {
            QPalette palette = b.palette();
            palette.setColor(b.foregroundRole(), QColor(200, 0, 0, 1));
            b.setPalette(palette);
            b.setRange(0, 4300);
        });
    }

    void theStraightBarIsTheDocumentedOne()
    {
        QFETCH(Action, action);
        const auto bar = makeStraightBar();
        bar->setValue(33);
        action(*bar);
        COMPARE_PICTURES(painted(*bar),
                         reference(*bar, [&](QPainter &p) { paintStraightBar(p, *bar); }));
    }

    void theStraightTicksKeepToThePainterOfTheCaller()
    {
        const auto bar = makeStraightBar();
        bar->setRange(0, 20);
        for (int kind = 0; kind < 5; ++kind) {
            const auto prepare = [kind](QPainter &p) {
                p.setPen(QPen(Qt::red, kind == 0 ? 5 : 1, kind == 1 ? Qt::DotLine : Qt::SolidLine));
                p.setRenderHint(QPainter::Antialiasing, kind == 2);
                p.rotate(kind == 3 ? 10 : 0);
                p.translate(0, kind == 4 ? qreal(-0.3) : 0);
            };
            COMPARE_PICTURES(reference(*bar,
                                       [&](QPainter &p) {
                                           prepare(p);
                                           bar->drawTicksVert(&p);
                                       }),
                             reference(*bar, [&](QPainter &p) {
                                 prepare(p);
                                 for (int i = 0; i <= 20; ++i)
                                     p.drawLine(QPointF(0, qreal(i * 15 + 50)),
                                                QPointF(160, qreal(i * 15 + 50)));
                             }));
        }
    }

    // Ticks without distance lie on each other and add up where one of them does not cover.
    void straightTicksOnOneLineAreDrawnOneByOne()
    {
        const auto bar = makeStraightBar();
        bar->setRange(0, 301);
        for (int kind = 0; kind < 4; ++kind) {
            const auto prepare = [kind](QPainter &p) {
                p.setPen(Qt::red);
                if (kind == 1)
                    p.setOpacity(qreal(0.01));
                if (kind == 2)
                    p.setCompositionMode(QPainter::CompositionMode_Xor);
                if (kind == 3)
                    p.setPen(QPen(QBrush(Qt::red, Qt::DiagCrossPattern), 1));
            };
            COMPARE_PICTURES(reference(*bar,
                                       [&](QPainter &p) {
                                           prepare(p);
                                           bar->drawTicksVert(&p);
                                       }),
                             reference(*bar, [&](QPainter &p) {
                                 prepare(p);
                                 for (int i = 0; i <= 301; ++i)
                                     p.drawLine(QPointF(0, 50), QPointF(160, 50));
                             }));
        }
    }

    // Screens that draw on after it fill with the line colour; only the arc's ticks take it back.
    void theStraightTicksLeaveTheirBrush()
    {
        const auto bar = makeStraightBar();
        bar->setLineColor(QColor(1, 200, 3));
        for (const bool isSmooth : {false, true}) {
            QImage image(bar->size(), QImage::Format_ARGB32_Premultiplied);
            QPainter painter(&image);
            painter.setPen(Qt::red);
            painter.setBrush(Qt::yellow);
            painter.setRenderHint(QPainter::Antialiasing, isSmooth);
            for (int paint = 0; paint < 3; ++paint)
                bar->drawTicks(&painter);
            QCOMPARE(painter.brush(), QBrush(Qt::yellow));
            bar->drawTicksVert(&painter);
            QCOMPARE(painter.brush(), QBrush(QColor(1, 200, 3)));
            QCOMPARE(painter.pen(), QPen(Qt::red));
        }
    }

    void aStraightBarWithoutARangeHasOneTick()
    {
        const auto bar = makeStraightBar();
        bar->setPointPixmap(marker());
        bar->setRange(5, 5);
        COMPARE_PICTURES(painted(*bar), reference(*bar, [&](QPainter &p) {
                             p.drawLine(0, 50, 160, 50);
                             p.drawPixmap(0, 0, marker());
                         }));
    }

    void theRadiusAloneMakesItStraight()
    {
        const auto bar = makeBar();
        bar->setRadius(1.0);
        const QImage arc = painted(*bar);
        bar->setRadius(0.999);
        QVERIFY(painted(*bar) != arc);
        COMPARE_PICTURES(painted(*bar), painted(*makeStraightBar()));
    }

    // --- Touching the arc -----------------------------------------------------------------------

    void aTouchSetsTheValueByItsDirection_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<int>("value");
        QTest::newRow("first tick") << at(72.2) << 0;
        QTest::newRow("before the first tick") << at(60) << 0;
        QTest::newRow("a quarter") << at(81.1) << 25;
        QTest::newRow("just below a right angle") << QPoint(110, 199) << 49;
        QTest::newRow("just above a right angle") << QPoint(110, 201) << 50;
        QTest::newRow("three quarters") << at(99.1) << 75;
        QTest::newRow("last tick") << at(108.2) << 100;
        QTest::newRow("beyond the last tick") << at(130) << 100;
        QTest::newRow("left below") << at(200) << 100;
        QTest::newRow("left above, before the turn is full") << at(300) << 100;
    }

    void aTouchSetsTheValueByItsDirection()
    {
        QFETCH(QPoint, point);
        QFETCH(int, value);
        const auto bar = makeBar();
        bar->setValue(60);
        bar->calcCurValue(point, true);
        QCOMPARE(bar->value(), value);
    }

    void theQuadrants_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<double>("direction"); // clockwise from the top
        const double eighth = std::atan2(300.0, 300.0) * 180 / 3.14159; // by the coarse pi
        QTest::newRow("right above") << QPoint(300, -300) << eighth;
        QTest::newRow("right below") << QPoint(300, 300) << eighth + 90;
        QTest::newRow("left below") << QPoint(-300, 300) << eighth + 180;
        QTest::newRow("left above") << QPoint(-300, -300) << eighth + 270;
    }

    void theQuadrants()
    {
        QFETCH(QPoint, point);
        QFETCH(double, direction);
        MArcScrollBar bar;
        bar.setRadius(400);
        bar.setCenterPoint({qreal(0.9), qreal(-0.9)}); // cut to whole px
        bar.setRotateAngle(0);
        bar.setStartAngle(-20);
        bar.setRange(0, 1000000000);
        bar.calcCurValue(point, true);
        double along = direction + 20;
        if (along >= 360)
            along -= 360;
        QCOMPARE(bar.value(), int(along * 1e9 / 400));
    }

    void aFullTurnIsTakenOffAsOftenAsNeeded()
    {
        MArcScrollBar bar;
        bar.setRadius(400);
        bar.setCenterPoint({0, 0});
        bar.setRotateAngle(360);
        bar.setStartAngle(-720);
        bar.setRange(0, 1800);
        bar.calcCurValue({300, -300}, true);
        QCOMPARE(bar.value(), 45);
    }

    void theRotationIsAddedAndTheStartTakenOff()
    {
        const auto bar = makeBar();
        bar->setRotateAngle(85);
        bar->calcCurValue({110, 201}, true);
        QCOMPARE(bar->value(), 36); // 13.1 of 36 degrees
        bar->setStartAngle(160);
        bar->calcCurValue({110, 201}, true);
        QCOMPARE(bar->value(), 37); // 15.1 of 40 degrees
    }

    void theReachOfTheArc_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<bool>("isTouched");
        // 300-400-500: the point is 500 from the centre.
        QTest::newRow("199 outside") << 301.0 << true;
        QTest::newRow("just inside the outer end") << 300.001 << true;
        QTest::newRow("200 outside") << 300.0 << false;
        QTest::newRow("201 outside") << 299.0 << false;
        QTest::newRow("199 inside") << 699.0 << true;
        QTest::newRow("200 inside") << 700.0 << false;
        QTest::newRow("201 inside") << 701.0 << false;
    }

    void theReachOfTheArc()
    {
        QFETCH(double, radius);
        QFETCH(bool, isTouched);
        const auto bar = makeBar();
        bar->setCenterPoint({0, 0});
        bar->setRadius(radius);
        bar->setValue(7);
        Log log(bar.get());
        touch(bar.get()).tap(400, 300);
        QCOMPARE(bar->value() != 7, isTouched);
        if (!isTouched)
            QCOMPARE(log.take(), (QStringList{"pressed", "released"}));
    }

    void touchesOnTheAxesOfTheCentreAreIgnored()
    {
        const auto bar = makeBar();
        bar->setCenterPoint({qreal(-460.7), qreal(200.7)}); // cut to -460, 200
        bar->setValue(7);
        Log log(bar.get());
        for (const QPoint &p :
             {QPoint(110, 200), QPoint(-1030, 200), QPoint(-460, -370), QPoint(-460, 770)})
            touch(bar.get()).press(p).moveTo(p.x(), p.y()).release();
        QCOMPARE(bar->value(), 7);
        QCOMPARE(log.take().filter(QRegularExpression(QStringLiteral("moved|changed"))),
                 QStringList());
    }

    void theSignalsOfATouch()
    {
        const auto bar = makeBar();
        Log log(bar.get());
        Touch finger = touch(bar.get());
        finger.press(110, 201);
        QCOMPARE(log.take(), (QStringList{"pressed", kAction, "changed(50)", "moved(50)"}));
        finger.moveTo(110, 202); // 50 still
        QCOMPARE(log.take(), QStringList());
        finger.moveTo(110, 215);
        QCOMPARE(log.take(), (QStringList{kAction, "changed(54)", "moved(54)"}));
        finger.release();
        QCOMPARE(log.take(), QStringList{"released"});
    }

    void aTouchBeyondTheEndReportsTheEnd()
    {
        for (const bool isStraight : {false, true}) {
            const auto bar = isStraight ? makeStraightBar() : makeBar();
            bar->setValue(60);
            const QPoint beyond = isStraight ? QPoint(5, 390) : at(120);
            const QPoint before = isStraight ? QPoint(5, 10) : at(60);
            Log log(bar.get());
            touch(bar.get()).press(beyond);
            QCOMPARE(log.take(), (QStringList{"pressed", kAction, "changed(100)", "moved(100)"}));
            QMouseEvent release(QEvent::MouseButtonRelease, QPointF(before), Qt::LeftButton,
                                Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(bar.get(), &release);
            QCOMPARE(log.take(), (QStringList{"changed(0)", "changed(0)", "released"}));
        }
    }

    void aTouchThatMeansNoNumberIsIgnored()
    {
        const auto bar = makeBar();
        bar->setValue(7);
        bar->setStartAngle(std::numeric_limits<double>::infinity());
        touch(bar.get()).tap(110, 201);
        QCOMPARE(bar->value(), 7);
        bar->setRadius(0);
        bar->resize(20, 100);
        touch(bar.get()).tap(5, 50);
        QCOMPARE(bar->value(), 7);
    }

    void aReleaseElsewhereReportsTheValueTwice()
    {
        const auto bar = makeBar();
        Log log(bar.get());
        touch(bar.get()).press(110, 201);
        log.take();
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(110, 215), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(bar.get(), &release);
        QCOMPARE(log.take(), (QStringList{"changed(54)", "changed(54)", "released"}));
        QVERIFY(!bar->isSliderDown());
    }

    void withoutTrackingTheValueWaitsForTheRelease()
    {
        const auto bar = makeBar();
        bar->setTracking(false);
        Log log(bar.get());
        Touch finger = touch(bar.get());
        finger.press(110, 201).moveTo(110, 202);
        QCOMPARE(bar->value(), 0);
        QCOMPARE(bar->sliderPosition(), 50);
        QCOMPARE(log.take(), (QStringList{"pressed", "moved(50)", "moved(50)"}));
        finger.release();
        QCOMPARE(bar->value(), 50);
        QCOMPARE(log.take(), (QStringList{"changed(50)", "changed(50)", "released"}));
    }

    void valuesAreCutTowardZero()
    {
        const auto bar = makeBar();
        bar->setRange(-100, 0);
        bar->setValue(-7);
        bar->calcCurValue({110, 199}, true); // 49.7 of 100
        QCOMPARE(bar->value(), -50);
    }

    void aTouchRepaintsOnceAndIdlenessNever()
    {
        const auto bar = makeBar();
        show(*bar);
        Touch finger = touch(bar.get());
        QCOMPARE(paints(*bar, [&] { finger.press(110, 201); }), 1);
        QCOMPARE(paints(*bar, [&] { finger.release(); }), 0);
        QCOMPARE(paints(*bar, [] { virtualtime::advance(100000); }), 0);
    }

    void thereIsNoSliderOfTheBaseClassToTouch()
    {
        const auto bar = makeBar();
        touch(bar.get()).press(3, 380).hold(3000).release();
        QCOMPARE(bar->value(), 100); // and no paging by timer
    }

    // --- Touching the straight bar --------------------------------------------------------------

    void aTouchOfTheStraightBarSetsTheValueByItsHeight_data()
    {
        QTest::addColumn<int>("y");
        QTest::addColumn<int>("value");
        QTest::newRow("above") << -20 << 0;
        QTest::newRow("first tick") << 50 << 0;
        QTest::newRow("below it") << 52 << 0;
        QTest::newRow("second tick") << 53 << 1;
        QTest::newRow("middle") << 200 << 50;
        QTest::newRow("before the last tick") << 349 << 99;
        QTest::newRow("last tick") << 350 << 100;
        QTest::newRow("below") << 399 << 100;
    }

    void aTouchOfTheStraightBarSetsTheValueByItsHeight()
    {
        QFETCH(int, y);
        QFETCH(int, value);
        const auto bar = makeStraightBar();
        bar->setValue(60);
        touch(bar.get()).tap(-3000, y);
        QCOMPARE(bar->value(), value);
    }

    void theSignalsOfATouchOfTheStraightBar()
    {
        const auto bar = makeStraightBar();
        Log log(bar.get());
        Touch finger = touch(bar.get());
        finger.press(5, 200).moveTo(5, 260);
        QCOMPARE(log.take(),
                 (QStringList{"pressed", kAction, "changed(50)", "moved(50)", kAction,
                              "changed(70)", "moved(70)"}));
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 350), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(bar.get(), &release);
        QCOMPARE(log.take(), (QStringList{"changed(100)", "changed(100)", "released"}));
    }

    // --- Events and harm ------------------------------------------------------------------------

    void mouseEventsEndHereAndNoSoundIsAskedFor()
    {
        Parent parent;
        const auto bar = makeBar(&parent);
        touch(bar.get()).press(110, 201).moveTo(110, 220).release().hold(100);
        QCOMPARE(parent.events, QStringList());
        bar->setParent(nullptr);
    }

    void noEventAndNoPainterAreNoHarm()
    {
        Handlers bar;
        bar.setPointPixmap(marker());
        Log log(&bar);
        bar.mousePressEvent(nullptr);
        bar.mouseMoveEvent(nullptr);
        bar.mouseReleaseEvent(nullptr);
        QCOMPARE(log.take(), QStringList());
        bar.drawTicks(nullptr);
        bar.drawPointer(nullptr);
        bar.drawTicksVert(nullptr);
        bar.drawPointerVert(nullptr);
    }

    void theBarMayBeDeletedInAnyOfItsSignals()
    {
        for (int signal = 0; signal < 4; ++signal) {
            QPointer<MArcScrollBar> bar = makeBar().release();
            const auto kill = [&] { delete bar; };
            if (signal == 0)
                connect(bar, &QScrollBar::sliderPressed, this, kill);
            else if (signal == 1)
                connect(bar, &QScrollBar::valueChanged, this, kill);
            else if (signal == 2)
                connect(bar, &QScrollBar::sliderMoved, this, kill);
            else
                connect(bar, &QScrollBar::sliderReleased, this, kill);
            touch(bar).tap(110, 201);
            QVERIFY(!bar);

            bar = makeBar().release();
            connect(bar, &QScrollBar::valueChanged, this, kill);
            bar->calcCurValue({110, 201}, true);
            QVERIFY(!bar);
        }
    }

    // Whatever was set, painted and touched: afterwards the bar is as any other.
    void hostileNumbersLeaveNoTrace()
    {
        using Double = std::numeric_limits<double>;
        for (double number : {Double::quiet_NaN(), Double::infinity(), -Double::infinity(), 1e300,
                              -1e300, 1e9, 0.0, 180.0}) {
            const auto bar = makeBar();
            const Action setters[] = {[=](MArcScrollBar &b) { b.setStartAngle(number); },
                                      [=](MArcScrollBar &b) { b.setRotateAngle(number); },
                                      [=](MArcScrollBar &b) { b.setRadius(number); },
                                      [=](MArcScrollBar &b) {
                                          b.setCenterPoint({qreal(number), qreal(-number)});
                                      }};
            for (const Action &set : setters) {
                set(*bar);
                for (const QPixmap &picture : {QPixmap(), marker()}) {
                    bar->setPointPixmap(picture);
                    for (int maximum : {0, 7, INT_MAX}) {
                        bar->setRange(maximum == INT_MAX ? INT_MIN : 0, maximum);
                        touch(bar.get()).tap(110, 201).tap(2000000000, -2000000000);
                        QVERIFY(bar->value() >= bar->minimum() && bar->value() <= maximum);
                        painted(*bar);
                    }
                }
            }
            bar->setStartAngle(150); // an angle that is near infinity would be no change
            bar->setStartAngle(162);
            bar->setRotateAngle(90);
            bar->setRadius(570);
            bar->setCenterPoint({-460, 200});
            bar->setRange(0, 100);
            touch(bar.get()).tap(110, 201);
            QCOMPARE(bar->value(), 50);
            COMPARE_PICTURES(painted(*bar),
                             reference(*bar, [&](QPainter &p) { paintBar(p, *bar); }));
        }
    }

    void aStraightBarWithoutHeightHasItsTicksAtTheTop()
    {
        const auto bar = makeStraightBar();
        bar->setPointPixmap(marker());
        for (int height : {1, 99, 100, 101}) {
            bar->resize(20, height);
            touch(bar.get()).tap(5, 50).tap(5, 70);
            QCOMPARE(bar->value(), height < 100 ? 0 : 100);
            COMPARE_PICTURES(painted(*bar),
                             reference(*bar, [&](QPainter &p) { paintStraightBar(p, *bar); }));
        }
    }
};

WIDGET_TEST_MAIN(tst_MArcScrollBar)
#include "tst_marcscrollbar.moc"
