// SPDX-License-Identifier: Apache-2.0
#include "detail/layercache.h"

#include "widgettest.h"

#include <QPainter>
#include <QPicture>

#include <limits>

using namespace panelkit;

namespace
{

using Layer = LayerCache<PictureKey>;

// What is drawn, but for how.
struct Content {
    QRectF area;
    PictureKey picture;
};

const Content kContent{QRectF(-31, -31, 62, 62), {3}};

void paintStar(QPainter &p)
{
    p.save();
    p.setBrush(QColor(240, 160, 0, 130));
    p.setPen(Qt::NoPen);
    const QPointF corners[] = {{0, -30}, {7, 28}, {-9, 27}};
    p.drawConvexPolygon(corners, 3);
    p.restore();
}

QImage canvas()
{
    QImage image(120, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(24, 28, 36));
    return image;
}

using Paint = std::function<void(QPainter &)>;

void turn(QPainter &p)
{
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(qreal(50.4), qreal(45.9));
    p.rotate(qreal(23.7));
}

// Paints on a canvas, after `prepare`, through a layer or directly.
QImage onCanvas(Layer *layer, const Paint &prepare, const Content &content = kContent,
                const Paint &paint = Paint(paintStar))
{
    QImage image = canvas();
    QPainter painter(&image);
    prepare(painter);
    if (layer)
        layer->draw(painter, painter.worldTransform(), content.area, content.picture, paint);
    else
        paint(painter);
    return image;
}

} // namespace

Q_DECLARE_METATYPE(Content)
Q_DECLARE_METATYPE(Paint)

class tst_LayerCache : public WidgetTest
{
    Q_OBJECT

private slots:
    void everyPaintIsTheSame()
    {
        Layer layer;
        for (int paint = 0; paint < 4; ++paint)
            COMPARE_PICTURES(onCanvas(&layer, turn), onCanvas(nullptr, turn));
    }

    void theSecondPaintComposesAndFurtherOnesCopy()
    {
        Layer layer;
        int paints = 0;
        const Paint counted = [&](QPainter &p) {
            ++paints;
            paintStar(p);
        };
        for (int paint = 0; paint < 5; ++paint)
            onCanvas(&layer, turn, kContent, counted);
        QCOMPARE(paints, 2);
        QCOMPARE(layer.compositions(), 1);
    }

    void somethingInMotionIsNeverComposed()
    {
        Layer layer;
        for (int angle = 0; angle < 50; ++angle) {
            const Paint prepare = [=](QPainter &p) {
                turn(p);
                p.rotate(qreal(angle));
            };
            COMPARE_PICTURES(onCanvas(&layer, prepare), onCanvas(nullptr, prepare));
        }
        QCOMPARE(layer.compositions(), 0);
    }

    void eachInputCounts_data()
    {
        QTest::addColumn<Content>("content");
        QTest::addColumn<Paint>("prepare");
        const auto row = [](const char *name, const Content &content, const Paint &prepare = turn) {
            QTest::newRow(name) << content << prepare;
        };
        row("area", {QRectF(-31, -31, 62, 63), {3}});
        row("picture", {QRectF(-31, -31, 62, 62), {4}});
        row("transform", kContent, [](QPainter &p) {
            turn(p);
            p.translate(1, 0);
        });
        row("hints", kContent, [](QPainter &p) {
            turn(p);
            p.setRenderHint(QPainter::Antialiasing, false);
        });
        row("pen", kContent, [](QPainter &p) {
            turn(p);
            p.setPen(Qt::red);
        });
    }

    void eachInputCounts()
    {
        QFETCH(Content, content);
        QFETCH(Paint, prepare);
        Layer layer;
        onCanvas(&layer, turn);
        onCanvas(&layer, turn);
        QCOMPARE(layer.compositions(), 1);
        for (int paint = 0; paint < 3; ++paint) {
            COMPARE_PICTURES(onCanvas(&layer, prepare, content), onCanvas(nullptr, prepare));
            QCOMPARE(layer.compositions(), paint == 0 ? 1 : 2);
        }
    }

    void thePenIsThatOfThePainter()
    {
        const Paint prepare = [](QPainter &p) {
            turn(p);
            p.setPen(QPen(Qt::green, 3));
        };
        const Paint line = [](QPainter &p) { p.drawLine(-20, 0, 20, 3); };
        Layer layer;
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(onCanvas(&layer, prepare, kContent, line),
                             onCanvas(nullptr, prepare, kContent, line));
    }

    void thePainterStaysAsItWas()
    {
        Layer layer;
        for (int paint = 0; paint < 3; ++paint) {
            QImage image = canvas();
            QPainter painter(&image);
            turn(painter);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            const QTransform transform = painter.transform();
            const QPainter::RenderHints hints = painter.renderHints();
            layer.draw(painter, painter.worldTransform(), kContent.area, kContent.picture,
                       [](QPainter &p) { p.drawPoint(0, 0); });
            QCOMPARE(painter.transform(), transform);
            QCOMPARE(painter.renderHints(), hints);
        }
    }

    void aSmoothPainterCopiesTheSamePixels()
    {
        const Paint prepare = [](QPainter &p) {
            turn(p);
            p.setRenderHint(QPainter::SmoothPixmapTransform);
        };
        Layer layer;
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(onCanvas(&layer, prepare), onCanvas(nullptr, prepare));
        QCOMPARE(layer.compositions(), 1);
    }

    void aWidgetRenderedOffThePixelsIsPainted_data()
    {
        QTest::addColumn<Paint>("place");
        QTest::addColumn<int>("compositions");
        QTest::newRow("whole pixels") << Paint([](QPainter &p) { p.translate(7, 5); }) << 1;
        QTest::newRow("between two") << Paint([](QPainter &p) { p.translate(qreal(0.4), 0); }) << 0;
        QTest::newRow("between two rows")
            << Paint([](QPainter &p) { p.translate(0, qreal(-0.3)); }) << 0;
        QTest::newRow("wider") << Paint([](QPainter &p) { p.scale(qreal(1.5), 1); }) << 0;
        QTest::newRow("taller") << Paint([](QPainter &p) { p.scale(1, qreal(1.5)); }) << 0;
        QTest::newRow("slanted") << Paint([](QPainter &p) { p.shear(qreal(0.5), 0); }) << 0;
        QTest::newRow("sloping") << Paint([](QPainter &p) { p.shear(0, qreal(0.5)); }) << 0;
    }

    void aWidgetRenderedOffThePixelsIsPainted()
    {
        QFETCH(Paint, place);
        class Star : public QWidget
        {
        public:
            Layer layer;
            bool isKept = false;

        protected:
            void paintEvent(QPaintEvent *) override
            {
                QPainter painter(this);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.translate(50, 40);
                if (isKept)
                    layer.draw(painter, painter.worldTransform(), kContent.area, kContent.picture,
                               Paint(paintStar));
                else
                    paintStar(painter);
            }
        };
        Star star;
        star.resize(120, 100);
        const auto rendered = [&](bool isKept) {
            star.isKept = isKept;
            QImage image = canvas();
            QPainter painter(&image);
            place(painter);
            star.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
            return image;
        };
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(rendered(true), rendered(false));
        QTEST(star.layer.compositions(), "compositions");
    }

    void aWidgetInAWindowIsPaintedWhereItStands()
    {
        class Star : public QWidget
        {
        public:
            using QWidget::QWidget;
            Layer layer;

        protected:
            void paintEvent(QPaintEvent *) override
            {
                QPainter painter(this);
                turn(painter);
                layer.draw(painter, painter.worldTransform(), kContent.area, kContent.picture,
                           Paint(paintStar));
            }
        };
        QWidget window;
        window.resize(120, 100);
        Star star(&window);
        for (const QPoint &place : {QPoint(0, 0), QPoint(13, 9), QPoint(-40, 5)}) {
            star.setGeometry(QRect(place, QSize(120, 100)));
            for (int paint = 0; paint < 3; ++paint) {
                COMPARE_PICTURES(painted(window), reference(window, [&](QPainter &p) {
                                     p.translate(place);
                                     turn(p);
                                     paintStar(p);
                                 }));
            }
        }
    }

    void whereItCannotBeCopiedItIsPainted_data()
    {
        QTest::addColumn<Paint>("change");
        QTest::newRow("opacity") << Paint([](QPainter &p) { p.setOpacity(0.5); });
        QTest::newRow("composition")
            << Paint([](QPainter &p) { p.setCompositionMode(QPainter::CompositionMode_Multiply); });
    }

    void whereItCannotBeCopiedItIsPainted()
    {
        QFETCH(Paint, change);
        const Paint prepare = [=](QPainter &p) {
            turn(p);
            change(p);
        };
        Layer layer;
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(onCanvas(&layer, prepare), onCanvas(nullptr, prepare));
        QCOMPARE(layer.compositions(), 0);
    }

    void otherDevicesArePaintedDirectly()
    {
        Layer layer;
        for (int paint = 0; paint < 3; ++paint) {
            QPicture picture;
            QPainter painter(&picture);
            layer.draw(painter, painter.worldTransform(), kContent.area, kContent.picture,
                       Paint(paintStar));
            painter.end();
            QVERIFY(picture.size() > 0);
        }
        QImage dense = canvas();
        dense.setDevicePixelRatio(2);
        for (int paint = 0; paint < 3; ++paint) {
            QPainter painter(&dense);
            layer.draw(painter, painter.worldTransform(), kContent.area, kContent.picture,
                       Paint(paintStar));
        }
        QCOMPARE(layer.compositions(), 0);
    }

    void whatLiesBesideTheDeviceIsNotPainted()
    {
        Layer layer;
        int paints = 0;
        const Paint counted = [&](QPainter &) { ++paints; };
        for (const QPoint &place : {QPoint(151, 0), QPoint(-31, 0), QPoint(0, 131)}) {
            for (int paint = 0; paint < 3; ++paint)
                onCanvas(
                    &layer, [=](QPainter &p) { p.translate(place); }, kContent, counted);
        }
        for (int paint = 0; paint < 3; ++paint)
            onCanvas(&layer, turn, {QRectF(std::numeric_limits<qreal>::quiet_NaN(), 0, 9, 9), {0}},
                     counted);
        QCOMPARE(paints, 0);
        onCanvas(
            &layer, [](QPainter &p) { p.translate(150, 0); }, kContent, counted);
        QCOMPARE(paints, 1);
    }

    void allInkIsCopied_data()
    {
        QTest::addColumn<QRect>("ink");
        QTest::newRow("all") << QRect(0, 0, 121, 100);
        QTest::newRow("the first column") << QRect(0, 0, 1, 100);
        QTest::newRow("the last column") << QRect(120, 0, 1, 100);
        QTest::newRow("the first row") << QRect(0, 0, 121, 1);
        QTest::newRow("the last row") << QRect(0, 99, 121, 1);
        QTest::newRow("one pixel") << QRect(55, 40, 1, 1);
        QTest::newRow("one that registers begin with") << QRect(64, 40, 1, 1);
        QTest::newRow("one that they end with") << QRect(63, 40, 1, 1);
    }

    // The last column is the first of a vector register.
    void allInkIsCopied()
    {
        QFETCH(QRect, ink);
        const auto drawn = [=](const Paint &paint) {
            QImage image(121, 100, QImage::Format_ARGB32_Premultiplied);
            image.fill(QColor(24, 28, 36));
            QPainter painter(&image);
            paint(painter);
            painter.end();
            return image;
        };
        const Paint fill = [=](QPainter &p) { p.fillRect(ink, QColor(240, 160, 0)); };
        Layer layer;
        for (int paint = 0; paint < 3; ++paint) {
            COMPARE_PICTURES(drawn([&](QPainter &p) {
                                 layer.draw(p, {}, {0, 0, 121, 100}, {3}, fill);
                             }),
                             drawn(fill));
        }
        QCOMPARE(layer.compositions(), 1);
    }

    void nothingToSeeIsKeptToo()
    {
        Layer layer;
        int paints = 0;
        for (int paint = 0; paint < 4; ++paint)
            COMPARE_PICTURES(onCanvas(&layer, turn, kContent, [&](QPainter &) { ++paints; }),
                             canvas());
        QCOMPARE(paints, 2);
    }
};

WIDGET_TEST_MAIN(tst_LayerCache)
#include "tst_layercache.moc"
