#include "mkarvoslider.h"

#include "detail/arithmetic.h"
#include "detail/scalepicture.h"
#include "detail/wholenumber.h"

#include <QDebug>
#include <QMessageLogger>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QPointer>
#include <QResizeEvent>

#include <cmath>
#include <tuple>

using namespace panelkit;

namespace
{

constexpr float kLabelWidth = 60.0F; // px
constexpr int kLabelHeight = 25; // px
constexpr int kFaintAlpha = 70;
constexpr double kSame = 5e-5; // display units; frequencies nearer to each other are the same
// A scale that has no more ticks in no more steps is drawn whole. Of one that has, fewer steps are
// looked at.
constexpr int kMostTicks = 100000;
constexpr int kMostSteps = 1000000;
constexpr int kFewerSteps = 65536;

enum TickKind { Minor, Middle, Major };

// FM ticks are told by hundredths. AM has its middle ticks at tens; none of its labels stands
// there.
TickKind kindOf(float freq, bool isFM)
{
    const int number = toInt(double(isFM ? freq * 100.0F : freq));
    if (number % 100 == 0)
        return Major;
    return number % (isFM ? 50 : 10) == 0 ? Middle : Minor;
}

// The lines of a tick, from and to so many tick lengths below the base.
struct Span {
    int from;
    int to;
};
struct Shape {
    Span major;
    Span faint;
    Span solid;
};

// Odd on purpose: what is faint is a point at the top, the upper third, or all of a line that is
// longer than a major one. A mode that is none is AlignBottom.
Shape shapeOf(MKARVOSlider::ScaleAlignmentMode mode)
{
    if (mode == MKARVOSlider::AlignTop)
        return {{0, 3}, {0, 0}, {0, 2}};
    if (mode == MKARVOSlider::AlignCenter)
        return {{0, 3}, {0, 1}, {1, 3}};
    return {{0, -3}, {0, -4}, {-4, -2}};
}

// The column of pixels in which Qt draws a line at x, which it takes in 64ths of a pixel.
int lineColumn(float x)
{
    return toInt(double(x) * 64) >> 6;
}

// The column of a line without length, which Qt draws as a point.
int pointColumn(float x)
{
    return toInt(std::floor(double(x) + 0.5));
}

// How many steps to go at once. A scale with more steps than anyone can tell apart is seen to be
// full of ticks of every kind: any stride that meets all last two digits in turn shows that.
template <typename KindAt> int strideOf(int stepCount, KindAt kindAt)
{
    if (stepCount <= kMostTicks)
        return 1;
    int ticks = 0;
    for (int i = 0; i <= stepCount && i <= kMostSteps && ticks <= kMostTicks; ++i)
        ticks += kindAt(i) == Minor ? 0 : 1;
    if (stepCount <= kMostSteps && ticks <= kMostTicks)
        return 1;
    const int stride = (stepCount / kFewerSteps + 1) | 1;
    return stride % 5 == 0 ? stride + 2 : stride;
}

QString written(double freq)
{
    return QStringLiteral("%1").arg(freq);
}

} // namespace

// What the kept picture depends on. The colour and the font come with each paint.
struct MKARVOSlider::Look {
    std::tuple<QSize, float, float, int, int, float, float, bool, int, int, int, int> inputs;
};

struct MKARVOSlider::Tick {
    float x; // px
    float freq;
    TickKind kind;
};

/**
 * An AM tuner with a scale from 500 to 1720 and a tick every 20, tuned to 800. Its snapping band is
 * upside down until freqParamChangedSlot() brings one, on purpose: whatever is dragged before
 * becomes 1620 or 522.
 */
MKARVOSlider::MKARVOSlider(QWidget *parent)
    : QWidget(parent), m_picture(std::make_unique<ScalePicture>())
{
    m_font.setPixelSize(20);
    initSliderRange();
}

MKARVOSlider::~MKARVOSlider() = default;

/** The picture at the tuned frequency, at its own size; none by default. Stored only. */
void MKARVOSlider::setIndicatePix(const QPixmap &pixmap)
{
    m_indicatePix = pixmap;
}

/** The colour of ticks and labels, white by default; an invalid one is drawn in black. Stored only.
 */
void MKARVOSlider::setLineColor(const QColor &color)
{
    m_lineColor = color;
}

/** The font of the labels, of 20 px by default; the name hides that of the widget's own font, on
 * purpose. Stored only. */
void MKARVOSlider::setFont(const QFont &font)
{
    m_font = font;
}

/** A third of the length of a major tick in px, 30 by default. Stored only. */
void MKARVOSlider::setLineH(int height)
{
    m_lineH = height;
}

/** Stored only, and without effect: ticks are one pixel wide, because the colour makes a new pen.
 */
void MKARVOSlider::setLineW(int width)
{
    m_lineW = width;
}

/** The distance from step to step, truncated to px. */
int MKARVOSlider::getLineGap() const
{
    return toInt(double(m_lineGap));
}

/** Sets the distance from step to step in px until the scale is laid out the next time. Stored
 * only. */
void MKARVOSlider::setLineGap(int gap)
{
    m_lineGap = float(gap);
}

/** The first frequency of the scale, 500 by default. Stored only: the number of steps stays until
 * the scale is laid out the next time. */
void MKARVOSlider::setFreqStart(float freq)
{
    m_freqStart = freq;
}

/** The last frequency of the scale, 1720 by default. Stored only, in the manner of setFreqStart().
 */
void MKARVOSlider::setFreqEnd(float freq)
{
    m_freqEnd = freq;
}

/** The frequency from step to step, 20 by default. Lays the scale out and repaints. */
void MKARVOSlider::setFreqStep(float step)
{
    m_freqStep = step;
    initSliderRange();
    update();
}

/** Tunes, in display units, without a signal, and repaints. Ignored outside the scale; not snapped.
 */
void MKARVOSlider::setCurFreq(float freq)
{
    if (!isValidFreq(freq))
        return;
    m_curFreq = freq;
    update();
}

/** Whether ticks and labels are those of FM and the outer frequencies hundredths; false by default.
 * Lays the scale out and repaints. */
void MKARVOSlider::setIsFM(bool isFM)
{
    m_isFM = isFM;
    initSliderRange();
    update();
}

/** Repaints, but has no effect on the picture. */
void MKARVOSlider::setMarginY(int margin)
{
    m_marginY = margin;
    update();
}

/** The margin left and right of the scale in px, 35 by default. Lays the scale out and repaints. */
void MKARVOSlider::setMarginX(int margin)
{
    m_marginX = margin;
    initSliderRange();
    update();
}

/** Where the ticks stand, AlignCenter by default; a value that is none stands for AlignBottom.
 * Stored only. */
void MKARVOSlider::setScaleAlign(const ScaleAlignmentMode &mode)
{
    m_scaleMode = mode;
}

/** Where the labels stand, TextTop by default; a value that is none stands for TextBottom. Stored
 * only. */
void MKARVOSlider::setTextPosition(const TextPosition &position)
{
    m_textPosition = position;
}

/** How far down the labels are moved, 5 px by default. Ticks beside them move too. Stored only. */
void MKARVOSlider::setTextMarginY(int margin)
{
    m_textMarginY = margin;
}

/** How far down the ticks are moved, 40 px by default. Stored only. */
void MKARVOSlider::setScaleMarginY(int margin)
{
    m_scaleMarginY = margin;
}

/** How far down the indicator is moved, 46 px by default. Stored only. */
void MKARVOSlider::setPointMarginY(int margin)
{
    m_pointMarginY = margin;
}

/** The lower end of the band that drags snap to, 1620 by default. Stored only. */
void MKARVOSlider::setRealMinFreq(float freq)
{
    m_realMinFreq = freq;
}

/** The upper end of the band that drags snap to, 522 by default. Stored only. */
void MKARVOSlider::setRealMaxFreq(float freq)
{
    m_realMaxFreq = freq;
}

/** The step that drags snap to, 9 by default. Stored only. */
void MKARVOSlider::setRealFreqStep(float step)
{
    m_realFreqStep = step;
}

/**
 * Lays the scale out: the steps from freqStart to freqEnd, counted in hundredths, share the width
 * between the margins. A scale without a step has one tick at the left margin.
 */
void MKARVOSlider::initSliderRange()
{
    m_leftX = float((Whole(m_marginX) + rect().left()).value());
    m_widthF = float(width());
    m_stepCount = quotient(toInt(double((m_freqEnd - m_freqStart) * 100.0F)),
                           toInt(double(m_freqStep * 100.0F)));
    m_lineGap = ratio(m_widthF - float((2 * Whole(m_marginX)).value()), float(m_stepCount));
}

/**
 * A frequency snapped to the real band: its ends, or the nearest multiple of its step, counted in
 * hundredths; the middle between two goes up. What f has below a hundredth stays.
 */
float MKARVOSlider::calFreqRule(float freq)
{
    if (double(freq) < double(m_realMinFreq) - kSame)
        return m_realMinFreq;
    if (double(freq) > double(m_realMaxFreq) + kSame)
        return m_realMaxFreq;
    const int step = toInt(double(m_realFreqStep * 100.0F));
    const Whole hundredths = toInt(double(freq * 100.0F));
    const int rest = (hundredths - hundredths / step * step).value();
    const float base = freq * 100.0F - float(rest);
    if (rest < step / 2)
        return base / 100.0F;
    return (base + float(step)) / 100.0F;
}

/** Whether the drawn scale reaches this frequency, in display units. */
bool MKARVOSlider::isValidFreq(float freq)
{
    return m_freqStart <= freq && freq <= m_freqEnd;
}

void MKARVOSlider::paintEvent(QPaintEvent *e)
{
    const Look now = look();
    if (!m_look || m_look->inputs != now.inputs)
        layOut(now);
    QColor faint = m_lineColor;
    faint.setAlpha(kFaintAlpha);
    QPainter painter(this);
    painter.setFont(m_font);
    m_picture->draw(painter, e ? e->rect() : rect(), m_lineColor, faint);
    drawIndicator(painter);
}

/** The scale takes the new width at once. */
void MKARVOSlider::resizeEvent(QResizeEvent *e)
{
    if (e)
        initSliderRange();
}

/** A press is reported and tunes nothing yet. */
void MKARVOSlider::mousePressEvent(QMouseEvent *e)
{
    if (e)
        m_pressPoint = e->pos();
    emit mousePressed(true);
}

/** The tuned frequency is the one under the finger, snapped; a change repaints and is reported. */
void MKARVOSlider::mouseMoveEvent(QMouseEvent *e)
{
    if (e)
        tune(freqAt(e->pos().x()));
}

/** The end of a press is reported first, then, as in a move, a change of the frequency. */
void MKARVOSlider::mouseReleaseEvent(QMouseEvent *e)
{
    const float freq = e ? freqAt(e->pos().x()) : m_curFreq;
    const QPointer<MKARVOSlider> guard(this);
    emit mousePressed(false);
    if (guard)
        tune(freq);
}

/**
 * A band from the tuner, in display units. It is the one that drags snap to; the drawn scale stays
 * as its properties say, on purpose.
 */
void MKARVOSlider::freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep)
{
    QMessageLogger("src/mkarvoslider", __LINE__,
                   "void MKARVOSlider::freqParamChangedSlot(bool, float, float, float)")
            .debug()
        << "====>>>>freqParamChangedSlot " << isFM << freqMin << freqMax << freqStep;
    setIsFM(isFM);
    setRealMinFreq(freqMin);
    setRealMaxFreq(freqMax);
    setRealFreqStep(freqStep);
    initSliderRange();
    update();
}

/** Tunes from outside: for FM in hundredths, for AM in display units. */
void MKARVOSlider::curFreqChangedSlot(float freq)
{
    setCurFreq(m_isFM ? freq / 100.0F : freq);
}

int MKARVOSlider::wholeFreqStart() const
{
    return toInt(double(m_freqStart));
}

void MKARVOSlider::setWholeFreqStart(int freq)
{
    setFreqStart(float(freq));
}

int MKARVOSlider::wholeFreqEnd() const
{
    return toInt(double(m_freqEnd));
}

void MKARVOSlider::setWholeFreqEnd(int freq)
{
    setFreqEnd(float(freq));
}

int MKARVOSlider::wholeFreqStep() const
{
    return toInt(double(m_freqStep));
}

void MKARVOSlider::setWholeFreqStep(int step)
{
    setFreqStep(float(step));
}

int MKARVOSlider::wholeCurFreq() const
{
    return toInt(double(m_curFreq));
}

void MKARVOSlider::setWholeCurFreq(int freq)
{
    setCurFreq(float(freq));
}

float MKARVOSlider::freqAt(int x)
{
    const float steps = ratio(float(x) - m_leftX, m_lineGap);
    return calFreqRule(std::fma(m_freqStep, steps, m_freqStart));
}

// AM leaves in whole units, whatever fraction the snapping has carried along.
void MKARVOSlider::tune(float freq)
{
    if (!(double(std::fabs(freq - m_curFreq)) > kSame))
        return;
    m_curFreq = freq;
    update();
    emit freqChangedSgl(m_isFM ? m_curFreq * 100.0F : float(toInt(double(m_curFreq))));
}

MKARVOSlider::Look MKARVOSlider::look() const
{
    return {{size(), m_leftX, m_lineGap, m_stepCount, m_lineH, m_freqStart, m_freqStep, m_isFM,
             m_scaleMode, m_textPosition, m_textMarginY, m_scaleMarginY}};
}

// x is summed up tick by tick, as the ticks have always stood, and not multiplied, which would
// round otherwise.
void MKARVOSlider::layOut(const Look &look)
{
    m_look = std::make_unique<Look>(look);
    m_picture->clear(size());
    const auto freqAt = [this](int step) {
        return std::fma(float(step), m_freqStep, m_freqStart);
    };
    const int stride =
        strideOf(m_stepCount, [&](int step) { return kindOf(freqAt(step), m_isFM); });
    const float gap = m_lineGap * float(stride);
    float x = m_leftX;
    for (qint64 i = 0; i <= m_stepCount; i += stride, x += gap) {
        const float freq = freqAt(int(i));
        const Tick tick{x, freq, kindOf(freq, m_isFM)};
        if (tick.kind == Minor)
            continue;
        addLines(tick);
        if (tick.kind == Major)
            addLabel(tick);
    }
}

void MKARVOSlider::addLines(const Tick &tick)
{
    const Shape shape = shapeOf(m_scaleMode);
    const auto add = [&](ScalePicture::Tone tone, const Span &span) {
        const int from = saturated(tickBase() + qint64(span.from) * m_lineH);
        const int to = saturated(tickBase() + qint64(span.to) * m_lineH);
        m_picture->addLine(tone, from == to ? pointColumn(tick.x) : lineColumn(tick.x), from, to);
    };
    if (tick.kind == Major) {
        add(ScalePicture::Solid, shape.major);
        return;
    }
    add(ScalePicture::Faint, shape.faint);
    add(ScalePicture::Solid, shape.solid);
}

void MKARVOSlider::addLabel(const Tick &tick)
{
    const QRectF box(qreal(tick.x - kLabelWidth / 2), qreal(labelTop()), qreal(kLabelWidth),
                     kLabelHeight);
    m_picture->addLabel(box, double(tick.freq), written);
}

int MKARVOSlider::tickBase() const
{
    const qint64 aboveText = qint64(height()) - 1 - kLabelHeight + m_textMarginY + m_scaleMarginY;
    const bool isTextTop = m_textPosition == TextTop;
    if (m_scaleMode == AlignTop)
        return saturated(isTextTop ? qint64(kLabelHeight) + m_textMarginY + m_scaleMarginY
                                   : m_scaleMarginY);
    if (m_scaleMode == AlignCenter)
        return saturated(isTextTop ? m_scaleMarginY : aboveText);
    return saturated(isTextTop ? qint64(height()) - 1 + m_scaleMarginY : aboveText);
}

int MKARVOSlider::labelTop() const
{
    if (m_textPosition == TextTop)
        return m_textMarginY;
    return saturated(qint64(height()) - 1 - kLabelHeight + m_textMarginY);
}

void MKARVOSlider::drawIndicator(QPainter &painter) const
{
    const float steps = ratio((m_curFreq - m_freqStart) * 100.0F, m_freqStep * 100.0F);
    const int middle = toInt(double(std::fma(m_lineGap, steps, m_leftX)));
    const QSize size = m_indicatePix.size();
    const int left = saturated(qint64(middle) - size.width() / 2);
    const int top = saturated(qint64((height() - size.height()) / 2) + m_pointMarginY);
    const QRectF target({qreal(left), qreal(top)}, QSizeF(size));
    if (target.intersects(QRectF(rect())))
        painter.drawPixmap(target, m_indicatePix, QRectF());
}
