// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_MOUSE_H
#define PANELKIT_BENCHMARKS_MOUSE_H

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPoint>
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

#endif // PANELKIT_BENCHMARKS_MOUSE_H
