// SPDX-License-Identifier: Apache-2.0
#include "linescache.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
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
    if (!isSet(painter, rect, flags, text)) {
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

bool LinesCache::drawEverySecond(QPainter &painter, const QRect &rect, int flags,
                                 const QString &text, int first)
{
    if (!isSet(painter, rect, flags, text) || !standApart())
        return false;
    if (m_isClipped)
        painter.setClipRect(QRectF(rect), Qt::IntersectClip);
    int count = first;
    for (int i = 0; i < m_layout.lineCount(); ++i) {
        const QTextLine line = m_layout.lineAt(i);
        const QPointF start = lineStart(startOf(line, rect));
        for (QGlyphRun run : line.glyphRuns()) {
            const QVector<quint32> glyphs = run.glyphIndexes();
            const QVector<QPointF> positions = run.positions();
            QVector<quint32> seconds;
            QVector<QPointF> places;
            for (int k = 0; k < int(glyphs.size()); ++k) {
                if (count++ % 2 == 0) {
                    seconds += glyphs[k];
                    places += positions[k];
                }
            }
            run.setGlyphIndexes(seconds);
            run.setPositions(places);
            painter.drawGlyphRun(start, run);
        }
    }
    return true;
}

qreal LinesCache::beginning(QPainter &painter, const QRect &rect, int flags, const QString &text)
{
    if (!isSet(painter, rect, flags, text) || m_layout.lineCount() != 1)
        return rect.left() < 0 ? -kUnwrapped : kUnwrapped;
    return lineStart(startOf(m_layout.lineAt(0), rect)).x() - qreal(rect.left());
}

bool LinesCache::mayBeginAt(int x, QPainter &painter, const QRect &rect, int flags,
                            const QString &text)
{
    if (!isSet(painter, rect, flags, text) || m_layout.lineCount() != 1)
        return true;
    const qreal start = lineStart(startOf(m_layout.lineAt(0), rect)).x();
    return std::any_of(m_letters.begin(), m_letters.end(),
                       [=](qreal place) { return start + place == qreal(x); });
}

bool LinesCache::isSet(QPainter &painter, const QRect &rect, int flags, const QString &text)
{
    if (m_setting.changesTo({text, rect.size(), flags, painter.font(), painter.layoutDirection()}))
        layOut(painter);
    return m_isPlain && painter.deviceTransform().type() <= QTransform::TxTranslate;
}

// Whether each letter is clear of the one but next.
bool LinesCache::standApart() const
{
    constexpr qreal kMargin = 1; // px, that rounding may move ink by
    QRectF before[2];
    int count = 0;
    for (int i = 0; i < m_layout.lineCount(); ++i) {
        const QList<QGlyphRun> runs = m_layout.lineAt(i).glyphRuns();
        for (const QGlyphRun &run : runs) {
            const QVector<quint32> glyphs = run.glyphIndexes();
            const QVector<QPointF> positions = run.positions();
            for (int k = 0; k < int(glyphs.size()); ++k) {
                QRectF &last = before[count++ % 2];
                QRectF ink = run.rawFont().boundingRect(glyphs[k]);
                if (ink.isEmpty())
                    continue;
                ink = ink.translated(positions[k]).adjusted(-kMargin, -kMargin, kMargin, kMargin);
                if (ink.intersects(last))
                    return false;
                last = ink;
            }
        }
    }
    return true;
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
    m_letters.clear();
    if (m_layout.lineCount() != 1)
        return;
    const QList<QGlyphRun> runs = m_layout.glyphRuns();
    for (const QGlyphRun &run : runs) {
        const QVector<QPointF> positions = run.positions();
        for (const QPointF &position : positions)
            m_letters.push_back(position.x());
    }
}

// Ink may stand out of its line, but not by more than the height of one.
void LinesCache::drawLines(QPainter &painter, const QRect &rect, const QRect &inSight)
{
    const qreal first = qreal(rect.top()) + m_bounds.top();
    const int count = m_layout.lineCount();
    for (int i = 0; i < count; ++i) {
        const QTextLine line = m_layout.lineAt(i);
        const qreal top = first + line.y();
        if (top - line.height() > qreal(inSight.bottom()))
            return;
        if (top + 2 * line.height() <= qreal(inSight.top()))
            continue;
        line.draw(&painter, startOf(line, rect));
    }
}

// Where a line is drawn from; its own position is added to that.
QPointF LinesCache::startOf(const QTextLine &line, const QRect &rect) const
{
    const qreal spare = m_setting->size.width() - line.horizontalAdvance();
    const qreal left = leftShare(m_setting->direction, m_setting->flags, spare);
    return rect.topLeft() + QPointF(left, m_bounds.top());
}

// Whether the spaces at the end of a line may move it.
bool LinesCache::mayHang() const
{
    return m_setting->direction != Qt::LeftToRight
        && (visualSides(m_setting->direction, m_setting->flags) & Qt::AlignRight);
}

} // namespace panelkit
