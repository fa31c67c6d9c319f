// SPDX-License-Identifier: Apache-2.0
#include "pressfeedback.h"

#include <QKeyEvent>
#include <QWidget>

namespace
{

bool isRequest(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    return key->key() == Qt::Key_Meta && key->text() == QLatin1String("beep");
}

} // namespace

bool PressFeedback::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || !isRequest(event))
        return QObject::eventFilter(watched, event);
    emit requested(widget);
    return true;
}
