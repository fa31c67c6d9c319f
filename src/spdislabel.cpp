// SPDX-License-Identifier: Apache-2.0
#include "spdislabel.h"

#include "detail/accessible.h"
#include "detail/drawntext.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/keptlook.h"
#include "detail/keyrequest.h"
#include "detail/search.h"
#include "detail/textcache.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

using namespace panelkit;

namespace
{

const QLatin1String kEllipsis("...");

// How many lengths of a text are tried one after the other. No label shows more characters.
constexpr int kPrefixesTried = 512;
constexpr int kRemovalsTried = 64; // of what makes room for three dots

} // namespace

class Q_DECL_HIDDEN SpDisLabel::Private
{
public:
    explicit Private(SpDisLabel *widget) : q(widget) { }

    // What a string on its ground depends on.
    struct Look {
        int roundXY; // px
        QSize size; // px
        QColor groundColor;
        QColor textColor;
        Qt::Alignment alignment;
        Qt::LayoutDirection direction;
        QString text;
        QFont font;

        auto tied() const
        {
            return std::tie(roundXY, size, groundColor, textColor, alignment, direction, text,
                            font);
        }
    };

    Look shownLook(const QPainter &painter) const;
    void drawString(QPainter &painter);
    QColor groundColor() const { return isDown ? pressBackgroundColor : normalBackgroundColor; }
    QColor textColor() const { return isDown ? pressFontColor : fontColor; }
    QString shortened(const QString &full) const;
    void drawGround(QPainter &painter) const;
    void drawText(QPainter &painter) const;
    void drawIcon(QPainter &painter) const;

    SpDisLabel *const q;
    DispalyMode displayMode = String;
    QColor fontColor{Qt::white};
    QColor pressFontColor{Qt::white};
    QColor normalBackgroundColor{0, 0, 0, 0};
    QColor pressBackgroundColor{0, 0, 0, 0};
    QString text;
    QString shownText; // as it is drawn, perhaps shortened
    QPixmap icon;
    QSize iconSize{32, 32};
    int fontSize = 30; // px
    bool isDown = false;
    bool isLock = false;
    bool holdMouseEvent = true;
    Qt::Alignment alignment = Qt::AlignCenter;
    bool isBeep = true;
    int btnID = 0;
    int roundXY = 0; // px, 0: square

    KeptLook<Look> look;
    mutable TextCache caption;
};

/**
 * A label in String mode. Its text is "text", but it shows none until one is set: a label that
 * waits for its content is empty.
 */
SpDisLabel::SpDisLabel(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
    d->text = QObject::tr("text");
}

SpDisLabel::~SpDisLabel() = default;

SpDisLabel::DispalyMode SpDisLabel::displayMode() const { return d->displayMode; }

/** What the label shows; String by default. Stored only. With any other value it shows nothing. */
void SpDisLabel::setDisplayMode(const DispalyMode &mode) { d->displayMode = mode; }

QColor SpDisLabel::fontColor() const { return d->fontColor; }

/** The colour of the text; white by default. Repaints. */
void SpDisLabel::setFontColor(const QColor &color)
{
    d->fontColor = color;
    update();
}

QColor SpDisLabel::pressFontColor() const { return d->pressFontColor; }

/** The colour of the text while down; white by default. Stored only. */
void SpDisLabel::setPressFontColor(const QColor &color) { d->pressFontColor = color; }

QColor SpDisLabel::normalBackgroundColor() const { return d->normalBackgroundColor; }

/** The colour of the ground; transparent by default. Stored only. */
void SpDisLabel::setNormalBackgroundColor(const QColor &color) { d->normalBackgroundColor = color; }

QColor SpDisLabel::pressBackgroundColor() const { return d->pressBackgroundColor; }

/** The colour of the ground while down; transparent by default. Stored only. */
void SpDisLabel::setPressBackgroundColor(const QColor &color) { d->pressBackgroundColor = color; }

QString SpDisLabel::text() const { return d->text; }

/**
 * The text. Where it is wider than the label is now, in the font it has now, its end is replaced by
 * "..."; a later change of either does not shorten it anew. Repaints.
 */
void SpDisLabel::setText(const QString &text)
{
    d->text = text;
    d->shownText = d->shortened(text);
    update();
}

QPixmap SpDisLabel::icon() const { return d->icon; }

/**
 * The picture of Picture mode. Its size becomes the icon size and the minimum size of the widget,
 * unless it is null. Repaints in every case.
 */
void SpDisLabel::setIcon(const QPixmap &icon)
{
    d->icon = icon;
    if (!icon.isNull()) {
        d->iconSize = icon.size();
        setMinimumSize(d->iconSize);
    }
    update();
}

QSize SpDisLabel::iconSize() const { return d->iconSize; }

/**
 * A size that the label is given for good: it becomes its fixed size, as far as widgets can have
 * it. The picture is not scaled to it. Repaints.
 */
void SpDisLabel::setIconSize(const QSize &size)
{
    d->iconSize = size;
    setFixedSize(size.expandedTo({0, 0}).boundedTo({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}));
    update();
}

int SpDisLabel::fontSize() const { return d->fontSize; }

/**
 * The size of the widget's font in px; below 1 it is stored and the font stays. It reads 30 until
 * it is set, whatever the font's size is.
 */
void SpDisLabel::setFontSize(int px)
{
    d->fontSize = px;
    if (px < 1)
        return;
    setFont(resized(font(), px));
}

bool SpDisLabel::isDown() const { return d->isDown; }

/** Sets the pressed look, without a signal; this is how a latched label is let go. Repaints. */
void SpDisLabel::setIsDown(const bool &down)
{
    d->isDown = down;
    update();
}

bool SpDisLabel::isLock() const { return d->isLock; }

/** Makes the label latch: it keeps its pressed look after the release. Stored only. */
void SpDisLabel::setIsLock(const bool &lock) { d->isLock = lock; }

bool SpDisLabel::holdMouseEvent() const { return d->holdMouseEvent; }

/** Whether mouse events end here; on by default. Off, they go on to the parent. Stored only. */
void SpDisLabel::setholdMouseEvent(const bool &hold) { d->holdMouseEvent = hold; }

Qt::Alignment SpDisLabel::getAlignment() const { return d->alignment; }

/** How the text stands in the label; Qt::AlignCenter by default. Stored only. */
void SpDisLabel::setAlignment(const Qt::Alignment &alignment) { d->alignment = alignment; }

bool SpDisLabel::isBeep() const { return d->isBeep; }

/** Whether a press asks the application for a click sound; on by default. Stored only. */
void SpDisLabel::setIsBeep(const bool &beep) { d->isBeep = beep; }

int SpDisLabel::btnID() const { return d->btnID; }

/** The number that the signals carry; 0 by default. Stored only. */
void SpDisLabel::setBtnID(int id) { d->btnID = id; }

int SpDisLabel::roundXY() const { return d->roundXY; }

/** The radius of the ground's corners in px; 0, the default, or less: square. Stored only. */
void SpDisLabel::setRoundXY(int radius) { d->roundXY = radius; }

/** A new label without a parent, for loaders that only know this name. */
SpDisLabel *SpDisLabel::GetInstance() { return new SpDisLabel(nullptr); }

/** Deletes a label; a null pointer is fine. */
void SpDisLabel::ReleaseInstance(SpDisLabel *p) { delete p; }

void SpDisLabel::setNormalText(const QString &text)
{
    d->text = text;
    d->shownText = text;
    update();
}

void SpDisLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    switch (d->displayMode) {
    case String:
        d->drawString(painter);
        break;
    case Picture:
        d->look.forget();
        d->drawIcon(painter);
        break;
    }
}

/**
 * A press asks for the click sound and emits pressed. Only a string shows the pressed look: a
 * picture has none, so that nothing repaints.
 */
void SpDisLabel::mousePressEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mousePressEvent(e);
    if (d->isBeep)
        postKeyRequest(this, kBeepRequest);
    if (d->displayMode == String) {
        d->isDown = true;
        update();
    }
    const QPointer<SpDisLabel> guard(this);
    emit pressed(d->btnID);
    if (!guard)
        e->accept(); // Qt would look for the parent of a widget that is gone
}

void SpDisLabel::mouseMoveEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mouseMoveEvent(e);
}

/** Any release emits released, wherever the finger was lifted. */
void SpDisLabel::mouseReleaseEvent(QMouseEvent *e)
{
    if (!d->holdMouseEvent)
        QWidget::mouseReleaseEvent(e);
    if (d->displayMode == String) {
        if (!d->isLock)
            d->isDown = false;
        update();
    }
    const QPointer<SpDisLabel> guard(this);
    emit released(d->btnID);
    if (!guard)
        e->accept(); // Qt would look for the parent of a widget that is gone
}

// First the text is cut one character before the one that reaches the last column of pixels, then
// as far again as the dots need.
QString SpDisLabel::Private::shortened(const QString &full) const
{
    const QFontMetrics metrics(q->font());
    const auto widthOf = [&metrics](const QString &part) {
        return metrics.horizontalAdvance(part);
    };
    if (widthOf(full) <= q->width())
        return full;
    const int reaching = firstThat(int(full.size()) + 1, kPrefixesTried,
                                   [&](int n) { return widthOf(full.left(n)) > q->width() - 1; });
    const int most = qMax(0, reaching - 1);
    const int dropped = firstThat(most, kRemovalsTried, [&](int n) {
        return widthOf(full.left(most - n) + kEllipsis) <= q->width();
    });
    return full.left(most - dropped) + kEllipsis;
}

SpDisLabel::Private::Look SpDisLabel::Private::shownLook(const QPainter &painter) const
{
    return {roundXY,     q->size(),     groundColor(),
            textColor(), alignment,     painter.layoutDirection(),
            shownText,   painter.font()};
}

// Soft corners and letters cost more than all the rest, so that they are kept. A square ground
// alone is filled as fast as it is copied.
void SpDisLabel::Private::drawString(QPainter &painter)
{
    const auto draw = [this](QPainter &p) {
        drawGround(p);
        drawText(p);
    };
    if ((roundXY == 0 && shownText.isEmpty()) || isFilledText(painter)) {
        look.forget();
        draw(painter);
    } else {
        look.draw(painter, q->rect(), shownLook(painter), draw);
    }
}

void SpDisLabel::Private::drawGround(QPainter &painter) const
{
    if (roundXY == 0) {
        painter.fillRect(q->rect(), groundColor());
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(groundColor());
    painter.drawRoundedRect(QRectF(q->rect()), qreal(roundXY), qreal(roundXY), Qt::AbsoluteSize);
    painter.setBrush(Qt::NoBrush);
}

void SpDisLabel::Private::drawText(QPainter &painter) const
{
    painter.setPen(textColor());
    caption.draw(painter, q->rect(), int(alignment), shownText);
}

void SpDisLabel::Private::drawIcon(QPainter &painter) const
{
    if (!icon.isNull())
        painter.drawPixmap(centredTowardZero(icon.size(), q->rect()).topLeft(), icon);
}
