// SPDX-License-Identifier: Apache-2.0
#include "multiplestatebutton.h"

#include "detail/accessible.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"

#include <QGraphicsOpacityEffect>
#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QPointer>

using namespace panelkit;

namespace
{

constexpr int kRefused = -1;
constexpr qreal kDimmed = 0.5; // opacity while disabled

} // namespace

class Q_DECL_HIDDEN MultipleStateButton::Private
{
public:
    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    QPixmap stateImage() const;

    QList<QPixmap> normalImages; // one for each state
    QList<QPixmap> pressImages; // one for each state
    QPixmap background;
    int buttonId = 0;
    int buttonValue = 0; // the state
    bool pressed = false;
    bool disabled = false;
    QPointer<QGraphicsOpacityEffect> opacity; // gone once another effect is installed
};

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
    : QWidget(parent), d(std::make_unique<Private>())
{
    installAccessibility(AccessibleTeller::MultipleStateButton, Private::tell);
    d->background = pixmapFromFile(backgroundPath);
    d->buttonId = id;
    d->disabled = normalPaths.isEmpty() || normalPaths.size() != pressPaths.size();
    d->opacity = new QGraphicsOpacityEffect(this);
    for (int i = 0; i < normalPaths.size(); ++i) {
        d->normalImages += pixmapFromFile(normalPaths.at(i));
        d->pressImages += pixmapFromFile(pressPaths.value(i));
        if (d->normalImages.last().isNull() || d->pressImages.last().isNull())
            d->disabled = true;
    }
    const QPixmap &sized = d->background.isNull() ? d->normalImages.value(0) : d->background;
    setGeometry(QRect(QPoint(boundedPixel(x), boundedPixel(y)), sized.size()));
    setGraphicsEffect(d->opacity);
}

MultipleStateButton::~MultipleStateButton() = default;

int MultipleStateButton::getButtonId() const { return d->buttonId; }

int MultipleStateButton::getButtonValue() const { return d->buttonValue; }

/**
 * Enters a state, which shows at the next paint. Returns 0, or -1 for a value that is refused: one
 * that is no state, and state 0, which is reached by stepping on from the last one only
 * (kept behaviour).
 */
int MultipleStateButton::setButtonValue(int value)
{
    if (value < 1 || value >= d->normalImages.size())
        return kRefused;
    d->buttonValue = value;
    return 0;
}

/**
 * Disables the button, or enables one that was disabled for want of pictures. Stored only: its look
 * follows at the next paint. Returns 0.
 */
int MultipleStateButton::setButtonDisable(bool disabled)
{
    d->disabled = disabled;
    return 0;
}

/**
 * The background, the picture of the state over its middle, and the opacity of both, which takes
 * one more paint when it changes.
 */
void MultipleStateButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, d->background);
    const QPixmap image = d->stateImage();
    painter.drawPixmap(centredTowardZero(image.size(), rect()).topLeft(), image);
    if (d->opacity)
        d->opacity->setOpacity(d->disabled ? kDimmed : qreal(1));
}

/** A press shows the pressed picture, without a request for a click sound. */
void MultipleStateButton::mousePressEvent(QMouseEvent *)
{
    if (d->disabled)
        return;
    d->pressed = true;
    update();
}

/** A release, wherever it is, steps on to the next state and reports it. */
void MultipleStateButton::mouseReleaseEvent(QMouseEvent *)
{
    if (d->disabled)
        return;
    d->pressed = false;
    d->buttonValue = d->buttonValue + 1 < d->normalImages.size() ? d->buttonValue + 1 : 0;
    update();
    emit clicked(d->buttonId, d->buttonValue);
}

QPixmap MultipleStateButton::Private::stateImage() const
{
    const bool isPressedShown = pressed && !disabled;
    return (isPressedShown ? pressImages : normalImages).value(buttonValue);
}

// To accessibility.
double MultipleStateButton::Private::tell(const QWidget *widget, AccessibleFact fact,
                                          const QPoint &)
{
    const Private &d = *static_cast<const MultipleStateButton *>(widget)->d;
    if (fact == AccessibleFact::StateCount)
        return int(d.normalImages.size());
    return fact == AccessibleFact::IsPressed ? d.pressed : d.disabled;
}
