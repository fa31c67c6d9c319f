// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <spdislabel.h>

namespace
{

const QString kLongText = QStringLiteral("A station with a very long name");

// A station's name on a rounded ground.
SpDisLabel *buildLabel(Scene &scene)
{
    auto *label = new SpDisLabel(&scene);
    label->setBtnID(1);
    label->resize(280, 72);
    label->setFontSize(26);
    label->setNormalBackgroundColor(QColor("#2a323e"));
    label->setPressBackgroundColor(QColor("#c4671d"));
    label->setPressFontColor(QColor("#1a1208"));
    label->setRoundXY(24);
    label->setText(QStringLiteral("Radio One"));
    return label;
}

void showPicture(SpDisLabel &label)
{
    label.setDisplayMode(SpDisLabel::Picture);
    label.setIcon(Art::pixmap("radio", {96, 96}));
}

void defineStrings(PageWriter<SpDisLabel> &page)
{
    page.state("pressed", [](SpDisLabel &l) { l.setIsDown(true); })
        .state("square", [](SpDisLabel &l) { l.setRoundXY(0); })
        .state("round to the middle", [](SpDisLabel &l) { l.setRoundXY(36); })
        .state("translucent ground",
               [](SpDisLabel &l) { l.setNormalBackgroundColor(QColor(90, 160, 255, 70)); })
        .state("no ground", [](SpDisLabel &l) { l.setNormalBackgroundColor(Qt::transparent); })
        .state("shortened", [](SpDisLabel &l) { l.setText(kLongText); })
        .state("not shortened", [](SpDisLabel &l) { l.setNormalText(kLongText); })
        .state("aligned", [](SpDisLabel &l) { l.setAlignment(Qt::AlignRight | Qt::AlignBottom); })
        .emptyState("nothing set", [](SpDisLabel &l) {
            l.setNormalBackgroundColor(Qt::transparent);
            l.setNormalText({});
        });
}

void definePictures(PageWriter<SpDisLabel> &page)
{
    page.state("picture", showPicture)
        .state("picture pressed",
               [](SpDisLabel &l) {
                   showPicture(l);
                   l.setIsDown(true);
               })
        .emptyState("picture missing",
                    [](SpDisLabel &l) { l.setDisplayMode(SpDisLabel::Picture); });
}

void defineTouches(PageWriter<SpDisLabel> &page)
{
    page.touches("tap",
                 [](SpDisLabel &, Finger &finger) { finger.press().hold(80).picture().release(); })
        .touches("latched",
                 [](SpDisLabel &l, Finger &finger) {
                     l.setIsLock(true);
                     finger.press().hold(80).release().picture();
                 })
        .touches("released outside",
                 [](SpDisLabel &, Finger &finger) {
                     finger.press({80, 36}).moveTo({320, 36}, 150).picture().release();
                 })
        .touches("picture touched", [](SpDisLabel &l, Finger &finger) {
            showPicture(l);
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<SpDisLabel> &pages)
{
    auto page = pages.add(buildLabel);
    defineStrings(page);
    definePictures(page);
    defineTouches(page);
}
