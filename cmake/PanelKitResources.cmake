# SPDX-License-Identifier: Apache-2.0
# Compiles files into a target: each is found at :/panelkit/<prefix>/<name of the file>.
function(panelkit_resources target prefix)
    set(entries "")
    foreach(file IN LISTS ARGN)
        get_filename_component(name ${file} NAME)
        string(APPEND entries "    <file alias=\"${name}\">${file}</file>\n")
    endforeach()
    set(collection ${CMAKE_CURRENT_BINARY_DIR}/${target}_${prefix}.qrc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/resources.qrc.in ${collection} @ONLY)
    target_sources(${target} PRIVATE ${collection})
endfunction()
