#include "splockbutton.h"

#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/kepttext.h"
#include "detail/keyrequest.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

using namespace panelkit;

/** A button that is up, without pictures and caption. */
SpLockButton::SpLockButton(QWidget *parent)
    : QWidget(parent), m_look(std::make_unique<ImageLook>()),
      m_caption(std::make_unique<KeptText>())
{
}

SpLockButton::~SpLockButton() = default;

/**
 * Where the picture of the down state comes from; AlphaMode by default. Stored only: the picture
 * stays the one that is there. Set it before normalImage and pressImage.
 */
void SpLockButton::setShowMode(const ShowMode &mode)
{
    m_showMode = mode;
}

/**
 * Where the picture of the disabled look comes from; Show_NormalImage by default. Works that
 * picture out from what is there now, as setDisableImage() does, and repaints. What was replaced
 * does not come back with Show_DisableImage.
 */
void SpLockButton::setDisableMode(const DisableMode &mode)
{
    m_disableMode = mode;
    setDisableImage(QPixmap(m_disableImage));
}

/**
 * The picture shown while up. Its size becomes that of the image rectangle and the minimum size of
 * the widget; AlphaMode makes the picture of the down state from it; then the button repaints. The
 * disabled picture stays. A null picture is stored and changes nothing else.
 */
void SpLockButton::setNormalImage(const QPixmap &image)
{
    m_normalImage = image;
    if (image.isNull())
        return;
    m_imageSize = image.size();
    setMinimumSize(m_imageSize);
    if (m_showMode == AlphaMode)
        setPressImageAlpha(m_imageAlpha, m_normalImage, m_pressImage);
    update();
}

/** The picture shown while down. Stored only, and ignored in AlphaMode, on purpose: it is made. */
void SpLockButton::setPressImage(const QPixmap &image)
{
    if (m_showMode == HighlightMode)
        m_pressImage = image;
}

/**
 * The picture of the disabled look, unless disableMode has another one: then the normal picture of
 * this moment, faded or not, is stored in its place. Repaints.
 */
void SpLockButton::setDisableImage(const QPixmap &image)
{
    m_disableImage = image;
    if (m_disableMode == Show_NormalImage)
        m_disableImage = m_normalImage;
    else if (m_disableMode == Show_NormalImageAlpha)
        setPressImageAlpha(m_disableAlpha, m_normalImage, m_disableImage);
    update();
}

/**
 * The alpha (0..255, 154 by default) that AlphaMode leaves of the normal picture while down. The
 * picture is made anew at once, but shows at the next paint. A value out of range leaves nothing.
 */
void SpLockButton::setImageAlpha(const int &alpha)
{
    m_imageAlpha = alpha;
    if (m_showMode == AlphaMode)
        setPressImageAlpha(m_imageAlpha, m_normalImage, m_pressImage);
}

/**
 * The alpha (0..255, 154 by default) that Show_NormalImageAlpha leaves of the normal picture. Works
 * the disabled picture out anew and repaints. A value out of range leaves nothing.
 */
void SpLockButton::setDisableAlpha(const int &alpha)
{
    m_disableAlpha = alpha;
    setDisableImage(QPixmap(m_disableImage));
}

/**
 * Disables the button in software: it looks disabled and keeps its state whatever touches it. Its
 * enabled state as a QWidget has no part in its look. Repaints.
 */
void SpLockButton::setDisableState(const bool &disabled)
{
    m_disableState = disabled;
    update();
}

/** Sets the latched state without a signal. Repaints. */
void SpLockButton::setIsDown(bool down)
{
    m_isDown = down;
    update();
}

/** The text that both signals carry; "SpLockButton_ID" by default. Stored only. */
void SpLockButton::setButtonID(const QString &id)
{
    m_buttonID = id;
}

/** The caption in the middle of the widget, neither shortened nor wrapped. Stored only. */
void SpLockButton::setDisplayText(const QString &text)
{
    m_displayText = text;
}

/** The colour of the caption while up; white by default. Stored only. */
void SpLockButton::setNormalTextColor(const QColor &color)
{
    m_normalTextColor = color;
}

/** The colour of the caption while down; red by default. Stored only. */
void SpLockButton::setPressTextColor(const QColor &color)
{
    m_pressTextColor = color;
}

/** The colour of the caption while disabled; grey (100, 100, 100) by default. Stored only. */
void SpLockButton::setDisableTextColor(const QColor &color)
{
    m_disableTextColor = color;
}

/** Sets the size of the widget's font in px; sizes below 1 are ignored. */
void SpLockButton::setFontSize(int px)
{
    if (px < 1)
        return;
    setFont(resized(font(), px));
}

/**
 * Makes `target` a copy of `source` whose alpha is multiplied by alpha / 255, within an area of the
 * size of the image rectangle, into which the source is scaled. An opaque source fades as any other
 * does. A null source makes a null target.
 */
void SpLockButton::setPressImageAlpha(int alpha, const QPixmap &source, QPixmap &target)
{
    target = QPixmap::fromImage(fadedImage(source, m_imageSize, alpha));
}

void SpLockButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawPicture(painter);
    drawCaption(painter);
}

/**
 * QWidget goes first, which leaves the event to the parent. Then a press asks for the click sound,
 * turns the button over and emits btnPressed, unless it is disabled in software.
 */
void SpLockButton::mousePressEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mousePressEvent(e);
    if (m_disableState)
        return;
    postKeyRequest(this, kBeepRequest);
    m_isDown = !m_isDown;
    update();
    const QPointer<SpLockButton> guard(this);
    emit btnPressed(m_buttonID);
    if (!guard && e)
        e->accept(); // there is no way to the parent any more
}

void SpLockButton::mouseMoveEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseMoveEvent(e);
}

/** A release, wherever it is, emits btnReleased and leaves the state as it is. */
void SpLockButton::mouseReleaseEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseReleaseEvent(e);
    if (m_disableState)
        return;
    const QPointer<SpLockButton> guard(this);
    emit btnReleased(m_buttonID);
    if (!guard && e)
        e->accept();
}

const QPixmap &SpLockButton::currentImage() const
{
    if (m_disableState)
        return m_disableImage;
    return m_isDown ? m_pressImage : m_normalImage;
}

QColor SpLockButton::captionColor() const
{
    if (m_disableState)
        return m_disableTextColor;
    return m_isDown ? m_pressTextColor : m_normalTextColor;
}

void SpLockButton::drawPicture(QPainter &painter) const
{
    const QPixmap &image = currentImage();
    if (!image.isNull())
        m_look->drawScaled(painter, centredTowardZero(m_imageSize, rect()), image);
}

void SpLockButton::drawCaption(QPainter &painter) const
{
    if (m_displayText.isEmpty())
        return;
    painter.setPen(captionColor());
    m_caption->draw(painter, QRectF(rect()), Qt::AlignCenter, m_displayText);
}
