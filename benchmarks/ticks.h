// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_TICKS_H
#define PANELKIT_BENCHMARKS_TICKS_H

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QObject>
#include <QTimerEvent>

/// The first timer that runs in the object itself; 0 if none does.
inline int timerOf(QObject &object)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&object);
    return timers.isEmpty() ? 0 : timers.constFirst().timerId;
}

/// A tick of the timer.
inline void sendTick(QObject &object, int timer)
{
    QTimerEvent tick(timer);
    QCoreApplication::sendEvent(&object, &tick);
}

#endif // PANELKIT_BENCHMARKS_TICKS_H
