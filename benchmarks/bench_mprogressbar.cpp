// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <mprogressbar.h>
#include <QPalette>
#include <qwt_thermo.h>

namespace
{

constexpr double kPeerLimit = 0.5;
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

void givePictures(MProgressBar &bar)
{
    bar.setSliderNormalImage(artwork().fill);
    bar.setSliderPressImage(artwork().groove);
    bar.setPointNormalImage(artwork().knob);
    bar.setPointPressImage(artwork().knob);
}

void giveKnob(MProgressBar &bar) { bar.setPonitRadius(20); }

// Another value, and its paint.
template <class Prepare> PaintingMaker moved(Prepare prepare)
{
    return onGround([prepare]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto bar = shownOn<MProgressBar>(canvas, kSize, prepare);
        return {canvas, [bar] {
                    bar->setCurrentValue(bar->currentValue() == 50 ? 51 : 50);
                    bar->paint();
                }};
    });
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

// A bar of the same colours, filled as far, without scale and knob.
void giveBar(QwtThermo &thermo)
{
    thermo.setOrientation(Qt::Horizontal);
    thermo.setScalePosition(QwtThermo::NoScale);
    thermo.setScale(0, 100);
    thermo.setBorderWidth(0);
    thermo.setPipeWidth(8);
    QPalette palette = thermo.palette();
    palette.setColor(QPalette::Base, QColor(150, 150, 150));
    palette.setColor(QPalette::ButtonText, QColor(255, 125, 0));
    thermo.setPalette(palette);
    thermo.setValue(50);
}

PaintingMaker movedThermo()
{
    return onGround([]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto thermo = shownOn<QwtThermo>(canvas, kSize, giveBar);
        return {canvas, [thermo] {
                    thermo->setValue(thermo->value() == 50 ? 51 : 50);
                    thermo->paint();
                }};
    });
}

} // namespace

void defineRows(Rows &rows, Tag<MProgressBar>)
{
    rows.paint("MProgressBar", "pictures", onGround(widgetOf<MProgressBar>(kSize, givePictures)),
               {picturesFloor()},
               {{"QSlider pictures", onGround(picturedSlider(kSize, Qt::Horizontal, artwork(), 50)),
                 kPeerLimit}});
    rows.paint("MProgressBar", "plain colours", onGround(widgetOf<MProgressBar>(kSize, giveKnob)),
               {plainFloor()},
               {{"QSlider style sheet", peer()},
                {"QwtThermo", onGround(widgetOf<QwtThermo>(kSize, giveBar))}});
    rows.move("MProgressBar", "pictures moved", moved(givePictures), {picturesFloor()}, {});
    rows.move("MProgressBar", "plain colours moved", moved(giveKnob), {plainFloor()},
              {{"QwtThermo", movedThermo()}});
}
