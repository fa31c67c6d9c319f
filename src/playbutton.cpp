#include "playbutton.h"

#include "detail/imagefile.h"

#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QPointer>

using namespace panelkit;

namespace
{

constexpr qreal kDimmed = 0.5; // opacity while disabled
constexpr int kOnlyState = 0;

} // namespace

/**
 * A button with its top left at (x, y) in the parent, as large as the normal picture. `id` is what
 * clicked carries. It is disabled if one of the pictures cannot be read.
 */
PlayButton::PlayButton(int x, int y, int id, QString normalPath, QString pressPath, QWidget *parent)
    : QWidget(parent), m_normalImage(pixmapFromFile(normalPath)),
      m_pressImage(pixmapFromFile(pressPath)), m_buttonId(id),
      m_disabled(m_normalImage.isNull() || m_pressImage.isNull()),
      m_opacity(new QGraphicsOpacityEffect(this))
{
    setGeometry(QRect(QPoint(x, y), m_normalImage.size()));
    setGraphicsEffect(m_opacity);
}

/**
 * Disables the button, or enables one that was disabled for want of a picture. Stored only: its
 * look follows at the next paint.
 */
void PlayButton::setButtonDisable(bool disabled)
{
    m_disabled = disabled;
}

/** The picture, and its opacity, which takes one more paint when it changes. */
void PlayButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_pressed && !m_disabled ? m_pressImage : m_normalImage);
    if (m_opacity)
        m_opacity->setOpacity(m_disabled ? kDimmed : qreal(1));
}

/** A press shows the pressed picture, without a request for a click sound. */
void PlayButton::mousePressEvent(QMouseEvent *)
{
    if (m_disabled)
        return;
    m_pressed = true;
    update();
}

/** A release, wherever it is, is reported before the normal picture comes back. */
void PlayButton::mouseReleaseEvent(QMouseEvent *)
{
    if (m_disabled)
        return;
    m_pressed = false;
    const QPointer<PlayButton> guard(this);
    emit clicked(m_buttonId, kOnlyState);
    if (guard)
        update();
}
