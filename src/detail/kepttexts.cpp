// SPDX-License-Identifier: Apache-2.0
#include "kepttexts.h"

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
    return int(qMin<qint64>(bytes, KeptTexts::kMostBytes + 1));
}

} // namespace

KeptTexts::KeptTexts() : m_layouts(kMostBytes), m_elisions(kMostBytes) { }

void KeptTexts::draw(QPainter &painter, const QRect &rect, int flags, const QString &text)
{
    const Key key{text, rect, flags};
    KeptText *kept = m_layouts.object(key);
    if (!kept) {
        kept = new KeptText;
        if (!m_layouts.insert(key, kept, bytesOf(text, kLayoutBytesPerCharacter))) {
            painter.drawText(rect, flags, text); // the cache has deleted what it refused
            return;
        }
    }
    const int before = kept->layouts();
    kept->draw(painter, rect, flags, text);
    m_layoutCount += kept->layouts() - before;
}

QString KeptTexts::elided(const QFont &font, const QString &text, int width)
{
    if (font != m_elisionFont) {
        m_elisions.clear();
        m_elisionFont = font;
    }
    const Key key{text, QRect(0, 0, width, 0), 0};
    if (const QString *kept = m_elisions.object(key))
        return *kept;
    ++m_elisionCount;
    QString shortened =
        QFontMetrics(font).elidedText(text, Qt::ElideRight, width, Qt::TextShowMnemonic);
    m_elisions.insert(key, new QString(shortened), bytesOf(text, kElisionBytesPerCharacter));
    return shortened;
}

bool KeptTexts::Key::operator==(const Key &other) const
{
    return rect == other.rect && flags == other.flags && text == other.text;
}

uint qHash(const KeptTexts::Key &key, uint seed)
{
    return qHash(key.text, seed) ^ uint(key.rect.width());
}

} // namespace panelkit
