// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "mouse.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <mhorslider.h>

namespace
{

constexpr double kPeerLimit = 0.5;
constexpr QSize kGroove(320, 20);
constexpr QSize kKnob(40, 40);
constexpr int kTop = (kKnob.height() - kGroove.height()) / 2;
constexpr int kMiddle = kGroove.width() / 2; // px, of the knob at 0
constexpr QSize kSize(kGroove.width(), kKnob.height());

const SliderArtwork &artwork()
{
    static const SliderArtwork instance(kGroove, kKnob);
    return instance;
}

void prepare(MHorSlider &slider)
{
    slider.setSliderNormalImage(artwork().groove);
    slider.setSliderPressImage(artwork().fill);
    slider.setPointNormalImage(artwork().knob);
    slider.setPointPressImage(artwork().knob);
}

PaintingMaker slider(bool isNormal, int value)
{
    return onGround(widgetOf<MHorSlider>(kSize, [=](MHorSlider &slider) {
        slider.setIsNormal(isNormal);
        prepare(slider);
        slider.setCurrentValue(value);
    }));
}

// The same in the pictures of a disabled one.
PaintingMaker disabledSlider()
{
    return onGround(widgetOf<MHorSlider>(kSize, [](MHorSlider &slider) {
        slider.setSliderNormalDisablePix(artwork().fill);
        slider.setSliderPressDisablePix(artwork().groove);
        slider.setSliderNormalImage(artwork().groove);
        slider.setPointNormalImage(artwork().knob);
        slider.setPointPressImage(artwork().knob);
        slider.setEnabled(false);
    }));
}

// The finger goes by the way of a value and back, and each of its steps is painted.
PaintingMaker dragged()
{
    return onGround([]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto slider = shownOn<MHorSlider>(canvas, kSize, prepare);
        sendMouse(*slider, QEvent::MouseButtonPress, {kMiddle, 20});
        return {canvas, [slider, x = kMiddle]() mutable {
                    x = x == kMiddle ? kMiddle + 30 : kMiddle;
                    sendMouse(*slider, QEvent::MouseMove, {x, 20});
                    slider->paint();
                }};
    });
}

// The groove with the columns from `left` to `right` filled.
PaintingMaker floorOf(int left, int right)
{
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.drawPixmap(0, kTop, artwork().groove);
        painter.drawPixmap(left, kTop, artwork().fill, left, 0, right - left + 1, kGroove.height());
    });
}

PaintingMaker disabledFloor()
{
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.drawPixmap(0, kTop, artwork().fill);
        painter.drawPixmap(0, kTop, artwork().groove, 0, 0, kMiddle, kGroove.height());
    });
}

PaintingMaker peer(int value)
{
    return onGround(picturedSlider(kSize, Qt::Horizontal, artwork(), value));
}

} // namespace

void defineRows(Rows &rows, Tag<MHorSlider>)
{
    const int knobAtEnd = kSize.width() - kKnob.width();
    rows.paint("MHorSlider", "from the left", slider(true, 0), {floorOf(0, kMiddle - 1)},
               {{"QSlider pictures", peer(50), kPeerLimit}});
    rows.paint("MHorSlider", "from the middle", slider(false, 5),
               {floorOf(kMiddle + 2, knobAtEnd + kKnob.width() / 2 - 1)},
               {{"QSlider pictures", peer(100), kPeerLimit}});
    rows.paint("MHorSlider", "disabled", disabledSlider(), {disabledFloor()}, {});
    rows.move("MHorSlider", "dragged", dragged(), {floorOf(0, kMiddle - 1)}, {},
              {"33,000 instructions of a step set the number in its label and move the label of "
               "its knob; its floor stands still",
               {},
               1.4});
}
