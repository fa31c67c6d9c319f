# SPDX-License-Identifier: Apache-2.0
# Reads cmake/classes.cmake into global properties and a generated header, panelkitclasses.h.

define_property(GLOBAL PROPERTY PANELKIT_CLASSES BRIEF_DOCS "Class names, in the order of the list"
    FULL_DOCS "Class names, in the order of the list")
define_property(GLOBAL PROPERTY PANELKIT_WHOLE_CLASSES BRIEF_DOCS "Those that are no part of another"
    FULL_DOCS "Those that are no part of another")
define_property(GLOBAL PROPERTY PANELKIT_HEADERS BRIEF_DOCS "Header names without their ending"
    FULL_DOCS "Header names without their ending")

function(panelkit_class class)
    cmake_parse_arguments(arg "NOT_A_WIDGET" "FAMILY;TOOLTIP;HEADER;CREATE;PART_OF" "SIZE;INITIAL" ${ARGN})
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "${class}: not understood: ${arg_UNPARSED_ARGUMENTS}")
    endif()
    string(TOLOWER ${class} lower)
    if(arg_PART_OF)
        get_property(arg_HEADER GLOBAL PROPERTY PANELKIT_HEADER_OF_${arg_PART_OF})
        if(NOT arg_HEADER)
            message(FATAL_ERROR "${class} is part of ${arg_PART_OF}, which has to stand before it")
        endif()
    elseif(NOT arg_HEADER)
        set(arg_HEADER ${lower})
    endif()
    if(NOT arg_CREATE)
        set(arg_CREATE "new ${class}(parent)")
    endif()

    set_property(GLOBAL APPEND PROPERTY PANELKIT_CLASSES ${class})
    get_property(headers GLOBAL PROPERTY PANELKIT_HEADERS)
    if(NOT arg_HEADER IN_LIST headers)
        set_property(GLOBAL APPEND PROPERTY PANELKIT_HEADERS ${arg_HEADER})
    endif()

    set_property(GLOBAL PROPERTY PANELKIT_HEADER_OF_${class} ${arg_HEADER})
    if(arg_PART_OF)
        set_property(GLOBAL APPEND_STRING PROPERTY PANELKIT_PART_ROWS " \\\n    ROW(${class})")
        return()
    endif()

    set_property(GLOBAL APPEND PROPERTY PANELKIT_WHOLE_CLASSES ${class})
    set_property(GLOBAL PROPERTY PANELKIT_FAMILY_OF_${class} ${arg_FAMILY})
    set_property(GLOBAL APPEND_STRING PROPERTY PANELKIT_OBJECT_ROWS
        " \\\n    ROW(${class}, ${arg_CREATE})")
    if(NOT arg_NOT_A_WIDGET)
        set_property(GLOBAL APPEND PROPERTY PANELKIT_WIDGETS ${class})
        list(GET arg_SIZE 0 width)
        list(GET arg_SIZE 1 height)
        string(REPLACE "\"" "\\\"" tooltip "${arg_TOOLTIP}")
        string(REPLACE "\"" "\\\"" initial "${arg_INITIAL}")
        list(JOIN initial "\\n" initial)
        set_property(GLOBAL APPEND_STRING PROPERTY PANELKIT_WIDGET_ROWS
            " \\\n    ROW(${class}, ${arg_CREATE}, \"${arg_HEADER}.h\", \"${arg_FAMILY}\", \"${tooltip}\", ${width}, ${height}, \"${initial}\")")
    endif()
endfunction()

# The files of one kind that belong to the listed classes; each of them must exist.
function(panelkit_class_files out kind prefix suffix)
    get_property(classes GLOBAL PROPERTY PANELKIT_${kind})
    set(files)
    foreach(class IN LISTS classes)
        string(TOLOWER ${class} lower)
        set(file ${PROJECT_SOURCE_DIR}/${prefix}${lower}${suffix})
        if(NOT EXISTS ${file})
            message(FATAL_ERROR "${class} is in cmake/classes.cmake but lacks ${prefix}${lower}${suffix}")
        endif()
        list(APPEND files ${file})
    endforeach()
    set(${out} ${files} PARENT_SCOPE)
endfunction()

include(${CMAKE_CURRENT_LIST_DIR}/classes.cmake)

get_property(PANELKIT_HEADER_NAMES GLOBAL PROPERTY PANELKIT_HEADERS)
get_property(PANELKIT_OBJECT_ROWS GLOBAL PROPERTY PANELKIT_OBJECT_ROWS)
get_property(PANELKIT_PART_ROWS GLOBAL PROPERTY PANELKIT_PART_ROWS)
get_property(PANELKIT_WIDGET_ROWS GLOBAL PROPERTY PANELKIT_WIDGET_ROWS)
set(PANELKIT_INCLUDES "")
foreach(header IN LISTS PANELKIT_HEADER_NAMES)
    string(APPEND PANELKIT_INCLUDES "#include <${header}.h>\n")
endforeach()
configure_file(${CMAKE_CURRENT_LIST_DIR}/panelkitclasses.h.in
    ${PROJECT_BINARY_DIR}/generated/panelkitclasses.h @ONLY)
