# SPDX-License-Identifier: Apache-2.0
# The device: 64-bit Arm as in arm64.cmake, and a Qt with coordinates in single precision.
include(${CMAKE_CURRENT_LIST_DIR}/cache.cmake)
panelkit_find_float_qt(qt aarch64)
set(CMAKE_FIND_ROOT_PATH ${qt})
include(${CMAKE_CURRENT_LIST_DIR}/arm64.cmake)
