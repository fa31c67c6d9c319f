// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_IMAGEFILE_H
#define PANELKIT_DETAIL_IMAGEFILE_H

#include <QPixmap>

#include <memory>

class QMovie;
class QString;

namespace panelkit
{

/// The picture in a file, exactly as QPixmap reads it, with whatever stands after its end; a null
/// pixmap if there is none to read. Of a file that ends early it is what Qt's decoder makes of it,
/// and the decoder may say so on the log.
QPixmap pixmapFromFile(const QString &path);

/// A new movie, not started, of the animation in a file, with the frames and rounds of
/// QMovie(path). The file stays open for as long as the movie lives, so that it plays on when the
/// path vanishes; of an animation only one frame is in memory at a time.
std::unique_ptr<QMovie> movieFromFile(const QString &path);

} // namespace panelkit

#endif // PANELKIT_DETAIL_IMAGEFILE_H
