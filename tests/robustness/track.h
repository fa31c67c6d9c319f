// SPDX-License-Identifier: Apache-2.0
#ifndef TRACK_H
#define TRACK_H

#include <QDebug>
#include <QStringList>

#include <cstdio>

/// What a drive has done so far: names, and with PANELKIT_DRIVE_TRACE in the environment also what
/// they were given, printed before it is done, so that the last line is that of a crash.
class Track
{
public:
    template <typename... Values> void add(const char *name, const Values &...values)
    {
        QString line = QString::fromLatin1(name);
        if (m_isPrinted) {
            line += QLatin1Char(' ');
            QDebug debug(&line);
            static_cast<void>((debug << ... << values));
            std::fprintf(stderr, "%s\n", qPrintable(line.left(kLongest)));
        }
        m_lines += line;
    }

    const QStringList &lines() const { return m_lines; }

private:
    static constexpr int kLongest = 200; // characters

    const bool m_isPrinted = qEnvironmentVariableIsSet("PANELKIT_DRIVE_TRACE");
    QStringList m_lines;
};

#endif // TRACK_H
