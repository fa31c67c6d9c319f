// SPDX-License-Identifier: Apache-2.0
#include "mradioslider.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/memo.h"
#include "detail/scalepicture.h"

#include <QDebug>
#include <QMessageLogger>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QPoint>

#include <algorithm>
#include <cmath>

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

QString written(double freq) { return QStringLiteral("%1").arg(freq); }

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

class Q_DECL_HIDDEN MRadioSlider::Private
{
public:
    explicit Private(MRadioSlider *widget) : q(widget) { }

    // What the picture of the scale depends on. The colour and the font come with each paint.
    struct Look {
        QSize size; // px
        int scrollX; // px
        int stepCount;
        int lineH; // px
        int lineGap; // px
        float freqStart;
        float freqStep;
        bool isFM;
        ScaleAlignmentMode scaleMode;
        TextPosition textPosition;
        int textMarginY; // px
        int scaleMarginY; // px

        auto tied() const
        {
            return std::tie(size, scrollX, stepCount, lineH, lineGap, freqStart, freqStep, isFM,
                            scaleMode, textPosition, textMarginY, scaleMarginY);
        }
    };

    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    Look look() const;
    void layOut();
    void addTick(int count, int x);
    int tickBase() const;
    int labelTop() const;
    void drawIndicator(QPainter &painter) const;

    MRadioSlider *const q;
    QPixmap indicatePix;
    QColor lineColor;
    QFont font;
    QPoint pressPoint; // of the press or the last move
    int scrollX = 0; // px, x of the tick of freqStart
    int minScrollX = 0; // px
    int maxScrollX = 0; // px
    int stepCount = 0;
    int lineH = 8; // px, of a minor tick
    int lineW = 1; // px, without effect
    int lineGap = 5; // px from tick to tick
    float freqStart = 87.5F;
    float freqEnd = 108.0F;
    float freqStep = 0.1F;
    bool isFM = true;
    int marginY = 0; // px, without effect
    ScaleAlignmentMode scaleMode = AlignBottom;
    TextPosition textPosition = TextBottom;
    int textMarginY = 0; // px
    int scaleMarginY = 0; // px
    int pointMarginY = 0; // px
    float curFreq = freqStart;

    LastKey<Look> drawnLook; // of the picture
    ScalePicture picture;
};

/**
 * An FM tuner for 87.5 to 108.0 MHz in steps of 0.1 with a tick every 5 px. The first tick stands
 * at the left edge until the first setCurFreq() or drag.
 */
MRadioSlider::MRadioSlider(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::RadioSlider, Private::tell);
    initSliderRange();
}

MRadioSlider::~MRadioSlider() = default;

QPixmap MRadioSlider::getIndicatePix() const { return d->indicatePix; }

/** The picture in the middle of the widget, at its own size; none by default. Stored only. */
void MRadioSlider::setIndicatePix(const QPixmap &pixmap) { d->indicatePix = pixmap; }

QColor MRadioSlider::getLineColor() const { return d->lineColor; }

/** The colour of ticks and labels; an invalid one, the default, is drawn in black. Stored only. */
void MRadioSlider::setLineColor(const QColor &color) { d->lineColor = color; }

QFont MRadioSlider::getFont() const { return d->font; }

/** The font of the labels; it hides the widget's own, so that a form sets the one that shows.
 * Stored only. */
void MRadioSlider::setFont(const QFont &font) { d->font = font; }

int MRadioSlider::getLineH() const { return d->lineH; }

/** The length of a minor tick in px, 8 by default; middle ones are twice and major ones three times
 * as long. Stored only. */
void MRadioSlider::setLineH(int height) { d->lineH = height; }

int MRadioSlider::getLineW() const { return d->lineW; }

/** Stored only, and without effect: ticks are one pixel wide (kept behaviour). */
void MRadioSlider::setLineW(int width) { d->lineW = width; }

int MRadioSlider::getLineGap() const { return d->lineGap; }

/** The distance from tick to tick in px, 5 by default. Stored only; how far the scale can be
 * dragged stays. */
void MRadioSlider::setLineGap(int gap) { d->lineGap = gap; }

float MRadioSlider::getFreqStart() const { return d->freqStart; }

/** The first frequency of the scale, 87.5 by default. Stored only. */
void MRadioSlider::setFreqStart(float freq) { d->freqStart = freq; }

float MRadioSlider::getFreqEnd() const { return d->freqEnd; }

/** The last frequency of the scale, 108.0 by default. Stored only. */
void MRadioSlider::setFreqEnd(float freq) { d->freqEnd = freq; }

float MRadioSlider::getFreqStep() const { return d->freqStep; }

/** The frequency from tick to tick, 0.1 by default. Stored only. */
void MRadioSlider::setFreqStep(float step) { d->freqStep = step; }

float MRadioSlider::getCurFreq() const { return d->curFreq; }

/**
 * Tunes: the frequency, in display units, comes under the middle, and the scale repaints. Ignored
 * outside the scale. The fraction of a step is kept and shows as so many px.
 */
void MRadioSlider::setCurFreq(float freq)
{
    if (!isValidFreq(freq))
        return;
    d->curFreq = freq;
    const float way = ratio((freq - d->freqStart) * float(d->lineGap), d->freqStep);
    const int middle = width() / 2;
    d->scrollX = toInt(double(float(middle) - way));
    update();
}

bool MRadioSlider::getIsFM() const { return d->isFM; }

/** Whether ticks and labels are those of FM, the default, and the outer frequencies hundredths.
 * Stored only. */
void MRadioSlider::setIsFM(bool isFM) { d->isFM = isFM; }

int MRadioSlider::marginY() const { return d->marginY; }

/** Repaints, but has no effect on the picture (kept behaviour). */
void MRadioSlider::setMarginY(int margin)
{
    d->marginY = margin;
    update();
}

MRadioSlider::ScaleAlignmentMode MRadioSlider::scaleAlign() const { return d->scaleMode; }

/** Where the ticks stand, AlignBottom by default and for a value that is none. Stored only. */
void MRadioSlider::setScaleAlign(const ScaleAlignmentMode &mode) { d->scaleMode = mode; }

MRadioSlider::TextPosition MRadioSlider::getTextPosition() const { return d->textPosition; }

/** Where the labels stand, TextBottom by default and for a value that is none. Stored only. */
void MRadioSlider::setTextPosition(const TextPosition &position) { d->textPosition = position; }

int MRadioSlider::getTextMarginY() const { return d->textMarginY; }

/** How far down the labels are moved, in px. Ticks beside them move too. Stored only. */
void MRadioSlider::setTextMarginY(int margin) { d->textMarginY = margin; }

int MRadioSlider::getScaleMarginY() const { return d->scaleMarginY; }

/** How far down the ticks are moved, in px. Stored only. */
void MRadioSlider::setScaleMarginY(int margin) { d->scaleMarginY = margin; }

int MRadioSlider::getPointMarginY() const { return d->pointMarginY; }

/** How far down the indicator is moved, in px. Stored only. */
void MRadioSlider::setPointMarginY(int margin) { d->pointMarginY = margin; }

/**
 * Works out how many steps the scale has, in hundredths, and how far it can be dragged: until
 * either end stands in the middle. Called for a new band, not for a new size.
 */
void MRadioSlider::initSliderRange()
{
    d->stepCount = quotient(toInt(double((d->freqEnd - d->freqStart) * 100.0F)),
                            toInt(double(d->freqStep * 100.0F)));
    d->maxScrollX = width() / 2;
    d->minScrollX = saturated(width() / 2 - qint64(d->stepCount) * d->lineGap);
}

/** Whether the scale reaches this frequency, in display units. */
bool MRadioSlider::isValidFreq(float freq) { return d->freqStart <= freq && freq <= d->freqEnd; }

void MRadioSlider::paintEvent(QPaintEvent *e)
{
    if (d->drawnLook.changesTo(d->look()))
        d->layOut();
    QPainter painter(this);
    painter.setFont(d->font);
    d->picture.draw(painter, e->rect(), d->lineColor);
    d->drawIndicator(painter);
}

/** A press only marks where a drag starts. */
void MRadioSlider::mousePressEvent(QMouseEvent *e) { d->pressPoint = e->pos(); }

/**
 * The scale follows the finger pixel by pixel up to its ends; the tuned frequency goes in whole
 * steps. Nothing is reported before the release. The debug log gets two lines: where the finger was
 * and where it is.
 */
void MRadioSlider::mouseMoveEvent(QMouseEvent *e)
{
    const QMessageLogger log("src/mradioslider", __LINE__,
                             "virtual void MRadioSlider::mouseMoveEvent(QMouseEvent*)");
    log.debug() << "pressPoint.x():" << d->pressPoint.x();
    log.debug() << "curPoint.x():" << e->pos().x();
    const qint64 way = qint64(e->pos().x()) - d->pressPoint.x();
    d->pressPoint = e->pos();

    d->scrollX = saturated(d->scrollX + way);
    if (d->scrollX < d->minScrollX)
        d->scrollX = d->minScrollX;
    else if (d->scrollX > d->maxScrollX)
        d->scrollX = d->maxScrollX;
    const int steps = quotient(saturated(qint64(width() / 2) - d->scrollX), d->lineGap);
    d->curFreq = d->freqStart + d->freqStep * float(steps);
    update();
}

/** Every release reports the tuned frequency, dragged or not: for FM in hundredths. */
void MRadioSlider::mouseReleaseEvent(QMouseEvent *)
{
    emit freqChangedSgl(d->isFM ? d->curFreq * 100.0F : d->curFreq);
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
void MRadioSlider::curFreqChangedSlot(float freq) { setCurFreq(d->isFM ? freq / 100.0F : freq); }

int MRadioSlider::wholeFreqStart() const { return toInt(double(d->freqStart)); }

void MRadioSlider::setWholeFreqStart(int freq) { setFreqStart(float(freq)); }

int MRadioSlider::wholeFreqEnd() const { return toInt(double(d->freqEnd)); }

void MRadioSlider::setWholeFreqEnd(int freq) { setFreqEnd(float(freq)); }

int MRadioSlider::wholeFreqStep() const { return toInt(double(d->freqStep)); }

void MRadioSlider::setWholeFreqStep(int step) { setFreqStep(float(step)); }

int MRadioSlider::wholeCurFreq() const { return toInt(double(d->curFreq)); }

void MRadioSlider::setWholeCurFreq(int freq) { setCurFreq(float(freq)); }

MRadioSlider::Private::Look MRadioSlider::Private::look() const
{
    return {q->size(), scrollX, stepCount, lineH,        lineGap,     freqStart,
            freqStep,  isFM,    scaleMode, textPosition, textMarginY, scaleMarginY};
}

void MRadioSlider::Private::layOut()
{
    picture.clear(q->size());
    const Counts visible = visibleCounts(stepCount, scrollX, lineGap, q->width());
    for (qint64 i = visible.first; i <= visible.last; ++i)
        addTick(int(i), saturated(scrollX + i * lineGap));
}

// AlignCenter is AlignBottom with the shorter ticks raised. The multiply-add is a fused one,
// without which some frequencies would miss their tick kind on one processor and not on another.
void MRadioSlider::Private::addTick(int count, int x)
{
    const float freq = std::fma(float(count), freqStep, freqStart);
    const TickKind kind = kindOf(freq, isFM);
    const qint64 base = tickBase();
    const qint64 length = qint64(lineH) * (kind == Major ? 3 : kind == Middle ? 2 : 1);
    if (scaleMode == AlignTop) {
        picture.addLine(ScalePicture::Solid, x, saturated(base), saturated(base + length));
    } else {
        const int raised = kind == Major ? 0 : kind == Middle ? lineH / 2 : lineH;
        const qint64 foot = scaleMode == AlignCenter ? base - raised : base;
        picture.addLine(ScalePicture::Solid, x, saturated(foot), saturated(foot - length));
    }
    if (kind == Major) {
        const int halfLabel = kLabelWidth / 2;
        const QRectF box(qreal(x) - qreal(halfLabel), qreal(labelTop()), kLabelWidth, kLabelHeight);
        picture.addLabel(box, double(freq), written);
    }
}

int MRadioSlider::Private::tickBase() const
{
    const qint64 beforeText = qint64(q->height()) - 1 + scaleMarginY;
    const qint64 text = qint64(kLabelHeight) + textMarginY;
    if (scaleMode == AlignTop)
        return saturated(scaleMarginY + (textPosition == TextTop ? text : 0));
    return saturated(textPosition == TextTop ? beforeText
                                             : beforeText - kLabelHeight + textMarginY);
}

int MRadioSlider::Private::labelTop() const
{
    if (textPosition == TextTop)
        return textMarginY;
    return saturated(qint64(q->height()) - 1 - kLabelHeight + textMarginY);
}

void MRadioSlider::Private::drawIndicator(QPainter &painter) const
{
    const QSize size = indicatePix.size();
    const int left = (q->width() - size.width()) / 2;
    const int top = saturated(qint64((q->height() - size.height()) / 2) + pointMarginY);
    const QRectF target({qreal(left), qreal(top)}, QSizeF(size));
    if (target.intersects(QRectF(q->rect())))
        painter.drawPixmap(target, indicatePix, QRectF());
}

// To accessibility.
double MRadioSlider::Private::tell(const QWidget *widget, AccessibleFact, const QPoint &)
{
    return static_cast<const MRadioSlider *>(widget)->d->scrollX;
}
