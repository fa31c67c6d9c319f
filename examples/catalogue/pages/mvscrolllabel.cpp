// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"

#include <mvscrolllabel.h>

namespace
{

constexpr int kStartDelay = 2000; // ms, what the label waits
constexpr int kFast = 10; // ms for each pixel

const QString kLicence = QStringLiteral(
    "PLAIN TALK LICENCE\n\n"
    "Take this program along wherever you drive. Pass it on to friends, look under "
    "its bonnet and change what you find there.\n\n"
    "If you hand on a changed one, say so on the box, and leave this note inside so "
    "that the next driver knows the road.\n\n"
    "It comes without any promise. Should it lead you up a mountain when you "
    "wanted the sea, enjoy the view: those who wrote it will not come to fetch you.");

void dress(MVScrollLabel &label)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, QColor(214, 222, 232));
    label.setPalette(palette);
    QFont font = label.font();
    font.setPixelSize(20);
    label.setFont(font);
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

MVScrollLabel *buildLabel(Scene &scene)
{
    auto *label = new MVScrollLabel(&scene, Qt::WindowFlags());
    label->resize(440, 240);
    dress(*label);
    label->setScrollSpeed(kFast);
    label->setText(kLicence);
    return label;
}

} // namespace

void definePages(PagesOf<MVScrollLabel> &pages)
{
    auto page = pages.add(buildLabel);
    page.state("fits",
               [](MVScrollLabel &l) { l.setText(QStringLiteral("All of it\nis in sight.")); })
        .state("in the middle",
               [](MVScrollLabel &l) {
                   l.setAlignment(Qt::AlignCenter);
                   l.setText(QStringLiteral("All of it\nis in sight."));
               })
        .state("one long word", [](MVScrollLabel &l) { l.setText(QString(200, QLatin1Char('w'))); })
        .emptyState("empty", [](MVScrollLabel &l) { l.setText({}); })
        .touches("scrolling",
                 [](MVScrollLabel &l, Finger &finger) {
                     l.startScroll();
                     finger.hold(500).picture().hold(2000).picture();
                 })
        .touches("starts by itself",
                 [](MVScrollLabel &, Finger &finger) { finger.hold(kStartDelay + 600).picture(); })
        .silentTouches("pushed up",
                       [](MVScrollLabel &, Finger &finger) {
                           finger.press({200, 200}).moveTo({200, 80}, 200).picture().release();
                       })
        .silentTouches("pushed down", [](MVScrollLabel &, Finger &finger) {
            finger.press({200, 60}).moveTo({200, 160}, 200).picture().release();
        });
}
