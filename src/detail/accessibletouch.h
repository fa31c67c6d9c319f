// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_ACCESSIBLETOUCH_H
#define PANELKIT_DETAIL_ACCESSIBLETOUCH_H

#include <QPoint>

class QWidget;

// The finger that a client of accessibility has: widgets get from it the mouse events that they get
// from a touch screen, and do and say the same. Any of them may delete the widget.
namespace panelkit
{

/// Whether a finger could touch it: it is visible and enabled.
bool isTouchable(const QWidget *widget);

/// Presses the widget at a point of it and lifts the finger there: before this returns, or so many
/// ms later.
void tap(QWidget *widget, const QPoint &pos, int duration = 0);

/// Presses at one point, moves to the other one, which may lie outside, and lifts the finger there.
void drag(QWidget *widget, const QPoint &from, const QPoint &to);

} // namespace panelkit

#endif // PANELKIT_DETAIL_ACCESSIBLETOUCH_H
