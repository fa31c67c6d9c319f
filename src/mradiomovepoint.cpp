#include "mradiomovepoint.h"

#include "detail/arithmetic.h"
#include "detail/scalepicture.h"

#include <QDebug>
#include <QMessageLogger>
#include <QMouseEvent>

using namespace panelkit;

namespace
{

// The log names the file and the function in every build; Qt would leave them out of a release.
void log(int line, const char *function, const char *name)
{
    QMessageLogger("src/mradiomovepoint", line, function).debug() << name << line;
}

} // namespace

/**
 * A tuner of 831 x 400 px for 8500 to 10800 in steps of 10. Its first scale has its own geometry
 * (0 to 800 px, a tick every 5 units), not that of the properties, and is wider than the tuner,
 * both on purpose: the properties count from the first write of initByCustomeValue on.
 */
MRadioMovePoint::MRadioMovePoint(QWidget *parent) : QWidget(parent)
{
    constexpr char kFunction[] = "MRadioMovePoint::MRadioMovePoint(QWidget*)";
    setGeometry(80, 10, 831, 400);
    m_pointPix.fill(QColor(0, 0, 255));
    m_scale.reset(new ScaleBkg(m_freqStart, m_freqEnd, m_freqStep, 0, 800, m_bandType == FM,
                               m_suggestFreqStart, m_suggestFreqEnd, this, this, 5, 5, 2, 100));
    m_scale->setGeometry(0, 10, 1500, 200);
    m_scale->show();
    log(__LINE__, kFunction, "MRadioMovePoint");

    m_needle.reset(new FmMovePoint(m_scale->m_lineStart, m_scale->m_firstTick,
                                   m_scale->m_validStart, m_scale->m_step, m_scale->m_validEnd,
                                   m_scale->m_map, &m_pointPix, this));
    m_needle->moveByFreq(m_scale->m_validStart);
    m_needle->show();
    connectSignalAndSlots();
    log(__LINE__, kFunction, "MRadioMovePoint");
}

MRadioMovePoint::~MRadioMovePoint() = default;

/** The tuning step, 10 by default. Stored only, like all others up to initByCustomeValue. */
void MRadioMovePoint::setFreqStep(int step)
{
    m_freqStep = step;
}

/** The lower end of the band, 8500 by default. Stored only. */
void MRadioMovePoint::setFreqStart(int freq)
{
    m_freqStart = freq;
}

/**
 * The lower end of the range that is spread over lineStart to lineEnd; -1, the default, for either
 * end takes the band, rounded down to hundreds. Stored only.
 */
void MRadioMovePoint::setSuggestFreqStart(int freq)
{
    m_suggestFreqStart = freq;
}

/** The upper end of the range that is spread over lineStart to lineEnd. Stored only. */
void MRadioMovePoint::setSuggestFreqEnd(int freq)
{
    m_suggestFreqEnd = freq;
}

/** The upper end of the band, 10800 by default. Stored only. */
void MRadioMovePoint::setFreqEnd(int freq)
{
    m_freqEnd = freq;
}

/** The x where the scale begins, in px, 10 by default. Stored only. */
void MRadioMovePoint::setLineStart(int x)
{
    m_lineStart = x;
}

/**
 * The x, in px, 500 by default, that with lineStart gives the size of a scale unit. Stored only.
 * The scale itself is drawn on until its right margin equals the left one.
 */
void MRadioMovePoint::setLineEnd(int x)
{
    m_lineEnd = x;
}

/** How many scale units there are from tick to tick, 10 by default. Stored only. */
void MRadioMovePoint::setPixCountMeta(int count)
{
    m_pixCountMeta = count;
}

/** How many units there are from label to label, and ticks from middle to middle; 5 by default.
 * Stored only. */
void MRadioMovePoint::setBMid(int count)
{
    m_bMid = count;
}

/** How many middle ticks there are from long to long, 2 by default. Stored only. */
void MRadioMovePoint::setBLarge(int factor)
{
    m_bLarge = factor;
}

/** How many scale units there are between lineStart and lineEnd, 100 by default. Stored only. */
void MRadioMovePoint::setTotalCountMeta(int count)
{
    m_totalCountMeta = count;
}

/** Whether labels show a hundredth of the frequency (FM) or the frequency (AM, the default). Stored
 * only. */
void MRadioMovePoint::setBandType(const BNADTYPE &type)
{
    m_bandType = type;
}

/** The picture of the needle; blue, 10 x 30 px by default. Shown at once, in the size of the first
 * one. */
void MRadioMovePoint::setPointPix(const QPixmap &pixmap)
{
    m_pointPix = pixmap;
    m_needle->setPixmap(m_pointPix);
}

/** The colour of ticks and labels; an invalid one, the default, is drawn in black. Stored only. */
void MRadioMovePoint::setLineColor(const QColor &color)
{
    m_lineColor = color;
}

/** The top of the labels, in px below the top of the scale, 30 by default. Stored only. */
void MRadioMovePoint::setTxtYpos(int y)
{
    m_txtYpos = y;
}

/** The feet of the ticks, in px below the top of the scale, 40 by default. Stored only. */
void MRadioMovePoint::setLineYpos(int y)
{
    m_lineYpos = y;
}

/** The top of the needle, in px, 40 by default. Stored only. */
void MRadioMovePoint::setPointYpos(int y)
{
    m_pointYpos = y;
}

/**
 * Applies all properties, whatever the value is, moves the needle to freqStart and repaints. The
 * needle keeps to the band as it was given, not, as at first, to its ends rounded to the step.
 */
void MRadioMovePoint::setInitByCustomeValue(bool value)
{
    m_initByCustomeValue = value;
    m_scale->resetParam(m_freqStart, m_freqEnd, m_freqStep, m_lineStart, m_lineEnd,
                        m_bandType == FM, m_suggestFreqStart, m_suggestFreqEnd, m_pixCountMeta,
                        m_bMid, m_bLarge, m_totalCountMeta);
    resetNeedle(m_freqStart, m_freqStep, m_freqEnd);
    m_needle->moveByFreq(m_freqStart);
    update();
}

/** Lets the needle report to freqChanged(). The constructor does it; once is enough. */
void MRadioMovePoint::connectSignalAndSlots()
{
    log(__LINE__, "void MRadioMovePoint::connectSignalAndSlots()", "connectSignalAndSlots");
    connect(m_needle.data(), SIGNAL(freqChanged(int, bool)), this, SLOT(freqChanged(int, bool)));
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
 * are and so does the needle. The scale's line start goes for its end as well, on purpose: until
 * the next call with eight arguments a unit takes no pixels, no ticks are drawn, and the needle
 * finds the band's ends only.
 */
void MRadioMovePoint::freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep)
{
    const float factor = isFM ? 1.0F : 10.0F;
    const int min = toInt(double(freqMin * factor));
    const int max = toInt(double(freqMax * factor));
    const int step = toInt(double(freqStep * factor));
    const int lineStart = m_scale->getLine_start();
    m_scale->resetParam(min, max, step, lineStart, lineStart, isFM, m_suggestFreqStart,
                        m_suggestFreqEnd, 10, 5, 2, 100);
    resetNeedle(min, step, max);
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
    m_scale->resetParam(min, max, step, lineStart, lineEnd, isFM, c_suggestFreqStart,
                        c_suggestFreqEnd, m_pixCountMeta, m_bMid, m_bLarge, m_totalCountMeta);
    resetNeedle(min, step, max);
    m_needle->moveByFreq(m_freqStart);
    update();
}

/** Moves the needle to a frequency, truncated and not scaled, and says nothing. */
void MRadioMovePoint::curFreqChangedSlot(float freq)
{
    m_needle->moveByFreq(toInt(double(freq)));
}

/** The needle follows the finger. A press alone does not move it. */
void MRadioMovePoint::mouseMoveEvent(QMouseEvent *e)
{
    if (e)
        m_needle->moveByPos(e->pos().x());
}

/** The needle goes to where the finger lifts and reports the frequency there. */
void MRadioMovePoint::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    m_needle->moveByPos(e->pos().x());
    m_needle->emitFreq();
}

void MRadioMovePoint::resetNeedle(int minFreq, int step, int maxFreq)
{
    m_needle->resetParam(m_scale->m_lineStart, m_scale->m_firstTick, minFreq, step, maxFreq,
                         m_scale->m_map);
}
