// SPDX-License-Identifier: Apache-2.0
#include "page.h"

#include <QEvent>
#include <QLayout>

namespace headunit
{

void Page::setTheme(const Theme &theme)
{
    View::setTheme(theme);
    if (layout())
        layout()->setContentsMargins(theme.margin(), theme.gap(), theme.margin(), theme.margin());
}

void Page::changeEvent(QEvent *e)
{
    View::changeEvent(e);
    if (e->type() == QEvent::LanguageChange)
        emit titleChanged();
}

} // namespace headunit
