// SPDX-License-Identifier: Apache-2.0
#include "covers.h"

#include "tags.h"
#include "textfile.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>

namespace headunit::covers
{

namespace
{

constexpr int kMostBytes = 32 * 1024 * 1024;
constexpr qint64 kMostPixels = 64'000'000;

QImage decoded(QByteArray bytes, QSize atMost)
{
    QBuffer buffer(&bytes);
    if (bytes.size() > kMostBytes || !buffer.open(QIODevice::ReadOnly))
        return {};
    // What comes with music is one of these; other formats have no business in here.
    const QByteArray format = QImageReader::imageFormat(&buffer);
    if (format != "jpeg" && format != "png" && format != "gif")
        return {};
    QImageReader reader(&buffer, format);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > kMostPixels)
        return {};
    // Scaled while it is read, a large photograph never is in memory as a whole.
    if (size.width() > atMost.width() || size.height() > atMost.height())
        reader.setScaledSize(size.scaled(atMost, Qt::KeepAspectRatio).expandedTo({1, 1}));
    QImage image = reader.read();
    if (image.width() <= atMost.width() && image.height() <= atMost.height())
        return image;
    return image.scaled(atMost, Qt::KeepAspectRatio,
                        Qt::SmoothTransformation); // turned by its EXIF
}

} // namespace

QImage read(const QString &path, QSize atMost)
{
    if (atMost.isEmpty())
        return {};
    QImage inside = decoded(tags::picture(path), atMost);
    if (!inside.isNull())
        return inside;
    const QString beside = fileIn(QFileInfo(path).path());
    return beside.isEmpty() ? QImage() : decoded(readFile(beside, kMostBytes).bytes, atMost);
}

QString fileIn(const QString &folder)
{
    // Sorted by name, so that a cover stands before a folder picture.
    const QStringList names = QDir(folder).entryList(
        {QStringLiteral("cover.jpg"), QStringLiteral("cover.jpeg"), QStringLiteral("cover.png"),
         QStringLiteral("folder.jpg"), QStringLiteral("folder.jpeg"), QStringLiteral("folder.png")},
        QDir::Files, QDir::Name | QDir::IgnoreCase);
    return names.isEmpty() ? QString() : folder + QLatin1Char('/') + names.first();
}

} // namespace headunit::covers
