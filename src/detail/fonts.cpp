// SPDX-License-Identifier: Apache-2.0
#include "fonts.h"

#include "qtversion.h"

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
    setFullyResolved(font);
    return font;
}

} // namespace panelkit
