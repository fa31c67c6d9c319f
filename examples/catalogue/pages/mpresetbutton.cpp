// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <mpresetbutton.h>

namespace
{

constexpr QSize kTile(192, 112);

// A station key: the frequency, its unit in small letters, and a star.
MPresetButton *buildKey(Scene &scene)
{
    auto *button = new MPresetButton(&scene);
    button->setButtonID(QStringLiteral("preset 1"));
    button->resize(kTile);
    button->setNormalImage(Art::pixmap("tile-normal", kTile));
    button->setPressImage(Art::pixmap("tile-pressed", kTile));
    button->setDisableImage(Art::pixmap("tile-disabled", kTile));
    button->setPresetIcon(Art::pixmap("star", {24, 24}));
    button->setPresetIconPos({16, 14});
    button->setDisplayText(QStringLiteral("98.70"));
    button->setDisplayText2(QStringLiteral("MHz"));
    button->setNormalTextColor(Qt::white);
    button->setPressTextColor(Qt::white);
    button->setDisableTextColor(QColor(110, 120, 132));
    button->setNormalTextColor2(QColor(143, 199, 255));
    button->setPressTextColor2(QColor(90, 40, 0));
    button->setDisableTextColor2(QColor(80, 90, 102));
    button->setdisplayTextRect({0, 20, 192, 50});
    button->setdisplayTextRect2({0, 68, 192, 30});
    button->setFontSize2(20);
    QFont font;
    font.setPixelSize(36);
    button->setFont(font);
    return button;
}

void defineStates(PageWriter<MPresetButton> &page)
{
    page.state("checked", [](MPresetButton &b) { b.setChecked(true); })
        .state("down", [](MPresetButton &b) { b.setDown(true); })
        .state("disabled", [](MPresetButton &b) { b.setEnabled(false); })
        .state("disabled, no image of its own",
               [](MPresetButton &b) {
                   b.setDisableImage({});
                   b.setEnabled(false);
               })
        .state("checked, no press image",
               [](MPresetButton &b) {
                   b.setPressImage({});
                   b.setChecked(true);
               })
        .state("no icon", [](MPresetButton &b) { b.setPresetIcon({}); })
        .state("one line",
               [](MPresetButton &b) {
                   b.setDisplayText2({});
                   b.setdisplayTextRect({});
               })
        .state("large second line", [](MPresetButton &b) { b.setFontSize2(32); })
        .state("no normal image", [](MPresetButton &b) {
            b.setNormalImage({});
            b.setText(QStringLiteral("Plain"));
            b.setStyleSheet(QStringLiteral("color: white"));
        });
}

void defineTouches(PageWriter<MPresetButton> &page)
{
    page.touches(
            "tapped",
            [](MPresetButton &, Finger &finger) { finger.press().hold(80).release().picture(); })
        .touches(
            "long press",
            [](MPresetButton &, Finger &finger) { finger.press().hold(1700).picture().release(); })
        .touches("long press of a trembling finger",
                 [](MPresetButton &, Finger &finger) {
                     finger.press({80, 60}).moveTo({90, 66}, 200).hold(1600).picture().release();
                 })
        .silentTouches("moved",
                       [](MPresetButton &, Finger &finger) {
                           finger.press({80, 60}).moveTo({120, 60}, 200).hold(1500);
                           finger.picture().release();
                       })
        .silentTouches("disabled, pressed", [](MPresetButton &b, Finger &finger) {
            b.setEnabled(false);
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<MPresetButton> &pages)
{
    auto page = pages.add(buildKey);
    defineStates(page);
    defineTouches(page);
}
