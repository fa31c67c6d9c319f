#include "sphorstrbutton.h"

#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"
#include "detail/imagelook.h"
#include "detail/kepttext.h"
#include "detail/keyrequest.h"

#include <QDebug>
#include <QMessageLogger>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOption>

using namespace panelkit;

namespace
{

constexpr int kGap = 10; // px between icon and string, where they stand side by side
constexpr int kVeil = 154; // alpha of the black over an icon that stands for a disabled one
const QColor kDisabledTextColor(150, 150, 150, 150);

// A fixed line, on purpose: what collects the logs tells the constructors apart by it. Qt itself
// would leave file and line out of a release.
constexpr int kLogLine = 67;

} // namespace

// Where the icon and the string stand in a button, and how the string is aligned.
struct SpHorStrButton::Places {
    QRect icon;
    QRect text;
    int flags = 0;
};

/** A button without icon, with the string "default" at its left. */
SpHorStrButton::SpHorStrButton(QWidget *parent)
    : QWidget(parent), m_look(std::make_unique<ImageLook>()),
      m_caption(std::make_unique<KeptText>())
{
}

/**
 * A button with everything it usually needs; the icons are read from files, and one that cannot be
 * read stays null. The size of the normal icon goes to the debug log. Both text colours are left
 * invalid on purpose, which paints the string in black until they are set.
 */
SpHorStrButton::SpHorStrButton(StrPosition pos, QString id, QString text, QString normal,
                               QString press, QString disable, QWidget *parent)
    : QWidget(parent), m_stringPosition(pos), m_buttonId(id), m_displayString(text),
      m_normalPixmap(pixmapFromFile(normal)), m_pressPixmap(pixmapFromFile(press)),
      m_disablePixmap(pixmapFromFile(disable)), m_look(std::make_unique<ImageLook>()),
      m_caption(std::make_unique<KeptText>())
{
    if (!m_normalPixmap.isNull())
        m_iconSize = m_normalPixmap.size();
    m_normalTextColor = QColor();
    m_pressTextColor = QColor();
    QMessageLogger("src/sphorstrbutton", kLogLine, Q_FUNC_INFO).debug()
        << "[SpHorStrButton]instance,icon size:" << m_iconSize;
}

SpHorStrButton::~SpHorStrButton() = default;

/**
 * Where icon and string stand; StrLeft by default. Stored only. A value that is no StrPosition
 * stands like StrLeft, except that its textTopMargin moves the string and not the icon.
 */
void SpHorStrButton::setStringPosition(const StrPosition &position)
{
    m_stringPosition = position;
}

/** The text that clicked carries; "0" by default. Stored only. */
void SpHorStrButton::setButtonId(const QString &id)
{
    m_buttonId = id;
}

/** The string; "default" by default. It is not shortened, only clipped. Repaints. */
void SpHorStrButton::setDisplayString(const QString &text)
{
    m_displayString = text;
    update();
}

/**
 * The icon shown normally. Its size becomes that of the icon rectangle, into which the other icons
 * are stretched; the widget's minimum size stays. Repaints. A null icon is stored, but icon
 * rectangle and screen stay as they are until something else repaints.
 */
void SpHorStrButton::setNormalPixmap(const QPixmap &pixmap)
{
    m_normalPixmap = pixmap;
    if (pixmap.isNull())
        return;
    m_iconSize = pixmap.size();
    update();
}

/** The icon shown while pressed; without it there is none then. Stored only. */
void SpHorStrButton::setPressPixmap(const QPixmap &pixmap)
{
    m_pressPixmap = pixmap;
}

/** The icon shown while disabled; without it the normal one is darkened. Stored only. */
void SpHorStrButton::setDisablePixmap(const QPixmap &pixmap)
{
    m_disablePixmap = pixmap;
}

/** The colour of the string; white by default. Repaints. */
void SpHorStrButton::setNormalTextColor(const QColor &color)
{
    m_normalTextColor = color;
    update();
}

/** The colour of the string while pressed; red by default. Repaints. */
void SpHorStrButton::setPressTextColor(const QColor &color)
{
    m_pressTextColor = color;
    update();
}

/**
 * A distance in px by which the layout moves down; it counts only with a textHeight. In StrLeft it
 * moves the icon, in every other layout the string, on purpose: forms rely on it. Stored only.
 */
void SpHorStrButton::setTextTopMargin(int margin)
{
    m_textTopMargin = margin;
}

/**
 * The height of the string's rectangle in px; 0 (the default) or less: that of the button, or in
 * StrCenter that of the icon. Stored only.
 */
void SpHorStrButton::setTextHeight(int height)
{
    m_textHeight = height;
}

/**
 * The distance in px by which the string's rectangle moves to the right; it counts only with a
 * textWidth. Stored only.
 */
void SpHorStrButton::setTextLeftMargin(int margin)
{
    m_textLeftMargin = margin;
}

/**
 * The width of the string's rectangle in px; 0 (the default) or less: what the icon and a gap of
 * 10 px leave of the button, or in StrCenter the width of the icon. Stored only.
 */
void SpHorStrButton::setTextWidth(int width)
{
    m_textWidth = width;
}

/**
 * Disables the button in software: it looks disabled and a press neither shows nor sounds, but a
 * release emits clicked all the same. The enabled state as a QWidget plays no part. Repaints.
 */
void SpHorStrButton::setBtnDisable(bool disabled)
{
    m_btnDisable = disabled;
    update();
}

/** Sets the pressed look, without a signal. Repaints. */
void SpHorStrButton::setPressState(bool pressed)
{
    m_pressState = pressed;
    update();
}

/** Sets the size of the widget's font in px; sizes below 1 are ignored. */
void SpHorStrButton::setFontSize(int px)
{
    if (px < 1)
        return;
    setFont(resized(font(), px));
}

void SpHorStrButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Places here = places();
    drawBackground(painter);
    drawIcon(painter, here.icon);
    drawCaption(painter, here);
}

/**
 * A press asks for the click sound and shows the pressed look, unless the button is disabled. The
 * event then goes on to QWidget, which hands it to the parent.
 */
void SpHorStrButton::mousePressEvent(QMouseEvent *e)
{
    if (!m_btnDisable) {
        postKeyRequest(this, kBeepRequest);
        m_pressState = true;
    }
    update();
    if (e)
        QWidget::mousePressEvent(e);
}

void SpHorStrButton::mouseMoveEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseMoveEvent(e);
}

/**
 * Any release emits clicked, wherever the finger was lifted and whether or not the button is
 * disabled, on purpose: receivers filter. A disabled button keeps its pressed state. The event then
 * goes on to QWidget.
 */
void SpHorStrButton::mouseReleaseEvent(QMouseEvent *e)
{
    if (!m_btnDisable)
        m_pressState = false;
    update();
    const QPointer<SpHorStrButton> guard(this);
    emit clicked(m_buttonId);
    if (guard && e)
        QWidget::mouseReleaseEvent(e);
}

// A margin counts only together with the size on its axis. The top margin moves the icon in
// StrLeft and the string in every other layout.
SpHorStrButton::Places SpHorStrButton::places() const
{
    const bool hasWidth = m_textWidth > 0;
    const bool hasHeight = m_textHeight > 0;
    const int leftMargin = hasWidth ? boundedPixel(m_textLeftMargin) : 0;
    const int topMargin = hasHeight ? boundedPixel(m_textTopMargin) : 0;
    const int beside = m_iconSize.width() + kGap;
    const int textWidth = hasWidth ? m_textWidth : width() - beside;
    const int textHeight = hasHeight ? m_textHeight : height();
    QRect icon = centredTowardMinusInfinity(m_iconSize, rect());

    switch (m_stringPosition) {
    case StrLeft:
        icon.moveTopLeft({0, icon.top() + topMargin});
        return {icon, boundedRect(beside + leftMargin, 0, textWidth, textHeight),
                Qt::AlignLeft | Qt::AlignVCenter};
    case StrRight:
        icon.moveLeft(width() - m_iconSize.width());
        return {icon, boundedRect(leftMargin, topMargin, textWidth, textHeight),
                Qt::AlignRight | Qt::AlignVCenter};
    case StrCenter:
        return {QRect(QPoint(), m_iconSize),
                boundedRect(leftMargin, topMargin, hasWidth ? m_textWidth : m_iconSize.width(),
                            hasHeight ? m_textHeight : m_iconSize.height()),
                Qt::AlignCenter};
    }
    icon.moveLeft(0);
    return {icon, boundedRect(beside + leftMargin, topMargin, textWidth, textHeight),
            Qt::AlignLeft | Qt::AlignVCenter};
}

QColor SpHorStrButton::captionColor() const
{
    if (m_btnDisable)
        return kDisabledTextColor;
    return m_pressState ? m_pressTextColor : m_normalTextColor;
}

// What a style sheet says of the widget: backgrounds, borders.
void SpHorStrButton::drawBackground(QPainter &painter) const
{
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void SpHorStrButton::drawIcon(QPainter &painter, const QRect &rect) const
{
    if (m_btnDisable && m_disablePixmap.isNull()) {
        m_look->drawVeiled(painter, rect, m_normalPixmap, kVeil);
        return;
    }
    const QPixmap &enabled = m_pressState ? m_pressPixmap : m_normalPixmap;
    const QPixmap &icon = m_btnDisable ? m_disablePixmap : enabled;
    if (!icon.isNull())
        m_look->drawScaled(painter, rect, icon);
}

void SpHorStrButton::drawCaption(QPainter &painter, const Places &places) const
{
    painter.setPen(captionColor());
    m_caption->draw(painter, places.text, places.flags, m_displayString);
}
