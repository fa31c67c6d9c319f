// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
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

struct Button : MultipleStateButton {
    Button()
        : MultipleStateButton(0, 0, 1, {fileOf(icon()), fileOf(icon())},
                              {fileOf(icon()), fileOf(icon())}, fileOf(background()))
    {
    }
};

} // namespace

void defineRows(Rows &rows, Tag<MultipleStateButton>)
{
    rows.paint("MultipleStateButton", "second state",
               widgetOf<Button>(kSize, [](Button &button) { button.setButtonValue(1); }),
               {bareWidget(kSize,
                           [](QPainter &painter) {
                               painter.drawPixmap(0, 0, background());
                               painter.drawPixmap(kInset, kInset, icon());
                           })},
               {{"QPushButton icon", iconButton<QPushButton>(kSize, {icon(), kIcon})}});
}
