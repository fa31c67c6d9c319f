// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "mouse.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <multiplestatebutton.h>
#include <QPushButton>

namespace
{

constexpr QSize kSize(96, 96);
constexpr QSize kIcon(64, 64);
constexpr int kInset = 16; // px, of the icon in the background

const QPixmap &background()
{
    static const QPixmap picture = keyPicture(QColor(40, 90, 160), kSize);
    return picture;
}

const QPixmap &icon()
{
    static const QPixmap picture = keyPicture(QColor(230, 120, 20), kIcon);
    return picture;
}

const QPixmap &pressedIcon()
{
    static const QPixmap picture = keyPicture(QColor(255, 200, 60), kIcon);
    return picture;
}

struct Button : MultipleStateButton {
    Button()
        : MultipleStateButton(0, 0, 1, {fileOf(icon()), fileOf(icon())},
                              {fileOf(pressedIcon()), fileOf(pressedIcon())}, fileOf(background()))
    {
    }
};

template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const QPixmap &picture, PeerState peer)
{
    rows.paint("MultipleStateButton", state, widgetOf<Button>(kSize, enter),
               {bareWidget(kSize,
                           [picture](QPainter &painter) {
                               painter.drawPixmap(0, 0, background());
                               painter.drawPixmap(kInset, kInset, picture);
                           })},
               {{"QPushButton icon", iconButton<QPushButton>(kSize, {picture, kIcon, peer})}});
}

} // namespace

void defineRows(Rows &rows, Tag<MultipleStateButton>)
{
    addLook(
        rows, "second state", [](Button &button) { button.setButtonValue(1); }, icon(),
        PeerState::Normal);
    addLook(
        rows, "pressed",
        [](Button &button) {
            sendMouse(button, QEvent::MouseButtonPress, {5, 5});
        },
        pressedIcon(), PeerState::Pressed);
    addLook(
        rows, "disabled", [](Button &button) { button.setButtonDisable(true); }, icon(),
        PeerState::Disabled);
}
