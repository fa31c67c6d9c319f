#include "mvscrolllabel.h"

#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/keptlines.h"

#include <QByteArray>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QTimerEvent>

using namespace panelkit;

namespace
{

constexpr int kStartDelay = 2000; // ms
constexpr int kMostBytes = 1023; // of a wrapped text
constexpr int kSpareHeight = 10; // px, below the last line

struct Wrapped {
    QByteArray text;
    int lines = 1;
};

// Breaks a text wherever the next character would reach beyond the width, and cuts it where it has
// the most bytes that are shown. A character that is wider than all there is has a line to itself,
// after an empty one if it is the first.
Wrapped wrapped(const QByteArray &text, int width, const QFontMetrics &metrics)
{
    Wrapped result;
    int lineWidth = 0;
    const auto breakLine = [&] {
        result.text += '\n';
        ++result.lines;
        lineWidth = 0;
    };
    for (const char c : text) {
        if (c == '\n') {
            breakLine();
        } else {
            const int charWidth = metrics.horizontalAdvance(QLatin1Char(c));
            if (lineWidth + charWidth > width)
                breakLine();
            if (result.text.size() < kMostBytes) {
                result.text += c;
                lineWidth += charWidth;
            }
        }
        if (result.text.size() == kMostBytes)
            break;
    }
    return result;
}

} // namespace

/** An empty label. */
MVScrollLabel::MVScrollLabel(QWidget *parent, Qt::WindowFlags flags)
    : QLabel(parent, flags), m_lines(std::make_unique<KeptLines>())
{
    connect(this, SIGNAL(currentTextChanged()), this, SLOT(metrics()));
}

MVScrollLabel::~MVScrollLabel() = default;

/** A text for the application's own use; "ID_MVScrollLabel" by default. Stored only. */
void MVScrollLabel::setButtonID(const QString &id)
{
    m_buttonID = id;
}

/** How many ms the text takes for a pixel; 50 by default. It counts when scrolling next starts. */
void MVScrollLabel::setScrollSpeed(const int &ms)
{
    m_scrollSpeed = ms;
}

/**
 * Wraps the text to the width, so that text() has its line feeds from then on, and is what it is
 * compared with by setText(). Returns the height of its lines, in px, and a little more.
 */
int MVScrollLabel::getHeight()
{
    const QFontMetrics fontMetrics(font());
    const Wrapped fit = wrapped(text().left(kMostBytes).toLatin1(), width(), fontMetrics);
    QLabel::setText(QString::fromLatin1(fit.text));
    return saturated(qint64(fit.lines) * fontMetrics.height() + kSpareHeight);
}

/** Sets the text, unless it is the one that is there, and emits currentTextChanged. */
void MVScrollLabel::setText(QString curText)
{
    if (curText == text())
        return;
    QLabel::setText(curText);
    emit currentTextChanged();
}

/**
 * Scrolls, at the speed of this moment, whether it is necessary or not. A negative speed has no
 * timer, so that nothing moves.
 */
void MVScrollLabel::startScroll()
{
    endTimer();
    m_isTicking = m_scrollSpeed >= 0;
    m_timerId = m_isTicking ? startTimer(m_scrollSpeed) : 0;
    m_isScrolling = true;
    emit scrollStateChanged(true);
}

/** Stops scrolling, where it is. */
void MVScrollLabel::stopScroll()
{
    if (m_timerId == 0)
        return;
    endTimer();
    m_timerId = 0;
    m_isScrolling = false;
    emit scrollStateChanged(false);
}

/** The text, and again after each cycle; nothing else that a QLabel paints. */
void MVScrollLabel::paintEvent(QPaintEvent *e)
{
    if (m_cycleHeight <= 0)
        return;
    const QRect inSight = e ? e->rect() : rect();
    QPainter painter(this);
    for (qint64 y = -qint64(m_scrollOffset); y < height(); y += m_cycleHeight) {
        const QRect place(0, int(y), width(), boundedPixel(m_cycleHeight));
        m_lines->draw(painter, place, int(alignment()), text(), inSight);
    }
}

void MVScrollLabel::showEvent(QShowEvent *)
{
    metrics();
}

/**
 * Nothing moves in a hidden label. It is still said to scroll, without a signal, and that is meant:
 * when it is shown again, metrics() decides anew.
 */
void MVScrollLabel::hideEvent(QHideEvent *)
{
    m_scrollOffset = 0;
    endTimer();
}

/** A tick of the own timer moves the text up by a pixel. */
void MVScrollLabel::timerEvent(QTimerEvent *e)
{
    if (!e)
        return;
    if (!m_isTicking || e->timerId() != m_timerId) {
        QObject::timerEvent(e); // NOLINT(bugprone-parent-virtual-call): QLabel has no timers
        return;
    }
    ++m_scrollOffset;
    if (m_scrollOffset >= m_cycleHeight)
        m_scrollOffset = 0;
    scroll(0, -1);
}

void MVScrollLabel::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    m_lastTouch = e->pos();
    QLabel::mousePressEvent(e);
}

void MVScrollLabel::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    pushTo(e->pos());
    m_lastTouch = e->pos();
    QLabel::mouseMoveEvent(e);
}

void MVScrollLabel::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    pushTo(e->pos());
    QLabel::mouseReleaseEvent(e);
}

/**
 * Lays the text out anew, from its start. If it is higher than the label, scrolling starts after a
 * while, otherwise it stops.
 */
void MVScrollLabel::metrics()
{
    m_scrollOffset = 0;
    const int textHeight = getHeight();
    m_cycleHeight = saturated(qint64(textHeight) + height());
    const QPointer<MVScrollLabel> guard(this);
    if (textHeight <= height())
        stopScroll();
    else
        QTimer::singleShot(kStartDelay, this, SLOT(startScroll()));
    if (guard)
        update();
}

// The id stays; a second start has no use for the timer of the first.
void MVScrollLabel::endTimer()
{
    if (m_isTicking)
        killTimer(m_timerId);
    m_isTicking = false;
}

// A finger that moves down brings back what has scrolled out at the top, and beyond the start of
// the text the offset is negative. The pixels on the screen are moved the other way, on purpose:
// the next full repaint shows the place that the offset says.
void MVScrollLabel::pushTo(const QPoint &pos)
{
    const qint64 dy = qint64(pos.y()) - m_lastTouch.y();
    m_scrollOffset = saturated(m_scrollOffset - dy);
    if (m_scrollOffset >= m_cycleHeight)
        m_scrollOffset = 0;
    scroll(0, boundedPixel(saturated(-dy)));
}
