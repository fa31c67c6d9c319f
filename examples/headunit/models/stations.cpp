// SPDX-License-Identifier: Apache-2.0
#include "stations.h"

#include "textfile.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace headunit
{

namespace
{

// A field in quotation marks may hold commas; two quotation marks in it stand for one. Nothing if
// a quotation mark is left open.
std::optional<QStringList> fieldsOf(const QString &line)
{
    QStringList fields{QString()};
    bool isQuoted = false;
    for (int i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (c == QLatin1Char('"')) {
            const bool isDoubled = isQuoted && i + 1 < line.size() && line.at(i + 1) == c;
            if (isDoubled)
                fields.last() += line.at(i++);
            else
                isQuoted = !isQuoted;
        } else if (c == QLatin1Char(',') && !isQuoted) {
            fields.append(QString());
        } else {
            fields.last() += c;
        }
    }
    if (isQuoted)
        return {};
    return fields;
}

std::optional<Band> bandOf(const QString &field)
{
    const QString name = field.trimmed().toUpper();
    if (name == QLatin1String("FM"))
        return Band::Fm;
    if (name == QLatin1String("AM"))
        return Band::Am;
    return {};
}

std::optional<Station> stationOf(const QString &line)
{
    const std::optional<QStringList> fields = fieldsOf(line);
    if (!fields || fields->size() < 3)
        return {};
    const std::optional<Band> band = bandOf(fields->at(0));
    bool isNumber = false;
    const int frequency = fields->at(1).trimmed().toInt(&isNumber);
    const QString name = cleanText(fields->at(2));
    if (!band || !isNumber || name.isEmpty())
        return {};
    const BandRange range = rangeOf(*band);
    if (frequency < range.first || frequency > range.last
        || (frequency - range.first) % range.step != 0)
        return {};
    return Station{*band, frequency, name, cleanText(fields->value(3))};
}

bool isBefore(const Station &station, int frequency) { return station.frequency < frequency; }

// What reading leaves behind.
struct Reading {
    QVector<Station> fm;
    QVector<Station> am;
    int broken = 0; // lines
    int firstBroken = 0; // the number of the first of them
    bool isFull = false;

    // False if there is one on this frequency already.
    bool add(const Station &station)
    {
        QVector<Station> &band = station.band == Band::Fm ? fm : am;
        const auto place = std::lower_bound(band.begin(), band.end(), station.frequency, isBefore);
        if (place != band.end() && place->frequency == station.frequency)
            return false;
        band.insert(place, station);
        return true;
    }
};

Reading readingOf(const QString &text)
{
    Reading reading;
    int number = 0;
    bool isFirst = true;
    for (const QStringRef &part : text.splitRef(QLatin1Char('\n'))) {
        ++number;
        const QString line = part.trimmed().toString();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const bool isHeader =
            isFirst && line.startsWith(QLatin1String("band"), Qt::CaseInsensitive);
        isFirst = false;
        if (isHeader)
            continue;
        if (reading.fm.size() + reading.am.size() == Stations::kMost) {
            reading.isFull = true;
            break;
        }
        const std::optional<Station> station = stationOf(line);
        if ((!station || !reading.add(*station)) && ++reading.broken == 1)
            reading.firstBroken = number;
    }
    return reading;
}

} // namespace

Stations::Stations(QObject *parent) : QObject(parent) { }

bool Stations::load(const QString &path)
{
    FileContents contents = readFile(path, kMostBytes);
    if (contents.isCut) // the last line may be half a line
        contents.bytes.truncate(contents.bytes.lastIndexOf('\n') + 1);
    const Reading reading = readingOf(decodedText(contents.bytes));
    m_fm = reading.fm;
    m_am = reading.am;
    const bool hasStations = !m_fm.isEmpty() || !m_am.isEmpty();

    QStringList sentences;
    if (!contents.problem.isEmpty())
        sentences += contents.problem;
    else if (!hasStations)
        sentences += tr("%1 has no stations.").arg(path);
    else if (reading.broken > 0)
        sentences +=
            tr("Lines of %1 that make no sense and are left out: %2. The first is line %3.")
                .arg(fileName(path))
                .arg(reading.broken)
                .arg(reading.firstBroken);
    if (reading.isFull || (contents.isCut && hasStations))
        sentences += tr("%1 is too long: only the first %2 stations are taken.")
                         .arg(fileName(path))
                         .arg(m_fm.size() + m_am.size());
    emit changed();
    if (!sentences.isEmpty())
        emit problem(sentences.join(QLatin1Char(' ')));
    return hasStations;
}

const QVector<Station> &Stations::of(Band band) const { return band == Band::Fm ? m_fm : m_am; }

const Station *Stations::at(Band band, int frequency) const
{
    const QVector<Station> &stations = of(band);
    const auto found = std::lower_bound(stations.cbegin(), stations.cend(), frequency, isBefore);
    return found != stations.cend() && found->frequency == frequency ? found : nullptr;
}

} // namespace headunit
