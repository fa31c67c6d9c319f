// SPDX-License-Identifier: Apache-2.0
#include "detail/imagelook.h"

#include "detail/qtversion.h"
#include "widgettest.h"

#include <QBitmap>
#include <QPainter>
#include <QRandomGenerator>

using namespace panelkit;

namespace
{

// A round picture with soft edges: every alpha from none to full occurs.
QPixmap disc(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient gradient(QRectF(pixmap.rect()).center(), qreal(size.width()) / 2);
    gradient.setColorAt(0, color);
    gradient.setColorAt(1, Qt::transparent);
    painter.fillRect(pixmap.rect(), gradient);
    painter.drawLine(0, 0, size.width(), size.height());
    return pixmap;
}

QImage canvas()
{
    QImage image(120, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(10, 60, 90));
    return image;
}

// Every pixel has a colour and an alpha of its own, so that none can be taken for its neighbour.
QPixmap noise(const QSize &size, QRandomGenerator &random)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random.generate());
    }
    return QPixmap::fromImage(image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

// How often a scaled look is computed that can be kept.
constexpr int kScaledOnce = kScalesAlikeUnderAnyClip ? 1 : 0;

using Paint = std::function<void(QPainter &)>;

QImage onCanvas(const Paint &paint)
{
    QImage image = canvas();
    QPainter painter(&image);
    paint(painter);
    return image;
}

} // namespace

class tst_ImageLook : public WidgetTest
{
    Q_OBJECT

private slots:
    void theVeilDarkensOnlyOpaquePixels()
    {
        QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
        image.setPixelColor(0, 0, QColor(200, 100, 50));
        image.setPixelColor(1, 0, Qt::transparent);
        const QImage veiled = veiledImage(QPixmap::fromImage(image), {2, 1}, 255);
        QCOMPARE(veiled.pixelColor(0, 0), QColor(Qt::black));
        QCOMPARE(veiled.pixelColor(1, 0).alpha(), 0);
    }

    void anAlphaOutOfRangeLeavesNoVeil_data()
    {
        QTest::addColumn<int>("alpha");
        for (int alpha : {INT_MIN, -1, 0, 256, INT_MAX})
            QTest::addRow("%d", alpha) << alpha;
    }

    void anAlphaOutOfRangeLeavesNoVeil()
    {
        QFETCH(int, alpha);
        const QPixmap picture = disc({40, 30}, Qt::green);
        QCOMPARE(veiledImage(picture, picture.size(), alpha), picture.toImage());
    }

    void aNullPictureHasANullLook() { QVERIFY(veiledImage(QPixmap(), {10, 10}, 154).isNull()); }

    void theFadeMultipliesTheAlphaOfEachPixel()
    {
        QImage image(3, 1, QImage::Format_ARGB32_Premultiplied);
        image.setPixelColor(0, 0, QColor(200, 100, 50));
        image.setPixelColor(1, 0, QColor(200, 100, 50, 128));
        image.setPixelColor(2, 0, Qt::transparent);
        const QImage faded = fadedImage(QPixmap::fromImage(image), {3, 1}, 154);
        QCOMPARE(faded.pixelColor(0, 0).alpha(), 154);
        QCOMPARE(faded.pixelColor(1, 0).alpha(), 77);
        QCOMPARE(faded.pixelColor(2, 0).alpha(), 0);
    }

    void anOpaquePictureFadesToo()
    {
        QPixmap picture(4, 4);
        picture.fill(Qt::red);
        QVERIFY(!picture.hasAlphaChannel());
        QCOMPARE(fadedImage(picture, {4, 4}, 100).pixelColor(1, 1), QColor(255, 0, 0, 100));
    }

    void theFadeScalesIntoTheArea()
    {
        const QPixmap picture = disc({40, 30}, Qt::green);
        QImage expected = picture.toImage();
        QPainter painter(&expected);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(0, 0, 20, 20, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.drawPixmap(0, 0, 20, 20, picture);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(0, 0, 20, 20, QColor(0, 0, 0, 90));
        painter.end();
        COMPARE_PICTURES(fadedImage(picture, {20, 20}, 90), expected);
    }

    void anAlphaOutOfRangeLeavesNothing()
    {
        const QPixmap picture = disc({40, 30}, Qt::green);
        QImage nothing = picture.toImage();
        nothing.fill(Qt::transparent);
        for (int alpha : {INT_MIN, -1, 0, 256, INT_MAX})
            QCOMPARE(fadedImage(picture, picture.size(), alpha), nothing);
        QCOMPARE(fadedImage(picture, picture.size(), 255), picture.toImage());
        QVERIFY(fadedImage(QPixmap(), {10, 10}, 154).isNull());
    }

    void aVeiledLookIsComposedOnce()
    {
        ImageLook look;
        const QPixmap picture = disc({40, 30}, Qt::green);
        for (int i = 0; i < 3; ++i)
            onCanvas([&](QPainter &p) { look.drawVeiled(p, {5, 6, 40, 30}, picture, 154); });
        QCOMPARE(look.computations(), 1);
    }

    void aVeiledLookIsComposedAnewForEachInput()
    {
        ImageLook look;
        const QPixmap picture = disc({40, 30}, Qt::green);
        const QPixmap other = disc({40, 30}, Qt::red);
        int expected = 0;
        const auto draws = [&](const QPixmap &p, const QRect &target, int alpha) {
            const QImage kept =
                onCanvas([&](QPainter &painter) { look.drawVeiled(painter, target, p, alpha); });
            const QImage fresh = onCanvas([&](QPainter &painter) {
                painter.drawImage(target, veiledImage(p, target.size(), alpha));
            });
            return kept == fresh && look.computations() == ++expected;
        };
        QVERIFY(draws(picture, {5, 6, 40, 30}, 154));
        QVERIFY(draws(picture, {5, 6, 40, 30}, 153));
        QVERIFY(draws(other, {5, 6, 40, 30}, 153));
        QVERIFY(draws(other, {5, 6, 41, 30}, 153));
        --expected; // another place needs no other look
        QVERIFY(draws(other, {50, 60, 41, 30}, 153));
    }

    void aScaledLookHasThePixelsOfDrawPixmap_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("target");
        QTest::addColumn<QRect>("clip");
        const QVector<QSize> sizes{{40, 30}, {41, 31}, {17, 90}, {1, 1}, {200, 3}};
        const QVector<QRect> targets{{5, 6, 40, 30}, {-10, -7, 60, 61}, {100, 90, 33, 33}};
        for (const QSize &size : sizes) {
            for (const QRect &target : targets) {
                for (const QRect &clip : {QRect(), QRect(20, 13, 9, 31)})
                    QTest::addRow("%dx%d in %dx%d%s", size.width(), size.height(), target.width(),
                                  target.height(), clip.isNull() ? "" : " clipped")
                        << size << target << clip;
            }
        }
    }

    void aScaledLookHasThePixelsOfDrawPixmap()
    {
        QFETCH(QSize, size);
        QFETCH(QRect, target);
        QFETCH(QRect, clip);
        const QPixmap picture = disc(size, Qt::yellow);
        ImageLook look;
        const auto clipped = [&](const Paint &paint) {
            return onCanvas([&](QPainter &p) {
                if (!clip.isNull())
                    p.setClipRect(clip);
                paint(p);
            });
        };
        const QImage kept = clipped([&](QPainter &p) { look.drawScaled(p, target, picture); });
        COMPARE_PICTURES(kept, clipped([&](QPainter &p) { p.drawPixmap(target, picture); }));
    }

    // As a damaged animation leaves them: the pixels of a picture without alpha need not say
    // "opaque".
    void anOpaquePictureCoversWhateverItsUnusedBitsSay()
    {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(0x00ffffffU);
        const QPixmap picture = QPixmap::fromImage(image);
        const QRect target(5, 6, 61, 33);
        QImage screen(120, 100, QImage::Format_RGB32);
        screen.fill(Qt::blue);
        QPainter painter(&screen);
        ImageLook().drawScaled(painter, target, picture);
        QCOMPARE(screen.pixelColor(target.center()), QColor(Qt::white));
        COMPARE_PICTURES(onCanvas([&](QPainter &p) { ImageLook().drawScaled(p, target, picture); }),
                         onCanvas([&](QPainter &p) { p.drawPixmap(target, picture); }));
    }

    void scaledLooksOfAnySizeAndPlaceHaveThePixelsOfDrawPixmap()
    {
        QRandomGenerator random(4711);
        for (int i = 0; i < 300; ++i) {
            const QPixmap picture = noise({random.bounded(1, 90), random.bounded(1, 90)}, random);
            const QSize size(random.bounded(1, i % 10 == 0 ? 16384 : 300), random.bounded(1, 250));
            const QRect target(QPoint(random.bounded(120) - random.bounded(size.width()),
                                      random.bounded(100) - random.bounded(size.height())),
                               size);
            ImageLook look;
            const Paint prepares[] = {
                [](QPainter &) {}, [](QPainter &p) { p.setOpacity(qreal(0.5)); },
                [](QPainter &p) { p.setCompositionMode(QPainter::CompositionMode_Multiply); }};
            for (const Paint &prepare : prepares) {
                const auto prepared = [&](const Paint &paint) {
                    return onCanvas([&](QPainter &p) {
                        prepare(p);
                        paint(p);
                    });
                };
                COMPARE_PICTURES(
                    prepared([&](QPainter &p) { look.drawScaled(p, target, picture); }),
                    prepared([&](QPainter &p) { p.drawPixmap(target, picture); }));
            }
        }
    }

    void theLargestCopyAndWhatIsTooLargeForOneLookAlike()
    {
        QRandomGenerator random(7);
        const QPixmap picture = noise({300, 200}, random);
        for (const QRect &target : {QRect(-900, -700, 2048, 2048), QRect(-900, -700, 2048, 2049)}) {
            ImageLook look;
            COMPARE_PICTURES(onCanvas([&](QPainter &p) { look.drawScaled(p, target, picture); }),
                             onCanvas([&](QPainter &p) { p.drawPixmap(target, picture); }));
            QCOMPARE(look.computations(), target.height() == 2048 ? kScaledOnce : 0);
        }
    }

    void aScaledBitmapHasTheColourOfThePen()
    {
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        const QRect target(5, 6, 41, 33);
        ImageLook look;
        for (const QColor &color : {QColor(Qt::red), QColor(Qt::yellow)}) {
            COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                                 p.setPen(color);
                                 look.drawScaled(p, target, bitmap);
                             }),
                             onCanvas([&](QPainter &p) { p.fillRect(target, color); }));
        }
    }

    void aScaledLookIsScaledOnce()
    {
        ImageLook look;
        const QPixmap picture = disc({40, 30}, Qt::green);
        for (int i = 0; i < 3; ++i)
            onCanvas([&](QPainter &p) { look.drawScaled(p, {5, 6, 60, 50}, picture); });
        QCOMPARE(look.computations(), kScaledOnce);
    }

    void aPictureOfTheRightSizeNeedsNoLook()
    {
        ImageLook look;
        const QPixmap picture = disc({40, 30}, Qt::green);
        const QImage drawn = onCanvas([&](QPainter &p) {
            look.drawScaled(p, {5, 6, 40, 30}, picture);
        });
        COMPARE_PICTURES(drawn, onCanvas([&](QPainter &p) { p.drawPixmap(5, 6, picture); }));
        QCOMPARE(look.computations(), 0);
    }

    void onAScaledDeviceThePictureItselfIsDrawn()
    {
        ImageLook look;
        const QPixmap picture = disc({80, 60}, Qt::green);
        const QRect target(5, 6, 40, 30);
        const QImage drawn = onCanvas([&](QPainter &p) {
            p.scale(2, 2);
            look.drawScaled(p, target, picture);
        });
        COMPARE_PICTURES(drawn, onCanvas([&](QPainter &p) {
                             p.scale(2, 2);
                             p.drawPixmap(target, picture);
                         }));
    }

    void betweenPixelsThePictureItselfIsDrawn()
    {
        const QPixmap picture = disc({80, 60}, Qt::green);
        const QRect target(5, 6, 41, 33);
        for (const QPointF &place :
             {QPointF(qreal(0.4), 0), QPointF(0, qreal(-0.3)), QPointF(7, 4)}) {
            ImageLook look;
            COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                                 p.translate(place);
                                 look.drawScaled(p, target, picture);
                             }),
                             onCanvas([&](QPainter &p) {
                                 p.translate(place);
                                 p.drawPixmap(target, picture);
                             }));
            QCOMPARE(look.computations(), place.x() > 1 ? kScaledOnce : 0);
        }
    }

    void aHugeTargetKeepsNoCopy()
    {
        ImageLook look;
        const QPixmap picture = disc({40, 30}, Qt::green);
        onCanvas([&](QPainter &p) { look.drawScaled(p, {0, 0, 20000, 20000}, picture); });
        QCOMPARE(look.computations(), 0);
    }

    void anEmptyTargetDrawsNothing()
    {
        ImageLook look;
        const QPixmap picture = disc({40, 30}, Qt::green);
        COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                             look.drawScaled(p, {5, 5, 0, 30}, picture);
                         }),
                         onCanvas([&](QPainter &p) { p.drawPixmap(QRect(5, 5, 0, 30), picture); }));
    }

    void aBitmapCanBeVeiled()
    {
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        QCOMPARE(veiledImage(bitmap, bitmap.size(), 154).size(), QSize(16, 16));
        QCOMPARE(takeMessages(), QStringList());
    }
};

WIDGET_TEST_MAIN(tst_ImageLook)
#include "tst_imagelook.moc"
