# SPDX-License-Identifier: Apache-2.0
# How this project compiles: the warnings of its targets, and the second compilation of the library
# with the single-precision coordinates of the device; and what its tests run under.

include(CheckCXXSourceCompiles)

add_library(panelkit_warnings INTERFACE)
target_compile_options(panelkit_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wcast-align
    -Wzero-as-null-pointer-constant
    $<$<BOOL:${PANELKIT_WERROR}>:-Werror>)
target_compile_definitions(panelkit_warnings INTERFACE
    QT_DEPRECATED_WARNINGS QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    # What the last Qt 5 calls deprecated is not there.
    $<$<BOOL:${PANELKIT_WERROR}>:QT_DISABLE_DEPRECATED_BEFORE=0x050F00>)

# The examples wait for fingers and for the library: optimising their own code more than this only
# takes time.
add_library(panelkit_examples INTERFACE)
target_compile_options(panelkit_examples INTERFACE $<$<CONFIG:Release>:-O1>)

# What nearly every source of the library includes, read once for all of them.
set(PANELKIT_PRECOMPILED <QMouseEvent> <QPainter> <QPixmap> <QPointer> <QWidget>)

add_custom_target(single_precision)

# Compiles the sources of a target once more with qreal a float, when the target single_precision is
# built: what comes out is thrown away, the warnings are what it is for.
function(panelkit_check_single_precision target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    set(name ${target}_single_precision)
    add_library(${name} OBJECT EXCLUDE_FROM_ALL ${sources})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_compile_options(${name} PRIVATE -O0)
    target_compile_definitions(${name} PRIVATE QT_COORD_TYPE=float)
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE Qt${PANELKIT_QT}::Widgets panelkit_warnings)
    target_precompile_headers(${name} PRIVATE ${PANELKIT_PRECOMPILED})
    add_dependencies(single_precision ${name})
endfunction()

# The library calls its own functions directly, without a table that is filled when it is loaded. Not
# its signals: their address has to be the one that a program sees, which is the program's own where it
# is not position-independent.
function(panelkit_bind_own_functions target)
    set(CMAKE_REQUIRED_LINK_OPTIONS LINKER:--dynamic-list-data)
    check_cxx_source_compiles("int main() { return 0; }" PANELKIT_HAS_DYNAMIC_LIST)
    if(NOT BUILD_SHARED_LIBS OR NOT PANELKIT_HAS_DYNAMIC_LIST)
        return()
    endif()
    set(promise ${PROJECT_SOURCE_DIR}/packaging/abi/interface.txt)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${promise})
    file(STRINGS ${promise} lines REGEX "^class | signal ")
    set(signals "")
    foreach(line IN LISTS lines)
        if(line MATCHES "^class ([A-Za-z]+)")
            set(class ${CMAKE_MATCH_1})
        elseif(line MATCHES " signal ([A-Za-z]+)")
            string(APPEND signals "${class}::${CMAKE_MATCH_1}*;\n")
        endif()
    endforeach()
    set(list ${CMAKE_CURRENT_BINARY_DIR}/signals.list)
    file(WRITE ${list} "{ extern \"C++\" {\n${signals}}; };\n")
    target_link_options(${target} PRIVATE LINKER:--dynamic-list-data LINKER:--dynamic-list=${list})
endfunction()

set(PANELKIT_TEST_ENVIRONMENT
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "ASAN_OPTIONS=detect_stack_use_after_return=1:allocator_may_return_null=1")
