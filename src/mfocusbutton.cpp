#include "mfocusbutton.h"

#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/kepttext.h"
#include "detail/keyrequest.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimerEvent>

using namespace panelkit;

/**
 * A radio button that has no pictures yet. Its text colours are invalid, which is black, until they
 * are set.
 */
MFocusButton::MFocusButton(QWidget *parent)
    : QRadioButton(parent), m_look(std::make_unique<ImageLook>()),
      m_caption(std::make_unique<KeptText>())
{
}

MFocusButton::~MFocusButton() = default;

/**
 * The picture shown normally. Its size becomes the size into which every picture is stretched, and
 * the minimum size of the widget; then the button repaints. A null picture makes it a plain radio
 * button, with the next paint that something else causes.
 */
void MFocusButton::setNormalImage(const QPixmap &image)
{
    m_normalImage = image;
    if (image.isNull())
        return;
    m_imageSize = image.size();
    setMinimumSize(m_imageSize);
    update();
}

/** The picture shown while pressed or checked; without it there is none. Stored only. */
void MFocusButton::setPressImage(const QPixmap &image)
{
    m_pressImage = image;
}

/** The picture shown while disabled; without it the normal one stays. Repaints. */
void MFocusButton::setDisableImage(const QPixmap &image)
{
    m_disableImage = image;
    update();
}

/** The caption. It is neither shortened nor wrapped. Repaints. */
void MFocusButton::setDisplayText(const QString &text)
{
    m_displayText = text;
    update();
}

/** The colour of the caption normally. Stored only. */
void MFocusButton::setNormalTextColor(const QColor &color)
{
    m_normalTextColor = color;
}

/** The colour of the caption while pressed or checked. Stored only. */
void MFocusButton::setPressTextColor(const QColor &color)
{
    m_pressTextColor = color;
}

/** The colour of the caption while disabled. Stored only. */
void MFocusButton::setDisableTextColor(const QColor &color)
{
    m_disableTextColor = color;
}

/** Where the caption is centred; one that is not valid is the whole widget. Stored only. */
void MFocusButton::setdisplayTextRect(const QRect &rect)
{
    m_displayTextRect = rect;
}

/** The text that either signal carries; "MFocusButton_ID" by default. Stored only. */
void MFocusButton::setButtonID(const QString &id)
{
    m_buttonID = id;
}

/**
 * How long a press is held to be a long one, in ms (2500 by default), from the next press on. A
 * negative time never passes. The timer is one of Qt's coarse ones: it may be 5 % early or late in
 * exchange for fewer wake-ups of the processor.
 */
void MFocusButton::setLongPressIntal(int interval)
{
    m_longPressIntal = interval;
}

/** Sets the size of the widget's font in px; sizes below 1 are ignored. */
void MFocusButton::setFontSize(int px)
{
    if (px < 1)
        return;
    setFont(resized(font(), px));
}

bool MFocusButton::hitButton(const QPoint &) const
{
    return true;
}

void MFocusButton::paintEvent(QPaintEvent *e)
{
    if (m_normalImage.isNull()) {
        QRadioButton::paintEvent(e);
        return;
    }
    QPainter painter(this);
    drawPicture(painter);
    drawCaption(painter);
}

/** A press is timed; being down and checked is the business of QAbstractButton. */
void MFocusButton::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    endTiming();
    if (m_longPressIntal >= 0)
        m_timerId = startTimer(m_longPressIntal);
    m_longPressed = false;
    QAbstractButton::mousePressEvent(e);
}

/**
 * A release, wherever it is, asks for the click sound and is a click, unless the press was a long
 * one. Only then QAbstractButton checks the button: a slot of btnClicked still sees it as it was.
 */
void MFocusButton::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MFocusButton> guard(this);
    if (!m_longPressed) {
        postKeyRequest(this, kBeepRequest);
        emit btnClicked(m_buttonID);
        if (!guard)
            return;
    }
    endTiming();
    QAbstractButton::mouseReleaseEvent(e);
}

/**
 * A long press. Any other timer is left alone on purpose, those of QAbstractButton too: a focus
 * button has neither auto-repeat nor an animated click.
 */
void MFocusButton::timerEvent(QTimerEvent *e)
{
    if (!e || e->timerId() != m_timerId)
        return;
    endTiming();
    m_longPressed = true;
    emit btnLongClicked(m_buttonID);
}

void MFocusButton::endTiming()
{
    if (m_timerId == 0)
        return;
    killTimer(m_timerId);
    m_timerId = 0;
}

bool MFocusButton::isHighlighted() const
{
    return isDown() || isChecked();
}

const QPixmap &MFocusButton::shownImage() const
{
    if (isEnabled())
        return isHighlighted() ? m_pressImage : m_normalImage;
    return m_disableImage.isNull() ? m_normalImage : m_disableImage;
}

QColor MFocusButton::shownTextColor() const
{
    if (!isEnabled())
        return m_disableTextColor;
    return isHighlighted() ? m_pressTextColor : m_normalTextColor;
}

void MFocusButton::drawPicture(QPainter &painter) const
{
    const QPixmap &image = shownImage();
    if (!image.isNull())
        m_look->drawScaled(painter, centredTowardZero(m_imageSize, rect()), image);
}

void MFocusButton::drawCaption(QPainter &painter) const
{
    if (m_displayText.isEmpty())
        return;
    painter.setPen(shownTextColor());
    m_caption->draw(painter, boundedOr(m_displayTextRect, rect()), Qt::AlignCenter, m_displayText);
}
