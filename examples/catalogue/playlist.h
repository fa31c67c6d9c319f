// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_PLAYLIST_H
#define CATALOGUE_PLAYLIST_H

#include "playlistmodel.h"

/// The titles that the lists of the catalogue show.
namespace Playlist
{

/// Shows those of a file from now on; false if it has none.
bool open(const QString &path);

/// The titles of the file that was opened, or else of a sample in several scripts. Those of the
/// sample that no font here can show are left out.
const QVector<Track> &tracks();

} // namespace Playlist

#endif // CATALOGUE_PLAYLIST_H
