#include "catalogue.h"

#include <marclist.h>
#include <QPainter>

namespace
{

// A soft pill behind a letter.
QPixmap pill(const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(90, 190, 255), 2));
    painter.setBrush(QColor(60, 160, 240, 70));
    const qreal radius = qreal(size.height()) / 2 - 1;
    painter.drawRoundedRect(QRectF(pixmap.rect()).adjusted(1, 1, -1, -1), radius, radius);
    return pixmap;
}

void fill(MArcList &list)
{
    QPalette palette = list.palette();
    palette.setColor(QPalette::WindowText, QColor(214, 222, 232));
    list.setPalette(palette);
    QFont font = list.font();
    font.setPixelSize(24);
    list.setFont(font);
    list.setPressColor(QColor(255, 190, 60));
    for (char c = 'A'; c <= 'Z'; ++c)
        list.addAlpha(QLatin1Char(c));
}

MArcList *buildArc(Scene &scene)
{
    auto *list = new MArcList(&scene);
    list->resize(420, 460);
    list->setRadius(340);
    list->setItemHight(7.5);
    list->setPixXOffset(3.4); // the marker in the middle of its letter
    list->setPointPixmap(pill({64, 44}));
    fill(*list);
    list->setCurrentIndex(QLatin1Char('E'));
    list->setStartAngle(-27);
    return list;
}

MArcList *buildColumn(Scene &scene)
{
    auto *list = new MArcList(&scene);
    list->setAcrListStyle(MArcList::ARCLIST_STYLE_1);
    list->resize(120, 460);
    list->setItemHight(44);
    list->setShowItem(10);
    list->setTextXOffset(12);
    list->setPixXOffset(0);
    list->setPointPixmap(pill({64, 58}));
    fill(*list);
    list->setCurrentIndex(QLatin1Char('C'));
    list->setStartAngle(0);
    return list;
}

} // namespace

void definePages(PagesOf<MArcList> &pages)
{
    pages.add(buildArc)
        .state("at its start", [](MArcList &l) { l.setStartAngle(0); })
        .state("at its end", [](MArcList &l) { l.setCurrentIndex(QLatin1Char('Z')); })
        .state("few shown",
               [](MArcList &l) {
                   l.setShowItem(2);
                   l.setStartAngle(-30);
               })
        .state("without marker", [](MArcList &l) { l.setPointPixmap({}); })
        .emptyState("empty", [](MArcList &l) { l.clearData(); })
        .touches("pressed",
                 [](MArcList &, Touch &touch) {
                     touch.press({332, 300}).hold(80).picture().release();
                 })
        .touches("tapped",
                 [](MArcList &, Touch &touch) {
                     touch.press({332, 300}).hold(80).release().picture();
                 })
        .touches("dragged",
                 [](MArcList &, Touch &touch) {
                     touch.press({338, 260}).moveTo({330, 120}, 300).picture().release();
                 })
        .touches("flung", [](MArcList &, Touch &touch) {
            touch.press({330, 320}).moveTo({335, 180}, 60).release().hold(120).picture();
        });

    pages.add(QStringLiteral("MArcList column"), buildColumn)
        .state("scrolled", [](MArcList &l) { l.setStartAngle(9); })
        .state("without marker", [](MArcList &l) { l.setPointPixmap({}); })
        .touches("pressed: colour runs on",
                 [](MArcList &, Touch &touch) {
                     touch.press({60, 200}).hold(80).picture().release();
                 })
        .touches("tapped",
                 [](MArcList &, Touch &touch) {
                     touch.press({60, 330}).hold(80).release().picture();
                 })
        .touches("flung", [](MArcList &, Touch &touch) {
            touch.press({60, 380}).moveTo({60, 240}, 60).release().hold(120).picture();
        });
}
