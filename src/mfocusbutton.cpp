// SPDX-License-Identifier: Apache-2.0
#include "mfocusbutton.h"

#include "detail/accessible.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/keyrequest.h"
#include "detail/textcache.h"

#include <QBasicTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSize>
#include <QTimerEvent>

using namespace panelkit;

class Q_DECL_HIDDEN MFocusButton::Private
{
public:
    explicit Private(MFocusButton *widget) : q(widget) { }

    bool isHighlighted() const;
    const QPixmap &shownImage() const;
    QColor shownTextColor() const;
    void drawPicture(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    MFocusButton *const q;
    QPixmap normalImage;
    QPixmap pressImage;
    QPixmap disableImage;
    QString displayText;
    QColor normalTextColor;
    QColor pressTextColor;
    QColor disableTextColor;
    QSize imageSize;
    QRect displayTextRect;
    QString buttonID = QStringLiteral("MFocusButton_ID");
    QBasicTimer longPressTimer;
    int longPressIntal = 2500; // ms
    bool longPressed = false;

    mutable ImageLook look;
    mutable TextCache caption;
};

/**
 * A radio button that has no pictures yet. Its text colours are invalid, which is black, until they
 * are set.
 */
MFocusButton::MFocusButton(QWidget *parent)
    : QRadioButton(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

MFocusButton::~MFocusButton() = default;

QPixmap MFocusButton::normalImage() const { return d->normalImage; }

/**
 * The picture shown normally. Its size becomes the size into which every picture is stretched, and
 * the minimum size of the widget; then the button repaints. A null picture makes it a plain radio
 * button, with the next paint that something else causes.
 */
void MFocusButton::setNormalImage(const QPixmap &image)
{
    d->normalImage = image;
    if (image.isNull())
        return;
    d->imageSize = image.size();
    setMinimumSize(d->imageSize);
    update();
}

QPixmap MFocusButton::pressImage() const { return d->pressImage; }

/** The picture shown while pressed or checked; without it there is none. Stored only. */
void MFocusButton::setPressImage(const QPixmap &image) { d->pressImage = image; }

QPixmap MFocusButton::disableImage() const { return d->disableImage; }

/** The picture shown while disabled; without it the normal one stays. Repaints. */
void MFocusButton::setDisableImage(const QPixmap &image)
{
    d->disableImage = image;
    update();
}

QString MFocusButton::displayText() const { return d->displayText; }

/** The caption. It is neither shortened nor wrapped. Repaints. */
void MFocusButton::setDisplayText(const QString &text)
{
    d->displayText = text;
    update();
}

QColor MFocusButton::normalTextColor() const { return d->normalTextColor; }

/** The colour of the caption normally. Stored only. */
void MFocusButton::setNormalTextColor(const QColor &color) { d->normalTextColor = color; }

QColor MFocusButton::pressTextColor() const { return d->pressTextColor; }

/** The colour of the caption while pressed or checked. Stored only. */
void MFocusButton::setPressTextColor(const QColor &color) { d->pressTextColor = color; }

QColor MFocusButton::disableTextColor() const { return d->disableTextColor; }

/** The colour of the caption while disabled. Stored only. */
void MFocusButton::setDisableTextColor(const QColor &color) { d->disableTextColor = color; }

QRect MFocusButton::displayTextRect() const { return d->displayTextRect; }

/** Where the caption is centred; one that is not valid is the whole widget. Stored only. */
void MFocusButton::setdisplayTextRect(const QRect &rect) { d->displayTextRect = rect; }

QString MFocusButton::buttonID() const { return d->buttonID; }

/** The text that either signal carries; "MFocusButton_ID" by default. Stored only. */
void MFocusButton::setButtonID(const QString &id) { d->buttonID = id; }

int MFocusButton::getLongPressIntal() const { return d->longPressIntal; }

/**
 * How long a press is held to be a long one, in ms (2500 by default), from the next press on. A
 * negative time never passes. The timer is one of Qt's coarse ones: it may be 5 % early or late in
 * exchange for fewer wake-ups of the processor.
 */
void MFocusButton::setLongPressIntal(int interval) { d->longPressIntal = interval; }

/** Sets the size of the widget's font in px; sizes below 1 are ignored. */
void MFocusButton::setFontSize(int px)
{
    if (px < 1)
        return;
    setFont(resized(font(), px));
}

bool MFocusButton::hitButton(const QPoint &) const { return true; }

void MFocusButton::paintEvent(QPaintEvent *e)
{
    if (d->normalImage.isNull()) {
        QRadioButton::paintEvent(e);
        return;
    }
    QPainter painter(this);
    d->drawPicture(painter);
    d->drawCaption(painter);
}

/** A press is timed; being down and checked is the business of QAbstractButton. */
void MFocusButton::mousePressEvent(QMouseEvent *e)
{
    d->longPressTimer.stop();
    if (d->longPressIntal >= 0)
        d->longPressTimer.start(d->longPressIntal, this);
    d->longPressed = false;
    QAbstractButton::mousePressEvent(e);
}

/**
 * A release, wherever it is, asks for the click sound and is a click, unless the press was a long
 * one. Only then QAbstractButton checks the button: a slot of btnClicked still sees it as it was.
 */
void MFocusButton::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointer<MFocusButton> guard(this);
    if (!d->longPressed) {
        postKeyRequest(this, kBeepRequest);
        emit btnClicked(d->buttonID);
        if (!guard)
            return;
    }
    d->longPressTimer.stop();
    QAbstractButton::mouseReleaseEvent(e);
}

/**
 * A long press. Any other timer is left alone, those of QAbstractButton too, whose clicks come
 * without btnClicked: a focus button has neither auto-repeat nor an animated click.
 */
void MFocusButton::timerEvent(QTimerEvent *e)
{
    if (!e || e->timerId() != d->longPressTimer.timerId())
        return;
    d->longPressTimer.stop();
    d->longPressed = true;
    emit btnLongClicked(d->buttonID);
}

bool MFocusButton::Private::isHighlighted() const { return q->isDown() || q->isChecked(); }

const QPixmap &MFocusButton::Private::shownImage() const
{
    if (q->isEnabled())
        return isHighlighted() ? pressImage : normalImage;
    return disableImage.isNull() ? normalImage : disableImage;
}

QColor MFocusButton::Private::shownTextColor() const
{
    if (!q->isEnabled())
        return disableTextColor;
    return isHighlighted() ? pressTextColor : normalTextColor;
}

void MFocusButton::Private::drawPicture(QPainter &painter) const
{
    const QPixmap &image = shownImage();
    if (!image.isNull())
        look.drawScaled(painter, centredTowardZero(imageSize, q->rect()), image);
}

void MFocusButton::Private::drawCaption(QPainter &painter) const
{
    if (displayText.isEmpty())
        return;
    painter.setPen(shownTextColor());
    caption.draw(painter, boundedOr(displayTextRect, q->rect()), Qt::AlignCenter, displayText);
}
