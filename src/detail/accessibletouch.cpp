// SPDX-License-Identifier: Apache-2.0
#include "accessibletouch.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace panelkit
{

namespace
{

void send(const QPointer<QWidget> &widget, QEvent::Type type, const QPoint &pos)
{
    if (!widget)
        return;
    const bool isMove = type == QEvent::MouseMove;
    const bool isRelease = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, pos, widget->mapTo(widget->window(), pos), widget->mapToGlobal(pos),
                      isMove ? Qt::NoButton : Qt::LeftButton,
                      isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

bool isTouchable(const QWidget *widget)
{
    return widget && widget->isVisible() && widget->isEnabled();
}

void tap(QWidget *widget, const QPoint &pos, int duration)
{
    const QPointer<QWidget> guard(widget);
    send(guard, QEvent::MouseButtonPress, pos);
    if (guard && duration > 0) {
        auto *lift = new QTimer(widget);
        lift->setTimerType(Qt::PreciseTimer);
        QObject::connect(lift, &QTimer::timeout, widget, [lift, guard, pos] {
            delete lift;
            send(guard, QEvent::MouseButtonRelease, pos);
        });
        lift->start(duration);
        return;
    }
    send(guard, QEvent::MouseButtonRelease, pos);
}

void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    const QPointer<QWidget> guard(widget);
    send(guard, QEvent::MouseButtonPress, from);
    send(guard, QEvent::MouseMove, to);
    send(guard, QEvent::MouseButtonRelease, to);
}

} // namespace panelkit
