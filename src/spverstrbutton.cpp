// SPDX-License-Identifier: Apache-2.0
#include "spverstrbutton.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/keyrequest.h"
#include "detail/textcache.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSize>

using namespace panelkit;

class Q_DECL_HIDDEN SpVerStrButton::Private
{
public:
    explicit Private(SpVerStrButton *widget) : q(widget) { }

    struct Look;

    Look look() const;
    QRect iconRect() const;
    QRect captionRect() const;
    void drawIcon(QPainter &painter) const;
    void drawCaption(QPainter &painter) const;

    SpVerStrButton *const q;
    QPixmap normalPixmap;
    QPixmap pressPixmap;
    QPixmap disablePixmap;
    QPixmap focusPixmap;
    QString displayString = QStringLiteral("Text");
    QColor normalColor{Qt::black};
    QColor pressColor{Qt::red};
    QColor focusTextColor{Qt::white};
    int buttonId = -1;
    int widgetGain = 5; // px, negative: the string overlaps the icon
    int stringHeight = 16; // px
    bool disable = false;
    bool isDown = false;
    bool isLock = false;
    bool isFocus = false;
    QSize iconSize{32, 32};
    int fontSize = 20; // px

    mutable ImageLook imageLook;
    mutable TextCache caption;
};

// The icon and the colour of the string that one state shows.
struct SpVerStrButton::Private::Look {
    const QPixmap *icon;
    QColor caption;
};

/** A button without icon, with the string "Text" in black. */
SpVerStrButton::SpVerStrButton(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
}

SpVerStrButton::~SpVerStrButton() = default;

QPixmap SpVerStrButton::normalPixmap() const { return d->normalPixmap; }

/**
 * The icon shown normally. Its size becomes that of the icon rectangle, into which the pressed and
 * focused icons are stretched, and the minimum size of the widget; then the button repaints. A null
 * icon is stored, but size and screen stay as they are until something else repaints.
 */
void SpVerStrButton::setNormalPixmap(const QPixmap &pixmap)
{
    d->normalPixmap = pixmap;
    if (pixmap.isNull())
        return;
    d->iconSize = pixmap.size();
    setMinimumSize(d->iconSize);
    update();
}

QPixmap SpVerStrButton::pressPixmap() const { return d->pressPixmap; }

/** The icon shown while down; without it there is none then. Repaints. */
void SpVerStrButton::setPressPixmap(const QPixmap &pixmap)
{
    d->pressPixmap = pixmap;
    update();
}

QPixmap SpVerStrButton::disablePixmap() const { return d->disablePixmap; }

/**
 * The icon shown while disabled, at its own size with its top at that of the button; without it
 * there is none then. Stored only.
 */
void SpVerStrButton::setDisablePixmap(const QPixmap &pixmap) { d->disablePixmap = pixmap; }

QPixmap SpVerStrButton::focusPixmap() const { return d->focusPixmap; }

/** The icon shown while focused; without it there is none then. Stored only. */
void SpVerStrButton::setFocusPixmap(const QPixmap &pixmap) { d->focusPixmap = pixmap; }

QString SpVerStrButton::displayString() const { return d->displayString; }

/** The string; "Text" by default. It is not shortened, only clipped. Repaints. */
void SpVerStrButton::setDisplayString(const QString &text)
{
    d->displayString = text;
    update();
}

QColor SpVerStrButton::normalColor() const { return d->normalColor; }

/** The colour of the string; black by default. Stored only. */
void SpVerStrButton::setNormalColor(const QColor &color) { d->normalColor = color; }

QColor SpVerStrButton::pressColor() const { return d->pressColor; }

/** The colour of the string while down; red by default. Stored only. */
void SpVerStrButton::setPressColor(const QColor &color) { d->pressColor = color; }

QColor SpVerStrButton::focusTextColor() const { return d->focusTextColor; }

/** The colour of the string while focused; white by default. Stored only. */
void SpVerStrButton::setFocusTextColor(const QColor &color) { d->focusTextColor = color; }

int SpVerStrButton::buttonId() const { return d->buttonId; }

/** The number that the signals carry; -1 by default. Stored only. */
void SpVerStrButton::setButtonId(int id) { d->buttonId = id; }

int SpVerStrButton::widgetGain() const { return d->widgetGain; }

/**
 * The gap in px between icon and string; 5 by default. Stored only. A negative one selects another
 * layout: the icon is centred alone, and the string stands as far down as an icon at the very top
 * with this gap would put it, so that it overlaps.
 */
void SpVerStrButton::setWidgetGain(int gap) { d->widgetGain = gap; }

int SpVerStrButton::stringHeight() const { return d->stringHeight; }

/** The height in px that is reserved for the string; 16 by default. Stored only. */
void SpVerStrButton::setStringHeight(int height) { d->stringHeight = height; }

bool SpVerStrButton::disable() const { return d->disable; }

/**
 * Disables the button in software: it looks disabled and ignores touches, which still end here. The
 * enabled state as a QWidget plays no part. Stored only.
 */
void SpVerStrButton::setDisable(bool disabled) { d->disable = disabled; }

bool SpVerStrButton::isDown() const { return d->isDown; }

/** Sets the pressed look, without a signal; this is how a latched button is let go. Repaints. */
void SpVerStrButton::setIsDown(bool down)
{
    d->isDown = down;
    update();
}

bool SpVerStrButton::isLock() const { return d->isLock; }

/** Makes the button latch: it keeps its pressed look after the release. Stored only. */
void SpVerStrButton::setIsLock(bool lock) { d->isLock = lock; }

bool SpVerStrButton::isFocus() const { return d->isFocus; }

/**
 * Sets the focused look. Repaints. It hides the overloads of QWidget::setFocus() (kept behaviour);
 * the look is independent of the keyboard focus.
 */
void SpVerStrButton::setFocus(bool focused)
{
    d->isFocus = focused;
    update();
}

int SpVerStrButton::fontSize() const { return d->fontSize; }

/**
 * The size of the string in px; 20 by default. Stored only. Below 1 the string has the size of the
 * application's font.
 */
void SpVerStrButton::setFontSize(int px) { d->fontSize = px; }

void SpVerStrButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    d->drawIcon(painter);
    d->drawCaption(painter);
}

/**
 * A press asks for the click sound, shows the pressed look and emits pressed. The parent does not
 * hear of it, nor of the press of a disabled button.
 */
void SpVerStrButton::mousePressEvent(QMouseEvent *)
{
    if (d->disable)
        return;
    postKeyRequest(this, kBeepRequest);
    d->isDown = true;
    update();
    emit pressed(d->buttonId);
}

/** Moving means nothing to this button, nor to its parent. */
void SpVerStrButton::mouseMoveEvent(QMouseEvent *) { }

/** Any release emits clicked, wherever the finger was lifted. */
void SpVerStrButton::mouseReleaseEvent(QMouseEvent *)
{
    if (d->disable)
        return;
    if (!d->isLock)
        d->isDown = false;
    update();
    emit clicked(d->buttonId);
}

// An icon that is missing is not replaced by the normal one.
SpVerStrButton::Private::Look SpVerStrButton::Private::look() const
{
    if (disable)
        return {&disablePixmap, Qt::darkGray};
    if (isDown)
        return {&pressPixmap, pressColor};
    if (isFocus)
        return {&focusPixmap, focusTextColor};
    return {&normalPixmap, normalColor};
}

// With a gap, the icon is the upper part of a centred block; with an overlap it is centred alone.
QRect SpVerStrButton::Private::iconRect() const
{
    QSize block = iconSize;
    if (widgetGain >= 0) {
        block.setHeight(boundedPixel(
            saturated(static_cast<long long>(iconSize.height()) + widgetGain + stringHeight)));
    }
    return {centredTowardMinusInfinity(block, q->rect()).topLeft(), iconSize};
}

// With a gap, the string has everything below it. An overlap is measured from the top of the
// button, not from the icon, so that strings of icons of one size stand on one line, whatever the
// height of their buttons.
QRect SpVerStrButton::Private::captionRect() const
{
    const long long below = static_cast<long long>(iconSize.height()) + widgetGain;
    if (widgetGain < 0)
        return boundedRect(0, saturated(below), q->width(), stringHeight);
    const int top = boundedPixel(saturated(iconRect().top() + below));
    return {0, top, q->width(), q->height() - top};
}

// The disabled icon alone is not put into the icon rectangle (kept behaviour).
void SpVerStrButton::Private::drawIcon(QPainter &painter) const
{
    const QPixmap &icon = *look().icon;
    if (icon.isNull())
        return;
    if (disable)
        painter.drawPixmap(centredTowardMinusInfinity(icon.size(), q->rect()).left(), 0, icon);
    else
        imageLook.drawScaled(painter, iconRect(), icon);
}

void SpVerStrButton::Private::drawCaption(QPainter &painter) const
{
    painter.setFont(applicationFont(fontSize));
    painter.setPen(look().caption);
    caption.draw(painter, captionRect(), Qt::AlignHCenter | Qt::AlignTop, displayString);
}
