// SPDX-License-Identifier: Apache-2.0
#include "keyrequest.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace panelkit
{

void postKeyRequest(QWidget *receiver, QLatin1String request)
{
    QCoreApplication::postEvent(
        receiver, new QKeyEvent(QEvent::KeyPress, Qt::Key_Meta, Qt::NoModifier, request, false, 1));
}

bool isKeyRequest(const QKeyEvent *event, QLatin1String request)
{
    return event && event->key() == Qt::Key_Meta && event->text() == request;
}

} // namespace panelkit
