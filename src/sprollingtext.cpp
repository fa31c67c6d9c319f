// SPDX-License-Identifier: Apache-2.0
#include "sprollingtext.h"

#include "detail/accessible.h"
#include "detail/arithmetic.h"
#include "detail/drawntext.h"
#include "detail/fonts.h"
#include "detail/keptlook.h"
#include "detail/linescache.h"
#include "detail/marquee.h"
#include "detail/search.h"
#include "detail/textcache.h"

#include <QFontMetrics>
#include <QGraphicsDropShadowEffect>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace panelkit;

namespace
{

constexpr int kRollInterval = 150; // ms
constexpr int kRollStep = 2; // px
constexpr int kGap = 16; // spaces between the end of a rolling text and its restart
constexpr int kSpareCharacters = 3; // beyond those that can be seen
constexpr qreal kShadowBlur = qreal(0.5); // px
constexpr qreal kFarthestShadow = 16384; // px, either way

// No panel shows so many characters. The first ones of a longer text tell that it is too wide.
constexpr int kMostInSight = 4096;

// How many lengths of a text are tried one after the other to shorten it.
constexpr int kPrefixesTried = 512;

const QLatin1String kEllipsis("...");

// An effect works on a picture that reaches from the text to its shadow. There is none without end.
bool isInReach(const QPointF &offset)
{
    return std::abs(offset.x()) <= kFarthestShadow && std::abs(offset.y()) <= kFarthestShadow;
}

} // namespace

class Q_DECL_HIDDEN SpRollingText::Private
{
public:
    explicit Private(SpRollingText *widget) : q(widget) { }

    bool isWaiting() const { return waitCounter != waitTicks; }
    bool isTooWide(const QString &line) const;
    QString shortened() const;
    void startRolling();
    void forgetPixels();
    void drawResting(QPainter &painter);
    void drawRolling(QPainter &painter);
    int displayWidth();

    SpRollingText *const q;
    QTimer *rollTimer = nullptr;
    QString rollSource; // the text, and when it is too wide the gap
    QString displayText;
    QString text;
    QColor textColor = QColor(255, 255, 255);
    Qt::Alignment textAlignment = Qt::AlignCenter;
    int nextIndex = 0; // in the roll source
    int pixelOffset = 0; // px, to the left
    int firstWidth = 0; // px, of the first character that is displayed
    int fontSize = 20; // px
    bool isRolling = false;
    bool autoRoll = true;
    int waitTicks = 0;
    int waitCounter = 0; // ticks waited so far
    bool dropShadow = false;
    QColor shadowColor = QColor(0, 0, 0);
    QPointF shadowOffset = QPointF(2, 2); // px
    QString measuredText; // what the kept width belongs to
    QFont measuredFont;
    int measuredWidth = 0; // px
    TextCache resting;
    std::unique_ptr<KeptLook<TextSetting>> restingLook;
    LinesCache rolling;
    std::unique_ptr<Marquee> marquee; // of a text that has rolled
};

/** An empty line. */
SpRollingText::SpRollingText(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
    d->rollTimer = new QTimer(this);
    d->rollTimer->setInterval(kRollInterval);
    connect(d->rollTimer, SIGNAL(timeout()), this, SLOT(updateIndex()));
    // Queued, so that the step after a paint is not taken inside it.
    connect(this, SIGNAL(paintFinish()), this, SLOT(paintFinishSlot()), Qt::QueuedConnection);
}

SpRollingText::~SpRollingText() = default;

QString SpRollingText::text() const { return d->text; }

/**
 * Shows a text, from its start: as it is if it fits, to the pixel; otherwise rolling or, with
 * autoRoll off, shortened. A wait that is over is not repeated. Repaints.
 */
void SpRollingText::setText(QString text)
{
    d->rollTimer->stop();
    d->isRolling = false;
    d->forgetPixels();
    d->rollSource = text;
    d->text = std::move(text);
    d->nextIndex = 0;
    d->pixelOffset = 0;
    if (!d->isTooWide(d->text)) {
        d->displayText = d->text;
    } else {
        d->rollSource += QString(kGap, QLatin1Char(' '));
        if (d->autoRoll)
            d->startRolling();
        else
            d->displayText = d->shortened();
    }
    update();
}

int SpRollingText::fontSize() const { return d->fontSize; }

/**
 * Sets the size of the widget's font in px; below 1 it is stored and the font stays. It reads 20
 * until it is set, whatever the font's size is. The text is not laid out again.
 */
void SpRollingText::setFontSize(int size)
{
    setFont(resized(font(), size));
    d->fontSize = size;
}

QColor SpRollingText::textColor() const { return d->textColor; }

/** The colour of the text; white by default. Stored only. */
void SpRollingText::setTextColor(QColor color) { d->textColor = color; }

Qt::Alignment SpRollingText::textAlignment() const { return d->textAlignment; }

/** Where the text stands; in the middle by default. Stored only. */
void SpRollingText::setTextAlignment(Qt::Alignment alignment) { d->textAlignment = alignment; }

bool SpRollingText::dropShodow() const { return d->dropShadow; }

/** Whether effectDropShadow() lays a shadow under the text; off by default. Calls it. */
void SpRollingText::setDropShodow(bool on)
{
    d->dropShadow = on;
    effectDropShadow();
}

QColor SpRollingText::shadowColor() const { return d->shadowColor; }

/** The colour of the shadow; black by default. Calls effectDropShadow(). */
void SpRollingText::setShadowColor(QColor color)
{
    d->shadowColor = color;
    effectDropShadow();
}

QPointF SpRollingText::shadowOffset() const { return d->shadowOffset; }

/** How far the shadow falls, in px; (2, 2) by default. Calls effectDropShadow(). */
void SpRollingText::setShadowOffset(QPointF offset)
{
    d->shadowOffset = offset;
    effectDropShadow();
}

bool SpRollingText::autoRoll() const { return d->autoRoll; }

/** Whether a text that is too wide rolls; on by default. Lays the text out again. */
void SpRollingText::setAutoRoll(bool on)
{
    d->autoRoll = on;
    setText(text());
}

/** Shows nothing; the property `text` keeps what was set, for the next time it is laid out. */
void SpRollingText::clear()
{
    d->rollTimer->stop();
    d->forgetPixels();
    d->rollSource.clear();
    d->displayText.clear();
    d->nextIndex = 0;
    d->pixelOffset = 0;
    d->firstWidth = 0;
    d->isRolling = false;
    update();
}

/**
 * Has the text stand still for this time before it rolls, in whole ticks of 150 ms, from the next
 * tick on; a text that rolls already pauses. 0 and less end a wait.
 */
void SpRollingText::setWaitRoll(int ms)
{
    d->waitTicks = ms > 0 ? ms / kRollInterval : 0;
    d->waitCounter = 0;
}

/**
 * Lays the shadow under the text, as a graphics effect in the place of any other, if it is on.
 * Repaints. An effect that is there stays when the shadow is switched off (kept behaviour);
 * setGraphicsEffect(nullptr) removes it. A shadow that falls out of reach is not seen: its effect
 * is there, but it is not enabled.
 */
void SpRollingText::effectDropShadow()
{
    if (d->dropShadow) {
        auto *shadow = new QGraphicsDropShadowEffect(this);
        shadow->setOffset(d->shadowOffset);
        shadow->setEnabled(isInReach(d->shadowOffset));
        shadow->setColor(d->shadowColor);
        shadow->setBlurRadius(kShadowBlur);
        setGraphicsEffect(shadow);
    }
    update();
}

void SpRollingText::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (d->autoRoll && d->isRolling)
        d->drawRolling(painter);
    else
        d->drawResting(painter);
    painter.end();
    if (d->autoRoll)
        emit paintFinish();
}

void SpRollingText::mouseReleaseEvent(QMouseEvent *e) { QWidget::mouseReleaseEvent(e); }

/** A tick counts down the wait; after that it repaints, and the paint moves the text. */
void SpRollingText::updateIndex()
{
    if (d->isWaiting())
        ++d->waitCounter;
    else
        update();
}

/**
 * The step after each paint: the text moves on, and a character that is out of sight goes from the
 * front while the next one joins the end. The next tick shows it.
 */
void SpRollingText::paintFinishSlot()
{
    if (!d->autoRoll || !d->isRolling || d->isWaiting())
        return;
    d->pixelOffset += kRollStep;
    if (d->pixelOffset >= d->firstWidth) {
        // A text of few, wide characters is displayed whole, and the first one follows the last.
        if (d->nextIndex >= d->rollSource.size())
            d->nextIndex = 0;
        d->displayText = d->displayText.mid(1) + d->rollSource.at(d->nextIndex);
        ++d->nextIndex;
        d->pixelOffset = 0;
        d->firstWidth = QFontMetrics(font()).horizontalAdvance(d->displayText.at(0));
    }
    if (d->nextIndex >= d->rollSource.size())
        d->nextIndex = 0;
}

// What rests and what rolls are not both kept.
void SpRollingText::Private::forgetPixels()
{
    restingLook.reset();
    marquee.reset();
}

// A text as wide as the widget fits. A very long one is not laid out to its end just to see that it
// does not.
bool SpRollingText::Private::isTooWide(const QString &line) const
{
    const QFontMetrics metrics(q->font());
    if (line.size() > kMostInSight
        && metrics.horizontalAdvance(line.left(kMostInSight)) / 2 > q->width())
        return true;
    return metrics.horizontalAdvance(line) > q->width();
}

// As many characters as leave room for the dots and for one pixel.
QString SpRollingText::Private::shortened() const
{
    const QFontMetrics metrics(q->font());
    const int room = q->width() - 1 - metrics.horizontalAdvance(kEllipsis);
    const int count = firstThat(int(rollSource.size()) - 1, kPrefixesTried, [&](int n) {
        return metrics.horizontalAdvance(rollSource.left(n + 1)) > room;
    });
    return rollSource.left(count) + kEllipsis;
}

// The text displayed is a few characters longer than what is seen of it, so that its end shows no
// hole while it moves. The dot counts as a text, with the space that the font puts after letters.
void SpRollingText::Private::startRolling()
{
    const QFontMetrics metrics(q->font());
    const int dots = quotient(q->width(), metrics.horizontalAdvance(QStringLiteral(".")));
    const int count = std::max(0, dots) + kSpareCharacters; // a font may space letters backwards
    displayText = rollSource.left(count);
    nextIndex = count;
    firstWidth = metrics.horizontalAdvance(displayText.at(0));
    isRolling = true;
    rollTimer->start();
}

void SpRollingText::Private::drawResting(QPainter &painter)
{
    painter.setPen(textColor);
    const auto draw = [this](QPainter &p) {
        resting.draw(p, QRectF(q->rect()), int(textAlignment), displayText);
    };
    if (isFilledText(painter)) {
        restingLook.reset();
        draw(painter);
        return;
    }
    if (!restingLook)
        restingLook = std::make_unique<KeptLook<TextSetting>>();
    restingLook->draw(painter, q->rect(),
                      {displayText, QSizeF(q->size()), int(textAlignment), painter.font(),
                       painter.layoutDirection()},
                      draw);
}

// Both ends fade along the diagonal of the widget. A TextCache would place such a pen by the
// window.
void SpRollingText::Private::drawRolling(QPainter &painter)
{
    const QSize area = q->size();
    const QRect place(-pixelOffset, 0, displayWidth(), area.height());
    const Marquee::Look look{
        textColor.rgba(),
        area,
        rolling.beginning(painter, place, int(textAlignment), displayText),
        {displayText, place.size(), int(textAlignment), painter.font(), painter.layoutDirection()}};
    const auto drawApart = [&](QPainter &p, int first) {
        return rolling.drawEverySecond(p, place, int(textAlignment), displayText, first);
    };
    const bool isCut = isInFirstColumn(painter)
        && rolling.mayBeginAt(0, painter, place, int(textAlignment), displayText);
    if (!marquee)
        marquee = std::make_unique<Marquee>();
    if (!isCut && marquee->draw(painter, look, pixelOffset, firstWidth, drawApart))
        return;
    painter.setPen(Marquee::pen(area, textColor));
    rolling.draw(painter, place, int(textAlignment), displayText, q->rect());
}

// The width of the text displayed, which stays the same for many a step.
int SpRollingText::Private::displayWidth()
{
    if (measuredText != displayText || measuredFont != q->font()) {
        measuredText = displayText;
        measuredFont = q->font();
        measuredWidth = QFontMetrics(measuredFont).horizontalAdvance(measuredText);
    }
    return measuredWidth;
}
