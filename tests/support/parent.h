// SPDX-License-Identifier: Apache-2.0
#ifndef PARENT_H
#define PARENT_H

#include "touch.h"

#include <QKeyEvent>
#include <QStringList>
#include <QTest>
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

/// Rows of "disabled" for checkMouseEventsGoOn().
inline void addDisabled()
{
    QTest::addColumn<bool>("disabled");
    QTest::newRow("enabled") << false;
    QTest::newRow("disabled in software") << true;
}

/// Every mouse event of a widget goes on to its parent, also once it is disabled by this setter.
template <typename Make, typename Setter>
void checkMouseEventsGoOn(const Make &make, Setter setDisabled)
{
    QFETCH(bool, disabled);
    Parent parent;
    const auto widget = make(&parent);
    (*widget.*setDisabled)(disabled);
    touch(widget.get()).press(10, 10).moveTo(12, 12).moveTo(50, 12).release();
    QCOMPARE(parent.events, (QStringList{"press", "move", "move", "release"}));
    widget->setParent(nullptr);
}

/// The request for a sound reaches the parent some time after a press that does not.
template <typename Make> void checkSoundGoesUp(const Make &make)
{
    Parent parent;
    const auto widget = make(&parent);
    touch(widget.get()).press(10, 10).hold(10);
    QCOMPARE(parent.events, QStringList{"beep"});
    widget->setParent(nullptr);
}

#endif // PARENT_H
