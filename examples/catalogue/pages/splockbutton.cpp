// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <splockbutton.h>

namespace
{

constexpr QSize kKey(128, 128); // px

// A lock whose picture for the down state is made from the normal one.
SpLockButton *buildButton(Scene &scene)
{
    auto *button = new SpLockButton(&scene);
    button->setButtonID(QStringLiteral("lock"));
    button->resize(160, 160);
    button->setNormalImage(Art::pixmap("lock", kKey));
    return button;
}

// A key with pictures of its own and a caption.
void giveOwnPictures(SpLockButton &button)
{
    button.setShowMode(SpLockButton::HighlightMode);
    button.setDisableMode(SpLockButton::Show_DisableImage);
    button.setNormalImage(Art::pixmap("key-normal", kKey));
    button.setPressImage(Art::pixmap("key-pressed", kKey));
    button.setDisableImage(Art::pixmap("key-disabled", kKey));
    button.setDisplayText(QStringLiteral("Mute"));
    button.setPressTextColor(Qt::white);
    button.setFontSize(22);
}

} // namespace

void definePages(PagesOf<SpLockButton> &pages)
{
    auto page = pages.add(buildButton);
    page.state("down, faded", [](SpLockButton &b) { b.setIsDown(true); })
        .state("down, faded further",
               [](SpLockButton &b) {
                   b.setImageAlpha(60);
                   b.setIsDown(true);
               })
        .state("disabled, normal picture",
               [](SpLockButton &b) {
                   b.setDisableMode(SpLockButton::Show_NormalImage);
                   b.setDisableState(true);
               })
        .state("disabled, faded",
               [](SpLockButton &b) {
                   b.setDisableMode(SpLockButton::Show_NormalImageAlpha);
                   b.setDisableAlpha(90);
                   b.setDisableState(true);
               })
        .state("own pictures, up", giveOwnPictures)
        .state("own pictures, down",
               [](SpLockButton &b) {
                   giveOwnPictures(b);
                   b.setIsDown(true);
               })
        .state("own pictures, disabled",
               [](SpLockButton &b) {
                   giveOwnPictures(b);
                   b.setDisableState(true);
               })
        .state("long text",
               [](SpLockButton &b) {
                   giveOwnPictures(b);
                   b.setDisplayText(QStringLiteral("A caption wider than its button is cut off"));
               })
        .emptyState("no image", [](SpLockButton &b) { b.setNormalImage({}); })
        .touches(
            "pressed once",
            [](SpLockButton &, Finger &finger) { finger.press().hold(80).release().picture(); })
        .touches("pressed twice",
                 [](SpLockButton &, Finger &finger) {
                     finger.press().hold(80).release();
                     finger.press().hold(80).release().picture();
                 })
        .silentTouches("disabled touched", [](SpLockButton &b, Finger &finger) {
            b.setDisableImage(b.normalImage());
            b.setDisableState(true);
            finger.press().hold(80).release();
        });
}
