// SPDX-License-Identifier: Apache-2.0
#include "page.h"

#include <QEvent>

namespace headunit
{

QMargins Page::margins(const Theme &theme) const
{
    return {theme.margin(), theme.gap(), theme.margin(), theme.margin()};
}

void Page::changeEvent(QEvent *e)
{
    View::changeEvent(e);
    if (e->type() == QEvent::LanguageChange)
        emit titleChanged();
}

} // namespace headunit
