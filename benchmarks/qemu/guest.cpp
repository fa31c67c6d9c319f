// SPDX-License-Identifier: Apache-2.0
// What check.py has counted: loops of two instructions a turn.

#include "counted.h"

#include <cstdlib>
#include <thread>

namespace
{

void loop(long turns)
{
    asm volatile("1: subs %0, %0, #1\n"
                 "b.ne 1b"
                 : "+r"(turns)
                 :
                 : "cc");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    const long turns = std::atol(argv[1]);
    counted::begin();
    loop(turns);
    counted::end("once");
    loop(turns);
    counted::begin();
    loop(turns);
    loop(turns);
    counted::end("a name that fills the whole room that a mark has");
    counted::begin();
    std::thread(loop, turns).join();
    counted::end("in another thread");
    return 0;
}
