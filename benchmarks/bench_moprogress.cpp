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
constexpr double kMovingLimit = 0.7; // of the floor, which has its paths and keeps nothing
constexpr double kPeerLimit = 0.5;

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
    return onGround(bareWidget(kSize, [prepared = Prepared()](QPainter &painter) {
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
    }));
}

// A caption below the percentage, and no outline.
QString caption() { return QStringLiteral("Radio"); }

void enter(MOProgress &ring)
{
    ring.setBoundary(false);
    ring.setDispalyText(caption());
}

PaintingMaker captionedFloor()
{
    const QFont font = fontOf(25);
    const LaidOutText text =
        laidOut(caption(), font, QRectF(-100, 20, 200, 80), Qt::AlignHCenter | Qt::AlignTop);
    return onGround(bareWidget(kSize, [prepared = Prepared(), font, text](QPainter &painter) {
        painter.translate(110, 110);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(QColor(0, 0, 0, 100));
        painter.drawPath(prepared.disc);
        painter.setBrush(QColor(150, 150, 150, 100));
        painter.setPen(Qt::NoPen);
        painter.drawPath(prepared.ring);
        painter.setBrush(QColor(255, 125, 0));
        painter.drawPath(prepared.done);
        prepared.percentage.draw(painter, Qt::white);
        painter.setFont(font);
        text.draw(painter, Qt::white);
    }));
}

// Another value, and its paint.
PaintingMaker moved()
{
    return onGround([]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto ring = shownOn<MOProgress>(canvas, kSize, AsItIs());
        return {canvas, [ring] {
                    ring->setCurrentValue(ring->currentValue() == 50 ? 51 : 50);
                    ring->paint();
                }};
    });
}

PaintingMaker peer()
{
    return widgetOf<QProgressBar>(kSize, [](QProgressBar &bar) { bar.setValue(50); });
}

} // namespace

void defineRows(Rows &rows, Tag<MOProgress>)
{
    rows.paint("MOProgress", "half done", onGround(widgetOf<MOProgress>(kSize)), {floorRing()},
               {{"QProgressBar", peer(), kPeerLimit}});
    rows.paint("MOProgress", "captioned, no outline", onGround(widgetOf<MOProgress>(kSize, enter)),
               {captionedFloor()}, {});
    rows.move("MOProgress", "value moved", moved(), {floorRing(), kMovingLimit},
              {{"QProgressBar", peer()}},
              {"a half of it cuts the part that is done out of its circle, for which there is no "
               "shorter way to the same pixels, and a third fills and strokes it"});
}
