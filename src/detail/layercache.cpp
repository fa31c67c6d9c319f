// SPDX-License-Identifier: Apache-2.0
#include "layercache.h"

#include "arithmetic.h"
#include "deviceview.h"

#include <QPaintDevice>
#include <QPaintEngine>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace panelkit
{

namespace
{

constexpr double kFarthest = 1 << 24; // px, no widget is larger

// The device in the coordinates of a painter without transform of its own; they differ by where in
// its window a widget stands.
QRect visibleRect(const QPainter &painter)
{
    const QTransform &own = painter.worldTransform();
    const QTransform &device = painter.deviceTransform();
    const auto whole = [](double offset) {
        return toInt(std::clamp(std::round(offset), -kFarthest, kFarthest));
    };
    const QPoint offset(whole(device.dx() - own.dx()), whole(device.dy() - own.dy()));
    const QPaintDevice *pixels = painter.paintEngine()->paintDevice();
    return QRect(0, 0, pixels->width(), pixels->height()).translated(-offset);
}

constexpr int kAlignment = 7; // px, the bits of a vector register's worth of pixels

// The rectangle of what is not wholly transparent, out to where vector registers begin: single
// pixels at the ends of a line cost as much as eight in the middle. Most of a slanting or curved
// stretch's bounding rectangle is empty, and copying nothing takes time too.
QRect inkRect(const QImage &image)
{
    int left = image.width();
    int right = -1;
    int top = image.height();
    int bottom = -1;
    const auto isInk = [](QRgb pixel) { return pixel != 0; };
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const auto *end = line + image.width();
        const auto *first = std::find_if(line, end, isInk);
        if (first == end)
            continue;
        const auto *afterLast =
            std::find_if(std::make_reverse_iterator(end), std::make_reverse_iterator(line), isInk)
                .base();
        left = std::min(left, int(first - line));
        right = std::max(right, int(afterLast - line) - 1);
        top = std::min(top, y);
        bottom = y;
    }
    if (right < left)
        return {};
    return {QPoint(left & ~kAlignment, top),
            QPoint(std::min(right | kAlignment, image.width() - 1), bottom)};
}

} // namespace

void LayerPixels::drawContent(QPainter &painter, const QTransform &world, const QRectF &area,
                              int content, const Paint &paint)
{
    const bool canCopy = copiesPixels(painter);
    const bool isNew = m_key.changesTo({world, area, content, painter.renderHints(), painter.pen(),
                                        canCopy ? visibleRect(painter) : QRect()});
    if (isNew || !canCopy) {
        m_isComposed = false;
        m_isShown = DeviceView(painter).shows(world, area);
        if (m_isShown)
            paintDirectly(painter, paint);
        return;
    }
    if (!m_isShown)
        return;
    if (m_isComposed || compose(paint))
        copy(painter);
    else
        paintDirectly(painter, paint);
}

void LayerPixels::paintDirectly(QPainter &painter, const Paint &paint) const
{
    const QTransform origin = painter.worldTransform();
    painter.setWorldTransform(m_key->transform);
    paint(painter);
    painter.setWorldTransform(origin);
}

// Smoothing has nothing to do in a copy of whole pixels, and it would cost a third more.
void LayerPixels::copy(QPainter &painter) const
{
    const bool isTransformed = painter.worldMatrixEnabled();
    const bool isSmooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    painter.setWorldMatrixEnabled(false);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(m_topLeft, m_image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, isSmooth);
    painter.setWorldMatrixEnabled(isTransformed);
}

// It is composed at its place on a canvas as large as the device, because how edges are rounded
// depends on where they lie; then it is cut to what there is to see. False if there is no memory.
bool LayerPixels::compose(const Paint &paint)
{
    const QPoint origin = m_key->visible.topLeft();
    QImage image(m_key->visible.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return false;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(m_key->hints);
    painter.setPen(m_key->pen);
    painter.setTransform(m_key->transform
                         * QTransform::fromTranslate(-qreal(origin.x()), -qreal(origin.y())));
    paint(painter);
    painter.end();
    const QRect ink = inkRect(image);
    m_image = ink.isEmpty() ? QImage() : image.copy(ink);
    m_topLeft = origin + ink.topLeft();
    m_isComposed = ink.isEmpty() || !m_image.isNull();
    ++m_compositions;
    return m_isComposed;
}

} // namespace panelkit
