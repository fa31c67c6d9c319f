// SPDX-License-Identifier: Apache-2.0
#include "sphomeicon.h"

#include "detail/accessible.h"
#include "detail/fonts.h"
#include "detail/geometry.h"
#include "detail/imagefile.h"
#include "detail/imagelook.h"
#include "detail/keyrequest.h"
#include "detail/memo.h"
#include "detail/textcache.h"

#include <QFont>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QMovie>
#include <QPainter>
#include <QPointer>

#include <algorithm>
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

int widgetLength(qint64 px) { return int(std::clamp<qint64>(px, 0, QWIDGETSIZE_MAX)); }

bool isAnyTileAnimated = false; // ever, in this process

} // namespace

class Q_DECL_HIDDEN SpHomeIcon::Private
{
public:
    explicit Private(SpHomeIcon *widget) : q(widget) { }

    struct Layers;
    // What the font of the caption depends on.
    struct CaptionFont {
        QFont current; // of the application
        int size; // px

        auto tied() const { return std::tie(size, current); }
    };

    bool hasOwnPressLook() const;
    void renewPressImage();
    QRect imageRect() const;
    QRect captionRect() const;
    QColor captionColor() const;
    Layers layersWithRunningImage() const;
    Layers layersWithoutRunningImage() const;
    void drawImages(QPainter &painter) const;
    void drawLayer(QPainter &painter, int number, const QPixmap *picture) const;
    void drawCaption(QPainter &painter) const;

    SpHomeIcon *const q;
    bool isPressing = false;
    bool isReady = true;
    bool isRunning = false;
    bool isSwitchSrc = false;
    bool hideText = false;
    int itemIndex = 0;
    QPixmap normalImage;
    QPixmap pressImage;
    QPixmap runningImage;
    QPixmap grayImage;
    QPixmap switchImage;
    QString pressImgPath;
    QString grayImgPath;
    QString iconText;
    QString iconName = QStringLiteral("defaultName");
    QSize iconSize{122, 122}; // px
    QColor fontColor = Qt::white;
    QColor pressTextColor = Qt::white;
    QColor grayTextColor = Qt::white;
    QColor runningTextColor = Qt::white;
    int imageAlpha = 154; // 0..255; above 254 a pressed picture is the application's own
    int fontSize = 22; // px
    int textMargin = 10; // px
    int textMarginH = 0; // px
    bool textInPic = false;
    Qt::Alignment textAlignment = Qt::AlignCenter;
    int imageMarginH = 0; // px
    QString gifImage;
    std::unique_ptr<QMovie> movie;
    int gifSpeed = 100; // percent

    // Each layer has a look of its own, so that a finger that comes and goes drives out none of the
    // others.
    mutable std::array<ImageLook, LayerCount> looks;
    mutable TextCache caption;
    mutable Memo<CaptionFont, QFont> captionFont;
};

// The pictures over the frame of an animation, from the bottom up. There may be none at any place.
struct SpHomeIcon::Private::Layers {
    const QPixmap *base = nullptr;
    bool isBaseDimmed = false;
    const QPixmap *state = nullptr;
    const QPixmap *press = nullptr;
};

/** A tile without a picture, above its siblings. It has no size until it is given a picture. */
SpHomeIcon::SpHomeIcon(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    installAccessibility();
    d->iconText = QObject::tr("Text");
    raise();
}

/** The animation ends with its tile. */
SpHomeIcon::~SpHomeIcon() = default;

QPixmap SpHomeIcon::normalImage() const { return d->normalImage; }

/**
 * The picture of the tile at rest, as a copy of its own. The tile takes its size from it, makes its
 * pressed picture from it (see resizeHomeIcon()), and repaints; a null picture does none of these.
 */
void SpHomeIcon::setNormalImage(const QPixmap &image)
{
    d->normalImage = image.copy();
    resizeHomeIcon();
}

QPixmap SpHomeIcon::pressImage() const { return d->pressImage; }

/**
 * The picture while pressed, as a copy of its own. Stored only. The next normal picture or
 * imageAlpha replaces it (kept behaviour): only with an imageAlpha above 254 it is there to stay.
 */
void SpHomeIcon::setPressImage(const QPixmap &image) { d->pressImage = image.copy(); }

QPixmap SpHomeIcon::runningImage() const { return d->runningImage; }

/** The picture over the normal one while the application runs, as a copy. Stored only. */
void SpHomeIcon::setRunningImage(const QPixmap &image) { d->runningImage = image.copy(); }

QPixmap SpHomeIcon::grayImage() const { return d->grayImage; }

/** The picture while the application is not ready, as a copy. Stored only. */
void SpHomeIcon::setGrayImage(const QPixmap &image) { d->grayImage = image.copy(); }

QPixmap SpHomeIcon::switchImage() const { return d->switchImage; }

/** The picture over the normal one of the current source, as a copy. Stored only. */
void SpHomeIcon::setSwitchImage(const QPixmap &image) { d->switchImage = image.copy(); }

int SpHomeIcon::imageAlpha() const { return d->imageAlpha; }

/**
 * The alpha (0..255, 154 by default) of the black veil that makes the pressed picture from the
 * normal one, at once, but to be seen at the next paint. Without a normal picture there is no
 * pressed one any more. Above 254 the pressed picture stays as it is, if there is one.
 */
void SpHomeIcon::setImageAlpha(const int &alpha)
{
    d->imageAlpha = alpha;
    d->renewPressImage();
}

QString SpHomeIcon::iconText() const { return d->iconText; }

/** The caption; "Text" by default. Repaints. */
void SpHomeIcon::setIconText(const QString &text)
{
    d->iconText = text;
    update();
}

QString SpHomeIcon::iconName() const { return d->iconName; }

/** A name for the application's own use; "defaultName" by default. Stored only. */
void SpHomeIcon::setIconName(const QString &name) { d->iconName = name; }

QSize SpHomeIcon::iconSize() const { return d->iconSize; }

/**
 * The size into which all pictures are scaled; 122 x 122 by default. Repaints, but the tile keeps
 * its own size, and the next resizeHomeIcon() takes the size of the picture again.
 */
void SpHomeIcon::setIconSize(const QSize &size)
{
    d->iconSize = size;
    update();
}

QColor SpHomeIcon::fontColor() const { return d->fontColor; }

/** The colour of the caption; white by default. Repaints. */
void SpHomeIcon::setFontColor(const QColor &color)
{
    d->fontColor = color;
    update();
}

QColor SpHomeIcon::pressTextColor() const { return d->pressTextColor; }

/** The colour of the caption while pressed; white by default. Stored only. */
void SpHomeIcon::setPressTextColor(const QColor &color) { d->pressTextColor = color; }

QColor SpHomeIcon::grayTextColor() const { return d->grayTextColor; }

/** The colour of the caption while not ready; white by default. Stored only. */
void SpHomeIcon::setGrayTextColor(const QColor &color) { d->grayTextColor = color; }

QColor SpHomeIcon::runningTextColor() const { return d->runningTextColor; }

/** The colour of the caption while running; white by default. Stored only. */
void SpHomeIcon::setRunningTextColor(const QColor &color) { d->runningTextColor = color; }

int SpHomeIcon::itemIndex() const { return d->itemIndex; }

/** The number that the signals carry; 0 by default. Stored only. */
void SpHomeIcon::setItemIndex(const int &index) { d->itemIndex = index; }

bool SpHomeIcon::hideText() const { return d->hideText; }

/**
 * Dims the normal picture of a still tile that has a pressed picture of its own and no running one.
 * The caption stays, whatever the name says (kept behaviour). Repaints.
 */
void SpHomeIcon::setHideText(const bool &hide)
{
    d->hideText = hide;
    update();
}

int SpHomeIcon::fontSize() const { return d->fontSize; }

/** The size of the caption in px; 22 by default. Resizes the tile. */
void SpHomeIcon::setFontSize(const int &px)
{
    d->fontSize = px;
    resizeHomeIcon();
}

int SpHomeIcon::textMargin() const { return d->textMargin; }

/** More height for the caption, in px; 10 by default. Resizes the tile. */
void SpHomeIcon::setTextMargin(const int &margin)
{
    d->textMargin = margin;
    resizeHomeIcon();
}

int SpHomeIcon::textMarginH() const { return d->textMarginH; }

/**
 * How far, in px, the left edge of the caption's rectangle moves to the right or, negative, its
 * right edge to the left. Stored only.
 */
void SpHomeIcon::setTextMarginH(const int &margin) { d->textMarginH = margin; }

bool SpHomeIcon::textInPic() const { return d->textInPic; }

/** Whether the caption is over the picture, without height of its own. Resizes the tile. */
void SpHomeIcon::setTextInPic(const bool &inPicture)
{
    d->textInPic = inPicture;
    resizeHomeIcon();
}

Qt::Alignment SpHomeIcon::textAlignment() const { return d->textAlignment; }

/** How the caption stands in its rectangle; Qt::AlignCenter by default. Stored only. */
void SpHomeIcon::setTextAlignment(Qt::Alignment alignment) { d->textAlignment = alignment; }

int SpHomeIcon::imageMarginH() const { return d->imageMarginH; }

/** Room left and right of the picture, in px. Resizes the tile. */
void SpHomeIcon::setImageMarginH(const int &margin)
{
    d->imageMarginH = margin;
    resizeHomeIcon();
}

QString SpHomeIcon::gifImage() const { return d->gifImage; }

/**
 * The file of an animation, which starts at once, in the place of any before it; a path of less
 * than two characters is stored only. An animation that cannot be read shows no frame, but the tile
 * is an animated one from now on.
 */
void SpHomeIcon::setGifImage(QString path)
{
    d->gifImage = path;
    if (path.size() < 2)
        return;
    d->movie = movieFromFile(d->gifImage);
    if (d->gifSpeed != kNormalSpeed)
        d->movie->setSpeed(d->gifSpeed);
    d->movie->start();
    resizeHomeIcon();
    update();
    connect(d->movie.get(), SIGNAL(frameChanged(int)), this, SLOT(update()));
    isAnyTileAnimated = true;
}

int SpHomeIcon::gifSpeed() const { return d->gifSpeed; }

/** The speed of the animation in percent; 100 by default, 0 stands still. */
void SpHomeIcon::setGifSpeed(int percent)
{
    d->gifSpeed = percent;
    if (d->movie)
        d->movie->setSpeed(percent);
}

QString SpHomeIcon::pressImgPath() const { return d->pressImgPath; }

/**
 * The file of the pressed picture. It is loaded in the event loop after this call, without a
 * repaint; a path of less than two characters is stored only.
 */
void SpHomeIcon::setPressImgPath(QString path)
{
    d->pressImgPath = path;
    if (path.size() > 1)
        postKeyRequest(this, kPressIconRequest);
}

QString SpHomeIcon::grayImgPath() const { return d->grayImgPath; }

/**
 * The file of the gray picture, loaded as the pressed one is. Whether it is depends on the path of
 * the pressed picture: a gray path that is set before any is stored only (kept behaviour).
 */
void SpHomeIcon::setGrayImgPath(QString path)
{
    d->grayImgPath = path;
    if (d->pressImgPath.size() > 1)
        postKeyRequest(this, kGrayIconRequest);
}

bool SpHomeIcon::getIsPressing() const { return d->isPressing; }

bool SpHomeIcon::getIsReady() const { return d->isReady; }

/** Whether the application behind the tile is ready; it is by default. Repaints. */
void SpHomeIcon::setIsReady(bool ready)
{
    d->isReady = ready;
    update();
}

bool SpHomeIcon::getIsRunning() const { return d->isRunning; }

/** Whether the application behind the tile runs. Repaints. */
void SpHomeIcon::setIsRunning(bool running)
{
    d->isRunning = running;
    update();
}

bool SpHomeIcon::getIsSwitchSrc() const { return d->isSwitchSrc; }

/** Whether the tile is the current source. Repaints. */
void SpHomeIcon::setIsSwitchSrc(bool current)
{
    d->isSwitchSrc = current;
    update();
}

bool SpHomeIcon::isDynamicUI() { return isAnyTileAnimated; }

/**
 * Scales the source into an area of the size of iconSize at its own top left, and lays black of
 * this alpha (0..255) over the opaque pixels there. The target is as large as the source.
 */
void SpHomeIcon::setPressImageAlpha(int alpha, const QPixmap &source, QPixmap &target)
{
    target = QPixmap::fromImage(veiledImage(source, d->imageRect().size(), alpha));
}

/**
 * Makes the tile fit its picture: the normal one or, in an animated tile without it, the pressed
 * one; without either nothing happens. The size of the picture becomes iconSize, and with the
 * margins and the caption's height the minimum size and the size of the tile. A normal picture
 * makes the pressed one anew. Repaints.
 */
void SpHomeIcon::resizeHomeIcon()
{
    const bool isNormal = !d->normalImage.isNull();
    const QPixmap &picture = isNormal || !d->movie ? d->normalImage : d->pressImage;
    if (picture.isNull())
        return;
    d->iconSize = picture.size();
    const qint64 caption = d->textInPic ? 0 : 2 * qint64(d->textMargin) + d->fontSize;
    const QSize size(widgetLength(d->iconSize.width() + 2 * qint64(d->imageMarginH)),
                     widgetLength(d->iconSize.height() + caption));
    setMinimumSize(size);
    setGeometry(QRect(geometry().topLeft(), size));
    if (isNormal)
        d->renewPressImage();
    update();
}

void SpHomeIcon::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    d->drawImages(painter);
    d->drawCaption(painter);
}

/** A press asks for the click sound, shows the pressed look and emits itemPress. */
void SpHomeIcon::mousePressEvent(QMouseEvent *e)
{
    postKeyRequest(this, kBeepRequest);
    d->isPressing = true;
    update();
    const QPointer<SpHomeIcon> guard(this);
    emit itemPress(d->itemIndex);
    if (guard)
        QWidget::mousePressEvent(e);
}

/** Any move ends the pressed look, to be seen at the next paint, and emits itemMove. */
void SpHomeIcon::mouseMoveEvent(QMouseEvent *e)
{
    d->isPressing = false;
    const QPointer<SpHomeIcon> guard(this);
    emit itemMove(d->itemIndex);
    if (guard)
        QWidget::mouseMoveEvent(e);
}

/** A release emits itemRelease, wherever the finger was lifted. */
void SpHomeIcon::mouseReleaseEvent(QMouseEvent *e)
{
    d->isPressing = false;
    update();
    const QPointer<SpHomeIcon> guard(this);
    emit itemRelease(d->itemIndex);
    if (guard)
        QWidget::mouseReleaseEvent(e);
}

/**
 * Loads a picture when the tile has asked itself to. Every key press ends here, a request for the
 * click sound too: only event filters of the application see it, no parent does.
 */
void SpHomeIcon::keyPressEvent(QKeyEvent *e)
{
    if (isKeyRequest(e, kPressIconRequest))
        d->pressImage = pixmapFromFile(d->pressImgPath);
    else if (isKeyRequest(e, kGrayIconRequest))
        d->grayImage = pixmapFromFile(d->grayImgPath);
}

/** A tile that comes into view plays its animation from the beginning, or goes on with it. */
void SpHomeIcon::showEvent(QShowEvent *e)
{
    if (d->movie)
        d->movie->start();
    QWidget::showEvent(e);
}

/** A hidden tile does not play. */
void SpHomeIcon::hideEvent(QHideEvent *e)
{
    QWidget::hideEvent(e);
    if (d->movie)
        d->movie->stop();
}

// Whether the pressed picture is the application's own and may look quite different, or is the
// normal one, darker. In the second case there is no need for anything under it.
bool SpHomeIcon::Private::hasOwnPressLook() const { return imageAlpha > kStrongestVeil; }

void SpHomeIcon::Private::renewPressImage()
{
    if (pressImage.isNull() || !hasOwnPressLook())
        q->setPressImageAlpha(imageAlpha, normalImage, pressImage);
}

QRect SpHomeIcon::Private::imageRect() const
{
    return boundedRect(imageMarginH, 0, iconSize.width(), iconSize.height());
}

// It ends six pixels above the tile's own bottom.
QRect SpHomeIcon::Private::captionRect() const
{
    const int text = boundedPixel(fontSize) + boundedPixel(textMargin);
    const int shift = boundedPixel(textMarginH);
    return {qMax(shift, 0), q->rect().bottom() - text - kCaptionRise, q->width() - qAbs(shift),
            text + kCaptionRoom};
}

QColor SpHomeIcon::Private::captionColor() const
{
    if (!isReady)
        return grayTextColor;
    if (isPressing)
        return pressTextColor;
    return isRunning ? runningTextColor : fontColor;
}

// A running picture lies over the normal one, so that several may show at once. While the normal
// picture is pressed and darker, nothing has to be under it.
SpHomeIcon::Private::Layers SpHomeIcon::Private::layersWithRunningImage() const
{
    Layers layers;
    if (hasOwnPressLook() || !isPressing) {
        if (!isReady)
            layers.base = &grayImage;
        else if (!movie)
            layers.base = &normalImage;
    }
    if (isSwitchSrc)
        layers.state = switchImage.isNull() ? &pressImage : &switchImage;
    else if (isRunning)
        layers.state = &runningImage;
    if (isPressing)
        layers.press = &pressImage;
    return layers;
}

// Without a running picture there is one picture only, beside the frame of an animation. A darkened
// tile looks the same whether it is ready or not, hideText counts in a still tile alone, and being
// run makes an animated tile look pressed, but not a still one (kept behaviour).
SpHomeIcon::Private::Layers SpHomeIcon::Private::layersWithoutRunningImage() const
{
    Layers layers;
    const QPixmap *const atRest = movie ? nullptr : &normalImage;
    if (!hasOwnPressLook()) {
        layers.base = isPressing ? &pressImage : atRest;
    } else if (!isReady && !grayImage.isNull()) {
        layers.base = &grayImage;
    } else if (hideText && !movie) {
        layers.base = &normalImage;
        layers.isBaseDimmed = true;
    } else {
        const bool isPressLook = isPressing || isSwitchSrc || (isRunning && movie);
        layers.base = isPressLook ? &pressImage : atRest;
    }
    return layers;
}

// A still tile without a normal picture shows no other one either.
void SpHomeIcon::Private::drawImages(QPainter &painter) const
{
    if (movie) {
        const QPixmap frame = movie->currentPixmap();
        drawLayer(painter, FrameLayer, &frame);
    } else if (normalImage.isNull()) {
        return;
    }
    const Layers layers =
        runningImage.isNull() ? layersWithoutRunningImage() : layersWithRunningImage();
    if (layers.isBaseDimmed)
        looks[BaseLayer].drawVeiled(painter, imageRect(), *layers.base, kHideTextVeil);
    else
        drawLayer(painter, BaseLayer, layers.base);
    drawLayer(painter, StateLayer, layers.state);
    drawLayer(painter, PressLayer, layers.press);
}

void SpHomeIcon::Private::drawLayer(QPainter &painter, int number, const QPixmap *picture) const
{
    if (picture && !picture->isNull())
        looks[std::size_t(number)].drawScaled(painter, imageRect(), *picture);
}

void SpHomeIcon::Private::drawCaption(QPainter &painter) const
{
    if (iconText.isEmpty())
        return;
    painter.setFont(captionFont.value({QFont(), fontSize},
                                      [this](QFont &font) { font = applicationFont(fontSize); }));
    painter.setPen(captionColor());
    caption.draw(painter, captionRect(), int(textAlignment), iconText);
}
