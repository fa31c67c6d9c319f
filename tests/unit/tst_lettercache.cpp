// SPDX-License-Identifier: Apache-2.0
#include "detail/lettercache.h"

#include "allocations.h"
#include "randomtexts.h"
#include "widgettest.h"

#include <QPainter>

using namespace panelkit;

namespace
{

const QRect kBox(-20, 0, 40, 40);
constexpr int kFlags = Qt::AlignCenter;

QFont fontOf(int px)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(px);
    return font;
}

// A small canvas with the origin in its middle, turned.
QImage onCanvas(double angle, const QFont &font, const std::function<void(QPainter &)> &paint)
{
    QImage image(110, 110, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(24, 28, 36));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    painter.setPen(QColor(250, 240, 200, 210));
    painter.translate(qreal(55.3), qreal(54.8));
    painter.rotate(qreal(angle));
    paint(painter);
    return image;
}

void draw(LetterCache &letters, QPainter &p, const QRect &box, int flags, QChar letter)
{
    letters.set(p, box.size(), flags);
    letters.draw(p, box.topLeft(), letter);
}

} // namespace

class tst_LetterCache : public WidgetTest
{
    Q_OBJECT

private slots:
    void lettersArePaintedAsByDrawText_data()
    {
        QTest::addColumn<int>("flags");
        QTest::newRow("centred") << kFlags;
        QTest::newRow("at the bottom") << int(Qt::AlignHCenter | Qt::AlignBottom);
        QTest::newRow("at the top") << int(Qt::AlignHCenter | Qt::AlignTop);
    }

    void lettersArePaintedAsByDrawText()
    {
        QFETCH(int, flags);
        for (int px : {9, 14, 24, 31, 36, 60}) {
            LetterCache letters;
            const QFont font = fontOf(px);
            for (int code = 0x20; code < 0x180; code += code < 0x7f ? 1 : 5) {
                for (double angle : {0.0, -61.7, 17.3, 90.0, 203.1}) {
                    COMPARE_PICTURES(
                        onCanvas(angle, font,
                                 [&](QPainter &p) { draw(letters, p, kBox, flags, QChar(code)); }),
                        onCanvas(angle, font, [&](QPainter &p) {
                            p.drawText(kBox, flags, QString(QChar(code)));
                        }));
                }
            }
        }
    }

    void lettersThatNeedInterpretationToo()
    {
        LetterCache letters;
        for (int code :
             {0, 9, 10, 0x9c, 0x26, 0x301, 0x5d0, 0x627, 0x2028, 0x202e, 0xd83d, 0xfffc, 0xffff}) {
            COMPARE_PICTURES(
                onCanvas(33, fontOf(20),
                         [&](QPainter &p) { draw(letters, p, kBox, kFlags, QChar(code)); }),
                onCanvas(33, fontOf(20),
                         [&](QPainter &p) { p.drawText(kBox, kFlags, QString(QChar(code))); }));
        }
    }

    void randomLettersHaveThePixelsOfDrawText_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 4; ++seed)
            QTest::addRow("%d", seed) << seed;
    }

    // Any characters, and those of texts that are hard to lay out.
    void randomLettersHaveThePixelsOfDrawText()
    {
        QFETCH(int, seed);
        RandomTexts random{quint32(seed)};
        LetterCache letters;
        for (int paint = 0; paint < 60; ++paint) {
            RandomText t = random.next(8);
            t.flags = Qt::AlignHCenter | (t.flags & ~Qt::AlignHorizontal_Mask);
            const double angle = random.between(0, 3) ? random.between(0, 3600) / 10.0 : 0;
            const QString all = t.text + QChar(random.between(0, 0xffff))
                + QChar(random.between(0, 0x7ff)) + QStringLiteral("A(");
            for (const QChar letter : all) {
                t.text = letter;
                const auto drawn = [&](const std::function<void(QPainter &)> &draws) {
                    return onCanvas(angle, t.font, [&](QPainter &p) {
                        t.prepare(p);
                        draws(p);
                    });
                };
                const QImage expected = settled(
                    [&] { return drawn([&](QPainter &p) { p.drawText(kBox, t.flags, t.text); }); });
                const QImage actual =
                    drawn([&](QPainter &p) { draw(letters, p, kBox, t.flags, letter); });
                QVERIFY2(isSamePicture({actual, expected}, __FILE__, __LINE__),
                         qPrintable(t.inWords()));
            }
        }
        takeMessages(); // Qt misses tables for some scripts in some fonts, and says so
    }

    void boxesMayLieAnywhere()
    {
        LetterCache letters;
        for (int x : {-37, -1, 0, 1, 12}) {
            const QRect box(x, -x - 20, 40, 40);
            COMPARE_PICTURES(
                onCanvas(7, fontOf(17),
                         [&](QPainter &p) { draw(letters, p, box, kFlags, QChar('K')); }),
                onCanvas(7, fontOf(17),
                         [&](QPainter &p) { p.drawText(box, kFlags, QStringLiteral("K")); }));
        }
        QCOMPARE(letters.layouts(), 1);
    }

    void aLetterIsLaidOutOnceForAllTransformsAndColours()
    {
        LetterCache letters;
        for (double angle = 0; angle < 90; angle += 7) {
            onCanvas(angle, fontOf(20), [&](QPainter &p) {
                p.setPen(QColor::fromHsv(int(angle), 200, 200));
                for (char c : {'A', 'B'})
                    draw(letters, p, kBox, kFlags, QChar(c));
            });
        }
        QCOMPARE(letters.layouts(), 2);
    }

    // That takes memory, which drawText() asks for each time.
    void aKeptLetterIsNotShapedAgain()
    {
        qint64 byDrawText = 0; // bytes
        qint64 byCache = 0;
        onCanvas(0, fontOf(20), [&](QPainter &p) {
            LetterCache letters;
            const auto drawAll = [&] {
                for (const char c : {'A', '(', '7'})
                    draw(letters, p, kBox, kFlags, QLatin1Char(c));
            };
            drawAll();
            byCache = allocations::during(drawAll);
            byDrawText = allocations::during([&] {
                for (const char *text : {"A", "(", "7"})
                    p.drawText(kBox, kFlags, QLatin1String(text));
            });
        });
        QVERIFY(10 * byCache < byDrawText);
    }

    void anotherFontBoxOrAlignmentLaysOutAnew()
    {
        LetterCache letters;
        const auto check = [&](const QFont &font, const QRect &box, int flags) {
            COMPARE_PICTURES(
                onCanvas(7, font, [&](QPainter &p) { draw(letters, p, box, flags, QChar('K')); }),
                onCanvas(7, font,
                         [&](QPainter &p) { p.drawText(box, flags, QStringLiteral("K")); }));
        };
        check(fontOf(20), kBox, kFlags);
        check(fontOf(21), kBox, kFlags);
        check(fontOf(21), QRect(-20, 0, 41, 44), kFlags);
        check(fontOf(21), QRect(-20, 0, 41, 44), Qt::AlignHCenter | Qt::AlignBottom);
        QFont underlined = fontOf(21);
        underlined.setUnderline(true);
        check(underlined, QRect(-20, 0, 41, 44), Qt::AlignHCenter | Qt::AlignBottom);
        QCOMPARE(letters.layouts(), 5);
    }

    void anotherDirectionTurnsABracketRound()
    {
        LetterCache letters;
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft, Qt::LeftToRight}) {
            const auto directed = [&](const std::function<void(QPainter &)> &paint) {
                return onCanvas(7, fontOf(20), [&](QPainter &p) {
                    p.setLayoutDirection(direction);
                    paint(p);
                });
            };
            COMPARE_PICTURES(
                directed([&](QPainter &p) { draw(letters, p, kBox, kFlags, QChar('(')); }),
                directed([&](QPainter &p) { p.drawText(kBox, kFlags, QStringLiteral("(")); }));
        }
        QCOMPARE(letters.layouts(), 3);
    }
};

WIDGET_TEST_MAIN(tst_LetterCache)
#include "tst_lettercache.moc"
