#ifndef PANELKIT_DETAIL_IMAGEFILE_H
#define PANELKIT_DETAIL_IMAGEFILE_H

#include <QPixmap>

#include <memory>

class QMovie;
class QString;

namespace panelkit
{

/// The picture in a file, or a null pixmap, silently, if it cannot be read. A PNG or JPEG file that
/// ends early counts as one that cannot be read: half a picture is worse than none, and its decoder
/// would complain on the log.
QPixmap pixmapFromFile(const QString &path);

/// A new movie, not started, of the animation in a file; one without any frame, silently, if it
/// cannot be read, under the same rules. The file stays open for as long as the movie lives, so
/// that it plays on when the path vanishes; of an animation only one frame is in memory at a time.
std::unique_ptr<QMovie> movieFromFile(const QString &path);

} // namespace panelkit

#endif // PANELKIT_DETAIL_IMAGEFILE_H
