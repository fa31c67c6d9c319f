// SPDX-License-Identifier: Apache-2.0
#include <MProgressBar>

#include "baseorder.h"
#include "deletion.h"
#include "keptlooks.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QMouseEvent>
#include <QPainter>

#include <climits>
#include <memory>

namespace
{

// That has to be smoothed where it is stretched.
QPixmap striped(const QSize &size)
{
    QPixmap pixmap = filled(Qt::lightGray, size);
    QPainter painter(&pixmap);
    for (int x = 0; x < size.width(); x += 3)
        painter.fillRect(x, 0, 1, size.height(), Qt::darkCyan);
    return pixmap;
}

struct Pictures {
    QPixmap played = filled(Qt::blue, {200, 20});
    QPixmap groove = filled(Qt::gray, {200, 20});
    QPixmap disabled = striped({90, 31});
    QPixmap knob = filled(Qt::green, {30, 40});
    QPixmap knobPressed = filled(Qt::yellow, {31, 41});
    QPixmap knobDisabled = filled(Qt::white, {31, 41});
};

const Pictures &pictures()
{
    static const Pictures instance;
    return instance;
}

void givePictures(MProgressBar &bar, const Pictures &p = pictures())
{
    bar.setSliderNormalImage(p.played);
    bar.setSliderPressImage(p.groove);
    bar.setPointNormalImage(p.knob);
    bar.setPointPressImage(p.knobPressed);
}

// A bar of 251 x 61 in plain colours.
std::unique_ptr<MProgressBar> makePlain()
{
    auto bar = std::make_unique<MProgressBar>();
    bar->resize(251, 61);
    return bar;
}

std::unique_ptr<MProgressBar> makeBar()
{
    auto bar = makePlain();
    givePictures(*bar);
    return bar;
}

// Lengths count up to the largest size that a widget can have.
int bounded(qint64 length)
{
    return int(qBound(qint64(-QWIDGETSIZE_MAX), length, qint64(QWIDGETSIZE_MAX)));
}

// A fraction of the range; a range of one value has none.
int part(const MProgressBar &bar, int length)
{
    const qint64 span = qint64(bar.maxValue()) - bar.getMinValue();
    const qint64 gone = qint64(bar.currentValue()) - bar.getMinValue();
    return span == 0 ? 0 : bounded(gone * bounded(length) / span);
}

// The documented picture of a bar with pictures.
QImage withPictures(const MProgressBar &bar, const QPixmap &knob, const Pictures &p = pictures(),
                    const QString &time = {})
{
    return reference(bar, [&](QPainter &painter) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        const int x = (bar.width() - p.groove.width()) / 2;
        const int y = (bar.height() - p.groove.height()) / 2;
        const int height = p.groove.height();
        painter.drawPixmap(x, y, p.groove);
        const int fill = part(bar, p.groove.width());
        if (fill > 0 && (bar.isEnabled() || bar.sliderDisableImage().isNull()))
            painter.drawPixmap(x, y, bar.sliderNormalImage(), 0, 0, fill, height);
        else if (fill > 0)
            painter.drawPixmap(QRect(x, y, fill, height), bar.sliderDisableImage());
        if (bar.pointPressImage().isNull())
            return;
        const QSize size = bar.pointPressImage().size();
        const int r = bounded(bar.ponitRadius());
        const QRect knobRect(x + r - size.width() / 2 + part(bar, p.groove.width() - 2 * r),
                             (bar.height() - size.height()) / 2, size.width(), size.height());
        painter.drawPixmap(knobRect, knob);
        painter.drawText(knobRect, Qt::AlignCenter, time);
    });
}

// The documented picture of a bar in plain colours.
QImage plain(const MProgressBar &bar, const QColor &knobColor, const QColor &played)
{
    return reference(bar, [&](QPainter &painter) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        const int r = bounded(bar.ponitRadius());
        painter.setPen(bar.boundary() ? QPen(bar.boundaryColor()) : QPen(Qt::NoPen));
        painter.setBrush(bar.normalColor());
        QRect rect(QPoint(0, bar.height() * 2 / 5), QSize(bar.width(), bar.height() / 5));
        painter.drawRect(rect);
        rect.setRight(part(bar, bar.width() - r) + r / 2 - 1);
        painter.setBrush(played);
        painter.drawRect(rect);
        painter.setBrush(knobColor);
        if (r > 0)
            painter.drawEllipse(part(bar, bar.width() - r), (bar.height() - r) / 2, r, r);
    });
}

const QColor kKnob(230, 230, 230);
const QColor kKnobPressed(255, 155, 20);
const QColor kPlayed(255, 125, 0);

QString changing(int id, int value)
{
    return QStringLiteral("valueChanging(%1, %2)").arg(id).arg(value);
}

QString changed(int id, int value)
{
    return QStringLiteral("valueChangedSig(%1, %2)").arg(id).arg(value);
}

// Handlers are called with what a subclass may hand them.
class Handlers : public MProgressBar
{
public:
    using MProgressBar::mouseMoveEvent;
    using MProgressBar::mousePressEvent;
    using MProgressBar::mouseReleaseEvent;
};

using Action = std::function<void(MProgressBar &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MProgressBar : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Times ----------------------------------------------------------------------------------

    void times_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("expected");
        const auto row = [](qint64 seconds, const char *expected) {
            QTest::addRow("%lld", seconds) << seconds << QString::fromLatin1(expected);
        };
        row(0, "00:00:00");
        row(59, "00:00:59");
        row(60, "00:01:00");
        row(3599, "00:59:59");
        row(3600, "01:00:00");
        row(3725, "01:02:05");
        row(359999, "99:59:59");
        row(360000, ":0:00:00"); // the tens run past '9'
        row(-61, "00:0/:0/"); // and before '0'
    }

    void times()
    {
        QFETCH(qint64, seconds);
        QString text = QStringLiteral("old");
        transFormTime(seconds, text);
        QTEST(text, "expected");
    }

    void anyNumberOfSecondsHasEightCharacters()
    {
        for (const qint64 seconds : {std::numeric_limits<qint64>::min(),
                                     std::numeric_limits<qint64>::max(), qint64(INT_MAX)}) {
            QString text;
            transFormTime(seconds, text);
            QCOMPARE(text.size(), 8);
        }
    }

    // --- Construction and setters ---------------------------------------------------------------

    void defaults()
    {
        MProgressBar bar;
        QVERIFY(bar.sliderNormalImage().isNull());
        QVERIFY(bar.sliderPressImage().isNull());
        QVERIFY(bar.sliderDisableImage().isNull());
        QVERIFY(bar.pointNormalImage().isNull());
        QVERIFY(bar.pointPressImage().isNull());
        QVERIFY(bar.pointDisableImage().isNull());
        QCOMPARE(bar.itemID(), 0);
        QCOMPARE(bar.maxValue(), 100);
        QCOMPARE(bar.getMinValue(), 0);
        QCOMPARE(bar.currentValue(), 50);
        QCOMPARE(bar.realValue(), 0);
        QCOMPARE(bar.ponitRadius(), 0);
        QCOMPARE(bar.normalColor(), QColor(150, 150, 150));
        QCOMPARE(bar.pressColor(), QColor(255, 125, 0));
        QCOMPARE(bar.pointNormalColor(), QColor(230, 230, 230));
        QCOMPARE(bar.pointPressColor(), QColor(255, 155, 20));
        QCOMPARE(bar.showValue(), false);
        QCOMPARE(bar.boundary(), false);
        QCOMPARE(bar.boundaryColor(), QColor(210, 210, 210));
        QVERIFY(bar.findChildren<QObject *>().isEmpty());
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("sliderNormalImage", 1, [](auto &b) { b.setSliderNormalImage(QPixmap()); });
        row("sliderPressImage", 1, [](auto &b) { b.setSliderPressImage(QPixmap()); });
        row("sliderDisableImage", 1, [](auto &b) { b.setSliderDisableImage(QPixmap()); });
        row("pointNormalImage", 1, [](auto &b) { b.setPointNormalImage(QPixmap()); });
        row("pointPressImage", 1, [](auto &b) { b.setPointPressImage(QPixmap()); });
        row("pointDisableImage", 1, [](auto &b) { b.setPointDisableImage(QPixmap()); });
        row("itemID", 0, [](auto &b) { b.setItemID(3); });
        row("maxValue", 1, [](auto &b) { b.setMaxValue(100); });
        row("minValue", 1, [](auto &b) { b.setMinValue(0); });
        row("currentValue", 1, [](auto &b) { b.setCurrentValue(50); });
        row("currentValue refused", 0, [](auto &b) { b.setCurrentValue(101); });
        row("ponitRadius", 1, [](auto &b) { b.setPonitRadius(0); });
        row("normalColor", 1, [](auto &b) { b.setNormalColor(Qt::red); });
        row("pointNormalColor", 1, [](auto &b) { b.setPointNormalColor(Qt::red); });
        row("pointPressColor", 1, [](auto &b) { b.setPointPressColor(Qt::red); });
        row("pressColor", 0, [](auto &b) { b.setPressColor(Qt::red); });
        row("showValue", 1, [](auto &b) { b.setShowValue(false); });
        row("boundary", 0, [](auto &b) { b.setBoundary(true); });
        row("boundaryColor", 0, [](auto &b) { b.setBoundaryColor(Qt::red); });
        row("realValue", 1, [](auto &b) { b.setRealValue(3); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeBar()); }

    void everyPropertyKeepsWhatItIsGiven()
    {
        MProgressBar bar;
        checkKeepsProperties(bar,
                             {{"itemID", -7},
                              {"maxValue", 30},
                              {"minValue", 3},
                              {"currentValue", 12},
                              {"ponitRadius", -4},
                              {"normalColor", QColor(1, 2, 3)},
                              {"pointNormalColor", QColor(4, 5, 6)},
                              {"pointPressColor", QColor(7, 8, 9)},
                              {"pressColor", QColor(10, 11, 12)},
                              {"showValue", true},
                              {"boundary", true},
                              {"boundaryColor", QColor(13, 14, 15)}});
        checkKeepsPictures(bar,
                           {"sliderNormalImage", "sliderPressImage", "sliderDisableImage",
                            "pointNormalImage", "pointPressImage", "pointDisableImage"});
    }

    void valuesOutsideTheRangeAreIgnored()
    {
        MProgressBar bar;
        SignalLog log(&bar);
        for (int refused : {101, -1, INT_MIN, INT_MAX}) {
            bar.setCurrentValue(refused);
            QCOMPARE(bar.currentValue(), 50);
        }
        bar.setCurrentValue(100);
        QCOMPARE(bar.currentValue(), 100);
        bar.setCurrentValue(0);
        QCOMPARE(bar.currentValue(), 0);
        QCOMPARE(log.take(), QStringList());
    }

    void fedPositionsAreLimitedAndShown()
    {
        MProgressBar bar;
        SignalLog log(&bar);
        bar.setRealValue(150);
        QCOMPARE(bar.realValue(), 100);
        QCOMPARE(bar.currentValue(), 100);
        bar.setRealValue(-1);
        QCOMPARE(bar.realValue(), 0);
        QCOMPARE(bar.currentValue(), 0);
        QCOMPARE(log.take(), QStringList());
    }

    void fedPositionsDoNotMoveTheBarUnderAFinger()
    {
        const auto bar = makePlain();
        Touch finger = touch(bar.get());
        finger.press(125, 30);
        const int shown = bar->currentValue();
        bar->setRealValue(7);
        QCOMPARE(bar->realValue(), 7);
        QCOMPARE(bar->currentValue(), shown);
        finger.release();
        QCOMPARE(bar->realValue(), shown);
        bar->setRealValue(7);
        QCOMPARE(bar->currentValue(), 7);
    }

    // --- From touch to value
    // ----------------------------------------------------------------------

    void everyColumnIsAValue_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("knob");
        QTest::addColumn<int>("radius");
        QTest::addColumn<bool>("isPicture");
        for (const auto &range : {qMakePair(0, 100), qMakePair(0, 0), qMakePair(0, 1),
                                  qMakePair(-5, 5), qMakePair(0, 3600), qMakePair(5, -5)}) {
            for (const int width : {1, 150, 251}) {
                for (const auto &knob : {qMakePair(0, 0), qMakePair(31, 15), qMakePair(60, 0),
                                         qMakePair(100, 20), qMakePair(120, 150)}) {
                    for (const bool isPicture : {true, false})
                        QTest::addRow("%d..%d in %d, knob %d, radius %d%s", range.first,
                                      range.second, width, knob.first, knob.second,
                                      isPicture ? ", pictures" : "")
                            << range.first << range.second << width << knob.first << knob.second
                            << isPicture;
                }
            }
        }
    }

    void everyColumnIsAValue()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, width);
        QFETCH(int, knob);
        QFETCH(int, radius);
        QFETCH(bool, isPicture);
        MProgressBar bar;
        bar.resize(width, 30);
        bar.setItemID(6);
        bar.setMinValue(minimum);
        bar.setMaxValue(maximum);
        bar.setPonitRadius(radius);
        Pictures p;
        p.groove = filled(Qt::gray, {100, 20});
        p.knobPressed = knob > 0 ? filled(Qt::yellow, {knob, 30}) : QPixmap();
        if (isPicture)
            givePictures(bar, p);
        SignalLog log(&bar);
        for (int x = -10; x < width + 10; ++x) {
            const int grooveWidth = isPicture ? 100 : width;
            const int knobWidth = isPicture ? knob : radius;
            const int start = (width - grooveWidth) / 2 + knobWidth / 2;
            int expected = minimum;
            if (x >= start && x > width - start) {
                expected = maximum;
            } else if (x >= start && grooveWidth != knobWidth) {
                const double fraction = double(x - start) / double(grooveWidth - knobWidth);
                expected = int(fraction * double(maximum - minimum) + double(minimum));
                expected = qMax(minimum, qMin(expected, maximum));
            } else if (x >= start) {
                continue; // 0 / 0 or infinite: limited to the range, which is checked below
            }
            bar.updateCurrentValue(QPoint(x, -900));
            QCOMPARE(bar.currentValue(), expected);
            QCOMPARE(log.take(), QStringList{changing(6, expected)});
        }
    }

    void aKnobAsWideAsTheGrooveStaysInTheRange()
    {
        MProgressBar bar;
        bar.resize(100, 30);
        bar.setPonitRadius(100);
        for (int x = 0; x <= 100; ++x) {
            bar.updateCurrentValue(QPoint(x, 0));
            QVERIFY(bar.currentValue() >= 0 && bar.currentValue() <= 100);
        }
    }

    // --- Touches --------------------------------------------------------------------------------

    void aTouchInOrder()
    {
        const auto bar = makePlain();
        bar->setItemID(8);
        SignalLog log(bar.get());
        touch(bar.get()).press(-5, 30).moveTo(-6, 900).moveTo(300, 30).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(),
                 (QStringList{changing(8, 0), changing(8, 0), changing(8, 100), changing(8, 100),
                              changed(8, 100), QStringLiteral("beep")}));
        QCOMPARE(bar->realValue(), 100);
    }

    void theRealValueIsKeptBeforeItIsReported()
    {
        const auto bar = makePlain();
        int seen = -1;
        connect(bar.get(), &MProgressBar::valueChangedSig, bar.get(),
                [&] { seen = bar->realValue(); });
        touch(bar.get()).tap(300, 30);
        QCOMPARE(seen, 100);
    }

    void aMoveNeedsNoPress()
    {
        const auto bar = makePlain();
        SignalLog log(bar.get());
        touch(bar.get()).moveTo(300, 30);
        QCOMPARE(log.take(), QStringList{changing(0, 100)});
        QCOMPARE(bar->realValue(), 0);
    }

    void aDisabledBarIgnoresTouches()
    {
        Handlers bar;
        bar.resize(200, 40);
        bar.setEnabled(false);
        SignalLog log(&bar);
        QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        bar.mousePressEvent(&event);
        bar.mouseMoveEvent(&event);
        bar.mouseReleaseEvent(&event);
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(bar.currentValue(), 50);
        QVERIFY(!event.isAccepted());
    }

    void eachStepOfATouchPaintsOnce()
    {
        const auto bar = makePlain();
        show(*bar);
        Touch finger = touch(bar.get());
        QCOMPARE(paints(*bar, [&] { finger.press(125, 30); }), 1);
        QCOMPARE(paints(*bar, [&] { finger.moveTo(125, 30); }), 1); // changed or not
        QCOMPARE(paints(*bar, [&] { finger.release(); }), 1);
    }

    void touchesGoOnToTheParent()
    {
        const auto bar = makePlain();
        Touch finger = touch(bar.get());
        QVERIFY(!finger.press(100, 5).wasAccepted());
        QVERIFY(!finger.moveTo(101, 5).wasAccepted());
        QVERIFY(!finger.release().wasAccepted());
    }

    void theBaseHandlerComesAfterTheSignals()
    {
        const auto bar = makePlain();
        BaseOrder order(bar.get());
        touch(bar.get()).press(5, 30).moveTo(250, 30).release();
        QCOMPARE(
            order.before,
            (QStringList{"valueChanging", "valueChanging", "valueChanging", "valueChangedSig"}));
        QCOMPARE(order.after, QStringList());
    }

    // --- Looks ----------------------------------------------------------------------------------

    void picturesOfValues_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("radius");
        for (const int value : {0, 1, 33, 50, 99, 100}) {
            for (const int radius : {0, 15, 16, 120, -9})
                QTest::addRow("%d, radius %d", value, radius) << value << radius;
        }
    }

    void picturesOfValues()
    {
        QFETCH(int, value);
        QFETCH(int, radius);
        const auto bar = makeBar();
        bar->setCurrentValue(value);
        bar->setPonitRadius(radius);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knob));
        bar->setMinValue(-30);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knob));
        bar->setSliderNormalImage(QPixmap());
        COMPARE_PICTURES(painted(*bar), plain(*bar, kKnob, kPlayed));
        bar->setBoundary(true);
        COMPARE_PICTURES(painted(*bar), plain(*bar, kKnob, kPlayed));
    }

    void picturesOfStates()
    {
        const auto bar = makeBar();
        Touch finger = touch(bar.get());
        finger.press(125, 30);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knobPressed));
        bar->setEnabled(false);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knobPressed));
        bar->setPointDisableImage(pictures().knobDisabled);
        bar->setSliderDisableImage(pictures().disabled);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knobDisabled));
        bar->setCurrentValue(0);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knobDisabled));
        bar->setEnabled(true);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knobPressed));
        finger.release();
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knob));
        bar->setPointNormalImage(QPixmap());
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, QPixmap()));
        bar->setPointPressImage(QPixmap());
        bar->setShowValue(true);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, QPixmap()));
    }

    void aRangeOfOneValueShowsNothingPlayed()
    {
        const auto bar = makeBar();
        bar->setMinValue(50);
        bar->setMaxValue(50);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knob));
        bar->setSliderPressImage(QPixmap());
        bar->setPonitRadius(20);
        COMPARE_PICTURES(painted(*bar), plain(*bar, kKnob, kPlayed));
    }

    void theTimeIsThatOfTheRealValue()
    {
        const auto bar = makeBar();
        Pictures p;
        p.knob = filled(Qt::green, {90, 30});
        p.knobPressed = filled(Qt::yellow, {90, 30});
        givePictures(*bar, p);
        bar->setMaxValue(4000);
        bar->setShowValue(true);
        bar->setRealValue(3725);
        bar->setCurrentValue(2000);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, p.knob, p, QStringLiteral("01:02:05")));
        bar->setShowValue(false);
        COMPARE_PICTURES(painted(*bar), withPictures(*bar, p.knob, p));
    }

    void plainColours()
    {
        const auto bar = makePlain();
        bar->setPonitRadius(24);
        bar->setShowValue(true); // of no consequence
        COMPARE_PICTURES(painted(*bar), plain(*bar, kKnob, kPlayed));
        bar->setPressColor(Qt::cyan);
        bar->setNormalColor(QColor(0, 80, 0, 90));
        bar->setBoundary(true);
        bar->setBoundaryColor(Qt::red);
        bar->setPointNormalColor(Qt::magenta);
        COMPARE_PICTURES(painted(*bar), plain(*bar, Qt::magenta, Qt::cyan));
        touch(bar.get()).press(125, 30);
        COMPARE_PICTURES(painted(*bar), plain(*bar, kKnobPressed, Qt::cyan));
        bar->setPointPressColor(Qt::blue);
        COMPARE_PICTURES(painted(*bar), plain(*bar, Qt::blue, Qt::cyan));
        for (const int height : {1, 4, 5, 8, 99}) {
            bar->resize(251, height);
            COMPARE_PICTURES(painted(*bar), plain(*bar, Qt::blue, Qt::cyan));
        }
    }

    // --- Robustness -----------------------------------------------------------------------------

    void hostileNumbers()
    {
        const int numbers[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX};
        for (const bool isPicture : {true, false}) {
            for (const int minimum : numbers) {
                for (const int maximum : numbers) {
                    const auto bar = isPicture ? makeBar() : makePlain();
                    bar->setMinValue(minimum);
                    bar->setMaxValue(maximum);
                    for (const int value : numbers) {
                        bar->setPonitRadius(value);
                        bar->setRealValue(value);
                        bar->setCurrentValue(value);
                        bar->updateCurrentValue(QPoint(value, value));
                        const int shown = bar->currentValue();
                        QVERIFY(shown >= qMin(minimum, maximum));
                        QVERIFY(shown <= qMax(minimum, maximum));
                        if (isPicture)
                            COMPARE_PICTURES(painted(*bar), withPictures(*bar, pictures().knob));
                        else
                            COMPARE_PICTURES(painted(*bar), plain(*bar, kKnob, kPlayed));
                    }
                }
            }
        }
    }

    void aValueFarOutsideAShrunkRangeIsShownAsFarAsAPixelCanBe()
    {
        for (const int value : {INT_MIN, INT_MAX}) {
            MProgressBar bar;
            bar.resize(251, 61);
            bar.setMinValue(INT_MIN);
            bar.setMaxValue(INT_MAX);
            bar.setCurrentValue(value);
            bar.setMinValue(0);
            bar.setMaxValue(1);
            bar.setPonitRadius(INT_MAX);
            QCOMPARE(bar.currentValue(), value);
            COMPARE_PICTURES(painted(bar), plain(bar, kKnob, kPlayed));
            givePictures(bar);
            COMPARE_PICTURES(painted(bar), withPictures(bar, pictures().knob));
        }
    }

    void aBarMayBeDeletedByAnyReport()
    {
        checkMayBeDeletedByAnyReport(
            [] { return makeBar(); }, 4,
            [](QWidget *s) { touch(s).press(5, 5).moveTo(250, 5).release(); });
    }

    // --- Kept looks -----------------------------------------------------------------------------

    void aPlainBarThatIsKeptFollowsItsInputs()
    {
        checkKeptLook<MProgressBar>(
            makePlain,
            {{"a knob within the bar", [](MProgressBar &b) { b.setPonitRadius(5); }},
             {"ponitRadius", [](MProgressBar &b) { b.setPonitRadius(8); }},
             {"a knob beyond the bar", [](MProgressBar &b) { b.setPonitRadius(41); }},
             {"currentValue", [](MProgressBar &b) { b.setCurrentValue(30); }},
             {"minValue", [](MProgressBar &b) { b.setMinValue(10); }},
             {"maxValue", [](MProgressBar &b) { b.setMaxValue(200); }},
             {"normalColor", [](MProgressBar &b) { b.setNormalColor(QColor(9, 90, 9, 99)); }},
             {"pressColor", [](MProgressBar &b) { b.setPressColor(Qt::blue); }},
             {"pointNormalColor", [](MProgressBar &b) { b.setPointNormalColor(Qt::red); }},
             {"pressed", [](MProgressBar &b) { touch(&b).press(50, 9); }},
             {"pointPressColor", [](MProgressBar &b) { b.setPointPressColor(Qt::green); }},
             {"released", [](MProgressBar &b) { touch(&b).press(50, 9).release(); }},
             {"boundary", [](MProgressBar &b) { b.setBoundary(true); }},
             {"boundaryColor", [](MProgressBar &b) { b.setBoundaryColor(Qt::cyan); }},
             {"out of the range", [](MProgressBar &b) { b.setMaxValue(12); }},
             {"size", [](MProgressBar &b) { b.resize(300, 80); }}});
        const auto make = [] {
            auto bar = makePlain();
            bar->setPonitRadius(30);
            return bar;
        };
        checkKeptLookElsewhere<MProgressBar>(make);
        checkKeptLookFollowsItsSize<MProgressBar>(make, {26, 0});
    }

    void aPicturedBarThatIsKeptFollowsItsInputs()
    {
        checkKeptLook<MProgressBar>(
            makeBar,
            {{"currentValue", [](MProgressBar &b) { b.setCurrentValue(30); }},
             {"played", [](MProgressBar &b) { b.setSliderNormalImage(pictures().disabled); }},
             {"groove",
              [](MProgressBar &b) {
                  b.setSliderPressImage(filled(Qt::red, {190, 30}));
              }},
             {"knob", [](MProgressBar &b) { b.setPointNormalImage(pictures().knobDisabled); }},
             {"ponitRadius", [](MProgressBar &b) { b.setPonitRadius(12); }},
             {"time", [](MProgressBar &b) { b.setShowValue(true); }},
             {"realValue", [](MProgressBar &b) { b.setRealValue(31); }},
             {"pressed", [](MProgressBar &b) { touch(&b).press(90, 9); }},
             {"knob pressed", [](MProgressBar &b) { b.setPointPressImage(pictures().knob); }},
             {"played disabled",
              [](MProgressBar &b) {
                  b.setEnabled(false);
                  b.setSliderDisableImage(pictures().disabled);
              }},
             {"knob disabled",
              [](MProgressBar &b) { b.setPointDisableImage(pictures().knobDisabled); }},
             {"enabled", [](MProgressBar &b) { b.setEnabled(true); }}});
        checkKeptLookElsewhere<MProgressBar>(makeBar);
        checkKeptLookFollowsItsSize<MProgressBar>(makeBar, {26, 0});
    }
};

WIDGET_TEST_MAIN(tst_MProgressBar)
#include "tst_mprogressbar.moc"
