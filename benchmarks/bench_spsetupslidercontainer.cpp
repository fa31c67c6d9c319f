// SPDX-License-Identifier: Apache-2.0
#include "rows.h"

#include <benchmark/benchmark.h>
#include <QFrame>
#include <spsetupslidercontainer.h>

namespace
{

constexpr double kFloorLimit = 2.5; // two lists of their own

// The page paints nothing; what it costs is its making.
template <class Widget> StepMaker makeAndDelete()
{
    return [] {
        return [] {
            const Widget widget;
            benchmark::DoNotOptimize(&widget);
        };
    };
}

} // namespace

void defineRows(Rows &rows, Tag<SpSetupSliderContainer>)
{
    rows.work("SpSetupSliderContainer", "made and deleted", makeAndDelete<SpSetupSliderContainer>(),
              {makeAndDelete<QWidget>(), kFloorLimit}, {{"QFrame", makeAndDelete<QFrame>()}});
}
