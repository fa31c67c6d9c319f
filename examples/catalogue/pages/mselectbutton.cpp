// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <mselectbutton.h>

namespace
{

constexpr QSize kTile(192, 112);

MSelectButton *buildButton(Scene &scene)
{
    auto *button = new MSelectButton(&scene);
    button->setButtonID(QStringLiteral("bass"));
    button->resize(kTile);
    button->setNormalImage(Art::pixmap("tile-normal", kTile));
    button->setPressImage(Art::pixmap("tile-pressed", kTile));
    button->setSelectImage(Art::pixmap("tile-selected", kTile));
    button->setDisableImage(Art::pixmap("tile-disabled", kTile));
    button->setNormalTextColor(QColor(200, 208, 218));
    button->setPressTextColor(QColor(60, 25, 0));
    button->setSelectTextColor(QColor(140, 235, 255));
    button->setDisableTextColor(QColor(110, 120, 132));
    button->setDisplayText(QStringLiteral("Bass"));
    button->setFontSize(26);
    return button;
}

void defineStates(PageWriter<MSelectButton> &page)
{
    page.state("selected", [](MSelectButton &b) { b.setSelectState(true); })
        .state("disabled", [](MSelectButton &b) { b.setDisableState(true); })
        .state("disabled and selected",
               [](MSelectButton &b) {
                   b.setSelectState(true);
                   b.setDisableState(true);
               })
        .state("not enabled", [](MSelectButton &b) { b.setEnabled(false); })
        .state("disabled, no image of its own",
               [](MSelectButton &b) {
                   b.setDisableImage({});
                   b.setDisableState(true);
               })
        .state("selected, no select image",
               [](MSelectButton &b) {
                   b.setSelectImage({});
                   b.setSelectState(true);
               })
        .state("caption below",
               [](MSelectButton &b) {
                   b.setdisplayTextRect({0, 70, 192, 36});
               })
        .emptyState("nothing set", [](MSelectButton &b) {
            b.setNormalImage({});
            b.setDisplayText({});
        });
}

void defineTouches(PageWriter<MSelectButton> &page)
{
    page.touches(
            "pressed",
            [](MSelectButton &, Finger &finger) { finger.press().hold(80).picture().release(); })
        .touches("selected and pressed",
                 [](MSelectButton &b, Finger &finger) {
                     b.setSelectState(true);
                     finger.press().hold(80).picture().release();
                 })
        .touches("selected by its slot",
                 [](MSelectButton &b, Finger &finger) {
                     QObject::connect(&b, &MSelectButton::btnClicked, &b,
                                      [&b] { b.setSelectState(!b.selectState()); });
                     finger.press().hold(80).release().picture();
                 })
        .touches(
            "long press",
            [](MSelectButton &, Finger &finger) { finger.press().hold(1700).picture().release(); })
        .silentTouches("slid away",
                       [](MSelectButton &, Finger &finger) {
                           finger.press({80, 60}).moveTo({100, 60}, 200).picture().release();
                       })
        .silentTouches("disabled, pressed", [](MSelectButton &b, Finger &finger) {
            b.setDisableState(true);
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<MSelectButton> &pages)
{
    auto page = pages.add(buildButton);
    defineStates(page);
    defineTouches(page);
}
