// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"
#include "listlook.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <sphomeicon.h>

namespace
{

constexpr QSize kIcon(128, 128); // px
constexpr QSize kSmallIcon(84, 84); // px, twelve of which are on a page
constexpr int kOwnPictures = 255; // as imageAlpha

QPixmap app(const QString &ground, const QString &drawing, const QSize &size = kIcon)
{
    return ListLook::keyPicture(ground, drawing, size);
}

SpHomeIcon *buildTile(Scene &scene)
{
    auto *tile = new SpHomeIcon(&scene);
    tile->setNormalImage(app(QStringLiteral("app-normal"), QStringLiteral("radio")));
    tile->setIconText(QStringLiteral("Radio"));
    return tile;
}

void giveStatePictures(SpHomeIcon &tile)
{
    const QSize size = tile.normalImage().size();
    tile.setRunningImage(Art::pixmap("badge-running", size));
    tile.setSwitchImage(Art::pixmap("badge-current", size));
    tile.setGrayImage(Art::pixmap("app-gray", size));
    tile.setRunningTextColor(QColor(0x35, 0xc4, 0x6a));
    tile.setGrayTextColor(QColor(0x7b, 0x83, 0x8e));
}

void giveOwnPressedPicture(SpHomeIcon &tile)
{
    tile.setImageAlpha(kOwnPictures);
    tile.setPressImage(
        app(QStringLiteral("app-pressed"), QStringLiteral("radio"), tile.normalImage().size()));
    tile.setPressTextColor(QColor(0xf3, 0x9a, 0x3d));
}

void animate(SpHomeIcon &tile)
{
    tile.setGifImage(Art::animation("equaliser"));
    tile.setIconText(QStringLiteral("Player"));
}

// --- Twelve tiles -------------------------------------------------------------------------------

// A finger that stays on the tile.
void keepPressed(SpHomeIcon &tile)
{
    QMouseEvent press(QEvent::MouseButtonPress, tile.rect().center(), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&tile, &press);
}

void setRunning(SpHomeIcon &tile)
{
    giveStatePictures(tile);
    tile.setIsRunning(true);
}

void setCurrent(SpHomeIcon &tile)
{
    giveStatePictures(tile);
    tile.setIsSwitchSrc(true);
}

struct Entry {
    const char *caption;
    const char *drawing;
    void (*enter)(SpHomeIcon &tile);
};

const Entry kEntries[] = {
    {"At rest", "home", [](SpHomeIcon &) {}},
    {"Pressed", "phone", keepPressed},
    {"Own press", "radio",
     [](SpHomeIcon &tile) {
         giveOwnPressedPicture(tile);
         keepPressed(tile);
     }},
    {"Not ready", "navigation",
     [](SpHomeIcon &tile) {
         giveStatePictures(tile);
         tile.setIsReady(false);
     }},
    {"Running", "music", setRunning},
    {"…pressed", "music",
     [](SpHomeIcon &tile) {
         setRunning(tile);
         keepPressed(tile);
     }},
    {"Current", "star", setCurrent},
    {"…pressed", "star",
     [](SpHomeIcon &tile) {
         setCurrent(tile);
         keepPressed(tile);
     }},
    {"Dimmed", "sun",
     [](SpHomeIcon &tile) {
         tile.setImageAlpha(kOwnPictures);
         tile.setHideText(true);
     }},
    {"In picture", "touch",
     [](SpHomeIcon &tile) {
         tile.setTextMargin(-8);
         tile.setTextInPic(true);
     }},
    {"Animated", "gear", [](SpHomeIcon &tile) { tile.setGifImage(Art::animation("equaliser")); }},
    {"…running", "gear",
     [](SpHomeIcon &tile) {
         setRunning(tile);
         tile.setGifImage(Art::animation("equaliser"));
     }},
};

SpHomeIcon *buildTwelve(Scene &scene)
{
    SpHomeIcon *first = nullptr;
    int index = 0;
    for (const Entry &entry : kEntries) {
        auto *tile = new SpHomeIcon(&scene);
        tile->setItemIndex(index);
        tile->setFontSize(15);
        tile->setTextMargin(6);
        tile->setNormalImage(
            app(QStringLiteral("app-normal"), QString::fromLatin1(entry.drawing), kSmallIcon));
        tile->setIconText(QString::fromUtf8(entry.caption));
        tile->move(index % 6 * 100, index / 6 * 150);
        entry.enter(*tile);
        if (first)
            scene.alsoShow(tile);
        else
            first = tile;
        ++index;
    }
    return first;
}

// --- Acts ---------------------------------------------------------------------------------------

void defineStates(PageWriter<SpHomeIcon> &page)
{
    page.state("not ready",
               [](SpHomeIcon &t) {
                   giveStatePictures(t);
                   t.setIsReady(false);
               })
        .state("running", setRunning)
        .state("current source", setCurrent)
        .state("dimmed",
               [](SpHomeIcon &t) {
                   t.setImageAlpha(kOwnPictures);
                   t.setHideText(true);
               })
        .state("caption in the picture",
               [](SpHomeIcon &t) {
                   t.setTextMargin(-6);
                   t.setTextInPic(true);
               })
        .state("caption aligned",
               [](SpHomeIcon &t) {
                   t.setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
                   t.setTextMarginH(12);
               })
        .state("long text",
               [](SpHomeIcon &t) {
                   t.setIconText(QStringLiteral("A caption wider than its tile is cut off"));
               })
        .state("margins at the sides",
               [](SpHomeIcon &t) {
                   t.setImageMarginH(40);
                   t.setIconText(QStringLiteral("A longer caption"));
               })
        .state("another size of icon",
               [](SpHomeIcon &t) {
                   t.setIconSize({64, 64});
               })
        .state("animated", animate)
        .state("animated, running",
               [](SpHomeIcon &t) {
                   animate(t);
                   setRunning(t);
               })
        .state("no image", [](SpHomeIcon &t) { t.setNormalImage({}); })
        .emptyState("nothing set", [](SpHomeIcon &t) {
            t.setNormalImage({});
            t.setIconText({});
        });
}

void defineTouches(PageWriter<SpHomeIcon> &page)
{
    page.touches("tap",
                 [](SpHomeIcon &, Finger &finger) { finger.press().hold(80).picture().release(); })
        .touches("own picture pressed",
                 [](SpHomeIcon &t, Finger &finger) {
                     giveOwnPressedPicture(t);
                     finger.press().hold(80).picture().release();
                 })
        .touches("moved",
                 [](SpHomeIcon &, Finger &finger) {
                     finger.press().moveTo({110, 60}, 100).picture().release();
                 })
        .touches("running, pressed",
                 [](SpHomeIcon &t, Finger &finger) {
                     setRunning(t);
                     finger.press().hold(80).picture().release();
                 })
        .touches("animated, pressed",
                 [](SpHomeIcon &t, Finger &finger) {
                     animate(t);
                     finger.press().hold(300).picture().release();
                 })
        .touches("not ready, pressed", [](SpHomeIcon &t, Finger &finger) {
            giveStatePictures(t);
            t.setImageAlpha(kOwnPictures);
            t.setIsReady(false);
            finger.press().hold(80).picture().release();
        });
}

} // namespace

void definePages(PagesOf<SpHomeIcon> &pages)
{
    auto page = pages.add(buildTile);
    defineStates(page);
    defineTouches(page);

    auto twelve = pages.add(QStringLiteral("Twelve launcher tiles"), buildTwelve);
    twelve.touches(
        "tap", [](SpHomeIcon &, Finger &finger) { finger.press().hold(400).picture().release(); });
}
