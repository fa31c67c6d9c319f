// SPDX-License-Identifier: Apache-2.0
#include "theme.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

// The linker leaves resources of a static library out unless they are asked for, which works
// outside of namespaces only.
static void initialiseArt() { Q_INIT_RESOURCE(headunit_screen_headunit); }

namespace headunit
{

namespace
{

constexpr double kUnits = 600; // of the screen's height
constexpr int kLeastTouch = 57; // px, 9 mm at 160 dpi
constexpr std::array<int, 4> kLeastText{19, 22, 0, 0}; // px, legible from arm's length
constexpr int kLargeIcon = 60; // units
constexpr int kPictures = 64 * 1024; // KiB, more than all of one look

QString sizeKey(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

} // namespace

Theme::Theme(const QSize &screen, Look look)
    : m_screen(screen), m_look(look),
      m_pictures(std::make_shared<QCache<QString, QPixmap>>(kPictures))
{
    initialiseArt();
    const bool isDay = look == Day;
    ground = isDay ? QColor(0xe9, 0xee, 0xf3) : QColor(0x0c, 0x11, 0x18);
    face = isDay ? QColor(0xff, 0xff, 0xff) : QColor(0x1b, 0x24, 0x30);
    pressedFace = isDay ? QColor(0xcf, 0xdb, 0xe8) : QColor(0x2f, 0x3e, 0x52);
    line = isDay ? QColor(0xc3, 0xcd, 0xd8) : QColor(0x33, 0x40, 0x50);
    text = isDay ? QColor(0x14, 0x1c, 0x26) : QColor(0xf3, 0xf6, 0xfa);
    quietText = isDay ? QColor(0x51, 0x5f, 0x70) : QColor(0x9d, 0xac, 0xbe);
    accent = isDay ? QColor(0x0b, 0x6b, 0xd0) : QColor(0x4a, 0xa8, 0xff);
    onAccent = isDay ? QColor(0xff, 0xff, 0xff) : QColor(0x06, 0x14, 0x22);
    positive = isDay ? QColor(0x17, 0x80, 0x3d) : QColor(0x47, 0xc9, 0x74);
    danger = isDay ? QColor(0xc9, 0x26, 0x34) : QColor(0xf0, 0x5a, 0x64);
    veil = isDay ? QColor(0x20, 0x2c, 0x3a, 150) : QColor(0, 0, 0, 170);
}

int Theme::px(double units) const { return qRound(units * m_screen.height() / kUnits); }

int Theme::touch() const { return std::max(kLeastTouch, px(64)); }

int Theme::textPx(TextSize size) const
{
    constexpr std::array<double, 4> kSizes{21, 25, 30, 68};
    const auto place = std::size_t(size);
    return std::max(px(kSizes[place]), kLeastText[place]);
}

QFont Theme::font(TextSize size, bool bold) const
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(textPx(size));
    font.setBold(bold);
    return font;
}

QString Theme::file(const QString &name) { return QStringLiteral(":/panelkit/headunit/") + name; }

QPixmap Theme::picture(const QString &key, const QSize &size,
                       const std::function<void(QPainter &)> &paint) const
{
    if (size.isEmpty())
        return {};
    if (const QPixmap *known = m_pictures->object(key))
        return *known;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();
    const QPixmap pixmap = QPixmap::fromImage(image); // which sees whether anything shines through
    const int cost = int(qint64(size.width()) * size.height() * pixmap.depth() / 8 / 1024) + 1;
    m_pictures->insert(key, new QPixmap(pixmap), cost);
    return pixmap;
}

QPixmap Theme::icon(const QString &name, int px, const QColor &color) const
{
    const QSize size(px, px);
    const QString key = QStringLiteral("icon %1 %2 %3").arg(name).arg(px).arg(color.rgba());
    return picture(key, size, [&](QPainter &painter) {
        QFile drawing(file(name + QStringLiteral(".svg")));
        drawing.open(QIODevice::ReadOnly);
        QByteArray lines = drawing.readAll();
        if (px > this->px(kLargeIcon)) // its lines would look bold beside those of its caption
            lines.replace("stroke-width=\"3\"", "stroke-width=\"2.25\"");
        QSvgRenderer(lines).render(&painter);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), size), color);
    });
}

QPixmap Theme::drawing(const QString &name, const QSize &size) const
{
    const QString key = QStringLiteral("drawing %1 %2").arg(name, sizeKey(size));
    return picture(key, size, [&](QPainter &painter) {
        QSvgRenderer drawing(file(name + QStringLiteral(".svg")));
        drawing.setAspectRatioMode(Qt::KeepAspectRatioByExpanding);
        drawing.render(&painter);
    });
}

QPixmap Theme::rounded(const QImage &photograph, const QSize &size) const
{
    const QImage scaled =
        photograph.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((scaled.width() - size.width()) / 2, (scaled.height() - size.height()) / 2);
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(scaled.copy(QRect(corner, size))));
    painter.drawRoundedRect(picture.rect(), radius(), radius());
    return picture;
}

QPixmap Theme::panel(const QSize &size, const QColor &fill, const QColor &border, int radius) const
{
    const QString key = QStringLiteral("panel %1 %2 %3 %4")
                            .arg(sizeKey(size))
                            .arg(fill.rgba())
                            .arg(border.isValid() ? border.rgba() : 0)
                            .arg(radius);
    return picture(key, size, [&](QPainter &painter) {
        // The middle of a border lies within the face; a face alone ends at whole pixels.
        const qreal inset = border.isValid() ? 0.5 : 0;
        painter.setPen(border.isValid() ? QPen(border, 1) : QPen(Qt::NoPen));
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset),
                                radius, radius);
    });
}

QColor Theme::faceColor(Style style, State state) const
{
    if (style == Bare)
        return state == Pressed ? pressedFace : QColor(Qt::transparent);
    if (state == Disabled)
        return face;
    if (state == Selected)
        return accent;
    if (style == Key)
        return state == Pressed ? pressedFace : face;
    QColor color = accent;
    if (style != Primary)
        color = style == Positive ? positive : danger;
    return state == Pressed ? color.darker(125) : color;
}

QColor Theme::ink(Style style, State state) const
{
    if (state == Disabled) {
        QColor faint = quietText;
        faint.setAlphaF(0.55);
        return faint;
    }
    if (style == Bare)
        return state == Selected ? accent : text;
    return state == Selected || style != Key ? onAccent : text;
}

QPixmap Theme::key(const QSize &size, Style style, State state, const QString &icon, int iconPx,
                   int rise) const
{
    const QColor fill = faceColor(style, state);
    const bool isPlain = style == Key ? state != Selected : style != Bare && state == Disabled;
    const QColor border = isPlain ? line : QColor();
    const QPixmap blank = panel(size, fill, border, radius());
    if (icon.isEmpty())
        return blank;
    const QString key =
        QStringLiteral("key %1 %2 %3 %4").arg(blank.cacheKey()).arg(icon).arg(iconPx).arg(rise)
        + QString::number(ink(style, state).rgba());
    return picture(key, size, [&](QPainter &painter) {
        painter.drawPixmap(0, 0, blank);
        painter.drawPixmap((size.width() - iconPx) / 2, (size.height() - iconPx) / 2 - rise,
                           this->icon(icon, iconPx, ink(style, state)));
    });
}

} // namespace headunit
