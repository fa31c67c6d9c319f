// SPDX-License-Identifier: Apache-2.0
#ifndef PICTURES_H
#define PICTURES_H

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QSize>

/// A disc with soft edges on a transparent ground, which shows every mistake in composing it.
inline QPixmap picture(const QColor &color, const QSize &size = QSize(40, 30))
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.drawEllipse(pixmap.rect().adjusted(2, 2, -2, -2));
    return pixmap;
}

/// An opaque picture whose pattern shows how it was scaled and cut.
inline QPixmap filled(const QColor &color, const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), QBrush(Qt::black, Qt::DiagCrossPattern));
    return pixmap;
}

#endif // PICTURES_H
