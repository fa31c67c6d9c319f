#include "spdislabel.h"

#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/keptlayer.h"
#include "detail/kepttext.h"
#include "detail/keyrequest.h"
#include "detail/search.h"

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

// Qt looks for the parent of a widget that has left an event to it, and does not expect that the
// widget is gone.
void keepFromParent(QMouseEvent *e)
{
    if (e)
        e->accept();
}

} // namespace

/**
 * A label in String mode. Its text is "text", but it shows none until one is set, on purpose: a
 * label that waits for its content is empty.
 */
SpDisLabel::SpDisLabel(QWidget *parent)
    : QWidget(parent), m_text(QObject::tr("text")), m_ground(std::make_unique<KeptLayer>()),
      m_caption(std::make_unique<KeptText>())
{
}

SpDisLabel::~SpDisLabel() = default;

/** What the label shows; String by default. Stored only. With any other value it shows nothing. */
void SpDisLabel::setDisplayMode(const DispalyMode &mode)
{
    m_displayMode = mode;
}

/** The colour of the text; white by default. Repaints. */
void SpDisLabel::setFontColor(const QColor &color)
{
    m_fontColor = color;
    update();
}

/** The colour of the text while down; white by default. Stored only. */
void SpDisLabel::setPressFontColor(const QColor &color)
{
    m_pressFontColor = color;
}

/** The colour of the ground; transparent by default. Stored only. */
void SpDisLabel::setNormalBackgroundColor(const QColor &color)
{
    m_normalBackgroundColor = color;
}

/** The colour of the ground while down; transparent by default. Stored only. */
void SpDisLabel::setPressBackgroundColor(const QColor &color)
{
    m_pressBackgroundColor = color;
}

/**
 * The text. Where it is wider than the label is now, in the font it has now, its end is replaced by
 * "..."; a later change of either does not shorten it anew. Repaints.
 */
void SpDisLabel::setText(const QString &text)
{
    m_text = text;
    m_shownText = shortened(text);
    update();
}

/**
 * The picture of Picture mode. Its size becomes the icon size and the minimum size of the widget,
 * unless it is null. Repaints in every case.
 */
void SpDisLabel::setIcon(const QPixmap &icon)
{
    m_icon = icon;
    if (!icon.isNull()) {
        m_iconSize = icon.size();
        setMinimumSize(m_iconSize);
    }
    update();
}

/**
 * A size that the label is given for good: it becomes its fixed size, as far as widgets can have
 * it. The picture is not scaled to it. Repaints.
 */
void SpDisLabel::setIconSize(const QSize &size)
{
    m_iconSize = size;
    setFixedSize(size.expandedTo({0, 0}).boundedTo({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}));
    update();
}

/**
 * The size of the widget's font in px; below 1 it is stored and the font stays. It reads 30 until
 * it is set, whatever the font's size is.
 */
void SpDisLabel::setFontSize(int px)
{
    m_fontSize = px;
    if (px < 1)
        return;
    setFont(resized(font(), px));
}

/** Sets the pressed look, without a signal; this is how a latched label is let go. Repaints. */
void SpDisLabel::setIsDown(const bool &down)
{
    m_isDown = down;
    update();
}

/** Makes the label latch: it keeps its pressed look after the release. Stored only. */
void SpDisLabel::setIsLock(const bool &lock)
{
    m_isLock = lock;
}

/** Whether mouse events end here; on by default. Off, they go on to the parent. Stored only. */
void SpDisLabel::setholdMouseEvent(const bool &hold)
{
    m_holdMouseEvent = hold;
}

/** How the text stands in the label; Qt::AlignCenter by default. Stored only. */
void SpDisLabel::setAlignment(const Qt::Alignment &alignment)
{
    m_alignment = alignment;
}

/** Whether a press asks the application for a click sound; on by default. Stored only. */
void SpDisLabel::setIsBeep(const bool &beep)
{
    m_isBeep = beep;
}

/** The number that the signals carry; 0 by default. Stored only. */
void SpDisLabel::setBtnID(int id)
{
    m_btnID = id;
}

/** The radius of the ground's corners in px; 0, the default, or less: square. Stored only. */
void SpDisLabel::setRoundXY(int radius)
{
    m_roundXY = radius;
}

/** A new label without a parent, for loaders that only know this name. */
SpDisLabel *SpDisLabel::GetInstance()
{
    return new SpDisLabel(nullptr);
}

/** Deletes a label; a null pointer is fine. */
void SpDisLabel::ReleaseInstance(SpDisLabel *p)
{
    delete p;
}

void SpDisLabel::setNormalText(const QString &text)
{
    m_text = text;
    m_shownText = text;
    update();
}

void SpDisLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    switch (m_displayMode) {
    case String:
        drawGround(painter);
        drawText(painter);
        break;
    case Picture:
        drawIcon(painter);
        break;
    }
}

/**
 * A press asks for the click sound and emits pressed. Only a string shows the pressed look: a
 * picture has none, so that nothing repaints.
 */
void SpDisLabel::mousePressEvent(QMouseEvent *e)
{
    if (!m_holdMouseEvent && e)
        QWidget::mousePressEvent(e);
    if (m_isBeep)
        postKeyRequest(this, kBeepRequest);
    if (m_displayMode == String) {
        m_isDown = true;
        update();
    }
    const QPointer<SpDisLabel> guard(this);
    emit pressed(m_btnID);
    if (!guard)
        keepFromParent(e);
}

void SpDisLabel::mouseMoveEvent(QMouseEvent *e)
{
    if (!m_holdMouseEvent && e)
        QWidget::mouseMoveEvent(e);
}

/** Any release emits released, wherever the finger was lifted. */
void SpDisLabel::mouseReleaseEvent(QMouseEvent *e)
{
    if (!m_holdMouseEvent && e)
        QWidget::mouseReleaseEvent(e);
    if (m_displayMode == String) {
        if (!m_isLock)
            m_isDown = false;
        update();
    }
    const QPointer<SpDisLabel> guard(this);
    emit released(m_btnID);
    if (!guard)
        keepFromParent(e);
}

// First the text is cut one character before the one that reaches the last column of pixels, then
// as far again as the dots need.
QString SpDisLabel::shortened(const QString &text) const
{
    const QFontMetrics metrics(font());
    const auto widthOf = [&metrics](const QString &part) {
        return metrics.horizontalAdvance(part);
    };
    if (widthOf(text) <= width())
        return text;
    const int reaching = firstThat(text.size() + 1, kPrefixesTried,
                                   [&](int n) { return widthOf(text.left(n)) > width() - 1; });
    const int most = qMax(0, reaching - 1);
    const int dropped = firstThat(most, kRemovalsTried, [&](int n) {
        return widthOf(text.left(most - n) + kEllipsis) <= width();
    });
    return text.left(most - dropped) + kEllipsis;
}

// A rounded ground is kept as pixels; its corners cost more than all the rest.
void SpDisLabel::drawGround(QPainter &painter) const
{
    const QColor color = m_isDown ? m_pressBackgroundColor : m_normalBackgroundColor;
    if (m_roundXY == 0) {
        painter.fillRect(rect(), color);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF area(rect());
    const quint64 rgba = color.rgba64();
    const KeptLayer::Content content{
        area, {double(m_roundXY), double(rgba >> 32), double(rgba & 0xffffffff)}};
    m_ground->draw(painter, painter.worldTransform(), content, [&](QPainter &p) {
        p.setBrush(color);
        p.drawRoundedRect(area, qreal(m_roundXY), qreal(m_roundXY), Qt::AbsoluteSize);
        p.setBrush(Qt::NoBrush);
    });
}

void SpDisLabel::drawText(QPainter &painter) const
{
    painter.setPen(m_isDown ? m_pressFontColor : m_fontColor);
    m_caption->draw(painter, rect(), int(m_alignment), m_shownText);
}

void SpDisLabel::drawIcon(QPainter &painter) const
{
    if (!m_icon.isNull())
        painter.drawPixmap(centredTowardZero(m_icon.size(), rect()).topLeft(), m_icon);
}
