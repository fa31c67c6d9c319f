// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_ROWS_H
#define PANELKIT_BENCHMARKS_ROWS_H

#include <QImage>

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// One step of what is measured: a paint, a drag step, a tick, a start-up.
using Step = std::function<void()>;

/// Makes a fresh subject, ready to be measured; the step keeps it alive.
using StepMaker = std::function<Step()>;

/// A step that paints, and the canvas on which its picture then stands.
struct Painting {
    std::shared_ptr<QImage> canvas;
    Step step;
    bool isOnGround = false; ///< onGround()
};

using PaintingMaker = std::function<Painting()>;

/// Paintings of which each begins on a fresh ground, as those in a window do: a look may be kept
/// for the ground on which it stands, and one with soft edges that is painted over itself again and
/// again never stands on the same. Laying the ground is no part of instruction counts, but of all
/// times in such a row.
PaintingMaker onGround(const PaintingMaker &make);

/// The steps of the paintings. The canvas stays as long as the step: whoever paints may only point
/// into it.
StepMaker stepOf(const PaintingMaker &make);

constexpr double kNoLimit = std::numeric_limits<double>::infinity();

/// What ours is measured against. The limit is the largest acceptable ratio of our cost to this
/// one.
template <class Maker> struct Against {
    std::string name;
    Maker make;
    double limit = kNoLimit;
};

/// The least that the same result can cost.
template <class Maker> struct Floor {
    Maker make;
    double limit = kNoLimit;
};

/// The limits of a row that cannot keep the usual ones, and a sentence that says why. The usual one
/// counts where there is no other.
struct OwnLimits {
    std::string why;
    std::optional<double> blit = {};
    std::optional<double> floor = {};
};

/// One class in one state, beside what it is measured against.
struct Row {
    std::string className;
    std::string state;
    std::string kind; ///< "at rest", "in motion", or "work" that is not a picture
    StepMaker ours;
    std::vector<Against<StepMaker>> rivals; ///< the blit, where there is one, the floor, the peers
    std::string why = {}; ///< what OwnLimits say

    /// The full name of one of the things measured, as in "SpIconButton/pressed/floor".
    std::string nameOf(const std::string &subject) const;

    bool isAtRest() const;
};

/// Everything that is measured, in the order of its definition.
///
/// What paints stands beside its blit, too, the limit of any renderer in software: a paint event
/// that draws one picture, the one that ours leaves, where ours leaves it. The picture is opaque if
/// all of its pixels are. The usual limits are 2.0 times the blit and 1.10 times the floor for a
/// look at rest, and 1.25 times the floor for one in motion, or the floor's own limit where it is
/// stricter.
class Rows
{
public:
    /// Adds the row of a look at rest. The floor has to paint the very pixels of ours, in the first
    /// paint and in the next: a row whose floor does not is refused, and why is printed.
    void paint(const std::string &className, const std::string &state, const PaintingMaker &ours,
               const Floor<PaintingMaker> &floor, const std::vector<Against<PaintingMaker>> &peers,
               const OwnLimits &own = {});

    /// The same of a look in motion: each of its paints may leave another picture.
    void motion(const std::string &className, const std::string &state, const PaintingMaker &ours,
                const Floor<PaintingMaker> &floor, const std::vector<Against<PaintingMaker>> &peers,
                const OwnLimits &own = {});

    /// Adds the row of a move and the paint that it asks for. The floor paints what such a paint
    /// shows, but stands still.
    void move(const std::string &className, const std::string &state, const PaintingMaker &ours,
              const Floor<PaintingMaker> &floor, const std::vector<Against<PaintingMaker>> &peers,
              const OwnLimits &own = {});

    /// Adds the row of anything else, and why it has the limits that it has.
    void work(const std::string &className, const std::string &state, const StepMaker &ours,
              const Floor<StepMaker> &floor, const std::vector<Against<StepMaker>> &peers,
              const std::string &why = {});

    const std::vector<Row> &all() const { return m_rows; }
    bool hasRefused() const { return m_hasRefused; }

private:
    bool accepts(const std::string &className, const std::string &state, const PaintingMaker &ours,
                 const PaintingMaker &floor);
    void addPainted(Row row, const PaintingMaker &ours, const Floor<PaintingMaker> &floor,
                    const std::vector<Against<PaintingMaker>> &peers, const OwnLimits &own);

    std::vector<Row> m_rows;
    bool m_hasRefused = false;
};

template <class Class> struct Tag {
};

// Each class defines its rows in bench_<class>.cpp:
//     void defineRows(Rows &rows, Tag<Class>);

#endif // PANELKIT_BENCHMARKS_ROWS_H
