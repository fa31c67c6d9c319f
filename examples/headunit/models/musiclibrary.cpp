// SPDX-License-Identifier: Apache-2.0
#include "musiclibrary.h"

#include "covers.h"
#include "libraryscan.h"
#include "textfile.h"
#include "trackmodel.h"

#include <QDir>
#include <QFileInfo>
#include <QRunnable>

#include <algorithm>
#include <limits>

namespace headunit
{

namespace
{

// Reads one picture. The library waits for it before it goes.
class CoverReading : public QRunnable
{
public:
    CoverReading(MusicLibrary *library, const QString &path, QSize atMost)
        : m_library(library), m_path(path), m_atMost(atMost)
    {
    }

    void run() override
    {
        QMetaObject::invokeMethod(m_library, "coverRead", Qt::QueuedConnection,
                                  Q_ARG(QString, m_path),
                                  Q_ARG(QImage, covers::read(m_path, m_atMost)));
    }

private:
    MusicLibrary *const m_library;
    const QString m_path;
    const QSize m_atMost;
};

} // namespace

MusicLibrary::MusicLibrary(QObject *parent) : QObject(parent), m_tracks(new TrackModel(this))
{
    m_covers.setMaxThreadCount(1);
    connect(this, &MusicLibrary::coverRead, this, [this] { --m_coversWanted; });
}

MusicLibrary::~MusicLibrary()
{
    dismissScan();
    m_covers.clear();
    for (LibraryScan *scan : qAsConst(m_running))
        scan->wait();
}

void MusicLibrary::open(const QString &folder)
{
    dismissScan();
    m_root = folder.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    m_folders.clear();
    m_readCount = 0;
    m_isWalked = false;
    m_isFinished = false;
    m_tracks->setTracks({});
    m_scan = new LibraryScan(m_root, kMostTracks, this);
    m_running.append(m_scan);
    connectScan(m_scan);
    m_scan->start();
}

QVector<Folder> MusicLibrary::folders() const
{
    QVector<Folder> list;
    std::copy_if(m_folders.begin(), m_folders.end(), std::back_inserter(list),
                 [](const Folder &folder) { return folder.tracks > 0; });
    return list;
}

QVector<Folder> MusicLibrary::foldersIn(const QString &folder) const
{
    const QString parent = QDir::cleanPath(folder);
    QVector<Folder> list;
    std::copy_if(m_folders.begin(), m_folders.end(), std::back_inserter(list),
                 [this, &parent](const Folder &candidate) {
                     return candidate.path != m_root && folderOf(candidate.path) == parent;
                 });
    return list;
}

QVector<Track> MusicLibrary::tracksIn(const QString &folder) const
{
    const QString parent = QDir::cleanPath(folder);
    QVector<Track> list;
    for (int row = 0; row < m_tracks->rowCount(); ++row) {
        const Track track = m_tracks->track(row);
        if (folderOf(track.path) == parent)
            list.append(track);
    }
    const auto placeOf = [](const Track &track) {
        return track.number > 0 ? track.number : std::numeric_limits<int>::max();
    };
    std::stable_sort(list.begin(), list.end(), [placeOf](const Track &track, const Track &other) {
        return placeOf(track) < placeOf(other);
    });
    return list;
}

QImage MusicLibrary::cover(const QString &path, QSize atMost) { return covers::read(path, atMost); }

void MusicLibrary::requestCover(const QString &path, QSize atMost)
{
    ++m_coversWanted;
    m_covers.start(new CoverReading(this, path, atMost));
}

// What a dismissed scan has posted already still arrives, and counts no more.
void MusicLibrary::connectScan(LibraryScan *scan)
{
    connect(scan, &LibraryScan::found, this,
            [this, scan](const QVector<Track> &tracks, const QVector<int> &order) {
                if (scan != m_scan)
                    return;
                m_tracks->append(tracks);
                m_tracks->arrange(order);
            });
    connect(scan, &LibraryScan::walked, this, [this, scan](const QVector<Folder> &folders) {
        if (scan == m_scan)
            endWalk(folders);
    });
    connect(scan, &LibraryScan::tagsRead, this,
            [this, scan](int firstRow, const QVector<Track> &tracks, int total) {
                if (scan != m_scan)
                    return;
                m_readCount = firstRow + tracks.size();
                m_tracks->update(firstRow, tracks);
                emit progress(m_readCount, total);
            });
    connect(scan, &LibraryScan::ordered, this, [this, scan](const QVector<int> &order) {
        if (scan == m_scan)
            endReading(order);
    });
    connect(scan, &LibraryScan::problem, this, [this, scan](const QString &sentence) {
        if (scan == m_scan)
            emit problem(sentence);
    });
    connect(scan, &QThread::finished, this, [this, scan] {
        m_running.removeOne(scan);
        if (scan == m_scan)
            m_scan = nullptr;
        scan->deleteLater();
    });
}

void MusicLibrary::dismissScan()
{
    m_scan = nullptr;
    for (LibraryScan *scan : qAsConst(m_running))
        scan->requestInterruption();
}

void MusicLibrary::endWalk(const QVector<Folder> &folders)
{
    m_folders = folders;
    m_isWalked = true;
    emit walked();
}

void MusicLibrary::endReading(const QVector<int> &order)
{
    m_tracks->arrange(order);
    m_isFinished = true;
    emit finished();
}

} // namespace headunit
