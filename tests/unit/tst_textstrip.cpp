// SPDX-License-Identifier: Apache-2.0
#include "detail/textstrip.h"

#include "textcanvas.h"
#include "widgettest.h"

#include <QPainter>
#include <QPicture>

using namespace panelkit;

namespace
{

constexpr QSize kSize(180, 60);
const QRect kStretch(0, 30, 180, 120);

const auto write = [](QPainter &p) {
    for (int line = 0; line < 8; ++line)
        p.drawText(QRect(3, line * 22, 170, 22), Qt::AlignVCenter,
                   QStringLiteral("Line %1, after yonder").arg(line));
};

// The part of the text that begins at 47 px, on a ground of this format.
QImage part(QImage::Format format, const QColor &color, const QFont &font,
            const std::function<void(QPainter &)> &paint)
{
    QImage image(kSize, format);
    image.fill(QColor(10, 60, 90));
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(color);
    painter.translate(7, 0);
    paint(painter);
    return image;
}

QImage drawn(QImage::Format format, const QColor &color, const QFont &font)
{
    return part(format, color, font, [](QPainter &p) {
        p.translate(0, -47);
        write(p);
    });
}

QImage copied(QImage::Format format, const QColor &color, const QFont &font)
{
    return part(format, color, font, [&](QPainter &p) {
        TextStrip strip;
        QVERIFY(strip.compose(p, color, kStretch, write));
        strip.copy(p, {0, 0}, {0, 47, 180, 60});
    });
}

constexpr auto kOpaque = QImage::Format_RGB32;
constexpr auto kBlended = QImage::Format_ARGB32_Premultiplied;

// Whether a painter on such an image may copy text, after it was prepared.
bool canCopy(
    QImage::Format format, const QColor &color,
    const std::function<void(QPainter &)> &prepare = [](QPainter &) {})
{
    QImage image(kSize, format);
    QPainter painter(&image);
    painter.setFont(fontOf(16));
    prepare(painter);
    return TextSmoothing().canCopy(painter, color);
}

} // namespace

class tst_TextStrip : public WidgetTest
{
    Q_OBJECT

private slots:
    void aCopyIsWhatDrawingShows()
    {
        for (const auto format : {kOpaque, kBlended}) {
            for (const QColor &color :
                 {QColor(Qt::white), QColor(20, 200, 90), QColor(Qt::black)}) {
                for (const int px : {9, 16, 40}) {
                    const QFont font = fontOf(px);
                    // A pixel of two letters is rounded twice.
                    QVERIFY(distance(copied(format, color, font), drawn(format, color, font)) <= 1);
                }
            }
        }
    }

    void theFirstColumnOfADeviceIsAnother()
    {
        for (const int column : {0, 1, 5}) {
            QImage images[2];
            for (const bool isCopied : {false, true}) {
                images[isCopied] = onCanvas(kSize, [&](QPainter &p) {
                    p.setFont(fontOf(16));
                    p.translate(qreal(column), 0);
                    TextStrip strip;
                    const auto yes = [](QPainter &q) { q.drawText(0, 20, QStringLiteral("yes")); };
                    if (isCopied) {
                        QVERIFY(strip.compose(p, Qt::white, QRect(QPoint(), kSize), yes));
                        strip.copy(p, {0, 0}, QRect(QPoint(), kSize));
                    } else {
                        yes(p);
                    }
                });
            }
            COMPARE_PICTURES(images[1], images[0]);
        }
    }

    void anotherColumnNeedsAnotherStrip()
    {
        QImage image(kSize, kOpaque);
        QPainter p(&image);
        TextStrip strip;
        QVERIFY(!strip.holds(p, kStretch));
        QVERIFY(strip.compose(p, Qt::white, kStretch, write));
        QVERIFY(strip.holds(p, kStretch));
        QVERIFY(strip.holds(p, kStretch.adjusted(4, 4, 0, -9)));
        QVERIFY(!strip.holds(p, kStretch.translated(0, 1)));
        p.translate(3, 0);
        QVERIFY(!strip.holds(p, kStretch));
        QVERIFY(strip.compose(p, Qt::white, kStretch, write));
        QVERIFY(strip.holds(p, kStretch));
        p.translate(-3, 0);
        QVERIFY(!strip.holds(p, kStretch));
        strip.clear();
        QVERIFY(!strip.holds(p, kStretch.adjusted(4, 4, 0, -9)));
        QCOMPARE(strip.compositions(), 2);
    }

    void whatIsTooLargeIsNotKept()
    {
        QImage image(kSize, kOpaque);
        QPainter p(&image);
        TextStrip strip;
        QVERIFY(!strip.compose(p, Qt::white, QRect(0, 0, 4097, 1024), write));
        QVERIFY(!strip.compose(p, Qt::white, QRect(0, 0, 100000, 100000), write));
        QVERIFY(!strip.holds(p, QRect(0, 0, 10, 10)));
        QCOMPARE(strip.compositions(), 0);
    }

    void copiesAreForDevicesThatShowThemAsDrawn()
    {
        QVERIFY(canCopy(kOpaque, Qt::white));
        QVERIFY(canCopy(kBlended, Qt::white));
        QVERIFY(!canCopy(QImage::Format_RGB16, Qt::white));
        QVERIFY(!canCopy(kOpaque, QColor(255, 255, 255, 254)));
        const auto yes = [](const std::function<void(QPainter &)> &prepare) {
            return canCopy(kOpaque, Qt::white, prepare);
        };
        QVERIFY(yes([](QPainter &p) { p.translate(3, -4); }));
        QVERIFY(!yes([](QPainter &p) { p.translate(qreal(0.5), 0); }));
        QVERIFY(!yes([](QPainter &p) { p.translate(0, qreal(0.5)); }));
        QVERIFY(!yes([](QPainter &p) { p.scale(2, 2); }));
        QVERIFY(!yes([](QPainter &p) { p.rotate(90); }));
        QVERIFY(!yes([](QPainter &p) { p.setOpacity(qreal(0.9)); }));
        QVERIFY(!yes([](QPainter &p) { p.setWindow(0, 0, 90, 30); }));
        QVERIFY(!yes([](QPainter &p) { p.setCompositionMode(QPainter::CompositionMode_Plus); }));
        QVERIFY(yes([](QPainter &p) { p.setFont(fontOf(63)); }));
        QVERIFY(!yes([](QPainter &p) { p.setFont(fontOf(64)); }));
        QPicture picture;
        QPainter painter(&picture);
        QVERIFY(!TextSmoothing().canCopy(painter, Qt::white));
    }
};

WIDGET_TEST_MAIN(tst_TextStrip)
#include "tst_textstrip.moc"
