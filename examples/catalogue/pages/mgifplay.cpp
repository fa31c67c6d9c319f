// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <mgifplay.h>

namespace
{

MGifPlay *buildPlayer(Scene &scene)
{
    auto *player = new MGifPlay(&scene);
    player->resize(120, 120);
    player->setGifImage(Art::animation(QStringLiteral("pulse")));
    return player;
}

} // namespace

void definePages(PagesOf<MGifPlay> &pages)
{
    auto page = pages.add(buildPlayer);
    page.state("twice as large", [](MGifPlay &p) { p.resize(240, 240); })
        .state("stretched", [](MGifPlay &p) { p.resize(320, 100); })
        .state("stopped", [](MGifPlay &p) { p.setGifState(1); })
        .emptyState("no such file",
                    [](MGifPlay &p) { p.setGifImage(QStringLiteral("/absent.gif")); })
        .touches("playing",
                 [](MGifPlay &, Finger &finger) {
                     finger.hold(150).picture().hold(150).picture().press().release();
                 })
        .touches("at double speed",
                 [](MGifPlay &p, Finger &finger) {
                     p.setGifSpeed(200);
                     finger.hold(150).picture().hold(150).picture().press().release();
                 })
        .touches("released outside", [](MGifPlay &, Finger &finger) {
            finger.press().moveTo({300, 80}, 100).release();
        });
}
