// SPDX-License-Identifier: Apache-2.0
#include "bands.h"
#include "catalogue.h"

#include <mkarvoslider.h>

#include <cmath>

namespace
{

// The scale around a band: its ends at labels, its ticks where they are drawn.
struct Drawn {
    float start;
    float end;
    float step;
};

Drawn drawnFor(const Band &band)
{
    if (band.isFM)
        return {std::floor(band.start), std::ceil(band.end), 0.5F};
    const float margin = band.end > 5000.0F ? 0.0F : 20.0F;
    return {std::floor((band.start - margin) / 100.0F) * 100.0F,
            std::ceil((band.end + margin) / 100.0F) * 100.0F, band.end < 300.0F ? 10.0F : 20.0F};
}

MKARVOSlider *buildSlider(Scene &scene, const Band &band)
{
    auto *slider = new MKARVOSlider(&scene);
    slider->resize(640, 170);
    QFont font;
    font.setPixelSize(band.isFM ? 12 : 16);
    slider->setFont(font);
    slider->setLineH(24);
    const Drawn drawn = drawnFor(band);
    slider->setFreqStart(drawn.start);
    slider->setFreqEnd(drawn.end);
    slider->setFreqStep(drawn.step);
    slider->setCurFreq(band.tuned);
    slider->setPointMarginY(0);
    slider->setIndicatePix(needlePicture({13, 140}));
    QMetaObject::invokeMethod(slider, "freqParamChangedSlot", Q_ARG(bool, band.isFM),
                              Q_ARG(float, band.start), Q_ARG(float, band.end),
                              Q_ARG(float, band.step));
    return slider;
}

void defineLooks(PageWriter<MKARVOSlider> &page)
{
    struct Row {
        const char *name;
        MKARVOSlider::ScaleAlignmentMode mode;
        int marginAbove; // px, of the ticks with the text above
        int marginBelow; // px, of the ticks with the text below
    };
    const Row rows[] = {{"bottom", MKARVOSlider::AlignBottom, -10, -10},
                        {"top", MKARVOSlider::AlignTop, 20, 20},
                        {"centre", MKARVOSlider::AlignCenter, 50, -90}};
    for (const Row &row : rows) {
        page.state(QStringLiteral("%1, text above").arg(QLatin1String(row.name)),
                   [row](MKARVOSlider &s) {
                       s.setScaleAlign(row.mode);
                       s.setScaleMarginY(row.marginAbove);
                   });
        page.state(QStringLiteral("%1, text below").arg(QLatin1String(row.name)),
                   [row](MKARVOSlider &s) {
                       s.setScaleAlign(row.mode);
                       s.setTextPosition(MKARVOSlider::TextBottom);
                       s.setTextMarginY(0);
                       s.setScaleMarginY(row.marginBelow);
                   });
    }
}

void defineTouches(PageWriter<MKARVOSlider> &page, const Band &band)
{
    page.state("first of the band", [band](MKARVOSlider &s) { s.setCurFreq(band.start); })
        .state("last of the band", [band](MKARVOSlider &s) { s.setCurFreq(band.end); })
        .touches("drag",
                 [](MKARVOSlider &, Finger &finger) {
                     finger.press({200, 85}).moveTo({520, 85}, 250).picture().release();
                 })
        .touches("drag beyond the end",
                 [](MKARVOSlider &, Finger &finger) {
                     finger.press({400, 85}).moveTo({800, 85}, 100).picture().release();
                 })
        .touches("band not set", [](MKARVOSlider &s, Finger &finger) {
            s.setRealMinFreq(1620.0F);
            s.setRealMaxFreq(522.0F);
            finger.press({200, 85}).moveTo({300, 85}, 50).picture().release();
        });
}

} // namespace

void definePages(PagesOf<MKARVOSlider> &pages)
{
    for (const Band &band : radioBands()) {
        auto page = pages.add(QStringLiteral("MKARVOSlider ") + band.name,
                              [band](Scene &scene) { return buildSlider(scene, band); });
        defineLooks(page);
        defineTouches(page, band);
    }
}
