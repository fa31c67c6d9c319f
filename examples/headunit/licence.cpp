// SPDX-License-Identifier: Apache-2.0
#include "licence.h"

#include "theme.h"

#include <QFile>
#include <QFontMetrics>
#include <QRegularExpression>

namespace headunit
{

namespace
{

// Cut between words.
QStringList pieces(QString paragraph, int most)
{
    QStringList result;
    while (paragraph.size() > most) {
        const int blank = paragraph.lastIndexOf(QLatin1Char(' '), most);
        const int end = blank > 0 ? blank : most;
        result << paragraph.left(end);
        paragraph = paragraph.mid(end).trimmed();
    }
    return result << paragraph;
}

QStringList paragraphsOf(const QString &text, int most)
{
    QStringList paragraphs;
    const auto blocks =
        text.split(QRegularExpression(QStringLiteral("\\n[ \\t]*\\n")), Qt::SkipEmptyParts);
    for (const QString &block : blocks)
        paragraphs << pieces(block.simplified(), most);
    paragraphs.removeAll(QString());
    return paragraphs;
}

int widthOf(const QString &word, const QFontMetrics &metrics)
{
    int width = 0;
    for (const QChar c : word)
        width += metrics.horizontalAdvance(c);
    return width;
}

} // namespace

QStringList licenceParts(int mostCharacters)
{
    QFile file(Theme::file(QStringLiteral("LICENSE")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return partsOf(QString::fromUtf8(file.readAll()), mostCharacters);
}

QStringList partsOf(const QString &text, int mostCharacters)
{
    const QString gap = QStringLiteral("\n\n");
    QStringList parts;
    const auto paragraphs = paragraphsOf(text, mostCharacters);
    for (const QString &paragraph : paragraphs) {
        const bool fits = !parts.isEmpty()
            && parts.last().size() + gap.size() + paragraph.size() <= mostCharacters;
        if (fits)
            parts.last() += gap + paragraph;
        else
            parts << paragraph;
    }
    return parts;
}

QString withLines(const QString &text, const QFontMetrics &metrics, int width)
{
    const int blank = metrics.horizontalAdvance(QLatin1Char(' '));
    QStringList lines;
    const auto paragraphs = text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        lines << QString();
        int used = -blank;
        const auto words = paragraph.split(QLatin1Char(' '));
        for (const QString &word : words) {
            const int more = blank + widthOf(word, metrics);
            if (used >= 0 && used + more > width) {
                lines << word;
                used = more - blank;
            } else {
                lines.last() += used < 0 ? word : QLatin1Char(' ') + word;
                used += more;
            }
        }
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace headunit
