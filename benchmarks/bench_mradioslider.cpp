// SPDX-License-Identifier: Apache-2.0
#include "rows.h"
#include "scalefloor.h"

#include <benchmark/benchmark.h>
#include <mradioslider.h>
#include <QMouseEvent>
#include <QPushButton>

namespace
{

constexpr QSize kSize(800, 100);
constexpr int kGap = 3; // px; the whole band on the screen
constexpr int kFoot = 99 - 25; // px
constexpr int kUnit = 8; // px
constexpr double kStartUpLimit = 4;

QPixmap indicator()
{
    QPixmap picture(3, 60);
    picture.fill(QColor(255, 120, 0));
    return picture;
}

void setUp(MRadioSlider &slider)
{
    slider.setLineColor(Qt::white);
    slider.setLineGap(kGap);
    slider.setIndicatePix(indicator());
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
    scale.indicator = indicator();
    scale.indicatorPlace = QPointF((800 - 3) / 2, 20);
    return bareWidget(kSize, scale);
}

// Half of a drag step each: the scale moves by a pixel, and is painted.
StepMaker dragged()
{
    return [] {
        const auto canvas = makeCanvas(kSize);
        const auto slider = std::make_shared<OnCanvas<MRadioSlider>>(canvas);
        setUp(*slider);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        return [slider, x = 400]() mutable {
            x = x == 400 ? 401 : 400;
            QMouseEvent move(QEvent::MouseMove, QPoint(x, 50), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QApplication::sendEvent(slider.get(), &move);
            slider->paint();
        };
    };
}

template <class Widget> StepMaker makeAndDelete()
{
    return [] {
        return [] {
            const Widget widget(nullptr);
            benchmark::DoNotOptimize(&widget);
        };
    };
}

} // namespace

void defineRows(Rows &rows, Tag<MRadioSlider>)
{
    rows.paint("MRadioSlider", "full scale", widgetOf<MRadioSlider>(kSize, setUp),
               {floor(), kScaleFloorLimit}, {{"QwtSlider", qwtSlider(kSize), kQwtLimit}});
    const PaintingMaker still = floor();
    rows.work("MRadioSlider", "drag step", dragged(), {[still] { return still().step; }, 1.5}, {});
    rows.work("MRadioSlider", "made and deleted", makeAndDelete<MRadioSlider>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>()}});
}
