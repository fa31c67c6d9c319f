// SPDX-License-Identifier: Apache-2.0
#include "deviceview.h"

#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QRect>

#include <cmath>

namespace panelkit
{

namespace
{

constexpr double kHardlyAny = 0.01; // px, what rounding leaves of a whole number

} // namespace

DeviceView::DeviceView(const QPainter &painter)
    : m_holdsPixels(painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster)
{
    if (!m_holdsPixels)
        return;
    m_toDevice = painter.worldTransform().inverted() * painter.deviceTransform();
    // Not painter.device(): inside a window that is the widget, but the pixels are the window's.
    const QPaintDevice *device = painter.paintEngine()->paintDevice();
    m_device = QRectF(QRect(0, 0, device->width(), device->height()));
}

// The comparisons are written so that a coordinate that is no number fails one of them.
bool DeviceView::shows(const QTransform &world, const QRectF &area) const
{
    if (!m_holdsPixels)
        return true;
    const QRectF mapped = (world * m_toDevice).mapRect(area);
    return mapped.left() < m_device.right() && mapped.right() > m_device.left()
        && mapped.top() < m_device.bottom() && mapped.bottom() > m_device.top();
}

bool DeviceView::operator==(const DeviceView &other) const
{
    return m_holdsPixels == other.m_holdsPixels && m_toDevice == other.m_toDevice
        && m_device == other.m_device;
}

bool isWholePixels(double distance)
{
    return std::abs(distance - std::round(distance)) <= kHardlyAny;
}

// The device's coordinates may be those of the painter, moved by whole pixels.
bool copiesPixels(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    const QTransform &own = painter.worldTransform();
    const QTransform &device = painter.deviceTransform();
    return engine->type() == QPaintEngine::Raster && painter.opacity() >= 1
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver
        && !painter.viewTransformEnabled() && device.m11() == own.m11() && device.m12() == own.m12()
        && device.m21() == own.m21() && device.m22() == own.m22()
        && isWholePixels(device.dx() - own.dx()) && isWholePixels(device.dy() - own.dy())
        && qFuzzyCompare(engine->paintDevice()->devicePixelRatioF(), qreal(1));
}

bool hasWholeColors(const QPainter &painter)
{
    const QPaintDevice *device = painter.paintEngine()->paintDevice();
    if (device->devType() != QInternal::Image)
        return false;
    const QImage::Format format = static_cast<const QImage *>(device)->format();
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
}

bool isOnPixels(const QPainter &painter)
{
    const QTransform &device = painter.deviceTransform();
    return device.type() <= QTransform::TxTranslate && isWholePixels(device.dx())
        && isWholePixels(device.dy());
}

} // namespace panelkit
