// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"

#include <sprollingtext.h>

namespace
{

const QString kTitle = QStringLiteral("Midnight Lanterns, from the album Maps for Sundays");
constexpr int kSomeSteps = 1600; // ms

SpRollingText *buildText(Scene &scene)
{
    auto *text = new SpRollingText(&scene);
    text->resize(420, 56);
    text->setFontSize(28);
    text->setText(kTitle);
    return text;
}

// Titles of three scripts, one below the other, each rolling at the width of its own characters.
SpRollingText *buildScripts(Scene &scene)
{
    const QString titles[] = {
        kTitle,
        QStringLiteral("春天的灯火，北巷乐队，路上的信，远方的风筝，七点半，第二站"),
        QStringLiteral("ليل المدينة، فرقة الرصيف، رسائل الطريق، صباح البعيد"),
    };
    SpRollingText *first = nullptr;
    int top = 0;
    for (const QString &title : titles) {
        auto *text = new SpRollingText(&scene);
        text->setGeometry(0, top, 380, 60);
        text->setFontSize(30);
        text->setTextColor(QColor(124, 196, 255));
        text->setText(title);
        top += 84;
        if (first)
            scene.alsoShow(text);
        else
            first = text;
    }
    return first;
}

} // namespace

void definePages(PagesOf<SpRollingText> &pages)
{
    auto page = pages.add(buildText);
    page.state("fits", [](SpRollingText &t) { t.setText(QStringLiteral("Radio One")); })
        .state("aligned",
               [](SpRollingText &t) {
                   t.setText(QStringLiteral("Radio One"));
                   t.setTextAlignment(Qt::AlignRight | Qt::AlignBottom);
               })
        .state("shortened", [](SpRollingText &t) { t.setAutoRoll(false); })
        .state("coloured",
               [](SpRollingText &t) {
                   t.setTextColor(QColor(255, 190, 60));
                   t.update();
               })
        .state("with a shadow",
               [](SpRollingText &t) {
                   t.setText(QStringLiteral("Radio One"));
                   t.setShadowColor(QColor(230, 90, 30));
                   t.setShadowOffset({3, 3});
                   t.setDropShodow(true);
               })
        .emptyState("cleared", [](SpRollingText &t) { t.clear(); })
        .touches("rolling",
                 [](SpRollingText &, Finger &finger) {
                     finger.hold(kSomeSteps).picture().hold(kSomeSteps).picture();
                 })
        .touches("waits first",
                 [](SpRollingText &t, Finger &finger) {
                     t.setWaitRoll(kSomeSteps);
                     t.update();
                     finger.hold(kSomeSteps / 2).picture().hold(kSomeSteps).picture();
                 })
        .touches("rolling with a shadow", [](SpRollingText &t, Finger &finger) {
            t.setShadowColor(QColor(230, 90, 30));
            t.setDropShodow(true);
            finger.hold(kSomeSteps).picture();
        });

    pages.add(QStringLiteral("Marquees"), buildScripts)
        .touches("rolling", [](SpRollingText &, Finger &finger) {
            finger.hold(kSomeSteps).picture().hold(kSomeSteps).picture();
        });
}
