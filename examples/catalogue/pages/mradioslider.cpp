// SPDX-License-Identifier: Apache-2.0
#include "bands.h"
#include "catalogue.h"

#include <mradioslider.h>

namespace
{

constexpr int kLabelWidth = 50; // px, enough for the longest label

// Wide enough for the labels: one stands at every MHz, or at every tick that is a multiple of ten.
int gapFor(const Band &band)
{
    if (band.isFM)
        return 6;
    return int(band.step) % 10 == 0 ? kLabelWidth : int(band.step) % 5 == 0 ? kLabelWidth / 2 : 6;
}

MRadioSlider *buildSlider(Scene &scene, const Band &band)
{
    auto *slider = new MRadioSlider(&scene);
    slider->resize(640, 110);
    slider->setLineColor(Qt::white);
    QFont font;
    font.setPixelSize(17);
    slider->setFont(font);
    slider->setIndicatePix(needlePicture({13, 110}));
    slider->setIsFM(band.isFM);
    slider->setFreqStart(band.start);
    slider->setFreqEnd(band.end);
    // From 87.9 in steps of 0.2 no tick stands at a whole MHz, where the labels are.
    slider->setFreqStep(band.isFM ? 0.1F : band.step);
    slider->setLineGap(gapFor(band));
    slider->setLineH(12);
    slider->setScaleMarginY(-6);
    slider->initSliderRange();
    slider->setCurFreq(band.tuned);
    return slider;
}

void defineLooks(PageWriter<MRadioSlider> &page)
{
    const std::pair<const char *, MRadioSlider::ScaleAlignmentMode> alignments[] = {
        {"bottom", MRadioSlider::AlignBottom},
        {"top", MRadioSlider::AlignTop},
        {"centre", MRadioSlider::AlignCenter}};
    for (const auto &[name, alignment] : alignments) {
        const auto mode = alignment;
        page.state(QStringLiteral("%1, text below").arg(QLatin1String(name)),
                   [mode](MRadioSlider &s) {
                       s.setScaleAlign(mode);
                       s.setScaleMarginY(mode == MRadioSlider::AlignTop ? 30 : -6);
                   });
        page.state(QStringLiteral("%1, text above").arg(QLatin1String(name)),
                   [mode](MRadioSlider &s) {
                       s.setScaleAlign(mode);
                       s.setTextPosition(MRadioSlider::TextTop);
                       s.setTextMarginY(6);
                       s.setScaleMarginY(mode == MRadioSlider::AlignTop ? 10 : -30);
                   });
    }
}

void defineTouches(PageWriter<MRadioSlider> &page, const Band &band)
{
    page.state("first of the band", [band](MRadioSlider &s) { s.setCurFreq(band.start); })
        .state("last of the band", [band](MRadioSlider &s) { s.setCurFreq(band.end); })
        .touches("drag",
                 [](MRadioSlider &, Finger &finger) {
                     finger.press({400, 55}).moveTo({250, 55}, 200).picture().release();
                 })
        .touches("drag beyond the end",
                 [](MRadioSlider &s, Finger &finger) {
                     s.setCurFreq(s.getFreqStart());
                     finger.press({100, 55}).moveTo({500, 55}, 100).picture().release();
                 })
        .touches("tap", [](MRadioSlider &, Finger &finger) { finger.press().picture().release(); });
}

} // namespace

void definePages(PagesOf<MRadioSlider> &pages)
{
    for (const Band &band : radioBands()) {
        auto page = pages.add(QStringLiteral("MRadioSlider ") + band.name,
                              [band](Scene &scene) { return buildSlider(scene, band); });
        defineLooks(page);
        defineTouches(page, band);
    }
}
