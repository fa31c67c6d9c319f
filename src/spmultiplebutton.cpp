#include "spmultiplebutton.h"

#include "detail/geometry.h"
#include "detail/imagefile.h"
#include "detail/keyrequest.h"

#include <QGraphicsOpacityEffect>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace panelkit;

namespace
{

constexpr int kMostStates = 20;
constexpr qreal kDimmed = qreal(0.5); // opacity of a disabled button

// An opacity effect composes all of its widget, on the screen or not. What is far larger than any
// picture (1 GiB) is shown as it is instead: a wrong size must not take the memory of the whole
// device.
class Dimming : public QGraphicsOpacityEffect
{
public:
    using QGraphicsOpacityEffect::QGraphicsOpacityEffect;

protected:
    void draw(QPainter *painter) override
    {
        constexpr double kLargest = 16384.0 * 16384.0; // px
        const QSizeF size = sourceBoundingRect().size();
        if (double(size.width()) * double(size.height()) > kLargest)
            drawSource(painter);
        else
            QGraphicsOpacityEffect::draw(painter);
    }
};

QList<QPixmap> madeOfNull(int count)
{
    QList<QPixmap> images;
    for (int i = 0; i < count; ++i)
        images.append(QPixmap());
    return images;
}

// What a new button has for pictures, shared by all of them until they get their own.
const QList<QPixmap> &nullImages()
{
    static const QList<QPixmap> images = madeOfNull(kMostStates);
    return images;
}

bool areAllThere(const QList<QPixmap> &images, int count)
{
    return std::none_of(images.begin(), images.begin() + count,
                        [](const QPixmap &image) { return image.isNull(); });
}

// A list that has no such entry grows by it at its end, so that states can be added to a set.
void replaceEntry(QList<QPixmap> &images, int state, const QPixmap &image)
{
    if (state < images.size())
        images.replace(state, image);
    else
        images.append(image);
}

bool canBeStates(int normal, int press)
{
    return normal == press && normal <= kMostStates;
}

QList<QPixmap> fromFiles(const QList<QString> &paths)
{
    QList<QPixmap> images;
    for (const QString &path : paths)
        images.append(pixmapFromFile(path));
    return images;
}

} // namespace

/**
 * A button of 20 states without any picture: it paints nothing and ignores touches. Its opacity
 * effect has the opacity that Qt gives it, 0.7, until the first paint of a complete set.
 */
SpMultipleButton::SpMultipleButton(QWidget *parent)
    : QWidget(parent), m_normalImages(nullImages()), m_pressImages(nullImages()),
      m_opacity(new Dimming(this))
{
    setGraphicsEffect(m_opacity);
}

/** The number that clicked carries; 0 by default. Stored only. */
void SpMultipleButton::setButtonId(int id)
{
    m_buttonId = id;
}

/**
 * The number of states; 20 by default. Stored if it is above 0 and there are as many normal
 * pictures, null ones included; in every case the set is checked anew. The current state stays,
 * even where there is none of that number any more: it has no picture then, and the next click
 * leads to the first.
 */
void SpMultipleButton::setTotalValue(int v)
{
    if (v > 0 && v <= m_normalImages.size())
        m_totalValue = v;
    checkData();
}

/** The state that is shown, from 0; others than there are, are ignored. Repaints in every case. */
void SpMultipleButton::setCurrentValue(int v)
{
    if (v >= 0 && v < m_totalValue)
        m_currentValue = v;
    update();
}

/**
 * Disables the button in software: it is dimmed to half its opacity and ignores touches, which
 * still end here. The enabled state as a QWidget plays no part. Checks the set anew, but does not
 * repaint: the look changes with the next paint.
 */
void SpMultipleButton::setDisableState(bool disabled)
{
    m_disableState = disabled;
    checkData();
}

/**
 * The picture under every state, shown even while the set is incomplete. Its size becomes the
 * minimum size of the widget, unless it is null. No repaint by itself.
 */
void SpMultipleButton::setBackgroundImage(QPixmap image)
{
    m_backgroundImage = image;
    if (!image.isNull())
        setMinimumSize(image.size());
}

/**
 * The pictures of the first eight states; the digit is the state. The set is checked anew, without
 * a repaint. Where a list that was set as a whole has no such entry, the picture becomes its last.
 */
void SpMultipleButton::setNormalImage0(QPixmap image)
{
    replaceNormalImage(0, image);
}

void SpMultipleButton::setNormalImage1(QPixmap image)
{
    replaceNormalImage(1, image);
}

void SpMultipleButton::setNormalImage2(QPixmap image)
{
    replaceNormalImage(2, image);
}

void SpMultipleButton::setNormalImage3(QPixmap image)
{
    replaceNormalImage(3, image);
}

void SpMultipleButton::setNormalImage4(QPixmap image)
{
    replaceNormalImage(4, image);
}

void SpMultipleButton::setNormalImage5(QPixmap image)
{
    replaceNormalImage(5, image);
}

void SpMultipleButton::setNormalImage6(QPixmap image)
{
    replaceNormalImage(6, image);
}

void SpMultipleButton::setNormalImage7(QPixmap image)
{
    replaceNormalImage(7, image);
}

/**
 * The pressed pictures of the first eight states, like the normal ones. That of state 0 alone also
 * gives the widget its minimum size, on purpose: the size of the background, or without one its
 * own, unless it is null.
 */
void SpMultipleButton::setPressImage0(QPixmap image)
{
    if (!m_backgroundImage.isNull())
        setMinimumSize(m_backgroundImage.size());
    else if (!image.isNull())
        setMinimumSize(image.size());
    replacePressImage(0, image);
}

void SpMultipleButton::setPressImage1(QPixmap image)
{
    replacePressImage(1, image);
}

void SpMultipleButton::setPressImage2(QPixmap image)
{
    replacePressImage(2, image);
}

void SpMultipleButton::setPressImage3(QPixmap image)
{
    replacePressImage(3, image);
}

void SpMultipleButton::setPressImage4(QPixmap image)
{
    replacePressImage(4, image);
}

void SpMultipleButton::setPressImage5(QPixmap image)
{
    replacePressImage(5, image);
}

void SpMultipleButton::setPressImage6(QPixmap image)
{
    replacePressImage(6, image);
}

void SpMultipleButton::setPressImage7(QPixmap image)
{
    replacePressImage(7, image);
}

/**
 * All pictures at once, up to 20 states: lists of different lengths or longer ones are ignored. The
 * number of states becomes their length, and the set counts as complete without a check, on
 * purpose: a state may have no picture in this way. The size of the second normal picture becomes
 * the minimum size of the widget, if there is one that is not null: the first is the state "off",
 * which may be a smaller picture. No repaint.
 */
void SpMultipleButton::setPixmapList(const QList<QPixmap> &normal, const QList<QPixmap> &press)
{
    if (!canBeStates(normal.size(), press.size()))
        return;
    adoptPixmapLists(normal, press);
    const QPixmap second = m_normalImages.value(1);
    if (!second.isNull())
        setMinimumSize(second.size());
}

/**
 * The same from files: those that cannot be read leave null pictures. The minimum size stays as it
 * is. The lists come as copies, as the interface has it; Qt shares what is in them.
 */
void SpMultipleButton::setPixmapList(
    QList<QString> normal, // NOLINT(performance-unnecessary-value-param)
    QList<QString> press) // NOLINT(performance-unnecessary-value-param)
{
    if (canBeStates(normal.size(), press.size()))
        adoptPixmapLists(fromFiles(normal), fromFiles(press));
}

/** Whether a click advances the state; on by default. Stored only. */
void SpMultipleButton::setAutoChange(bool change)
{
    m_autoChange = change;
}

/**
 * Checks the set: it is complete when both lists have the same length, reach as far as the number
 * of states, and have a picture for each. Only a complete set is painted and can be touched.
 */
void SpMultipleButton::checkData()
{
    m_dataValid = m_totalValue <= m_normalImages.size()
        && m_normalImages.size() == m_pressImages.size()
        && areAllThere(m_normalImages, m_totalValue) && areAllThere(m_pressImages, m_totalValue);
}

void SpMultipleButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawCentred(painter, m_backgroundImage);
    if (!m_dataValid)
        return;
    drawCentred(painter, stateImage());
    painter.end();
    dim();
}

/** A press asks for the click sound and shows the pressed picture. */
void SpMultipleButton::mousePressEvent(QMouseEvent *)
{
    if (m_disableState || !m_dataValid)
        return;
    postKeyRequest(this, kBeepRequest);
    m_pressed = true;
    update();
}

/**
 * Any release goes to the next state, or back to the first from the last and from any that is none,
 * and emits clicked with the state it has reached.
 */
void SpMultipleButton::mouseReleaseEvent(QMouseEvent *)
{
    if (m_disableState || !m_dataValid)
        return;
    m_pressed = false;
    if (m_autoChange)
        ++m_currentValue;
    if (m_currentValue >= m_totalValue)
        m_currentValue = 0;
    update();
    emit clicked(m_buttonId, m_currentValue);
}

void SpMultipleButton::replaceNormalImage(int state, const QPixmap &image)
{
    replaceEntry(m_normalImages, state, image);
    checkData();
}

void SpMultipleButton::replacePressImage(int state, const QPixmap &image)
{
    replaceEntry(m_pressImages, state, image);
    checkData();
}

void SpMultipleButton::adoptPixmapLists(const QList<QPixmap> &normal, const QList<QPixmap> &press)
{
    m_normalImages = normal;
    m_pressImages = press;
    m_totalValue = normal.size();
    m_dataValid = true;
}

QPixmap SpMultipleButton::stateImage() const
{
    const bool isPressed = m_pressed && !m_disableState;
    return (isPressed ? m_pressImages : m_normalImages).value(m_currentValue);
}

void SpMultipleButton::drawCentred(QPainter &painter, const QPixmap &image) const
{
    if (!image.isNull())
        painter.drawPixmap(centredTowardMinusInfinity(image.size(), rect()).topLeft(), image);
}

// The effect already has this paint in hand: an opacity that changes shows in another one, which it
// asks for itself.
void SpMultipleButton::dim()
{
    if (m_opacity)
        m_opacity->setOpacity(m_disableState ? kDimmed : qreal(1));
}
