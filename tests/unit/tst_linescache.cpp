// SPDX-License-Identifier: Apache-2.0
#include "detail/linescache.h"

#include "allocations.h"
#include "randomtexts.h"
#include "textcanvas.h"
#include "widgettest.h"

#include <QPainter>

using namespace panelkit;

namespace
{

const QRect kRect(7, 5, 150, 140);
const QRect kCanvas(0, 0, 180, 160);

QImage onCanvas(const std::function<void(QPainter &)> &paint)
{
    return onCanvas(kCanvas.size(), paint);
}

QVector<QFont> fonts()
{
    QFont italic = fontOf(17);
    italic.setItalic(true);
    QFont decorated = fontOf(14);
    decorated.setUnderline(true);
    QFont points(QStringLiteral("DejaVu Serif"));
    points.setPointSizeF(qreal(11.3));
    return {fontOf(16), fontOf(61), italic, decorated, points};
}

QStringList texts()
{
    return {QStringLiteral("Radio"),
            QStringLiteral("one\ntwo and more\n\nfour"),
            QStringLiteral("\n\nlast"),
            QStringLiteral("first\n"),
            QStringLiteral("a line that is much wider than its rectangle\nshort"),
            QStringLiteral("tab\tand\r\nreturn"),
            QStringLiteral("bell\a\nand more"),
            QStringLiteral("long\u009cshort\u009cs\nx"),
            QStringLiteral("hello!\n(\u0645\u0648\u0633\u064a\u0642\u0649) 98.7\n?"),
            QStringLiteral("\u6536\u97f3\u673a\nmixed \u6536"),
            QStringLiteral("a\u2029b\nc"),
            QStringLiteral("\n\n\n\n\n\n\n\n\n\n\n\nfar below"),
            QStringLiteral("\n"),
            QString()};
}

void drawAlike(const QFont &font, Qt::LayoutDirection direction, int flags, const QString &text)
{
    const auto prepared = [&](QPainter &p) {
        p.setFont(font);
        p.setLayoutDirection(direction);
    };
    const QImage expected = onCanvas([&](QPainter &p) {
        prepared(p);
        p.drawText(kRect, flags, text);
    });
    LinesCache lines;
    for (int paint = 0; paint < 2; ++paint) {
        const QImage actual = onCanvas([&](QPainter &p) {
            prepared(p);
            lines.draw(p, kRect, flags, text, kCanvas);
        });
        COMPARE_PICTURES(actual, expected);
    }
    QCOMPARE(lines.layouts(), 1);
}

} // namespace

class tst_LinesCache : public WidgetTest
{
    Q_OBJECT

private slots:
    void thePixelsAreThoseOfDrawText_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("flags");
        for (auto direction : {Qt::LeftToRight, Qt::RightToLeft, Qt::LayoutDirectionAuto}) {
            for (int horizontal : {0, 1, 2, 4, 8, 0x11, 0x12}) {
                for (int vertical : {0, 0x20, 0x40, 0x80, 0x100})
                    QTest::addRow("direction %d, 0x%x", int(direction),
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
        for (const QFont &font : fonts()) {
            for (const QString &text : texts()) {
                drawAlike(font, direction, flags, text);
                if (QTest::currentTestFailed())
                    return;
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
        LinesCache lines;
        for (int i = 0; i < 500; ++i) {
            const RandomText t = random.next(12);
            const QRect rect(random.between(-20, 20), random.between(-20, 20),
                             random.between(0, 180), random.between(0, 400));
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
                    drawn([&](QPainter &p) { lines.draw(p, rect, t.flags, t.text, kCanvas); });
                QVERIFY2(isSamePicture({actual, expected}, __FILE__, __LINE__),
                         qPrintable(t.inWords()));
            }
        }
    }

    void aTextMovesWithItsRectangle()
    {
        LinesCache lines;
        const QString text = texts().at(1);
        for (int y : {0, -3, -50, -90, -200, 40, 200}) {
            const QRect rect = kRect.translated(y / 3, y);
            COMPARE_PICTURES(
                onCanvas([&](QPainter &p) { lines.draw(p, rect, Qt::AlignCenter, text, kCanvas); }),
                onCanvas([&](QPainter &p) { p.drawText(rect, Qt::AlignCenter, text); }));
        }
        QCOMPARE(lines.layouts(), 1);
    }

    void aStripShowsAllThatStandsInIt()
    {
        LinesCache lines;
        const QString text = QStringLiteral("\u00c4g\n\u00c4g\n\u00c4g\n\u00c4g\n\u00c4g");
        for (int y = 0; y < kCanvas.height(); ++y) {
            const QRect strip(0, y, kCanvas.width(), 1);
            const auto inStrip = [&](const std::function<void(QPainter &)> &paint) {
                return onCanvas([&](QPainter &p) {
                    p.setClipRect(strip);
                    paint(p);
                });
            };
            COMPARE_PICTURES(
                inStrip([&](QPainter &p) { lines.draw(p, kRect, Qt::AlignCenter, text, strip); }),
                inStrip([&](QPainter &p) { p.drawText(kRect, Qt::AlignCenter, text); }));
        }
        QCOMPARE(lines.layouts(), 1);
    }

    void linesOutOfSightAreNotDrawn_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("plain") << QStringLiteral("MMM\n") << Qt::LeftToRight;
        QTest::newRow("with a tab") << QStringLiteral("M\tM\n") << Qt::LeftToRight;
        QTest::newRow("with a return") << QStringLiteral("MMM\r\n") << Qt::LeftToRight;
        QTest::newRow("ending in a space") << QStringLiteral("MMM \n") << Qt::RightToLeft;
    }

    void linesOutOfSightAreNotDrawn()
    {
        QFETCH(QString, line);
        QFETCH(Qt::LayoutDirection, direction);
        LinesCache lines;
        const QString text = line.repeated(5) + QStringLiteral("MMM");
        const QImage drawn = onCanvas([&](QPainter &p) {
            p.setLayoutDirection(direction);
            lines.draw(p, kRect, Qt::AlignTop, text, QRect(0, 60, 180, 1));
        });
        const QImage blank = onCanvas([](QPainter &) {});
        QVERIFY(drawn.copy(0, 55, 180, 15) != blank.copy(0, 55, 180, 15));
        QCOMPARE(drawn.copy(0, 0, 180, 20), blank.copy(0, 0, 180, 20));
        QCOMPARE(drawn.copy(0, 110, 180, 50), blank.copy(0, 110, 180, 50));
    }

    // Once for its bounds and once for the layout that is kept; drawText() shapes it each time.
    // Of one line; where there are several, any place may be one.
    void itIsKnownWhereALetterMayBegin()
    {
        LinesCache lines;
        const QString text = QStringLiteral("oo");
        const int width = QFontMetrics(fontOf(16)).horizontalAdvance(QLatin1Char('o'));
        onCanvas([&](QPainter &p) {
            p.setFont(fontOf(16));
            const QRect line(50, 0, 200, 30);
            QVERIFY(lines.mayBeginAt(50, p, line, Qt::AlignLeft, text));
            QVERIFY(!lines.mayBeginAt(51, p, line, Qt::AlignLeft, text));
            QVERIFY(!lines.mayBeginAt(0, p, line, Qt::AlignLeft, text));
            QVERIFY(!lines.mayBeginAt(50 + width + 2, p, line, Qt::AlignLeft, text));
            QCOMPARE(lines.beginning(p, line, Qt::AlignRight | Qt::TextSingleLine, text),
                     lines.beginning(p, line.translated(-50, 0),
                                     Qt::AlignRight | Qt::TextSingleLine, text));
            const QString more = text + QLatin1Char('\n') + text;
            QVERIFY(lines.mayBeginAt(51, p, line, Qt::AlignLeft, more)); // it is not looked for
            const qreal unknown = lines.beginning(p, line, Qt::AlignLeft, more);
            QCOMPARE(lines.beginning(p, line.translated(-50, 0), Qt::AlignLeft, more), unknown);
            QVERIFY(lines.beginning(p, line.translated(-51, 0), Qt::AlignLeft, more) != unknown);
        });
    }

    void aTextIsShapedTwiceAndThenNoMore()
    {
        const QString text = texts().at(1);
        qint64 byDrawText = 0; // bytes
        QVector<qint64> byCache;
        onCanvas([&](QPainter &p) {
            p.drawText(kRect, Qt::AlignCenter, text); // the font's memory is not the text's
            LinesCache lines;
            const auto draw = [&] { lines.draw(p, kRect, Qt::AlignCenter, text, kCanvas); };
            byCache = {allocations::during(draw), allocations::during(draw)};
            byDrawText = allocations::during([&] { p.drawText(kRect, Qt::AlignCenter, text); });
        });
        QVERIFY(2 * byCache[0] < 5 * byDrawText);
        QVERIFY(10 * byCache[1] < byDrawText);
    }

    void underATransformThePixelsAreThoseOfDrawText()
    {
        LinesCache lines;
        const QString text = texts().at(1);
        const auto turned = [&](const std::function<void(QPainter &)> &paint) {
            return onCanvas([&](QPainter &p) {
                p.rotate(11);
                p.scale(qreal(1.3), qreal(0.9));
                paint(p);
            });
        };
        COMPARE_PICTURES(
            turned([&](QPainter &p) { lines.draw(p, kRect, Qt::AlignCenter, text, kCanvas); }),
            turned([&](QPainter &p) { p.drawText(kRect, Qt::AlignCenter, text); }));
    }

    void anyInputThatChangesIsLaidOutAnew()
    {
        LinesCache lines;
        int expected = 0;
        QFont font = fontOf(16);
        QRect rect = kRect;
        int flags = Qt::AlignLeft;
        QString text = texts().at(1);
        Qt::LayoutDirection direction = Qt::LeftToRight;
        const auto check = [&] {
            const auto draw = [&](bool isKept) {
                return onCanvas([&](QPainter &p) {
                    p.setFont(font);
                    p.setLayoutDirection(direction);
                    if (isKept)
                        lines.draw(p, rect, flags, text, kCanvas);
                    else
                        p.drawText(rect, flags, text);
                });
            };
            COMPARE_PICTURES(draw(true), draw(false));
            QCOMPARE(lines.layouts(), ++expected);
        };
        check();
        text += QLatin1Char('!');
        check();
        font = fontOf(19);
        check();
        rect.setWidth(140);
        check();
        rect.setHeight(139);
        check();
        flags = Qt::AlignCenter;
        check();
        direction = Qt::RightToLeft;
        check();
    }
};

WIDGET_TEST_MAIN(tst_LinesCache)
#include "tst_linescache.moc"
