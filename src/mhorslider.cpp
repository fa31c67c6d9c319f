// SPDX-License-Identifier: Apache-2.0
#include "mhorslider.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/filledtrack.h"
#include "detail/geometry.h"
#include "detail/keyrequest.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QRect>

#include <algorithm>
#include <cstdlib>

using namespace panelkit;

namespace
{

constexpr int kLeastHeight = 30; // px
constexpr int kGapRight = 2; // px, between the middle and a fill to the right of it
constexpr int kGapLeft = 3; // px, between the middle and a fill to the left of it
const char kValueStyle[] = "QLabel:disabled{color:Gray;}                                   "
                           "QLabel:enabled{color:rgb(255,255,255);}";

} // namespace

class Q_DECL_HIDDEN MHorSlider::Private
{
public:
    explicit Private(MHorSlider *widget) : q(widget) { }

    void layOutLabels(const QRect &valueRect);
    void placeFill(int value, int knobLeft);
    int knobLeftAt(int x) const;
    int valueAt(int x) const;
    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    bool isDrawnDisabled() const;

    MHorSlider *const q;
    QLabel *knob = nullptr;
    QLabel *valueLabel = nullptr;
    bool isNormal = true; // the fill grows from the left end
    int itemID = 0;
    int currentValue = 0;
    int maxValue = 5;
    int minValue = -5;
    int textWidth = 0; // px
    QRect grooveRect; // px
    QRect fillTarget; // px, in the widget
    QRect fillSource; // px, in the picture of the filled groove
    QFont font;
    Qt::Alignment alignment;
    QPixmap sliderNormalImage;
    QPixmap sliderNormalDisableImage;
    QPixmap sliderPressImage;
    QPixmap sliderPressDisableImage;
    QPixmap pointNormalImage;
    QPixmap pointPressImage;
    QPixmap pointDisableImage;

    FilledTrack filledGroove;
};

/** A slider for -5 to 5 at 0 that shows nothing before it has its pictures. */
MHorSlider::MHorSlider(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::HorSlider, Private::tell);
    d->knob = new QLabel(this);
    d->valueLabel = new QLabel(this);
}

MHorSlider::~MHorSlider() = default;

QFont MHorSlider::getFont() const { return d->font; }

/** The font of the value; it hides the widget's own, so that a form sets the one that shows. */
void MHorSlider::setFont(const QFont &font)
{
    d->font = font;
    d->valueLabel->setFont(d->font);
}

int MHorSlider::getTextWidth() const { return d->textWidth; }

/**
 * The width in px for the value to the right of the groove; 0 by default. A negative one takes that
 * much off the groove's right end and leaves no room for the value. Stored only.
 */
void MHorSlider::setTextWidth(int width) { d->textWidth = width; }

Qt::Alignment MHorSlider::getAlignment() const { return d->alignment; }

/** How the value stands in its place; nothing by default. Stored only. */
void MHorSlider::setAlignment(const Qt::Alignment &alignment) { d->alignment = alignment; }

QPixmap MHorSlider::sliderNormalImage() const { return d->sliderNormalImage; }

/** The groove; its size is that of the slider. Stored only. */
void MHorSlider::setSliderNormalImage(const QPixmap &image) { d->sliderNormalImage = image; }

QPixmap MHorSlider::sliderPressImage() const { return d->sliderPressImage; }

/** The filled groove, of which a part is shown, cut and not scaled. Stored only. */
void MHorSlider::setSliderPressImage(const QPixmap &image) { d->sliderPressImage = image; }

QPixmap MHorSlider::sliderNormalDisablePix() const { return d->sliderNormalDisableImage; }

/** The groove of a disabled slider; counts together with the filled one only. Stored only. */
void MHorSlider::setSliderNormalDisablePix(const QPixmap &image)
{
    d->sliderNormalDisableImage = image;
}

QPixmap MHorSlider::sliderPressDisablePix() const { return d->sliderPressDisableImage; }

/** The filled groove of a disabled slider; counts together with the other one only. Stored only. */
void MHorSlider::setSliderPressDisablePix(const QPixmap &image)
{
    d->sliderPressDisableImage = image;
}

QPixmap MHorSlider::pointNormalImage() const { return d->pointNormalImage; }

/** The knob. Stored only. */
void MHorSlider::setPointNormalImage(const QPixmap &image) { d->pointNormalImage = image; }

QPixmap MHorSlider::pointPressImage() const { return d->pointPressImage; }

/**
 * The knob while touched; without it the other one stays. Give it last: only with it the slider
 * is laid out and repaints.
 */
void MHorSlider::setPointPressImage(const QPixmap &image)
{
    d->pointPressImage = image;
    initWidget();
    update();
}

QPixmap MHorSlider::pointDisableImage() const { return d->pointDisableImage; }

/** The knob of a disabled slider, shown when it is disabled the next time. Stored only. */
void MHorSlider::setPointDisableImage(const QPixmap &image) { d->pointDisableImage = image; }

int MHorSlider::itemID() const { return d->itemID; }

/** The number that both signals carry. Stored only. */
void MHorSlider::setItemID(int id) { d->itemID = id; }

int MHorSlider::maxValue() const { return d->maxValue; }

/** The largest value, at the right; 5 by default. Stored only. */
void MHorSlider::setMaxValue(int value) { d->maxValue = value; }

int MHorSlider::getMinValue() const { return d->minValue; }

/** The smallest value, at the left; -5 by default. Stored only. */
void MHorSlider::setMinValue(int value) { d->minValue = value; }

int MHorSlider::currentValue() const { return d->currentValue; }

/**
 * Sets and shows the value, without a signal. Accepted from -maxValue to maxValue whatever minValue
 * is: a value below minValue is shown as a number while the knob stays where it was
 * (kept behaviour).
 */
void MHorSlider::setCurrentValue(int value)
{
    if (std::abs(qint64(value)) > d->maxValue)
        return;
    d->currentValue = value;
    d->valueLabel->setText(QString::number(d->currentValue));
    setTouchPos(d->currentValue);
}

bool MHorSlider::getIsNormal() const { return d->isNormal; }

/** Whether the fill grows from the left end, the default, or from the middle. Stored only. */
void MHorSlider::setIsNormal(bool isNormal) { d->isNormal = isNormal; }

/**
 * Lays the slider out: its fixed size, the groove and the labels. Nothing happens before both the
 * groove and the knob have a picture.
 */
void MHorSlider::initWidget()
{
    if (d->sliderNormalImage.isNull() || d->pointNormalImage.isNull())
        return;
    const QSize groove = d->sliderNormalImage.size();
    const int textWidth = boundedPixel(d->textWidth);
    const int height = std::max({groove.height(), d->pointNormalImage.height(), kLeastHeight});
    d->fillSource = QRect(0, 0, 0, groove.height());
    setFixedSize(qBound(0, groove.width() + textWidth, QWIDGETSIZE_MAX), height);
    d->grooveRect = QRect(QPoint(0, height / 2 - groove.height() / 2), groove);
    d->fillTarget = d->grooveRect;
    d->layOutLabels(QRect(groove.width() - 1, 0, std::max(0, textWidth), height));
    setTouchPos(d->currentValue);
}

/** Moves the knob to a value, and the fill with it. Ignored outside minValue to maxValue. */
void MHorSlider::setTouchPos(int value)
{
    if (value < d->minValue || value > d->maxValue)
        return;
    const qint64 range = qint64(d->maxValue) - d->minValue;
    const qint64 travel = d->grooveRect.width() - d->pointNormalImage.width();
    const qint64 offset = range == 0 ? 0 : travel * (qint64(value) - d->minValue) / range;
    const int knobLeft = d->grooveRect.left() + int(offset);
    d->knob->move(knobLeft, (height() - d->pointNormalImage.height()) / 2);
    d->placeFill(value, knobLeft);
    update();
}

/** Sets the value from a touch at this x; a change is reported with valueChangeSig. */
void MHorSlider::setTouchPos(QPoint pos)
{
    const int value = d->valueAt(pos.x());
    if (value == d->currentValue)
        return;
    setCurrentValue(value);
    emitValueChangedSgl();
}

/** Shows or hides the value. */
void MHorSlider::setIsShowValue(bool isShown) { d->valueLabel->setVisible(isShown); }

/** The middle of the knob, in the widget. */
QPoint MHorSlider::getTouchPos()
{
    return d->knob->pos()
        + QPoint(d->pointNormalImage.width() / 2, d->pointNormalImage.height() / 2);
}

/** Emits valueChangeSig with the current value. */
void MHorSlider::emitValueChangedSgl() { emit valueChangeSig(d->itemID, d->currentValue); }

void MHorSlider::paintEvent(QPaintEvent *)
{
    const bool isDisabled = d->isDrawnDisabled();
    const QPixmap &fill = isDisabled ? d->sliderPressDisableImage : d->sliderPressImage;
    const QPixmap &groove = isDisabled ? d->sliderNormalDisableImage : d->sliderNormalImage;
    QPainter painter(this);
    d->filledGroove.draw(painter, {groove, d->grooveRect}, {fill, d->fillTarget}, d->fillSource);
}

/**
 * A press always asks for the click sound, shows the pressed knob and sets the value. The event
 * then goes on to QWidget, which hands it to the parent.
 */
void MHorSlider::mousePressEvent(QMouseEvent *e)
{
    postKeyRequest(this, kBeepRequest);
    if (!d->pointPressImage.isNull())
        d->knob->setPixmap(d->pointPressImage);
    update();
    const QPointer<MHorSlider> guard(this);
    setTouchPos(e->pos());
    if (guard)
        QWidget::mousePressEvent(e);
}

/** The value follows the finger, however far above or below the groove it is. */
void MHorSlider::mouseMoveEvent(QMouseEvent *e)
{
    const QPointer<MHorSlider> guard(this);
    setTouchPos(e->pos());
    if (guard)
        QWidget::mouseMoveEvent(e);
}

/** Every release emits saveDataSig, whether the value has changed or not. */
void MHorSlider::mouseReleaseEvent(QMouseEvent *e)
{
    d->knob->setPixmap(d->pointNormalImage);
    update();
    const QPointer<MHorSlider> guard(this);
    emit saveDataSig(d->itemID, d->currentValue);
    if (guard)
        QWidget::mouseReleaseEvent(e);
}

/** A disabled slider shows its disabled knob, if it has one. */
void MHorSlider::changeEvent(QEvent *e)
{
    if (e->type() == QEvent::EnabledChange) {
        const bool hasOwn = !isEnabled() && !d->pointDisableImage.isNull();
        d->knob->setPixmap(hasOwn ? d->pointDisableImage : d->pointNormalImage);
    }
    QWidget::changeEvent(e);
}

void MHorSlider::Private::layOutLabels(const QRect &valueRect)
{
    knob->setPixmap(pointNormalImage);
    knob->setFixedSize(pointNormalImage.size());
    QPalette palette;
    palette.setBrush(QPalette::Light, QColor(255, 255, 255, 0));
    valueLabel->setPalette(palette);
    valueLabel->setStyleSheet(QLatin1String(kValueStyle));
    valueLabel->setFont(font);
    valueLabel->setGeometry(valueRect);
    valueLabel->setAlignment(alignment);
    valueLabel->setText(QString::number(currentValue));
}

// From the left end the fill ends just left of the knob's middle. From the middle it keeps a gap,
// of 2 px at the right and 3 px at the left (kept behaviour).
void MHorSlider::Private::placeFill(int value, int knobLeft)
{
    const int knobMiddle = knobLeft + pointNormalImage.width() / 2;
    const int middle = grooveRect.left() + grooveRect.width() / 2;
    if (isNormal) {
        fillTarget.setRight(knobMiddle - 1);
    } else if (value == 0) {
        fillTarget.setLeft(middle);
        fillTarget.setRight(middle - 1);
    } else if (knobLeft >= middle) {
        fillTarget.setLeft(middle + kGapRight);
        fillTarget.setRight(knobMiddle - 1);
    } else {
        fillTarget.setLeft(knobMiddle);
        fillTarget.setRight(middle - kGapLeft);
    }
    fillSource.setLeft(fillTarget.left() - grooveRect.left());
    fillSource.setRight(fillTarget.right() - grooveRect.left());
}

// The knob stands with its middle under the finger, but within the groove.
int MHorSlider::Private::knobLeftAt(int x) const
{
    const int half = pointNormalImage.width() / 2;
    if (x < grooveRect.left() + half)
        return grooveRect.left();
    if (x > grooveRect.right() - half)
        return grooveRect.right() + 1 - pointNormalImage.width();
    return x - half;
}

bool MHorSlider::Private::isDrawnDisabled() const
{
    return !q->isEnabled() && !sliderNormalDisableImage.isNull()
        && !sliderPressDisableImage.isNull();
}

int MHorSlider::Private::valueAt(int x) const
{
    const qint64 range = qint64(maxValue) - minValue;
    const qint64 way = knobLeftAt(x) - grooveRect.left();
    const int travel = grooveRect.width() - pointNormalImage.width();
    return travel == 0 ? minValue : saturated(range * way / travel + minValue);
}

// To accessibility.
double MHorSlider::Private::tell(const QWidget *widget, AccessibleFact, const QPoint &at)
{
    return static_cast<const MHorSlider *>(widget)->d->valueAt(at.x());
}
