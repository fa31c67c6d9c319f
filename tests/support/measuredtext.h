// SPDX-License-Identifier: Apache-2.0
#ifndef MEASUREDTEXT_H
#define MEASUREDTEXT_H

#include <QFontMetrics>
#include <QString>

#include <functional>

#include <dlfcn.h>

/// Counts the characters whose width the library asks for, which is the work of shortening,
/// breaking and rolling a text. Include it in one source of a program: it stands in for functions
/// of Qt's.
namespace measured
{

inline qint64 characters = 0;

/// How many of them an action has measured.
inline qint64 during(const std::function<void()> &action)
{
    const qint64 before = characters;
    action();
    return characters - before;
}

} // namespace measured

int QFontMetrics::horizontalAdvance(const QString &text, int length) const
{
    using Function = int (*)(const QFontMetrics *, const QString &, int);
    static const auto real = reinterpret_cast<Function>(
        dlsym(RTLD_NEXT, "_ZNK12QFontMetrics17horizontalAdvanceERK7QStringi"));
    measured::characters += length < 0 ? text.size() : length;
    return real(this, text, length);
}

int QFontMetrics::horizontalAdvance(QChar character) const
{
    using Function = int (*)(const QFontMetrics *, QChar);
    static const auto real = reinterpret_cast<Function>(
        dlsym(RTLD_NEXT, "_ZNK12QFontMetrics17horizontalAdvanceE5QChar"));
    ++measured::characters;
    return real(this, character);
}

#endif // MEASUREDTEXT_H
