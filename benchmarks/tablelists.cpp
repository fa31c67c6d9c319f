// SPDX-License-Identifier: Apache-2.0
#include "tablelists.h"

#include "itemlooks.h"
#include "mouse.h"
#include "rows.h"
#include "ticks.h"

#include <QAbstractEventDispatcher>
#include <QListView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <sptablelist.h>
#include <styledelegate.h>

#include <algorithm>
#include <climits>
#include <string>

namespace
{

constexpr QSize kShort(kRowWidth, 3 * kRowHeight);
constexpr int kMany = 10000; // rows
constexpr double kPeerLimit = 0.35;
constexpr double kFlungPeerLimit = 0.55;

// What an application would write to have two icons and two lines in a row of Qt's view.
class TwoLineDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {kRowWidth, kRowHeight};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        painter->save();
        const QRect row = option.rect;
        painter->setPen(QColor(100, 100, 100));
        painter->drawLine(row.bottomLeft() + QPoint(20, 0), row.bottomRight());
        QStyleOptionViewItem upper = option;
        upper.rect = row.adjusted(20, 0, -100, -25);
        upper.decorationSize = headerIcon().size();
        upper.font = fontOf(kCentreSize);
        upper.palette.setColor(QPalette::Text, Qt::white);
        QStyledItemDelegate::paint(painter, upper, index);
        const QRect lower = row.adjusted(79, 30, -112, -9);
        const QFont font = fontOf(kLowerSize);
        painter->setFont(font);
        painter->setPen(Qt::darkGray);
        painter->drawText(lower, Qt::AlignLeft | Qt::AlignBottom,
                          QFontMetrics(font).elidedText(index.data(Qt::UserRole).toString(),
                                                        Qt::ElideRight, lower.width()));
        painter->drawPixmap(row.right() - 90, row.top() + 8, tailIcon());
        painter->restore();
    }
};

void enter(SpTableList &list, const ItemLook &look)
{
    prepareList(list);
    setUp(*list.findChild<styleDelegate *>(), look);
    list.listModelReset(); // starts to roll what rolls
}

// A list with so many rows of one look.
PaintingMaker listOf(const ItemLook &look, int count)
{
    const auto model = std::make_shared<AlikeRows>(look, count);
    return viewOf<SpTableList>({kRowWidth, count * kRowHeight}, model,
                               [look](SpTableList &list) { enter(list, look); });
}

auto rowsDrawing(const ItemLook &look, int count)
{
    return [draw = look.floor, count](QPainter &painter) {
        for (int i = 0; i < count; ++i) {
            painter.save();
            painter.translate(0, i * kRowHeight);
            draw(painter);
            painter.restore();
        }
    };
}

void addLook(Rows &rows, const ItemLook &look)
{
    constexpr int kCount = 2;
    rows.paint("SpTableList", std::string("rows: ") + look.name, listOf(look, kCount),
               {bareWidget({kRowWidth, kCount * kRowHeight}, rowsDrawing(look, kCount))}, {},
               textLimit(3.2));
}

// The finger goes up and down, and each of its steps is painted.
PaintingMaker dragged()
{
    return []() -> Painting {
        const ViewOnCanvas<SpTableList> shown(kShort, std::make_shared<ListRows>(kMany),
                                              prepareList);
        QWidget &viewport = *shown.view().viewport();
        sendMouse(viewport, QEvent::MouseButtonPress, {100, 150});
        return {shown.canvas(), [shown, &viewport, isUp = false]() mutable {
                    isUp = !isUp;
                    sendMouse(viewport, QEvent::MouseMove, {100, isUp ? 50 : 53});
                    shown.paint();
                }};
    };
}

// Each step is a tick and its paint. Another fling goes on in time, as seldom as to be no part of
// the cost. Rows come into sight that were never seen before.
PaintingMaker flung()
{
    return []() -> Painting {
        const ViewOnCanvas<SpTableList> shown(kShort, std::make_shared<ListRows>(kMany),
                                              prepareList);
        return {shown.canvas(), [shown, ticks = 0]() mutable {
                    constexpr int kTicks = 20;
                    const QScrollBar &bar = *shown.view().verticalScrollBar();
                    if (ticks++ % kTicks == 0)
                        fling(shown.view(), bar.value() < bar.maximum() / 2 ? bar.value() : 0);
                    else
                        tick(shown.view());
                    shown.paint();
                }};
    };
}

// Qt's list, scrolled so far each time, and painted. It goes back where there is an end.
PaintingMaker peerScrolled(int step, int end)
{
    return [=]() -> Painting {
        const ViewOnCanvas<QListView> shown(kShort, std::make_shared<ListRows>(kMany),
                                            prepareListView);
        return {shown.canvas(), [=] {
                    QScrollBar &bar = *shown.view().verticalScrollBar();
                    bar.setValue(bar.value() < end ? bar.value() + step : 0);
                    shown.paint();
                }};
    };
}

int rollTimer(SpTableList &list)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&list);
    const auto roll = std::find_if(timers.begin(), timers.end(),
                                   [](const auto &timer) { return timer.interval == 150; }); // ms
    return roll->timerId;
}

const ItemLook &rollingLook()
{
    return *std::find_if(itemLooks().begin(), itemLooks().end(), [](const ItemLook &look) {
        return look.style == SpTableList::LIST_STYLE_3;
    });
}

// Each step is a tick of the timer that rolls the texts, and its paint.
PaintingMaker rolled()
{
    return []() -> Painting {
        const ItemLook &look = rollingLook();
        const ViewOnCanvas<SpTableList> shown({kRowWidth, 2 * kRowHeight},
                                              std::make_shared<AlikeRows>(look, 2),
                                              [&look](SpTableList &list) { enter(list, look); });
        return {shown.canvas(), [shown, timer = rollTimer(shown.view())] {
                    sendTick(shown.view(), timer);
                    shown.paint();
                }};
    };
}

void addMotions(Rows &rows)
{
    const auto frame = std::make_shared<ListFloor>(kShort.height() / kRowHeight);
    const auto draw = [frame](QPainter &painter) { frame->draw(painter); };
    const auto drawTouched = [frame](QPainter &painter) {
        painter.fillRect(0, kRowHeight, kRowWidth, kRowHeight,
                         QApplication::palette().color(QPalette::Highlight));
        frame->draw(painter);
    };
    rows.move("SpTableList", "dragged", dragged(), {bareWidget(kShort, drawTouched)},
              {{"QListView with QStyledItemDelegate", peerScrolled(3, 3), kPeerLimit}},
              {"there are parts of four rows in sight, of its floor three rows", {}, 1.3});
    rows.move("SpTableList", "flung", flung(), {bareWidget(kShort, draw)},
              {{"QListView with QStyledItemDelegate", peerScrolled(50, INT_MAX), kFlungPeerLimit}},
              {"with nearly each tick a row comes into sight that was never seen before and whose "
               "texts are laid out, for 350,000 instructions, and there are four rows in sight, of "
               "its floor three",
               {},
               2.15});
    rows.move("SpTableList", "rolling tick", rolled(),
              {bareWidget({kRowWidth, 2 * kRowHeight}, rowsDrawing(rollingLook(), 2))}, {},
              {"the texts of its floor stand still; each of its own is measured in each paint, for "
               "185,000 instructions, and laid out anew with each letter that leaves, for 53,000 a "
               "tick",
               {},
               2});
}

} // namespace

void prepareList(SpTableList &list)
{
    list.setUIStyle(SpTableList::LIST_STYLE_5);
    list.setCenterFontSize(kCentreSize);
    list.setItemHeight(kRowHeight);
    list.setItemWidth(kRowWidth);
    list.setBIsBeep(false);
}

void prepareListView(QListView &view)
{
    view.setItemDelegate(new TwoLineDelegate(&view));
    view.setUniformItemSizes(true);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void tick(SpTableList &list) { QMetaObject::invokeMethod(&list, "speedTimerSlot"); }

// A finger that took too long, or that moved while a minute ended,
// has flung nothing: it tries again.
void fling(SpTableList &list, int start)
{
    const QPoint from(100, list.viewport()->height() - 1);
    const QPoint to(100, 0);
    const QScrollBar *bar = list.verticalScrollBar();
    int before = 0;
    do {
        list.verticalScrollBar()->setValue(start);
        flick(*list.viewport(), from, to, to);
        before = bar->value();
        tick(list);
    } while (bar->value() == before);
}

void defineRowsOfTableLists(Rows &rows)
{
    // Below a pressed row lies also what the view itself makes of a selected one, and texts that
    // roll may have rolled on by the clock before they are compared.
    for (const ItemLook &look : itemLooks()) {
        if (!look.isPressed && look.style != SpTableList::LIST_STYLE_3)
            addLook(rows, look);
    }
    addMotions(rows);
}
