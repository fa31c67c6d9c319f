// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <mhorslider.h>
#include <QLabel>

namespace
{

void givePictures(MHorSlider &slider)
{
    QFont font;
    font.setPixelSize(20);
    slider.setFont(font);
    slider.setTextWidth(60);
    slider.setAlignment(Qt::AlignCenter);
    slider.setSliderNormalImage(Art::pixmap(QStringLiteral("groove")));
    slider.setSliderPressImage(Art::pixmap(QStringLiteral("groove-fill")));
    slider.setSliderNormalDisablePix(Art::pixmap(QStringLiteral("groove")));
    slider.setSliderPressDisablePix(Art::pixmap(QStringLiteral("groove-fill-grey")));
    slider.setPointNormalImage(Art::pixmap(QStringLiteral("knob")));
    slider.setPointDisableImage(Art::pixmap(QStringLiteral("knob-grey")));
    slider.setPointPressImage(Art::pixmap(QStringLiteral("knob-pressed")));
}

MHorSlider *buildSlider(Scene &scene)
{
    auto *slider = new MHorSlider(&scene);
    slider->setItemID(2);
    givePictures(*slider);
    return slider;
}

// Balance and fader, filled from the middle, with their names above.
MHorSlider *buildBalance(Scene &scene)
{
    const auto add = [&scene](const QString &name, int id, int value, int y) {
        auto *label = new QLabel(name, &scene);
        label->setGeometry(0, y, 200, 28);
        auto *slider = new MHorSlider(&scene);
        slider->setItemID(id);
        slider->setMaxValue(9);
        slider->setMinValue(-9);
        slider->setIsNormal(false);
        givePictures(*slider);
        slider->setCurrentValue(value);
        slider->move(0, y + 30);
        return slider;
    };
    auto *balance = add(QStringLiteral("Balance"), 10, 4, 0);
    scene.alsoShow(add(QStringLiteral("Fader"), 11, -6, 110));
    return balance;
}

} // namespace

void definePages(PagesOf<MHorSlider> &pages)
{
    auto page = pages.add(buildSlider);
    page.state("largest", [](MHorSlider &s) { s.setCurrentValue(5); })
        .state("smallest", [](MHorSlider &s) { s.setCurrentValue(-5); })
        .state("disabled", [](MHorSlider &s) { s.setEnabled(false); })
        .state("without value", [](MHorSlider &s) { s.setIsShowValue(false); })
        .state("below the minimum",
               [](MHorSlider &s) {
                   s.setMinValue(0);
                   s.setTouchPos(0);
                   s.setCurrentValue(-2);
               })
        .touches("dragged",
                 [](MHorSlider &, Finger &finger) {
                     finger.press({160, 20}).moveTo({270, 25}, 200).picture().release();
                 })
        .touches("tapped", [](MHorSlider &, Finger &finger) {
            finger.press({40, 20}).release().picture();
        });

    auto balance = pages.add(QStringLiteral("Balance and fader"), buildBalance);
    balance.state("at rest", [](MHorSlider &s) { s.setCurrentValue(0); })
        .state("far left", [](MHorSlider &s) { s.setCurrentValue(-9); })
        .touches("dragged across the middle", [](MHorSlider &, Finger &finger) {
            finger.press({240, 20}).moveTo({110, 20}, 200).picture().release();
        });
}
