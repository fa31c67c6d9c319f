// SPDX-License-Identifier: Apache-2.0
#include "mgifplay.h"

#include "detail/accessible.h"
#include "detail/imagefile.h"
#include "detail/imagelook.h"
#include "detail/keyrequest.h"

#include <QMouseEvent>
#include <QMovie>
#include <QPainter>
#include <QPixmap>
#include <QPointer>

using namespace panelkit;

namespace
{

constexpr int kPlaying = 0;
constexpr int kStopped = 1;

} // namespace

class Q_DECL_HIDDEN MGifPlay::Private
{
public:
    explicit Private(MGifPlay *widget) : q(widget) { }

    void discardMovie();

    MGifPlay *const q;
    QString gifImage;
    QMovie *movie = nullptr; // has no parent
    int gifSpeed = 100; // percent

    ImageLook look;
    qint64 paintedFrame = 0; // QPixmap::cacheKey()
};

/** A player without a file: it paints nothing. It stands above its siblings. */
MGifPlay::MGifPlay(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
    raise();
}

MGifPlay::~MGifPlay() { d->discardMovie(); }

QString MGifPlay::gifImage() const { return d->gifImage; }

/**
 * The file of the animation, which plays from here on, from its first frame and as often as it says
 * itself. Repaints. A file that cannot be read shows nothing and does not play. A path of less than
 * two characters is stored only, and what was playing plays on: forms use it as "none".
 */
void MGifPlay::setGifImage(QString path)
{
    d->gifImage = std::move(path);
    if (d->gifImage.size() < 2)
        return;
    d->discardMovie();
    d->movie = movieFromFile(d->gifImage).release();
    if (d->gifSpeed != 100)
        d->movie->setSpeed(d->gifSpeed);
    d->movie->start();
    update();
    connect(d->movie, SIGNAL(frameChanged(int)), this, SLOT(update()));
}

int MGifPlay::gifSpeed() const { return d->gifSpeed; }

/**
 * The speed in percent; 100 by default. It counts from the next frame on. 0 keeps the frame that is
 * there, though the animation counts as playing; a negative speed is as fast as can be.
 */
void MGifPlay::setGifSpeed(int percent)
{
    d->gifSpeed = percent;
    if (d->movie)
        d->movie->setSpeed(percent);
}

/**
 * 0 while the animation plays, be it in sight or not, and without a file; 1 when it has been
 * stopped, has come to its end or cannot be read.
 */
int MGifPlay::getGifState()
{
    return d->movie && d->movie->state() != QMovie::Running ? kStopped : kPlaying;
}

/** 0 plays the animation, from its first frame if it was stopped; anything else stops it, and the
 * frame that is there stays. Does nothing without a file. */
void MGifPlay::setGifState(int state)
{
    if (!d->movie)
        return;
    if (state == kPlaying)
        d->movie->start();
    else
        d->movie->stop();
}

/** Most frames are painted once: only one that is painted again is worth a stretched copy. */
void MGifPlay::paintEvent(QPaintEvent *)
{
    if (!d->movie)
        return;
    const QPixmap frame = d->movie->currentPixmap();
    if (frame.isNull())
        return;
    QPainter painter(this);
    if (frame.cacheKey() == d->paintedFrame)
        d->look.drawScaled(painter, rect(), frame);
    else
        painter.drawPixmap(rect(), frame);
    d->paintedFrame = frame.cacheKey();
}

/** A press asks for the click sound. The event then goes on to QWidget, which leaves it to the
 * parent. */
void MGifPlay::mousePressEvent(QMouseEvent *e)
{
    postKeyRequest(this, kBeepRequest);
    QWidget::mousePressEvent(e);
}

void MGifPlay::mouseMoveEvent(QMouseEvent *e) { QWidget::mouseMoveEvent(e); }

/** QWidget goes first, which leaves the event to the parent; then any release emits btnClicked. */
void MGifPlay::mouseReleaseEvent(QMouseEvent *e)
{
    QWidget::mouseReleaseEvent(e);
    const QPointer<MGifPlay> guard(this);
    emit btnClicked();
    if (!guard)
        e->accept(); // there is no way to the parent any more
}

// One animation at a time: another one that went on unseen would cost as much as the one on the
// screen.
void MGifPlay::Private::discardMovie()
{
    if (!movie)
        return;
    movie->stop();
    movie->deleteLater();
}
