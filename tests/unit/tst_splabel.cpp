// SPDX-License-Identifier: Apache-2.0
#include <SpLabel>

#include "allocations.h"
#include "parent.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QBitmap>
#include <QPainter>

#include <climits>
#include <memory>

namespace
{

// Opaque, translucent and transparent pixels.
QPixmap picture(const QSize &size = QSize(40, 30))
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(230, 128, 42));
    painter.drawEllipse(pixmap.rect().adjusted(2, 2, -2, -2));
    painter.fillRect(size.width() / 2, 0, size.width() / 4, size.height(), QColor(0, 200, 90, 99));
    return pixmap;
}

QPixmap opaquePicture()
{
    QPixmap pixmap(40, 30);
    pixmap.fill(QColor(10, 200, 90));
    return pixmap;
}

QPixmap scaled(const QPixmap &pixmap, const QSize &size)
{
    return pixmap.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

// The documented picture of a label that shows this one, which has its size, step by step.
QImage documented(SpLabel &label, const QPixmap &pixmap)
{
    QImage image = pixmap.toImage();
    QPainter veil(&image);
    veil.setCompositionMode(QPainter::CompositionMode_Source);
    veil.fillRect(label.rect(), Qt::transparent);
    veil.setCompositionMode(QPainter::CompositionMode_SourceOver);
    veil.drawPixmap(label.rect(), pixmap);
    veil.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    veil.fillRect(label.rect(), QColor(0, 0, 0, label.imageAlpha()));
    veil.end();
    return reference(label, [&](QPainter &p) { p.drawImage(label.rect(), image, image.rect()); });
}

QImage nothing(const SpLabel &label)
{
    return reference(label, [](QPainter &) {});
}

// A label as large as its picture.
std::unique_ptr<SpLabel> makeLabel(QWidget *parent = nullptr)
{
    auto label = std::make_unique<SpLabel>(parent);
    label->setImage(picture());
    label->resize(40, 30);
    return label;
}

// Handlers are called with what a subclass may hand them.
class Handlers : public SpLabel
{
public:
    using SpLabel::paintEvent;
};

using Action = std::function<void(SpLabel &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SpLabel : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        SpLabel label;
        QVERIFY(label.image().isNull());
        QCOMPARE(label.imageAlpha(), 154);
        QCOMPARE(label.minimumSize(), QSize(0, 0));
        QVERIFY(label.findChildren<QObject *>().isEmpty());
        for (const QSize &size : {QSize(60, 50), QSize(32, 32)}) {
            label.resize(size);
            COMPARE_PICTURES(painted(label), nothing(label));
        }
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("image", 1, [](auto &l) { l.setImage(opaquePicture()); });
        row("the same image", 1, [](auto &l) { l.setImage(l.image()); });
        row("image null", 0, [](auto &l) { l.setImage(QPixmap()); });
        row("imageAlpha", 0, [](auto &l) { l.setImageAlpha(20); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeLabel()); }

    // --- The picture ----------------------------------------------------------------------------

    void theImageIsAProperty()
    {
        SpLabel label;
        label.setProperty("image", picture());
        QCOMPARE(label.image().toImage(), picture().toImage());
        QCOMPARE(label.property("image").value<QPixmap>().cacheKey(), label.image().cacheKey());
    }

    void theImageGivesTheMinimumSize()
    {
        const auto label = makeLabel();
        QCOMPARE(label->minimumSize(), QSize(40, 30));
        label->setImage(picture({70, 20}));
        QCOMPARE(label->minimumSize(), QSize(70, 20));
    }

    void aNullImageIsStoredAndTheMinimumSizeStays()
    {
        const auto label = makeLabel();
        label->setImage(QPixmap());
        QVERIFY(label->image().isNull());
        QCOMPARE(label->minimumSize(), QSize(40, 30));
        for (const QSize &size : {QSize(40, 30), QSize(90, 60)}) {
            label->resize(size);
            COMPARE_PICTURES(painted(*label), nothing(*label));
        }
    }

    void anImageOfTheSizeOfTheLabelIsNotCopied()
    {
        const auto label = makeLabel();
        const qint64 key = label->image().cacheKey();
        COMPARE_PICTURES(painted(*label), documented(*label, picture()));
        QCOMPARE(label->image().cacheKey(), key);
    }

    void theImageIsReplacedByItsScaledCopyWhenItIsPainted()
    {
        const auto label = makeLabel();
        label->resize(101, 67);
        QCOMPARE(label->image().size(), QSize(40, 30)); // not before
        const QPixmap expected = scaled(picture(), {101, 67});
        COMPARE_PICTURES(painted(*label), documented(*label, expected));
        QCOMPARE(label->image().toImage(), expected.toImage());
        const qint64 key = label->image().cacheKey();
        COMPARE_PICTURES(painted(*label), documented(*label, expected)); // nor anew
        QCOMPARE(label->image().cacheKey(), key);
    }

    void whatIsLostInScalingDownDoesNotComeBack()
    {
        const auto label = makeLabel();
        label->setMinimumSize(0, 0);
        label->resize(7, 5);
        const QPixmap small = scaled(picture(), {7, 5});
        COMPARE_PICTURES(painted(*label), documented(*label, small));
        label->resize(40, 30);
        const QPixmap coarse = scaled(small, {40, 30});
        COMPARE_PICTURES(painted(*label), documented(*label, coarse));
        QVERIFY(coarse.toImage() != picture().toImage());
        label->setImage(picture()); // but with the picture itself it does
        COMPARE_PICTURES(painted(*label), documented(*label, picture()));
    }

    void sizesThatAreNotPaintedLoseNothing()
    {
        const auto label = makeLabel();
        label->setMinimumSize(0, 0);
        label->resize(7, 5);
        label->resize(40, 30);
        COMPARE_PICTURES(painted(*label), documented(*label, picture()));
    }

    void theSizeRemembersTheImageNotTheLabel()
    {
        const auto label = makeLabel();
        label->resize(80, 60);
        painted(*label);
        label->setImage(picture()); // smaller than the label, which has been painted like this
        COMPARE_PICTURES(painted(*label), documented(*label, scaled(picture(), {80, 60})));
        QCOMPARE(label->image().size(), QSize(80, 60));
    }

    // --- The veil -------------------------------------------------------------------------------

    void theVeilDarkensWhatIsOpaque_data()
    {
        QTest::addColumn<QPixmap>("image");
        QTest::addColumn<int>("alpha");
        for (int alpha : {0, 1, 70, 154, 254, 255}) {
            QTest::addRow("picture, %d", alpha) << picture() << alpha;
            QTest::addRow("opaque picture, %d", alpha) << opaquePicture() << alpha;
        }
    }

    void theVeilDarkensWhatIsOpaque()
    {
        QFETCH(QPixmap, image);
        QFETCH(int, alpha);
        const auto label = makeLabel();
        label->setImage(image);
        label->setImageAlpha(alpha);
        for (int i = 0; i < 3; ++i)
            COMPARE_PICTURES(painted(*label), documented(*label, image));
    }

    void atAlphaZeroThePictureIsUnchanged()
    {
        const auto label = makeLabel();
        label->setImageAlpha(0);
        COMPARE_PICTURES(painted(*label),
                         reference(*label, [](QPainter &p) { p.drawPixmap(0, 0, picture()); }));
    }

    void atFullAlphaOpaquePixelsAreBlackAndOthersKeepTheirAlpha()
    {
        const auto label = makeLabel();
        label->setImageAlpha(255);
        const QImage original = picture().toImage();
        const QImage black = painted(*label);
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 40; ++x)
                QCOMPARE(black.pixel(x, y), qRgba(0, 0, 0, qAlpha(original.pixel(x, y))));
        }
    }

    void aNewAlphaShowsAtTheNextPaint()
    {
        const auto label = makeLabel();
        const QImage before = painted(*label);
        label->setImageAlpha(60);
        const QImage after = painted(*label);
        COMPARE_PICTURES(after, documented(*label, picture()));
        QVERIFY(after != before);
    }

    void anAlphaOutOfRangeBecomesTheNearestInRange()
    {
        SpLabel label;
        const QVector<QPair<int, int>> values{{300, 255}, {256, 255},     {255, 255},  {254, 254},
                                              {1, 1},     {0, 0},         {-1, 0},     {-5, 0},
                                              {7, 7},     {INT_MAX, 255}, {INT_MIN, 0}};
        for (const auto &value : values) {
            label.setImageAlpha(value.first);
            QCOMPARE(label.imageAlpha(), value.second);
        }
    }

    // --- Sizes and pictures ---------------------------------------------------------------------

    void aWidthOrHeightOfOneIsScaledTo()
    {
        for (const QSize &size : {QSize(1, 1), QSize(1, 50), QSize(50, 1)}) {
            const auto label = makeLabel();
            label->setMinimumSize(0, 0);
            label->resize(size);
            COMPARE_PICTURES(painted(*label), documented(*label, scaled(picture(), size)));
        }
    }

    void aWidthOrHeightOfZeroPaintsNothingAndLosesNothing()
    {
        QWidget window;
        window.resize(80, 60);
        const auto label = makeLabel(&window);
        label->setMinimumSize(0, 0);
        show(window);
        for (const QSize &size : {QSize(0, 0), QSize(0, 50), QSize(50, 0)}) {
            label->resize(size);
            COMPARE_PICTURES(painted(window), reference(window, [](QPainter &) {}));
        }
        label->resize(40, 30);
        COMPARE_PICTURES(painted(*label), documented(*label, picture()));
    }

    void aPaintEventWithoutSizeIsNoHarm()
    {
        Handlers label;
        label.setImage(picture());
        label.setMinimumSize(0, 0);
        label.resize(0, 0);
        label.paintEvent(nullptr);
        QCOMPARE(takeMessages(), QStringList());
    }

    void hugeImagesAreShown()
    {
        for (const QSize &size : {QSize(20000, 2), QSize(2, 20000)}) {
            const auto label = makeLabel();
            label->setImage(picture(size));
            QCOMPARE(label->minimumSize(), size);
            label->setMinimumSize(0, 0);
            label->resize(50, 50);
            COMPARE_PICTURES(painted(*label), documented(*label, scaled(picture(size), {50, 50})));
        }
    }

    void largeLabelsLookAsSmallOnes_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize &size : {QSize(16383, 8), QSize(8, 16383), QSize(4096, 2049),
                                  QSize(4097, 2048), QSize(16383, 600)})
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }

    void largeLabelsLookAsSmallOnes()
    {
        QFETCH(QSize, size);
        const auto label = makeLabel();
        label->setMinimumSize(0, 0);
        label->resize(size);
        COMPARE_PICTURES(painted(*label), documented(*label, scaled(picture(), size)));
        QCOMPARE(label->image().size(), size);
    }

    // A scaled copy would take gigabytes.
    void beyond16384Times16384PixelsThePictureStaysAsItIs()
    {
        QWidget window;
        window.resize(60, 50);
        const auto label = makeLabel(&window);
        for (const QSize &size : {QSize(16385, 16384), QSize(16384, 16385), QSize(20000, 20000)}) {
            label->resize(size);
            QVERIFY(allocations::during([&] { painted(window); }) < 1000000);
            QCOMPARE(label->image().size(), QSize(40, 30));
            const QImage veiled = documented(*makeLabel(), picture());
            COMPARE_PICTURES(painted(window), reference(window, [&](QPainter &p) {
                                 p.drawImage(QRect(QPoint(), size), veiled);
                             }));
        }
    }

    void aBitmapIsShownToo()
    {
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        const QPixmap plain(bitmap);
        SpLabel label;
        label.setImage(bitmap);
        for (const QSize &size : {QSize(16, 16), QSize(50, 20)}) {
            label.resize(size);
            COMPARE_PICTURES(painted(label), documented(label, scaled(plain, size)));
        }
    }

    // --- Events ---------------------------------------------------------------------------------

    void touchesAreLeftToTheParentWithoutASound()
    {
        Parent parent;
        const auto label = makeLabel(&parent);
        show(parent);
        SignalLog log(label.get());
        touch(label.get()).press(5, 5).moveTo(7, 5).release();
        QCoreApplication::processEvents();
        QCOMPARE(parent.events,
                 (QStringList{QStringLiteral("press"), QStringLiteral("move"),
                              QStringLiteral("release")}));
        QCOMPARE(log.take(), QStringList());
    }
};

WIDGET_TEST_MAIN(tst_SpLabel)
#include "tst_splabel.moc"
