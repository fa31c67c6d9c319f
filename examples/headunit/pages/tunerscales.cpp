// SPDX-License-Identifier: Apache-2.0
#include "pages/tunerscales.h"

#include "models/tuner.h"

#include <mkarvoslider.h>
#include <mradiomovepoint.h>
#include <mradioslider.h>

#include <QFontMetrics>
#include <QGraphicsOpacityEffect>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr float kUnitsPerMegahertz = 100; // of the FM band
// px that the tuners themselves give to their labels, and MRadioMovePoint to its ticks and its top
constexpr int kLabelHeight = 25;
constexpr int kLargestLabel = 21;
constexpr int kNeedleTop = 10;
constexpr int kNeedleLabel = 20;
constexpr int kTick = 18;

// What stands at the tuned frequency: a line with a grip at its foot.
QPixmap marker(const Theme &theme, int height, int grip)
{
    const int width = 2 * grip + 1;
    const int line = std::max(2, theme.px(3));
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect((width - line) / 2, 0, line, height - grip, theme.accent);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.accent);
    painter.drawEllipse(0, height - width, width, width);
    painter.setBrush(theme.onAccent);
    painter.drawEllipse(QPointF(width / 2.0, height - width / 2.0), grip * 0.4, grip * 0.4);
    return pixmap;
}

// A scale that goes on beyond its ends is not cut off there.
void fadeEnds(QWidget &scale, int reach)
{
    const qreal part = qreal(reach) / scale.width();
    QLinearGradient mask(0, 0, scale.width(), 0);
    mask.setColorAt(0, Qt::transparent);
    mask.setColorAt(part, Qt::black);
    mask.setColorAt(1 - part, Qt::black);
    mask.setColorAt(1, Qt::transparent);
    auto *effect = new QGraphicsOpacityEffect(&scale);
    effect->setOpacity(1);
    effect->setOpacityMask(mask);
    scale.setGraphicsEffect(effect); // the one before goes with it
}

} // namespace

TunerScales::TunerScales(const Widgets &widgets, Tuner &tuner, QObject *parent)
    : QObject(parent), m_widgets(widgets), m_tuner(tuner), m_theme({}, Theme::Night)
{
    connect(widgets.needle, &MRadioMovePoint::freqChangedSgl, this, &TunerScales::tune);
    connect(widgets.tape, &MRadioSlider::freqChangedSgl, this, &TunerScales::tune);
    connect(widgets.pointer, &MKARVOSlider::freqChangedSgl, this, &TunerScales::tune);
    connect(&tuner, &Tuner::bandChanged, this, &TunerScales::layOut);
    connect(&tuner, &Tuner::frequencyChanged, this, &TunerScales::showFrequency);
}

// A stacked widget gives its size to the page on top only; all are laid out together.
void TunerScales::dress(const Theme &theme)
{
    m_theme = theme;
    m_size = m_widgets.needle->parentWidget()->size();
    for (QWidget *widget :
         {static_cast<QWidget *>(m_widgets.needle), static_cast<QWidget *>(m_widgets.tape),
          static_cast<QWidget *>(m_widgets.pointer)})
        widget->resize(m_size);
    QFont labels = theme.font(Theme::Small);
    m_widgets.needle->setFont(labels);
    labels.setPixelSize(std::min(labels.pixelSize(), kLargestLabel));
    m_widgets.tape->setFont(labels);
    m_widgets.needle->setLineColor(theme.text);
    m_widgets.tape->setLineColor(theme.text);
    m_widgets.pointer->setLineColor(theme.text);
    layOut();
}

void TunerScales::layOut()
{
    if (m_size.isEmpty())
        return;
    layOutRows();
    layOutNeedle();
    layOutTape();
    layOutPointer();
    showFrequency();
}

// All three have the same rows, so that another scale changes nothing but the scale: the labels,
// the ticks, and the grip below them. They stand in the middle together, as far as the needle's
// labels let them, which keep away from its top.
void TunerScales::layOutRows()
{
    const int gap = m_theme.px(3);
    const int text = QFontMetrics(m_widgets.needle->font()).height();
    m_rows.grip = m_theme.px(12);
    const int all = text + kTick + 2 * gap + 2 * m_rows.grip + 1;
    const int middle = (m_size.height() - all + text) / 2;
    m_rows.needleLabels = std::max(0, (middle - kNeedleTop - kNeedleLabel / 2) * 2 / 3);
    m_rows.labels = kNeedleTop + kNeedleLabel / 2 + m_rows.needleLabels * 3 / 2;
    m_rows.ticks = m_rows.labels + text / 2 + gap;
    m_rows.end = std::min(m_size.height(), m_rows.ticks + kTick + gap + 2 * m_rows.grip + 1);
}

// Every scale unit takes whole pixels, and the band with two units at either end stands in the
// middle. An FM unit is two steps, so that its ticks are not too close.
void TunerScales::layOutNeedle()
{
    MRadioMovePoint &scale = *m_widgets.needle;
    const BandRange range = m_tuner.range();
    const bool isFm = m_tuner.band() == Band::Fm;
    const int unit = isFm ? 2 * range.step : range.step;
    const int first = range.first / unit * unit - 2 * unit;
    const int units = (range.last - first) / unit + 3;
    const int pixels = m_size.width() / units;
    scale.setBandType(isFm ? MRadioMovePoint::FM : MRadioMovePoint::AM);
    scale.setFreqStart(range.first);
    scale.setFreqEnd(range.last);
    scale.setFreqStep(range.step);
    scale.setLineStart((m_size.width() - units * pixels) / 2);
    scale.setLineEnd(scale.getLineStart() + units * pixels);
    scale.setSuggestFreqStart(0);
    scale.setSuggestFreqEnd(units * unit);
    scale.setTotalCountMeta(units);
    scale.setPixCountMeta(1);
    scale.setBMid(10); // a number every 2 MHz or 90 kHz
    scale.setBLarge(1);
    placeNeedle();
    scale.setInitByCustomeValue(true);
}

// It begins below the labels, so that the one at the tuned frequency can be read.
void TunerScales::placeNeedle()
{
    MRadioMovePoint &scale = *m_widgets.needle;
    scale.setTxtYpos(m_rows.needleLabels);
    scale.setLineYpos(m_rows.ticks + kTick - kNeedleTop);
    const QPixmap picture = marker(m_theme, m_rows.end - m_rows.ticks, m_rows.grip);
    scale.setPointYpos(m_rows.ticks);
    scale.setPointPix(picture);
    scale.findChild<MovePoint *>()->resize(picture.size()); // it keeps that of its first picture
}

// The rows of a tuner whose labels and picture have margins: the picture stands in the middle of
// its height without one.
template <typename Scale> void TunerScales::placeRows(Scale &scale) const
{
    const QPixmap picture = marker(m_theme, m_rows.end - m_rows.ticks, m_rows.grip);
    scale.setTextMarginY(m_rows.labels - kLabelHeight / 2);
    scale.setLineH(kTick / 3);
    scale.setIndicatePix(picture);
    scale.setPointMarginY(m_rows.ticks - (m_size.height() - picture.height()) / 2);
}

void TunerScales::layOutTape()
{
    MRadioSlider &scale = *m_widgets.tape;
    const BandRange range = m_tuner.range();
    scale.setIsFM(m_tuner.band() == Band::Fm);
    scale.setFreqStart(inDisplayUnits(range.first));
    scale.setFreqEnd(inDisplayUnits(range.last));
    scale.setFreqStep(inDisplayUnits(range.step));
    scale.setLineGap(m_theme.px(12));
    scale.initSliderRange();
    scale.setTextPosition(MRadioSlider::TextTop);
    placeRows(scale);
    scale.setScaleMarginY(m_rows.ticks + kTick - m_size.height());
    fadeEnds(scale, m_theme.px(72));
}

// Its scale has rounder ends than the band, to which the pointer snaps.
void TunerScales::layOutPointer()
{
    MKARVOSlider &scale = *m_widgets.pointer;
    const BandRange range = m_tuner.range();
    const bool isFm = m_tuner.band() == Band::Fm;
    scale.setRealMinFreq(inDisplayUnits(range.first));
    scale.setRealMaxFreq(inDisplayUnits(range.last));
    scale.setRealFreqStep(inDisplayUnits(range.step));
    scale.setFreqStart(isFm ? 87.0F : 500.0F);
    scale.setFreqEnd(isFm ? 108.0F : 1700.0F);
    scale.setIsFM(isFm);
    scale.setMarginX(m_theme.px(30));
    scale.setFreqStep(isFm ? 0.5F : 20.0F);
    scale.setFont(pointerFont());
    placeRows(scale);
    scale.setScaleMarginY(m_rows.ticks);
}

// All numbers of the scale stand beside each other, with gaps between them.
QFont TunerScales::pointerFont() const
{
    const MKARVOSlider &scale = *m_widgets.pointer;
    const bool isFm = m_tuner.band() == Band::Fm;
    const int numbers = int(scale.getFreqEnd() - scale.getFreqStart()) / (isFm ? 1 : 100);
    const int room = (m_size.width() - 2 * scale.marginX()) / numbers - m_theme.px(6);
    QFont font = m_widgets.tape->font();
    const QString longest = isFm ? QStringLiteral("108") : QStringLiteral("1700");
    const int width = QFontMetrics(font).horizontalAdvance(longest);
    font.setPixelSize(std::min(font.pixelSize(), font.pixelSize() * room / width));
    return font;
}

void TunerScales::showFrequency()
{
    const int frequency = m_tuner.frequency();
    m_widgets.needle->curFreqChangedSlot(float(frequency));
    m_widgets.tape->setCurFreq(inDisplayUnits(frequency));
    m_widgets.pointer->setCurFreq(inDisplayUnits(frequency));
}

// The radio may go elsewhere than the finger was, or stay; the scales show where it is.
void TunerScales::tune(float frequency)
{
    m_tuner.setFrequency(qRound(frequency));
    showFrequency();
}

// MHz or kHz, as the labels say.
float TunerScales::inDisplayUnits(int frequency) const
{
    return m_tuner.band() == Band::Fm ? float(frequency) / kUnitsPerMegahertz : float(frequency);
}

} // namespace headunit
