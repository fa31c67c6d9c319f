// SPDX-License-Identifier: Apache-2.0
#include "imagebuttonrows.h"
#include "mouse.h"
#include "rows.h"

#include <mselectbutton.h>

namespace
{

void press(MSelectButton &button) { sendMouse(button, QEvent::MouseButtonPress, {20, 20}); }

} // namespace

void defineRows(Rows &rows, Tag<MSelectButton>)
{
    using Looks = ImageButtonRows<MSelectButton>;
    const ButtonArtwork &art = Looks::artwork();
    Looks looks(rows, "MSelectButton", [&art](MSelectButton &b) {
        b.setSelectImage(art.highlighted);
        b.setSelectTextColor(Qt::cyan);
    });
    const auto select = [](MSelectButton &b) { b.setSelectState(true); };
    const auto disable = [](MSelectButton &b) { b.setDisableState(true); };
    const auto pressStretched = [&art](MSelectButton &b) {
        b.setPressImage(art.smallPressed);
        press(b);
    };
    looks.addLook("normal", art.normal, AsItIs());
    looks.addLook("pressed", art.pressed, press);
    looks.addLook("selected", art.highlighted, select);
    looks.addLook("stretched pressed", art.smallPressed, pressStretched);
    looks.addLook("disabled", art.disabled, disable, PeerState::Disabled);
    looks.addCaptionedLook("captioned", art.normal, Qt::white, AsItIs());
    looks.addCaptionedLook("captioned selected", art.highlighted, Qt::cyan, select);
}
