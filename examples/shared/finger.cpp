// SPDX-License-Identifier: Apache-2.0
#include "finger.h"

#include "feed.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QStyleHints>
#include <QTimer>
#include <QWindow>

namespace
{
constexpr int kFinger = 0;
constexpr int kMoveInterval = 16; // ms, as often as a touch screen reports
} // namespace

Finger::Finger(QWidget *target, std::function<void()> takePicture)
    : m_target(target), m_takePicture(std::move(takePicture))
{
}

Finger &Finger::on(QWidget *target)
{
    m_target = target;
    return *this;
}

Finger &Finger::press() { return press(m_target ? m_target->rect().center() : QPoint()); }

// The first press of a script is never the second one of a double click that the script before it
// began.
Finger &Finger::press(const QPoint &pos)
{
    m_pos = pos;
    const int doubleClickInterval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    if (!m_pressedBefore)
        QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
    send(Qt::TouchPointPressed);
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(doubleClickInterval);
    m_pressedBefore = true;
    return *this;
}

Finger &Finger::moveTo(const QPoint &pos, int duration)
{
    const QPoint from = m_pos;
    const QPoint way = pos - from;
    const int steps = qMax(1, duration / kMoveInterval);
    for (int step = 1; step <= steps; ++step) {
        if (duration > 0)
            hold(kMoveInterval);
        m_pos = from + QPoint(way.x() * step / steps, way.y() * step / steps);
        send(Qt::TouchPointMoved);
    }
    return *this;
}

// What a touch has left to be deleted goes at the latest here, even if a script is played in the
// middle of an event.
Finger &Finger::hold(int duration)
{
    QEventLoop loop;
    QTimer end;
    end.setTimerType(Qt::PreciseTimer);
    end.setSingleShot(true);
    QObject::connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
    end.start(duration);
    loop.exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return *this;
}

Finger &Finger::release()
{
    send(Qt::TouchPointReleased);
    return *this;
}

Finger &Finger::picture()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (m_takePicture)
        m_takePicture();
    return *this;
}

void Finger::send(Qt::TouchPointState state)
{
    if (!m_target)
        return;
    const QPoint pos = m_target->mapTo(m_target->window(), m_pos);
    feed::touch(*m_target->window()->windowHandle(), {{kFinger, state, QPointF(pos)}});
    QCoreApplication::processEvents();
}
