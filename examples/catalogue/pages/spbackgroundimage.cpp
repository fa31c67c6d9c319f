// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"

#include <QTimer>
#include <spbackgroundimage.h>

namespace
{

constexpr QSize kScreen(560, 320); // px

SpBackgroundImage *buildBackdrop(Scene &scene)
{
    auto *backdrop = new SpBackgroundImage(&scene);
    backdrop->setPixmap(Art::pixmap("landscape", kScreen));
    backdrop->resize(kScreen);
    return backdrop;
}

// A wheel that goes on turning.
SpBackgroundImage *buildTurning(Scene &scene)
{
    auto *backdrop = new SpBackgroundImage(&scene);
    backdrop->setholdMouseEvent(true);
    backdrop->setPixmap(Art::pixmap("gear", {300, 300}));
    backdrop->resize(300, 300);
    auto *timer = new QTimer(backdrop);
    QObject::connect(timer, &QTimer::timeout, backdrop,
                     [backdrop] { backdrop->setRotateAngle((backdrop->rotateAngle() + 2) % 360); });
    timer->start(40);
    return backdrop;
}

void holdTouches(SpBackgroundImage &backdrop, Finger &finger)
{
    backdrop.setholdMouseEvent(true);
    finger.press().hold(80).release();
}

} // namespace

void definePages(PagesOf<SpBackgroundImage> &pages)
{
    auto page = pages.add(buildBackdrop);
    page.state("stretched", [](SpBackgroundImage &b) { b.resize(420, 340); })
        .state("turned by 10 degrees", [](SpBackgroundImage &b) { b.setRotateAngle(10); })
        .state("turned by 90 degrees", [](SpBackgroundImage &b) { b.setRotateAngle(90); })
        .state("turned by 180 degrees", [](SpBackgroundImage &b) { b.setRotateAngle(180); })
        .state("turned back by 30 degrees", [](SpBackgroundImage &b) { b.setRotateAngle(-30); })
        .state("fitting its picture",
               [](SpBackgroundImage &b) {
                   b.setPixmap(Art::pixmap("landscape", {280, 160}));
                   b.setFitPixmapSize(true);
               })
        .emptyState("no picture", [](SpBackgroundImage &b) { b.setPixmap({}); })
        .touches("touch held", holdTouches)
        .silentTouches("touch not held", [](SpBackgroundImage &, Finger &finger) {
            finger.press().hold(80).release();
        });

    auto turning = pages.add(QStringLiteral("Rotating backdrop"), buildTurning);
    turning.touches("turning", [](SpBackgroundImage &, Finger &finger) {
        finger.press().hold(600).picture().release();
    });
}
