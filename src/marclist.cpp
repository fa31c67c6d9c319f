#include "marclist.h"

#include "detail/arithmetic.h"
#include "detail/deviceview.h"
#include "detail/geometry.h"
#include "detail/keptlayer.h"
#include "detail/keptletters.h"
#include "detail/minuteclock.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

using namespace panelkit;

namespace
{

constexpr int kLetterBox = 40; // px, width and height of the box of a character
constexpr QRect kArcBox(-kLetterBox / 2, 0, kLetterBox, kLetterBox); // of a letter on the arc
constexpr double kColumnTop = 5.0; // px above the box of the first row
constexpr double kReach = 100.0; // px inside and outside the arc; a touch from there on is none
constexpr int kTapSlop = 99; // px; a release in a column up to this far from the press is a tap
constexpr double kPixelsPerDegree = 15.0; // finger travel that turns the arc
constexpr double kArcStart = 15.0; // degrees, the farthest that the arc turns clockwise
constexpr double kArcFling = 15.0; // degrees a tick
constexpr double kColumnFling = 2.0; // rows a tick
constexpr int kFlingInterval = 20; // ms
constexpr int kShortestFlick = 3; // ms from the first move to the release
constexpr int kLongestFlick = 259; // ms

// The value with both bounds applied, the lower one last, so that it wins where they cross. What is
// no number becomes the upper bound: a list never gets stuck.
double bounded(double low, double value, double high)
{
    return std::max(std::min(high, value), low);
}

// The root of a sum of squares that is exact for every pair of ints.
double length(int x, qint64 y)
{
    const auto square = [](qint64 value) {
        return quint64(value) * quint64(value);
    };
    return std::sqrt(double(square(x) + square(y)));
}

} // namespace

// The transforms of those letters on the arc that can be seen, kept while nothing changes on which
// they depend.
struct MArcList::ArcPlaces {
    struct Place {
        int index;
        QTransform transform;
    };
    struct Key {
        DeviceView view;
        QTransform origin;
        double radius = 0;
        double startAngle = 0;
        double itemHight = 0;
        int showItem = 0;
        int count = 0;

        bool operator==(const Key &other) const
        {
            return origin == other.origin && startAngle == other.startAngle
                && radius == other.radius && itemHight == other.itemHight
                && showItem == other.showItem && count == other.count && view == other.view;
        }
    };

    Key key;
    std::vector<Place> places;
};

/** An empty list, on an arc. */
MArcList::MArcList(QWidget *parent)
    : QWidget(parent), m_flingTimer(this), m_letters(std::make_unique<KeptLetters>()),
      m_places(std::make_unique<ArcPlaces>()), m_markers{std::make_unique<KeptLayer>(),
                                                         std::make_unique<KeptLayer>()}
{
    connect(&m_flingTimer, SIGNAL(timeout()), this, SLOT(speedTimerSlot()));
}

MArcList::~MArcList() = default;

/** The radius of the arc in px; 470 by default. Stored only. A column has no use for it. */
void MArcList::setRadius(double radius)
{
    m_radius = radius;
}

/** The marker at the pressed and the current character; none by default. Repaints. */
void MArcList::setPointPixmap(const QPixmap &pixmap)
{
    m_pointPixmap = pixmap;
    update();
}

/**
 * Where the first character stands, in degrees clockwise from the right; in a column, the index of
 * the first row. 0 by default; scrolling changes it. Stored only, without bounds: the next touch
 * brings it within them.
 */
void MArcList::setStartAngle(double angle)
{
    m_startAngle = angle;
}

/** From one character to the next: degrees, or in a column px. 8 by default. Stored only. */
void MArcList::setItemHight(double height)
{
    m_itemHight = height;
}

/** The colour of the pressed character; white by default. Stored only. */
void MArcList::setPressColor(const QColor &color)
{
    m_pressColor = color;
}

/**
 * Where the characters stand; ARCLIST_STYLE_0 by default. Stored only. A list of any other style
 * shows nothing and takes no touches.
 */
void MArcList::setAcrListStyle(ARCLIST_STYLE style)
{
    m_style = style;
}

/**
 * How many places from the first visible character others are drawn; in a column, how many rows
 * there are. 15 by default. Stored only.
 */
void MArcList::setShowItem(int count)
{
    m_showItem = count;
}

/**
 * How much farther than its character the marker is turned, in degrees; in a column, where it
 * begins, in px. 2.5 by default. Stored only.
 */
void MArcList::setPixXOffset(double offset)
{
    m_pixXOffset = offset;
}

/** Where the characters of a column begin, in px; 0 by default. Stored only. */
void MArcList::setTextXOffset(int offset)
{
    m_textXOffset = offset;
}

/** Appends a character and repaints; one that the list already has is ignored. */
void MArcList::addAlpha(QChar c)
{
    if (m_characters.contains(c))
        return;
    m_characters.append(c);
    update();
}

/**
 * Empties the list, selects nothing, goes back to the start and repaints. The pressed character is
 * left as it is, so that a list filled again under the finger goes on showing it. An empty list is
 * left alone: it keeps its start angle.
 */
void MArcList::clearData()
{
    if (m_characters.isEmpty())
        return;
    m_characters.clear();
    m_currentIndex = -1;
    m_startAngle = 0.0;
    update();
}

/**
 * Selects a character, scrolls it to the start as far as the list goes, and repaints. A character
 * that is not in the list changes nothing.
 */
void MArcList::setCurrentIndex(QChar c)
{
    const int index = m_characters.indexOf(c);
    if (index < 0)
        return;
    m_currentIndex = index;
    if (m_style == ARCLIST_STYLE_0)
        m_startAngle = std::max(-(m_itemHight * index), arcEnd());
    else if (m_style == ARCLIST_STYLE_1)
        m_startAngle = bounded(0.0, index, lastFirstRow());
    update();
}

/**
 * Scrolls by the way from the last point of the touch to this one, and repaints. Down turns the arc
 * clockwise, by a degree for 15 px, but shows earlier rows of the column, two for each row of
 * travel: the two styles scroll in opposite senses on purpose.
 */
void MArcList::moveList(QPoint p)
{
    const qint64 dy = qint64(p.y()) - m_lastPos.y();
    if (m_style == ARCLIST_STYLE_0) {
        m_startAngle = bounded(arcEnd(), m_startAngle + double(dy) / kPixelsPerDegree, kArcStart);
    } else if (m_style == ARCLIST_STYLE_1) {
        m_startAngle =
            bounded(0.0, m_startAngle - ratio(double(2 * dy), m_itemHight), lastFirstRow());
    }
    update();
    m_lastPos = p;
}

/**
 * Handles a touch of this point: the press and each move with `release` false, then the release.
 * A touch of a character that has not moved shows it pressed, a tap selects it and emits
 * itemClicked. Before that, listMoveing is emitted with the selected index.
 */
void MArcList::calcCurValue(QPoint p, bool release)
{
    if (m_style == ARCLIST_STYLE_0)
        touchArc(p, release);
    else if (m_style == ARCLIST_STYLE_1)
        touchColumn(p, release);
}

/**
 * Draws the characters of the arc around the origin. Only the pressed one has a colour of its own;
 * the others have the pen of the painter.
 */
void MArcList::drawTicks(QPainter *painter)
{
    if (!painter)
        return;
    placeOnArc(*painter);
    m_letters->set(*painter, kArcBox.size(), Qt::AlignCenter);
    const QTransform origin = painter->worldTransform();
    const QPen pen = painter->pen();
    for (const ArcPlaces::Place &place : m_places->places) {
        painter->setWorldTransform(place.transform);
        if (place.index == m_pressedIndex)
            painter->setPen(QPen(m_pressColor));
        m_letters->draw(*painter, kArcBox.topLeft(), m_characters[place.index]);
        if (place.index == m_pressedIndex)
            painter->setPen(pen);
    }
    painter->setWorldTransform(origin);
}

/** Draws the marker of the arc at the pressed character, and at the current one if it is another.
 */
void MArcList::drawPointer(QPainter *painter)
{
    if (!painter || m_pointPixmap.isNull())
        return;
    if (isItem(m_pressedIndex))
        drawMarker(*painter, 0, m_pressedIndex);
    if (isItem(m_currentIndex) && m_currentIndex != m_pressedIndex)
        drawMarker(*painter, 1, m_currentIndex);
}

/**
 * Draws the characters of the column. The pen is never set back: from the pressed row on all rows
 * have its colour, and so has the painter afterwards. Screens designed for it rely on that.
 */
void MArcList::drawTicks1(QPainter *painter)
{
    if (!painter)
        return;
    const qint64 first = toInt(m_startAngle);
    const qint64 end = std::min<qint64>(first + m_showItem, m_characters.size());
    const DeviceView view(*painter);
    m_letters->set(*painter, QSize(kLetterBox, kLetterBox), Qt::AlignHCenter | Qt::AlignBottom);
    for (auto i = int(std::max<qint64>(first, 0)); i < end; ++i) {
        if (i == m_pressedIndex)
            painter->setPen(QPen(m_pressColor));
        const QRect box =
            boundedRect(m_textXOffset, toInt(double(i - first) * m_itemHight + kColumnTop),
                        kLetterBox, kLetterBox);
        if (view.shows(painter->worldTransform(), box))
            m_letters->draw(*painter, box.topLeft(), m_characters[i]);
    }
}

/** Draws the marker of the column at the current row, or at the pressed one if there is none. */
void MArcList::drawPointer1(QPainter *painter)
{
    if (!painter || m_pointPixmap.isNull())
        return;
    const int index = isItem(m_currentIndex) ? m_currentIndex : m_pressedIndex;
    if (!isItem(index))
        return;
    const double row = double(index) - toInt(m_startAngle);
    painter->drawPixmap(boundedRect(toInt(m_pixXOffset), toInt(row * m_itemHight),
                                    m_pointPixmap.width(), m_pointPixmap.height()),
                        m_pointPixmap);
}

/**
 * The time within the minute in ms. It begins anew with each minute, on purpose: a flick across
 * that moment has a negative duration and simply does not fling.
 */
int MArcList::getCurrentTime()
{
    return minuteClock();
}

void MArcList::paintEvent(QPaintEvent *e)
{
    QWidget::paintEvent(e);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (m_style == ARCLIST_STYLE_0) {
        painter.translate(QPoint(0, height() / 2));
        drawTicks(&painter);
        drawPointer(&painter);
    } else if (m_style == ARCLIST_STYLE_1) {
        painter.translate(QPoint((width() - m_pointPixmap.width()) / 2, 0));
        drawTicks1(&painter);
        drawPointer1(&painter);
    }
}

/** A press ends a fling and begins a touch. No handler of QWidget is called: the event ends here.
 */
void MArcList::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    m_flingTimer.stop();
    m_flingSteps = 0;
    m_moveStartTime = 0;
    m_lastPos = e->pos();
    m_pressPos = e->pos();
    m_moved = false;
    calcCurValue(e->pos(), false);
}

void MArcList::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (m_moveStartTime == 0)
        m_moveStartTime = getCurrentTime();
    m_movingDown = qint64(e->pos().y()) - m_lastPos.y() > 0;
    moveList(e->pos());
    m_moved = true;
    calcCurValue(e->pos(), false);
}

/** A release soon after the first move flings; every release then ends the touch. */
void MArcList::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (m_moved && m_moveStartTime != 0)
        startFling(e->pos());
    moveList(e->pos());
    calcCurValue(e->pos(), true);
}

/**
 * One tick of a fling. It ends after its steps or at either end of the list; passing an end takes
 * the list exactly there.
 */
void MArcList::speedTimerSlot()
{
    if (m_flingSteps <= 0) {
        m_flingTimer.stop();
        return;
    }
    --m_flingSteps;
    if (m_style == ARCLIST_STYLE_0)
        fling(m_movingDown ? kArcFling : -kArcFling, arcEnd(), kArcStart);
    else if (m_style == ARCLIST_STYLE_1)
        fling(m_movingDown ? -kColumnFling : kColumnFling, 0.0, lastFirstRow());
    update();
}

bool MArcList::isItem(qint64 index) const
{
    return index >= 0 && index < m_characters.size();
}

// The start angle at which the list lies just before the start.
double MArcList::arcEnd() const
{
    return -(m_itemHight * m_characters.size());
}

// The first row at which the last one still is shown; negative for a list that fits.
double MArcList::lastFirstRow() const
{
    return double(m_characters.size()) - m_showItem;
}

// Only touches near the arc count. Those exactly beside or above the centre have no angle; they are
// reported as movement but touch nothing.
void MArcList::touchArc(const QPoint &p, bool release)
{
    const int middle = height() / 2;
    const qint64 dy = qint64(p.y()) - middle;
    const double off = length(p.x(), dy) - m_radius;
    if (!(off > -kReach && off < kReach))
        return;
    const QPointer<MArcList> guard(this);
    emit listMoveing(m_currentIndex);
    if (!guard)
        return;
    const std::optional<double> direction = touchDirection(p.x(), double(dy), -90);
    if (!direction)
        return;
    // Truncation toward zero makes the stretch just before the first character its own too.
    const int index = toInt(ratio(*direction - m_startAngle, m_itemHight));
    takeTouch(index, release, !m_moved);
}

// Only touches of a row count. Having moved does not spoil a tap here, only a release far away.
void MArcList::touchColumn(const QPoint &p, bool release)
{
    const int index = toInt(ratio(p.y(), m_itemHight) + toInt(m_startAngle));
    if (!isItem(index))
        return;
    const QPointer<MArcList> guard(this);
    emit listMoveing(m_currentIndex);
    if (!guard)
        return;
    const bool isNear =
        distance(p.y(), m_pressPos.y()) <= kTapSlop && distance(p.x(), m_pressPos.x()) <= kTapSlop;
    takeTouch(index, release, isNear);
}

// What a touch of a character does. A slot may have emptied the list meanwhile.
void MArcList::takeTouch(int index, bool release, bool isTap)
{
    if (!isItem(index))
        return;
    if (!release) {
        m_pressedIndex = m_moved ? -1 : index;
        update();
        return;
    }
    if (isTap) {
        m_currentIndex = index;
        const QPointer<MArcList> guard(this);
        emit itemClicked(m_characters[index]);
        if (!guard)
            return;
    }
    m_pressedIndex = -1;
    update();
}

void MArcList::fling(double way, double low, double high)
{
    const double wanted = m_startAngle + way;
    m_startAngle = bounded(low, wanted, high);
    if (wanted >= low && wanted <= high)
        return;
    m_flingSteps = 0;
    m_flingTimer.stop();
}

// The faster the finger from its first move, the more ticks; a slow one, or one that crossed the
// end of a minute, flings nothing.
void MArcList::startFling(const QPoint &pos)
{
    const int duration = getCurrentTime() - m_moveStartTime;
    if (duration < kShortestFlick || duration > kLongestFlick)
        return;
    m_flingTimer.setInterval(kFlingInterval);
    const qint64 steps = distance(pos.y(), m_pressPos.y()) * 2 / duration;
    m_flingSteps = int(std::min<qint64>(steps, std::numeric_limits<int>::max()));
    m_flingTimer.start();
}

// The arc is turned on from letter to letter, drawn or not, so that rounding is the same wherever
// the list stands.
void MArcList::placeOnArc(const QPainter &painter)
{
    const ArcPlaces::Key key{
        DeviceView(painter), painter.worldTransform(), m_radius, m_startAngle, m_itemHight,
        m_showItem,          m_characters.size()};
    if (key == m_places->key)
        return;
    m_places->key = key;
    m_places->places.clear();
    const qint64 first = toInt(ratio(-m_startAngle, m_itemHight));
    const qint64 last = std::min<qint64>(first + m_showItem, m_characters.size() - 1);
    const QRectF boxAndOverhang = QRectF(kArcBox).adjusted(-kLetterBox, 0, kLetterBox, 0);
    QTransform turned = key.origin;
    turned.rotate(qreal(m_startAngle - 90));
    for (int i = 0; i <= last; ++i, turned.rotate(qreal(m_itemHight))) {
        if (i < first - m_showItem)
            continue;
        QTransform upright = turned;
        upright.translate(0, qreal(m_radius));
        upright.rotate(90);
        if (key.view.shows(upright, boxAndOverhang))
            m_places->places.push_back({i, upright});
    }
}

// The marker's left edge is cut to whole px, and its halves are those of whole numbers.
void MArcList::drawMarker(QPainter &painter, int marker, int index)
{
    const QSize size = m_pointPixmap.size();
    const int halfWidth = size.width() / 2;
    const QRect rect =
        boundedRect(toInt(m_radius - halfWidth), -(size.height() / 2), size.width(), size.height());
    QTransform turned = painter.worldTransform();
    turned.rotate(qreal(index * m_itemHight + m_startAngle + m_pixXOffset));
    const KeptLayer::Content content{
        QRectF(rect).adjusted(-1, -1, 1, 1), {}, m_pointPixmap.cacheKey()};
    m_markers[std::size_t(marker)]->draw(painter, turned, content,
                                         [&](QPainter &p) { p.drawPixmap(rect, m_pointPixmap); });
}
