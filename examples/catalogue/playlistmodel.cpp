// SPDX-License-Identifier: Apache-2.0
#include "playlistmodel.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <utility>

namespace
{

constexpr int kMinute = 60; // s

// A field in quotation marks may hold commas; two quotation marks in it stand for one.
QStringList fieldsOf(const QString &line)
{
    QStringList fields{QString()};
    bool isQuoted = false;
    for (const QChar c : line) {
        if (c == QLatin1Char('"')) {
            if (!isQuoted && !fields.last().isEmpty())
                fields.last() += c;
            isQuoted = !isQuoted;
        } else if (c == QLatin1Char(',') && !isQuoted) {
            fields.append(QString());
        } else {
            fields.last() += c;
        }
    }
    return fields;
}

QVector<Track> readCsv(QTextStream &stream)
{
    QVector<Track> tracks;
    for (QString line; stream.readLineInto(&line);) {
        const QStringList fields = fieldsOf(line.trimmed());
        bool isNumber = false;
        const int seconds = fields.value(3).toInt(&isNumber);
        if (isNumber && !fields[0].isEmpty()) // neither the headings nor an empty line
            tracks.append({fields[0], fields[1], fields[2], seconds});
    }
    return tracks;
}

// "#EXTINF:215,Artist - Title" and then the file, which alone names the title where that is
// missing.
QVector<Track> readM3u(QTextStream &stream)
{
    QVector<Track> tracks;
    Track next;
    for (QString line; stream.readLineInto(&line);) {
        line = line.trimmed();
        if (line.startsWith(QLatin1String("#EXTINF:"))) {
            const QString about = line.mid(8);
            const int dash = about.indexOf(QLatin1String(" - "));
            next.seconds = qMax(0, about.section(QLatin1Char(','), 0, 0).toInt());
            const QString name = about.section(QLatin1Char(','), 1);
            next.artist = dash < 0 ? QString() : name.section(QStringLiteral(" - "), 0, 0);
            next.title = dash < 0 ? name : name.section(QStringLiteral(" - "), 1);
        } else if (!line.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
            if (next.title.isEmpty())
                next.title = line.section(QLatin1Char('/'), -1);
            tracks.append(std::exchange(next, Track()));
        }
    }
    return tracks;
}

// "3:05"
QString lengthText(int seconds)
{
    return QStringLiteral("%1:%2")
        .arg(seconds / kMinute)
        .arg(seconds % kMinute, 2, 10, QLatin1Char('0'));
}

} // namespace

PlaylistModel::PlaylistModel(QVector<Track> tracks, Row row, QObject *parent)
    : QAbstractListModel(parent), m_tracks(std::move(tracks)), m_row(std::move(row)),
      m_stars(m_tracks.size())
{
}

QVector<Track> PlaylistModel::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    const bool isM3u = path.endsWith(QLatin1String(".m3u"), Qt::CaseInsensitive)
        || path.endsWith(QLatin1String(".m3u8"), Qt::CaseInsensitive);
    return isM3u ? readM3u(stream) : readCsv(stream);
}

void PlaylistModel::setPlaying(int row)
{
    const int before = std::exchange(m_playing, row);
    touchRow(before);
    touchRow(row);
}

void PlaylistModel::toggleStar(int row)
{
    if (row < 0 || row >= m_stars.size())
        return;
    m_stars[row] = !m_stars[row];
    touchRow(row);
}

int PlaylistModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_tracks.size();
}

// The list asks for each role of each row in sight whenever it paints: answers have to be ready.
QVariant PlaylistModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case ContentRole:
        return m_row.parts;
    case HeaderIconRole:
        return m_row.headerIcon;
    case PressedHeaderIconRole:
        return m_row.pressedHeaderIcon;
    case TailIconRole:
        return m_row.tailIcon;
    case PressedTailIconRole:
        return m_row.pressedTailIcon;
    case MarkedRole:
    case HeaderPressedRole:
        return index.row() == m_playing;
    case TailPressedRole:
        return m_stars[index.row()];
    default:
        return text(m_tracks[index.row()], index.row(), role);
    }
}

QVariant PlaylistModel::text(const Track &track, int row, int role) const
{
    switch (role) {
    case HeaderNumberRole:
        return QString::number(row + 1);
    case CentreTextRole: {
        QString centre = m_row.centre;
        return centre.replace(QLatin1String("%1"), track.title)
            .replace(QLatin1String("%2"), track.artist)
            .replace(QLatin1String("%3"), track.album);
    }
    case TailTextRole:
        return lengthText(track.seconds);
    default:
        return {};
    }
}

void PlaylistModel::touchRow(int row)
{
    if (row >= 0 && row < m_tracks.size())
        emit dataChanged(index(row), index(row));
}
