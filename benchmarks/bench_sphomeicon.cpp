// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "files.h"
#include "floors.h"
#include "gifs.h"
#include "mouse.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <QCoreApplication>
#include <QMovie>
#include <QTemporaryDir>
#include <QToolButton>
#include <sphomeicon.h>

#include <climits>
#include <functional>
#include <vector>

namespace
{

constexpr QSize kPage(800, 480);
constexpr QSize kPitch(200, 160); // twelve on a page
constexpr QSize kIcon(118, 118);
constexpr QSize kTile(118, 160);
constexpr QRect kCaption(0, 112, 118, 42); // in a tile
constexpr int kFontSize = 22; // px
constexpr int kVeil = 154; // alpha
constexpr int kDimming = 100; // alpha
constexpr double kPeerLimit = 0.6;
constexpr double kPageLimit = 0.25; // of style sheets

// The artwork of one tile, made once.
struct Artwork : ButtonArtwork {
    using ButtonArtwork::ButtonArtwork;

    QPixmap current = keyPicture(QColor(40, 160, 80), kIcon);
    QPixmap large = keyPicture(QColor(40, 90, 160), kIcon * 2);
};

const Artwork &artwork()
{
    static const Artwork instance(kIcon);
    return instance;
}

QString caption() { return QStringLiteral("Phone"); }

void setUp(SpHomeIcon &tile)
{
    tile.setNormalImage(artwork().normal);
    tile.setIconText(caption());
}

template <class... Enter> PaintingMaker tile(Enter... enter)
{
    return widgetOf<SpHomeIcon>(kTile, setUp, enter...);
}

// A tile with a pressed picture of its own.
template <class Enter> PaintingMaker tileOfPictures(Enter enter)
{
    const auto setPressed = [](SpHomeIcon &tile) {
        tile.setImageAlpha(255);
        tile.setPressImage(artwork().pressed);
    };
    return tile(setPressed, enter);
}

void press(SpHomeIcon &tile) { sendMouse(tile, QEvent::MouseButtonPress, {5, 5}); }

QFont captionFont()
{
    QFont font = fontOf(kFontSize);
    font.resolve(~0U);
    return font;
}

// The pictures one over the other, and a layout that needs no more work.
auto tileDrawing(const QVector<QPixmap> &pictures)
{
    const QFont font = captionFont();
    const LaidOutText text = laidOut(caption(), font, kCaption);
    return [pictures, font, text](QPainter &painter) {
        for (const QPixmap &picture : pictures)
            painter.drawPixmap(0, 0, picture);
        painter.setFont(font);
        text.draw(painter, Qt::white);
    };
}

PaintingMaker toolButton(const QPixmap &picture)
{
    const IconLook look{picture, kIcon, PeerState::Normal, caption()};
    return iconButton<QToolButton>(kTile, look, [](QToolButton &button) {
        QFont font = button.font();
        font.setPixelSize(kFontSize);
        button.setFont(font);
        button.setAutoRaise(true);
    });
}

// As a launcher in style sheets has it: a picture for each state, the caption under it.
void setUpStyled(QToolButton &button)
{
    static const QString sheet =
        QStringLiteral("QToolButton { border: none; color: white; font-size: 22px;"
                       " border-image: url(%1); padding-top: 120px; }"
                       "QToolButton:pressed { border-image: url(%2); }")
            .arg(fileOf(artwork().normal), fileOf(artwork().pressed));
    button.setText(caption());
    button.setStyleSheet(sheet);
}

// Twelve widgets, each painting its part of one page.
template <class Widget, class Prepare> PaintingMaker pageOf(Prepare prepare)
{
    return [prepare]() -> Painting {
        const auto canvas = makeCanvas(kPage);
        auto widgets = std::make_shared<std::vector<std::shared_ptr<OnCanvas<Widget>>>>();
        for (int i = 0; i < 12; ++i) {
            const QPoint at(i % 4 * kPitch.width(), i / 4 * kPitch.height());
            uchar *pixels = canvas->scanLine(at.y()) + at.x() * 4;
            const auto part = std::make_shared<QImage>(pixels, kTile.width(), kTile.height(),
                                                       canvas->bytesPerLine(), canvas->format());
            widgets->push_back(shownOn<Widget>(part, kTile, prepare));
        }
        return {canvas, [widgets] {
                    for (const auto &widget : *widgets)
                        widget->paint();
                }};
    };
}

template <class Draw> PaintingMaker pageFloor(const Draw &draw)
{
    return pageOf<BareWidget<Draw>>([draw](BareWidget<Draw> &widget) { widget.setDraw(draw); });
}

// Of pictures that lie over each other.
OwnLimits layersLimit(double blit)
{
    return {
        "its translucent pictures are blended over each other, each as large as the blit, and its "
        "text is drawn from kept glyphs",
        blit};
}

// An animation without end, of two frames that look alike: whoever is a frame behind paints the
// same.
const QString &animationFile()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        const QImage frame = gifFrames(1, kIcon / 2).constFirst();
        return writtenFile(folder.filePath(QStringLiteral("tile.gif")), gifOf({frame, frame}));
    }();
    return path;
}

// Each step is a frame, which comes without any delay, and its paint.
template <class Tile, class Prepare> PaintingMaker playing(Prepare prepare)
{
    return [make = widgetOf<Tile>(kTile, prepare)]() -> Painting {
        const Painting painting = make();
        return {painting.canvas, [step = painting.step] {
                    QCoreApplication::processEvents();
                    step();
                }};
    };
}

void setUpPlaying(SpHomeIcon &tile)
{
    setUp(tile);
    tile.setUpdatesEnabled(false); // each step is one paint
    tile.setGifSpeed(INT_MAX);
    tile.setGifImage(animationFile());
}

// The least that playing takes: the movie, each of its frames stretched once, and the caption.
class BarePlayer : public QWidget
{
public:
    BarePlayer()
    {
        setUpdatesEnabled(false);
        m_movie.setSpeed(INT_MAX);
        m_movie.start();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawPixmap(QRect(QPoint(), kIcon), m_movie.currentPixmap());
        m_drawCaption(painter);
    }

private:
    QMovie m_movie{animationFile()};
    std::function<void(QPainter &)> m_drawCaption = tileDrawing({});
};

// A peer shows one picture, so that only looks of one are held to a limit against it.
void addLook(Rows &rows, const char *state, const PaintingMaker &ours,
             const QVector<QPixmap> &pictures, const OwnLimits &own = {})
{
    const double limit = pictures.size() == 1 ? kPeerLimit : kNoLimit;
    rows.paint("SpHomeIcon", state, ours, {bareWidget(kTile, tileDrawing(pictures))},
               {{"QToolButton icon", toolButton(pictures.last()), limit},
                {"QToolButton style sheet", widgetOf<QToolButton>(kTile, setUpStyled), limit}},
               own);
}

void addStates(Rows &rows)
{
    const QPixmap normal = artwork().normal;
    addLook(rows, "at rest", tile(), {normal});
    addLook(rows, "pressed, darkened", tile(press), {veiled(normal, kVeil)});
    addLook(rows, "pressed", tileOfPictures(press), {artwork().pressed});
    addLook(rows, "dimmed", tileOfPictures([](SpHomeIcon &t) { t.setHideText(true); }),
            {veiled(normal, kDimming)});
    addLook(rows, "not ready", tileOfPictures([](SpHomeIcon &t) {
                t.setGrayImage(artwork().disabled);
                t.setIsReady(false);
            }),
            {artwork().disabled});
    addLook(rows, "running", tile([](SpHomeIcon &t) {
                t.setRunningImage(artwork().highlighted);
                t.setIsRunning(true);
            }),
            {normal, artwork().highlighted}, layersLimit(2.4));
    addLook(rows, "current, pressed", tileOfPictures([](SpHomeIcon &t) {
                t.setRunningImage(artwork().highlighted);
                t.setSwitchImage(artwork().current);
                t.setIsSwitchSrc(true);
                press(t);
            }),
            {normal, artwork().current, artwork().pressed}, layersLimit(3.2));
    addLook(rows, "frame of an animation",
            tile([](SpHomeIcon &t) { t.setGifImage(fileOf(artwork().highlighted)); }),
            {artwork().highlighted});
    rows.motion("SpHomeIcon", "playing", playing<SpHomeIcon>(setUpPlaying),
                {playing<BarePlayer>(AsItIs())}, {});
}

void addScaledLooks(Rows &rows)
{
    const QPixmap large = stretched(artwork().large, kIcon);
    addLook(rows, "scaled", tile([](SpHomeIcon &t) {
                t.setNormalImage(artwork().large);
                t.setIconSize(kIcon);
                t.setMinimumSize(kTile);
            }),
            {large});
    addLook(rows, "scaled, pressed", tileOfPictures([](SpHomeIcon &t) {
                t.setRunningImage(artwork().large);
                t.setIsRunning(true);
                t.setPressImage(artwork().large);
                press(t);
            }),
            {artwork().normal, large, large}, layersLimit(3.3));
}

} // namespace

void defineRows(Rows &rows, Tag<SpHomeIcon>)
{
    addStates(rows);
    addScaledLooks(rows);
    rows.paint("SpHomeIcon", "page of twelve", pageOf<SpHomeIcon>(setUp),
               {pageFloor(tileDrawing({artwork().normal}))},
               {{"QToolButtons style sheet", pageOf<QToolButton>(setUpStyled), kPageLimit}});
}
