// SPDX-License-Identifier: Apache-2.0
#include "detail/listtextcache.h"

#include "randomtexts.h"
#include "widgettest.h"

#include <QPainter>

using namespace panelkit;

namespace
{

const QRect kRect(4, 3, 120, 30);
constexpr int kLine = Qt::AlignLeft | Qt::AlignVCenter;

QFont fontOf(int px)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(px);
    return font;
}

QImage onCanvas(const std::function<void(QPainter &)> &paint)
{
    QImage image(160, 50, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(10, 60, 90));
    QPainter painter(&image);
    painter.setPen(Qt::white);
    painter.setFont(fontOf(16));
    paint(painter);
    return image;
}

QString shortened(const QString &text, int width, int px = 16)
{
    return QFontMetrics(fontOf(px)).elidedText(text, Qt::ElideRight, width, Qt::TextShowMnemonic);
}

} // namespace

class tst_ListTextCache : public WidgetTest
{
    Q_OBJECT

private slots:
    void manyTextsHaveThePixelsOfDrawText()
    {
        ListTextCache texts;
        for (int round = 0; round < 2; ++round) {
            for (int i = 0; i < 50; ++i) {
                const QString text = QStringLiteral("Title %1").arg(i);
                const QRect rect = kRect.adjusted(0, 0, -i, -i / 5);
                const int flags = i % 2 ? kLine : int(Qt::AlignCenter);
                COMPARE_PICTURES(onCanvas([&](QPainter &p) { texts.draw(p, rect, flags, text); }),
                                 onCanvas([&](QPainter &p) { p.drawText(rect, flags, text); }));
            }
            QCOMPARE(texts.layouts(), 50);
        }
    }

    void randomTextsHaveThePixelsOfDrawText_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 3; ++seed)
            QTest::addRow("%d", seed) << seed;
    }

    // All of them are kept at once, and come up again in another order, font and direction.
    void randomTextsHaveThePixelsOfDrawText()
    {
        QFETCH(int, seed);
        RandomTexts random{quint32(seed)};
        ListTextCache texts;
        QVector<RandomText> known;
        for (int i = 0; i < 200; ++i)
            known += random.next(5);
        for (int i = 0; i < 1500; ++i) {
            RandomText t = known[random.between(0, known.size() - 1)];
            t.direction = random.next(1).direction;
            t.font = random.between(0, 1) ? t.font : known.first().font;
            const QRect rect(kRect.topLeft(), QSize(120 + random.between(0, 1), 30));
            const auto drawn = [&](const std::function<void(QPainter &)> &paint) {
                return onCanvas([&](QPainter &p) {
                    t.prepare(p);
                    paint(p);
                });
            };
            const QImage expected = settled(
                [&] { return drawn([&](QPainter &p) { p.drawText(rect, t.flags, t.text); }); });
            const QImage actual = drawn([&](QPainter &p) { texts.draw(p, rect, t.flags, t.text); });
            QVERIFY2(isSamePicture({actual, expected}, __FILE__, __LINE__),
                     qPrintable(t.inWords()));
        }
    }

    void anotherFontIsLaidOutAnew()
    {
        ListTextCache texts;
        for (int px : {16, 20, 16}) {
            const auto draw = [&](QPainter &p) {
                p.setFont(fontOf(px));
                texts.draw(p, kRect, kLine, QStringLiteral("Title"));
            };
            COMPARE_PICTURES(onCanvas(draw), onCanvas([&](QPainter &p) {
                                 p.setFont(fontOf(px));
                                 p.drawText(kRect, kLine, QStringLiteral("Title"));
                             }));
        }
        QCOMPARE(texts.layouts(), 3);
    }

    void anElidedTextIsShortenedOnce()
    {
        ListTextCache texts;
        const QString text = QStringLiteral("A title too long for its place");
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(texts.elided(fontOf(16), text, 100), shortened(text, 100));
            QCOMPARE(texts.elided(fontOf(16), text, 90), shortened(text, 90));
        }
        QCOMPARE(texts.elisions(), 2);
        QCOMPARE(texts.elided(fontOf(20), text, 100), shortened(text, 100, 20));
        QCOMPARE(texts.elided(fontOf(16), text, -3), shortened(text, -3));
    }

    void whatIsKeptIsBounded()
    {
        ListTextCache texts;
        onCanvas([&](QPainter &p) {
            for (int i = 0; i < 20000; ++i) {
                const QString text = QStringLiteral("Title of row %1").arg(i);
                texts.draw(p, kRect, kLine, texts.elided(fontOf(16), text, 50));
            }
        });
        QVERIFY(texts.bytes() > 0);
        QVERIFY(texts.bytes() <= 2 * ListTextCache::kMostBytes);
    }

    void aTextTooLongToKeepIsDrawnAllTheSame()
    {
        ListTextCache texts;
        const QString text(ListTextCache::kMostBytes / 16, QLatin1Char('W'));
        COMPARE_PICTURES(onCanvas([&](QPainter &p) { texts.draw(p, kRect, kLine, text); }),
                         onCanvas([&](QPainter &p) { p.drawText(kRect, kLine, text); }));
        QCOMPARE(texts.bytes(), 0);
        const QString longer(5000000, QLatin1Char('W'));
        QCOMPARE(texts.elided(fontOf(16), longer, 60), shortened(longer, 60));
        QCOMPARE(texts.bytes(), 0);
    }
};

WIDGET_TEST_MAIN(tst_ListTextCache)
#include "tst_listtextcache.moc"
