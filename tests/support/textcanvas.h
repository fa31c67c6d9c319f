// SPDX-License-Identifier: Apache-2.0
#ifndef TEXTCANVAS_H
#define TEXTCANVAS_H

#include <QFont>
#include <QImage>
#include <QPainter>

#include <functional>

/// What is painted in white on a dark ground of this size.
inline QImage onCanvas(const QSize &size, const std::function<void(QPainter &)> &paint)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(10, 60, 90));
    QPainter painter(&image);
    painter.setPen(Qt::white);
    paint(painter);
    return image;
}

/// The largest difference of a colour between two pictures.
inline int distance(const QImage &a, const QImage &b)
{
    int most = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            most = qMax(most,
                        qMax(qAbs(qRed(p) - qRed(q)),
                             qMax(qAbs(qGreen(p) - qGreen(q)), qAbs(qBlue(p) - qBlue(q)))));
        }
    }
    return most;
}

/// Has a letter rendered, at this part of a pixel, in a size that nothing else is drawn in: very
/// large text of the same font is drawn in another way from then on.
inline void renderNewLetter(QFont font, int px, qreal part)
{
    font.setPixelSize(px);
    onCanvas({60, 60}, [&](QPainter &painter) {
        painter.setFont(font);
        painter.drawText(QPointF(part, 50), QStringLiteral("g"));
    });
}

inline QFont fontOf(int px)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(px);
    return font;
}

#endif // TEXTCANVAS_H
