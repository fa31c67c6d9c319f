// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_FILLEDTRACK_H
#define PANELKIT_DETAIL_FILLEDTRACK_H

#include "keptlook.h"

#include <QPixmap>
#include <QRect>

class QPainter;

namespace panelkit
{

/// A picture and where it goes.
struct PlacedPicture {
    const QPixmap &picture;
    const QRect &target; // px, in the widget
};

/// A slider's track with a part of its filled track over it, kept as they look together.
class FilledTrack
{
public:
    /// Draws the track, and of the filled one the source rectangle, if there is anything of it.
    void draw(QPainter &painter, const PlacedPicture &track, const PlacedPicture &fill,
              const QRect &source);

private:
    struct Key {
        qint64 track; // QPixmap::cacheKey()
        qint64 fill;
        QRect trackRect;
        QRect fillRect;
        QRect source;

        auto tied() const { return std::tie(track, fill, trackRect, fillRect, source); }
    };

    KeptLook<Key> m_look;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_FILLEDTRACK_H
