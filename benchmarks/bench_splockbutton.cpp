// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <QPushButton>
#include <QToolButton>
#include <splockbutton.h>

namespace
{

constexpr QSize kSize(96, 96);
constexpr int kFade = 154; // alpha

const QPixmap &normal()
{
    static const QPixmap picture = keyPicture(QColor(40, 90, 160), kSize);
    return picture;
}

void setUp(SpLockButton &button) { button.setNormalImage(normal()); }

template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const QPixmap &picture,
             PeerState peer = PeerState::Normal)
{
    const IconLook look{picture, kSize, peer};
    rows.paint("SpLockButton", state, widgetOf<SpLockButton>(kSize, setUp, enter),
               {pictureFloor(picture)},
               {{"QPushButton icon", iconButton<QPushButton>(kSize, look), 0.6},
                {"QToolButton icon", iconButton<QToolButton>(kSize, look), 0.6}});
}

// Down, with a picture of its own and a caption.
void addCaptionedLook(Rows &rows)
{
    const QPixmap &pressed = buttonArtwork(kSize).pressed;
    const QString caption = QStringLiteral("Radio");
    const auto press = [&pressed, caption](SpLockButton &button) {
        button.setShowMode(SpLockButton::HighlightMode);
        button.setPressImage(pressed);
        button.setDisplayText(caption);
        button.setIsDown(true);
    };
    rows.paint("SpLockButton", "captioned down", widgetOf<SpLockButton>(kSize, setUp, press),
               {captionedFloor(pressed, caption, QColor(255, 0, 0))}, {});
}

} // namespace

void defineRows(Rows &rows, Tag<SpLockButton>)
{
    addLook(rows, "up", AsItIs(), normal());
    addLook(
        rows, "faded down", [](SpLockButton &b) { b.setIsDown(true); }, faded(normal(), kFade),
        PeerState::Checked);
    addLook(
        rows, "faded disabled",
        [](SpLockButton &b) {
            b.setDisableMode(SpLockButton::Show_NormalImageAlpha);
            b.setDisableState(true);
        },
        faded(normal(), kFade));
    addCaptionedLook(rows);
}
