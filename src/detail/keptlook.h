// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_KEPTLOOK_H
#define PANELKIT_DETAIL_KEPTLOOK_H

#include "memo.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QTransform>

namespace panelkit
{

/// The pixels of a KeptLook, whatever its content is: two pictures of the part of the device that
/// the look covers, how it was before the look was painted there and how it was afterwards.
class KeptPixels
{
    Q_DISABLE_COPY(KeptPixels)
public:
    /// Lets go of the pixels.
    void forget();

    /// How often pixels were kept, and how many there are: px of the device.
    int takings() const { return m_takings; }
    qint64 size() const;

protected:
    KeptPixels();
    ~KeptPixels();
    bool copyTo(QPainter &painter, const QRect &area, bool isNew);
    void take(const QPainter &painter);

private:
    struct Place {
        QRect rect; // px, in the device
        QTransform toDevice;
        QPainter::RenderHints hints;
        QColor pen; // of a bitmap
        int dpi = 0; // of the device: a font may have its size in points
        QImage::Format format = QImage::Format_Invalid;

        auto tied() const { return std::tie(rect, format, dpi, hints, pen, toDevice); }
    };

    void copy(QPainter &painter) const;

    LastKey<Place> m_place;
    QImage m_ground;
    QImage m_result;
    int m_takings = 0;
};

/// A look that is painted once for what lies below it and then copied, as long as all that it
/// depends on stays the same, its ground included: the very pixels of painting it again, however
/// many soft edges lie over each other. A window hands out the same ground again and again. It is
/// painted directly the first time, so that something in motion costs no more than without it;
/// when the same is wanted again its pixels are kept. On what holds no pixels, and where a painter
/// is translucent, composes in another way or is clipped to more than a rectangle, it is painted.
///
/// `Content` is the key, as in memo.h, of all that the look depends on but for the device and the
/// hints and the pen's colour of the painter.
template <typename Content> class KeptLook : public KeptPixels
{
public:
    /// Draws the look. `paint` touches nothing outside the area, which is in the coordinates of the
    /// painter; it need not leave the painter as it was, and it is not always called.
    template <typename Paint>
    void draw(QPainter &painter, const QRect &area, const Content &content, const Paint &paint)
    {
        if (copyTo(painter, area, m_content.changesTo(content)))
            return;
        paint(painter);
        take(painter);
    }

private:
    LastKey<Content> m_content;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_KEPTLOOK_H
