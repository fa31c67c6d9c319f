// SPDX-License-Identifier: Apache-2.0
#include "launch.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>

#include <algorithm>
#include <cstdio>

namespace
{

// What the log is written to instead of the console, up to the very end of the program.
QFile &logFile()
{
    static auto *const file = new QFile;
    return *file;
}

void writeToLogFile(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static QMutex mutex; // sound and pictures are decoded in threads of their own
    const QMutexLocker locker(&mutex);
    logFile().write(qFormatLogMessage(type, context, message).toLocal8Bit() + '\n');
    logFile().flush();
}

} // namespace

bool launch::isGiven(int argc, char **argv, const QByteArrayList &options)
{
    return std::any_of(argv + 1, argv + argc, [&options](const char *argument) {
        return options.contains(QByteArray(argument).split('=').constFirst());
    });
}

void launch::preferNoScreen()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

bool launch::writeLogTo(const QString &path)
{
    logFile().setFileName(path);
    if (!logFile().open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "The log cannot be written to %s.\n", qUtf8Printable(path));
        return false;
    }
    qInstallMessageHandler(writeToLogFile);
    return true;
}
