// SPDX-License-Identifier: Apache-2.0
#include "detail/scalepicture.h"

#include "textcanvas.h"
#include "widgettest.h"

#include <QPainter>

#include <climits>
#include <cmath>

using namespace panelkit;

namespace
{

constexpr QSize kArea(300, 80);
int writtenCount = 0;

QString written(double value)
{
    ++writtenCount;
    return QString::number(value);
}

// What was added, to be drawn item by item.
struct Item {
    bool isLabel;
    bool isFaint;
    int x;
    int top;
    int bottom;
};

QImage onCanvas(const std::function<void(QPainter &)> &paint)
{
    QImage image(kArea, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(10, 60, 90));
    QPainter painter(&image);
    painter.setBrush(Qt::NoBrush);
    paint(painter);
    return image;
}

void add(ScalePicture &picture, const QVector<Item> &items)
{
    picture.clear(kArea);
    for (const Item &i : items) {
        if (i.isLabel)
            picture.addLabel(QRect(i.x - 30, i.top, 60, 25), i.x, written);
        else
            picture.addLine(i.isFaint ? ScalePicture::Faint : ScalePicture::Solid, i.x, i.top,
                            i.bottom);
    }
}

void drawOneByOne(QPainter &p, const QVector<Item> &items, const QColor &solid, const QColor &faint)
{
    for (const Item &i : items) {
        p.setPen(i.isFaint ? faint : solid);
        if (i.isLabel)
            p.drawText(QRect(i.x - 30, i.top, 60, 25), Qt::AlignCenter, QString::number(i.x));
        else
            p.drawLine(i.x, i.top, i.x, i.bottom);
    }
}

QVector<Item> scale(int labelTop, int gap)
{
    QVector<Item> items;
    for (int i = 0; i < 40; ++i) {
        const int x = 20 + i * gap;
        if (i % 3 != 0)
            items += {false, true, x, 60, 20 + i % 5};
        items += {false, false, x, 70, 40};
        if (i % 5 == 0)
            items += {true, false, x, labelTop, 0};
    }
    return items;
}

} // namespace

class tst_ScalePicture : public WidgetTest
{
    Q_OBJECT

private slots:
    void whatIsDrawnAgainIsCopied()
    {
        for (const int labelTop : {0, 55, 66}) {
            const QVector<Item> items = scale(labelTop, 7);
            ScalePicture picture;
            add(picture, items);
            const QColor faint(255, 255, 255, 70);
            const QImage expected =
                ::onCanvas(kArea, [&](QPainter &p) { drawOneByOne(p, items, Qt::white, faint); });
            for (int paint = 0; paint < 4; ++paint) {
                const QImage actual = ::onCanvas(kArea, [&](QPainter &p) {
                    picture.draw(p, QRect(QPoint(), kArea), Qt::white, faint);
                });
                QVERIFY(distance(actual, expected) <= 1);
            }
            QCOMPARE(picture.compositions(), 1);
            const QImage part = ::onCanvas(kArea, [&](QPainter &p) {
                picture.draw(p, {40, 10, 99, 66}, Qt::white, faint);
            });
            QVERIFY(distance(part.copy(40, 10, 99, 66), expected.copy(40, 10, 99, 66)) <= 1);
            COMPARE_PICTURES(part.copy(0, 0, 40, 80), ::onCanvas({40, 80}, [](QPainter &) {}));
            QCOMPARE(picture.compositions(), 1);
        }
    }

    void eachInputShowsInACopy()
    {
        QVector<Item> items = scale(0, 7);
        ScalePicture picture;
        add(picture, items);
        QColor solid = Qt::white;
        QColor faint(255, 255, 255, 70);
        QFont font = fontOf(13);
        int compositions = 0;
        const auto show = [&](const char *what) {
            const auto prepared = [&](const std::function<void(QPainter &)> &paint) {
                return ::onCanvas(kArea, [&](QPainter &p) {
                    p.setFont(font);
                    paint(p);
                });
            };
            for (int paint = 0; paint < 3; ++paint) {
                const QImage actual = prepared(
                    [&](QPainter &p) { picture.draw(p, QRect(QPoint(), kArea), solid, faint); });
                const QImage expected =
                    prepared([&](QPainter &p) { drawOneByOne(p, items, solid, faint); });
                QVERIFY2(distance(actual, expected) <= 1, what);
            }
            QCOMPARE(picture.compositions(), ++compositions);
        };
        show("as it is");
        solid = QColor(20, 200, 90);
        show("solid colour");
        faint = QColor(20, 200, 90, 150);
        show("faint colour");
        font = fontOf(15);
        show("font");
        items += {false, false, 299, 70, 5};
        picture.addLine(ScalePicture::Solid, 299, 70, 5);
        show("another line");
        items += {true, false, 290, 10, 0};
        picture.addLabel(QRect(260, 10, 60, 25), 290, written);
        show("another label");
        items = scale(0, 6);
        add(picture, items);
        show("all anew");
    }

    void aCopyIsOnlyForPaintersThatShowItAsDrawn()
    {
        const QVector<Item> items = scale(0, 7);
        const std::vector<std::function<void(QPainter &)>> painters{
            [](QPainter &p) { p.scale(qreal(1.5), qreal(1.5)); },
            [](QPainter &p) { p.setOpacity(qreal(0.5)); },
            [](QPainter &p) { p.translate(qreal(0.5), qreal(0.5)); },
            [](QPainter &p) { p.translate(10, 4); },
        };
        for (const auto &prepare : painters) {
            ScalePicture fresh;
            ScalePicture kept;
            add(fresh, items);
            add(kept, items);
            const auto drawn = [&](ScalePicture &picture) {
                return ::onCanvas(kArea, [&](QPainter &p) {
                    prepare(p);
                    picture.draw(p, QRect(QPoint(), kArea), Qt::white, QColor(255, 255, 255, 70));
                });
            };
            for (int paint = 0; paint < 3; ++paint)
                ::onCanvas(kArea, [&](QPainter &p) {
                    kept.draw(p, QRect(QPoint(), kArea), Qt::white, QColor(255, 255, 255, 70));
                });
            QCOMPARE(kept.compositions(), 1);
            QVERIFY(distance(drawn(kept), drawn(fresh)) <= 1);
        }
    }

    void thePixelsAreThoseOfItemAfterItem_data()
    {
        QTest::addColumn<QVector<int>>("layout");
        for (const int labelTop :
             {-10, 0, 30, 55, 64, 66, 68, 70}) { // apart from the lines and over them
            for (const int gap : {9, 1, 0, -4})
                QTest::addRow("labels at %d, gap %d", labelTop, gap) << QVector<int>{labelTop, gap};
        }
    }

    void thePixelsAreThoseOfItemAfterItem()
    {
        QFETCH(QVector<int>, layout);
        const QVector<Item> items = scale(layout[0], layout[1]);
        ScalePicture picture;
        add(picture, items);
        const QRect all(QPoint(), kArea);
        for (const auto &[solid, faint] :
             {std::pair(QColor(Qt::white), QColor(255, 255, 255, 70)),
              std::pair(QColor(200, 30, 60, 120), QColor(30, 200, 60, 70)),
              std::pair(QColor(), QColor())}) {
            const QColor s = solid;
            const QColor f = faint;
            COMPARE_PICTURES(onCanvas([&](QPainter &p) { picture.draw(p, all, s, f); }),
                             onCanvas([&](QPainter &p) { drawOneByOne(p, items, s, f); }));
            const auto twice = [](const std::function<void(QPainter &)> &paint) {
                return onCanvas([&](QPainter &p) {
                    p.scale(2, 1.5);
                    paint(p);
                });
            };
            const auto between = [](const std::function<void(QPainter &)> &paint) {
                return onCanvas([&](QPainter &p) {
                    p.translate(qreal(0.6), qreal(-0.7));
                    paint(p);
                });
            };
            COMPARE_PICTURES(between([&](QPainter &p) { picture.draw(p, all, s, f); }),
                             between([&](QPainter &p) { drawOneByOne(p, items, s, f); }));
            // A scaled line may reach beyond its area.
            const auto clip = [&](QPainter &p) { p.setClipRect(2, 2, 140, 40); };
            if (layout[1] > 0 && s.isValid())
                COMPARE_PICTURES(twice([&](QPainter &p) {
                                     clip(p);
                                     picture.draw(p, all, s, f);
                                 }),
                                 twice([&](QPainter &p) {
                                     clip(p);
                                     drawOneByOne(p, items, s, f);
                                 }));
        }
    }

    void aValueIsWrittenAndLaidOutOnce()
    {
        ScalePicture picture;
        writtenCount = 0;
        for (int offset = 0; offset < 50; ++offset) {
            picture.clear(kArea);
            for (int value = 0; value < 4; ++value)
                picture.addLabel(QRect(offset + value * 60, 5, 60, 25), 87.5 + value, written);
            picture.addLabel(QRectF(20, 40, 60, 25), std::nan(""), written);
            onCanvas([&](QPainter &p) { picture.draw(p, {QPoint(), kArea}, Qt::white); });
            onCanvas([&](QPainter &p) { picture.draw(p, {QPoint(), kArea}, Qt::white); });
        }
        QCOMPARE(writtenCount, 5);
        QCOMPARE(picture.writings(), 5);
        QCOMPARE(picture.layouts(), 5);
    }

    void labelsOutsideAreNotEvenWritten()
    {
        ScalePicture picture;
        picture.clear(kArea);
        constexpr int kFar = ScalePicture::kOverhang;
        picture.addLabel(QRectF(-60 - kFar, 5, 60, 25), 1, written);
        picture.addLabel(QRectF(300 + kFar, 5, 60, 25), 2, written);
        picture.addLabel(QRectF(50, -25 - kFar, 60, 25), 3, written);
        picture.addLabel(QRectF(50, 80 + kFar, 60, 25), 4, written);
        picture.addLabel(QRectF(50, 30, 60, -25), 5, written);
        QCOMPARE(picture.writings(), 0);
        picture.addLabel(QRectF(-59 - kFar, 5, 60, 25), 6, written);
        QCOMPARE(picture.writings(), 1);
    }

    // The tail of a j, to the left, out of a box that the text just fits in.
    void lettersMayLeanOutOfTheirBoxes()
    {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(20);
        font.setItalic(true);
        const QString text = QStringLiteral("jjj");
        const int width = QFontMetrics(font).horizontalAdvance(text);
        const auto write = [](double) { return QStringLiteral("jjj"); };
        ScalePicture picture;
        picture.clear(kArea);
        const QRect box(kArea.width(), 5, width, 25);
        picture.addLabel(box, 0, write);
        const auto leaning = [&](QPainter &p) {
            p.setFont(font);
            p.setPen(Qt::white);
            p.drawText(box, Qt::AlignCenter, text);
        };
        QVERIFY(onCanvas(leaning) != onCanvas([](QPainter &) {}));
        COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                             p.setFont(font);
                             picture.draw(p, {QPoint(), kArea}, Qt::white);
                         }),
                         onCanvas(leaning));
    }

    void onlyThePartThatIsNeededIsLaidOut()
    {
        ScalePicture picture;
        picture.clear(kArea);
        for (int i = 0; i < 5; ++i)
            picture.addLabel(QRect(i * 60, 5, 60, 25), i, written);
        onCanvas([&](QPainter &p) { picture.draw(p, QRect(150, 0, 10, 80), Qt::white); });
        QCOMPARE(picture.layouts(), 1);
    }

    void theFontOfThePainterCounts()
    {
        ScalePicture picture;
        picture.clear(kArea);
        picture.addLabel(QRectF(5, 5, 60, 25), 87.5, written);
        for (const int px : {12, 20}) {
            QFont font(QStringLiteral("DejaVu Sans"));
            font.setPixelSize(px);
            COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                                 p.setFont(font);
                                 picture.draw(p, {QPoint(), kArea}, Qt::white);
                             }),
                             onCanvas([&](QPainter &p) {
                                 p.setFont(font);
                                 p.setPen(Qt::white);
                                 p.drawText(QRectF(5, 5, 60, 25), Qt::AlignCenter,
                                            QStringLiteral("87.5"));
                             }));
        }
    }

    void whatIsKnownIsBounded()
    {
        constexpr int kKnown = ScalePicture::kMostKnown;
        ScalePicture picture;
        const auto fill = [&](int labels) {
            picture.clear(kArea);
            for (int i = 0; i < labels; ++i)
                picture.addLabel(QRectF(5, 5, 60, 25), i, written);
        };
        fill(kKnown - 1);
        fill(kKnown); // all but one are known
        QCOMPARE(picture.writings(), kKnown);
        fill(kKnown + 20); // all are forgotten, and the last 20 not even known
        QCOMPARE(picture.writings(), 2 * kKnown);
        for (int i = 1; i <= 2; ++i) {
            onCanvas([&](QPainter &p) { picture.draw(p, {QPoint(), kArea}, Qt::white); });
            QCOMPARE(picture.writings(), 2 * kKnown + i * 20);
        }
        QCOMPARE(picture.layouts(), kKnown);
    }

    void labelsThatAreNotKnownAreDrawnLikeTheOthers()
    {
        const QColor color(200, 30, 60, 9);
        ScalePicture picture;
        picture.clear(kArea);
        const auto boxOf = [](int i) { return QRect(i / 10, i % 50, 60, 25); };
        constexpr int kLabels = ScalePicture::kMostKnown + 30;
        for (int i = 0; i < kLabels; ++i)
            picture.addLabel(boxOf(i), i, written);
        COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                             picture.draw(p, {QPoint(), kArea}, color);
                         }),
                         onCanvas([&](QPainter &p) {
                             p.setPen(color);
                             for (int i = 0; i < kLabels; ++i)
                                 p.drawText(boxOf(i), Qt::AlignCenter, QString::number(i));
                         }));
    }

    void aNewPictureHasNothingOfTheOneBefore()
    {
        const QVector<Item> items = scale(55, 9);
        const QColor color(200, 30, 60, 120);
        ScalePicture picture;
        add(picture, scale(55, 7));
        add(picture, items);
        COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                             picture.draw(p, {QPoint(), kArea}, color, color);
                         }),
                         onCanvas([&](QPainter &p) { drawOneByOne(p, items, color, color); }));
    }

    // Where the painter stands aside there is more to see than the area.
    void linesAreKeptAsFarAsTheyMayShow()
    {
        constexpr int kFar = ScalePicture::kOverhang;
        ScalePicture picture;
        const int right = kArea.width() - 1;
        for (const int x : {-kFar - 1, -kFar, right + kFar, right + kFar + 1}) {
            const bool isKept = x >= -kFar && x <= right + kFar;
            add(picture, {{false, false, x, 5, 50}});
            const auto aside = [=](const std::function<void(QPainter &)> &paint) {
                return onCanvas([&](QPainter &p) {
                    p.translate(qreal(20 - x), 0);
                    paint(p);
                });
            };
            COMPARE_PICTURES(aside([&](QPainter &p) {
                                 picture.draw(p, {QPoint(), kArea}, Qt::white);
                             }),
                             aside([&](QPainter &p) {
                                 p.setPen(Qt::white);
                                 if (isKept)
                                     p.drawLine(x, 5, x, 50);
                             }));
        }
    }

    void linesEndAtTheArea()
    {
        ScalePicture picture;
        const QVector<Item> items{{false, false, 7, INT_MIN, INT_MAX}, {false, false, -1, 0, 50},
                                  {false, false, 300, 0, 50},          {false, false, 9, 90, 200},
                                  {false, false, 11, -9, -1},          {false, false, 299, 79, 60}};
        add(picture, items);
        COMPARE_PICTURES(onCanvas([&](QPainter &p) {
                             picture.draw(p, {QPoint(), kArea}, Qt::white);
                         }),
                         onCanvas([&](QPainter &p) {
                             p.setPen(Qt::white);
                             p.drawLine(7, 0, 7, 79);
                             p.drawLine(299, 60, 299, 79);
                         }));
    }
};

WIDGET_TEST_MAIN(tst_ScalePicture)
#include "tst_scalepicture.moc"
