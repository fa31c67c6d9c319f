// SPDX-License-Identifier: Apache-2.0
#include "licence.h"

#include "theme.h"

#include <QFile>
#include <QFontMetrics>
#include <QRegularExpression>

#include <algorithm>

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

// That of the line as it is painted, or of its letters one by one, by which the label breaks lines:
// rounding may make either the wider one.
int widthOf(const QString &line, const QFontMetrics &metrics)
{
    int width = 0;
    for (const QChar c : line)
        width += metrics.horizontalAdvance(c);
    return std::max(width, metrics.horizontalAdvance(line));
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
    QStringList lines;
    const auto paragraphs = text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        QString line;
        const auto words = paragraph.split(QLatin1Char(' '));
        for (const QString &word : words) {
            const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
            if (!line.isEmpty() && widthOf(longer, metrics) > width) {
                lines << line;
                line = word;
            } else {
                line = longer;
            }
        }
        lines << line;
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace headunit
