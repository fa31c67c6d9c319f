#include "mradiomovepoint.h"

#include "detail/scalepicture.h"
#include "detail/wholenumber.h"

#include <QPainter>
#include <QPaintEvent>

#include <algorithm>

using namespace panelkit;

namespace
{

constexpr int kTop = 10; // px, where the scale stands in its owner
constexpr int kLabelReach = 40; // px from the middle of a label to its left side
constexpr qint64 kMostPiled = 2048; // labels or ticks kept of those that stand at one place

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
        from = std::max<qint64>(0, to - kMostPiled);
    } else if (counts.stride > 0) {
        const auto [lowest, highest] =
            std::minmax({(qint64(left) - start) / pix, (qint64(right) - start) / pix});
        from = std::max<qint64>(from, (lowest - 1 - counts.first) / counts.stride);
        to = std::min<qint64>(to, (highest + 1 - counts.first) / counts.stride + 1);
    }
    for (qint64 i = from; i < to; ++i)
        use(int(counts.first + i * counts.stride));
}

QString written(double value)
{
    return QString::number(value, 'g', 6);
}

} // namespace

// What the kept picture depends on besides the scale itself, which drops the picture on a change.
struct ScaleBkg::Look {
    QSize size;
    int lineYpos = 0;
    int txtYpos = 0;

    bool operator==(const Look &other) const
    {
        return size == other.size && lineYpos == other.lineYpos && txtYpos == other.txtYpos;
    }
};

/**
 * A scale in `parent`, as large as that one, that takes its colour, its rows and, from init() on,
 * its size from `owner`. The other numbers are those of resetParam().
 */
ScaleBkg::ScaleBkg(int freqStart, int freqEnd, int step, int lineStart, int lineEnd, bool isFM,
                   int suggestStart, int suggestEnd, MRadioMovePoint *owner, QWidget *parent,
                   int pixCountMeta, int bMid, int bLarge, int totalCountMeta)
    : QLabel(parent), m_lineY(owner ? owner->getLineYpos() : 40), m_owner(owner),
      m_picture(std::make_unique<ScalePicture>())
{
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
    m_step = step;
    m_validStart = getValidStartFreq(freqStart, step, true);
    m_validEnd = getValidStartFreq(freqEnd, step, false);
    m_lineEnd = lineEnd;
    m_pixCountMeta = pixCountMeta;
    m_bMid = bMid;
    m_bLarge = bLarge;
    m_lineStart = lineStart;
    m_isFM = isFM;

    const Whole lineWidth = Whole(lineEnd) - lineStart;
    m_map.pix = (lineWidth / totalCountMeta).value();
    if (suggestStart == -1 || suggestEnd == -1) {
        suggestStart = getValidStartFreq(m_validStart, 100, true);
        suggestEnd = getValidStartFreq(m_validEnd, 100, false);
    }
    m_map.hz = ((Whole(suggestEnd) - suggestStart) * m_map.pix / lineWidth).value();
    if (m_map.hz == 0)
        m_map.hz = 1;
    init();
}

/**
 * Takes the size of the owner and works out what depends on it: the first tick, two scale units
 * before the band on a unit boundary, and how many units fit between equal margins.
 */
void ScaleBkg::init()
{
    const QSize size = m_owner ? m_owner->size() : this->size();
    setGeometry(0, kTop, size.width(), size.height());
    const Whole hz = m_map.hz;
    m_firstTick = (Whole(m_validStart) / hz * hz - 2 * hz).value();
    const Whole span = (width() - 2 * Whole(m_lineStart)) * hz / m_map.pix;
    m_lastTick = (m_firstTick + span).value();
    m_unitCount = (span / hz).value();
    m_lineEnd = (m_lineStart + m_map.pix * Whole(m_unitCount) + 3 * Whole(m_map.pix)).value();
    m_look.reset();
}

/**
 * A frequency rounded toward zero to a multiple of the step. isStart makes no difference: both ends
 * of a band are rounded down alike, on purpose.
 */
int ScaleBkg::getValidStartFreq(int freq, int step, bool) const
{
    return (Whole(freq) / step * step).value();
}

/** The x of a scale count, in px. */
int ScaleBkg::getPosByCount(int count) const
{
    return (m_lineStart + count * Whole(m_map.pix)).value();
}

/** The frequency at x when ten units stand on each pixel, whatever the scale's geometry is. */
int ScaleBkg::getValueByPos(int pos) const
{
    return (m_firstTick + (pos - Whole(m_lineStart)) * m_posFactor).value();
}

/** How many tick units high the tick at a frequency is: 3 for long, 2 for middle, 1 for short. */
int ScaleBkg::getBeishu(int freq) const
{
    const Whole tick = freq / (m_map.hz * Whole(m_pixCountMeta));
    if (tick.isMultipleOf(Whole(m_bMid) * m_bLarge))
        return 3;
    return tick.isMultipleOf(m_bMid) ? 2 : 1;
}

/** The height of the tick at a scale count, in px. */
int ScaleBkg::getHeightByCount(int count) const
{
    return m_tickUnitHeight * getBeishu((m_firstTick + count * Whole(m_map.hz)).value());
}

/**
 * The box of a label around x: 80 px wide, from the owner's txtYpos down to twice that and 19 px,
 * so that a label further down also has a higher box.
 */
QRect ScaleBkg::getRectBYCertalXpos(int x) const
{
    const Whole top = m_owner ? m_owner->getTxtYpos() : 0;
    return {QPoint((x - Whole(kLabelReach)).value(), top.value()),
            QPoint((x + Whole(kLabelReach) - 1).value(), (2 * top + 19).value())};
}

/** Where the band starts in the parent, in px when ten units stand on each pixel, in tens. */
int ScaleBkg::getPointStart() const
{
    const Whole factor = m_posFactor;
    return (x() + Whole(m_lineStart) + (Whole(m_validStart) - m_firstTick) / factor * factor)
        .value();
}

/** Where the band ends in the parent, in the manner of getPointStart(). */
int ScaleBkg::getPointEnd() const
{
    const Whole factor = m_posFactor;
    return (x() + Whole(m_lineStart) + (Whole(m_validEnd) - m_firstTick) / factor * factor).value();
}

/** For scales that know a further end; this one has none and says 0. */
int ScaleBkg::getEnd()
{
    return 0;
}

/** Moves the scale count 0 to this x, in px. Stored only; ticks and labels move at the next paint.
 */
void ScaleBkg::setLine_start(int start)
{
    m_lineStart = start;
    m_look.reset();
}

/** Stored only; the next init() computes it anew. */
void ScaleBkg::setLine_end(int end)
{
    m_lineEnd = end;
}

/** Labels first and ticks over them. */
void ScaleBkg::paintEvent(QPaintEvent *e)
{
    if (!m_owner)
        return;
    const Look now = look();
    if (!m_look || !(*m_look == now))
        layOut(now);
    QPainter painter(this);
    m_picture->draw(painter, e ? e->rect() : rect(), m_owner->getLineColor());
}

ScaleBkg::Look ScaleBkg::look() const
{
    return {size(), m_owner->getLineYpos(), m_owner->getTxtYpos()};
}

void ScaleBkg::layOut(const Look &look)
{
    m_look = std::make_unique<Look>(look);
    m_picture->clear(look.size);
    layOutLabels(look);
    layOutTicks(look);
}

// The three quotients of the first label are truncated separately, which is why labels need not
// stand at long ticks: they are stepped by scale units and the ticks by their own stride. Keep it
// so; the scales of existing screens are tuned to it.
void ScaleBkg::layOutLabels(const Look &look)
{
    const Whole first = m_firstTick;
    const Whole firstCount =
        first / (m_map.hz * Whole(m_pixCountMeta)) / m_bMid * m_bMid + m_bMid - first / m_map.hz;
    const auto top = qreal(look.txtYpos);
    const qreal height = qreal((2 * Whole(look.txtYpos) + 20).value()) - top;
    const Counts counts{firstCount.value(), m_bMid, m_unitCount};
    forEachNear(counts, m_lineStart, m_map.pix, -kLabelReach, look.size.width() + kLabelReach,
                [&](int count) {
                    const int value = (first + count * Whole(m_map.hz)).value();
                    const QRectF box(qreal(getPosByCount(count)) - kLabelReach, top,
                                     2 * kLabelReach, height);
                    m_picture->addLabel(box, m_isFM ? float(value) / 100.0F : double(value),
                                        written);
                });
}

void ScaleBkg::layOutTicks(const Look &look)
{
    forEachNear({0, m_pixCountMeta, m_unitCount}, m_lineStart, m_map.pix, 0, look.size.width(),
                [&](int count) {
                    const Whole foot = look.lineYpos;
                    m_picture->addLine(ScalePicture::Solid, getPosByCount(count),
                                       (foot - getHeightByCount(count)).value(), foot.value());
                });
}
