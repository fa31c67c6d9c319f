#include "marcscrollbar.h"

#include "detail/arithmetic.h"
#include "detail/deviceview.h"
#include "detail/geometry.h"
#include "detail/keptlayer.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
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
constexpr double kRadian = 0.017453292519943295; // radians a degree

bool differs(double a, double b)
{
    return std::abs(a - b) >= kFinestAngle;
}

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

/** The range is that of a new QScrollBar, 0 to 99. The parent shows through between the ticks. */
MArcScrollBar::MArcScrollBar(QWidget *parent)
    : QScrollBar(parent), m_ticks(std::make_unique<KeptLayer>()),
      m_pointer(std::make_unique<KeptLayer>())
{
    setAttribute(Qt::WA_WState_OwnSizePolicy);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

MArcScrollBar::~MArcScrollBar() = default;

/** The radius of the arc in px; 570 by default, below 1 for a straight bar. Stored only. */
void MArcScrollBar::setRadius(double radius)
{
    m_radius = radius;
}

/**
 * The colour that the ticks are filled with; rgb(173, 173, 173) by default. Repaints. Ticks are
 * lines and have nothing to fill: their colour is the foreground of the palette. That is meant;
 * screens set the colour of the ticks there.
 */
void MArcScrollBar::setLineColor(QColor color)
{
    m_lineColor = color;
    update();
}

/** The colour of the triangle at the value; rgb(94, 94, 94) by default. Repaints. */
void MArcScrollBar::setPointColor(QColor color)
{
    m_pointColor = color;
    update();
}

/**
 * How far the arc is turned, 0 to 360 degrees; 90 by default. Other angles, and changes of less
 * than a hundredth, are ignored. Repaints. The touches agree with the picture at 90 and 270 only.
 */
void MArcScrollBar::setRotateAngle(double angle)
{
    if (!(angle >= 0 && angle <= kFullTurn) || !differs(angle, m_rotateAngle))
        return;
    m_rotateAngle = angle;
    update();
}

/**
 * Half of what the arc leaves out of a full turn, in degrees: it spans 360 - 2 x startAngle. 162 by
 * default. Changes of less than a hundredth are ignored; there is no other limit. Repaints.
 */
void MArcScrollBar::setStartAngle(double angle)
{
    if (!differs(angle, m_startAngle))
        return;
    m_startAngle = angle;
    update();
}

/**
 * The pointer instead of the triangle; none by default. The straight bar has only this one.
 * Repaints.
 */
void MArcScrollBar::setPointPixmap(const QPixmap &pixmap)
{
    m_pointPixmap = pixmap;
    update();
}

/** Whether there are ticks; true by default. Repaints. */
void MArcScrollBar::setShowTicks(bool shown)
{
    m_showTicks = shown;
    update();
}

/** The centre of the arc in px of the bar, usually outside of it; (-460, 200) by default. Repaints.
 */
void MArcScrollBar::setCenterPoint(const QPointF &center)
{
    m_centerPoint = center;
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
    const auto draw = [this](QPainter &p) {
        drawTicksOneByOne(p);
    };
    const auto reach = qreal(std::abs(m_radius)) + 1;
    const QRectF area(-reach, -reach, 2 * reach, 2 * reach);
    QTransform turned = painter->worldTransform();
    turned.rotate(qreal(m_startAngle));
    if (ticksStandApart(*painter)) {
        m_ticks->draw(*painter, turned, {area, {m_radius, span(), double(range())}, 0}, draw);
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
    const QSize size = m_pointPixmap.size();
    const QRect picture =
        boundedRect(-(size.width() / 2), toInt(-m_radius), size.width(), size.height());
    const auto base = qreal(toInt(-m_radius * kPointerBase));
    const auto tip = -qreal(toInt(m_radius));
    const std::array<QPointF, 3> triangle{QPointF(-kPointerHalfBase, base),
                                          QPointF(kPointerHalfBase, base), QPointF(0, tip)};
    const bool hasPicture = !m_pointPixmap.isNull();
    const QRectF triangleArea =
        QRectF(triangle[0], triangle[2]).normalized().adjusted(0, 0, kPointerHalfBase, 0);
    const QRectF area = (hasPicture ? QRectF(picture) : triangleArea).adjusted(-1, -1, 1, 1);

    const auto draw = [&](QPainter &p) {
        if (hasPicture) {
            p.drawPixmap(picture, m_pointPixmap);
            return;
        }
        p.save();
        p.setPen(Qt::NoPen);
        p.setBrush(m_pointColor);
        p.drawConvexPolygon(triangle.data(), int(triangle.size()));
        p.restore();
    };
    QTransform turned = painter->worldTransform();
    turned.rotate(qreal(m_startAngle - 180));
    turned.rotate(qreal(pointerAngle()));
    m_pointer->draw(*painter, turned,
                    {area, {double(m_pointColor.rgba())}, m_pointPixmap.cacheKey()},
                    std::cref(draw));
}

/**
 * Draws the ticks of the straight bar. Their distance is a whole number of px, so that in a range
 * that does not divide the height they end short of the bottom, and the pointer drifts off them.
 * That is meant: ticks stay evenly spaced and sharp. Of more than 100,000 the others are left out.
 */
void MArcScrollBar::drawTicksVert(QPainter *painter)
{
    if (!painter)
        return;
    const qint64 height100 = toInt(height() - 2 * kMargin);
    const qint64 pitch = range() == 0 ? 0 : height100 / range();
    // Without distance all ticks are one line over and over.
    const bool isOneLine = pitch == 0 && coversRows(*painter);
    const qint64 last = isOneLine ? 0 : std::min(range(), kMostTicks);
    QVector<QRect> rows;
    rows.reserve(int(last) + 1);
    for (qint64 i = 0; i <= last; ++i)
        rows += QRect(0, int(i * pitch + qint64(kMargin)), width() + 1, 1);
    if (drawsRows(*painter)) {
        const QPen pen = painter->pen();
        painter->setPen(Qt::NoPen);
        painter->setBrush(pen.brush());
        painter->drawRects(rows);
        painter->setPen(pen);
    } else {
        for (const QRect &row : qAsConst(rows))
            painter->drawLine(row.topLeft(), row.topRight());
    }
    painter->setBrush(m_lineColor);
}

/** Draws the pointer of the straight bar: the picture, and nothing if there is none. */
void MArcScrollBar::drawPointerVert(QPainter *painter)
{
    if (!painter || m_pointPixmap.isNull())
        return;
    const double along =
        ratio((height() - 2 * kMargin) * double(qint64(value()) - minimum()), double(range()));
    const int half = m_pointPixmap.height() / 2;
    const int y = toInt(along - half + kMargin);
    painter->drawPixmap(boundedRect(0, y, m_pointPixmap.width(), m_pointPixmap.height()),
                        m_pointPixmap);
}

/**
 * Sets the value from the direction of a point, if it is near the arc: while the finger is down as
 * the position of the slider, with sliderMoved, and on the release as the value. A point exactly
 * above, below or beside the centre is ignored, and so is one that makes no difference.
 */
void MArcScrollBar::calcCurValue(QPoint p, bool release)
{
    const double x = double(p.x()) - toInt(double(m_centerPoint.x()));
    const double y = double(p.y()) - toInt(double(m_centerPoint.y()));
    const double off = std::sqrt(x * x + y * y) - m_radius;
    if (!(off > -kReach && off < kReach))
        return;
    const std::optional<double> direction = touchDirection(x, y, 0);
    if (!direction)
        return;
    double along = *direction + m_rotateAngle - m_startAngle;
    if (along >= kFullTurn)
        along = std::fmod(along, kFullTurn);
    takeValue(minimum() + ratio(along * double(range()), span()), release);
}

/** Sets the value from the height of a point, in the same way as calcCurValue(). */
void MArcScrollBar::calcCurValueVert(QPoint p, bool release)
{
    takeValue(minimum() + ratio((p.y() - kMargin) * double(range()), height() - 2 * kMargin),
              release);
}

void MArcScrollBar::paintEvent(QPaintEvent *e)
{
    QWidget::paintEvent(e); // NOLINT(bugprone-parent-virtual-call): nothing of QScrollBar's picture
    QPainter painter(this);
    if (isStraight()) {
        if (m_showTicks)
            drawTicksVert(&painter);
        drawPointerVert(&painter);
        return;
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(m_centerPoint);
    painter.rotate(qreal(m_rotateAngle));
    if (m_showTicks)
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
        touch(e->pos(), false);
}

void MArcScrollBar::mouseMoveEvent(QMouseEvent *e)
{
    if (e)
        touch(e->pos(), false);
}

/** Takes the value, then emits sliderReleased. */
void MArcScrollBar::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MArcScrollBar> guard(this);
    touch(e->pos(), true);
    if (guard)
        emit sliderReleased();
}

bool MArcScrollBar::isStraight() const
{
    return m_radius < kStraightBelow;
}

// Of values; 64 bits hold the distance of any two ints.
qint64 MArcScrollBar::range() const
{
    return qint64(maximum()) - minimum();
}

// Of degrees.
double MArcScrollBar::span() const
{
    return kFullTurn - 2 * m_startAngle;
}

// From the first tick. A range without extent has the pointer at its only tick. The value is above
// the maximum while a slot is told of a smaller range.
double MArcScrollBar::pointerAngle() const
{
    if (value() > maximum())
        return kFullTurn;
    if (range() == 0)
        return 0;
    return span() / double(range()) * double(qint64(value()) - minimum());
}

// Whether no pixel can belong to two ticks: only then are kept ones the same in every pixel.
bool MArcScrollBar::ticksStandApart(const QPainter &painter) const
{
    if (range() == 0)
        return true;
    const double step = std::abs(span()) / double(range());
    const double scale = std::sqrt(std::abs(double(painter.worldTransform().determinant())));
    const double distance = std::abs(m_radius) * kTickStart * step * kRadian * scale;
    const double thickness = std::max(1.0, double(painter.pen().widthF()) * scale) + 2; // px
    return distance >= thickness && std::abs(span()) + step <= kFullTurn;
}

void MArcScrollBar::drawTicksOneByOne(QPainter &painter) const
{
    const qint64 stride = std::max<qint64>((range() + kMostTicks - 1) / kMostTicks, 1);
    const double step = range() == 0 ? 0 : span() / double(range()) * double(stride);
    const QLineF tick(0, qreal(kTickStart * m_radius), 0, qreal(kTickEnd * m_radius));
    painter.save();
    painter.setBrush(m_lineColor);
    for (qint64 i = 0; i <= range(); i += stride) {
        painter.drawLine(tick);
        painter.rotate(qreal(step));
    }
    painter.restore();
}

void MArcScrollBar::touch(const QPoint &p, bool release)
{
    if (isStraight())
        calcCurValueVert(p, release);
    else
        calcCurValue(p, release);
}

// A release emits valueChanged a second time, after the one that setValue() itself has emitted:
// listeners tell the end of a touch by it. Likewise sliderMoved always follows the new position.
void MArcScrollBar::takeValue(double exact, bool release)
{
    if (std::isnan(exact))
        return;
    const int wanted = toInt(std::clamp(exact, double(minimum()), double(maximum())));
    if (wanted == value())
        return;
    const QPointer<MArcScrollBar> guard(this);
    if (release) {
        setValue(wanted);
        if (guard)
            emit valueChanged(wanted);
    } else {
        setSliderPosition(wanted);
        if (guard)
            emit sliderMoved(wanted);
    }
}
