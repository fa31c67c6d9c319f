// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_LIBRARYSCAN_H
#define HEADUNIT_LIBRARYSCAN_H

#include "track.h"

#include <QCollator>
#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <QThread>

#include <vector>

namespace headunit
{

/// The thread that looks for music in a folder and then reads its tags. It says in pieces what it
/// finds; the signals come from the thread. requestInterruption() ends it after the file at hand.
class LibraryScan : public QThread
{
    Q_OBJECT

public:
    LibraryScan(const QString &root, int mostTracks, QObject *parent);

signals:
    /// Further tracks, and the order of all so far as TrackModel::arrange() takes it.
    void found(const QVector<headunit::Track> &tracks, const QVector<int> &order);
    /// All are found. The folders are sorted by path.
    void walked(const QVector<headunit::Folder> &folders);
    /// What the files from this row on say.
    void tagsRead(int firstRow, const QVector<headunit::Track> &tracks, int total);
    /// All is done: the order by title.
    void ordered(const QVector<int> &order);
    void problem(const QString &sentence);

protected:
    void run() override;

private:
    bool checkRoot();
    void walk();
    void walkFolder(const QString &path);
    void addFile(const QString &path, bool hasCover);
    void flushFound();
    void readTags();
    void sortByTitle();
    void tellWalkProblems();
    QVector<Folder> folders() const;
    bool isBefore(int serial, int other) const;

    const QString m_root;
    const int m_mostTracks;
    QCollator m_collator; // used by the thread only
    QElapsedTimer m_clock;

    QVector<Track> m_tracks; // by serial number
    std::vector<QCollatorSortKey> m_keys; // of the same
    QVector<int> m_order;
    int m_flushed = 0; // so many tracks have been handed over
    qint64 m_nextFlush = 0; // ms

    QStringList m_folders; // still to be walked
    QSet<QString> m_seen; // where they really are, against links that lead round in circles
    QHash<QString, int> m_counts; // tracks in each folder
    QStringList m_unreadable;
    bool m_isFull = false;
};

} // namespace headunit

#endif // HEADUNIT_LIBRARYSCAN_H
