// SPDX-License-Identifier: Apache-2.0
#include "pictures.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QTemporaryDir>
#include <QTransform>

#include <map>
#include <utility>

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

QPixmap withBlack(QPixmap picture, QPainter::CompositionMode mode, int alpha)
{
    QPainter painter(&picture);
    painter.setCompositionMode(mode);
    painter.fillRect(picture.rect(), QColor(0, 0, 0, alpha));
    painter.end();
    return picture;
}

} // namespace

QPixmap keyPicture(const QColor &color, const QSize &size)
{
    return drawn(size, [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const QRectF key = QRectF(QPointF(), size).adjusted(kShadow, kShadow, -kShadow, -kShadow);
        drawShadow(painter, key);
        drawKey(painter, key, color);
        drawStar(painter, key);
    });
}

QPixmap stretched(const QPixmap &picture, const QSize &size)
{
    if (picture.size() == size)
        return picture;
    return drawn(size,
                 [&](QPainter &painter) { painter.drawPixmap(QRect(QPoint(), size), picture); });
}

QPixmap veiled(const QPixmap &picture, int alpha)
{
    return withBlack(picture, QPainter::CompositionMode_SourceAtop, alpha);
}

QPixmap faded(const QPixmap &picture, int alpha)
{
    return withBlack(picture, QPainter::CompositionMode_DestinationIn, alpha);
}

QString fileOf(const QPixmap &picture)
{
    static const QTemporaryDir folder;
    QString path = folder.filePath(QString::number(picture.cacheKey()) + QStringLiteral(".png"));
    picture.save(path);
    return path;
}

ButtonArtwork::ButtonArtwork(const QSize &size)
    : normal(keyPicture(QColor(40, 90, 160), size)),
      pressed(keyPicture(QColor(230, 120, 20), size)),
      highlighted(keyPicture(QColor(60, 170, 200), size)),
      disabled(keyPicture(QColor(110, 110, 110), size)),
      smallPressed(keyPicture(QColor(230, 120, 20), size * 3 / 4))
{
}

SliderArtwork::SliderArtwork(const QSize &grooveSize, const QSize &knobSize)
    : groove(keyPicture(QColor(60, 60, 70), grooveSize)),
      fill(keyPicture(QColor(40, 90, 160), grooveSize)),
      knob(keyPicture(QColor(230, 120, 20), knobSize))
{
}

const ButtonArtwork &buttonArtwork(const QSize &size)
{
    static std::map<std::pair<int, int>, ButtonArtwork> made;
    return made.try_emplace({size.width(), size.height()}, size).first->second;
}
