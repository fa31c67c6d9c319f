// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_LICENCE_H
#define HEADUNIT_LICENCE_H

#include <QStringList>

class QFontMetrics;

namespace headunit
{

/// The text of the licence, without the breaks of its lines, in parts that a label of limited
/// length can show. A part ends with a paragraph.
QStringList licenceParts(int mostCharacters);

/// The same of any text; a paragraph longer than a part ends in the middle of it.
QStringList partsOf(const QString &text, int mostCharacters);

/// A text with its lines broken between words, so that each is no wider than so many px where its
/// characters are measured one by one. A word that is wider has a line of its own.
QString withLines(const QString &text, const QFontMetrics &metrics, int width);

} // namespace headunit

#endif // HEADUNIT_LICENCE_H
