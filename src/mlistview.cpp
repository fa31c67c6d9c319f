// SPDX-License-Identifier: Apache-2.0
#include "mlistview.h"

#include "detail/accessible.h"
#include "detail/geometry.h"
#include "spiconbutton.h"

#include <QMouseEvent>
#include <QPointer>

#include <algorithm>

using namespace panelkit;

class Q_DECL_HIDDEN MListView::Private
{
public:
    explicit Private(MListView *widget) : q(widget) { }

    SpIconButton *makeButton(const QPixmap &first, const QPixmap &second);
    void placeButtons();
    void stackButtons();
    void raiseButtons();

    MListView *const q;
    SpTableList *tableList = nullptr;
    QRect viewRect;
    QList<QPixmap> pixmapList; // two for each button
    QList<QPointer<SpIconButton>> buttonList;
    QList<QPoint> positionList; // one for each button, or not used
    int currentIndex = -1;
    bool isNormalUse = true;
};

/**
 * An empty view of this geometry. The list is not owned and never called; that there is one keeps
 * the view from reporting mouse events. May be null.
 */
MListView::MListView(QWidget *parent, SpTableList *list, QRect rect)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
    d->tableList = list;
    d->viewRect = rect;
    setGeometry(d->viewRect);
}

/** An empty view of this geometry without a table list. */
MListView::MListView(QWidget *parent, QRect rect) : MListView(parent, nullptr, rect) { }

MListView::~MListView() = default;

/**
 * What the second picture of each pair is: that of the pressed look, or, with false, that of the
 * focused look. True by default. Stored only: it counts for the next setPixmapList().
 */
void MListView::setIsNormalUse(bool normal) { d->isNormalUse = normal; }

/**
 * Where the buttons stand: their top left corners, in px of the view. An empty list is ignored.
 * Stored only: it counts for the next setPixmapList(), if that has as many buttons.
 */
void MListView::setPositionList(QList<QPoint> &list)
{
    if (!list.isEmpty())
        d->positionList = list;
}

/**
 * Makes a button of each two pictures and arranges the buttons; an empty list is ignored. Give
 * pictures in pairs: the last button of an odd number lacks its second one. Buttons of an earlier
 * call stay where they are, behind the new ones, so that whoever holds one may go on using it.
 */
void MListView::setPixmapList(QList<QPixmap> &list)
{
    if (list.isEmpty())
        return;
    d->pixmapList = list;
    d->buttonList.clear();
    for (int i = 0; i < d->pixmapList.size(); i += 2)
        d->buttonList.append(d->makeButton(d->pixmapList.at(i), d->pixmapList.value(i + 1)));
    if (d->positionList.size() == d->buttonList.size())
        d->placeButtons();
    else
        d->stackButtons();
    d->raiseButtons();
}

/**
 * With true, makes the buttons a group of which the last one clicked is down: their buttonID
 * becomes their number from 0. With false nothing happens; a group stays one. A second call
 * connects the buttons once more: then each click puts the group in the same state twice.
 */
void MListView::setButtonIsChecked(bool enable)
{
    if (!enable)
        return;
    for (int i = 0; i < d->buttonList.size(); ++i) {
        SpIconButton *button = d->buttonList.at(i);
        if (!button)
            continue;
        button->setButtonID(QString::number(i));
        connect(button, SIGNAL(btnClicked(QString)), this, SLOT(sltButtonClicked(QString)));
    }
}

/** Shows the buttons of this buttonID down and all others up. An empty one is ignored. */
void MListView::sltButtonClicked(QString id)
{
    if (id.isEmpty())
        return;
    for (SpIconButton *button : qAsConst(d->buttonList)) {
        if (button)
            button->setIsDown(button->buttonID() == id);
    }
}

/** Remembers the index. Nothing else depends on it. */
void MListView::sltItemClicked(int index) { d->currentIndex = index; }

/** With true, takes the focused look from all buttons. */
void MListView::sltRowCountChange(bool change)
{
    if (!change)
        return;
    for (SpIconButton *button : qAsConst(d->buttonList)) {
        if (button)
            button->setFocus(false);
    }
}

/** The event goes on to QWidget, here and below, and so to the parent. */
void MListView::mousePressEvent(QMouseEvent *e)
{
    const QPointer<MListView> guard(this);
    if (!d->tableList)
        emit sigMousePress(e->pos());
    if (guard)
        QWidget::mousePressEvent(e);
}

void MListView::mouseMoveEvent(QMouseEvent *e)
{
    const QPointer<MListView> guard(this);
    if (!d->tableList)
        emit sigMouseMove(e->pos());
    if (guard)
        QWidget::mouseMoveEvent(e);
}

void MListView::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointer<MListView> guard(this);
    if (!d->tableList)
        emit sigMouseRelease(e->pos());
    if (guard)
        QWidget::mouseReleaseEvent(e);
}

SpIconButton *MListView::Private::makeButton(const QPixmap &first, const QPixmap &second)
{
    auto *button = new SpIconButton(q);
    button->setNormalImage(first);
    if (isNormalUse) {
        button->setPressImage(second);
    } else {
        button->setPressImage(first);
        button->setFocusPixmap(second);
    }
    button->setFixedSize(first.size());
    button->show();
    return button;
}

// A button's place is added to that of each touch that the button leaves to the view.
void MListView::Private::placeButtons()
{
    for (int i = 0; i < buttonList.size(); ++i) {
        const QPoint place = positionList.at(i);
        buttonList.at(i)->move(boundedPixel(place.x()), boundedPixel(place.y()));
    }
}

// Each button stands at its predecessor's height plus all tops before: buttons of one height h at
// 0, h, 2h, 4h, 8h and so on (kept behaviour); even distances take a position list.
void MListView::Private::stackButtons()
{
    qint64 top = 0;
    qint64 sum = 0;
    for (SpIconButton *button : qAsConst(buttonList)) {
        sum = std::min<qint64>(sum + top, QWIDGETSIZE_MAX);
        button->move(0, int(top));
        top = std::min<qint64>(button->height() + sum, QWIDGETSIZE_MAX);
    }
}

// Neither the first button nor the last is raised: where buttons overlap, these two lie behind the
// others (kept behaviour).
void MListView::Private::raiseButtons()
{
    for (int i = int(buttonList.size()) - 2; i >= 1; --i)
        buttonList.at(i)->raise();
}
