// SPDX-License-Identifier: Apache-2.0
#include "filledtrack.h"

#include <QPainter>

namespace panelkit
{

// To drawPixmap() an empty part means the rest of the picture; here it means nothing.
void FilledTrack::draw(QPainter &painter, const PlacedPicture &track, const PlacedPicture &fill,
                       const QRect &source)
{
    const bool isFilled = !fill.picture.isNull() && !fill.target.isEmpty();
    const QRect area = isFilled ? track.target | fill.target : track.target;
    const Key key{track.picture.cacheKey(), fill.picture.cacheKey(), track.target, fill.target,
                  source};
    m_look.draw(painter, area, key, [&](QPainter &p) {
        p.drawPixmap(track.target, track.picture);
        if (isFilled)
            p.drawPixmap(fill.target, fill.picture, source);
    });
}

} // namespace panelkit
