// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <playbutton.h>

namespace
{

PlayButton *buildButton(Scene &scene)
{
    return new PlayButton(0, 0, 5, Art::file(QStringLiteral("key-normal")),
                          Art::file(QStringLiteral("key-pressed")), &scene);
}

void disable(PlayButton &button)
{
    button.setButtonDisable(true);
    button.update();
}

} // namespace

void definePages(PagesOf<PlayButton> &pages)
{
    auto page = pages.add(buildButton);
    page.state("disabled", disable)
        .touches("tap",
                 [](PlayButton &, Finger &finger) { finger.press().hold(80).picture().release(); })
        .silentTouches("disabled touched", [](PlayButton &b, Finger &finger) {
            disable(b);
            finger.press().hold(80).release();
        });

    auto incomplete =
        pages.add(QStringLiteral("PlayButton without pressed picture"), [](Scene &scene) {
            return new PlayButton(0, 0, 6, Art::file(QStringLiteral("radio")), {}, &scene);
        });
    incomplete.touches("enabled and touched", [](PlayButton &b, Finger &finger) {
        b.setButtonDisable(false);
        finger.press().hold(80).release().picture();
    });
}
