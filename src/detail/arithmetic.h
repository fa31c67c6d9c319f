// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_ARITHMETIC_H
#define PANELKIT_DETAIL_ARITHMETIC_H

namespace panelkit
{

/// a / b truncated toward zero; 0 when b is 0; INT_MIN / -1 wraps to INT_MIN instead of trapping.
int quotient(int a, int b);

/// a / b in floating point: what the processor yields for a zero divisor too, an infinity of the
/// right sign or, for 0 / 0, no number.
float ratio(float a, float b);
double ratio(double a, double b);

/// A floating-point value as an int, truncated toward zero. Values outside the range of int
/// saturate and NaN is 0, the same on every processor.
int toInt(double value);

/// A sum or product computed in 64 bits as an int; values outside its range saturate.
int saturated(long long value);

/// |a - b|, exact for every pair of ints.
long long distance(int a, int b);

} // namespace panelkit

#endif // PANELKIT_DETAIL_ARITHMETIC_H
