// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TRACKMODEL_H
#define HEADUNIT_TRACKMODEL_H

#include "letterindex.h"
#include "track.h"

#include <QAbstractListModel>
#include <QHash>

namespace headunit
{

/**
 * A list of tracks. MusicLibrary fills one with everything it finds; a page makes another for what
 * lies in one folder, with setTracks(library.tracksIn(folder)).
 *
 * Rows that move keep their persistent indexes, so that a player knows its row after the list has
 * been sorted again.
 */
class TrackModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Far from the numbers that lists have for their own parts, so that one model can answer both.
    enum Role : int {
        TitleRole = Qt::UserRole + 100, ///< QString; Qt::DisplayRole gives it too
        ArtistRole, ///< QString
        AlbumRole, ///< QString
        SecondsRole, ///< int, 0 if unknown
        PathRole, ///< QString
        NumberRole, ///< int, on its album; 0 if unknown
        HasCoverRole, ///< bool
        BrokenRole ///< bool: no music, and will not play
    };

    explicit TrackModel(QObject *parent = nullptr);

    /// Replaces all rows by these, in this order.
    void setTracks(const QVector<Track> &tracks);

    /// Adds rows at the end.
    void append(const QVector<Track> &tracks);

    /// Puts the tracks into another order: each entry is the serial number of a track, which is how
    /// many were appended before it. Ignored if it does not name each of them once.
    void arrange(const QVector<int> &order);

    /// Replaces what is known of the tracks from this row on. The rows keep their places.
    void update(int firstRow, const QVector<Track> &tracks);

    /// A row's track; an empty one if there is no such row.
    Track track(int row) const;

    /// The row of a file; -1 if it is not in the list.
    int rowOfPath(const QString &path) const;

    /// The letters that there are, in the order of the rows; '#' for what begins with none.
    QVector<QChar> letters() const;
    /// The letter that a row stands under; null for none.
    QChar letterOf(int row) const;
    /// The first row of a letter, or of the next one that there is; -1 in an empty list.
    int rowOfLetter(QChar letter) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    const Track &at(int row) const;
    void add(const QVector<Track> &tracks);

    QVector<Track> m_tracks; // by serial number
    QVector<int> m_order; // the serial number in each row
    QVector<int> m_rows; // the row of each serial number
    QHash<QString, int> m_serials; // by path
    LetterIndex m_letters;
};

} // namespace headunit

#endif // HEADUNIT_TRACKMODEL_H
