// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_LISTLOOK_H
#define CATALOGUE_LISTLOOK_H

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

class SpTableList;

/// How the lists of the catalogue look.
namespace ListLook
{

/// Leaves only the rows of a list to be seen: the view's own ground and selection are the page's
/// glass.
void darken(SpTableList &list);

/// Backgrounds of this size for its rows, of which the pressed one is blue.
void giveBackgrounds(SpTableList &list, const QSize &size);

/// A drawing of Art on a round key of it.
QPixmap keyPicture(const QString &key, const QString &drawing, const QSize &size);

} // namespace ListLook

#endif // CATALOGUE_LISTLOOK_H
