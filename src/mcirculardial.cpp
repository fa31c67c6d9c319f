// SPDX-License-Identifier: Apache-2.0
#include "mcirculardial.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/deviceview.h"
#include "detail/geometry.h"
#include "detail/layercache.h"

#include <QFont>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

using namespace panelkit;

namespace
{

constexpr double kFinestValue = 0.05; // a smaller change of a value or a limit is none
constexpr double kFinestAngle = 0.01; // degrees; a smaller change of an angle is none
constexpr double kFinestScale = 0.01; // the scale is coarser
constexpr double kNearWhole = 0.01;
constexpr double kTickEnd = 0.98; // of the radius
constexpr double kLongTick = 0.1; // of the radius
constexpr double kShortTick = 0.05; // of the radius
constexpr double kClearRim = 2.2; // px outside the ticks, for them to touch no pixel of the rim
constexpr double kLabelAt = 0.82; // of the radius
constexpr QRect kLabel(-15, 0, 30, 10); // px
constexpr qreal kPointerHalfBase = 2; // px
constexpr QRect kHub(-6, -6, 12, 12); // px
constexpr double kValueAt = 0.6 * 0.5; // of the radius
constexpr QSizeF kValueSize(60, 30); // px
constexpr double kReach = 200.0; // px inside and outside the rim; a touch from there on is none
constexpr double kFullTurn = 360.0; // degrees
constexpr int kMostTicks = 100000; // up to so many, all ticks and labels are drawn; of more:
constexpr int kFewerTicks = 10000; // many more than there is room for
constexpr int kFewerLabels = 400; // likewise
constexpr double kLargestRadius = 1 << 24; // px, no widget is larger

// Thinning out by tens leaves the ticks at round values.
qint64 tickStride(int count)
{
    qint64 stride = 1;
    while (count > kMostTicks && count / stride > kFewerTicks)
        stride *= 10;
    return stride;
}

bool isSameAngle(double a, double b) { return !(std::abs(a - b) >= kFinestAngle); }

// No number is the same as any: it changes nothing.
bool isSameValue(double a, double b) { return std::isnan(a) || std::abs(a - b) < kFinestValue; }

// What texts are laid out by.
struct Lettering {
    QFont font;
    int dpi = 0;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QRgb color = 0;

    Lettering() = default;
    Lettering(const QPainter &painter, const QColor &ink)
        : font(painter.font()), dpi(painter.device()->logicalDpiY()),
          direction(painter.layoutDirection()), color(ink.rgba())
    {
    }

    bool operator==(const Lettering &other) const
    {
        return std::tie(dpi, direction, color, font)
            == std::tie(other.dpi, other.direction, other.color, other.font);
    }
};

// Everything that the ground, the ticks and their labels depend on, but for the transform.
struct FaceInputs {
    double radius = 0;
    double minValue = 0;
    double maxValue = 0;
    double scale = 0;
    double startAngle = 0;
    int scaleLong = 0;
    QRgb ground = 0;
    Lettering lettering;

    auto tied() const
    {
        return std::tie(radius, minValue, maxValue, scale, startAngle, scaleLong, ground,
                        lettering);
    }
};

// What the pointer and its hub depend on, but for where they lie.
struct PointerInputs {
    QRgb color = 0;

    auto tied() const { return std::tie(color); }
};

// What the text of the value says.
struct ValueText {
    double value = 0;
    QString unit;

    auto tied() const { return std::tie(value, unit); }
};

// Everything that the picture of it depends on, but for the transform.
struct ValueInputs {
    double radius = 0;
    QString text;
    Lettering lettering;

    auto tied() const { return std::tie(radius, text, lettering); }
};

} // namespace

class Q_DECL_HIDDEN MCircularDial::Private
{
public:
    explicit Private(MCircularDial *widget) : q(widget) { }

    double paintedRadius() const;
    int tickCount() const;
    double span() const;
    double pointerAngle() const;
    bool canKeepFace() const;
    void drawFace(QPainter &painter) const;
    void drawBg(QPainter &painter) const;
    void drawTicks(QPainter &painter) const;
    double valueAt(qint64 tick) const;
    qint64 labelStride(qint64 tickStride) const;
    bool isLong(double tick) const;
    void drawTick(QPainter &painter, bool isLong) const;
    void drawLabel(QPainter &painter, const DeviceView &view, double tick) const;
    void drawPointer(QPainter &painter) const;
    void drawValue(QPainter &painter) const;
    void takeTouch(QMouseEvent *e, bool release);
    std::optional<double> valueAt(const QPoint &p) const;
    void calcCurValue(QPoint p, bool release);
    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);

    MCircularDial *const q;
    double radius = 250.0; // px
    double minValue = 87.5;
    double maxValue = 108.0;
    double value = 87.5;
    QString unit;
    QColor textColor{255, 255, 255};
    QColor bgColor{173, 173, 173};
    QColor centerColor{94, 94, 94};
    double rotateAngle = 90.0; // degrees
    double scale = 0.1; // of the value, a tick
    int scaleLong = 1; // whole values
    double startAngle = 120.0; // degrees

    mutable LayerCache<FaceInputs> faceLayer;
    mutable LayerCache<PointerInputs> pointerLayer;
    mutable LayerCache<PointerInputs> hubLayer;
    mutable Memo<ValueText, QString> valueText;
    mutable LayerCache<ValueInputs> valueLayer;
};

/** A dial of 250 px at the lower end of the FM band. */
MCircularDial::MCircularDial(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::CircularDial, Private::tell);
}

MCircularDial::~MCircularDial() = default;

double MCircularDial::radius() const { return d->radius; }

/** The radius in px; 250 by default. Stored only: it shows at the next paint. */
void MCircularDial::setRadius(double radius) { d->radius = radius; }

double MCircularDial::minValue() const { return d->minValue; }

/**
 * The lowest value; 87.5 by default. A change of less than 0.05 is ignored, and so is a minimum
 * that is not below the maximum. Repaints. A value below it follows, unless by less than 0.05,
 * which is no change of the value: then it stays where it is, and nothing is repainted
 * (kept behaviour).
 */
void MCircularDial::setMinValue(double minimum)
{
    if (isSameValue(minimum, d->minValue) || minimum >= d->maxValue)
        return;
    d->minValue = minimum;
    if (d->value < minimum)
        setValue(minimum);
    else
        update();
}

double MCircularDial::maxValue() const { return d->maxValue; }

/** The highest value; 108 by default. The mirror image of setMinValue(). */
void MCircularDial::setMaxValue(double maximum)
{
    if (isSameValue(maximum, d->maxValue) || maximum <= d->minValue)
        return;
    d->maxValue = maximum;
    if (d->value > maximum)
        setValue(maximum);
    else
        update();
}

double MCircularDial::value() const { return d->value; }

/**
 * The value; 87.5 by default. A change of less than 0.05 is ignored; any other is limited to the
 * range and repaints. No signal: those are for touches.
 */
void MCircularDial::setValue(double value)
{
    if (isSameValue(value, d->value))
        return;
    d->value = std::clamp(value, d->minValue, d->maxValue);
    update();
}

QString MCircularDial::unit() const { return d->unit; }

/** The text that follows the value at once; empty by default. Repaints. */
void MCircularDial::setUnit(QString unit)
{
    d->unit = std::move(unit);
    update();
}

QColor MCircularDial::textColor() const { return d->textColor; }

/** The colour of the ticks, their labels and the value; white by default. Repaints. */
void MCircularDial::setTextColor(QColor color)
{
    d->textColor = color;
    update();
}

QColor MCircularDial::bgColor() const { return d->bgColor; }

/** The colour of the ground; rgb(173, 173, 173) by default. Repaints. */
void MCircularDial::setBgColor(QColor color)
{
    d->bgColor = color;
    update();
}

QColor MCircularDial::centerColor() const { return d->centerColor; }

/** The colour of the pointer and its hub; rgb(94, 94, 94) by default. Repaints. */
void MCircularDial::setCenterColor(QColor color)
{
    d->centerColor = color;
    update();
}

double MCircularDial::rotateAngle() const { return d->rotateAngle; }

/**
 * How far the whole dial is turned, 0 to 360 degrees; 90 by default. Other angles, and changes of
 * less than a hundredth, are ignored. Repaints.
 */
void MCircularDial::setRotateAngle(double angle)
{
    if (!(angle >= 0 && angle <= kFullTurn) || isSameAngle(angle, d->rotateAngle))
        return;
    d->rotateAngle = angle;
    update();
}

double MCircularDial::scale() const { return d->scale; }

/** How much of the value there is from tick to tick; 0.1 by default. Scales of 0.01 and below are
 * ignored. Repaints. */
void MCircularDial::setScale(double scale)
{
    if (!(scale > kFinestScale))
        return;
    d->scale = scale;
    update();
}

int MCircularDial::scaleLong() const { return d->scaleLong; }

/** Every how many whole values a tick is long and labelled; 1 by default. Numbers below 1 are
 * ignored. Repaints on a change. */
void MCircularDial::setScaleLong(int wholes)
{
    if (wholes == d->scaleLong || wholes < 1)
        return;
    d->scaleLong = wholes;
    update();
}

double MCircularDial::startAngle() const { return d->startAngle; }

/**
 * The angle left free at each end of the arc, in degrees: it spans 360 - 2 x startAngle. 120 by
 * default, the angle at which touches agree with the picture. Changes of less than a hundredth are
 * ignored; there is no other limit. Repaints.
 */
void MCircularDial::setStartAngle(double angle)
{
    if (isSameAngle(angle, d->startAngle))
        return;
    d->startAngle = angle;
    update();
}

/** The ground and the ticks make up the face, which is kept while the pointer moves over it. */
void MCircularDial::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(QPoint(width() / 2, height() / 2));
    painter.rotate(qreal(d->rotateAngle));
    d->drawFace(painter);
    d->drawPointer(painter);
    d->drawValue(painter);
}

/** QWidget goes first, which leaves the event to the parent, here and below. */
void MCircularDial::mousePressEvent(QMouseEvent *e)
{
    QWidget::mousePressEvent(e);
    d->takeTouch(e, false);
}

void MCircularDial::mouseMoveEvent(QMouseEvent *e)
{
    QWidget::mouseMoveEvent(e);
    d->takeTouch(e, false);
}

void MCircularDial::mouseReleaseEvent(QMouseEvent *e)
{
    QWidget::mouseReleaseEvent(e);
    d->takeTouch(e, true);
}

// A dial that a slot has deleted ends the way of the event, which QWidget has left to the parent.
void MCircularDial::Private::takeTouch(QMouseEvent *e, bool release)
{
    const QPointer<MCircularDial> guard(q);
    calcCurValue(e->pos(), release);
    if (!guard)
        e->accept();
}

// A radius that is no number has nothing to draw; one beyond every widget fills it like the
// largest.
double MCircularDial::Private::paintedRadius() const
{
    return std::isnan(radius) ? 0 : std::clamp(radius, -kLargestRadius, kLargestRadius);
}

int MCircularDial::Private::tickCount() const { return toInt((maxValue - minValue) / scale); }

// Of degrees.
double MCircularDial::Private::span() const { return kFullTurn - 2 * startAngle; }

// From the first tick. It goes by the whole number of ticks, so that it stays with them where the
// range is not a multiple of the scale. A value above the maximum, which a change too small to be
// one leaves there, is shown at the full turn. With a single tick the pointer is at that one.
double MCircularDial::Private::pointerAngle() const
{
    if (value > maxValue)
        return kFullTurn;
    const int count = tickCount();
    if (count == 0)
        return 0;
    return span() / count * ((value - minValue) / scale);
}

// Whether the ticks touch opaque pixels only. Where they do not, what is below the dial shines
// through two layers, which kept pixels would round in another way.
bool MCircularDial::Private::canKeepFace() const
{
    return bgColor.alpha() == 255 && (1 - kTickEnd) * std::abs(paintedRadius()) >= kClearRim;
}

void MCircularDial::Private::drawFace(QPainter &painter) const
{
    const double reach = std::abs(paintedRadius()) + kLabel.width();
    const QRectF area(qreal(-reach), qreal(-reach), qreal(2 * reach), qreal(2 * reach));
    const FaceInputs inputs{radius,     minValue,  maxValue,       scale,
                            startAngle, scaleLong, bgColor.rgba(), Lettering(painter, textColor)};
    const auto paint = [this, &painter](QPainter &p) {
        p.save();
        p.setFont(painter.font());
        p.setLayoutDirection(painter.layoutDirection());
        drawBg(p);
        drawTicks(p);
        p.restore();
    };
    if (canKeepFace())
        faceLayer.draw(painter, painter.worldTransform(), area, inputs, paint);
    else
        paint(painter);
}

void MCircularDial::Private::drawBg(QPainter &painter) const
{
    const auto rim = qreal(paintedRadius());
    QRadialGradient ground(QPointF(0, 0), rim, QPointF(0, 0));
    ground.setColorAt(0, bgColor.lighter(100));
    ground.setColorAt(1, bgColor);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawEllipse(QRectF(-rim, -rim, 2 * rim, 2 * rim));
}

// A range of more ticks than anyone can tell apart is thinned out, so that one of a billion costs
// no more than the ring of ticks that one sees.
void MCircularDial::Private::drawTicks(QPainter &painter) const
{
    const int count = tickCount();
    const qint64 stride = tickStride(count);
    const qint64 everyLabel = labelStride(stride);
    const double step = ratio(span(), double(count)) * double(stride);
    qint64 labelIndex = 0;

    painter.save();
    painter.setPen(textColor);
    painter.rotate(qreal(startAngle));
    const DeviceView view(painter);
    for (qint64 i = 0; i <= count; i += stride) {
        const double tick = valueAt(i);
        if (tick >= minValue && tick <= maxValue) {
            const bool isLabelled = isLong(tick);
            drawTick(painter, isLabelled);
            if (isLabelled && labelIndex++ % everyLabel == 0)
                drawLabel(painter, view, tick);
        }
        painter.rotate(qreal(step));
    }
    painter.restore();
}

// The fused multiplication keeps tenths exact.
double MCircularDial::Private::valueAt(qint64 tick) const
{
    return std::fma(double(tick), scale, minValue);
}

// Labels cost most, and where ticks are thinned out even fewer of them lie on top of each other.
qint64 MCircularDial::Private::labelStride(qint64 tickStride) const
{
    if (tickStride == 1)
        return 1;
    qint64 labels = 0;
    for (qint64 i = 0; i <= tickCount(); i += tickStride)
        labels += isLong(valueAt(i)) ? 1 : 0;
    return labels / kFewerLabels + 1;
}

// Only a value at or a trace above a whole number counts as one: one a trace below, which is cut to
// the number before it, gets a short tick.
bool MCircularDial::Private::isLong(double tick) const
{
    const int whole = toInt(tick);
    return std::abs(tick - whole) <= kNearWhole && whole % scaleLong == 0;
}

void MCircularDial::Private::drawTick(QPainter &painter, bool isLong) const
{
    const double rim = paintedRadius();
    const double start = (kTickEnd - (isLong ? kLongTick : kShortTick)) * rim;
    painter.drawLine(QLineF(0, qreal(start), 0, qreal(kTickEnd * rim)));
}

void MCircularDial::Private::drawLabel(QPainter &painter, const DeviceView &view, double tick) const
{
    painter.save();
    painter.translate(0, qreal(kLabelAt * paintedRadius()));
    painter.rotate(180);
    constexpr int kOverhang = 8; // px that a letter may lean out of its box
    const QRect reach = kLabel.adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
    if (view.shows(painter.worldTransform(), QRectF(reach)))
        painter.drawText(kLabel, Qt::AlignCenter, QString::number(tick, 'g', 6));
    painter.restore();
}

// The triangle and the hub are kept apart: they share pixels.
void MCircularDial::Private::drawPointer(QPainter &painter) const
{
    const auto tip = qreal(toInt(-paintedRadius()));
    const std::array<QPointF, 3> triangle{QPointF(-kPointerHalfBase, 0),
                                          QPointF(kPointerHalfBase, 0), QPointF(0, tip)};
    const auto prepare = [this](QPainter &p) {
        p.setPen(Qt::NoPen);
        p.setBrush(centerColor);
    };
    const auto paintTriangle = [&](QPainter &p) {
        p.save();
        prepare(p);
        p.drawConvexPolygon(triangle.data(), int(triangle.size()));
        p.restore();
    };
    const auto paintHub = [&](QPainter &p) {
        p.save();
        prepare(p);
        p.drawEllipse(kHub);
        p.restore();
    };
    QTransform turned = painter.worldTransform();
    turned.rotate(qreal(startAngle - 180));
    turned.rotate(qreal(pointerAngle()));
    const QRectF reach = QRectF(triangle[0], triangle[2]).normalized();
    pointerLayer.draw(painter, turned, reach.adjusted(-1, -1, kPointerHalfBase + 1, 1),
                      {centerColor.rgba()}, paintTriangle);
    hubLayer.draw(painter, painter.worldTransform(), QRectF(kHub).adjusted(-1, -1, 1, 1),
                  {centerColor.rgba()}, paintHub);
}

void MCircularDial::Private::drawValue(QPainter &painter) const
{
    const double rim = paintedRadius();
    const QString &text = valueText.value(
        {value, unit}, [this](QString &said) { said = QString::number(value, 'g', 6) + unit; });
    const QRectF area(QPointF(-kValueSize.width() / 2, qreal(kValueAt * rim)), kValueSize);
    const ValueInputs inputs{rim, text, Lettering(painter, textColor)};
    const auto paint = [&](QPainter &p) {
        p.save();
        p.setFont(painter.font());
        p.setLayoutDirection(painter.layoutDirection());
        p.setPen(textColor);
        p.drawText(area, Qt::AlignCenter, text);
        p.restore();
    };
    valueLayer.draw(painter, painter.worldTransform(), area, inputs, paint);
}

// The value for a point, if it is near the rim. The angle is used as it is where the dial does not
// reach: that is a value outside the range, which is ignored, as are points exactly above, below or
// beside the centre. The report carries the value that was touched.
std::optional<double> MCircularDial::Private::valueAt(const QPoint &p) const
{
    const QPoint centre(q->width() / 2, q->height() / 2);
    const double x = double(p.x()) - centre.x();
    const double y = double(p.y()) - centre.y();
    const double off = std::sqrt(x * x + y * y) - radius;
    if (!(off > -kReach && off < kReach))
        return {};
    const std::optional<double> direction = touchDirection(x, y, 0);
    if (!direction)
        return {};
    double along = *direction - rotateAngle + 0.5 * startAngle;
    if (along >= kFullTurn)
        along = std::fmod(along, kFullTurn);
    const double touched = minValue + ratio((maxValue - minValue) * along, span());
    if (!(touched >= minValue && touched <= maxValue))
        return {};
    return touched;
}

void MCircularDial::Private::calcCurValue(QPoint p, bool release)
{
    const std::optional<double> touched = valueAt(p);
    if (!touched || std::abs(*touched - value) <= kFinestValue)
        return;
    q->setValue(*touched);
    if (release)
        emit q->valueChanged(*touched);
    else
        emit q->currentValueChange(*touched);
}

// To accessibility.
double MCircularDial::Private::tell(const QWidget *widget, AccessibleFact, const QPoint &at)
{
    const std::optional<double> value = static_cast<const MCircularDial *>(widget)->d->valueAt(at);
    return value.value_or(std::numeric_limits<double>::quiet_NaN());
}
