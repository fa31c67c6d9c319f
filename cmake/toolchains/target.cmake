# SPDX-License-Identifier: Apache-2.0
# This machine's own processor, but a Qt with the coordinates of the device.
include(${CMAKE_CURRENT_LIST_DIR}/cache.cmake)
panelkit_find_float_qt(qt x86_64)
list(PREPEND CMAKE_PREFIX_PATH ${qt})
