// SPDX-License-Identifier: Apache-2.0
#include "sphorstrbutton.h"

#include "detail/accessible.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"
#include "detail/imagelook.h"
#include "detail/keyrequest.h"
#include "detail/textcache.h"

#include <QDebug>
#include <QMessageLogger>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSize>
#include <QStyle>
#include <QStyleOption>

using namespace panelkit;

namespace
{

constexpr int kGap = 10; // px between icon and string, where they stand side by side
constexpr int kVeil = 154; // alpha of the black over an icon that stands for a disabled one
const QColor kDisabledTextColor(150, 150, 150, 150);

// A fixed line, so that the log reads the same in every version. Qt itself would leave file and
// line out of a release.
constexpr int kLogLine = 67;

} // namespace

class Q_DECL_HIDDEN SpHorStrButton::Private
{
public:
    explicit Private(SpHorStrButton *widget) : q(widget) { }

    struct Places;

    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    Places places() const;
    QColor captionColor() const;
    void drawBackground(QPainter &painter) const;
    void drawIcon(QPainter &painter, const QRect &rect) const;
    void drawCaption(QPainter &painter, const Places &places) const;

    SpHorStrButton *const q;
    StrPosition stringPosition = StrLeft;
    QString buttonId = QStringLiteral("0");
    QString displayString = QStringLiteral("default");
    QPixmap normalPixmap;
    QPixmap pressPixmap;
    QPixmap disablePixmap;
    bool pressState = false;
    bool btnDisable = false;
    QSize iconSize{0, 0};
    [[maybe_unused]] int reserved = 25; // read nowhere (kept behaviour)
    QColor normalTextColor{255, 255, 255, 255};
    QColor pressTextColor{255, 0, 0, 255};
    int textTopMargin = 0; // px
    int textHeight = 0; // px, 0: that of the layout
    int textLeftMargin = 0; // px
    int textWidth = 0; // px, 0: that of the layout

    mutable ImageLook imageLook;
    mutable TextCache caption;
};

// Where the icon and the string stand in a button, and how the string is aligned.
struct SpHorStrButton::Private::Places {
    QRect icon;
    QRect text;
    int flags = 0;
};

/** A button without icon, with the string "default" at its left. */
SpHorStrButton::SpHorStrButton(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::HorStrButton, Private::tell);
}

/**
 * A button with everything it usually needs; the icons are read from files, and one that cannot be
 * read stays null. The size of the normal icon goes to the debug log. Both text colours are left
 * invalid, which paints the string in black until they are set (kept behaviour).
 */
SpHorStrButton::SpHorStrButton(StrPosition pos, QString id, QString text, QString normal,
                               QString press, QString disable, QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::HorStrButton, Private::tell);
    d->stringPosition = pos;
    d->buttonId = id;
    d->displayString = text;
    d->normalPixmap = pixmapFromFile(normal);
    d->pressPixmap = pixmapFromFile(press);
    d->disablePixmap = pixmapFromFile(disable);
    if (!d->normalPixmap.isNull())
        d->iconSize = d->normalPixmap.size();
    d->normalTextColor = QColor();
    d->pressTextColor = QColor();
    QMessageLogger("src/sphorstrbutton", kLogLine, Q_FUNC_INFO).debug()
        << "[SpHorStrButton]instance,icon size:" << d->iconSize;
}

SpHorStrButton::~SpHorStrButton() = default;

SpHorStrButton::StrPosition SpHorStrButton::stringPosition() const { return d->stringPosition; }

/**
 * Where icon and string stand; StrLeft by default. Stored only. A value that is no StrPosition
 * stands like StrLeft, except that its textTopMargin moves the string and not the icon.
 */
void SpHorStrButton::setStringPosition(const StrPosition &position)
{
    d->stringPosition = position;
}

QString SpHorStrButton::buttonId() const { return d->buttonId; }

/** The text that clicked carries; "0" by default. Stored only. */
void SpHorStrButton::setButtonId(const QString &id) { d->buttonId = id; }

QString SpHorStrButton::displayString() const { return d->displayString; }

/** The string; "default" by default. It is not shortened, only clipped. Repaints. */
void SpHorStrButton::setDisplayString(const QString &text)
{
    d->displayString = text;
    update();
}

QPixmap SpHorStrButton::normalPixmap() const { return d->normalPixmap; }

/**
 * The icon shown normally. Its size becomes that of the icon rectangle, into which the other icons
 * are stretched; the widget's minimum size stays. Repaints. A null icon is stored, but icon
 * rectangle and screen stay as they are until something else repaints.
 */
void SpHorStrButton::setNormalPixmap(const QPixmap &pixmap)
{
    d->normalPixmap = pixmap;
    if (pixmap.isNull())
        return;
    d->iconSize = pixmap.size();
    update();
}

QPixmap SpHorStrButton::pressPixmap() const { return d->pressPixmap; }

/** The icon shown while pressed; without it there is none then. Stored only. */
void SpHorStrButton::setPressPixmap(const QPixmap &pixmap) { d->pressPixmap = pixmap; }

QPixmap SpHorStrButton::disablePixmap() const { return d->disablePixmap; }

/** The icon shown while disabled; without it the normal one is darkened. Stored only. */
void SpHorStrButton::setDisablePixmap(const QPixmap &pixmap) { d->disablePixmap = pixmap; }

QColor SpHorStrButton::normalTextColor() const { return d->normalTextColor; }

/** The colour of the string; white by default. Repaints. */
void SpHorStrButton::setNormalTextColor(const QColor &color)
{
    d->normalTextColor = color;
    update();
}

QColor SpHorStrButton::pressTextColor() const { return d->pressTextColor; }

/** The colour of the string while pressed; red by default. Repaints. */
void SpHorStrButton::setPressTextColor(const QColor &color)
{
    d->pressTextColor = color;
    update();
}

int SpHorStrButton::textTopMargin() const { return d->textTopMargin; }

/**
 * A distance in px by which the layout moves down; it counts only with a textHeight. In StrLeft it
 * moves the icon, in every other layout the string (kept behaviour). Stored only.
 */
void SpHorStrButton::setTextTopMargin(int margin) { d->textTopMargin = margin; }

int SpHorStrButton::textHeight() const { return d->textHeight; }

/**
 * The height of the string's rectangle in px; 0 (the default) or less: that of the button, or in
 * StrCenter that of the icon. Stored only.
 */
void SpHorStrButton::setTextHeight(int height) { d->textHeight = height; }

int SpHorStrButton::textLeftMargin() const { return d->textLeftMargin; }

/**
 * The distance in px by which the string's rectangle moves to the right; it counts only with a
 * textWidth. Stored only.
 */
void SpHorStrButton::setTextLeftMargin(int margin) { d->textLeftMargin = margin; }

int SpHorStrButton::textWidth() const { return d->textWidth; }

/**
 * The width of the string's rectangle in px; 0 (the default) or less: what the icon and a gap of
 * 10 px leave of the button, or in StrCenter the width of the icon. Stored only.
 */
void SpHorStrButton::setTextWidth(int width) { d->textWidth = width; }

QString SpHorStrButton::getButtonId() { return d->buttonId; }

/**
 * Disables the button in software: it looks disabled and a press neither shows nor sounds, but a
 * release emits clicked all the same. The enabled state as a QWidget plays no part. Repaints.
 */
void SpHorStrButton::setBtnDisable(bool disabled)
{
    d->btnDisable = disabled;
    update();
}

/** Sets the pressed look, without a signal. Repaints. */
void SpHorStrButton::setPressState(bool pressed)
{
    d->pressState = pressed;
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
    const Private::Places here = d->places();
    d->drawBackground(painter);
    d->drawIcon(painter, here.icon);
    d->drawCaption(painter, here);
}

/**
 * A press asks for the click sound and shows the pressed look, unless the button is disabled. The
 * event then goes on to QWidget, which hands it to the parent.
 */
void SpHorStrButton::mousePressEvent(QMouseEvent *e)
{
    if (!d->btnDisable) {
        postKeyRequest(this, kBeepRequest);
        d->pressState = true;
    }
    update();
    QWidget::mousePressEvent(e);
}

void SpHorStrButton::mouseMoveEvent(QMouseEvent *e) { QWidget::mouseMoveEvent(e); }

/**
 * Any release emits clicked, wherever the finger was lifted and whether or not the button is
 * disabled (kept behaviour): receivers filter. A disabled button keeps its pressed state. The event
 * then goes on to QWidget.
 */
void SpHorStrButton::mouseReleaseEvent(QMouseEvent *e)
{
    if (!d->btnDisable)
        d->pressState = false;
    update();
    const QPointer<SpHorStrButton> guard(this);
    emit clicked(d->buttonId);
    if (guard)
        QWidget::mouseReleaseEvent(e);
}

// A margin counts only together with the size on its axis. The top margin moves the icon in
// StrLeft and the string in every other layout.
SpHorStrButton::Private::Places SpHorStrButton::Private::places() const
{
    const bool hasWidth = textWidth > 0;
    const bool hasHeight = textHeight > 0;
    const int leftMargin = hasWidth ? boundedPixel(textLeftMargin) : 0;
    const int topMargin = hasHeight ? boundedPixel(textTopMargin) : 0;
    const int beside = iconSize.width() + kGap;
    const QSize room(hasWidth ? textWidth : q->width() - beside,
                     hasHeight ? textHeight : q->height());
    QRect icon = centredTowardMinusInfinity(iconSize, q->rect());

    switch (stringPosition) {
    case StrLeft:
        icon.moveTopLeft({0, icon.top() + topMargin});
        return {icon, boundedRect(beside + leftMargin, 0, room.width(), room.height()),
                Qt::AlignLeft | Qt::AlignVCenter};
    case StrRight:
        icon.moveLeft(q->width() - iconSize.width());
        return {icon, boundedRect(leftMargin, topMargin, room.width(), room.height()),
                Qt::AlignRight | Qt::AlignVCenter};
    case StrCenter:
        return {QRect(QPoint(), iconSize),
                boundedRect(leftMargin, topMargin, hasWidth ? textWidth : iconSize.width(),
                            hasHeight ? textHeight : iconSize.height()),
                Qt::AlignCenter};
    }
    icon.moveLeft(0);
    return {icon, boundedRect(beside + leftMargin, topMargin, room.width(), room.height()),
            Qt::AlignLeft | Qt::AlignVCenter};
}

QColor SpHorStrButton::Private::captionColor() const
{
    if (btnDisable)
        return kDisabledTextColor;
    return pressState ? pressTextColor : normalTextColor;
}

// What a style sheet says of the widget: backgrounds, borders.
void SpHorStrButton::Private::drawBackground(QPainter &painter) const
{
    QStyleOption option;
    option.initFrom(q);
    q->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, q);
}

void SpHorStrButton::Private::drawIcon(QPainter &painter, const QRect &rect) const
{
    if (btnDisable && disablePixmap.isNull()) {
        imageLook.drawVeiled(painter, rect, normalPixmap, kVeil);
        return;
    }
    const QPixmap &enabled = pressState ? pressPixmap : normalPixmap;
    const QPixmap &icon = btnDisable ? disablePixmap : enabled;
    if (!icon.isNull())
        imageLook.drawScaled(painter, rect, icon);
}

void SpHorStrButton::Private::drawCaption(QPainter &painter, const Places &places) const
{
    painter.setPen(captionColor());
    caption.draw(painter, places.text, places.flags, displayString);
}

// To accessibility.
double SpHorStrButton::Private::tell(const QWidget *widget, AccessibleFact fact, const QPoint &)
{
    const Private &d = *static_cast<const SpHorStrButton *>(widget)->d;
    return fact == AccessibleFact::IsPressed ? d.pressState : d.btnDisable;
}
