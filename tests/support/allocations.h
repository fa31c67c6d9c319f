// SPDX-License-Identifier: Apache-2.0
#ifndef ALLOCATIONS_H
#define ALLOCATIONS_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>

/// Counts the bytes that are asked for in memory, freed again or not: what a text, a file name or a
/// picture costs grows with it. Include it in one source of a program: it stands in for the
/// functions of the C library.
namespace allocations
{

inline std::atomic<std::int64_t> bytes{0};

/// Is told of each request, if there is one.
inline std::atomic<void (*)()> watcher{nullptr};

inline void count(std::size_t size)
{
    bytes += std::int64_t(size);
    if (void (*const tell)() = watcher)
        tell();
}

/// How many bytes an action asks for.
inline std::int64_t during(const std::function<void()> &action)
{
    const std::int64_t before = bytes;
    action();
    return bytes - before;
}

} // namespace allocations

#if defined(__SANITIZE_ADDRESS__)

// The sanitizer has its own functions, and tells of what they are asked for.
extern "C" __attribute__((visibility("default"))) void
__sanitizer_malloc_hook(const volatile void *, std::size_t size)
{
    allocations::count(size);
}

#else

extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *old, std::size_t size);

__attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    allocations::count(size);
    return __libc_malloc(size);
}

__attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    allocations::count(count * size);
    return __libc_calloc(count, size);
}

__attribute__((visibility("default"))) void *realloc(void *old, std::size_t size)
{
    allocations::count(size);
    return __libc_realloc(old, size);
}
}

#endif

#endif // ALLOCATIONS_H
