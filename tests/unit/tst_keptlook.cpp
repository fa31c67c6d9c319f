// SPDX-License-Identifier: Apache-2.0
#include "detail/keptlook.h"

#include "widgettest.h"

#include <QBackingStore>
#include <QPainter>
#include <QPicture>
#include <QPixmap>

using namespace panelkit;

namespace
{

using Paint = std::function<void(QPainter &)>;

// What the star depends on.
struct Star {
    QColor color{240, 160, 0, 130};
    int radius = 30;

    auto tied() const { return std::tie(color, radius); }
};

const QRect kArea(-31, -31, 62, 62);

// Soft edges that lie over each other.
void paintStar(QPainter &p, const Star &star)
{
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QColor(255, 255, 255, 90));
    p.setBrush(star.color);
    p.drawEllipse(QPoint(), star.radius, star.radius);
    p.drawEllipse(QPoint(4, 3), star.radius / 2, star.radius / 3);
}

QImage canvas(QImage::Format format = QImage::Format_ARGB32_Premultiplied)
{
    QImage image(120, 100, format);
    image.fill(QColor(24, 28, 36));
    return image;
}

void toMiddle(QPainter &p) { p.translate(60, 50); }

// A look and what it is told to paint.
struct Subject {
    KeptLook<Star> look;
    Star star;
    QRect area = kArea;
    int paints = 0;

    void paint(QPainter &p)
    {
        look.draw(p, area, star, [this](QPainter &painter) {
            ++paints;
            paintStar(painter, star);
        });
    }
};

QImage onGround(QImage image, const Paint &prepare, const Paint &paint)
{
    QPainter painter(&image);
    prepare(painter);
    paint(painter);
    painter.end();
    return image;
}

// Paints through the look, then directly.
PicturePair both(Subject &subject, const Paint &prepare = toMiddle, const QImage &ground = canvas())
{
    return {onGround(ground, prepare, [&](QPainter &p) { subject.paint(p); }),
            onGround(ground, prepare, [&](QPainter &p) { paintStar(p, subject.star); })};
}

// A widget that paints a star.
class StarWidget : public QWidget
{
public:
    using QWidget::QWidget;
    Subject subject;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        toMiddle(painter);
        subject.paint(painter);
    }
};

} // namespace

#define COMPARE_BOTH(...)                             \
    do {                                              \
        const PicturePair pair{both(__VA_ARGS__)};    \
        COMPARE_PICTURES(pair.actual, pair.expected); \
    } while (false)

Q_DECLARE_METATYPE(Star)
Q_DECLARE_METATYPE(Paint)

class tst_KeptLook : public WidgetTest
{
    Q_OBJECT

private slots:
    void theSecondPaintIsKeptAndFurtherOnesAreCopies()
    {
        Subject subject;
        for (int paint = 0; paint < 5; ++paint)
            COMPARE_BOTH(subject);
        QCOMPARE(subject.paints, 2);
        QCOMPARE(subject.look.takings(), 1);
        QCOMPARE(subject.look.size(), qint64(2 * kArea.width() * kArea.height()));
    }

    void somethingInMotionIsNeverKept()
    {
        Subject subject;
        for (int radius = 5; radius < 30; ++radius) {
            subject.star.radius = radius;
            COMPARE_BOTH(subject);
            QCOMPARE(subject.look.size(), qint64(0));
        }
        QCOMPARE(subject.look.takings(), 0);
    }

    void eachInputCounts_data()
    {
        QTest::addColumn<Star>("star");
        QTest::addColumn<Paint>("prepare");
        QTest::newRow("color") << Star{Qt::red, 30} << Paint(toMiddle);
        QTest::newRow("radius") << Star{Star().color, 29} << Paint(toMiddle);
        QTest::newRow("place") << Star() << Paint([](QPainter &p) { p.translate(61, 50); });
        QTest::newRow("pen") << Star() << Paint([](QPainter &p) {
            toMiddle(p);
            p.setPen(Qt::red);
        });
        QTest::newRow("hints") << Star() << Paint([](QPainter &p) {
            toMiddle(p);
            p.setRenderHint(QPainter::SmoothPixmapTransform);
        });
        QTest::newRow("between pixels")
            << Star() << Paint([](QPainter &p) { p.translate(qreal(60.5), 50); });
        QTest::newRow("size") << Star() << Paint([](QPainter &p) {
            toMiddle(p);
            p.scale(qreal(1.2), qreal(1.2));
        });
    }

    void eachInputCounts()
    {
        QFETCH(Star, star);
        QFETCH(Paint, prepare);
        Subject subject;
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject);
        subject.star = star;
        for (int paint = 0; paint < 4; ++paint) {
            COMPARE_BOTH(subject, prepare);
            QCOMPARE(subject.look.takings(), paint == 0 ? 1 : 2);
        }
    }

    // Two places between the same pixels.
    void theFractionOfAPixelCounts()
    {
        Subject subject;
        for (const qreal fraction : {qreal(0.25), qreal(0.5)}) {
            for (int paint = 0; paint < 3; ++paint) {
                COMPARE_BOTH(subject, [fraction](QPainter &p) {
                    p.translate(60 + fraction, 50 + fraction);
                });
            }
        }
        QCOMPARE(subject.look.takings(), 2);
    }

    void theAreaCounts()
    {
        Subject subject;
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject);
        subject.area.adjust(-5, -4, 0, 2);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_BOTH(subject);
        QCOMPARE(subject.look.size(), qint64(2 * subject.area.width() * subject.area.height()));
    }

    void theFormatOfADeviceCounts()
    {
        Subject subject;
        for (const QImage::Format format :
             {QImage::Format_RGB16, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB16}) {
            for (int paint = 0; paint < 3; ++paint)
                COMPARE_BOTH(subject, toMiddle, canvas(format));
        }
        QCOMPARE(subject.look.takings(), 3);
    }

    void thePixelsAreThoseForTheGround()
    {
        Subject subject;
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject);
        for (const QPoint &pixel : {QPoint(29, 19), QPoint(90, 80), QPoint(60, 50)}) {
            QImage other = canvas();
            other.setPixelColor(pixel, QColor(200, 90, 90));
            COMPARE_BOTH(subject, toMiddle, other);
            COMPARE_BOTH(subject, toMiddle, other);
            const int paints = subject.paints;
            COMPARE_BOTH(subject, toMiddle, other);
            QCOMPARE(subject.paints, paints);
        }
    }

    void whatLiesBesideTheAreaDoesNotMatter()
    {
        Subject subject;
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject);
        for (const QPoint &pixel :
             {QPoint(28, 19), QPoint(91, 80), QPoint(60, 18), QPoint(60, 81)}) {
            QImage other = canvas();
            other.setPixelColor(pixel, QColor(200, 90, 90));
            COMPARE_BOTH(subject, toMiddle, other);
        }
        QCOMPARE(subject.paints, 2);
    }

    void anyFormatOfAWindowIsKept_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("takings");
        QTest::newRow("translucent") << int(QImage::Format_ARGB32_Premultiplied) << 1;
        QTest::newRow("opaque") << int(QImage::Format_RGB32) << 1;
        QTest::newRow("16 bits") << int(QImage::Format_RGB16) << 1;
        QTest::newRow("not premultiplied") << int(QImage::Format_ARGB32) << 0;
        QTest::newRow("grey") << int(QImage::Format_Grayscale8) << 0;
    }

    void anyFormatOfAWindowIsKept()
    {
        QFETCH(int, format);
        Subject subject;
        for (int paint = 0; paint < 4; ++paint)
            COMPARE_BOTH(subject, toMiddle, canvas(QImage::Format(format)));
        QTEST(subject.look.takings(), "takings");
    }

    void theDensityOfADeviceCounts()
    {
        QImage fine = canvas();
        fine.setDotsPerMeterY(2 * fine.dotsPerMeterY());
        Subject subject;
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject, toMiddle, fine);
        QCOMPARE(subject.paints, 3);
    }

    void aTranslucentGroundStaysSo()
    {
        QImage ground(120, 100, QImage::Format_ARGB32_Premultiplied);
        ground.fill(QColor(30, 200, 90, 70));
        Subject subject;
        for (int paint = 0; paint < 4; ++paint)
            COMPARE_BOTH(subject, toMiddle, ground);
        QCOMPARE(subject.paints, 2);
    }

    void aDenseScreenIsKeptInItsOwnPixels()
    {
        for (const qreal ratio : {qreal(2), qreal(1.5)}) {
            QImage dense = canvas();
            dense.setDevicePixelRatio(ratio);
            const Paint prepare = [](QPainter &p) { p.translate(30, 20); };
            Subject subject;
            for (int paint = 0; paint < 4; ++paint)
                COMPARE_BOTH(subject, prepare, dense);
            QCOMPARE(subject.paints, 2);
            QVERIFY(subject.look.size() > 2 * 62 * 50); // more than those of a coarse one
        }
    }

    void whereItCannotBeCopiedItIsPainted_data()
    {
        QTest::addColumn<Paint>("change");
        QTest::newRow("opacity") << Paint([](QPainter &p) { p.setOpacity(0.5); });
        QTest::newRow("composition")
            << Paint([](QPainter &p) { p.setCompositionMode(QPainter::CompositionMode_Multiply); });
        QTest::newRow("clip") << Paint([](QPainter &p) { p.setClipRect(-9, -9, 17, 29); });
        QTest::newRow("turned") << Paint([](QPainter &p) { p.rotate(30); });
        QTest::newRow("beside") << Paint([](QPainter &p) { p.translate(500, 0); });
    }

    void whereItCannotBeCopiedItIsPainted()
    {
        QFETCH(Paint, change);
        const Paint prepare = [=](QPainter &p) {
            toMiddle(p);
            change(p);
        };
        Subject subject;
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject);
        for (int paint = 0; paint < 3; ++paint) {
            COMPARE_BOTH(subject, prepare);
            QCOMPARE(subject.look.size(), qint64(0));
        }
        QCOMPARE(subject.look.takings(), 1);
    }

    void otherDevicesArePaintedDirectly()
    {
        Subject subject;
        for (int paint = 0; paint < 3; ++paint) {
            QPicture picture;
            QPainter painter(&picture);
            subject.paint(painter);
            painter.end();
            QVERIFY(picture.size() > 0);
            QPixmap pixmap(120, 100);
            QPainter onPixmap(&pixmap);
            subject.paint(onPixmap);
        }
        QCOMPARE(subject.look.takings(), 0);
    }

    void thePainterGoesOnWhereItStands()
    {
        Subject subject;
        for (int paint = 0; paint < 3; ++paint) {
            QImage image = canvas();
            image.setDevicePixelRatio(paint == 2 ? 1 : 2);
            QPainter painter(&image);
            toMiddle(painter);
            const QTransform transform = painter.worldTransform();
            subject.paint(painter);
            QCOMPARE(painter.worldTransform(), transform);
            QCOMPARE(painter.compositionMode(), QPainter::CompositionMode_SourceOver);
        }
    }

    // A window hands out the same ground each time, here with the star of another widget.
    void aWidgetInAWindowIsKept()
    {
        QWidget window;
        window.resize(160, 130);
        StarWidget below(&window);
        below.setGeometry(10, 15, 120, 100);
        StarWidget star(&window);
        star.setGeometry(30, 20, 120, 100);
        const auto expected = [&] {
            return reference(window, [&](QPainter &p) {
                for (const StarWidget *widget : {&below, &star}) {
                    p.save();
                    p.translate(widget->pos());
                    toMiddle(p);
                    paintStar(p, widget->subject.star);
                    p.restore();
                }
            });
        };
        for (int paint = 0; paint < 4; ++paint)
            COMPARE_PICTURES(painted(window), expected());
        QCOMPARE(star.subject.paints, 2);
        below.subject.star.color = Qt::blue;
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(painted(window), expected());
        star.move(31, 22);
        for (int paint = 0; paint < 3; ++paint)
            COMPARE_PICTURES(painted(window), expected());
    }

    void aShownWindowIsKept()
    {
        QWidget window;
        window.resize(160, 130);
        StarWidget star(&window);
        star.setGeometry(30, 20, 120, 100);
        show(window);
        const auto inSight = [&] {
            return static_cast<const QImage *>(window.backingStore()->paintDevice())->copy();
        };
        const int paints = star.subject.paints;
        const QImage first = inSight();
        for (int paint = 0; paint < 4; ++paint) {
            window.repaint();
            COMPARE_PICTURES(inSight(), first);
        }
        QCOMPARE(star.subject.paints, paints + 1);
        QCOMPARE(star.subject.look.takings(), 1);
        star.move(33, 21);
        window.repaint();
        QVERIFY(inSight() != first);
    }

    // What of a widget is damaged may be a part of it, or several.
    void aDamagedPartIsThePartThatIsKept()
    {
        StarWidget star;
        star.resize(120, 100);
        const auto rendered = [&](const QRegion &region, bool isKept) {
            QImage image = canvas();
            QPainter painter(&image);
            if (isKept) {
                star.render(&painter, QPoint(), region, QWidget::RenderFlags());
            } else {
                painter.setClipRegion(region.translated(-region.boundingRect().topLeft()));
                painter.translate(-region.boundingRect().topLeft());
                toMiddle(painter);
                paintStar(painter, Star());
            }
            painter.end();
            return image;
        };
        const QRegion part(40, 10, 50, 60);
        const QRegion parts = part - QRegion(45, 20, 30, 30);
        for (const QRegion &region : {part, parts, part, QRegion(star.rect()), parts}) {
            for (int paint = 0; paint < 3; ++paint)
                COMPARE_PICTURES(rendered(region, true), rendered(region, false));
        }
        QCOMPARE(star.subject.look.takings(), 3);
        QCOMPARE(star.subject.look.size(), qint64(0)); // the last region had no one rectangle
    }

    void whatIsForgottenIsPaintedAndKeptAgain()
    {
        Subject subject;
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject);
        subject.look.forget();
        QCOMPARE(subject.look.size(), qint64(0));
        COMPARE_BOTH(subject);
        COMPARE_BOTH(subject);
        QCOMPARE(subject.paints, 3);
        QCOMPARE(subject.look.takings(), 2);
    }
};

WIDGET_TEST_MAIN(tst_KeptLook)
#include "tst_keptlook.moc"
