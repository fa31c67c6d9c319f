// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_MARQUEE_H
#define PANELKIT_DETAIL_MARQUEE_H

#include "drawntext.h"
#include "textstrip.h"

#include <QColor>
#include <QImage>
#include <QPen>
#include <QSize>

#include <array>
#include <vector>

namespace panelkit
{

/// A line of text that moves to the left under a fade that stands still. The text is kept as
/// pixels: its middle is copied, and at the two ends the colours of the fade are laid over it, in
/// the very pixels that a pen with the fade draws. The middle may differ by one level where two
/// letters touch each other's pixels.
class Marquee
{
public:
    struct Look {
        QRgb color;
        QSize area; // px
        qreal beginning; // px, of the text in its place
        TextSetting text;

        auto tied() const
        {
            return std::tie(color, area, beginning, text.size, text.flags, text.direction,
                            text.text, text.font);
        }
    };
    /// Draws every second letter at its place in the area, from the first or the second one on, or
    /// cannot.
    using Paint = FunctionRef<bool(QPainter &, int first)>;

    /// A pen that fades in an area: along its diagonal, at both ends.
    static QPen pen(const QSize &area, const QColor &color);

    /// Draws the text from an offset on; the kept part of it reaches so much farther than the area.
    /// False, and nothing drawn, where nothing can be kept.
    bool draw(QPainter &painter, const Look &look, int offset, int reach, const Paint &paint);

    /// How often the text was composed, and the ends.
    int compositions() const { return m_compositions; }
    int fades() const { return m_fade.changes(); }
    /// How many pixels are kept, and how many there may be: twice the area.
    int pixels() const;

private:
    // The colours of the fade at one end. The painter reckons them for the stretch of ink of a
    // letter from its beginning with a step that is cut off: far enough from there the next colour
    // comes out.
    struct End {
        int left = 0; // px
        QImage colors;
        QImage laterColors;
        QImage turns; // a byte each: px from the beginning of a stretch on; 0: never
    };
    struct Fade {
        QRgb color;
        QSize area; // px

        auto tied() const { return std::tie(color, area); }
    };
    // A pixel of one letter: how much of it is ink, and how far the stretch reaches to the left.
    struct Ink {
        uchar coverage;
        uchar since; // px
    };
    struct EndRow {
        int left; // px, of the end
        const QRgb *colors;
        const QRgb *laterColors;
        const uchar *turns;

        QRgb faded(int x, const Ink &ink) const;
    };
    // A pixel of two letters.
    struct Meeting {
        QPoint at; // in the strip
        Ink ink[2];
    };

    bool composeEnds();
    bool composeEnd(End &end) const;
    bool composeText(const QPainter &like, const QRect &stretch, const Paint &paint);
    bool take(const QImage &odd);
    int mostWidth() const;
    static EndRow rowOf(const End &end, int y);
    void drawEnd(QPainter &painter, const End &end, int offset);

    TextSmoothing m_smoothing;
    LastKey<Fade> m_fade;
    std::array<End, 2> m_ends;
    QImage m_shown; // of an end, while it is drawn
    int m_endWidth = 0; // px, 0: there is no room for ends
    LastKey<Look> m_look;
    QRect m_stretch; // of the text that is kept
    bool m_isKept = false;
    QImage m_strip; // its rows that are not empty
    int m_top = 0; // px
    QImage m_since; // a byte of each pixel
    std::vector<Meeting> m_meetings;
    int m_compositions = 0;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_MARQUEE_H
