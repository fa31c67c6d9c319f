// SPDX-License-Identifier: Apache-2.0
#include "counted.h"

#ifdef PANELKIT_QEMU_PLUGIN

#include "qemu/mark.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <unistd.h>

namespace
{

void mark(const char *name)
{
    std::array<std::uint64_t, kMarkArguments> words = {};
    std::memcpy(words.data(), name, strnlen(name, kMarkBytes));
    syscall(kMarkCall, words[0], words[1], words[2], words[3], words[4], words[5]);
}

} // namespace

void counted::begin() { mark(""); }

void counted::end(const char *name) { mark(name); }

#else

#include <valgrind/callgrind.h>

// To stop between the frames would throw away what Callgrind has translated of the program.
void counted::begin()
{
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
}

void counted::end(const char *name)
{
    if (*name != '\0')
        CALLGRIND_DUMP_STATS_AT(name);
}

#endif
