// SPDX-License-Identifier: Apache-2.0
#include "detail/textcache.h"

#include "allocations.h"
#include "randomtexts.h"
#include "textcanvas.h"
#include "widgettest.h"

#include <QPainter>

using namespace panelkit;

namespace
{

const QRect kRect(7, 5, 150, 40);

QImage onCanvas(const std::function<void(QPainter &)> &paint) { return onCanvas({180, 60}, paint); }

QVector<QFont> fonts()
{
    QFont italic = fontOf(17);
    italic.setItalic(true);
    QFont decorated = fontOf(14);
    decorated.setUnderline(true);
    decorated.setStrikeOut(true);
    QFont spaced = fontOf(15);
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, qreal(1.3));
    spaced.setBold(true);
    QFont aliased = fontOf(20);
    aliased.setStyleStrategy(QFont::NoAntialias);
    QFont points(QStringLiteral("DejaVu Serif"));
    points.setPointSizeF(qreal(11.3));
    return {fontOf(16), fontOf(23), italic, decorated, spaced, aliased, points};
}

QStringList texts()
{
    return {QStringLiteral("Radio"),
            QStringLiteral("AVAWAY, office & fi 98.7"),
            QStringLiteral("A caption that is far wider than the rectangle it stands in"),
            QStringLiteral(" leading"),
            QStringLiteral("trailing "),
            QStringLiteral("two\nlines"),
            QStringLiteral("tab\tstop"),
            QStringLiteral("a\u2028b"),
            QStringLiteral("\u0420\u0430\u0434\u0438\u043e"),
            QStringLiteral("\u0645\u0648\u0633\u064a\u0642\u0649 (1)"),
            QStringLiteral("\u6536\u97f3\u673a"),
            QStringLiteral("<b>no markup</b>"),
            QStringLiteral("e\u0301\u0302 \U0001F3B5"),
            QString(QChar(0xD800)),
            QStringLiteral(" "),
            QString()};
}

} // namespace

class tst_TextCache : public WidgetTest
{
    Q_OBJECT

private slots:
    void thePixelsAreThoseOfDrawText_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("flags");
        for (auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (int horizontal : {0, 1, 2, 4, 8, 0x11, 0x12}) {
                for (int vertical : {0, 0x20, 0x40, 0x80, 0x100})
                    QTest::addRow("%s 0x%x", direction == Qt::LeftToRight ? "ltr" : "rtl",
                                  unsigned(horizontal | vertical))
                        << direction << (horizontal | vertical);
            }
            QTest::addRow("wrapped %d", int(direction))
                << direction << int(Qt::AlignCenter | Qt::TextWordWrap);
            QTest::addRow("every bit %d", int(direction)) << direction << -1;
        }
    }

    void thePixelsAreThoseOfDrawText()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(int, flags);
        const QVector<QRect> rects{kRect, {20, 11, 31, 9}, {3, 3, 0, 0}, {-40, -5, 301, 77}};
        for (const QFont &font : fonts()) {
            for (const QString &text : texts()) {
                for (const QRect &rect : rects) {
                    const auto prepare = [&](QPainter &p) {
                        p.setFont(font);
                        p.setLayoutDirection(direction);
                    };
                    TextCache cache;
                    const QImage actual = onCanvas([&](QPainter &p) {
                        prepare(p);
                        cache.draw(p, rect, flags, text);
                    });
                    const QImage expected = onCanvas([&](QPainter &p) {
                        prepare(p);
                        p.drawText(rect, flags, text);
                    });
                    QVERIFY2(isSamePicture({actual, expected}, __FILE__, __LINE__),
                             qPrintable(QStringLiteral("%1 | %2").arg(text, font.toString())));
                }
            }
        }
    }

    void randomTextsHaveThePixelsOfDrawText_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 8; ++seed)
            QTest::addRow("%d", seed) << seed;
    }

    void randomTextsHaveThePixelsOfDrawText()
    {
        QFETCH(int, seed);
        RandomTexts random{quint32(seed)};
        TextCache cache;
        for (int i = 0; i < 700; ++i) {
            const RandomText t = random.next(i % 2 ? 3 : 8);
            const QRectF rect(
                QPointF(qreal(random.between(-80, 80)) / 4, qreal(random.between(-80, 80)) / 4),
                QSize(random.between(0, 200), random.between(0, 60)));
            const QPointF offset(qreal(random.between(-9, 9)) / 4,
                                 qreal(random.between(-9, 9)) / 4);
            const auto drawn = [&](const std::function<void(QPainter &)> &paint) {
                return onCanvas([&](QPainter &p) {
                    t.prepare(p);
                    p.translate(offset);
                    paint(p);
                });
            };
            const QImage expected = settled(
                [&] { return drawn([&](QPainter &p) { p.drawText(rect, t.flags, t.text); }); });
            for (int paint = 0; paint < 2; ++paint) {
                const QImage actual =
                    drawn([&](QPainter &p) { cache.draw(p, rect, t.flags, t.text); });
                QVERIFY2(isSamePicture({actual, expected}, __FILE__, __LINE__),
                         qPrintable(t.inWords()));
            }
        }
    }

    // Centring puts the line at every fraction of a pixel that there is.
    void noWidthMovesAGlyph()
    {
        for (const QFont &font : fonts()) {
            for (int width = 20; width < 220; ++width) {
                const QRect rect(3, 4, width, 20 + width / 7);
                const QString text = QStringLiteral("AV Radio 98.7");
                TextCache cache;
                const QImage actual = onCanvas([&](QPainter &p) {
                    p.setFont(font);
                    cache.draw(p, rect, Qt::AlignCenter, text);
                });
                COMPARE_PICTURES(actual, onCanvas([&](QPainter &p) {
                                     p.setFont(font);
                                     p.drawText(rect, Qt::AlignCenter, text);
                                 }));
            }
        }
    }

    // drawText() truncates a place left of or above the origin the other way.
    void placesBeforeTheOriginAreTruncatedAsByDrawText()
    {
        const QString text = QStringLiteral("Updating");
        TextCache cache;
        for (int size = 8; size < 40; size += 3) {
            QFont font(QStringLiteral("DejaVu Sans"));
            font.setPixelSize(size);
            for (int i = 0; i < 40; ++i) {
                const QRectF rect(qreal(i * 0.3 - 105), qreal(-20 - i * 0.7), qreal(100 + i), 40);
                const auto drawn = [&](const std::function<void(QPainter &)> &paint) {
                    return onCanvas([&](QPainter &p) {
                        p.translate(QPoint(110, 50));
                        p.setFont(font);
                        paint(p);
                    });
                };
                COMPARE_PICTURES(
                    drawn([&](QPainter &p) { cache.draw(p, rect, Qt::AlignCenter, text); }),
                    drawn([&](QPainter &p) { p.drawText(rect, Qt::AlignCenter, text); }));
            }
        }
    }

    void anUnchangedTextIsLaidOutOnce()
    {
        TextCache cache;
        for (int i = 0; i < 3; ++i)
            onCanvas([&](QPainter &p) { cache.draw(p, kRect, Qt::AlignCenter, texts().first()); });
        QCOMPARE(cache.layouts(), 1);
    }

    // That takes memory, which drawText() asks for each time.
    void aKeptTextIsNotShapedAgain()
    {
        const QString text = texts().first();
        qint64 byDrawText = 0; // bytes
        qint64 byCache = 0;
        onCanvas([&](QPainter &p) {
            TextCache cache;
            const auto draw = [&] { cache.draw(p, kRect, Qt::AlignCenter, text); };
            draw();
            byCache = allocations::during(draw);
            byDrawText = allocations::during([&] { p.drawText(kRect, Qt::AlignCenter, text); });
        });
        QVERIFY(10 * byCache < byDrawText);
    }

    void everyInputCounts()
    {
        TextCache cache;
        int expected = 0;
        const auto draws = [&](const QString &text, const QRect &rect, int flags, int px,
                               Qt::LayoutDirection direction) {
            const auto prepare = [&](QPainter &p) {
                p.setFont(fontOf(px));
                p.setLayoutDirection(direction);
            };
            const QImage actual = onCanvas([&](QPainter &p) {
                prepare(p);
                cache.draw(p, rect, flags, text);
            });
            const QImage fresh = onCanvas([&](QPainter &p) {
                prepare(p);
                p.drawText(rect, flags, text);
            });
            return actual == fresh && cache.layouts() == ++expected;
        };
        const QString text = QStringLiteral("Radio");
        const QString other = QStringLiteral("Phone");
        const QRect wider = kRect.adjusted(0, 0, 3, 0);
        QVERIFY(draws(text, kRect, Qt::AlignCenter, 16, Qt::LeftToRight));
        QVERIFY(draws(other, kRect, Qt::AlignCenter, 16, Qt::LeftToRight));
        QVERIFY(draws(other, wider, Qt::AlignCenter, 16, Qt::LeftToRight));
        QVERIFY(draws(other, wider, Qt::AlignLeft, 16, Qt::LeftToRight));
        QVERIFY(draws(other, wider, Qt::AlignLeft, 17, Qt::LeftToRight));
        QVERIFY(draws(other, wider, Qt::AlignLeft, 17, Qt::RightToLeft));
    }

    void thePlaceOfTheRectangleDoesNotCount()
    {
        TextCache cache;
        for (const QRect &rect : {kRect, kRect.translated(9, -3), kRect.translated(-40, 11)}) {
            const QImage actual =
                onCanvas([&](QPainter &p) { cache.draw(p, rect, Qt::AlignCenter, texts().at(1)); });
            COMPARE_PICTURES(actual, onCanvas([&](QPainter &p) {
                                 p.drawText(rect, Qt::AlignCenter, texts().at(1));
                             }));
        }
        QCOMPARE(cache.layouts(), 1);
    }

    void fractionsOfAPixelDoNotAddUp()
    {
        TextCache cache;
        for (int i = 0; i < 200; ++i) {
            const QRectF rect(QPointF(qreal(i % 7) / 3, qreal(i % 5) / 4), QSizeF(150, 40));
            const QImage actual =
                onCanvas([&](QPainter &p) { cache.draw(p, rect, Qt::AlignCenter, texts().at(1)); });
            COMPARE_PICTURES(actual, onCanvas([&](QPainter &p) {
                                 p.drawText(rect, Qt::AlignCenter, texts().at(1));
                             }));
        }
    }

    void theColourIsThePensAtEachDraw()
    {
        TextCache cache;
        for (const QColor &color : {QColor(Qt::red), QColor(0, 255, 0, 90)}) {
            const QImage actual = onCanvas([&](QPainter &p) {
                p.setPen(color);
                cache.draw(p, kRect, Qt::AlignCenter, texts().first());
            });
            COMPARE_PICTURES(actual, onCanvas([&](QPainter &p) {
                                 p.setPen(color);
                                 p.drawText(kRect, Qt::AlignCenter, texts().first());
                             }));
        }
        QCOMPARE(cache.layouts(), 1);
    }

    void theTextMovesWithThePainter()
    {
        TextCache cache;
        for (const QPoint &offset : {QPoint(0, 0), QPoint(3, 2), QPoint(-11, 7), QPoint(0, 0)}) {
            const QImage actual = onCanvas([&](QPainter &p) {
                p.translate(offset);
                cache.draw(p, kRect, Qt::AlignCenter, texts().first());
            });
            COMPARE_PICTURES(actual, onCanvas([&](QPainter &p) {
                                 p.translate(offset);
                                 p.drawText(kRect, Qt::AlignCenter, texts().first());
                             }));
        }
        QCOMPARE(cache.layouts(), 1);
    }

    void aTransformedPainterDrawsTheTextItself()
    {
        TextCache cache;
        const auto scaled = [](const std::function<void(QPainter &)> &paint) {
            return onCanvas([&](QPainter &p) {
                p.scale(1.5, 1.25);
                paint(p);
            });
        };
        const QImage actual = scaled([&](QPainter &p) {
            cache.draw(p, {2, 2, 90, 30}, 0x84, texts().first());
        });
        COMPARE_PICTURES(actual, scaled([&](QPainter &p) {
                             p.drawText(QRect(2, 2, 90, 30), 0x84, texts().first());
                         }));
    }

    void aClipOfThePainterStays()
    {
        TextCache cache;
        const QString text = texts().at(2);
        const auto clipped = [](const std::function<void(QPainter &)> &paint) {
            return onCanvas([&](QPainter &p) {
                p.setClipRect(30, 0, 50, 25);
                paint(p);
                p.fillRect(60, 0, 120, 60, Qt::red);
            });
        };
        const QImage actual = clipped([&](QPainter &p) { cache.draw(p, kRect, 0x84, text); });
        COMPARE_PICTURES(actual, clipped([&](QPainter &p) { p.drawText(kRect, 0x84, text); }));
    }
};

WIDGET_TEST_MAIN(tst_TextCache)
#include "tst_textcache.moc"
