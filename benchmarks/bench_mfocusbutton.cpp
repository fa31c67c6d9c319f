// SPDX-License-Identifier: Apache-2.0
#include "imagebuttonrows.h"
#include "rows.h"
#include "startup.h"

#include <mfocusbutton.h>
#include <QPushButton>
#include <QRadioButton>

namespace
{

constexpr double kStartUpLimit = 1.3;
const QString kCaption = QStringLiteral("Radio");

} // namespace

void defineRows(Rows &rows, Tag<MFocusButton>)
{
    using Looks = ImageButtonRows<MFocusButton>;
    Looks looks(rows, "MFocusButton");
    const ButtonArtwork &art = Looks::artwork();
    const auto check = [](MFocusButton &b) { b.setChecked(true); };
    const auto disable = [](MFocusButton &b) { b.setEnabled(false); };
    const auto checkStretched = [check, &art](MFocusButton &b) {
        b.setPressImage(art.smallPressed);
        check(b);
    };
    looks.addLook("normal", art.normal, AsItIs());
    looks.addLook("checked", art.pressed, check);
    looks.addLook("stretched checked", art.smallPressed, checkStretched);
    looks.addLook("disabled", art.disabled, disable, PeerState::Disabled);
    looks.addCaptionedLook("captioned", art.normal, Qt::white, AsItIs());
    looks.addCaptionedLook("captioned checked", art.pressed, Qt::yellow, check);
    // Without pictures it is the button of Qt that it is.
    const QSize size(120, 80);
    rows.paint("MFocusButton", "no picture",
               widgetOf<MFocusButton>(size, [](MFocusButton &b) { b.setText(kCaption); }),
               {widgetOf<QRadioButton>(size, [](QRadioButton &b) { b.setText(kCaption); })}, {},
               {"all of its 107,000 instructions are QRadioButton's own", 15});
    rows.work("MFocusButton", "made and deleted", makeAndDelete<MFocusButton>(),
              {makeAndDelete<QRadioButton>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>()}});
}
