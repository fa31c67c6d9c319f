// SPDX-License-Identifier: Apache-2.0
#include "mradiomovepoint.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/memo.h"
#include "detail/scalepicture.h"
#include "detail/wholenumber.h"

#include <QDebug>
#include <QMessageLogger>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QPointer>
#include <QSharedPointer>

#include <algorithm>

using namespace panelkit;

namespace
{

constexpr int kTop = 10; // px, where the scale stands in its owner
constexpr int kLabelReach = 40; // px from the middle of a label to its left side
// Without pixels per unit all labels or ticks stand at one place: so many of them are all drawn,
// and of more these last ones.
constexpr qint64 kMostPiled = 100000;
constexpr qint64 kLastPiled = 2048;

// Scale counts first, first + stride, ... below end. A stride that leads nowhere has only its
// first.
struct Counts {
    qint64 first;
    qint64 stride;
    qint64 end;

    qint64 size() const
    {
        if (first >= end)
            return 0;
        return stride > 0 ? (end - first + stride - 1) / stride : 1;
    }
};

// Calls `use` with each of the counts that stands between two positions or close by; a scale may
// have millions more. Positions are start + count * pix; counts so far off that these leave the
// range of an int are outside as well.
template <typename Use>
void forEachNear(const Counts &counts, int start, int pix, int left, int right, Use use)
{
    qint64 from = 0;
    qint64 to = counts.size();
    if (pix == 0) {
        from = to > kMostPiled ? to - kLastPiled : 0;
    } else if (counts.stride > 0) {
        const auto [lowest, highest] =
            std::minmax({(qint64(left) - start) / pix, (qint64(right) - start) / pix});
        from = std::max<qint64>(from, (lowest - 1 - counts.first) / counts.stride);
        to = std::min<qint64>(to, (highest + 1 - counts.first) / counts.stride + 1);
    }
    for (qint64 i = from; i < to; ++i)
        use(int(counts.first + i * counts.stride));
}

QString written(double value) { return QString::number(value, 'g', 6); }

// Qt adds the size of a widget to its place: a place at the limits of int would overflow.
QPoint boundedPoint(int x, int y) { return boundedRect(x, y, 0, 0).topLeft(); }

// The log names the file and the function in every build; Qt would leave them out of a release.
void log(int line, const char *function, const char *name)
{
    QMessageLogger("src/mradiomovepoint", line, function).debug() << name << line;
}

} // namespace

class Q_DECL_HIDDEN ScaleBkg::Private
{
public:
    explicit Private(ScaleBkg *widget) : q(widget) { }

    // What the picture depends on besides the scale itself, which drops it on a change.
    struct Look {
        QSize size; // px
        int lineYpos; // px
        int txtYpos; // px

        auto tied() const { return std::tie(size, lineYpos, txtYpos); }
    };

    Look look() const;
    void layOut(const Look &look);
    void layOutLabels(const Look &look);
    void layOutTicks(const Look &look);

    ScaleBkg *const q;
    int step = 0;
    int validStart = 0;
    int firstTick = 0; // frequency at scale count 0
    int validEnd = 0;
    int lastTick = 0; // frequency at the right end of the drawable width
    int posFactor = 10;
    MapPixAndHz map{1, 10};
    int pixCountMeta = 0; // scale units from tick to tick
    int bMid = 0; // scale units from label to label, ticks from middle to middle
    int bLarge = 0; // middle ticks from long to long
    int lineStart = 0; // px
    int lineEnd = 0; // px
    int tickUnitHeight = 6; // px
    int unitCount = 0;
    int lineY = 40; // px, the owner's at construction; drawing takes the current one
    bool isFM = false;
    QColor color; // invalid; drawing takes the owner's
    QPointer<MRadioMovePoint> owner;

    LastKey<Look> drawnLook; // of the picture
    ScalePicture picture;
};

/**
 * A scale in `parent`, as large as that one, that takes its colour, its rows and, from init() on,
 * its size from `owner`. The other numbers are those of resetParam().
 */
ScaleBkg::ScaleBkg(int freqStart, int freqEnd, int step, int lineStart, int lineEnd, bool isFM,
                   int suggestStart, int suggestEnd, MRadioMovePoint *owner, QWidget *parent,
                   int pixCountMeta, int bMid, int bLarge, int totalCountMeta)
    : QLabel(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
    d->owner = owner;
    if (owner)
        d->lineY = owner->getLineYpos();
    const QSize size = parent ? parent->size() : this->size();
    setGeometry(0, kTop, size.width(), size.height());
    resetParam(freqStart, freqEnd, step, lineStart, lineEnd, isFM, suggestStart, suggestEnd,
               pixCountMeta, bMid, bLarge, totalCountMeta);
}

ScaleBkg::~ScaleBkg() = default;

/**
 * Lays the scale out anew. Both band limits are rounded down to the step. One scale unit takes
 * (lineEnd - lineStart) / totalCountMeta pixels and as many frequency units as the suggested range
 * gives to these pixels, at least one; a suggested end of -1 takes the band, rounded down to
 * hundreds, for that range. A label stands every bMid scale units and a tick every pixCountMeta,
 * each bMid-th of them a middle one and each bMid * bLarge-th a long one.
 *
 * Every number is fine: quotients truncate, a division by zero is 0, and what exceeds 32 bits
 * wraps. Without pixels per unit there are no ticks.
 */
void ScaleBkg::resetParam(int freqStart, int freqEnd, int step, int lineStart, int lineEnd,
                          bool isFM, int suggestStart, int suggestEnd, int pixCountMeta, int bMid,
                          int bLarge, int totalCountMeta)
{
    d->step = step;
    d->validStart = getValidStartFreq(freqStart, step, true);
    d->validEnd = getValidStartFreq(freqEnd, step, false);
    d->lineEnd = lineEnd;
    d->pixCountMeta = pixCountMeta;
    d->bMid = bMid;
    d->bLarge = bLarge;
    d->lineStart = lineStart;
    d->isFM = isFM;

    const Whole lineWidth = Whole(lineEnd) - lineStart;
    d->map.pix = (lineWidth / totalCountMeta).value();
    if (suggestStart == -1 || suggestEnd == -1) {
        suggestStart = getValidStartFreq(d->validStart, 100, true);
        suggestEnd = getValidStartFreq(d->validEnd, 100, false);
    }
    d->map.hz = ((Whole(suggestEnd) - suggestStart) * d->map.pix / lineWidth).value();
    if (d->map.hz == 0)
        d->map.hz = 1;
    init();
}

/**
 * Takes the size of the owner and works out what depends on it: the first tick, two scale units
 * before the band on a unit boundary, and how many units fit between equal margins.
 */
void ScaleBkg::init()
{
    const QSize size = d->owner ? d->owner->size() : this->size();
    setGeometry(0, kTop, size.width(), size.height());
    const Whole hz = d->map.hz;
    d->firstTick = (Whole(d->validStart) / hz * hz - 2 * hz).value();
    const Whole span = (width() - 2 * Whole(d->lineStart)) * hz / d->map.pix;
    d->lastTick = (d->firstTick + span).value();
    d->unitCount = (span / hz).value();
    d->lineEnd = (d->lineStart + d->map.pix * Whole(d->unitCount) + 3 * Whole(d->map.pix)).value();
    d->drawnLook.forget();
}

/**
 * A frequency rounded toward zero to a multiple of the step. isStart makes no difference: both ends
 * of a band are rounded down alike (kept behaviour).
 */
int ScaleBkg::getValidStartFreq(int freq, int step, bool)
{
    return (Whole(freq) / step * step).value();
}

/** The x of a scale count, in px. */
int ScaleBkg::getPosByCount(int count)
{
    return (d->lineStart + count * Whole(d->map.pix)).value();
}

/** The frequency at x when ten units stand on each pixel, whatever the scale's geometry is. */
int ScaleBkg::getValueByPos(int pos)
{
    return (d->firstTick + (pos - Whole(d->lineStart)) * d->posFactor).value();
}

/** How many tick units high the tick at a frequency is: 3 for long, 2 for middle, 1 for short. */
int ScaleBkg::getBeishu(int freq)
{
    const Whole tick = freq / (d->map.hz * Whole(d->pixCountMeta));
    if (tick.isMultipleOf(Whole(d->bMid) * d->bLarge))
        return 3;
    return tick.isMultipleOf(d->bMid) ? 2 : 1;
}

/** The height of the tick at a scale count, in px. */
int ScaleBkg::getHeightByCount(int count)
{
    return d->tickUnitHeight * getBeishu((d->firstTick + count * Whole(d->map.hz)).value());
}

/**
 * The box of a label around x: 80 px wide, from the owner's txtYpos down to twice that and 19 px,
 * so that a label further down also has a higher box.
 */
QRect ScaleBkg::getRectBYCertalXpos(int x)
{
    const Whole top = d->owner ? d->owner->getTxtYpos() : 0;
    return {QPoint((x - Whole(kLabelReach)).value(), top.value()),
            QPoint((x + Whole(kLabelReach) - 1).value(), (2 * top + 19).value())};
}

/** Where the band starts in the parent, in px when ten units stand on each pixel, in tens. */
int ScaleBkg::getPointStart()
{
    const Whole factor = d->posFactor;
    return (x() + Whole(d->lineStart) + (Whole(d->validStart) - d->firstTick) / factor * factor)
        .value();
}

/** Where the band ends in the parent, in the manner of getPointStart(). */
int ScaleBkg::getPointEnd()
{
    const Whole factor = d->posFactor;
    return (x() + Whole(d->lineStart) + (Whole(d->validEnd) - d->firstTick) / factor * factor)
        .value();
}

/** For scales that know a further end; this one has none and says 0. */
int ScaleBkg::getEnd() { return 0; }

int ScaleBkg::getLine_start() const { return d->lineStart; }

/** Moves the scale count 0 to this x, in px. Stored only; ticks and labels move at the next paint.
 */
void ScaleBkg::setLine_start(int start)
{
    d->lineStart = start;
    d->drawnLook.forget();
}

int ScaleBkg::getLine_end() const { return d->lineEnd; }

/** Stored only; the next init() computes it anew. */
void ScaleBkg::setLine_end(int end) { d->lineEnd = end; }

/** Labels first and ticks over them. */
void ScaleBkg::paintEvent(QPaintEvent *e)
{
    if (!d->owner)
        return;
    const Private::Look now = d->look();
    if (d->drawnLook.changesTo(now))
        d->layOut(now);
    QPainter painter(this);
    d->picture.draw(painter, e->rect(), d->owner->getLineColor());
}

ScaleBkg::Private::Look ScaleBkg::Private::look() const
{
    return {q->size(), owner->getLineYpos(), owner->getTxtYpos()};
}

void ScaleBkg::Private::layOut(const Look &look)
{
    picture.clear(look.size);
    layOutLabels(look);
    layOutTicks(look);
}

// The three quotients of the first label are truncated separately, which is why labels need not
// stand at long ticks: they are stepped by scale units and the ticks by their own stride
// (kept behaviour).
void ScaleBkg::Private::layOutLabels(const Look &look)
{
    const Whole first = firstTick;
    const Whole firstCount =
        first / (map.hz * Whole(pixCountMeta)) / bMid * bMid + bMid - first / map.hz;
    const auto top = qreal(look.txtYpos);
    const qreal height = qreal((2 * Whole(look.txtYpos) + 20).value()) - top;
    const Counts counts{firstCount.value(), bMid, unitCount};
    constexpr int kReach = kLabelReach + ScalePicture::kOverhang;
    forEachNear(counts, lineStart, map.pix, -kReach, look.size.width() + kReach, [&](int count) {
        const int value = (first + count * Whole(map.hz)).value();
        const QRectF box(qreal(q->getPosByCount(count)) - kLabelReach, top, 2 * kLabelReach,
                         height);
        picture.addLabel(box, isFM ? float(value) / 100.0F : double(value), written);
    });
}

void ScaleBkg::Private::layOutTicks(const Look &look)
{
    constexpr int kReach = ScalePicture::kOverhang;
    forEachNear({0, pixCountMeta, unitCount}, lineStart, map.pix, -kReach,
                look.size.width() + kReach, [&](int count) {
                    const Whole foot = look.lineYpos;
                    picture.addLine(ScalePicture::Solid, q->getPosByCount(count),
                                    (foot - q->getHeightByCount(count)).value(), foot.value());
                });
}

class Q_DECL_HIDDEN MovePoint::Private
{
public:
    int lineStart = 0; // px, x of scale count 0
    int firstTick = 0; // frequency at scale count 0
    int minFreq = 0;
    int step = 0;
    int maxFreq = 0;
    MapPixAndHz map{};
    bool amFlag = false;
};

/**
 * A needle with this picture, as large as it, in its owner. It stands at the owner's pointYpos and
 * is moved sideways with moveByPos() and moveByFreq(). The other numbers are those of resetParam().
 */
MovePoint::MovePoint(int lineStart, int firstTick, int minFreq, int step, int maxFreq,
                     const MapPixAndHz &map, QPixmap *pixmap, MRadioMovePoint *owner)
    : QLabel(owner), d(std::make_unique<Private>())
{
    installAccessibility();
    d->lineStart = lineStart;
    d->firstTick = firstTick;
    d->minFreq = minFreq;
    d->step = step;
    d->maxFreq = maxFreq;
    d->map = map;
    if (pixmap) {
        setPixmap(*pixmap);
        setGeometry(pixmap->rect());
    }
    if (owner)
        move(boundedPoint(x(), owner->getPointYpos()));
}

MovePoint::~MovePoint() = default;

/**
 * Takes over a scale: its x of count 0 in px, its frequency there, its pixels and frequency units
 * per count, and the band with its step. The needle keeps its x and moves to the row that its
 * parent tells; a parent that is no MRadioMovePoint tells none.
 */
void MovePoint::resetParam(int lineStart, int firstTick, int minFreq, int step, int maxFreq,
                           const MapPixAndHz &map)
{
    d->lineStart = lineStart;
    d->firstTick = firstTick;
    d->minFreq = minFreq;
    d->step = step;
    d->maxFreq = maxFreq;
    d->map = map;
    if (const auto *tuner = qobject_cast<MRadioMovePoint *>(parentWidget()))
        move(boundedPoint(x(), tuner->getPointYpos()));
}

/** The frequency at an x of the owner: rounded toward zero to a step, within the band. */
int MovePoint::cacPosMapFreq(int pos)
{
    const Whole atPos = (pos - Whole(d->lineStart)) * d->map.hz / d->map.pix + d->firstTick;
    const int freq = (atPos / d->step * d->step).value();
    if (freq < d->minFreq)
        return d->minFreq;
    return freq >= d->maxFreq ? d->maxFreq : freq;
}

/**
 * The x at which a frequency is found. The quotient is truncated, so that the pixel may belong to
 * the step before; then it is the next one, which is not checked any further. Both cases are
 * logged.
 */
int MovePoint::cacFreqMapPos(int freq)
{
    const auto log = [](int line, const char *text) {
        QMessageLogger("src/mradiomovepoint", line, "int MovePoint::cacFreqMapPos(int)").debug()
            << text;
    };
    Whole pos = (Whole(freq) - d->firstTick) * d->map.pix / d->map.hz + d->lineStart;
    if (cacPosMapFreq(pos.value()) != freq) {
        log(__LINE__, "!!!!!!!!!!!!!!!!!=====");
        pos = pos + 1;
    }
    if (cacPosMapFreq(pos.value()) == freq)
        log(__LINE__, "========================");
    return pos.value();
}

/** The x of the valid frequency that an x stands for. */
int MovePoint::getPosValid(int pos) { return cacFreqMapPos(cacPosMapFreq(pos)); }

/** Whether this is a needle for AM; a plain one is. The library does not ask. */
bool MovePoint::isAm() { return true; }

/** Moves the needle's middle to the valid frequency at this x of the owner, in px. */
void MovePoint::moveByPos(int pos)
{
    const int middle = getPosValid(pos);
    move(boundedPoint((middle - Whole(width() / 2)).value(), y()));
}

/** Moves the needle to a frequency, or to the end of the band that is nearer. */
void MovePoint::moveByFreq(int freq) { moveByPos(cacFreqMapPos(freq)); }

/** Emits freqChanged() with the frequency under the needle's middle. */
void MovePoint::emitFreq()
{
    const Whole middle = x() + Whole(width() / 2);
    emit freqChanged(cacPosMapFreq(middle.value()), d->amFlag);
}

FmMovePoint::FmMovePoint(int lineStart, int firstTick, int minFreq, int step, int maxFreq,
                         const MapPixAndHz &map, QPixmap *pixmap, MRadioMovePoint *owner)
    : MovePoint(lineStart, firstTick, minFreq, step, maxFreq, map, pixmap, owner)
{
}

FmMovePoint::~FmMovePoint() = default;

/** Never for AM; what band it serves is a matter of its scale. */
bool FmMovePoint::isAm() { return false; }

class Q_DECL_HIDDEN MRadioMovePoint::Private
{
public:
    void resetNeedle(int minFreq, int step, int maxFreq);

    int freqStart = 8500;
    int freqEnd = 10800;
    int freqStep = 10;
    int suggestFreqStart = -1; // -1: from the band
    int suggestFreqEnd = -1; // -1: from the band
    int lineStart = 10; // px
    int lineEnd = 500; // px
    int pixCountMeta = 10; // scale units from tick to tick
    int bMid = 5; // scale units from label to label, ticks from middle to middle
    int bLarge = 2; // middle ticks from long to long
    int totalCountMeta = 100; // scale units between lineStart and lineEnd
    BNADTYPE bandType = AM;
    QColor lineColor;
    int txtYpos = 30; // px
    int lineYpos = 40; // px
    int pointYpos = 40; // px
    bool initByCustomeValue = false;
    QPixmap pointPix{10, 30};
    QSharedPointer<MovePoint> needle;
    QSharedPointer<ScaleBkg> scale;
};

/**
 * A tuner of 831 x 400 px for 8500 to 10800 in steps of 10. Its first scale has its own geometry
 * (0 to 800 px, a tick every 5 units), not that of the properties, and is wider than the tuner:
 * the properties count from the first write of initByCustomeValue on (kept behaviour).
 */
MRadioMovePoint::MRadioMovePoint(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>())
{
    installAccessibility();
    constexpr char kFunction[] = "MRadioMovePoint::MRadioMovePoint(QWidget*)";
    setGeometry(80, 10, 831, 400);
    d->pointPix.fill(QColor(0, 0, 255));
    d->scale.reset(new ScaleBkg(d->freqStart, d->freqEnd, d->freqStep, 0, 800, d->bandType == FM,
                                d->suggestFreqStart, d->suggestFreqEnd, this, this, 5, 5, 2, 100));
    d->scale->setGeometry(0, 10, 1500, 200);
    d->scale->show();
    log(__LINE__, kFunction, "MRadioMovePoint");

    d->needle.reset(new FmMovePoint(d->scale->d->lineStart, d->scale->d->firstTick,
                                    d->scale->d->validStart, d->scale->d->step,
                                    d->scale->d->validEnd, d->scale->d->map, &d->pointPix, this));
    d->needle->moveByFreq(d->scale->d->validStart);
    d->needle->show();
    connectSignalAndSlots();
    log(__LINE__, kFunction, "MRadioMovePoint");
}

MRadioMovePoint::~MRadioMovePoint() = default;

int MRadioMovePoint::getFreqStep() const { return d->freqStep; }

/** The tuning step, 10 by default. Stored only, like all others up to initByCustomeValue. */
void MRadioMovePoint::setFreqStep(int step) { d->freqStep = step; }

int MRadioMovePoint::getFreqStart() const { return d->freqStart; }

/** The lower end of the band, 8500 by default. Stored only. */
void MRadioMovePoint::setFreqStart(int freq) { d->freqStart = freq; }

int MRadioMovePoint::getSuggestFreqStart() const { return d->suggestFreqStart; }

/**
 * The lower end of the range that is spread over lineStart to lineEnd; -1, the default, for either
 * end takes the band, rounded down to hundreds. Stored only.
 */
void MRadioMovePoint::setSuggestFreqStart(int freq) { d->suggestFreqStart = freq; }

int MRadioMovePoint::getSuggestFreqEnd() const { return d->suggestFreqEnd; }

/** The upper end of the range that is spread over lineStart to lineEnd. Stored only. */
void MRadioMovePoint::setSuggestFreqEnd(int freq) { d->suggestFreqEnd = freq; }

int MRadioMovePoint::getFreqEnd() const { return d->freqEnd; }

/** The upper end of the band, 10800 by default. Stored only. */
void MRadioMovePoint::setFreqEnd(int freq) { d->freqEnd = freq; }

int MRadioMovePoint::getLineStart() const { return d->lineStart; }

/** The x where the scale begins, in px, 10 by default. Stored only. */
void MRadioMovePoint::setLineStart(int x) { d->lineStart = x; }

int MRadioMovePoint::getLineEnd() const { return d->lineEnd; }

/**
 * The x, in px, 500 by default, that with lineStart gives the size of a scale unit. Stored only.
 * The scale itself is drawn on until its right margin equals the left one.
 */
void MRadioMovePoint::setLineEnd(int x) { d->lineEnd = x; }

int MRadioMovePoint::getPixCountMeta() const { return d->pixCountMeta; }

/** How many scale units there are from tick to tick, 10 by default. Stored only. */
void MRadioMovePoint::setPixCountMeta(int count) { d->pixCountMeta = count; }

int MRadioMovePoint::getBMid() const { return d->bMid; }

/** How many units there are from label to label, and ticks from middle to middle; 5 by default.
 * Stored only. */
void MRadioMovePoint::setBMid(int count) { d->bMid = count; }

int MRadioMovePoint::getBLarge() const { return d->bLarge; }

/** How many middle ticks there are from long to long, 2 by default. Stored only. */
void MRadioMovePoint::setBLarge(int factor) { d->bLarge = factor; }

int MRadioMovePoint::getTotalCountMeta() const { return d->totalCountMeta; }

/** How many scale units there are between lineStart and lineEnd, 100 by default. Stored only. */
void MRadioMovePoint::setTotalCountMeta(int count) { d->totalCountMeta = count; }

MRadioMovePoint::BNADTYPE MRadioMovePoint::getBandType() const { return d->bandType; }

/** Whether labels show a hundredth of the frequency (FM) or the frequency (AM, the default). Stored
 * only. */
void MRadioMovePoint::setBandType(const BNADTYPE &type) { d->bandType = type; }

QPixmap MRadioMovePoint::getPointPix() const { return d->pointPix; }

/** The picture of the needle; blue, 10 x 30 px by default. Shown at once, in the size of the first
 * one. */
void MRadioMovePoint::setPointPix(const QPixmap &pixmap)
{
    d->pointPix = pixmap;
    d->needle->setPixmap(d->pointPix);
}

QColor MRadioMovePoint::getLineColor() const { return d->lineColor; }

/** The colour of ticks and labels; an invalid one, the default, is drawn in black. Stored only. */
void MRadioMovePoint::setLineColor(const QColor &color) { d->lineColor = color; }

int MRadioMovePoint::getTxtYpos() const { return d->txtYpos; }

/** The top of the labels, in px below the top of the scale, 30 by default. Stored only. */
void MRadioMovePoint::setTxtYpos(int y) { d->txtYpos = y; }

int MRadioMovePoint::getLineYpos() const { return d->lineYpos; }

/** The feet of the ticks, in px below the top of the scale, 40 by default. Stored only. */
void MRadioMovePoint::setLineYpos(int y) { d->lineYpos = y; }

int MRadioMovePoint::getPointYpos() const { return d->pointYpos; }

/** The top of the needle, in px, 40 by default. Stored only. */
void MRadioMovePoint::setPointYpos(int y) { d->pointYpos = y; }

bool MRadioMovePoint::getInitByCustomeValue() const { return d->initByCustomeValue; }

/**
 * Applies all properties, whatever the value is, moves the needle to freqStart and repaints. The
 * needle keeps to the band as it was given, not, as at first, to its ends rounded to the step.
 */
void MRadioMovePoint::setInitByCustomeValue(bool value)
{
    d->initByCustomeValue = value;
    d->scale->resetParam(d->freqStart, d->freqEnd, d->freqStep, d->lineStart, d->lineEnd,
                         d->bandType == FM, d->suggestFreqStart, d->suggestFreqEnd, d->pixCountMeta,
                         d->bMid, d->bLarge, d->totalCountMeta);
    d->resetNeedle(d->freqStart, d->freqStep, d->freqEnd);
    d->needle->moveByFreq(d->freqStart);
    update();
}

/** Lets the needle report to freqChanged(). The constructor does it; once is enough. */
void MRadioMovePoint::connectSignalAndSlots()
{
    log(__LINE__, "void MRadioMovePoint::connectSignalAndSlots()", "connectSignalAndSlots");
    connect(d->needle.data(), SIGNAL(freqChanged(int, bool)), this, SLOT(freqChanged(int, bool)));
}

/** Takes the tuned frequency from the needle and emits freqChangedSgl() with it, unscaled. */
void MRadioMovePoint::freqChanged(int freq, bool isAm)
{
    constexpr char kFunction[] = "void MRadioMovePoint::freqChanged(int, bool)";
    log(__LINE__, kFunction, "freqChanged");
    if (!isAm)
        log(__LINE__, kFunction, "freqChanged");
    emit freqChangedSgl(float(freq));
}

/**
 * A band from the tuner: FM in the unit of the scale, AM in tens of it. The properties stay as they
 * are and so does the needle. The scale's line start goes for its end as well: until the next call
 * with eight arguments a unit takes no pixels, no ticks are drawn, and the needle finds the band's
 * ends only (kept behaviour).
 */
void MRadioMovePoint::freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep)
{
    const float factor = isFM ? 1.0F : 10.0F;
    const int min = toInt(double(freqMin * factor));
    const int max = toInt(double(freqMax * factor));
    const int step = toInt(double(freqStep * factor));
    const int lineStart = d->scale->getLine_start();
    d->scale->resetParam(min, max, step, lineStart, lineStart, isFM, d->suggestFreqStart,
                         d->suggestFreqEnd, 10, 5, 2, 100);
    d->resetNeedle(min, step, max);
    update();
}

/**
 * A band with its place on the screen and its suggested range; no scaling. The ticks are those of
 * the properties, which stay as they are. The needle goes to the property freqStart, not to the new
 * minimum, as near as the new band lets it.
 */
void MRadioMovePoint::freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep,
                                           int lineStart, int lineEnd, int c_suggestFreqStart,
                                           int c_suggestFreqEnd)
{
    const int min = toInt(double(freqMin));
    const int max = toInt(double(freqMax));
    const int step = toInt(double(freqStep));
    d->scale->resetParam(min, max, step, lineStart, lineEnd, isFM, c_suggestFreqStart,
                         c_suggestFreqEnd, d->pixCountMeta, d->bMid, d->bLarge, d->totalCountMeta);
    d->resetNeedle(min, step, max);
    d->needle->moveByFreq(d->freqStart);
    update();
}

/** Moves the needle to a frequency, truncated and not scaled, and says nothing. */
void MRadioMovePoint::curFreqChangedSlot(float freq) { d->needle->moveByFreq(toInt(double(freq))); }

/** The needle follows the finger. A press alone does not move it. */
void MRadioMovePoint::mouseMoveEvent(QMouseEvent *e) { d->needle->moveByPos(e->pos().x()); }

/** The needle goes to where the finger lifts and reports the frequency there. */
void MRadioMovePoint::mouseReleaseEvent(QMouseEvent *e)
{
    d->needle->moveByPos(e->pos().x());
    d->needle->emitFreq();
}

void MRadioMovePoint::Private::resetNeedle(int minFreq, int step, int maxFreq)
{
    needle->resetParam(scale->d->lineStart, scale->d->firstTick, minFreq, step, maxFreq,
                       scale->d->map);
}
