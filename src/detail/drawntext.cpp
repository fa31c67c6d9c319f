// SPDX-License-Identifier: Apache-2.0
#include "drawntext.h"

#include <QFontInfo>
#include <QPainter>
#include <QStyle>

#include <cmath>

namespace panelkit
{

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

bool isFilledText(const QPainter &painter)
{
    constexpr int kLeast = 64; // px
    return painter.fontInfo().pixelSize() >= kLeast;
}

bool isDecorated(const QFont &font)
{
    return font.underline() || font.strikeOut() || font.overline();
}

Qt::Alignment visualSides(Qt::LayoutDirection direction, int flags)
{
    return QStyle::visualAlignment(direction, Qt::Alignment(QFlag(flags)));
}

qreal leftShare(Qt::LayoutDirection direction, int flags, qreal spare)
{
    const Qt::Alignment sides = visualSides(direction, flags);
    if (sides & Qt::AlignRight)
        return spare;
    return sides & Qt::AlignHCenter ? spare / 2 : 0;
}

QPointF lineStart(const QPointF &point)
{
    constexpr qreal kUnit = 64;
    return {std::trunc(point.x() * kUnit) / kUnit, std::trunc(point.y() * kUnit) / kUnit};
}

} // namespace panelkit
