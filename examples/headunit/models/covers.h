// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_COVERS_H
#define HEADUNIT_COVERS_H

#include <QImage>
#include <QSize>
#include <QString>

/// Pictures of music files. May be called in any thread.
namespace headunit::covers
{

/// The picture in a file or beside it, no larger than asked for; null without one.
QImage read(const QString &path, QSize atMost);

/// The picture file of a folder; empty if it has none.
QString fileIn(const QString &folder);

} // namespace headunit::covers

#endif // HEADUNIT_COVERS_H
