// SPDX-License-Identifier: Apache-2.0
#include "wavefile.h"

#include "synthesiser.h"

#include <QDataStream>
#include <QFile>

#include <attachedpictureframe.h>
#include <id3v2tag.h>
#include <infotag.h>
#include <wavfile.h>

namespace headunit
{

namespace
{

constexpr quint16 kPcm = 1;
constexpr quint16 kBytesPerSample = 2;

TagLib::String text(const QString &text) { return {text.toStdString(), TagLib::String::UTF8}; }

void fill(TagLib::Tag *tag, const WaveTags &tags)
{
    tag->setTitle(text(tags.title));
    tag->setArtist(text(tags.artist));
    tag->setAlbum(text(tags.album));
    tag->setTrack(unsigned(tags.number));
}

} // namespace

bool writeWave(const QString &path, const QVector<qint16> &samples)
{
    const quint32 dataSize = quint32(samples.size()) * kBytesPerSample;
    constexpr quint16 frameSize = kChannels * kBytesPerSample;

    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream stream(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("RIFF", 4);
    stream << quint32(36 + dataSize);
    stream.writeRawData("WAVEfmt ", 8);
    stream << quint32(16) << kPcm << quint16(kChannels) << quint32(kSampleRate)
           << quint32(kSampleRate * frameSize) << frameSize << quint16(8 * kBytesPerSample);
    stream.writeRawData("data", 4);
    stream << dataSize;
    for (const qint16 sample : samples)
        stream << sample;
    return stream.status() == QDataStream::Ok && file.flush();
}

bool writeTags(const QString &path, const WaveTags &tags)
{
    TagLib::RIFF::WAV::File file(QFile::encodeName(path).constData());
    if (!file.isValid())
        return false;
    fill(file.ID3v2Tag(), tags);
    fill(file.InfoTag(), tags);
    if (!tags.cover.isEmpty()) {
        auto *const picture = new TagLib::ID3v2::AttachedPictureFrame;
        picture->setMimeType("image/png");
        picture->setType(TagLib::ID3v2::AttachedPictureFrame::FrontCover);
        picture->setPicture({tags.cover.constData(), unsigned(tags.cover.size())});
        file.ID3v2Tag()->addFrame(picture); // which takes it over
    }
    return file.save();
}

} // namespace headunit
