// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <playbutton.h>
#include <QIcon>
#include <QPushButton>
#include <QTemporaryDir>

namespace
{

constexpr QSize kSize(96, 96);
constexpr double kFloorLimit = 1.15;
constexpr double kPeerLimit = 0.6;

const QPixmap &normal()
{
    static const QPixmap picture = keyPicture(QColor(40, 90, 160), kSize);
    return picture;
}

QString normalFile()
{
    static const QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("normal.png"));
    normal().save(path);
    return path;
}

struct Button : PlayButton {
    Button() : PlayButton(0, 0, 1, normalFile(), normalFile()) { }
};

} // namespace

void defineRows(Rows &rows, Tag<PlayButton>)
{
    rows.paint("PlayButton", "normal", widgetOf<Button>(kSize, [](Button &) {}),
               {bareWidget(kSize, [](QPainter &painter) { painter.drawPixmap(0, 0, normal()); }),
                kFloorLimit},
               {{"QPushButton icon",
                 widgetOf<QPushButton>(kSize,
                                       [](QPushButton &button) {
                                           button.setIcon(QIcon(normal()));
                                           button.setIconSize(kSize);
                                       }),
                 kPeerLimit}});
}
