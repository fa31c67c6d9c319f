// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_LOOPBACK_H
#define SHARED_LOOPBACK_H

/// Qt's VNC platform listens at every address of the machine and asks nobody for a password. A
/// program that links this and has ENABLE_EXPORTS decides about bind(): once it is told to stay on
/// the loopback, whatever would listen at every address listens at that of the loopback only.
namespace loopback
{

/// From now on, for good.
void stayThere();

} // namespace loopback

#endif // SHARED_LOOPBACK_H
