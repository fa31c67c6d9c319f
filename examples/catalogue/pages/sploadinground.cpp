// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"

#include <sploadinground.h>

namespace
{

SpLoadingRound *buildRing(Scene &scene)
{
    auto *ring = new SpLoadingRound(&scene);
    ring->resize(200, 200);
    ring->setRadius(80);
    return ring;
}

// The three styles side by side, turning at their own pace.
SpLoadingRound *buildThree(Scene &scene)
{
    SpLoadingRound *first = nullptr;
    for (int style = 0; style < 3; ++style) {
        auto *ring = new SpLoadingRound(&scene);
        ring->setGeometry(style * 170, 0, 160, 160);
        ring->setRadius(70);
        ring->setPainterColor(QColor(124, 196, 255));
        ring->setDrawStyle(SpLoadingRound::DrawStyle(style));
        ring->setTimer(90 + 30 * style);
        if (first)
            scene.alsoShow(ring);
        else
            first = ring;
    }
    return first;
}

} // namespace

void definePages(PagesOf<SpLoadingRound> &pages)
{
    auto page = pages.add(buildRing);
    page.state("a step on", [](SpLoadingRound &r) { r.setIndex(1); })
        .state("rectangles", [](SpLoadingRound &r) { r.setDrawStyle(SpLoadingRound::RectStyle); })
        .state("greys", [](SpLoadingRound &r) { r.setDrawStyle(SpLoadingRound::GrayStyle); })
        .state("coloured", [](SpLoadingRound &r) { r.setPainterColor(QColor(230, 128, 42)); })
        .touches("tap", [](SpLoadingRound &, Finger &finger) { finger.press().hold(80).release(); })
        .touches("moved", [](SpLoadingRound &, Finger &finger) {
            finger.press({60, 60}).moveTo({120, 90}, 100).release();
        });

    auto three = pages.add(QStringLiteral("Busy rings"), buildThree);
    three.touches("turning", [](SpLoadingRound &, Finger &finger) {
        finger.press().hold(250).picture().hold(250).picture().release();
    });
}
