// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "mouse.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"
#include "startup.h"

#include <mselectbutton.h>
#include <QPushButton>

namespace
{

constexpr QSize kSize(120, 80);
constexpr double kFloorLimit = 1.15;
constexpr double kStyleSheetLimit = 0.65;
constexpr double kStartUpLimit = 2;

QString caption() { return QStringLiteral("Radio"); }

const ButtonArtwork &artwork() { return buttonArtwork(kSize); }

// Ours: a button with all its pictures, in the state into which the function brings it.
template <class Enter> PaintingMaker button(Enter enter)
{
    return widgetOf<MSelectButton>(kSize, [enter](MSelectButton &button) {
        button.setNormalImage(artwork().normal);
        button.setPressImage(artwork().pressed);
        button.setDisableImage(artwork().disabled);
        button.setNormalTextColor(Qt::white);
        button.setPressTextColor(Qt::yellow);
        button.setSelectImage(artwork().highlighted);
        button.setSelectTextColor(Qt::cyan);
        enter(button);
    });
}

void press(MSelectButton &button) { sendMouse(button, QEvent::MouseButtonPress, {20, 20}); }

// A look beside its floor and the same look of Qt's own button.
template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const PaintingMaker &floor,
             const QPixmap &picture, const QString &text = {}, PeerState peer = PeerState::Normal)
{
    rows.paint("MSelectButton", state, button(enter), {floor, kFloorLimit},
               {{"QPushButton style sheet", styledButton(kSize, pictureSheet(picture), text, peer),
                 kStyleSheetLimit}});
}

} // namespace

void defineRows(Rows &rows, Tag<MSelectButton>)
{
    const ButtonArtwork &art = artwork();
    addLook(rows, "normal", AsItIs(), pictureFloor(art.normal), art.normal);
    addLook(rows, "pressed", press, pictureFloor(art.pressed), art.pressed);
    addLook(
        rows, "selected", [](MSelectButton &b) { b.setSelectState(true); },
        pictureFloor(art.highlighted), art.highlighted);
    addLook(
        rows, "stretched pressed",
        [](MSelectButton &b) {
            b.setPressImage(artwork().smallPressed);
            press(b);
        },
        pictureFloor(stretched(art.smallPressed, kSize)), art.smallPressed);
    addLook(
        rows, "disabled", [](MSelectButton &b) { b.setDisableState(true); },
        pictureFloor(art.disabled), art.disabled, {}, PeerState::Disabled);
    addLook(
        rows, "captioned", [](MSelectButton &b) { b.setDisplayText(caption()); },
        captionedFloor(art.normal, caption(), Qt::white), art.normal, caption());
    addLook(
        rows, "captioned selected",
        [](MSelectButton &b) {
            b.setDisplayText(caption());
            b.setSelectState(true);
        },
        captionedFloor(art.highlighted, caption(), Qt::cyan), art.highlighted, caption());
    rows.work("MSelectButton", "made and deleted", makeAndDelete<MSelectButton>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>()}});
}
