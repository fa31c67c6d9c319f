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

constexpr qreal kOverhang = 32; // px, that a letter may lean out of the area, or more than enough
constexpr int kAlignment = 7; // px, the bits of a vector register's worth of pixels

// The rectangle of what is not wholly transparent, out to where vector registers begin: single
// pixels at the ends of a line cost as much as eight in the middle. Most of a slanting or curved
// stretch's bounding rectangle is empty, and copying nothing takes time too.
QRect inkRect(const QImage &image, const QRect &part)
{
    int left = part.right() + 1;
    int right = -1;
    int top = part.bottom() + 1;
    int bottom = -1;
    const auto isInk = [](QRgb pixel) { return pixel != 0; };
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const auto *begin = line + part.left();
        const auto *end = line + part.right() + 1;
        const auto *first = std::find_if(begin, end, isInk);
        if (first == end)
            continue;
        const auto *afterLast =
            std::find_if(std::make_reverse_iterator(end), std::make_reverse_iterator(begin), isInk)
                .base();
        left = std::min(left, int(first - line));
        right = std::max(right, int(afterLast - line) - 1);
        top = std::min(top, y);
        bottom = y;
    }
    if (right < left)
        return {};
    return {QPoint(std::max(left & ~kAlignment, part.left()), top),
            QPoint(std::min(right | kAlignment, part.right()), bottom)};
}

} // namespace

void LayerPixels::drawContent(QPainter &painter, const QTransform &world, const Extent &extent,
                              int content, const Paint &paint)
{
    const bool canCopy = copiesPixels(painter);
    QRect visible = canCopy ? visibleRect(painter) : QRect();
    if (!extent.inSight.isNull())
        visible &= extent.inSight;
    const bool isNew = m_key.changesTo(
        {world, extent.area, content, painter.renderHints(), painter.pen(), visible});
    if (isNew || !canCopy) {
        m_isComposed = false;
        m_isShown = DeviceView(painter).shows(world, extent.area);
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
// depends on where they lie; then it is cut to what there is to see. Of the canvas only what the
// area may reach is touched. False if there is no memory.
bool LayerPixels::compose(const Paint &paint)
{
    const QRect &visible = m_key->visible;
    const QRectF mapped = m_key->transform.mapRect(m_key->area);
    const QRect reach =
        (mapped.adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang) & QRectF(visible))
            .toAlignedRect()
        & visible;
    QImage image(visible.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return false;
    QPainter painter(&image);
    painter.translate(-visible.topLeft());
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(reach, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHints(m_key->hints);
    painter.setPen(m_key->pen);
    painter.setTransform(
        m_key->transform
        * QTransform::fromTranslate(-qreal(visible.left()), -qreal(visible.top())));
    paint(painter);
    painter.end();
    const QRect ink = inkRect(image, reach.translated(-visible.topLeft()));
    m_image = ink.isEmpty() ? QImage() : image.copy(ink);
    m_topLeft = visible.topLeft() + ink.topLeft();
    m_isComposed = ink.isEmpty() || !m_image.isNull();
    ++m_compositions;
    return m_isComposed;
}

} // namespace panelkit
