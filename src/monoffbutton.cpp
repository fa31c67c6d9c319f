#include "monoffbutton.h"

#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/keyrequest.h"

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QTimerEvent>
#include <QVariant>

using namespace panelkit;

namespace
{

constexpr QSize kSmallestSize(90, 44); // px, of a switch without pictures
constexpr int kDragSlop = 20; // px across; a finger that went farther drags
constexpr int kGlideTick = 20; // ms
constexpr int kGlideStep = 8; // px a tick
constexpr QColor kDim(0, 0, 0, 154); // only its alpha counts
constexpr QColor kOutline(70, 70, 70);

// A colour with its components, but not its alpha, at a fraction.
QColor fraction(const QColor &color, int numerator, int denominator, int alpha = 255)
{
    const auto part = [&](int component) {
        return component * numerator / denominator;
    };
    return {part(color.red()), part(color.green()), part(color.blue()), alpha};
}

// The target stands for the same rectangle on the widget and in the picture on purpose: a picture
// that does not begin in the widget's corner is shifted in its own copy, and what then lies before
// the target is not dimmed.
QImage dimmedImage(const QPixmap &pixmap, const QRect &target)
{
    QImage image = pixmap.toImage();
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(target, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(target, pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(target, kDim);
    return image;
}

} // namespace

// The dimmed copy of a picture, composed anew only when the picture or its place changes.
struct MOnOffButton::Dimmed {
    const QImage &of(const QPixmap &pixmap, const QRect &target)
    {
        if (m_pixmap != pixmap.cacheKey() || m_target != target) {
            m_image = dimmedImage(pixmap, target);
            m_pixmap = pixmap.cacheKey();
            m_target = target;
        }
        return m_image;
    }

private:
    qint64 m_pixmap = 0; // QPixmap::cacheKey()
    QRect m_target;
    QImage m_image;
};

// What a painted shape is covered with.
struct MOnOffButton::Surface {
    QColor pen;
    QColor brush;
    QColor ground = {}; // under the brush: it shows through the soft edge
};

/** A switch that is off, of at least 90 x 44 px, painted in ONOFF_STYLE_0. */
MOnOffButton::MOnOffButton(QWidget *parent)
    : QWidget(parent), m_dimmedBkg(std::make_unique<Dimmed>()),
      m_dimmedChunk(std::make_unique<Dimmed>())
{
    setMinimumSize(kSmallestSize);
}

MOnOffButton::~MOnOffButton() = default;

/** The colour of the painted looks while on; orange by default. Repaints. */
void MOnOffButton::setOnColor(const QColor &color)
{
    m_onColor = color;
    update();
}

/** The colour of the painted looks while off; grey by default. Repaints. */
void MOnOffButton::setOffColor(const QColor &color)
{
    m_offColor = color;
    update();
}

/** The text that onoffStatusChanged carries; "ID_MOnOffButton" by default. Stored only. */
void MOnOffButton::setBtnID(const QString &id)
{
    m_btnID = id;
}

/** Switches without a signal and without a glide. Repaints. */
void MOnOffButton::setOnoffStatus(const bool &on)
{
    m_onoffStatus = on;
    update();
}

/**
 * Disables the switch in software: it looks dimmed and ignores touches and changeStatus(), but
 * still reports a press. It is the only thing that does: the enabled state of the widget changes no
 * look. A glide stands still meanwhile and goes on afterwards. Repaints.
 */
void MOnOffButton::setBtnDisable(const bool &disabled)
{
    m_btnDisable = disabled;
    update();
}

/**
 * The track of a switch that is on. Together with normalChunkPix it turns the pictured look on. Its
 * size becomes the minimum size of the widget, and the place of either track. Repaints.
 */
void MOnOffButton::setNormalBkgPix(const QPixmap &pixmap)
{
    m_normalBkgPix = pixmap;
    if (!pixmap.isNull())
        setMinimumSize(pixmap.size());
    update();
}

/** The track of a switch that is off; "press" is its name on purpose. Repaints. */
void MOnOffButton::setPressBkgPix(const QPixmap &pixmap)
{
    m_pressBkgPix = pixmap;
    update();
}

/** The knob at rest. Repaints. */
void MOnOffButton::setNormalChunkPix(const QPixmap &pixmap)
{
    m_normalChunkPix = pixmap;
    update();
}

/** The knob while it is dragged or glides. Repaints. */
void MOnOffButton::setPressChunkPix(const QPixmap &pixmap)
{
    m_pressChunkPix = pixmap;
    update();
}

/**
 * Puts on at the left and off at the right, for the pictured look and for drags. The painted looks
 * keep their sides. Repaints.
 */
void MOnOffButton::setReverse(bool reversed)
{
    m_reverse = reversed;
    update();
}

/** The look without pictures. Stored only, on purpose; a value that is no style is style 0. */
void MOnOffButton::setUIStyle(OnOff_STYLE style)
{
    m_style = style;
}

/**
 * Switches and reports, also when the status is the one there was, and lets the knob glide there
 * from the opposite end; a disabled switch ignores it. The first picture of the glide is that of
 * its first tick.
 *
 * The glide begins where that of an unreversed switch begins. A reversed one therefore leaves the
 * track with its first tick: it changes without a glide, on purpose. A glide that is under way is
 * not ended here; its timer ends itself with its next tick.
 */
void MOnOffButton::changeStatus(bool status)
{
    if (m_btnDisable)
        return;
    m_onoffStatus = status;
    m_knobPos = status ? knobRadius() : farthestKnob();
    if (m_timerId != 0)
        m_overtakenTimers += m_timerId;
    m_timerId = startTimer(kGlideTick);
    emit onoffStatusChanged(m_btnID, status);
}

void MOnOffButton::paintEvent(QPaintEvent *)
{
    if (height() >= width())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasPictures())
        drawPictures(painter);
    else if (m_style == ONOFF_STYLE_1)
        drawStyle1(painter);
    else
        drawStyle0(painter);
}

/**
 * A press asks for the click sound, ends a glide and begins a new touch. A disabled switch does
 * none of it, but still emits buttonClicked, so that a screen can tell why nothing happens. The
 * event then goes on to QWidget.
 */
void MOnOffButton::mousePressEvent(QMouseEvent *e)
{
    if (!m_btnDisable) {
        postKeyRequest(this, kBeepRequest);
        if (m_timerId != 0)
            endGlide();
        m_isDragged = false;
        if (e)
            m_pressPoint = e->pos();
    }
    const QPointer<MOnOffButton> guard(this);
    emit buttonClicked();
    if (guard && e)
        QWidget::mousePressEvent(e);
}

/**
 * The knob follows the finger along the track from the first move on; a drag it becomes once the
 * finger went more than 20 px across, and it stays one if it comes back.
 */
void MOnOffButton::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (!m_btnDisable) {
        const int x = e->pos().x();
        if (distance(x, m_pressPoint.x()) > kDragSlop)
            m_isDragged = true;
        if (x < knobRadius())
            m_knobPos = knobRadius();
        else
            m_knobPos = qMin(x, farthestKnob());
        update();
    }
    QWidget::mouseMoveEvent(e);
}

void MOnOffButton::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MOnOffButton> guard(this);
    if (!m_btnDisable) {
        if (m_isDragged)
            releaseDrag(e->pos());
        else
            releaseTap(e->pos());
    }
    if (guard)
        QWidget::mouseReleaseEvent(e);
}

/**
 * One step of the glide, in the direction of the status of the moment. A disabled switch stands
 * still, with its timer running, and glides on when it is enabled again.
 */
void MOnOffButton::timerEvent(QTimerEvent *e)
{
    if (!e)
        return;
    if (m_overtakenTimers.removeOne(e->timerId())) {
        killTimer(e->timerId());
        return;
    }
    if (m_btnDisable || e->timerId() != m_timerId)
        return;
    m_knobPos += m_onoffStatus != m_reverse ? kGlideStep : -kGlideStep;
    if (m_knobPos > knobRadius() && m_knobPos < farthestKnob())
        update();
    else
        endGlide();
}

void MOnOffButton::createRectPath(QPainterPath &path, QRectF rect, int radius)
{
    const QPointF across(qreal(radius), 0);
    const QPointF down(0, qreal(radius));
    path.moveTo(rect.topRight() - across);
    path.lineTo(rect.topLeft() + across);
    path.quadTo(rect.topLeft(), rect.topLeft() + down);
    path.lineTo(rect.bottomLeft() - down);
    path.quadTo(rect.bottomLeft(), rect.bottomLeft() + across);
    path.lineTo(rect.bottomRight() - across);
    path.quadTo(rect.bottomRight(), rect.bottomRight() - down);
    path.lineTo(rect.topRight() + down);
    path.quadTo(rect.topRight(), rect.topRight() - across);
}

void MOnOffButton::drawDisableImage(QRect target, QPixmap pixmap, QPainter &painter)
{
    Dimmed &dimmed = target == bkgRect() ? *m_dimmedBkg : *m_dimmedChunk;
    const QImage &image = dimmed.of(pixmap, target);
    painter.drawImage(QRectF(target), image, QRectF(image.rect()));
}

void MOnOffButton::endGlide()
{
    killTimer(m_timerId);
    m_timerId = 0;
    m_knobPos = 0;
    update();
}

// A drag shorter than the knob's way springs back. A longer one switches on in either direction,
// but off only toward the off end: a hasty finger rather switches on than off, on purpose.
void MOnOffButton::releaseDrag(const QPoint &pos)
{
    m_knobPos = 0;
    m_isDragged = false;
    const bool isFar = distance(pos.x(), m_pressPoint.x()) >= (width() - height()) / 2;
    const bool isTowardOff = m_reverse ? pos.x() > m_pressPoint.x() : pos.x() < m_pressPoint.x();
    if (!isFar || (m_onoffStatus && !isTowardOff)) {
        update();
        return;
    }
    setOnoffStatus(!m_onoffStatus);
    emit onoffStatusChanged(m_btnID, m_onoffStatus);
}

// While a list scrolls the finger does not mean the switch that happens to lie under it. One that
// went sideways meanwhile makes the switch glide to where it is, and say so again, on purpose.
void MOnOffButton::releaseTap(const QPoint &pos)
{
    const bool isListMoving = QCoreApplication::instance()->property("listMoving").toBool();
    if (!isListMoving)
        changeStatus(!m_onoffStatus);
    else if (pos.x() != m_pressPoint.x())
        changeStatus(m_onoffStatus);
}

bool MOnOffButton::hasPictures() const
{
    return !m_normalBkgPix.isNull() && !m_normalChunkPix.isNull();
}

QRect MOnOffButton::bkgRect() const
{
    return centredTowardZero(m_normalBkgPix.size(), rect());
}

// At its right end the knob stops one pixel short of the track, on purpose.
QRect MOnOffButton::restingChunkRect() const
{
    const QRect track = bkgRect();
    QRect chunk = centredTowardZero(m_normalChunkPix.size(), rect());
    const bool isLeft = m_onoffStatus == m_reverse;
    chunk.moveLeft(isLeft ? track.left() : track.left() + track.width() - 1 - chunk.width());
    return chunk;
}

void MOnOffButton::drawPictures(QPainter &painter)
{
    const QPixmap &bkg = m_onoffStatus ? m_normalBkgPix : m_pressBkgPix;
    if (m_btnDisable) {
        drawDisableImage(bkgRect(), bkg, painter);
        drawDisableImage(restingChunkRect(), m_normalChunkPix, painter);
    } else if (isMoving()) {
        drawSplitBkg(painter);
        drawMovingChunk(painter);
    } else {
        painter.drawPixmap(bkgRect().topLeft(), bkg);
        painter.drawPixmap(restingChunkRect().topLeft(), m_normalChunkPix);
    }
}

// The whole on track squeezed into one side of the knob, the whole off track into the other.
void MOnOffButton::drawSplitBkg(QPainter &painter) const
{
    const QRect track = bkgRect();
    QRect left = track;
    left.setRight(m_knobPos - 1);
    QRect right = track;
    right.setLeft(m_knobPos);
    right.setRight(width() - track.left() - 1);
    if (!left.isEmpty())
        painter.drawPixmap(left, m_reverse ? m_pressBkgPix : m_normalBkgPix);
    if (!right.isEmpty())
        painter.drawPixmap(right, m_reverse ? m_normalBkgPix : m_pressBkgPix);
}

void MOnOffButton::drawMovingChunk(QPainter &painter) const
{
    const QRect chunk = centredTowardZero(m_pressChunkPix.size(), rect());
    painter.drawPixmap(m_knobPos - chunk.width() / 2, chunk.top(), m_pressChunkPix);
}

void MOnOffButton::drawStyle0(QPainter &painter)
{
    const auto dark = [](const QColor &color) {
        return fraction(color, 2, 3);
    };
    const QColor color = statusColor();
    const int restingLeft = m_onoffStatus ? width() - 1 - height() : 0;
    const int right = width() - 2;
    if (m_btnDisable) {
        const QColor darkest = fraction(color, 2, 5);
        drawSlimTrack(painter, 1, right, {darkest, darkest, dark(color)});
        drawRoundKnob(painter, restingLeft, dark(color), dark(color));
    } else if (isMoving()) {
        drawSlimTrack(painter, 1, m_knobPos - 1, {kOutline, dark(m_offColor), m_offColor});
        drawSlimTrack(painter, m_knobPos, right, {kOutline, dark(m_onColor), m_onColor});
        drawRoundKnob(painter, m_knobPos - height() / 2, kOutline,
                      m_knobPos <= width() / 2 ? m_offColor : m_onColor);
    } else {
        drawSlimTrack(painter, 1, right, {kOutline, dark(color), color});
        drawRoundKnob(painter, restingLeft, kOutline, color);
    }
}

// The part of the track from one column of pixels to another, both included.
void MOnOffButton::drawSlimTrack(QPainter &painter, int left, int right, const Surface &surface)
{
    const int sixth = height() / 6;
    QPainterPath path;
    createRectPath(path, QRectF(QRect(left, sixth + 1, right - left + 1, 4 * sixth)), 2 * sixth);
    painter.fillPath(path, surface.ground);
    painter.setPen(surface.pen);
    painter.setBrush(surface.brush);
    painter.drawPath(path);
}

void MOnOffButton::drawRoundKnob(QPainter &painter, int left, const QColor &pen,
                                 const QColor &brush) const
{
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawEllipse(left, 0, height(), height());
}

void MOnOffButton::drawStyle1(QPainter &painter)
{
    const QColor color = statusColor();
    Surface outer{color, fraction(color, 1, 1)};
    Surface inner{color, fraction(color, 1, 2, 155)};
    Surface knob{color, color};
    if (m_btnDisable) {
        outer = {fraction(color, 2, 3), fraction(color, 2, 3)};
        inner = {fraction(color, 1, 3), fraction(color, 1, 3)};
        knob = inner;
    } else if (isMoving()) {
        outer = {color, color};
        inner = {fraction(color, 1, 2), fraction(color, 1, 2)};
    }

    const int inset = height() - 1 > 14 ? height() / 8 : 2;
    const int third = height() / 3;
    drawPlate(painter, rect().adjusted(1, 1, -1, -1), outer);
    drawPlate(painter, rect().adjusted(inset, inset, -inset, -inset), inner);
    drawPlate(painter, QRect(flatKnobLeft(), third, width() / 2 - 2 * third, height() - 2 * third),
              knob);
}

// In motion the left of the knob goes from that of the left half to that of the right half.
int MOnOffButton::flatKnobLeft() const
{
    const int third = height() / 3;
    if (m_btnDisable || !isMoving())
        return m_onoffStatus ? width() / 2 + third : third;
    const int gone = m_knobPos - knobRadius();
    return toInt(third + ratio(double(gone), double(width() - height())) * width() / 2);
}

void MOnOffButton::drawPlate(QPainter &painter, const QRect &rect, const Surface &surface)
{
    QPainterPath path;
    createRectPath(path, QRectF(rect), rect.height() / 2);
    painter.setPen(surface.pen);
    painter.setBrush(surface.brush);
    painter.drawPath(path);
}
