// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TOURNAMES_H
#define HEADUNIT_TOURNAMES_H

#include "tourscript.h"

#include <QAccessible>

class QWidget;

namespace headunit
{

/// What the tour touches, as someone finds it who knows the screen by nothing but what
/// accessibility tells: the caption that a person reads, or, where there is none, the identifier.
/// An application names its list "list", and a row of it is what lies at a place of the list's
/// rectangle.
QAccessibleInterface *findNamed(QWidget &screen, const QString &page, const TourTouch &touch);

/// The names that it may have on an English screen, of which one at a time is there.
QStringList accessibleNames(const QString &page, const TourTouch &touch);

/// The place of a touch, in the screen.
QPoint placeIn(QWidget &screen, const QAccessibleInterface &found, const QPointF &part);

} // namespace headunit

#endif // HEADUNIT_TOURNAMES_H
