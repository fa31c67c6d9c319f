// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <splabel.h>

namespace
{

constexpr QSize kPicture(200, 200); // px

SpLabel *buildLabel(Scene &scene)
{
    auto *label = new SpLabel(&scene);
    label->resize(kPicture);
    label->setImage(Art::pixmap("music", kPicture));
    return label;
}

} // namespace

void definePages(PagesOf<SpLabel> &pages)
{
    auto page = pages.add(buildLabel);
    page.state("no veil", [](SpLabel &l) { l.setImageAlpha(0); })
        .state("light veil", [](SpLabel &l) { l.setImageAlpha(70); })
        .state("black", [](SpLabel &l) { l.setImageAlpha(255); })
        .state("stretched",
               [](SpLabel &l) {
                   l.setImageAlpha(70);
                   l.resize(420, 240);
               })
        .state("opaque picture",
               [](SpLabel &l) {
                   QPixmap picture(200, 140);
                   picture.fill(QColor(230, 128, 42));
                   l.setImage(picture);
               })
        .emptyState("no image", [](SpLabel &l) { l.setImage({}); })
        .silentTouches("touched",
                       [](SpLabel &, Finger &finger) { finger.press().hold(80).release(); });
}
