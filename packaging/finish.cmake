# SPDX-License-Identifier: Apache-2.0
# Run by cpack when the packages are made. cpack lets the library's package call ldconfig by itself;
# Debian wants it to ask for that with a trigger, once for all packages that are being installed.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    if(NOT package MATCHES "/libpanelkit[0-9]+_[^/]*\\.deb$")
        continue()
    endif()
    set(folder ${CPACK_TEMPORARY_DIRECTORY}/finish)
    file(REMOVE_RECURSE ${folder})
    execute_process(COMMAND dpkg-deb -R ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
    file(WRITE ${folder}/DEBIAN/triggers "activate-noawait ldconfig\n")
    execute_process(COMMAND dpkg-deb --root-owner-group -b ${folder} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
