// SPDX-License-Identifier: Apache-2.0
#ifndef VIRTUALTIME_H
#define VIRTUALTIME_H

#include <QtGlobal>

/// A clock for programs that are played by a script. A program with virtualtime.cpp among its own
/// sources, and ENABLE_EXPORTS, has clock_gettime, gettimeofday and ppoll from there; once the
/// clock is started, an event loop of the main thread with nothing to do moves it to its next timer
/// instead of sleeping, so that minutes pass in no time and every expiry is exact. It needs the
/// plain Unix event dispatcher (QT_NO_GLIB=1).
namespace virtualtime
{

/// How often a timer without interval ticks in a ms.
constexpr int kTurnsPerMs = 10;

/// Starts the clock, at the same time of day in every run. Call it first of all: timers that run
/// already belong to the true clock.
void start();

/// While there is one the clock stands still, and an event loop waits truly: for other threads,
/// whose clock is the true one.
class Standstill
{
public:
    Standstill();
    ~Standstill();
    Standstill(const Standstill &) = delete;
    Standstill &operator=(const Standstill &) = delete;
};

/// Milliseconds since the start by the virtual clock.
qint64 now();

/// Runs the event loop for this many virtual ms; what is due at the very end still happens.
void advance(int ms);

/// Moves the clock to the next full minute, where coarse timers need no rounding.
void startMinute();

} // namespace virtualtime

#endif // VIRTUALTIME_H
