#include "imagefile.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QString>

namespace panelkit
{

namespace
{

// Both formats say how they begin and how they end; a little rubbish after the end does no harm.
bool endsEarly(const QString &path)
{
    constexpr qint64 kTail = 1024; // bytes
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false; // what cannot be opened is left to QImage, which is silent about it
    const QByteArray head = file.read(8);
    file.seek(qMax<qint64>(0, file.size() - kTail));
    const QByteArray tail = file.read(kTail);
    if (head.startsWith("\x89PNG"))
        return !tail.contains("IEND\xAE\x42\x60\x82"); // the last chunk and its checksum
    if (head.startsWith("\xFF\xD8\xFF"))
        return !tail.contains("\xFF\xD9");
    return false;
}

} // namespace

QPixmap pixmapFromFile(const QString &path)
{
    if (path.isEmpty() || endsEarly(path))
        return {};
    return QPixmap::fromImage(QImage(path));
}

} // namespace panelkit
