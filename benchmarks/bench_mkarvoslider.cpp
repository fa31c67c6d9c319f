// SPDX-License-Identifier: Apache-2.0
#include "mouse.h"
#include "rows.h"
#include "scalefloor.h"

#include <mkarvoslider.h>

namespace
{

constexpr QSize kSize(795, 160);
constexpr int kTop = 40; // px
constexpr int kUnit = 30; // px
constexpr int kMargin = 90; // px, for 3 px a step
constexpr int kGap = 3; // px

// 206 steps and 21 labels. Minor ticks are not drawn.
void setUp(MKARVOSlider &slider)
{
    slider.setFont(QApplication::font());
    slider.setIndicatePix(indicatorPicture());
    slider.setIsFM(true);
    slider.setFreqStart(87.5F);
    slider.setFreqEnd(108.0F);
    slider.setFreqStep(0.1F);
    slider.setMarginX(kMargin);
    slider.setCurFreq(98.0F);
}

// The finger goes from a step to the next and back, and each of its moves is painted.
PaintingMaker dragged()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto slider = shownOn<MKARVOSlider>(canvas, kSize, setUp, [](MKARVOSlider &s) {
            s.setRealMinFreq(87.5F);
            s.setRealMaxFreq(108.0F);
            s.setRealFreqStep(0.1F);
        });
        return {canvas, [slider, x = 405]() mutable {
                    x = x == 405 ? 405 + 3 * kGap : 405;
                    sendMouse(*slider, QEvent::MouseMove, {x, 80});
                    slider->paint();
                }};
    };
}

PaintingMaker floor()
{
    ScaleFloor scale;
    scale.color = Qt::white;
    for (int i = 0; i <= 205; i += 5) {
        const int x = kMargin + i * kGap;
        if (i % 10 == 5) {
            scale.solid += QRect(QPoint(x, kTop), QPoint(x, kTop + 3 * kUnit));
            scale.addLabel(QRect(x - 30, 5, 60, 25), QString::number(88 + i / 10));
        } else {
            scale.faint += QRect(QPoint(x, kTop), QPoint(x, kTop + kUnit));
            scale.solid += QRect(QPoint(x, kTop + kUnit), QPoint(x, kTop + 3 * kUnit));
        }
    }
    scale.indicator = indicatorPicture();
    scale.indicatorPlace = QPointF(kMargin + 105 * kGap - 1, 50 + 46);
    return bareWidget(kSize, scale);
}

} // namespace

void defineRows(Rows &rows, Tag<MKARVOSlider>)
{
    rows.paint("MKARVOSlider", "full scale", widgetOf<MKARVOSlider>(kSize, setUp),
               {floor(), kScaleLimit},
               {{"QwtSlider", qwtSlider(kSize), kQwtLimit},
                {"QwtScaleWidget", qwtScaleWidget(kSize), 1.0}});
    rows.move("MKARVOSlider", "dragged", dragged(), {floor(), kScaleLimit}, {});
}
