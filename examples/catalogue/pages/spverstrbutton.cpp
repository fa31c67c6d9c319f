// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <spverstrbutton.h>

namespace
{

constexpr QSize kIcon(96, 96);

// An icon of a home screen with its name below.
SpVerStrButton *buildButton(Scene &scene)
{
    auto *button = new SpVerStrButton(&scene);
    button->setButtonId(1);
    button->resize(180, 180);
    button->setNormalPixmap(Art::pixmap("phone", kIcon));
    button->setPressPixmap(Art::pixmap("key-pressed", kIcon));
    button->setFocusPixmap(Art::pixmap("key-focused", kIcon));
    button->setDisablePixmap(Art::pixmap("key-disabled", kIcon));
    button->setDisplayString(QStringLiteral("Phone"));
    button->setNormalColor(Qt::white);
    button->setPressColor(QColor(255, 170, 60));
    button->setFocusTextColor(QColor(110, 210, 255));
    button->setStringHeight(28);
    button->setFontSize(22);
    return button;
}

void defineLooks(PageWriter<SpVerStrButton> &page)
{
    page.state("pressed", [](SpVerStrButton &b) { b.setIsDown(true); })
        .state("focused", [](SpVerStrButton &b) { b.setFocus(true); })
        .state("pressed and focused",
               [](SpVerStrButton &b) {
                   b.setFocus(true);
                   b.setIsDown(true);
               })
        .state("pressed without icon",
               [](SpVerStrButton &b) {
                   b.setPressPixmap({});
                   b.setIsDown(true);
               })
        .state("disabled", [](SpVerStrButton &b) { b.setDisable(true); })
        .state("disabled without icon",
               [](SpVerStrButton &b) {
                   b.setDisablePixmap({});
                   b.setDisable(true);
               })
        .emptyState("nothing set", [](SpVerStrButton &b) {
            b.setNormalPixmap({});
            b.setDisplayString({});
        });
}

void defineLayouts(PageWriter<SpVerStrButton> &page)
{
    page.state("wide gap", [](SpVerStrButton &b) { b.setWidgetGain(40); })
        .state("overlap",
               [](SpVerStrButton &b) {
                   b.resize(96, 96);
                   b.setNormalPixmap(Art::pixmap("key-normal", kIcon));
                   b.setWidgetGain(-62);
               })
        .state("large string",
               [](SpVerStrButton &b) {
                   b.setFontSize(38);
                   b.setStringHeight(46);
               })
        .state("string taller than its room", [](SpVerStrButton &b) { b.setStringHeight(0); })
        .state("long string", [](SpVerStrButton &b) {
            b.setDisplayString(QStringLiteral("A string wider than its button"));
        });
}

void defineTouches(PageWriter<SpVerStrButton> &page)
{
    page.touches(
            "tap",
            [](SpVerStrButton &, Finger &finger) { finger.press().hold(80).picture().release(); })
        .touches("latched",
                 [](SpVerStrButton &b, Finger &finger) {
                     b.setIsLock(true);
                     finger.press().hold(80).release().picture();
                 })
        .touches("released outside",
                 [](SpVerStrButton &, Finger &finger) {
                     finger.press({80, 80}).moveTo({240, 80}, 150).picture().release();
                 })
        .silentTouches("disabled touched", [](SpVerStrButton &b, Finger &finger) {
            b.setDisable(true);
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<SpVerStrButton> &pages)
{
    auto page = pages.add(buildButton);
    defineLooks(page);
    defineLayouts(page);
    defineTouches(page);
}
