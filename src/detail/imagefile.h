#ifndef PANELKIT_DETAIL_IMAGEFILE_H
#define PANELKIT_DETAIL_IMAGEFILE_H

#include <QPixmap>

class QString;

namespace panelkit
{

/// The picture in a file, or a null pixmap, silently, if it cannot be read. A PNG or JPEG file that
/// ends early counts as one that cannot be read: half a picture is worse than none, and its decoder
/// would complain on the log.
QPixmap pixmapFromFile(const QString &path);

} // namespace panelkit

#endif // PANELKIT_DETAIL_IMAGEFILE_H
