// SPDX-License-Identifier: Apache-2.0
#include "rows.h"

#include "canvas.h"

#include <QPixmap>
#include <QRect>
#include <QRgb>

#include <valgrind/callgrind.h>

#include <algorithm>
#include <iostream>
#include <utility>

namespace
{

constexpr char kAtRest[] = "at rest";
constexpr char kInMotion[] = "in motion";

constexpr double kBlitLimit = 2.0; // at rest
constexpr double kRestingFloorLimit = 1.10;
constexpr double kMovingFloorLimit = 1.25;

// What differs between two canvases of one size; empty if they are the same picture.
std::string difference(const QImage &ours, const QImage &floor)
{
    if (ours.size() != floor.size())
        return "is of another size";
    int count = 0;
    QPoint first;
    for (int y = ours.height() - 1; y >= 0; --y) {
        for (int x = ours.width() - 1; x >= 0; --x) {
            if (ours.pixel(x, y) != floor.pixel(x, y)) {
                ++count;
                first = {x, y};
            }
        }
    }
    if (count == 0)
        return {};
    return "differs in " + std::to_string(count) + " pixels, the first at "
        + std::to_string(first.x()) + "," + std::to_string(first.y());
}

// Why a floor is no floor: it has to paint our picture, and there has to be one. The second paint
// is the one of kept looks.
std::string complaint(const PaintingMaker &makeOurs, const PaintingMaker &makeFloor)
{
    const Painting ours = makeOurs();
    const Painting floor = makeFloor();
    for (const char *paint : {"first", "second"}) {
        clear(*ours.canvas);
        clear(*floor.canvas);
        const QImage blank = ours.canvas->copy();
        ours.step();
        floor.step();
        if (*ours.canvas == blank)
            return std::string("the ") + paint + " paint leaves no picture";
        const std::string different = difference(*ours.canvas, *floor.canvas);
        if (!different.empty())
            return std::string("the ") + paint + " paint of the floor " + different;
    }
    return {};
}

QRect touchedRect(const QImage &canvas)
{
    QRect touched;
    for (int y = 0; y < canvas.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(canvas.constScanLine(y));
        for (int x = 0; x < canvas.width(); ++x) {
            if (line[x] != 0)
                touched |= QRect(x, y, 1, 1);
        }
    }
    return touched;
}

// The picture that a paint of ours leaves, as one pixmap. Ours has painted before: what it keeps,
// it has made.
PaintingMaker blitOf(const PaintingMaker &make)
{
    const Painting ours = make();
    ours.step();
    ours.canvas->fill(Qt::transparent);
    ours.step();
    const QRect touched = touchedRect(*ours.canvas);
    // fromImage() makes it opaque where it can.
    const QPixmap picture = QPixmap::fromImage(ours.canvas->copy(touched));
    return bareWidget(ours.canvas->size(), [picture, at = touched.topLeft()](QPainter &painter) {
        painter.drawPixmap(at, picture);
    });
}

} // namespace

PaintingMaker onGround(const PaintingMaker &make)
{
    return [make]() -> Painting {
        Painting painting = make();
        painting.isOnGround = true;
        return painting;
    };
}

StepMaker stepOf(const PaintingMaker &make)
{
    return [make]() -> Step {
        const Painting painting = make();
        if (!painting.isOnGround)
            return [painting] { painting.step(); };
        return [painting] {
            CALLGRIND_TOGGLE_COLLECT;
            clear(*painting.canvas);
            CALLGRIND_TOGGLE_COLLECT;
            painting.step();
        };
    };
}

std::string Row::nameOf(const std::string &subject) const
{
    return className + '/' + state + '/' + subject;
}

bool Row::isAtRest() const { return kind == kAtRest; }

void Rows::paint(const std::string &className, const std::string &state, const PaintingMaker &ours,
                 const Floor<PaintingMaker> &floor,
                 const std::vector<Against<PaintingMaker>> &peers, const OwnLimits &own)
{
    if (accepts(className, state, ours, floor.make))
        addPainted({className, state, kAtRest, stepOf(ours), {}}, ours, floor, peers, own);
}

void Rows::motion(const std::string &className, const std::string &state, const PaintingMaker &ours,
                  const Floor<PaintingMaker> &floor,
                  const std::vector<Against<PaintingMaker>> &peers, const OwnLimits &own)
{
    if (accepts(className, state, ours, floor.make))
        move(className, state, ours, floor, peers, own);
}

void Rows::move(const std::string &className, const std::string &state, const PaintingMaker &ours,
                const Floor<PaintingMaker> &floor, const std::vector<Against<PaintingMaker>> &peers,
                const OwnLimits &own)
{
    addPainted({className, state, kInMotion, stepOf(ours), {}}, ours, floor, peers, own);
}

void Rows::work(const std::string &className, const std::string &state, const StepMaker &ours,
                const Floor<StepMaker> &floor, const std::vector<Against<StepMaker>> &peers,
                const std::string &why)
{
    Row row{className, state, "work", ours, {{"floor", floor.make, floor.limit}}, why};
    row.rivals.insert(row.rivals.end(), peers.begin(), peers.end());
    m_rows.push_back(row);
}

bool Rows::accepts(const std::string &className, const std::string &state,
                   const PaintingMaker &ours, const PaintingMaker &floor)
{
    const std::string wrong = complaint(ours, floor);
    if (wrong.empty())
        return true;
    std::cerr << className << '/' << state << " is not measured: " << wrong << '\n';
    m_hasRefused = true;
    return false;
}

void Rows::addPainted(Row row, const PaintingMaker &ours, const Floor<PaintingMaker> &floor,
                      const std::vector<Against<PaintingMaker>> &peers, const OwnLimits &own)
{
    const bool isAtRest = row.isAtRest();
    const double usualBlit = isAtRest ? kBlitLimit : kNoLimit;
    const double usualFloor = isAtRest ? kRestingFloorLimit : kMovingFloorLimit;
    const bool isOnGround = ours().isOnGround;
    const auto likeOurs = [isOnGround](const PaintingMaker &make) {
        return stepOf(isOnGround ? onGround(make) : make);
    };
    row.why = own.why;
    row.rivals = {
        {"blit", likeOurs(blitOf(ours)), own.blit.value_or(usualBlit)},
        {"floor", likeOurs(floor.make), own.floor.value_or(std::min(floor.limit, usualFloor))}};
    for (const Against<PaintingMaker> &peer : peers)
        row.rivals.push_back({peer.name, likeOurs(peer.make), peer.limit});
    m_rows.push_back(std::move(row));
}
