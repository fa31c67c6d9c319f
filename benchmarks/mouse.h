// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_MOUSE_H
#define PANELKIT_BENCHMARKS_MOUSE_H

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPoint>
#include <QThread>
#include <QWidget>

/// A press, a move or a release of the left button, in the widget's own coordinates.
inline void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &pos)
{
    const bool isMove = type == QEvent::MouseMove;
    const bool isRelease = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, pos, isMove ? Qt::NoButton : Qt::LeftButton,
                      isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// A touch that flings. Lists take their time from the clock: one that took too long, or during
/// which a minute ended, has flung nothing.
inline void flick(QWidget &widget, const QPoint &press, const QPoint &move, const QPoint &release)
{
    constexpr unsigned long kWay = 5; // ms
    sendMouse(widget, QEvent::MouseButtonPress, press);
    sendMouse(widget, QEvent::MouseMove, move);
    QThread::msleep(kWay);
    sendMouse(widget, QEvent::MouseButtonRelease, release);
}

#endif // PANELKIT_BENCHMARKS_MOUSE_H
