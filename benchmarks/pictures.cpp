// SPDX-License-Identifier: Apache-2.0
#include "pictures.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QTransform>

namespace
{

constexpr int kShadow = 8; // px
constexpr qreal kCorner = 18; // px

// Layers of faint black that add up toward the key.
void drawShadow(QPainter &painter, const QRectF &key)
{
    painter.setBrush(QColor(0, 0, 0, 16));
    for (int layer = 0; layer <= kShadow; ++layer) {
        const auto reach = qreal(layer);
        painter.drawRoundedRect(key.adjusted(-reach, -reach, reach, reach), kCorner + reach,
                                kCorner + reach);
    }
}

void drawKey(QPainter &painter, const QRectF &key, const QColor &color)
{
    QLinearGradient gloss(key.topLeft(), key.bottomLeft());
    gloss.setColorAt(0, color.lighter(160));
    gloss.setColorAt(0.5, color);
    gloss.setColorAt(1, color.darker(150));
    painter.setBrush(gloss);
    painter.drawRoundedRect(key, kCorner, kCorner);
}

void drawStar(QPainter &painter, const QRectF &key)
{
    constexpr int kCorners = 10;
    QPolygonF star;
    for (int corner = 0; corner < kCorners; ++corner) {
        const qreal radius = key.height() * (corner % 2 == 0 ? 40 : 18) / 100;
        QTransform turn;
        turn.rotate(qreal(corner) * 360 / kCorners);
        star << key.center() + turn.map(QPointF(0, -radius));
    }
    painter.setBrush(QColor(255, 255, 255, 224));
    painter.drawPolygon(star);
}

} // namespace

QPixmap keyPicture(const QColor &color, const QSize &size)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF key = QRectF(QPointF(), size).adjusted(kShadow, kShadow, -kShadow, -kShadow);
    drawShadow(painter, key);
    drawKey(painter, key, color);
    drawStar(painter, key);
    return picture;
}
