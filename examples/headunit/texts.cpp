// SPDX-License-Identifier: Apache-2.0
#include "texts.h"

#include <QFontMetrics>

#include <algorithm>

namespace headunit
{

QString timeText(qint64 seconds)
{
    constexpr qint64 kHour = 3600;
    const qint64 time = std::max<qint64>(seconds, 0);
    const QString last = QStringLiteral("%1").arg(time % 60, 2, 10, QLatin1Char('0'));
    if (time < kHour)
        return QStringLiteral("%1:%2").arg(time / 60).arg(last);
    return QStringLiteral("%1:%2:%3")
        .arg(time / kHour)
        .arg(time % kHour / 60, 2, 10, QLatin1Char('0'))
        .arg(last);
}

QString numberText(const QString &number)
{
    constexpr ushort kLeftToRight = 0x202a;
    constexpr ushort kEnd = 0x202c;
    return number.isEmpty() ? number : QChar(kLeftToRight) + number + QChar(kEnd);
}

QString shortened(const QString &text, const QFontMetrics &metrics, int width)
{
    constexpr ushort kLeftToRightMark = 0x200e;
    constexpr ushort kRightToLeftMark = 0x200f;
    const QString shown = metrics.elidedText(text, Qt::ElideRight, width);
    if (shown == text)
        return text;
    return shown + QChar(text.isRightToLeft() ? kRightToLeftMark : kLeftToRightMark);
}

} // namespace headunit
