// SPDX-License-Identifier: Apache-2.0
#include "lettercache.h"

#include "arithmetic.h"

#include <QPaintDevice>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QTextLayout>
#include <QTextOption>

namespace panelkit
{

namespace
{

// Stands by itself, from left to right, with something to see. Anything else is interpreted by
// drawText, which may place it differently or not draw it at all.
bool standsAlone(QChar letter)
{
    const QChar::Direction direction = letter.direction();
    return letter.isPrint() && !letter.isSpace() && !letter.isMark() && direction != QChar::DirR
        && direction != QChar::DirAL;
}

// A line under, through or over the text is placed anew by every drawing function.
bool isDecorated(const QFont &font)
{
    return font.underline() || font.strikeOut() || font.overline();
}

// drawText cuts where a line begins to 1/64 px before it transforms it. Under a rotation even the
// smallest difference may move a glyph by a whole pixel.
QPointF cutToTextGrid(const QPointF &point)
{
    constexpr qreal kGrid = 64;
    return {qreal(toInt(point.x() * kGrid)) / kGrid, qreal(toInt(point.y() * kGrid)) / kGrid};
}

} // namespace

bool LetterCache::Setting::operator==(const Setting &other) const
{
    return box == other.box && flags == other.flags && dpi == other.dpi
        && direction == other.direction && font == other.font;
}

void LetterCache::set(const QPainter &painter, const QSize &box, int flags)
{
    const Setting setting{painter.font(), painter.device()->logicalDpiY(),
                          painter.layoutDirection(), box, flags};
    if (setting == m_setting)
        return;
    m_setting = setting;
    m_letters.clear();
}

void LetterCache::draw(QPainter &painter, const QPoint &topLeft, QChar letter)
{
    auto known = m_letters.constFind(letter);
    if (known == m_letters.constEnd()) {
        known = m_letters.insert(letter, laidOut(painter, letter));
        ++m_layouts;
    }
    if (!known->isPlain) {
        painter.drawText(QRect(topLeft, m_setting.box), m_setting.flags, letter);
        return;
    }
    const QPointF at = cutToTextGrid(topLeft + known->offset);
    for (const QGlyphRun &run : known->runs)
        painter.drawGlyphRun(at, run);
}

// A letter is centred by its advance. The width of its bounds is no use for that: where the ink
// reaches beyond the advance, as in a K, it is larger. A letter that does not fit is clipped by
// drawText.
LetterCache::Letter LetterCache::laidOut(QPainter &painter, QChar letter) const
{
    constexpr qreal kEndless = 1 << 24; // px
    const QRectF box(QPointF(), m_setting.box);
    const QRectF bounds = painter.boundingRect(box, m_setting.flags, letter);
    if (!standsAlone(letter) || isDecorated(m_setting.font) || !box.contains(bounds))
        return {};

    QTextOption option;
    option.setTextDirection(m_setting.direction); // a bracket is turned round from right to left
    QTextLayout layout(letter, m_setting.font, painter.device());
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(kEndless);
    layout.endLayout();
    return {true, {(box.width() - line.horizontalAdvance()) / 2, bounds.top()}, layout.glyphRuns()};
}

} // namespace panelkit
