// SPDX-License-Identifier: Apache-2.0
#include "synthesiser.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace headunit
{

namespace
{

constexpr double kFullScale = 32767;
constexpr double kSilence = 60; // dB below which nothing is heard: a tail ends there

double frequencyOf(int pitch) { return 440 * std::pow(2, (pitch - 69) / 12.0); }

// How loud a tone is at a time since its start.
double envelope(const Note &note, const Voice &voice, double time)
{
    const double attack = std::min(1.0, time / voice.attack);
    const double held = std::exp(-voice.decay * time);
    const double released =
        time <= note.length ? 1 : std::max(0.0, 1 - (time - note.length) / voice.release);
    return attack * held * released * released;
}

double waveAt(const Voice &voice, double frequency, double time)
{
    double sum = 0;
    for (int i = 0; i < voice.harmonics.size(); ++i) {
        const double harmonic = frequency * (i + 1);
        if (harmonic >= kSampleRate / 2.0)
            break; // it would fold back to a tone of its own
        const double fading = std::exp(-voice.brightnessDecay * i * time);
        sum += voice.harmonics.at(i) * fading * std::sin(2 * M_PI * harmonic * time);
    }
    return sum;
}

} // namespace

Synthesiser::Synthesiser(double seconds)
    : m_left(int(seconds * kSampleRate)), m_right(m_left.size())
{
}

void Synthesiser::add(const Note &note, const Voice &voice)
{
    const double frequency = frequencyOf(note.pitch);
    const double left = note.loudness * std::sqrt((1 - note.place) / 2);
    const double right = note.loudness * std::sqrt((1 + note.place) / 2);
    const int first = int(note.start * kSampleRate);
    const int count = int((note.length + voice.release) * kSampleRate);
    const int last = std::min(first + count, m_left.size());
    for (int i = first; i < last; ++i) {
        const double time = double(i - first) / kSampleRate;
        const double level = envelope(note, voice, time);
        const double one = level * waveAt(voice, frequency * (1 - voice.chorus), time);
        const double other =
            voice.chorus > 0 ? level * waveAt(voice, frequency * (1 + voice.chorus), time) : one;
        m_left[i] += left * one;
        m_right[i] += right * other;
    }
}

void Synthesiser::addEcho(double delay, double feedback)
{
    const int distance = int(delay * kSampleRate);
    for (int i = distance; i < m_left.size(); ++i) {
        m_left[i] += feedback * m_right.at(i - distance);
        m_right[i] += feedback * m_left.at(i - distance);
    }
}

QVector<qint16> Synthesiser::samples(double peak) const
{
    double loudest = std::pow(10, -kSilence / 20);
    for (int i = 0; i < m_left.size(); ++i)
        loudest = std::max({loudest, std::abs(m_left.at(i)), std::abs(m_right.at(i))});
    const double scale = peak * kFullScale / loudest;
    QVector<qint16> samples;
    samples.reserve(kChannels * m_left.size());
    for (int i = 0; i < m_left.size(); ++i) {
        samples.append(qint16(std::lround(scale * m_left.at(i))));
        samples.append(qint16(std::lround(scale * m_right.at(i))));
    }
    return samples;
}

} // namespace headunit
