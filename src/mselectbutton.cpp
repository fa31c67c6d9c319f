#include "mselectbutton.h"

#include "detail/arithmetic.h"
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

namespace
{

constexpr int kLongPress = 1500; // ms
constexpr int kSlideSlop = 10; // px; a finger that went farther on either axis has slid away

} // namespace

/** A button without pictures and caption: it paints nothing until it is given some. */
MSelectButton::MSelectButton(QWidget *parent)
    : QWidget(parent), m_look(std::make_unique<ImageLook>()),
      m_caption(std::make_unique<KeptText>())
{
}

MSelectButton::~MSelectButton() = default;

/**
 * The picture shown normally. Its size becomes the size into which every picture is stretched, and
 * the minimum size of the widget; then the button repaints. A null picture is stored, but size and
 * screen stay as they are until something else repaints. Before there was any normal picture the
 * others stand in their own size with their top left in the middle.
 */
void MSelectButton::setNormalImage(const QPixmap &image)
{
    m_normalImage = image;
    if (image.isNull())
        return;
    m_imageSize = image.size();
    setMinimumSize(m_imageSize);
    update();
}

/** The picture shown while pressed; without it there is none. Repaints. */
void MSelectButton::setPressImage(const QPixmap &image)
{
    m_pressImage = image;
    update();
}

/** The picture shown while selected; without it there is none. Repaints. */
void MSelectButton::setSelectImage(const QPixmap &image)
{
    m_selectImage = image;
    update();
}

/** The picture shown while disabled; without it the normal one stays. Repaints. */
void MSelectButton::setDisableImage(const QPixmap &image)
{
    m_disableImage = image;
    update();
}

/** The caption. It is neither shortened nor wrapped. Repaints. */
void MSelectButton::setDisplayText(const QString &text)
{
    m_displayText = text;
    update();
}

/** The colour of the caption normally; white by default. Repaints. */
void MSelectButton::setNormalTextColor(const QColor &color)
{
    m_normalTextColor = color;
    update();
}

/** The colour of the caption while pressed and not selected; white by default. Repaints. */
void MSelectButton::setPressTextColor(const QColor &color)
{
    m_pressTextColor = color;
    update();
}

/** The colour of the caption while selected, pressed or not; white by default. Repaints. */
void MSelectButton::setSelectTextColor(const QColor &color)
{
    m_selectTextColor = color;
    update();
}

/** The colour of the caption while disabled; white by default. Repaints. */
void MSelectButton::setDisableTextColor(const QColor &color)
{
    m_disableTextColor = color;
    update();
}

/** Where the caption is centred; one that is not valid is the whole widget. Repaints. */
void MSelectButton::setdisplayTextRect(const QRect &rect)
{
    m_displayTextRect = rect;
    update();
}

/** The text that either signal carries; "MSelectButton_ID" by default. Stored only. */
void MSelectButton::setButtonID(const QString &id)
{
    m_buttonID = id;
}

/** Sets the selected look, without a signal. Repaints. */
void MSelectButton::setSelectState(const bool &selected)
{
    m_selectState = selected;
    update();
}

/**
 * Disables the button in software: it looks disabled and ignores touches, but its enabled state as
 * a QWidget stays. Repaints.
 */
void MSelectButton::setDisableState(const bool &disabled)
{
    m_disableState = disabled;
    update();
}

/** Sets the size of the widget's font in px; sizes below 1 are ignored. */
void MSelectButton::setFontSize(int px)
{
    if (px < 1)
        return;
    setFont(resized(font(), px));
}

void MSelectButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawPicture(painter);
    drawCaption(painter);
}

/**
 * A press asks for the click sound, shows the pressed look and is timed. A disabled button only
 * remembers the point. The event then goes on to QWidget.
 */
void MSelectButton::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (isActive()) {
        postKeyRequest(this, kBeepRequest);
        m_longPressed = false;
        endTiming();
        m_timerId = startTimer(kLongPress);
        m_isPressed = true;
        update();
    }
    m_pressPoint = e->pos();
    QWidget::mousePressEvent(e);
}

/**
 * A finger that slides away ends the press for good, also if it comes back. The event goes on to
 * the press handler of QWidget, not to that for moves, on purpose: a button that is a popup of its
 * own closes when the finger leaves it.
 */
void MSelectButton::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const bool isAway = distance(e->x(), m_pressPoint.x()) > kSlideSlop
        || distance(e->y(), m_pressPoint.y()) > kSlideSlop;
    if (isAway) {
        endTiming();
        if (m_isPressed) {
            m_isPressed = false;
            update();
        }
    }
    QWidget::mousePressEvent(e);
}

/**
 * A release is a click if the finger has neither slid away nor held for a long press. The button is
 * still pressed while the click is reported.
 */
void MSelectButton::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MSelectButton> guard(this);
    if (isActive()) {
        if (!m_longPressed && m_isPressed) {
            emit btnClicked(m_buttonID);
            if (!guard)
                return;
        }
        update();
    }
    endTiming();
    m_longPressed = false;
    m_isPressed = false;
    QWidget::mouseReleaseEvent(e);
}

/** A long press, if the finger is still there. */
void MSelectButton::timerEvent(QTimerEvent *e)
{
    if (!e || e->timerId() != m_timerId)
        return;
    endTiming();
    m_longPressed = true;
    if (m_isPressed)
        emit btnLongClicked(m_buttonID);
}

bool MSelectButton::isActive() const
{
    return !m_disableState && isEnabled();
}

void MSelectButton::endTiming()
{
    if (m_timerId == 0)
        return;
    killTimer(m_timerId);
    m_timerId = 0;
}

const QPixmap &MSelectButton::shownImage() const
{
    if (!isActive())
        return m_disableImage.isNull() ? m_normalImage : m_disableImage;
    if (m_isPressed)
        return m_pressImage;
    return m_selectState ? m_selectImage : m_normalImage;
}

// Being selected goes before being pressed here, and after it for the picture, on purpose: a
// selected caption keeps its colour under the finger.
QColor MSelectButton::shownTextColor() const
{
    if (!isActive())
        return m_disableTextColor;
    if (m_selectState)
        return m_selectTextColor;
    return m_isPressed ? m_pressTextColor : m_normalTextColor;
}

void MSelectButton::drawPicture(QPainter &painter) const
{
    const QPixmap &image = shownImage();
    if (!image.isNull())
        m_look->drawScaled(painter, centredTowardZero(m_imageSize, rect()), image);
}

void MSelectButton::drawCaption(QPainter &painter) const
{
    if (m_displayText.isEmpty())
        return;
    painter.setPen(shownTextColor());
    m_caption->draw(painter, boundedOr(m_displayTextRect, rect()), Qt::AlignCenter, m_displayText);
}
