// SPDX-License-Identifier: Apache-2.0
#include "splabel.h"

#include "detail/accessible.h"
#include "detail/imagelook.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace panelkit;

namespace
{

// A label of more pixels than this is not given a scaled copy, which would take gigabytes.
constexpr qint64 kLargestCopy = qint64(16384) * 16384;

} // namespace

class Q_DECL_HIDDEN SpLabel::Private
{
public:
    explicit Private(SpLabel *widget) : q(widget) { }

    bool fitImage();

    SpLabel *const q;
    QPixmap image;
    QSize cachedSize{32, 32}; // px, what the picture was last scaled to
    int imageAlpha = 154; // 0..255

    ImageLook look;
};

/** A label without a picture: it paints nothing. */
SpLabel::SpLabel(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

SpLabel::~SpLabel() = default;

QPixmap SpLabel::image() const { return d->image; }

/**
 * The picture. Its size becomes the minimum size of the label, which then repaints. A null picture
 * is stored, but size and screen stay as they are until something else repaints.
 */
void SpLabel::setImage(const QPixmap &image)
{
    d->image = image;
    if (image.isNull())
        return;
    d->cachedSize = image.size();
    setMinimumSize(d->cachedSize);
    update();
}

int SpLabel::imageAlpha() const { return d->imageAlpha; }

/**
 * The alpha of the black veil: 154 by default, 0 for the picture as it is, 255 for black. A value
 * out of range becomes the nearest of these. Stored only: it shows at the next paint.
 */
void SpLabel::setImageAlpha(const int &alpha) { d->imageAlpha = std::clamp(alpha, 0, 255); }

void SpLabel::paintEvent(QPaintEvent *)
{
    const bool fits = d->fitImage();
    if (d->image.isNull())
        return;
    QPainter painter(this);
    if (fits)
        d->look.drawVeiled(painter, rect(), d->image, d->imageAlpha);
    else
        painter.drawImage(rect(), veiledImage(d->image, d->image.size(), d->imageAlpha));
}

// Touches are left to the parent.
void SpLabel::mousePressEvent(QMouseEvent *e) { QWidget::mousePressEvent(e); }

void SpLabel::mouseMoveEvent(QMouseEvent *e) { QWidget::mouseMoveEvent(e); }

void SpLabel::mouseReleaseEvent(QMouseEvent *e) { QWidget::mouseReleaseEvent(e); }

// The scaled copy takes the place of the picture, so that only one of them is in memory and image()
// tells what is shown. The price is that a picture does not get its details back when a label that
// was small becomes large again. In a label that is too large for a copy the picture stays as it is
// and is stretched in painting.
bool SpLabel::Private::fitImage()
{
    if (cachedSize == q->size())
        return true;
    if (qint64(q->width()) * q->height() > kLargestCopy)
        return false;
    cachedSize = q->size();
    if (!image.isNull())
        image = image.scaled(cachedSize, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    return true;
}
