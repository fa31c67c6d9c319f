// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_TICKS_H
#define PANELKIT_BENCHMARKS_TICKS_H

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QObject>
#include <QTimerEvent>

/// Whether a timer runs in the object itself.
inline bool hasTimer(QObject &object)
{
    return !QAbstractEventDispatcher::instance()->registeredTimers(&object).isEmpty();
}

/// A tick of the first of its timers.
inline void sendTick(QObject &object)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&object);
    QTimerEvent tick(timers.constFirst().timerId);
    QCoreApplication::sendEvent(&object, &tick);
}

#endif // PANELKIT_BENCHMARKS_TICKS_H
