// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_WHOLENUMBER_H
#define PANELKIT_DETAIL_WHOLENUMBER_H

#include "arithmetic.h"

namespace panelkit
{

/// A 32-bit whole number for formulas that take any int: each operation has a result. Sums,
/// differences and products wrap around; quotients truncate toward zero and are 0 for a zero
/// divisor.
class Whole
{
public:
    constexpr Whole(int value) : m_value(value) { } // implicit: ints are what formulas are made of

    constexpr int value() const { return m_value; }
    bool isMultipleOf(Whole divisor) const
    {
        return (*this - *this / divisor * divisor).m_value == 0;
    }

    friend constexpr Whole operator+(Whole a, Whole b) { return wrapped(a.bits() + b.bits()); }
    friend constexpr Whole operator-(Whole a, Whole b) { return wrapped(a.bits() - b.bits()); }
    friend constexpr Whole operator*(Whole a, Whole b) { return wrapped(a.bits() * b.bits()); }
    friend Whole operator/(Whole a, Whole b) { return quotient(a.m_value, b.m_value); }

private:
    constexpr unsigned bits() const { return unsigned(m_value); }
    static constexpr Whole wrapped(unsigned bits) { return int(bits); }

    int m_value;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_WHOLENUMBER_H
