// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"
#include "listlook.h"
#include "playlist.h"
#include "theme.h"

#include <QFont>
#include <sptablelist.h>
#include <styledelegate.h>

namespace
{

constexpr QSize kListSize(600, 360);
constexpr int kRowHeight = 60; // px
constexpr int kTallRowHeight = 90; // px, for two lines
constexpr int kBarWidth = 16; // px, with the scroll bar and the space before it
constexpr int kRowWidth = kListSize.width() - kBarWidth;

// Between the rows shows a little of the glass.
void giveBackgrounds(SpTableList &list)
{
    ListLook::giveBackgrounds(list, {kRowWidth, list.itemHeight() - 4});
}

SpTableList *buildList(Scene &scene, SpTableList::LIST_STYLE style, const PlaylistModel::Row &row,
                       int rowHeight = kRowHeight)
{
    auto *list = new SpTableList(&scene);
    ListLook::darken(*list);
    list->setUIStyle(style);
    list->setItemHeight(rowHeight);
    list->setItemWidth(kRowWidth);
    list->setCenterFontSize(22);
    list->setTailFontSize(18);
    list->setTailStrWidth(70);
    list->setHightColor(Theme::kAccent);
    list->setPressColor(QColor(0xff, 0xd0, 0x60));
    list->resize(kListSize);
    auto *model = new PlaylistModel(Playlist::tracks(), row, list);
    QObject::connect(model, &PlaylistModel::modelReset, list, &SpTableList::listModelReset);
    list->setModel(model);
    model->setPlaying(2);
    return list;
}

QPixmap icon(const char *name) { return Art::pixmap(QString::fromLatin1(name), {40, 40}); }

styleDelegate &delegateOf(const SpTableList &list)
{
    return *static_cast<styleDelegate *>(list.itemDelegate());
}

void showPressed(SpTableList &list, int x)
{
    list.selectRow(1);
    delegateOf(list).setItemPressed(true, QPoint(x, kRowHeight * 3 / 2));
    list.viewport()->update();
}

// What every list can be seen and touched to do.
void defineCommonActs(PageWriter<SpTableList> &page)
{
    page.state("pressed", [](SpTableList &list) { showPressed(list, 200); })
        .state("scrolled", [](SpTableList &list) { list.scrollTo(list.model()->index(500, 0)); })
        .touches("tap",
                 [](SpTableList &, Finger &finger) {
                     finger.press({200, 90}).hold(320).picture().release().hold(120);
                 })
        .touches("drag",
                 [](SpTableList &, Finger &finger) {
                     finger.press({200, 300}).moveTo({200, 95}, 500).hold(300).picture().release();
                 })
        .touches("fling", [](SpTableList &, Finger &finger) {
            finger.press({200, 300}).moveTo({200, 150}, 64).release().hold(1200).picture();
        });
}

SpTableList *buildNumbered(Scene &scene)
{
    PlaylistModel::Row row;
    row.parts = PlaylistModel::HeaderNumber | PlaylistModel::CentreText | PlaylistModel::TailText;
    return buildList(scene, SpTableList::LIST_STYLE_0, row);
}

SpTableList *buildMarked(Scene &scene)
{
    PlaylistModel::Row row;
    row.parts = PlaylistModel::HeaderIcon | PlaylistModel::CentreText | PlaylistModel::TailText;
    row.headerIcon = icon("music");
    SpTableList *list = buildList(scene, SpTableList::LIST_STYLE_1, row);
    giveBackgrounds(*list);
    list->setHightColor(Qt::white);
    return list;
}

SpTableList *buildSplit(Scene &scene)
{
    PlaylistModel::Row row;
    row.parts = PlaylistModel::HeaderIcon | PlaylistModel::CentreText | PlaylistModel::TailIcon;
    row.headerIcon = icon("music");
    row.tailIcon = icon("gear");
    row.pressedTailIcon = icon("sun");
    SpTableList *list = buildList(scene, SpTableList::LIST_STYLE_2, row);
    giveBackgrounds(*list);
    list->setTailIconWidth(40);
    return list;
}

// Rolling texts are not clipped: nothing stands to the right of them.
SpTableList *buildRolling(Scene &scene)
{
    PlaylistModel::Row row;
    row.parts = PlaylistModel::HeaderIcon | PlaylistModel::CentreText;
    row.centre = QStringLiteral("%1, played by %2, from the album %3, and more of the same");
    row.headerIcon = icon("radio");
    return buildList(scene, SpTableList::LIST_STYLE_3, row);
}

QPixmap key(const char *key, const char *drawing)
{
    return ListLook::keyPicture(QString::fromLatin1(key), QString::fromLatin1(drawing), {44, 44});
}

// A touch of the header plays the title, a touch of the tail gives it the sun.
SpTableList *buildIconKeys(Scene &scene)
{
    PlaylistModel::Row row;
    row.parts = PlaylistModel::HeaderIcon | PlaylistModel::CentreText | PlaylistModel::TailIcon;
    row.headerIcon = key("key-normal", "music");
    row.pressedHeaderIcon = key("key-pressed", "music");
    row.tailIcon = key("key-normal", "lock");
    row.pressedTailIcon = key("key-normal", "sun");
    SpTableList *list = buildList(scene, SpTableList::LIST_STYLE_4, row);
    giveBackgrounds(*list);
    list->setHightColor(Qt::white);
    list->setHeaderIconWidth(44);
    list->setTailIconWidth(44);
    auto *model = static_cast<PlaylistModel *>(list->model());
    QObject::connect(list, QOverload<int, int>::of(&SpTableList::itemClicked), model,
                     [model](int index, int position) {
                         if (position == PlaylistModel::TailIconRole)
                             model->toggleStar(index);
                         else
                             model->setPlaying(index);
                     });
    return list;
}

SpTableList *buildTwoLines(Scene &scene)
{
    PlaylistModel::Row row;
    row.parts = PlaylistModel::HeaderIcon | PlaylistModel::CentreText | PlaylistModel::TailText;
    row.centre = QStringLiteral("%1/%2");
    row.headerIcon = icon("music");
    SpTableList *list = buildList(scene, SpTableList::LIST_STYLE_5, row, kTallRowHeight);
    giveBackgrounds(*list);
    list->setCenterFontSize(28); // the lower line has 26
    return list;
}

// The middle one of the three parts stays empty: the last one is drawn over it.
SpTableList *buildThreeParts(Scene &scene)
{
    PlaylistModel::Row row;
    row.parts = PlaylistModel::HeaderIcon | PlaylistModel::CentreText;
    row.centre = QStringLiteral("%3//%1");
    row.headerIcon = icon("music");
    SpTableList *list = buildList(scene, SpTableList::LIST_STYLE_6, row, kTallRowHeight);
    giveBackgrounds(*list);
    QFont font = list->font();
    font.setPointSize(24); // the small part is 14 px high
    delegateOf(*list).setCenterFont(font);
    return list;
}

void defineNumberedPage(PagesOf<SpTableList> &pages)
{
    auto page = pages.add(buildNumbered);
    defineCommonActs(page);
    page.touches("fling stopped",
                 [](SpTableList &, Finger &finger) {
                     finger.press({200, 300}).moveTo({200, 100}, 48).release().hold(300);
                     finger.press({200, 90}).hold(100).release().hold(200).picture();
                 })
        .touches("highlight",
                 [](SpTableList &list, Finger &finger) {
                     giveBackgrounds(list);
                     list.setHightColor(Qt::white);
                     list.setHighlightFlag(true);
                     finger.press({200, 210}).hold(100).release().hold(200).picture();
                 })
        .emptyState("blank", [](SpTableList &list) {
            list.setUseDefaultStyle(false);
            list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        });
}

void defineRollingPage(PagesOf<SpTableList> &pages)
{
    auto page = pages.add(QStringLiteral("SpTableList-3"), buildRolling);
    defineCommonActs(page);
    page.touches("rolling", [](SpTableList &, Finger &finger) {
        finger.press({200, 90}).hold(50).release().hold(3500).picture();
    });
}

void defineSplitPage(PagesOf<SpTableList> &pages)
{
    auto page = pages.add(QStringLiteral("SpTableList-2"), buildSplit);
    defineCommonActs(page);
    page.state("tail pressed", [](SpTableList &list) { showPressed(list, kRowWidth - 10); })
        .touches("tail tapped", [](SpTableList &, Finger &finger) {
            finger.press({kRowWidth - 10, 90}).hold(320).picture().release().hold(120);
        });
}

void defineKeysPage(PagesOf<SpTableList> &pages)
{
    auto page = pages.add(QStringLiteral("SpTableList-4"), buildIconKeys);
    defineCommonActs(page);
    page.touches("header tapped",
                 [](SpTableList &, Finger &finger) {
                     finger.press({40, 90}).hold(320).picture().release().hold(120);
                 })
        .touches("tail tapped", [](SpTableList &, Finger &finger) {
            finger.press({kRowWidth - 67, 150}).hold(100).release().hold(120).picture();
        });
}

} // namespace

// A page for each row style; what is common to all comes first.
void definePages(PagesOf<SpTableList> &pages)
{
    defineNumberedPage(pages);
    auto marked = pages.add(QStringLiteral("SpTableList-1"), buildMarked);
    defineCommonActs(marked);
    defineSplitPage(pages);
    defineRollingPage(pages);
    defineKeysPage(pages);
    auto twoLines = pages.add(QStringLiteral("SpTableList-5"), buildTwoLines);
    defineCommonActs(twoLines);
    auto threeParts = pages.add(QStringLiteral("SpTableList-6"), buildThreeParts);
    defineCommonActs(threeParts);
}
