// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_TEXTCACHE_H
#define PANELKIT_DETAIL_TEXTCACHE_H

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QStaticText>
#include <QString>

class QPainter;

namespace panelkit
{

/// One caption whose layout is kept until its text, alignment, font, direction or the size of its
/// rectangle changes; where the rectangle stands does not matter, to a whole pixel. It draws the
/// very pixels of QPainter::drawText(rect, flags, text) for about a third of the cost. Whatever is
/// more than one plain line goes to drawText as it is. The pen has to be of one colour: QStaticText
/// places a gradient by the origin of the device.
class TextCache
{
public:
    void draw(QPainter &painter, const QRectF &rect, int flags, const QString &text);

    /// How often a layout had to be made.
    int layouts() const { return m_layouts; }

private:
    bool isCurrent(const QPainter &painter, const QRectF &rect, int flags,
                   const QString &text) const;
    void layOut(QPainter &painter, const QRectF &rect, int flags, const QString &text);

    QString m_text;
    QSizeF m_size; // of the rectangle
    QPointF m_fraction; // of a pixel where the text stands: it moves well by whole ones only
    int m_flags = 0;
    QFont m_font;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
    bool m_isPlain = false;
    bool m_isClipped = false;
    QPointF m_offset; // of the text in the rectangle
    QStaticText m_static;
    int m_layouts = 0;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_TEXTCACHE_H
