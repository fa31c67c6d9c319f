#include "spbackgroundimage.h"

#include "detail/deviceview.h"
#include "detail/keptlayer.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTransform>

using namespace panelkit;

/** A backdrop without a picture: it paints nothing until it is given one. */
SpBackgroundImage::SpBackgroundImage(QWidget *parent)
    : QWidget(parent), m_layer(std::make_unique<KeptLayer>())
{
}

SpBackgroundImage::~SpBackgroundImage() = default;

/** The picture. The size of the widget stays, also with fitPixmapSize. Repaints. */
void SpBackgroundImage::setPixmap(const QPixmap &pixmap)
{
    m_pixmap = pixmap;
    update();
}

/** Whether touches end here instead of going on to the parent; off by default. Stored only. */
void SpBackgroundImage::setholdMouseEvent(const bool &hold)
{
    m_holdMouseEvent = hold;
}

/**
 * Set to true, gives the widget the size of the picture it has at this moment as a fixed one, and
 * repaints; a picture that comes later does not change it. False is stored only.
 */
void SpBackgroundImage::setFitPixmapSize(const bool &fit)
{
    m_fitPixmapSize = fit;
    if (!fit || m_pixmap.isNull())
        return;
    setFixedSize(m_pixmap.size());
    update();
}

/** Has no part in the picture, on purpose: it fills the widget either way. */
void SpBackgroundImage::setPaintInCenter(bool) { }

/** The angle in degrees, clockwise, by which the picture is turned; 0 by default. Repaints. */
void SpBackgroundImage::setRotateAngle(const int &degrees)
{
    m_rotateAngle = degrees;
    update();
}

/**
 * The picture is first stretched over the widget, then turned about its middle, in whole pixels, so
 * that a turned one may stick out. One that has to be stretched or turned is kept as pixels; one
 * that fits is copied, for which smoothing has nothing to do.
 */
void SpBackgroundImage::paintEvent(QPaintEvent *)
{
    if (m_pixmap.isNull())
        return;
    QPainter painter(this);
    if (m_rotateAngle == 0 && m_pixmap.size() == size() && isOnPixels(painter)) {
        painter.drawPixmap(rect(), m_pixmap);
        return;
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    m_layer->draw(painter, turn(), {QRectF(rect()), {}, m_pixmap.cacheKey()},
                  [this](QPainter &p) { p.drawPixmap(rect(), m_pixmap); });
}

void SpBackgroundImage::mousePressEvent(QMouseEvent *e)
{
    if (e && !m_holdMouseEvent)
        QWidget::mousePressEvent(e);
}

void SpBackgroundImage::mouseMoveEvent(QMouseEvent *e)
{
    if (e && !m_holdMouseEvent)
        QWidget::mouseMoveEvent(e);
}

/** Emits releaseSig if touches end here; otherwise they are the parent's, and nobody is told. */
void SpBackgroundImage::mouseReleaseEvent(QMouseEvent *e)
{
    if (m_holdMouseEvent)
        emit releaseSig();
    else if (e)
        QWidget::mouseReleaseEvent(e);
}

QTransform SpBackgroundImage::turn() const
{
    QTransform transform;
    if (m_rotateAngle != 0) {
        const QPointF middle(QPoint(width() / 2, height() / 2));
        transform.translate(middle.x(), middle.y());
        transform.rotate(qreal(m_rotateAngle));
        transform.translate(-middle.x(), -middle.y());
    }
    return transform;
}
