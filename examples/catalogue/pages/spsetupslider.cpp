// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <spsetupslider.h>

namespace
{

void givePictures(SpSetupSlider &slider, bool hasButtons)
{
    slider.setHasAddDecBtn(hasButtons);
    slider.setSliderNormalImage(Art::pixmap(QStringLiteral("slider-track")));
    slider.setSliderPressImage(Art::pixmap(QStringLiteral("slider-fill")));
    slider.setPointNormalImage(Art::pixmap(QStringLiteral("knob")));
    slider.setPointPressImage(Art::pixmap(QStringLiteral("knob-pressed")));
    slider.setAddBtnNormalImage(Art::pixmap(QStringLiteral("plus")));
    slider.setAddBtnPressImage(Art::pixmap(QStringLiteral("plus-pressed")));
    slider.setDecBtnNormalImage(Art::pixmap(QStringLiteral("minus")));
    slider.setDecBtnPressImage(Art::pixmap(QStringLiteral("minus-pressed")));
}

SpSetupSlider *buildSlider(Scene &scene)
{
    auto *slider = new SpSetupSlider(&scene);
    slider->setItemID(3);
    givePictures(*slider, false);
    slider->setFontSize(20);
    return slider;
}

SpSetupSlider *buildSliderWithButtons(Scene &scene)
{
    auto *slider = new SpSetupSlider(&scene);
    slider->setItemID(4);
    givePictures(*slider, true);
    slider->setFontSize(20);
    return slider;
}

} // namespace

void definePages(PagesOf<SpSetupSlider> &pages)
{
    auto page = pages.add(buildSlider);
    page.state("largest", [](SpSetupSlider &s) { s.setCurrentValue(5); })
        .state("smallest", [](SpSetupSlider &s) { s.setCurrentValue(-5); })
        .state("disabled", [](SpSetupSlider &s) { s.setEnabled(false); })
        .state("below the minimum",
               [](SpSetupSlider &s) {
                   s.setMinValue(0);
                   s.setTouchPos(0);
                   s.setCurrentValue(-1);
               })
        .state("without fill",
               [](SpSetupSlider &s) {
                   s.setSliderPressImage({});
                   s.update();
               })
        .touches("dragged",
                 [](SpSetupSlider &, Finger &finger) {
                     finger.press({25, 140}).moveTo({25, 70}, 200).picture().release();
                 })
        .touches("dragged too far aside",
                 [](SpSetupSlider &, Finger &finger) {
                     finger.press({25, 140}).moveTo({120, 70}, 200).picture().release();
                 })
        .touches("tapped at the bottom", [](SpSetupSlider &, Finger &finger) {
            finger.press({25, 245}).release().picture();
        });

    auto withButtons =
        pages.add(QStringLiteral("SpSetupSlider with buttons"), buildSliderWithButtons);
    withButtons.state("disabled", [](SpSetupSlider &s) { s.setEnabled(false); })
        .touches("one up",
                 [](SpSetupSlider &, Finger &finger) {
                     finger.press({25, 50}).hold(80).picture().release();
                 })
        .touches("held down", [](SpSetupSlider &, Finger &finger) {
            finger.press({25, 310}).hold(1500).picture().release();
        });
}
