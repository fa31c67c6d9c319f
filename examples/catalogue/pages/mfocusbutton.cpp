// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <mfocusbutton.h>

namespace
{

constexpr QSize kTile(180, 105);

MFocusButton *addButton(Scene &scene, const QString &name, const QPoint &at)
{
    auto *button = new MFocusButton(&scene);
    button->setButtonID(name.toLower());
    button->setGeometry(QRect(at, kTile));
    button->setNormalImage(Art::pixmap("tile-normal", kTile));
    button->setPressImage(Art::pixmap("tile-pressed", kTile));
    button->setDisableImage(Art::pixmap("tile-disabled", kTile));
    button->setNormalTextColor(QColor(200, 208, 218));
    button->setPressTextColor(Qt::white);
    button->setDisableTextColor(QColor(110, 120, 132));
    button->setDisplayText(name);
    button->setFontSize(24);
    return button;
}

// Three sources of which one is the current one; the second is the subject.
MFocusButton *buildChoice(Scene &scene)
{
    MFocusButton *radio = addButton(scene, QStringLiteral("Radio"), {0, 0});
    MFocusButton *music = addButton(scene, QStringLiteral("Music"), {200, 0});
    MFocusButton *phone = addButton(scene, QStringLiteral("Phone"), {400, 0});
    radio->setChecked(true);
    scene.alsoShow(radio);
    scene.alsoShow(phone);
    return music;
}

void defineStates(PageWriter<MFocusButton> &page)
{
    page.state("checked", [](MFocusButton &b) { b.setChecked(true); })
        .state("disabled", [](MFocusButton &b) { b.setEnabled(false); })
        .state("disabled, no image of its own",
               [](MFocusButton &b) {
                   b.setDisableImage({});
                   b.setEnabled(false);
               })
        .state("checked, no press image",
               [](MFocusButton &b) {
                   b.setPressImage({});
                   b.setChecked(true);
               })
        .state("caption below",
               [](MFocusButton &b) {
                   b.setdisplayTextRect({0, 65, 180, 36});
               })
        .state("no normal image", [](MFocusButton &b) {
            b.setNormalImage({});
            b.setText(QStringLiteral("Plain"));
            b.setStyleSheet(QStringLiteral("color: white"));
        });
}

void defineTouches(PageWriter<MFocusButton> &page)
{
    page.touches(
            "pressed",
            [](MFocusButton &, Finger &finger) { finger.press().hold(80).picture().release(); })
        .touches(
            "tapped",
            [](MFocusButton &, Finger &finger) { finger.press().hold(80).release().picture(); })
        .touches("long press",
                 [](MFocusButton &b, Finger &finger) {
                     b.setLongPressIntal(300);
                     finger.press().hold(500).picture().release();
                 })
        .silentTouches("disabled, pressed", [](MFocusButton &b, Finger &finger) {
            b.setEnabled(false);
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<MFocusButton> &pages)
{
    auto page = pages.add(buildChoice);
    defineStates(page);
    defineTouches(page);
}
