// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_FLOORS_H
#define PANELKIT_BENCHMARKS_FLOORS_H

#include "rows.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QStaticText>
#include <QString>
#include <QTextOption>

// What floors are made of: pictures and layouts that need no more work.

/// The font of the application in another size.
QFont fontOf(int px);

/// Where Qt begins a line that was laid out to begin here.
qreal lineStart(qreal position);

QStaticText preparedText(const QString &text, const QFont &font, const QTextOption &option = {});

/// A layout that needs no more work, and where it stands.
struct LaidOutText {
    QStaticText layout;
    QPointF at;

    void draw(QPainter &painter, const QColor &color) const
    {
        painter.setPen(color);
        painter.drawStaticText(at, layout);
    }
};

/// The text as drawText() places it.
LaidOutText laidOut(const QString &text, const QFont &font, const QRectF &rect,
                    int flags = Qt::AlignCenter);

/// The limit of a look at rest that draws a text.
OwnLimits textLimit(double blit);

/// Those of a text that is kept with all the area of its widget.
OwnLimits keptTextLimit(double blit);

/// The floor of a look that is one picture.
PaintingMaker pictureFloor(const QPixmap &picture);

/// The floor of a look with a caption in the middle of its picture.
PaintingMaker captionedFloor(const QPixmap &picture, const QString &caption, const QColor &color);

#endif // PANELKIT_BENCHMARKS_FLOORS_H
