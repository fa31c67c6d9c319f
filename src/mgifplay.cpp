#include "mgifplay.h"

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

/** A player without a file: it paints nothing. It stands above its siblings. */
MGifPlay::MGifPlay(QWidget *parent) : QWidget(parent), m_look(std::make_unique<ImageLook>())
{
    raise();
}

MGifPlay::~MGifPlay()
{
    discardMovie();
}

/**
 * The file of the animation, which plays from here on, from its first frame and as often as it says
 * itself. Repaints. A file that cannot be read shows nothing and does not play. A path of less than
 * two characters is stored only, and what was playing plays on: forms use it as "none".
 */
void MGifPlay::setGifImage(QString path)
{
    m_gifImage = std::move(path);
    if (m_gifImage.size() < 2)
        return;
    discardMovie();
    m_movie = movieFromFile(m_gifImage).release();
    if (m_gifSpeed != 100)
        m_movie->setSpeed(m_gifSpeed);
    m_movie->start();
    update();
    connect(m_movie, SIGNAL(frameChanged(int)), this, SLOT(update()));
}

/**
 * The speed in percent; 100 by default. It counts from the next frame on. 0 keeps the frame that is
 * there, though the animation counts as playing; a negative speed is as fast as can be.
 */
void MGifPlay::setGifSpeed(int percent)
{
    m_gifSpeed = percent;
    if (m_movie)
        m_movie->setSpeed(percent);
}

/**
 * 0 while the animation plays, be it in sight or not, and without a file; 1 when it has been
 * stopped, has come to its end or cannot be read.
 */
int MGifPlay::getGifState()
{
    return m_movie && m_movie->state() != QMovie::Running ? kStopped : kPlaying;
}

/** 0 plays the animation, from its first frame if it was stopped; anything else stops it, and the
 * frame that is there stays. Does nothing without a file. */
void MGifPlay::setGifState(int state)
{
    if (!m_movie)
        return;
    if (state == kPlaying)
        m_movie->start();
    else
        m_movie->stop();
}

/** Most frames are painted once: only one that is painted again is worth a stretched copy. */
void MGifPlay::paintEvent(QPaintEvent *)
{
    if (!m_movie)
        return;
    const QPixmap frame = m_movie->currentPixmap();
    if (frame.isNull())
        return;
    QPainter painter(this);
    if (frame.cacheKey() == m_paintedFrame)
        m_look->drawScaled(painter, rect(), frame);
    else
        painter.drawPixmap(rect(), frame);
    m_paintedFrame = frame.cacheKey();
}

/** A press asks for the click sound. The event then goes on to QWidget, which leaves it to the
 * parent. */
void MGifPlay::mousePressEvent(QMouseEvent *e)
{
    postKeyRequest(this, kBeepRequest);
    if (e)
        QWidget::mousePressEvent(e);
}

void MGifPlay::mouseMoveEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseMoveEvent(e);
}

/** QWidget goes first, which leaves the event to the parent; then any release emits btnClicked. */
void MGifPlay::mouseReleaseEvent(QMouseEvent *e)
{
    if (e)
        QWidget::mouseReleaseEvent(e);
    const QPointer<MGifPlay> guard(this);
    emit btnClicked();
    if (!guard && e)
        e->accept(); // there is no way to the parent any more
}

// One animation at a time: another one that went on unseen would cost as much as the one on the
// screen.
void MGifPlay::discardMovie()
{
    if (!m_movie)
        return;
    m_movie->stop();
    m_movie->deleteLater();
}
