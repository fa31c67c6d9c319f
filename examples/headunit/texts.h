// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_TEXTS_H
#define HEADUNIT_TEXTS_H

#include <QChar>
#include <QString>

class QFontMetrics;

namespace headunit
{

/// The minus sign, as wide as a digit and as the plus sign.
constexpr QChar kMinus(0x2212);

/// A length of time as players and telephones write it: 4:07, or 1:02:33.
QString timeText(qint64 seconds);

/// A telephone number as it is dialled, also among words that are read from the right.
QString numberText(const QString &number);

/// A text shortened to so many px. The dots stand where the text goes on, also among words that are
/// read from the other side.
QString shortened(const QString &text, const QFontMetrics &metrics, int width);

} // namespace headunit

#endif // HEADUNIT_TEXTS_H
