// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <monoffbutton.h>

namespace
{

constexpr QSize kTrack(160, 64);
constexpr QSize kKnob(60, 60);

MOnOffButton *buildSwitch(Scene &scene)
{
    auto *button = new MOnOffButton(&scene);
    button->setBtnID(QStringLiteral("wifi"));
    button->resize(180, 80);
    return button;
}

void useStyle0(MOnOffButton &button) { button.setUIStyle(MOnOffButton::ONOFF_STYLE_0); }

void useStyle1(MOnOffButton &button) { button.setUIStyle(MOnOffButton::ONOFF_STYLE_1); }

// A dimmed picture is right where it begins in the corner of the widget: the switch gets the size
// of its track.
void usePictures(MOnOffButton &button)
{
    button.resize(kTrack);
    button.setNormalBkgPix(Art::pixmap("switch-track-on", kTrack));
    button.setPressBkgPix(Art::pixmap("switch-track-off", kTrack));
    button.setNormalChunkPix(Art::pixmap("switch-knob", kKnob));
    button.setPressChunkPix(Art::pixmap("switch-knob-moving", kKnob));
}

// Pictures drawn for a switch that is on at the left.
void usePicturesReversed(MOnOffButton &button)
{
    usePictures(button);
    button.setReverse(true);
}

using Use = void (*)(MOnOffButton &);

// One look: on, in motion, and both dimmed.
void defineLook(PageWriter<MOnOffButton> &page, const QString &name, Use use)
{
    page.state(name + QStringLiteral(", on"),
               [use](MOnOffButton &b) {
                   use(b);
                   b.setOnoffStatus(true);
               })
        .touches(name + QStringLiteral(", dragged"),
                 [use](MOnOffButton &b, Finger &finger) {
                     use(b);
                     finger.press({40, 40}).moveTo({105, 40}, 150).picture();
                     finger.moveTo({150, 40}, 100).release();
                 })
        .state(name + QStringLiteral(", off, disabled"),
               [use](MOnOffButton &b) {
                   use(b);
                   b.setBtnDisable(true);
               })
        .state(name + QStringLiteral(", on, disabled"), [use](MOnOffButton &b) {
            use(b);
            b.setOnoffStatus(true);
            b.setBtnDisable(true);
        });
}

void defineTouches(PageWriter<MOnOffButton> &page)
{
    page.touches("gliding on",
                 [](MOnOffButton &, Finger &finger) {
                     finger.press().hold(60).release().hold(120).picture().hold(300);
                 })
        .touches("gliding off",
                 [](MOnOffButton &b, Finger &finger) {
                     usePictures(b);
                     b.setOnoffStatus(true);
                     finger.press().hold(60).release().hold(120).picture().hold(300);
                 })
        .touches("reversed, tapped",
                 [](MOnOffButton &b, Finger &finger) {
                     usePicturesReversed(b);
                     finger.press().hold(60).release().hold(60).picture();
                 })
        .touches("short drag springs back",
                 [](MOnOffButton &, Finger &finger) {
                     finger.press({40, 40}).moveTo({85, 40}, 150).release().hold(60).picture();
                 })
        .touches("disabled, pressed",
                 [](MOnOffButton &b, Finger &finger) {
                     b.setBtnDisable(true);
                     finger.press().hold(60).release().hold(60).picture();
                 })
        .emptyState("not wider than high", [](MOnOffButton &b) { b.resize(90, 90); });
}

} // namespace

void definePages(PagesOf<MOnOffButton> &pages)
{
    auto page = pages.add(buildSwitch);
    defineLook(page, QStringLiteral("style 0"), useStyle0);
    page.state("style 1, off", useStyle1);
    defineLook(page, QStringLiteral("style 1"), useStyle1);
    page.state("pictures, off", usePictures);
    defineLook(page, QStringLiteral("pictures"), usePictures);
    page.state("reversed, off", usePicturesReversed);
    defineLook(page, QStringLiteral("reversed"), usePicturesReversed);
    page.state("own colours", [](MOnOffButton &b) {
        b.setOnColor(QColor(60, 170, 200));
        b.setOnoffStatus(true);
    });
    defineTouches(page);
}
