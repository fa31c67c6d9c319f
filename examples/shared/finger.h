// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_FINGER_H
#define SHARED_FINGER_H

#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>

/**
 * One finger on the screen. Its touches enter through the window system like those of the device,
 * and Qt itself makes mouse events of them. Points are relative to the widget that is touched; a
 * finger on a window takes those of the window. A finger whose widget has been deleted does nothing
 * any more.
 */
class Finger
{
public:
    /// A finger above a widget; `takePicture` is called where a script asks for a picture.
    explicit Finger(QWidget *target, std::function<void()> takePicture = {});

    /// Puts the next touches on another widget.
    Finger &on(QWidget *target);
    /// Presses the middle of the widget.
    Finger &press();
    Finger &press(const QPoint &pos);
    /// Moves the finger there, evenly within this time in ms.
    Finger &moveTo(const QPoint &pos, int duration = 0);
    /// Keeps still, on the screen or above it, for this time in ms; events are processed.
    Finger &hold(int duration);
    Finger &release();
    /// Marks the moment worth a picture.
    Finger &picture();

private:
    void send(Qt::TouchPointState state);

    QPointer<QWidget> m_target;
    std::function<void()> m_takePicture;
    QPoint m_pos;
    bool m_pressedBefore = false;
};

#endif // SHARED_FINGER_H
