// SPDX-License-Identifier: Apache-2.0
#include "libraryscan.h"

#include "covers.h"
#include "letterindex.h"
#include "tags.h"
#include "textfile.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

namespace headunit
{

namespace
{

constexpr int kFirstWait = 50; // ms until something is handed over: a screenful is enough
constexpr int kLongWait = 400; // ms between later pieces

// On a device with one core the screen and the sound come first.
void giveWay()
{
#ifdef Q_OS_LINUX
    constexpr int kNice = 10;
    setpriority(PRIO_PROCESS, 0, kNice); // on Linux that is this thread alone
#endif
}

bool isMusic(const QString &name)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 && tags::endings().contains(name.mid(dot + 1).toLower());
}

} // namespace

LibraryScan::LibraryScan(const QString &root, int mostTracks, QObject *parent)
    : QThread(parent), m_root(root), m_mostTracks(mostTracks), m_collator(readersCollator())
{
    // What the signals take along from one thread to the other.
    qRegisterMetaType<QVector<int>>();
    qRegisterMetaType<QVector<Track>>();
    qRegisterMetaType<QVector<Folder>>();
}

void LibraryScan::run()
{
    giveWay();
    m_clock.start();
    if (checkRoot())
        walk();
    if (isInterruptionRequested())
        return;
    emit walked(folders());
    readTags();
    if (isInterruptionRequested())
        return;
    sortByTitle();
    emit ordered(m_order);
}

bool LibraryScan::checkRoot()
{
    const QFileInfo info(m_root);
    if (m_root.isEmpty() || !info.exists())
        emit problem(tr("There is no folder %1.").arg(m_root));
    else if (!info.isDir())
        emit problem(tr("%1 is a file and not a folder with music.").arg(m_root));
    else if (!info.isReadable() || !info.isExecutable())
        emit problem(tr("The folder %1 cannot be read.").arg(m_root));
    else
        return true;
    return false;
}

void LibraryScan::walk()
{
    m_nextFlush = kFirstWait;
    m_folders.append(m_root);
    while (!m_folders.isEmpty() && !m_isFull && !isInterruptionRequested())
        walkFolder(m_folders.takeLast());
    flushFound();
    if (!isInterruptionRequested())
        tellWalkProblems();
}

void LibraryScan::walkFolder(const QString &path)
{
    const QFileInfo info(path);
    const QString place = info.canonicalFilePath();
    if (place.isEmpty() || m_seen.contains(place))
        return;
    m_seen.insert(place);
    if (!info.isReadable() || !info.isExecutable()) {
        m_unreadable.append(path);
        return;
    }
    const bool hasCover = !covers::fileIn(path).isEmpty();
    QDirIterator entries(path, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (entries.hasNext() && !m_isFull && !isInterruptionRequested()) {
        entries.next();
        if (entries.fileInfo().isDir())
            m_folders.append(path + QLatin1Char('/') + entries.fileName());
        else if (isMusic(entries.fileName()))
            addFile(path + QLatin1Char('/') + entries.fileName(), hasCover);
    }
}

void LibraryScan::addFile(const QString &path, bool hasCover)
{
    if (m_tracks.size() == m_mostTracks) {
        m_isFull = true;
        return;
    }
    Track track = tags::unread(path);
    track.hasCover = hasCover;
    m_keys.push_back(m_collator.sortKey(sortText(track.title)));
    m_tracks.append(track);
    ++m_counts[folderOf(path)];
    if (m_clock.elapsed() >= m_nextFlush)
        flushFound();
}

// Only what is new is sorted, then merged with what is in order already.
void LibraryScan::flushFound()
{
    m_nextFlush = m_clock.elapsed() + kLongWait;
    if (m_flushed == m_tracks.size())
        return;
    const auto before = [this](int serial, int other) { return isBefore(serial, other); };
    for (int serial = m_flushed; serial < m_tracks.size(); ++serial)
        m_order.append(serial);
    const auto middle = m_order.begin() + m_flushed;
    std::sort(middle, m_order.end(), before);
    std::inplace_merge(m_order.begin(), middle, m_order.end(), before);
    emit found(m_tracks.mid(m_flushed), m_order);
    m_flushed = m_tracks.size();
}

// In the order of the rows: those in sight come first.
void LibraryScan::readTags()
{
    const int total = m_order.size();
    int wait = kFirstWait;
    qint64 nextFlush = m_clock.elapsed() + wait;
    QVector<Track> batch;
    int broken = 0;
    QString firstBroken;
    for (int row = 0; row < total && !isInterruptionRequested(); ++row) {
        Track &track = m_tracks[m_order.at(row)];
        track = tags::read(track);
        if (track.isBroken && ++broken == 1)
            firstBroken = track.path;
        batch.append(track);
        if (m_clock.elapsed() < nextFlush && row < total - 1)
            continue;
        emit tagsRead(row + 1 - batch.size(), batch, total);
        batch.clear();
        wait = qMin(2 * wait, kLongWait);
        nextFlush = m_clock.elapsed() + wait;
    }
    if (broken > 0 && !isInterruptionRequested())
        emit problem(tr("Files that cannot be read as music: %1. The first is %2.")
                         .arg(broken)
                         .arg(fileName(firstBroken)));
}

void LibraryScan::sortByTitle()
{
    m_keys.clear();
    for (const Track &track : qAsConst(m_tracks))
        m_keys.push_back(m_collator.sortKey(sortText(track.title)));
    std::sort(m_order.begin(), m_order.end(),
              [this](int serial, int other) { return isBefore(serial, other); });
}

void LibraryScan::tellWalkProblems()
{
    if (m_isFull)
        emit problem(tr("There is too much music in %1: only the first %2 files are shown.")
                         .arg(m_root)
                         .arg(m_mostTracks));
    if (!m_unreadable.isEmpty())
        emit problem(tr("Folders that cannot be read: %1. The first is %2.")
                         .arg(m_unreadable.size())
                         .arg(m_unreadable.first()));
    else if (m_tracks.isEmpty())
        emit problem(tr("There is no music in %1.").arg(m_root));
}

QVector<Folder> LibraryScan::folders() const
{
    QHash<QString, int> below;
    for (auto count = m_counts.cbegin(); count != m_counts.cend(); ++count) {
        QString path = count.key();
        below[path] += count.value();
        while (path.size() > m_root.size()) {
            path = folderOf(path);
            below[path] += count.value();
        }
    }
    QVector<Folder> list;
    for (auto count = below.cbegin(); count != below.cend(); ++count)
        list.append({count.key(), cleanText(fileName(count.key())), m_counts.value(count.key()),
                     count.value()});
    QCollator collator = m_collator;
    std::sort(list.begin(), list.end(), [&collator](const Folder &folder, const Folder &other) {
        const int difference = collator.compare(folder.path, other.path);
        return difference != 0 ? difference < 0 : folder.path < other.path;
    });
    return list;
}

// By title, and the same titles by file, so that the order is the same each time.
bool LibraryScan::isBefore(int serial, int other) const
{
    const int difference = m_keys[std::size_t(serial)].compare(m_keys[std::size_t(other)]);
    return difference != 0 ? difference < 0 : m_tracks.at(serial).path < m_tracks.at(other).path;
}

} // namespace headunit
