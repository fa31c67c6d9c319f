// SPDX-License-Identifier: Apache-2.0
#include <SpLoadingRound>

#include "deletion.h"
#include "keptlooks.h"
#include "paintwork.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QAbstractEventDispatcher>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>

#include <climits>
#include <memory>

namespace
{

using Style = SpLoadingRound::DrawStyle;

// The documented picture for a colour and an index.
QImage documented(const SpLoadingRound &ring, int style, const QColor &color)
{
    return reference(ring, [&](QPainter &p) {
        const int r = ring.radius();
        p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        p.translate(QPoint(ring.width() / 2, ring.height() / 2));
        p.setPen(Qt::NoPen);
        p.rotate(qreal(ring.index() * 30));
        for (int i = 12; i >= 1; --i) {
            const int alpha = qMax(20 * i + 15, 120);
            const int grey = 252 - 21 * i;
            if (style == 2)
                p.setBrush(QColor(grey, grey, grey));
            else
                p.setBrush(QColor(color.red(), color.green(), color.blue(), alpha));
            if (style == 0)
                p.drawEllipse(QRect(4 * r / 5 - r / 5, -(r / 15), 2 * (r / 5), 2 * (r / 15)));
            else if (style == 1)
                p.drawRect(QRect(3 * r / 5, 0, 2 * r / 5, int(r * 6.28 / 36)));
            else
                p.drawRoundedRect(3 * r / 7, 0, r / 2, int(r * 6.28 / 39), 25, 25,
                                  Qt::RelativeSize);
            p.rotate(-30);
        }
    });
}

std::unique_ptr<SpLoadingRound> makeRing()
{
    auto ring = std::make_unique<SpLoadingRound>();
    ring->resize(101, 91);
    return ring;
}

int runningTimers(SpLoadingRound &ring)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(&ring).size();
}

// Handlers are called with what a subclass may hand them.
class Handlers : public SpLoadingRound
{
public:
    using SpLoadingRound::mousePressEvent;
    using SpLoadingRound::mouseReleaseEvent;
    using SpLoadingRound::timerEvent;
};

using Action = std::function<void(SpLoadingRound &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SpLoadingRound : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        SpLoadingRound ring;
        checkProperties(ring,
                        {{"painterColor", QColor(Qt::white)},
                         {"radius", 30},
                         {"index", 0},
                         {"holdMouseEvent", false}});
        QCOMPARE(runningTimers(ring), 0);
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("painterColor", 1, [](auto &r) { r.setPainterColor(Qt::white); });
        row("radius", 1, [](auto &r) { r.setRadius(30); });
        row("index", 1, [](auto &r) { r.setIndex(0); });
        row("holdMouseEvent", 0, [](auto &r) { r.setholdMouseEvent(true); });
        row("drawStyle", 0, [](auto &r) { r.setDrawStyle(SpLoadingRound::RectStyle); });
        row("timer", 0, [](auto &r) { r.setTimer(100); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeRing()); }

    void radiusAndIndexAreMadeFit()
    {
        SpLoadingRound ring;
        ring.setRadius(-40);
        QCOMPARE(ring.radius(), 40);
        ring.setRadius(INT_MIN);
        QCOMPARE(ring.radius(), INT_MAX);
        const QVector<QPair<int, int>> indices{{13, 1},  {12, 0},   {11, 11},
                                               {-1, -1}, {-13, -1}, {INT_MIN, -8}};
        for (const auto &index : indices) {
            ring.setIndex(index.first);
            QCOMPARE(ring.index(), index.second);
        }
        QVERIFY(ring.setProperty("holdMouseEvent", true));
        QCOMPARE(ring.holdMouseEvent(), true);
    }

    // --- Looks ----------------------------------------------------------------------------------

    void pictures_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("index");
        for (int style = 0; style < 3; ++style) {
            for (int index = -11; index < 12; ++index)
                QTest::addRow("style %d, index %d", style, index) << style << index;
        }
    }

    void pictures()
    {
        QFETCH(int, style);
        QFETCH(int, index);
        const auto ring = makeRing();
        ring->setDrawStyle(Style(style));
        ring->setIndex(index);
        COMPARE_PICTURES(painted(*ring), documented(*ring, style, Qt::white));
        ring->resize(321, 311);
        for (const int radius : {40, 41, 44, 14, 1, 0, 149}) {
            ring->setRadius(radius);
            ring->setPainterColor(QColor(200, 90, 30, 10));
            COMPARE_PICTURES(painted(*ring), documented(*ring, style, QColor(200, 90, 30)));
        }
    }

    void otherStylesAreEllipses()
    {
        const auto ring = makeRing();
        for (const int style : {5, 3, -1, INT_MIN}) {
            ring->setDrawStyle(SpLoadingRound::RectStyle);
            ring->setDrawStyle(Style(style));
            COMPARE_PICTURES(painted(*ring), documented(*ring, 0, Qt::white));
        }
    }

    void greyTakesTheColourOver()
    {
        const auto ring = makeRing();
        ring->setPainterColor(Qt::red);
        ring->setDrawStyle(SpLoadingRound::GrayStyle);
        QCOMPARE(ring->painterColor(), QColor(Qt::red));
        painted(*ring);
        QCOMPARE(ring->painterColor(), QColor(231, 231, 231));
        ring->setDrawStyle(SpLoadingRound::RectStyle);
        COMPARE_PICTURES(painted(*ring), documented(*ring, 1, QColor(231, 231, 231)));
    }

    void anInvalidColourIsBlack()
    {
        const auto ring = makeRing();
        ring->setPainterColor(QColor());
        COMPARE_PICTURES(painted(*ring), documented(*ring, 0, Qt::black));
    }

    // --- Turning --------------------------------------------------------------------------------

    void aTickIsAStepAndARepaint()
    {
        const auto ring = makeRing();
        show(*ring);
        ring->setTimer(100);
        ring->setIndex(-1);
        QCoreApplication::processEvents();
        for (int i = 0; i < 14; ++i) {
            QCOMPARE(paints(*ring, [] { virtualtime::advance(100); }), 1);
            QCOMPARE(ring->index(), i % 12);
        }
        ring->stopTimer();
        QCOMPARE(paints(*ring, [] { virtualtime::advance(1000); }), 0);
        QCOMPARE(ring->index(), 1);
    }

    void aSecondTimerTakesThePlaceOfTheFirst()
    {
        const auto ring = makeRing();
        show(*ring);
        ring->setTimer(100);
        ring->setTimer(300);
        QCOMPARE(runningTimers(*ring), 1);
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(ring.get());
        QCOMPARE(timers.first().interval, 300);
        QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
        virtualtime::advance(900);
        QCOMPARE(ring->index(), 3);
        ring->stopTimer();
        QCOMPARE(runningTimers(*ring), 0);
        ring->stopTimer();
        QCOMPARE(runningTimers(*ring), 0);
    }

    void aHiddenRingTurnsOn()
    {
        const auto ring = makeRing();
        show(*ring);
        ring->setTimer(100);
        virtualtime::advance(200);
        ring->hide();
        virtualtime::advance(150);
        QCOMPARE(ring->index(), 3);
        show(*ring);
        virtualtime::advance(49);
        QCOMPARE(ring->index(), 3);
        virtualtime::advance(1);
        QCOMPARE(ring->index(), 4);
        ring->hide();
        ring->setTimer(200);
        virtualtime::advance(400);
        QCOMPARE(ring->index(), 6);
        ring->stopTimer();
        show(*ring);
        virtualtime::advance(1000);
        QCOMPARE(ring->index(), 6);
    }

    void aRingThatWasNeverShownTurns()
    {
        const auto ring = makeRing();
        ring->setTimer(100);
        virtualtime::advance(300);
        QCOMPARE(ring->index(), 3);
    }

    void aNegativeIntervalStops()
    {
        const auto ring = makeRing();
        ring->setTimer(100);
        ring->setTimer(-1);
        QCOMPARE(runningTimers(*ring), 0);
        ring->setTimer(INT_MIN);
        QCOMPARE(runningTimers(*ring), 0);
        ring->setTimer(0);
        QCOMPARE(runningTimers(*ring), 1);
    }

    void ticksOfOthersAreDropped()
    {
        Handlers ring;
        ring.setTimer(100);
        const int own =
            QAbstractEventDispatcher::instance()->registeredTimers(&ring).first().timerId;
        QTimerEvent other(own + 1);
        ring.timerEvent(&other);
        QCOMPARE(ring.index(), 0);
        QTimerEvent tick(own);
        ring.timerEvent(&tick);
        QCOMPARE(ring.index(), 1);
        ring.stopTimer();
        QTimerEvent late(own);
        ring.timerEvent(&late);
        QCOMPARE(ring.index(), 1);
    }

    // --- Touches --------------------------------------------------------------------------------

    void aTouchWithoutMoveClicks()
    {
        const auto ring = makeRing();
        SignalLog log(ring.get());
        touch(ring.get()).tap(5, 6);
        QCOMPARE(log.take(),
                 (QStringList{at("pressMask", 5, 6), at("releaseMask", 5, 6),
                              QStringLiteral("clicked()")}));
        touch(ring.get()).press(5, 6).moveTo(5, 6).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), (QStringList{at("pressMask", 5, 6), at("releaseMask", 5, 6)}));
        touch(ring.get()).tap(7, 8);
        QCOMPARE(log.take().size(), 3);
    }

    void touchesGoOnUnlessTheyAreHeld()
    {
        const auto ring = makeRing();
        for (const bool isHeld : {false, true}) {
            ring->setholdMouseEvent(isHeld);
            Touch finger = touch(ring.get());
            QCOMPARE(finger.press(5, 5).wasAccepted(), isHeld);
            QCOMPARE(finger.moveTo(6, 5).wasAccepted(), isHeld);
            QCOMPARE(finger.release().wasAccepted(), isHeld);
        }
    }

    void heldTouchesAreReportedAllTheSame()
    {
        const auto ring = makeRing();
        ring->setholdMouseEvent(true);
        SignalLog log(ring.get());
        touch(ring.get()).tap(5, 6);
        QCOMPARE(log.take(),
                 (QStringList{at("pressMask", 5, 6), at("releaseMask", 5, 6),
                              QStringLiteral("clicked()")}));
        touch(ring.get()).press(5, 6).moveTo(9, 6).release();
        QCOMPARE(log.take(), (QStringList{at("pressMask", 5, 6), at("releaseMask", 9, 6)}));
        touch(ring.get()).tap(7, 8);
        QCOMPARE(log.take().size(), 3);
    }

    // QWidget has left the event to the parent by the time that a slot hears of it.
    void theBaseHandlersComeBeforeTheSignalsUnlessTheTouchIsHeld_data()
    {
        QTest::addColumn<bool>("isHeld");
        QTest::newRow("passed on") << false;
        QTest::newRow("held") << true;
    }

    void theBaseHandlersComeBeforeTheSignalsUnlessTheTouchIsHeld()
    {
        QFETCH(bool, isHeld);
        Handlers ring;
        ring.setholdMouseEvent(isHeld);
        SignalLog log(&ring);
        QVector<bool> accepted;
        const auto send = [&](QEvent::Type type, void (Handlers::*handler)(QMouseEvent *)) {
            QMouseEvent event(type, QPointF(5, 6), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            log.onLine([&](const QString &) { accepted += event.isAccepted(); });
            (ring.*handler)(&event);
        };
        send(QEvent::MouseButtonPress, &Handlers::mousePressEvent);
        send(QEvent::MouseButtonRelease, &Handlers::mouseReleaseEvent);
        QCOMPARE(accepted, QVector<bool>(3, isHeld));
    }

    // --- Robustness -----------------------------------------------------------------------------

    void hostileRadii()
    {
        const auto ring = makeRing();
        for (int style = 0; style < 3; ++style) {
            ring->setDrawStyle(Style(style));
            ring->setRadius(30);
            const int drawing = recordedBytes(*ring);
            for (const int radius : {INT_MIN, INT_MAX, 100000, 40000000}) {
                ring->setRadius(radius);
                painted(*ring);
                QCOMPARE(recordedBytes(*ring), drawing); // the same spokes, only larger
            }
        }
    }

    void aRingMayBeDeletedByAnyReport()
    {
        checkMayBeDeletedByAnyReport([] { return makeRing(); }, 3,
                                     [](QWidget *s) { touch(s).tap(5, 5); });
    }

    void aRingThatIsKeptFollowsItsInputs()
    {
        checkKeptLook<SpLoadingRound>(
            makeRing,
            {{"index", [](SpLoadingRound &r) { r.setIndex(1); }},
             {"painterColor", [](SpLoadingRound &r) { r.setPainterColor(Qt::red); }},
             {"radius", [](SpLoadingRound &r) { r.setRadius(41); }},
             {"rectangles", [](SpLoadingRound &r) { r.setDrawStyle(SpLoadingRound::RectStyle); }},
             {"size", [](SpLoadingRound &r) { r.resize(r.width() + 4, r.height() + 9); }},
             {"greys", [](SpLoadingRound &r) { r.setDrawStyle(SpLoadingRound::GrayStyle); }},
             {"too large", [](SpLoadingRound &r) { r.setRadius(90); }},
             {"larger", [](SpLoadingRound &r) { r.setRadius(100); }}});
        checkKeptLookElsewhere<SpLoadingRound>(makeRing);
    }

    // The colour that such a paint leaves is left by copies, too.
    void greyRingsThatAreKeptLeaveTheirColour()
    {
        const auto ring = makeRing();
        ring->setDrawStyle(SpLoadingRound::GrayStyle);
        for (int paint = 0; paint < 4; ++paint) {
            ring->setPainterColor(Qt::red);
            painted(*ring);
            QCOMPARE(ring->painterColor(), QColor(231, 231, 231));
        }
    }
};

WIDGET_TEST_MAIN(tst_SpLoadingRound)
#include "tst_sploadinground.moc"
