// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_TOUCH_H
#define CATALOGUE_TOUCH_H

#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>

/**
 * One finger on the screen. Its touches enter through the window system like those of the device,
 * and Qt itself makes mouse events of them. Points are relative to the widget that is touched. A
 * finger whose widget has been deleted does nothing any more.
 */
class Touch
{
public:
    /// A finger above a widget; `takePicture` is called where a script asks for a picture.
    Touch(QWidget *target, std::function<void()> takePicture);

    /// Puts the next touches on another widget.
    Touch &on(QWidget *target);
    /// Presses the middle of the widget.
    Touch &press();
    Touch &press(const QPoint &pos);
    /// Moves the finger there, evenly within this time in ms.
    Touch &moveTo(const QPoint &pos, int duration = 0);
    /// Keeps still for this time in ms.
    Touch &hold(int duration);
    Touch &release();
    /// Marks the moment worth a picture.
    Touch &picture();

private:
    enum Action { Press, Move, Release };
    void send(Action action);

    QPointer<QWidget> m_target;
    std::function<void()> m_takePicture;
    QPoint m_pos;
    bool m_pressedBefore = false;
};

#endif // CATALOGUE_TOUCH_H
