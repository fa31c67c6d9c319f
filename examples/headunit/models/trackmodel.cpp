// SPDX-License-Identifier: Apache-2.0
#include "trackmodel.h"

namespace headunit
{

namespace
{

// The row of each serial number; empty if the order does not name each of them once.
QVector<int> rowsOf(const QVector<int> &order, int count)
{
    if (order.size() != count)
        return {};
    QVector<int> rows(count, -1);
    for (int row = 0; row < count; ++row) {
        const int serial = order.at(row);
        if (serial < 0 || serial >= count || rows.at(serial) >= 0)
            return {};
        rows[serial] = row;
    }
    return rows;
}

} // namespace

TrackModel::TrackModel(QObject *parent) : QAbstractListModel(parent) { }

void TrackModel::setTracks(const QVector<Track> &tracks)
{
    beginResetModel();
    m_tracks.clear();
    m_order.clear();
    m_rows.clear();
    m_serials.clear();
    m_letters.clear();
    add(tracks);
    endResetModel();
}

void TrackModel::append(const QVector<Track> &tracks)
{
    if (tracks.isEmpty())
        return;
    beginInsertRows({}, m_tracks.size(), m_tracks.size() + tracks.size() - 1);
    add(tracks);
    endInsertRows();
}

void TrackModel::arrange(const QVector<int> &order)
{
    const QVector<int> rows = rowsOf(order, m_tracks.size());
    if (rows.isEmpty())
        return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &old : before)
        after.append(index(rows.at(m_order.at(old.row()))));
    m_order = order;
    m_rows = rows;
    m_letters.clear();
    for (const int serial : order)
        m_letters.append(m_tracks.at(serial).title);
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

void TrackModel::update(int firstRow, const QVector<Track> &tracks)
{
    if (tracks.isEmpty() || firstRow < 0 || tracks.size() > m_order.size() - firstRow)
        return;
    for (int i = 0; i < tracks.size(); ++i)
        m_tracks[m_order.at(firstRow + i)] = tracks.at(i);
    emit dataChanged(index(firstRow), index(firstRow + tracks.size() - 1));
}

const Track &TrackModel::at(int row) const { return m_tracks.at(m_order.at(row)); }

Track TrackModel::track(int row) const
{
    return row >= 0 && row < m_order.size() ? at(row) : Track();
}

int TrackModel::rowOfPath(const QString &path) const
{
    const auto serial = m_serials.constFind(path);
    return serial == m_serials.cend() ? -1 : m_rows.at(*serial);
}

QVector<QChar> TrackModel::letters() const { return m_letters.letters(); }

QChar TrackModel::letterOf(int row) const { return m_letters.letterOf(row); }

int TrackModel::rowOfLetter(QChar letter) const { return m_letters.rowOf(letter); }

int TrackModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_order.size();
}

QVariant TrackModel::data(const QModelIndex &index, int role) const
{
    if (index.model() != this || index.row() >= m_order.size())
        return {};
    const Track &track = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return track.title;
    case ArtistRole:
        return track.artist;
    case AlbumRole:
        return track.album;
    case SecondsRole:
        return track.seconds;
    case PathRole:
        return track.path;
    case NumberRole:
        return track.number;
    case HasCoverRole:
        return track.hasCover;
    case BrokenRole:
        return track.isBroken;
    default:
        return {};
    }
}

QHash<int, QByteArray> TrackModel::roleNames() const
{
    return {{Qt::DisplayRole, "display"}, {TitleRole, "title"},       {ArtistRole, "artist"},
            {AlbumRole, "album"},         {SecondsRole, "seconds"},   {PathRole, "path"},
            {NumberRole, "number"},       {HasCoverRole, "hasCover"}, {BrokenRole, "broken"}};
}

void TrackModel::add(const QVector<Track> &tracks)
{
    for (const Track &track : tracks) {
        const int serial = m_tracks.size();
        m_tracks.append(track);
        m_rows.append(serial);
        m_order.append(serial);
        m_serials.insert(track.path, serial);
        m_letters.append(track.title);
    }
}

} // namespace headunit
