// SPDX-License-Identifier: Apache-2.0
#include <MOProgress>

#include "baseorder.h"
#include "keptlooks.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <climits>
#include <memory>

namespace
{

// Lengths count up to the largest size that a widget can have.
int bounded(int length) { return qBound(-QWIDGETSIZE_MAX, length, QWIDGETSIZE_MAX); }

// The documented picture, made anew each time.
QImage documented(const MOProgress &ring)
{
    return reference(ring, [&](QPainter &p) {
        if (ring.arcHeight() >= ring.radius())
            return;
        const int r = bounded(ring.radius());
        const int h = bounded(ring.arcHeight());
        p.setRenderHint(QPainter::Antialiasing);
        p.translate(QPoint(ring.width() / 2, ring.height() / 2));
        const QRectF square(QRect(-r, -r, 2 * r, 2 * r));
        const int value = qBound(0, ring.currentValue(), 100);
        QPainterPath disc;
        disc.arcMoveTo(square, 0);
        disc.arcTo(square, 0, 360);
        QPainterPath inside;
        inside.addEllipse(QRectF(QRect(-r + h, -r + h, 2 * r - 2 * h, 2 * r - 2 * h)));
        p.setBrush(ring.insideColor());
        p.drawPath(disc);
        p.setBrush(ring.normalColor());
        if (ring.boundary())
            p.setPen(QPen(QBrush(ring.boundaryColor(), Qt::SolidPattern), qreal(1), Qt::SolidLine,
                          Qt::SquareCap, Qt::BevelJoin));
        else
            p.setPen(Qt::NoPen);
        p.drawPath(disc - inside);
        QPainterPath sector;
        sector.arcTo(square, 90, qreal((value * 360) / -100));
        p.setBrush(ring.pressColor());
        if (value != 0)
            p.drawPath(sector - inside);
        p.setPen(ring.displayTextColor());
        const qreal split = qreal(2 * r * 3.0 / 5.0);
        p.drawText(QRectF(qreal(-r), qreal(-r), qreal(2 * r), split),
                   Qt::AlignHCenter | Qt::AlignBottom, QString::number(value) + QLatin1Char('%'));
        QFont font;
        if (ring.fontSize() >= 1)
            font.setPixelSize(ring.fontSize());
        p.setFont(font);
        p.drawText(QRectF(qreal(-r), qreal(-r) + split, qreal(2 * r), qreal(2 * r * 2.0 / 5.0)),
                   Qt::AlignHCenter | Qt::AlignTop, ring.dispalyText());
    });
}

std::unique_ptr<MOProgress> makeRing()
{
    auto ring = std::make_unique<MOProgress>();
    ring->resize(221, 211);
    return ring;
}

// Handlers are called with what a subclass may hand them.
class Handlers : public MOProgress
{
public:
    using MOProgress::mouseReleaseEvent;
};

using Action = std::function<void(MOProgress &)>;

} // namespace

class tst_MOProgress : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        MOProgress ring;
        QCOMPARE(ring.itemID(), 0);
        QCOMPARE(ring.currentValue(), 50);
        QCOMPARE(ring.radius(), 100);
        QCOMPARE(ring.normalColor(), QColor(150, 150, 150, 100));
        QCOMPARE(ring.pressColor(), QColor(255, 125, 0, 255));
        QCOMPARE(ring.boundary(), true);
        QCOMPARE(ring.boundaryColor(), QColor(255, 255, 255, 255));
        QCOMPARE(ring.arcHeight(), 20);
        QCOMPARE(ring.insideColor(), QColor(0, 0, 0, 100));
        QCOMPARE(ring.fontSize(), 25);
        QCOMPARE(ring.dispalyText(), QString());
        QCOMPARE(ring.displayTextColor(), QColor(255, 255, 255, 255));
    }

    void settersRepaintOnAChangeOnly_data()
    {
        const TableRows<QVariant, int, int> row("value", "repaintsOnChange", "repaintsOtherwise");
        row("itemID", 3, 0, 0);
        row("currentValue", 51, 1, 0);
        row("radius", 90, 1, 0);
        row("normalColor", QColor(Qt::red), 1, 0);
        row("pressColor", QColor(Qt::red), 1, 0);
        row("boundary", false, 1, 0);
        row("boundaryColor", QColor(Qt::red), 1, 0);
        row("arcHeight", 21, 1, 0);
        row("insideColor", QColor(Qt::red), 1, 0);
        row("fontSize", 26, 1, 0);
        row("dispalyText", QStringLiteral("x"), 1, 1);
        row("displayTextColor", QColor(Qt::red), 1, 0);
    }

    void settersRepaintOnAChangeOnly() { checkRepaintsOfProperty(*makeRing()); }

    void anyFontSizeIsStoredAndBelowOneItIsThatOfTheApplication_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {1, 60, 0, -1, INT_MIN})
            QTest::addRow("%d", size) << size;
    }

    void anyFontSizeIsStoredAndBelowOneItIsThatOfTheApplication()
    {
        QFETCH(int, size);
        const auto ring = makeRing();
        ring->setDispalyText(QStringLiteral("Updating"));
        show(*ring);
        QCOMPARE(paints(*ring, [&] { ring->setFontSize(size); }), 1);
        QCOMPARE(ring->fontSize(), size);
        QCOMPARE(paints(*ring, [&] { ring->setFontSize(size); }), 0);
        COMPARE_PICTURES(painted(*ring), documented(*ring));
    }

    // --- Looks ----------------------------------------------------------------------------------

    void pictures_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("boundary");
        for (int value = 0; value <= 100; ++value)
            QTest::addRow("%d", value) << value << (value % 2 == 0);
        QTest::newRow("100, plain") << 100 << false;
        QTest::newRow("0, plain") << 0 << false;
        QTest::newRow("1, outlined") << 1 << true;
    }

    void pictures()
    {
        QFETCH(int, value);
        QFETCH(bool, boundary);
        const auto ring = makeRing();
        ring->setCurrentValue(value);
        ring->setBoundary(boundary);
        ring->setDispalyText(QStringLiteral("Updating"));
        COMPARE_PICTURES(painted(*ring), documented(*ring));
        COMPARE_PICTURES(painted(*ring), documented(*ring)); // from what is kept
    }

    void everySetterShowsAtTheNextPaint()
    {
        const auto ring = makeRing();
        ring->setDispalyText(QStringLiteral("Updating"));
        painted(*ring);
        for (const Action &action :
             {Action([](auto &r) { r.setCurrentValue(70); }),
              Action([](auto &r) { r.setRadius(80); }),
              Action([](auto &r) { r.setNormalColor(Qt::green); }),
              Action([](auto &r) { r.setPressColor(Qt::red); }),
              Action([](auto &r) { r.setBoundaryColor(Qt::blue); }),
              Action([](auto &r) { r.setArcHeight(31); }),
              Action([](auto &r) { r.setInsideColor(Qt::darkGray); }),
              Action([](auto &r) { r.setFontSize(12); }),
              Action([](auto &r) { r.setDispalyText(QStringLiteral("Ready")); }),
              Action([](auto &r) { r.setDisplayTextColor(Qt::cyan); }), Action([](auto &r) {
                  QFont font;
                  font.setPixelSize(33);
                  font.setItalic(true); // not so the caption
                  r.setFont(font);
              }),
              Action([](auto &r) { r.resize(240, 300); })}) {
            action(*ring);
            COMPARE_PICTURES(painted(*ring), documented(*ring));
        }
    }

    void aRingThatIsKeptFollowsItsInputs()
    {
        const std::vector<Change<MOProgress>> changes{
            {"currentValue", [](MOProgress &r) { r.setCurrentValue(70); }},
            {"radius", [](MOProgress &r) { r.setRadius(90); }},
            {"normalColor", [](MOProgress &r) { r.setNormalColor(QColor(0, 90, 200, 90)); }},
            {"pressColor", [](MOProgress &r) { r.setPressColor(QColor(0, 200, 0, 128)); }},
            {"boundaryColor", [](MOProgress &r) { r.setBoundaryColor(Qt::red); }},
            {"boundary", [](MOProgress &r) { r.setBoundary(false); }},
            {"arcHeight", [](MOProgress &r) { r.setArcHeight(33); }},
            {"insideColor", [](MOProgress &r) { r.setInsideColor(QColor(90, 90, 0, 50)); }},
            {"rim", [](MOProgress &r) { r.setPalette(QPalette(Qt::cyan)); }},
            {"size", [](MOProgress &r) { r.resize(240, 230); }},
            {"nothing done", [](MOProgress &r) { r.setCurrentValue(0); }},
            {"too large", [](MOProgress &r) { r.setRadius(150); }},
            {"larger", [](MOProgress &r) { r.setRadius(160); }},
        };
        checkKeptLook<MOProgress>(makeRing, changes);
        checkKeptLookElsewhere<MOProgress>(makeRing);
    }

    // While the value moves, the track below it is kept, and follows its own inputs.
    void aTrackThatIsKeptFollowsItsInputs()
    {
        const auto ring = makeRing();
        const std::vector<std::function<void()>> changes{
            [] {},
            [&] { ring->setRadius(90); },
            [&] { ring->setNormalColor(QColor(0, 90, 200, 90)); },
            [&] { ring->setBoundaryColor(Qt::red); },
            [&] { ring->setBoundary(false); },
            [&] { ring->setArcHeight(33); },
            [&] { ring->setInsideColor(QColor(90, 90, 0, 50)); },
            [&] { ring->setPalette(QPalette(Qt::cyan)); },
            [&] { ring->setRadius(150); },
            [&] { ring->setRadius(160); },
        };
        int value = 1;
        for (const auto &change : changes) {
            change();
            for (int paint = 0; paint < 4; ++paint) {
                ring->setCurrentValue(++value);
                COMPARE_PICTURES(painted(*ring), documented(*ring));
            }
        }
    }

    void thePaintLimitsTheValueAndWritesItBack()
    {
        const auto ring = makeRing();
        ring->setCurrentValue(150);
        QCOMPARE(ring->currentValue(), 150);
        COMPARE_PICTURES(painted(*ring), documented(*ring));
        QCOMPARE(ring->currentValue(), 100);
        ring->setCurrentValue(-1);
        painted(*ring);
        QCOMPARE(ring->currentValue(), 0);
    }

    void aRingAsThickAsItsRadiusIsNotDrawn()
    {
        const auto ring = makeRing();
        ring->setCurrentValue(150);
        for (int height : {100, 101, INT_MAX}) {
            ring->setArcHeight(height);
            COMPARE_PICTURES(painted(*ring), reference(*ring, [](QPainter &) {}));
        }
        QCOMPARE(ring->currentValue(), 150); // nothing has limited it
        ring->setArcHeight(99);
        COMPARE_PICTURES(painted(*ring), documented(*ring));
    }

    // --- Touches --------------------------------------------------------------------------------

    void aReleaseIsReported()
    {
        const auto ring = makeRing();
        ring->setItemID(7);
        SignalLog log(ring.get());
        Touch finger = touch(ring.get());
        finger.press(5, 5);
        QVERIFY(!finger.wasAccepted());
        finger.moveTo(500, 500).release();
        QVERIFY(!finger.wasAccepted());
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList{QStringLiteral("btnClicked(7)")});
    }

    void theBaseHandlerComesBeforeTheSignal()
    {
        const auto ring = makeRing();
        BaseOrder order(ring.get());
        touch(ring.get()).tap(5, 5);
        QCOMPARE(order.before, QStringList());
        QCOMPARE(order.after, QStringList{"btnClicked"});
    }

    void aDisabledRingReportsNothing()
    {
        Handlers ring;
        ring.setEnabled(false);
        SignalLog log(&ring);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        ring.mouseReleaseEvent(&release);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!release.isAccepted());
    }

    // --- Robustness -----------------------------------------------------------------------------

    void hostileNumbers()
    {
        const int numbers[] = {INT_MIN, -100000, -1, 0, 1, 120, 40000, INT_MAX};
        const auto ring = makeRing();
        for (const int radius : numbers) {
            for (const int height : numbers) {
                ring->setRadius(radius);
                ring->setArcHeight(height);
                ring->setCurrentValue(radius);
                COMPARE_PICTURES(painted(*ring), documented(*ring));
                ring->setCurrentValue(33);
                COMPARE_PICTURES(painted(*ring), documented(*ring));
            }
        }
    }

    void aRingMayBeDeletedByItsReport()
    {
        auto *ring = makeRing().release();
        const QPointer<MOProgress> guard(ring);
        connect(ring, &MOProgress::btnClicked, ring, [ring] { delete ring; });
        touch(ring).tap(5, 5);
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_MOProgress)
#include "tst_moprogress.moc"
