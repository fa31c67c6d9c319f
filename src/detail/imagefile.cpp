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

// A file by itself, without its name. Of a QFile, QMovie takes no more than the name, which it
// opens anew for each round: when there is no such file any more, it complains on the log.
class OpenFile : public QIODevice
{
public:
    explicit OpenFile(const QString &path) : m_file(path)
    {
        if (m_file.open(ReadOnly | Unbuffered))
            open(ReadOnly);
    }

    bool isSequential() const override { return m_file.isSequential(); }
    qint64 size() const override { return m_file.size(); }
    bool seek(qint64 pos) override { return QIODevice::seek(pos) && m_file.seek(pos); }

protected:
    qint64 readData(char *data, qint64 maxSize) override { return m_file.read(data, maxSize); }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QFile m_file;
};

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
    if (!finder.canRead())
        return std::make_unique<QMovie>();
    auto file = std::make_unique<OpenFile>(finder.fileName());
    if (!file->isOpen())
        return std::make_unique<QMovie>();
    auto movie = std::make_unique<QMovie>(file.get(), finder.format());
    file.release()->setParent(movie.get());
    return movie;
}

} // namespace panelkit
