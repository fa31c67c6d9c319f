# SPDX-License-Identifier: Apache-2.0
# Where the tools keep what they have made outside the tree.
set(PANELKIT_CACHE $ENV{XDG_CACHE_HOME})
if(NOT PANELKIT_CACHE)
    set(PANELKIT_CACHE $ENV{HOME}/.cache)
endif()
string(APPEND PANELKIT_CACHE /panelkit)

# The Qt that tools/build-float-qt has built for a processor.
macro(panelkit_find_float_qt out processor)
    set(${out} ${PANELKIT_CACHE}/qt5-float-${processor}/prefix)
    if(NOT EXISTS ${PANELKIT_CACHE}/qt5-float-${processor}/complete)
        message(FATAL_ERROR "tools/build-float-qt makes ${${out}}, which is missing")
    endif()
endmacro()
