// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_LISTTEXTCACHE_H
#define PANELKIT_DETAIL_LISTTEXTCACHE_H

#include "qtversion.h"
#include "textcache.h"

#include <QCache>
#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

namespace panelkit
{

/// The texts of a list: the layouts and the shortened forms of those that were drawn last, so that
/// what stays on the screen is laid out and shortened once. What it keeps is bounded, however many
/// rows pass by.
class ListTextCache
{
public:
    ListTextCache();

    /// Draws what QPainter::drawText(rect, flags, text) draws. A rectangle that is relative to its
    /// row, with a painter moved to that row, finds its layout again wherever the row has gone.
    void draw(QPainter &painter, const QRect &rect, int flags, const QString &text);

    /// QFontMetrics(font).elidedText(text, Qt::ElideRight, width, Qt::TextShowMnemonic).
    QString elided(const QFont &font, const QString &text, int width);

    /// How often a layout had to be made.
    int layouts() const { return m_layoutCount; }
    /// How often a text had to be shortened.
    int elisions() const { return m_elisionCount; }
    /// How much of the bound is in use, in bytes: an estimate.
    int bytes() const { return int(m_layouts.totalCost() + m_elisions.totalCost()); }

    static constexpr int kMostBytes = 4 << 20; ///< For the layouts, and again for the elisions.

private:
    struct Key {
        QString text;
        QRect rect; // of an elision only the width
        int flags = 0;

        auto tied() const { return std::tie(rect, flags, text); }
        bool operator==(const Key &other) const { return tied() == other.tied(); }
    };
    friend Hash qHash(const Key &key, Hash seed);

    QCache<Key, TextCache> m_layouts;
    QCache<Key, QString> m_elisions;
    QFont m_elisionFont;
    int m_layoutCount = 0;
    int m_elisionCount = 0;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_LISTTEXTCACHE_H
