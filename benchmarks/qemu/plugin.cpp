// SPDX-License-Identifier: Apache-2.0
// A plugin for qemu in user mode: counts the instructions of the guest's thread between the marks
// that it sets, and writes a line with the name and the count of each to the file that the plugin's
// argument to= names.

#include "mark.h"

#include <array>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstring>

// The part of qemu's plugin interface that is used here, for which Debian has no header.
extern "C" {

struct qemu_plugin_tb; // a block of instructions that run in a row
using Id = std::uint64_t;
enum Registers { NoRegisters }; // that a callback looks at

void qemu_plugin_register_vcpu_tb_trans_cb(Id, void (*)(Id, qemu_plugin_tb *));
void qemu_plugin_register_vcpu_tb_exec_cb(qemu_plugin_tb *, void (*)(unsigned, void *), Registers,
                                          void *);
void qemu_plugin_register_vcpu_syscall_cb(Id,
                                          void (*)(Id, unsigned, std::int64_t, std::uint64_t,
                                                   std::uint64_t, std::uint64_t, std::uint64_t,
                                                   std::uint64_t, std::uint64_t, std::uint64_t,
                                                   std::uint64_t));
std::size_t qemu_plugin_tb_n_insns(const qemu_plugin_tb *);

__attribute__((visibility("default"))) extern const int qemu_plugin_version = 1;

} // extern "C"

namespace
{

// Each thread of the guest is one of qemu.
thread_local std::uint64_t executed = 0;
thread_local std::uint64_t executedBefore = 0; // the mark that began

std::FILE *counts = nullptr;

void execute(unsigned, void *instructions)
{
    executed += reinterpret_cast<std::uintptr_t>(instructions);
}

void translate(Id, qemu_plugin_tb *block)
{
    const std::uintptr_t instructions = qemu_plugin_tb_n_insns(block);
    qemu_plugin_register_vcpu_tb_exec_cb(block, execute, NoRegisters,
                                         reinterpret_cast<void *>(instructions));
}

void callSystem(Id, unsigned, std::int64_t call, std::uint64_t a, std::uint64_t b, std::uint64_t c,
                std::uint64_t d, std::uint64_t e, std::uint64_t f, std::uint64_t, std::uint64_t)
{
    if (call != kMarkCall)
        return;
    const std::array<std::uint64_t, kMarkArguments> arguments = {a, b, c, d, e, f};
    std::array<char, kMarkBytes + 1> name = {};
    std::memcpy(name.data(), arguments.data(), kMarkBytes);
    if (name[0] == '\0')
        executedBefore = executed;
    else
        std::fprintf(counts, "%s %" PRIu64 "\n", name.data(), executed - executedBefore);
}

} // namespace

extern "C" __attribute__((visibility("default"))) int qemu_plugin_install(Id id, const void *,
                                                                          int argc, char **argv)
{
    constexpr char kTo[] = "to=";
    constexpr std::size_t kToLength = sizeof kTo - 1;
    if (argc != 1 || std::strncmp(argv[0], kTo, kToLength) != 0) {
        std::fputs("the plugin takes one argument, to=FILE\n", stderr);
        return 1;
    }
    counts = std::fopen(argv[0] + kToLength, "w");
    if (counts == nullptr) {
        std::perror(argv[0] + kToLength);
        return 1;
    }
    std::setvbuf(counts, nullptr, _IOLBF, BUFSIZ); // qemu may end in any way
    qemu_plugin_register_vcpu_tb_trans_cb(id, translate);
    qemu_plugin_register_vcpu_syscall_cb(id, callSystem);
    return 0;
}
