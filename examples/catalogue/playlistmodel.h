// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_PLAYLISTMODEL_H
#define CATALOGUE_PLAYLISTMODEL_H

#include <QAbstractListModel>
#include <QPixmap>
#include <QString>
#include <QVector>

/// A title of a playlist.
struct Track {
    QString title;
    QString artist;
    QString album;
    int seconds = 0;
};

/**
 * A playlist as the model of an SpTableList: it answers the roles 258 to 268 by which such a list
 * paints its rows. Copy it and change what your rows show.
 *
 * The rows of one list have the same parts, in Row. A star in the tail is the model's own state:
 * toggleStar() changes it, and the list repaints that row alone.
 */
class PlaylistModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// What SpTableList reads; the numbers are its own.
    enum Role : int {
        ContentRole = 258, ///< int: Part flags
        HeaderIconRole,
        PressedHeaderIconRole,
        HeaderNumberRole, ///< QString
        CentreTextRole, ///< QString; parts of it are separated by "/"
        TailTextRole, ///< QString
        TailIconRole,
        PressedTailIconRole,
        MarkedRole, ///< bool: the row stands out
        HeaderPressedRole, ///< bool
        TailPressedRole ///< bool
    };

    /// The parts of a row, as ContentRole tells them.
    enum Part : int {
        HeaderIcon = 0x00000001,
        HeaderNumber = 0x00000010,
        CentreText = 0x00001000,
        TailIcon = 0x00010000,
        TailText = 0x00100000
    };

    /// What the rows of one list look like.
    struct Row {
        int parts = CentreText;
        QString centre = QStringLiteral("%1"); ///< %1 title, %2 artist, %3 album
        QPixmap headerIcon;
        QPixmap pressedHeaderIcon;
        QPixmap tailIcon;
        QPixmap pressedTailIcon;
    };

    explicit PlaylistModel(QVector<Track> tracks, Row row, QObject *parent = nullptr);

    /// The titles of a CSV file (title,artist,album,seconds) or an M3U playlist; empty if the file
    /// cannot be read. Lines that make no sense are left out.
    static QVector<Track> read(const QString &path);

    /// The row that is playing stands out; -1 for none.
    void setPlaying(int row);
    void toggleStar(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QVariant text(const Track &track, int row, int role) const;
    void touchRow(int row);

    const QVector<Track> m_tracks;
    const Row m_row;
    QVector<bool> m_stars;
    int m_playing = -1;
};

#endif // CATALOGUE_PLAYLISTMODEL_H
