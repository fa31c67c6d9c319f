#include "moprogress.h"

#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/kepttext.h"

#include <QFont>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>

#include <algorithm>

using namespace panelkit;

namespace
{

constexpr qreal kTop = 90; // degrees
constexpr double kTextShare =
    3.0 / 5.0; // of the height, for the percentage; the caption has the rest

} // namespace

// To cut one path out of another costs more than to fill both, so the outcome is kept with what it
// was made from.
struct MOProgress::Kept {
    int radius = 0;
    int arcHeight = 0;
    int value = -1;
    QPainterPath disc;
    QPainterPath ring;
    QPainterPath done;
    KeptText percentage;
    KeptText caption;
};

/** A ring of 100 px at 50 %. */
MOProgress::MOProgress(QWidget *parent) : QWidget(parent), m_kept(std::make_unique<Kept>()) { }

MOProgress::~MOProgress() = default;

/** The number that btnClicked carries. Stored only. */
void MOProgress::setItemID(int id)
{
    m_itemID = id;
}

/**
 * The progress in percent; 50 by default. Repaints on a change. A value outside 0 to 100 is kept
 * until the next paint, which limits it.
 */
void MOProgress::setCurrentValue(int percent)
{
    change(m_currentValue, percent);
}

/** The outer radius in px; 100 by default. Repaints on a change. */
void MOProgress::setRadius(int radius)
{
    change(m_radius, radius);
}

/** The colour of the ring; a translucent grey by default. Repaints on a change. */
void MOProgress::setNormalColor(QColor color)
{
    change(m_normalColor, color);
}

/** The colour of the part of the ring that is done; orange by default. Repaints on a change. */
void MOProgress::setPressColor(QColor color)
{
    change(m_pressColor, color);
}

/** Whether the ring and its part that is done have an outline; they do by default. Repaints on a
 * change. */
void MOProgress::setBoundary(bool boundary)
{
    change(m_boundary, boundary);
}

/** The colour of the outlines; white by default. Repaints on a change. */
void MOProgress::setBoundaryColor(QColor color)
{
    change(m_boundaryColor, color);
}

/** The thickness of the ring in px, 20 by default; from the radius on nothing is drawn at all.
 * Repaints on a change. */
void MOProgress::setArcHeight(int height)
{
    change(m_arcHeight, height);
}

/** The colour of the middle, which shines through the ring; translucent black by default. Repaints
 * on a change. */
void MOProgress::setInsideColor(QColor color)
{
    change(m_insideColor, color);
}

/**
 * The size of the caption in px, 25 by default. Below 1 the caption has the size of the
 * application's font. Repaints on a change.
 */
void MOProgress::setFontSize(int px)
{
    change(m_fontSize, px);
}

/** The caption below the percentage, which has the widget's own font. Repaints. */
void MOProgress::setDispalyText(QString text)
{
    m_dispalyText = std::move(text);
    update();
}

/** The colour of both texts; white by default. Repaints on a change. */
void MOProgress::setDisplayTextColor(QColor color)
{
    change(m_displayTextColor, color);
}

/** The paint limits the value to 0..100 and writes it back, on purpose. */
void MOProgress::paintEvent(QPaintEvent *)
{
    if (m_arcHeight >= m_radius)
        return;
    m_currentValue = std::clamp(m_currentValue, 0, 100);
    layOut();
    QPainter painter(this);
    painter.translate(QPoint(width() / 2, height() / 2));
    painter.setRenderHint(QPainter::Antialiasing);
    drawRing(painter);
    drawTexts(painter);
}

/** QWidget goes first, which leaves the event to the parent; then a release emits btnClicked unless
 * the widget is disabled. */
void MOProgress::mouseReleaseEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseReleaseEvent(e);
    if (!isEnabled())
        return;
    const QPointer<MOProgress> guard(this);
    emit btnClicked(m_itemID);
    if (!guard && e)
        e->accept(); // there is no way to the parent any more
}

template <typename T> void MOProgress::change(T &member, const T &value)
{
    if (member == value)
        return;
    member = value;
    update();
}

QRectF MOProgress::square() const
{
    const auto radius = qreal(boundedPixel(m_radius));
    return {-radius, -radius, 2 * radius, 2 * radius};
}

void MOProgress::layOut()
{
    if (m_kept->radius == m_radius && m_kept->arcHeight == m_arcHeight
        && m_kept->value == m_currentValue)
        return;
    const auto thickness = qreal(boundedPixel(m_arcHeight));
    QPainterPath inside;
    inside.addEllipse(square().adjusted(thickness, thickness, -thickness, -thickness));
    QPainterPath disc; // a circle alone, without a line to it from the middle
    disc.arcMoveTo(square(), 0);
    disc.arcTo(square(), 0, 360);
    const int sweep = m_currentValue * 360 / -100; // whole degrees, clockwise
    QPainterPath done; // a sector: it starts and ends in the middle
    done.arcTo(square(), kTop, qreal(sweep));

    m_kept->radius = m_radius;
    m_kept->arcHeight = m_arcHeight;
    m_kept->value = m_currentValue;
    m_kept->disc = disc;
    m_kept->ring = disc - inside;
    m_kept->done = done - inside;
}

// The middle is a whole disc with the pen that every painter starts with.
void MOProgress::drawRing(QPainter &painter) const
{
    painter.setBrush(m_insideColor);
    painter.drawPath(m_kept->disc);
    painter.setBrush(m_normalColor);
    if (m_boundary)
        painter.setPen(QPen(m_boundaryColor, 1));
    else
        painter.setPen(Qt::NoPen);
    painter.drawPath(m_kept->ring);
    if (m_currentValue == 0)
        return;
    painter.setBrush(m_pressColor);
    painter.drawPath(m_kept->done);
}

void MOProgress::drawTexts(QPainter &painter) const
{
    const QRectF area = square();
    const auto split = qreal(double(area.height()) * kTextShare);
    painter.setPen(m_displayTextColor);
    m_kept->percentage.draw(painter, QRectF(area.topLeft(), QSizeF(area.width(), split)),
                            Qt::AlignHCenter | Qt::AlignBottom,
                            QStringLiteral("%1%").arg(m_currentValue));
    painter.setFont(applicationFont(m_fontSize));
    m_kept->caption.draw(painter, area.adjusted(0, split, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                         m_dispalyText);
}
