// SPDX-License-Identifier: Apache-2.0
#include "accessiblerows.h"

#ifndef QT_NO_ACCESSIBILITY

#include "../marclist.h"
#include "accessibletouch.h"
#include "arithmetic.h"

#include <QtMath>

#include <cmath>

namespace panelkit
{

namespace
{

constexpr int kBox = 40; // px, width and height of the box of a letter

} // namespace

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
        return {letters->width() / 2, toInt((row - first + 0.5) * letters->itemHight())};
    }
    const double angle =
        (letters->startAngle() + (row + 0.5) * letters->itemHight()) * M_PI / 180.0;
    return {toInt(letters->radius() * std::cos(angle)),
            toInt(letters->height() / 2 + letters->radius() * std::sin(angle))};
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
