// SPDX-License-Identifier: Apache-2.0
#include "loopback.h"

#include <QtGlobal>

#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

bool isConfined = false;

int bindTo(int socket, const void *address, socklen_t length)
{
    return int(syscall(SYS_bind, socket, address, length));
}

} // namespace

// A socket for both versions of the protocol takes the loopback of version 4 in this disguise. The
// C library's own names of the parameters are reserved ones.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" Q_DECL_EXPORT int bind(int socket, const sockaddr *address, socklen_t length) noexcept
{
    if (isConfined && address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in confined = {};
        std::memcpy(&confined, address, sizeof confined);
        if (confined.sin_addr.s_addr == htonl(INADDR_ANY))
            confined.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return bindTo(socket, &confined, sizeof confined);
    }
    if (isConfined && address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 confined = {};
        std::memcpy(&confined, address, sizeof confined);
        constexpr unsigned char kLoopback[16] = {0, 0, 0,    0,    0,   0, 0, 0,
                                                 0, 0, 0xff, 0xff, 127, 0, 0, 1};
        if (IN6_IS_ADDR_UNSPECIFIED(&confined.sin6_addr))
            std::memcpy(&confined.sin6_addr, kLoopback, sizeof kLoopback);
        return bindTo(socket, &confined, sizeof confined);
    }
    return bindTo(socket, address, length);
}

void loopback::stayThere() { isConfined = true; }
