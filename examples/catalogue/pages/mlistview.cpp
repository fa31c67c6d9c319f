// SPDX-License-Identifier: Apache-2.0
#include "art.h"
#include "catalogue.h"
#include "contacts.h"
#include "listlook.h"
#include "playlist.h"

#include <mlistview.h>
#include <spiconbutton.h>
#include <sptablelist.h>

#include <memory>

namespace
{

constexpr int kKey = 96; // px
constexpr int kSmallKey = 80; // px
constexpr int kGap = 12; // px, between keys
constexpr QSize kRow(440, 84); // px, of the list beside the keys

QList<QPixmap> pairs(const QStringList &names, int key = kKey)
{
    QList<QPixmap> list;
    for (const QString &name : names)
        list += {Art::pixmap(name, {key, key}),
                 ListLook::keyPicture(QStringLiteral("key-pressed"), name, {key, key})};
    return list;
}

void fillColumn(MListView &view, const QStringList &names)
{
    QList<QPoint> positions;
    for (int i = 0; i < names.size(); ++i)
        positions += QPoint(0, i * (kKey + kGap));
    QList<QPixmap> pictures = pairs(names);
    view.setPositionList(positions);
    view.setPixmapList(pictures);
    view.setButtonIsChecked(true);
}

// Four buttons, one below the other.
MListView *buildColumn(Scene &scene)
{
    auto *view = new MListView(&scene, QRect(0, 0, kKey, 4 * kKey + 3 * kGap));
    fillColumn(*view,
               {QStringLiteral("music"), QStringLiteral("radio"), QStringLiteral("phone"),
                QStringLiteral("navigation")});
    return view;
}

void buildAnew(MListView &view, int count, QList<QPoint> positions, int key = kKey)
{
    qDeleteAll(view.findChildren<SpIconButton *>());
    QList<QPixmap> pictures =
        pairs({QStringLiteral("music"), QStringLiteral("radio"), QStringLiteral("phone"),
               QStringLiteral("navigation"), QStringLiteral("home")},
              key)
            .mid(0, 2 * count);
    view.setPositionList(positions);
    view.setPixmapList(pictures);
    view.setButtonIsChecked(true);
}

QAbstractItemModel *titles(QObject *parent)
{
    PlaylistModel::Row row;
    row.parts = PlaylistModel::HeaderIcon | PlaylistModel::CentreText | PlaylistModel::TailText;
    row.centre = QStringLiteral("%1/%2");
    row.headerIcon = Art::pixmap(QStringLiteral("music"), {40, 40});
    return new PlaylistModel(Playlist::tracks(), row, parent);
}

// What a key of the column stands for.
QAbstractItemModel *modelOf(const QString &buttonID, QObject *parent)
{
    if (buttonID == QLatin1String("0"))
        return titles(parent);
    return new Contacts(parent);
}

// A list shows another model: the selection models of the one before go with it.
void replaceModel(SpTableList &list, QAbstractItemModel *model)
{
    const std::unique_ptr<QAbstractItemModel> old(list.model());
    list.deleteSelectionModel();
    list.setModel(model);
}

SpTableList *listBeside(const MListView &view)
{
    return view.parentWidget()->findChild<SpTableList *>();
}

// The column beside a list: its keys choose what the list shows. With the list attached, the column
// reports no touches itself.
MListView *buildBesideAList(Scene &scene)
{
    auto *list = new SpTableList(&scene);
    ListLook::darken(*list);
    ListLook::giveBackgrounds(*list, kRow - QSize(12, 4));
    list->setUIStyle(SpTableList::LIST_STYLE_5);
    list->setItemHeight(kRow.height());
    list->setItemWidth(kRow.width() - 12);
    list->setCenterFontSize(24);
    list->setTailStrWidth(80);
    list->setGeometry(kKey + 40, 0, kRow.width(), 5 * kRow.height());

    auto *view = new MListView(&scene, list, QRect(0, 0, kKey, 2 * kKey + kGap));
    fillColumn(*view, {QStringLiteral("music"), QStringLiteral("phone")});
    QObject::connect(list, SIGNAL(itemClicked(int)), view, SLOT(sltItemClicked(int)));
    const auto keys = view->findChildren<SpIconButton *>();
    for (SpIconButton *key : keys) {
        QObject::connect(key, &SpIconButton::btnClicked, list, [list](const QString &buttonID) {
            replaceModel(*list, modelOf(buttonID, list));
        });
        scene.alsoShow(key);
    }
    scene.alsoShow(list);
    view->sltButtonClicked(QStringLiteral("0"));
    list->setModel(titles(list));
    return view;
}

} // namespace

void definePages(PagesOf<MListView> &pages)
{
    auto page = pages.add(buildColumn);
    page.state("second of the group", [](MListView &v) { v.sltButtonClicked(QStringLiteral("1")); })
        .state("free arrangement",
               [](MListView &v) {
                   v.resize(330, 300);
                   buildAnew(v, 5, {{0, 100}, {117, 0}, {234, 100}, {50, 204}, {184, 204}});
               })
        .state("stacked ever farther apart",
               [](MListView &v) {
                   v.resize(kSmallKey, 5 * kSmallKey);
                   buildAnew(v, 4, {{0, 0}}, kSmallKey);
               })
        .touches("tap",
                 [](MListView &, Finger &finger) {
                     finger.press({48, 156}).hold(80).release().picture();
                 })
        .touches("dragged", [](MListView &, Finger &finger) {
            finger.press({48, 102}).moveTo({60, 300}, 120).picture().release();
        });

    pages.add(QStringLiteral("MListView beside a list"), buildBesideAList)
        .touches("other key tapped",
                 [](MListView &, Finger &finger) {
                     finger.press({48, 156}).hold(80).release().hold(100).picture();
                 })
        .touches("row tapped",
                 [](MListView &view, Finger &finger) {
                     finger.on(listBeside(view)).press({200, 130}).hold(320).picture().release();
                     finger.hold(120);
                 })
        .touches("list flung", [](MListView &view, Finger &finger) {
            finger.on(listBeside(view)).press({200, 380}).moveTo({200, 200}, 64).release();
            finger.hold(1200).picture();
        });
}
