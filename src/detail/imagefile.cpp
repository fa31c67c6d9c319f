// SPDX-License-Identifier: Apache-2.0
#include "imagefile.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QMovie>
#include <QString>

#include <memory>

namespace panelkit
{

namespace
{

// A zero character ends a path for the system, and Qt warns about it. A device or a pipe is not
// read: it may have no end. A path that names nothing may still be completed by a suffix.
bool isWorthReading(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(0)))
        return false;
    const QFileInfo file(path);
    return file.isFile() || !file.exists();
}

} // namespace

QPixmap pixmapFromFile(const QString &path)
{
    if (!isWorthReading(path))
        return {};
    return QPixmap::fromImage(QImage(path));
}

std::unique_ptr<QMovie> movieFromFile(const QString &path)
{
    if (!isWorthReading(path))
        return std::make_unique<QMovie>();
    QImageReader finder(path); // which may complete the name of the file
    auto file = std::make_unique<QFile>(finder.fileName());
    if (!finder.canRead())
        return std::make_unique<QMovie>();
    if (!file->open(QIODevice::ReadOnly) || file->handle() < 0)
        return std::make_unique<QMovie>(path);
    // QMovie opens its file by name for each round, and complains on the log when it has vanished.
    // This name lasts as long as the file is open. A damaged file may have nothing but the ending
    // of its own name to tell what it is.
    const QString lasting = QStringLiteral("/proc/self/fd/%1").arg(file->handle());
    if (QImageReader::imageFormat(lasting).isEmpty())
        return std::make_unique<QMovie>(path);
    auto movie = std::make_unique<QMovie>(lasting, finder.format());
    file.release()->setParent(movie.get());
    return movie;
}

} // namespace panelkit
