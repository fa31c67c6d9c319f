# SPDX-License-Identifier: Apache-2.0
# 64-bit Arm, compiled on a machine of another kind and run there by qemu. tools/arm64-sysroot makes
# the folder with the libraries.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

include(${CMAKE_CURRENT_LIST_DIR}/cache.cmake)
set(CMAKE_SYSROOT ${PANELKIT_CACHE}/arm64-sysroot)
if(NOT EXISTS ${CMAKE_SYSROOT})
    message(FATAL_ERROR "tools/arm64-sysroot makes ${CMAKE_SYSROOT}, which is missing")
endif()

set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64;-L;${CMAKE_SYSROOT})
# qemu does not see that Debian's Qt asks for a folder in there; a Qt somewhere else finds its own.
if(NOT CMAKE_FIND_ROOT_PATH)
    list(APPEND CMAKE_CROSSCOMPILING_EMULATOR
        -E;QT_PLUGIN_PATH=${CMAKE_SYSROOT}/usr/lib/aarch64-linux-gnu/qt5/plugins)
endif()

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${CMAKE_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR}
    ${CMAKE_SYSROOT}/usr/lib/aarch64-linux-gnu/pkgconfig:${CMAKE_SYSROOT}/usr/share/pkgconfig)
