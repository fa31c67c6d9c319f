#include "spverstrbutton.h"

#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagelook.h"
#include "detail/kepttext.h"
#include "detail/keyrequest.h"

#include <QMouseEvent>
#include <QPainter>

using namespace panelkit;

// The icon and the colour of the string that one state shows.
struct SpVerStrButton::Look {
    const QPixmap *icon;
    QColor caption;
};

/** A button without icon, with the string "Text" in black. */
SpVerStrButton::SpVerStrButton(QWidget *parent)
    : QWidget(parent), m_look(std::make_unique<ImageLook>()),
      m_caption(std::make_unique<KeptText>())
{
}

SpVerStrButton::~SpVerStrButton() = default;

/**
 * The icon shown normally. Its size becomes that of the icon rectangle, into which the pressed and
 * focused icons are stretched, and the minimum size of the widget; then the button repaints. A null
 * icon is stored, but size and screen stay as they are until something else repaints.
 */
void SpVerStrButton::setNormalPixmap(const QPixmap &pixmap)
{
    m_normalPixmap = pixmap;
    if (pixmap.isNull())
        return;
    m_iconSize = pixmap.size();
    setMinimumSize(m_iconSize);
    update();
}

/** The icon shown while down; without it there is none then. Repaints. */
void SpVerStrButton::setPressPixmap(const QPixmap &pixmap)
{
    m_pressPixmap = pixmap;
    update();
}

/**
 * The icon shown while disabled, at its own size with its top at that of the button; without it
 * there is none then. Stored only.
 */
void SpVerStrButton::setDisablePixmap(const QPixmap &pixmap)
{
    m_disablePixmap = pixmap;
}

/** The icon shown while focused; without it there is none then. Stored only. */
void SpVerStrButton::setFocusPixmap(const QPixmap &pixmap)
{
    m_focusPixmap = pixmap;
}

/** The string; "Text" by default. It is not shortened, only clipped. Repaints. */
void SpVerStrButton::setDisplayString(const QString &text)
{
    m_displayString = text;
    update();
}

/** The colour of the string; black by default. Stored only. */
void SpVerStrButton::setNormalColor(const QColor &color)
{
    m_normalColor = color;
}

/** The colour of the string while down; red by default. Stored only. */
void SpVerStrButton::setPressColor(const QColor &color)
{
    m_pressColor = color;
}

/** The colour of the string while focused; white by default. Stored only. */
void SpVerStrButton::setFocusTextColor(const QColor &color)
{
    m_focusTextColor = color;
}

/** The number that the signals carry; -1 by default. Stored only. */
void SpVerStrButton::setButtonId(int id)
{
    m_buttonId = id;
}

/**
 * The gap in px between icon and string; 5 by default. Stored only. A negative one selects another
 * layout: the icon is centred alone, and the string stands as far down as an icon at the very top
 * with this gap would put it, so that it overlaps.
 */
void SpVerStrButton::setWidgetGain(int gap)
{
    m_widgetGain = gap;
}

/** The height in px that is reserved for the string; 16 by default. Stored only. */
void SpVerStrButton::setStringHeight(int height)
{
    m_stringHeight = height;
}

/**
 * Disables the button in software: it looks disabled and ignores touches, which still end here. The
 * enabled state as a QWidget plays no part. Stored only.
 */
void SpVerStrButton::setDisable(bool disabled)
{
    m_disable = disabled;
}

/** Sets the pressed look, without a signal; this is how a latched button is let go. Repaints. */
void SpVerStrButton::setIsDown(bool down)
{
    m_isDown = down;
    update();
}

/** Makes the button latch: it keeps its pressed look after the release. Stored only. */
void SpVerStrButton::setIsLock(bool lock)
{
    m_isLock = lock;
}

/**
 * Sets the focused look. Repaints. The name is that of QWidget::setFocus() on purpose, whose
 * overloads it hides: the look is independent of the keyboard focus.
 */
void SpVerStrButton::setFocus(bool focused)
{
    m_isFocus = focused;
    update();
}

/**
 * The size of the string in px; 20 by default. Stored only. Below 1 the string has the size of the
 * application's font.
 */
void SpVerStrButton::setFontSize(int px)
{
    m_fontSize = px;
}

void SpVerStrButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawIcon(painter);
    drawCaption(painter);
}

/**
 * A press asks for the click sound, shows the pressed look and emits pressed. The parent does not
 * hear of it, nor of the press of a disabled button.
 */
void SpVerStrButton::mousePressEvent(QMouseEvent *)
{
    if (m_disable)
        return;
    postKeyRequest(this, kBeepRequest);
    m_isDown = true;
    update();
    emit pressed(m_buttonId);
}

/** Moving means nothing to this button, nor to its parent. */
void SpVerStrButton::mouseMoveEvent(QMouseEvent *) { }

/** Any release emits clicked, wherever the finger was lifted. */
void SpVerStrButton::mouseReleaseEvent(QMouseEvent *)
{
    if (m_disable)
        return;
    if (!m_isLock)
        m_isDown = false;
    update();
    emit clicked(m_buttonId);
}

// An icon that is missing is not replaced by the normal one.
SpVerStrButton::Look SpVerStrButton::look() const
{
    if (m_disable)
        return {&m_disablePixmap, Qt::darkGray};
    if (m_isDown)
        return {&m_pressPixmap, m_pressColor};
    if (m_isFocus)
        return {&m_focusPixmap, m_focusTextColor};
    return {&m_normalPixmap, m_normalColor};
}

// With a gap, the icon is the upper part of a centred block; with an overlap it is centred alone.
QRect SpVerStrButton::iconRect() const
{
    QSize block = m_iconSize;
    if (m_widgetGain >= 0) {
        block.setHeight(boundedPixel(saturated(static_cast<long long>(m_iconSize.height())
                                               + m_widgetGain + m_stringHeight)));
    }
    return {centredTowardMinusInfinity(block, rect()).topLeft(), m_iconSize};
}

// With a gap, the string has everything below it. An overlap is measured from the top of the
// button, not from the icon, on purpose: strings of icons of one size stand on one line, whatever
// the height of their buttons.
QRect SpVerStrButton::captionRect() const
{
    const long long below = static_cast<long long>(m_iconSize.height()) + m_widgetGain;
    if (m_widgetGain < 0)
        return boundedRect(0, saturated(below), width(), m_stringHeight);
    const int top = boundedPixel(saturated(iconRect().top() + below));
    return {0, top, width(), height() - top};
}

// The disabled icon alone is not put into the icon rectangle, on purpose: it is a picture of the
// whole button.
void SpVerStrButton::drawIcon(QPainter &painter) const
{
    const QPixmap &icon = *look().icon;
    if (icon.isNull())
        return;
    if (m_disable)
        painter.drawPixmap(centredTowardMinusInfinity(icon.size(), rect()).left(), 0, icon);
    else
        m_look->drawScaled(painter, iconRect(), icon);
}

void SpVerStrButton::drawCaption(QPainter &painter) const
{
    painter.setFont(applicationFont(m_fontSize));
    painter.setPen(look().caption);
    m_caption->draw(painter, captionRect(), Qt::AlignHCenter | Qt::AlignTop, m_displayString);
}
