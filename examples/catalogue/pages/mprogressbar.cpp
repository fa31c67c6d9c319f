// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <mprogressbar.h>

namespace
{

// A song of five minutes, in pictures, with its time on the knob.
MProgressBar *buildPictureBar(Scene &scene)
{
    auto *bar = new MProgressBar(&scene);
    bar->resize(440, 60);
    bar->setItemID(1);
    bar->setMaxValue(300);
    bar->setSliderNormalImage(Art::pixmap(QStringLiteral("groove-fill")));
    bar->setSliderPressImage(Art::pixmap(QStringLiteral("groove")));
    bar->setSliderDisableImage(Art::pixmap(QStringLiteral("groove-fill-grey")));
    bar->setPointNormalImage(Art::pixmap(QStringLiteral("knob-wide")));
    bar->setPointPressImage(Art::pixmap(QStringLiteral("knob-wide-pressed")));
    bar->setShowValue(true);
    QPalette palette = bar->palette();
    palette.setColor(QPalette::WindowText, Qt::white);
    bar->setPalette(palette);
    bar->setRealValue(125);
    return bar;
}

MProgressBar *buildPlainBar(Scene &scene)
{
    auto *bar = new MProgressBar(&scene);
    bar->resize(440, 60);
    bar->setItemID(2);
    bar->setPonitRadius(28);
    return bar;
}

} // namespace

void definePages(PagesOf<MProgressBar> &pages)
{
    auto pictures = pages.add(QStringLiteral("MProgressBar"), buildPictureBar);
    pictures.state("begin", [](MProgressBar &b) { b.setRealValue(0); })
        .state("end", [](MProgressBar &b) { b.setRealValue(300); })
        .state("disabled", [](MProgressBar &b) { b.setEnabled(false); })
        .state("without time", [](MProgressBar &b) { b.setShowValue(false); })
        .touches("dragged",
                 [](MProgressBar &, Finger &finger) {
                     finger.press({190, 30}).moveTo({330, 30}, 200).picture().release().picture();
                 })
        .touches("fed while dragged", [](MProgressBar &b, Finger &finger) {
            finger.press({190, 30}).moveTo({330, 30}, 200);
            b.setRealValue(10);
            finger.picture().release();
        });

    auto plain = pages.add(QStringLiteral("MProgressBar plain"), buildPlainBar);
    plain
        .state("update at 12 %",
               [](MProgressBar &b) {
                   b.setPonitRadius(0);
                   b.setRealValue(12);
               })
        .state("outlined",
               [](MProgressBar &b) {
                   b.setBoundary(true);
                   b.setNormalColor(QColor(60, 70, 85));
                   b.setPressColor(QColor(47, 127, 198));
               })
        .touches("dragged", [](MProgressBar &, Finger &finger) {
            finger.press({220, 30}).moveTo({330, 30}, 200).picture().release();
        });
}
