// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_TEXTSTRIP_H
#define PANELKIT_DETAIL_TEXTSTRIP_H

#include "functionref.h"
#include "memo.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPoint>
#include <QRect>

class QPainter;

namespace panelkit
{

/// Whether text may be kept as pixels. Not where its smoothing depends on what lies below it, as
/// that for the stripes of a screen does, nor where a device has fewer colours, nor very large
/// text.
class TextSmoothing
{
public:
    /// Whether what a painter with an opaque pen of this colour draws may be a copy.
    bool canCopy(const QPainter &painter, const QColor &color);

private:
    struct Key {
        QRgb color;
        int dpi;
        QFont font;

        auto tied() const { return std::tie(color, dpi, font); }
    };

    Memo<Key, bool> m_isGrey;
};

/// Whether the painter's origin lies in the first column of its device. A letter that begins
/// exactly there is drawn a trace farther to the left than one that begins at another pixel.
bool isInFirstColumn(const QPainter &painter);

/// A letter that begins so far to the left of what is shown has no ink in it.
constexpr int kFarLeft = 64; // px

/// What `paint` draws on an area without ground, with the font, the direction and the hints of this
/// painter and a pen of this colour; its origin is the area's, which lies so far from the first
/// column. Null if it cannot be had.
QImage drawnText(const QPainter &like, const QColor &color, const QSize &size, int column,
                 const FunctionRef<bool(QPainter &)> &paint);

/// A stretch of a text as pixels, of which a widget that scrolls copies another part with each
/// step. They are those of drawing the text, but where two letters touch each other's pixels: there
/// a copy may differ by one level.
class TextStrip
{
public:
    using Paint = FunctionRef<void(QPainter &)>;

    /// Whether a stretch is kept, for where this painter stands.
    bool holds(const QPainter &painter, const QRect &stretch) const
    {
        return m_stretch.contains(stretch) && m_isInFirstColumn == isInFirstColumn(painter);
    }
    const QRect &stretch() const { return m_stretch; }

    /// Keeps what `paint` draws in a stretch, with the font, the direction and the hints of this
    /// painter and an opaque pen of this colour. False if there is no memory.
    bool compose(const QPainter &like, const QColor &color, const QRect &stretch,
                 const Paint &paint);

    void clear();

    /// Copies a part of the stretch to this point.
    void copy(QPainter &painter, const QPoint &at, const QRect &part) const;

    /// How often it was composed.
    int compositions() const { return m_compositions; }

private:
    QRect m_stretch;
    bool m_isInFirstColumn = false;
    QImage m_image;
    int m_compositions = 0;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_TEXTSTRIP_H
