// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <mprogressbar.h>

namespace
{

constexpr QSize kGroove(320, 20);
constexpr QSize kKnob(40, 40);
constexpr QSize kSize(360, 40);
constexpr int kLeft = (kSize.width() - kGroove.width()) / 2;
constexpr int kTop = (kSize.height() - kGroove.height()) / 2;

const SliderArtwork &artwork()
{
    static const SliderArtwork instance(kGroove, kKnob);
    return instance;
}

PaintingMaker picturesFloor()
{
    return bareWidget(kSize, [](QPainter &painter) {
        painter.drawPixmap(kLeft, kTop, artwork().groove);
        painter.drawPixmap(kLeft, kTop, artwork().fill, 0, 0, kGroove.width() / 2,
                           kGroove.height());
        painter.drawPixmap((kSize.width() - kKnob.width()) / 2, 0, artwork().knob);
    });
}

PaintingMaker plainFloor()
{
    return bareWidget(kSize, [](QPainter &painter) {
        constexpr int kRadius = 20;
        const int left = (kSize.width() - kRadius) / 2;
        painter.fillRect(0, 16, kSize.width(), 8, QColor(150, 150, 150));
        painter.fillRect(0, 16, left + kRadius / 2, 8, QColor(255, 125, 0));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(230, 230, 230));
        painter.drawEllipse(left, 10, kRadius, kRadius);
    });
}

// A circle with soft edges costs several times its square one.
PaintingMaker peer()
{
    return styledSlider(
        kSize, Qt::Horizontal,
        QStringLiteral("QSlider::groove:horizontal { height: 8px; background: #969696; }"
                       "QSlider::sub-page:horizontal { background: #ff7d00; }"
                       "QSlider::handle:horizontal { width: 20px; border-radius: 10px; "
                       "background: #e6e6e6; }"),
        50);
}

} // namespace

void defineRows(Rows &rows, Tag<MProgressBar>)
{
    rows.paint("MProgressBar", "pictures",
               widgetOf<MProgressBar>(kSize,
                                      [](MProgressBar &bar) {
                                          bar.setSliderNormalImage(artwork().fill);
                                          bar.setSliderPressImage(artwork().groove);
                                          bar.setPointNormalImage(artwork().knob);
                                          bar.setPointPressImage(artwork().knob);
                                      }),
               {picturesFloor()}, {{"QSlider style sheet", peer()}});
    rows.paint("MProgressBar", "plain colours",
               widgetOf<MProgressBar>(kSize, [](MProgressBar &bar) { bar.setPonitRadius(20); }),
               {plainFloor()}, {{"QSlider style sheet", peer()}},
               {"its knob is a circle that is filled with soft edges in each paint", 4.05});
}
