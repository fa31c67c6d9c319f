// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "pictures.h"
#include "rows.h"

#include <QLabel>
#include <spbackgroundimage.h>

namespace
{

constexpr QSize kSize(800, 480);
constexpr QSize kSmall(400, 300);
constexpr int kAngle = 30; // degrees
constexpr double kPeerLimit = 1.15;

const QPixmap &whole()
{
    static const QPixmap picture = keyPicture(QColor(40, 90, 160), kSize);
    return picture;
}

const QPixmap &small()
{
    static const QPixmap picture = keyPicture(QColor(40, 90, 160), kSmall);
    return picture;
}

// The picture as it has to be painted, made once.
QPixmap prepared(const QPixmap &picture, int angle)
{
    return drawn(kSize, [&picture, angle](QPainter &painter) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.translate(QPoint(kSize.width() / 2, kSize.height() / 2));
        painter.rotate(qreal(angle));
        painter.translate(-QPoint(kSize.width() / 2, kSize.height() / 2));
        painter.drawPixmap(QRect(QPoint(), kSize), picture);
    });
}

// Qt's label stretches its picture too, and keeps it.
PaintingMaker label(const QPixmap &picture)
{
    return widgetOf<QLabel>(kSize, [picture](QLabel &label) {
        label.setPixmap(picture);
        label.setScaledContents(true);
    });
}

void addLook(Rows &rows, const char *state, const QPixmap &picture, int angle)
{
    rows.paint("SpBackgroundImage", state,
               widgetOf<SpBackgroundImage>(kSize,
                                           [picture, angle](SpBackgroundImage &backdrop) {
                                               backdrop.setPixmap(picture);
                                               backdrop.setRotateAngle(angle);
                                           }),
               {pictureFloor(prepared(picture, angle))}, {{"QLabel", label(picture), kPeerLimit}});
}

} // namespace

void defineRows(Rows &rows, Tag<SpBackgroundImage>)
{
    addLook(rows, "as it is", whole(), 0);
    addLook(rows, "stretched", small(), 0);
    addLook(rows, "turned", small(), kAngle);
}
