// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_SCALEFLOOR_H
#define PANELKIT_BENCHMARKS_SCALEFLOOR_H

#include "canvas.h"
#include "floors.h"

#include <QApplication>
#include <QColor>
#include <QPixmap>
#include <QRectF>
#include <QVector>
#include <qwt_scale_div.h>
#include <qwt_scale_widget.h>
#include <qwt_slider.h>

constexpr double kQwtLimit = 0.15;
constexpr double kScaleLimit = 0.6; // of the floor, which draws its scale in each paint

/// The picture of a scale with all of its work done: rectangles and layouts where they belong.
struct ScaleFloor {
    QColor color;
    QVector<QRect> faint;
    QVector<QRect> solid;
    QVector<LaidOutText> texts;
    QPointF indicatorPlace;
    QPixmap indicator;

    void addLabel(const QRectF &box, const QString &text)
    {
        texts += laidOut(text, QApplication::font(), box);
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
        for (const LaidOutText &text : texts)
            painter.drawStaticText(text.at, text.layout);
        if (!indicator.isNull())
            painter.drawPixmap(indicatorPlace, indicator);
    }
};

/// The mark of the current place on a scale.
inline QPixmap indicatorPicture()
{
    QPixmap picture(3, 60);
    picture.fill(QColor(255, 120, 0));
    return picture;
}

/// As many ticks and labels, as Qwt has them.
inline QwtScaleDiv qwtScaleDiv()
{
    QList<double> minor;
    QList<double> medium;
    QList<double> major;
    for (int hundredths = 8750; hundredths <= 10800; hundredths += 10)
        (hundredths % 100 == 0      ? major
             : hundredths % 50 == 0 ? medium
                                    : minor) += hundredths / 100.0;
    return QwtScaleDiv(87.5, 108.0, minor, medium, major);
}

/// A slider of Qwt's on such a scale.
inline PaintingMaker qwtSlider(const QSize &size)
{
    return widgetOf<QwtSlider>(size, [](QwtSlider &slider) {
        slider.setOrientation(Qt::Horizontal);
        slider.setScalePosition(QwtSlider::LeadingScale);
        slider.setScale(qwtScaleDiv());
        slider.setValue(98.5);
    });
}

/// The scale alone, which nobody can drag.
inline PaintingMaker qwtScaleWidget(const QSize &size)
{
    return widgetOf<QwtScaleWidget>(size, [](QwtScaleWidget &scale) {
        scale.setAlignment(QwtScaleDraw::TopScale);
        scale.setScaleDiv(qwtScaleDiv());
    });
}

#endif // PANELKIT_BENCHMARKS_SCALEFLOOR_H
