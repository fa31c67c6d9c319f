// SPDX-License-Identifier: Apache-2.0
#include "splockbutton.h"

#include "detail/accessible.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/keyrequest.h"
#include "detail/textcache.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSize>

using namespace panelkit;

class Q_DECL_HIDDEN SpLockButton::Private
{
public:
    explicit Private(SpLockButton *widget) : q(widget) { }

    const QPixmap &currentImage() const;
    QColor captionColor() const;
    void drawPicture(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    SpLockButton *const q;
    QPixmap normalImage;
    QPixmap pressImage;
    QPixmap disableImage;
    ShowMode showMode = AlphaMode;
    DisableMode disableMode = Show_NormalImage;
    QSize imageSize{32, 32}; // px, of the image rectangle
    int imageAlpha = 154; // 0..255
    int disableAlpha = 154; // 0..255
    bool isDown = false;
    bool disableState = false;
    QString buttonID = QStringLiteral("SpLockButton_ID");
    QString displayText;
    QColor normalTextColor{255, 255, 255, 255};
    QColor pressTextColor{255, 0, 0, 255};
    QColor disableTextColor{100, 100, 100, 255};

    mutable ImageLook look;
    mutable TextCache caption;
};

/** A button that is up, without pictures and caption. */
SpLockButton::SpLockButton(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

SpLockButton::~SpLockButton() = default;

SpLockButton::ShowMode SpLockButton::showMode() const { return d->showMode; }

/**
 * Where the picture of the down state comes from; AlphaMode by default. Stored only: the picture
 * stays the one that is there. Set it before normalImage and pressImage.
 */
void SpLockButton::setShowMode(const ShowMode &mode) { d->showMode = mode; }

SpLockButton::DisableMode SpLockButton::disableMode() const { return d->disableMode; }

/**
 * Where the picture of the disabled look comes from; Show_NormalImage by default. Works that
 * picture out from what is there now, as setDisableImage() does, and repaints. What was replaced
 * does not come back with Show_DisableImage.
 */
void SpLockButton::setDisableMode(const DisableMode &mode)
{
    d->disableMode = mode;
    setDisableImage(QPixmap(d->disableImage));
}

QPixmap SpLockButton::normalImage() const { return d->normalImage; }

/**
 * The picture shown while up. Its size becomes that of the image rectangle and the minimum size of
 * the widget; AlphaMode makes the picture of the down state from it; then the button repaints. The
 * disabled picture stays. A null picture is stored and changes nothing else.
 */
void SpLockButton::setNormalImage(const QPixmap &image)
{
    d->normalImage = image;
    if (image.isNull())
        return;
    d->imageSize = image.size();
    setMinimumSize(d->imageSize);
    if (d->showMode == AlphaMode)
        setPressImageAlpha(d->imageAlpha, d->normalImage, d->pressImage);
    update();
}

QPixmap SpLockButton::pressImage() const { return d->pressImage; }

/** The picture shown while down. Stored only, and ignored in AlphaMode, which makes it. */
void SpLockButton::setPressImage(const QPixmap &image)
{
    if (d->showMode == HighlightMode)
        d->pressImage = image;
}

QPixmap SpLockButton::disableImage() const { return d->disableImage; }

/**
 * The picture of the disabled look, unless disableMode has another one: then the normal picture of
 * this moment, faded or not, is stored in its place. Repaints.
 */
void SpLockButton::setDisableImage(const QPixmap &image)
{
    d->disableImage = image;
    if (d->disableMode == Show_NormalImage)
        d->disableImage = d->normalImage;
    else if (d->disableMode == Show_NormalImageAlpha)
        setPressImageAlpha(d->disableAlpha, d->normalImage, d->disableImage);
    update();
}

int SpLockButton::imageAlpha() const { return d->imageAlpha; }

/**
 * The alpha (0..255, 154 by default) that AlphaMode leaves of the normal picture while down. The
 * picture is made anew at once, but shows at the next paint. A value out of range leaves nothing.
 */
void SpLockButton::setImageAlpha(const int &alpha)
{
    d->imageAlpha = alpha;
    if (d->showMode == AlphaMode)
        setPressImageAlpha(d->imageAlpha, d->normalImage, d->pressImage);
}

int SpLockButton::disableAlpha() const { return d->disableAlpha; }

/**
 * The alpha (0..255, 154 by default) that Show_NormalImageAlpha leaves of the normal picture. Works
 * the disabled picture out anew and repaints. A value out of range leaves nothing.
 */
void SpLockButton::setDisableAlpha(const int &alpha)
{
    d->disableAlpha = alpha;
    setDisableImage(QPixmap(d->disableImage));
}

bool SpLockButton::disableState() const { return d->disableState; }

/**
 * Disables the button in software: it looks disabled and keeps its state whatever touches it. Its
 * enabled state as a QWidget has no part in its look. Repaints.
 */
void SpLockButton::setDisableState(const bool &disabled)
{
    d->disableState = disabled;
    update();
}

bool SpLockButton::isDown() const { return d->isDown; }

/** Sets the latched state without a signal. Repaints. */
void SpLockButton::setIsDown(bool down)
{
    d->isDown = down;
    update();
}

QString SpLockButton::buttonID() const { return d->buttonID; }

/** The text that both signals carry; "SpLockButton_ID" by default. Stored only. */
void SpLockButton::setButtonID(const QString &id) { d->buttonID = id; }

QString SpLockButton::displayText() const { return d->displayText; }

/** The caption in the middle of the widget, neither shortened nor wrapped. Stored only. */
void SpLockButton::setDisplayText(const QString &text) { d->displayText = text; }

QColor SpLockButton::normalTextColor() const { return d->normalTextColor; }

/** The colour of the caption while up; white by default. Stored only. */
void SpLockButton::setNormalTextColor(const QColor &color) { d->normalTextColor = color; }

QColor SpLockButton::pressTextColor() const { return d->pressTextColor; }

/** The colour of the caption while down; red by default. Stored only. */
void SpLockButton::setPressTextColor(const QColor &color) { d->pressTextColor = color; }

QColor SpLockButton::disableTextColor() const { return d->disableTextColor; }

/** The colour of the caption while disabled; grey (100, 100, 100) by default. Stored only. */
void SpLockButton::setDisableTextColor(const QColor &color) { d->disableTextColor = color; }

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
    target = QPixmap::fromImage(fadedImage(source, d->imageSize, alpha));
}

void SpLockButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    d->drawPicture(painter);
    d->drawCaption(painter);
}

/**
 * QWidget goes first, which leaves the event to the parent. Then a press asks for the click sound,
 * turns the button over and emits btnPressed, unless it is disabled in software.
 */
void SpLockButton::mousePressEvent(QMouseEvent *e)
{
    QWidget::mousePressEvent(e);
    if (d->disableState)
        return;
    postKeyRequest(this, kBeepRequest);
    d->isDown = !d->isDown;
    update();
    const QPointer<SpLockButton> guard(this);
    emit btnPressed(d->buttonID);
    if (!guard)
        e->accept(); // there is no way to the parent any more
}

void SpLockButton::mouseMoveEvent(QMouseEvent *e) { QWidget::mouseMoveEvent(e); }

/** A release, wherever it is, emits btnReleased and leaves the state as it is. */
void SpLockButton::mouseReleaseEvent(QMouseEvent *e)
{
    QWidget::mouseReleaseEvent(e);
    if (d->disableState)
        return;
    const QPointer<SpLockButton> guard(this);
    emit btnReleased(d->buttonID);
    if (!guard)
        e->accept();
}

const QPixmap &SpLockButton::Private::currentImage() const
{
    if (disableState)
        return disableImage;
    return isDown ? pressImage : normalImage;
}

QColor SpLockButton::Private::captionColor() const
{
    if (disableState)
        return disableTextColor;
    return isDown ? pressTextColor : normalTextColor;
}

void SpLockButton::Private::drawPicture(QPainter &painter) const
{
    const QPixmap &image = currentImage();
    if (!image.isNull())
        look.drawScaled(painter, centredTowardZero(imageSize, q->rect()), image);
}

void SpLockButton::Private::drawCaption(QPainter &painter) const
{
    if (displayText.isEmpty())
        return;
    painter.setPen(captionColor());
    caption.draw(painter, QRectF(q->rect()), Qt::AlignCenter, displayText);
}
