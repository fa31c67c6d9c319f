// SPDX-License-Identifier: Apache-2.0
#include "mouse.h"
#include "rows.h"
#include "startup.h"
#include "tablelists.h"

#include <QApplication>
#include <QListView>
#include <QScrollBar>
#include <sptablelist.h>

namespace
{

constexpr double kPeerLimit = 1.0 / 3;
constexpr double kGrowthLimit = 1.05; // of a million rows against a hundred
constexpr double kStartUpLimit = 1.5;
constexpr int kFew = 100; // rows
constexpr int kMany = 1000000; // rows

PaintingMaker listOf(int count)
{
    return viewOf<SpTableList>(kListSize, std::make_shared<ListRows>(count), prepareList);
}

PaintingMaker listViewOf(int count)
{
    return viewOf<QListView>(kListSize, std::make_shared<ListRows>(count), prepareListView);
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
    prepareList(*list);
    showOffScreen(*list, kListSize);
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

// The ticks of a fling. Another one is begun in time: even the slowest lasts for this many.
StepMaker flingTicks(int count)
{
    return [count] {
        constexpr int kTicks = 20;
        const auto list = shownList(count);
        const auto ticks = std::make_shared<int>(0);
        return [list, ticks] {
            if ((*ticks)++ % kTicks == 0)
                fling(*list, 0);
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
    const auto floor = std::make_shared<ListFloor>(kListSize.height() / kRowHeight);
    rows.paint("SpTableList", "frame", listOf(kFew),
               {bareWidget(kListSize, [floor](QPainter &painter) { floor->draw(painter); })},
               {{"QListView with QStyledItemDelegate", listViewOf(kFew), kPeerLimit}},
               textLimit(2.9));
    defineRowsOfTableLists(rows);
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
