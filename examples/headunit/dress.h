// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_DRESS_H
#define HEADUNIT_DRESS_H

#include "theme.h"

#include <QLabel>
#include <QString>

class MFocusButton;
class MHorSlider;
class MOnOffButton;
class SpIconButton;
class SpRollingText;

// What pages do to the widgets of their forms, which have layouts, names and texts but no pictures.
// A widget is dressed at the size that it has in its layout, so a page does this in dress().

namespace headunit
{

/// Gives a key its face in every state, with an icon or a caption or both: the icon above the
/// caption. SpIconButton::setFocus() shows it as chosen among others.
void dressKey(SpIconButton &button, const Theme &theme, Theme::Style style,
              const QString &icon = {});

/// Gives a label the face of a panel, and what is laid out on it its distances. The panel has to be
/// free of a size of its own: its size policy is to be "Ignored".
void dressPanel(QLabel &panel, const Theme &theme);

/// Gives what often moves a ground of its own, where it lies within a panel's face: each step would
/// otherwise paint the panel, and the page below it, too.
void standOnFace(QWidget &widget, const Theme &theme);

/// Gives one of several choices that stand below each other its faces: it stays down while it is
/// the one, with a tick at its end. The caption begins where lines begin, after the icon.
void dressChoice(MFocusButton &button, const Theme &theme, const QString &icon = {});

/// Gives a slider so wide a bar, which its knob covers up to the ends, and a knob for a finger. The
/// slider itself stands out of its bar by sliderOverhang() at either end.
void dressSlider(MHorSlider &slider, const Theme &theme, int width);
int sliderOverhang(const Theme &theme);

/// The colour of the part of a slider that is not filled.
QColor grooveColor(const Theme &theme);

/// Gives a switch a track and a knob in the colours of the look, and room for a finger.
void dressSwitch(MOnOffButton &button, const Theme &theme);

/// Has a text that is too long roll while it can be seen; hidden, it would go on ticking.
void rollWhileShown(SpRollingText &text);

/// Gives a label a font and a colour.
void dressLabel(QLabel &label, const Theme &theme, Theme::TextSize size, bool quiet = false);

/// Where lines begin in a language that is read like the application's, whatever language the line
/// itself is in.
Qt::Alignment leadingAlignment();

/// Shows a text that rolls in the direction that it is written in, whatever that of the language
/// is: the blanks between its end and its start stay behind it.
void showRolling(SpRollingText &text, const QString &string);

/// The margins beside rows that stand below each other: on a wide screen they do not become so long
/// that the eye loses its way from one end to the other. To be used in View::margins().
QMargins rowMargins(const Theme &theme);

/// Gives a label the looks of what stands above the contents of a panel or a view.
void dressHeading(QLabel &label, const Theme &theme);

} // namespace headunit

#endif // HEADUNIT_DRESS_H
