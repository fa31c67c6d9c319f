# SPDX-License-Identifier: Apache-2.0
# A recipe for Yocto with meta-qt5. Not built by PanelKit's own tests: they compare what it names
# with the build files.
SUMMARY = "Touch-screen widgets for in-car head units on Qt 5 Widgets"
SECTION = "libs"
LICENSE = "Apache-2.0"
LIC_FILES_CHKSUM = "file://LICENSE;md5=3b83ef96387f14655fc854ddc3c6bd57"

SRC_URI = "file://panelkit-${PV}.tar.gz"

inherit cmake_qt5

# Qt 5.12 or later.
DEPENDS = "qtbase"

EXTRA_OECMAKE = " \
    -DBUILD_SHARED_LIBS=ON \
    -DPANELKIT_QT=5 \
    -DPANELKIT_TESTS=OFF \
    -DPANELKIT_BENCHMARKS=OFF \
    -DPANELKIT_WERROR=OFF \
    -DPANELKIT_COVERAGE=OFF \
    -DPANELKIT_PACKAGES=OFF \
    -DPANELKIT_SANITIZE= \
"

PACKAGECONFIG ??= ""
PACKAGECONFIG[designer] = "-DPANELKIT_DESIGNER=ON,-DPANELKIT_DESIGNER=OFF,qtsvg qttools"
PACKAGECONFIG[examples] = "-DPANELKIT_EXAMPLES=ON,-DPANELKIT_EXAMPLES=OFF,qtsvg qtmultimedia"
PACKAGECONFIG[headunit] = "-DPANELKIT_HEADUNIT=ON,-DPANELKIT_HEADUNIT=OFF,qtsvg qtmultimedia taglib"

PACKAGES =+ "${PN}-designer"
FILES:${PN}-designer = "${libdir}/qt5/plugins/designer ${libdir}/cmake/PanelKit/PanelKitDesigner*"
FILES:${PN}-dev += "${libdir}/cmake ${libdir}/qt5/mkspecs"
