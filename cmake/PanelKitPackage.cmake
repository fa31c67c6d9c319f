# SPDX-License-Identifier: Apache-2.0
# What a customer is told about PanelKit, said once: the CMake package, the pkg-config file and the
# qmake module are made from it, and the packages depend on it.

set(PANELKIT_QT_MODULES Widgets)
set(PANELKIT_CXX_STANDARD 11) # the least that the installed headers compile with
set(PANELKIT_LIBRARY panelkit)
if(PANELKIT_QT EQUAL 6)
    set(PANELKIT_CXX_STANDARD 17) # Qt's own headers want it
    set(PANELKIT_LIBRARY panelkit-qt6) # a program made for Qt 5 must not find it
endif()

# Each of these is installed by itself, and becomes a package.
set(PANELKIT_RUNTIME COMPONENT runtime)
set(PANELKIT_DEVELOPMENT COMPONENT development)

set(PANELKIT_CFLAGS "")
set(PANELKIT_QMAKE_CONFIG "v2")
set(PANELKIT_QMAKE_DEFINES "")
if(NOT BUILD_SHARED_LIBS)
    set(PANELKIT_CFLAGS " -DPANELKIT_STATIC")
    set(PANELKIT_QMAKE_CONFIG "v2 staticlib")
    set(PANELKIT_QMAKE_DEFINES " PANELKIT_STATIC")
endif()

# The other ways to say "Qt 5 Widgets".
string(REGEX REPLACE "([A-Za-z]+)" "Qt${PANELKIT_QT}\\1 >= ${PANELKIT_QT_VERSION}"
    PANELKIT_PC_REQUIRES "${PANELKIT_QT_MODULES}")
string(REPLACE ";" ", " PANELKIT_PC_REQUIRES "${PANELKIT_PC_REQUIRES}")
string(TOLOWER "core;gui;${PANELKIT_QT_MODULES}" PANELKIT_QMAKE_DEPENDS)
string(REPLACE ";" " " PANELKIT_QMAKE_DEPENDS "${PANELKIT_QMAKE_DEPENDS}")

include(CMakePackageConfigHelpers)

# Installs a file that is filled in from here. It says where the prefix is from where it stands
# itself (@to_prefix@), so that the whole tree may be moved.
function(panelkit_install_description name destination)
    file(RELATIVE_PATH to_prefix /${destination} /)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.in ${CMAKE_CURRENT_BINARY_DIR}/${name} @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name} DESTINATION ${destination}
        ${PANELKIT_DEVELOPMENT})
endfunction()

# Installs everything that tells the customer's tools how to use the library.
function(panelkit_install_package)
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/PanelKit)
    install(EXPORT PanelKitTargets NAMESPACE PanelKit:: DESTINATION ${package_dir}
        ${PANELKIT_DEVELOPMENT})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/PanelKitConfig.cmake.in
        ${CMAKE_CURRENT_BINARY_DIR}/PanelKitConfig.cmake INSTALL_DESTINATION ${package_dir})
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/PanelKitConfigVersion.cmake
        COMPATIBILITY SameMajorVersion)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/PanelKitConfig.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/PanelKitConfigVersion.cmake DESTINATION ${package_dir}
        ${PANELKIT_DEVELOPMENT})
    panelkit_install_description(panelkit.pc ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    panelkit_install_description(qt_lib_panelkit.pri
        ${CMAKE_INSTALL_LIBDIR}/qt${PANELKIT_QT}/mkspecs/modules)
endfunction()
