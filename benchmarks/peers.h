// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_PEERS_H
#define PANELKIT_BENCHMARKS_PEERS_H

#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <QAbstractButton>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QToolButton>

#include <type_traits>

// Qt's own widgets in the looks of ours.

/// Qt's buttons have no focused look with a picture of its own; the checked one stands for it.
enum class PeerState { Normal, Pressed, Checked, Disabled };

void enter(QAbstractButton &button, PeerState state);

/// A button with an icon, and a text if there is one. An icon never lies under its text.
struct IconLook {
    QPixmap picture;
    QSize iconSize;
    PeerState state = PeerState::Normal;
    QString text = {};
    Qt::ToolButtonStyle textPlace = Qt::ToolButtonTextUnderIcon; // of tool buttons
};

/// The functions have the last word on how the button looks.
template <class Button, class... Prepare>
PaintingMaker iconButton(const QSize &size, const IconLook &look, Prepare... prepare)
{
    const auto show = [look](Button &button) {
        QIcon icon(look.picture);
        icon.addPixmap(look.picture, QIcon::Disabled); // or Qt makes a grey one
        button.setIcon(icon);
        button.setIconSize(look.iconSize);
        button.setText(look.text);
        if constexpr (std::is_same_v<Button, QToolButton>)
            button.setToolButtonStyle(look.text.isEmpty() ? Qt::ToolButtonIconOnly
                                                          : look.textPlace);
        enter(button, look.state);
    };
    return widgetOf<Button>(size, show, prepare...);
}

/// A push button in a style sheet.
PaintingMaker styledButton(const QSize &size, const QString &sheet, const QString &text = {},
                           PeerState state = PeerState::Normal);

/// The style sheet of a push button that shows a picture under its text, stretched to its size.
QString pictureSheet(const QPixmap &picture);

/// A slider from 0 to 100 in a style sheet.
PaintingMaker styledSlider(const QSize &size, Qt::Orientation orientation, const QString &sheet,
                           int value = 0);

/// A slider whose groove, part of it up to the handle, and handle are pictures.
PaintingMaker picturedSlider(const QSize &size, Qt::Orientation orientation,
                             const SliderArtwork &artwork, int value = 0);

#endif // PANELKIT_BENCHMARKS_PEERS_H
