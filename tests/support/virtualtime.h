// SPDX-License-Identifier: Apache-2.0
#ifndef VIRTUALTIME_H
#define VIRTUALTIME_H

#include <QtGlobal>

/// The clock of the test program. Linking virtualtime.cpp replaces clock_gettime, gettimeofday and
/// ppoll for the main thread: an event loop with nothing to do moves the clock to its next timer
/// instead of sleeping, so that minutes pass in no time and every expiry is exact. A timer without
/// interval ticks a hundred times a ms. It needs the
/// plain Unix event dispatcher (QT_NO_GLIB=1), which the test main sets.
namespace virtualtime
{

/// Milliseconds since the start of the program by the virtual clock.
qint64 now();

/// Runs the event loop for this many virtual ms; what is due at the very end still happens.
void advance(int ms);

/// Moves the clock to the next full minute, where coarse timers need no rounding.
void startMinute();

} // namespace virtualtime

#endif // VIRTUALTIME_H
