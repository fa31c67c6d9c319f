// SPDX-License-Identifier: Apache-2.0
#ifndef TOUCH_H
#define TOUCH_H

#include <QEvent>
#include <QPoint>
#include <QPointer>
#include <QWidget>

/// One finger on a widget, in the widget's own coordinates: touch(w).press(10, 10).hold(500)
/// .moveTo(60, 10).release(). The widget gets mouse events, as it does from a touch screen. Once a
/// slot has deleted the widget the finger touches nothing.
class Touch
{
public:
    explicit Touch(QWidget *widget);

    Touch &press(int x, int y);
    Touch &press(const QPoint &pos) { return press(pos.x(), pos.y()); }
    Touch &moveTo(int x, int y);
    /// Lifts the finger where it is.
    Touch &release();
    /// Keeps the finger down, or off, while so many virtual ms pass.
    Touch &hold(int ms);
    Touch &tap(int x, int y) { return press(x, y).release(); }

    /// Whether the widget, or a parent that it left the last event to, accepted it.
    bool wasAccepted() const { return m_wasAccepted; }

private:
    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons);

    QPointer<QWidget> m_widget;
    QPoint m_pos;
    bool m_wasAccepted = false;
};

Touch touch(QWidget *widget);

#endif // TOUCH_H
