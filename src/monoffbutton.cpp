// SPDX-License-Identifier: Apache-2.0
#include "monoffbutton.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/keptlook.h"
#include "detail/keyrequest.h"
#include "detail/memo.h"

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPoint>
#include <QPointer>
#include <QTimerEvent>
#include <QVariant>
#include <QVector>

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
    const auto part = [&](int component) { return component * numerator / denominator; };
    return {part(color.red()), part(color.green()), part(color.blue()), alpha};
}

// The target stands for the same rectangle on the widget and in the picture: a picture that does
// not begin in the widget's corner is shifted in its own copy, and what then lies before the target
// is not dimmed (kept behaviour).
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

class Q_DECL_HIDDEN MOnOffButton::Private
{
public:
    explicit Private(MOnOffButton *widget) : q(widget) { }

    // What a dimmed picture depends on.
    struct Dimmed {
        qint64 picture; // QPixmap::cacheKey()
        QRect target;

        auto tied() const { return std::tie(picture, target); }
    };
    // What a painted look depends on.
    struct Look {
        int knobPos; // px
        bool isOn;
        bool isDisabled;
        OnOff_STYLE style;
        QSize size; // px
        QColor onColor;
        QColor offColor;

        auto tied() const
        {
            return std::tie(knobPos, isOn, isDisabled, style, size, onColor, offColor);
        }
    };
    // What the plates below a flat knob depend on while it moves.
    struct Plates {
        bool isDisabled;
        QSize size; // px
        QColor color;

        auto tied() const { return std::tie(isDisabled, size, color); }
    };
    struct Surface;

    QRect paintedRect() const { return q->rect().adjusted(-1, -1, 1, 1); } // with the outline
    int knobRadius() const { return q->height() / 2; }
    int farthestKnob() const { return q->width() - knobRadius(); }
    bool isMoving() const { return knobPos != 0; }
    QColor statusColor() const { return onoffStatus ? onColor : offColor; }
    Look shownLook() const
    {
        return {knobPos, onoffStatus, btnDisable, style, q->size(), onColor, offColor};
    }
    void endGlide();
    void releaseDrag(const QPoint &pos);
    void releaseTap(const QPoint &pos);
    bool hasPictures() const;
    QRect bkgRect() const;
    QRect restingChunkRect() const;
    void drawPictures(QPainter &painter);
    void drawSplitBkg(QPainter &painter) const;
    void drawMovingChunk(QPainter &painter) const;
    void drawPainted(QPainter &painter);
    void drawStyle0(QPainter &painter);
    void drawSlimTrack(QPainter &painter, int left, int right, const Surface &surface);
    void drawRoundKnob(QPainter &painter, int left, const QColor &pen, const QColor &brush) const;
    void drawStyle1(QPainter &painter);
    void drawPlates(QPainter &painter);
    int flatKnobLeft() const;
    void drawPlate(QPainter &painter, const QRect &rect, const Surface &surface);

    MOnOffButton *const q;
    QColor onColor{255, 145, 20, 255};
    QColor offColor{155, 155, 155, 255};
    QString btnID = QStringLiteral("ID_MOnOffButton");
    bool onoffStatus = false;
    int timerId = 0; // 0: no glide
    int knobPos = 0; // px, middle of the knob; 0: at rest
    bool isDragged = false;
    QPoint pressPoint;
    bool btnDisable = false;
    QPixmap normalBkgPix;
    QPixmap pressBkgPix;
    QPixmap normalChunkPix;
    QPixmap pressChunkPix;
    bool reverse = false;
    OnOff_STYLE style = ONOFF_STYLE_0;

    QVector<int> overtakenTimers; // of glides that another one took over from
    Memo<Dimmed, QImage> dimmedBkg;
    Memo<Dimmed, QImage> dimmedChunk;
    KeptLook<Look> paintedLook;
    KeptLook<Plates> plates;
};

// What a painted shape is covered with.
struct MOnOffButton::Private::Surface {
    QColor pen;
    QColor brush;
    QColor ground = {}; // under the brush: it shows through the soft edge
};

/** A switch that is off, of at least 90 x 44 px, painted in ONOFF_STYLE_0. */
MOnOffButton::MOnOffButton(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
    setMinimumSize(kSmallestSize);
}

MOnOffButton::~MOnOffButton() = default;

QColor MOnOffButton::onColor() const { return d->onColor; }

/** The colour of the painted looks while on; orange by default. Repaints. */
void MOnOffButton::setOnColor(const QColor &color)
{
    d->onColor = color;
    update();
}

QColor MOnOffButton::offColor() const { return d->offColor; }

/** The colour of the painted looks while off; grey by default. Repaints. */
void MOnOffButton::setOffColor(const QColor &color)
{
    d->offColor = color;
    update();
}

QString MOnOffButton::btnID() const { return d->btnID; }

/** The text that onoffStatusChanged carries; "ID_MOnOffButton" by default. Stored only. */
void MOnOffButton::setBtnID(const QString &id) { d->btnID = id; }

bool MOnOffButton::onoffStatus() const { return d->onoffStatus; }

/** Switches without a signal and without a glide. Repaints. */
void MOnOffButton::setOnoffStatus(const bool &on)
{
    d->onoffStatus = on;
    update();
}

bool MOnOffButton::btnDisable() const { return d->btnDisable; }

/**
 * Disables the switch in software: it looks dimmed and ignores touches and changeStatus(), but
 * still reports a press. It is the only thing that does: the enabled state of the widget changes no
 * look. A glide stands still meanwhile and goes on afterwards. Repaints.
 */
void MOnOffButton::setBtnDisable(const bool &disabled)
{
    d->btnDisable = disabled;
    update();
}

QPixmap MOnOffButton::normalBkgPix() const { return d->normalBkgPix; }

/**
 * The track of a switch that is on. Together with normalChunkPix it turns the pictured look on. Its
 * size becomes the minimum size of the widget, and the place of either track. Repaints.
 */
void MOnOffButton::setNormalBkgPix(const QPixmap &pixmap)
{
    d->normalBkgPix = pixmap;
    if (!pixmap.isNull())
        setMinimumSize(pixmap.size());
    update();
}

QPixmap MOnOffButton::pressBkgPix() const { return d->pressBkgPix; }

/** The track of a switch that is off, not of one that is pressed (kept behaviour). Repaints. */
void MOnOffButton::setPressBkgPix(const QPixmap &pixmap)
{
    d->pressBkgPix = pixmap;
    update();
}

QPixmap MOnOffButton::normalChunkPix() const { return d->normalChunkPix; }

/** The knob at rest. Repaints. */
void MOnOffButton::setNormalChunkPix(const QPixmap &pixmap)
{
    d->normalChunkPix = pixmap;
    update();
}

QPixmap MOnOffButton::pressChunkPix() const { return d->pressChunkPix; }

/** The knob while it is dragged or glides. Repaints. */
void MOnOffButton::setPressChunkPix(const QPixmap &pixmap)
{
    d->pressChunkPix = pixmap;
    update();
}

bool MOnOffButton::reverse() const { return d->reverse; }

/**
 * Puts on at the left and off at the right, for the pictured look and for drags. The painted looks
 * keep their sides. Repaints.
 */
void MOnOffButton::setReverse(bool reversed)
{
    d->reverse = reversed;
    update();
}

MOnOffButton::OnOff_STYLE MOnOffButton::UIStyle() const { return d->style; }

/** The look without pictures. Stored only (kept behaviour); a value that is no style is style 0. */
void MOnOffButton::setUIStyle(OnOff_STYLE style) { d->style = style; }

/**
 * Switches and reports, also when the status is the one there was, and lets the knob glide there
 * from the opposite end; a disabled switch ignores it. The first picture of the glide is that of
 * its first tick.
 *
 * The glide begins where that of an unreversed switch begins. A reversed one therefore leaves the
 * track with its first tick: it changes without a glide (kept behaviour). A glide that is under way
 * is not ended here; its timer ends itself with its next tick.
 */
void MOnOffButton::changeStatus(bool status)
{
    if (d->btnDisable)
        return;
    d->onoffStatus = status;
    d->knobPos = status ? d->knobRadius() : d->farthestKnob();
    if (d->timerId != 0)
        d->overtakenTimers += d->timerId;
    d->timerId = startTimer(kGlideTick);
    emit onoffStatusChanged(d->btnID, status);
}

void MOnOffButton::paintEvent(QPaintEvent *)
{
    if (height() >= width())
        return;
    QPainter painter(this);
    if (d->hasPictures()) {
        d->paintedLook.forget();
        d->drawPictures(painter);
    } else {
        d->paintedLook.draw(painter, d->paintedRect(), d->shownLook(),
                            [this](QPainter &p) { d->drawPainted(p); });
    }
    if (!d->isMoving() || d->paintedLook.size() > 0)
        d->plates.forget();
}

/**
 * A press asks for the click sound, ends a glide and begins a new touch. A disabled switch does
 * none of it, but still emits buttonClicked, so that a screen can tell why nothing happens. The
 * event then goes on to QWidget.
 */
void MOnOffButton::mousePressEvent(QMouseEvent *e)
{
    if (!d->btnDisable) {
        postKeyRequest(this, kBeepRequest);
        if (d->timerId != 0)
            d->endGlide();
        d->isDragged = false;
        d->pressPoint = e->pos();
    }
    const QPointer<MOnOffButton> guard(this);
    emit buttonClicked();
    if (guard)
        QWidget::mousePressEvent(e);
}

/**
 * The knob follows the finger along the track from the first move on; a drag it becomes once the
 * finger went more than 20 px across, and it stays one if it comes back.
 */
void MOnOffButton::mouseMoveEvent(QMouseEvent *e)
{
    if (!d->btnDisable) {
        const int x = e->pos().x();
        if (distance(x, d->pressPoint.x()) > kDragSlop)
            d->isDragged = true;
        if (x < d->knobRadius())
            d->knobPos = d->knobRadius();
        else
            d->knobPos = qMin(x, d->farthestKnob());
        update();
    }
    QWidget::mouseMoveEvent(e);
}

void MOnOffButton::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointer<MOnOffButton> guard(this);
    if (!d->btnDisable) {
        if (d->isDragged)
            d->releaseDrag(e->pos());
        else
            d->releaseTap(e->pos());
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
    if (d->overtakenTimers.removeOne(e->timerId())) {
        killTimer(e->timerId());
        return;
    }
    if (d->btnDisable || e->timerId() != d->timerId)
        return;
    d->knobPos += d->onoffStatus != d->reverse ? kGlideStep : -kGlideStep;
    if (d->knobPos > d->knobRadius() && d->knobPos < d->farthestKnob())
        update();
    else
        d->endGlide();
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
    auto &dimmed = target == d->bkgRect() ? d->dimmedBkg : d->dimmedChunk;
    const QImage &image = dimmed.value({pixmap.cacheKey(), target},
                                       [&](QImage &stale) { stale = dimmedImage(pixmap, target); });
    painter.drawImage(QRectF(target), image, QRectF(image.rect()));
}

void MOnOffButton::Private::endGlide()
{
    q->killTimer(timerId);
    timerId = 0;
    knobPos = 0;
    q->update();
}

// A drag shorter than the knob's way springs back. A longer one switches on in either direction,
// but off only toward the off end: a hasty finger rather switches on than off (kept behaviour).
void MOnOffButton::Private::releaseDrag(const QPoint &pos)
{
    knobPos = 0;
    isDragged = false;
    const bool isFar = distance(pos.x(), pressPoint.x()) >= (q->width() - q->height()) / 2;
    const bool isTowardOff = reverse ? pos.x() > pressPoint.x() : pos.x() < pressPoint.x();
    if (!isFar || (onoffStatus && !isTowardOff)) {
        q->update();
        return;
    }
    q->setOnoffStatus(!onoffStatus);
    emit q->onoffStatusChanged(btnID, onoffStatus);
}

// While a list scrolls the finger does not mean the switch that happens to lie under it. One that
// went sideways meanwhile makes the switch glide to where it is, and say so again (kept behaviour).
void MOnOffButton::Private::releaseTap(const QPoint &pos)
{
    const bool isListMoving = QCoreApplication::instance()->property("listMoving").toBool();
    if (!isListMoving)
        q->changeStatus(!onoffStatus);
    else if (pos.x() != pressPoint.x())
        q->changeStatus(onoffStatus);
}

bool MOnOffButton::Private::hasPictures() const
{
    return !normalBkgPix.isNull() && !normalChunkPix.isNull();
}

QRect MOnOffButton::Private::bkgRect() const
{
    return centredTowardZero(normalBkgPix.size(), q->rect());
}

// At its right end the knob stops one pixel short of the track (kept behaviour).
QRect MOnOffButton::Private::restingChunkRect() const
{
    const QRect track = bkgRect();
    QRect chunk = centredTowardZero(normalChunkPix.size(), q->rect());
    const bool isLeft = onoffStatus == reverse;
    chunk.moveLeft(isLeft ? track.left() : track.left() + track.width() - 1 - chunk.width());
    return chunk;
}

void MOnOffButton::Private::drawPictures(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QPixmap &bkg = onoffStatus ? normalBkgPix : pressBkgPix;
    if (btnDisable) {
        q->drawDisableImage(bkgRect(), bkg, painter);
        q->drawDisableImage(restingChunkRect(), normalChunkPix, painter);
    } else if (isMoving()) {
        drawSplitBkg(painter);
        drawMovingChunk(painter);
    } else {
        painter.drawPixmap(bkgRect().topLeft(), bkg);
        painter.drawPixmap(restingChunkRect().topLeft(), normalChunkPix);
    }
}

// The whole on track squeezed into one side of the knob, the whole off track into the other.
void MOnOffButton::Private::drawSplitBkg(QPainter &painter) const
{
    const QRect track = bkgRect();
    QRect left = track;
    left.setRight(knobPos - 1);
    QRect right = track;
    right.setLeft(knobPos);
    right.setRight(q->width() - track.left() - 1);
    if (!left.isEmpty())
        painter.drawPixmap(left, reverse ? pressBkgPix : normalBkgPix);
    if (!right.isEmpty())
        painter.drawPixmap(right, reverse ? normalBkgPix : pressBkgPix);
}

void MOnOffButton::Private::drawMovingChunk(QPainter &painter) const
{
    const QRect chunk = centredTowardZero(pressChunkPix.size(), q->rect());
    painter.drawPixmap(knobPos - chunk.width() / 2, chunk.top(), pressChunkPix);
}

void MOnOffButton::Private::drawPainted(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (style == ONOFF_STYLE_1)
        drawStyle1(painter);
    else
        drawStyle0(painter);
}

void MOnOffButton::Private::drawStyle0(QPainter &painter)
{
    const auto dark = [](const QColor &color) { return fraction(color, 2, 3); };
    const QColor color = statusColor();
    const int restingLeft = onoffStatus ? q->width() - 1 - q->height() : 0;
    const int right = q->width() - 2;
    if (btnDisable) {
        const QColor darkest = fraction(color, 2, 5);
        drawSlimTrack(painter, 1, right, {darkest, darkest, dark(color)});
        drawRoundKnob(painter, restingLeft, dark(color), dark(color));
    } else if (isMoving()) {
        drawSlimTrack(painter, 1, knobPos - 1, {kOutline, dark(offColor), offColor});
        drawSlimTrack(painter, knobPos, right, {kOutline, dark(onColor), onColor});
        drawRoundKnob(painter, knobPos - q->height() / 2, kOutline,
                      knobPos <= q->width() / 2 ? offColor : onColor);
    } else {
        drawSlimTrack(painter, 1, right, {kOutline, dark(color), color});
        drawRoundKnob(painter, restingLeft, kOutline, color);
    }
}

// The part of the track from one column of pixels to another, both included.
void MOnOffButton::Private::drawSlimTrack(QPainter &painter, int left, int right,
                                          const Surface &surface)
{
    const int sixth = q->height() / 6;
    QPainterPath path;
    q->createRectPath(path, QRectF(QRect(left, sixth + 1, right - left + 1, 4 * sixth)), 2 * sixth);
    painter.fillPath(path, surface.ground);
    painter.setPen(surface.pen);
    painter.setBrush(surface.brush);
    painter.drawPath(path);
}

void MOnOffButton::Private::drawRoundKnob(QPainter &painter, int left, const QColor &pen,
                                          const QColor &brush) const
{
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawEllipse(left, 0, q->height(), q->height());
}

// Only the knob moves: what lies below it is kept meanwhile.
void MOnOffButton::Private::drawStyle1(QPainter &painter)
{
    const QColor color = statusColor();
    if (isMoving())
        plates.draw(painter, paintedRect(), {btnDisable, q->size(), color},
                    [this](QPainter &p) { drawPlates(p); });
    else
        drawPlates(painter);
    const QColor knob = btnDisable ? fraction(color, 1, 3) : color;
    const int third = q->height() / 3;
    drawPlate(painter,
              QRect(flatKnobLeft(), third, q->width() / 2 - 2 * third, q->height() - 2 * third),
              {knob, knob});
}

void MOnOffButton::Private::drawPlates(QPainter &painter)
{
    const QColor color = statusColor();
    Surface outer{color, fraction(color, 1, 1)};
    Surface inner{color, fraction(color, 1, 2, 155)};
    if (btnDisable) {
        outer = {fraction(color, 2, 3), fraction(color, 2, 3)};
        inner = {fraction(color, 1, 3), fraction(color, 1, 3)};
    } else if (isMoving()) {
        outer = {color, color};
        inner = {fraction(color, 1, 2), fraction(color, 1, 2)};
    }
    const int inset = q->height() - 1 > 14 ? q->height() / 8 : 2;
    drawPlate(painter, q->rect().adjusted(1, 1, -1, -1), outer);
    drawPlate(painter, q->rect().adjusted(inset, inset, -inset, -inset), inner);
}

// In motion the left of the knob goes from that of the left half to that of the right half.
int MOnOffButton::Private::flatKnobLeft() const
{
    const int third = q->height() / 3;
    if (btnDisable || !isMoving())
        return onoffStatus ? q->width() / 2 + third : third;
    const int gone = knobPos - knobRadius();
    return toInt(third + ratio(double(gone), double(q->width() - q->height())) * q->width() / 2);
}

void MOnOffButton::Private::drawPlate(QPainter &painter, const QRect &rect, const Surface &surface)
{
    QPainterPath path;
    q->createRectPath(path, QRectF(rect), rect.height() / 2);
    painter.setPen(surface.pen);
    painter.setBrush(surface.brush);
    painter.drawPath(path);
}
