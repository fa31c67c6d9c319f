// SPDX-License-Identifier: Apache-2.0
#include "accessiblewidget.h"

#ifndef QT_NO_ACCESSIBILITY

#include "accessibletouch.h"
#include "arithmetic.h"

#include <QColor>
#include <QWindow>

namespace panelkit
{

namespace
{

using Action = QAccessibleActionInterface;

constexpr int kSwipe = 121; // px, sideways, the shortest that turns a page

// Timers of long presses may be 5 % late.
int surelyLonger(int ms) { return saturated(qint64(ms) + ms / 10 + 1); }

} // namespace

AccessibleWidget::AccessibleWidget(QWidget *widget, const AccessibleKind &kind)
    : QAccessibleWidget(widget, kind.role), m_kind(kind)
{
    watch();
}

void AccessibleWidget::watch() const
{
    if (!m_watcher && QAccessible::isActive() && livingWidget())
        m_watcher = std::make_unique<AccessibleWatcher>(widget(), m_kind);
}

QWidget *AccessibleWidget::livingWidget() const { return facts().isAlive() ? widget() : nullptr; }

QWindow *AccessibleWidget::window() const
{
    return object() ? QAccessibleWidget::window() : nullptr;
}

int AccessibleWidget::childCount() const { return object() ? QAccessibleWidget::childCount() : 0; }

int AccessibleWidget::indexOfChild(const QAccessibleInterface *child) const
{
    return object() && child ? QAccessibleWidget::indexOfChild(child) : -1;
}

QAccessibleInterface *AccessibleWidget::focusChild() const
{
    return object() ? QAccessibleWidget::focusChild() : nullptr;
}

QRect AccessibleWidget::rect() const { return object() ? QAccessibleWidget::rect() : QRect(); }

QAccessibleInterface *AccessibleWidget::parent() const
{
    return object() ? QAccessibleWidget::parent() : nullptr;
}

QAccessibleInterface *AccessibleWidget::child(int index) const
{
    return object() && index >= 0 ? QAccessibleWidget::child(index) : nullptr;
}

QString AccessibleWidget::text(QAccessible::Text which) const
{
    if (!object())
        return {};
    watch();
    if (which == QAccessible::Name)
        return facts().name();
    if (which == QAccessible::Description)
        return facts().description();
    return QAccessibleWidget::text(which);
}

QAccessible::State AccessibleWidget::state() const
{
    if (!object())
        return {};
    watch();
    const AccessibleFacts own = facts();
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = own.isPressed();
    state.checkable = m_kind.isCheckable;
    state.checked = own.isChecked();
    state.disabled = state.disabled || own.isDisabled();
    state.focused = state.focused || own.hasFocusLook();
    state.offscreen = !state.invisible && widget()->visibleRegion().isEmpty();
    state.animated = m_kind.role == QAccessible::Animation;
    return state;
}

QColor AccessibleWidget::foregroundColor() const
{
    return object() ? QAccessibleWidget::foregroundColor() : QColor();
}

QColor AccessibleWidget::backgroundColor() const
{
    return object() ? QAccessibleWidget::backgroundColor() : QColor();
}

// A backdrop hears a touch only while it keeps touches to itself.
bool AccessibleWidget::canBePressed() const
{
    if (m_kind.role == QAccessible::Graphic && !object()->property("holdMouseEvent").toBool())
        return false;
    return (m_kind.actions & AccessibleKind::Press) != 0;
}

QStringList AccessibleWidget::actionNames() const
{
    QStringList names;
    if (!object())
        return names;
    if ((m_kind.actions & AccessibleKind::Toggle) != 0)
        names += Action::toggleAction();
    if (canBePressed())
        names += Action::pressAction();
    if ((m_kind.actions & AccessibleKind::LongPress) != 0 && facts().longPress() > 0)
        names += longPressAction();
    if ((m_kind.actions & AccessibleKind::Pages) != 0)
        names << Action::previousPageAction() << Action::nextPageAction();
    return names + QAccessibleWidget::actionNames();
}

// What a touch does may end this interface: nothing of it is used behind one.
void AccessibleWidget::doAction(const QString &actionName)
{
    QWidget *const living = livingWidget();
    if (!actionNames().contains(actionName))
        return;
    if (actionName == Action::setFocusAction()) {
        QAccessibleWidget::doAction(actionName);
        return;
    }
    if (!isTouchable(living))
        return;
    const QPoint middle(living->width() / 2, living->height() / 2);
    if (actionName == Action::nextPageAction())
        drag(living, middle, middle - QPoint(kSwipe, 0));
    else if (actionName == Action::previousPageAction())
        drag(living, middle, middle + QPoint(kSwipe, 0));
    else
        tap(living, middle,
            actionName == longPressAction() ? surelyLonger(facts().longPress()) : 0);
}

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
