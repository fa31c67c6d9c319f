// SPDX-License-Identifier: Apache-2.0
#include "spsetupslider.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/filledtrack.h"
#include "detail/fonts.h"
#include "detail/keyrequest.h"
#include "spiconbutton.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QRect>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <optional>

using namespace panelkit;

namespace
{

constexpr int kLeastWidth = 50; // px
constexpr int kBand = 30; // px, the height of the value above the track
constexpr int kTopValueTop = 7; // px
constexpr int kRepeatInterval = 200; // ms, of a button that is held
constexpr int kMostSideways = 69; // px; a finger farther from the press no longer drags
const char kValueStyle[] =
    "QLabel:enabled{color:rgb(255,255,255);}                                   "
    "QLabel:disabled{color:rgb(155,155,155);}";
const char kTopStyle[] = "QLabel{font-size:24px;color:rgb(255,255,255);}";

} // namespace

class Q_DECL_HIDDEN SpSetupSlider::Private
{
public:
    explicit Private(SpSetupSlider *widget) : q(widget) { }

    void layOutTrack();
    void layOutLabels();
    SpIconButton *makeButton(const QPixmap &normal, const QPixmap &press, const QString &id, int y);
    int knobTopAt(int y) const;
    std::optional<int> valueAt(int y) const;
    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);

    SpSetupSlider *const q;
    int topValue = 0;
    QLabel *knob = nullptr;
    QLabel *valueLabel = nullptr;
    QLabel *topLabel = nullptr;
    QPointer<SpIconButton> addButton; // none before the layout
    QPointer<SpIconButton> decButton; // none before the layout
    int itemID = 0;
    int currentValue = 0;
    int maxValue = 5;
    int minValue = -5;
    bool hasAddDecBtn = false;
    QRect trackRect; // px
    QRect fillTarget; // px, in the widget
    QRect fillSource; // px, in the picture of the filled track
    QRect labelRect; // px
    QFont font;
    QPoint pressPos; // px
    QPixmap sliderNormalImage;
    QPixmap sliderPressImage;
    QPixmap pointNormalImage;
    QPixmap pointPressImage;
    QPixmap addBtnNormalImage;
    QPixmap addBtnPressImage;
    QPixmap decBtnNormalImage;
    QPixmap decBtnPressImage;

    FilledTrack filledTrack;
};

/** A slider for -5 to 5 at 0 that shows nothing before it has its pictures. */
SpSetupSlider::SpSetupSlider(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::SetupSlider, Private::tell);
    d->knob = new QLabel(this);
    d->valueLabel = new QLabel(this);
    d->topLabel = new QLabel(this);
}

SpSetupSlider::~SpSetupSlider() = default;

bool SpSetupSlider::getHasAddDecBtn() const { return d->hasAddDecBtn; }

/** Whether there is a button at either end of the track. Stored only, so set it first. */
void SpSetupSlider::setHasAddDecBtn(int has) { d->hasAddDecBtn = has != 0; }

QPixmap SpSetupSlider::sliderNormalImage() const { return d->sliderNormalImage; }

/** The track; it gives the slider its height. Stored only. */
void SpSetupSlider::setSliderNormalImage(const QPixmap &image) { d->sliderNormalImage = image; }

QPixmap SpSetupSlider::sliderPressImage() const { return d->sliderPressImage; }

/** The filled track, of which the part below the middle of the knob shows. Stored only. */
void SpSetupSlider::setSliderPressImage(const QPixmap &image) { d->sliderPressImage = image; }

QPixmap SpSetupSlider::pointNormalImage() const { return d->pointNormalImage; }

/** The knob. Stored only. */
void SpSetupSlider::setPointNormalImage(const QPixmap &image) { d->pointNormalImage = image; }

QPixmap SpSetupSlider::pointPressImage() const { return d->pointPressImage; }

/**
 * The knob while touched; without it the other one stays. The last picture of a slider without
 * buttons: with it the slider is laid out and repaints.
 */
void SpSetupSlider::setPointPressImage(const QPixmap &image)
{
    d->pointPressImage = image;
    if (d->hasAddDecBtn)
        return;
    initWidget();
    update();
}

QPixmap SpSetupSlider::addBtnNormalImage() const { return d->addBtnNormalImage; }

/** The button that adds one, above the track. Stored only. */
void SpSetupSlider::setAddBtnNormalImage(const QPixmap &image) { d->addBtnNormalImage = image; }

QPixmap SpSetupSlider::addBtnPressImage() const { return d->addBtnPressImage; }

/** The button that adds one, pressed. Stored only. */
void SpSetupSlider::setAddBtnPressImage(const QPixmap &image) { d->addBtnPressImage = image; }

QPixmap SpSetupSlider::decBtnNormalImage() const { return d->decBtnNormalImage; }

/** The button that takes one off, below the track. Stored only. */
void SpSetupSlider::setDecBtnNormalImage(const QPixmap &image) { d->decBtnNormalImage = image; }

QPixmap SpSetupSlider::decBtnPressImage() const { return d->decBtnPressImage; }

/**
 * The button that takes one off, pressed. The last picture of a slider with buttons: with it the
 * slider is laid out and repaints.
 */
void SpSetupSlider::setDecBtnPressImage(const QPixmap &image)
{
    d->decBtnPressImage = image;
    if (!d->hasAddDecBtn)
        return;
    initWidget();
    update();
}

int SpSetupSlider::itemID() const { return d->itemID; }

/** The number that every signal carries. Stored only. */
void SpSetupSlider::setItemID(int id) { d->itemID = id; }

int SpSetupSlider::maxValue() const { return d->maxValue; }

/** The largest value, at the top; 5 by default. Stored only. */
void SpSetupSlider::setMaxValue(int value) { d->maxValue = value; }

int SpSetupSlider::getMinValue() const { return d->minValue; }

/** The smallest value, at the bottom; -5 by default. Stored only. */
void SpSetupSlider::setMinValue(int value) { d->minValue = value; }

int SpSetupSlider::currentValue() const { return d->currentValue; }

/**
 * Sets and shows the value, without a signal. Accepted from -maxValue to maxValue whatever minValue
 * is (kept behaviour): a value below minValue stands above the track while the knob stays where it
 * was.
 */
void SpSetupSlider::setCurrentValue(int value)
{
    if (std::abs(qint64(value)) > d->maxValue)
        return;
    d->currentValue = value;
    d->valueLabel->setText(QString::number(d->currentValue));
    setTouchPos(d->currentValue);
}

int SpSetupSlider::topValue() const { return d->topValue; }

/**
 * Shows a second number at the top of the widget. It takes its place from the current width; the
 * value comes back to its own band with the next layout.
 */
void SpSetupSlider::setTopValue(int value)
{
    d->topValue = value;
    d->labelRect = QRect(0, kTopValueTop, width(), kBand);
    d->topLabel->setGeometry(d->labelRect);
    d->topLabel->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    d->topLabel->setStyleSheet(QLatin1String(kTopStyle));
    d->topLabel->setText(QString::number(d->topValue));
}

QFont SpSetupSlider::getFont() const { return d->font; }

/** The font of the value; it hides the widget's own, so that a form sets the one that shows. */
void SpSetupSlider::setFont(const QFont &font)
{
    d->font = font;
    d->valueLabel->setFont(d->font);
}

/**
 * Lays the slider out: its fixed size, the track, the labels, and new buttons if it has any. Those
 * of an earlier layout stay, so give the pictures once. Nothing happens before both the track and
 * the knob have a picture.
 */
void SpSetupSlider::initWidget()
{
    if (d->sliderNormalImage.isNull() || d->pointNormalImage.isNull())
        return;
    d->layOutTrack();
    d->layOutLabels();
    setTouchPos(d->currentValue);
}

/** Moves the knob to a value, and the fill with it. Ignored outside minValue to maxValue. */
void SpSetupSlider::setTouchPos(int value)
{
    if (value < d->minValue || value > d->maxValue)
        return;
    const int travel = d->trackRect.height() - d->pointNormalImage.height();
    const qint64 range = qint64(d->maxValue) - d->minValue;
    const qint64 offset = range == 0 ? 0 : travel * (qint64(value) - d->minValue) / range;
    d->knob->move((width() - d->knob->width()) / 2, int(d->trackRect.top() + travel - offset));

    const int middle = d->knob->y() + d->knob->height() / 2;
    d->fillTarget = QRect(QPoint(d->trackRect.left(), middle),
                          QPoint(d->trackRect.right(), d->trackRect.bottom() - 1));
    d->fillSource =
        QRect(0, middle - d->trackRect.top(), d->sliderPressImage.width(), d->fillTarget.height());
    update();
}

/**
 * Sets the value from a touch at this height; a change is reported with valueChangeSig. Ignored
 * above and below the track and in its top row (kept behaviour).
 */
void SpSetupSlider::setTouchPos(QPoint pos)
{
    const std::optional<int> value = d->valueAt(pos.y());
    if (!value || *value == d->currentValue)
        return;
    setCurrentValue(*value);
    emitValueChangedSgl();
}

/** The middle of the knob, in the widget. */
QPoint SpSetupSlider::getTouchPos()
{
    return d->knob->pos()
        + QPoint(d->pointNormalImage.width() / 2, d->pointNormalImage.height() / 2);
}

/** Emits valueChangeSig with the current value and the middle of the knob. */
void SpSetupSlider::emitValueChangedSgl()
{
    emit valueChangeSig(d->itemID, d->currentValue, getTouchPos());
}

/** Sets the size of the value's font in px; sizes below 1 are ignored. */
void SpSetupSlider::setFontSize(int px)
{
    if (px < 1)
        return;
    setFont(resized(d->valueLabel->font(), px));
}

void SpSetupSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    d->filledTrack.draw(painter, {d->sliderNormalImage, d->trackRect},
                        {d->sliderPressImage, d->fillTarget}, d->fillSource);
}

/**
 * A press always asks for the click sound, shows the pressed knob and sets the value. The event
 * then goes on to QWidget, which hands it to the parent.
 */
void SpSetupSlider::mousePressEvent(QMouseEvent *e)
{
    postKeyRequest(this, kBeepRequest);
    if (!d->pointPressImage.isNull())
        d->knob->setPixmap(d->pointPressImage);
    update();
    d->pressPos = e->pos();
    const QPointer<SpSetupSlider> guard(this);
    setTouchPos(e->pos());
    if (guard)
        QWidget::mousePressEvent(e);
}

/** A finger drags the knob until it is farther than 69 px beside the press. */
void SpSetupSlider::mouseMoveEvent(QMouseEvent *e)
{
    const QPointer<SpSetupSlider> guard(this);
    if (distance(e->pos().x(), d->pressPos.x()) <= kMostSideways)
        setTouchPos(e->pos());
    if (guard)
        QWidget::mouseMoveEvent(e);
}

/** Every release emits saveDataSig, then sliderRelease, whether the value has changed or not. */
void SpSetupSlider::mouseReleaseEvent(QMouseEvent *e)
{
    d->knob->setPixmap(d->pointNormalImage);
    update();
    const QPointer<SpSetupSlider> guard(this);
    emit saveDataSig();
    if (guard)
        emit sliderRelease(d->itemID, d->currentValue);
    if (guard)
        QWidget::mouseReleaseEvent(e);
}

/** Buttons, value and knob are enabled and disabled with the slider; the number at the top is not.
 */
void SpSetupSlider::changeEvent(QEvent *e)
{
    if (e->type() == QEvent::EnabledChange) {
        for (QWidget *part :
             {static_cast<QWidget *>(d->addButton), static_cast<QWidget *>(d->decButton),
              static_cast<QWidget *>(d->valueLabel), static_cast<QWidget *>(d->knob)}) {
            if (part)
                part->setEnabled(isEnabled());
        }
    }
    QWidget::changeEvent(e);
}

/** Clicks and long presses of the buttons step by one; each reports the value, changed or not. */
void SpSetupSlider::btnAddDecClickedSlot(QString btnId)
{
    if (btnId == QLatin1String("Add"))
        setCurrentValue(saturated(qint64(d->currentValue) + 1));
    else if (btnId == QLatin1String("Dec"))
        setCurrentValue(saturated(qint64(d->currentValue) - 1));
    emitValueChangedSgl();
}

// Each width is halved by itself, so that pictures of odd and even width need not share a middle.
void SpSetupSlider::Private::layOutTrack()
{
    const QSize track = sliderNormalImage.size();
    const int width = std::max({track.width(), pointNormalImage.width(), kLeastWidth});
    const bool isWithButtons =
        hasAddDecBtn && !addBtnNormalImage.isNull() && !decBtnNormalImage.isNull();
    const int above = isWithButtons ? addBtnNormalImage.height() : 0;
    const int below = isWithButtons ? decBtnNormalImage.height() : 0;
    q->setFixedSize(width, track.height() + kBand + above + below);
    trackRect = QRect(QPoint(width / 2 - track.width() / 2, kBand + above), track);
    labelRect = QRect(0, 0, width, kBand);
    if (!isWithButtons)
        return;
    fillTarget = trackRect;
    addButton = makeButton(addBtnNormalImage, addBtnPressImage, QStringLiteral("Add"), kBand - 1);
    decButton =
        makeButton(decBtnNormalImage, decBtnPressImage, QStringLiteral("Dec"), trackRect.bottom());
}

void SpSetupSlider::Private::layOutLabels()
{
    QPalette palette;
    palette.setBrush(QPalette::Light, QColor(255, 255, 255, 0));
    knob->setPalette(palette);
    valueLabel->setPalette(palette);
    knob->setPixmap(pointNormalImage);
    knob->setFixedSize(pointNormalImage.size());
    valueLabel->setStyleSheet(QLatin1String(kValueStyle));
    valueLabel->setFont(font);
    valueLabel->setGeometry(labelRect);
    valueLabel->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    valueLabel->setText(QString::number(currentValue));
}

// A child of a widget that is shown already stays hidden until it is shown itself.
SpIconButton *SpSetupSlider::Private::makeButton(const QPixmap &normal, const QPixmap &press,
                                                 const QString &id, int y)
{
    auto *button = new SpIconButton(q);
    button->setNormalImage(normal);
    button->setPressImage(press);
    button->setFixedSize(normal.size());
    button->setButtonID(id);
    button->setSupportLongPress(true);
    button->setTimerInt2(kRepeatInterval);
    button->move(q->width() / 2 - normal.width() / 2, y);
    button->setEnabled(q->isEnabled());
    button->show();
    connect(button, SIGNAL(btnClicked(QString)), q, SLOT(btnAddDecClickedSlot(QString)));
    connect(button, SIGNAL(btnLongPress(QString)), q, SLOT(btnAddDecClickedSlot(QString)));
    return button;
}

// The knob stands with its middle under the finger, but within the track.
int SpSetupSlider::Private::knobTopAt(int y) const
{
    const int half = knob->height() / 2;
    const int end = trackRect.bottom() + 1;
    if (y < trackRect.top() + half)
        return trackRect.top();
    if (y > end - half)
        return end - knob->height();
    return y - half;
}

std::optional<int> SpSetupSlider::Private::valueAt(int y) const
{
    if (y <= trackRect.top() || y >= trackRect.bottom() + 1)
        return {};
    const qint64 range = qint64(maxValue) - minValue;
    const qint64 way = knobTopAt(y) - trackRect.top();
    const int travel = trackRect.height() - knob->height();
    return travel == 0 ? maxValue : saturated(maxValue - range * way / travel);
}

// To accessibility.
double SpSetupSlider::Private::tell(const QWidget *widget, AccessibleFact, const QPoint &at)
{
    const std::optional<int> value = static_cast<const SpSetupSlider *>(widget)->d->valueAt(at.y());
    return value ? *value : std::numeric_limits<double>::quiet_NaN();
}
