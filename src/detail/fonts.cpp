// SPDX-License-Identifier: Apache-2.0
#include "fonts.h"

namespace panelkit
{

QFont resized(QFont font, int px)
{
    if (px > 0)
        font.setPixelSize(px);
    return font;
}

QFont applicationFont(int px)
{
    QFont font = resized(QFont(), px);
    font.resolve(~0U);
    return font;
}

} // namespace panelkit
