#include "sploadinground.h"

#include "detail/arithmetic.h"
#include "detail/geometry.h"

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
constexpr int kRoundness = 25; // percent
constexpr double kCircle = 6.28; // the circumference for a radius of 1

} // namespace

/** A ring that stands still until setTimer(). */
SpLoadingRound::SpLoadingRound(QWidget *parent) : QWidget(parent) { }

/** The colour of the spokes, white by default; its alpha does not count. Repaints. */
void SpLoadingRound::setPainterColor(const QColor &color)
{
    m_painterColor = color;
    update();
}

/** The outer radius in px, without its sign; 30 by default. Repaints. */
void SpLoadingRound::setRadius(const int &radius)
{
    m_radius = saturated(std::abs(qint64(radius)));
    update();
}

/** The step of the rotation modulo 12; a negative one stays negative, on purpose. Repaints. */
void SpLoadingRound::setIndex(const int &index)
{
    m_index = index % kSpokes;
    update();
}

/** Whether touches end here instead of going on to the parent; off by default. Stored only. */
void SpLoadingRound::setholdMouseEvent(const bool &hold)
{
    m_holdMouseEvent = hold;
}

/** The shape of the spokes, EllipseStyle by default and for a value that is none. Stored only. */
void SpLoadingRound::setDrawStyle(SpLoadingRound::DrawStyle style)
{
    m_drawStyle = style == RectStyle || style == GrayStyle ? style : EllipseStyle;
}

/**
 * Turns the ring by a step every so many ms, on one of Qt's coarse timers, and forgets any interval
 * before. It turns whether it is shown or not. A negative interval stops it.
 */
void SpLoadingRound::setTimer(int ms)
{
    stopTimer();
    if (ms >= 0)
        m_timerId = startTimer(ms);
}

/** Stops turning; the ring stays at its step. */
void SpLoadingRound::stopTimer()
{
    if (m_timerId != 0)
        killTimer(m_timerId);
    m_timerId = 0;
}

void SpLoadingRound::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(QPoint(width() / 2, height() / 2));
    painter.setPen(Qt::NoPen);
    painter.rotate(qreal(m_index * kStep));
    for (int number = kSpokes; number > 0; --number) {
        drawSpoke(painter, number);
        painter.rotate(-kStep);
    }
}

/** A tick of the own timer goes on by a step; those of any other are dropped. */
void SpLoadingRound::timerEvent(QTimerEvent *e)
{
    if (!e || e->timerId() != m_timerId)
        return;
    ++m_index;
    if (m_index == kSpokes)
        m_index = 0;
    update();
}

void SpLoadingRound::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (!m_holdMouseEvent)
        QWidget::mousePressEvent(e);
    m_moved = false;
    const QPointer<SpLoadingRound> guard(this);
    emit pressMask(e->pos());
    if (!guard)
        e->accept(); // there is no way to the parent any more
}

void SpLoadingRound::mouseMoveEvent(QMouseEvent *e)
{
    if (e && !m_holdMouseEvent)
        QWidget::mouseMoveEvent(e);
    m_moved = true;
}

/** A release emits releaseMask and, without any move since the press, clicked. */
void SpLoadingRound::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (!m_holdMouseEvent)
        QWidget::mouseReleaseEvent(e);
    const QPointer<SpLoadingRound> guard(this);
    emit releaseMask(e->pos());
    if (guard && !m_moved)
        emit clicked();
    if (!guard)
        e->accept();
}

// In GrayStyle the colour itself becomes that of the spoke, so that painterColor reads (231, 231,
// 231), the grey of the last one, after a paint. That is meant: the other styles go on with it.
void SpLoadingRound::drawSpoke(QPainter &painter, int number)
{
    const int r = boundedPixel(m_radius);
    if (m_drawStyle == GrayStyle) {
        const int grey = 252 - 21 * number;
        m_painterColor = QColor(grey, grey, grey);
        painter.setBrush(m_painterColor);
        painter.drawRoundedRect(QRect(3 * r / 7, 0, r / 2, toInt(r * kCircle / 39)), kRoundness,
                                kRoundness, Qt::RelativeSize);
        return;
    }
    painter.setBrush(QColor(m_painterColor.red(), m_painterColor.green(), m_painterColor.blue(),
                            std::max(20 * number + 15, kLeastAlpha)));
    if (m_drawStyle == RectStyle)
        painter.drawRect(3 * r / 5, 0, 2 * r / 5, toInt(r * kCircle / 36));
    else
        painter.drawEllipse(4 * r / 5 - r / 5, -(r / 15), 2 * (r / 5), 2 * (r / 15));
}
