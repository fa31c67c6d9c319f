// SPDX-License-Identifier: Apache-2.0
#include "spbackgroundimage.h"

#include "detail/accessible.h"
#include "detail/deviceview.h"
#include "detail/layercache.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTransform>

using namespace panelkit;

class Q_DECL_HIDDEN SpBackgroundImage::Private
{
public:
    explicit Private(SpBackgroundImage *widget) : q(widget) { }

    QTransform turn() const;

    SpBackgroundImage *const q;
    QPixmap pixmap;
    bool holdMouseEvent = false;
    bool fitPixmapSize = false;
    int rotateAngle = 0; // degrees

    LayerCache<PictureKey> layer;
};

/** A backdrop without a picture: it paints nothing until it is given one. */
SpBackgroundImage::SpBackgroundImage(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

SpBackgroundImage::~SpBackgroundImage() = default;

QPixmap SpBackgroundImage::pixmap() const { return d->pixmap; }

/** The picture. The size of the widget stays, also with fitPixmapSize. Repaints. */
void SpBackgroundImage::setPixmap(const QPixmap &pixmap)
{
    d->pixmap = pixmap;
    update();
}

bool SpBackgroundImage::holdMouseEvent() const { return d->holdMouseEvent; }

/** Whether touches end here instead of going on to the parent; off by default. Stored only. */
void SpBackgroundImage::setholdMouseEvent(const bool &hold) { d->holdMouseEvent = hold; }

bool SpBackgroundImage::fitPixmapSize() const { return d->fitPixmapSize; }

/**
 * Set to true, gives the widget the size of the picture it has at this moment as a fixed one, and
 * repaints; a picture that comes later does not change it. False is stored only.
 */
void SpBackgroundImage::setFitPixmapSize(const bool &fit)
{
    d->fitPixmapSize = fit;
    if (!fit || d->pixmap.isNull())
        return;
    setFixedSize(d->pixmap.size());
    update();
}

/** Has no part in the picture, which fills the widget either way (kept behaviour). */
void SpBackgroundImage::setPaintInCenter(bool) { }

int SpBackgroundImage::rotateAngle() const { return d->rotateAngle; }

/** The angle in degrees, clockwise, by which the picture is turned; 0 by default. Repaints. */
void SpBackgroundImage::setRotateAngle(const int &degrees)
{
    d->rotateAngle = degrees;
    update();
}

/**
 * The picture is first stretched over the widget, then turned about its middle, in whole pixels, so
 * that a turned one may stick out. One that has to be stretched or turned is kept as pixels; one
 * that fits is copied, for which smoothing has nothing to do.
 */
void SpBackgroundImage::paintEvent(QPaintEvent *)
{
    if (d->pixmap.isNull())
        return;
    QPainter painter(this);
    if (d->rotateAngle == 0 && d->pixmap.size() == size() && isOnPixels(painter)) {
        painter.drawPixmap(rect(), d->pixmap);
        return;
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    d->layer.draw(
        painter, d->turn(), QRectF(rect()), {d->pixmap.cacheKey()},
        [this](QPainter &p) { p.drawPixmap(rect(), d->pixmap); }, rect());
}

void SpBackgroundImage::mousePressEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mousePressEvent(e);
}

void SpBackgroundImage::mouseMoveEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mouseMoveEvent(e);
}

/** Emits releaseSig if touches end here; otherwise they are the parent's, and nobody is told. */
void SpBackgroundImage::mouseReleaseEvent(QMouseEvent *e)
{
    if (d->holdMouseEvent)
        emit releaseSig();
    else
        QWidget::mouseReleaseEvent(e);
}

QTransform SpBackgroundImage::Private::turn() const
{
    QTransform transform;
    if (rotateAngle != 0) {
        const QPointF middle(QPoint(q->width() / 2, q->height() / 2));
        transform.translate(middle.x(), middle.y());
        transform.rotate(qreal(rotateAngle));
        transform.translate(-middle.x(), -middle.y());
    }
    return transform;
}
