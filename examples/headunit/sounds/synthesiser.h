// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SYNTHESISER_H
#define HEADUNIT_SYNTHESISER_H

#include <QVector>

namespace headunit
{

constexpr int kSampleRate = 22050; // Hz
constexpr int kChannels = 2;

/// One tone.
struct Note {
    double start; ///< s
    double length; ///< s until it is let go
    int pitch; ///< in semitones as of MIDI: 69 is 440 Hz
    double loudness; ///< 0 to 1
    double place = 0; ///< from -1, left, to 1, right
};

/// How a tone sounds: some harmonics, and how it comes and goes.
struct Voice {
    QVector<double> harmonics; ///< the loudness of each, from the fundamental on
    double attack; ///< s to full loudness
    double decay; ///< 1/s: how fast it dies away while it is held
    double release; ///< s to silence once it is let go
    double brightnessDecay; ///< 1/s: by how much faster each higher harmonic dies away
    double chorus = 0; ///< two tones that are out of tune by so much, as a part of the pitch
};

/// Mixes tones to a stereo sound.
class Synthesiser
{
public:
    explicit Synthesiser(double seconds);

    void add(const Note &note, const Voice &voice);

    /// Repeats all so far from the other side, softer each time.
    void addEcho(double delay, double feedback);

    /// The sound, left and right by turns, as loud as this (0 to 1) at its loudest.
    QVector<qint16> samples(double peak) const;

private:
    QVector<double> m_left;
    QVector<double> m_right;
};

} // namespace headunit

#endif // HEADUNIT_SYNTHESISER_H
