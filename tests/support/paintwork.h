// SPDX-License-Identifier: Apache-2.0
#ifndef PAINTWORK_H
#define PAINTWORK_H

#include <QPicture>
#include <QWidget>

/// How much a widget paints: the size of its recorded drawing, in bytes. A line takes about 30 and
/// a short text about 100.
inline int recordedBytes(QWidget &widget)
{
    QPicture picture;
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return int(picture.size());
}

#endif // PAINTWORK_H
