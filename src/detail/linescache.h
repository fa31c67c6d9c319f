// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_LINESCACHE_H
#define PANELKIT_DETAIL_LINESCACHE_H

#include "drawntext.h"
#include "memo.h"

#include <QRect>
#include <QRectF>
#include <QString>
#include <QTextLayout>

#include <vector>

class QPainter;

namespace panelkit
{

/// A text of many lines whose layout is kept until its text, alignment, font, direction or the size
/// of its rectangle changes; where the rectangle stands does not matter. It draws the very pixels
/// of QPainter::drawText(rect, flags, text), but only the lines that are in sight. Lines end at
/// line feeds and are not wrapped. What it cannot lay out as drawText() does goes there as it is.
class LinesCache
{
public:
    /// Draws what of the text lies in the rectangle in sight, or more of it.
    void draw(QPainter &painter, const QRect &rect, int flags, const QString &text,
              const QRect &inSight);

    /// Draws every second letter of it, from the first or the second one on. False, and nothing
    /// drawn, where it cannot tell them apart or might draw one over another.
    bool drawEverySecond(QPainter &painter, const QRect &rect, int flags, const QString &text,
                         int first);

    /// How far from the left of the rectangle the painter begins the only line: its place is cut
    /// off to the right or to the left of the origin, so that it depends on where the rectangle
    /// stands.
    qreal beginning(QPainter &painter, const QRect &rect, int flags, const QString &text);

    /// Whether a letter may begin there, to the pixel.
    bool mayBeginAt(int x, QPainter &painter, const QRect &rect, int flags, const QString &text);

    /// How often a layout had to be made.
    int layouts() const { return m_setting.changes(); }

private:
    bool isSet(QPainter &painter, const QRect &rect, int flags, const QString &text);
    void layOut(QPainter &painter);
    QPointF startOf(const QTextLine &line, const QRect &rect) const;
    bool standApart() const;
    void drawLines(QPainter &painter, const QRect &rect, const QRect &inSight);
    bool mayHang() const;

    LastKey<TextSetting> m_setting;
    bool m_isPlain = false; // else it goes to drawText
    QRectF m_bounds; // of all lines, in the rectangle
    bool m_isClipped = false;
    QTextLayout m_layout;
    std::vector<qreal> m_letters; // of a single line: where they begin, from its own beginning on
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_LINESCACHE_H
