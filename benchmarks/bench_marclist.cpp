// SPDX-License-Identifier: Apache-2.0
#include "arclooks.h"
#include "canvas.h"
#include "floors.h"
#include "mouse.h"
#include "rows.h"

#include <marclist.h>
#include <QListWidget>
#include <QScrollBar>

namespace
{

using namespace arclooks;

constexpr double kPeerLimit = 1;
constexpr int kFlingStep = 50; // px, of the peer

using Style = MArcList::ARCLIST_STYLE;

// Where a finger is that goes up and down.
class Finger
{
public:
    int y() const { return m_y; }

    void move()
    {
        m_y += m_way;
        if (m_y < 60 || m_y > 340)
            m_way = -m_way;
    }

private:
    int m_y = 300; // px
    int m_way = -4; // px
};

void prepareStyle(MArcList &list, Style style)
{
    list.setAcrListStyle(style);
    if (style == MArcList::ARCLIST_STYLE_1)
        list.setItemHight(kRowHeight);
    prepareList(list);
}

// One step of a drag, and the paint that it asks for.
PaintingMaker drag(Style style)
{
    return [style]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto list =
            shownOn<MArcList>(canvas, kSize, [style](MArcList &l) { prepareStyle(l, style); });
        Finger finger;
        sendMouse(*list, QEvent::MouseButtonPress, {kFingerX, finger.y()});
        return {canvas, [list, finger]() mutable {
                    finger.move();
                    sendMouse(*list, QEvent::MouseMove, {kFingerX, finger.y()});
                    list->paint();
                }};
    };
}

// The same with a list view that is scrolled.
PaintingMaker peerDrag()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        return {canvas, [list = makePeer(), canvas, finger = Finger()]() mutable {
                    finger.move();
                    list->verticalScrollBar()->setValue(finger.y());
                    paintPeer(*list, *canvas);
                }};
    };
}

void tick(MArcList &list) { QMetaObject::invokeMethod(&list, "speedTimerSlot"); }

// Ticks of a fling that shows as many letters in each of them, and begins anew before the list
// comes to its end, which would stop it.
class Fling
{
public:
    static constexpr int kTicks = 8; // from the start to the end

    explicit Fling(std::shared_ptr<MArcList> list) : m_list(std::move(list))
    {
        do {
            flick();
            m_list->setStartAngle(start());
            ::tick(*m_list);
        } while (m_list->startAngle() == start());
    }

    void tick()
    {
        if (++m_ticks % kTicks == 0)
            m_list->setStartAngle(start());
        ::tick(*m_list);
    }

private:
    bool isArc() const { return m_list->acrListStyle() == MArcList::ARCLIST_STYLE_0; }
    double start() const { return isArc() ? -30 : 16; } // degrees, or the first row

    // The finger goes so far that the ticks never run out.
    void flick() const
    {
        const int way = isArc() ? -1 : 1;
        const QPoint from(kFingerX, kSize.height() / 2 + 20);
        ::flick(*m_list, from, from + QPoint(0, way), from + QPoint(0, way * 1000000000));
    }

    std::shared_ptr<MArcList> m_list;
    int m_ticks = 0;
};

std::shared_ptr<OnCanvas<MArcList>> flungOn(const std::shared_ptr<QImage> &canvas, Style style)
{
    return shownOn<MArcList>(canvas, kSize, [style](MArcList &list) {
        prepareStyle(list, style);
        list.setShowItem(10);
    });
}

// A tick of a fling, and the paint that it asks for. Each letter was laid out before.
PaintingMaker flung(Style style)
{
    return [style]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto list = flungOn(canvas, style);
        const Step step = [list, fling = Fling(list)]() mutable {
            fling.tick();
            list->paint();
        };
        for (int i = 0; i < Fling::kTicks; ++i)
            step();
        return {canvas, step};
    };
}

StepMaker flingTicks(Style style)
{
    return [style]() -> Step {
        return [fling = Fling(flungOn(makeCanvas(kSize), style))]() mutable { fling.tick(); };
    };
}

// As far as such a tick scrolls ours.
void scrollOn(QScrollBar &bar) { bar.setValue(bar.value() < bar.maximum() ? bar.value() + 80 : 0); }

PaintingMaker peerFling()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        return {canvas, [list = makePeer(), canvas] {
                    scrollOn(*list->verticalScrollBar());
                    paintPeer(*list, *canvas);
                }};
    };
}

StepMaker peerTicks()
{
    return []() -> Step { return [list = makePeer()] { scrollOn(*list->verticalScrollBar()); }; };
}

// Asking for a repaint by the name of a slot, as a tick does.
StepMaker repaintRequests()
{
    return []() -> Step {
        const auto widget = shownOn<QWidget>(makeCanvas(kSize), kSize);
        return [widget] { QMetaObject::invokeMethod(widget.get(), "update"); };
    };
}

void addDrags(Rows &rows)
{
    rows.move("MArcList", "column dragged", drag(MArcList::ARCLIST_STYLE_1), {columnFloor(false)},
              {{"QListWidget", peerDrag(), kPeerLimit}},
              {"besides the paint, which takes 1.10 floors, a step has the finger's move and the "
               "letters' new places",
               {},
               1.28});
    rows.move("MArcList", "arc dragged", drag(MArcList::ARCLIST_STYLE_0), {arcFloor({})},
              {{"QListWidget", peerDrag()}},
              {"the letters and the marker of its floor stand still; in motion each of the eight "
               "letters is filled anew from its outline in its new turn, for 34,000 instructions, "
               "and the marker is turned, for 145,000",
               {},
               5.15});
}

void addFlings(Rows &rows)
{
    rows.move("MArcList", "column flung", flung(MArcList::ARCLIST_STYLE_1), {columnFloor(false)},
              {{"QListWidget", peerFling(), kPeerLimit}});
    rows.move("MArcList", "arc flung", flung(MArcList::ARCLIST_STYLE_0), {arcFloor({})},
              {{"QListWidget", peerFling(), kPeerLimit}},
              {"the letters of its floor stand still; in each tick the seven in sight are filled "
               "anew from their outlines in their new turn, for 34,000 instructions each, and in "
               "every fourth the marker is turned, for 145,000",
               {},
               3.9});
    rows.work("MArcList", "fling tick of an arc, unpainted", flingTicks(MArcList::ARCLIST_STYLE_0),
              {repaintRequests()}, {{"QListWidget", peerTicks(), kPeerLimit}});
    rows.work("MArcList", "fling tick of a column, unpainted",
              flingTicks(MArcList::ARCLIST_STYLE_1), {repaintRequests()},
              {{"QListWidget", peerTicks(), kPeerLimit}});
}

} // namespace

void defineRows(Rows &rows, Tag<MArcList>)
{
    const Against<PaintingMaker> list{"QListWidget", peer(), kPeerLimit};
    rows.paint("MArcList", "arc", arc({}), {arcFloor({})}, {list});
    rows.paint("MArcList", "arc pressed", arc({8, true}), {arcFloor({8, true})}, {});
    rows.paint("MArcList", "arc of many letters", onGround(arc({4})), {arcFloor({4})}, {list},
               keptTextLimit(2.4));
    rows.paint("MArcList", "column", column(false), {columnFloor(false)}, {list});
    rows.paint("MArcList", "column pressed", column(true), {columnFloor(true)}, {});
    addDrags(rows);
    addFlings(rows);
}
