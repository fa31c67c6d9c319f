// SPDX-License-Identifier: Apache-2.0
#include "rows.h"
#include "scalefloor.h"

#include <mradiomovepoint.h>

namespace
{

constexpr QSize kSize(800, 110);
constexpr int kGap = 3; // px a scale unit, which is a step
constexpr int kFoot = 80; // px

// The scale as its tuner shows it. It is the widget that is painted; the tuner paints nothing.
class Scale : public ScaleBkg
{
public:
    Scale() : Scale(std::make_shared<MRadioMovePoint>()) { }

private:
    explicit Scale(const std::shared_ptr<MRadioMovePoint> &tuner)
        : ScaleBkg(8770, 10800, 10, 90, 390, true, 0, 1000, tuner.get(), nullptr, 1, 10, 2, 100),
          m_tuner(tuner)
    {
        m_tuner->resize(kSize);
        m_tuner->setLineColor(Qt::white);
        m_tuner->setTxtYpos(10);
        m_tuner->setLineYpos(kFoot);
        init();
    }

    std::shared_ptr<MRadioMovePoint> m_tuner;
};

// 206 ticks and 21 labels.
PaintingMaker floor()
{
    ScaleFloor scale;
    scale.color = Qt::white;
    for (int i = 0; i < 206; ++i) {
        const int x = 90 + i * kGap;
        const int freq = 8750 + i * 10;
        const int length = freq % 200 == 0 ? 18 : freq % 100 == 0 ? 12 : 6;
        scale.solid += QRect(QPoint(x, kFoot - length), QPoint(x, kFoot));
        if (freq % 100 == 0)
            scale.addLabel(QRect(x - 40, 10, 80, 30), QString::number(freq / 100));
    }
    return bareWidget(kSize, scale);
}

} // namespace

void defineRows(Rows &rows, Tag<MRadioMovePoint>)
{
    rows.paint("MRadioMovePoint", "full scale", widgetOf<Scale>(kSize), {floor(), kScaleLimit},
               {{"QwtSlider", qwtSlider(kSize), kQwtLimit},
                {"QwtScaleWidget", qwtScaleWidget(kSize), 1.0}});
}
