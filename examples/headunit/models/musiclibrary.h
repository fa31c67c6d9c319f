// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_MUSICLIBRARY_H
#define HEADUNIT_MUSICLIBRARY_H

#include "track.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QThreadPool>

namespace headunit
{

class LibraryScan;
class TrackModel;

/**
 * The music in a folder and in all folders below it.
 *
 * open() returns at once. A thread of its own walks the folders and hands over what it finds in
 * pieces, then reads the tags, again in pieces. Until all tags are read the rows are sorted by the
 * names of the files, after that by title: they change places once and not under a moving finger.
 */
class MusicLibrary : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMostTracks = 100000; ///< further files are left out, with a problem()
    static constexpr int kCoverSize = 512; ///< px; pictures are no wider and no higher

    explicit MusicLibrary(QObject *parent = nullptr);
    ~MusicLibrary() override;

    /// Shows the music of this folder in place of what was shown.
    void open(const QString &folder);

    QString root() const { return m_root; }

    /// Everything found, sorted. It lives as long as the library.
    TrackModel *tracks() const { return m_tracks; }

    /// All folders with music in them, sorted by path. Known when isWalked().
    QVector<Folder> folders() const;

    /// The folders directly in this one that have music in them or below. Known when isWalked().
    QVector<Folder> foldersIn(const QString &folder) const;

    /// What lies directly in a folder: by the number on the album, without one by title.
    QVector<Track> tracksIn(const QString &folder) const;

    bool isWalked() const { return m_isWalked; } ///< all files are in the list
    bool isFinished() const { return m_isFinished; } ///< and their tags are read
    int readCount() const { return m_readCount; } ///< how many files have been looked into

    /// The picture in a file, or the one that lies beside it as cover or folder (.jpg, .png), as
    /// large as it is but in no direction larger than asked for; null without one. Reads the file:
    /// a page rather asks by requestCover().
    static QImage cover(const QString &path, QSize atMost = {kCoverSize, kCoverSize});

    /// Reads a picture behind the scenes; coverRead() brings it, null if there is none.
    void requestCover(const QString &path, QSize atMost = {kCoverSize, kCoverSize});
    bool isReadingCovers() const { return m_coversWanted > 0; }

signals:
    void walked(); ///< all files are in the list, under their names
    void progress(int read, int total); ///< tags read so far, a few times a second at most
    void finished(); ///< all tags are read, and the list is sorted by title
    void coverRead(const QString &path, const QImage &cover);

    /// A sentence for the user: what of the folder could not be shown, and why.
    void problem(const QString &sentence);

private:
    void connectScan(LibraryScan *scan);
    void dismissScan();
    void endWalk(const QVector<Folder> &folders);
    void endReading(const QVector<int> &order);

    TrackModel *const m_tracks;
    QThreadPool m_covers;
    int m_coversWanted = 0; // asked for, and not brought yet
    LibraryScan *m_scan = nullptr; // the one that fills the list
    QVector<LibraryScan *> m_running; // with those that were told to stop and still have to
    QString m_root;
    QVector<Folder> m_folders; // with those that have music below them only
    int m_readCount = 0;
    bool m_isWalked = false;
    bool m_isFinished = false;
};

} // namespace headunit

#endif // HEADUNIT_MUSICLIBRARY_H
