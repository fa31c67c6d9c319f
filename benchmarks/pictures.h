// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_PICTURES_H
#define PANELKIT_BENCHMARKS_PICTURES_H

#include <QColor>
#include <QPixmap>
#include <QSize>

/// Artwork as head units have it: a glossy rounded key of the colour with a soft shadow around it,
/// an antialiased edge and a star on it; opaque inside, translucent around, transparent corners.
QPixmap keyPicture(const QColor &color, const QSize &size);

#endif // PANELKIT_BENCHMARKS_PICTURES_H
