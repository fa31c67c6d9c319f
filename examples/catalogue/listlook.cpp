// SPDX-License-Identifier: Apache-2.0
#include "listlook.h"

#include "art.h"
#include "theme.h"

#include <QLinearGradient>
#include <QPainter>
#include <sptablelist.h>

namespace
{

// A bar of glass with this colour in it.
QPixmap rowPicture(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color.lighter(140), 1));
    QLinearGradient gloss(QPointF(0, 0), QPointF(pixmap.rect().bottomLeft()));
    gloss.setColorAt(0, color.lighter(115));
    gloss.setColorAt(1, color.darker(120));
    painter.setBrush(gloss);
    const QRectF outline = QRectF(pixmap.rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(outline, 10, 10);
    return pixmap;
}

} // namespace

namespace ListLook
{

void darken(SpTableList &list)
{
    QPalette dark = list.palette();
    dark.setColor(QPalette::Base, Theme::kGlass);
    dark.setColor(QPalette::Highlight, Theme::kGlass);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    list.setPalette(dark);
    list.viewport()->setPalette(dark);
    list.setFrameShape(QFrame::NoFrame);
}

void giveBackgrounds(SpTableList &list, const QSize &size)
{
    list.setNormalImage(rowPicture(size, QColor(0x24, 0x2b, 0x36)));
    list.setPressImage(rowPicture(size, QColor(0x14, 0x42, 0x70))); // gray text stands out on it
}

QPixmap keyPicture(const QString &key, const QString &drawing, const QSize &size)
{
    QPixmap pixmap = Art::pixmap(key, size);
    const QSize inner = size * 3 / 5;
    QPainter painter(&pixmap);
    painter.drawPixmap((size.width() - inner.width()) / 2, (size.height() - inner.height()) / 2,
                       Art::pixmap(drawing, inner));
    return pixmap;
}

} // namespace ListLook
