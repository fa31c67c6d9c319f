// SPDX-License-Identifier: Apache-2.0
#include "sploadinground.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/keptlook.h"

#include <QBasicTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimerEvent>

#include <algorithm>
#include <cstdlib>

using namespace panelkit;

namespace
{

constexpr int kSpokes = 12;
constexpr int kStep = 30; // degrees
constexpr int kLeastAlpha = 120;
constexpr int kOverhang = 32; // the part of the radius by which a rectangle's corner lies beyond it
constexpr int kRoundness = 25; // percent
constexpr double kCircle = 6.28; // the circumference for a radius of 1

// Of a spoke in GrayStyle: 1 is the last one.
constexpr int greyOf(int number) { return 252 - 21 * number; }

} // namespace

class Q_DECL_HIDDEN SpLoadingRound::Private
{
public:
    explicit Private(SpLoadingRound *widget) : q(widget) { }

    // What the ring depends on.
    struct Look {
        int index;
        int radius; // px
        DrawStyle drawStyle;
        QColor painterColor;

        auto tied() const { return std::tie(index, radius, drawStyle, painterColor); }
    };

    void drawRing(QPainter &painter);
    void drawSpoke(QPainter &painter, int number);

    SpLoadingRound *const q;
    DrawStyle drawStyle = EllipseStyle;
    QColor painterColor = Qt::white;
    int radius = 30; // px
    int index = 0; // steps of 30 degrees
    bool holdMouseEvent = false;
    bool moved = false; // since the press
    QBasicTimer timer;

    KeptLook<Look> look;
};

/** A ring that stands still until setTimer(). */
SpLoadingRound::SpLoadingRound(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

QColor SpLoadingRound::painterColor() const { return d->painterColor; }

/** The colour of the spokes, white by default; its alpha does not count. Repaints. */
void SpLoadingRound::setPainterColor(const QColor &color)
{
    d->painterColor = color;
    update();
}

SpLoadingRound::~SpLoadingRound() = default;

int SpLoadingRound::radius() const { return d->radius; }

/** The outer radius in px, without its sign; 30 by default. Repaints. */
void SpLoadingRound::setRadius(const int &radius)
{
    d->radius = saturated(std::abs(qint64(radius)));
    update();
}

int SpLoadingRound::index() const { return d->index; }

/** The step of the rotation modulo 12; a negative one stays negative (kept behaviour). Repaints. */
void SpLoadingRound::setIndex(const int &index)
{
    d->index = index % kSpokes;
    update();
}

bool SpLoadingRound::holdMouseEvent() const { return d->holdMouseEvent; }

/** Whether touches end here instead of going on to the parent; off by default. Stored only. */
void SpLoadingRound::setholdMouseEvent(const bool &hold) { d->holdMouseEvent = hold; }

/** The shape of the spokes, EllipseStyle by default and for a value that is none. Stored only. */
void SpLoadingRound::setDrawStyle(SpLoadingRound::DrawStyle style)
{
    d->drawStyle = style == RectStyle || style == GrayStyle ? style : EllipseStyle;
}

/**
 * Turns the ring by a step every so many ms, on one of Qt's coarse timers, and forgets any interval
 * before. It turns whether it is shown or not. A negative interval stops it.
 */
void SpLoadingRound::setTimer(int ms)
{
    stopTimer();
    if (ms >= 0)
        d->timer.start(ms, this);
}

/** Stops turning; the ring stays at its step. */
void SpLoadingRound::stopTimer() { d->timer.stop(); }

void SpLoadingRound::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(QPoint(width() / 2, height() / 2));
    const int r = boundedPixel(d->radius);
    const int rim = r + r / kOverhang + 2; // of the spokes' corners
    d->look.draw(painter, {-rim, -rim, 2 * rim, 2 * rim},
                 {d->index, d->radius, d->drawStyle, d->painterColor},
                 [this](QPainter &p) { d->drawRing(p); });
    // In GrayStyle the colour itself becomes that of the spokes, so that it reads as the grey of
    // the last one after a paint, and the other styles go on with it (kept behaviour).
    if (d->drawStyle == GrayStyle)
        d->painterColor = QColor(greyOf(1), greyOf(1), greyOf(1));
}

/** A tick of the own timer goes on by a step; those of any other are dropped. */
void SpLoadingRound::timerEvent(QTimerEvent *e)
{
    if (e->timerId() != d->timer.timerId())
        return;
    ++d->index;
    if (d->index == kSpokes)
        d->index = 0;
    update();
}

void SpLoadingRound::mousePressEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mousePressEvent(e);
    d->moved = false;
    const QPointer<SpLoadingRound> guard(this);
    emit pressMask(e->pos());
    if (!guard)
        e->accept(); // there is no way to the parent any more
}

void SpLoadingRound::mouseMoveEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mouseMoveEvent(e);
    d->moved = true;
}

/** A release emits releaseMask and, without any move since the press, clicked. */
void SpLoadingRound::mouseReleaseEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mouseReleaseEvent(e);
    const QPointer<SpLoadingRound> guard(this);
    emit releaseMask(e->pos());
    if (guard && !d->moved)
        emit clicked();
    if (!guard)
        e->accept();
}

void SpLoadingRound::Private::drawRing(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.rotate(qreal(index * kStep));
    for (int number = kSpokes; number > 0; --number) {
        drawSpoke(painter, number);
        painter.rotate(-kStep);
    }
}

void SpLoadingRound::Private::drawSpoke(QPainter &painter, int number)
{
    const int r = boundedPixel(radius);
    if (drawStyle == GrayStyle) {
        const int grey = greyOf(number);
        painter.setBrush(QColor(grey, grey, grey));
        painter.drawRoundedRect(QRect(3 * r / 7, 0, r / 2, toInt(r * kCircle / 39)), kRoundness,
                                kRoundness, Qt::RelativeSize);
        return;
    }
    painter.setBrush(QColor(painterColor.red(), painterColor.green(), painterColor.blue(),
                            std::max(20 * number + 15, kLeastAlpha)));
    if (drawStyle == RectStyle)
        painter.drawRect(3 * r / 5, 0, 2 * r / 5, toInt(r * kCircle / 36));
    else
        painter.drawEllipse(4 * r / 5 - r / 5, -(r / 15), 2 * (r / 5), 2 * (r / 15));
}
