// SPDX-License-Identifier: Apache-2.0
#include "virtualtime.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace
{

constexpr qint64 kNsPerMs = 1000000;
constexpr qint64 kNsPerSecond = 1000 * kNsPerMs;
constexpr qint64 kNsPerMinute = 60 * kNsPerSecond;
constexpr qint64 kMonotonicStart = 6000 * kNsPerSecond; // a full minute, as the next one
constexpr qint64 kRealStart = 1893456000 * kNsPerSecond; // 2030-01-01 00:00:00 UTC

constexpr timespec kShortWait = {0, 10 * kNsPerMs}; // by the true clock

// Written by the main thread only.
bool isStarted = false;
int standstills = 0;
qint64 elapsedNs = 0;
bool isAdvancing = false;
qint64 turns = 0; // of an event loop, since the clock is made to advance

bool isMainThread()
{
    thread_local const bool isMain = syscall(SYS_gettid) == getpid();
    return isMain;
}

timespec toTimespec(qint64 ns)
{
    timespec result = {};
    result.tv_sec = ns / kNsPerSecond;
    result.tv_nsec = ns % kNsPerSecond;
    return result;
}

int waitFor(pollfd *fds, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    timespec remaining = timeout ? *timeout : timespec();
    return int(syscall(SYS_ppoll, fds, count, timeout ? &remaining : nullptr, mask, _NSIG / 8));
}

// Qt asks for one ms more than is left until its next timer, so as never to wake up too early; on
// this clock, which only ever shows whole ms, that would make every timer late by it.
qint64 untilDue(const timespec &timeout)
{
    const qint64 asked = timeout.tv_sec * kNsPerSecond + timeout.tv_nsec;
    return asked > kNsPerMs ? asked - kNsPerMs : asked;
}

// A loop that has something to do in each turn never waits: a timer without interval keeps it so.
// Its turns take time too, or the clock would stand still.
qint64 ofOneTurn()
{
    turns = isAdvancing ? turns + 1 : 0;
    return turns > 0 && turns % virtualtime::kTurnsPerMs == 0 ? kNsPerMs : 0;
}

int virtualPoll(pollfd *fds, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    if (!isStarted || !isMainThread() || standstills > 0)
        return waitFor(fds, count, timeout, mask);
    // With no timer to come only another thread can end the wait; or, while the clock is made to
    // advance, a loop outside this one that has been told to end meanwhile: Qt looks for that when
    // it wakes up, for whatever reason.
    if (!timeout)
        return waitFor(fds, count, isAdvancing ? &kShortWait : nullptr, mask);
    const timespec atOnce = {};
    const int ready = waitFor(fds, count, &atOnce, mask);
    if (timeout->tv_sec == 0 && timeout->tv_nsec == 0)
        elapsedNs += ofOneTurn();
    else if (ready == 0)
        elapsedNs += untilDue(*timeout);
    return ready;
}

} // namespace

// The C library's own names of the parameters are reserved ones.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

Q_DECL_EXPORT int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const bool isReal = clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE;
    const bool isMonotonic = clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_COARSE
        || clock == CLOCK_MONOTONIC_RAW || clock == CLOCK_BOOTTIME;
    if (!isStarted || (!isReal && !isMonotonic) || !isMainThread())
        return int(syscall(SYS_clock_gettime, clock, time));
    *time = toTimespec((isReal ? kRealStart : kMonotonicStart) + elapsedNs);
    return 0;
}

Q_DECL_EXPORT int gettimeofday(timeval *time, void *) noexcept
{
    timespec precise = {};
    clock_gettime(CLOCK_REALTIME, &precise);
    time->tv_sec = precise.tv_sec;
    time->tv_usec = precise.tv_nsec / 1000;
    return 0;
}

Q_DECL_EXPORT int ppoll(pollfd *fds, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    return virtualPoll(fds, count, timeout, mask);
}

// What ppoll becomes in a Qt built with _FORTIFY_SOURCE.
Q_DECL_EXPORT int __ppoll_chk(pollfd *fds, nfds_t count, const timespec *timeout,
                              const sigset_t *mask, size_t)
{
    return virtualPoll(fds, count, timeout, mask);
}

} // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

namespace virtualtime
{

void start() { isStarted = true; }

Standstill::Standstill() { ++standstills; }

Standstill::~Standstill() { --standstills; }

qint64 now() { return elapsedNs / kNsPerMs; }

void advance(int ms)
{
    const QScopedValueRollback<bool> advancing(isAdvancing, true);
    turns = 0;
    QEventLoop loop;
    QTimer end;
    end.setTimerType(Qt::PreciseTimer);
    end.setSingleShot(true);
    QObject::connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
    end.start(ms);
    loop.exec();
    QCoreApplication::processEvents();
}

void startMinute()
{
    elapsedNs = (elapsedNs / kNsPerMinute + 1) * kNsPerMinute;
    QCoreApplication::processEvents();
}

} // namespace virtualtime
