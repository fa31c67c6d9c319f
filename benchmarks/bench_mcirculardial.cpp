// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <mcirculardial.h>
#include <QDial>
#include <qwt_dial.h>
#include <qwt_dial_needle.h>
#include <qwt_scale_div.h>

#include <cmath>

namespace
{

constexpr QSize kSize(500, 500);
constexpr double kFloorLimit = 0.5; // the floor draws its pointer in each paint
constexpr double kQwtLimit = 0.3;
constexpr double kQwtTurnedLimit = 0.75;
constexpr double kDialLimit = 0.15;
constexpr double kValue = 98.5;

void place(QPainter &painter)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(250, 250);
    painter.rotate(90);
}

// The ground and 206 ticks, of which 21 have a number.
void drawFace(QPainter &painter)
{
    QRadialGradient ground(QPointF(0, 0), 250, QPointF(0, 0));
    ground.setColorAt(0, QColor(173, 173, 173).lighter(100));
    ground.setColorAt(1, QColor(173, 173, 173));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawEllipse(QRectF(-250, -250, 500, 500));
    painter.setPen(Qt::white);
    painter.rotate(120);
    for (int i = 0; i <= 205; ++i) {
        const bool isLong = (i + 5) % 10 == 0;
        const double start = isLong ? 0.98 - 0.1 : 0.98 - 0.05;
        painter.drawLine(QLineF(0, qreal(start * 250), 0, qreal(0.98 * 250)));
        if (isLong) {
            painter.save();
            painter.translate(0, qreal(0.82 * 250));
            painter.rotate(180);
            painter.drawText(QRect(-15, 0, 30, 10), Qt::AlignCenter,
                             QString::number((i + 5) / 10 + 87));
            painter.restore();
        }
        painter.rotate(qreal(120.0 / 205));
    }
}

void drawValue(QPainter &painter)
{
    painter.setPen(Qt::white);
    painter.drawText(QRectF(-30, 75, 60, 30), Qt::AlignCenter, QString::number(kValue));
}

// What a painter on the dial leaves, cut to a part of it.
template <class Draw> QImage stamp(const QRect &part, Draw draw)
{
    const QPixmap picture = drawn(kSize, [draw](QPainter &painter) {
        place(painter);
        draw(painter);
    });
    return picture.toImage().copy(part);
}

void drawPointer(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(94, 94, 94));
    painter.rotate(-60);
    painter.rotate(qreal(120.0 / 205 * ((kValue - 87.5) / 0.1)));
    const QPointF triangle[] = {{-2, 0}, {2, 0}, {0, -250}};
    painter.drawConvexPolygon(triangle, 3);
}

void drawHub(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(94, 94, 94));
    painter.drawEllipse(QRect(-6, -6, 12, 12));
}

template <class Draw> void drawPlaced(QPainter &painter, Draw draw)
{
    painter.save();
    place(painter);
    draw(painter);
    painter.restore();
}

// Both pictures made once, and the pointer drawn between them. The first paint is drawn directly:
// what is copied is one level off in pixels at the rim.
PaintingMaker floor()
{
    const QRect textPart(144, 220, 32, 60); // the box of the value, turned by 90 degrees
    return [=] {
        const QImage face = stamp(QRect(QPoint(0, 0), kSize), drawFace);
        const QImage text = stamp(textPart, drawValue);
        const auto draw = [=, isFirst = true](QPainter &painter) mutable {
            if (isFirst)
                drawPlaced(painter, drawFace);
            else
                painter.drawImage(0, 0, face);
            drawPlaced(painter, drawPointer);
            drawPlaced(painter, drawHub);
            if (isFirst)
                drawPlaced(painter, drawValue);
            else
                painter.drawImage(textPart.topLeft(), text);
            isFirst = false;
        };
        return bareWidget(kSize, draw)();
    };
}

PaintingMaker qwtDial()
{
    return widgetOf<QwtDial>(kSize, [](QwtDial &dial) {
        QList<double> minor;
        QList<double> major;
        for (int tenths = 875; tenths <= 1080; ++tenths)
            (tenths % 10 == 0 ? major : minor) += tenths / 10.0;
        dial.setScaleArc(30, 150);
        dial.setScale(QwtScaleDiv(87.5, 108.0, minor, {}, major));
        dial.setNeedle(new QwtDialSimpleNeedle(QwtDialSimpleNeedle::Arrow));
        dial.setValue(kValue);
    });
}

PaintingMaker qDial()
{
    return widgetOf<QDial>(kSize, [](QDial &dial) {
        dial.setRange(875, 1080);
        dial.setNotchesVisible(true);
        dial.setNotchTarget(1);
        dial.setValue(985);
    });
}

// Another value, and its paint: the face stays.
PaintingMaker turned()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto dial = shownOn<MCircularDial>(canvas, kSize, AsItIs());
        return {canvas, [dial] {
                    dial->setValue(dial->value() >= dial->maxValue() ? dial->minValue()
                                                                     : dial->value() + 0.1);
                    dial->paint();
                }};
    };
}

} // namespace

void defineRows(Rows &rows, Tag<MCircularDial>)
{
    rows.paint("MCircularDial", "FM tuner",
               widgetOf<MCircularDial>(kSize, [](MCircularDial &dial) { dial.setValue(kValue); }),
               {floor(), kFloorLimit},
               {{"QwtDial", qwtDial(), kQwtLimit}, {"QDial", qDial(), kDialLimit}});
    rows.move("MCircularDial", "turned", turned(), {floor()},
              {{"QwtDial", qwtDial(), kQwtTurnedLimit}});
}
