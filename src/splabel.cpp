#include "splabel.h"

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

/** A label without a picture: it paints nothing. */
SpLabel::SpLabel(QWidget *parent) : QWidget(parent), m_look(std::make_unique<ImageLook>()) { }

SpLabel::~SpLabel() = default;

/**
 * The picture. Its size becomes the minimum size of the label, which then repaints. A null picture
 * is stored, but size and screen stay as they are until something else repaints.
 */
void SpLabel::setImage(const QPixmap &image)
{
    m_image = image;
    if (image.isNull())
        return;
    m_cachedSize = image.size();
    setMinimumSize(m_cachedSize);
    update();
}

/**
 * The alpha of the black veil: 154 by default, 0 for the picture as it is, 255 for black. A value
 * out of range becomes the nearest of these. Stored only: it shows at the next paint.
 */
void SpLabel::setImageAlpha(const int &alpha)
{
    m_imageAlpha = std::clamp(alpha, 0, 255);
}

void SpLabel::paintEvent(QPaintEvent *)
{
    const bool fits = fitImage();
    if (m_image.isNull())
        return;
    QPainter painter(this);
    if (fits)
        m_look->drawVeiled(painter, rect(), m_image, m_imageAlpha);
    else
        painter.drawImage(rect(), veiledImage(m_image, m_image.size(), m_imageAlpha));
}

// Touches are left to the parent.
void SpLabel::mousePressEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mousePressEvent(e);
}

void SpLabel::mouseMoveEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseMoveEvent(e);
}

void SpLabel::mouseReleaseEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseReleaseEvent(e);
}

// The scaled copy takes the place of the picture, on purpose: only one of them is in memory, and
// image() tells what is shown. The price is that a picture does not get its details back when a
// label that was small becomes large again. In a label that is too large for a copy the picture
// stays as it is and is stretched in painting.
bool SpLabel::fitImage()
{
    if (m_cachedSize == size())
        return true;
    if (qint64(width()) * height() > kLargestCopy)
        return false;
    m_cachedSize = size();
    if (!m_image.isNull())
        m_image = m_image.scaled(m_cachedSize, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    return true;
}
