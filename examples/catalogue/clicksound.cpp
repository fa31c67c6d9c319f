// SPDX-License-Identifier: Apache-2.0
#include "clicksound.h"

#include <audiodevice.h>

#include <QDataStream>
#include <QFile>
#include <QSoundEffect>
#include <QtMath>
#include <QUrl>

namespace
{

constexpr quint32 kSampleRate = 44100; // Hz
constexpr quint32 kSampleCount = 530; // 12 ms
constexpr double kPitch = 1800; // Hz
constexpr double kDecay = 420; // 1/s
constexpr double kLoudness = 0.5 * 32767;

// One channel of 16-bit samples: a sine that dies away.
QByteArray samples()
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    for (quint32 i = 0; i < kSampleCount; ++i) {
        const double seconds = double(i) / kSampleRate;
        stream << qint16(kLoudness * std::exp(-kDecay * seconds)
                         * std::sin(2 * M_PI * kPitch * seconds));
    }
    return bytes;
}

bool writeWave(const QString &path)
{
    constexpr quint16 kPcm = 1;
    constexpr quint16 kChannels = 1;
    constexpr quint16 kBytesPerSample = 2;
    const QByteArray data = samples();
    const auto dataSize = quint32(data.size());

    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream stream(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("RIFF", 4);
    stream << quint32(36 + dataSize);
    stream.writeRawData("WAVEfmt ", 8);
    stream << quint32(16) << kPcm << kChannels << kSampleRate
           << quint32(kSampleRate * kBytesPerSample) << kBytesPerSample
           << quint16(8 * kBytesPerSample);
    stream.writeRawData("data", 4);
    stream << dataSize;
    stream.writeRawData(data.constData(), data.size());
    return stream.status() == QDataStream::Ok;
}

} // namespace

ClickSound::ClickSound(QObject *parent) : QObject(parent)
{
    const QString path = m_directory.filePath(QStringLiteral("click.wav"));
    if (!audiodevice::isThere() || !writeWave(path))
        return;
    m_effect = new QSoundEffect(this);
    m_effect->setSource(QUrl::fromLocalFile(path));
}

void ClickSound::play()
{
    if (m_effect)
        m_effect->play();
}
