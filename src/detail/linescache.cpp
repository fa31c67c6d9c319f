// SPDX-License-Identifier: Apache-2.0
#include "linescache.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QTextOption>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace panelkit
{

namespace
{

constexpr int kPlainFlags = Qt::AlignLeft | Qt::AlignRight | Qt::AlignHCenter | Qt::AlignAbsolute
    | Qt::AlignTop | Qt::AlignBottom | Qt::AlignVCenter;
constexpr qreal kEndless = 1 << 24; // px, the width of a line that is not wrapped

// What drawText() puts in the place of characters that mean something to it.
QChar drawn(QChar c)
{
    if (c == QLatin1Char('\n'))
        return QChar::LineSeparator;
    return c == QLatin1Char('\t') || c == QLatin1Char('\r') ? QChar(QLatin1Char(' ')) : c;
}

// Nothing else that drawText() would have to interpret.
bool isPlain(QChar c)
{
    return c.category() != QChar::Other_Control && c.category() != QChar::Separator_Paragraph;
}

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

// A line under, through or over the text is placed anew by every drawing function.
bool isDecorated(const QFont &font)
{
    return font.underline() || font.strikeOut() || font.overline();
}

} // namespace

bool LinesCache::Setting::operator==(const Setting &other) const
{
    return size == other.size && flags == other.flags && direction == other.direction
        && text == other.text && font == other.font;
}

void LinesCache::draw(QPainter &painter, const QRect &rect, int flags, const QString &text,
                      const QRect &inSight)
{
    Setting setting{text, rect.size(), flags, painter.font(), painter.layoutDirection()};
    if (m_layouts == 0 || !(setting == m_setting)) {
        m_setting = std::move(setting);
        layOut(painter);
    }
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
    ++m_layouts;
    QString text = m_setting.text;
    std::transform(text.begin(), text.end(), text.begin(), drawn);
    const QRectF rect(QPointF(), m_setting.size);
    m_bounds = painter.boundingRect(rect, m_setting.flags, m_setting.text);
    m_isClipped = !rect.contains(m_bounds);
    m_isPlain = !text.isEmpty() && (m_setting.flags & ~kPlainFlags) == 0
        && std::all_of(text.begin(), text.end(), isPlain) && !isDecorated(m_setting.font)
        && m_bounds.height() < rect.height() && !(mayHang() && endsInSpaces(text));
    m_layout.clearLayout();
    if (!m_isPlain)
        return;

    QTextOption option;
    option.setTextDirection(m_setting.direction);
    m_layout.setText(text);
    m_layout.setFont(m_setting.font);
    m_layout.setTextOption(option);
    m_layout.setCacheEnabled(true);
    m_layout.beginLayout();
    const qreal leading = QFontMetricsF(m_setting.font).leading();
    qreal bottom = -leading;
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(kEndless);
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
        if (top + 2 * line.height() > qreal(inSight.top()))
            line.draw(&painter, topLeft + QPointF(leftOf(line), 0));
    }
}

// On which side lines stand.
Qt::Alignment LinesCache::alignment() const
{
    return QStyle::visualAlignment(m_setting.direction, Qt::Alignment(QFlag(m_setting.flags)));
}

// Whether the spaces at the end of a line may move it.
bool LinesCache::mayHang() const
{
    return m_setting.direction != Qt::LeftToRight && (alignment() & Qt::AlignRight);
}

// Which share of the spare width goes to the left of a line.
qreal LinesCache::leftOf(const QTextLine &line) const
{
    const qreal spare = qreal(m_setting.size.width()) - line.horizontalAdvance();
    const Qt::Alignment sides = alignment();
    if (sides & Qt::AlignRight)
        return spare;
    return sides & Qt::AlignHCenter ? spare / 2 : 0;
}

} // namespace panelkit
