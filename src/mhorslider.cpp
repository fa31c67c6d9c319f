#include "mhorslider.h"

#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/keyrequest.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>

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

/** A slider for -5 to 5 at 0 that shows nothing before it has its pictures. */
MHorSlider::MHorSlider(QWidget *parent)
    : QWidget(parent), m_knob(new QLabel(this)), m_valueLabel(new QLabel(this))
{
}

/** The font of the value; the name hides that of the widget's own font, on purpose. */
void MHorSlider::setFont(const QFont &font)
{
    m_font = font;
    m_valueLabel->setFont(m_font);
}

/**
 * The width in px for the value to the right of the groove; 0 by default. A negative one takes that
 * much off the groove's right end and leaves no room for the value. Stored only.
 */
void MHorSlider::setTextWidth(int width)
{
    m_textWidth = width;
}

/** How the value stands in its place; nothing by default. Stored only. */
void MHorSlider::setAlignment(const Qt::Alignment &alignment)
{
    m_alignment = alignment;
}

/** The groove; its size is that of the slider. Stored only. */
void MHorSlider::setSliderNormalImage(const QPixmap &image)
{
    m_sliderNormalImage = image;
}

/** The filled groove, of which a part is shown, cut and not scaled. Stored only. */
void MHorSlider::setSliderPressImage(const QPixmap &image)
{
    m_sliderPressImage = image;
}

/** The groove of a disabled slider; counts together with the filled one only. Stored only. */
void MHorSlider::setSliderNormalDisablePix(const QPixmap &image)
{
    m_sliderNormalDisableImage = image;
}

/** The filled groove of a disabled slider; counts together with the other one only. Stored only. */
void MHorSlider::setSliderPressDisablePix(const QPixmap &image)
{
    m_sliderPressDisableImage = image;
}

/** The knob. Stored only. */
void MHorSlider::setPointNormalImage(const QPixmap &image)
{
    m_pointNormalImage = image;
}

/**
 * The knob while touched; without it the other one stays. The last picture, on purpose: with it the
 * slider is laid out and repaints.
 */
void MHorSlider::setPointPressImage(const QPixmap &image)
{
    m_pointPressImage = image;
    initWidget();
    update();
}

/** The knob of a disabled slider, shown when it is disabled the next time. Stored only. */
void MHorSlider::setPointDisableImage(const QPixmap &image)
{
    m_pointDisableImage = image;
}

/** The number that both signals carry. Stored only. */
void MHorSlider::setItemID(int id)
{
    m_itemID = id;
}

/** The largest value, at the right; 5 by default. Stored only. */
void MHorSlider::setMaxValue(int value)
{
    m_maxValue = value;
}

/** The smallest value, at the left; -5 by default. Stored only. */
void MHorSlider::setMinValue(int value)
{
    m_minValue = value;
}

/**
 * Sets and shows the value, without a signal. Accepted from -maxValue to maxValue whatever minValue
 * is, on purpose: a value below minValue is shown as a number while the knob stays where it was.
 */
void MHorSlider::setCurrentValue(int value)
{
    if (std::abs(qint64(value)) > m_maxValue)
        return;
    m_currentValue = value;
    m_valueLabel->setText(QString::number(m_currentValue));
    setTouchPos(m_currentValue);
}

/** Whether the fill grows from the left end, the default, or from the middle. Stored only. */
void MHorSlider::setIsNormal(bool isNormal)
{
    m_isNormal = isNormal;
}

/**
 * Lays the slider out: its fixed size, the groove and the labels. Nothing happens before both the
 * groove and the knob have a picture.
 */
void MHorSlider::initWidget()
{
    if (m_sliderNormalImage.isNull() || m_pointNormalImage.isNull())
        return;
    const QSize groove = m_sliderNormalImage.size();
    const int textWidth = boundedPixel(m_textWidth);
    const int height = std::max({groove.height(), m_pointNormalImage.height(), kLeastHeight});
    m_fillSource = QRect(0, 0, 0, groove.height());
    setFixedSize(qBound(0, groove.width() + textWidth, QWIDGETSIZE_MAX), height);
    m_grooveRect = QRect(QPoint(0, height / 2 - groove.height() / 2), groove);
    m_fillTarget = m_grooveRect;
    layOutLabels(QRect(groove.width() - 1, 0, std::max(0, textWidth), height));
    setTouchPos(m_currentValue);
}

/** Moves the knob to a value, and the fill with it. Ignored outside minValue to maxValue. */
void MHorSlider::setTouchPos(int value)
{
    if (value < m_minValue || value > m_maxValue)
        return;
    const qint64 range = qint64(m_maxValue) - m_minValue;
    const qint64 travel = m_grooveRect.width() - m_pointNormalImage.width();
    const qint64 offset = range == 0 ? 0 : travel * (qint64(value) - m_minValue) / range;
    const int knobLeft = m_grooveRect.left() + int(offset);
    m_knob->move(knobLeft, (height() - m_pointNormalImage.height()) / 2);
    placeFill(value, knobLeft);
    update();
}

/** Sets the value from a touch at this x; a change is reported with valueChangeSig. */
void MHorSlider::setTouchPos(QPoint pos)
{
    const qint64 range = qint64(m_maxValue) - m_minValue;
    const qint64 way = knobLeftAt(pos.x()) - m_grooveRect.left();
    const int travel = m_grooveRect.width() - m_pointNormalImage.width();
    const int value = travel == 0 ? m_minValue : saturated(range * way / travel + m_minValue);
    if (value == m_currentValue)
        return;
    setCurrentValue(value);
    emitValueChangedSgl();
}

/** Shows or hides the value. */
void MHorSlider::setIsShowValue(bool isShown)
{
    m_valueLabel->setVisible(isShown);
}

/** The middle of the knob, in the widget. */
QPoint MHorSlider::getTouchPos()
{
    return m_knob->pos() + QPoint(m_pointNormalImage.width() / 2, m_pointNormalImage.height() / 2);
}

/** Emits valueChangeSig with the current value. */
void MHorSlider::emitValueChangedSgl()
{
    emit valueChangeSig(m_itemID, m_currentValue);
}

void MHorSlider::paintEvent(QPaintEvent *)
{
    const bool isDisabled = isDrawnDisabled();
    const QPixmap &fill = isDisabled ? m_sliderPressDisableImage : m_sliderPressImage;
    QPainter painter(this);
    painter.drawPixmap(m_grooveRect, isDisabled ? m_sliderNormalDisableImage : m_sliderNormalImage);
    // To drawPixmap an empty part means the rest of the picture; here it means nothing.
    if (!fill.isNull() && !m_fillTarget.isEmpty())
        painter.drawPixmap(m_fillTarget, fill, m_fillSource);
}

/**
 * A press always asks for the click sound, shows the pressed knob and sets the value. The event
 * then goes on to QWidget, which hands it to the parent.
 */
void MHorSlider::mousePressEvent(QMouseEvent *e)
{
    postKeyRequest(this, kBeepRequest);
    if (!m_pointPressImage.isNull())
        m_knob->setPixmap(m_pointPressImage);
    update();
    if (!e)
        return;
    const QPointer<MHorSlider> guard(this);
    setTouchPos(e->pos());
    if (guard)
        QWidget::mousePressEvent(e);
}

/** The value follows the finger, however far above or below the groove it is. */
void MHorSlider::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MHorSlider> guard(this);
    setTouchPos(e->pos());
    if (guard)
        QWidget::mouseMoveEvent(e);
}

/** Every release emits saveDataSig, whether the value has changed or not. */
void MHorSlider::mouseReleaseEvent(QMouseEvent *e)
{
    m_knob->setPixmap(m_pointNormalImage);
    update();
    const QPointer<MHorSlider> guard(this);
    emit saveDataSig(m_itemID, m_currentValue);
    if (guard && e)
        QWidget::mouseReleaseEvent(e);
}

/** A disabled slider shows its disabled knob, if it has one. */
void MHorSlider::changeEvent(QEvent *e)
{
    if (!e)
        return;
    if (e->type() == QEvent::EnabledChange) {
        const bool hasOwn = !isEnabled() && !m_pointDisableImage.isNull();
        m_knob->setPixmap(hasOwn ? m_pointDisableImage : m_pointNormalImage);
    }
    QWidget::changeEvent(e);
}

void MHorSlider::layOutLabels(const QRect &valueRect)
{
    m_knob->setPixmap(m_pointNormalImage);
    m_knob->setFixedSize(m_pointNormalImage.size());
    QPalette palette;
    palette.setBrush(QPalette::Light, QColor(255, 255, 255, 0));
    m_valueLabel->setPalette(palette);
    m_valueLabel->setStyleSheet(QLatin1String(kValueStyle));
    m_valueLabel->setFont(m_font);
    m_valueLabel->setGeometry(valueRect);
    m_valueLabel->setAlignment(m_alignment);
    m_valueLabel->setText(QString::number(m_currentValue));
}

// From the left end the fill ends just left of the knob's middle. From the middle it keeps a gap,
// of 2 px at the right and 3 px at the left: both are meant, the artwork has its mark there.
void MHorSlider::placeFill(int value, int knobLeft)
{
    const int knobMiddle = knobLeft + m_pointNormalImage.width() / 2;
    const int middle = m_grooveRect.left() + m_grooveRect.width() / 2;
    if (m_isNormal) {
        m_fillTarget.setRight(knobMiddle - 1);
    } else if (value == 0) {
        m_fillTarget.setLeft(middle);
        m_fillTarget.setRight(middle - 1);
    } else if (knobLeft >= middle) {
        m_fillTarget.setLeft(middle + kGapRight);
        m_fillTarget.setRight(knobMiddle - 1);
    } else {
        m_fillTarget.setLeft(knobMiddle);
        m_fillTarget.setRight(middle - kGapLeft);
    }
    m_fillSource.setLeft(m_fillTarget.left() - m_grooveRect.left());
    m_fillSource.setRight(m_fillTarget.right() - m_grooveRect.left());
}

// The knob stands with its middle under the finger, but within the groove.
int MHorSlider::knobLeftAt(int x) const
{
    const int half = m_pointNormalImage.width() / 2;
    if (x < m_grooveRect.left() + half)
        return m_grooveRect.left();
    if (x > m_grooveRect.right() - half)
        return m_grooveRect.right() + 1 - m_pointNormalImage.width();
    return x - half;
}

bool MHorSlider::isDrawnDisabled() const
{
    return !isEnabled() && !m_sliderNormalDisableImage.isNull()
        && !m_sliderPressDisableImage.isNull();
}
