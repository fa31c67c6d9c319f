// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_STARTUP_H
#define PANELKIT_BENCHMARKS_STARTUP_H

#include "rows.h"

#include <benchmark/benchmark.h>

/// What a screen full of such widgets costs before its first paint.
template <class Widget> StepMaker makeAndDelete()
{
    return [] {
        return [] {
            const Widget widget;
            benchmark::DoNotOptimize(&widget);
        };
    };
}

#endif // PANELKIT_BENCHMARKS_STARTUP_H
