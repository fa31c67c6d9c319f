// SPDX-License-Identifier: Apache-2.0
#include "marcscrollbar.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/deviceview.h"
#include "detail/geometry.h"
#include "detail/layercache.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

using namespace panelkit;

namespace
{

constexpr double kStraightBelow = 1.0; // px, radius
constexpr double kTickStart = 0.9299999999999999; // of the radius
constexpr double kTickEnd = 0.98; // of the radius
constexpr double kPointerBase = 0.8; // of the radius
constexpr qreal kPointerHalfBase = 2; // px
constexpr double kReach = 200.0; // px inside and outside the arc; a touch from there on is none
constexpr double kMargin = 50.0; // px above and below the ticks of the straight bar
constexpr double kFinestAngle = 0.01; // degrees; a smaller change of an angle is none
constexpr double kFullTurn = 360.0; // degrees
constexpr qint64 kMostTicks = 100000; // a range of more values has no tick for each
constexpr int kRowsAtOnce = 64; // ticks that are filled together
constexpr double kRadian = 0.017453292519943295; // radians a degree

bool differs(double a, double b) { return std::abs(a - b) >= kFinestAngle; }

// Whether a horizontal line one pixel high is a filled rectangle of the same pixels.
bool drawsRows(const QPainter &painter)
{
    const QPen &pen = painter.pen();
    return pen.style() == Qt::SolidLine && pen.widthF() <= 1
        && !painter.testRenderHint(QPainter::Antialiasing) && isOnPixels(painter);
}

// Whether drawing the same rows again changes nothing.
bool coversRows(const QPainter &painter)
{
    return drawsRows(painter) && painter.pen().brush().isOpaque() && painter.opacity() >= 1
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

} // namespace

class Q_DECL_HIDDEN MArcScrollBar::Private
{
public:
    explicit Private(MArcScrollBar *widget) : q(widget) { }

    // What the pictures of the ticks and of the pointer depend on.
    struct Ticks {
        double radius; // px
        double span; // degrees
        qint64 range;

        auto tied() const { return std::tie(radius, span, range); }
    };
    struct Pointer {
        QRgb color;
        qint64 picture; // QPixmap::cacheKey()

        auto tied() const { return std::tie(color, picture); }
    };

    bool isStraight() const;
    qint64 range() const;
    double span() const;
    double pointerAngle() const;
    bool ticksStandApart(const QPainter &painter) const;
    void drawTicksOneByOne(QPainter &painter) const;
    double exactAt(const QPoint &p) const;
    double exactOnColumn(const QPoint &p) const;
    void touch(const QPoint &p, bool release);
    int wholeValue(double exact) const;
    void takeValue(double exact, bool release);
    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);

    MArcScrollBar *const q;
    double radius = 570.0; // px, below 1: straight
    QPointF centerPoint{-460.0, 200.0}; // px
    QColor lineColor{173, 173, 173, 255};
    QColor pointColor{94, 94, 94, 255};
    double rotateAngle = 90.0; // degrees
    double startAngle = 162.0; // degrees
    QPixmap pointPixmap;
    bool showTicks = true;

    mutable LayerCache<Ticks> ticks;
    mutable LayerCache<Pointer> pointer;
};

/** The range is that of a new QScrollBar, 0 to 99. The parent shows through between the ticks. */
MArcScrollBar::MArcScrollBar(QWidget *parent)
    : QScrollBar(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::ArcScrollBar, Private::tell);
    setAttribute(Qt::WA_WState_OwnSizePolicy);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

MArcScrollBar::~MArcScrollBar() = default;

double MArcScrollBar::radius() const { return d->radius; }

/** The radius of the arc in px; 570 by default, below 1 for a straight bar. Stored only. */
void MArcScrollBar::setRadius(double radius) { d->radius = radius; }

QColor MArcScrollBar::lineColor() const { return d->lineColor; }

/**
 * The colour that the ticks are filled with; rgb(173, 173, 173) by default. Repaints. Ticks are
 * lines and have nothing to fill: their colour is the foreground of the palette (kept behaviour).
 */
void MArcScrollBar::setLineColor(QColor color)
{
    d->lineColor = color;
    update();
}

QColor MArcScrollBar::pointColor() const { return d->pointColor; }

/** The colour of the triangle at the value; rgb(94, 94, 94) by default. Repaints. */
void MArcScrollBar::setPointColor(QColor color)
{
    d->pointColor = color;
    update();
}

double MArcScrollBar::rotateAngle() const { return d->rotateAngle; }

/**
 * How far the arc is turned, 0 to 360 degrees; 90 by default. Other angles, and changes of less
 * than a hundredth, are ignored. Repaints. The touches agree with the picture at 90 and 270 only.
 */
void MArcScrollBar::setRotateAngle(double angle)
{
    if (!(angle >= 0 && angle <= kFullTurn) || !differs(angle, d->rotateAngle))
        return;
    d->rotateAngle = angle;
    update();
}

double MArcScrollBar::startAngle() const { return d->startAngle; }

/**
 * Half of what the arc leaves out of a full turn, in degrees: it spans 360 - 2 x startAngle. 162 by
 * default. Changes of less than a hundredth are ignored; there is no other limit. Repaints.
 */
void MArcScrollBar::setStartAngle(double angle)
{
    if (!differs(angle, d->startAngle))
        return;
    d->startAngle = angle;
    update();
}

QPixmap MArcScrollBar::pointPixmap() const { return d->pointPixmap; }

/**
 * The pointer instead of the triangle; none by default. The straight bar has only this one.
 * Repaints.
 */
void MArcScrollBar::setPointPixmap(const QPixmap &pixmap)
{
    d->pointPixmap = pixmap;
    update();
}

bool MArcScrollBar::showTicks() const { return d->showTicks; }

/** Whether there are ticks; true by default. Repaints. */
void MArcScrollBar::setShowTicks(bool shown)
{
    d->showTicks = shown;
    update();
}

QPointF MArcScrollBar::centerPoint() const { return d->centerPoint; }

/** The centre of the arc in px of the bar, usually outside of it; (-460, 200) by default. Repaints.
 */
void MArcScrollBar::setCenterPoint(const QPointF &center)
{
    d->centerPoint = center;
    update();
}

/**
 * Draws a tick for each value of the range around the origin, in the pen of the painter. A range of
 * more than 100,000 has evenly spaced ones, 50,000 or more, for each second value, each third and
 * so on: where they lie so close nobody can tell, and a range of a billion takes no longer.
 */
void MArcScrollBar::drawTicks(QPainter *painter)
{
    if (!painter)
        return;
    const auto draw = [this](QPainter &p) { d->drawTicksOneByOne(p); };
    const auto reach = qreal(std::abs(d->radius)) + 1;
    const QRectF area(-reach, -reach, 2 * reach, 2 * reach);
    QTransform turned = painter->worldTransform();
    turned.rotate(qreal(d->startAngle));
    if (d->ticksStandApart(*painter)) {
        d->ticks.draw(*painter, turned, area, {d->radius, d->span(), d->range()}, draw);
    } else if (DeviceView(*painter).shows(turned, area)) {
        painter->save();
        painter->setWorldTransform(turned);
        draw(*painter);
        painter->restore();
    }
}

/** Draws the pointer around the origin: the picture, or the triangle if there is none. */
void MArcScrollBar::drawPointer(QPainter *painter)
{
    if (!painter)
        return;
    const QSize size = d->pointPixmap.size();
    const QRect picture =
        boundedRect(-(size.width() / 2), toInt(-d->radius), size.width(), size.height());
    const auto base = qreal(toInt(-d->radius * kPointerBase));
    const auto tip = -qreal(toInt(d->radius));
    const std::array<QPointF, 3> triangle{QPointF(-kPointerHalfBase, base),
                                          QPointF(kPointerHalfBase, base), QPointF(0, tip)};
    const bool hasPicture = !d->pointPixmap.isNull();
    const QRectF triangleArea =
        QRectF(triangle[0], triangle[2]).normalized().adjusted(0, 0, kPointerHalfBase, 0);
    const QRectF area = (hasPicture ? QRectF(picture) : triangleArea).adjusted(-1, -1, 1, 1);

    const auto draw = [&](QPainter &p) {
        if (hasPicture) {
            p.drawPixmap(picture, d->pointPixmap);
            return;
        }
        p.save();
        p.setPen(Qt::NoPen);
        p.setBrush(d->pointColor);
        p.drawConvexPolygon(triangle.data(), int(triangle.size()));
        p.restore();
    };
    QTransform turned = painter->worldTransform();
    turned.rotate(qreal(d->startAngle - 180));
    turned.rotate(qreal(d->pointerAngle()));
    d->pointer.draw(*painter, turned, area, {d->pointColor.rgba(), d->pointPixmap.cacheKey()},
                    draw);
}

/**
 * Draws the ticks of the straight bar. Their distance is a whole number of px, so that they stay
 * evenly spaced and sharp. In a range that does not divide the height they end short of the bottom,
 * and the pointer drifts off them. Of more than 100,000 the others are left out.
 */
void MArcScrollBar::drawTicksVert(QPainter *painter)
{
    if (!painter)
        return;
    const qint64 height100 = toInt(height() - 2 * kMargin);
    const qint64 pitch = d->range() == 0 ? 0 : height100 / d->range();
    // Without distance all ticks are one line over and over.
    const bool isOneLine = pitch == 0 && coversRows(*painter);
    const qint64 last = isOneLine ? 0 : std::min(d->range(), kMostTicks);
    const auto rowAt = [&](qint64 i) {
        return QRect(0, int(i * pitch + qint64(kMargin)), width() + 1, 1);
    };
    if (drawsRows(*painter)) {
        const QPen pen = painter->pen();
        painter->setPen(Qt::NoPen);
        painter->setBrush(pen.brush());
        std::array<QRect, kRowsAtOnce> rows;
        for (qint64 i = 0; i <= last;) {
            const qint64 count = std::min<qint64>(kRowsAtOnce, last + 1 - i);
            std::generate_n(rows.begin(), count, [&] { return rowAt(i++); });
            painter->drawRects(rows.data(), int(count));
        }
        painter->setPen(pen);
    } else {
        for (qint64 i = 0; i <= last; ++i)
            painter->drawLine(rowAt(i).topLeft(), rowAt(i).topRight());
    }
    painter->setBrush(d->lineColor);
}

/** Draws the pointer of the straight bar: the picture, and nothing if there is none. */
void MArcScrollBar::drawPointerVert(QPainter *painter)
{
    if (!painter || d->pointPixmap.isNull())
        return;
    const double along =
        ratio((height() - 2 * kMargin) * double(qint64(value()) - minimum()), double(d->range()));
    const int half = d->pointPixmap.height() / 2;
    const int y = toInt(along - half + kMargin);
    painter->drawPixmap(boundedRect(0, y, d->pointPixmap.width(), d->pointPixmap.height()),
                        d->pointPixmap);
}

/**
 * Sets the value from the direction of a point, if it is near the arc: while the finger is down as
 * the position of the slider, with sliderMoved, and on the release as the value. A point exactly
 * above, below or beside the centre is ignored, and so is one that makes no difference.
 */
void MArcScrollBar::calcCurValue(QPoint p, bool release) { d->takeValue(d->exactAt(p), release); }

/** Sets the value from the height of a point, in the same way as calcCurValue(). */
void MArcScrollBar::calcCurValueVert(QPoint p, bool release)
{
    d->takeValue(d->exactOnColumn(p), release);
}

void MArcScrollBar::paintEvent(QPaintEvent *e)
{
    QWidget::paintEvent(e); // NOLINT(bugprone-parent-virtual-call): nothing of QScrollBar's picture
    QPainter painter(this);
    if (d->isStraight()) {
        if (d->showTicks)
            drawTicksVert(&painter);
        drawPointerVert(&painter);
        return;
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(d->centerPoint);
    painter.rotate(qreal(d->rotateAngle));
    if (d->showTicks)
        drawTicks(&painter);
    drawPointer(&painter);
}

/** Emits sliderPressed, then takes the value. No handler of QScrollBar is called, here and below.
 */
void MArcScrollBar::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MArcScrollBar> guard(this);
    emit sliderPressed();
    if (guard)
        d->touch(e->pos(), false);
}

void MArcScrollBar::mouseMoveEvent(QMouseEvent *e)
{
    if (e)
        d->touch(e->pos(), false);
}

/** Takes the value, then emits sliderReleased. */
void MArcScrollBar::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MArcScrollBar> guard(this);
    d->touch(e->pos(), true);
    if (guard)
        emit sliderReleased();
}

bool MArcScrollBar::Private::isStraight() const { return radius < kStraightBelow; }

// Of values; 64 bits hold the distance of any two ints.
qint64 MArcScrollBar::Private::range() const { return qint64(q->maximum()) - q->minimum(); }

// Of degrees.
double MArcScrollBar::Private::span() const { return kFullTurn - 2 * startAngle; }

// From the first tick. A range without extent has the pointer at its only tick. The value is above
// the maximum while a slot is told of a smaller range.
double MArcScrollBar::Private::pointerAngle() const
{
    if (q->value() > q->maximum())
        return kFullTurn;
    if (range() == 0)
        return 0;
    return span() / double(range()) * double(qint64(q->value()) - q->minimum());
}

// Whether no pixel can belong to two ticks: only then are kept ones the same in every pixel.
bool MArcScrollBar::Private::ticksStandApart(const QPainter &painter) const
{
    if (range() == 0)
        return true;
    const double step = std::abs(span()) / double(range());
    const double scale = std::sqrt(std::abs(double(painter.worldTransform().determinant())));
    const double distance = std::abs(radius) * kTickStart * step * kRadian * scale;
    const double thickness = std::max(1.0, double(painter.pen().widthF()) * scale) + 2; // px
    return distance >= thickness && std::abs(span()) + step <= kFullTurn;
}

void MArcScrollBar::Private::drawTicksOneByOne(QPainter &painter) const
{
    const qint64 stride = std::max<qint64>((range() + kMostTicks - 1) / kMostTicks, 1);
    const double step = range() == 0 ? 0 : span() / double(range()) * double(stride);
    const QLineF tick(0, qreal(kTickStart * radius), 0, qreal(kTickEnd * radius));
    painter.save();
    painter.setBrush(lineColor);
    for (qint64 i = 0; i <= range(); i += stride) {
        painter.drawLine(tick);
        painter.rotate(qreal(step));
    }
    painter.restore();
}

void MArcScrollBar::Private::touch(const QPoint &p, bool release)
{
    if (isStraight())
        q->calcCurValueVert(p, release);
    else
        q->calcCurValue(p, release);
}

// A release emits valueChanged a second time, after the one that setValue() itself has emitted:
// listeners tell the end of a touch by it. Likewise sliderMoved always follows the new position.
void MArcScrollBar::Private::takeValue(double exact, bool release)
{
    if (std::isnan(exact))
        return;
    const int wanted = wholeValue(exact);
    if (wanted == q->value())
        return;
    const QPointer<MArcScrollBar> guard(q);
    if (release) {
        q->setValue(wanted);
        if (guard)
            emit q->valueChanged(wanted);
    } else {
        q->setSliderPosition(wanted);
        if (guard)
            emit q->sliderMoved(wanted);
    }
}

// Before it is bounded; no number where a touch of the arc is none.
double MArcScrollBar::Private::exactAt(const QPoint &p) const
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const double x = double(p.x()) - toInt(double(centerPoint.x()));
    const double y = double(p.y()) - toInt(double(centerPoint.y()));
    const double off = std::sqrt(x * x + y * y) - radius;
    if (!(off > -kReach && off < kReach))
        return kNone;
    const std::optional<double> direction = touchDirection(x, y, 0);
    if (!direction)
        return kNone;
    double along = *direction + rotateAngle - startAngle;
    if (along >= kFullTurn)
        along = std::fmod(along, kFullTurn);
    return q->minimum() + ratio(along * double(range()), span());
}

double MArcScrollBar::Private::exactOnColumn(const QPoint &p) const
{
    return q->minimum() + ratio((p.y() - kMargin) * double(range()), q->height() - 2 * kMargin);
}

int MArcScrollBar::Private::wholeValue(double exact) const
{
    return toInt(std::clamp(exact, double(q->minimum()), double(q->maximum())));
}

// To accessibility.
double MArcScrollBar::Private::tell(const QWidget *widget, AccessibleFact, const QPoint &at)
{
    const Private &d = *static_cast<const MArcScrollBar *>(widget)->d;
    const double exact = d.isStraight() ? d.exactOnColumn(at) : d.exactAt(at);
    return std::isnan(exact) ? exact : d.wholeValue(exact);
}
