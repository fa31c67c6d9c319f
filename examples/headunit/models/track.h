// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TRACK_H
#define HEADUNIT_TRACK_H

#include <QMetaType>
#include <QString>
#include <QVector>

namespace headunit
{

/// A piece of music: a file, and what its tags say once they are read.
struct Track {
    QString path;
    QString title; ///< the file's name without its ending, until and unless a tag names it
    QString artist;
    QString album;
    int number = 0; ///< on its album; 0 if unknown
    int seconds = 0; ///< 0 if unknown
    bool hasCover = false; ///< a picture is in the file or lies beside it
    bool isRead = false; ///< the file has been looked into
    bool isBroken = false; ///< and has turned out to be no music
};

/// A folder of music.
struct Folder {
    QString path;
    QString name; ///< the last part of the path
    int tracks = 0; ///< how many are in it
    int tracksBelow = 0; ///< and how many with those in the folders below
};

} // namespace headunit

Q_DECLARE_METATYPE(headunit::Track)
Q_DECLARE_METATYPE(headunit::Folder)

#endif // HEADUNIT_TRACK_H
