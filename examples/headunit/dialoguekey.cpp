// SPDX-License-Identifier: Apache-2.0
#include "dialoguekey.h"

#include <QMouseEvent>

namespace headunit
{

DialogueKey::DialogueKey(QWidget *parent) : SpHorStrButton(parent)
{
    setStringPosition(SpHorStrButton::StrCenter);
    setDisplayString({});
}

// The icon is the whole face, with the caption in its middle.
void DialogueKey::dress(const Theme &theme, Theme::Style style)
{
    setFontSize(theme.textPx(Theme::Body));
    setNormalPixmap(theme.key(size(), style, Theme::Normal));
    setPressPixmap(theme.key(size(), style, Theme::Pressed));
    setNormalTextColor(theme.ink(style, Theme::Normal));
    setPressTextColor(theme.ink(style, Theme::Pressed));
}

void DialogueKey::mouseReleaseEvent(QMouseEvent *e)
{
    if (rect().contains(e->pos()))
        SpHorStrButton::mouseReleaseEvent(e);
    else
        setPressState(false);
}

} // namespace headunit
