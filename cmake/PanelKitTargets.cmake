# SPDX-License-Identifier: Apache-2.0
# How this project compiles: the warnings of its targets, and the second compilation of the library
# with the single-precision coordinates of the device; and what its tests run under.

add_library(panelkit_warnings INTERFACE)
target_compile_options(panelkit_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wcast-align
    $<$<BOOL:${PANELKIT_WERROR}>:-Werror>)
target_compile_definitions(panelkit_warnings INTERFACE
    QT_DEPRECATED_WARNINGS QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)

if(POLICY CMP0116)
    cmake_policy(SET CMP0116 NEW)
endif()
add_custom_target(single_precision)

# Compiles the sources of a target once more, syntax only and warnings as errors, with qreal a float;
# when the target single_precision is built.
function(panelkit_check_single_precision target)
    get_target_property(sources ${target} SOURCES)
    get_target_property(binary_dir ${target} BINARY_DIR)
    set(all "$<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>")
    set(own "$<FILTER:${all},INCLUDE,^${PROJECT_SOURCE_DIR}|^${PROJECT_BINARY_DIR}>")
    set(foreign "$<FILTER:$<FILTER:${all},EXCLUDE,^${PROJECT_SOURCE_DIR}|^${PROJECT_BINARY_DIR}>,EXCLUDE,^/usr/include$>")
    set(definitions "$<TARGET_PROPERTY:${target},COMPILE_DEFINITIONS>")
    set(options "$<TARGET_PROPERTY:${target},COMPILE_OPTIONS>")
    foreach(source IN LISTS sources)
        if(NOT source MATCHES "\\.cpp$")
            continue()
        endif()
        get_filename_component(source ${source} ABSOLUTE)
        get_filename_component(name ${source} NAME)
        set(stamp ${binary_dir}/single-precision/${target}/${name}.ok)
        file(MAKE_DIRECTORY ${binary_dir}/single-precision/${target})
        add_custom_command(OUTPUT ${stamp}
            COMMAND ${CMAKE_CXX_COMPILER} -std=c++17 -fPIC -fsyntax-only
                "$<$<BOOL:${options}>:$<JOIN:${options},;>>"
                "$<$<BOOL:${own}>:-I$<JOIN:${own},;-I>>"
                "$<$<BOOL:${foreign}>:-isystem$<JOIN:${foreign},;-isystem>>"
                "$<$<BOOL:${definitions}>:-D$<JOIN:${definitions},;-D>>"
                -DQT_COORD_TYPE=float
                -MMD -MF ${stamp}.d -MT ${stamp} ${source}
            COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
            DEPENDS ${source}
            DEPFILE ${stamp}.d
            COMMENT "Checking ${name} with single-precision coordinates"
            COMMAND_EXPAND_LISTS VERBATIM)
        list(APPEND stamps ${stamp})
    endforeach()
    add_custom_target(${target}_single_precision DEPENDS ${stamps})
    add_dependencies(${target}_single_precision ${target}) # what moc makes comes first
    add_dependencies(single_precision ${target}_single_precision)
endfunction()

set(PANELKIT_TEST_ENVIRONMENT
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "ASAN_OPTIONS=detect_stack_use_after_return=1:allocator_may_return_null=1")
