// SPDX-License-Identifier: Apache-2.0
#include "tags.h"

#include "textfile.h"

#include <QFile>
#include <QFileInfo>

#include <attachedpictureframe.h>
#include <fileref.h>
#include <flacfile.h>
#include <id3v2tag.h>
#include <infotag.h>
#include <mp4file.h>
#include <mpegfile.h>
#include <tdebuglistener.h>
#include <wavfile.h>
#include <xiphcomment.h>

namespace headunit::tags
{

namespace
{

constexpr int kMostSeconds = 100 * 3600 - 1; // what fits into 99:59:59
constexpr int kMostNumber = 9999;

// TagLib would write each oddity of a file to standard error.
class Silence : public TagLib::DebugListener
{
public:
    void printMessage(const TagLib::String &) override { }
};

void silenceTagLib()
{
    static Silence silence;
    static const bool isSet = (TagLib::setDebugListener(&silence), true);
    Q_UNUSED(isSet)
}

QString textOf(const TagLib::String &text)
{
    return cleanText(QString::fromStdString(text.to8Bit(true)));
}

// The front cover, or else the first picture.
TagLib::ByteVector pictureOf(const TagLib::ID3v2::Tag *tag)
{
    using Picture = TagLib::ID3v2::AttachedPictureFrame;
    TagLib::ByteVector first;
    if (!tag)
        return first;
    for (const TagLib::ID3v2::Frame *frame : tag->frameList("APIC")) {
        const auto *const picture = dynamic_cast<const Picture *>(frame);
        if (picture && picture->type() == Picture::FrontCover)
            return picture->picture();
        if (picture && first.isEmpty())
            first = picture->picture();
    }
    return first;
}

TagLib::ByteVector pictureOf(const TagLib::List<TagLib::FLAC::Picture *> &pictures)
{
    TagLib::ByteVector first;
    for (const TagLib::FLAC::Picture *picture : pictures) {
        if (picture->type() == TagLib::FLAC::Picture::FrontCover)
            return picture->data();
        if (first.isEmpty())
            first = picture->data();
    }
    return first;
}

TagLib::ByteVector pictureOf(const TagLib::MP4::Tag *tag)
{
    if (!tag || !tag->contains("covr"))
        return {};
    const TagLib::MP4::CoverArtList covers = tag->item("covr").toCoverArtList();
    return covers.isEmpty() ? TagLib::ByteVector() : covers.front().data();
}

TagLib::ByteVector pictureOf(TagLib::File &file)
{
    if (auto *const mpeg = dynamic_cast<TagLib::MPEG::File *>(&file))
        return pictureOf(mpeg->ID3v2Tag());
    if (auto *const wave = dynamic_cast<TagLib::RIFF::WAV::File *>(&file))
        return pictureOf(wave->ID3v2Tag());
    if (auto *const mp4 = dynamic_cast<TagLib::MP4::File *>(&file))
        return pictureOf(mp4->tag());
    if (auto *const flac = dynamic_cast<TagLib::FLAC::File *>(&file)) {
        const TagLib::ByteVector picture = pictureOf(flac->pictureList());
        return picture.isEmpty() ? pictureOf(flac->ID3v2Tag()) : picture;
    }
    if (auto *const xiph = dynamic_cast<TagLib::Ogg::XiphComment *>(file.tag()))
        return pictureOf(xiph->pictureList());
    return {};
}

// Where a file has two kinds of tags, the one that says something.
const TagLib::Tag *tagOf(TagLib::File &file)
{
    auto *const wave = dynamic_cast<TagLib::RIFF::WAV::File *>(&file);
    if (wave && wave->tag()->isEmpty() && wave->InfoTag())
        return wave->InfoTag();
    return file.tag();
}

bool isOrdinaryFile(const QString &path)
{
    return QFileInfo(path).isFile(); // opening a pipe would wait for its writer
}

} // namespace

const QStringList &endings()
{
    static const QStringList list{QStringLiteral("wav"), QStringLiteral("flac"),
                                  QStringLiteral("ogg"), QStringLiteral("oga"),
                                  QStringLiteral("mp3"), QStringLiteral("m4a")};
    return list;
}

Track unread(const QString &path)
{
    Track track;
    track.path = path;
    const QString name = fileName(path);
    track.title = cleanText(name.left(name.lastIndexOf(QLatin1Char('.'))));
    if (track.title.isEmpty())
        track.title = name;
    return track;
}

Track read(const Track &unread)
{
    silenceTagLib();
    Track track = unread;
    track.isRead = true;
    track.isBroken = true;
    if (!isOrdinaryFile(track.path))
        return track;
    const TagLib::FileRef file(QFile::encodeName(track.path).constData(), true,
                               TagLib::AudioProperties::Fast);
    if (file.isNull() || !file.file()->isValid())
        return track;
    const TagLib::AudioProperties *const sound = file.audioProperties();
    const int length = sound ? sound->lengthInMilliseconds() : 0;
    track.isBroken = length <= 0;
    track.seconds = track.isBroken ? 0 : qBound(1, qRound(length / 1000.0), kMostSeconds);
    if (const TagLib::Tag *const tag = tagOf(*file.file())) {
        const QString title = textOf(tag->title());
        if (!title.isEmpty())
            track.title = title;
        track.artist = textOf(tag->artist());
        track.album = textOf(tag->album());
        track.number = tag->track() <= kMostNumber ? int(tag->track()) : 0;
    }
    if (!track.hasCover)
        track.hasCover = !pictureOf(*file.file()).isEmpty();
    return track;
}

QByteArray picture(const QString &path)
{
    silenceTagLib();
    if (!isOrdinaryFile(path))
        return {};
    const TagLib::FileRef file(QFile::encodeName(path).constData(), false);
    if (file.isNull() || !file.file()->isValid())
        return {};
    const TagLib::ByteVector bytes = pictureOf(*file.file());
    return {bytes.data(), int(bytes.size())};
}

} // namespace headunit::tags
