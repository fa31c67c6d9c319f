// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_IMAGELOOK_H
#define PANELKIT_DETAIL_IMAGELOOK_H

#include "memo.h"

#include <QImage>
#include <QPixmap>
#include <QSize>

class QPainter;
class QRect;

namespace panelkit
{

/// The veiled look: the picture scaled into an area at its own top left, with black of the given
/// alpha (0..255; anything else leaves no veil) over its opaque pixels. The image is as large as
/// the picture; a null picture has a null look.
QImage veiledImage(const QPixmap &pixmap, const QSize &area, int alpha);

/// The faded look: the picture with the alpha of each pixel multiplied by alpha / 255 (0..255;
/// anything else leaves nothing), scaled into an area at its own top left. What of the picture lies
/// outside the area stays as it is. The image is as large as the picture; a null picture has a null
/// look.
QImage fadedImage(const QPixmap &pixmap, const QSize &area, int alpha);

/// One computed look of a picture, kept until the picture, the area or the alpha changes. A widget
/// that shows one look at a time needs one of these.
class ImageLook
{
public:
    /// Draws what QPainter::drawPixmap(target, pixmap) draws, but scales only once where that is
    /// possible without a difference.
    void drawScaled(QPainter &painter, const QRect &target, const QPixmap &pixmap);

    /// Draws the veiled look into the target.
    void drawVeiled(QPainter &painter, const QRect &target, const QPixmap &pixmap, int alpha);

    /// How often a look had to be computed.
    int computations() const { return m_image.renewals(); }

private:
    enum class Kind { Scaled, Veiled };

    struct Key {
        Kind kind;
        qint64 pixmap; // QPixmap::cacheKey()
        QSize area; // px
        int alpha;

        auto tied() const { return std::tie(kind, pixmap, area, alpha); }
    };

    Memo<Key, QImage> m_image;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_IMAGELOOK_H
