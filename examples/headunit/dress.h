// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_DRESS_H
#define HEADUNIT_DRESS_H

#include "theme.h"

#include <QLabel>
#include <QString>

class SpIconButton;

// What pages do to the widgets of their forms, which have layouts, names and texts but no pictures.
// A widget is dressed at the size that it has in its layout, so a page does this in dress().

namespace headunit
{

/// Gives a key its face in every state, with an icon or a caption or both: the icon above the
/// caption. SpIconButton::setFocus() shows it as chosen among others.
void dressKey(SpIconButton &button, const Theme &theme, Theme::Style style,
              const QString &icon = {});

/// Gives a label a font and a colour.
void dressLabel(QLabel &label, const Theme &theme, Theme::TextSize size, bool quiet = false);

/// Where lines begin in a language that is read like the application's, whatever language the line
/// itself is in.
Qt::Alignment leadingAlignment();

} // namespace headunit

#endif // HEADUNIT_DRESS_H
