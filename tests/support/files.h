// SPDX-License-Identifier: Apache-2.0
#ifndef FILES_H
#define FILES_H

#include <QByteArray>
#include <QFile>
#include <QString>

/// Writes a file and returns its path.
inline QString writtenFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

#endif // FILES_H
