// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_LETTERINDEX_H
#define HEADUNIT_LETTERINDEX_H

#include <QCollator>
#include <QHash>
#include <QVector>

namespace headunit
{

/// The order of a list for people to read: by the language, numbers by value, case and leading
/// punctuation ignored.
QCollator readersCollator();

/// What a text is sorted by: the text from its first letter or digit on.
QString sortText(const QString &text);

/// The letter that a text stands under: its first one, in upper case and without accents; '#' for
/// texts that begin with no letter.
QChar indexLetter(const QString &text);

/// Where each letter begins in a sorted list.
class LetterIndex
{
public:
    void clear();
    /// Adds the next row.
    void append(const QString &text);

    /// Each letter once, in the order of the rows.
    QVector<QChar> letters() const { return m_letters; }

    /// The letter that a row stands under; null for a row that is none.
    QChar letterOf(int row) const;

    /// The first row under a letter. A letter without rows gives the next letter's, or the last
    /// letter's after that; -1 if there are no rows.
    int rowOf(QChar letter) const;

private:
    QVector<QChar> m_letters;
    QHash<QChar, int> m_firstRows;
    QVector<QChar> m_ofRow;
};

} // namespace headunit

#endif // HEADUNIT_LETTERINDEX_H
