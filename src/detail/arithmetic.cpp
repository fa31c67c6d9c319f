#include "arithmetic.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace panelkit
{

int quotient(int a, int b)
{
    if (b == 0)
        return 0;
    if (b == -1 && a == std::numeric_limits<int>::min())
        return a;
    return a / b;
}

// C++ leaves division by zero undefined, although every processor in use defines it.
double ratio(double a, double b)
{
    if (b != 0)
        return a / b;
    if (a == 0 || std::isnan(a))
        return std::numeric_limits<double>::quiet_NaN();
    const bool isNegative = std::signbit(a) != std::signbit(b);
    return isNegative ? -std::numeric_limits<double>::infinity()
                      : std::numeric_limits<double>::infinity();
}

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

float floatQuotient(float a, float b)
{
    using Float = std::numeric_limits<float>;
    if (b != 0.0F)
        return a / b;
    if (a == 0.0F || std::isnan(a))
        return Float::quiet_NaN();
    return std::signbit(a) == std::signbit(b) ? Float::infinity() : -Float::infinity();
}

long long distance(int a, int b)
{
    return std::abs(static_cast<long long>(a) - b);
}

} // namespace panelkit
