// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_COUNTED_H
#define PANELKIT_BENCHMARKS_COUNTED_H

/// Marks for who counts the instructions of the program: Callgrind, or the plugin of qemu where
/// that runs what is built. Without one of them they do nothing.
namespace counted
{

void begin();
/// What was counted since then goes by this name, of at most 48 bytes; by none if it is empty.
void end(const char *name);

} // namespace counted

#endif // PANELKIT_BENCHMARKS_COUNTED_H
