// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "mouse.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"
#include "startup.h"

#include <QPushButton>
#include <QToolButton>
#include <spiconbutton.h>

namespace
{

constexpr QSize kSize(96, 96);
constexpr int kVeil = 154; // alpha
constexpr double kStyleSheetLimit = 0.6;
constexpr double kStartUpLimit = 2;

QString caption() { return QStringLiteral("Radio"); }

const ButtonArtwork &artwork() { return buttonArtwork(kSize); }

// A button with all its pictures.
void setUp(SpIconButton &button)
{
    setImages(button, artwork());
    button.setFocusPixmap(artwork().highlighted);
    button.setImageAlpha(kVeil);
    button.setDisableAlpha(kVeil);
    button.setIsBeep(false);
}

// One touch in the middle of the button.
void tap(SpIconButton &button)
{
    const QPoint middle(kSize.width() / 2, kSize.height() / 2);
    sendMouse(button, QEvent::MouseButtonPress, middle);
    sendMouse(button, QEvent::MouseButtonRelease, middle);
}

// A style sheet with a picture for each state.
QString sheetOf(const QPixmap &picture)
{
    return QStringLiteral("QPushButton { border-width: 0; color: white; border-image: url(%1); }"
                          "QPushButton:pressed { color: red; border-image: url(%2); }"
                          "QPushButton:checked { border-image: url(%2); }"
                          "QPushButton:disabled { color: #9affffff; border-image: url(%2); }")
        .arg(fileOf(artwork().normal), fileOf(picture));
}

// A look beside its floor and the same look of Qt's own buttons. With a caption their icons are
// made small enough for both to fit, and such a peer has fewer pixels to paint than ours.
template <class Enter>
void addLook(Rows &rows, const char *state, Enter enter, const PaintingMaker &floor,
             const QPixmap &picture, PeerState peer = PeerState::Normal, const QString &text = {})
{
    const IconLook look{picture, text.isEmpty() ? kSize : kSize / 2, peer, text};
    rows.paint("SpIconButton", state, widgetOf<SpIconButton>(kSize, setUp, enter), {floor},
               {{"QPushButton style sheet", styledButton(kSize, sheetOf(picture), text, peer),
                 kStyleSheetLimit},
                {"QPushButton icon", iconButton<QPushButton>(kSize, look)},
                {"QToolButton icon", iconButton<QToolButton>(kSize, look)}});
}

void addEnabledLooks(Rows &rows)
{
    const ButtonArtwork &art = artwork();
    const QPixmap dark = veiled(art.normal, kVeil);
    addLook(rows, "normal", AsItIs(), pictureFloor(art.normal), art.normal);
    addLook(
        rows, "pressed", [](SpIconButton &b) { b.setIsDown(true); }, pictureFloor(art.pressed),
        art.pressed, PeerState::Pressed);
    addLook(
        rows, "focused", [](SpIconButton &b) { b.setFocus(true); }, pictureFloor(art.highlighted),
        art.highlighted, PeerState::Checked);
    addLook(
        rows, "veiled pressed",
        [](SpIconButton &b) {
            b.setShowMode(SpIconButton::AlphaMode);
            b.setIsDown(true);
        },
        pictureFloor(dark), dark, PeerState::Pressed);
    addLook(
        rows, "latched",
        [](SpIconButton &b) {
            b.setIsLock(true);
            tap(b);
        },
        pictureFloor(art.pressed), art.pressed, PeerState::Pressed);
    addLook(
        rows, "stretched pressed",
        [](SpIconButton &b) {
            b.setPressImage(artwork().smallPressed);
            b.setIsDown(true);
        },
        pictureFloor(stretched(art.smallPressed, kSize)), art.smallPressed, PeerState::Pressed);
}

void addDisabledLooks(Rows &rows)
{
    const auto disabled = [](SpIconButton::DisableMode mode) {
        return [mode](SpIconButton &b) {
            b.setDisableMode(mode);
            b.setDisableState(true);
        };
    };
    const ButtonArtwork &art = artwork();
    const QPixmap dark = veiled(art.normal, kVeil);
    addLook(rows, "disabled normal", disabled(SpIconButton::Show_NormalImage),
            pictureFloor(art.normal), art.normal, PeerState::Disabled);
    addLook(rows, "disabled image", disabled(SpIconButton::Show_DisableImage),
            pictureFloor(art.disabled), art.disabled, PeerState::Disabled);
    addLook(rows, "disabled veiled", disabled(SpIconButton::Show_NormalImageAlpha),
            pictureFloor(dark), dark, PeerState::Disabled);
}

void addCaptionedLooks(Rows &rows)
{
    const ButtonArtwork &art = artwork();
    const QPixmap dark = veiled(art.normal, kVeil);
    addLook(
        rows, "captioned", [](SpIconButton &b) { b.setDisplayText(caption()); },
        captionedFloor(art.normal, caption(), QColor(255, 255, 255)), art.normal, PeerState::Normal,
        caption());
    addLook(
        rows, "captioned pressed",
        [](SpIconButton &b) {
            b.setDisplayText(caption());
            b.setIsDown(true);
        },
        captionedFloor(art.pressed, caption(), QColor(255, 0, 0)), art.pressed, PeerState::Pressed,
        caption());
    addLook(
        rows, "captioned disabled veiled",
        [](SpIconButton &b) {
            b.setDisplayText(caption());
            b.setDisableState(true);
        },
        captionedFloor(dark, caption(), QColor(255, 255, 255, 154)), dark, PeerState::Disabled,
        caption());
}

} // namespace

void defineRows(Rows &rows, Tag<SpIconButton>)
{
    addEnabledLooks(rows);
    addDisabledLooks(rows);
    addCaptionedLooks(rows);
    rows.work("SpIconButton", "made and deleted", makeAndDelete<SpIconButton>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>(), 1.0}});
}
