// SPDX-License-Identifier: Apache-2.0
#include "geometry.h"

#include <QtGlobal>

#include <cmath>

namespace panelkit
{

namespace
{

constexpr int kFarthest = (1 << 24) - 1; // px, QWIDGETSIZE_MAX

int halfTowardMinusInfinity(int value) { return (value - (value < 0 ? 1 : 0)) / 2; }

} // namespace

QRect centredTowardZero(const QSize &size, const QRect &rect)
{
    const QSize spare = rect.size() - size;
    return {rect.topLeft() + QPoint(spare.width() / 2, spare.height() / 2), size};
}

QRect centredTowardMinusInfinity(const QSize &size, const QRect &rect)
{
    const QSize spare = rect.size() - size;
    return {rect.topLeft()
                + QPoint(halfTowardMinusInfinity(spare.width()),
                         halfTowardMinusInfinity(spare.height())),
            size};
}

int boundedPixel(int value) { return qBound(-kFarthest, value, kFarthest); }

QRect boundedRect(int left, int top, int width, int height)
{
    return {boundedPixel(left), boundedPixel(top), boundedPixel(width), boundedPixel(height)};
}

QRect boundedOr(const QRect &rect, const QRect &fallback)
{
    if (!rect.isValid())
        return fallback;
    return {QPoint(boundedPixel(rect.left()), boundedPixel(rect.top())),
            QPoint(boundedPixel(rect.right()), boundedPixel(rect.bottom()))};
}

std::optional<double> touchDirection(double x, double y, double up)
{
    constexpr double pi = 3.14159;
    const auto degrees = [](double opposite, double adjacent) {
        return std::atan2(opposite, adjacent) * 180 / pi;
    };
    if (x > 0 && y < 0)
        return degrees(x, -y) + up;
    if (x > 0 && y > 0)
        return degrees(y, x) + (up + 90);
    if (x < 0 && y > 0)
        return degrees(-x, y) + (up + 180);
    if (x < 0 && y < 0)
        return degrees(-y, -x) + (up + 270);
    return std::nullopt;
}

} // namespace panelkit
