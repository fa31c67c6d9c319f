// SPDX-License-Identifier: Apache-2.0
#ifndef PARENT_H
#define PARENT_H

#include <QKeyEvent>
#include <QStringList>
#include <QWidget>

/// A parent that writes down the mouse and key events which come up to it: "press", "move",
/// "release", and the text of a key.
class Parent : public QWidget
{
public:
    QStringList events;

protected:
    bool event(QEvent *e) override
    {
        switch (e->type()) {
        case QEvent::MouseButtonPress:
            events += QStringLiteral("press");
            break;
        case QEvent::MouseMove:
            events += QStringLiteral("move");
            break;
        case QEvent::MouseButtonRelease:
            events += QStringLiteral("release");
            break;
        case QEvent::KeyPress:
            events += static_cast<QKeyEvent *>(e)->text();
            break;
        default:
            break;
        }
        return QWidget::event(e);
    }
};

#endif // PARENT_H
