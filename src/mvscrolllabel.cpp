// SPDX-License-Identifier: Apache-2.0
#include "mvscrolllabel.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/linescache.h"
#include "detail/textstrip.h"

#include <QByteArray>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QTimerEvent>

#include <algorithm>

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

class Q_DECL_HIDDEN MVScrollLabel::Private
{
public:
    explicit Private(MVScrollLabel *widget) : q(widget) { }

    // What the pixels of a text depend on.
    struct Look {
        QRgb color;
        int cycleHeight;
        TextSetting text;

        auto tied() const
        {
            return std::tie(color, cycleHeight, text.size, text.flags, text.direction, text.text,
                            text.font);
        }
    };

    void endTimer();
    void pushTo(const QPoint &pos);
    void drawText(QPainter &painter, const QRect &inSight);
    void drawDirectly(QPainter &painter, qint64 offset, const QRect &inSight,
                      const TextSetting &text);
    bool copyText(QPainter &painter, const QRect &inSight, const Look &wanted);
    QRect stretchFor(const QRect &part) const;

    MVScrollLabel *const q;
    int scrollOffset = 0; // px
    int timerId = 0; // 0: none; kept when a hidden label's timer ends
    int cycleHeight = 0; // px, after which the text repeats
    QString buttonID = QStringLiteral("ID_MVScrollLabel");
    int scrollSpeed = 50; // ms for each px
    bool isScrolling = false;
    QPoint lastTouch;
    bool isTicking = false; // the timer of the id runs
    LinesCache lines;
    LastKey<Look> look;
    TextSmoothing smoothing;
    TextStrip strip;
};

/** An empty label. */
MVScrollLabel::MVScrollLabel(QWidget *parent, Qt::WindowFlags flags)
    : QLabel(parent, flags), d(std::make_unique<Private>(this))
{
    installAccessibility();
    connect(this, SIGNAL(currentTextChanged()), this, SLOT(metrics()));
}

MVScrollLabel::~MVScrollLabel() = default;

QString MVScrollLabel::buttonID() const { return d->buttonID; }

/** A text for the application's own use; "ID_MVScrollLabel" by default. Stored only. */
void MVScrollLabel::setButtonID(const QString &id) { d->buttonID = id; }

int MVScrollLabel::scrollSpeed() const { return d->scrollSpeed; }

/** How many ms the text takes for a pixel; 50 by default. It counts when scrolling next starts. */
void MVScrollLabel::setScrollSpeed(const int &ms) { d->scrollSpeed = ms; }

bool MVScrollLabel::isScroll() const { return d->isScrolling; }

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
    d->endTimer();
    d->isTicking = d->scrollSpeed >= 0;
    d->timerId = d->isTicking ? startTimer(d->scrollSpeed) : 0;
    d->isScrolling = true;
    emit scrollStateChanged(true);
}

/** Stops scrolling, where it is. */
void MVScrollLabel::stopScroll()
{
    if (d->timerId == 0)
        return;
    d->endTimer();
    d->timerId = 0;
    d->isScrolling = false;
    emit scrollStateChanged(false);
}

/** The text, and again after each cycle; nothing else that a QLabel paints. */
void MVScrollLabel::paintEvent(QPaintEvent *e)
{
    if (d->cycleHeight <= 0)
        return;
    QPainter painter(this);
    d->drawText(painter, e->rect() & rect());
}

void MVScrollLabel::showEvent(QShowEvent *) { metrics(); }

/**
 * Nothing moves in a hidden label. It is still said to scroll, without a signal: when it is shown
 * again, metrics() decides anew.
 */
void MVScrollLabel::hideEvent(QHideEvent *)
{
    d->scrollOffset = 0;
    d->endTimer();
}

/** A tick of the own timer moves the text up by a pixel. */
void MVScrollLabel::timerEvent(QTimerEvent *e)
{
    if (!d->isTicking || e->timerId() != d->timerId) {
        QObject::timerEvent(e); // NOLINT(bugprone-parent-virtual-call): QLabel has no timers
        return;
    }
    ++d->scrollOffset;
    if (d->scrollOffset >= d->cycleHeight)
        d->scrollOffset = 0;
    scroll(0, -1);
}

void MVScrollLabel::mousePressEvent(QMouseEvent *e)
{
    d->lastTouch = e->pos();
    QLabel::mousePressEvent(e);
}

void MVScrollLabel::mouseMoveEvent(QMouseEvent *e)
{
    d->pushTo(e->pos());
    d->lastTouch = e->pos();
    QLabel::mouseMoveEvent(e);
}

void MVScrollLabel::mouseReleaseEvent(QMouseEvent *e)
{
    d->pushTo(e->pos());
    QLabel::mouseReleaseEvent(e);
}

/**
 * Lays the text out anew, from its start. If it is higher than the label, scrolling starts after a
 * while, otherwise it stops.
 */
void MVScrollLabel::metrics()
{
    d->scrollOffset = 0;
    const int textHeight = getHeight();
    d->cycleHeight = saturated(qint64(textHeight) + height());
    const QPointer<MVScrollLabel> guard(this);
    if (textHeight <= height())
        stopScroll();
    else
        QTimer::singleShot(kStartDelay, this, SLOT(startScroll()));
    if (guard)
        update();
}

// The id stays; a second start has no use for the timer of the first.
void MVScrollLabel::Private::endTimer()
{
    if (isTicking)
        q->killTimer(timerId);
    isTicking = false;
}

// A finger that moves down brings back what has scrolled out at the top, and beyond the start of
// the text the offset is negative. The pixels on the screen are moved the other way
// (kept behaviour); the next full repaint shows the place that the offset says.
void MVScrollLabel::Private::pushTo(const QPoint &pos)
{
    const qint64 dy = qint64(pos.y()) - lastTouch.y();
    scrollOffset = saturated(scrollOffset - dy);
    if (scrollOffset >= cycleHeight)
        scrollOffset = 0;
    q->scroll(0, boundedPixel(saturated(-dy)));
}

void MVScrollLabel::Private::drawText(QPainter &painter, const QRect &inSight)
{
    if (-qint64(scrollOffset) > inSight.bottom())
        return;
    const Look wanted{
        painter.pen().color().rgba(),
        cycleHeight,
        {q->text(), q->size(), int(q->alignment()), painter.font(), painter.layoutDirection()}};
    if (!copyText(painter, inSight, wanted))
        drawDirectly(painter, scrollOffset, inSight, wanted.text);
}

void MVScrollLabel::Private::drawDirectly(QPainter &painter, qint64 offset, const QRect &inSight,
                                          const TextSetting &text)
{
    for (qint64 y = -offset; y <= inSight.bottom(); y += cycleHeight) {
        const QRect place(0, int(y), q->width(), boundedPixel(cycleHeight));
        lines.draw(painter, place, text.flags, text.text, inSight);
    }
}

// A look that is shown once is drawn directly; when it is wanted again, its pixels are kept.
bool MVScrollLabel::Private::copyText(QPainter &painter, const QRect &inSight, const Look &wanted)
{
    if (look.changesTo(wanted)) {
        strip.clear();
        return false;
    }
    const QColor color = painter.pen().color();
    const QRect part = inSight.translated(0, scrollOffset);
    if (part.isEmpty() || scrollOffset < 0 || !smoothing.canCopy(painter, color))
        return false;
    if (!strip.holds(painter, part)) {
        const QRect stretch = stretchFor(part);
        const auto drawStretch = [&](QPainter &p) {
            p.translate(stretch.topLeft());
            drawDirectly(p, stretch.top(), QRect(QPoint(), stretch.size()), wanted.text);
        };
        const bool isComposed = strip.compose(painter, color, stretch, drawStretch);
        if (!isComposed)
            return false;
    }
    strip.copy(painter, inSight.topLeft(), part);
    return true;
}

// Twice the area of the label, from the place of the part on in the direction that the text goes.
QRect MVScrollLabel::Private::stretchFor(const QRect &part) const
{
    const bool isBefore = !strip.stretch().isEmpty() && part.top() < strip.stretch().top();
    const int top = isBefore ? std::max(0, scrollOffset - q->height()) : scrollOffset;
    return {0, top, q->width(), 2 * q->height()};
}
