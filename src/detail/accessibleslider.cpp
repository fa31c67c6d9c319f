// SPDX-License-Identifier: Apache-2.0
#include "accessiblewidget.h"

#ifndef QT_NO_ACCESSIBILITY

#include "../mcirculardial.h"
#include "../mradiomovepoint.h"
#include "../mradioslider.h"
#include "accessibletouch.h"
#include "arithmetic.h"
#include "geometry.h"

#include <QtMath>

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace panelkit
{

namespace
{

using Action = QAccessibleActionInterface;

constexpr int kDirections = 1440; // around a dial where a finger may come down
constexpr int kMostPlaces = 4096; // along a track; of a longer one every second is tried, and so on
constexpr double kNearRim = 0.95; // of the radius
constexpr double kLeastTurn = 0.05; // of a dial's value; a smaller change is none

// All places of a round widget that a finger may touch: around its centre, near its rim.
std::vector<QPoint> pointsAround(const QWidget &widget)
{
    const double radius = widget.property("radius").toDouble() * kNearRim;
    const QVariant known = widget.property("centerPoint");
    const QPointF centre = known.isValid() ? known.toPointF() : QPointF(widget.rect().center());
    std::vector<QPoint> points;
    for (int i = 0; i < kDirections; ++i) {
        const double angle = 2 * M_PI * i / kDirections;
        const QPoint point(toInt(double(centre.x()) + radius * std::sin(angle)),
                           toInt(double(centre.y()) - radius * std::cos(angle)));
        if (widget.rect().contains(point))
            points.push_back(point);
    }
    return points;
}

// And beyond either end, where a finger may go that has come down on the widget.
std::vector<QPoint> pointsAlong(const QWidget &widget, AccessibleKind::Track track)
{
    const QPoint middle = widget.rect().center();
    const bool isVertical = track == AccessibleKind::Vertical;
    const int length = isVertical ? widget.height() : widget.width();
    std::vector<QPoint> points;
    const int stride = 1 + length / kMostPlaces;
    for (int i = -length / 2; i < length + length / 2; i += stride)
        points.push_back(isVertical ? QPoint(middle.x(), i) : QPoint(i, middle.y()));
    return points;
}

// An arc of no radius is a straight bar.
std::vector<QPoint> pointsOf(const QWidget &widget, AccessibleKind::Track track)
{
    if (track != AccessibleKind::Circular)
        return pointsAlong(widget, track);
    return widget.property("radius").toDouble() < 1 ? pointsAlong(widget, AccessibleKind::Vertical)
                                                    : pointsAround(widget);
}

} // namespace

void *AccessibleSlider::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return AccessibleWidget::interface_cast(type);
}

QString AccessibleSlider::text(QAccessible::Text which) const
{
    if (which == QAccessible::Value)
        return currentValue().toString()
            + (object() ? object()->property("unit").toString() : QString());
    return AccessibleWidget::text(which);
}

QAccessible::State AccessibleSlider::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    state.readOnly = kind().track == AccessibleKind::NoTrack;
    return state;
}

QStringList AccessibleSlider::actionNames() const
{
    QStringList names = AccessibleWidget::actionNames();
    if (object() && kind().track != AccessibleKind::NoTrack)
        names << Action::increaseAction() << Action::decreaseAction();
    return names;
}

void AccessibleSlider::doAction(const QString &actionName)
{
    const double step = minimumStepSize().toDouble();
    const bool isTrack = kind().track != AccessibleKind::NoTrack;
    if (isTrack && actionName == Action::increaseAction())
        touchNear(currentValue().toDouble() + step, 1);
    else if (isTrack && actionName == Action::decreaseAction())
        touchNear(currentValue().toDouble() - step, -1);
    else
        AccessibleWidget::doAction(actionName);
}

QVariant AccessibleSlider::currentValue() const { return facts().value(); }

QVariant AccessibleSlider::maximumValue() const { return facts().maximum(); }

QVariant AccessibleSlider::minimumValue() const { return facts().minimum(); }

QVariant AccessibleSlider::minimumStepSize() const { return facts().step(); }

void AccessibleSlider::setCurrentValue(const QVariant &value)
{
    if (kind().track != AccessibleKind::NoTrack)
        touchNear(value.toDouble(), 0);
}

double AccessibleSlider::valueAt(const QPoint &pos) const
{
    auto *tuner = qobject_cast<MRadioMovePoint *>(object());
    auto *needle = tuner ? tuner->findChild<MovePoint *>() : nullptr;
    return needle ? needle->cacPosMapFreq(pos.x())
                  : facts().told(AccessibleFact::ValueAt, pos.x(), pos.y());
}

// Touches the place whose value is the nearest to the wanted one. With a direction only values
// beyond the present one count, however few places there are: a step goes somewhere.
void AccessibleSlider::touchNear(double wanted, int direction)
{
    QWidget *const living = livingWidget();
    if (!isTouchable(living))
        return;
    if (kind().track == AccessibleKind::Tape) {
        dragTapeTo(wanted);
        return;
    }
    const std::optional<QPoint> place = placeNear(wanted, direction);
    if (!place)
        return;
    const QRect all = living->rect();
    const QPoint inside(qBound(0, place->x(), all.right()), qBound(0, place->y(), all.bottom()));
    if (*place == inside)
        tap(living, inside);
    else
        drag(living, inside, *place);
}

// One that is inside the widget goes before one that is as near to the value outside.
std::optional<QPoint> AccessibleSlider::placeNear(double wanted, int direction) const
{
    const QRect inside = widget()->rect();
    const double present = currentValue().toDouble();
    const double least = qobject_cast<MCircularDial *>(object()) ? kLeastTurn : 0;
    double nearest = std::numeric_limits<double>::infinity();
    std::optional<QPoint> place;
    for (const QPoint &point : pointsOf(*widget(), kind().track)) {
        const double value = valueAt(point);
        if (std::isnan(value) || (direction != 0 && (value - present) * direction <= least))
            continue;
        const double off = std::abs(value - wanted);
        const bool isAsNear = place && off <= nearest;
        if (off < nearest || (isAsNear && inside.contains(point) && !inside.contains(*place)))
            place = point;
        nearest = std::min(nearest, off);
    }
    return place;
}

// A scale below a fixed pointer goes the way of the finger, in whole steps.
void AccessibleSlider::dragTapeTo(double wanted)
{
    auto *slider = qobject_cast<MRadioSlider *>(livingWidget());
    const double step = minimumStepSize().toDouble();
    if (!slider || !(step > 0))
        return;
    const int steps = toInt(std::round((wanted - double(slider->getFreqStart())) / step));
    const int target =
        saturated(qint64(slider->width() / 2) - qint64(steps) * slider->getLineGap());
    const int way = saturated(qint64(target) - toInt(facts().told(AccessibleFact::ScaleX)));
    const QPoint middle = slider->rect().center();
    drag(slider, middle, middle + QPoint(boundedPixel(way), 0));
}

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
