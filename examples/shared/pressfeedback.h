// SPDX-License-Identifier: Apache-2.0
#ifndef PRESSFEEDBACK_H
#define PRESSFEEDBACK_H

#include <QObject>

class QWidget;

/**
 * Takes the requests for a click sound that widgets post to themselves when they are pressed.
 * Installed as an event filter on the application, it sees a request on its way to the widget and
 * takes it: a request that went on could travel up through the parents and be heard again there.
 */
class PressFeedback : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void requested(QWidget *widget);
};

#endif // PRESSFEEDBACK_H
