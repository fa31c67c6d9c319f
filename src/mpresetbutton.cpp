// SPDX-License-Identifier: Apache-2.0
#include "mpresetbutton.h"

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
#include <QPointer>
#include <QSize>
#include <QTimerEvent>

using namespace panelkit;

namespace
{

constexpr int kLongPress = 1500; // ms
constexpr int kLongPressSlop = 20; // px; a finger that went farther on either axis holds no more

} // namespace

class Q_DECL_HIDDEN MPresetButton::Private
{
public:
    explicit Private(MPresetButton *widget) : q(widget) { }

    struct TextColors {
        QColor normal;
        QColor press;
        QColor disable;
    };

    bool isHighlighted() const;
    const QPixmap &shownImage() const;
    const QColor &shownTextColor(const TextColors &colors) const;
    void drawPicture(QPainter &painter) const;
    void drawIcon(QPainter &painter) const;
    void drawFirstLine(QPainter &painter) const;
    void drawSecondLine(QPainter &painter) const;

    MPresetButton *const q;
    QPixmap normalImage;
    QPixmap pressImage;
    QPixmap disableImage;
    QPixmap presetIcon;
    QPoint presetIconPos;
    QPoint pressPoint;
    QString displayText;
    TextColors textColors;
    QSize imageSize;
    QRect displayTextRect;
    QString displayText2;
    TextColors textColors2;
    QRect displayTextRect2;
    int fontSize2 = 24; // px
    QString buttonID = QStringLiteral("MPresetButton_ID");
    QBasicTimer longPressTimer;
    bool longPressed = false;
    bool moved = false;

    mutable ImageLook look;
    mutable TextCache firstLine;
    mutable TextCache secondLine;
};

/**
 * A check box that has no pictures yet. Its text colours are invalid, which is black, until they
 * are set.
 */
MPresetButton::MPresetButton(QWidget *parent)
    : QCheckBox(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

MPresetButton::~MPresetButton() = default;

QPixmap MPresetButton::normalImage() const { return d->normalImage; }

/**
 * The picture shown normally. Its size becomes the size into which every picture is stretched, and
 * the minimum size of the widget; then the button repaints. A null picture makes it a plain check
 * box, with the next paint that something else causes.
 */
void MPresetButton::setNormalImage(const QPixmap &image)
{
    d->normalImage = image;
    if (image.isNull())
        return;
    d->imageSize = image.size();
    setMinimumSize(d->imageSize);
    update();
}

QPixmap MPresetButton::pressImage() const { return d->pressImage; }

/** The picture shown while down or checked; without it there is none. Repaints. */
void MPresetButton::setPressImage(const QPixmap &image)
{
    d->pressImage = image;
    update();
}

QPixmap MPresetButton::disableImage() const { return d->disableImage; }

/** The picture shown while disabled; without it the normal one stays. Repaints. */
void MPresetButton::setDisableImage(const QPixmap &image)
{
    d->disableImage = image;
    update();
}

QPixmap MPresetButton::presetIcon() const { return d->presetIcon; }

/** A small picture over the other, in its own size; a disabled key has none. Repaints. */
void MPresetButton::setPresetIcon(const QPixmap &icon)
{
    d->presetIcon = icon;
    update();
}

QPoint MPresetButton::presetIconPos() const { return d->presetIconPos; }

/** Where the icon's top left stands on the widget. Stored only. */
void MPresetButton::setPresetIconPos(const QPoint &pos) { d->presetIconPos = pos; }

QString MPresetButton::displayText() const { return d->displayText; }

/** The first line, in the widget's font. It is neither shortened nor wrapped. Repaints. */
void MPresetButton::setDisplayText(const QString &text)
{
    d->displayText = text;
    update();
}

QString MPresetButton::displayText2() const { return d->displayText2; }

/** The second line, in the application's font at fontSize2. Repaints. */
void MPresetButton::setDisplayText2(const QString &text)
{
    d->displayText2 = text;
    update();
}

QColor MPresetButton::normalTextColor() const { return d->textColors.normal; }

/** The colour of the first line normally. Repaints. */
void MPresetButton::setNormalTextColor(const QColor &color)
{
    d->textColors.normal = color;
    update();
}

QColor MPresetButton::pressTextColor() const { return d->textColors.press; }

/** The colour of the first line while down or checked. Repaints. */
void MPresetButton::setPressTextColor(const QColor &color)
{
    d->textColors.press = color;
    update();
}

QColor MPresetButton::disableTextColor() const { return d->textColors.disable; }

/** The colour of the first line while disabled. Repaints. */
void MPresetButton::setDisableTextColor(const QColor &color)
{
    d->textColors.disable = color;
    update();
}

QColor MPresetButton::normalTextColor2() const { return d->textColors2.normal; }

/** The colour of the second line normally. Repaints. */
void MPresetButton::setNormalTextColor2(const QColor &color)
{
    d->textColors2.normal = color;
    update();
}

QColor MPresetButton::pressTextColor2() const { return d->textColors2.press; }

/** The colour of the second line while down or checked. Repaints. */
void MPresetButton::setPressTextColor2(const QColor &color)
{
    d->textColors2.press = color;
    update();
}

QColor MPresetButton::disableTextColor2() const { return d->textColors2.disable; }

/** The colour of the second line while disabled. Repaints. */
void MPresetButton::setDisableTextColor2(const QColor &color)
{
    d->textColors2.disable = color;
    update();
}

QRect MPresetButton::displayTextRect() const { return d->displayTextRect; }

/** Where the first line is centred; one that is not valid is the whole widget. Stored only. */
void MPresetButton::setdisplayTextRect(const QRect &rect) { d->displayTextRect = rect; }

QRect MPresetButton::displayTextRect2() const { return d->displayTextRect2; }

/** Where the second line is centred; one that is not valid is the whole widget. Stored only. */
void MPresetButton::setdisplayTextRect2(const QRect &rect) { d->displayTextRect2 = rect; }

int MPresetButton::fontSize2() const { return d->fontSize2; }

/**
 * The size of the second line in px; 24 by default. Below 1 the line has the size of the
 * application's font. Repaints.
 */
void MPresetButton::setFontSize2(const int &px)
{
    d->fontSize2 = px;
    update();
}

QString MPresetButton::buttonID() const { return d->buttonID; }

/** The text that either signal carries; "MPresetButton_ID" by default. Stored only. */
void MPresetButton::setButtonID(const QString &id) { d->buttonID = id; }

bool MPresetButton::hitButton(const QPoint &) const { return true; }

void MPresetButton::paintEvent(QPaintEvent *e)
{
    if (d->normalImage.isNull()) {
        QCheckBox::paintEvent(e);
        return;
    }
    QPainter painter(this);
    d->drawPicture(painter);
    d->drawIcon(painter);
    d->drawFirstLine(painter);
    d->drawSecondLine(painter);
}

/**
 * A press asks for the click sound and is timed. The event then goes to QWidget, and so to the
 * parent, past the button logic of Qt, so that no touch makes the key go down or checks it: which
 * preset is the current one is for the application to say.
 */
void MPresetButton::mousePressEvent(QMouseEvent *e)
{
    if (isEnabled()) {
        postKeyRequest(this, kBeepRequest);
        d->longPressed = false;
        d->longPressTimer.start(kLongPress, this);
        d->pressPoint = e->pos();
    }
    d->moved = false;
    QWidget::mousePressEvent(e); // NOLINT(bugprone-parent-virtual-call): past Qt's button logic
}

/**
 * Any move spoils the tap, so that a finger which sweeps over a row of presets changes no station.
 * Nobody holds a key that long by chance: a long press survives a finger that trembles.
 */
void MPresetButton::mouseMoveEvent(QMouseEvent *e)
{
    const bool isFar = distance(e->x(), d->pressPoint.x()) > kLongPressSlop
        || distance(e->y(), d->pressPoint.y()) > kLongPressSlop;
    if (isFar)
        d->longPressTimer.stop();
    d->moved = true;
    QWidget::mouseMoveEvent(e); // NOLINT(bugprone-parent-virtual-call): past Qt's button logic
}

/** A release that follows neither a move nor a long press is a click, enabled or not. */
void MPresetButton::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointer<MPresetButton> guard(this);
    if (!d->longPressed && !d->moved) {
        emit btnClicked(d->buttonID);
        if (!guard)
            return;
    }
    d->longPressTimer.stop();
    QWidget::mouseReleaseEvent(e); // NOLINT(bugprone-parent-virtual-call): past Qt's button logic
}

/** A long press. QAbstractButton sees every timer first, for its own. */
void MPresetButton::timerEvent(QTimerEvent *e)
{
    const QPointer<MPresetButton> guard(this);
    QAbstractButton::timerEvent(e);
    if (!guard || e->timerId() != d->longPressTimer.timerId())
        return;
    d->longPressTimer.stop();
    d->longPressed = true;
    emit btnLongClicked(d->buttonID);
}

bool MPresetButton::Private::isHighlighted() const { return q->isDown() || q->isChecked(); }

const QPixmap &MPresetButton::Private::shownImage() const
{
    if (q->isEnabled())
        return isHighlighted() ? pressImage : normalImage;
    return disableImage.isNull() ? normalImage : disableImage;
}

const QColor &MPresetButton::Private::shownTextColor(const TextColors &colors) const
{
    if (!q->isEnabled())
        return colors.disable;
    return isHighlighted() ? colors.press : colors.normal;
}

void MPresetButton::Private::drawPicture(QPainter &painter) const
{
    const QPixmap &image = shownImage();
    if (!image.isNull())
        look.drawScaled(painter, centredTowardZero(imageSize, q->rect()), image);
}

void MPresetButton::Private::drawIcon(QPainter &painter) const
{
    if (!q->isEnabled() || presetIcon.isNull())
        return;
    painter.drawPixmap(boundedPixel(presetIconPos.x()), boundedPixel(presetIconPos.y()),
                       presetIcon);
}

void MPresetButton::Private::drawFirstLine(QPainter &painter) const
{
    if (displayText.isEmpty())
        return;
    painter.setPen(shownTextColor(textColors));
    firstLine.draw(painter, boundedOr(displayTextRect, q->rect()), Qt::AlignCenter, displayText);
}

void MPresetButton::Private::drawSecondLine(QPainter &painter) const
{
    if (displayText2.isEmpty())
        return;
    painter.setFont(applicationFont(fontSize2));
    painter.setPen(shownTextColor(textColors2));
    secondLine.draw(painter, boundedOr(displayTextRect2, q->rect()), Qt::AlignCenter, displayText2);
}
