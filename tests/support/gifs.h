// SPDX-License-Identifier: Apache-2.0
#ifndef GIFS_H
#define GIFS_H

#include <QByteArray>
#include <QImage>
#include <QVector>

/// How an animation goes: how long each frame stays and how often all of them are played.
struct GifTiming {
    int delay = 100; ///< ms, a multiple of 10; decoders take less than 20 ms for 100 ms.
    int rounds = 0; ///< 0: without end.
};

/// The bytes of a GIF file of these frames, all as large as the first. A frame may have up to 127
/// colours and transparent pixels; what is not wholly opaque counts as transparent. The pixels of
/// the file are those of the frames. Cut it with left() for a file that ends early.
QByteArray gifOf(const QVector<QImage> &frames, const GifTiming &timing = GifTiming());

/// So many frames that differ from each other: an opaque block and a half-open one, whose colours
/// tell the number of the frame, on a transparent ground.
QVector<QImage> gifFrames(int count, const QSize &size = QSize(12, 8));

#endif // GIFS_H
