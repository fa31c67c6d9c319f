// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"
#include "contacts.h"
#include "listlook.h"

#include <marclist.h>
#include <marcscrollbar.h>
#include <QPainter>
#include <QScrollBar>
#include <sptablelist.h>

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

// The arcs of the contact book have one centre.
constexpr QPoint kBookCentre(100, 210);
constexpr QSize kBookRow(390, 84); // px

SpTableList *buildNames(QWidget *book)
{
    auto *list = new SpTableList(book);
    ListLook::darken(*list);
    ListLook::giveBackgrounds(*list, kBookRow - QSize(0, 4));
    list->setUIStyle(SpTableList::LIST_STYLE_5);
    list->setItemHeight(kBookRow.height());
    list->setItemWidth(kBookRow.width());
    list->setCenterFontSize(24);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the arc is in its place
    list->setGeometry(0, 0, kBookRow.width(), 2 * kBookCentre.y());
    list->setModel(new Contacts(list));
    return list;
}

MArcScrollBar *buildBookBar(QWidget *book)
{
    auto *bar = new MArcScrollBar(book);
    const QRect place(QPoint(kBookRow.width(), 0), QPoint(535, 2 * kBookCentre.y() - 1));
    bar->setGeometry(place);
    bar->setCenterPoint(kBookCentre - place.topLeft());
    bar->setRadius(430);
    bar->setStartAngle(155);
    bar->setPointColor(QColor(255, 150, 40));
    QPalette palette = bar->palette();
    palette.setColor(bar->foregroundRole(), QColor(150, 165, 185));
    bar->setPalette(palette);
    return bar;
}

MArcList *buildBookLetters(QWidget *book)
{
    auto *letters = new MArcList(book);
    letters->setGeometry(kBookCentre.x(), 0, 520, 2 * kBookCentre.y());
    letters->setRadius(455);
    letters->setItemHight(3.6);
    letters->setPointPixmap(pill({46, 34}));
    fill(*letters);
    QFont font = letters->font();
    font.setPixelSize(20);
    letters->setFont(font);
    return letters;
}

// A letter that is tapped takes the names to it, a touch of the bar to a share of them. Wherever
// the names go, the bar and the letter follow.
void wireBook(MArcList *letters, MArcScrollBar *bar, SpTableList *names)
{
    const auto *contacts = static_cast<Contacts *>(names->model());
    QScrollBar *scrolling = names->verticalScrollBar();
    bar->setRange(0, contacts->rowCount() - names->height() / kBookRow.height());
    const auto showRow = [scrolling](int row) { scrolling->setValue(row * kBookRow.height()); };
    QObject::connect(letters, &MArcList::itemClicked, names,
                     [contacts, showRow](QChar letter) { showRow(contacts->firstRowOf(letter)); });
    QObject::connect(bar, &QScrollBar::sliderMoved, names, showRow);
    QObject::connect(scrolling, &QScrollBar::valueChanged, bar,
                     [letters, bar, contacts](int value) {
                         const int row = value / kBookRow.height();
                         bar->setValue(row);
                         letters->setCurrentIndex(contacts->letterOf(row));
                     });
}

// A contact book: the names, around them a bar that shows where they are, and the letters.
MArcList *buildBook(Scene &scene)
{
    auto *letters = buildBookLetters(&scene);
    SpTableList *names = buildNames(&scene);
    MArcScrollBar *bar = buildBookBar(&scene);
    wireBook(letters, bar, names);
    letters->setCurrentIndex(QLatin1Char('A'));
    scene.alsoShow(bar);
    scene.alsoShow(names);
    return letters;
}

template <class Widget> Widget *besides(const MArcList &letters)
{
    return letters.parentWidget()->findChild<Widget *>();
}

void defineBookPage(PagesOf<MArcList> &pages)
{
    pages.add(QStringLiteral("Contacts"), buildBook)
        .touches("letter tapped",
                 [](MArcList &, Finger &finger) {
                     finger.press({438, 340}).hold(80).release().hold(60).picture();
                 })
        .touches("names dragged",
                 [](MArcList &letters, Finger &finger) {
                     finger.on(besides<SpTableList>(letters))
                         .press({200, 380})
                         .moveTo({200, 20}, 400)
                         .hold(300)
                         .picture()
                         .release();
                 })
        .touches("names flung",
                 [](MArcList &letters, Finger &finger) {
                     finger.on(besides<SpTableList>(letters))
                         .press({200, 380})
                         .moveTo({200, 180}, 48)
                         .release()
                         .hold(1500)
                         .picture();
                 })
        .touches("bar touched", [](MArcList &letters, Finger &finger) {
            finger.on(besides<MArcScrollBar>(letters))
                .press({100, 60})
                .moveTo({110, 300}, 300)
                .picture()
                .release();
        });
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
                 [](MArcList &, Finger &finger) {
                     finger.press({332, 300}).hold(80).picture().release();
                 })
        .touches("tapped",
                 [](MArcList &, Finger &finger) {
                     finger.press({332, 300}).hold(80).release().picture();
                 })
        .touches("dragged",
                 [](MArcList &, Finger &finger) {
                     finger.press({338, 260}).moveTo({330, 120}, 300).picture().release();
                 })
        .touches("flung", [](MArcList &, Finger &finger) {
            finger.press({330, 320}).moveTo({335, 180}, 60).release().hold(120).picture();
        });

    pages.add(QStringLiteral("MArcList column"), buildColumn)
        .state("scrolled", [](MArcList &l) { l.setStartAngle(9); })
        .state("without marker", [](MArcList &l) { l.setPointPixmap({}); })
        .touches("pressed: colour runs on",
                 [](MArcList &, Finger &finger) {
                     finger.press({60, 200}).hold(80).picture().release();
                 })
        .touches("tapped",
                 [](MArcList &, Finger &finger) {
                     finger.press({60, 330}).hold(80).release().picture();
                 })
        .touches("flung", [](MArcList &, Finger &finger) {
            finger.press({60, 380}).moveTo({60, 240}, 60).release().hold(120).picture();
        });

    defineBookPage(pages);
}
