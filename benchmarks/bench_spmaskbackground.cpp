// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "peers.h"
#include "rows.h"

#include <spmaskbackground.h>

namespace
{

constexpr QSize kSize(800, 480);
constexpr int kRadius = 40; // px

const QColor &dark()
{
    static const QColor color(0, 0, 0, 128);
    return color;
}

PaintingMaker mask(int radius)
{
    return widgetOf<SpMaskBackground>(kSize, [radius](SpMaskBackground &mask) {
        mask.setPainterColor(dark());
        mask.setRoundX(radius);
        mask.setRoundY(radius);
    });
}

PaintingMaker peer(int radius)
{
    return styledButton(
        kSize,
        QStringLiteral("border: none; background: rgba(0, 0, 0, 128); border-radius: %1px")
            .arg(radius));
}

} // namespace

void defineRows(Rows &rows, Tag<SpMaskBackground>)
{
    rows.paint(
        "SpMaskBackground", "square", mask(0),
        {bareWidget(kSize,
                    [](QPainter &painter) { painter.fillRect(QRect(QPoint(), kSize), dark()); })},
        {{"QPushButton style sheet", peer(0)}});
    rows.paint("SpMaskBackground", "rounded", mask(kRadius),
               {bareWidget(kSize,
                           [](QPainter &painter) {
                               painter.setRenderHint(QPainter::Antialiasing);
                               painter.setPen(Qt::NoPen);
                               painter.setBrush(dark());
                               painter.drawRoundedRect(QRectF(QPointF(), kSize), kRadius, kRadius);
                           })},
               {{"QPushButton style sheet", peer(kRadius)}});
}
