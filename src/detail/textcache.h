// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_TEXTCACHE_H
#define PANELKIT_DETAIL_TEXTCACHE_H

#include "drawntext.h"
#include "memo.h"

#include <QPointF>
#include <QRectF>
#include <QStaticText>
#include <QString>

#include <optional>

class QPainter;

namespace panelkit
{

/// One caption whose layout is kept until its text, alignment, font, direction or the size of its
/// rectangle changes; where the rectangle stands does not matter, to a whole pixel. It draws the
/// very pixels of QPainter::drawText(rect, flags, text) for about a third of the cost. Whatever is
/// more than one plain line goes to drawText as it is. The pen has to be of one colour: QStaticText
/// places a gradient by the origin of the device.
class TextCache
{
public:
    void draw(QPainter &painter, const QRectF &rect, int flags, const QString &text);

    /// How often a layout had to be made.
    int layouts() const { return m_line.renewals(); }

private:
    struct Line {
        bool isPlain = false; // else it goes to drawText
        bool isClipped = false;
        QPointF offset; // of the text in the rectangle
        QPointF fraction; // of a pixel where the text stands: it moves well by whole ones only
        std::optional<QStaticText> text; // of a plain line
    };

    static Line laidOut(QPainter &painter, const TextSetting &setting, const QPointF &topLeft);

    Memo<TextSetting, Line> m_line;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_TEXTCACHE_H
