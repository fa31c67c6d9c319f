// SPDX-License-Identifier: Apache-2.0
// Lets a fuzzer find the bytes: the first chooses the class, the rest is its drive. What is wrong
// ends the program, which makes the fuzzer keep the bytes.

#include "drive.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1"); // the clock is virtual
    new QApplication(*count, *arguments); // for as long as the fuzzer runs
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, size_t size)
{
    const auto &classes = drivenClasses();
    if (size < 2)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    const QStringList problems = Drive(classes[data[0] % classes.size()], bytes).play();
    if (problems.isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(problems.join(QLatin1Char('\n'))));
    std::abort();
}
