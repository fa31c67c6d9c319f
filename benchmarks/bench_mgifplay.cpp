#include "canvas.h"
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
constexpr double kFloorLimit = 1.15;
constexpr double kPlayingLimit = 1.05;

// A GIF without end, of two frames that look alike: whoever is a frame behind paints the same. The
// pixels are a checked pattern of four colours.
QByteArray animation()
{
    constexpr int kWidth = 96; // px
    constexpr int kHeight = 80;
    const auto number = [](int value) {
        return QByteArray(1, char(value)) + '\0';
    };
    // Codes of one byte each, as long as the table of the decoder is emptied early enough.
    QByteArray codes;
    for (int i = 0; i < kWidth * kHeight; ++i) {
        if (i % 100 == 0)
            codes += char(0x80);
        codes += char(i % kWidth / 8 + i / kWidth / 8 & 3);
    }
    codes += char(0x81);
    QByteArray frame = QByteArray("\x21\xf9\x04\x04\x0a\0\0\0", 8) + ',' + number(0) + number(0)
        + number(kWidth) + number(kHeight) + '\0' + '\x07';
    for (int i = 0; i < codes.size(); i += 255) {
        const QByteArray block = codes.mid(i, 255);
        frame += char(block.size()) + block;
    }
    frame += '\0';
    const QByteArray colors =
        QByteArray("\x20\x50\x80\x30\x70\xb0\xe0\x80\x20\xf0\xf0\xf0", 12).leftJustified(384, '\0');
    return "GIF89a" + number(kWidth) + number(kHeight) + QByteArray("\xe6\0\0", 3) + colors
        + QByteArray("\x21\xff\x0bNETSCAPE2.0\x03\x01\0\0\0", 19) + frame + frame + ';';
}

// Animations come from files.
const QString &animationFile()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        QFile file(folder.filePath(QStringLiteral("checks.gif")));
        file.open(QIODevice::WriteOnly);
        file.write(animation());
        return file.fileName();
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
    WithMovie() : movie(animationFile()) { movie.start(); }

    QMovie movie;
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

// Shows the frame at which a movie stands, or, at a speed without any delay, one frame a step.
PaintingMaker stepped(const PaintingMaker &make, bool isPlaying)
{
    if (!isPlaying)
        return make;
    return [make]() -> Painting {
        const Painting painting = make();
        return {painting.canvas, [step = painting.step] {
                    QCoreApplication::processEvents();
                    step();
                }};
    };
}

PaintingMaker player(bool isPlaying)
{
    return stepped(widgetOf<MGifPlay>(kSize,
                                      [isPlaying](MGifPlay &player) {
                                          player.setGifSpeed(isPlaying ? INT_MAX : 0);
                                          player.setGifImage(animationFile());
                                      }),
                   isPlaying);
}

PaintingMaker barePlayer()
{
    return stepped(
        widgetOf<BarePlayer>(kSize, [](BarePlayer &player) { player.movie.setSpeed(INT_MAX); }),
        true);
}

PaintingMaker label(bool isPlaying)
{
    return stepped(widgetOf<WithMovie<QLabel>>(kSize,
                                               [isPlaying](WithMovie<QLabel> &label) {
                                                   label.movie.setSpeed(isPlaying ? INT_MAX : 0);
                                                   label.setMovie(&label.movie);
                                                   label.setScaledContents(true);
                                               }),
                   isPlaying);
}

} // namespace

void defineRows(Rows &rows, Tag<MGifPlay>)
{
    const QPixmap frame = firstFrame();
    rows.paint(
        "MGifPlay", "standing", player(false),
        {bareWidget(kSize, [frame](QPainter &p) { p.drawPixmap(0, 0, frame); }), kFloorLimit},
        {{"QLabel movie", label(false), 0.5}});
    rows.paint("MGifPlay", "playing", player(true), {barePlayer(), kPlayingLimit},
               {{"QLabel movie", label(true), 0.9}});
}
