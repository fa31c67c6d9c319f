// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <QLabel>
#include <spsetupslider.h>
#include <spsetupslidercontainer.h>

namespace
{

constexpr int kBands = 5; // on one page
constexpr int kColumn = 80; // px
constexpr int kHeight = 290; // px
constexpr const char *kNames[] = {"31", "62", "125", "250", "500", "1k", "2k", "4k", "8k", "16k"};
constexpr int kValues[] = {6, 4, 2, 0, -2, -3, -1, 2, 5, 7};

SpSetupSlider *addBand(SpSetupSliderContainer &page, int band, int column)
{
    auto *slider = new SpSetupSlider(&page);
    slider->setItemID(band);
    slider->setMaxValue(10);
    slider->setMinValue(-10);
    slider->setSliderNormalImage(Art::pixmap(QStringLiteral("slider-track")));
    slider->setSliderPressImage(Art::pixmap(QStringLiteral("slider-fill")));
    slider->setPointNormalImage(Art::pixmap(QStringLiteral("knob")));
    slider->setPointPressImage(Art::pixmap(QStringLiteral("knob-pressed")));
    slider->setFontSize(18);
    slider->move(column * kColumn + (kColumn - slider->width()) / 2, 0);
    QObject::connect(slider, &SpSetupSlider::valueChangeSig, &page,
                     &SpSetupSliderContainer::valueChangeSlot);
    QObject::connect(slider, &SpSetupSlider::saveDataSig, &page,
                     &SpSetupSliderContainer::saveDataSlot);
    return slider;
}

// Five bands, named below.
SpSetupSliderContainer *addPage(Scene &scene, int firstBand)
{
    auto *page = new SpSetupSliderContainer(&scene);
    page->setTotalNumber(kBands);
    page->resize(kBands * kColumn, kHeight);
    for (int i = 0; i < kBands; ++i) {
        const int band = firstBand + i;
        addBand(*page, band, i)->setCurrentValue(kValues[band]);
        auto *label = new QLabel(QLatin1String(kNames[band]), page);
        label->setAlignment(Qt::AlignCenter);
        label->setGeometry(i * kColumn, kHeight - 30, kColumn, 30);
    }
    return page;
}

// A ten-band equaliser on two pages. A swipe beside the knobs turns from one to the other.
SpSetupSliderContainer *buildEqualiser(Scene &scene)
{
    auto *low = addPage(scene, 0);
    auto *high = addPage(scene, kBands);
    high->hide();
    const auto turn = [low, high](bool left) {
        low->setVisible(!left);
        high->setVisible(left);
    };
    QObject::connect(low, &SpSetupSliderContainer::pageChanged, low, turn);
    QObject::connect(high, &SpSetupSliderContainer::pageChanged, low, turn);
    scene.alsoShow(high);
    return low;
}

} // namespace

void definePages(PagesOf<SpSetupSliderContainer> &pages)
{
    auto page = pages.add(buildEqualiser);
    page.touches("band dragged",
                 [](SpSetupSliderContainer &, Finger &finger) {
                     finger.press({120, 100}).moveTo({120, 200}, 200).picture().release();
                 })
        .touches("swiped to the next page",
                 [](SpSetupSliderContainer &, Finger &finger) {
                     finger.press({300, 275}).moveTo({120, 275}, 150).release().picture();
                 })
        .silentTouches("swiped too short", [](SpSetupSliderContainer &, Finger &finger) {
            finger.press({300, 275}).moveTo({200, 275}, 150).release();
        });
}
