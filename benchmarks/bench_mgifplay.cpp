// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "files.h"
#include "floors.h"
#include "gifs.h"
#include "rows.h"

#include <mgifplay.h>
#include <QCoreApplication>
#include <QLabel>
#include <QMovie>
#include <QTemporaryDir>

#include <climits>

namespace
{

constexpr QSize kSize(200, 160);
constexpr double kPlayingLimit = 1.05;

// A GIF without end, of two frames that look alike: whoever is a frame behind paints the same.
// Animations come from files.
const QString &animationFile()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        const QImage frame = gifFrames(1, QSize(96, 80)).constFirst();
        return writtenFile(folder.filePath(QStringLiteral("two.gif")), gifOf({frame, frame}));
    }();
    return path;
}

QPixmap firstFrame()
{
    return QPixmap(animationFile()).scaled(kSize, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

// A movie as a member of its widget.
template <class Widget> class WithMovie : public Widget
{
public:
    QMovie movie{animationFile()};
};

// The least that playing takes: the movie, and each of its frames stretched once.
class BarePlayer : public WithMovie<QWidget>
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawPixmap(rect(), movie.currentPixmap());
    }
};

// A widget whose movie stands at its first frame, or plays without any delay. What it wants to have
// repainted does not matter: each step of a measurement is one paint.
template <class Widget, class Prepare> PaintingMaker withSpeed(int speed, Prepare prepare)
{
    return widgetOf<Widget>(kSize, [speed, prepare](Widget &widget) {
        widget.setUpdatesEnabled(false);
        prepare(widget, speed);
    });
}

template <class Widget, class Prepare> PaintingMaker standing(Prepare prepare)
{
    return withSpeed<Widget>(0, prepare);
}

template <class Widget, class Prepare> PaintingMaker playing(Prepare prepare)
{
    return [make = withSpeed<Widget>(INT_MAX, prepare)]() -> Painting {
        const Painting painting = make();
        return {painting.canvas, [step = painting.step] {
                    QCoreApplication::processEvents(); // the next frame
                    step();
                }};
    };
}

void preparePlayer(MGifPlay &player, int speed)
{
    player.setGifSpeed(speed);
    player.setGifImage(animationFile());
}

void prepareBare(BarePlayer &player, int speed)
{
    player.movie.setSpeed(speed);
    player.movie.start();
}

void prepareLabel(WithMovie<QLabel> &label, int speed)
{
    label.movie.setSpeed(speed);
    label.setMovie(&label.movie);
    label.setScaledContents(true);
    label.movie.start();
}

} // namespace

void defineRows(Rows &rows, Tag<MGifPlay>)
{
    rows.paint("MGifPlay", "standing", standing<MGifPlay>(preparePlayer),
               {pictureFloor(firstFrame())},
               {{"QLabel movie", standing<WithMovie<QLabel>>(prepareLabel), 0.5}});
    rows.motion("MGifPlay", "playing", playing<MGifPlay>(preparePlayer),
                {playing<BarePlayer>(prepareBare), kPlayingLimit},
                {{"QLabel movie", playing<WithMovie<QLabel>>(prepareLabel), 1.0}});
}
