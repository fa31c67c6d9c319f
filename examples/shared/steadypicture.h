// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_STEADYPICTURE_H
#define SHARED_STEADYPICTURE_H

#include <QImage>

class QWidget;

/// A picture of a widget that is shown, which does not depend on what was drawn before.
///
/// Qt draws text of 64 px and more from its outlines, and FreeType moves outlines by as much as it
/// was told to for the last letter that was rendered from the same font file, of whatever size: by
/// the part of a pixel that this letter began at. So the edges of large digits change by a few
/// levels with each letter that is shown for the first time, wherever that is. What is on the
/// screen has its letters rendered; one more is, at the beginning of a pixel, from the files of the
/// widget's font, the regular and the bold one, before the picture is taken.
QImage steadyPicture(QWidget &widget);

#endif // SHARED_STEADYPICTURE_H
