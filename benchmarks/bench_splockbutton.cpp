// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <QIcon>
#include <QPushButton>
#include <QToolButton>
#include <splockbutton.h>

namespace
{

constexpr QSize kSize(96, 96);
constexpr int kFade = 154; // alpha
constexpr double kFloorLimit = 1.15;

const QPixmap &normal()
{
    static const QPixmap picture = keyPicture(QColor(40, 90, 160), kSize);
    return picture;
}

QPixmap faded()
{
    QPixmap result = normal();
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(result.rect(), QColor(0, 0, 0, kFade));
    return result;
}

template <class Enter> PaintingMaker button(Enter enter)
{
    return widgetOf<SpLockButton>(kSize, [enter](SpLockButton &button) {
        button.setNormalImage(normal());
        enter(button);
    });
}

PaintingMaker floorOf(const QPixmap &picture)
{
    return bareWidget(kSize, [picture](QPainter &painter) { painter.drawPixmap(0, 0, picture); });
}

template <class Button> PaintingMaker iconButton(const QPixmap &picture, bool isDown)
{
    return widgetOf<Button>(kSize, [picture, isDown](Button &button) {
        button.setIcon(QIcon(picture));
        button.setIconSize(kSize);
        button.setCheckable(true);
        button.setChecked(isDown);
    });
}

void addLook(Rows &rows, const char *state, const PaintingMaker &ours, const QPixmap &picture,
             bool isDown)
{
    rows.paint("SpLockButton", state, ours, {floorOf(picture), kFloorLimit},
               {{"QPushButton icon", iconButton<QPushButton>(picture, isDown), 0.6},
                {"QToolButton icon", iconButton<QToolButton>(picture, isDown), 0.6}});
}

} // namespace

void defineRows(Rows &rows, Tag<SpLockButton>)
{
    addLook(rows, "up", button([](SpLockButton &) {}), normal(), false);
    addLook(rows, "faded down", button([](SpLockButton &b) { b.setIsDown(true); }), faded(), true);
    addLook(rows, "faded disabled", button([](SpLockButton &b) {
                b.setDisableMode(SpLockButton::Show_NormalImageAlpha);
                b.setDisableState(true);
            }),
            faded(), false);
}
