// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "mouse.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"
#include "startup.h"

#include <QGraphicsOpacityEffect>
#include <QPushButton>
#include <spmultiplebutton.h>

namespace
{

constexpr QSize kSize(120, 120);
constexpr QSize kPicture(72, 72);
constexpr QPoint kPicturePos(24, 24);
constexpr double kPeerLimit = 1;
constexpr double kStartUpLimit = 2;

// The artwork of three states, made once.
struct Artwork {
    QPixmap background = keyPicture(QColor(50, 60, 80), kSize);
    QList<QPixmap> normal{keyPicture(QColor(40, 90, 160), kPicture),
                          keyPicture(QColor(60, 170, 200), kPicture),
                          keyPicture(QColor(90, 190, 90), kPicture)};
    QList<QPixmap> pressed{keyPicture(QColor(230, 120, 20), kPicture),
                           keyPicture(QColor(220, 150, 30), kPicture),
                           keyPicture(QColor(210, 180, 40), kPicture)};
};

const Artwork &artwork()
{
    static const Artwork instance;
    return instance;
}

// A button with all its pictures.
void setUp(SpMultipleButton &button)
{
    button.setPixmapList(artwork().normal, artwork().pressed);
    button.setBackgroundImage(artwork().background);
}

void press(SpMultipleButton &button) { sendMouse(button, QEvent::MouseButtonPress, {60, 60}); }

// One picture on the other, where both need no more work.
PaintingMaker floorOf(const QPixmap &background, const QPixmap &picture)
{
    return bareWidget(kSize, [=](QPainter &painter) {
        if (!background.isNull())
            painter.drawPixmap(0, 0, background);
        if (!picture.isNull())
            painter.drawPixmap(kPicturePos, picture);
    });
}

// Qt's own buttons with a picture; they have one layer less to paint than ours.
template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const PaintingMaker &floor,
             const QPixmap &picture, PeerState peer = PeerState::Normal)
{
    const IconLook look{picture, kPicture, peer};
    rows.paint("SpMultipleButton", state, widgetOf<SpMultipleButton>(kSize, setUp, enter), {floor},
               {{"QPushButton icon", iconButton<QPushButton>(kSize, look), kPeerLimit},
                {"QToolButton icon", iconButton<QToolButton>(kSize, look), kPeerLimit}});
}

// What is dimmed by an effect of its own.
template <class Widget> class Dimmable : public Widget
{
public:
    Dimmable() { this->setGraphicsEffect(new QGraphicsOpacityEffect(this)); }
};

} // namespace

void defineRows(Rows &rows, Tag<SpMultipleButton>)
{
    const Artwork &art = artwork();
    addLook(rows, "normal", AsItIs(), floorOf(art.background, art.normal.at(0)), art.normal.at(0));
    addLook(
        rows, "last state", [](SpMultipleButton &b) { b.setCurrentValue(2); },
        floorOf(art.background, art.normal.at(2)), art.normal.at(2));
    addLook(rows, "pressed", press, floorOf(art.background, art.pressed.at(0)), art.pressed.at(0),
            PeerState::Pressed);
    addLook(
        rows, "disabled", [](SpMultipleButton &b) { b.setDisableState(true); },
        floorOf(art.background, art.normal.at(0)), art.normal.at(0));
    addLook(
        rows, "no background", [](SpMultipleButton &b) { b.setBackgroundImage({}); },
        floorOf({}, art.normal.at(0)), art.normal.at(0));
    addLook(
        rows, "incomplete", [](SpMultipleButton &b) { b.setNormalImage1({}); },
        floorOf(art.background, {}), art.normal.at(0));
    rows.work("SpMultipleButton", "made and deleted", makeAndDelete<SpMultipleButton>(),
              {makeAndDelete<Dimmable<QWidget>>(), kStartUpLimit},
              {{"QPushButton with an effect", makeAndDelete<Dimmable<QPushButton>>(), 1.0}});
}
