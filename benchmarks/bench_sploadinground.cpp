// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "rows.h"

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
    return widgetOf<SpLoadingRound>(kSize, [style](SpLoadingRound &ring) {
        ring.setRadius(kRadius);
        ring.setDrawStyle(style);
    });
}

OwnLimits spokesLimit(double blit)
{
    return {"its twelve spokes are turned and filled with soft edges in each paint", blit};
}

// Qt has no busy ring; its busy bar stands for it.
PaintingMaker busyBar()
{
    return widgetOf<QProgressBar>(kSize, [](QProgressBar &bar) { bar.setRange(0, 0); });
}

} // namespace

void defineRows(Rows &rows, Tag<SpLoadingRound>)
{
    rows.paint("SpLoadingRound", "ellipses", ring(SpLoadingRound::EllipseStyle),
               {floorOf([](QPainter &painter, int i) {
                   painter.setBrush(faded(i));
                   painter.drawEllipse(27, -3, 18, 6);
               })},
               {{"QProgressBar", busyBar()}}, spokesLimit(19.3));
    rows.paint("SpLoadingRound", "rectangles", ring(SpLoadingRound::RectStyle),
               {floorOf([](QPainter &painter, int i) {
                   painter.setBrush(faded(i));
                   painter.drawRect(27, 0, 18, 7);
               })},
               {{"QProgressBar", busyBar()}}, spokesLimit(9.1));
    rows.paint("SpLoadingRound", "greys", ring(SpLoadingRound::GrayStyle),
               {floorOf([](QPainter &painter, int i) {
                   const int grey = 252 - 21 * i;
                   painter.setBrush(QColor(grey, grey, grey));
                   painter.drawRoundedRect(19, 0, 22, 7, 25, 25, Qt::RelativeSize);
               })},
               {{"QProgressBar", busyBar()}}, spokesLimit(19.3));
}
