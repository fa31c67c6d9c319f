// SPDX-License-Identifier: Apache-2.0
#ifndef SLIDERPICTURES_H
#define SLIDERPICTURES_H

#include "pictures.h"
#include "touch.h"

#include <QTest>

/// The pictures that a slider cannot do without: a groove 200 px long and a knob that takes 30 px
/// of it, lying or upright.
struct SliderPictures {
    explicit SliderPictures(Qt::Orientation orientation)
        : groove(across(Qt::gray, {200, 20}, orientation)),
          fill(across(Qt::blue, {200, 20}, orientation)),
          knob(across(Qt::green, {30, 40}, orientation)),
          knobPressed(across(Qt::yellow, {30, 40}, orientation))
    {
    }

    QPixmap groove;
    QPixmap fill;
    QPixmap knob;
    QPixmap knobPressed;

    template <typename Slider> void giveTo(Slider &slider) const
    {
        slider.setSliderNormalImage(groove);
        slider.setSliderPressImage(fill);
        slider.setPointNormalImage(knob);
        slider.setPointPressImage(knobPressed);
    }

private:
    static QPixmap across(const QColor &color, const QSize &size, Qt::Orientation orientation)
    {
        return filled(color, orientation == Qt::Horizontal ? size : size.transposed());
    }
};

/// A slider's knob, of which this function has the picture, shows one of these while a finger is
/// on the slider and the other one afterwards.
template <typename Slider>
void checkKnobWhileTouched(Slider &slider, const QPoint &pos, QImage (*knobPicture)(const Slider &),
                           const QPixmap &pressed, const QPixmap &released)
{
    Touch finger = touch(&slider);
    finger.press(pos);
    QCOMPARE(knobPicture(slider), pressed.toImage());
    finger.release();
    QCOMPARE(knobPicture(slider), released.toImage());
}

#endif // SLIDERPICTURES_H
