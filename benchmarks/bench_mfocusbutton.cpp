// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"
#include "startup.h"

#include <mfocusbutton.h>
#include <QPushButton>
#include <QRadioButton>

namespace
{

constexpr QSize kSize(120, 80);
constexpr double kFloorLimit = 1.15;
constexpr double kStyleSheetLimit = 0.65;
constexpr double kStartUpLimit = 1.5;

QString caption() { return QStringLiteral("Radio"); }

const ButtonArtwork &artwork() { return buttonArtwork(kSize); }

// Ours: a button with all its pictures, in the state into which the function brings it.
template <class Enter> PaintingMaker button(Enter enter)
{
    return widgetOf<MFocusButton>(kSize, [enter](MFocusButton &button) {
        button.setNormalImage(artwork().normal);
        button.setPressImage(artwork().pressed);
        button.setDisableImage(artwork().disabled);
        button.setNormalTextColor(Qt::white);
        button.setPressTextColor(Qt::yellow);
        enter(button);
    });
}

// A look beside its floor and the same look of Qt's own button.
template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const PaintingMaker &floor,
             const QPixmap &picture, const QString &text = {}, PeerState peer = PeerState::Normal)
{
    rows.paint("MFocusButton", state, button(enter), {floor, kFloorLimit},
               {{"QPushButton style sheet", styledButton(kSize, pictureSheet(picture), text, peer),
                 kStyleSheetLimit}});
}

} // namespace

void defineRows(Rows &rows, Tag<MFocusButton>)
{
    const ButtonArtwork &art = artwork();
    addLook(rows, "normal", AsItIs(), pictureFloor(art.normal), art.normal);
    addLook(
        rows, "checked", [](MFocusButton &b) { b.setChecked(true); }, pictureFloor(art.pressed),
        art.pressed);
    addLook(
        rows, "stretched checked",
        [](MFocusButton &b) {
            b.setPressImage(artwork().smallPressed);
            b.setChecked(true);
        },
        pictureFloor(stretched(art.smallPressed, kSize)), art.smallPressed);
    addLook(
        rows, "disabled", [](MFocusButton &b) { b.setEnabled(false); }, pictureFloor(art.disabled),
        art.disabled, {}, PeerState::Disabled);
    addLook(
        rows, "captioned", [](MFocusButton &b) { b.setDisplayText(caption()); },
        captionedFloor(art.normal, caption(), Qt::white), art.normal, caption());
    addLook(
        rows, "captioned checked",
        [](MFocusButton &b) {
            b.setDisplayText(caption());
            b.setChecked(true);
        },
        captionedFloor(art.pressed, caption(), Qt::yellow), art.pressed, caption());
    rows.work("MFocusButton", "made and deleted", makeAndDelete<MFocusButton>(),
              {makeAndDelete<QRadioButton>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>()}});
}
