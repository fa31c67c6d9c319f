// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_WAVEFILE_H
#define HEADUNIT_WAVEFILE_H

#include <QByteArray>
#include <QString>
#include <QVector>

namespace headunit
{

/// What is said of a piece in its file.
struct WaveTags {
    QString title;
    QString artist;
    QString album;
    int number = 0;
    QByteArray cover; ///< a PNG
};

/// Writes 16-bit samples, left and right by turns; false if that fails.
bool writeWave(const QString &path, const QVector<qint16> &samples);

/// Writes the tags into a WAV file; false if that fails.
bool writeTags(const QString &path, const WaveTags &tags);

} // namespace headunit

#endif // HEADUNIT_WAVEFILE_H
