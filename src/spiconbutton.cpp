// SPDX-License-Identifier: Apache-2.0
#include "spiconbutton.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"
#include "detail/imagelook.h"
#include "detail/keyrequest.h"
#include "detail/textcache.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QTimer>

#include <optional>

using namespace panelkit;

namespace
{

constexpr int kClickSlop = 50; // px; a release this far from the press on either axis is no click

} // namespace

class Q_DECL_HIDDEN SpIconButton::Private
{
public:
    explicit Private(SpIconButton *widget) : q(widget) { }

    struct Look;

    bool isDrawnEnabled() const;
    bool isNearPress(const QPoint &pos) const;
    QRect imageRect() const;
    QRect textRect() const;
    Look enabledLook() const;
    Look disabledLook() const;
    QColor captionColor() const;
    void drawPicture(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    SpIconButton *const q;
    QPixmap normalImage;
    QPixmap pressImage;
    QPixmap disableImage;
    QPixmap focusPixmap;
    QString pressImgPath;
    ShowMode showMode = HighlightMode;
    DisableMode disableMode = Show_NormalImageAlpha;
    QSize imageSize{32, 32};
    int imageAlpha = 154; // 0..255
    int disableAlpha = 154; // 0..255
    int timerInterval = 1000; // ms
    int timerInterval2 = -1; // ms, negative: no repeat
    bool isDown = false;
    bool disableState = false;
    bool isFocus = false;
    bool isLock = false;
    bool supportLongPress = false;
    bool longPressed = false;
    QString buttonID = QStringLiteral("SpIconButton_ID");
    QPoint pressPos;
    QString displayText;
    QColor normalTextColor{255, 255, 255, 255};
    QColor pressTextColor{255, 0, 0, 255};
    QColor disableTextColor{255, 255, 255, 154};
    QColor focusTextColor{Qt::white};
    QTimer *longPressTimer = nullptr;
    int textTopMargin = 0; // px
    int textHeight = 0; // px, 0: the full height
    int textLeftMargin = 0; // px
    int textWidth = 0; // px, 0: the full width
    Qt::Alignment textAlign = Qt::AlignCenter;
    bool isBeep = true;

    mutable ImageLook imageLook;
    mutable TextCache caption;
};

// What stands in the image rectangle: a picture, and the alpha of the veil over it if it has one.
struct SpIconButton::Private::Look {
    const QPixmap *picture = nullptr;
    std::optional<int> veil = std::nullopt;
};

/**
 * A button without pictures and caption: it paints nothing until it is given some. Size policy,
 * font, attributes and window flags are those of a plain QWidget.
 */
SpIconButton::SpIconButton(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

SpIconButton::~SpIconButton() = default;

SpIconButton::ShowMode SpIconButton::showMode() const { return d->showMode; }

/**
 * How the pressed and focused looks are made; HighlightMode by default. Stored only: it shows at
 * the next paint. Set it before pressImage, which AlphaMode ignores.
 */
void SpIconButton::setShowMode(const ShowMode &mode) { d->showMode = mode; }

SpIconButton::DisableMode SpIconButton::disableMode() const { return d->disableMode; }

/**
 * How the disabled look is made; Show_NormalImageAlpha by default. Repaints. A value that is no
 * DisableMode leaves the disabled button without a picture.
 */
void SpIconButton::setDisableMode(const DisableMode &mode)
{
    d->disableMode = mode;
    setDisableImage(d->disableImage);
}

QPixmap SpIconButton::normalImage() const { return d->normalImage; }

/**
 * The picture shown normally. Its size becomes the size of the image rectangle, into which every
 * other picture is stretched, and the minimum size of the widget; then the button repaints. A null
 * picture is stored, but size and screen stay as they are until something else repaints.
 */
void SpIconButton::setNormalImage(const QPixmap &image)
{
    d->normalImage = image;
    if (image.isNull())
        return;
    d->imageSize = image.size();
    setMinimumSize(d->imageSize);
    update();
}

QPixmap SpIconButton::pressImage() const { return d->pressImage; }

/**
 * The picture shown while pressed, in HighlightMode; without it the normal picture stays. Stored
 * only. Ignored in AlphaMode, which makes the pressed look from the normal picture.
 */
void SpIconButton::setPressImage(const QPixmap &image)
{
    if (d->showMode == HighlightMode)
        d->pressImage = image;
}

QPixmap SpIconButton::disableImage() const { return d->disableImage; }

/** The picture of the disabled look in Show_DisableImage. Repaints. */
void SpIconButton::setDisableImage(const QPixmap &image)
{
    d->disableImage = image;
    update();
}

QPixmap SpIconButton::focusPixmap() const { return d->focusPixmap; }

/**
 * The picture shown while isFocus is set and the button is not pressed, in HighlightMode; without
 * it the normal picture stays. Stored only.
 */
void SpIconButton::setFocusPixmap(const QPixmap &pixmap) { d->focusPixmap = pixmap; }

int SpIconButton::imageAlpha() const { return d->imageAlpha; }

/**
 * The alpha (0..255, 154 by default) of the black veil over the pressed and focused looks in
 * AlphaMode. Stored only. A value out of range leaves the picture without veil.
 */
void SpIconButton::setImageAlpha(const int &alpha) { d->imageAlpha = alpha; }

int SpIconButton::disableAlpha() const { return d->disableAlpha; }

/**
 * The alpha (0..255, 154 by default) of the black veil over the disabled look in
 * Show_NormalImageAlpha. Stored only. A value out of range leaves the picture without veil.
 */
void SpIconButton::setDisableAlpha(const int &alpha) { d->disableAlpha = alpha; }

bool SpIconButton::disableState() const { return d->disableState; }

/**
 * Disables the button in software: it looks disabled and ignores touches, but its enabled state as
 * a QWidget stays, so that mouse events still arrive here and are not given to the parent.
 * Repaints.
 */
void SpIconButton::setDisableState(const bool &disabled)
{
    d->disableState = disabled;
    update();
}

bool SpIconButton::isFocus() const { return d->isFocus; }

/**
 * Sets the focused look. Repaints. It hides the overloads of QWidget::setFocus() (kept behaviour);
 * the look is independent of the keyboard focus.
 */
void SpIconButton::setFocus(const bool &focused)
{
    d->isFocus = focused;
    update();
}

bool SpIconButton::supportLongPress() const { return d->supportLongPress; }

/**
 * Switches long presses on; off by default. Stored only. Switch it on before timerInterval is set,
 * which is ignored without it; the order of the properties does so by itself.
 */
void SpIconButton::setSupportLongPress(bool supported) { d->supportLongPress = supported; }

/** The delay to the first long press in ms (1000 by default), or -1 without supportLongPress. */
int SpIconButton::timerInterval() const { return d->supportLongPress ? d->timerInterval : -1; }

/**
 * The delay in ms from the press to the first btnLongPress. Stored only, and ignored while
 * supportLongPress is off. A negative delay never ends: no long press comes.
 */
void SpIconButton::setTimerInterval(const int &interval)
{
    if (d->supportLongPress)
        d->timerInterval = interval;
}

int SpIconButton::getTimerInt2() const { return d->timerInterval2; }

/**
 * The interval in ms between further long presses of one touch: negative (-1 by default) for none,
 * 0 to go on with timerInterval. Stored only.
 */
void SpIconButton::setTimerInt2(int interval) { d->timerInterval2 = interval; }

QString SpIconButton::buttonID() const { return d->buttonID; }

/** The text that every signal carries; "SpIconButton_ID" by default. Stored only. */
void SpIconButton::setButtonID(const QString &id) { d->buttonID = id; }

QString SpIconButton::displayText() const { return d->displayText; }

/** The caption. It is neither shortened nor wrapped, and clipped to its rectangle. Repaints. */
void SpIconButton::setDisplayText(const QString &text)
{
    d->displayText = text;
    update();
}

QColor SpIconButton::normalTextColor() const { return d->normalTextColor; }

/** The colour of the caption of an enabled button; white by default. Repaints. */
void SpIconButton::setNormalTextColor(const QColor &color)
{
    d->normalTextColor = color;
    update();
}

QColor SpIconButton::pressTextColor() const { return d->pressTextColor; }

/** The colour of the caption while pressed; red by default. Stored only. */
void SpIconButton::setPressTextColor(const QColor &color) { d->pressTextColor = color; }

QColor SpIconButton::disableTextColor() const { return d->disableTextColor; }

/** The colour of the caption while disabled; white of alpha 154 by default. Stored only. */
void SpIconButton::setDisableTextColor(const QColor &color) { d->disableTextColor = color; }

QColor SpIconButton::focusTextColor() const { return d->focusTextColor; }

/** The colour of the caption while isFocus is set; white by default. Stored only. */
void SpIconButton::setFocusTextColor(const QColor &color) { d->focusTextColor = color; }

int SpIconButton::textTopMargin() const { return d->textTopMargin; }

/** The distance in px from the top to the caption; counts only with a textHeight. Stored only. */
void SpIconButton::setTextTopMargin(int margin) { d->textTopMargin = margin; }

int SpIconButton::textHeight() const { return d->textHeight; }

/** The height of the caption in px; 0 (the default) or less: the whole height. Stored only. */
void SpIconButton::setTextHeight(int height) { d->textHeight = height; }

int SpIconButton::textLeftMargin() const { return d->textLeftMargin; }

/** The distance in px from the left to the caption; counts only with a textWidth. Stored only. */
void SpIconButton::setTextLeftMargin(int margin) { d->textLeftMargin = margin; }

int SpIconButton::textWidth() const { return d->textWidth; }

/** The width of the caption in px; 0 (the default) or less: the whole width. Stored only. */
void SpIconButton::setTextWidth(int width) { d->textWidth = width; }

Qt::Alignment SpIconButton::textAlign() const { return d->textAlign; }

/** How the caption stands in its rectangle; Qt::AlignCenter by default. Repaints. */
void SpIconButton::setTextAlign(Qt::Alignment alignment)
{
    d->textAlign = alignment;
    update();
}

bool SpIconButton::isBeep() { return d->isBeep; }

/** Whether a press asks the application for a click sound; on by default. Stored only. */
void SpIconButton::setIsBeep(bool beep) { d->isBeep = beep; }

QString SpIconButton::pressImgPath() const { return d->pressImgPath; }

/**
 * The file of the pressed picture. It is read when the event loop runs again, not in this call, and
 * then replaces pressImage in either ShowMode without a repaint; a file that cannot be read leaves
 * no pressed picture. A path of one character is stored and never read (kept behaviour).
 */
void SpIconButton::setPressImgPath(QString path)
{
    d->pressImgPath = path;
    if (path.size() > 1)
        postKeyRequest(this, kPressIconRequest);
}

/** A new button without a parent, for loaders that only know this name. */
SpIconButton *SpIconButton::GetInstance() { return new SpIconButton(nullptr); }

/** Deletes a button; a null pointer is fine. */
void SpIconButton::ReleaseInstance(SpIconButton *p) { delete p; }

bool SpIconButton::isDown() const { return d->isDown; }

/** Sets the pressed look, without signals; this is how a latched button is let go. Repaints. */
void SpIconButton::setIsDown(bool down)
{
    d->isDown = down;
    update();
}

bool SpIconButton::isLock() const { return d->isLock; }

/** Makes the button latch: it keeps its pressed look after the release. Stored only. */
void SpIconButton::setIsLock(bool lock) { d->isLock = lock; }

/**
 * Starts the wait for a long press, anew from timerInterval, if supportLongPress is on; otherwise,
 * or with start false, ends it. The timer is one of Qt's coarse ones: it may be 5 % early or late
 * in exchange for fewer wake-ups of the processor.
 */
void SpIconButton::setStartTimer(bool start)
{
    if (d->supportLongPress && start && d->timerInterval >= 0) {
        if (!d->longPressTimer) {
            d->longPressTimer = new QTimer(this);
            connect(d->longPressTimer, SIGNAL(timeout()), this, SLOT(longPressSlot()));
        }
        d->longPressTimer->setInterval(d->timerInterval);
        d->longPressTimer->start();
    } else if (d->longPressTimer) {
        d->longPressTimer->stop();
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
    d->drawPicture(painter);
    d->drawCaption(painter);
}

/**
 * A press asks for the click sound, shows the pressed look, emits btnPressed and starts the wait
 * for a long press. A button disabled in software only remembers the point. The event then goes on
 * to QWidget, which hands it to the parent.
 */
void SpIconButton::mousePressEvent(QMouseEvent *e)
{
    if (!d->disableState) {
        if (d->isBeep)
            postKeyRequest(this, kBeepRequest);
        d->isDown = true;
        update();
        const QPointer<SpIconButton> guard(this);
        emit btnPressed(d->buttonID);
        if (!guard)
            return;
        setStartTimer(true);
    }
    d->pressPos = e->pos();
    QWidget::mousePressEvent(e);
}

/** Moving never ends a press: where the finger is lifted decides. */
void SpIconButton::mouseMoveEvent(QMouseEvent *e) { QWidget::mouseMoveEvent(e); }

/**
 * A release near the press emits btnClicked, or btnLongRelease once a long press has fired; then
 * any release emits btnReleased. A button disabled in software, perhaps during this very touch, is
 * set back to rest without a signal and without a repaint. The event then goes on to QWidget.
 */
void SpIconButton::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointer<SpIconButton> guard(this);
    if (d->disableState) {
        d->isDown = false;
        d->longPressed = false;
        setStartTimer(false);
    } else {
        if (!d->isLock)
            d->isDown = false;
        update();
        if (e && d->isNearPress(e->pos())) {
            if (d->longPressed)
                emit btnLongRelease(d->buttonID);
            else
                emit btnClicked(d->buttonID);
            if (!guard)
                return;
        }
        d->longPressed = false;
        setStartTimer(false);
        emit btnReleased(d->buttonID);
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
        d->pressImage = pixmapFromFile(d->pressImgPath);
}

/** The first long press of a touch switches to the interval of the further ones, or to none. */
void SpIconButton::longPressSlot()
{
    if (!d->longPressed && d->longPressTimer) {
        if (d->timerInterval2 >= 1 && d->timerInterval2 != d->timerInterval)
            d->longPressTimer->setInterval(d->timerInterval2);
        else if (d->timerInterval2 < 0)
            d->longPressTimer->stop();
    }
    d->longPressed = true;
    emit btnLongPress(d->buttonID);
}

bool SpIconButton::Private::isDrawnEnabled() const { return !disableState && q->isEnabled(); }

bool SpIconButton::Private::isNearPress(const QPoint &pos) const
{
    return distance(pos.x(), pressPos.x()) < kClickSlop
        && distance(pos.y(), pressPos.y()) < kClickSlop;
}

QRect SpIconButton::Private::imageRect() const { return centredTowardZero(imageSize, q->rect()); }

// A margin counts only together with the size on its axis; without one the caption spans the
// widget, so that a caption needs no numbers at all to be centred.
QRect SpIconButton::Private::textRect() const
{
    const bool hasWidth = textWidth > 0;
    const bool hasHeight = textHeight > 0;
    return boundedRect(hasWidth ? textLeftMargin : 0, hasHeight ? textTopMargin : 0,
                       hasWidth ? textWidth : q->width(), hasHeight ? textHeight : q->height());
}

// Being pressed goes before having the focus, and a picture that is missing falls back to the
// normal one. In AlphaMode both look alike.
SpIconButton::Private::Look SpIconButton::Private::enabledLook() const
{
    switch (showMode) {
    case HighlightMode:
        if (isDown && !pressImage.isNull())
            return {&pressImage};
        if (!isDown && isFocus && !focusPixmap.isNull())
            return {&focusPixmap};
        return {&normalImage};
    case AlphaMode:
        if (isDown || isFocus)
            return {&normalImage, imageAlpha};
        return {&normalImage};
    }
    return {};
}

SpIconButton::Private::Look SpIconButton::Private::disabledLook() const
{
    switch (disableMode) {
    case Show_NormalImage:
        return {&normalImage};
    case Show_DisableImage:
        return {&disableImage};
    case Show_NormalImageAlpha:
        return {&normalImage, disableAlpha};
    }
    return {};
}

QColor SpIconButton::Private::captionColor() const
{
    if (!isDrawnEnabled())
        return disableTextColor;
    if (isDown)
        return pressTextColor;
    return isFocus ? focusTextColor : normalTextColor;
}

void SpIconButton::Private::drawPicture(QPainter &painter) const
{
    const Look look = isDrawnEnabled() ? enabledLook() : disabledLook();
    if (!look.picture || look.picture->isNull())
        return;
    if (look.veil)
        imageLook.drawVeiled(painter, imageRect(), *look.picture, *look.veil);
    else
        imageLook.drawScaled(painter, imageRect(), *look.picture);
}

void SpIconButton::Private::drawCaption(QPainter &painter) const
{
    if (displayText.isEmpty())
        return;
    painter.setPen(captionColor());
    caption.draw(painter, textRect(), int(textAlign), displayText);
}
