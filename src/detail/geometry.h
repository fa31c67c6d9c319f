// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_GEOMETRY_H
#define PANELKIT_DETAIL_GEOMETRY_H

#include <QRect>
#include <QSize>

#include <optional>

namespace panelkit
{

/// A size centred in a rectangle; an odd remainder is halved toward zero, so that a size larger
/// than the rectangle sticks out by the odd pixel at the right and at the bottom.
QRect centredTowardZero(const QSize &size, const QRect &rect);

/// A size centred in a rectangle; an odd remainder is halved toward minus infinity, so that a size
/// larger than the rectangle sticks out by the odd pixel at the left and at the top.
QRect centredTowardMinusInfinity(const QSize &size, const QRect &rect);

/// A coordinate or distance that came from a caller, limited to the largest size a widget can have
/// (16,777,215 px) in either direction, so that adding a handful of them does not overflow an int.
int boundedPixel(int value);

/// A rectangle from numbers that came from a caller. Each is limited to the largest size a widget
/// can have (16,777,215 px), so that adding two of them neither overflows an int nor loses whole
/// pixels in a single-precision coordinate.
QRect boundedRect(int left, int top, int width, int height);

/// A rectangle that came from a caller, if it is valid, with each edge limited as a single pixel
/// is, so that its width does not overflow an int; otherwise the one to fall back to.
QRect boundedOr(const QRect &rect, const QRect &fallback);

/// The direction of a touch from the centre (0, 0) in degrees clockwise, from `up` for straight up
/// to a full turn more. A touch on either axis has none. Pi is taken as 3.14159, which decides what
/// a touch on the border of two values means (kept behaviour).
std::optional<double> touchDirection(double x, double y, double up);

} // namespace panelkit

#endif // PANELKIT_DETAIL_GEOMETRY_H
