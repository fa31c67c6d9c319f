#include "sprollingtext.h"

#include "detail/arithmetic.h"
#include "detail/fonts.h"
#include "detail/keptlines.h"
#include "detail/kepttext.h"
#include "detail/search.h"

#include <QFontMetrics>
#include <QGraphicsDropShadowEffect>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>

using namespace panelkit;

namespace
{

constexpr int kRollInterval = 150; // ms
constexpr int kRollStep = 2; // px
constexpr int kGap = 16; // spaces between the end of a rolling text and its restart
constexpr int kSpareCharacters = 3; // beyond those that can be seen
constexpr qreal kFadeIn = qreal(0.08); // of the diagonal
constexpr qreal kFadeOut = qreal(0.92);
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

/** An empty line. */
SpRollingText::SpRollingText(QWidget *parent)
    : QWidget(parent), m_rollTimer(new QTimer(this)), m_resting(std::make_unique<KeptText>()),
      m_rolling(std::make_unique<KeptLines>())
{
    m_rollTimer->setInterval(kRollInterval);
    connect(m_rollTimer, SIGNAL(timeout()), this, SLOT(updateIndex()));
    // Queued, so that the step after a paint is not taken inside it.
    connect(this, SIGNAL(paintFinish()), this, SLOT(paintFinishSlot()), Qt::QueuedConnection);
}

SpRollingText::~SpRollingText() = default;

/**
 * Shows a text, from its start: as it is if it fits, to the pixel; otherwise rolling or, with
 * autoRoll off, shortened. A wait that is over is not repeated. Repaints.
 */
void SpRollingText::setText(QString text)
{
    m_rollTimer->stop();
    m_isRolling = false;
    m_rollSource = text;
    m_text = std::move(text);
    m_nextIndex = 0;
    m_pixelOffset = 0;
    if (!isTooWide(m_text)) {
        m_displayText = m_text;
    } else {
        m_rollSource += QString(kGap, QLatin1Char(' '));
        if (m_autoRoll)
            startRolling();
        else
            m_displayText = shortened();
    }
    update();
}

/**
 * Sets the size of the widget's font in px; below 1 it is stored and the font stays. It reads 20
 * until it is set, whatever the font's size is. The text is not laid out again.
 */
void SpRollingText::setFontSize(int size)
{
    setFont(resized(font(), size));
    m_fontSize = size;
}

/** The colour of the text; white by default. Stored only. */
void SpRollingText::setTextColor(QColor color)
{
    m_textColor = color;
}

/** Where the text stands; in the middle by default. Stored only. */
void SpRollingText::setTextAlignment(Qt::Alignment alignment)
{
    m_textAlignment = alignment;
}

/** Whether effectDropShadow() lays a shadow under the text; off by default. Calls it. */
void SpRollingText::setDropShodow(bool on)
{
    m_dropShadow = on;
    effectDropShadow();
}

/** The colour of the shadow; black by default. Calls effectDropShadow(). */
void SpRollingText::setShadowColor(QColor color)
{
    m_shadowColor = color;
    effectDropShadow();
}

/** How far the shadow falls, in px; (2, 2) by default. Calls effectDropShadow(). */
void SpRollingText::setShadowOffset(QPointF offset)
{
    m_shadowOffset = offset;
    effectDropShadow();
}

/** Whether a text that is too wide rolls; on by default. Lays the text out again. */
void SpRollingText::setAutoRoll(bool on)
{
    m_autoRoll = on;
    setText(text());
}

/** Shows nothing; the property `text` keeps what was set, for the next time it is laid out. */
void SpRollingText::clear()
{
    m_rollTimer->stop();
    m_rollSource.clear();
    m_displayText.clear();
    m_nextIndex = 0;
    m_pixelOffset = 0;
    m_firstWidth = 0;
    m_isRolling = false;
    update();
}

/**
 * Has the text stand still for this time before it rolls, in whole ticks of 150 ms, from the next
 * tick on; a text that rolls already pauses. 0 and less end a wait.
 */
void SpRollingText::setWaitRoll(int ms)
{
    m_waitTicks = ms > 0 ? ms / kRollInterval : 0;
    m_waitCounter = 0;
}

/**
 * Lays the shadow under the text, as a graphics effect in the place of any other, if it is on.
 * Repaints. An effect that is there stays when the shadow is switched off; this is meant:
 * setGraphicsEffect(nullptr) removes it. A shadow that falls out of reach is not seen: its effect
 * is there, but it is not enabled.
 */
void SpRollingText::effectDropShadow()
{
    if (m_dropShadow) {
        auto *shadow = new QGraphicsDropShadowEffect(this);
        shadow->setOffset(m_shadowOffset);
        shadow->setEnabled(isInReach(m_shadowOffset));
        shadow->setColor(m_shadowColor);
        shadow->setBlurRadius(kShadowBlur);
        setGraphicsEffect(shadow);
    }
    update();
}

void SpRollingText::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_autoRoll && m_isRolling)
        drawRolling(painter);
    else
        drawResting(painter);
    painter.end();
    if (m_autoRoll)
        emit paintFinish();
}

void SpRollingText::mouseReleaseEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseReleaseEvent(e);
}

/** A tick counts down the wait; after that it repaints, and the paint moves the text. */
void SpRollingText::updateIndex()
{
    if (isWaiting())
        ++m_waitCounter;
    else
        update();
}

/**
 * The step after each paint: the text moves on, and a character that is out of sight goes from the
 * front while the next one joins the end. The next tick shows it.
 */
void SpRollingText::paintFinishSlot()
{
    if (!m_autoRoll || !m_isRolling || isWaiting())
        return;
    m_pixelOffset += kRollStep;
    if (m_pixelOffset >= m_firstWidth) {
        // A text of few, wide characters is displayed whole, and the first one follows the last.
        if (m_nextIndex >= m_rollSource.size())
            m_nextIndex = 0;
        m_displayText = m_displayText.mid(1) + m_rollSource.at(m_nextIndex);
        ++m_nextIndex;
        m_pixelOffset = 0;
        m_firstWidth = QFontMetrics(font()).horizontalAdvance(m_displayText.at(0));
    }
    if (m_nextIndex >= m_rollSource.size())
        m_nextIndex = 0;
}

// A text as wide as the widget fits. A very long one is not laid out to its end just to see that it
// does not.
bool SpRollingText::isTooWide(const QString &text) const
{
    const QFontMetrics metrics(font());
    if (text.size() > kMostInSight
        && metrics.horizontalAdvance(text.left(kMostInSight)) / 2 > width())
        return true;
    return metrics.horizontalAdvance(text) > width();
}

// As many characters as leave room for the dots and for one pixel.
QString SpRollingText::shortened() const
{
    const QFontMetrics metrics(font());
    const int room = width() - 1 - metrics.horizontalAdvance(kEllipsis);
    const int count = firstThat(m_rollSource.size() - 1, kPrefixesTried, [&](int n) {
        return metrics.horizontalAdvance(m_rollSource.left(n + 1)) > room;
    });
    return m_rollSource.left(count) + kEllipsis;
}

// The text displayed is a few characters longer than what is seen of it, so that its end shows no
// hole while it moves. The dot counts as a text, with the space that the font puts after letters.
void SpRollingText::startRolling()
{
    const QFontMetrics metrics(font());
    const int dots = quotient(width(), metrics.horizontalAdvance(QStringLiteral(".")));
    const int count = std::max(0, dots) + kSpareCharacters; // a font may space letters backwards
    m_displayText = m_rollSource.left(count);
    m_nextIndex = count;
    m_firstWidth = metrics.horizontalAdvance(m_displayText.at(0));
    m_isRolling = true;
    m_rollTimer->start();
}

void SpRollingText::drawResting(QPainter &painter)
{
    painter.setPen(m_textColor);
    m_resting->draw(painter, QRectF(rect()), int(m_textAlignment), m_displayText);
}

// Both ends fade along the diagonal of the widget. A KeptText would place such a pen by the window.
void SpRollingText::drawRolling(QPainter &painter)
{
    QLinearGradient fade(rect().topLeft(), rect().bottomRight());
    fade.setColorAt(0, Qt::transparent);
    fade.setColorAt(kFadeIn, m_textColor);
    fade.setColorAt(kFadeOut, m_textColor);
    fade.setColorAt(1, Qt::transparent);
    painter.setPen(QPen(fade, qreal(width()), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const QRect place(-m_pixelOffset, 0, displayWidth(), height());
    m_rolling->draw(painter, place, int(m_textAlignment), m_displayText, rect());
}

// The width of the text displayed, which stays the same for many a step.
int SpRollingText::displayWidth()
{
    if (m_measuredText != m_displayText || m_measuredFont != font()) {
        m_measuredText = m_displayText;
        m_measuredFont = font();
        m_displayWidth = QFontMetrics(m_measuredFont).horizontalAdvance(m_measuredText);
    }
    return m_displayWidth;
}
