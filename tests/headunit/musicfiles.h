// SPDX-License-Identifier: Apache-2.0
#ifndef MUSICFILES_H
#define MUSICFILES_H

#include <QByteArray>
#include <QtEndian>

/// Small files of music, each a second or so of nothing, as far as a reader of tags looks.
namespace musicfiles
{

template <typename Number> QByteArray little(Number number)
{
    QByteArray bytes(int(sizeof number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template <typename Number> QByteArray big(Number number)
{
    QByteArray bytes(int(sizeof number), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

inline QByteArray chunk(const QByteArray &name, const QByteArray &data)
{
    return name + little(quint32(data.size())) + data + QByteArray(data.size() % 2, '\0');
}

/// A second of a WAV file at a low rate; with a title unless that is empty.
inline QByteArray wave(const QByteArray &title = {})
{
    constexpr quint32 rate = 100;
    const QByteArray format = little(quint16(1)) + little(quint16(1)) + little(rate) + little(rate)
        + little(quint16(1)) + little(quint16(8));
    QByteArray chunks = "WAVE" + chunk("fmt ", format) + chunk("data", QByteArray(rate, '\x80'));
    if (!title.isEmpty())
        chunks += chunk("LIST", "INFO" + chunk("INAM", title));
    return chunk("RIFF", chunks);
}

/// Two seconds of a FLAC file.
inline QByteArray flac()
{
    constexpr quint64 rate = 22050;
    constexpr quint64 bits = 16;
    const quint64 layout = rate << 44 | (bits - 1) << 36 | 2 * rate;
    const QByteArray info = big(quint16(4096)) + big(quint16(4096)) + QByteArray(6, '\0')
        + big(layout) + QByteArray(16, '\0');
    return "fLaC" + QByteArray("\x80\0\0\x22", 4) + info + QByteArray("\xff\xf8", 2)
        + QByteArray(100, '\0');
}

inline quint32 oggChecksum(const QByteArray &bytes)
{
    quint32 crc = 0;
    for (const char byte : bytes) {
        crc ^= quint32(uchar(byte)) << 24;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc << 1) ^ (crc & 0x80000000U ? 0x04C11DB7U : 0U);
    }
    return crc;
}

inline QByteArray oggPage(char flags, quint64 position, quint32 number, const QByteArray &packet)
{
    QByteArray page = "OggS" + QByteArray(1, '\0') + QByteArray(1, flags) + little(position)
        + little(quint32(7)) + little(number) + little(quint32(0)) + QByteArray(1, '\1')
        + QByteArray(1, char(packet.size())) + packet;
    page.replace(22, 4, little(oggChecksum(page)));
    return page;
}

/// Three seconds of an Ogg Vorbis file.
inline QByteArray ogg()
{
    constexpr quint32 rate = 22050;
    const QByteArray head = "\1vorbis" + little(quint32(0)) + QByteArray(1, '\1') + little(rate)
        + QByteArray(4, '\0') + little(quint32(64000)) + QByteArray(4, '\0') + QByteArray("\xb8\1");
    const QByteArray comment =
        "\3vorbis" + little(quint32(4)) + "Test" + little(quint32(0)) + QByteArray(1, '\1');
    return oggPage(2, 0, 0, head) + oggPage(0, 0, 1, comment)
        + oggPage(0, 0, 2, "\5vorbis" + QByteArray(40, '\0'))
        + oggPage(4, 3 * rate, 3, QByteArray(50, '\0'));
}

/// About two seconds of an MP3 file: frames of 128 kbit/s at 44.1 kHz.
inline QByteArray mp3()
{
    constexpr int frameSize = 417;
    const QByteArray frame = QByteArray("\xff\xfb\x90\x00", 4) + QByteArray(frameSize - 4, '\0');
    return frame.repeated(77);
}

inline QByteArray atom(const QByteArray &name, const QByteArray &data)
{
    return big(quint32(data.size() + 8)) + name + data;
}

/// Four seconds of an MPEG-4 file.
inline QByteArray m4a()
{
    const QByteArray times(12, '\0'); // version, created, modified
    const QByteArray length = big(quint32(1000)) + big(quint32(4000));
    const QByteArray entry = QByteArray(6, '\0') + big(quint16(1)) + QByteArray(8, '\0')
        + big(quint16(2)) + big(quint16(16)) + QByteArray(4, '\0') + big(quint32(22050 << 16));
    const QByteArray samples =
        atom("stsd", QByteArray(4, '\0') + big(quint32(1)) + atom("mp4a", entry));
    const QByteArray handler = atom("hdlr", QByteArray(8, '\0') + "soun" + QByteArray(13, '\0'));
    const QByteArray media = atom("mdhd", times + length + QByteArray(4, '\0')) + handler
        + atom("minf", atom("stbl", samples));
    return atom("ftyp", "M4A " + QByteArray(4, '\0'))
        + atom("moov",
               atom("mvhd", times + length + QByteArray(80, '\0'))
                   + atom("trak", atom("mdia", media)))
        + atom("mdat", QByteArray(32, '\0'));
}

} // namespace musicfiles

#endif // MUSICFILES_H
