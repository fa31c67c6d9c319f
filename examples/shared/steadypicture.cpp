// SPDX-License-Identifier: Apache-2.0
#include "steadypicture.h"

#include <QFont>
#include <QPixmap>
#include <QRawFont>
#include <QWidget>

namespace
{

// A copy of a font in another size shares the file, but none of the letters that are kept.
void renderOneMoreLetter(const QFont &font)
{
    QRawFont copy = QRawFont::fromFont(font);
    copy.setPixelSize(copy.pixelSize() + 1);
    copy.alphaMapForGlyph(0, QRawFont::PixelAntialiasing);
}

} // namespace

QImage steadyPicture(QWidget &widget)
{
    QFont font = widget.font();
    for (const bool isBold : {false, true}) {
        font.setBold(isBold);
        renderOneMoreLetter(font);
    }
    return widget.grab().toImage();
}
