#include "mradiomovepoint.h"

#include "detail/geometry.h"
#include "detail/wholenumber.h"

#include <QDebug>
#include <QMessageLogger>

using namespace panelkit;

namespace
{

// Qt adds the size of a widget to its place: a place at the limits of int would overflow.
QPoint boundedPoint(int x, int y)
{
    return boundedRect(x, y, 0, 0).topLeft();
}

} // namespace

/**
 * A needle with this picture, as large as it, in its owner. It stands at the owner's pointYpos and
 * is moved sideways with moveByPos() and moveByFreq(). The other numbers are those of resetParam().
 */
MovePoint::MovePoint(int lineStart, int firstTick, int minFreq, int step, int maxFreq,
                     const MapPixAndHz &map, QPixmap *pixmap, MRadioMovePoint *owner)
    : QLabel(owner), m_lineStart(lineStart), m_firstTick(firstTick), m_minFreq(minFreq),
      m_step(step), m_maxFreq(maxFreq), m_map(map)
{
    if (pixmap) {
        setPixmap(*pixmap);
        setGeometry(pixmap->rect());
    }
    if (owner)
        move(boundedPoint(x(), owner->getPointYpos()));
}

/**
 * Takes over a scale: its x of count 0 in px, its frequency there, its pixels and frequency units
 * per count, and the band with its step. The needle keeps its x and moves to the row that its
 * parent tells; a parent that is no MRadioMovePoint tells none.
 */
void MovePoint::resetParam(int lineStart, int firstTick, int minFreq, int step, int maxFreq,
                           const MapPixAndHz &map)
{
    m_lineStart = lineStart;
    m_firstTick = firstTick;
    m_minFreq = minFreq;
    m_step = step;
    m_maxFreq = maxFreq;
    m_map = map;
    if (const auto *tuner = qobject_cast<MRadioMovePoint *>(parentWidget()))
        move(boundedPoint(x(), tuner->getPointYpos()));
}

/** The frequency at an x of the owner: rounded toward zero to a step, within the band. */
int MovePoint::cacPosMapFreq(int pos)
{
    const Whole atPos = (pos - Whole(m_lineStart)) * m_map.hz / m_map.pix + m_firstTick;
    const int freq = (atPos / m_step * m_step).value();
    if (freq < m_minFreq)
        return m_minFreq;
    return freq >= m_maxFreq ? m_maxFreq : freq;
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
    Whole pos = (Whole(freq) - m_firstTick) * m_map.pix / m_map.hz + m_lineStart;
    if (cacPosMapFreq(pos.value()) != freq) {
        log(__LINE__, "!!!!!!!!!!!!!!!!!=====");
        pos = pos + 1;
    }
    if (cacPosMapFreq(pos.value()) == freq)
        log(__LINE__, "========================");
    return pos.value();
}

/** The x of the valid frequency that an x stands for. */
int MovePoint::getPosValid(int pos)
{
    return cacFreqMapPos(cacPosMapFreq(pos));
}

/** Whether this is a needle for AM; a plain one is. The library does not ask. */
bool MovePoint::isAm()
{
    return true;
}

/** Moves the needle's middle to the valid frequency at this x of the owner, in px. */
void MovePoint::moveByPos(int pos)
{
    const int middle = getPosValid(pos);
    move(boundedPoint((middle - Whole(width() / 2)).value(), y()));
}

/** Moves the needle to a frequency, or to the end of the band that is nearer. */
void MovePoint::moveByFreq(int freq)
{
    moveByPos(cacFreqMapPos(freq));
}

/** Emits freqChanged() with the frequency under the needle's middle. */
void MovePoint::emitFreq()
{
    const Whole middle = x() + Whole(width() / 2);
    emit freqChanged(cacPosMapFreq(middle.value()), m_amFlag);
}

/** Never for AM; what band it serves is a matter of its scale. */
bool FmMovePoint::isAm()
{
    return false;
}
