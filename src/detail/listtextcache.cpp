// SPDX-License-Identifier: Apache-2.0
#include "listtextcache.h"

#include <QFontMetrics>
#include <QPainter>

namespace panelkit
{

namespace
{

// What a layout and a shortened text take beside their characters, and for each of them. A text too
// long for the bound is not kept at all.
constexpr int kEntryBytes = 1024;
constexpr int kLayoutBytesPerCharacter = 32;
constexpr int kElisionBytesPerCharacter = 4;

int bytesOf(const QString &text, int perCharacter)
{
    const qint64 bytes = kEntryBytes + qint64(text.size()) * perCharacter;
    return int(qMin<qint64>(bytes, ListTextCache::kMostBytes + 1));
}

} // namespace

ListTextCache::ListTextCache() : m_layouts(kMostBytes), m_elisions(kMostBytes) { }

void ListTextCache::draw(QPainter &painter, const QRect &rect, int flags, const QString &text)
{
    const Key key{text, rect, flags};
    TextCache *cache = m_layouts.object(key);
    if (!cache) {
        cache = new TextCache;
        if (!m_layouts.insert(key, cache, bytesOf(text, kLayoutBytesPerCharacter))) {
            painter.drawText(rect, flags, text); // the cache has deleted what it refused
            return;
        }
    }
    const int before = cache->layouts();
    cache->draw(painter, rect, flags, text);
    m_layoutCount += cache->layouts() - before;
}

QString ListTextCache::elided(const QFont &font, const QString &text, int width)
{
    if (font != m_elisionFont) {
        m_elisions.clear();
        m_elisionFont = font;
    }
    const Key key{text, QRect(0, 0, width, 0), 0};
    if (const QString *cache = m_elisions.object(key))
        return *cache;
    ++m_elisionCount;
    QString shortened =
        QFontMetrics(font).elidedText(text, Qt::ElideRight, width, Qt::TextShowMnemonic);
    m_elisions.insert(key, new QString(shortened), bytesOf(text, kElisionBytesPerCharacter));
    return shortened;
}

Hash qHash(const ListTextCache::Key &key, Hash seed)
{
    return qHash(key.text, seed) ^ Hash(key.rect.width());
}

} // namespace panelkit
