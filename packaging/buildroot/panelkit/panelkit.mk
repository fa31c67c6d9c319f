################################################################################
#
# panelkit
#
# SPDX-License-Identifier: Apache-2.0
# A package for Buildroot. Not built by PanelKit's own tests: they compare what it
# names with the build files.
#
################################################################################

PANELKIT_VERSION = 1.0.0
PANELKIT_SITE = $(BR2_EXTERNAL_PANELKIT_PATH)
PANELKIT_SITE_METHOD = local
PANELKIT_LICENSE = Apache-2.0
PANELKIT_LICENSE_FILES = LICENSE
PANELKIT_INSTALL_STAGING = YES
# Qt 5.12 or later. Buildroot itself sets BUILD_SHARED_LIBS.
PANELKIT_DEPENDENCIES = qt5base
PANELKIT_CONF_OPTS = \
	-DPANELKIT_QT=5 \
	-DPANELKIT_TESTS=OFF \
	-DPANELKIT_BENCHMARKS=OFF \
	-DPANELKIT_WERROR=OFF \
	-DPANELKIT_COVERAGE=OFF \
	-DPANELKIT_PACKAGES=OFF \
	-DPANELKIT_SANITIZE=

ifeq ($(BR2_PACKAGE_PANELKIT_DESIGNER),y)
PANELKIT_DEPENDENCIES += qt5svg qt5tools
PANELKIT_CONF_OPTS += -DPANELKIT_DESIGNER=ON
else
PANELKIT_CONF_OPTS += -DPANELKIT_DESIGNER=OFF
endif

ifeq ($(BR2_PACKAGE_PANELKIT_EXAMPLES),y)
PANELKIT_DEPENDENCIES += qt5multimedia qt5svg
PANELKIT_CONF_OPTS += -DPANELKIT_EXAMPLES=ON
else
PANELKIT_CONF_OPTS += -DPANELKIT_EXAMPLES=OFF
endif

ifeq ($(BR2_PACKAGE_PANELKIT_HEADUNIT),y)
PANELKIT_DEPENDENCIES += qt5multimedia qt5svg taglib
PANELKIT_CONF_OPTS += -DPANELKIT_HEADUNIT=ON
else
PANELKIT_CONF_OPTS += -DPANELKIT_HEADUNIT=OFF
endif

$(eval $(cmake-package))
