// SPDX-License-Identifier: Apache-2.0
#include "accessiblewatcher.h"

#ifndef QT_NO_ACCESSIBILITY

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QEvent>
#include <QLabel>
#include <QMetaMethod>

#include <utility>

namespace panelkit
{

namespace
{

void report(QWidget *widget, QAccessible::Event type)
{
    QAccessibleEvent event(widget, type);
    QAccessible::updateAccessibility(&event);
}

} // namespace

AccessibleWatcher::AccessibleWatcher(QWidget *widget, const AccessibleKind &kind)
    : m_widget(widget), m_kind(kind), m_sight(seen())
{
    widget->installEventFilter(this);
    hearSignals();
}

void AccessibleWatcher::hearSignals()
{
    const QMetaObject *type = m_widget->metaObject();
    const int slot = staticMetaObject.indexOfSlot("look()");
    for (int i = QWidget::staticMetaObject.methodCount(); i < type->methodCount(); ++i) {
        if (type->method(i).methodType() == QMetaMethod::Signal)
            QMetaObject::connect(m_widget, i, this, slot);
    }
}

// The widget is looked at before it paints, not after: what it will show is known by then.
bool AccessibleWatcher::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Paint || event->type() == QEvent::ToolTipChange)
        look();
    return false;
}

AccessibleWatcher::Sight AccessibleWatcher::seen() const
{
    const AccessibleFacts facts(m_widget, m_kind);
    Sight sight;
    if (!qobject_cast<QLabel *>(m_widget))
        sight.caption = facts.caption();
    sight.toolTip = m_widget->toolTip();
    if (m_kind.hasValue && !qobject_cast<QAbstractSlider *>(m_widget))
        sight.value = facts.value();
    sight.isPressed = facts.isPressed();
    sight.isChecked = !qobject_cast<QAbstractButton *>(m_widget) && facts.isChecked();
    sight.isDisabled = facts.isDisabled();
    sight.hasFocusLook = facts.hasFocusLook();
    if (m_kind.teller == AccessibleTeller::ArcList) {
        sight.letters = int(facts.told(AccessibleFact::Letters));
        sight.letter = int(facts.told(AccessibleFact::CurrentLetter));
    }
    return sight;
}

// A client that hears of a change may do anything, this widget's end included.
void AccessibleWatcher::look()
{
    if (!QAccessible::isActive() || !m_widget)
        return;
    const QPointer<AccessibleWatcher> guard(this);
    const Sight before = std::exchange(m_sight, seen());
    reportTexts(before);
    if (guard)
        reportStates(before);
    if (guard && before.letters != m_sight.letters)
        report(m_widget, QAccessible::ObjectReorder);
    if (guard && before.letter != m_sight.letter)
        report(m_widget, QAccessible::SelectionWithin);
}

void AccessibleWatcher::reportTexts(const Sight &before)
{
    const QPointer<AccessibleWatcher> guard(this);
    if (before.caption != m_sight.caption)
        report(m_widget, QAccessible::NameChanged);
    if (guard && before.toolTip != m_sight.toolTip)
        report(m_widget, QAccessible::DescriptionChanged);
    if (guard && before.value != m_sight.value) {
        QAccessibleValueChangeEvent event(m_widget, m_sight.value);
        QAccessible::updateAccessibility(&event);
    }
}

void AccessibleWatcher::reportStates(const Sight &before)
{
    QAccessible::State changed;
    changed.pressed = before.isPressed != m_sight.isPressed;
    changed.checked = before.isChecked != m_sight.isChecked;
    changed.disabled = before.isDisabled != m_sight.isDisabled;
    changed.focused = before.hasFocusLook != m_sight.hasFocusLook;
    if (changed == QAccessible::State())
        return;
    QAccessibleStateChangeEvent event(m_widget, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
