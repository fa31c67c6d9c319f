// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <spiconbutton.h>

namespace
{

// A round key with a picture for every look and no caption.
SpIconButton *buildButton(Scene &scene)
{
    auto *button = new SpIconButton(&scene);
    button->setButtonID(QStringLiteral("key"));
    button->resize(160, 160);
    button->setNormalImage(Art::pixmap("key-normal", {128, 128}));
    button->setPressImage(Art::pixmap("key-pressed", {128, 128}));
    button->setFocusPixmap(Art::pixmap("key-focused", {128, 128}));
    button->setDisableImage(Art::pixmap("key-disabled", {128, 128}));
    button->setDisplayText(QStringLiteral("Radio"));
    button->setPressTextColor(Qt::white);
    button->setFontSize(22);
    return button;
}

// One picture for all looks, which are made by darkening it.
void showOnlyMusic(SpIconButton &button)
{
    button.setShowMode(SpIconButton::AlphaMode);
    button.setNormalImage(Art::pixmap("music", {128, 128}));
    button.setDisplayText({});
}

// A picture above its caption.
void putCaptionBelow(SpIconButton &button)
{
    button.resize(180, 190);
    button.setNormalImage(Art::pixmap("music", {128, 128}));
    button.setPressImage({});
    button.setFocusPixmap({});
    button.setDisplayText(QStringLiteral("Music"));
    button.setTextTopMargin(158);
    button.setTextHeight(30);
}

void defineEnabledStates(PageWriter<SpIconButton> &page)
{
    page.state("pressed", [](SpIconButton &b) { b.setIsDown(true); })
        .state("focused", [](SpIconButton &b) { b.setFocus(true); })
        .state("pressed and focused",
               [](SpIconButton &b) {
                   b.setFocus(true);
                   b.setIsDown(true);
               })
        .state("alpha mode", showOnlyMusic)
        .state("veiled pressed",
               [](SpIconButton &b) {
                   showOnlyMusic(b);
                   b.setIsDown(true);
               })
        .state("veiled focused",
               [](SpIconButton &b) {
                   showOnlyMusic(b);
                   b.setImageAlpha(90);
                   b.setFocus(true);
               })
        .state("caption below", putCaptionBelow)
        .state("aligned caption",
               [](SpIconButton &b) {
                   b.resize(300, 110);
                   b.setNormalImage(Art::pixmap("pill", {288, 96}));
                   b.setDisplayText(QStringLiteral("Navigation"));
                   b.setTextLeftMargin(40);
                   b.setTextWidth(220);
                   b.setTextAlign(Qt::AlignLeft | Qt::AlignVCenter);
               })
        .state("long text",
               [](SpIconButton &b) {
                   b.setDisplayText(QStringLiteral("A caption wider than its button is cut off"));
               })
        .state("no image", [](SpIconButton &b) { b.setNormalImage({}); })
        .emptyState("nothing set", [](SpIconButton &b) {
            b.setNormalImage({});
            b.setDisplayText({});
        });
}

void defineDisabledStates(PageWriter<SpIconButton> &page)
{
    page.state("disabled",
               [](SpIconButton &b) {
                   b.setDisableMode(SpIconButton::Show_NormalImage);
                   b.setDisableState(true);
               })
        .state("disabled image",
               [](SpIconButton &b) {
                   b.setDisableMode(SpIconButton::Show_DisableImage);
                   b.setDisableState(true);
               })
        .state("disabled veiled", [](SpIconButton &b) { b.setDisableState(true); })
        .state("not enabled", [](SpIconButton &b) { b.setEnabled(false); });
}

void defineTouches(PageWriter<SpIconButton> &page)
{
    page.touches(
            "tap",
            [](SpIconButton &, Finger &finger) { finger.press().hold(80).picture().release(); })
        .touches("latched",
                 [](SpIconButton &b, Finger &finger) {
                     b.setIsLock(true);
                     finger.press().hold(80).release().picture();
                 })
        .touches("released outside",
                 [](SpIconButton &, Finger &finger) {
                     finger.press({80, 80}).moveTo({130, 80}, 150).picture().release();
                 })
        .touches("long press",
                 [](SpIconButton &b, Finger &finger) {
                     b.setSupportLongPress(true);
                     b.setTimerInterval(500);
                     finger.press().hold(700).picture().release();
                 })
        .touches("long press repeated",
                 [](SpIconButton &b, Finger &finger) {
                     b.setSupportLongPress(true);
                     b.setTimerInterval(400);
                     b.setTimerInt2(100);
                     finger.press().hold(780).picture().release();
                 })
        .silentTouches("disabled touched", [](SpIconButton &b, Finger &finger) {
            b.setDisableState(true);
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<SpIconButton> &pages)
{
    auto page = pages.add(buildButton);
    defineEnabledStates(page);
    defineDisabledStates(page);
    defineTouches(page);
}
