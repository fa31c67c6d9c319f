// SPDX-License-Identifier: Apache-2.0
#include "imagelook.h"

#include "deviceview.h"
#include "qtversion.h"

#include <QPainter>
#include <QRect>

namespace panelkit
{

namespace
{

// A scaled copy is worth its memory up to this many pixels (16 MiB), several times a car's screen.
constexpr qint64 kLargestScaledCopy = qint64(4096) * 1024;

// The nearest-neighbour scaling of drawPixmap, done once: the same pixels, ready to be copied. They
// are the same in this composition mode and without opacity alone, for which Qt has scaling of its
// own. What is opaque stays so whatever its unused bits say: of damaged animations they say
// something.
QImage scaledImage(const QPixmap &pixmap, const QSize &area)
{
    QImage image(area,
                 pixmap.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                          : QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.drawPixmap(QRect(QPoint(), area), pixmap);
    return image;
}

} // namespace

QImage veiledImage(const QPixmap &pixmap, const QSize &area, int alpha)
{
    QImage image = pixmap.toImage();
    if (image.isNull())
        return image;
    const QRect veilRect(QPoint(), area);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(veilRect, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(veilRect, pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(veilRect, QColor(0, 0, 0, alpha));
    return image;
}

// An opaque picture has no room for alpha: its copy gets one.
QImage fadedImage(const QPixmap &pixmap, const QSize &area, int alpha)
{
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    const QRect fadeRect(QPoint(), area);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(fadeRect, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(fadeRect, pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(fadeRect, QColor(0, 0, 0, alpha));
    return image;
}

// A bitmap has the colour of the painter's pen and is not kept.
void ImageLook::drawScaled(QPainter &painter, const QRect &target, const QPixmap &pixmap)
{
    const QSize area = target.size();
    const bool isWorthKeeping = kScalesAlikeUnderAnyClip && area != pixmap.size() && !area.isEmpty()
        && !pixmap.isQBitmap() && qint64(area.width()) * area.height() <= kLargestScaledCopy
        && isOnPixels(painter) && painter.opacity() >= 1
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver;
    if (!isWorthKeeping) {
        painter.drawPixmap(target, pixmap);
        return;
    }
    const Key key{Kind::Scaled, pixmap.cacheKey(), area, 0};
    const QImage &copy =
        m_image.value(key, [&](QImage &image) { image = scaledImage(pixmap, area); });
    if (copy.isNull()) // for want of memory
        painter.drawPixmap(target, pixmap);
    else
        painter.drawImage(target.topLeft(), copy);
}

void ImageLook::drawVeiled(QPainter &painter, const QRect &target, const QPixmap &pixmap, int alpha)
{
    const Key key{Kind::Veiled, pixmap.cacheKey(), target.size(), alpha};
    painter.drawImage(target, m_image.value(key, [&](QImage &image) {
        image = veiledImage(pixmap, target.size(), alpha);
    }));
}

} // namespace panelkit
