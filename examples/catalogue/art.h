// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_ART_H
#define CATALOGUE_ART_H

#include <QPixmap>
#include <QSize>
#include <QStringList>

/// The catalogue's own drawings, by the name of their file in art/.
namespace Art
{

/// All names, sorted.
QStringList names();

/// A drawing at this size, or at its own size without one; null for an unknown name. What was
/// rendered once is kept, so that equal requests yield the same picture.
QPixmap pixmap(const QString &name, const QSize &size = QSize());

/// The file of a drawing, for widgets that take their pictures from files.
QString file(const QString &name);

/// The file of an animation.
QString animation(const QString &name);

/// The name of a drawing that pixmap() has rendered; empty for any other picture.
QString nameOf(const QPixmap &pixmap);

} // namespace Art

#endif // CATALOGUE_ART_H
