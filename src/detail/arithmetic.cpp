// SPDX-License-Identifier: Apache-2.0
#include "arithmetic.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace panelkit
{

namespace
{

// C++ leaves division by zero undefined, although every processor in use defines it.
template <typename T> T dividedBy(T a, T b)
{
    using Limits = std::numeric_limits<T>;
    if (b != 0)
        return a / b;
    if (a == 0 || std::isnan(a))
        return Limits::quiet_NaN();
    return std::signbit(a) == std::signbit(b) ? Limits::infinity() : -Limits::infinity();
}

} // namespace

int quotient(int a, int b)
{
    if (b == 0)
        return 0;
    if (b == -1 && a == std::numeric_limits<int>::min())
        return a;
    return a / b;
}

float ratio(float a, float b) { return dividedBy(a, b); }

double ratio(double a, double b) { return dividedBy(a, b); }

int toInt(double value)
{
    using Int = std::numeric_limits<int>;
    if (std::isnan(value))
        return 0;
    if (value <= double(Int::min()))
        return Int::min();
    if (value >= double(Int::max()))
        return Int::max();
    return int(value);
}

int saturated(long long value)
{
    using Int = std::numeric_limits<int>;
    return int(std::clamp<long long>(value, Int::min(), Int::max()));
}

long long distance(int a, int b) { return std::abs(static_cast<long long>(a) - b); }

} // namespace panelkit
