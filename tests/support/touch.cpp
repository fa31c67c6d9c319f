// SPDX-License-Identifier: Apache-2.0
#include "touch.h"

#include "virtualtime.h"

#include <QCoreApplication>
#include <QMouseEvent>

Touch::Touch(QWidget *widget) : m_widget(widget) { }

Touch &Touch::press(int x, int y)
{
    m_pos = QPoint(x, y);
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    return *this;
}

Touch &Touch::moveTo(int x, int y)
{
    m_pos = QPoint(x, y);
    send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    return *this;
}

Touch &Touch::release()
{
    send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    return *this;
}

Touch &Touch::hold(int ms)
{
    virtualtime::advance(ms);
    return *this;
}

void Touch::send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    if (!m_widget)
        return;
    const QPoint inWindow = m_widget->mapTo(m_widget->window(), m_pos);
    QMouseEvent event(type, m_pos, inWindow, m_widget->mapToGlobal(m_pos), button, buttons,
                      Qt::NoModifier);
    event.setTimestamp(ulong(virtualtime::now()));
    QCoreApplication::sendEvent(m_widget, &event);
    m_wasAccepted = event.isAccepted();
}

Touch touch(QWidget *widget) { return Touch(widget); }
