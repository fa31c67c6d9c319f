// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <playbutton.h>
#include <QPushButton>

namespace
{

constexpr QSize kSize(96, 96);
constexpr double kPeerLimit = 0.6;

const QPixmap &normal()
{
    static const QPixmap picture = keyPicture(QColor(40, 90, 160), kSize);
    return picture;
}

struct Button : PlayButton {
    Button() : PlayButton(0, 0, 1, fileOf(normal()), fileOf(normal())) { }
};

} // namespace

void defineRows(Rows &rows, Tag<PlayButton>)
{
    rows.paint(
        "PlayButton", "normal", widgetOf<Button>(kSize), {pictureFloor(normal())},
        {{"QPushButton icon", iconButton<QPushButton>(kSize, {normal(), kSize}), kPeerLimit}});
}
