// SPDX-License-Identifier: Apache-2.0
#include "accessiblerows.h"

#ifndef QT_NO_ACCESSIBILITY

#include "../marclist.h"
#include "../sptablelist.h"
#include "../styledelegate.h"
#include "accessibletouch.h"
#include "arithmetic.h"
#include "geometry.h"
#include "listroles.h"

#include <QAbstractItemModel>
#include <QItemSelectionModel>
#include <QtMath>

#include <cmath>

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

constexpr int kBox = 40; // px, width and height of the box of a letter

} // namespace

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
    const QAccessible::Id id = m_children.value(index);
    auto *known = static_cast<AccessibleRow *>(id ? QAccessible::accessibleInterface(id) : nullptr);
    if (known && known->row() == rowOfChild(index))
        return known;
    if (known) // the model has another number of columns now
        QAccessible::deleteAccessibleInterface(id);
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
    return columns() == 0 ? 0 : saturated((qint64(rowCount()) + 1) * (columns() + 1));
}

int AccessibleTableList::rowOfChild(int index) const
{
    const int width = columns() + 1;
    return index % width == 1 ? index / width - 1 : -1;
}

int AccessibleTableList::childOfRow(int row) const
{
    return saturated((qint64(row) + 1) * (columns() + 1) + 1);
}

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

MArcList *AccessibleArcList::list() const { return qobject_cast<MArcList *>(object()); }

int AccessibleArcList::rowCount() const { return toInt(facts().told(AccessibleFact::Letters)); }

QString AccessibleArcList::rowText(int row, QAccessible::Text which) const
{
    if (which != QAccessible::Name)
        return {};
    return QString(QChar(ushort(toInt(facts().told(AccessibleFact::LetterAt, row)))));
}

// In the middle of what a touch takes for the letter.
QPoint AccessibleArcList::touchPoint(int row) const
{
    const auto *letters = list();
    if (letters->acrListStyle() == MArcList::ARCLIST_STYLE_1) {
        const double first = std::trunc(letters->startAngle());
        const double y = (row - first + 0.5) * letters->itemHight();
        return {letters->width() / 2, boundedPixel(toInt(y))};
    }
    const int middle = letters->height() / 2;
    const double angle =
        (letters->startAngle() + (row + 0.5) * letters->itemHight()) * M_PI / 180.0;
    return {boundedPixel(toInt(letters->radius() * std::cos(angle))),
            boundedPixel(toInt(middle + letters->radius() * std::sin(angle)))};
}

QRect AccessibleArcList::rowRect(int row) const
{
    if (!list())
        return {};
    const QRect box(touchPoint(row) - QPoint(kBox / 2, kBox / 2), QSize(kBox, kBox));
    return list()->rect().contains(box.center()) ? box & list()->rect() : QRect();
}

int AccessibleArcList::rowAt(const QPoint &pos) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (rowRect(row).contains(pos))
            return row;
    }
    return -1;
}

QAccessible::State AccessibleArcList::rowState(int row) const
{
    QAccessible::State state;
    state.selectable = true;
    state.selected = toInt(facts().told(AccessibleFact::CurrentLetter)) == row;
    state.pressed = toInt(facts().told(AccessibleFact::IsPressed)) == row + 1;
    return state;
}

// The row with the middle of the arc is the one line where a touch is none.
void AccessibleArcList::pressRow(int row)
{
    auto *letters = list();
    if (!isTouchable(letters))
        return;
    if (rowRect(row).isEmpty())
        letters->setCurrentIndex(rowText(row, QAccessible::Name).at(0));
    QPoint point = touchPoint(row);
    if (point.y() == letters->height() / 2)
        ++point.ry();
    if (letters->rect().contains(point))
        tap(letters, point);
}

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
