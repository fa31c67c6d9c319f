// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "rows.h"
#include "ticks.h"

#include <QProgressBar>
#include <sploadinground.h>

namespace
{

constexpr QSize kSize(100, 100);
constexpr int kRadius = 45; // px

// The twelve spokes, the last of them where the ring begins.
template <class Draw> PaintingMaker floorOf(Draw draw)
{
    return bareWidget(kSize, [draw](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(kSize.width() / 2, kSize.height() / 2);
        painter.setPen(Qt::NoPen);
        for (int i = 12; i > 0; --i) {
            draw(painter, i);
            painter.rotate(-30);
        }
    });
}

QColor faded(int i) { return {255, 255, 255, i < 6 ? 120 : 20 * i + 15}; }

PaintingMaker ring(SpLoadingRound::DrawStyle style)
{
    return onGround(widgetOf<SpLoadingRound>(kSize, [style](SpLoadingRound &ring) {
        ring.setRadius(kRadius);
        ring.setDrawStyle(style);
    }));
}

// A step of the rotation, and its paint.
PaintingMaker turned()
{
    return onGround([]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto ring = shownOn<SpLoadingRound>(
            canvas, kSize, [](SpLoadingRound &shown) { shown.setRadius(kRadius); });
        return {canvas, [ring] {
                    ring->setIndex(ring->index() + 1);
                    ring->paint();
                }};
    });
}

// A tick of the timer, which would go on too seldom by itself, and its paint.
PaintingMaker ticked(SpLoadingRound::DrawStyle style)
{
    return onGround([style]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto ring = shownOn<SpLoadingRound>(canvas, kSize, [style](SpLoadingRound &shown) {
            shown.setRadius(kRadius);
            shown.setDrawStyle(style);
            shown.setTimer(1000000);
        });
        return {canvas, [ring, timer = timerOf(*ring)] {
                    sendTick(*ring, timer);
                    ring->paint();
                }};
    });
}

// Qt has no busy ring; its busy bar stands for it.
PaintingMaker busyBar()
{
    return widgetOf<QProgressBar>(kSize, [](QProgressBar &bar) { bar.setRange(0, 0); });
}

PaintingMaker floorOf(SpLoadingRound::DrawStyle style)
{
    switch (style) {
    case SpLoadingRound::RectStyle:
        return floorOf([](QPainter &painter, int i) {
            painter.setBrush(faded(i));
            painter.drawRect(27, 0, 18, 7);
        });
    case SpLoadingRound::GrayStyle:
        return floorOf([](QPainter &painter, int i) {
            const int grey = 252 - 21 * i;
            painter.setBrush(QColor(grey, grey, grey));
            painter.drawRoundedRect(19, 0, 22, 7, 25, 25, Qt::RelativeSize);
        });
    default:
        return floorOf([](QPainter &painter, int i) {
            painter.setBrush(faded(i));
            painter.drawEllipse(27, -3, 18, 6);
        });
    }
}

} // namespace

void defineRows(Rows &rows, Tag<SpLoadingRound>)
{
    const struct {
        const char *name;
        SpLoadingRound::DrawStyle style;
    } looks[] = {{"ellipses", SpLoadingRound::EllipseStyle},
                 {"rectangles", SpLoadingRound::RectStyle},
                 {"greys", SpLoadingRound::GrayStyle}};
    for (const auto &look : looks)
        rows.paint("SpLoadingRound", look.name, ring(look.style), {floorOf(look.style)},
                   {{"QProgressBar", busyBar()}});
    rows.move("SpLoadingRound", "turned", turned(), {floorOf(SpLoadingRound::EllipseStyle)},
              {{"QProgressBar", busyBar(), 1.0}});
    rows.move("SpLoadingRound", "timer tick, rectangles", ticked(SpLoadingRound::RectStyle),
              {floorOf(SpLoadingRound::RectStyle)}, {});
    rows.move("SpLoadingRound", "timer tick, greys", ticked(SpLoadingRound::GrayStyle),
              {floorOf(SpLoadingRound::GrayStyle)}, {});
}
