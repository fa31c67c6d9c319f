// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_MINUTECLOCK_H
#define PANELKIT_DETAIL_MINUTECLOCK_H

namespace panelkit
{

/// The time of day within its minute, in ms: 0..59999. It starts again at every full minute, so
/// that an interval across one comes out negative; who takes intervals decides what that means.
int minuteClock();

} // namespace panelkit

#endif // PANELKIT_DETAIL_MINUTECLOCK_H
