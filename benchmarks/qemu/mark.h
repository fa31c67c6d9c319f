// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_QEMU_MARK_H
#define PANELKIT_BENCHMARKS_QEMU_MARK_H

#include <cstddef>

// What a program for another processor and the plugin that counts its instructions know of each
// other: a system call that no kernel has is a mark. Its arguments are the bytes of a name, because
// a plugin reads no memory; without a name counting begins, with one it ends.
constexpr long kMarkCall = 0x50414e45;
constexpr std::size_t kMarkArguments = 6;
constexpr std::size_t kMarkBytes = kMarkArguments * 8;

#endif // PANELKIT_BENCHMARKS_QEMU_MARK_H
