// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_LETTERCACHE_H
#define PANELKIT_DETAIL_LETTERCACHE_H

#include "memo.h"

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QPointF>
#include <QSize>

class QPainter;

namespace panelkit
{

/// Single characters that are laid out once and then drawn under any transform: the very pixels of
/// QPainter::drawText(box, flags, letter) for about a sixth of the cost. All letters of a paint
/// share one font, one direction, one size of box and one alignment, which has to include
/// Qt::AlignHCenter; when one of these changes, the layouts start anew.
class LetterCache
{
public:
    /// Says how the letters of this paint are set. It is asked once, because to compare fonts costs
    /// as much as to draw a letter.
    void set(const QPainter &painter, const QSize &box, int flags);

    /// Draws a letter in the box at this point, with the pen and the transform of the painter.
    void draw(QPainter &painter, const QPoint &topLeft, QChar letter);

    /// How often a layout had to be made.
    int layouts() const { return m_layouts; }

private:
    struct Letter {
        bool isPlain = false; // else it goes to drawText
        QPointF offset; // of the layout from the top left of the box
        QList<QGlyphRun> runs;
    };

    struct Setting {
        QFont font;
        int dpi = 0;
        Qt::LayoutDirection direction = Qt::LeftToRight;
        QSize box; // px
        int flags = 0;

        auto tied() const { return std::tie(box, flags, dpi, direction, font); }
    };

    Letter laidOut(QPainter &painter, QChar letter) const;

    LastKey<Setting> m_setting;
    QHash<QChar, Letter> m_letters;
    int m_layouts = 0;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_LETTERCACHE_H
