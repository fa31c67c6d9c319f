// SPDX-License-Identifier: Apache-2.0
#include "mselectbutton.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/keyrequest.h"
#include "detail/textcache.h"

#include <QBasicTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QTimerEvent>

using namespace panelkit;

namespace
{

constexpr int kLongPress = 1500; // ms
constexpr int kSlideSlop = 10; // px; a finger that went farther on either axis has slid away

} // namespace

class Q_DECL_HIDDEN MSelectButton::Private
{
public:
    explicit Private(MSelectButton *widget) : q(widget) { }

    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    bool isActive() const;
    const QPixmap &shownImage() const;
    QColor shownTextColor() const;
    void drawPicture(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    MSelectButton *const q;
    QPixmap normalImage;
    QPixmap pressImage;
    QPixmap selectImage;
    QPixmap disableImage;
    QString displayText;
    QColor normalTextColor{255, 255, 255};
    QColor pressTextColor{255, 255, 255};
    QColor selectTextColor{255, 255, 255};
    QColor disableTextColor{255, 255, 255};
    QSize imageSize;
    QRect displayTextRect;
    QString buttonID = QStringLiteral("MSelectButton_ID");
    QBasicTimer longPressTimer;
    bool longPressed = false;
    bool isPressed = false;
    bool selectState = false;
    bool disableState = false;
    QPoint pressPoint;

    mutable ImageLook look;
    mutable TextCache caption;
};

/** A button without pictures and caption: it paints nothing until it is given some. */
MSelectButton::MSelectButton(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::SelectButton, Private::tell);
}

MSelectButton::~MSelectButton() = default;

QPixmap MSelectButton::normalImage() const { return d->normalImage; }

/**
 * The picture shown normally. Its size becomes the size into which every picture is stretched, and
 * the minimum size of the widget; then the button repaints. A null picture is stored, but size and
 * screen stay as they are until something else repaints. Before there was any normal picture the
 * others stand in their own size with their top left in the middle.
 */
void MSelectButton::setNormalImage(const QPixmap &image)
{
    d->normalImage = image;
    if (image.isNull())
        return;
    d->imageSize = image.size();
    setMinimumSize(d->imageSize);
    update();
}

QPixmap MSelectButton::pressImage() const { return d->pressImage; }

/** The picture shown while pressed; without it there is none. Repaints. */
void MSelectButton::setPressImage(const QPixmap &image)
{
    d->pressImage = image;
    update();
}

QPixmap MSelectButton::selectImage() const { return d->selectImage; }

/** The picture shown while selected; without it there is none. Repaints. */
void MSelectButton::setSelectImage(const QPixmap &image)
{
    d->selectImage = image;
    update();
}

QPixmap MSelectButton::disableImage() const { return d->disableImage; }

/** The picture shown while disabled; without it the normal one stays. Repaints. */
void MSelectButton::setDisableImage(const QPixmap &image)
{
    d->disableImage = image;
    update();
}

QString MSelectButton::displayText() const { return d->displayText; }

/** The caption. It is neither shortened nor wrapped. Repaints. */
void MSelectButton::setDisplayText(const QString &text)
{
    d->displayText = text;
    update();
}

QColor MSelectButton::normalTextColor() const { return d->normalTextColor; }

/** The colour of the caption normally; white by default. Repaints. */
void MSelectButton::setNormalTextColor(const QColor &color)
{
    d->normalTextColor = color;
    update();
}

QColor MSelectButton::pressTextColor() const { return d->pressTextColor; }

/** The colour of the caption while pressed and not selected; white by default. Repaints. */
void MSelectButton::setPressTextColor(const QColor &color)
{
    d->pressTextColor = color;
    update();
}

QColor MSelectButton::selectTextColor() const { return d->selectTextColor; }

/** The colour of the caption while selected, pressed or not; white by default. Repaints. */
void MSelectButton::setSelectTextColor(const QColor &color)
{
    d->selectTextColor = color;
    update();
}

QColor MSelectButton::disableTextColor() const { return d->disableTextColor; }

/** The colour of the caption while disabled; white by default. Repaints. */
void MSelectButton::setDisableTextColor(const QColor &color)
{
    d->disableTextColor = color;
    update();
}

QRect MSelectButton::displayTextRect() const { return d->displayTextRect; }

/** Where the caption is centred; one that is not valid is the whole widget. Repaints. */
void MSelectButton::setdisplayTextRect(const QRect &rect)
{
    d->displayTextRect = rect;
    update();
}

QString MSelectButton::buttonID() const { return d->buttonID; }

/** The text that either signal carries; "MSelectButton_ID" by default. Stored only. */
void MSelectButton::setButtonID(const QString &id) { d->buttonID = id; }

bool MSelectButton::selectState() const { return d->selectState; }

/** Sets the selected look, without a signal. Repaints. */
void MSelectButton::setSelectState(const bool &selected)
{
    d->selectState = selected;
    update();
}

bool MSelectButton::disableState() const { return d->disableState; }

/**
 * Disables the button in software: it looks disabled and ignores touches, but its enabled state as
 * a QWidget stays. Repaints.
 */
void MSelectButton::setDisableState(const bool &disabled)
{
    d->disableState = disabled;
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
    d->drawPicture(painter);
    d->drawCaption(painter);
}

/**
 * A press asks for the click sound, shows the pressed look and is timed. A disabled button only
 * remembers the point. The event then goes on to QWidget.
 */
void MSelectButton::mousePressEvent(QMouseEvent *e)
{
    if (d->isActive()) {
        postKeyRequest(this, kBeepRequest);
        d->longPressed = false;
        d->longPressTimer.start(kLongPress, this);
        d->isPressed = true;
        update();
    }
    d->pressPoint = e->pos();
    QWidget::mousePressEvent(e);
}

/**
 * A finger that slides away ends the press for good, also if it comes back. The event goes on to
 * the press handler of QWidget, not to that for moves, so that a button that is a popup of its
 * own closes when the finger leaves it.
 */
void MSelectButton::mouseMoveEvent(QMouseEvent *e)
{
    const bool isAway = distance(e->x(), d->pressPoint.x()) > kSlideSlop
        || distance(e->y(), d->pressPoint.y()) > kSlideSlop;
    if (isAway) {
        d->longPressTimer.stop();
        if (d->isPressed) {
            d->isPressed = false;
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
    const QPointer<MSelectButton> guard(this);
    if (d->isActive()) {
        if (!d->longPressed && d->isPressed) {
            emit btnClicked(d->buttonID);
            if (!guard)
                return;
        }
        update();
    }
    d->longPressTimer.stop();
    d->longPressed = false;
    d->isPressed = false;
    QWidget::mouseReleaseEvent(e);
}

/** A long press, if the finger is still there. */
void MSelectButton::timerEvent(QTimerEvent *e)
{
    if (e->timerId() != d->longPressTimer.timerId())
        return;
    d->longPressTimer.stop();
    d->longPressed = true;
    if (d->isPressed)
        emit btnLongClicked(d->buttonID);
}

bool MSelectButton::Private::isActive() const { return !disableState && q->isEnabled(); }

const QPixmap &MSelectButton::Private::shownImage() const
{
    if (!isActive())
        return disableImage.isNull() ? normalImage : disableImage;
    if (isPressed)
        return pressImage;
    return selectState ? selectImage : normalImage;
}

// Being selected goes before being pressed here, and after it for the picture, so that a selected
// caption keeps its colour under the finger.
QColor MSelectButton::Private::shownTextColor() const
{
    if (!isActive())
        return disableTextColor;
    if (selectState)
        return selectTextColor;
    return isPressed ? pressTextColor : normalTextColor;
}

void MSelectButton::Private::drawPicture(QPainter &painter) const
{
    const QPixmap &image = shownImage();
    if (!image.isNull())
        look.drawScaled(painter, centredTowardZero(imageSize, q->rect()), image);
}

void MSelectButton::Private::drawCaption(QPainter &painter) const
{
    if (displayText.isEmpty())
        return;
    painter.setPen(shownTextColor());
    caption.draw(painter, boundedOr(displayTextRect, q->rect()), Qt::AlignCenter, displayText);
}

// To accessibility.
double MSelectButton::Private::tell(const QWidget *widget, AccessibleFact fact, const QPoint &)
{
    const Private &d = *static_cast<const MSelectButton *>(widget)->d;
    return fact == AccessibleFact::IsPressed ? d.isPressed : d.disableState;
}
