// SPDX-License-Identifier: Apache-2.0
#include "tuner.h"

#include <QLocale>
#include <QSettings>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr std::array<Band, 2> kAllBands{Band::Fm, Band::Am};
constexpr int kNeverStored = -1;
constexpr int kSaveDelay = 1000; // ms
constexpr int kUnitsPerMegahertz = 100; // of the FM band

const QString kBandKey = QStringLiteral("tuner/band");

int onGrid(const BandRange &range, int frequency)
{
    const int bounded = qBound(range.first, frequency, range.last);
    const int steps = (bounded - range.first + range.step / 2) / range.step;
    return qMin(range.first + steps * range.step, range.last);
}

bool isOnGrid(const BandRange &range, int frequency)
{
    return frequency == onGrid(range, frequency);
}

} // namespace

Tuner::Tuner(const Stations *stations, QSettings *settings, QObject *parent)
    : QObject(parent), m_stations(stations), m_settings(settings)
{
    m_scan.setInterval(kScanTime);
    m_save.setInterval(kSaveDelay);
    m_save.setSingleShot(true);
    connect(&m_scan, &QTimer::timeout, this, &Tuner::scanOn);
    connect(&m_save, &QTimer::timeout, this, &Tuner::save);
    connect(stations, &Stations::changed, this, &Tuner::onStationsChanged);
    restore();
    const Station *const station = m_stations->at(m_band, frequency());
    m_name = station ? station->name : QString();
    m_text = station ? station->text : QString();
}

Tuner::~Tuner()
{
    if (m_save.isActive())
        save();
}

QString Tuner::frequencyText() const { return textOf(m_band, frequency()); }

QString Tuner::unitText() const { return m_band == Band::Fm ? tr("MHz") : tr("kHz"); }

QString Tuner::stationName() const { return m_name; }

QString Tuner::radioText() const { return m_text; }

int Tuner::preset(int place) const { return presetOf(m_band, place); }

QString Tuner::presetName(int place) const
{
    const int frequency = preset(place);
    if (frequency == 0)
        return {};
    const Station *const station = m_stations->at(m_band, frequency);
    return station ? station->name : textOf(m_band, frequency);
}

int Tuner::presetInUse() const
{
    for (int place = 0; place < kPresets; ++place) {
        if (preset(place) == frequency())
            return place;
    }
    return -1;
}

void Tuner::setBand(Band band)
{
    if (band == m_band || std::find(kAllBands.begin(), kAllBands.end(), band) == kAllBands.end())
        return;
    setScanning(false);
    m_band = band;
    m_save.start();
    emit bandChanged(band);
    emit frequencyChanged(frequency());
    updateStation();
    emit presetChanged(-1);
}

void Tuner::setFrequency(int frequency)
{
    setScanning(false);
    moveTo(onGrid(range(), frequency));
}

void Tuner::stepUp() { stepBy(1); }

void Tuner::stepDown() { stepBy(-1); }

void Tuner::seekUp()
{
    setScanning(false);
    seek(1);
}

void Tuner::seekDown()
{
    setScanning(false);
    seek(-1);
}

void Tuner::setScanning(bool scanning)
{
    if (scanning == isScanning())
        return;
    if (!scanning) {
        m_scan.stop();
    } else {
        if (m_stations->of(m_band).isEmpty()) {
            emit problem(tr("There is no station to be found on this band."));
            return;
        }
        m_scan.start();
    }
    emit scanningChanged(scanning);
    if (scanning)
        seek(1);
}

void Tuner::storePreset(int place)
{
    if (place < 0 || place >= kPresets)
        return;
    m_presets[index(m_band)][std::size_t(place)] = frequency();
    m_settings->setValue(keyOf(m_band, QStringLiteral("preset%1").arg(place + 1)), frequency());
    emit presetChanged(place);
}

void Tuner::recallPreset(int place)
{
    if (const int frequency = preset(place))
        setFrequency(frequency);
}

// The settings may have been written by anybody: what is not on a band's grid is not taken.
void Tuner::restore()
{
    m_band = m_settings->value(kBandKey).toString() == QLatin1String("AM") ? Band::Am : Band::Fm;
    for (const Band band : kAllBands) {
        const BandRange range = rangeOf(band);
        const QVector<Station> &stations = m_stations->of(band);
        const int stored = m_settings->value(keyOf(band, QStringLiteral("frequency"))).toInt();
        const int first = stations.isEmpty() ? range.first : stations.first().frequency;
        m_frequencies[index(band)] = isOnGrid(range, stored) ? stored : first;
        for (int place = 0; place < kPresets; ++place) {
            const QString key = keyOf(band, QStringLiteral("preset%1").arg(place + 1));
            const int preset = m_settings->value(key).toInt();
            m_presets[index(band)][std::size_t(place)] =
                isOnGrid(range, preset) ? preset : kNeverStored;
        }
    }
}

void Tuner::save()
{
    m_save.stop();
    m_settings->setValue(kBandKey,
                         m_band == Band::Am ? QStringLiteral("AM") : QStringLiteral("FM"));
    for (const Band band : kAllBands)
        m_settings->setValue(keyOf(band, QStringLiteral("frequency")), m_frequencies[index(band)]);
}

void Tuner::moveTo(int frequency)
{
    int &current = m_frequencies[index(m_band)];
    if (frequency == current)
        return;
    current = frequency;
    m_save.start();
    emit frequencyChanged(frequency);
    updateStation();
}

// To the next station in this direction, beyond the end of the band to the one at its other end.
void Tuner::seek(int direction)
{
    const QVector<Station> &stations = m_stations->of(m_band);
    if (stations.isEmpty())
        return;
    const int from = frequency();
    if (direction > 0) {
        const auto next = std::find_if(stations.begin(), stations.end(),
                                       [from](const Station &s) { return s.frequency > from; });
        moveTo(next == stations.end() ? stations.first().frequency : next->frequency);
    } else {
        const auto next = std::find_if(stations.rbegin(), stations.rend(),
                                       [from](const Station &s) { return s.frequency < from; });
        moveTo(next == stations.rend() ? stations.last().frequency : next->frequency);
    }
}

void Tuner::stepBy(int direction)
{
    setScanning(false);
    const BandRange band = range();
    const int next = frequency() + direction * band.step;
    if (next > band.last)
        moveTo(band.first);
    else
        moveTo(next < band.first ? band.last : next);
}

void Tuner::scanOn() { seek(1); }

void Tuner::updateStation()
{
    const Station *const station = m_stations->at(m_band, frequency());
    const QString name = station ? station->name : QString();
    const QString text = station ? station->text : QString();
    if (name == m_name && text == m_text)
        return;
    m_name = name;
    m_text = text;
    emit stationChanged(name, text);
}

void Tuner::onStationsChanged()
{
    if (m_stations->of(m_band).isEmpty())
        setScanning(false);
    updateStation();
    emit presetChanged(-1);
}

int Tuner::presetOf(Band band, int place) const
{
    if (place < 0 || place >= kPresets)
        return 0;
    const int stored = m_presets[index(band)][std::size_t(place)];
    if (stored != kNeverStored)
        return stored;
    const QVector<Station> &stations = m_stations->of(band);
    return place < stations.size() ? stations.at(place).frequency : 0;
}

QString Tuner::textOf(Band band, int frequency)
{
    if (band == Band::Fm)
        return QLocale().toString(double(frequency) / kUnitsPerMegahertz, 'f', 1);
    return QString::number(frequency);
}

QString Tuner::keyOf(Band band, const QString &what)
{
    const QString name = band == Band::Fm ? QStringLiteral("fm") : QStringLiteral("am");
    return QStringLiteral("tuner/%1/%2").arg(name, what);
}

} // namespace headunit
