#include "spmaskbackground.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

/** A black mask with square corners. */
SpMaskBackground::SpMaskBackground(QWidget *parent) : QWidget(parent) { }

/** The colour of the mask, black by default; its alpha makes it translucent. Repaints. */
void SpMaskBackground::setPainterColor(const QColor &color)
{
    m_painterColor = color;
    update();
}

/** The radius of the corners to the sides, in px; 0 by default. Repaints. */
void SpMaskBackground::setRoundX(const int &radius)
{
    m_roundX = radius;
    update();
}

/** The radius of the corners up and down, in px; 0 by default. Repaints. */
void SpMaskBackground::setRoundY(const int &radius)
{
    m_roundY = radius;
    update();
}

/** Whether touches end here instead of going on to the parent; off by default. Stored only. */
void SpMaskBackground::setholdMouseEvent(const bool &hold)
{
    m_holdMouseEvent = hold;
}

/** Corners are round only if both radii are above 0. */
void SpMaskBackground::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_painterColor);
    painter.drawRoundedRect(QRectF(rect()), qreal(m_roundX), qreal(m_roundY));
}

void SpMaskBackground::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (!m_holdMouseEvent)
        QWidget::mousePressEvent(e);
    const QPointer<SpMaskBackground> guard(this);
    emit pressMask(e->pos());
    if (!guard)
        e->accept(); // there is no way to the parent any more
}

void SpMaskBackground::mouseMoveEvent(QMouseEvent *e)
{
    if (e && !m_holdMouseEvent)
        QWidget::mouseMoveEvent(e);
}

/** A release emits releaseMask and clicked, however far the finger has moved. */
void SpMaskBackground::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (!m_holdMouseEvent)
        QWidget::mouseReleaseEvent(e);
    const QPointer<SpMaskBackground> guard(this);
    emit releaseMask(e->pos());
    if (guard)
        emit clicked();
    if (!guard)
        e->accept();
}
