// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"

#include <marcscrollbar.h>
#include <QPainter>

namespace
{

QPixmap knob()
{
    QPixmap pixmap(40, 40);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(90, 190, 255), 2));
    painter.setBrush(QColor(30, 90, 150));
    painter.drawEllipse(QRectF(3, 3, 34, 34));
    return pixmap;
}

void prepare(MArcScrollBar &bar)
{
    QPalette palette = bar.palette();
    palette.setColor(bar.foregroundRole(), QColor(150, 165, 185));
    bar.setPalette(palette);
    bar.setPointColor(QColor(255, 150, 40));
    bar.setRange(0, 50);
    bar.setValue(15);
}

// An arc, and beside it the straight one.
MArcScrollBar *buildBoth(Scene &scene)
{
    auto *arc = new MArcScrollBar(&scene);
    arc->resize(160, 400);
    prepare(*arc);

    auto *straight = new MArcScrollBar(&scene);
    straight->setGeometry(260, 0, 40, 400);
    prepare(*straight);
    straight->setRadius(0);
    straight->setPointPixmap(knob());
    scene.alsoShow(straight);
    QObject::connect(arc, &QScrollBar::valueChanged, straight, &QScrollBar::setValue);
    QObject::connect(straight, &QScrollBar::valueChanged, arc, &QScrollBar::setValue);
    return arc;
}

} // namespace

void definePages(PagesOf<MArcScrollBar> &pages)
{
    pages.add(buildBoth)
        .state("at its start", [](MArcScrollBar &b) { b.setValue(0); })
        .state("at its end", [](MArcScrollBar &b) { b.setValue(50); })
        .state("picture", [](MArcScrollBar &b) { b.setPointPixmap(knob()); })
        .state("without ticks", [](MArcScrollBar &b) { b.setShowTicks(false); })
        .state("wide arc",
               [](MArcScrollBar &b) {
                   b.setRadius(190);
                   b.setCenterPoint({-50, 200});
                   b.setStartAngle(110);
               })
        .state("turned to the other side",
               [](MArcScrollBar &b) {
                   b.setRotateAngle(270);
                   b.setCenterPoint({620, 200});
               })
        .touches("touched",
                 [](MArcScrollBar &, Finger &finger) {
                     finger.press({110, 260}).hold(80).picture().release();
                 })
        .touches("dragged", [](MArcScrollBar &, Finger &finger) {
            finger.press({110, 100}).moveTo({100, 320}, 300).picture().release();
        });
}
