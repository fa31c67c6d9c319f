// SPDX-License-Identifier: Apache-2.0
#include "gifs.h"

#include <QColor>
#include <QHash>
#include <QPainter>

namespace
{

// With 7 bits a pixel a code has 8, which is a byte, as long as the decoder's table is emptied
// before it is full: pixels can be written as they are.
constexpr int kBits = 7;
constexpr int kColors = 1 << kBits;
constexpr char kEmptyTable = char(0x80);
constexpr char kEnd = char(0x81);
constexpr int kPixelsATable = 100;
constexpr int kTransparent = kColors - 1; // its place in the table of colours
constexpr int kLargestBlock = 255; // bytes

QByteArray number(int value) { return QByteArray(1, char(value & 0xff)) + char(value >> 8 & 0xff); }

// The pixels of a frame as places in the table of its colours.
struct IndexedFrame {
    QByteArray table;
    QByteArray pixels;
};

IndexedFrame indexed(const QImage &frame)
{
    IndexedFrame result;
    QHash<QRgb, int> places;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            const QRgb pixel = frame.pixel(x, y);
            if (qAlpha(pixel) < 255) {
                result.pixels += char(kTransparent);
                continue;
            }
            auto place = places.constFind(pixel);
            if (place == places.constEnd()) {
                Q_ASSERT(places.size() < kTransparent);
                place = places.insert(pixel, places.size());
                result.table +=
                    QByteArray(1, char(qRed(pixel))) + char(qGreen(pixel)) + char(qBlue(pixel));
            }
            result.pixels += char(*place);
        }
    }
    result.table = result.table.leftJustified(3 * kColors, '\0');
    return result;
}

QByteArray coded(const QByteArray &pixels)
{
    QByteArray codes;
    for (int i = 0; i < pixels.size(); i += kPixelsATable)
        codes += kEmptyTable + pixels.mid(i, kPixelsATable);
    codes += kEnd;
    QByteArray blocks(1, char(kBits));
    for (int i = 0; i < codes.size(); i += kLargestBlock) {
        const QByteArray block = codes.mid(i, kLargestBlock);
        blocks += char(block.size()) + block;
    }
    return blocks + '\0';
}

// Each frame is taken away before the next one, so that transparent pixels stay transparent.
QByteArray frameBlock(const QImage &frame, int delay)
{
    const QByteArray control =
        QByteArray("\x21\xf9\x04\x09", 4) + number(delay / 10) + char(kTransparent) + '\0';
    const QByteArray place =
        ',' + number(0) + number(0) + number(frame.width()) + number(frame.height());
    const IndexedFrame content = indexed(frame);
    return control + place + char(0x80 | (kBits - 1)) + content.table + coded(content.pixels);
}

} // namespace

QByteArray gifOf(const QVector<QImage> &frames, const GifTiming &timing)
{
    QByteArray bytes = "GIF89a" + number(frames.value(0).width()) + number(frames.value(0).height())
        + QByteArray(3, '\0'); // no common table of colours
    // Without a number of rounds there is one; the number is that of the further ones.
    if (timing.rounds != 1)
        bytes += QByteArray("\x21\xff\x0bNETSCAPE2.0\x03\x01", 16)
            + number(timing.rounds == 0 ? 0 : timing.rounds - 1) + '\0';
    for (const QImage &frame : frames)
        bytes += frameBlock(frame, timing.delay);
    return bytes + ';';
}

QVector<QImage> gifFrames(int count, const QSize &size)
{
    QVector<QImage> frames;
    for (int i = 0; i < count; ++i) {
        QImage frame(size, QImage::Format_ARGB32_Premultiplied);
        frame.fill(Qt::transparent);
        QPainter painter(&frame);
        const int width = size.width() - size.width() / 3;
        painter.fillRect(0, 0, width, size.height() / 2, QColor(i % 256, i / 256, 200));
        painter.setPen(QColor(200, i % 256, i / 256));
        for (int x = 0; x < width; x += 2)
            painter.drawLine(x, size.height() / 2, x, size.height() - 1);
        painter.end();
        frames += frame;
    }
    return frames;
}
