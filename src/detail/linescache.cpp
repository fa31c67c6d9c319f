// SPDX-License-Identifier: Apache-2.0
#include "linescache.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace panelkit
{

namespace
{

// What drawText() puts in the place of characters that mean something to it.
QChar drawn(QChar c)
{
    if (c == QLatin1Char('\n'))
        return QChar::LineSeparator;
    return c == QLatin1Char('\t') || c == QLatin1Char('\r') ? QChar(QLatin1Char(' ')) : c;
}

bool standsInLine(QChar c) { return isPlain(c) || c == QChar::LineSeparator; }

// Becomes a part of what stands before it, be it a space.
bool joinsSpaces(QChar c)
{
    return c.isMark() || c.isSurrogate() || c.category() == QChar::Other_Format;
}

// Whether a line other than the last ends in a space and more. From right to left such a line
// stands aside by the width of all of that but its first character, which no layout tells.
bool endsInSpaces(const QString &text)
{
    bool hasSpace = false;
    int length = 0; // of what the line ends in so far
    for (const QChar c : text) {
        if (c == QChar::LineSeparator && hasSpace && length > 1)
            return true;
        const bool isSpace = c.isSpace() && c != QChar::LineSeparator;
        const bool goesOn = isSpace || joinsSpaces(c);
        hasSpace = goesOn && (hasSpace || isSpace);
        length = goesOn ? length + 1 : 0;
    }
    return false;
}

} // namespace

void LinesCache::draw(QPainter &painter, const QRect &rect, int flags, const QString &text,
                      const QRect &inSight)
{
    if (m_setting.changesTo({text, rect.size(), flags, painter.font(), painter.layoutDirection()}))
        layOut(painter);
    if (!m_isPlain || painter.deviceTransform().type() > QTransform::TxTranslate) {
        painter.drawText(rect, flags, text);
    } else if (m_isClipped) {
        painter.save();
        painter.setClipRect(QRectF(rect), Qt::IntersectClip);
        drawLines(painter, rect, inSight);
        painter.restore();
    } else {
        drawLines(painter, rect, inSight);
    }
}

// Lines stand one below the other, each on whole pixels. A text that is higher than its rectangle
// is left to drawText(), which aligns only the lines that it has begun by then.
void LinesCache::layOut(QPainter &painter)
{
    QString text = m_setting->text;
    std::transform(text.begin(), text.end(), text.begin(), drawn);
    const QRectF rect(QPointF(), m_setting->size);
    m_bounds = painter.boundingRect(rect, m_setting->flags, m_setting->text);
    m_isClipped = !rect.contains(m_bounds);
    m_isPlain = !text.isEmpty() && (m_setting->flags & ~kPlainFlags) == 0
        && std::all_of(text.begin(), text.end(), standsInLine) && !isDecorated(m_setting->font)
        && m_bounds.height() < rect.height() && !(mayHang() && endsInSpaces(text));
    if (!m_isPlain)
        return;

    QTextOption option;
    option.setTextDirection(m_setting->direction);
    m_layout.setText(text);
    m_layout.setFont(m_setting->font);
    m_layout.setTextOption(option);
    m_layout.setCacheEnabled(true);
    m_layout.beginLayout();
    const qreal leading = QFontMetricsF(m_setting->font).leading();
    qreal bottom = -leading;
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(kUnwrapped);
        const qreal top = std::ceil(bottom + leading);
        line.setPosition(QPointF(0, top));
        bottom = top + line.height();
    }
    m_layout.endLayout();
}

// Ink may stand out of its line, but not by more than the height of one.
void LinesCache::drawLines(QPainter &painter, const QRect &rect, const QRect &inSight)
{
    const QPointF topLeft = rect.topLeft() + QPointF(0, m_bounds.top());
    const int count = m_layout.lineCount();
    for (int i = 0; i < count; ++i) {
        const QTextLine line = m_layout.lineAt(i);
        const qreal top = topLeft.y() + line.y();
        if (top - line.height() > qreal(inSight.bottom()))
            return;
        if (top + 2 * line.height() <= qreal(inSight.top()))
            continue;
        const qreal spare = m_setting->size.width() - line.horizontalAdvance();
        const qreal left = leftShare(m_setting->direction, m_setting->flags, spare);
        line.draw(&painter, topLeft + QPointF(left, 0));
    }
}

// Whether the spaces at the end of a line may move it.
bool LinesCache::mayHang() const
{
    return m_setting->direction != Qt::LeftToRight
        && (visualSides(m_setting->direction, m_setting->flags) & Qt::AlignRight);
}

} // namespace panelkit
