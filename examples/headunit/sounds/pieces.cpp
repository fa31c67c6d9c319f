// SPDX-License-Identifier: Apache-2.0
#include "pieces.h"

#include "synthesiser.h"

#include <cmath>

namespace headunit
{

namespace
{

constexpr double kPeak = 0.7; // leaves room for an equaliser
constexpr int kOctave = 12; // semitones

using Chord = QVector<int>; // pitches, from the lowest on

const Voice kPluck{{1, 0.5, 0.28, 0.16, 0.1, 0.05}, 0.004, 2.6, 0.35, 1.4};
const Voice kBell{{1, 0, 0.45, 0, 0.2}, 0.003, 1.3, 1.6, 1.1};
const Voice kPad{{1, 0.35, 0.2, 0.08}, 0.7, 0.12, 1.4, 0, 0.0018};
const Voice kBass{{1, 0.4, 0.12}, 0.012, 1.1, 0.12, 1.5};

// Lays a chord under the whole of a bar.
void addPad(Synthesiser &music, const Chord &chord, double start, double length, double loudness)
{
    for (const int pitch : chord)
        music.add({start, length, pitch, loudness / chord.size()}, kPad);
}

// A calm run up and down the chord over a held ground.
QVector<qint16> firstLight()
{
    const QVector<Chord> bars{{48, 64, 67, 71}, {45, 60, 64, 67}, {41, 60, 64, 69},
                              {43, 59, 62, 69}, {48, 64, 67, 74}, {52, 59, 64, 67},
                              {41, 60, 65, 69}, {48, 60, 64, 67}};
    constexpr double beat = 60.0 / 80;
    const QVector<int> run{1, 2, 3, 2, 1, 3, 2, 3};
    Synthesiser music(bars.size() * 4 * beat + 3);
    for (int bar = 0; bar < bars.size(); ++bar) {
        const Chord &chord = bars.at(bar);
        const double start = bar * 4 * beat;
        addPad(music, chord, start, 4 * beat, 0.5);
        music.add({start, 3.5 * beat, chord.first() - kOctave, 0.4}, kBass);
        for (int i = 0; i < run.size(); ++i) {
            const double place = 0.5 * std::sin(i + bar);
            const double loudness = i == 0 ? 0.42 : 0.3;
            music.add({start + i * beat / 2, beat, chord.at(run.at(i)) + kOctave, loudness, place},
                      kPluck);
        }
    }
    music.addEcho(0.75 * beat, 0.28);
    return music.samples(kPeak);
}

// A bass that walks in eighths, chords off the beat and a tune above.
QVector<qint16> coastRoad()
{
    const QVector<Chord> bars{
        {38, 62, 66, 69}, {37, 61, 64, 69}, {35, 62, 66, 71}, {43, 62, 67, 71}};
    const QVector<int> tune{78, 0, 76, 74, 0, 73, 76, 0, 74, 0, 71, 74, 0, 71, 69, 0};
    constexpr double beat = 60.0 / 104;
    constexpr int rounds = 3;
    Synthesiser music(rounds * bars.size() * 4 * beat + 3);
    for (int bar = 0; bar < rounds * bars.size(); ++bar) {
        const Chord &chord = bars.at(bar % bars.size());
        const double start = bar * 4 * beat;
        for (int i = 0; i < 8; ++i) {
            const int step = i == 3 || i == 6 ? kOctave : 0;
            music.add({start + i * beat / 2, 0.4 * beat, chord.first() + step, 0.5}, kBass);
        }
        for (int i = 0; i < 4; ++i) {
            for (int voice = 1; voice < chord.size(); ++voice)
                music.add({start + (i + 0.5) * beat, 0.3 * beat, chord.at(voice), 0.16,
                           0.4 * (voice - 2)},
                          kPluck);
        }
        for (int i = 0; bar >= bars.size() && i < 4; ++i) {
            if (const int pitch = tune.at((bar % bars.size()) * 4 + i))
                music.add({start + i * beat, beat, pitch, 0.34, 0.2}, kBell);
        }
    }
    music.addEcho(0.75 * beat, 0.22);
    return music.samples(kPeak);
}

// A slow waltz of bells.
QVector<qint16> lanterns()
{
    const QVector<Chord> bars{{40, 64, 67, 71}, {36, 64, 67, 72}, {43, 62, 67, 71},
                              {42, 62, 66, 69}, {40, 64, 67, 71}, {45, 64, 69, 72},
                              {47, 63, 66, 71}, {40, 64, 67, 76}};
    constexpr double beat = 60.0 / 58;
    Synthesiser music(bars.size() * 3 * beat + 4);
    for (int bar = 0; bar < bars.size(); ++bar) {
        const Chord &chord = bars.at(bar);
        const double start = bar * 3 * beat;
        addPad(music, chord, start, 3 * beat, 0.45);
        music.add({start, 2.5 * beat, chord.first(), 0.4}, kBass);
        for (int i = 0; i < 6; ++i) {
            const int pitch = chord.at(1 + (i + bar) % 3) + (i % 2 == 0 ? kOctave : 0);
            music.add({start + i * beat / 2, beat, pitch, i == 0 ? 0.4 : 0.26, i % 2 ? 0.5 : -0.5},
                      kBell);
        }
    }
    music.addEcho(beat / 2, 0.32);
    return music.samples(kPeak);
}

} // namespace

QVector<Piece> allPieces()
{
    return {{QStringLiteral("First Light"), 1, firstLight(), QColor(0x2b4c7e), QColor(0xf7b267),
             QColor(0x1b2a41), 0.12},
            {QStringLiteral("Coast Road"), 2, coastRoad(), QColor(0x1c7ed6), QColor(0xa5d8ff),
             QColor(0x0b7285), 0.7},
            {QStringLiteral("Lanterns"), 3, lanterns(), QColor(0x10002b), QColor(0x7b2cbf),
             QColor(0x05010d), 0.45}};
}

QVector<qint16> clickSamples()
{
    constexpr double length = 0.008; // s
    const Voice click{{1, 0.4, 0.2}, 0.0003, 420, 0.001, 200};
    Synthesiser sound(length);
    sound.add({0, length, 93, 1}, click);
    return sound.samples(0.5);
}

} // namespace headunit
