// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_LAYERCACHE_H
#define PANELKIT_DETAIL_LAYERCACHE_H

#include "functionref.h"
#include "memo.h"

#include <QImage>
#include <QPainter>
#include <QPen>
#include <QRect>
#include <QTransform>

namespace panelkit
{

/// The pixels of a LayerCache, whatever its content is.
class LayerPixels
{
public:
    using Paint = FunctionRef<void(QPainter &)>;

    /// How often the layer had to be composed.
    int compositions() const { return m_compositions; }

protected:
    struct Extent {
        QRectF area; // in the coordinates of the layer
        QRect inSight; // px
    };

    /// Draws a content that was given this number when it came.
    void drawContent(QPainter &painter, const QTransform &world, const Extent &extent, int content,
                     const Paint &paint);

private:
    struct Key {
        QTransform transform;
        QRectF area; // in the coordinates of the transform
        int content;
        QPainter::RenderHints hints;
        QPen pen;
        QRect visible; // px, in the coordinates of the layer

        auto tied() const { return std::tie(transform, content, area, hints, visible, pen); }
    };

    void paintDirectly(QPainter &painter, const Paint &paint) const;
    void copy(QPainter &painter) const;
    bool compose(const Paint &paint);

    LastKey<Key> m_key;
    bool m_isShown = false;
    bool m_isComposed = false;
    QImage m_image;
    QPoint m_topLeft; // px
    int m_compositions = 0;
};

/// Part of a widget's picture, under any transform, of which the pixels are cached. It is painted
/// directly the first time, so that something in motion costs no more than without it; when the
/// same is wanted again it is composed once, and from then on only copied.
///
/// The pixels are those of painting directly as long as the painting touches no pixel twice.
/// `Content` is the key, as in memo.h, of all that it depends on beside the transform and the
/// painter's hints and pen.
template <typename Content> class LayerCache : public LayerPixels
{
public:
    /// Draws the layer under this world transform. Nothing is painted outside the area, which is in
    /// the layer's coordinates. `paint` leaves the painter as it was, but for the transform. Pixels
    /// are kept for the part of the device in `inSight` (px, as the painter sees it), if there is
    /// one.
    void draw(QPainter &painter, const QTransform &world, const QRectF &area,
              const Content &content, const Paint &paint, const QRect &inSight = QRect())
    {
        m_content.changesTo(content);
        drawContent(painter, world, {area, inSight}, m_content.changes(), paint);
    }

private:
    LastKey<Content> m_content;
};

/// The content of a layer that shows one picture.
struct PictureKey {
    qint64 cacheKey; // of the QPixmap

    auto tied() const { return std::tie(cacheKey); }
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_LAYERCACHE_H
