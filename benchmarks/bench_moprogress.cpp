// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "rows.h"

#include <moprogress.h>
#include <QPainterPath>
#include <QProgressBar>

namespace
{

constexpr QSize kSize(220, 220);

// The paths and layouts of a ring of 100 px at 50 %, made once.
struct Prepared {
    QPainterPath disc;
    QPainterPath ring;
    QPainterPath done;
    LaidOutText percentage;

    Prepared()
    {
        const QRectF square(-100, -100, 200, 200);
        QPainterPath inside;
        inside.addEllipse(square.adjusted(20, 20, -20, -20));
        disc.arcMoveTo(square, 0);
        disc.arcTo(square, 0, 360);
        ring = disc - inside;
        done.arcTo(square, 90, -180);
        done = done - inside;
        percentage = laidOut(QStringLiteral("50%"), QFont(), QRectF(-100, -100, 200, 120),
                             Qt::AlignHCenter | Qt::AlignBottom);
    }
};

PaintingMaker floorRing()
{
    return bareWidget(kSize, [prepared = Prepared()](QPainter &painter) {
        painter.translate(110, 110);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(QColor(0, 0, 0, 100));
        painter.drawPath(prepared.disc);
        painter.setBrush(QColor(150, 150, 150, 100));
        painter.setPen(QColor(255, 255, 255));
        painter.drawPath(prepared.ring);
        painter.setBrush(QColor(255, 125, 0));
        painter.drawPath(prepared.done);
        painter.drawStaticText(prepared.percentage.at, prepared.percentage.layout);
    });
}

} // namespace

void defineRows(Rows &rows, Tag<MOProgress>)
{
    rows.paint("MOProgress", "half done", widgetOf<MOProgress>(kSize), {floorRing()},
               {{"QProgressBar",
                 widgetOf<QProgressBar>(kSize, [](QProgressBar &bar) { bar.setValue(50); })}},
               {"its disc and rings are filled and stroked with soft edges in each paint", 27.3});
}
