// SPDX-License-Identifier: Apache-2.0
#include <MOnOffButton>

#include "baseorder.h"
#include "keptlooks.h"
#include "parent.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QAbstractEventDispatcher>
#include <QBitmap>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>

#include <climits>
#include <dlfcn.h>
#include <memory>

// The last timer that anything outside Qt has asked for. This function stands before Qt's own: to
// the event dispatcher a coarse timer of 20 ms is a precise one.
static Qt::TimerType lastTimerType = Qt::PreciseTimer;

int QObject::startTimer(int interval, Qt::TimerType timerType)
{
    using Start = int (*)(QObject *, int, Qt::TimerType);
    static const auto start =
        reinterpret_cast<Start>(dlsym(RTLD_NEXT, "_ZN7QObject10startTimerEiN2Qt9TimerTypeE"));
    lastTimerType = timerType;
    return start(this, interval, timerType);
}

namespace
{

using Action = std::function<void(MOnOffButton &)>;
using Paint = std::function<void(QPainter &)>;

const QString kOn = QStringLiteral("onoffStatusChanged(\"ID_MOnOffButton\", true)");
const QString kOff = QStringLiteral("onoffStatusChanged(\"ID_MOnOffButton\", false)");
const QString kPressed = QStringLiteral("buttonClicked()");

// Handlers and drawing functions are called with what a subclass may hand them.
class Switch : public MOnOffButton
{
public:
    using MOnOffButton::createRectPath;
    using MOnOffButton::drawDisableImage;
    using MOnOffButton::MOnOffButton;

    int ticks = 0;

protected:
    void timerEvent(QTimerEvent *e) override
    {
        ++ticks;
        MOnOffButton::timerEvent(e);
    }
};

// 90 x 44: the knob's middle goes from 22 to 68, and a drag of 23 px switches.
std::unique_ptr<Switch> makeSwitch(QWidget *parent = nullptr)
{
    auto button = std::make_unique<Switch>(parent);
    button->resize(90, 44);
    return button;
}

// A picture that is no mirror image of itself, with soft edges and a translucent part.
QPixmap picture(const QColor &color, const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.drawEllipse(pixmap.rect().adjusted(1, 1, -2, -2));
    painter.fillRect(0, 0, size.width() / 3, size.height() / 4, QColor(20, 30, 200, 120));
    return pixmap;
}

const QSize kBkgSize(81, 33);
const QSize kChunkSize(31, 27);

// The pictures of one switch, all different.
struct Artwork {
    QPixmap on = picture(Qt::green, kBkgSize);
    QPixmap off = picture(Qt::gray, kBkgSize);
    QPixmap resting = picture(Qt::white, kChunkSize);
    QPixmap moving = picture(Qt::yellow, QSize(36, 38));
};

const Artwork &artwork()
{
    static const Artwork instance;
    return instance;
}

void setPictures(MOnOffButton &button)
{
    button.setNormalBkgPix(artwork().on);
    button.setPressBkgPix(artwork().off);
    button.setNormalChunkPix(artwork().resting);
    button.setPressChunkPix(artwork().moving);
}

// Brings the knob to a position between the ends without a drag.
void moveKnobTo(MOnOffButton &button, int x)
{
    const bool isDisabled = button.btnDisable();
    button.setBtnDisable(false);
    touch(&button).press(x, 10).moveTo(x, 10);
    button.setBtnDisable(isDisabled);
}

// A widget of which nothing is known but its picture: millions of pixels away from the corner, what
// single precision loses depends on whether a widget is painted or not.
class Canvas : public QWidget
{
public:
    explicit Canvas(Paint content) : paint(std::move(content)) { }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paint(painter);
    }

private:
    Paint paint;
};

// --- What is painted, in plain painter calls
// ------------------------------------------------------

QPainterPath roundedPath(const QRectF &r, int radius)
{
    const qreal k = qreal(radius);
    QPainterPath path;
    path.moveTo(r.right() - k, r.top());
    path.lineTo(r.left() + k, r.top());
    path.quadTo(r.left(), r.top(), r.left(), r.top() + k);
    path.lineTo(r.left(), r.bottom() - k);
    path.quadTo(r.left(), r.bottom(), r.left() + k, r.bottom());
    path.lineTo(r.right() - k, r.bottom());
    path.quadTo(r.right(), r.bottom(), r.right(), r.bottom() - k);
    path.lineTo(r.right(), r.top() + k);
    path.quadTo(r.right(), r.top(), r.right() - k, r.top());
    return path;
}

QColor times(const QColor &c, int a, int b)
{
    return QColor(c.red() * a / b, c.green() * a / b, c.blue() * a / b);
}

const QColor kOrange(255, 145, 20);
const QColor kGrey(155, 155, 155);
const QColor kLine(70, 70, 70);

struct Switching {
    QSize size = QSize(90, 44);
    bool on = false;
    int knob = 0; // 0: at rest
    QColor onColor = kOrange;
    QColor offColor = kGrey;

    QColor color() const { return on ? onColor : offColor; }
};

void drawTrack(QPainter &p, int height, int left, int right, const QColor &fill,
               const QColor &brush)
{
    const int s = height / 6;
    const QPainterPath path = roundedPath(QRect(QPoint(left, s + 1), QPoint(right, 5 * s)), 2 * s);
    p.fillPath(path, fill);
    p.setBrush(brush);
    p.drawPath(path);
}

Paint style0(const Switching &s)
{
    return [s](QPainter &p) {
        const int w = s.size.width();
        const int h = s.size.height();
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(kLine);
        if (s.knob == 0) {
            drawTrack(p, h, 1, w - 2, s.color(), times(s.color(), 2, 3));
            p.setBrush(s.color());
            p.drawEllipse(s.on ? w - 1 - h : 0, 0, h, h);
        } else {
            drawTrack(p, h, 1, s.knob - 1, s.offColor, times(s.offColor, 2, 3));
            drawTrack(p, h, s.knob, w - 2, s.onColor, times(s.onColor, 2, 3));
            p.setBrush(s.knob <= w / 2 ? s.offColor : s.onColor);
            p.drawEllipse(s.knob - h / 2, 0, h, h);
        }
    };
}

Paint style0Disabled(const Switching &s)
{
    return [s](QPainter &p) {
        const int w = s.size.width();
        const int h = s.size.height();
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(times(s.color(), 2, 5));
        drawTrack(p, h, 1, w - 2, times(s.color(), 2, 3), times(s.color(), 2, 5));
        p.setPen(times(s.color(), 2, 3));
        p.setBrush(times(s.color(), 2, 3));
        p.drawEllipse(s.on ? w - 1 - h : 0, 0, h, h);
    };
}

struct Plate {
    QColor pen;
    QColor brush;
};

void drawPlate(QPainter &p, const QRect &rect, const Plate &plate)
{
    p.setPen(plate.pen);
    p.setBrush(plate.brush);
    p.drawPath(roundedPath(rect, rect.height() / 2));
}

Paint plates(const Switching &s, int knobX, const Plate &outer, const Plate &inner,
             const Plate &knob)
{
    return [=](QPainter &p) {
        const int w = s.size.width();
        const int h = s.size.height();
        const int m = h > 15 ? h / 8 : 2;
        p.setRenderHint(QPainter::Antialiasing);
        drawPlate(p, QRect(1, 1, w - 2, h - 2), outer);
        drawPlate(p, QRect(m, m, w - 2 * m, h - 2 * m), inner);
        drawPlate(p, QRect(knobX, h / 3, w / 2 - 2 * (h / 3), h - 2 * (h / 3)), knob);
    };
}

int restingPlateX(const Switching &s)
{
    return s.on ? s.size.width() / 2 + s.size.height() / 3 : s.size.height() / 3;
}

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

Paint style1(const Switching &s)
{
    const QColor c = s.color();
    const int w = s.size.width();
    const int h = s.size.height();
    if (s.knob == 0) {
        return plates(s, restingPlateX(s), {c, withAlpha(c, 255)},
                      {c, withAlpha(times(c, 1, 2), 155)}, {c, c});
    }
    const double f = double(s.knob - h / 2) / ((w - 1) - (h - 1));
    return plates(s, int(h / 3 + f * w / 2), {c, c}, {times(c, 1, 2), times(c, 1, 2)}, {c, c});
}

Paint style1Disabled(const Switching &s)
{
    const QColor twoThirds = times(s.color(), 2, 3);
    const QColor third = times(s.color(), 1, 3);
    return plates(s, restingPlateX(s), {twoThirds, twoThirds}, {third, third}, {third, third});
}

// The documented composition of a dimmed picture, step by step.
void drawDimmed(QPainter &p, const QRect &target, const QPixmap &pixmap)
{
    QImage image = pixmap.toImage();
    QPainter inner(&image);
    inner.setCompositionMode(QPainter::CompositionMode_Source);
    inner.fillRect(target, Qt::transparent);
    inner.setCompositionMode(QPainter::CompositionMode_SourceOver);
    inner.drawPixmap(target, pixmap);
    inner.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    inner.fillRect(target, QColor(0, 0, 0, 154));
    inner.end();
    p.drawImage(QRectF(target), image, QRectF(image.rect()));
}

// The same of what is expected there.
QImage expectedOnGround(const QWidget &widget, const Paint &paint)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(13, 70, 101));
    QPainter painter(&image);
    paint(painter);
    return image;
}

// The application says that a list is scrolling while this exists.
struct ListMoving {
    ListMoving() { qApp->setProperty("listMoving", true); }
    ~ListMoving() { qApp->setProperty("listMoving", QVariant()); }
    Q_DISABLE_COPY(ListMoving)
};

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MOnOffButton : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction and setters ---------------------------------------------------------------

    void defaults()
    {
        QWidget parent;
        const MOnOffButton button(&parent);
        QCOMPARE(button.parentWidget(), &parent);
        QCOMPARE(button.onColor(), QColor(255, 145, 20, 255));
        QCOMPARE(button.offColor(), QColor(155, 155, 155, 255));
        QCOMPARE(button.btnID(), QStringLiteral("ID_MOnOffButton"));
        QCOMPARE(button.onoffStatus(), false);
        QCOMPARE(button.btnDisable(), false);
        QVERIFY(button.normalBkgPix().isNull());
        QVERIFY(button.pressBkgPix().isNull());
        QVERIFY(button.normalChunkPix().isNull());
        QVERIFY(button.pressChunkPix().isNull());
        QCOMPARE(button.reverse(), false);
        QCOMPARE(button.UIStyle(), MOnOffButton::ONOFF_STYLE_0);
        QCOMPARE(button.minimumSize(), QSize(90, 44));
        QCOMPARE(MOnOffButton().parentWidget(), nullptr);
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("onColor", 1, [](auto &b) { b.setOnColor(Qt::red); });
        row("onColor unchanged", 1, [](auto &b) { b.setOnColor(b.onColor()); });
        row("offColor", 1, [](auto &b) { b.setOffColor(Qt::red); });
        row("btnID", 0, [](auto &b) { b.setBtnID(QStringLiteral("x")); });
        row("onoffStatus", 1, [](auto &b) { b.setOnoffStatus(true); });
        row("onoffStatus unchanged", 1, [](auto &b) { b.setOnoffStatus(false); });
        row("btnDisable", 1, [](auto &b) { b.setBtnDisable(true); });
        row("normalBkgPix", 1, [](auto &b) { b.setNormalBkgPix(picture(Qt::red, {90, 44})); });
        row("normalBkgPix null", 1, [](auto &b) { b.setNormalBkgPix(QPixmap()); });
        row("pressBkgPix", 1, [](auto &b) { b.setPressBkgPix(picture(Qt::red, {300, 300})); });
        row("pressBkgPix null", 1, [](auto &b) { b.setPressBkgPix(QPixmap()); });
        row("normalChunkPix", 1, [](auto &b) { b.setNormalChunkPix(artwork().resting); });
        row("normalChunkPix null", 1, [](auto &b) { b.setNormalChunkPix(QPixmap()); });
        row("pressChunkPix", 1, [](auto &b) { b.setPressChunkPix(artwork().moving); });
        row("pressChunkPix null", 1, [](auto &b) { b.setPressChunkPix(QPixmap()); });
        row("reverse", 1, [](auto &b) { b.setReverse(true); });
        row("UIStyle", 0, [](auto &b) { b.setUIStyle(MOnOffButton::ONOFF_STYLE_1); });
        row("changeStatus", 0, [](auto &b) { b.changeStatus(true); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints<MOnOffButton>(*makeSwitch()); }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("onColor", QColor(1, 2, 3, 4));
        row("offColor", QColor(2, 2, 3, 4));
        row("btnID", QStringLiteral("left"));
        row("onoffStatus", true);
        row("btnDisable", true);
        row("reverse", true);
        row("UIStyle", 1);
        row("UIStyle", 77);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MOnOffButton()); }

    void everyPictureIsKept()
    {
        MOnOffButton button;
        setPictures(button);
        QCOMPARE(button.normalBkgPix().cacheKey(), artwork().on.cacheKey());
        QCOMPARE(button.pressBkgPix().cacheKey(), artwork().off.cacheKey());
        QCOMPARE(button.normalChunkPix().cacheKey(), artwork().resting.cacheKey());
        QCOMPARE(button.pressChunkPix().cacheKey(), artwork().moving.cacheKey());
    }

    void onlyTheOnTrackSetsTheMinimumSize()
    {
        MOnOffButton button;
        button.setPressBkgPix(picture(Qt::red, {200, 90}));
        button.setNormalChunkPix(picture(Qt::red, {210, 91}));
        button.setPressChunkPix(picture(Qt::red, {220, 92}));
        QCOMPARE(button.minimumSize(), QSize(90, 44));
        button.setNormalBkgPix(picture(Qt::red, {70, 30}));
        QCOMPARE(button.minimumSize(), QSize(70, 30));
        button.setNormalBkgPix(QPixmap());
        QCOMPARE(button.minimumSize(), QSize(70, 30));
    }

    void setOnoffStatusIsSilentAndAtOnce()
    {
        const auto button = makeSwitch();
        SignalLog log(button.get());
        button->setOnoffStatus(true);
        QCOMPARE(log.take(), QStringList());
        Switching s;
        s.on = true;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 0);
    }

    // --- Painted looks --------------------------------------------------------------------------

    void paintedLooks_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("on");
        const QVector<QSize> sizes{{90, 44}, {91, 45}, {140, 15}, {141, 16}, {200, 50},
                                   {46, 44}, {60, 59}, {300, 5},  {2, 1}};
        for (const QSize &size : sizes) {
            for (bool on : {false, true}) {
                QTest::addRow("%dx%d %s", size.width(), size.height(), on ? "on" : "off")
                    << size << on;
            }
        }
    }

    void paintedLooks()
    {
        QFETCH(QSize, size);
        QFETCH(bool, on);
        Switch button;
        button.setMinimumSize(0, 0);
        button.resize(size);
        button.setOnoffStatus(on);
        Switching s;
        s.size = size;
        s.on = on;
        COMPARE_PICTURES(painted(button), reference(button, style0(s)));
        COMPARE_PICTURES(onGround(button), expectedOnGround(button, style0(s)));
        button.setUIStyle(MOnOffButton::ONOFF_STYLE_1);
        COMPARE_PICTURES(painted(button), reference(button, style1(s)));
        COMPARE_PICTURES(onGround(button), expectedOnGround(button, style1(s)));

        button.setBtnDisable(true);
        COMPARE_PICTURES(painted(button), reference(button, style1Disabled(s)));
        button.setUIStyle(MOnOffButton::ONOFF_STYLE_0);
        COMPARE_PICTURES(painted(button), reference(button, style0Disabled(s)));
    }

    void paintedLooksInMotion_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("knob");
        QTest::addColumn<bool>("on");
        for (bool on : {false, true}) {
            for (int knob : {22, 23, 44, 45, 46, 67, 68})
                QTest::addRow("90x44 %d %d", knob, on) << QSize(90, 44) << knob << on;
            for (int knob : {22, 45, 46, 69})
                QTest::addRow("91x45 %d %d", knob, on) << QSize(91, 45) << knob << on;
            QTest::addRow("200x51 %d", on) << QSize(200, 51) << 137 << on;
        }
    }

    void paintedLooksInMotion()
    {
        QFETCH(QSize, size);
        QFETCH(int, knob);
        QFETCH(bool, on);
        Switch button;
        button.resize(size);
        button.setOnoffStatus(on);
        moveKnobTo(button, knob);
        Switching s;
        s.size = size;
        s.on = on;
        s.knob = knob;
        COMPARE_PICTURES(painted(button), reference(button, style0(s)));
        button.setUIStyle(MOnOffButton::ONOFF_STYLE_1);
        COMPARE_PICTURES(painted(button), reference(button, style1(s)));

        button.setBtnDisable(true);
        COMPARE_PICTURES(painted(button), reference(button, style1Disabled(s)));
        button.setUIStyle(MOnOffButton::ONOFF_STYLE_0);
        COMPARE_PICTURES(painted(button), reference(button, style0Disabled(s)));
    }

    void paintedLooksHaveTheirColours_data()
    {
        QTest::addColumn<QColor>("onColor");
        QTest::addColumn<QColor>("offColor");
        QTest::newRow("odd") << QColor(251, 127, 1) << QColor(7, 101, 203);
        QTest::newRow("translucent") << QColor(250, 120, 10, 90) << QColor(0, 100, 200, 40);
        QTest::newRow("invalid") << QColor() << QColor();
    }

    void paintedLooksHaveTheirColours()
    {
        QFETCH(QColor, onColor);
        QFETCH(QColor, offColor);
        for (bool on : {false, true}) {
            for (int knob : {0, 40, 50}) {
                const auto button = makeSwitch();
                button->setOnColor(onColor);
                button->setOffColor(offColor);
                button->setOnoffStatus(on);
                if (knob != 0)
                    moveKnobTo(*button, knob);
                const Switching s{QSize(90, 44), on, knob, onColor, offColor};
                COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
                button->setUIStyle(MOnOffButton::ONOFF_STYLE_1);
                COMPARE_PICTURES(painted(*button), reference(*button, style1(s)));
                button->setBtnDisable(true);
                COMPARE_PICTURES(painted(*button), reference(*button, style1Disabled(s)));
            }
        }
    }

    void aPaintedLookThatIsKeptFollowsItsInputs()
    {
        const auto setStyle1 = [](Switch &b) { b.setUIStyle(MOnOffButton::ONOFF_STYLE_1); };
        const std::vector<Change<Switch>> changes{
            {"offColor", [](Switch &b) { b.setOffColor(Qt::blue); }},
            {"onoffStatus", [](Switch &b) { b.setOnoffStatus(true); }},
            {"onColor", [](Switch &b) { b.setOnColor(QColor(90, 200, 30)); }},
            {"knob", [](Switch &b) { moveKnobTo(b, 40); }},
            {"knob again", [](Switch &b) { moveKnobTo(b, 41); }},
            {"UIStyle", setStyle1},
            {"btnDisable", [](Switch &b) { b.setBtnDisable(true); }},
            {"size", [](Switch &b) { b.resize(120, 50); }},
            {"pictures", [](Switch &b) { setPictures(b); }},
            {"no pictures", [](Switch &b) { b.setNormalBkgPix(QPixmap()); }},
        };
        checkKeptLook<Switch>([] { return makeSwitch(); }, changes);
        checkKeptLookElsewhere<Switch>([] { return makeSwitch(); });
        checkKeptLookFollowsItsSize<Switch>([] { return makeSwitch(); });
    }

    // While a flat knob moves, the plates below it are kept, and follow their own inputs.
    void platesThatAreKeptFollowTheirInputs()
    {
        const auto button = makeSwitch();
        button->setUIStyle(MOnOffButton::ONOFF_STYLE_1);
        Switching s;
        int x = 22;
        const auto checkMoves = [&](const std::function<Paint(const Switching &)> &expected) {
            for (int paint = 0; paint < 4; ++paint) {
                moveKnobTo(*button, ++x);
                s.knob = x;
                COMPARE_PICTURES(onGround(*button), expectedOnGround(*button, expected(s)));
            }
        };
        checkMoves(style1);
        button->setOffColor(s.offColor = Qt::blue);
        checkMoves(style1);
        button->setOnoffStatus(s.on = true);
        checkMoves(style1);
        button->setBtnDisable(true);
        checkMoves(style1Disabled);
        button->setBtnDisable(false);
        checkMoves(style1);
        button->resize(s.size = QSize(110, 48));
        x = 30;
        checkMoves(style1);
    }

    void aStyleOutOfRangeIsStyle0()
    {
        const auto button = makeSwitch();
        for (int style : {-1, 2, INT_MAX}) {
            button->setUIStyle(MOnOffButton::OnOff_STYLE(style));
            COMPARE_PICTURES(painted(*button), reference(*button, style0({})));
        }
    }

    void thePaintedLooksIgnoreReverse()
    {
        const auto button = makeSwitch();
        button->setReverse(true);
        COMPARE_PICTURES(painted(*button), reference(*button, style0({})));
        button->setUIStyle(MOnOffButton::ONOFF_STYLE_1);
        COMPARE_PICTURES(painted(*button), reference(*button, style1({})));
    }

    void theEnabledStateOfTheWidgetChangesNoLook()
    {
        const auto button = makeSwitch();
        button->setEnabled(false);
        COMPARE_PICTURES(painted(*button), reference(*button, style0({})));
        setPictures(*button);
        const QImage disabled = painted(*button);
        button->setEnabled(true);
        COMPARE_PICTURES(disabled, painted(*button));
    }

    void nothingIsPaintedUnlessWiderThanHigh_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("square") << QSize(44, 44);
        QTest::newRow("upright") << QSize(44, 90);
        QTest::newRow("a pixel too narrow") << QSize(43, 44);
    }

    void nothingIsPaintedUnlessWiderThanHigh()
    {
        QFETCH(QSize, size);
        for (bool pictured : {false, true}) {
            MOnOffButton button;
            if (pictured)
                setPictures(button);
            button.setMinimumSize(0, 0);
            button.resize(size);
            COMPARE_PICTURES(painted(button), reference(button, [](QPainter &) {}));
            button.setBtnDisable(true);
            COMPARE_PICTURES(painted(button), reference(button, [](QPainter &) {}));
        }
    }

    void aRoundedRectanglePathHasTheCornersOfTheRectangle()
    {
        Switch button;
        QPainterPath path;
        button.createRectPath(path, QRectF(3, 5, 80, 40), 11);
        QCOMPARE(path, roundedPath(QRectF(3, 5, 80, 40), 11));
        path.lineTo(0, 0);
        const int before = path.elementCount();
        button.createRectPath(path, QRectF(0, 0, 10, 10), 2);
        QCOMPARE(path.elementCount(), before + 17);
    }

    // --- Pictured look --------------------------------------------------------------------------

    void picturedLooks_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("on");
        QTest::addColumn<bool>("reversed");
        // Larger than the pictures, of exactly their size, and smaller by an odd number of pixels.
        for (const QSize &size : {QSize(100, 44), QSize(81, 33), QSize(78, 30)}) {
            for (bool on : {false, true}) {
                for (bool reversed : {false, true})
                    QTest::addRow("%dx%d %s%s", size.width(), size.height(), on ? "on" : "off",
                                  reversed ? " reversed" : "")
                        << size << on << reversed;
            }
        }
    }

    void picturedLooks()
    {
        QFETCH(QSize, size);
        QFETCH(bool, on);
        QFETCH(bool, reversed);
        Switch button;
        setPictures(button);
        button.setMinimumSize(0, 0);
        button.resize(size);
        button.setOnoffStatus(on);
        button.setReverse(reversed);

        const int bx = (size.width() - 81) / 2;
        const int by = (size.height() - 33) / 2;
        const bool isLeft = on == reversed;
        const QRect bkg(bx, by, 81, 33);
        const QRect chunk(isLeft ? bx : bx + 81 - 1 - 31, (size.height() - 27) / 2, 31, 27);
        const QPixmap &track = on ? artwork().on : artwork().off;
        const auto resting = [&](QPainter &p) {
            p.setRenderHint(QPainter::Antialiasing);
            p.drawPixmap(bkg.topLeft(), track);
            p.drawPixmap(chunk.topLeft(), artwork().resting);
        };
        const auto disabled = [&](QPainter &p) {
            p.setRenderHint(QPainter::Antialiasing);
            drawDimmed(p, bkg, track);
            drawDimmed(p, chunk, artwork().resting);
        };
        COMPARE_PICTURES(painted(button), reference(button, resting));
        COMPARE_PICTURES(onGround(button), expectedOnGround(button, resting));
        button.setBtnDisable(true);
        COMPARE_PICTURES(painted(button), reference(button, disabled));
        COMPARE_PICTURES(onGround(button), expectedOnGround(button, disabled));
        COMPARE_PICTURES(onGround(button),
                         expectedOnGround(button, disabled)); // from what was kept
        moveKnobTo(button, size.width() / 2);
        COMPARE_PICTURES(painted(button), reference(button, disabled));
    }

    void picturedLooksInMotion_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("knob");
        QTest::addColumn<bool>("reversed");
        for (bool reversed : {false, true}) {
            for (int knob : {22, 40, 41, 59})
                QTest::addRow("%d%s", knob, reversed ? " reversed" : "") << 90 << knob << reversed;
            // One side has no pixel, or is beyond the track, where the track is narrow.
            for (int knob : {25, 59, 60, 61, 140, 141, 142, 170})
                QTest::addRow("narrow %d%s", knob, reversed ? " reversed" : "")
                    << 200 << knob << reversed;
        }
    }

    void picturedLooksInMotion()
    {
        QFETCH(int, width);
        QFETCH(int, knob);
        QFETCH(bool, reversed);
        Switch button;
        setPictures(button);
        button.resize(width, 44);
        button.setReverse(reversed);
        moveKnobTo(button, knob);
        const int bx = (width - 81) / 2;
        const auto moving = [&](QPainter &p) {
            p.setRenderHint(QPainter::Antialiasing);
            const QRect left(QPoint(bx, 5), QPoint(knob - 1, 37));
            const QRect right(QPoint(knob, 5), QPoint(width - bx - 1, 37));
            if (left.width() > 0)
                p.drawPixmap(left, reversed ? artwork().off : artwork().on);
            if (right.width() > 0)
                p.drawPixmap(right, reversed ? artwork().on : artwork().off);
            p.drawPixmap(knob - 18, 3, artwork().moving);
        };
        for (bool on : {false, true}) {
            button.setOnoffStatus(on);
            COMPARE_PICTURES(painted(button), reference(button, moving));
        }
    }

    void picturesNeedTheOnTrackAndTheRestingKnob()
    {
        const auto button = makeSwitch();
        button->setNormalBkgPix(artwork().on);
        button->setPressBkgPix(artwork().off);
        button->setPressChunkPix(artwork().moving);
        COMPARE_PICTURES(painted(*button), reference(*button, style0({})));
        button->setNormalChunkPix(artwork().resting);
        QVERIFY(painted(*button) != reference(*button, style0({})));
        button->setNormalBkgPix(QPixmap());
        COMPARE_PICTURES(painted(*button), reference(*button, style0({})));
    }

    void missingFurtherPicturesAreLeftOut()
    {
        const auto button = makeSwitch();
        button->setNormalBkgPix(artwork().on);
        button->setNormalChunkPix(artwork().resting);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(4, 8, artwork().resting);
                         }));
        button->setBtnDisable(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             drawDimmed(p, QRect(4, 8, 31, 27), artwork().resting);
                         }));
        button->setBtnDisable(false);
        moveKnobTo(*button, 50);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.setRenderHint(QPainter::Antialiasing);
                             p.drawPixmap(QRect(4, 5, 46, 33), artwork().on);
                         }));
    }

    void theOffTrackStandsWhereTheOnTrackDoes()
    {
        const auto button = makeSwitch();
        setPictures(*button);
        const QPixmap large = picture(Qt::red, {60, 21});
        button->setPressBkgPix(large);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(4, 5, large);
                             p.drawPixmap(4, 8, artwork().resting);
                         }));
    }

    void aDimmedPictureIsDimmedWhereItsTargetLies()
    {
        // The target begins inside the picture's own copy: what lies before it stays undimmed.
        Switch button;
        for (const QRect &target :
             {QRect(0, 0, 31, 27), QRect(10, 6, 31, 27), QRect(-4, -3, 31, 27), QRect(5, 5, 60, 20),
              QRect(100, 100, 31, 27)}) {
            const auto draw = [&](const std::function<void(QPainter &)> &paint) {
                QImage image(140, 130, QImage::Format_ARGB32_Premultiplied);
                image.fill(QColor(13, 70, 101));
                QPainter painter(&image);
                paint(painter);
                return image;
            };
            COMPARE_PICTURES(
                draw([&](QPainter &p) { button.drawDisableImage(target, artwork().resting, p); }),
                draw([&](QPainter &p) { drawDimmed(p, target, artwork().resting); }));
        }
    }

    void aDimmedPictureFollowsPictureAndPlace()
    {
        const auto button = makeSwitch();
        setPictures(*button);
        button->setBtnDisable(true);
        const auto isRight = [&] {
            const int bx = (button->width() - 81) / 2;
            const int by = (button->height() - 33) / 2;
            return painted(*button) == reference(*button, [&](QPainter &p) {
                       p.setRenderHint(QPainter::Antialiasing);
                       drawDimmed(p, QRect(bx, by, 81, 33),
                                  button->onoffStatus() ? button->normalBkgPix()
                                                        : button->pressBkgPix());
                       drawDimmed(p,
                                  QRect(button->onoffStatus() ? bx + 49 : bx,
                                        (button->height() - 27) / 2, 31, 27),
                                  button->normalChunkPix());
                   });
        };
        QVERIFY(isRight());
        button->setOnoffStatus(true);
        QVERIFY(isRight());
        button->resize(120, 60);
        QVERIFY(isRight());
        button->setNormalChunkPix(picture(Qt::red, kChunkSize));
        QVERIFY(isRight());
        button->setNormalBkgPix(picture(Qt::blue, kBkgSize));
        QVERIFY(isRight());
    }

    void oddPicturesAreTaken()
    {
        const auto button = makeSwitch();
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        QPixmap opaque(20, 20);
        opaque.fill(Qt::red);
        button->setNormalBkgPix(opaque);
        button->setPressBkgPix(bitmap);
        button->setNormalChunkPix(bitmap);
        button->setPressChunkPix(opaque);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(35, 12, bitmap);
                             p.drawPixmap(35, 14, bitmap);
                         }));
        button->setBtnDisable(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             drawDimmed(p, QRect(35, 12, 20, 20), bitmap);
                             drawDimmed(p, QRect(35, 14, 16, 16), bitmap);
                         }));
        button->setOnoffStatus(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             drawDimmed(p, QRect(35, 12, 20, 20), opaque);
                             drawDimmed(p, QRect(38, 14, 16, 16), bitmap);
                         }));
    }

    // --- Glide ----------------------------------------------------------------------------------

    void changeStatusReportsAtOnceAndThenGlides()
    {
        const auto button = makeSwitch();
        show(*button);
        SignalLog log(button.get());
        Switching s;
        s.on = true;
        button->changeStatus(true);
        QVERIFY(button->onoffStatus());
        QCOMPARE(log.take(), QStringList{kOn});
        s.knob = 22;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        for (int knob : {30, 38, 46, 54, 62, 0}) {
            QCOMPARE(paints(*button, [] { virtualtime::advance(19); }), 0);
            QCOMPARE(paints(*button, [] { virtualtime::advance(1); }), 1);
            s.knob = knob;
            COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        }
        QCOMPARE(paints(*button, [] { virtualtime::advance(1000); }), 0);
        QCOMPARE(button->ticks, 6);

        button->changeStatus(false);
        s.on = false;
        s.knob = 68;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        for (int knob : {60, 52, 44, 36, 28, 0}) {
            virtualtime::advance(20);
            s.knob = knob;
            COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        }
        QCOMPARE(log.take(), QStringList{kOff});
    }

    void theGlideRunsOnACoarseTimer()
    {
        const auto button = makeSwitch();
        lastTimerType = Qt::PreciseTimer;
        button->changeStatus(true);
        QCOMPARE(lastTimerType, Qt::CoarseTimer);
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(button.get());
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.first().interval, 20);
    }

    void theGlideEndsOnTheBoundOfItsRange()
    {
        // 22 + 6 * 8 = 70 = 92 - 22: strictly inside is what glides on.
        const auto button = makeSwitch();
        button->resize(92, 44);
        button->changeStatus(true);
        virtualtime::advance(5 * 20);
        QCOMPARE(button->ticks, 5);
        Switching s;
        s.size = QSize(92, 44);
        s.on = true;
        s.knob = 62;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        virtualtime::advance(20);
        s.knob = 0;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        button->changeStatus(false);
        virtualtime::advance(6 * 20);
        s.on = false;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 12);
    }

    void aReversedSwitchChangesWithoutGlide()
    {
        for (bool on : {true, false}) {
            const auto button = makeSwitch();
            button->setReverse(true);
            button->setOnoffStatus(!on);
            show(*button);
            QCOMPARE(paints(*button, [&] { button->changeStatus(on); }), 0);
            QCOMPARE(paints(*button, [] { virtualtime::advance(20); }), 1);
            Switching s;
            s.on = on;
            COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
            virtualtime::advance(1000);
            QCOMPARE(button->ticks, 1);
        }
    }

    void changeStatusToTheSameStatusGlidesAndReportsAgain()
    {
        const auto button = makeSwitch();
        SignalLog log(button.get());
        button->changeStatus(false);
        QCOMPARE(log.take(), QStringList{kOff});
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 6);
    }

    void aGlideTurnsWithTheStatus()
    {
        const auto button = makeSwitch();
        button->changeStatus(true);
        virtualtime::advance(40); // 38
        button->setOnoffStatus(false);
        virtualtime::advance(20);
        Switching s;
        s.knob = 30;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        virtualtime::advance(20);
        s.knob = 0;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
    }

    void aNewGlideTakesOverAndTheOldTimerEndsItself()
    {
        const auto button = makeSwitch();
        button->changeStatus(true);
        virtualtime::advance(50);
        button->changeStatus(false);
        QCOMPARE(button->ticks, 2);
        Switching s;
        s.knob = 68;
        virtualtime::advance(10); // the tick of the old timer moves nothing
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        QCOMPARE(button->ticks, 3);
        virtualtime::advance(10);
        s.knob = 60;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 3 + 6);
        for (int i = 0; i < 20; ++i)
            button->changeStatus(i % 2 == 0);
        virtualtime::advance(1000);
        const int ticks = button->ticks;
        virtualtime::advance(60000);
        QCOMPARE(button->ticks, ticks);
    }

    void aDisabledSwitchIgnoresChangeStatus()
    {
        const auto button = makeSwitch();
        button->setBtnDisable(true);
        SignalLog log(button.get());
        button->changeStatus(true);
        virtualtime::advance(100);
        QVERIFY(!button->onoffStatus());
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(button->ticks, 0);
    }

    void aGlideStandsStillWhileDisabled()
    {
        const auto button = makeSwitch();
        button->changeStatus(true);
        virtualtime::advance(40); // 38
        button->setBtnDisable(true);
        show(*button);
        QCOMPARE(paints(*button, [] { virtualtime::advance(1000); }), 0);
        button->setBtnDisable(false);
        Switching s;
        s.on = true;
        s.knob = 38;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        virtualtime::advance(20);
        s.knob = 46;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
    }

    void timersOfOthersMoveNothing()
    {
        const auto button = makeSwitch();
        show(*button);
        button->startTimer(5);
        QCOMPARE(paints(*button, [] { virtualtime::advance(100); }), 0);
        QVERIFY(button->ticks > 0);
    }

    // --- Touch ----------------------------------------------------------------------------------

    void aTapSwitchesAndGlides()
    {
        const auto button = makeSwitch();
        button->setBtnID(QStringLiteral("wifi"));
        SignalLog log(button.get());
        touch(button.get()).tap(30, 10);
        QVERIFY(button->onoffStatus());
        virtualtime::advance(0);
        QCOMPARE(log.take(), (QStringList{kPressed, "onoffStatusChanged(\"wifi\", true)", "beep"}));
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 6);
        touch(button.get()).tap(30, 10);
        QVERIFY(!button->onoffStatus());
        virtualtime::advance(0);
        QCOMPARE(log.take(),
                 (QStringList{kPressed, "onoffStatusChanged(\"wifi\", false)", "beep"}));
    }

    void aPressRepaintsOnlyToEndAGlide()
    {
        const auto button = makeSwitch();
        show(*button);
        QCOMPARE(paints(*button, [&] { touch(button.get()).press(30, 10); }), 0);
        button->changeStatus(true);
        virtualtime::advance(40);
        QCOMPARE(paints(*button, [&] { touch(button.get()).press(30, 10); }), 1);
        Switching s;
        s.on = true;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        const int ticks = button->ticks;
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, ticks);
    }

    void theGlideHasEndedWhenThePressIsReported()
    {
        const auto button = makeSwitch();
        button->changeStatus(true);
        virtualtime::advance(40);
        QImage seen;
        connect(button.get(), &MOnOffButton::buttonClicked, this, [&] { seen = painted(*button); });
        touch(button.get()).press(30, 10);
        Switching s;
        s.on = true;
        COMPARE_PICTURES(seen, reference(*button, style0(s)));
    }

    void theSlopOfADrag_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("drags");
        QTest::newRow("20 right") << QPoint(20, 0) << false;
        QTest::newRow("21 right") << QPoint(21, 0) << true;
        QTest::newRow("20 left") << QPoint(-20, 0) << false;
        QTest::newRow("21 left") << QPoint(-21, 0) << true;
        QTest::newRow("down does not count") << QPoint(0, 200) << false;
        QTest::newRow("nor up") << QPoint(20, -200) << false;
    }

    void theSlopOfADrag()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, drags);
        // A drag that ends where it began springs back, a tap switches.
        const auto button = makeSwitch();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(45, 20).moveTo(45 + offset.x(), 20 + offset.y()).moveTo(45, 20).release();
        QCOMPARE(button->onoffStatus(), !drags);
        QCOMPARE(log.take(), drags ? QStringList{kPressed} : (QStringList{kPressed, kOn}));
    }

    void theKnobFollowsTheFingerWithinTheTrack_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("knob");
        QTest::newRow("within") << 50 << 50;
        QTest::newRow("left end") << 22 << 22;
        QTest::newRow("beyond left") << 21 << 22;
        QTest::newRow("far left") << -500 << 22;
        QTest::newRow("right end") << 68 << 68;
        QTest::newRow("beyond right") << 69 << 68;
        QTest::newRow("far right") << 500 << 68;
    }

    void theKnobFollowsTheFingerWithinTheTrack()
    {
        QFETCH(int, x);
        QFETCH(int, knob);
        const auto button = makeSwitch();
        show(*button);
        Touch finger = touch(button.get());
        finger.press(45, 20);
        QCOMPARE(paints(*button, [&] { finger.moveTo(x, 20); }), 1);
        Switching s;
        s.knob = knob;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        QCOMPARE(paints(*button, [&] { finger.moveTo(x, 20); }), 1);
    }

    void aKnobAtZeroIsAtRest()
    {
        // As high as it is narrow the range begins at 0 only in a switch one pixel high.
        Switch button;
        button.setMinimumSize(0, 0);
        button.resize(30, 1);
        button.setOnoffStatus(true);
        touch(&button).press(0, 0).moveTo(0, 0);
        Switching s;
        s.size = QSize(30, 1);
        s.on = true;
        COMPARE_PICTURES(painted(button), reference(button, style0(s)));
        touch(&button).moveTo(1, 0);
        s.knob = 1;
        COMPARE_PICTURES(painted(button), reference(button, style0(s)));
    }

    void drags_data()
    {
        QTest::addColumn<bool>("reversed");
        QTest::addColumn<bool>("on");
        QTest::addColumn<int>("dx");
        QTest::addColumn<bool>("switches");
        for (bool reversed : {false, true}) {
            for (bool on : {false, true}) {
                for (int dx : {-40, -24, -23, -22, 0, 22, 23, 24, 40}) {
                    const bool isFar = dx <= -23 || dx >= 23;
                    const bool isTowardOff = reversed ? dx > 0 : dx < 0;
                    QTest::addRow("%s%s %d", reversed ? "reversed " : "", on ? "on" : "off", dx)
                        << reversed << on << dx << (isFar && (!on || isTowardOff));
                }
            }
        }
    }

    void drags()
    {
        QFETCH(bool, reversed);
        QFETCH(bool, on);
        QFETCH(int, dx);
        QFETCH(bool, switches);
        const auto button = makeSwitch();
        button->setReverse(reversed);
        button->setOnoffStatus(on);
        show(*button);
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(45, 20).moveTo(85, 20).moveTo(45 + dx, 20);
        QCOMPARE(paints(*button, [&] { finger.release(); }), 1);
        QCOMPARE(button->onoffStatus(), on != switches);
        QStringList expected{kPressed, "beep"};
        if (switches)
            expected += on ? kOff : kOn;
        QCOMPARE(log.take(), expected);
        Switching s;
        s.on = button->onoffStatus();
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 0); // without a glide
    }

    void theThresholdOfADragIsHalvedTowardZero()
    {
        for (int dx : {22, 23}) {
            const auto button = makeSwitch();
            button->resize(91, 44); // 47 / 2
            touch(button.get()).press(45, 20).moveTo(85, 20).moveTo(45 + dx, 20).release();
            QCOMPARE(button->onoffStatus(), dx == 23);
        }
    }

    void aDragOfASquareSwitchHasNoThreshold()
    {
        for (bool reversed : {false, true}) {
            Switch button;
            button.setMinimumSize(0, 0);
            button.resize(44, 44);
            button.setReverse(reversed);
            Touch finger = touch(&button);
            finger.press(10, 20).moveTo(40, 20).moveTo(10, 20).release();
            QVERIFY(button.onoffStatus());
            finger.press(10, 20).moveTo(40, 20).moveTo(10, 20).release(); // not toward off
            QVERIFY(button.onoffStatus());
            finger.press(10, 20).moveTo(40, 20).moveTo(reversed ? 11 : 9, 20).release();
            QVERIFY(!button.onoffStatus());
        }
    }

    void theStatusIsSetBeforeADragIsReported()
    {
        const auto button = makeSwitch();
        QImage seen;
        connect(button.get(), &MOnOffButton::onoffStatusChanged, this,
                [&] { seen = painted(*button); });
        touch(button.get()).press(20, 20).moveTo(60, 20).release();
        Switching s;
        s.on = true;
        COMPARE_PICTURES(seen, reference(*button, style0(s)));
    }

    void aDragThatWasGivenUpIsForgottenAtTheNextPress()
    {
        const auto button = makeSwitch();
        Touch finger = touch(button.get());
        finger.press(20, 20).moveTo(60, 20);
        finger.tap(60, 20);
        QVERIFY(button->onoffStatus());
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 6); // a tap, not a drag
    }

    void aDragOfTheWholeRangeOfCoordinatesIsADrag()
    {
        const auto button = makeSwitch();
        const auto send = [&](QEvent::Type type, int x) {
            QMouseEvent event(type, QPointF(QPoint(x, 0)), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(button.get(), &event);
        };
        send(QEvent::MouseButtonPress, -2000000000);
        send(QEvent::MouseMove, 2000000000);
        send(QEvent::MouseButtonRelease, 2000000000);
        QVERIFY(button->onoffStatus());
        virtualtime::advance(100);
        QCOMPARE(button->ticks, 0);
    }

    // --- Under a scrolling list -----------------------------------------------------------------

    void aTapUnderAScrollingListDoesNothing()
    {
        const ListMoving moving;
        const auto button = makeSwitch();
        SignalLog log(button.get());
        touch(button.get()).press(30, 10).moveTo(30, 80).release();
        QVERIFY(!button->onoffStatus());
        QCOMPARE(log.take(), QStringList{kPressed});
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 0);
    }

    void aTapThatWentSidewaysUnderAScrollingListReplaysTheStatus_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<int>("dx");
        QTest::newRow("on, right") << true << 1;
        QTest::newRow("on, left") << true << -20;
        QTest::newRow("off, right") << false << 20;
        QTest::newRow("off, left") << false << -1;
    }

    void aTapThatWentSidewaysUnderAScrollingListReplaysTheStatus()
    {
        QFETCH(bool, on);
        QFETCH(int, dx);
        const ListMoving moving;
        const auto button = makeSwitch();
        button->setOnoffStatus(on);
        SignalLog log(button.get());
        touch(button.get()).press(40, 10).moveTo(40 + dx, 10).release();
        QCOMPARE(button->onoffStatus(), on);
        QCOMPARE(log.take(), (QStringList{kPressed, on ? kOn : kOff}));
        virtualtime::advance(1000);
        QCOMPARE(button->ticks, 6);
    }

    void aDragUnderAScrollingListIsADrag()
    {
        const ListMoving moving;
        const auto button = makeSwitch();
        touch(button.get()).press(20, 10).moveTo(60, 10).release();
        QVERIFY(button->onoffStatus());
    }

    void theListIsAskedAboutOnRelease()
    {
        const auto button = makeSwitch();
        Touch finger = touch(button.get());
        finger.press(30, 10);
        qApp->setProperty("listMoving", true);
        finger.release();
        QVERIFY(!button->onoffStatus());
        finger.press(30, 10);
        qApp->setProperty("listMoving", false);
        finger.release();
        QVERIFY(button->onoffStatus());
        qApp->setProperty("listMoving", QVariant());
    }

    // --- Disabled -------------------------------------------------------------------------------

    void aDisabledSwitchOnlyReportsThePress()
    {
        const auto button = makeSwitch();
        button->setBtnDisable(true);
        show(*button);
        SignalLog log(button.get());
        QCOMPARE(paints(*button,
                        [&] {
                            touch(button.get()).tap(30, 10);
                            touch(button.get()).press(20, 10).moveTo(60, 10).release();
                            virtualtime::advance(100);
                        }),
                 0);
        QVERIFY(!button->onoffStatus());
        QCOMPARE(log.take(), (QStringList{kPressed, kPressed}));
    }

    void aSwitchDisabledDuringADragStaysAsItIs()
    {
        const auto button = makeSwitch();
        Touch finger = touch(button.get());
        finger.press(20, 10).moveTo(60, 10);
        button->setBtnDisable(true);
        finger.release();
        QVERIFY(!button->onoffStatus());
        button->setBtnDisable(false);
        Switching s;
        s.knob = 60;
        COMPARE_PICTURES(painted(*button), reference(*button, style0(s)));
    }

    // --- Handlers -------------------------------------------------------------------------------

    void mouseEventsGoOnToTheParent_data() { addDisabled(); }

    void mouseEventsGoOnToTheParent()
    {
        checkMouseEventsGoOn(makeSwitch, &MOnOffButton::setBtnDisable);
    }

    void theBaseHandlerComesAfterTheSignals()
    {
        const auto button = makeSwitch();
        BaseOrder order(button.get());
        touch(button.get()).tap(30, 10).press(60, 10).moveTo(20, 10).release();
        QCOMPARE(order.before,
                 (QStringList{"buttonClicked", "onoffStatusChanged", "buttonClicked",
                              "onoffStatusChanged"}));
        QCOMPARE(order.after, QStringList());
    }

    void theClickSoundIsHeardByTheParent()
    {
        QWidget parent;
        const auto button = makeSwitch(&parent);
        SignalLog log(&parent);
        touch(button.get()).tap(10, 10);
        virtualtime::advance(0);
        QCOMPARE(log.take(), QStringList{"beep"});
        button->setParent(nullptr);
    }

    void aSlotMayDeleteTheSwitch_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("dx");
        QTest::newRow("at the press") << kPressed << 0;
        QTest::newRow("at a tap") << kOn << 0;
        QTest::newRow("at a drag") << kOn << 30;
    }

    void aSlotMayDeleteTheSwitch()
    {
        QFETCH(QString, line);
        QFETCH(int, dx);
        QPointer<Switch> button = makeSwitch().release();
        SignalLog log(button);
        log.onLine([&](const QString &said) {
            if (said == line)
                delete button;
        });
        touch(button).press(30, 10).moveTo(30 + dx, 10).release();
        QVERIFY(!button);
    }

    void extremeSizes_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("one pixel high") << QSize(4000, 1);
        QTest::newRow("flat") << QSize(4000, 3);
        QTest::newRow("as wide as a widget can be") << QSize(16777215, 1);
        QTest::newRow("wide") << QSize(1000000, 44);
    }

    // At both ends of the track, of which a window of 60 x 50 shows either.
    void extremeSizes()
    {
        QFETCH(QSize, size);
        const int radius = size.height() / 2;
        Switch button;
        button.setMinimumSize(0, 0);
        button.resize(size);
        for (const int x : {INT_MIN / 2, INT_MAX / 2}) {
            Switching s;
            s.size = size;
            s.knob = x < 0 ? radius : size.width() - radius;
            const QPoint origin(x < 0 ? 0 : size.width() - 60, 0);
            const auto seen = [&](QWidget &widget) {
                QImage image(60, 50, QImage::Format_ARGB32_Premultiplied);
                image.fill(QColor(13, 70, 101));
                QPainter painter(&image);
                painter.setClipRect(QRect(QPoint(0, 0), size));
                painter.translate(-origin);
                widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
                return image;
            };
            const auto expected = [&](const Paint &paint) {
                Canvas canvas(paint);
                canvas.resize(size);
                return seen(canvas);
            };
            touch(&button).press(0, 0).moveTo(x, 0);
            button.setUIStyle(MOnOffButton::ONOFF_STYLE_0);
            COMPARE_PICTURES(seen(button), expected(style0(s)));
            button.setUIStyle(MOnOffButton::ONOFF_STYLE_1);
            COMPARE_PICTURES(seen(button), expected(style1(s)));
        }
    }

    void aSwitchWithoutAreaSwitchesToo()
    {
        for (const QSize &size : {QSize(0, 0), QSize(1, 0), QSize(1, 1), QSize(3, 900)}) {
            Switch button;
            button.setMinimumSize(0, 0);
            button.resize(size);
            show(button);
            SignalLog log(&button);
            touch(&button).tap(0, 0);
            QCOMPARE(log.take(), (QStringList{kPressed, kOn}));
            virtualtime::advance(1000);
            QCOMPARE(button.ticks, 1); // there is no way to glide
            button.resize(90, 44);
            Switching s;
            s.on = true;
            COMPARE_PICTURES(painted(button), reference(button, style0(s)));
        }
    }
};

WIDGET_TEST_MAIN(tst_MOnOffButton)
#include "tst_monoffbutton.moc"
