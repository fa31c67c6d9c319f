#include "spsetupslider.h"

#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/keyrequest.h"
#include "spiconbutton.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cstdlib>

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

/** A slider for -5 to 5 at 0 that shows nothing before it has its pictures. */
SpSetupSlider::SpSetupSlider(QWidget *parent)
    : QWidget(parent), m_knob(new QLabel(this)), m_valueLabel(new QLabel(this)),
      m_topLabel(new QLabel(this))
{
}

/** Whether there is a button at either end of the track. Stored only, so set it first. */
void SpSetupSlider::setHasAddDecBtn(int has)
{
    m_hasAddDecBtn = has != 0;
}

/** The track; it gives the slider its height. Stored only. */
void SpSetupSlider::setSliderNormalImage(const QPixmap &image)
{
    m_sliderNormalImage = image;
}

/** The filled track, of which the part below the middle of the knob shows. Stored only. */
void SpSetupSlider::setSliderPressImage(const QPixmap &image)
{
    m_sliderPressImage = image;
}

/** The knob. Stored only. */
void SpSetupSlider::setPointNormalImage(const QPixmap &image)
{
    m_pointNormalImage = image;
}

/**
 * The knob while touched; without it the other one stays. The last picture of a slider without
 * buttons: with it the slider is laid out and repaints.
 */
void SpSetupSlider::setPointPressImage(const QPixmap &image)
{
    m_pointPressImage = image;
    if (m_hasAddDecBtn)
        return;
    initWidget();
    update();
}

/** The button that adds one, above the track. Stored only. */
void SpSetupSlider::setAddBtnNormalImage(const QPixmap &image)
{
    m_addBtnNormalImage = image;
}

/** The button that adds one, pressed. Stored only. */
void SpSetupSlider::setAddBtnPressImage(const QPixmap &image)
{
    m_addBtnPressImage = image;
}

/** The button that takes one off, below the track. Stored only. */
void SpSetupSlider::setDecBtnNormalImage(const QPixmap &image)
{
    m_decBtnNormalImage = image;
}

/**
 * The button that takes one off, pressed. The last picture of a slider with buttons: with it the
 * slider is laid out and repaints.
 */
void SpSetupSlider::setDecBtnPressImage(const QPixmap &image)
{
    m_decBtnPressImage = image;
    if (!m_hasAddDecBtn)
        return;
    initWidget();
    update();
}

/** The number that every signal carries. Stored only. */
void SpSetupSlider::setItemID(int id)
{
    m_itemID = id;
}

/** The largest value, at the top; 5 by default. Stored only. */
void SpSetupSlider::setMaxValue(int value)
{
    m_maxValue = value;
}

/** The smallest value, at the bottom; -5 by default. Stored only. */
void SpSetupSlider::setMinValue(int value)
{
    m_minValue = value;
}

/**
 * Sets and shows the value, without a signal. Accepted from -maxValue to maxValue whatever minValue
 * is, on purpose: a value below minValue stands above the track while the knob stays where it was.
 */
void SpSetupSlider::setCurrentValue(int value)
{
    if (std::abs(qint64(value)) > m_maxValue)
        return;
    m_currentValue = value;
    m_valueLabel->setText(QString::number(m_currentValue));
    setTouchPos(m_currentValue);
}

/**
 * Shows a second number at the top of the widget. It takes its place from the current width; the
 * value comes back to its own band with the next layout.
 */
void SpSetupSlider::setTopValue(int value)
{
    m_topValue = value;
    m_labelRect = QRect(0, kTopValueTop, width(), kBand);
    m_topLabel->setGeometry(m_labelRect);
    m_topLabel->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_topLabel->setStyleSheet(QLatin1String(kTopStyle));
    m_topLabel->setText(QString::number(m_topValue));
}

/** The font of the value; the name hides that of the widget's own font, on purpose. */
void SpSetupSlider::setFont(const QFont &font)
{
    m_font = font;
    m_valueLabel->setFont(m_font);
}

/**
 * Lays the slider out: its fixed size, the track, the labels, and new buttons if it has any. Those
 * of an earlier layout stay, so give the pictures once. Nothing happens before both the track and
 * the knob have a picture.
 */
void SpSetupSlider::initWidget()
{
    if (m_sliderNormalImage.isNull() || m_pointNormalImage.isNull())
        return;
    layOutTrack();
    layOutLabels();
    setTouchPos(m_currentValue);
}

/** Moves the knob to a value, and the fill with it. Ignored outside minValue to maxValue. */
void SpSetupSlider::setTouchPos(int value)
{
    if (value < m_minValue || value > m_maxValue)
        return;
    const int travel = m_trackRect.height() - m_pointNormalImage.height();
    const qint64 range = qint64(m_maxValue) - m_minValue;
    const qint64 offset = range == 0 ? 0 : travel * (qint64(value) - m_minValue) / range;
    m_knob->move((width() - m_knob->width()) / 2, int(m_trackRect.top() + travel - offset));

    const int middle = m_knob->y() + m_knob->height() / 2;
    m_fillTarget = QRect(QPoint(m_trackRect.left(), middle),
                         QPoint(m_trackRect.right(), m_trackRect.bottom() - 1));
    m_fillSource =
        QRect(0, middle - m_trackRect.top(), m_sliderPressImage.width(), m_fillTarget.height());
    update();
}

/**
 * Sets the value from a touch at this height; a change is reported with valueChangeSig. Ignored
 * above and below the track and, on purpose, in its top row.
 */
void SpSetupSlider::setTouchPos(QPoint pos)
{
    if (pos.y() <= m_trackRect.top() || pos.y() >= m_trackRect.bottom() + 1)
        return;
    const qint64 range = qint64(m_maxValue) - m_minValue;
    const qint64 way = knobTopAt(pos.y()) - m_trackRect.top();
    const int travel = m_trackRect.height() - m_knob->height();
    const int value = travel == 0 ? m_maxValue : saturated(m_maxValue - range * way / travel);
    if (value == m_currentValue)
        return;
    setCurrentValue(value);
    emitValueChangedSgl();
}

/** The middle of the knob, in the widget. */
QPoint SpSetupSlider::getTouchPos()
{
    return m_knob->pos() + QPoint(m_pointNormalImage.width() / 2, m_pointNormalImage.height() / 2);
}

/** Emits valueChangeSig with the current value and the middle of the knob. */
void SpSetupSlider::emitValueChangedSgl()
{
    emit valueChangeSig(m_itemID, m_currentValue, getTouchPos());
}

/** Sets the size of the value's font in px; sizes below 1 are ignored. */
void SpSetupSlider::setFontSize(int px)
{
    if (px < 1)
        return;
    setFont(resized(m_valueLabel->font(), px));
}

void SpSetupSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawTrack(painter);
    drawFill(painter);
}

/**
 * A press always asks for the click sound, shows the pressed knob and sets the value. The event
 * then goes on to QWidget, which hands it to the parent.
 */
void SpSetupSlider::mousePressEvent(QMouseEvent *e)
{
    postKeyRequest(this, kBeepRequest);
    if (!m_pointPressImage.isNull())
        m_knob->setPixmap(m_pointPressImage);
    update();
    if (!e)
        return;
    m_pressPos = e->pos();
    const QPointer<SpSetupSlider> guard(this);
    setTouchPos(e->pos());
    if (guard)
        QWidget::mousePressEvent(e);
}

/** A finger drags the knob until it is farther than 69 px beside the press. */
void SpSetupSlider::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<SpSetupSlider> guard(this);
    if (distance(e->pos().x(), m_pressPos.x()) <= kMostSideways)
        setTouchPos(e->pos());
    if (guard)
        QWidget::mouseMoveEvent(e);
}

/** Every release emits saveDataSig, then sliderRelease, whether the value has changed or not. */
void SpSetupSlider::mouseReleaseEvent(QMouseEvent *e)
{
    m_knob->setPixmap(m_pointNormalImage);
    update();
    const QPointer<SpSetupSlider> guard(this);
    emit saveDataSig();
    if (guard)
        emit sliderRelease(m_itemID, m_currentValue);
    if (guard && e)
        QWidget::mouseReleaseEvent(e);
}

/** Buttons, value and knob are enabled and disabled with the slider; the number at the top is not.
 */
void SpSetupSlider::changeEvent(QEvent *e)
{
    if (!e)
        return;
    if (e->type() == QEvent::EnabledChange) {
        for (QWidget *part :
             {static_cast<QWidget *>(m_addButton), static_cast<QWidget *>(m_decButton),
              static_cast<QWidget *>(m_valueLabel), static_cast<QWidget *>(m_knob)}) {
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
        setCurrentValue(saturated(qint64(m_currentValue) + 1));
    else if (btnId == QLatin1String("Dec"))
        setCurrentValue(saturated(qint64(m_currentValue) - 1));
    emitValueChangedSgl();
}

// Each width is halved by itself, so that pictures of odd and even width need not share a middle.
void SpSetupSlider::layOutTrack()
{
    const QSize track = m_sliderNormalImage.size();
    const int width = std::max({track.width(), m_pointNormalImage.width(), kLeastWidth});
    const bool isWithButtons =
        m_hasAddDecBtn && !m_addBtnNormalImage.isNull() && !m_decBtnNormalImage.isNull();
    const int above = isWithButtons ? m_addBtnNormalImage.height() : 0;
    const int below = isWithButtons ? m_decBtnNormalImage.height() : 0;
    setFixedSize(width, track.height() + kBand + above + below);
    m_trackRect = QRect(QPoint(width / 2 - track.width() / 2, kBand + above), track);
    m_labelRect = QRect(0, 0, width, kBand);
    if (!isWithButtons)
        return;
    m_fillTarget = m_trackRect;
    m_addButton =
        makeButton(m_addBtnNormalImage, m_addBtnPressImage, QStringLiteral("Add"), kBand - 1);
    m_decButton = makeButton(m_decBtnNormalImage, m_decBtnPressImage, QStringLiteral("Dec"),
                             m_trackRect.bottom());
}

void SpSetupSlider::layOutLabels()
{
    QPalette palette;
    palette.setBrush(QPalette::Light, QColor(255, 255, 255, 0));
    m_knob->setPalette(palette);
    m_valueLabel->setPalette(palette);
    m_knob->setPixmap(m_pointNormalImage);
    m_knob->setFixedSize(m_pointNormalImage.size());
    m_valueLabel->setStyleSheet(QLatin1String(kValueStyle));
    m_valueLabel->setFont(m_font);
    m_valueLabel->setGeometry(m_labelRect);
    m_valueLabel->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    m_valueLabel->setText(QString::number(m_currentValue));
}

// A child of a widget that is shown already stays hidden until it is shown itself.
SpIconButton *SpSetupSlider::makeButton(const QPixmap &normal, const QPixmap &press,
                                        const QString &id, int y)
{
    auto *button = new SpIconButton(this);
    button->setNormalImage(normal);
    button->setPressImage(press);
    button->setFixedSize(normal.size());
    button->setButtonID(id);
    button->setSupportLongPress(true);
    button->setTimerInt2(kRepeatInterval);
    button->move(width() / 2 - normal.width() / 2, y);
    button->setEnabled(isEnabled());
    button->show();
    connect(button, SIGNAL(btnClicked(QString)), this, SLOT(btnAddDecClickedSlot(QString)));
    connect(button, SIGNAL(btnLongPress(QString)), this, SLOT(btnAddDecClickedSlot(QString)));
    return button;
}

// The knob stands with its middle under the finger, but within the track.
int SpSetupSlider::knobTopAt(int y) const
{
    const int half = m_knob->height() / 2;
    const int end = m_trackRect.bottom() + 1;
    if (y < m_trackRect.top() + half)
        return m_trackRect.top();
    if (y > end - half)
        return end - m_knob->height();
    return y - half;
}

void SpSetupSlider::drawTrack(QPainter &painter) const
{
    painter.drawPixmap(m_trackRect, m_sliderNormalImage);
}

void SpSetupSlider::drawFill(QPainter &painter) const
{
    // To drawPixmap an empty part means the rest of the picture; here it means nothing.
    if (!m_sliderPressImage.isNull() && !m_fillTarget.isEmpty())
        painter.drawPixmap(m_fillTarget, m_sliderPressImage, m_fillSource);
}
