// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"

#include <mcirculardial.h>

namespace
{

constexpr QSize kSize(360, 360);
constexpr QPoint kLow(75, 95); // near the rim, at about a tenth and nine tenths of the arc
constexpr QPoint kHigh(285, 95);

// An arc at the top, where touches and picture agree.
MCircularDial *buildDial(Scene &scene)
{
    auto *dial = new MCircularDial(&scene);
    dial->resize(kSize);
    dial->setRadius(175);
    dial->setBgColor(QColor(38, 50, 66));
    dial->setCenterColor(QColor(255, 150, 40));
    dial->setTextColor(QColor(225, 232, 240));
    QFont font;
    font.setPixelSize(10);
    dial->setFont(font);
    dial->setRotateAngle(0);
    return dial;
}

MCircularDial *buildTuner(Scene &scene)
{
    auto *dial = buildDial(scene);
    dial->setScaleLong(2);
    dial->setUnit(QStringLiteral(" MHz"));
    dial->setValue(98.5);
    return dial;
}

MCircularDial *buildVolume(Scene &scene)
{
    auto *dial = buildDial(scene);
    dial->setMinValue(0);
    dial->setMaxValue(40);
    dial->setScale(1);
    dial->setScaleLong(5);
    dial->setCenterColor(QColor(90, 190, 255));
    dial->setValue(12);
    return dial;
}

MCircularDial *buildTemperature(Scene &scene)
{
    auto *dial = buildDial(scene);
    dial->setMinValue(16);
    dial->setMaxValue(28);
    dial->setScale(0.5);
    dial->setUnit(QStringLiteral(" °C"));
    dial->setBgColor(QColor(70, 40, 44));
    dial->setValue(21.5);
    return dial;
}

// What all three dials can do with a finger.
template <class Writer> void addTouches(Writer &page)
{
    page.touches("touched",
                 [](MCircularDial &, Finger &finger) {
                     finger.press(kHigh).hold(80).picture().release();
                 })
        .touches("dragged",
                 [](MCircularDial &, Finger &finger) {
                     finger.press(kLow).moveTo(kHigh, 300).picture().release();
                 })
        .silentTouches("touched below the arc", [](MCircularDial &, Finger &finger) {
            finger.press({75, 285}).hold(80).release();
        });
}

} // namespace

void definePages(PagesOf<MCircularDial> &pages)
{
    auto tuner = pages.add(buildTuner);
    tuner.state("lowest", [](MCircularDial &d) { d.setValue(87.5); })
        .state("highest", [](MCircularDial &d) { d.setValue(108); })
        .state("every fifth number", [](MCircularDial &d) { d.setScaleLong(5); })
        .state("half ticks", [](MCircularDial &d) { d.setScale(0.5); })
        .state("turned to the right", [](MCircularDial &d) { d.setRotateAngle(90); })
        .state("three quarters of a turn", [](MCircularDial &d) { d.setStartAngle(45); })
        .state("small and red", [](MCircularDial &d) {
            d.setRadius(130);
            d.setBgColor(QColor(90, 30, 34));
            d.setCenterColor(Qt::white);
            d.setTextColor(QColor(255, 200, 120));
        });
    addTouches(tuner);

    auto volume = pages.add(QStringLiteral("MCircularDial volume"), buildVolume);
    volume.state("silent", [](MCircularDial &d) { d.setValue(0); })
        .state("loudest", [](MCircularDial &d) { d.setValue(40); });
    addTouches(volume);

    auto temperature = pages.add(QStringLiteral("MCircularDial temperature"), buildTemperature);
    temperature.state("coldest", [](MCircularDial &d) { d.setValue(16); })
        .state("warmest", [](MCircularDial &d) { d.setValue(28); });
    addTouches(temperature);
}
