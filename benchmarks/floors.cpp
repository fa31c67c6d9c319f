// SPDX-License-Identifier: Apache-2.0
#include "floors.h"

#include "canvas.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QTransform>

QFont fontOf(int px)
{
    QFont font = QApplication::font();
    font.setPixelSize(px);
    return font;
}

qreal lineStart(qreal position)
{
    constexpr int kUnits = 64; // of a pixel
    return qreal(int(position * kUnits)) / kUnits;
}

QStaticText preparedText(const QString &text, const QFont &font, const QTextOption &option)
{
    QStaticText layout(text);
    layout.setTextFormat(Qt::PlainText);
    layout.setTextOption(option);
    layout.prepare(QTransform(), font);
    return layout;
}

LaidOutText laidOut(const QString &text, const QFont &font, const QRectF &rect, int flags)
{
    return {preparedText(text, font),
            QFontMetricsF(font).boundingRect(rect, flags, text).topLeft()};
}

OwnLimits textLimit(double blit)
{
    return {
        "its text is drawn from kept glyphs and never copied, because how its edges are smoothed "
        "depends on what lies below",
        blit};
}

OwnLimits keptTextLimit(double blit)
{
    return {"the whole of its area is compared with what lay there and copied, of which its text "
            "is a part",
            blit};
}

PaintingMaker pictureFloor(const QPixmap &picture)
{
    return bareWidget(picture.size(),
                      [picture](QPainter &painter) { painter.drawPixmap(0, 0, picture); });
}

PaintingMaker captionedFloor(const QPixmap &picture, const QString &caption, const QColor &color)
{
    const LaidOutText text =
        laidOut(caption, QApplication::font(), QRectF(QPointF(), picture.size()));
    return bareWidget(picture.size(), [picture, text, color](QPainter &painter) {
        painter.drawPixmap(0, 0, picture);
        text.draw(painter, color);
    });
}
