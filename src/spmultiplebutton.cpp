// SPDX-License-Identifier: Apache-2.0
#include "spmultiplebutton.h"

#include "detail/accessible.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"
#include "detail/keyrequest.h"

#include <QGraphicsOpacityEffect>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

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

bool canBeStates(int normal, int press) { return normal == press && normal <= kMostStates; }

QList<QPixmap> fromFiles(const QList<QString> &paths)
{
    QList<QPixmap> images;
    for (const QString &path : paths)
        images.append(pixmapFromFile(path));
    return images;
}

} // namespace

class Q_DECL_HIDDEN SpMultipleButton::Private
{
public:
    explicit Private(SpMultipleButton *widget) : q(widget) { }

    static double tell(const QWidget *widget, AccessibleFact fact, const QPoint &at);
    void replaceNormalImage(int state, const QPixmap &image);
    void replacePressImage(int state, const QPixmap &image);
    void adoptPixmapLists(const QList<QPixmap> &normal, const QList<QPixmap> &press);
    QPixmap stateImage() const;
    void drawCentred(QPainter &painter, const QPixmap &image) const;
    void dim();

    SpMultipleButton *const q;
    int buttonId = 0;
    int currentValue = 0;
    int totalValue = 20;
    bool pressed = false;
    bool disableState = false;
    bool dataValid = false;
    bool autoChange = true;
    QList<QPixmap> normalImages; // one for each state
    QList<QPixmap> pressImages; // one for each state
    QPixmap backgroundImage;
    QPointer<QGraphicsOpacityEffect> opacity; // the widget's own, until it is given another
};

/**
 * A button of 20 states without any picture: it paints nothing and ignores touches. Its opacity
 * effect has the opacity that Qt gives it, 0.7, until the first paint of a complete set.
 */
SpMultipleButton::SpMultipleButton(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility(AccessibleTeller::MultipleButton, Private::tell);
    d->normalImages = nullImages();
    d->pressImages = nullImages();
    d->opacity = new Dimming(this);
    setGraphicsEffect(d->opacity);
}

SpMultipleButton::~SpMultipleButton() = default;

int SpMultipleButton::buttonId() const { return d->buttonId; }

/** The number that clicked carries; 0 by default. Stored only. */
void SpMultipleButton::setButtonId(int id) { d->buttonId = id; }

int SpMultipleButton::totalValue() const { return d->totalValue; }

/**
 * The number of states; 20 by default. Stored if it is above 0 and there are as many normal
 * pictures, null ones included; in every case the set is checked anew. The current state stays,
 * even where there is none of that number any more: it has no picture then, and the next click
 * leads to the first.
 */
void SpMultipleButton::setTotalValue(int v)
{
    if (v > 0 && v <= d->normalImages.size())
        d->totalValue = v;
    checkData();
}

int SpMultipleButton::currentValue() const { return d->currentValue; }

/** The state that is shown, from 0; others than there are, are ignored. Repaints in every case. */
void SpMultipleButton::setCurrentValue(int v)
{
    if (v >= 0 && v < d->totalValue)
        d->currentValue = v;
    update();
}

bool SpMultipleButton::disableState() const { return d->disableState; }

/**
 * Disables the button in software: it is dimmed to half its opacity and ignores touches, which
 * still end here. The enabled state as a QWidget plays no part. Checks the set anew, but does not
 * repaint: the look changes with the next paint.
 */
void SpMultipleButton::setDisableState(bool disabled)
{
    d->disableState = disabled;
    checkData();
}

QPixmap SpMultipleButton::backgroundImage() const { return d->backgroundImage; }

/**
 * The picture under every state, shown even while the set is incomplete. Its size becomes the
 * minimum size of the widget, unless it is null. No repaint by itself.
 */
void SpMultipleButton::setBackgroundImage(QPixmap image)
{
    d->backgroundImage = image;
    if (!image.isNull())
        setMinimumSize(image.size());
}

QPixmap SpMultipleButton::normalImage0() const { return d->normalImages.value(0); }

/**
 * The pictures of the first eight states; the digit is the state. The set is checked anew, without
 * a repaint. Where a list that was set as a whole has no such entry, the picture becomes its last.
 */
void SpMultipleButton::setNormalImage0(QPixmap image) { d->replaceNormalImage(0, image); }

QPixmap SpMultipleButton::normalImage1() const { return d->normalImages.value(1); }

void SpMultipleButton::setNormalImage1(QPixmap image) { d->replaceNormalImage(1, image); }

QPixmap SpMultipleButton::normalImage2() const { return d->normalImages.value(2); }

void SpMultipleButton::setNormalImage2(QPixmap image) { d->replaceNormalImage(2, image); }

QPixmap SpMultipleButton::normalImage3() const { return d->normalImages.value(3); }

void SpMultipleButton::setNormalImage3(QPixmap image) { d->replaceNormalImage(3, image); }

QPixmap SpMultipleButton::normalImage4() const { return d->normalImages.value(4); }

void SpMultipleButton::setNormalImage4(QPixmap image) { d->replaceNormalImage(4, image); }

QPixmap SpMultipleButton::normalImage5() const { return d->normalImages.value(5); }

void SpMultipleButton::setNormalImage5(QPixmap image) { d->replaceNormalImage(5, image); }

QPixmap SpMultipleButton::normalImage6() const { return d->normalImages.value(6); }

void SpMultipleButton::setNormalImage6(QPixmap image) { d->replaceNormalImage(6, image); }

QPixmap SpMultipleButton::normalImage7() const { return d->normalImages.value(7); }

void SpMultipleButton::setNormalImage7(QPixmap image) { d->replaceNormalImage(7, image); }

QPixmap SpMultipleButton::pressImage0() const { return d->pressImages.value(0); }

/**
 * The pressed pictures of the first eight states, like the normal ones. That of state 0 alone also
 * gives the widget its minimum size (kept behaviour): the size of the background, or without one
 * its own, unless it is null.
 */
void SpMultipleButton::setPressImage0(QPixmap image)
{
    if (!d->backgroundImage.isNull())
        setMinimumSize(d->backgroundImage.size());
    else if (!image.isNull())
        setMinimumSize(image.size());
    d->replacePressImage(0, image);
}

QPixmap SpMultipleButton::pressImage1() const { return d->pressImages.value(1); }

void SpMultipleButton::setPressImage1(QPixmap image) { d->replacePressImage(1, image); }

QPixmap SpMultipleButton::pressImage2() const { return d->pressImages.value(2); }

void SpMultipleButton::setPressImage2(QPixmap image) { d->replacePressImage(2, image); }

QPixmap SpMultipleButton::pressImage3() const { return d->pressImages.value(3); }

void SpMultipleButton::setPressImage3(QPixmap image) { d->replacePressImage(3, image); }

QPixmap SpMultipleButton::pressImage4() const { return d->pressImages.value(4); }

void SpMultipleButton::setPressImage4(QPixmap image) { d->replacePressImage(4, image); }

QPixmap SpMultipleButton::pressImage5() const { return d->pressImages.value(5); }

void SpMultipleButton::setPressImage5(QPixmap image) { d->replacePressImage(5, image); }

QPixmap SpMultipleButton::pressImage6() const { return d->pressImages.value(6); }

void SpMultipleButton::setPressImage6(QPixmap image) { d->replacePressImage(6, image); }

QPixmap SpMultipleButton::pressImage7() const { return d->pressImages.value(7); }

void SpMultipleButton::setPressImage7(QPixmap image) { d->replacePressImage(7, image); }

/**
 * All pictures at once, up to 20 states: lists of different lengths or longer ones are ignored. The
 * number of states becomes their length, and the set counts as complete without a check, so that a
 * state may have no picture. The size of the second normal picture becomes the minimum size of the
 * widget, if there is one that is not null (kept behaviour). No repaint.
 */
void SpMultipleButton::setPixmapList(const QList<QPixmap> &normal, const QList<QPixmap> &press)
{
    if (!canBeStates(int(normal.size()), int(press.size())))
        return;
    d->adoptPixmapLists(normal, press);
    const QPixmap second = d->normalImages.value(1);
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
    if (canBeStates(int(normal.size()), int(press.size())))
        d->adoptPixmapLists(fromFiles(normal), fromFiles(press));
}

/** Whether a click advances the state; on by default. Stored only. */
void SpMultipleButton::setAutoChange(bool change) { d->autoChange = change; }

/**
 * Checks the set: it is complete when both lists have the same length, reach as far as the number
 * of states, and have a picture for each. Only a complete set is painted and can be touched.
 */
void SpMultipleButton::checkData()
{
    d->dataValid = d->totalValue <= d->normalImages.size()
        && d->normalImages.size() == d->pressImages.size()
        && areAllThere(d->normalImages, d->totalValue)
        && areAllThere(d->pressImages, d->totalValue);
}

void SpMultipleButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    d->drawCentred(painter, d->backgroundImage);
    if (!d->dataValid)
        return;
    d->drawCentred(painter, d->stateImage());
    painter.end();
    d->dim();
}

/** A press asks for the click sound and shows the pressed picture. */
void SpMultipleButton::mousePressEvent(QMouseEvent *)
{
    if (d->disableState || !d->dataValid)
        return;
    postKeyRequest(this, kBeepRequest);
    d->pressed = true;
    update();
}

/**
 * Any release goes to the next state, or back to the first from the last and from any that is none,
 * and emits clicked with the state it has reached.
 */
void SpMultipleButton::mouseReleaseEvent(QMouseEvent *)
{
    if (d->disableState || !d->dataValid)
        return;
    d->pressed = false;
    if (d->autoChange)
        ++d->currentValue;
    if (d->currentValue >= d->totalValue)
        d->currentValue = 0;
    update();
    emit clicked(d->buttonId, d->currentValue);
}

void SpMultipleButton::Private::replaceNormalImage(int state, const QPixmap &image)
{
    replaceEntry(normalImages, state, image);
    q->checkData();
}

void SpMultipleButton::Private::replacePressImage(int state, const QPixmap &image)
{
    replaceEntry(pressImages, state, image);
    q->checkData();
}

void SpMultipleButton::Private::adoptPixmapLists(const QList<QPixmap> &normal,
                                                 const QList<QPixmap> &press)
{
    normalImages = normal;
    pressImages = press;
    totalValue = int(normal.size());
    dataValid = true;
}

QPixmap SpMultipleButton::Private::stateImage() const
{
    const bool isPressed = pressed && !disableState;
    return (isPressed ? pressImages : normalImages).value(currentValue);
}

void SpMultipleButton::Private::drawCentred(QPainter &painter, const QPixmap &image) const
{
    if (!image.isNull())
        painter.drawPixmap(centredTowardMinusInfinity(image.size(), q->rect()).topLeft(), image);
}

// The effect already has this paint in hand: an opacity that changes shows in another one, which it
// asks for itself.
void SpMultipleButton::Private::dim()
{
    if (opacity)
        opacity->setOpacity(disableState ? kDimmed : qreal(1));
}

// To accessibility.
double SpMultipleButton::Private::tell(const QWidget *widget, AccessibleFact fact, const QPoint &)
{
    const Private &d = *static_cast<const SpMultipleButton *>(widget)->d;
    return fact == AccessibleFact::IsPressed && d.pressed;
}
