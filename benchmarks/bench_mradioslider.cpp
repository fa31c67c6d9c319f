// SPDX-License-Identifier: Apache-2.0
#include "mouse.h"
#include "rows.h"
#include "scalefloor.h"

#include <mradioslider.h>

namespace
{

constexpr QSize kSize(800, 100);
constexpr int kGap = 3; // px; the whole band on the screen
constexpr int kFoot = 99 - 25; // px
constexpr int kUnit = 8; // px

void setUp(MRadioSlider &slider)
{
    slider.setLineColor(Qt::white);
    slider.setLineGap(kGap);
    slider.setIndicatePix(indicatorPicture());
    slider.setFont(QApplication::font());
    slider.resize(kSize);
    slider.initSliderRange();
    slider.setCurFreq(98.0F);
}

// 206 ticks, 21 labels.
PaintingMaker floor()
{
    ScaleFloor scale;
    scale.color = Qt::white;
    const int first = kSize.width() / 2 - 105 * kGap;
    for (int i = 0; i <= 205; ++i) {
        const int length = i % 10 == 5 ? 3 * kUnit : i % 5 == 0 ? 2 * kUnit : kUnit;
        const int x = first + i * kGap;
        scale.solid += QRect(QPoint(x, kFoot - length), QPoint(x, kFoot));
        if (i % 10 == 5)
            scale.addLabel(QRect(x - 30, kFoot, 60, 25), QString::number(88 + i / 10));
    }
    scale.indicator = indicatorPicture();
    scale.indicatorPlace = QPointF((800 - 3) / 2, 20);
    return bareWidget(kSize, scale);
}

// Half of a drag step each: the scale moves by a pixel, and is painted.
PaintingMaker dragged()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto slider = std::make_shared<OnCanvas<MRadioSlider>>(canvas);
        setUp(*slider);
        return {canvas, [slider, x = 400]() mutable {
                    x = x == 400 ? 401 : 400;
                    sendMouse(*slider, QEvent::MouseMove, {x, 50});
                    slider->paint();
                }};
    };
}

} // namespace

void defineRows(Rows &rows, Tag<MRadioSlider>)
{
    rows.paint("MRadioSlider", "full scale", widgetOf<MRadioSlider>(kSize, setUp),
               {floor(), kScaleLimit},
               {{"QwtSlider", qwtSlider(kSize), kQwtLimit},
                {"QwtScaleWidget", qwtScaleWidget(kSize), 1.0}});
    rows.move("MRadioSlider", "drag step", dragged(), {floor()}, {});
}
