// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TAGS_H
#define HEADUNIT_TAGS_H

#include "track.h"

#include <QByteArray>
#include <QStringList>

/// Tags of music files. May be called in any thread.
namespace headunit::tags
{

/// The endings of the files that are taken for music, in lower case.
const QStringList &endings();

/// A track that nothing is known of but its file.
Track unread(const QString &path);

/// Reads title, artist, album, number and length of a file, and whether a picture is in it. What is
/// not music comes back broken, under the file's name.
Track read(const Track &unread);

/// The encoded picture in a file; empty without one.
QByteArray picture(const QString &path);

} // namespace headunit::tags

#endif // HEADUNIT_TAGS_H
