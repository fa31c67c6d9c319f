// SPDX-License-Identifier: Apache-2.0
#include <SpBackgroundImage>

#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QBitmap>
#include <QPainter>

#include <climits>
#include <memory>

// The accessors that are part of the interface exactly as they are written.
template <typename T> using Setter = void (SpBackgroundImage::*)(T);
namespace
{

// No two quarters are alike, and it shows through in places.
QPixmap picture(const QSize &size = QSize(60, 40))
{
    QPixmap pixmap(size);
    pixmap.fill(QColor(20, 60, 120));
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::yellow, 3));
    painter.drawLine(3, 3, size.width() - 4, size.height() / 3);
    painter.setBrush(Qt::red);
    painter.drawEllipse(size.width() / 2, size.height() / 2, size.width() / 3, size.height() / 3);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(0, size.height() / 2, size.width() / 3, size.height() / 3,
                     QColor(10, 90, 20, 100));
    return pixmap;
}

std::unique_ptr<SpBackgroundImage> makeBackdrop(const QSize &size = QSize(101, 71),
                                                QWidget *parent = nullptr)
{
    auto backdrop = std::make_unique<SpBackgroundImage>(parent);
    backdrop->setPixmap(picture());
    backdrop->resize(size);
    return backdrop;
}

QImage documented(const SpBackgroundImage &backdrop)
{
    return reference(backdrop, [&](QPainter &p) {
        p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (backdrop.rotateAngle() != 0) {
            p.translate(QPoint(backdrop.width() / 2, backdrop.height() / 2));
            p.rotate(qreal(backdrop.rotateAngle()));
            p.translate(-QPoint(backdrop.width() / 2, backdrop.height() / 2));
        }
        p.drawPixmap(backdrop.rect(), backdrop.pixmap());
    });
}

using Action = std::function<void(SpBackgroundImage &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SpBackgroundImage : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        SpBackgroundImage backdrop;
        QVERIFY(backdrop.pixmap().isNull());
        QCOMPARE(backdrop.holdMouseEvent(), false);
        QCOMPARE(backdrop.fitPixmapSize(), false);
        QCOMPARE(backdrop.rotateAngle(), 0);
        backdrop.resize(30, 20);
        COMPARE_PICTURES(painted(backdrop), reference(backdrop, [](QPainter &) {}));
        backdrop.setRotateAngle(45);
        COMPARE_PICTURES(painted(backdrop), reference(backdrop, [](QPainter &) {}));
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("pixmap", 1, [](auto &b) { b.setPixmap(b.pixmap()); });
        row("pixmap null", 1, [](auto &b) { b.setPixmap({}); });
        row("holdMouseEvent", 0, [](auto &b) { b.setholdMouseEvent(true); });
        row("fitPixmapSize", 1, [](auto &b) { b.setFitPixmapSize(true); });
        row("fitPixmapSize off", 0, [](auto &b) { b.setFitPixmapSize(false); });
        row("paintInCenter", 0, [](auto &b) { b.setPaintInCenter(true); });
        row("rotateAngle", 1, [](auto &b) { b.setRotateAngle(0); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot()
    {
        QWidget window;
        checkRepaints(*makeBackdrop({60, 40}, &window));
    }

    void propertiesKeepTheirValues()
    {
        SpBackgroundImage backdrop;
        QVERIFY(backdrop.setProperty("holdMouseEvent", true));
        QCOMPARE(backdrop.holdMouseEvent(), true);
        QVERIFY(backdrop.setProperty("fitPixmapSize", true));
        QCOMPARE(backdrop.fitPixmapSize(), true);
        const QPixmap pixmap = picture();
        QVERIFY(backdrop.setProperty("pixmap", pixmap));
        QCOMPARE(backdrop.pixmap().cacheKey(), pixmap.cacheKey());
        for (const int angle : {INT_MIN, -1, 720, INT_MAX}) {
            backdrop.setRotateAngle(angle);
            QCOMPARE(backdrop.rotateAngle(), angle);
        }
    }

    void fittingTakesTheSizeOfThePictureThatIsThere()
    {
        const auto backdrop = makeBackdrop();
        backdrop->setFitPixmapSize(true);
        QCOMPARE(backdrop->size(), QSize(60, 40));
        QCOMPARE(backdrop->minimumSize(), QSize(60, 40));
        QCOMPARE(backdrop->maximumSize(), QSize(60, 40));
        backdrop->setPixmap(picture({30, 30})); // comes too late
        QCOMPARE(backdrop->size(), QSize(60, 40));
        backdrop->setFitPixmapSize(false);
        QCOMPARE(backdrop->size(), QSize(60, 40));
        backdrop->setFitPixmapSize(true);
        QCOMPARE(backdrop->size(), QSize(30, 30));
    }

    void fittingWithoutAPictureIsStoredOnly()
    {
        SpBackgroundImage backdrop;
        backdrop.resize(50, 50);
        show(backdrop);
        QCOMPARE(paints(backdrop, [&] { backdrop.setFitPixmapSize(true); }), 0);
        QCOMPARE(backdrop.fitPixmapSize(), true);
        backdrop.setPixmap(picture());
        QCOMPARE(backdrop.size(), QSize(50, 50));
        QCOMPARE(backdrop.minimumSize(), QSize(0, 0));
    }

    // --- Looks ----------------------------------------------------------------------------------

    void thePictureIsStretchedAndTurned_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("angle");
        for (const QSize &size : {QSize(60, 40), QSize(101, 71), QSize(33, 90), QSize(61, 41)}) {
            for (const int angle : {0,   1,   30,  45,  89,  90, 135, 180,  270,  300, 359,
                                    360, 361, 450, 540, 720, -1, -90, -180, -400, 3615})
                QTest::addRow("%d x %d, %d degrees", size.width(), size.height(), angle)
                    << size << angle;
        }
    }

    // The first paint, the one that is then kept, and the one that takes what is kept.
    void thePictureIsStretchedAndTurned()
    {
        QFETCH(QSize, size);
        QFETCH(int, angle);
        const auto backdrop = makeBackdrop(size);
        backdrop->setRotateAngle(angle);
        for (const bool isInCentre : {false, true}) {
            backdrop->setPaintInCenter(isInCentre);
            for (int i = 0; i < 3; ++i)
                COMPARE_PICTURES(painted(*backdrop), documented(*backdrop));
        }
    }

    void aHalfTurnPutsThePictureUpsideDown()
    {
        const QVector<QColor> colors{Qt::red, Qt::green, Qt::blue, Qt::white};
        QPixmap quarters(20, 10);
        QPainter painter(&quarters);
        for (int i = 0; i < 4; ++i)
            painter.fillRect(i % 2 * 10, i / 2 * 5, 10, 5, colors[i]);
        painter.end();
        SpBackgroundImage backdrop;
        backdrop.setPixmap(quarters);
        backdrop.resize(80, 60); // stretched in both directions
        backdrop.setRotateAngle(180);
        const QImage turned = painted(backdrop);
        for (int i = 0; i < 4; ++i) {
            const QRgb pixel = turned.pixel(20 + i % 2 * 40, 15 + i / 2 * 30);
            const QRgb expected = colors[3 - i].rgba();
            QVERIFY(qAbs(qRed(pixel) - qRed(expected)) <= 2); // smoothing rounds
            QVERIFY(qAbs(qGreen(pixel) - qGreen(expected)) <= 2);
            QVERIFY(qAbs(qBlue(pixel) - qBlue(expected)) <= 2);
        }
    }

    void thePictureIsSmoothWhereAPixelIsNotOne()
    {
        const auto backdrop = makeBackdrop({60, 40});
        const auto enlarged = [](const std::function<void(QPainter &)> &paint) {
            QImage image(90, 60, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.scale(1.5, 1.5);
            paint(painter);
            return image;
        };
        const QImage actual = enlarged(
            [&](QPainter &p) { backdrop->render(&p, QPoint(), QRegion(), QWidget::DrawChildren); });
        COMPARE_PICTURES(actual, enlarged([](QPainter &p) {
                             p.setRenderHints(QPainter::Antialiasing
                                              | QPainter::SmoothPixmapTransform);
                             p.drawPixmap(QRect(0, 0, 60, 40), picture());
                         }));
    }

    void whatIsKeptFollowsEveryChange()
    {
        const auto backdrop = makeBackdrop();
        const auto compare = [&] {
            for (int i = 0; i < 3; ++i)
                COMPARE_PICTURES(painted(*backdrop), documented(*backdrop));
        };
        compare();
        backdrop->setRotateAngle(20);
        compare();
        backdrop->setPixmap(picture({80, 30}));
        compare();
        backdrop->resize(90, 90);
        compare();
        backdrop->setPixmap({});
        compare();
    }

    // --- Touches --------------------------------------------------------------------------------

    void aReleaseIsReportedOnlyWhenTouchesEndHere()
    {
        const auto backdrop = makeBackdrop();
        SignalLog log(backdrop.get());
        touch(backdrop.get()).press(5, 5).moveTo(6, 5).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList());
        backdrop->setholdMouseEvent(true);
        touch(backdrop.get()).press(5, 5).moveTo(600, 500);
        QCOMPARE(log.take(), QStringList());
        touch(backdrop.get()).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList{QStringLiteral("releaseSig()")});
    }

    void touchesGoOnUnlessTheyAreHeld()
    {
        const auto backdrop = makeBackdrop();
        for (const bool isHeld : {false, true}) {
            backdrop->setholdMouseEvent(isHeld);
            Touch finger = touch(backdrop.get());
            QCOMPARE(finger.press(5, 5).wasAccepted(), isHeld);
            QCOMPARE(finger.moveTo(6, 5).wasAccepted(), isHeld);
            QCOMPARE(finger.release().wasAccepted(), isHeld);
        }
    }

    // --- Robustness -----------------------------------------------------------------------------

    void hostileAnglesSizesAndPictures_data()
    {
        QTest::addColumn<QPixmap>("pixmap");
        QTest::addColumn<int>("angle");
        QTest::addColumn<QSize>("size");
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        QPixmap wide(20000, 2);
        wide.fill(Qt::green);
        QPixmap dot(1, 1);
        dot.fill(Qt::red);
        for (const QPixmap &pixmap : {QPixmap(bitmap), wide, dot}) {
            for (const int angle : {INT_MIN, INT_MAX, 0, 7}) {
                for (const QSize &size : {QSize(1, 1), QSize(1, 50), QSize(80, 60)})
                    QTest::addRow("%d px wide at %d degrees in %d x %d", pixmap.width(), angle,
                                  size.width(), size.height())
                        << pixmap << angle << size;
            }
        }
    }

    void hostileAnglesSizesAndPictures()
    {
        QFETCH(QPixmap, pixmap);
        QFETCH(int, angle);
        QFETCH(QSize, size);
        SpBackgroundImage backdrop;
        backdrop.setPixmap(pixmap);
        backdrop.setRotateAngle(angle);
        backdrop.resize(size);
        for (int i = 0; i < 3; ++i)
            COMPARE_PICTURES(painted(backdrop), documented(backdrop));
    }

    void aBackdropMayBeDeletedByItsReport()
    {
        QWidget parent;
        auto *backdrop = new SpBackgroundImage(&parent);
        backdrop->setholdMouseEvent(true);
        const QPointer<SpBackgroundImage> guard(backdrop);
        connect(backdrop, &SpBackgroundImage::releaseSig, [backdrop] { delete backdrop; });
        touch(backdrop).tap(5, 5);
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_SpBackgroundImage)
#include "tst_spbackgroundimage.moc"
