// SPDX-License-Identifier: Apache-2.0
#include "playlist.h"

#include <QApplication>
#include <QFontMetrics>

#include <algorithm>

namespace
{

QVector<Track> &openedTracks()
{
    static QVector<Track> opened;
    return opened;
}

bool canShow(const QString &text)
{
    const QFontMetrics metrics(QApplication::font());
    return std::all_of(text.begin(), text.end(), [&metrics](QChar c) { return metrics.inFont(c); });
}

QVector<Track> sample()
{
    QVector<Track> tracks = PlaylistModel::read(QStringLiteral(":/panelkit/playlists/sample.csv"));
    const auto end = std::remove_if(tracks.begin(), tracks.end(),
                                    [](const Track &track) { return !canShow(track.title); });
    tracks.erase(end, tracks.end());
    return tracks;
}

} // namespace

namespace Playlist
{

bool open(const QString &path)
{
    openedTracks() = PlaylistModel::read(path);
    return !openedTracks().isEmpty();
}

const QVector<Track> &tracks()
{
    static const QVector<Track> shown = openedTracks().isEmpty() ? sample() : openedTracks();
    return shown;
}

} // namespace Playlist
