// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "mouse.h"
#include "pictures.h"
#include "rows.h"

#include <marcscrollbar.h>
#include <QApplication>
#include <QScrollBar>
#include <qwt_wheel.h>

namespace
{

constexpr QSize kSize(160, 400);
constexpr int kRange = 100;
constexpr int kManyValues = 120; // ticks that lie over each other
constexpr int kValue = 37;
constexpr double kPeerLimit = 1;

const QPixmap &knob()
{
    static const QPixmap instance = keyPicture(QColor(60, 170, 200), QSize(44, 44));
    return instance;
}

template <class Prepare> PaintingMaker bar(Prepare prepare)
{
    return widgetOf<MArcScrollBar>(kSize, [prepare](MArcScrollBar &bar) {
        bar.setRange(0, kRange);
        bar.setValue(kValue);
        prepare(bar);
    });
}

// What a painter on the arc with these hints leaves, cut to what is not empty.
struct Stamp {
    QPoint at;
    QImage image;
};

// The rectangle of what is not empty, out to where a vector register's worth of pixels begins:
// single pixels at the ends of a line cost more than whole registers.
QRect inkRect(const QImage &image)
{
    constexpr int kAlignment = 7; // px, the bits of eight pixels
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return {QPoint(ink.left() & ~kAlignment, ink.top()),
            QPoint(ink.right() | kAlignment, ink.bottom())};
}

void place(QPainter &painter)
{
    painter.setPen(QApplication::palette().color(QPalette::WindowText));
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(-460, 200);
    painter.rotate(90);
}

template <class Draw> Stamp stamp(Draw draw)
{
    const QPixmap picture = drawn(kSize, [draw](QPainter &painter) {
        place(painter);
        draw(painter);
    });
    const QImage image = picture.toImage();
    const QRect ink = inkRect(image);
    return {ink.topLeft(), image.copy(ink)};
}

void drawTicks(QPainter &painter, int range)
{
    painter.rotate(162);
    for (int i = 0; i <= range; ++i) {
        painter.drawLine(QLineF(0, qreal(0.9299999999999999 * 570), 0, qreal(0.98 * 570)));
        painter.rotate(qreal(36.0 / range));
    }
}

Stamp ticks()
{
    return stamp([](QPainter &painter) { drawTicks(painter, kRange); });
}

Stamp triangle(int range = kRange)
{
    return stamp([range](QPainter &painter) {
        painter.rotate(162 - 180);
        painter.rotate(qreal(36.0 / range * kValue));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(94, 94, 94));
        painter.drawConvexPolygon(QVector<QPointF>{{-2, -456}, {2, -456}, {0, -570}});
    });
}

Stamp turnedKnob()
{
    return stamp([](QPainter &painter) {
        painter.rotate(162 - 180);
        painter.rotate(qreal(36.0 / kRange * kValue));
        painter.drawPixmap(-22, -570, knob());
    });
}

PaintingMaker floorOf(const Stamp &first, const Stamp &second)
{
    return bareWidget(kSize, [first, second](QPainter &painter) {
        painter.drawImage(first.at, first.image);
        painter.drawImage(second.at, second.image);
    });
}

PaintingMaker bareFloor(const Stamp &pointer)
{
    return bareWidget(kSize,
                      [=](QPainter &painter) { painter.drawImage(pointer.at, pointer.image); });
}

// Soft edges over soft edges are not what they are as one picture.
PaintingMaker crowdedFloor()
{
    const Stamp pointer = triangle(kManyValues);
    return bareWidget(kSize, [pointer](QPainter &painter) {
        painter.save();
        place(painter);
        drawTicks(painter, kManyValues);
        painter.restore();
        painter.drawImage(pointer.at, pointer.image);
    });
}

PaintingMaker straightFloor()
{
    QVector<QRect> rows;
    for (int i = 0; i <= kRange; ++i)
        rows += QRect(0, 50 + i * 3, kSize.width(), 1);
    return bareWidget(kSize, [rows](QPainter &painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QApplication::palette().color(QPalette::WindowText));
        painter.drawRects(rows);
        painter.drawPixmap(0, 300 * kValue / kRange - 22 + 50, knob());
    });
}

PaintingMaker peer()
{
    return widgetOf<QScrollBar>(kSize, [](QScrollBar &bar) {
        bar.setRange(0, kRange);
        bar.setValue(kValue);
    });
}

// Another value, and its paint.
template <class Bar, class Prepare> PaintingMaker slide(Prepare prepare)
{
    return [prepare]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto bar = shownOn<Bar>(canvas, kSize, [prepare](Bar &fresh) {
            fresh.setRange(0, kRange);
            prepare(fresh);
        });
        return {canvas, [bar] {
                    bar->setValue(int(bar->value() + 1) % kRange);
                    bar->paint();
                }};
    };
}

// A finger goes along the arc, and each of its steps is painted.
template <class Bar, class Prepare> PaintingMaker drag(Prepare prepare)
{
    return [prepare]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto bar = shownOn<Bar>(canvas, kSize, prepare);
        sendMouse(*bar, QEvent::MouseButtonPress, {100, 150});
        return {canvas, [bar, y = 150, way = 8]() mutable {
                    y += way;
                    if (y < 60 || y > 340)
                        way = -way;
                    sendMouse(*bar, QEvent::MouseMove, {100, y});
                    bar->paint();
                }};
    };
}

// It is turned by a finger along its edge, too, and draws its ticks anew with each value.
void standUpright(QwtWheel &wheel) { wheel.setOrientation(Qt::Vertical); }

void givePicture(MArcScrollBar &bar) { bar.setPointPixmap(knob()); }

void straighten(MArcScrollBar &bar)
{
    bar.setRadius(0);
    givePicture(bar);
}

void addLooks(Rows &rows)
{
    const Against<PaintingMaker> scrollBar{"QScrollBar", peer(), kPeerLimit};
    rows.paint("MArcScrollBar", "arc", bar(AsItIs()), {floorOf(ticks(), triangle())}, {scrollBar});
    rows.paint("MArcScrollBar", "arc with picture", bar(givePicture),
               {floorOf(ticks(), turnedKnob())}, {scrollBar});
    rows.paint("MArcScrollBar", "arc without ticks",
               bar([](MArcScrollBar &b) { b.setShowTicks(false); }), {bareFloor(triangle())}, {},
               {"3,200 instructions turn the painter to its pointer's place, which its floor knows",
                {},
                1.5});
    rows.paint(
        "MArcScrollBar", "arc of many values",
        bar([](MArcScrollBar &b) { b.setMaximum(kManyValues); }), {crowdedFloor()}, {},
        {"its ticks are so near to each other that their soft edges lie over each other, and "
         "each is drawn in every paint, for 14,000 instructions",
         22});
    rows.paint("MArcScrollBar", "straight", bar(straighten), {straightFloor()}, {scrollBar},
               {"it takes less than its blit; 5,500 instructions a paint go into its rules, which "
                "its floor does not have",
                {},
                1.16});
}

void addMotions(Rows &rows)
{
    const std::string why = "the pointer of its floor stands still; a moved one is filled with "
                            "soft edges in its new turn";
    const Floor<PaintingMaker> floor{floorOf(ticks(), triangle())};
    rows.move("MArcScrollBar", "value moved", slide<MArcScrollBar>(AsItIs()), floor,
              {{"QwtWheel", slide<QwtWheel>(standUpright)}}, {why, {}, 2.22});
    rows.move("MArcScrollBar", "dragged", drag<MArcScrollBar>(AsItIs()), floor,
              {{"QwtWheel", drag<QwtWheel>(standUpright), kPeerLimit}}, {why, {}, 2.5});
    rows.move("MArcScrollBar", "picture moved", slide<MArcScrollBar>(givePicture),
              {floorOf(ticks(), turnedKnob())}, {},
              {"the picture of its floor stands still; a moved one is turned and smoothed in its "
               "new place, for 125,000 instructions",
               {},
               2.95});
    rows.move("MArcScrollBar", "straight moved", slide<MArcScrollBar>(straighten),
              {straightFloor()}, {});
}

} // namespace

void defineRows(Rows &rows, Tag<MArcScrollBar>)
{
    addLooks(rows);
    addMotions(rows);
}
