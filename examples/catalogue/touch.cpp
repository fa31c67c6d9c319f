// SPDX-License-Identifier: Apache-2.0
#include "touch.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStyleHints>
#include <QtTest>
#include <QWindow>

namespace
{

constexpr int kFinger = 0;
constexpr int kMoveInterval = 16; // ms, as often as a touch screen reports

QTouchDevice *touchScreen()
{
    static QTouchDevice *device = QTest::createTouchDevice();
    return device;
}

} // namespace

Touch::Touch(QWidget *target, std::function<void()> takePicture)
    : m_target(target), m_takePicture(std::move(takePicture))
{
}

Touch &Touch::on(QWidget *target)
{
    m_target = target;
    return *this;
}

Touch &Touch::press() { return press(m_target ? m_target->rect().center() : QPoint()); }

// The first press of a script is never the second one of a double click that the script before it
// began.
Touch &Touch::press(const QPoint &pos)
{
    m_pos = pos;
    const int doubleClickInterval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    if (!m_pressedBefore)
        QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
    send(Press);
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(doubleClickInterval);
    m_pressedBefore = true;
    return *this;
}

Touch &Touch::moveTo(const QPoint &pos, int duration)
{
    const QPoint from = m_pos;
    const QPoint way = pos - from;
    const int steps = qMax(1, duration / kMoveInterval);
    for (int step = 1; step <= steps; ++step) {
        if (duration > 0)
            hold(kMoveInterval);
        m_pos = from + QPoint(way.x() * step / steps, way.y() * step / steps);
        send(Move);
    }
    return *this;
}

Touch &Touch::hold(int duration)
{
    QTest::qWait(duration);
    return *this;
}

Touch &Touch::release()
{
    send(Release);
    return *this;
}

Touch &Touch::picture()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_takePicture();
    return *this;
}

void Touch::send(Action action)
{
    if (!m_target)
        return;
    QWindow *window = m_target->window()->windowHandle();
    const QPoint pos = m_target->mapTo(m_target->window(), m_pos);
    auto sequence = QTest::touchEvent(window, touchScreen(), false);
    switch (action) {
    case Press:
        sequence.press(kFinger, pos, window);
        break;
    case Move:
        sequence.move(kFinger, pos, window);
        break;
    case Release:
        sequence.release(kFinger, pos, window);
        break;
    }
    sequence.commit();
}
