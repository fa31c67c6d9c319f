// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TRACKROWS_H
#define HEADUNIT_TRACKROWS_H

#include "listrows.h"

namespace headunit
{

class Player;
class TrackModel;

/// Rows of tracks: title, artist and length. The one that is current in the player is marked.
class TrackRows : public RowsOfModel
{
    Q_OBJECT

public:
    /// Both have to live longer.
    TrackRows(TrackModel *tracks, const Player *player, QObject *parent);

protected:
    ListRow row(int row) const override;

private:
    void moveMark();

    TrackModel *const m_tracks;
    const Player *const m_player;
    QString m_marked; // the file of the row that is marked
};

} // namespace headunit

#endif // HEADUNIT_TRACKROWS_H
