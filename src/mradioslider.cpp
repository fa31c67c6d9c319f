#include "mradioslider.h"

#include "detail/arithmetic.h"
#include "detail/scalepicture.h"

#include <QDebug>
#include <QMessageLogger>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>

#include <algorithm>
#include <cmath>
#include <tuple>

using namespace panelkit;

namespace
{

constexpr int kLabelWidth = 60; // px
constexpr int kLabelHeight = 25; // px
// Steps of a scale whose ticks a gap of 0 puts at one place: up to so many, all ticks are drawn,
// and of more these last ones.
constexpr int kMostPiled = 100000;
constexpr int kLastPiled = 1024;

enum TickKind { Minor, Middle, Major };

// FM ticks are told by hundredths: major at whole MHz, middle at halves.
TickKind kindOf(float freq, bool isFM)
{
    const int number = toInt(double(isFM ? freq * 100.0F : freq));
    const int major = isFM ? 100 : 10;
    if (number % major == 0)
        return Major;
    return number % (major / 2) == 0 ? Middle : Minor;
}

QString written(double freq)
{
    return QStringLiteral("%1").arg(freq);
}

struct Counts {
    qint64 first;
    qint64 last;
};

// The ticks whose line or label can be seen; all stand on a pile where there is no gap.
Counts visibleCounts(int stepCount, int scrollX, int gap, int width)
{
    if (gap == 0)
        return {stepCount > kMostPiled ? stepCount - kLastPiled + 1 : 0, stepCount};
    const auto [first, last] = std::minmax(
        {(qint64(-kLabelWidth) - scrollX) / gap, (qint64(width) + kLabelWidth - scrollX) / gap});
    return {std::max<qint64>(0, first), std::min<qint64>(stepCount, last)};
}

} // namespace

// What the kept picture depends on. The colour and the font come with each paint.
struct MRadioSlider::Look {
    std::tuple<QSize, int, int, int, int, float, float, bool, int, int, int, int> inputs;
};

/**
 * An FM tuner for 87.5 to 108.0 MHz in steps of 0.1 with a tick every 5 px. The first tick stands
 * at the left edge until the first setCurFreq() or drag.
 */
MRadioSlider::MRadioSlider(QWidget *parent)
    : QWidget(parent), m_picture(std::make_unique<ScalePicture>())
{
    initSliderRange();
}

MRadioSlider::~MRadioSlider() = default;

/** The picture in the middle of the widget, at its own size; none by default. Stored only. */
void MRadioSlider::setIndicatePix(const QPixmap &pixmap)
{
    m_indicatePix = pixmap;
}

/** The colour of ticks and labels; an invalid one, the default, is drawn in black. Stored only. */
void MRadioSlider::setLineColor(const QColor &color)
{
    m_lineColor = color;
}

/** The font of the labels; the name hides that of the widget's own font, on purpose. Stored only.
 */
void MRadioSlider::setFont(const QFont &font)
{
    m_font = font;
}

/** The length of a minor tick in px, 8 by default; middle ones are twice and major ones three times
 * as long. Stored only. */
void MRadioSlider::setLineH(int height)
{
    m_lineH = height;
}

/** Stored only, and without effect: ticks are one pixel wide, because the colour makes a new pen.
 */
void MRadioSlider::setLineW(int width)
{
    m_lineW = width;
}

/** The distance from tick to tick in px, 5 by default. Stored only; how far the scale can be
 * dragged stays. */
void MRadioSlider::setLineGap(int gap)
{
    m_lineGap = gap;
}

/** The first frequency of the scale, 87.5 by default. Stored only. */
void MRadioSlider::setFreqStart(float freq)
{
    m_freqStart = freq;
}

/** The last frequency of the scale, 108.0 by default. Stored only. */
void MRadioSlider::setFreqEnd(float freq)
{
    m_freqEnd = freq;
}

/** The frequency from tick to tick, 0.1 by default. Stored only. */
void MRadioSlider::setFreqStep(float step)
{
    m_freqStep = step;
}

/**
 * Tunes: the frequency, in display units, comes under the middle, and the scale repaints. Ignored
 * outside the scale. The fraction of a step is kept and shows as so many px.
 */
void MRadioSlider::setCurFreq(float freq)
{
    if (!isValidFreq(freq))
        return;
    m_curFreq = freq;
    const float way = ratio((freq - m_freqStart) * float(m_lineGap), m_freqStep);
    const int middle = width() / 2;
    m_scrollX = toInt(double(float(middle) - way));
    update();
}

/** Whether ticks and labels are those of FM, the default, and the outer frequencies hundredths.
 * Stored only. */
void MRadioSlider::setIsFM(bool isFM)
{
    m_isFM = isFM;
}

/** Repaints, but has no effect on the picture. */
void MRadioSlider::setMarginY(int margin)
{
    m_marginY = margin;
    update();
}

/** Where the ticks stand, AlignBottom by default and for a value that is none. Stored only. */
void MRadioSlider::setScaleAlign(const ScaleAlignmentMode &mode)
{
    m_scaleMode = mode;
}

/** Where the labels stand, TextBottom by default and for a value that is none. Stored only. */
void MRadioSlider::setTextPosition(const TextPosition &position)
{
    m_textPosition = position;
}

/** How far down the labels are moved, in px. Ticks beside them move too. Stored only. */
void MRadioSlider::setTextMarginY(int margin)
{
    m_textMarginY = margin;
}

/** How far down the ticks are moved, in px. Stored only. */
void MRadioSlider::setScaleMarginY(int margin)
{
    m_scaleMarginY = margin;
}

/** How far down the indicator is moved, in px. Stored only. */
void MRadioSlider::setPointMarginY(int margin)
{
    m_pointMarginY = margin;
}

/**
 * Works out how many steps the scale has, in hundredths, and how far it can be dragged: until
 * either end stands in the middle. Called for a new band, not for a new size.
 */
void MRadioSlider::initSliderRange()
{
    m_stepCount = quotient(toInt(double((m_freqEnd - m_freqStart) * 100.0F)),
                           toInt(double(m_freqStep * 100.0F)));
    m_maxScrollX = width() / 2;
    m_minScrollX = saturated(width() / 2 - qint64(m_stepCount) * m_lineGap);
}

/** Whether the scale reaches this frequency, in display units. */
bool MRadioSlider::isValidFreq(float freq)
{
    return m_freqStart <= freq && freq <= m_freqEnd;
}

void MRadioSlider::paintEvent(QPaintEvent *e)
{
    const Look now = look();
    if (!m_look || m_look->inputs != now.inputs)
        layOut(now);
    QPainter painter(this);
    painter.setFont(m_font);
    m_picture->draw(painter, e ? e->rect() : rect(), m_lineColor);
    drawIndicator(painter);
}

/** A press only marks where a drag starts. */
void MRadioSlider::mousePressEvent(QMouseEvent *e)
{
    if (e)
        m_pressPoint = e->pos();
}

/**
 * The scale follows the finger pixel by pixel up to its ends; the tuned frequency goes in whole
 * steps. Nothing is reported before the release. The debug log gets two lines: where the finger was
 * and where it is.
 */
void MRadioSlider::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QMessageLogger log("src/mradioslider", __LINE__,
                             "virtual void MRadioSlider::mouseMoveEvent(QMouseEvent*)");
    log.debug() << "pressPoint.x():" << m_pressPoint.x();
    log.debug() << "curPoint.x():" << e->pos().x();
    const qint64 way = qint64(e->pos().x()) - m_pressPoint.x();
    m_pressPoint = e->pos();

    m_scrollX = saturated(m_scrollX + way);
    if (m_scrollX < m_minScrollX)
        m_scrollX = m_minScrollX;
    else if (m_scrollX > m_maxScrollX)
        m_scrollX = m_maxScrollX;
    const int steps = quotient(saturated(qint64(width() / 2) - m_scrollX), m_lineGap);
    m_curFreq = m_freqStart + m_freqStep * float(steps);
    update();
}

/** Every release reports the tuned frequency, dragged or not: for FM in hundredths. */
void MRadioSlider::mouseReleaseEvent(QMouseEvent *)
{
    emit freqChangedSgl(m_isFM ? m_curFreq * 100.0F : m_curFreq);
}

/** A band from the tuner, in display units. The scale stays where it is, and tuned as it is. */
void MRadioSlider::freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep)
{
    setIsFM(isFM);
    setFreqStart(freqMin);
    setFreqEnd(freqMax);
    setFreqStep(freqStep);
    initSliderRange();
    update();
}

/** Tunes from outside: for FM in hundredths, for AM in display units. */
void MRadioSlider::curFreqChangedSlot(float freq)
{
    setCurFreq(m_isFM ? freq / 100.0F : freq);
}

int MRadioSlider::wholeFreqStart() const
{
    return toInt(double(m_freqStart));
}

void MRadioSlider::setWholeFreqStart(int freq)
{
    setFreqStart(float(freq));
}

int MRadioSlider::wholeFreqEnd() const
{
    return toInt(double(m_freqEnd));
}

void MRadioSlider::setWholeFreqEnd(int freq)
{
    setFreqEnd(float(freq));
}

int MRadioSlider::wholeFreqStep() const
{
    return toInt(double(m_freqStep));
}

void MRadioSlider::setWholeFreqStep(int step)
{
    setFreqStep(float(step));
}

int MRadioSlider::wholeCurFreq() const
{
    return toInt(double(m_curFreq));
}

void MRadioSlider::setWholeCurFreq(int freq)
{
    setCurFreq(float(freq));
}

MRadioSlider::Look MRadioSlider::look() const
{
    return {{size(), m_scrollX, m_stepCount, m_lineH, m_lineGap, m_freqStart, m_freqStep, m_isFM,
             m_scaleMode, m_textPosition, m_textMarginY, m_scaleMarginY}};
}

void MRadioSlider::layOut(const Look &look)
{
    m_look = std::make_unique<Look>(look);
    m_picture->clear(size());
    const Counts visible = visibleCounts(m_stepCount, m_scrollX, m_lineGap, width());
    for (qint64 i = visible.first; i <= visible.last; ++i)
        addTick(int(i), saturated(m_scrollX + i * m_lineGap));
}

// AlignCenter is AlignBottom with the shorter ticks raised. The multiply-add is a fused one,
// without which some frequencies would miss their tick kind on one processor and not on another.
void MRadioSlider::addTick(int count, int x)
{
    const float freq = std::fma(float(count), m_freqStep, m_freqStart);
    const TickKind kind = kindOf(freq, m_isFM);
    const qint64 base = tickBase();
    const qint64 length = qint64(m_lineH) * (kind == Major ? 3 : kind == Middle ? 2 : 1);
    if (m_scaleMode == AlignTop) {
        m_picture->addLine(ScalePicture::Solid, x, saturated(base), saturated(base + length));
    } else {
        const int raised = kind == Major ? 0 : kind == Middle ? m_lineH / 2 : m_lineH;
        const qint64 foot = m_scaleMode == AlignCenter ? base - raised : base;
        m_picture->addLine(ScalePicture::Solid, x, saturated(foot), saturated(foot - length));
    }
    if (kind == Major) {
        const int halfLabel = kLabelWidth / 2;
        const QRectF box(qreal(x) - qreal(halfLabel), qreal(labelTop()), kLabelWidth, kLabelHeight);
        m_picture->addLabel(box, double(freq), written);
    }
}

int MRadioSlider::tickBase() const
{
    const qint64 beforeText = qint64(height()) - 1 + m_scaleMarginY;
    const qint64 text = qint64(kLabelHeight) + m_textMarginY;
    if (m_scaleMode == AlignTop)
        return saturated(m_scaleMarginY + (m_textPosition == TextTop ? text : 0));
    return saturated(m_textPosition == TextTop ? beforeText
                                               : beforeText - kLabelHeight + m_textMarginY);
}

int MRadioSlider::labelTop() const
{
    if (m_textPosition == TextTop)
        return m_textMarginY;
    return saturated(qint64(height()) - 1 - kLabelHeight + m_textMarginY);
}

void MRadioSlider::drawIndicator(QPainter &painter) const
{
    const QSize size = m_indicatePix.size();
    const int left = (width() - size.width()) / 2;
    const int top = saturated(qint64((height() - size.height()) / 2) + m_pointMarginY);
    const QRectF target({qreal(left), qreal(top)}, QSizeF(size));
    if (target.intersects(QRectF(rect())))
        painter.drawPixmap(target, m_indicatePix, QRectF());
}
