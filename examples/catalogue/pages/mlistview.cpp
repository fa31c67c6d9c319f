#include "art.h"
#include "catalogue.h"

#include <mlistview.h>
#include <spiconbutton.h>

namespace
{

constexpr int kKey = 96; // px

QList<QPixmap> pairs(const QStringList &names)
{
    QList<QPixmap> list;
    for (const QString &name : names)
        list += {Art::pixmap(name, {kKey, kKey}),
                 Art::pixmap(QStringLiteral("key-pressed"), {kKey, kKey})};
    return list;
}

// Four buttons, one below the other.
MListView *buildColumn(Scene &scene)
{
    auto *view = new MListView(&scene, QRect(0, 0, kKey, 4 * kKey + 36));
    QList<QPoint> positions;
    for (int i = 0; i < 4; ++i)
        positions += QPoint(0, i * (kKey + 12));
    QList<QPixmap> pictures = pairs({QStringLiteral("music"), QStringLiteral("radio"),
                                     QStringLiteral("phone"), QStringLiteral("navigation")});
    view->setPositionList(positions);
    view->setPixmapList(pictures);
    view->setButtonIsChecked(true);
    return view;
}

void buildAnew(MListView &view, int count, QList<QPoint> positions)
{
    qDeleteAll(view.findChildren<SpIconButton *>());
    QList<QPixmap> pictures =
        pairs({QStringLiteral("music"), QStringLiteral("radio"), QStringLiteral("phone"),
               QStringLiteral("navigation"), QStringLiteral("home")})
            .mid(0, 2 * count);
    view.setPositionList(positions);
    view.setPixmapList(pictures);
    view.setButtonIsChecked(true);
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
                   v.resize(kKey, 5 * kKey);
                   buildAnew(v, 4, {{0, 0}});
               })
        .touches("tap",
                 [](MListView &, Touch &touch) {
                     touch.press({48, 156}).hold(80).release().picture();
                 })
        .touches("dragged", [](MListView &, Touch &touch) {
            touch.press({48, 102}).moveTo({60, 300}, 120).picture().release();
        });
}
