// SPDX-License-Identifier: Apache-2.0
#include "keptlook.h"

#include <QPaintEngine>
#include <QRegion>

#include <cstring>

namespace panelkit
{

namespace
{

// The formats of which a copy is the same pixels, bit by bit.
bool isCopied(QImage::Format format)
{
    return format == QImage::Format_ARGB32_Premultiplied || format == QImage::Format_RGB32
        || format == QImage::Format_RGB16;
}

// The image that is painted on, if a copy of its pixels does what painting does. Not
// painter.device(): inside a window that is the widget, but the pixels are the window's.
const QImage *pixelsBelow(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    if (engine->type() != QPaintEngine::Raster || painter.opacity() < 1 || painter.hasClipping()
        || painter.compositionMode() != QPainter::CompositionMode_SourceOver
        || engine->paintDevice()->devType() != QInternal::Image)
        return nullptr;
    const auto *image = static_cast<const QImage *>(engine->paintDevice());
    return isCopied(image->format()) ? image : nullptr;
}

// The part of the image that painting in the area may change. A window paints a widget, or what of
// it is damaged, within a region of its own.
QRect changedRect(const QPainter &painter, const QRect &area, const QImage &image)
{
    if (painter.deviceTransform().type() > QTransform::TxScale)
        return {};
    const QRectF mapped = painter.deviceTransform().mapRect(QRectF(area));
    const QRect inSight = (mapped & QRectF(image.rect())).toAlignedRect();
    const QRegion clip = painter.paintEngine()->systemClip();
    if (clip.rectCount() > 1)
        return {};
    return clip.isEmpty() ? inSight : inSight & clip.boundingRect();
}

bool isSame(const QImage &image, const QRect &rect, const QImage &part)
{
    const auto pixel = std::size_t(image.depth() / 8);
    const std::size_t start = std::size_t(rect.left()) * pixel;
    const std::size_t length = std::size_t(rect.width()) * pixel;
    for (int y = 0; y < rect.height(); ++y) {
        const uchar *line = image.constScanLine(rect.top() + y) + start;
        if (std::memcmp(line, part.constScanLine(y), length) != 0)
            return false;
    }
    return true;
}

// A part of what is seen, without what a pixel of it means.
QImage partOf(const QImage &image, const QRect &rect)
{
    QImage part = image.copy(rect);
    part.setDevicePixelRatio(1);
    return part;
}

} // namespace

// Here, so that not each widget has its own.
KeptPixels::KeptPixels() = default;
KeptPixels::~KeptPixels() = default;

void KeptPixels::forget()
{
    m_ground = {};
    m_result = {};
}

qint64 KeptPixels::size() const
{
    return qint64(m_ground.width()) * m_ground.height()
        + qint64(m_result.width()) * m_result.height();
}

// True if that was all there is to do. False if the look has to be painted, and taken afterwards.
bool KeptPixels::copyTo(QPainter &painter, const QRect &area, bool isNew)
{
    const QImage *image = pixelsBelow(painter);
    const QRect rect = image ? changedRect(painter, area, *image) : QRect();
    if (rect.isEmpty()) {
        forget();
        m_place.forget();
        return false;
    }
    const bool isMoved =
        m_place.changesTo({rect, painter.deviceTransform(), painter.renderHints(),
                           painter.pen().color(), image->logicalDpiY(), image->format()});
    if (isMoved || isNew) {
        forget();
        return false;
    }
    if (m_result.isNull()) {
        m_ground = partOf(*image, rect);
        return false;
    }
    if (!isSame(*image, rect, m_ground)) {
        forget();
        return false;
    }
    copy(painter);
    return true;
}

// There is nothing to take in a first paint, which has no ground, nor if there is no memory.
void KeptPixels::take(const QPainter &painter)
{
    if (m_ground.isNull())
        return;
    const auto *image = static_cast<const QImage *>(painter.paintEngine()->paintDevice());
    m_result = partOf(*image, m_place->rect);
    if (m_result.isNull())
        forget();
    else
        ++m_takings;
}

// In the coordinates of the device, to which the painter's own are led.
void KeptPixels::copy(QPainter &painter) const
{
    const QTransform &toDevice = m_place->toDevice;
    const QPointF topLeft = m_place->rect.topLeft();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (toDevice.type() <= QTransform::TxTranslate) {
        painter.drawImage(topLeft - QPointF(toDevice.dx(), toDevice.dy()), m_result);
    } else {
        const QTransform world = painter.worldTransform();
        painter.setWorldTransform(toDevice.inverted() * world);
        painter.drawImage(topLeft, m_result);
        painter.setWorldTransform(world);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace panelkit
