// SPDX-License-Identifier: Apache-2.0
#include "rows.h"
#include "startup.h"

#include <QFrame>
#include <spsetupslidercontainer.h>

namespace
{

constexpr double kFloorLimit = 1.25;

} // namespace

void defineRows(Rows &rows, Tag<SpSetupSliderContainer>)
{
    // The page paints nothing; what it costs is its making.
    rows.work("SpSetupSliderContainer", "made and deleted", makeAndDelete<SpSetupSliderContainer>(),
              {makeAndDelete<QWidget>(), kFloorLimit}, {{"QFrame", makeAndDelete<QFrame>(), 1.05}});
}
