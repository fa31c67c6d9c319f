// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "mouse.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <spsetupslider.h>

namespace
{

constexpr double kPeerLimit = 0.5;
constexpr QSize kTrack(20, 240);
constexpr QSize kKnob(40, 30);
constexpr int kBand = 30; // px above the track
constexpr QSize kSize(50, kTrack.height() + kBand);
constexpr int kLeft = (kSize.width() - kTrack.width()) / 2;
constexpr int kMiddle = kBand + kTrack.height() / 2; // px, of the knob at 0

const SliderArtwork &artwork()
{
    static const SliderArtwork instance(kTrack, kKnob);
    return instance;
}

void prepare(SpSetupSlider &slider)
{
    slider.setSliderNormalImage(artwork().groove);
    slider.setSliderPressImage(artwork().fill);
    slider.setPointNormalImage(artwork().knob);
    slider.setPointPressImage(artwork().knob);
}

// The finger goes by the way of a value and back, and each of its steps is painted.
PaintingMaker dragged()
{
    return onGround([]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto slider = shownOn<SpSetupSlider>(canvas, kSize, prepare);
        sendMouse(*slider, QEvent::MouseButtonPress, {25, kMiddle});
        return {canvas, [slider, y = kMiddle]() mutable {
                    y = y == kMiddle ? kMiddle + 24 : kMiddle;
                    sendMouse(*slider, QEvent::MouseMove, {25, y});
                    slider->paint();
                }};
    });
}

PaintingMaker floor()
{
    const int rowsBelow = kBand + kTrack.height() - 1 - kMiddle;
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.drawPixmap(kLeft, kBand, artwork().groove);
        painter.drawPixmap(kLeft, kMiddle, artwork().fill, 0, kMiddle - kBand, kTrack.width(),
                           rowsBelow);
    });
}

// The knob of ours is a widget of its own.
PaintingMaker peer()
{
    SliderArtwork bare = artwork();
    bare.knob = QPixmap(1, 1);
    bare.knob.fill(Qt::transparent);
    return onGround(picturedSlider(kSize, Qt::Vertical, bare, 50));
}

} // namespace

void defineRows(Rows &rows, Tag<SpSetupSlider>)
{
    rows.paint("SpSetupSlider", "track and fill", onGround(widgetOf<SpSetupSlider>(kSize, prepare)),
               {floor()}, {{"QSlider pictures", peer(), kPeerLimit}});
    rows.move("SpSetupSlider", "dragged", dragged(), {floor()}, {});
}
