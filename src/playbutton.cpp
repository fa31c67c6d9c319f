// SPDX-License-Identifier: Apache-2.0
#include "playbutton.h"

#include "detail/accessible.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"

#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QPixmap>
#include <QPointer>

using namespace panelkit;

namespace
{

constexpr qreal kDimmed = 0.5; // opacity while disabled
constexpr int kOnlyState = 0;

} // namespace

class Q_DECL_HIDDEN PlayButton::Private
{
public:
    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);

    QPixmap normalImage;
    QPixmap pressImage;
    int buttonId = 0;
    bool pressed = false;
    bool disabled = false;
    QPointer<QGraphicsOpacityEffect> opacity; // gone once another effect is installed
};

/**
 * A button with its top left at (x, y) in the parent, as large as the normal picture. `id` is what
 * clicked carries. It is disabled if one of the pictures cannot be read.
 */
PlayButton::PlayButton(int x, int y, int id, QString normalPath, QString pressPath, QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    installAccessibility(AccessibleTeller::PlayButton, Private::tell);
    d->normalImage = pixmapFromFile(normalPath);
    d->pressImage = pixmapFromFile(pressPath);
    d->buttonId = id;
    d->disabled = d->normalImage.isNull() || d->pressImage.isNull();
    d->opacity = new QGraphicsOpacityEffect(this);
    setGeometry(QRect(QPoint(boundedPixel(x), boundedPixel(y)), d->normalImage.size()));
    setGraphicsEffect(d->opacity);
}

PlayButton::~PlayButton() = default;

int PlayButton::getButtonId() const { return d->buttonId; }

/**
 * Disables the button, or enables one that was disabled for want of a picture. Stored only: its
 * look follows at the next paint.
 */
void PlayButton::setButtonDisable(bool disabled) { d->disabled = disabled; }

/** The picture, and its opacity, which takes one more paint when it changes. */
void PlayButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, d->pressed && !d->disabled ? d->pressImage : d->normalImage);
    if (d->opacity)
        d->opacity->setOpacity(d->disabled ? kDimmed : qreal(1));
}

/** A press shows the pressed picture, without a request for a click sound. */
void PlayButton::mousePressEvent(QMouseEvent *)
{
    if (d->disabled)
        return;
    d->pressed = true;
    update();
}

/** A release, wherever it is, is reported before the normal picture comes back. */
void PlayButton::mouseReleaseEvent(QMouseEvent *)
{
    if (d->disabled)
        return;
    d->pressed = false;
    const QPointer<PlayButton> guard(this);
    emit clicked(d->buttonId, kOnlyState);
    if (guard)
        update();
}

// To accessibility.
double PlayButton::Private::tell(const QWidget *widget, AccessibleFact fact, const QPoint &)
{
    const Private &d = *static_cast<const PlayButton *>(widget)->d;
    return fact == AccessibleFact::IsPressed ? d.pressed : d.disabled;
}
