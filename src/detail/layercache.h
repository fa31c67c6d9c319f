// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_LAYERCACHE_H
#define PANELKIT_DETAIL_LAYERCACHE_H

#include <QImage>
#include <QPainter>
#include <QPen>
#include <QRect>
#include <QTransform>

#include <array>
#include <functional>

namespace panelkit
{

/// Part of a widget's picture, under any transform, that is kept as pixels. It is painted directly
/// the first time, so that something in motion costs no more than without it; when the same is
/// wanted again it is composed once, and from then on only copied.
///
/// The pixels are those of painting directly as long as the painting touches no pixel twice.
class LayerCache
{
public:
    using Paint = std::function<void(QPainter &)>;

    /// What a layer depends on, beside the transform and the painter's hints and pen.
    struct Content {
        QRectF area; ///< In the layer's coordinates; nothing is painted outside it.
        std::array<double, 3> numbers{};
        qint64 picture = 0; ///< QPixmap::cacheKey()

        bool operator==(const Content &other) const;
    };

    /// Draws the layer under this world transform. `paint` leaves the painter as it was, but for
    /// the transform.
    void draw(QPainter &painter, const QTransform &world, const Content &content,
              const Paint &paint);

    /// How often the layer had to be composed.
    int compositions() const { return m_compositions; }

private:
    struct Key {
        Content content;
        QTransform transform;
        QPainter::RenderHints hints;
        QPen pen;
        QRect visible; // px, in the coordinates of the layer

        bool operator==(const Key &other) const;
    };

    void paintDirectly(QPainter &painter, const Paint &paint) const;
    void copy(QPainter &painter) const;
    void compose(const Paint &paint);

    Key m_key;
    bool m_isShown = false;
    bool m_isComposed = false;
    QImage m_image;
    QPoint m_topLeft; // px
    int m_compositions = 0;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_LAYERCACHE_H
