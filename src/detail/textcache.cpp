// SPDX-License-Identifier: Apache-2.0
#include "textcache.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>
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

// Nothing that drawText() would have to interpret.
bool isPlain(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

bool isPlainLine(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isPlain);
}

// A line under, through or over the text is placed anew by every drawing function.
bool isDecorated(const QFont &font)
{
    return font.underline() || font.strikeOut() || font.overline();
}

// How far a line moves the pen. Its bounds may be wider, where a slanted letter leans out of them,
// and do not tell where the line is placed.
qreal advanceOf(const QPainter &painter, const QTextOption &option, const QString &text)
{
    QTextLayout layout(text, painter.font(), painter.device());
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line.horizontalAdvance();
}

// Which share of the spare width goes to the left of the text.
qreal leftOf(Qt::LayoutDirection direction, int flags, qreal spare)
{
    const Qt::Alignment alignment = QStyle::visualAlignment(direction, Qt::Alignment(QFlag(flags)));
    if (alignment & Qt::AlignRight)
        return spare;
    return alignment & Qt::AlignHCenter ? spare / 2 : 0;
}

// Where drawText() puts a line: it takes the place in 64ths of a pixel, truncated toward zero
// before any translation of the painter.
QPointF placed(const QPointF &point)
{
    constexpr qreal kUnit = 64;
    return {std::trunc(point.x() * kUnit) / kUnit, std::trunc(point.y() * kUnit) / kUnit};
}

QPointF fractionOf(const QPointF &point)
{
    return {point.x() - std::floor(point.x()), point.y() - std::floor(point.y())};
}

} // namespace

void TextCache::draw(QPainter &painter, const QRectF &rect, int flags, const QString &text)
{
    if (painter.deviceTransform().type() > QTransform::TxTranslate) {
        painter.drawText(rect, flags, text);
        return;
    }
    if (!isCurrent(painter, rect, flags, text))
        layOut(painter, rect, flags, text);

    if (!m_isPlain) {
        painter.drawText(rect, flags, text);
    } else if (m_isClipped) {
        painter.save();
        painter.setClipRect(rect, Qt::IntersectClip);
        painter.drawStaticText(placed(rect.topLeft() + m_offset), m_static);
        painter.restore();
    } else {
        painter.drawStaticText(placed(rect.topLeft() + m_offset), m_static);
    }
}

bool TextCache::isCurrent(const QPainter &painter, const QRectF &rect, int flags,
                          const QString &text) const
{
    return m_layouts > 0 && m_size == rect.size() && m_flags == flags
        && m_direction == painter.layoutDirection() && m_text == text && m_font == painter.font()
        && (!m_isPlain || m_fraction == fractionOf(placed(rect.topLeft() + m_offset)));
}

void TextCache::layOut(QPainter &painter, const QRectF &rect, int flags, const QString &text)
{
    m_text = text;
    m_size = rect.size();
    m_flags = flags;
    m_font = painter.font();
    m_direction = painter.layoutDirection();
    m_isPlain = (flags & ~kPlainFlags) == 0 && isPlainLine(text) && !isDecorated(m_font);
    ++m_layouts;
    if (!m_isPlain)
        return;

    QTextOption option;
    option.setTextDirection(m_direction);
    option.setWrapMode(QTextOption::NoWrap);
    const QRectF atOrigin(QPointF(), m_size);
    const QRectF bounds = painter.boundingRect(atOrigin, flags, text);
    m_offset = {leftOf(m_direction, flags, m_size.width() - advanceOf(painter, option, text)),
                bounds.top()};
    m_fraction = fractionOf(placed(rect.topLeft() + m_offset));
    m_isClipped = !atOrigin.contains(bounds);
    m_static = QStaticText(text);
    m_static.setTextFormat(Qt::PlainText);
    m_static.setTextOption(option);
    m_static.prepare(QTransform(), m_font);
}

} // namespace panelkit
