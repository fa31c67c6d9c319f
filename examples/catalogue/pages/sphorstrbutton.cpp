// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <sphorstrbutton.h>

namespace
{

constexpr QSize kIcon(96, 96);

// An entry of a menu: an icon with its name beside it, on a ground that a style sheet gives.
SpHorStrButton *buildEntry(Scene &scene)
{
    auto *button = new SpHorStrButton(&scene);
    button->setStyleSheet(
        QStringLiteral("SpHorStrButton { background-color: #2a323e; border: 2px solid #66758a; }"));
    button->setButtonId(QStringLiteral("music"));
    button->resize(320, 128);
    button->setNormalPixmap(Art::pixmap("music", kIcon));
    button->setPressPixmap(Art::pixmap("key-pressed", kIcon));
    button->setDisablePixmap(Art::pixmap("key-disabled", kIcon));
    button->setDisplayString(QStringLiteral("Music"));
    button->setPressTextColor(QColor(255, 170, 60));
    button->setFontSize(26);
    return button;
}

// Numbers for the string's rectangle, so that each layout can show what they move.
void giveNumbers(SpHorStrButton &button)
{
    button.setTextLeftMargin(30);
    button.setTextWidth(160);
    button.setTextTopMargin(16);
    button.setTextHeight(60);
}

void putStringOverIcon(SpHorStrButton &button)
{
    button.setStringPosition(SpHorStrButton::StrCenter);
    button.setNormalPixmap(Art::pixmap("pill", {288, 96}));
    button.setDisplayString(QStringLiteral("Navigation"));
}

void defineLayouts(PageWriter<SpHorStrButton> &page)
{
    page.state("string at the right",
               [](SpHorStrButton &b) { b.setStringPosition(SpHorStrButton::StrRight); })
        .state("string over the icon", putStringOverIcon)
        .state("left with margins", giveNumbers)
        .state("right with margins",
               [](SpHorStrButton &b) {
                   b.setStringPosition(SpHorStrButton::StrRight);
                   giveNumbers(b);
               })
        .state("centre with margins",
               [](SpHorStrButton &b) {
                   putStringOverIcon(b);
                   giveNumbers(b);
               })
        .state("long string",
               [](SpHorStrButton &b) {
                   b.setDisplayString(QStringLiteral("A string wider than its button is cut off"));
               })
        .state("no icon", [](SpHorStrButton &b) {
            b.setStyleSheet({});
            b.setDisplayString(QStringLiteral("only a string"));
            b.setNormalPixmap({});
        });
}

void defineLooks(PageWriter<SpHorStrButton> &page)
{
    page.state("pressed", [](SpHorStrButton &b) { b.setPressState(true); })
        .state("pressed without icon",
               [](SpHorStrButton &b) {
                   b.setPressPixmap({});
                   b.setPressState(true);
               })
        .state("disabled", [](SpHorStrButton &b) { b.setBtnDisable(true); })
        .state("disabled darkened",
               [](SpHorStrButton &b) {
                   b.setDisablePixmap({});
                   b.setBtnDisable(true);
               })
        .emptyState("nothing set", [](SpHorStrButton &b) {
            b.setStyleSheet({});
            b.setNormalPixmap({});
            b.setDisplayString({});
        });
}

void defineTouches(PageWriter<SpHorStrButton> &page)
{
    page.touches(
            "tap",
            [](SpHorStrButton &, Finger &finger) { finger.press().hold(80).picture().release(); })
        .touches("released outside",
                 [](SpHorStrButton &, Finger &finger) {
                     finger.press({80, 60}).moveTo({340, 60}, 150).picture().release();
                 })
        .touches("disabled touched", [](SpHorStrButton &b, Finger &finger) {
            b.setBtnDisable(true);
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<SpHorStrButton> &pages)
{
    auto page = pages.add(buildEntry);
    defineLooks(page);
    defineLayouts(page);
    defineTouches(page);
}
