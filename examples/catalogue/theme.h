// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_THEME_H
#define CATALOGUE_THEME_H

#include <QColor>

class QPalette;
class QWidget;

/// The catalogue's look: calm and dark, so that the widgets are the brightest thing on the screen.
namespace Theme
{

/// The dark glass under the widgets; one flat colour, so that a picture tells whether anything
/// was painted on it.
inline const QColor kGlass(0x0f, 0x12, 0x17);
/// The hairline around it.
inline const QColor kLine(0x33, 0x3b, 0x47);
/// Secondary text.
inline const QColor kQuietText(0x8d, 0x99, 0xa8);
/// What is chosen.
inline const QColor kAccent(0x5a, 0xb2, 0xff);

/// Gives the application this look. There is no style sheet in it: the widgets on the stage are to
/// behave as in an application without one.
void apply();

/// The palette of fields on a darkened list: their outlines, which the style derives from the
/// colour of the window, are made to stand out.
QPalette fieldPalette();

/// Makes a list darker than the fields to write in, with a calm selection.
void darken(QWidget &list);

} // namespace Theme

#endif // CATALOGUE_THEME_H
