// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_SCALEFLOOR_H
#define PANELKIT_BENCHMARKS_SCALEFLOOR_H

#include "canvas.h"

#include <QApplication>
#include <QColor>
#include <QFontMetricsF>
#include <QPixmap>
#include <QRectF>
#include <QStaticText>
#include <QVector>
#include <qwt_scale_div.h>
#include <qwt_slider.h>

constexpr double kScaleFloorLimit = 1.15;
constexpr double kQwtLimit = 1.0 / 3;

/// The picture of a scale with all of its work done: rectangles and layouts where they belong.
struct ScaleFloor {
    QColor color;
    QVector<QRect> faint;
    QVector<QRect> solid;
    QVector<QPointF> places;
    QVector<QStaticText> texts;
    QPointF indicatorPlace;
    QPixmap indicator;

    void addLabel(const QRectF &box, const QString &text)
    {
        const QFontMetricsF metrics(QApplication::font());
        places += box.topLeft()
            + metrics.boundingRect(QRectF(QPointF(), box.size()), Qt::AlignCenter, text).topLeft();
        QStaticText layout(text);
        layout.setTextFormat(Qt::PlainText);
        layout.prepare(QTransform(), QApplication::font());
        texts += layout;
    }

    void operator()(QPainter &painter) const
    {
        QColor faintColor = color;
        faintColor.setAlpha(70);
        painter.setPen(Qt::NoPen);
        if (!faint.isEmpty()) {
            painter.setBrush(faintColor);
            painter.drawRects(faint);
        }
        painter.setBrush(color);
        painter.drawRects(solid);
        painter.setPen(color);
        for (int i = 0; i < texts.size(); ++i)
            painter.drawStaticText(places[i], texts[i]);
        if (!indicator.isNull())
            painter.drawPixmap(indicatorPlace, indicator);
    }
};

/// A slider of Qwt's with as many ticks and labels.
inline PaintingMaker qwtSlider(const QSize &size)
{
    return widgetOf<QwtSlider>(size, [](QwtSlider &slider) {
        slider.setOrientation(Qt::Horizontal);
        slider.setScalePosition(QwtSlider::LeadingScale);
        QList<double> minor;
        QList<double> medium;
        QList<double> major;
        for (int hundredths = 8750; hundredths <= 10800; hundredths += 10)
            (hundredths % 100 == 0      ? major
                 : hundredths % 50 == 0 ? medium
                                        : minor) += hundredths / 100.0;
        slider.setScale(QwtScaleDiv(87.5, 108.0, minor, medium, major));
        slider.setValue(98.5);
    });
}

#endif // PANELKIT_BENCHMARKS_SCALEFLOOR_H
