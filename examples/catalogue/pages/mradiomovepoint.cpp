// SPDX-License-Identifier: Apache-2.0
#include "bands.h"
#include "catalogue.h"

#include <mkarvoslider.h>
#include <mradiomovepoint.h>
#include <mradioslider.h>

namespace
{

constexpr int kMargin = 20; // px left of the scale
constexpr int kRange = 500; // px over which the suggested range is spread

// How a scale is made legible: what a label's distance is, and how dense the scale units are.
struct Density {
    int units; // in kRange px
    int range; // frequency units in kRange px
    int labelEvery; // scale units
};

Density densityFor(const Band &band)
{
    if (band.isFM)
        return {100, 2000, 10};
    if (band.end < 300.0F)
        return {160, 160, 20};
    return band.start > 5000.0F ? Density{160, 334, 25} : Density{100, 1000, 10};
}

int inUnits(const Band &band, float freq) { return qRound(band.isFM ? freq * 100.0F : freq); }

MRadioMovePoint *buildTuner(Scene &scene, const Band &band)
{
    const Density density = densityFor(band);
    const int start = inUnits(band, band.start);
    const int end = inUnits(band, band.end);
    auto *tuner = new MRadioMovePoint(&scene);
    tuner->resize(kRange * (end - start) / density.range + 2 * kMargin + 20, 110);
    QFont font;
    font.setPixelSize(16);
    tuner->setFont(font);
    tuner->setBandType(band.isFM ? MRadioMovePoint::FM : MRadioMovePoint::AM);
    tuner->setFreqStart(start);
    tuner->setFreqEnd(end);
    tuner->setFreqStep(inUnits(band, band.step));
    tuner->setSuggestFreqStart(start);
    tuner->setSuggestFreqEnd(start + density.range);
    tuner->setLineStart(kMargin);
    tuner->setLineEnd(kMargin + kRange);
    tuner->setPixCountMeta(1);
    tuner->setBMid(density.labelEvery);
    tuner->setTotalCountMeta(density.units);
    tuner->setLineColor(Qt::white);
    tuner->setTxtYpos(10);
    tuner->setLineYpos(80);
    tuner->setPointYpos(50);
    tuner->setPointPix(needlePicture({10, 30}));
    tuner->setInitByCustomeValue(true);
    tuner->curFreqChangedSlot(float(inUnits(band, band.tuned)));
    return tuner;
}

void defineStates(PageWriter<MRadioMovePoint> &page, const Band &band)
{
    page.state(
            "first of the band",
            [band](MRadioMovePoint &t) { t.curFreqChangedSlot(float(inUnits(band, band.start))); })
        .state("beyond the band", [](MRadioMovePoint &t) { t.curFreqChangedSlot(99999.0F); })
        .state("coloured", [](MRadioMovePoint &t) { t.setLineColor(QColor(0x5a, 0xb2, 0xff)); })
        .state("long ticks only",
               [](MRadioMovePoint &t) {
                   t.setPixCountMeta(5);
                   t.setInitByCustomeValue(true);
               })
        .touches("drag",
                 [](MRadioMovePoint &, Finger &finger) {
                     finger.press({200, 70}).moveTo({420, 70}, 200).picture().release();
                 })
        .touches("drag beyond the end", [](MRadioMovePoint &t, Finger &finger) {
            finger.press({200, 70}).moveTo({t.width() + 50, 70}, 100).picture().release();
        });
}

// The three tuners, one above the other, all at the frequency that one of them was dragged to.
MRadioMovePoint *buildTunersInStep(Scene &scene)
{
    const Band &band = radioBands().first();
    auto *tuner = buildTuner(scene, band);
    auto *slider = new MRadioSlider(&scene);
    auto *karvo = new MKARVOSlider(&scene);
    const auto setUp = [&](auto &scale, int y, int pointHeight) {
        scale.setGeometry(0, y, tuner->width(), 120);
        scale.setLineColor(Qt::white);
        QFont font;
        font.setPixelSize(12);
        scale.setFont(font);
        scale.setIndicatePix(needlePicture({13, pointHeight}));
        scale.setPointMarginY(0);
        scale.setFreqStart(band.start);
        scale.setFreqEnd(band.end);
        scale.setFreqStep(band.step);
    };
    tuner->move(0, 0);
    setUp(*slider, 140, 110);
    setUp(*karvo, 280, 110);
    karvo->setLineH(15);
    for (QWidget *scale : {static_cast<QWidget *>(slider), static_cast<QWidget *>(karvo)}) {
        QMetaObject::invokeMethod(scale, "freqParamChangedSlot", Q_ARG(bool, true),
                                  Q_ARG(float, band.start), Q_ARG(float, band.end),
                                  Q_ARG(float, band.step));
        scene.alsoShow(scale);
    }
    const QVector<QWidget *> all{tuner, slider, karvo};
    for (QWidget *from : all) {
        for (QWidget *to : all) {
            if (to != from)
                QObject::connect(from, SIGNAL(freqChangedSgl(float)), to,
                                 SLOT(curFreqChangedSlot(float)));
        }
    }
    for (QWidget *scale : all)
        QMetaObject::invokeMethod(scale, "curFreqChangedSlot", Q_ARG(float, band.tuned * 100.0F));
    return tuner;
}

} // namespace

void definePages(PagesOf<MRadioMovePoint> &pages)
{
    for (const Band &band : radioBands()) {
        auto page = pages.add(QStringLiteral("MRadioMovePoint ") + band.name,
                              [band](Scene &scene) { return buildTuner(scene, band); });
        defineStates(page, band);
    }
    const auto drag = [](const QPoint &from, const QPoint &to) {
        return [from, to](MRadioMovePoint &tuner, Finger &finger) {
            finger.on(tuner.parentWidget())
                .press(tuner.pos() + from)
                .moveTo(tuner.pos() + to, 200)
                .release()
                .picture();
        };
    };
    pages.add(QStringLiteral("Tuners in step"), buildTunersInStep)
        .touches("needle dragged", drag({200, 60}, {400, 60}))
        .touches("scale dragged", drag({400, 200}, {250, 200}))
        .touches("indicator dragged", drag({300, 340}, {480, 340}));
}
