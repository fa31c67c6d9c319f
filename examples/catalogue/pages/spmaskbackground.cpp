// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"
#include "listlook.h"

#include <spbackgroundimage.h>
#include <spdislabel.h>
#include <sphomeicon.h>
#include <sploadinground.h>
#include <spmaskbackground.h>

namespace
{

constexpr QSize kScreen(560, 320); // px

// A page on which much is going on.
QWidget *buildBusyPage(Scene &scene)
{
    auto *screen = new QWidget(&scene);
    screen->setFixedSize(kScreen);
    auto *backdrop = new SpBackgroundImage(screen);
    backdrop->setPixmap(Art::pixmap("landscape"));
    backdrop->resize(kScreen);
    int left = 24;
    for (const auto *drawing : {"home", "radio", "music", "phone", "navigation"}) {
        auto *tile = new SpHomeIcon(screen);
        tile->setTextInPic(true);
        tile->setIconText({});
        tile->setNormalImage(ListLook::keyPicture(QStringLiteral("app-normal"),
                                                  QString::fromLatin1(drawing), {88, 88}));
        tile->move(left, 24);
        left += 106;
    }
    auto *busy = new SpLoadingRound(screen);
    busy->setGeometry(kScreen.width() - 88, kScreen.height() - 88, 64, 64);
    busy->setTimer(100);
    return screen;
}

SpMaskBackground *buildMask(Scene &scene)
{
    auto *mask = new SpMaskBackground(buildBusyPage(scene));
    mask->setPainterColor(QColor(0, 0, 0, 130));
    mask->resize(kScreen);
    return mask;
}

// A popup, which is a mask itself, over the one that dims the page.
SpMaskBackground *buildPopup(Scene &scene)
{
    auto *mask = buildMask(scene);
    auto *popup = new SpMaskBackground(mask);
    popup->setObjectName(QStringLiteral("popup"));
    popup->setPainterColor(QColor("#2a323e"));
    popup->setRoundX(24);
    popup->setRoundY(24);
    popup->setholdMouseEvent(true);
    popup->setGeometry(120, 90, 320, 150);
    auto *text = new SpDisLabel(popup);
    text->setGeometry(0, 0, 320, 150);
    text->setIsBeep(false);
    text->setholdMouseEvent(false);
    text->setFontSize(22);
    text->setText(QStringLiteral("Connect the telephone?"));
    QObject::connect(mask, &SpMaskBackground::clicked, mask, &QWidget::hide);
    return mask;
}

} // namespace

void definePages(PagesOf<SpMaskBackground> &pages)
{
    auto page = pages.add(buildMask);
    page.state("opaque", [](SpMaskBackground &m) { m.setPainterColor(Qt::black); })
        .state("coloured", [](SpMaskBackground &m) { m.setPainterColor(QColor(20, 70, 130, 150)); })
        .state("rounded",
               [](SpMaskBackground &m) {
                   m.setRoundX(48);
                   m.setRoundY(48);
               })
        .state("elliptical corners",
               [](SpMaskBackground &m) {
                   m.setRoundX(160);
                   m.setRoundY(60);
               })
        .state("ellipse",
               [](SpMaskBackground &m) {
                   m.setRoundX(kScreen.width());
                   m.setRoundY(kScreen.height());
               })
        .touches("tap",
                 [](SpMaskBackground &, Finger &finger) { finger.press().hold(80).release(); })
        .touches("touch held, moved far", [](SpMaskBackground &m, Finger &finger) {
            m.setholdMouseEvent(true);
            finger.press({40, 40}).moveTo({340, 40}, 150).release();
        });

    auto popup = pages.add(QStringLiteral("Popup over a page"), buildPopup);
    popup
        .touches("touched beside it",
                 [](SpMaskBackground &, Finger &finger) {
                     finger.press({40, 280}).hold(80).release().picture();
                 })
        .silentTouches("touched on it", [](SpMaskBackground &m, Finger &finger) {
            finger.on(m.findChild<QWidget *>(QStringLiteral("popup")));
            finger.press({160, 140}).hold(80).release().picture();
        });
}
