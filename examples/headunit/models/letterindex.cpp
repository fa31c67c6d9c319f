// SPDX-License-Identifier: Apache-2.0
#include "letterindex.h"

#include <QLocale>

namespace headunit
{

namespace
{

constexpr QLatin1Char kNoLetter('#');

int firstLetterOrDigit(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i).isLetterOrNumber() || text.at(i).isSurrogate())
            return i;
    }
    return -1;
}

} // namespace

QCollator readersCollator()
{
    const QLocale locale;
    // The C locale sorts by character codes, with all capitals before all small letters.
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

QString sortText(const QString &text) { return text.mid(qMax(0, firstLetterOrDigit(text))); }

QChar indexLetter(const QString &text)
{
    const int first = firstLetterOrDigit(text);
    if (first < 0 || !text.at(first).isLetter())
        return kNoLetter;
    const QChar letter = text.at(first);
    if (letter.unicode() < 0x80)
        return letter.toUpper();
    return QString(letter).normalized(QString::NormalizationForm_KD).at(0).toUpper();
}

void LetterIndex::clear()
{
    m_letters.clear();
    m_firstRows.clear();
    m_ofRow.clear();
}

void LetterIndex::append(const QString &text)
{
    const QChar letter = indexLetter(text);
    if (!m_firstRows.contains(letter)) {
        m_firstRows.insert(letter, m_ofRow.size());
        m_letters.append(letter);
    }
    m_ofRow.append(letter);
}

QChar LetterIndex::letterOf(int row) const { return m_ofRow.value(row); }

int LetterIndex::rowOf(QChar letter) const
{
    if (m_letters.isEmpty())
        return -1;
    const auto row = m_firstRows.constFind(letter.toUpper());
    if (row != m_firstRows.cend())
        return *row;
    const QCollator collator = readersCollator();
    for (const QChar other : m_letters) {
        if (other != kNoLetter && collator.compare(QString(other), QString(letter)) > 0)
            return m_firstRows.value(other);
    }
    return m_firstRows.value(m_letters.last());
}

} // namespace headunit
