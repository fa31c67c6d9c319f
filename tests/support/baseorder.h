// SPDX-License-Identifier: Apache-2.0
#ifndef BASEORDER_H
#define BASEORDER_H

#include "signallog.h"

#include <QEvent>
#include <QStringList>
#include <QWidget>

/// Tells which signals of a widget come before QWidget's own handler of the same mouse event, and
/// which after it: that handler ignores the event, which is accepted until then. Signals that no
/// mouse event of the widget has caused are in neither list.
class BaseOrder : public QObject
{
public:
    explicit BaseOrder(QWidget *widget) : m_log(widget)
    {
        widget->installEventFilter(this);
        m_log.onLine([this](const QString &line) {
            if (m_event)
                (m_event->isAccepted() ? before : after) += line.section(QLatin1Char('('), 0, 0);
        });
    }

    QStringList before;
    QStringList after;

    bool eventFilter(QObject *widget, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            break;
        default:
            return false;
        }
        m_event = event;
        widget->event(event);
        m_event = nullptr;
        return true;
    }

private:
    SignalLog m_log;
    const QEvent *m_event = nullptr;
};

#endif // BASEORDER_H
