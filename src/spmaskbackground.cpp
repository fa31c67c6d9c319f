// SPDX-License-Identifier: Apache-2.0
#include "spmaskbackground.h"

#include "detail/accessible.h"
#include "detail/deviceview.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

using namespace panelkit;

class Q_DECL_HIDDEN SpMaskBackground::Private
{
public:
    QColor painterColor = Qt::black;
    int roundX = 0; // px
    int roundY = 0; // px
    bool holdMouseEvent = false;
};

/** A black mask with square corners. */
SpMaskBackground::SpMaskBackground(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    installAccessibility();
}

QColor SpMaskBackground::painterColor() const { return d->painterColor; }

/** The colour of the mask, black by default; its alpha makes it translucent. Repaints. */
void SpMaskBackground::setPainterColor(const QColor &color)
{
    d->painterColor = color;
    update();
}

SpMaskBackground::~SpMaskBackground() = default;

int SpMaskBackground::roundX() const { return d->roundX; }

/** The radius of the corners to the sides, in px; 0 by default. Repaints. */
void SpMaskBackground::setRoundX(const int &radius)
{
    d->roundX = radius;
    update();
}

int SpMaskBackground::roundY() const { return d->roundY; }

/** The radius of the corners up and down, in px; 0 by default. Repaints. */
void SpMaskBackground::setRoundY(const int &radius)
{
    d->roundY = radius;
    update();
}

bool SpMaskBackground::holdMouseEvent() const { return d->holdMouseEvent; }

/** Whether touches end here instead of going on to the parent; off by default. Stored only. */
void SpMaskBackground::setholdMouseEvent(const bool &hold) { d->holdMouseEvent = hold; }

/** Corners are round only if both radii are above 0. */
void SpMaskBackground::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if ((d->roundX <= 0 || d->roundY <= 0) && isOnPixels(painter)) {
        painter.fillRect(rect(), d->painterColor);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(d->painterColor);
    painter.drawRoundedRect(QRectF(rect()), qreal(d->roundX), qreal(d->roundY));
}

void SpMaskBackground::mousePressEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mousePressEvent(e);
    const QPointer<SpMaskBackground> guard(this);
    emit pressMask(e->pos());
    if (!guard)
        e->accept(); // there is no way to the parent any more
}

void SpMaskBackground::mouseMoveEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mouseMoveEvent(e);
}

/** A release emits releaseMask and clicked, however far the finger has moved. */
void SpMaskBackground::mouseReleaseEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mouseReleaseEvent(e);
    const QPointer<SpMaskBackground> guard(this);
    emit releaseMask(e->pos());
    if (guard)
        emit clicked();
    if (!guard)
        e->accept();
}
