// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "listrows.h"
#include "mouse.h"
#include "rows.h"
#include "startup.h"

#include <QApplication>
#include <QListView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <sptablelist.h>

namespace
{

constexpr QSize kSize(kRowWidth, 480);
constexpr double kPeerLimit = 1.0 / 3;
constexpr double kGrowthLimit = 1.05; // of a million rows against a hundred
constexpr double kStartUpLimit = 1.5;
constexpr int kFew = 100; // rows
constexpr int kMany = 1000000; // rows

// A view paints on its viewport.
template <class View, class Prepare>
PaintingMaker viewOf(const std::shared_ptr<ListRows> &model, Prepare prepare)
{
    return [model, prepare]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto view = std::make_shared<View>();
        auto *viewport = new OnCanvas<QWidget>(canvas);
        view->setViewport(viewport);
        view->setFrameShape(QFrame::NoFrame);
        view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view->setModel(model.get());
        prepare(*view);
        showOffScreen(*view, kSize);
        QApplication::processEvents();
        return {canvas, [model, view, viewport] {
                    QPaintEvent everything(viewport->rect());
                    QApplication::sendEvent(viewport, &everything);
                }};
    };
}

void prepare(SpTableList &list)
{
    list.setUIStyle(SpTableList::LIST_STYLE_5);
    list.setCenterFontSize(kCentreSize);
    list.setItemHeight(kRowHeight);
    list.setItemWidth(kRowWidth);
    list.setBIsBeep(false);
}

PaintingMaker listOf(int count)
{
    return viewOf<SpTableList>(std::make_shared<ListRows>(count), prepare);
}

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

PaintingMaker listViewOf(int count)
{
    return viewOf<QListView>(std::make_shared<ListRows>(count), [](QListView &view) {
        view.setItemDelegate(new TwoLineDelegate(&view));
        view.setUniformItemSizes(true);
    });
}

void touch(SpTableList &list, QEvent::Type type, int y)
{
    sendMouse(*list.viewport(), type, {100, y});
}

// A list with so many rows, as it is touched.
std::shared_ptr<SpTableList> shownList(int count)
{
    auto model = std::make_shared<ListRows>(count);
    auto list = std::shared_ptr<SpTableList>(new SpTableList, [model](SpTableList *dead) {
        delete dead; // before its model
    });
    list->setModel(model.get());
    prepare(*list);
    showOffScreen(*list, kSize);
    QApplication::processEvents();
    return list;
}

// The finger goes up and down.
StepMaker dragSteps(int count)
{
    return [count] {
        const auto list = shownList(count);
        touch(*list, QEvent::MouseButtonPress, 300);
        const auto isUp = std::make_shared<bool>(false);
        return [list, isUp] {
            *isUp = !*isUp;
            touch(*list, QEvent::MouseMove, *isUp ? 100 : 103);
        };
    };
}

void tick(SpTableList &list) { QMetaObject::invokeMethod(&list, "speedTimerSlot"); }

// Flings the list from its start. A finger that took too long, or that moved while a minute ended,
// has flung nothing: it tries again.
void fling(SpTableList &list)
{
    const QScrollBar *bar = list.verticalScrollBar();
    int before = 0;
    do {
        list.verticalScrollBar()->setValue(0);
        flick(*list.viewport(), {100, kSize.height() - 1}, {100, 0}, {100, 0});
        before = bar->value();
        tick(list);
    } while (bar->value() == before);
}

// The ticks of a fling. Another one is begun in time: even the slowest lasts for this many.
StepMaker flingTicks(int count)
{
    return [count] {
        constexpr int kTicks = 20;
        const auto list = shownList(count);
        const auto ticks = std::make_shared<int>(0);
        return [list, ticks] {
            if ((*ticks)++ % kTicks == 0)
                fling(*list);
            else
                tick(*list);
        };
    };
}

StepMaker tenOf(const StepMaker &make)
{
    return [make] {
        const Step step = make();
        return [step] {
            for (int i = 0; i < 10; ++i)
                step();
        };
    };
}

} // namespace

void defineRows(Rows &rows, Tag<SpTableList>)
{
    const auto floor = std::make_shared<ListFloor>(kSize.height() / kRowHeight);
    rows.paint("SpTableList", "frame", listOf(kFew),
               {bareWidget(kSize, [floor](QPainter &painter) { floor->draw(painter); })},
               {{"QListView with QStyledItemDelegate", listViewOf(kFew), kPeerLimit}},
               textLimit(2.9));
    // These have the same with a hundred rows for their floor. Making a million rows leaves a trace
    // of a million instructions in the counts, which ten at a time make small.
    rows.work("SpTableList", "ten frames of a million rows", tenOf(stepOf(listOf(kMany))),
              {tenOf(stepOf(listOf(kFew))), kGrowthLimit}, {});
    rows.work("SpTableList", "ten drag steps of a million rows", tenOf(dragSteps(kMany)),
              {tenOf(dragSteps(kFew)), kGrowthLimit}, {});
    rows.work("SpTableList", "ten fling ticks of a million rows", tenOf(flingTicks(kMany)),
              {tenOf(flingTicks(kFew)), kGrowthLimit}, {});
    rows.work("SpTableList", "made and deleted", makeAndDelete<SpTableList>(),
              {makeAndDelete<QTableView>(), kStartUpLimit}, {});
}
