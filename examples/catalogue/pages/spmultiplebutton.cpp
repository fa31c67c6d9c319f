// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <spmultiplebutton.h>

namespace
{

constexpr QSize kPicture(96, 96);

QPixmap fan(const QString &level, const QString &look = QString())
{
    return Art::pixmap(QStringLiteral("fan-") + level + look, kPicture);
}

// The levels of a fan on a round key.
SpMultipleButton *buildFan(Scene &scene)
{
    auto *button = new SpMultipleButton(&scene);
    button->setButtonId(4);
    button->setBackgroundImage(Art::pixmap("key-normal", {160, 160}));
    QList<QPixmap> normal;
    QList<QPixmap> press;
    for (const char *level : {"off", "1", "2", "3"}) {
        normal += fan(QLatin1String(level));
        press += fan(QLatin1String(level), QStringLiteral("-pressed"));
    }
    button->setPixmapList(normal, press);
    button->resize(160, 160);
    return button;
}

void defineStates(PageWriter<SpMultipleButton> &page)
{
    page.state("second state", [](SpMultipleButton &b) { b.setCurrentValue(1); })
        .state("third state", [](SpMultipleButton &b) { b.setCurrentValue(2); })
        .state("last state", [](SpMultipleButton &b) { b.setCurrentValue(3); })
        .state("disabled",
               [](SpMultipleButton &b) {
                   b.setCurrentValue(2);
                   b.setDisableState(true);
               })
        .state("no background",
               [](SpMultipleButton &b) {
                   b.setBackgroundImage({});
                   b.setCurrentValue(3);
               })
        .state("picture missing", [](SpMultipleButton &b) { b.setNormalImage2({}); })
        .emptyState("nothing set", [](SpMultipleButton &b) {
            b.setBackgroundImage({});
            b.setNormalImage0({});
        });
}

void defineTouches(PageWriter<SpMultipleButton> &page)
{
    page.touches("pressed",
                 [](SpMultipleButton &b, Finger &finger) {
                     b.setCurrentValue(2);
                     finger.press().hold(80).picture().release();
                 })
        .touches("one tap",
                 [](SpMultipleButton &, Finger &finger) {
                     finger.press().hold(80).release().hold(80).picture();
                 })
        .touches("round to the first",
                 [](SpMultipleButton &b, Finger &finger) {
                     b.setCurrentValue(3);
                     finger.press().hold(80).release().hold(80).picture();
                 })
        .touches("without auto change",
                 [](SpMultipleButton &b, Finger &finger) {
                     b.setAutoChange(false);
                     b.setCurrentValue(1);
                     finger.press().hold(80).release().hold(80).picture();
                 })
        .silentTouches("disabled touched",
                       [](SpMultipleButton &b, Finger &finger) {
                           b.setCurrentValue(2);
                           b.setDisableState(true);
                           finger.press().hold(80).picture().release();
                       })
        .silentTouches("incomplete touched", [](SpMultipleButton &b, Finger &finger) {
            b.setPressImage3({});
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<SpMultipleButton> &pages)
{
    auto page = pages.add(buildFan);
    defineStates(page);
    defineTouches(page);
}
