// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_ARCLOOKS_H
#define PANELKIT_BENCHMARKS_ARCLOOKS_H

#include "rows.h"

#include <QSize>

#include <memory>

class MArcList;
class QImage;
class QListWidget;

// The looks of a list of letters, and the least that they can cost: letters laid out and markers
// turned before.

namespace arclooks
{

constexpr QSize kSize(560, 400);
constexpr int kRowHeight = 40; // px, in a column
constexpr int kFingerX = 460; // px, on the arc

/// The letters from A to Z with a marker at the fourth of them, at the top of the list.
void prepareList(MArcList &list);

/// An arc with the letters so many degrees apart; the finger holds one of them.
struct Arc {
    double pitch = 8;
    bool isPressed = false;
};

PaintingMaker arc(const Arc &look);
PaintingMaker arcFloor(const Arc &look);

/// A column; the finger holds one of its letters.
PaintingMaker column(bool isPressed);
PaintingMaker columnFloor(bool isPressed);

/// Ten rows with the same letters.
std::shared_ptr<QListWidget> makePeer();
void paintPeer(QListWidget &list, QImage &canvas);
PaintingMaker peer();

} // namespace arclooks

#endif // PANELKIT_BENCHMARKS_ARCLOOKS_H
