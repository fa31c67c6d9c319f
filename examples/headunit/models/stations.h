// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_STATIONS_H
#define HEADUNIT_STATIONS_H

#include <QObject>
#include <QString>
#include <QVector>

namespace headunit
{

enum class Band : int { Fm, Am };

/// What a band goes over. FM is counted in steps of 10 kHz, AM in kHz.
struct BandRange {
    int first;
    int last;
    int step;
};

constexpr BandRange rangeOf(Band band)
{
    return band == Band::Fm ? BandRange{8750, 10800, 10} : BandRange{522, 1620, 9};
}

/// A station that can be received.
struct Station {
    Band band = Band::Fm;
    int frequency = 0; ///< in the band's unit
    QString name;
    QString text; ///< what it sends for the display
};

/**
 * The stations that can be received, from a file of lines like
 *
 *     band,frequency,name,text
 *     FM,8930,Harbour FM,"News, tides and the long way home"
 *
 * in UTF-8. FM frequencies are in 10 kHz, AM ones in kHz, both on the band's grid. Lines that begin
 * with '#' are comments.
 */
class Stations : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMost = 1000; ///< further stations are left out, with a problem()
    static constexpr int kMostBytes = 1024 * 1024; ///< no more is read, with a problem()

    explicit Stations(QObject *parent = nullptr);

    /// Reads a file in place of what was known; false if it cannot be read or has no stations. A
    /// problem() tells why, or which lines were left out.
    bool load(const QString &path);

    /// The stations of a band by frequency.
    const QVector<Station> &of(Band band) const;

    /// The station on a frequency; null if there is none.
    const Station *at(Band band, int frequency) const;

signals:
    void changed();
    void problem(const QString &sentence);

private:
    QVector<Station> m_fm;
    QVector<Station> m_am;
};

} // namespace headunit

Q_DECLARE_METATYPE(headunit::Band)

#endif // HEADUNIT_STATIONS_H
