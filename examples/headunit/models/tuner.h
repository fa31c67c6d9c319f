// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TUNER_H
#define HEADUNIT_TUNER_H

#include "stations.h"

#include <QObject>
#include <QTimer>
#include <QVector>

#include <array>

class QSettings;

namespace headunit
{

/**
 * A radio of two bands with twelve presets each. Band, frequencies and presets persist in the
 * settings. Presets that nobody has stored yet are the band's first stations.
 */
class Tuner : public QObject
{
    Q_OBJECT

public:
    static constexpr int kPresets = 12; ///< in each band
    static constexpr int kScanTime = 3000; ///< ms on each station

    /// Both have to live longer than the tuner.
    Tuner(const Stations *stations, QSettings *settings, QObject *parent = nullptr);
    ~Tuner() override;

    Band band() const { return m_band; }
    BandRange range() const { return rangeOf(m_band); }
    int frequency() const { return m_frequencies[index(m_band)]; } ///< in the band's unit
    QString frequencyText() const; ///< "98.5" or "1044", in the way of the language
    QString unitText() const; ///< "MHz" or "kHz"
    static QString textOf(Band band, int frequency); ///< in the way of frequencyText()
    QString stationName() const; ///< empty off a station
    QString radioText() const; ///< empty off a station
    bool isScanning() const { return m_scan.isActive(); }

    int preset(int place) const; ///< its frequency on this band; 0 if empty
    QString presetName(int place) const; ///< its station; the frequency where there is none
    int presetInUse() const; ///< the place that holds this frequency; -1 if none does

public slots:
    void setBand(headunit::Band band);
    void setFrequency(int frequency); ///< goes to the grid of the band; stops a scan
    void stepUp(); ///< the next frequency of the grid; round at the end of the band
    void stepDown();
    void seekUp(); ///< the next station; round at the end of the band
    void seekDown();
    void setScanning(bool scanning); ///< from station to station until it is stopped
    void storePreset(int place);
    void recallPreset(int place);

signals:
    void bandChanged(headunit::Band band); ///< frequencyChanged() and the others follow
    void frequencyChanged(int frequency);
    void stationChanged(const QString &name, const QString &text); ///< both empty off a station
    void presetChanged(int place); ///< -1: all of them
    void scanningChanged(bool scanning);
    void problem(const QString &sentence);

private:
    static constexpr int kBands = 2;
    static constexpr std::size_t index(Band band) { return static_cast<std::size_t>(band); }

    void restore();
    void save();
    void moveTo(int frequency);
    void seek(int direction);
    void stepBy(int direction);
    void scanOn();
    void updateStation();
    void onStationsChanged();
    int presetOf(Band band, int place) const;
    static QString keyOf(Band band, const QString &what);

    const Stations *const m_stations;
    QSettings *const m_settings;
    QTimer m_scan;
    QTimer m_save; // frequencies are written when they have come to rest
    Band m_band = Band::Fm;
    std::array<int, kBands> m_frequencies;
    std::array<std::array<int, kPresets>, kBands> m_presets; // -1: never stored
    QString m_name; // as last told
    QString m_text;
};

} // namespace headunit

#endif // HEADUNIT_TUNER_H
