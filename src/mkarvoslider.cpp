// SPDX-License-Identifier: Apache-2.0
#include "mkarvoslider.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/memo.h"
#include "detail/scalepicture.h"
#include "detail/wholenumber.h"

#include <QDebug>
#include <QMessageLogger>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QPoint>
#include <QPointer>
#include <QResizeEvent>

#include <cmath>

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

// What is faint is a point at the top, the upper third, or all of a line that is longer than a
// major one (kept behaviour). A mode that is none is AlignBottom.
Shape shapeOf(MKARVOSlider::ScaleAlignmentMode mode)
{
    if (mode == MKARVOSlider::AlignTop)
        return {{0, 3}, {0, 0}, {0, 2}};
    if (mode == MKARVOSlider::AlignCenter)
        return {{0, 3}, {0, 1}, {1, 3}};
    return {{0, -3}, {0, -4}, {-4, -2}};
}

// The column of pixels in which Qt draws a line at x, which it takes in 64ths of a pixel.
int lineColumn(float x) { return toInt(double(x) * 64) >> 6; }

// The column of a line without length, which Qt draws as a point.
int pointColumn(float x) { return toInt(std::floor(double(x) + 0.5)); }

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

QString written(double freq) { return QStringLiteral("%1").arg(freq); }

} // namespace

class Q_DECL_HIDDEN MKARVOSlider::Private
{
public:
    explicit Private(MKARVOSlider *widget) : q(widget) { }

    // What the picture of the scale depends on. The colour and the font come with each paint.
    struct Look {
        QSize size; // px
        float leftX; // px
        float lineGap; // px
        int stepCount;
        int lineH; // px
        float freqStart;
        float freqStep;
        bool isFM;
        ScaleAlignmentMode scaleMode;
        TextPosition textPosition;
        int textMarginY; // px
        int scaleMarginY; // px

        auto tied() const
        {
            return std::tie(size, leftX, lineGap, stepCount, lineH, freqStart, freqStep, isFM,
                            scaleMode, textPosition, textMarginY, scaleMarginY);
        }
    };

    struct Tick;

    float freqAt(int x);
    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    void tune(float freq);
    Look look() const;
    void layOut();
    void addLines(const Tick &tick);
    void addLabel(const Tick &tick);
    int tickBase() const;
    int labelTop() const;
    void drawIndicator(QPainter &painter) const;

    MKARVOSlider *const q;
    QPixmap indicatePix;
    QColor lineColor{255, 255, 255, 255};
    QFont font;
    QPoint pressPoint;
    float leftX = 0; // px, x of the first tick
    float widthF = 0; // px
    float realMinFreq = 1620.0F; // above the maximum until a band comes (kept behaviour)
    float realMaxFreq = 522.0F;
    float realFreqStep = 9.0F;
    int stepCount = 0;
    int lineH = 30; // px
    int lineW = 1; // px, without effect
    float lineGap = 5.0F; // px from step to step
    float freqStart = 500.0F;
    float freqEnd = 1720.0F;
    float freqStep = 20.0F;
    bool isFM = false;
    int marginY = 0; // px, without effect
    int marginX = 35; // px, left and right of the scale
    ScaleAlignmentMode scaleMode = AlignCenter;
    TextPosition textPosition = TextTop;
    int textMarginY = 5; // px
    int scaleMarginY = 40; // px
    int pointMarginY = 46; // px
    float curFreq = 800.0F;

    LastKey<Look> drawnLook; // of the picture
    ScalePicture picture;
};

struct MKARVOSlider::Private::Tick {
    float x; // px
    float freq;
    TickKind kind;
};

/**
 * An AM tuner with a scale from 500 to 1720 and a tick every 20, tuned to 800. Its snapping band is
 * upside down until freqParamChangedSlot() brings one: whatever is dragged before becomes 1620 or
 * 522 (kept behaviour).
 */
MKARVOSlider::MKARVOSlider(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::KarvoSlider, Private::tell);
    d->font.setPixelSize(20);
    initSliderRange();
}

MKARVOSlider::~MKARVOSlider() = default;

QPixmap MKARVOSlider::getIndicatePix() const { return d->indicatePix; }

/** The picture at the tuned frequency, at its own size; none by default. Stored only. */
void MKARVOSlider::setIndicatePix(const QPixmap &pixmap) { d->indicatePix = pixmap; }

QColor MKARVOSlider::getLineColor() const { return d->lineColor; }

/** The colour of ticks and labels, white by default; an invalid one is drawn in black. Stored only.
 */
void MKARVOSlider::setLineColor(const QColor &color) { d->lineColor = color; }

QFont MKARVOSlider::getFont() const { return d->font; }

/** The font of the labels, of 20 px by default; it hides the widget's own, so that a form sets the
 * one that shows. Stored only. */
void MKARVOSlider::setFont(const QFont &font) { d->font = font; }

int MKARVOSlider::getLineH() const { return d->lineH; }

/** A third of the length of a major tick in px, 30 by default. Stored only. */
void MKARVOSlider::setLineH(int height) { d->lineH = height; }

int MKARVOSlider::getLineW() const { return d->lineW; }

/** Stored only, and without effect: ticks are one pixel wide (kept behaviour). */
void MKARVOSlider::setLineW(int width) { d->lineW = width; }

/** The distance from step to step, truncated to px. */
int MKARVOSlider::getLineGap() const { return toInt(double(d->lineGap)); }

/** Sets the distance from step to step in px until the scale is laid out the next time. Stored
 * only. */
void MKARVOSlider::setLineGap(int gap) { d->lineGap = float(gap); }

float MKARVOSlider::getFreqStart() const { return d->freqStart; }

/** The first frequency of the scale, 500 by default. Stored only: the number of steps stays until
 * the scale is laid out the next time. */
void MKARVOSlider::setFreqStart(float freq) { d->freqStart = freq; }

float MKARVOSlider::getFreqEnd() const { return d->freqEnd; }

/** The last frequency of the scale, 1720 by default. Stored only, in the manner of setFreqStart().
 */
void MKARVOSlider::setFreqEnd(float freq) { d->freqEnd = freq; }

float MKARVOSlider::getFreqStep() const { return d->freqStep; }

/** The frequency from step to step, 20 by default. Lays the scale out and repaints. */
void MKARVOSlider::setFreqStep(float step)
{
    d->freqStep = step;
    initSliderRange();
    update();
}

float MKARVOSlider::getCurFreq() const { return d->curFreq; }

/** Tunes, in display units, without a signal, and repaints. Ignored outside the scale; not snapped.
 */
void MKARVOSlider::setCurFreq(float freq)
{
    if (!isValidFreq(freq))
        return;
    d->curFreq = freq;
    update();
}

bool MKARVOSlider::getIsFM() const { return d->isFM; }

/** Whether ticks and labels are those of FM and the outer frequencies hundredths; false by default.
 * Lays the scale out and repaints. */
void MKARVOSlider::setIsFM(bool isFM)
{
    d->isFM = isFM;
    initSliderRange();
    update();
}

int MKARVOSlider::marginY() const { return d->marginY; }

/** Repaints, but has no effect on the picture (kept behaviour). */
void MKARVOSlider::setMarginY(int margin)
{
    d->marginY = margin;
    update();
}

int MKARVOSlider::marginX() const { return d->marginX; }

/** The margin left and right of the scale in px, 35 by default. Lays the scale out and repaints. */
void MKARVOSlider::setMarginX(int margin)
{
    d->marginX = margin;
    initSliderRange();
    update();
}

MKARVOSlider::ScaleAlignmentMode MKARVOSlider::scaleAlign() const { return d->scaleMode; }

/** Where the ticks stand, AlignCenter by default; a value that is none stands for AlignBottom.
 * Stored only. */
void MKARVOSlider::setScaleAlign(const ScaleAlignmentMode &mode) { d->scaleMode = mode; }

MKARVOSlider::TextPosition MKARVOSlider::getTextPosition() const { return d->textPosition; }

/** Where the labels stand, TextTop by default; a value that is none stands for TextBottom. Stored
 * only. */
void MKARVOSlider::setTextPosition(const TextPosition &position) { d->textPosition = position; }

int MKARVOSlider::getTextMarginY() const { return d->textMarginY; }

/** How far down the labels are moved, 5 px by default. Ticks beside them move too. Stored only. */
void MKARVOSlider::setTextMarginY(int margin) { d->textMarginY = margin; }

int MKARVOSlider::getScaleMarginY() const { return d->scaleMarginY; }

/** How far down the ticks are moved, 40 px by default. Stored only. */
void MKARVOSlider::setScaleMarginY(int margin) { d->scaleMarginY = margin; }

int MKARVOSlider::getPointMarginY() const { return d->pointMarginY; }

/** How far down the indicator is moved, 46 px by default. Stored only. */
void MKARVOSlider::setPointMarginY(int margin) { d->pointMarginY = margin; }

float MKARVOSlider::getRealMinFreq() const { return d->realMinFreq; }

/** The lower end of the band that drags snap to, 1620 by default. Stored only. */
void MKARVOSlider::setRealMinFreq(float freq) { d->realMinFreq = freq; }

float MKARVOSlider::getRealMaxFreq() const { return d->realMaxFreq; }

/** The upper end of the band that drags snap to, 522 by default. Stored only. */
void MKARVOSlider::setRealMaxFreq(float freq) { d->realMaxFreq = freq; }

float MKARVOSlider::getRealFreqStep() const { return d->realFreqStep; }

/** The step that drags snap to, 9 by default. Stored only. */
void MKARVOSlider::setRealFreqStep(float step) { d->realFreqStep = step; }

/**
 * Lays the scale out: the steps from freqStart to freqEnd, counted in hundredths, share the width
 * between the margins. A scale without a step has one tick at the left margin.
 */
void MKARVOSlider::initSliderRange()
{
    d->leftX = float((Whole(d->marginX) + rect().left()).value());
    d->widthF = float(width());
    d->stepCount = quotient(toInt(double((d->freqEnd - d->freqStart) * 100.0F)),
                            toInt(double(d->freqStep * 100.0F)));
    d->lineGap = ratio(d->widthF - float((2 * Whole(d->marginX)).value()), float(d->stepCount));
}

/**
 * A frequency snapped to the real band: its ends, or the nearest multiple of its step, counted in
 * hundredths; the middle between two goes up. What f has below a hundredth stays.
 */
float MKARVOSlider::calFreqRule(float freq)
{
    if (double(freq) < double(d->realMinFreq) - kSame)
        return d->realMinFreq;
    if (double(freq) > double(d->realMaxFreq) + kSame)
        return d->realMaxFreq;
    const int step = toInt(double(d->realFreqStep * 100.0F));
    const Whole hundredths = toInt(double(freq * 100.0F));
    const int rest = (hundredths - hundredths / step * step).value();
    const float base = freq * 100.0F - float(rest);
    if (rest < step / 2)
        return base / 100.0F;
    return (base + float(step)) / 100.0F;
}

/** Whether the drawn scale reaches this frequency, in display units. */
bool MKARVOSlider::isValidFreq(float freq) { return d->freqStart <= freq && freq <= d->freqEnd; }

void MKARVOSlider::paintEvent(QPaintEvent *e)
{
    if (d->drawnLook.changesTo(d->look()))
        d->layOut();
    QColor faint = d->lineColor;
    faint.setAlpha(kFaintAlpha);
    QPainter painter(this);
    painter.setFont(d->font);
    d->picture.draw(painter, e->rect(), d->lineColor, faint);
    d->drawIndicator(painter);
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
    d->pressPoint = e->pos();
    emit mousePressed(true);
}

/** The tuned frequency is the one under the finger, snapped; a change repaints and is reported. */
void MKARVOSlider::mouseMoveEvent(QMouseEvent *e) { d->tune(d->freqAt(e->pos().x())); }

/** The end of a press is reported first, then, as in a move, a change of the frequency. */
void MKARVOSlider::mouseReleaseEvent(QMouseEvent *e)
{
    const float freq = d->freqAt(e->pos().x());
    const QPointer<MKARVOSlider> guard(this);
    emit mousePressed(false);
    if (guard)
        d->tune(freq);
}

/**
 * A band from the tuner, in display units. It is the one that drags snap to; the drawn scale stays
 * as its properties say, so that it may have rounder ends than the band.
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
void MKARVOSlider::curFreqChangedSlot(float freq) { setCurFreq(d->isFM ? freq / 100.0F : freq); }

int MKARVOSlider::wholeFreqStart() const { return toInt(double(d->freqStart)); }

void MKARVOSlider::setWholeFreqStart(int freq) { setFreqStart(float(freq)); }

int MKARVOSlider::wholeFreqEnd() const { return toInt(double(d->freqEnd)); }

void MKARVOSlider::setWholeFreqEnd(int freq) { setFreqEnd(float(freq)); }

int MKARVOSlider::wholeFreqStep() const { return toInt(double(d->freqStep)); }

void MKARVOSlider::setWholeFreqStep(int step) { setFreqStep(float(step)); }

int MKARVOSlider::wholeCurFreq() const { return toInt(double(d->curFreq)); }

void MKARVOSlider::setWholeCurFreq(int freq) { setCurFreq(float(freq)); }

float MKARVOSlider::Private::freqAt(int x)
{
    const float steps = ratio(float(x) - leftX, lineGap);
    return q->calFreqRule(std::fma(freqStep, steps, freqStart));
}

// AM leaves in whole units, whatever fraction the snapping has carried along (kept behaviour).
void MKARVOSlider::Private::tune(float freq)
{
    if (!(double(std::fabs(freq - curFreq)) > kSame))
        return;
    curFreq = freq;
    q->update();
    emit q->freqChangedSgl(isFM ? curFreq * 100.0F : float(toInt(double(curFreq))));
}

MKARVOSlider::Private::Look MKARVOSlider::Private::look() const
{
    return {q->size(), leftX, lineGap,   stepCount,    lineH,       freqStart,
            freqStep,  isFM,  scaleMode, textPosition, textMarginY, scaleMarginY};
}

// x is summed up tick by tick, as the ticks have always stood, and not multiplied, which would
// round otherwise.
void MKARVOSlider::Private::layOut()
{
    picture.clear(q->size());
    const auto freqAt = [this](int step) { return std::fma(float(step), freqStep, freqStart); };
    const int stride = strideOf(stepCount, [&](int step) { return kindOf(freqAt(step), isFM); });
    const float gap = lineGap * float(stride);
    float x = leftX;
    for (qint64 i = 0; i <= stepCount; i += stride, x += gap) {
        const float freq = freqAt(int(i));
        const Tick tick{x, freq, kindOf(freq, isFM)};
        if (tick.kind == Minor)
            continue;
        addLines(tick);
        if (tick.kind == Major)
            addLabel(tick);
    }
}

void MKARVOSlider::Private::addLines(const Tick &tick)
{
    const Shape shape = shapeOf(scaleMode);
    const auto add = [&](ScalePicture::Tone tone, const Span &span) {
        const int from = saturated(tickBase() + qint64(span.from) * lineH);
        const int to = saturated(tickBase() + qint64(span.to) * lineH);
        picture.addLine(tone, from == to ? pointColumn(tick.x) : lineColumn(tick.x), from, to);
    };
    if (tick.kind == Major) {
        add(ScalePicture::Solid, shape.major);
        return;
    }
    add(ScalePicture::Faint, shape.faint);
    add(ScalePicture::Solid, shape.solid);
}

void MKARVOSlider::Private::addLabel(const Tick &tick)
{
    const QRectF box(qreal(tick.x - kLabelWidth / 2), qreal(labelTop()), qreal(kLabelWidth),
                     kLabelHeight);
    picture.addLabel(box, double(tick.freq), written);
}

int MKARVOSlider::Private::tickBase() const
{
    const qint64 aboveText = qint64(q->height()) - 1 - kLabelHeight + textMarginY + scaleMarginY;
    const bool isTextTop = textPosition == TextTop;
    if (scaleMode == AlignTop)
        return saturated(isTextTop ? qint64(kLabelHeight) + textMarginY + scaleMarginY
                                   : scaleMarginY);
    if (scaleMode == AlignCenter)
        return saturated(isTextTop ? scaleMarginY : aboveText);
    return saturated(isTextTop ? qint64(q->height()) - 1 + scaleMarginY : aboveText);
}

int MKARVOSlider::Private::labelTop() const
{
    if (textPosition == TextTop)
        return textMarginY;
    return saturated(qint64(q->height()) - 1 - kLabelHeight + textMarginY);
}

void MKARVOSlider::Private::drawIndicator(QPainter &painter) const
{
    const float steps = ratio((curFreq - freqStart) * 100.0F, freqStep * 100.0F);
    const int middle = toInt(double(std::fma(lineGap, steps, leftX)));
    const QSize size = indicatePix.size();
    const int left = saturated(qint64(middle) - size.width() / 2);
    const int top = saturated(qint64((q->height() - size.height()) / 2) + pointMarginY);
    const QRectF target({qreal(left), qreal(top)}, QSizeF(size));
    if (target.intersects(QRectF(q->rect())))
        painter.drawPixmap(target, indicatePix, QRectF());
}

// To accessibility.
double MKARVOSlider::Private::tell(const QWidget *widget, AccessibleFact, const QPoint &at)
{
    return double(static_cast<const MKARVOSlider *>(widget)->d->freqAt(at.x()));
}
