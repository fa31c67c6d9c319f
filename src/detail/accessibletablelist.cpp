// SPDX-License-Identifier: Apache-2.0
#include "accessiblerows.h"

#ifndef QT_NO_ACCESSIBILITY

#include "../sptablelist.h"
#include "../styledelegate.h"
#include "accessibletouch.h"
#include "listroles.h"

#include <QAbstractItemModel>
#include <QItemSelectionModel>

namespace panelkit
{

namespace
{

constexpr int kTap = 60; // ms; one of up to 10 ms is no click
// One text beside the other, if both are there.
QString joined(const QString &text, const QString &other)
{
    return text.isEmpty() || other.isEmpty() ? text + other : text + QStringLiteral(", ") + other;
}

} // namespace

SpTableList *AccessibleTableList::list() const { return qobject_cast<SpTableList *>(object()); }

int AccessibleTableList::rowCount() const
{
    const auto *view = list();
    return view && view->model() ? view->model()->rowCount(view->rootIndex()) : 0;
}

int AccessibleTableList::columns() const
{
    const auto *view = list();
    return view && view->model() ? view->model()->columnCount(view->rootIndex()) : 0;
}

int AccessibleTableList::childCount() const
{
    return columns() == 0 ? 0 : (rowCount() + 1) * (columns() + 1);
}

int AccessibleTableList::rowOfChild(int index) const
{
    const int width = columns() + 1;
    return index % width == 0 ? -1 : index / width - 1;
}

int AccessibleTableList::childOfRow(int row) const { return (row + 1) * (columns() + 1) + 1; }

int AccessibleTableList::rowAt(const QPoint &pos) const
{
    const auto *view = list();
    const QPoint inViewport = view->viewport()->mapFrom(view, pos);
    return view->viewport()->rect().contains(inViewport) ? view->indexAt(inViewport).row() : -1;
}

QVariant AccessibleTableList::data(int row, int role) const
{
    const auto *view = list();
    return view && view->model() ? view->model()->index(row, 0, view->rootIndex()).data(role)
                                 : QVariant();
}

QString AccessibleTableList::part(int row, int role, int flags) const
{
    return (data(row, ContentRole).toInt() & flags) != 0 ? data(row, role).toString() : QString();
}

// Two styles take a text apart at its slashes. A model without these roles has the usual ones.
QString AccessibleTableList::rowText(int row, QAccessible::Text which) const
{
    if (which == QAccessible::Name) {
        QString text = data(row, Qt::AccessibleTextRole).toString();
        if (text.isEmpty())
            text = part(row, CentreTextRole, kHasCentreText);
        if (text.isEmpty())
            text = data(row, Qt::DisplayRole).toString();
        const int style = list()->UIStyle();
        if (style == SpTableList::LIST_STYLE_5 || style == SpTableList::LIST_STYLE_6)
            text.replace(QLatin1Char('/'), QStringLiteral(", "));
        return text;
    }
    if (which != QAccessible::Description)
        return {};
    const QString text = data(row, Qt::AccessibleDescriptionRole).toString();
    const int content = data(row, ContentRole).toInt();
    const QString number =
        (content & kHasHeaderIcon) != 0 ? QString() : part(row, HeaderNumberRole, kHasHeaderNumber);
    const QString tail =
        (content & kHasTailIcon) != 0 ? QString() : part(row, TailTextRole, kHasTailText);
    return text.isEmpty() ? joined(number, tail) : text;
}

QRect AccessibleTableList::rowRect(int row) const
{
    const auto *view = list();
    if (!view || !view->model())
        return {};
    const QRect place = view->visualRect(view->model()->index(row, 0, view->rootIndex()));
    const QRect seen = place & view->viewport()->rect();
    return seen.translated(view->viewport()->mapTo(view, QPoint()));
}

QAccessible::State AccessibleTableList::rowState(int row) const
{
    const auto *view = list();
    const auto *delegate = qobject_cast<styleDelegate *>(view->itemDelegate());
    QAccessible::State state;
    state.selectable = true;
    state.selected = data(row, SelectedRole).toBool();
    state.pressed = delegate && delegate->itemPressed() && view->selectionModel()
        && view->selectionModel()->isRowSelected(row, view->rootIndex());
    return state;
}

void AccessibleTableList::pressRow(int row)
{
    auto *view = list();
    if (!isTouchable(view))
        return;
    const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
    view->scrollTo(index);
    const QRect seen = view->visualRect(index) & view->viewport()->rect();
    if (!seen.isEmpty())
        tap(view->viewport(), seen.center(), kTap);
}

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
