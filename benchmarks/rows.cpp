// SPDX-License-Identifier: Apache-2.0
#include "rows.h"

#include "canvas.h"

#include <iostream>

namespace
{

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

} // namespace

StepMaker stepOf(const PaintingMaker &make)
{
    return [make]() -> Step { return [painting = make()] { painting.step(); }; };
}

std::string Row::nameOf(const std::string &subject) const
{
    return className + '/' + state + '/' + subject;
}

void Rows::paint(const std::string &className, const std::string &state, const PaintingMaker &ours,
                 const Floor<PaintingMaker> &floor,
                 const std::vector<Against<PaintingMaker>> &peers)
{
    const std::string wrong = complaint(ours, floor.make);
    if (!wrong.empty()) {
        std::cerr << className << '/' << state << " is not measured: " << wrong << '\n';
        m_hasRefused = true;
        return;
    }
    std::vector<Against<StepMaker>> peerSteps;
    peerSteps.reserve(peers.size());
    for (const Against<PaintingMaker> &peer : peers)
        peerSteps.push_back({peer.name, stepOf(peer.make), peer.limit});
    work(className, state, stepOf(ours), {stepOf(floor.make), floor.limit}, peerSteps);
}

void Rows::work(const std::string &className, const std::string &state, const StepMaker &ours,
                const Floor<StepMaker> &floor, const std::vector<Against<StepMaker>> &peers)
{
    m_rows.push_back({className, state, ours, {"floor", floor.make, floor.limit}, peers});
}
