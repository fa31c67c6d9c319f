// SPDX-License-Identifier: Apache-2.0
#include "trackrows.h"

#include "models/player.h"
#include "models/trackmodel.h"
#include "texts.h"

namespace headunit
{

TrackRows::TrackRows(TrackModel *tracks, const Player *player, QObject *parent)
    : RowsOfModel(parent), m_tracks(tracks), m_player(player), m_marked(player->track().path)
{
    setSourceModel(tracks);
    connect(player, &Player::trackChanged, this, &TrackRows::moveMark);
}

ListRow TrackRows::row(int row) const
{
    const Track track = m_tracks->track(row);
    ListRow result;
    result.isMarked = !m_marked.isEmpty() && track.path == m_marked;
    result.icon = result.isMarked ? QStringLiteral("volume") : QStringLiteral("track");
    result.title = track.title;
    result.detail = track.isBroken ? tr("Cannot be played") : track.artist;
    if (track.seconds > 0)
        result.tail = timeText(track.seconds);
    return result;
}

void TrackRows::moveMark()
{
    const QString before = std::exchange(m_marked, m_player->track().path);
    if (before == m_marked)
        return;
    refresh(m_tracks->rowOfPath(before));
    refresh(m_tracks->rowOfPath(m_marked));
}

} // namespace headunit
