// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_FEED_H
#define SHARED_FEED_H

#include <QEvent>
#include <QPointF>
#include <QVector>

class QWindow;

/// Touches and mouse events enter here as those of a driver do, through the window system; Qt makes
/// mouse events of the touches by itself. Positions are relative to the window.
namespace feed
{

struct TouchPoint {
    int id;
    Qt::TouchPointState state;
    QPointF pos;
};

/// One report of the touch screen; it names the fingers that keep still too.
void touch(QWindow &window, const QVector<TouchPoint> &points);

/// One report of a mouse; `buttons` are those held after it.
void mouse(QWindow &window, QEvent::Type type, const QPointF &pos, Qt::MouseButton button,
           Qt::MouseButtons buttons);

} // namespace feed

#endif // SHARED_FEED_H
