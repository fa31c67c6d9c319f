// SPDX-License-Identifier: Apache-2.0
#include "textstrip.h"

#include "deviceview.h"
#include "drawntext.h"

#include <QPainter>
#include <QString>

#include <algorithm>
#include <cstdlib>

namespace panelkit
{

namespace
{

constexpr qint64 kMostPixels = 4 << 20; // twice a large screen; more is drawn directly

// Whether letters on an opaque ground are those that were drawn without one and copied there, now
// and later. Fonts in points have to have the same size on an image.
bool isSmoothedInGrey(const QPainter &like, const QColor &color)
{
    if (isFilledText(like))
        return false;
    constexpr int kSide = 64; // px
    const QString sample = QStringLiteral("Rgw8");
    const QColor ground(90, 130, 170);
    QImage kept(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    QImage copied(kSide, kSide, QImage::Format_RGB32);
    if (kept.isNull() || copied.isNull() || kept.logicalDpiY() != like.device()->logicalDpiY())
        return false;
    kept.fill(Qt::transparent);
    copied.fill(ground);
    QImage drawn = copied.copy();
    const auto draw = [&](QImage &image) {
        QPainter painter(&image);
        painter.setFont(like.font());
        painter.setPen(color);
        painter.drawText(image.rect(), Qt::AlignCenter, sample);
    };
    draw(kept);
    draw(drawn);
    QPainter(&copied).drawImage(0, 0, kept);
    const auto isNear = [](QRgb a, QRgb b) {
        return std::abs(qRed(a) - qRed(b)) <= 1 && std::abs(qGreen(a) - qGreen(b)) <= 1
            && std::abs(qBlue(a) - qBlue(b)) <= 1;
    };
    const auto *pixels = reinterpret_cast<const QRgb *>(copied.constBits());
    return std::equal(pixels, pixels + kSide * kSide,
                      reinterpret_cast<const QRgb *>(drawn.constBits()), isNear);
}

} // namespace

bool TextSmoothing::canCopy(const QPainter &painter, const QColor &color)
{
    return color.alpha() == 255 && copiesPixels(painter) && isOnPixels(painter)
        && hasWholeColors(painter)
        && m_isGrey.value({color.rgba(), painter.device()->logicalDpiY(), painter.font()},
                          [&](bool &isGrey) { isGrey = isSmoothedInGrey(painter, color); });
}

bool isInFirstColumn(const QPainter &painter)
{
    return std::abs(painter.deviceTransform().dx()) < 0.5;
}

QImage drawnText(const QPainter &like, const QColor &color, const QSize &size, int column,
                 const FunctionRef<bool(QPainter &)> &paint)
{
    if (qint64(size.width()) * size.height() > kMostPixels)
        return {};
    QImage image(size + QSize(column, 0), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(like.font());
    painter.setPen(color);
    painter.setLayoutDirection(like.layoutDirection());
    painter.setRenderHints(like.renderHints());
    painter.translate(qreal(column), 0);
    if (!paint(painter))
        return {};
    painter.end();
    return column == 0 ? image : image.copy(QRect(QPoint(column, 0), size));
}

bool TextStrip::compose(const QPainter &like, const QColor &color, const QRect &stretch,
                        const Paint &paint)
{
    clear();
    m_isInFirstColumn = isInFirstColumn(like);
    const auto paintStretch = [&](QPainter &painter) {
        painter.translate(-stretch.topLeft());
        paint(painter);
        return true;
    };
    m_image =
        drawnText(like, color, stretch.size(), m_isInFirstColumn ? 0 : kFarLeft, paintStretch);
    if (m_image.isNull())
        return false;
    m_stretch = stretch;
    ++m_compositions;
    return true;
}

void TextStrip::clear()
{
    m_stretch = QRect();
    m_image = QImage();
}

void TextStrip::copy(QPainter &painter, const QPoint &at, const QRect &part) const
{
    painter.drawImage(at, m_image, part.translated(-m_stretch.topLeft()));
}

} // namespace panelkit
