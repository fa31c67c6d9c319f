// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "mouse.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <playbutton.h>
#include <QPushButton>

namespace
{

constexpr QSize kSize(96, 96);
constexpr double kPeerLimit = 0.6;

const ButtonArtwork &artwork() { return buttonArtwork(kSize); }

struct Button : PlayButton {
    Button() : PlayButton(0, 0, 1, fileOf(artwork().normal), fileOf(artwork().pressed)) { }
};

template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const QPixmap &picture,
             PeerState peer = PeerState::Normal)
{
    rows.paint(
        "PlayButton", state, widgetOf<Button>(kSize, enter), {pictureFloor(picture)},
        {{"QPushButton icon", iconButton<QPushButton>(kSize, {picture, kSize, peer}), kPeerLimit}});
}

} // namespace

void defineRows(Rows &rows, Tag<PlayButton>)
{
    addLook(rows, "normal", AsItIs(), artwork().normal);
    addLook(
        rows, "pressed",
        [](Button &button) {
            sendMouse(button, QEvent::MouseButtonPress, {5, 5});
        },
        artwork().pressed, PeerState::Pressed);
    addLook(
        rows, "disabled", [](Button &button) { button.setButtonDisable(true); }, artwork().normal,
        PeerState::Disabled);
}
