#include "mpresetbutton.h"

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
constexpr int kLongPressSlop = 20; // px; a finger that went farther on either axis holds no more

} // namespace

/**
 * A check box that has no pictures yet. Its text colours are invalid, which is black, until they
 * are set.
 */
MPresetButton::MPresetButton(QWidget *parent)
    : QCheckBox(parent), m_look(std::make_unique<ImageLook>()),
      m_firstLine(std::make_unique<KeptText>()), m_secondLine(std::make_unique<KeptText>())
{
}

MPresetButton::~MPresetButton() = default;

/**
 * The picture shown normally. Its size becomes the size into which every picture is stretched, and
 * the minimum size of the widget; then the button repaints. A null picture makes it a plain check
 * box, with the next paint that something else causes.
 */
void MPresetButton::setNormalImage(const QPixmap &image)
{
    m_normalImage = image;
    if (image.isNull())
        return;
    m_imageSize = image.size();
    setMinimumSize(m_imageSize);
    update();
}

/** The picture shown while down or checked; without it there is none. Repaints. */
void MPresetButton::setPressImage(const QPixmap &image)
{
    m_pressImage = image;
    update();
}

/** The picture shown while disabled; without it the normal one stays. Repaints. */
void MPresetButton::setDisableImage(const QPixmap &image)
{
    m_disableImage = image;
    update();
}

/** A small picture over the other, in its own size; a disabled key has none. Repaints. */
void MPresetButton::setPresetIcon(const QPixmap &icon)
{
    m_presetIcon = icon;
    update();
}

/** Where the icon's top left stands on the widget. Stored only. */
void MPresetButton::setPresetIconPos(const QPoint &pos)
{
    m_presetIconPos = pos;
}

/** The first line, in the widget's font. It is neither shortened nor wrapped. Repaints. */
void MPresetButton::setDisplayText(const QString &text)
{
    m_displayText = text;
    update();
}

/** The second line, in the application's font at fontSize2. Repaints. */
void MPresetButton::setDisplayText2(const QString &text)
{
    m_displayText2 = text;
    update();
}

/** The colour of the first line normally. Repaints. */
void MPresetButton::setNormalTextColor(const QColor &color)
{
    m_textColors.normal = color;
    update();
}

/** The colour of the first line while down or checked. Repaints. */
void MPresetButton::setPressTextColor(const QColor &color)
{
    m_textColors.press = color;
    update();
}

/** The colour of the first line while disabled. Repaints. */
void MPresetButton::setDisableTextColor(const QColor &color)
{
    m_textColors.disable = color;
    update();
}

/** The colour of the second line normally. Repaints. */
void MPresetButton::setNormalTextColor2(const QColor &color)
{
    m_textColors2.normal = color;
    update();
}

/** The colour of the second line while down or checked. Repaints. */
void MPresetButton::setPressTextColor2(const QColor &color)
{
    m_textColors2.press = color;
    update();
}

/** The colour of the second line while disabled. Repaints. */
void MPresetButton::setDisableTextColor2(const QColor &color)
{
    m_textColors2.disable = color;
    update();
}

/** Where the first line is centred; one that is not valid is the whole widget. Stored only. */
void MPresetButton::setdisplayTextRect(const QRect &rect)
{
    m_displayTextRect = rect;
}

/** Where the second line is centred; one that is not valid is the whole widget. Stored only. */
void MPresetButton::setdisplayTextRect2(const QRect &rect)
{
    m_displayTextRect2 = rect;
}

/**
 * The size of the second line in px; 24 by default. Below 1 the line has the size of the
 * application's font. Repaints.
 */
void MPresetButton::setFontSize2(const int &px)
{
    m_fontSize2 = px;
    update();
}

/** The text that either signal carries; "MPresetButton_ID" by default. Stored only. */
void MPresetButton::setButtonID(const QString &id)
{
    m_buttonID = id;
}

bool MPresetButton::hitButton(const QPoint &) const
{
    return true;
}

void MPresetButton::paintEvent(QPaintEvent *e)
{
    if (m_normalImage.isNull()) {
        QCheckBox::paintEvent(e);
        return;
    }
    QPainter painter(this);
    drawPicture(painter);
    drawIcon(painter);
    drawFirstLine(painter);
    drawSecondLine(painter);
}

/**
 * A press asks for the click sound and is timed. The event then goes to QWidget, and so to the
 * parent, past the button logic of Qt on purpose: no touch makes the key go down or checks it.
 */
void MPresetButton::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    if (isEnabled()) {
        postKeyRequest(this, kBeepRequest);
        m_longPressed = false;
        endTiming();
        m_timerId = startTimer(kLongPress);
        m_pressPoint = e->pos();
    }
    m_moved = false;
    QWidget::mousePressEvent(e); // NOLINT(bugprone-parent-virtual-call): meant
}

/**
 * Any move spoils the tap, so that a finger which sweeps over a row of presets changes no station.
 * A long press is meant as it is: it survives a finger that trembles.
 */
void MPresetButton::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const bool isFar = distance(e->x(), m_pressPoint.x()) > kLongPressSlop
        || distance(e->y(), m_pressPoint.y()) > kLongPressSlop;
    if (isFar)
        endTiming();
    m_moved = true;
    QWidget::mouseMoveEvent(e); // NOLINT(bugprone-parent-virtual-call): meant
}

/** A release that follows neither a move nor a long press is a click, enabled or not. */
void MPresetButton::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MPresetButton> guard(this);
    if (!m_longPressed && !m_moved) {
        emit btnClicked(m_buttonID);
        if (!guard)
            return;
    }
    endTiming();
    QWidget::mouseReleaseEvent(e); // NOLINT(bugprone-parent-virtual-call): meant
}

/** A long press. QAbstractButton sees every timer first, for its own. */
void MPresetButton::timerEvent(QTimerEvent *e)
{
    if (!e)
        return;
    const QPointer<MPresetButton> guard(this);
    QAbstractButton::timerEvent(e);
    if (!guard || e->timerId() != m_timerId)
        return;
    endTiming();
    m_longPressed = true;
    emit btnLongClicked(m_buttonID);
}

void MPresetButton::endTiming()
{
    if (m_timerId == 0)
        return;
    killTimer(m_timerId);
    m_timerId = 0;
}

bool MPresetButton::isHighlighted() const
{
    return isDown() || isChecked();
}

const QPixmap &MPresetButton::shownImage() const
{
    if (isEnabled())
        return isHighlighted() ? m_pressImage : m_normalImage;
    return m_disableImage.isNull() ? m_normalImage : m_disableImage;
}

const QColor &MPresetButton::shownTextColor(const TextColors &colors) const
{
    if (!isEnabled())
        return colors.disable;
    return isHighlighted() ? colors.press : colors.normal;
}

void MPresetButton::drawPicture(QPainter &painter) const
{
    const QPixmap &image = shownImage();
    if (!image.isNull())
        m_look->drawScaled(painter, centredTowardZero(m_imageSize, rect()), image);
}

void MPresetButton::drawIcon(QPainter &painter) const
{
    if (!isEnabled() || m_presetIcon.isNull())
        return;
    painter.drawPixmap(boundedPixel(m_presetIconPos.x()), boundedPixel(m_presetIconPos.y()),
                       m_presetIcon);
}

void MPresetButton::drawFirstLine(QPainter &painter) const
{
    if (m_displayText.isEmpty())
        return;
    painter.setPen(shownTextColor(m_textColors));
    m_firstLine->draw(painter, boundedOr(m_displayTextRect, rect()), Qt::AlignCenter,
                      m_displayText);
}

void MPresetButton::drawSecondLine(QPainter &painter) const
{
    if (m_displayText2.isEmpty())
        return;
    painter.setFont(applicationFont(m_fontSize2));
    painter.setPen(shownTextColor(m_textColors2));
    m_secondLine->draw(painter, boundedOr(m_displayTextRect2, rect()), Qt::AlignCenter,
                       m_displayText2);
}
