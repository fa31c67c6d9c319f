// SPDX-License-Identifier: Apache-2.0
#ifndef FUSEDCOUNT_H
#define FUSEDCOUNT_H

#include <cmath>
#include <functional>

#include <dlfcn.h>

/// Counts fused multiply-adds. The radio scales and the dial make one for each tick that they look
/// at, so that the count is the work of a layout. Include it in one source of a program: it stands
/// in for the functions of the maths library.
namespace fused
{

// A processor that has an instruction for it is not asked to call a function: none is counted, and
// a test that wants an exact number skips itself. A limit still holds where there is a function.
#if defined(FP_FAST_FMA) || defined(FP_FAST_FMAF)
constexpr bool canCount = false;
#else
constexpr bool canCount = true;
#endif

inline int count = 0;

/// How many of them an action makes.
inline int during(const std::function<void()> &action)
{
    const int before = count;
    action();
    return count - before;
}

template <typename Real> Real multiplyAdd(const char *name, Real a, Real b, Real c)
{
    static const auto real = reinterpret_cast<Real (*)(Real, Real, Real)>(dlsym(RTLD_NEXT, name));
    ++count;
    return real(a, b, c);
}

} // namespace fused

extern "C" {

__attribute__((visibility("default"))) double fma(double a, double b, double c) noexcept
{
    return fused::multiplyAdd("fma", a, b, c);
}

__attribute__((visibility("default"))) float fmaf(float a, float b, float c) noexcept
{
    return fused::multiplyAdd("fmaf", a, b, c);
}
}

#endif // FUSEDCOUNT_H
