// SPDX-License-Identifier: Apache-2.0
#include "marclist.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/deviceview.h"
#include "detail/drawntext.h"
#include "detail/geometry.h"
#include "detail/keptlook.h"
#include "detail/layercache.h"
#include "detail/lettercache.h"
#include "detail/memo.h"
#include "detail/minuteclock.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

using namespace panelkit;

namespace
{

constexpr int kLetterBox = 40; // px, width and height of the box of a character
constexpr QRect kArcBox(-kLetterBox / 2, 0, kLetterBox, kLetterBox); // of a letter on the arc
constexpr double kColumnTop = 5.0; // px above the box of the first row
constexpr int kFewTurns = 8; // the painter keeps the letters of ten turns; the others it fills anew
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
    const auto square = [](qint64 value) { return quint64(value) * quint64(value); };
    return std::sqrt(double(square(x) + square(y)));
}

} // namespace

class Q_DECL_HIDDEN MArcList::Private
{
public:
    explicit Private(MArcList *widget) : q(widget) { }

    // A letter on the arc that can be seen.
    struct Place {
        int index;
        QTransform transform;
    };
    // What the places depend on.
    struct Arc {
        DeviceView view;
        QTransform origin;
        double radius; // px
        double startAngle; // degrees
        double itemHight; // degrees
        int showItem;
        int count;

        auto tied() const
        {
            return std::tie(startAngle, radius, itemHight, showItem, count, origin, view);
        }
    };

    // What the pixels of the letters depend on.
    struct Letters {
        double radius; // px
        double startAngle; // degrees
        double itemHight; // degrees
        int showItem;
        int pressedIndex;
        QColor pressColor;
        Qt::LayoutDirection direction;
        QPen pen;
        QVector<QChar> characters;
        QFont font;

        auto tied() const
        {
            return std::tie(startAngle, radius, itemHight, showItem, pressedIndex, pressColor,
                            direction, pen, characters, font);
        }
    };

    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    bool isItem(qint64 index) const;
    double arcEnd() const;
    double lastFirstRow() const;
    void touchArc(const QPoint &p, bool release);
    void touchColumn(const QPoint &p, bool release);
    void takeTouch(int index, bool release, bool isTap);
    void fling(double way, double low, double high);
    void startFling(const QPoint &pos);
    const std::vector<Place> &placesOnArc(const QPainter &painter);
    void drawLetters(QPainter &painter);
    void drawMarker(QPainter &painter, int marker, int index);

    MArcList *const q;
    double radius = 470.0; // px
    double startAngle = 0.0; // degrees; in a column the index of the first row
    double itemHight = 8.0; // degrees; in a column px
    double pixXOffset = 2.5; // degrees; in a column px
    QColor pressColor{255, 255, 255, 255};
    ARCLIST_STYLE style = ARCLIST_STYLE_0;
    int showItem = 15;
    QPixmap pointPixmap;
    QVector<QChar> characters;
    QPoint lastPos;
    QPoint pressPos;
    int currentIndex = -1; // -1: none
    int pressedIndex = -1; // -1: none
    bool moved = false;
    int moveStartTime = 0; // ms of getCurrentTime(), 0: no move since the press
    int textXOffset = 0; // px
    QTimer flingTimer{q};
    int flingSteps = 0; // ticks still to run
    bool movingDown = false;

    LetterCache letters;
    Memo<Arc, std::vector<Place>> places;
    QRectF inked; // where letters may have ink
    std::unique_ptr<KeptLook<Letters>> look; // of an arc of many letters
    std::array<LayerCache<PictureKey>, 2> markers; // pressed, current
};

/** An empty list, on an arc. */
MArcList::MArcList(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::ArcList, Private::tell);
    connect(&d->flingTimer, SIGNAL(timeout()), this, SLOT(speedTimerSlot()));
}

MArcList::~MArcList() = default;

double MArcList::radius() const { return d->radius; }

/** The radius of the arc in px; 470 by default. Stored only. A column has no use for it. */
void MArcList::setRadius(double radius) { d->radius = radius; }

QPixmap MArcList::pointPixmap() const { return d->pointPixmap; }

/** The marker at the pressed and the current character; none by default. Repaints. */
void MArcList::setPointPixmap(const QPixmap &pixmap)
{
    d->pointPixmap = pixmap;
    update();
}

double MArcList::startAngle() const { return d->startAngle; }

/**
 * Where the first character stands, in degrees clockwise from the right; in a column, the index of
 * the first row. 0 by default; scrolling changes it. Stored only, without bounds: the next touch
 * brings it within them.
 */
void MArcList::setStartAngle(double angle) { d->startAngle = angle; }

double MArcList::itemHight() const { return d->itemHight; }

/** From one character to the next: degrees, or in a column px. 8 by default. Stored only. */
void MArcList::setItemHight(double height) { d->itemHight = height; }

QColor MArcList::pressColor() const { return d->pressColor; }

/** The colour of the pressed character; white by default. Stored only. */
void MArcList::setPressColor(const QColor &color) { d->pressColor = color; }

MArcList::ARCLIST_STYLE MArcList::acrListStyle() const { return d->style; }

/**
 * Where the characters stand; ARCLIST_STYLE_0 by default. Stored only. A list of any other style
 * shows nothing and takes no touches.
 */
void MArcList::setAcrListStyle(ARCLIST_STYLE style) { d->style = style; }

int MArcList::showItem() const { return d->showItem; }

/**
 * How many places from the first visible character others are drawn; in a column, how many rows
 * there are. 15 by default. Stored only.
 */
void MArcList::setShowItem(int count) { d->showItem = count; }

double MArcList::pixXOffset() const { return d->pixXOffset; }

/**
 * How much farther than its character the marker is turned, in degrees; in a column, where it
 * begins, in px. 2.5 by default. Stored only.
 */
void MArcList::setPixXOffset(double offset) { d->pixXOffset = offset; }

int MArcList::getTextXOffset() const { return d->textXOffset; }

/** Where the characters of a column begin, in px; 0 by default. Stored only. */
void MArcList::setTextXOffset(int offset) { d->textXOffset = offset; }

/** Appends a character and repaints; one that the list already has is ignored. */
void MArcList::addAlpha(QChar c)
{
    if (d->characters.contains(c))
        return;
    d->characters.append(c);
    update();
}

/**
 * Empties the list, selects nothing, goes back to the start and repaints. The pressed character is
 * left as it is, so that a list filled again under the finger goes on showing it. An empty list is
 * left alone: it keeps its start angle.
 */
void MArcList::clearData()
{
    if (d->characters.isEmpty())
        return;
    d->characters.clear();
    d->currentIndex = -1;
    d->startAngle = 0.0;
    update();
}

/**
 * Selects a character, scrolls it to the start as far as the list goes, and repaints. A character
 * that is not in the list changes nothing.
 */
void MArcList::setCurrentIndex(QChar c)
{
    const int index = int(d->characters.indexOf(c));
    if (index < 0)
        return;
    d->currentIndex = index;
    if (d->style == ARCLIST_STYLE_0)
        d->startAngle = std::max(-(d->itemHight * index), d->arcEnd());
    else if (d->style == ARCLIST_STYLE_1)
        d->startAngle = bounded(0.0, index, d->lastFirstRow());
    update();
}

/**
 * Scrolls by the way from the last point of the touch to this one, and repaints. Down turns the arc
 * clockwise, by a degree for 15 px, and shows earlier rows of the column, two for each row of
 * travel. The start angle grows in the one and falls in the other, so that in both the characters
 * go the way of the finger.
 */
void MArcList::moveList(QPoint p)
{
    const qint64 dy = qint64(p.y()) - d->lastPos.y();
    if (d->style == ARCLIST_STYLE_0) {
        d->startAngle =
            bounded(d->arcEnd(), d->startAngle + double(dy) / kPixelsPerDegree, kArcStart);
    } else if (d->style == ARCLIST_STYLE_1) {
        d->startAngle =
            bounded(0.0, d->startAngle - ratio(double(2 * dy), d->itemHight), d->lastFirstRow());
    }
    update();
    d->lastPos = p;
}

/**
 * Handles a touch of this point: the press and each move with `release` false, then the release.
 * A touch of a character that has not moved shows it pressed, a tap selects it and emits
 * itemClicked. Before that, listMoveing is emitted with the selected index.
 */
void MArcList::calcCurValue(QPoint p, bool release)
{
    if (d->style == ARCLIST_STYLE_0)
        d->touchArc(p, release);
    else if (d->style == ARCLIST_STYLE_1)
        d->touchColumn(p, release);
}

/**
 * Draws the characters of the arc around the origin. Only the pressed one has a colour of its own;
 * the others have the pen of the painter.
 */
void MArcList::drawTicks(QPainter *painter)
{
    if (!painter)
        return;
    if (d->placesOnArc(*painter).size() <= kFewTurns || isFilledText(*painter)) {
        d->look.reset();
        d->drawLetters(*painter);
        return;
    }
    if (!d->look)
        d->look = std::make_unique<KeptLook<Private::Letters>>();
    d->look->draw(*painter, painter->worldTransform().inverted().mapRect(d->inked).toAlignedRect(),
                  {d->radius, d->startAngle, d->itemHight, d->showItem, d->pressedIndex,
                   d->pressColor, painter->layoutDirection(), painter->pen(), d->characters,
                   painter->font()},
                  [this](QPainter &p) { d->drawLetters(p); });
}

/** Draws the marker of the arc at the pressed character, and at the current one if it is another.
 */
void MArcList::drawPointer(QPainter *painter)
{
    if (!painter || d->pointPixmap.isNull())
        return;
    if (d->isItem(d->pressedIndex))
        d->drawMarker(*painter, 0, d->pressedIndex);
    if (d->isItem(d->currentIndex) && d->currentIndex != d->pressedIndex)
        d->drawMarker(*painter, 1, d->currentIndex);
}

/**
 * Draws the characters of the column. The pen is never set back: from the pressed row on all rows
 * have its colour, and so has the painter afterwards (kept behaviour).
 */
void MArcList::drawTicks1(QPainter *painter)
{
    if (!painter)
        return;
    const qint64 first = toInt(d->startAngle);
    const qint64 end = std::min<qint64>(first + d->showItem, d->characters.size());
    const DeviceView view(*painter);
    d->letters.set(*painter, QSize(kLetterBox, kLetterBox), Qt::AlignHCenter | Qt::AlignBottom);
    for (auto i = int(std::max<qint64>(first, 0)); i < end; ++i) {
        if (i == d->pressedIndex)
            painter->setPen(QPen(d->pressColor));
        const QRect box =
            boundedRect(d->textXOffset, toInt(double(i - first) * d->itemHight + kColumnTop),
                        kLetterBox, kLetterBox);
        if (view.shows(painter->worldTransform(), box))
            d->letters.draw(*painter, box.topLeft(), d->characters.at(i));
    }
}

/** Draws the marker of the column at the current row, or at the pressed one if there is none. */
void MArcList::drawPointer1(QPainter *painter)
{
    if (!painter || d->pointPixmap.isNull())
        return;
    const int index = d->isItem(d->currentIndex) ? d->currentIndex : d->pressedIndex;
    if (!d->isItem(index))
        return;
    const double row = double(index) - toInt(d->startAngle);
    painter->drawPixmap(boundedRect(toInt(d->pixXOffset), toInt(row * d->itemHight),
                                    d->pointPixmap.width(), d->pointPixmap.height()),
                        d->pointPixmap);
}

/**
 * The time within the minute in ms. It begins anew with each minute: a flick across that moment has
 * a negative duration and does not fling (kept behaviour).
 */
int MArcList::getCurrentTime() { return minuteClock(); }

void MArcList::paintEvent(QPaintEvent *e)
{
    QWidget::paintEvent(e);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (d->style == ARCLIST_STYLE_0) {
        painter.translate(QPoint(0, height() / 2));
        drawTicks(&painter);
        drawPointer(&painter);
    } else if (d->style == ARCLIST_STYLE_1) {
        painter.translate(QPoint((width() - d->pointPixmap.width()) / 2, 0));
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
    d->flingTimer.stop();
    d->flingSteps = 0;
    d->moveStartTime = 0;
    d->lastPos = e->pos();
    d->pressPos = e->pos();
    d->moved = false;
    calcCurValue(e->pos(), false);
}

void MArcList::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (d->moveStartTime == 0)
        d->moveStartTime = getCurrentTime();
    d->movingDown = qint64(e->pos().y()) - d->lastPos.y() > 0;
    moveList(e->pos());
    d->moved = true;
    calcCurValue(e->pos(), false);
}

/** A release soon after the first move flings; every release then ends the touch. */
void MArcList::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (d->moved && d->moveStartTime != 0)
        d->startFling(e->pos());
    moveList(e->pos());
    calcCurValue(e->pos(), true);
}

/**
 * One tick of a fling. It ends after its steps or at either end of the list; passing an end takes
 * the list exactly there.
 */
void MArcList::speedTimerSlot()
{
    if (d->flingSteps <= 0) {
        d->flingTimer.stop();
        return;
    }
    --d->flingSteps;
    if (d->style == ARCLIST_STYLE_0)
        d->fling(d->movingDown ? kArcFling : -kArcFling, d->arcEnd(), kArcStart);
    else if (d->style == ARCLIST_STYLE_1)
        d->fling(d->movingDown ? -kColumnFling : kColumnFling, 0.0, d->lastFirstRow());
    update();
}

bool MArcList::Private::isItem(qint64 index) const
{
    return index >= 0 && index < characters.size();
}

// The start angle at which the list lies just before the start.
double MArcList::Private::arcEnd() const { return -(itemHight * int(characters.size())); }

// The first row at which the last one still is shown; negative for a list that fits.
double MArcList::Private::lastFirstRow() const { return double(characters.size()) - showItem; }

// Only touches near the arc count. Those exactly beside or above the centre have no angle; they are
// reported as movement but touch nothing.
void MArcList::Private::touchArc(const QPoint &p, bool release)
{
    const int middle = q->height() / 2;
    const qint64 dy = qint64(p.y()) - middle;
    const double off = length(p.x(), dy) - radius;
    if (!(off > -kReach && off < kReach))
        return;
    const QPointer<MArcList> guard(q);
    emit q->listMoveing(currentIndex);
    if (!guard)
        return;
    const std::optional<double> direction = touchDirection(p.x(), double(dy), -90);
    if (!direction)
        return;
    // Truncation toward zero makes the stretch just before the first character its own too.
    const int index = toInt(ratio(*direction - startAngle, itemHight));
    takeTouch(index, release, !moved);
}

// Only touches of a row count. Having moved does not spoil a tap here, only a release far away.
void MArcList::Private::touchColumn(const QPoint &p, bool release)
{
    const int index = toInt(ratio(p.y(), itemHight) + toInt(startAngle));
    if (!isItem(index))
        return;
    const QPointer<MArcList> guard(q);
    emit q->listMoveing(currentIndex);
    if (!guard)
        return;
    const bool isNear =
        distance(p.y(), pressPos.y()) <= kTapSlop && distance(p.x(), pressPos.x()) <= kTapSlop;
    takeTouch(index, release, isNear);
}

// What a touch of a character does. A slot may have emptied the list meanwhile.
void MArcList::Private::takeTouch(int index, bool release, bool isTap)
{
    if (!isItem(index))
        return;
    if (!release) {
        pressedIndex = moved ? -1 : index;
        q->update();
        return;
    }
    if (isTap) {
        currentIndex = index;
        const QPointer<MArcList> guard(q);
        emit q->itemClicked(characters[index]);
        if (!guard)
            return;
    }
    pressedIndex = -1;
    q->update();
}

void MArcList::Private::fling(double way, double low, double high)
{
    const double wanted = startAngle + way;
    startAngle = bounded(low, wanted, high);
    if (wanted >= low && wanted <= high)
        return;
    flingSteps = 0;
    flingTimer.stop();
}

// The faster the finger from its first move, the more ticks; a slow one, or one that crossed the
// end of a minute, flings nothing.
void MArcList::Private::startFling(const QPoint &pos)
{
    const int duration = q->getCurrentTime() - moveStartTime;
    if (duration < kShortestFlick || duration > kLongestFlick)
        return;
    flingTimer.setInterval(kFlingInterval);
    const qint64 steps = distance(pos.y(), pressPos.y()) * 2 / duration;
    flingSteps = int(std::min<qint64>(steps, std::numeric_limits<int>::max()));
    flingTimer.start();
}

void MArcList::Private::drawLetters(QPainter &painter)
{
    letters.set(painter, kArcBox.size(), Qt::AlignCenter);
    const QTransform origin = painter.worldTransform();
    const QPen pen = painter.pen();
    for (const Place &place : placesOnArc(painter)) {
        painter.setWorldTransform(place.transform);
        if (place.index == pressedIndex)
            painter.setPen(QPen(pressColor));
        letters.draw(painter, kArcBox.topLeft(), characters.at(place.index));
        if (place.index == pressedIndex)
            painter.setPen(pen);
    }
    painter.setWorldTransform(origin);
}

// The arc is turned on from letter to letter, drawn or not, so that rounding is the same wherever
// the list stands.
const std::vector<MArcList::Private::Place> &MArcList::Private::placesOnArc(const QPainter &painter)
{
    const Arc arc{
        DeviceView(painter),   painter.worldTransform(), radius, startAngle, itemHight, showItem,
        int(characters.size())};
    return places.value(arc, [&](std::vector<Place> &seen) {
        seen.clear();
        inked = QRectF();
        const qint64 first = toInt(ratio(-startAngle, itemHight));
        const qint64 last = std::min<qint64>(first + showItem, characters.size() - 1);
        const QRectF boxAndOverhang = QRectF(kArcBox).adjusted(-kLetterBox, 0, kLetterBox, 0);
        const QRectF ink = boxAndOverhang.adjusted(0, -kLetterBox, 0, kLetterBox);
        QTransform turned = arc.origin;
        turned.rotate(qreal(startAngle - 90));
        for (int i = 0; i <= last; ++i, turned.rotate(qreal(itemHight))) {
            if (i < first - showItem)
                continue;
            QTransform upright = turned;
            upright.translate(0, qreal(radius));
            upright.rotate(90);
            if (arc.view.shows(upright, boxAndOverhang)) {
                seen.push_back({i, upright});
                inked |= upright.mapRect(ink);
            }
        }
    });
}

// The marker's left edge is cut to whole px, and its halves are those of whole numbers.
void MArcList::Private::drawMarker(QPainter &painter, int marker, int index)
{
    const QSize size = pointPixmap.size();
    const int halfWidth = size.width() / 2;
    const QRect rect =
        boundedRect(toInt(radius - halfWidth), -(size.height() / 2), size.width(), size.height());
    QTransform turned = painter.worldTransform();
    turned.rotate(qreal(index * itemHight + startAngle + pixXOffset));
    const QRectF area = QRectF(rect).adjusted(-1, -1, 1, 1);
    markers[std::size_t(marker)].draw(painter, turned, area, {pointPixmap.cacheKey()},
                                      [&](QPainter &p) { p.drawPixmap(rect, pointPixmap); });
}

// To accessibility. Of the pressed letter it tells the number, not the index.
double MArcList::Private::tell(const QWidget *widget, AccessibleFact fact, const QPoint &at)
{
    const Private &d = *static_cast<const MArcList *>(widget)->d;
    switch (fact) {
    case AccessibleFact::Letters:
        return int(d.characters.size());
    case AccessibleFact::LetterAt:
        return d.characters.value(at.x()).unicode();
    case AccessibleFact::CurrentLetter:
        return d.currentIndex;
    case AccessibleFact::IsPressed:
        return d.pressedIndex + 1;
    default:
        return 0;
    }
}
