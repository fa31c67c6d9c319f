// SPDX-License-Identifier: Apache-2.0
#include "lettercache.h"

#include "drawntext.h"

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

// Runs from left to right and is no control character. Anything else is interpreted by drawText,
// which may place it differently or not draw it at all.
bool standsAlone(QChar letter)
{
    const QChar::Direction direction = letter.direction();
    return letter.isPrint() && direction != QChar::DirR && direction != QChar::DirAL;
}

} // namespace

void LetterCache::set(const QPainter &painter, const QSize &box, int flags)
{
    if (m_setting.changesTo({painter.font(), painter.device()->logicalDpiY(),
                             painter.layoutDirection(), box, flags}))
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
        painter.drawText(QRect(topLeft, m_setting->box), m_setting->flags, letter);
        return;
    }
    const QPointF at = lineStart(topLeft + known->offset);
    for (const QGlyphRun &run : known->runs)
        painter.drawGlyphRun(at, run);
}

// A letter is centred by its advance. The width of its bounds is no use for that: where the ink
// reaches beyond the advance, as in a K, it is larger. A letter that does not fit is clipped by
// drawText.
LetterCache::Letter LetterCache::laidOut(QPainter &painter, QChar letter) const
{
    const QRectF box(QPointF(), m_setting->box);
    const QRectF bounds = painter.boundingRect(box, m_setting->flags, letter);
    if (!standsAlone(letter) || isDecorated(m_setting->font) || !box.contains(bounds))
        return {};

    QTextOption option;
    option.setTextDirection(m_setting->direction); // a bracket is turned round from right to left
    QTextLayout layout(letter, m_setting->font, painter.device());
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(kUnwrapped);
    layout.endLayout();
    const qreal spare = box.width() - line.horizontalAdvance();
    return {true,
            {leftShare(m_setting->direction, m_setting->flags, spare), bounds.top()},
            layout.glyphRuns()};
}

} // namespace panelkit
