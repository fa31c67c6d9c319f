// SPDX-License-Identifier: Apache-2.0
#include <SpMaskBackground>

#include "baseorder.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QMouseEvent>
#include <QPainter>

#include <climits>
#include <memory>

// The accessors that are part of the interface exactly as they are written.
template <typename T> using Setter = void (SpMaskBackground::*)(T);
namespace
{

std::unique_ptr<SpMaskBackground> makeMask(QWidget *parent = nullptr)
{
    auto mask = std::make_unique<SpMaskBackground>(parent);
    mask->resize(101, 61);
    return mask;
}

QImage documented(const SpMaskBackground &mask)
{
    return reference(mask, [&](QPainter &p) {
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(mask.painterColor());
        p.drawRoundedRect(QRectF(mask.rect()), qreal(mask.roundX()), qreal(mask.roundY()));
    });
}

using Action = std::function<void(SpMaskBackground &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SpMaskBackground : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        checkProperties(SpMaskBackground(),
                        {{"painterColor", QColor(Qt::black)},
                         {"roundX", 0},
                         {"roundY", 0},
                         {"holdMouseEvent", false}});
    }

    void settersThatRepaintDoItOnceAndTheOtherDoesNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("painterColor", 1, [](auto &m) { m.setPainterColor(Qt::black); });
        row("roundX", 1, [](auto &m) { m.setRoundX(0); });
        row("roundY", 1, [](auto &m) { m.setRoundY(0); });
        row("holdMouseEvent", 0, [](auto &m) { m.setholdMouseEvent(true); });
    }

    void settersThatRepaintDoItOnceAndTheOtherDoesNot() { checkRepaints(*makeMask()); }

    void propertiesKeepAnyValue()
    {
        SpMaskBackground mask;
        for (const int radius : {INT_MIN, -1, 7, INT_MAX}) {
            QVERIFY(mask.setProperty("roundX", radius));
            QCOMPARE(mask.roundX(), radius);
            QVERIFY(mask.setProperty("roundY", radius / 2));
            QCOMPARE(mask.roundY(), radius / 2);
        }
        QVERIFY(mask.setProperty("painterColor", QColor(1, 2, 3, 4)));
        QCOMPARE(mask.painterColor(), QColor(1, 2, 3, 4));
        QVERIFY(mask.setProperty("holdMouseEvent", true));
        QCOMPARE(mask.holdMouseEvent(), true);
    }

    // --- Looks ----------------------------------------------------------------------------------

    void aHalfTransparentMaskCoversItsWholeArea()
    {
        const auto mask = makeMask();
        mask->setPainterColor(QColor(0, 0, 0, 128));
        const QImage image = painted(*mask);
        QImage expected(mask->size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(QColor(0, 0, 0, 128));
        COMPARE_PICTURES(image, expected);
    }

    void cornersHaveTheirRadii_data()
    {
        QTest::addColumn<int>("roundX");
        QTest::addColumn<int>("roundY");
        for (const int x : {INT_MIN, -3, 0, 1, 8, 50, 51, 400, INT_MAX}) {
            for (const int y : {INT_MIN, -3, 0, 1, 20, 30, 31, 400, INT_MAX})
                QTest::addRow("%d, %d", x, y) << x << y;
        }
    }

    void cornersHaveTheirRadii()
    {
        QFETCH(int, roundX);
        QFETCH(int, roundY);
        const auto mask = makeMask();
        mask->setRoundX(roundX);
        mask->setRoundY(roundY);
        for (const QColor &color : {QColor(0, 0, 0, 128), QColor(200, 90, 30), QColor()}) {
            mask->setPainterColor(color);
            COMPARE_PICTURES(painted(*mask), documented(*mask));
        }
    }

    void aTinyMaskHasTinyCorners()
    {
        const auto mask = makeMask();
        mask->setRoundX(5);
        mask->setRoundY(5);
        for (const QSize &size : {QSize(1, 1), QSize(2, 1), QSize(1, 9), QSize(7, 3)}) {
            mask->resize(size);
            COMPARE_PICTURES(painted(*mask), documented(*mask));
        }
    }

    // --- Touches --------------------------------------------------------------------------------

    void eachTouchIsReportedWhereverItEnds()
    {
        const auto mask = makeMask();
        for (const bool isHeld : {false, true}) {
            mask->setholdMouseEvent(isHeld);
            SignalLog log(mask.get());
            touch(mask.get()).press(5, 6).moveTo(200, 6).moveTo(305, 6).release();
            QCoreApplication::processEvents();
            QCOMPARE(log.take(),
                     (QStringList{at("pressMask", 5, 6), at("releaseMask", 305, 6),
                                  QStringLiteral("clicked()")}));
        }
    }

    void positionsAreRoundedToWholePixels()
    {
        SpMaskBackground mask;
        SignalLog log(&mask);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(4.625, 5.375), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(7.5, -2.25), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&mask, &press);
        QCoreApplication::sendEvent(&mask, &release);
        QCOMPARE(log.take().mid(0, 2),
                 (QStringList{at("pressMask", 5, 5), at("releaseMask", 8, -2)}));
    }

    void touchesGoOnUnlessTheyAreHeld()
    {
        const auto mask = makeMask();
        for (const bool isHeld : {false, true}) {
            mask->setholdMouseEvent(isHeld);
            Touch finger = touch(mask.get());
            QCOMPARE(finger.press(5, 5).wasAccepted(), isHeld);
            QCOMPARE(finger.moveTo(6, 5).wasAccepted(), isHeld);
            QCOMPARE(finger.release().wasAccepted(), isHeld);
        }
    }

    void theBaseHandlerComesBeforeTheSignals()
    {
        const auto mask = makeMask();
        BaseOrder order(mask.get());
        touch(mask.get()).tap(5, 5);
        QCOMPARE(order.before, QStringList());
        QCOMPARE(order.after, (QStringList{"pressMask", "releaseMask", "clicked"}));
    }

    void aTouchNeverRepaints()
    {
        const auto mask = makeMask();
        show(*mask);
        QCOMPARE(paints(*mask, [&] { touch(mask.get()).press(5, 5).moveTo(9, 9).release(); }), 0);
    }

    // --- Robustness -----------------------------------------------------------------------------

    void aMaskMayBeDeletedByAnyReport()
    {
        for (int number = 0; number < 3; ++number) {
            QWidget parent;
            auto *mask = makeMask(&parent).release();
            const QPointer<SpMaskBackground> guard(mask);
            int count = 0;
            SignalLog log(mask);
            log.onLine([&](const QString &) {
                if (count++ == number)
                    delete mask;
            });
            Touch finger = touch(mask);
            finger.tap(5, 5);
            QVERIFY(!guard);
            QVERIFY(finger.wasAccepted()); // Qt is not to look for the parent of what is gone
            QCOMPARE(count, number + 1);
        }
    }

    // Only on whole pixels are the edges of a square mask hard.
    void aSquareMaskBetweenPixelsHasSoftEdges()
    {
        class Square : public QWidget
        {
        protected:
            void paintEvent(QPaintEvent *) override
            {
                QPainter painter(this);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(Qt::NoPen);
                painter.setBrush(QColor(0, 0, 0, 128));
                painter.drawRect(QRectF(rect()));
            }
        };
        SpMaskBackground mask;
        mask.setPainterColor(QColor(0, 0, 0, 128));
        Square square;
        const std::function<void(QPainter &)> places[] = {
            [](QPainter &p) { p.translate(3, 4); },
            [](QPainter &p) { p.translate(qreal(0.5), qreal(0.3)); },
            [](QPainter &p) { p.scale(qreal(0.73), qreal(0.77)); },
            [](QPainter &p) { p.rotate(20); },
        };
        for (const auto &place : places) {
            const auto rendered = [&](QWidget &widget) {
                QImage image(140, 100, QImage::Format_ARGB32_Premultiplied);
                image.fill(QColor(13, 70, 101));
                QPainter painter(&image);
                place(painter);
                widget.resize(101, 61);
                widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
                return image;
            };
            COMPARE_PICTURES(rendered(mask), rendered(square));
        }
    }
};

WIDGET_TEST_MAIN(tst_SpMaskBackground)
#include "tst_spmaskbackground.moc"
