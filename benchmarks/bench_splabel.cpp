// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "pictures.h"
#include "rows.h"

#include <QLabel>
#include <splabel.h>

namespace
{

constexpr QSize kSize(200, 160);
constexpr int kVeil = 154; // alpha

QPixmap picture(const QSize &size) { return keyPicture(QColor(40, 90, 160), size); }

void addLook(Rows &rows, const char *state, const QPixmap &image)
{
    const QPixmap shown =
        veiled(image.scaled(kSize, Qt::IgnoreAspectRatio, Qt::FastTransformation), kVeil);
    // A stretched label keeps no copy of a picture that is smaller than it: the peer is given what
    // ours has to make.
    const PaintingMaker peer = widgetOf<QLabel>(kSize, [shown](QLabel &label) {
        label.setPixmap(shown);
        label.setScaledContents(true);
    });
    rows.paint("SpLabel", state,
               widgetOf<SpLabel>(kSize, [image](SpLabel &label) { label.setImage(image); }),
               {pictureFloor(shown)}, {{"QLabel pixmap", peer, 1.0}});
}

} // namespace

void defineRows(Rows &rows, Tag<SpLabel>)
{
    addLook(rows, "veiled", picture(kSize));
    addLook(rows, "stretched", picture(kSize / 2));
}
