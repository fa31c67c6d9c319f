// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_LINESCACHE_H
#define PANELKIT_DETAIL_LINESCACHE_H

#include "drawntext.h"
#include "memo.h"

#include <QRect>
#include <QRectF>
#include <QString>
#include <QTextLayout>

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

    /// How often a layout had to be made.
    int layouts() const { return m_setting.changes(); }

private:
    void layOut(QPainter &painter);
    void drawLines(QPainter &painter, const QRect &rect, const QRect &inSight);
    bool mayHang() const;

    LastKey<TextSetting> m_setting;
    bool m_isPlain = false; // else it goes to drawText
    QRectF m_bounds; // of all lines, in the rectangle
    bool m_isClipped = false;
    QTextLayout m_layout;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_LINESCACHE_H
