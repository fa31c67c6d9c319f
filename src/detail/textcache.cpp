// SPDX-License-Identifier: Apache-2.0
#include "textcache.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace panelkit
{

namespace
{

bool isPlainLine(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isPlain);
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
    const TextSetting setting{text, rect.size(), flags, painter.font(), painter.layoutDirection()};
    const auto layOut = [&](Line &line) { line = laidOut(painter, setting, rect.topLeft()); };
    Line *line = &m_line.value(setting, layOut);
    if (line->isPlain && line->fraction != fractionOf(lineStart(rect.topLeft() + line->offset))) {
        m_line.forget();
        line = &m_line.value(setting, layOut);
    }
    if (!line->isPlain) {
        painter.drawText(rect, flags, text);
    } else if (line->isClipped) {
        painter.save();
        painter.setClipRect(rect, Qt::IntersectClip);
        painter.drawStaticText(lineStart(rect.topLeft() + line->offset), *line->text);
        painter.restore();
    } else {
        painter.drawStaticText(lineStart(rect.topLeft() + line->offset), *line->text);
    }
}

TextCache::Line TextCache::laidOut(QPainter &painter, const TextSetting &setting,
                                   const QPointF &topLeft)
{
    Line line;
    line.isPlain = (setting.flags & ~kPlainFlags) == 0 && isPlainLine(setting.text)
        && !isDecorated(setting.font);
    if (!line.isPlain)
        return line;

    QTextOption option;
    option.setTextDirection(setting.direction);
    option.setWrapMode(QTextOption::NoWrap);
    const QRectF atOrigin(QPointF(), setting.size);
    const QRectF bounds = painter.boundingRect(atOrigin, setting.flags, setting.text);
    const qreal spare = setting.size.width() - advanceOf(painter, option, setting.text);
    line.isClipped = !atOrigin.contains(bounds);
    line.offset = {leftShare(setting.direction, setting.flags, spare), bounds.top()};
    line.fraction = fractionOf(lineStart(topLeft + line.offset));
    line.text.emplace(setting.text);
    line.text->setTextFormat(Qt::PlainText);
    line.text->setTextOption(option);
    line.text->prepare(QTransform(), setting.font);
    return line;
}

} // namespace panelkit
