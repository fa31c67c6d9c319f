// SPDX-License-Identifier: Apache-2.0
// Lets a fuzzer find the bytes: the first chooses the class, the rest is its drive. What is wrong
// ends the program, which makes the fuzzer keep the bytes. PANELKIT_FUZZ_SECONDS says how long.

#include "drive.h"

#include "virtualtime.h"

#include <QApplication>
#include <QStyleFactory>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>
#include <utility>

namespace
{

constexpr int kLongestDrive = 60; // s of processor time
constexpr int kActionsALine = 250000;

long long actions = 0;
long end = 0; // s by the true clock, none if 0

// The fuzzer's own limits of time would be measured with the virtual clock.
long trueTime()
{
    timespec now = {};
    syscall(SYS_clock_gettime, CLOCK_MONOTONIC, &now);
    return now.tv_sec;
}

void startWatch()
{
    const itimerval watch = {{0, 0}, {kLongestDrive, 0}};
    setitimer(ITIMER_PROF, &watch, nullptr);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1"); // the clock is virtual
    virtualtime::start();
    new QApplication(*count, *arguments); // for as long as the fuzzer runs
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    std::signal(SIGPROF, [](int) { std::abort(); }); // a drive that does not end
    if (const int seconds = qEnvironmentVariableIntValue("PANELKIT_FUZZ_SECONDS"))
        end = trueTime() + seconds;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, size_t size)
{
    const auto &classes = drivenClasses();
    if (size < 2)
        return 0;
    if (end > 0 && trueTime() >= end) {
        std::printf("%lld actions, nothing found\n", actions);
        std::fflush(stdout);
        std::_Exit(0); // which the fuzzer does not take for the end of a crash
    }
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    startWatch();
    Drive drive(classes[data[0] % classes.size()], bytes);
    const QStringList problems = drive.play();
    const long long before = std::exchange(actions, actions + drive.actions());
    if (before / kActionsALine < actions / kActionsALine) {
        std::printf("%lld actions\n", actions);
        std::fflush(stdout);
    }
    if (problems.isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(problems.join(QLatin1Char('\n'))));
    std::abort();
}
