// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_AUDIODEVICE_H
#define SHARED_AUDIODEVICE_H

/// Compiled by those who need it: not every example has Qt's modules for sound.
namespace audiodevice
{

/// Whether there is anything to play sound on.
bool isThere();

} // namespace audiodevice

#endif // SHARED_AUDIODEVICE_H
