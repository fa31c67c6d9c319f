#include "multiplestatebutton.h"

#include "detail/geometry.h"
#include "detail/imagefile.h"

#include <QGraphicsOpacityEffect>
#include <QPainter>

using namespace panelkit;

namespace
{

constexpr int kRefused = -1;
constexpr qreal kDimmed = 0.5; // opacity while disabled

} // namespace

/**
 * A button with its top left at (x, y) in the parent. It is as large as the background or, without
 * one, as the first normal picture; without either it has no size. `id` is what clicked carries.
 *
 * There is one state for each normal picture. The button is disabled if there is none, if the
 * numbers of pictures differ, or if a picture cannot be read; the background may be missing.
 */
MultipleStateButton::MultipleStateButton(int x, int y, int id, QStringList normalPaths,
                                         QStringList pressPaths, QString backgroundPath,
                                         QWidget *parent)
    : QWidget(parent), m_background(pixmapFromFile(backgroundPath)), m_buttonId(id),
      m_disabled(normalPaths.isEmpty() || normalPaths.size() != pressPaths.size()),
      m_opacity(new QGraphicsOpacityEffect(this))
{
    for (int i = 0; i < normalPaths.size(); ++i) {
        m_normalImages += pixmapFromFile(normalPaths.at(i));
        m_pressImages += pixmapFromFile(pressPaths.value(i));
        if (m_normalImages.last().isNull() || m_pressImages.last().isNull())
            m_disabled = true;
    }
    const QPixmap &sized = m_background.isNull() ? m_normalImages.value(0) : m_background;
    setGeometry(QRect(QPoint(x, y), sized.size()));
    setGraphicsEffect(m_opacity);
}

/**
 * Enters a state, which shows at the next paint. Returns 0, or -1 for a value that is refused: one
 * that is no state, and state 0, which is reached by stepping on from the last one only; that is
 * meant.
 */
int MultipleStateButton::setButtonValue(int value)
{
    if (value < 1 || value >= m_normalImages.size())
        return kRefused;
    m_buttonValue = value;
    return 0;
}

/**
 * Disables the button, or enables one that was disabled for want of pictures. Stored only: its look
 * follows at the next paint. Returns 0.
 */
int MultipleStateButton::setButtonDisable(bool disabled)
{
    m_disabled = disabled;
    return 0;
}

/**
 * The background, the picture of the state over its middle, and the opacity of both, which takes
 * one more paint when it changes.
 */
void MultipleStateButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_background);
    const QPixmap image = stateImage();
    painter.drawPixmap(centredTowardZero(image.size(), rect()).topLeft(), image);
    if (m_opacity)
        m_opacity->setOpacity(m_disabled ? kDimmed : qreal(1));
}

/** A press shows the pressed picture, without a request for a click sound. */
void MultipleStateButton::mousePressEvent(QMouseEvent *)
{
    if (m_disabled)
        return;
    m_pressed = true;
    update();
}

/** A release, wherever it is, steps on to the next state and reports it. */
void MultipleStateButton::mouseReleaseEvent(QMouseEvent *)
{
    if (m_disabled)
        return;
    m_pressed = false;
    m_buttonValue = m_buttonValue + 1 < m_normalImages.size() ? m_buttonValue + 1 : 0;
    update();
    emit clicked(m_buttonId, m_buttonValue);
}

QPixmap MultipleStateButton::stateImage() const
{
    const bool isPressedShown = m_pressed && !m_disabled;
    return (isPressedShown ? m_pressImages : m_normalImages).value(m_buttonValue);
}
