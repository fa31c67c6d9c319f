#include "sphomeicon.h"

#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"
#include "detail/imagelook.h"
#include "detail/kepttext.h"
#include "detail/keyrequest.h"

#include <QFont>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QMovie>
#include <QPainter>
#include <QPointer>

#include <array>

using namespace panelkit;

namespace
{

constexpr int kStrongestVeil = 254; // alpha; a larger one stands for a pressed picture of its own
constexpr int kHideTextVeil = 100; // alpha
constexpr int kNormalSpeed = 100; // percent
constexpr int kCaptionRise = 15; // px, of the caption's top beside its size and margin
constexpr int kCaptionRoom = 10; // px, in height beside its size and margin

enum LayerNumber { FrameLayer, BaseLayer, StateLayer, PressLayer, LayerCount };

int widgetLength(qint64 px)
{
    return int(qBound<qint64>(0, px, QWIDGETSIZE_MAX));
}

} // namespace

// The pictures over the frame of an animation, from the bottom up. There may be none at any place.
struct SpHomeIcon::Layers {
    const QPixmap *base = nullptr;
    bool isBaseDimmed = false;
    const QPixmap *state = nullptr;
    const QPixmap *press = nullptr;
};

// What a paint takes from the one before it. Each layer has a look of its own, so that a finger
// that comes and goes drives out none of the others.
struct SpHomeIcon::Kept {
    std::array<ImageLook, LayerCount> looks;
    KeptText caption;
    QFont currentFont; // of the application, when captionFont was made
    int fontSize = 0; // px, of captionFont
    QFont captionFont;

    const QFont &fontOfSize(int px);
};

// The application's font in the size of the caption.
const QFont &SpHomeIcon::Kept::fontOfSize(int px)
{
    const QFont current;
    if (fontSize != px || !currentFont.isCopyOf(current)) {
        currentFont = current;
        fontSize = px;
        captionFont = applicationFont(px);
    }
    return captionFont;
}

bool SpHomeIcon::s_isDynamicUI = false;

/** A tile without a picture, above its siblings. It has no size until it is given a picture. */
SpHomeIcon::SpHomeIcon(QWidget *parent)
    : QWidget(parent), m_iconText(QObject::tr("Text")), m_kept(std::make_unique<Kept>())
{
    raise();
}

/** The animation ends with its tile. */
SpHomeIcon::~SpHomeIcon() = default;

/**
 * The picture of the tile at rest, as a copy of its own. The tile takes its size from it, makes its
 * pressed picture from it (see resizeHomeIcon()), and repaints; a null picture does none of these.
 */
void SpHomeIcon::setNormalImage(const QPixmap &image)
{
    m_normalImage = image.copy();
    resizeHomeIcon();
}

/**
 * The picture while pressed, as a copy of its own. Stored only. The next normal picture or
 * imageAlpha replaces it, on purpose: only with an imageAlpha above 254 it is there to stay.
 */
void SpHomeIcon::setPressImage(const QPixmap &image)
{
    m_pressImage = image.copy();
}

/** The picture over the normal one while the application runs, as a copy. Stored only. */
void SpHomeIcon::setRunningImage(const QPixmap &image)
{
    m_runningImage = image.copy();
}

/** The picture while the application is not ready, as a copy. Stored only. */
void SpHomeIcon::setGrayImage(const QPixmap &image)
{
    m_grayImage = image.copy();
}

/** The picture over the normal one of the current source, as a copy. Stored only. */
void SpHomeIcon::setSwitchImage(const QPixmap &image)
{
    m_switchImage = image.copy();
}

/**
 * The alpha (0..255, 154 by default) of the black veil that makes the pressed picture from the
 * normal one, at once, but to be seen at the next paint. Without a normal picture there is no
 * pressed one any more. Above 254 the pressed picture stays as it is, if there is one.
 */
void SpHomeIcon::setImageAlpha(const int &alpha)
{
    m_imageAlpha = alpha;
    renewPressImage();
}

/** The caption; "Text" by default. Repaints. */
void SpHomeIcon::setIconText(const QString &text)
{
    m_iconText = text;
    update();
}

/** A name for the application's own use; "defaultName" by default. Stored only. */
void SpHomeIcon::setIconName(const QString &name)
{
    m_iconName = name;
}

/**
 * The size into which all pictures are scaled; 122 x 122 by default. Repaints, but the tile keeps
 * its own size, and the next resizeHomeIcon() takes the size of the picture again.
 */
void SpHomeIcon::setIconSize(const QSize &size)
{
    m_iconSize = size;
    update();
}

/** The colour of the caption; white by default. Repaints. */
void SpHomeIcon::setFontColor(const QColor &color)
{
    m_fontColor = color;
    update();
}

/** The colour of the caption while pressed; white by default. Stored only. */
void SpHomeIcon::setPressTextColor(const QColor &color)
{
    m_pressTextColor = color;
}

/** The colour of the caption while not ready; white by default. Stored only. */
void SpHomeIcon::setGrayTextColor(const QColor &color)
{
    m_grayTextColor = color;
}

/** The colour of the caption while running; white by default. Stored only. */
void SpHomeIcon::setRunningTextColor(const QColor &color)
{
    m_runningTextColor = color;
}

/** The number that the signals carry; 0 by default. Stored only. */
void SpHomeIcon::setItemIndex(const int &index)
{
    m_itemIndex = index;
}

/**
 * Dims the normal picture of a still tile that has a pressed picture of its own and no running one.
 * The caption stays, on purpose, whatever the name says. Repaints.
 */
void SpHomeIcon::setHideText(const bool &hide)
{
    m_hideText = hide;
    update();
}

/** The size of the caption in px; 22 by default. Resizes the tile. */
void SpHomeIcon::setFontSize(const int &px)
{
    m_fontSize = px;
    resizeHomeIcon();
}

/** More height for the caption, in px; 10 by default. Resizes the tile. */
void SpHomeIcon::setTextMargin(const int &margin)
{
    m_textMargin = margin;
    resizeHomeIcon();
}

/**
 * How far, in px, the left edge of the caption's rectangle moves to the right or, negative, its
 * right edge to the left. Stored only.
 */
void SpHomeIcon::setTextMarginH(const int &margin)
{
    m_textMarginH = margin;
}

/** Whether the caption is over the picture, without height of its own. Resizes the tile. */
void SpHomeIcon::setTextInPic(const bool &inPicture)
{
    m_textInPic = inPicture;
    resizeHomeIcon();
}

/** How the caption stands in its rectangle; Qt::AlignCenter by default. Stored only. */
void SpHomeIcon::setTextAlignment(Qt::Alignment alignment)
{
    m_textAlignment = alignment;
}

/** Room left and right of the picture, in px. Resizes the tile. */
void SpHomeIcon::setImageMarginH(const int &margin)
{
    m_imageMarginH = margin;
    resizeHomeIcon();
}

/**
 * The file of an animation, which starts at once, in the place of any before it; a path of less
 * than two characters is stored only. An animation that cannot be read shows no frame, but the tile
 * is an animated one from now on.
 */
void SpHomeIcon::setGifImage(QString path)
{
    m_gifImage = path;
    if (path.size() < 2)
        return;
    m_movie = movieFromFile(m_gifImage);
    if (m_gifSpeed != kNormalSpeed)
        m_movie->setSpeed(m_gifSpeed);
    m_movie->start();
    resizeHomeIcon();
    update();
    connect(m_movie.get(), SIGNAL(frameChanged(int)), this, SLOT(update()));
    s_isDynamicUI = true;
}

/** The speed of the animation in percent; 100 by default, 0 stands still. */
void SpHomeIcon::setGifSpeed(int percent)
{
    m_gifSpeed = percent;
    if (m_movie)
        m_movie->setSpeed(percent);
}

/**
 * The file of the pressed picture. It is loaded in the event loop after this call, without a
 * repaint; a path of less than two characters is stored only.
 */
void SpHomeIcon::setPressImgPath(QString path)
{
    m_pressImgPath = path;
    if (path.size() > 1)
        postKeyRequest(this, kPressIconRequest);
}

/**
 * The file of the gray picture, loaded as the pressed one is. Whether it is depends on the path of
 * the pressed picture, on purpose: a gray path that is set before any is stored only.
 */
void SpHomeIcon::setGrayImgPath(QString path)
{
    m_grayImgPath = path;
    if (m_pressImgPath.size() > 1)
        postKeyRequest(this, kGrayIconRequest);
}

/** Whether the application behind the tile is ready; it is by default. Repaints. */
void SpHomeIcon::setIsReady(bool ready)
{
    m_isReady = ready;
    update();
}

/** Whether the application behind the tile runs. Repaints. */
void SpHomeIcon::setIsRunning(bool running)
{
    m_isRunning = running;
    update();
}

/** Whether the tile is the current source. Repaints. */
void SpHomeIcon::setIsSwitchSrc(bool current)
{
    m_isSwitchSrc = current;
    update();
}

/**
 * Scales the source into an area of the size of iconSize at its own top left, and lays black of
 * this alpha (0..255) over the opaque pixels there. The target is as large as the source.
 */
void SpHomeIcon::setPressImageAlpha(int alpha, const QPixmap &source, QPixmap &target)
{
    target = QPixmap::fromImage(veiledImage(source, imageRect().size(), alpha));
}

/**
 * Makes the tile fit its picture: the normal one or, in an animated tile without it, the pressed
 * one; without either nothing happens. The size of the picture becomes iconSize, and with the
 * margins and the caption's height the minimum size and the size of the tile. A normal picture
 * makes the pressed one anew. Repaints.
 */
void SpHomeIcon::resizeHomeIcon()
{
    const bool isNormal = !m_normalImage.isNull();
    const QPixmap &picture = isNormal || !m_movie ? m_normalImage : m_pressImage;
    if (picture.isNull())
        return;
    m_iconSize = picture.size();
    const qint64 caption = m_textInPic ? 0 : 2 * qint64(m_textMargin) + m_fontSize;
    const QSize size(widgetLength(m_iconSize.width() + 2 * qint64(m_imageMarginH)),
                     widgetLength(m_iconSize.height() + caption));
    setMinimumSize(size);
    setGeometry(QRect(geometry().topLeft(), size));
    if (isNormal)
        renewPressImage();
    update();
}

void SpHomeIcon::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawImages(painter);
    drawCaption(painter);
}

/** A press asks for the click sound, shows the pressed look and emits itemPress. */
void SpHomeIcon::mousePressEvent(QMouseEvent *e)
{
    postKeyRequest(this, kBeepRequest);
    m_isPressing = true;
    update();
    const QPointer<SpHomeIcon> guard(this);
    emit itemPress(m_itemIndex);
    if (guard && e)
        QWidget::mousePressEvent(e);
}

/** Any move ends the pressed look, to be seen at the next paint, and emits itemMove. */
void SpHomeIcon::mouseMoveEvent(QMouseEvent *e)
{
    m_isPressing = false;
    const QPointer<SpHomeIcon> guard(this);
    emit itemMove(m_itemIndex);
    if (guard && e)
        QWidget::mouseMoveEvent(e);
}

/** A release emits itemRelease, wherever the finger was lifted. */
void SpHomeIcon::mouseReleaseEvent(QMouseEvent *e)
{
    m_isPressing = false;
    update();
    const QPointer<SpHomeIcon> guard(this);
    emit itemRelease(m_itemIndex);
    if (guard && e)
        QWidget::mouseReleaseEvent(e);
}

/**
 * Loads a picture when the tile has asked itself to. Every key press ends here, a request for the
 * click sound too: only event filters of the application see it, no parent does.
 */
void SpHomeIcon::keyPressEvent(QKeyEvent *e)
{
    if (isKeyRequest(e, kPressIconRequest))
        m_pressImage = pixmapFromFile(m_pressImgPath);
    else if (isKeyRequest(e, kGrayIconRequest))
        m_grayImage = pixmapFromFile(m_grayImgPath);
}

/** A tile that comes into view plays its animation from the beginning, or goes on with it. */
void SpHomeIcon::showEvent(QShowEvent *e)
{
    if (m_movie)
        m_movie->start();
    QWidget::showEvent(e);
}

/** A hidden tile does not play. */
void SpHomeIcon::hideEvent(QHideEvent *e)
{
    QWidget::hideEvent(e);
    if (m_movie)
        m_movie->stop();
}

// Whether the pressed picture is the application's own and may look quite different, or is the
// normal one, darker. In the second case there is no need for anything under it.
bool SpHomeIcon::hasOwnPressLook() const
{
    return m_imageAlpha > kStrongestVeil;
}

void SpHomeIcon::renewPressImage()
{
    if (m_pressImage.isNull() || !hasOwnPressLook())
        setPressImageAlpha(m_imageAlpha, m_normalImage, m_pressImage);
}

QRect SpHomeIcon::imageRect() const
{
    return boundedRect(m_imageMarginH, 0, m_iconSize.width(), m_iconSize.height());
}

// It ends six pixels above the tile's own bottom.
QRect SpHomeIcon::captionRect() const
{
    const int text = boundedPixel(m_fontSize) + boundedPixel(m_textMargin);
    const int shift = boundedPixel(m_textMarginH);
    return {qMax(shift, 0), rect().bottom() - text - kCaptionRise, width() - qAbs(shift),
            text + kCaptionRoom};
}

QColor SpHomeIcon::captionColor() const
{
    if (!m_isReady)
        return m_grayTextColor;
    if (m_isPressing)
        return m_pressTextColor;
    return m_isRunning ? m_runningTextColor : m_fontColor;
}

// A running picture lies over the normal one, so that several may show at once. While the normal
// picture is pressed and darker, nothing has to be under it.
SpHomeIcon::Layers SpHomeIcon::layersWithRunningImage() const
{
    Layers layers;
    if (hasOwnPressLook() || !m_isPressing) {
        if (!m_isReady)
            layers.base = &m_grayImage;
        else if (!m_movie)
            layers.base = &m_normalImage;
    }
    if (m_isSwitchSrc)
        layers.state = m_switchImage.isNull() ? &m_pressImage : &m_switchImage;
    else if (m_isRunning)
        layers.state = &m_runningImage;
    if (m_isPressing)
        layers.press = &m_pressImage;
    return layers;
}

// Without a running picture there is one picture only, beside the frame of an animation. Several
// asymmetries are meant: a darkened tile looks the same whether it is ready or not, hideText counts
// in a still tile alone, and being run makes an animated tile look pressed, but not a still one.
SpHomeIcon::Layers SpHomeIcon::layersWithoutRunningImage() const
{
    Layers layers;
    const QPixmap *const atRest = m_movie ? nullptr : &m_normalImage;
    if (!hasOwnPressLook()) {
        layers.base = m_isPressing ? &m_pressImage : atRest;
    } else if (!m_isReady && !m_grayImage.isNull()) {
        layers.base = &m_grayImage;
    } else if (m_hideText && !m_movie) {
        layers.base = &m_normalImage;
        layers.isBaseDimmed = true;
    } else {
        const bool isPressLook = m_isPressing || m_isSwitchSrc || (m_isRunning && m_movie);
        layers.base = isPressLook ? &m_pressImage : atRest;
    }
    return layers;
}

// A still tile without a normal picture shows no other one either.
void SpHomeIcon::drawImages(QPainter &painter) const
{
    if (m_movie) {
        const QPixmap frame = m_movie->currentPixmap();
        drawLayer(painter, FrameLayer, &frame);
    } else if (m_normalImage.isNull()) {
        return;
    }
    const Layers layers =
        m_runningImage.isNull() ? layersWithoutRunningImage() : layersWithRunningImage();
    if (layers.isBaseDimmed)
        m_kept->looks[BaseLayer].drawVeiled(painter, imageRect(), *layers.base, kHideTextVeil);
    else
        drawLayer(painter, BaseLayer, layers.base);
    drawLayer(painter, StateLayer, layers.state);
    drawLayer(painter, PressLayer, layers.press);
}

void SpHomeIcon::drawLayer(QPainter &painter, int number, const QPixmap *picture) const
{
    if (picture && !picture->isNull())
        m_kept->looks[std::size_t(number)].drawScaled(painter, imageRect(), *picture);
}

void SpHomeIcon::drawCaption(QPainter &painter) const
{
    if (m_iconText.isEmpty())
        return;
    painter.setFont(m_kept->fontOfSize(m_fontSize));
    painter.setPen(captionColor());
    m_kept->caption.draw(painter, captionRect(), int(m_textAlignment), m_iconText);
}
