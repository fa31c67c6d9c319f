// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_DRAWNTEXT_H
#define PANELKIT_DETAIL_DRAWNTEXT_H

#include <QChar>
#include <QFont>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <tuple>

class QPainter;

// What QPainter::drawText(rect, flags, text) does, for caches that set its lines themselves.

namespace panelkit
{

/// What the layout of a text depends on: the key of a cache (memo.h).
struct TextSetting {
    QString text;
    QSizeF size; // px, of the rectangle
    int flags = 0;
    QFont font;
    Qt::LayoutDirection direction = Qt::LeftToRight;

    auto tied() const { return std::tie(size, flags, direction, text, font); }
};

/// Alignment, and nothing else that flags may ask for.
constexpr int kPlainFlags = Qt::AlignLeft | Qt::AlignRight | Qt::AlignHCenter | Qt::AlignAbsolute
    | Qt::AlignTop | Qt::AlignBottom | Qt::AlignVCenter;

constexpr qreal kUnwrapped = 1 << 24; ///< px, the width of a line that is never wrapped

/// Whether a character stands for itself; drawText() interprets the others, or ends a line there.
bool isPlain(QChar c);

/// Whether a painter fills letters of this size from their outlines. Such text is not for keeping
/// as pixels: Qt has FreeType move the outlines by the part of a pixel at which the last new letter
/// of that font began, whatever its size, so that they change by some levels meanwhile.
bool isFilledText(const QPainter &painter);

/// Whether a line goes under, through or over the text. Each of Qt's functions places it otherwise.
bool isDecorated(const QFont &font);

/// The alignment to the left and the right that flags mean in a layout direction.
Qt::Alignment visualSides(Qt::LayoutDirection direction, int flags);

/// How much of the spare width of a line goes to its left.
qreal leftShare(Qt::LayoutDirection direction, int flags, qreal spare);

/// Where a line begins: drawText() cuts its place toward zero, to 1/64 px, before any transform.
/// Under a rotation even the smallest difference may move a glyph by a whole pixel.
QPointF lineStart(const QPointF &point);

} // namespace panelkit

#endif // PANELKIT_DETAIL_DRAWNTEXT_H
