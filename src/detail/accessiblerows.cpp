// SPDX-License-Identifier: Apache-2.0
#include "accessiblerows.h"

#ifndef QT_NO_ACCESSIBILITY

namespace panelkit
{

AccessibleRows::~AccessibleRows()
{
    const auto children = m_children;
    for (const QAccessible::Id id : children)
        QAccessible::deleteAccessibleInterface(id);
}

int AccessibleRows::childCount() const { return livingWidget() ? rowCount() : 0; }

QAccessibleInterface *AccessibleRows::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    const auto known = m_children.constFind(index);
    if (known != m_children.constEnd())
        return QAccessible::accessibleInterface(*known);
    auto *row = new AccessibleRow(const_cast<AccessibleRows &>(*this), rowOfChild(index));
    m_children.insert(index, QAccessible::registerAccessibleInterface(row));
    return row;
}

int AccessibleRows::indexOfChild(const QAccessibleInterface *child) const
{
    for (auto known = m_children.cbegin(); known != m_children.cend(); ++known) {
        if (QAccessible::accessibleInterface(*known) == child)
            return known.key();
    }
    return -1;
}

QAccessibleInterface *AccessibleRows::childAt(int x, int y) const
{
    QWidget *const living = livingWidget();
    const int row = living ? rowAt(living->mapFromGlobal(QPoint(x, y))) : -1;
    return row < 0 ? nullptr : child(childOfRow(row));
}

bool AccessibleRow::isValid() const { return m_list.isValid() && m_row < m_list.rowCount(); }

QString AccessibleRow::text(QAccessible::Text which) const
{
    return m_row < 0 || !isValid() ? QString() : m_list.rowText(m_row, which);
}

QRect AccessibleRow::rect() const
{
    const QRect inList = m_row < 0 || !isValid() ? QRect() : m_list.rowRect(m_row);
    return inList.isEmpty() ? QRect() : inList.translated(m_list.rect().topLeft());
}

QAccessible::Role AccessibleRow::role() const
{
    return m_row < 0 ? QAccessible::RowHeader : QAccessible::ListItem;
}

QAccessible::State AccessibleRow::state() const
{
    const QAccessible::State ofList = m_list.state();
    QAccessible::State state;
    if (m_row >= 0 && isValid())
        state = m_list.rowState(m_row);
    state.disabled = ofList.disabled;
    state.invisible = ofList.invisible || m_row < 0;
    state.offscreen = ofList.offscreen || rect().isEmpty();
    return state;
}

void *AccessibleRow::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface && m_row >= 0
        ? static_cast<QAccessibleActionInterface *>(this)
        : nullptr;
}

QStringList AccessibleRow::actionNames() const { return {pressAction()}; }

void AccessibleRow::doAction(const QString &actionName)
{
    if (actionName == pressAction() && isValid())
        m_list.pressRow(m_row);
}

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
