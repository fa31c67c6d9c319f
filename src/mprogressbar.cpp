#include "mprogressbar.h"

#include "detail/arithmetic.h"
#include "detail/geometry.h"
#include "detail/kepttext.h"
#include "detail/keyrequest.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>

using namespace panelkit;

namespace
{

QChar digit(qint64 number)
{
    return QChar(ushort('0' + number));
}

} // namespace

void transFormTime(qint64 seconds, QString &text)
{
    text.clear();
    for (const int divisor : {3600, 60, 1}) {
        const qint64 number = seconds / divisor;
        text += digit(number / 10);
        text += digit(number % 10);
        if (divisor != 1)
            text += QLatin1Char(':');
        seconds -= number * divisor;
    }
}

/** A bar from 0 to 100 that shows 50, in plain colours and without a knob. */
MProgressBar::MProgressBar(QWidget *parent) : QWidget(parent), m_time(std::make_unique<KeptText>())
{
}

MProgressBar::~MProgressBar() = default;

/** The played part, cut from its left. Repaints. */
void MProgressBar::setSliderNormalImage(const QPixmap &image)
{
    m_sliderNormalImage = image;
    update();
}

/** The whole groove; its size is that of the bar's drawing. Repaints. */
void MProgressBar::setSliderPressImage(const QPixmap &image)
{
    m_sliderPressImage = image;
    update();
}

/** The played part of a disabled bar, squeezed into its place, not cut. Repaints. */
void MProgressBar::setSliderDisableImage(const QPixmap &image)
{
    m_sliderDisableImage = image;
    update();
}

/** The knob. Repaints. */
void MProgressBar::setPointNormalImage(const QPixmap &image)
{
    m_pointNormalImage = image;
    update();
}

/**
 * The knob while touched; its size is that of every knob, and without it none is drawn. Repaints.
 */
void MProgressBar::setPointPressImage(const QPixmap &image)
{
    m_pointPressImage = image;
    update();
}

/** The knob of a disabled bar; without it the others serve. Repaints. */
void MProgressBar::setPointDisableImage(const QPixmap &image)
{
    m_pointDisableImage = image;
    update();
}

/** The number that both signals carry. Stored only. */
void MProgressBar::setItemID(int id)
{
    m_itemID = id;
}

/** The value at the right end; 100 by default. Repaints. */
void MProgressBar::setMaxValue(int value)
{
    m_maxValue = value;
    update();
}

/** The value at the left end; 0 by default. Repaints. */
void MProgressBar::setMinValue(int value)
{
    m_minValue = value;
    update();
}

/** Shows a value, without a signal. Repaints. Ignored outside minValue to maxValue. */
void MProgressBar::setCurrentValue(int value)
{
    if (value > m_maxValue || value < m_minValue)
        return;
    m_currentValue = value;
    update();
}

/**
 * In plain colours the width of the knob in px, and none is drawn at 0, the default. With pictures
 * the distance of the middle of the knob from either end of the groove. Repaints.
 */
void MProgressBar::setPonitRadius(int radius)
{
    m_ponitRadius = radius;
    update();
}

/** The colour of the groove; grey by default. Repaints. */
void MProgressBar::setNormalColor(QColor color)
{
    m_normalColor = color;
    update();
}

/** The colour of the knob; light grey by default. Repaints. */
void MProgressBar::setPointNormalColor(QColor color)
{
    m_pointNormalColor = color;
    update();
}

/** The colour of the knob while touched; orange by default. Repaints. */
void MProgressBar::setPointPressColor(QColor color)
{
    m_pointPressColor = color;
    update();
}

/** The colour of the played part; orange by default. Stored only. */
void MProgressBar::setPressColor(QColor color)
{
    m_pressColor = color;
}

/** Whether realValue stands on the knob as a time; only with pictures. Repaints. */
void MProgressBar::setShowValue(bool show)
{
    m_showValue = show;
    update();
}

/** Whether groove and knob have an outline; only in plain colours. Stored only. */
void MProgressBar::setBoundary(bool boundary)
{
    m_boundary = boundary;
}

/** The colour of the outlines; light grey by default. Stored only. */
void MProgressBar::setBoundaryColor(QColor color)
{
    m_boundaryColor = color;
}

/**
 * Feeds the position: it is kept, limited to the range, and shown unless a finger is on the bar.
 * Without a signal.
 */
void MProgressBar::setRealValue(int value)
{
    m_realValue = bounded(value);
    if (!m_pressed)
        setCurrentValue(m_realValue);
}

/** Shows the value of a touch at this x and reports it with valueChanging, changed or not. */
void MProgressBar::updateCurrentValue(QPoint pos)
{
    m_currentValue = valueAt(pos.x());
    update();
    emit valueChanging(m_itemID, m_currentValue);
}

void MProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!hasPictures() || isScaled(painter))
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (!hasPictures()) {
        drawPlain(painter);
        return;
    }
    drawGroove(painter);
    drawKnob(painter);
    drawTime(painter);
}

/** A press asks for the click sound and takes the knob; it goes on to the parent. */
void MProgressBar::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MProgressBar> guard(this);
    if (isEnabled()) {
        postKeyRequest(this, kBeepRequest);
        m_pressed = true;
        updateCurrentValue(e->pos());
    }
    if (guard)
        QWidget::mousePressEvent(e);
}

/** The value follows the finger, or with mouse tracking the pointer, which needs no press. */
void MProgressBar::mouseMoveEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MProgressBar> guard(this);
    if (isEnabled())
        updateCurrentValue(e->pos());
    if (guard)
        QWidget::mouseMoveEvent(e);
}

/** A release emits valueChanging once more, keeps the value and emits valueChangedSig. */
void MProgressBar::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const QPointer<MProgressBar> guard(this);
    if (isEnabled()) {
        m_pressed = false;
        updateCurrentValue(e->pos());
        if (!guard)
            return;
        m_realValue = m_currentValue;
        emit valueChangedSig(m_itemID, m_currentValue);
    }
    if (guard)
        QWidget::mouseReleaseEvent(e);
}

bool MProgressBar::hasPictures() const
{
    return !m_sliderNormalImage.isNull() && !m_sliderPressImage.isNull();
}

// Pictures that are copied pixel by pixel look the same without render hints, which make them a
// sixth dearer.
bool MProgressBar::isScaled(const QPainter &painter) const
{
    const bool isSqueezed = !isEnabled() && !m_sliderDisableImage.isNull();
    return isSqueezed || currentKnob().size() != m_pointPressImage.size()
        || painter.deviceTransform().type() > QTransform::TxTranslate;
}

int MProgressBar::bounded(int value) const
{
    return std::max(m_minValue, std::min(value, m_maxValue));
}

// The part of a length that is played. A range of one value has none; a value left outside of a
// range that has shrunk may make it longer than the length.
int MProgressBar::partOf(int length) const
{
    const qint64 span = qint64(m_maxValue) - m_minValue;
    if (span == 0)
        return 0;
    return boundedPixel(
        saturated((qint64(m_currentValue) - m_minValue) * boundedPixel(length) / span));
}

// With pictures it does not depend on the radius, on purpose, although the place of the knob does:
// both agree where the radius is half of the knob's width.
int MProgressBar::valueAt(int x) const
{
    const bool isPicture = hasPictures();
    const int knob = isPicture ? m_pointPressImage.width() : boundedPixel(m_ponitRadius);
    const int groove = isPicture ? m_sliderPressImage.width() : width();
    const int start = (width() - groove) / 2 + knob / 2;
    if (x < start)
        return m_minValue;
    if (x > width() - start)
        return m_maxValue;
    const double span = double(qint64(m_maxValue) - m_minValue);
    return bounded(toInt(ratio(double(x - start), double(groove - knob)) * span + m_minValue));
}

QRect MProgressBar::grooveRect() const
{
    return centredTowardZero(m_sliderPressImage.size(), rect());
}

QRect MProgressBar::knobRect() const
{
    const QSize size = m_pointPressImage.size();
    const QRect groove = grooveRect();
    const int radius = boundedPixel(m_ponitRadius);
    const int x = groove.left() + radius - size.width() / 2 + partOf(groove.width() - 2 * radius);
    return {QPoint(x, (height() - size.height()) / 2), size};
}

const QPixmap &MProgressBar::currentKnob() const
{
    if (!isEnabled() && !m_pointDisableImage.isNull())
        return m_pointDisableImage;
    return m_pressed ? m_pointPressImage : m_pointNormalImage;
}

void MProgressBar::drawGroove(QPainter &painter) const
{
    const QRect groove = grooveRect();
    painter.drawPixmap(groove, m_sliderPressImage);
    const QRect played(groove.topLeft(), QSize(partOf(groove.width()), groove.height()));
    if (played.isEmpty())
        return;
    if (isEnabled() || m_sliderDisableImage.isNull())
        painter.drawPixmap(played, m_sliderNormalImage, QRect(QPoint(), played.size()));
    else
        painter.drawPixmap(played, m_sliderDisableImage);
}

void MProgressBar::drawKnob(QPainter &painter) const
{
    if (!m_pointPressImage.isNull())
        painter.drawPixmap(knobRect(), currentKnob());
}

void MProgressBar::drawTime(QPainter &painter) const
{
    if (!m_showValue || m_pointPressImage.isNull())
        return;
    QString text;
    transFormTime(m_realValue, text);
    m_time->draw(painter, QRectF(knobRect()), Qt::AlignCenter, text);
}

void MProgressBar::drawPlain(QPainter &painter) const
{
    const int knob = boundedPixel(m_ponitRadius);
    const int left = partOf(width() - knob);
    QRect bar(0, height() * 2 / 5, width(), height() / 5);
    if (m_boundary)
        painter.setPen(QPen(m_boundaryColor));
    else
        painter.setPen(Qt::NoPen);
    painter.setBrush(m_normalColor);
    painter.drawRects(&bar, 1);
    bar.setRight(left + knob / 2 - 1);
    painter.setBrush(m_pressColor);
    painter.drawRects(&bar, 1);
    if (knob <= 0)
        return;
    painter.setBrush(m_pressed ? m_pointPressColor : m_pointNormalColor);
    painter.drawEllipse(QRect(left, (height() - knob) / 2, knob, knob));
}
