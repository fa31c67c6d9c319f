// SPDX-License-Identifier: Apache-2.0
#ifndef RADIOSETTERS_H
#define RADIOSETTERS_H

#include "setters.h"
#include "tablerows.h"
#include "touch.h"

#include <QFont>
#include <QMetaObject>
#include <QPixmap>

#include <functional>

/// Tells a radio slider of a tuned frequency.
inline void call(QObject &slider, float freq)
{
    QMetaObject::invokeMethod(&slider, "curFreqChangedSlot", Q_ARG(float, freq));
}

/// Tells a radio slider of a band.
inline void call(QObject &slider, bool isFM, float min, float max, float step)
{
    QMetaObject::invokeMethod(&slider, "freqParamChangedSlot", Q_ARG(bool, isFM), Q_ARG(float, min),
                              Q_ARG(float, max), Q_ARG(float, step));
}

/// Rows for checkRepaints() of the setters that both radio sliders have. Those of the step and of
/// the band kind repaint as often as this; most of the others only keep what they are given.
template <typename Slider>
void addRadioSetters(const TableRows<int, std::function<void(Slider &)>> &row,
                     const QPixmap &indicator, int tuning)
{
    row("marginY", 1, [](auto &s) { s.setMarginY(0); });
    row("a band", 1, [](auto &s) { call(s, true, 76.0F, 95.0F, 0.1F); });
    row("a press", 0, [](auto &s) { touch(&s).press(9, 9); });
    row("freqStep", tuning, [](auto &s) { s.setFreqStep(3); });
    row("isFM", tuning, [](auto &s) { s.setIsFM(false); });
    row("indicatePix", 0, [=](auto &s) { s.setIndicatePix(indicator); });
    row("lineColor", 0, [](auto &s) { s.setLineColor(Qt::red); });
    row("font", 0, [](auto &s) { s.setFont(QFont()); });
    row("lineH", 0, [](auto &s) { s.setLineH(3); });
    row("lineW", 0, [](auto &s) { s.setLineW(3); });
    row("lineGap", 0, [](auto &s) { s.setLineGap(3); });
    row("freqStart", 0, [](auto &s) { s.setFreqStart(3); });
    row("freqEnd", 0, [](auto &s) { s.setFreqEnd(3); });
    row("scaleMode", 0, [](auto &s) { s.setScaleAlign(Slider::AlignTop); });
    row("textMarginY", 0, [](auto &s) { s.setTextMarginY(3); });
    row("scaleMarginY", 0, [](auto &s) { s.setScaleMarginY(3); });
    row("PointMarginY", 0, [](auto &s) { s.setPointMarginY(3); });
}

/// Rows for checkKeepsProperty() of the properties that both radio sliders have: frequencies are
/// above this number.
template <typename Slider>
void addRadioProperties(const TableRows<QVariant> &row, int number, const QFont &font)
{
    const Slider fresh(nullptr);
    row("isFM", !fresh.property("isFM").toBool());
    row("scaleMode", fresh.property("scaleMode").toInt() == 1 ? 2 : 1);
    row("textPosition", fresh.property("textPosition").toInt() == 1 ? 0 : 1);
    addNumbers(row, number,
               {"lineH", "lineW", "freqStart", "freqEnd", "freqStep", "curFreq", "marginY",
                "textMarginY", "scaleMarginY", "PointMarginY"});
    row("lineColor", QColor(1, 2, 3));
    row("font", font);
}

#endif // RADIOSETTERS_H
