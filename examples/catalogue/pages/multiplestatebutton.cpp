// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <multiplestatebutton.h>

namespace
{

QStringList files(const QStringList &names)
{
    QStringList paths;
    for (const QString &name : names)
        paths += Art::file(name);
    return paths;
}

// Three states on a key; pressed they all look alike.
MultipleStateButton *buildButton(Scene &scene)
{
    return new MultipleStateButton(
        0, 0, 7, files({QStringLiteral("music"), QStringLiteral("radio"), QStringLiteral("phone")}),
        files({QStringLiteral("key-pressed"), QStringLiteral("key-pressed"),
               QStringLiteral("key-pressed")}),
        Art::file(QStringLiteral("key-normal")), &scene);
}

// One of two pictures is missing, and there is no background.
MultipleStateButton *buildIncompleteButton(Scene &scene)
{
    return new MultipleStateButton(0, 0, 8, files({QStringLiteral("music")}), {QString()}, {},
                                   &scene);
}

void disable(MultipleStateButton &button)
{
    button.setButtonDisable(true);
    button.update();
}

} // namespace

void definePages(PagesOf<MultipleStateButton> &pages)
{
    auto page = pages.add(buildButton);
    page.state("second state",
               [](MultipleStateButton &b) {
                   b.setButtonValue(1);
                   b.update();
               })
        .state("third state",
               [](MultipleStateButton &b) {
                   b.setButtonValue(2);
                   b.update();
               })
        .state("disabled", disable)
        .touches("three touches",
                 [](MultipleStateButton &, Finger &finger) {
                     finger.press().hold(80).picture().release();
                     finger.press().hold(80).release().picture();
                     finger.press().hold(80).release().picture();
                 })
        .silentTouches("disabled touched", [](MultipleStateButton &b, Finger &finger) {
            disable(b);
            finger.press().hold(80).release();
        });

    auto incomplete =
        pages.add(QStringLiteral("MultipleStateButton incomplete"), buildIncompleteButton);
    incomplete.touches("enabled and touched", [](MultipleStateButton &b, Finger &finger) {
        b.setButtonDisable(false);
        finger.press().hold(80).release().picture();
    });
}
