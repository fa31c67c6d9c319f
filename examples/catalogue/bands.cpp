// SPDX-License-Identifier: Apache-2.0
#include "bands.h"

#include <QLinearGradient>
#include <QPainter>

const QVector<Band> &radioBands()
{
    static const QVector<Band> bands{
        {QStringLiteral("FM Europe"), true, 87.5F, 108.0F, 0.1F, 98.5F},
        {QStringLiteral("FM Japan"), true, 76.0F, 95.0F, 0.1F, 82.5F},
        {QStringLiteral("FM Americas"), true, 87.9F, 107.9F, 0.2F, 98.1F},
        {QStringLiteral("MW 9 kHz"), false, 522.0F, 1620.0F, 9.0F, 999.0F},
        {QStringLiteral("MW 10 kHz"), false, 530.0F, 1710.0F, 10.0F, 1010.0F},
        {QStringLiteral("LW"), false, 153.0F, 279.0F, 9.0F, 198.0F},
        {QStringLiteral("SW 49 m"), false, 5900.0F, 6200.0F, 5.0F, 6070.0F},
    };
    return bands;
}

QPixmap needlePicture(const QSize &size)
{
    const QColor color(0xff, 0x8a, 0x2a);
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QLinearGradient glow(QPoint(0, 0), QPoint(size.width(), 0));
    glow.setColorAt(0, Qt::transparent);
    glow.setColorAt(0.5, QColor(color.red(), color.green(), color.blue(), 110));
    glow.setColorAt(1, Qt::transparent);
    painter.fillRect(picture.rect(), glow);
    painter.fillRect((size.width() - 2) / 2, 0, 2, size.height(), color);
    return picture;
}
