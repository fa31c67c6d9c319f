#include "spiconbutton.h"

#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"
#include "detail/imagelook.h"
#include "detail/kepttext.h"
#include "detail/keyrequest.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>

#include <optional>

using namespace panelkit;

namespace
{

constexpr int kClickSlop = 50; // px; a release this far from the press on either axis is no click

} // namespace

// What stands in the image rectangle: a picture, and the alpha of the veil over it if it has one.
struct SpIconButton::Look {
    const QPixmap *picture = nullptr;
    std::optional<int> veil = std::nullopt;
};

/**
 * A button without pictures and caption: it paints nothing until it is given some. Size policy,
 * font, attributes and window flags are those of a plain QWidget.
 */
SpIconButton::SpIconButton(QWidget *parent)
    : QWidget(parent), m_look(std::make_unique<ImageLook>()),
      m_caption(std::make_unique<KeptText>())
{
}

SpIconButton::~SpIconButton() = default;

/**
 * How the pressed and focused looks are made; HighlightMode by default. Stored only: it shows at
 * the next paint. Set it before pressImage, which AlphaMode ignores.
 */
void SpIconButton::setShowMode(const ShowMode &mode)
{
    m_showMode = mode;
}

/**
 * How the disabled look is made; Show_NormalImageAlpha by default. Repaints. A value that is no
 * DisableMode leaves the disabled button without a picture.
 */
void SpIconButton::setDisableMode(const DisableMode &mode)
{
    m_disableMode = mode;
    setDisableImage(m_disableImage);
}

/**
 * The picture shown normally. Its size becomes the size of the image rectangle, into which every
 * other picture is stretched, and the minimum size of the widget; then the button repaints. A null
 * picture is stored, but size and screen stay as they are until something else repaints.
 */
void SpIconButton::setNormalImage(const QPixmap &image)
{
    m_normalImage = image;
    if (image.isNull())
        return;
    m_imageSize = image.size();
    setMinimumSize(m_imageSize);
    update();
}

/**
 * The picture shown while pressed, in HighlightMode; without it the normal picture stays. Stored
 * only. Ignored in AlphaMode, which makes the pressed look from the normal picture.
 */
void SpIconButton::setPressImage(const QPixmap &image)
{
    if (m_showMode == HighlightMode)
        m_pressImage = image;
}

/** The picture of the disabled look in Show_DisableImage. Repaints. */
void SpIconButton::setDisableImage(const QPixmap &image)
{
    m_disableImage = image;
    update();
}

/**
 * The picture shown while isFocus is set and the button is not pressed, in HighlightMode; without
 * it the normal picture stays. Stored only.
 */
void SpIconButton::setFocusPixmap(const QPixmap &pixmap)
{
    m_focusPixmap = pixmap;
}

/**
 * The alpha (0..255, 154 by default) of the black veil over the pressed and focused looks in
 * AlphaMode. Stored only. A value out of range leaves the picture without veil.
 */
void SpIconButton::setImageAlpha(const int &alpha)
{
    m_imageAlpha = alpha;
}

/**
 * The alpha (0..255, 154 by default) of the black veil over the disabled look in
 * Show_NormalImageAlpha. Stored only. A value out of range leaves the picture without veil.
 */
void SpIconButton::setDisableAlpha(const int &alpha)
{
    m_disableAlpha = alpha;
}

/**
 * Disables the button in software: it looks disabled and ignores touches, but its enabled state as
 * a QWidget stays, so that mouse events still arrive here and are not given to the parent.
 * Repaints.
 */
void SpIconButton::setDisableState(const bool &disabled)
{
    m_disableState = disabled;
    update();
}

/**
 * Sets the focused look. Repaints. The name is that of QWidget::setFocus() on purpose, whose
 * overloads it hides: the look is independent of the keyboard focus.
 */
void SpIconButton::setFocus(const bool &focused)
{
    m_isFocus = focused;
    update();
}

/**
 * Switches long presses on; off by default. Stored only. Switch it on before timerInterval is set,
 * which is ignored without it; the order of the properties does so by itself.
 */
void SpIconButton::setSupportLongPress(bool supported)
{
    m_supportLongPress = supported;
}

/** The delay to the first long press in ms (1000 by default), or -1 without supportLongPress. */
int SpIconButton::timerInterval() const
{
    return m_supportLongPress ? m_timerInterval : -1;
}

/**
 * The delay in ms from the press to the first btnLongPress. Stored only, and ignored while
 * supportLongPress is off. A negative delay never ends: no long press comes.
 */
void SpIconButton::setTimerInterval(const int &interval)
{
    if (m_supportLongPress)
        m_timerInterval = interval;
}

/**
 * The interval in ms between further long presses of one touch: negative (-1 by default) for none,
 * 0 to go on with timerInterval. Stored only.
 */
void SpIconButton::setTimerInt2(int interval)
{
    m_timerInterval2 = interval;
}

/** The text that every signal carries; "SpIconButton_ID" by default. Stored only. */
void SpIconButton::setButtonID(const QString &id)
{
    m_buttonID = id;
}

/** The caption. It is neither shortened nor wrapped, and clipped to its rectangle. Repaints. */
void SpIconButton::setDisplayText(const QString &text)
{
    m_displayText = text;
    update();
}

/** The colour of the caption of an enabled button; white by default. Repaints. */
void SpIconButton::setNormalTextColor(const QColor &color)
{
    m_normalTextColor = color;
    update();
}

/** The colour of the caption while pressed; red by default. Stored only. */
void SpIconButton::setPressTextColor(const QColor &color)
{
    m_pressTextColor = color;
}

/** The colour of the caption while disabled; white of alpha 154 by default. Stored only. */
void SpIconButton::setDisableTextColor(const QColor &color)
{
    m_disableTextColor = color;
}

/** The colour of the caption while isFocus is set; white by default. Stored only. */
void SpIconButton::setFocusTextColor(const QColor &color)
{
    m_focusTextColor = color;
}

/** The distance in px from the top to the caption; counts only with a textHeight. Stored only. */
void SpIconButton::setTextTopMargin(int margin)
{
    m_textTopMargin = margin;
}

/** The height of the caption in px; 0 (the default) or less: the whole height. Stored only. */
void SpIconButton::setTextHeight(int height)
{
    m_textHeight = height;
}

/** The distance in px from the left to the caption; counts only with a textWidth. Stored only. */
void SpIconButton::setTextLeftMargin(int margin)
{
    m_textLeftMargin = margin;
}

/** The width of the caption in px; 0 (the default) or less: the whole width. Stored only. */
void SpIconButton::setTextWidth(int width)
{
    m_textWidth = width;
}

/** How the caption stands in its rectangle; Qt::AlignCenter by default. Repaints. */
void SpIconButton::setTextAlign(Qt::Alignment alignment)
{
    m_textAlign = alignment;
    update();
}

/** Whether a press asks the application for a click sound; on by default. Stored only. */
void SpIconButton::setIsBeep(bool beep)
{
    m_isBeep = beep;
}

/**
 * The file of the pressed picture. It is read when the event loop runs again, not in this call, and
 * then replaces pressImage in either ShowMode without a repaint; a file that cannot be read leaves
 * no pressed picture. A path of one character is stored and never read: forms use it as "none".
 */
void SpIconButton::setPressImgPath(QString path)
{
    m_pressImgPath = path;
    if (path.size() > 1)
        postKeyRequest(this, kPressIconRequest);
}

/** A new button without a parent, for loaders that only know this name. */
SpIconButton *SpIconButton::GetInstance()
{
    return new SpIconButton(nullptr);
}

/** Deletes a button; a null pointer is fine. */
void SpIconButton::ReleaseInstance(SpIconButton *p)
{
    delete p;
}

/** Sets the pressed look, without signals; this is how a latched button is let go. Repaints. */
void SpIconButton::setIsDown(bool down)
{
    m_isDown = down;
    update();
}

/** Makes the button latch: it keeps its pressed look after the release. Stored only. */
void SpIconButton::setIsLock(bool lock)
{
    m_isLock = lock;
}

/**
 * Starts the wait for a long press, anew from timerInterval, if supportLongPress is on; otherwise,
 * or with start false, ends it. The timer is one of Qt's coarse ones: it may be 5 % early or late
 * in exchange for fewer wake-ups of the processor.
 */
void SpIconButton::setStartTimer(bool start)
{
    if (m_supportLongPress && start && m_timerInterval >= 0) {
        if (!m_longPressTimer) {
            m_longPressTimer = new QTimer(this);
            connect(m_longPressTimer, SIGNAL(timeout()), this, SLOT(longPressSlot()));
        }
        m_longPressTimer->setInterval(m_timerInterval);
        m_longPressTimer->start();
    } else if (m_longPressTimer) {
        m_longPressTimer->stop();
    }
}

/** The opacity 0..1 that a veil of this alpha (0..255) leaves; 1 for an alpha out of range. */
float SpIconButton::getAlphaOpacity(int alpha)
{
    if (alpha < 0 || alpha > 255)
        return 1.0F;
    return float(255 - alpha) / 255.0F;
}

/** Sets the size of the widget's font in px; sizes below 1 are ignored. */
void SpIconButton::setFontSize(int px)
{
    if (px < 1)
        return;
    setFont(resized(font(), px));
}

void SpIconButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawPicture(painter);
    drawCaption(painter);
}

/**
 * A press asks for the click sound, shows the pressed look, emits btnPressed and starts the wait
 * for a long press. A button disabled in software only remembers the point. The event then goes on
 * to QWidget, which hands it to the parent.
 */
void SpIconButton::mousePressEvent(QMouseEvent *e)
{
    if (!m_disableState) {
        if (m_isBeep)
            postKeyRequest(this, kBeepRequest);
        m_isDown = true;
        update();
        const QPointer<SpIconButton> guard(this);
        emit btnPressed(m_buttonID);
        if (!guard)
            return;
        setStartTimer(true);
    }
    if (!e)
        return;
    m_pressPos = e->pos();
    QWidget::mousePressEvent(e);
}

/** Moving never ends a press: where the finger is lifted decides. */
void SpIconButton::mouseMoveEvent(QMouseEvent *e)
{
    QWidget::mouseMoveEvent(e);
}

/**
 * A release near the press emits btnClicked, or btnLongRelease once a long press has fired; then
 * any release emits btnReleased. A button disabled in software, perhaps during this very touch, is
 * set back to rest without a signal and without a repaint. The event then goes on to QWidget.
 */
void SpIconButton::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointer<SpIconButton> guard(this);
    if (m_disableState) {
        m_isDown = false;
        m_longPressed = false;
        setStartTimer(false);
    } else {
        if (!m_isLock)
            m_isDown = false;
        update();
        if (e && isNearPress(e->pos())) {
            if (m_longPressed)
                emit btnLongRelease(m_buttonID);
            else
                emit btnClicked(m_buttonID);
            if (!guard)
                return;
        }
        m_longPressed = false;
        setStartTimer(false);
        emit btnReleased(m_buttonID);
    }
    if (guard && e)
        QWidget::mouseReleaseEvent(e);
}

/**
 * Loads the pressed picture when the button has asked itself to. Every key press ends here, a
 * request for the click sound too: only event filters of the application see it, no parent does.
 */
void SpIconButton::keyPressEvent(QKeyEvent *e)
{
    if (isKeyRequest(e, kPressIconRequest))
        m_pressImage = pixmapFromFile(m_pressImgPath);
}

/** The first long press of a touch switches to the interval of the further ones, or to none. */
void SpIconButton::longPressSlot()
{
    if (!m_longPressed && m_longPressTimer) {
        if (m_timerInterval2 >= 1 && m_timerInterval2 != m_timerInterval)
            m_longPressTimer->setInterval(m_timerInterval2);
        else if (m_timerInterval2 < 0)
            m_longPressTimer->stop();
    }
    m_longPressed = true;
    emit btnLongPress(m_buttonID);
}

bool SpIconButton::isDrawnEnabled() const
{
    return !m_disableState && isEnabled();
}

bool SpIconButton::isNearPress(const QPoint &pos) const
{
    return distance(pos.x(), m_pressPos.x()) < kClickSlop
        && distance(pos.y(), m_pressPos.y()) < kClickSlop;
}

QRect SpIconButton::imageRect() const
{
    return centredTowardZero(m_imageSize, rect());
}

// A margin counts only together with the size on its axis; without one the caption spans the
// widget, so that a caption needs no numbers at all to be centred.
QRect SpIconButton::textRect() const
{
    const bool hasWidth = m_textWidth > 0;
    const bool hasHeight = m_textHeight > 0;
    return boundedRect(hasWidth ? m_textLeftMargin : 0, hasHeight ? m_textTopMargin : 0,
                       hasWidth ? m_textWidth : width(), hasHeight ? m_textHeight : height());
}

// Being pressed goes before having the focus, and a picture that is missing falls back to the
// normal one. In AlphaMode both look alike.
SpIconButton::Look SpIconButton::enabledLook() const
{
    switch (m_showMode) {
    case HighlightMode:
        if (m_isDown && !m_pressImage.isNull())
            return {&m_pressImage};
        if (!m_isDown && m_isFocus && !m_focusPixmap.isNull())
            return {&m_focusPixmap};
        return {&m_normalImage};
    case AlphaMode:
        if (m_isDown || m_isFocus)
            return {&m_normalImage, m_imageAlpha};
        return {&m_normalImage};
    }
    return {};
}

SpIconButton::Look SpIconButton::disabledLook() const
{
    switch (m_disableMode) {
    case Show_NormalImage:
        return {&m_normalImage};
    case Show_DisableImage:
        return {&m_disableImage};
    case Show_NormalImageAlpha:
        return {&m_normalImage, m_disableAlpha};
    }
    return {};
}

QColor SpIconButton::captionColor() const
{
    if (!isDrawnEnabled())
        return m_disableTextColor;
    if (m_isDown)
        return m_pressTextColor;
    return m_isFocus ? m_focusTextColor : m_normalTextColor;
}

void SpIconButton::drawPicture(QPainter &painter) const
{
    const Look look = isDrawnEnabled() ? enabledLook() : disabledLook();
    if (!look.picture || look.picture->isNull())
        return;
    if (look.veil)
        m_look->drawVeiled(painter, imageRect(), *look.picture, *look.veil);
    else
        m_look->drawScaled(painter, imageRect(), *look.picture);
}

void SpIconButton::drawCaption(QPainter &painter) const
{
    if (m_displayText.isEmpty())
        return;
    painter.setPen(captionColor());
    m_caption->draw(painter, textRect(), int(m_textAlign), m_displayText);
}
