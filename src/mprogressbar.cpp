// SPDX-License-Identifier: Apache-2.0
#include "mprogressbar.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/keptlook.h"
#include "detail/keyrequest.h"
#include "detail/textcache.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QRect>

#include <algorithm>
#include <array>

using namespace panelkit;

namespace
{

QChar digit(qint64 number) { return QChar(ushort('0' + number)); }

} // namespace

void transFormTime(qint64 seconds, QString &text)
{
    text.clear();
    for (const int divisor : {3600, 60, 1}) {
        const qint64 number = seconds / divisor;
        text += digit(number / 10);
        text += digit(number % 10);
        if (divisor != 1)
            text += QLatin1Char(':');
        seconds -= number * divisor;
    }
}

class Q_DECL_HIDDEN MProgressBar::Private
{
public:
    explicit Private(MProgressBar *widget) : q(widget) { }

    // What the part that is kept depends on: the groove, in plain colours with the knob. A pictured
    // knob is drawn over it: it is one copy, and mostly higher than the groove.
    struct Look {
        int currentValue;
        int maxValue;
        int minValue;
        int ponitRadius; // px
        bool pressed;
        bool isEnabled;
        bool boundary;
        QSize size; // px
        std::array<qint64, 3> pictures; // QPixmap::cacheKey()
        std::array<QColor, 5> colors;

        auto tied() const
        {
            return std::tie(currentValue, maxValue, minValue, ponitRadius, pressed, isEnabled,
                            boundary, size, pictures, colors);
        }
    };

    Look shownLook() const;
    QRect paintedRect() const;
    bool hasPictures() const;
    bool isScaled(const QPainter &painter) const;
    int bounded(int value) const;
    int partOf(int length) const;
    int valueAt(int x) const;
    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    QRect grooveRect() const;
    QRect knobRect() const;
    const QPixmap &currentKnob() const;
    QRect plainBarRect() const;
    QRect plainKnobRect() const;
    void drawGroove(QPainter &painter) const;
    void drawKnob(QPainter &painter) const;
    void drawTime(QPainter &painter) const;
    void drawPlain(QPainter &painter) const;

    MProgressBar *const q;
    int itemID = 0;
    int currentValue = 50; // the one that is shown
    int maxValue = 100;
    int minValue = 0;
    bool pressed = false;
    int realValue = 0; // s, when it is shown as a time
    QPixmap sliderNormalImage; // the played part
    QPixmap sliderPressImage; // the whole groove
    QPixmap sliderDisableImage;
    QPixmap pointNormalImage;
    QPixmap pointPressImage;
    QPixmap pointDisableImage;
    int ponitRadius = 0; // px
    QColor normalColor{150, 150, 150};
    QColor pressColor{255, 125, 0};
    QColor pointNormalColor{230, 230, 230};
    QColor pointPressColor{255, 155, 20};
    bool showValue = false;
    bool boundary = false;
    QColor boundaryColor{210, 210, 210};

    KeptLook<Look> look;
    mutable TextCache time;
};

/** A bar from 0 to 100 that shows 50, in plain colours and without a knob. */
MProgressBar::MProgressBar(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::ProgressBar, Private::tell);
}

MProgressBar::~MProgressBar() = default;

QPixmap MProgressBar::sliderNormalImage() const { return d->sliderNormalImage; }

/** The played part, cut from its left. Repaints. */
void MProgressBar::setSliderNormalImage(const QPixmap &image)
{
    d->sliderNormalImage = image;
    update();
}

QPixmap MProgressBar::sliderPressImage() const { return d->sliderPressImage; }

/** The whole groove; its size is that of the bar's drawing. Repaints. */
void MProgressBar::setSliderPressImage(const QPixmap &image)
{
    d->sliderPressImage = image;
    update();
}

QPixmap MProgressBar::sliderDisableImage() const { return d->sliderDisableImage; }

/** The played part of a disabled bar, squeezed into its place, not cut. Repaints. */
void MProgressBar::setSliderDisableImage(const QPixmap &image)
{
    d->sliderDisableImage = image;
    update();
}

QPixmap MProgressBar::pointNormalImage() const { return d->pointNormalImage; }

/** The knob. Repaints. */
void MProgressBar::setPointNormalImage(const QPixmap &image)
{
    d->pointNormalImage = image;
    update();
}

QPixmap MProgressBar::pointPressImage() const { return d->pointPressImage; }

/**
 * The knob while touched; its size is that of every knob, and without it none is drawn. Repaints.
 */
void MProgressBar::setPointPressImage(const QPixmap &image)
{
    d->pointPressImage = image;
    update();
}

QPixmap MProgressBar::pointDisableImage() const { return d->pointDisableImage; }

/** The knob of a disabled bar; without it the others serve. Repaints. */
void MProgressBar::setPointDisableImage(const QPixmap &image)
{
    d->pointDisableImage = image;
    update();
}

int MProgressBar::itemID() const { return d->itemID; }

/** The number that both signals carry. Stored only. */
void MProgressBar::setItemID(int id) { d->itemID = id; }

int MProgressBar::maxValue() const { return d->maxValue; }

/** The value at the right end; 100 by default. Repaints. */
void MProgressBar::setMaxValue(int value)
{
    d->maxValue = value;
    update();
}

int MProgressBar::getMinValue() const { return d->minValue; }

/** The value at the left end; 0 by default. Repaints. */
void MProgressBar::setMinValue(int value)
{
    d->minValue = value;
    update();
}

int MProgressBar::currentValue() const { return d->currentValue; }

/** Shows a value, without a signal. Repaints. Ignored outside minValue to maxValue. */
void MProgressBar::setCurrentValue(int value)
{
    if (value > d->maxValue || value < d->minValue)
        return;
    d->currentValue = value;
    update();
}

int MProgressBar::ponitRadius() const { return d->ponitRadius; }

/**
 * In plain colours the width of the knob in px, and none is drawn at 0, the default. With pictures
 * the distance of the middle of the knob from either end of the groove. Repaints.
 */
void MProgressBar::setPonitRadius(int radius)
{
    d->ponitRadius = radius;
    update();
}

QColor MProgressBar::normalColor() const { return d->normalColor; }

/** The colour of the groove; grey by default. Repaints. */
void MProgressBar::setNormalColor(QColor color)
{
    d->normalColor = color;
    update();
}

QColor MProgressBar::pointNormalColor() const { return d->pointNormalColor; }

/** The colour of the knob; light grey by default. Repaints. */
void MProgressBar::setPointNormalColor(QColor color)
{
    d->pointNormalColor = color;
    update();
}

QColor MProgressBar::pointPressColor() const { return d->pointPressColor; }

/** The colour of the knob while touched; orange by default. Repaints. */
void MProgressBar::setPointPressColor(QColor color)
{
    d->pointPressColor = color;
    update();
}

QColor MProgressBar::pressColor() const { return d->pressColor; }

/** The colour of the played part; orange by default. Stored only. */
void MProgressBar::setPressColor(QColor color) { d->pressColor = color; }

bool MProgressBar::showValue() const { return d->showValue; }

/** Whether realValue stands on the knob as a time; only with pictures. Repaints. */
void MProgressBar::setShowValue(bool show)
{
    d->showValue = show;
    update();
}

bool MProgressBar::boundary() const { return d->boundary; }

/** Whether groove and knob have an outline; only in plain colours. Stored only. */
void MProgressBar::setBoundary(bool boundary) { d->boundary = boundary; }

QColor MProgressBar::boundaryColor() const { return d->boundaryColor; }

/** The colour of the outlines; light grey by default. Stored only. */
void MProgressBar::setBoundaryColor(QColor color) { d->boundaryColor = color; }

int MProgressBar::realValue() const { return d->realValue; }

/**
 * Feeds the position: it is kept, limited to the range, and shown unless a finger is on the bar.
 * Without a signal.
 */
void MProgressBar::setRealValue(int value)
{
    d->realValue = d->bounded(value);
    if (!d->pressed)
        setCurrentValue(d->realValue);
}

/** Shows the value of a touch at this x and reports it with valueChanging, changed or not. */
void MProgressBar::updateCurrentValue(QPoint pos)
{
    d->currentValue = d->valueAt(pos.x());
    update();
    emit valueChanging(d->itemID, d->currentValue);
}

void MProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!d->hasPictures() || d->isScaled(painter))
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    d->look.draw(painter, d->paintedRect(), d->shownLook(), [this](QPainter &p) {
        if (d->hasPictures())
            d->drawGroove(p);
        else
            d->drawPlain(p);
    });
    if (!d->hasPictures())
        return;
    d->drawKnob(painter);
    d->drawTime(painter);
}

/** A press asks for the click sound and takes the knob; it goes on to the parent. */
void MProgressBar::mousePressEvent(QMouseEvent *e)
{
    const QPointer<MProgressBar> guard(this);
    if (isEnabled()) {
        postKeyRequest(this, kBeepRequest);
        d->pressed = true;
        updateCurrentValue(e->pos());
    }
    if (guard)
        QWidget::mousePressEvent(e);
}

/** The value follows the finger, or with mouse tracking the pointer, which needs no press. */
void MProgressBar::mouseMoveEvent(QMouseEvent *e)
{
    const QPointer<MProgressBar> guard(this);
    if (isEnabled())
        updateCurrentValue(e->pos());
    if (guard)
        QWidget::mouseMoveEvent(e);
}

/** A release emits valueChanging once more, keeps the value and emits valueChangedSig. */
void MProgressBar::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointer<MProgressBar> guard(this);
    if (isEnabled()) {
        d->pressed = false;
        updateCurrentValue(e->pos());
        if (!guard)
            return;
        d->realValue = d->currentValue;
        emit valueChangedSig(d->itemID, d->currentValue);
    }
    if (guard)
        QWidget::mouseReleaseEvent(e);
}

MProgressBar::Private::Look MProgressBar::Private::shownLook() const
{
    return {
        currentValue,
        maxValue,
        minValue,
        ponitRadius,
        pressed,
        q->isEnabled(),
        boundary,
        q->size(),
        {sliderNormalImage.cacheKey(), sliderPressImage.cacheKey(), sliderDisableImage.cacheKey()},
        {normalColor, pressColor, pointNormalColor, pointPressColor, boundaryColor}};
}

// Of the widget's whole width: a value left outside of a range that has shrunk goes there.
QRect MProgressBar::Private::paintedRect() const
{
    const QRect parts = hasPictures() ? grooveRect() : plainBarRect() | plainKnobRect();
    return QRect(0, parts.top(), q->width(), parts.height()).adjusted(-1, -1, 1, 1);
}

bool MProgressBar::Private::hasPictures() const
{
    return !sliderNormalImage.isNull() && !sliderPressImage.isNull();
}

// Pictures that are copied pixel by pixel look the same without render hints, which make them a
// sixth dearer.
bool MProgressBar::Private::isScaled(const QPainter &painter) const
{
    const bool isSqueezed = !q->isEnabled() && !sliderDisableImage.isNull();
    return isSqueezed || currentKnob().size() != pointPressImage.size()
        || painter.deviceTransform().type() > QTransform::TxTranslate;
}

int MProgressBar::Private::bounded(int value) const
{
    return std::max(minValue, std::min(value, maxValue));
}

// The part of a length that is played. A range of one value has none; a value left outside of a
// range that has shrunk may make it longer than the length.
int MProgressBar::Private::partOf(int length) const
{
    const qint64 span = qint64(maxValue) - minValue;
    if (span == 0)
        return 0;
    return boundedPixel(saturated((qint64(currentValue) - minValue) * boundedPixel(length) / span));
}

// With pictures it does not depend on the radius, although the place of the knob does
// (kept behaviour): both agree where the radius is half of the knob's width.
int MProgressBar::Private::valueAt(int x) const
{
    const bool isPicture = hasPictures();
    const int knob = isPicture ? pointPressImage.width() : boundedPixel(ponitRadius);
    const int groove = isPicture ? sliderPressImage.width() : q->width();
    const int start = (q->width() - groove) / 2 + knob / 2;
    if (x < start)
        return minValue;
    if (x > q->width() - start)
        return maxValue;
    const double span = double(qint64(maxValue) - minValue);
    return bounded(toInt(ratio(double(x - start), double(groove - knob)) * span + minValue));
}

QRect MProgressBar::Private::grooveRect() const
{
    return centredTowardZero(sliderPressImage.size(), q->rect());
}

QRect MProgressBar::Private::knobRect() const
{
    const QSize size = pointPressImage.size();
    const QRect groove = grooveRect();
    const int radius = boundedPixel(ponitRadius);
    const int x = groove.left() + radius - size.width() / 2 + partOf(groove.width() - 2 * radius);
    return {QPoint(x, (q->height() - size.height()) / 2), size};
}

const QPixmap &MProgressBar::Private::currentKnob() const
{
    if (!q->isEnabled() && !pointDisableImage.isNull())
        return pointDisableImage;
    return pressed ? pointPressImage : pointNormalImage;
}

QRect MProgressBar::Private::plainBarRect() const
{
    return {0, q->height() * 2 / 5, q->width(), q->height() / 5};
}

QRect MProgressBar::Private::plainKnobRect() const
{
    const int knob = boundedPixel(ponitRadius);
    return {partOf(q->width() - knob), (q->height() - knob) / 2, knob, knob};
}

void MProgressBar::Private::drawGroove(QPainter &painter) const
{
    const QRect groove = grooveRect();
    painter.drawPixmap(groove, sliderPressImage);
    const QRect played(groove.topLeft(), QSize(partOf(groove.width()), groove.height()));
    if (played.isEmpty())
        return;
    if (q->isEnabled() || sliderDisableImage.isNull())
        painter.drawPixmap(played, sliderNormalImage, QRect(QPoint(), played.size()));
    else
        painter.drawPixmap(played, sliderDisableImage);
}

void MProgressBar::Private::drawKnob(QPainter &painter) const
{
    if (!pointPressImage.isNull())
        painter.drawPixmap(knobRect(), currentKnob());
}

void MProgressBar::Private::drawTime(QPainter &painter) const
{
    if (!showValue || pointPressImage.isNull())
        return;
    QString text;
    transFormTime(realValue, text);
    time.draw(painter, QRectF(knobRect()), Qt::AlignCenter, text);
}

void MProgressBar::Private::drawPlain(QPainter &painter) const
{
    const QRect knob = plainKnobRect();
    QRect bar = plainBarRect();
    if (boundary)
        painter.setPen(QPen(boundaryColor));
    else
        painter.setPen(Qt::NoPen);
    painter.setBrush(normalColor);
    painter.drawRects(&bar, 1);
    bar.setRight(knob.left() + knob.width() / 2 - 1);
    painter.setBrush(pressColor);
    painter.drawRects(&bar, 1);
    if (knob.width() <= 0)
        return;
    painter.setBrush(pressed ? pointPressColor : pointNormalColor);
    painter.drawEllipse(knob);
}

// To accessibility.
double MProgressBar::Private::tell(const QWidget *widget, AccessibleFact, const QPoint &at)
{
    return static_cast<const MProgressBar *>(widget)->d->valueAt(at.x());
}
