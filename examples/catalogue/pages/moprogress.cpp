// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"

#include <moprogress.h>

namespace
{

// The progress of an update.
MOProgress *buildRing(Scene &scene)
{
    auto *ring = new MOProgress(&scene);
    ring->resize(260, 260);
    ring->setItemID(1);
    ring->setRadius(120);
    ring->setCurrentValue(68);
    ring->setDispalyText(QStringLiteral("Updating"));
    QFont font;
    font.setPixelSize(44);
    ring->setFont(font);
    return ring;
}

} // namespace

void definePages(PagesOf<MOProgress> &pages)
{
    auto page = pages.add(buildRing);
    page.state("begin", [](MOProgress &r) { r.setCurrentValue(0); })
        .state("one per cent", [](MOProgress &r) { r.setCurrentValue(1); })
        .state("end",
               [](MOProgress &r) {
                   r.setCurrentValue(100);
                   r.setDispalyText(QStringLiteral("Ready"));
               })
        .state("no outline", [](MOProgress &r) { r.setBoundary(false); })
        .state("thin and blue",
               [](MOProgress &r) {
                   r.setArcHeight(8);
                   r.setBoundary(false);
                   r.setPressColor(QColor(47, 127, 198));
                   r.setInsideColor(QColor(20, 40, 60));
               })
        .state("long text",
               [](MOProgress &r) {
                   r.setDispalyText(QStringLiteral("A caption wider than its ring is cut off"));
               })
        .emptyState("thicker than the radius", [](MOProgress &r) { r.setArcHeight(120); })
        .touches("tap", [](MOProgress &, Finger &finger) { finger.press().hold(80).release(); })
        .silentTouches("disabled touched", [](MOProgress &r, Finger &finger) {
            r.setEnabled(false);
            finger.press().hold(80).release();
        });
}
