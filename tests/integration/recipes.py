#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Compares the recipes that are not built here with the build files: options, version, licence, the
least Qt, and what is said of the library. usage: recipes.py SOURCE_DIR"""

import hashlib
import re
import sys
from pathlib import Path

root = Path(sys.argv[1])
complaints = []


def text(*parts):
    return root.joinpath(*parts).read_text()


def expect(holds, complaint):
    if not holds:
        complaints.append(complaint)


build = text("CMakeLists.txt")
version = re.search(r"project\(PanelKit VERSION ([\d.]+)", build).group(1)
description = re.search(r'DESCRIPTION "(.*)"', build).group(1)
least_qt = re.search(r"set\(PANELKIT_QT_VERSION ([\d.]+)\)", build).group(1)
options = set(re.findall(r"^(?:cmake_dependent_)?option\((\w+)", build, re.M))
options |= set(re.findall(r"^set\((\w+) .*CACHE", build, re.M))
expect(len(options) > 5, f"only {sorted(options)} are options")

yocto = text("packaging", "yocto", f"panelkit_{version}.bb") if (
    root / "packaging" / "yocto" / f"panelkit_{version}.bb").exists() else ""
expect(yocto, f"there is no recipe panelkit_{version}.bb")
buildroot = text("packaging", "buildroot", "panelkit", "panelkit.mk")
config = text("packaging", "buildroot", "panelkit", "Config.in")

for name, recipe, given in (("Yocto", yocto, set()), ("Buildroot", buildroot, {"BUILD_SHARED_LIBS"})):
    named = set(re.findall(r"-D(\w+)=", recipe)) | given
    expect(not named - options, f"{name} names {sorted(named - options)}, which is no option")
    expect(not options - named, f"{name} does not name {sorted(options - named)}")
    expect(f"Qt {least_qt} or later" in recipe, f"{name} does not ask for Qt {least_qt}")
    expect("Not built by PanelKit's own tests" in recipe, f"{name} does not say that it is untried")

checksum = hashlib.md5((root / "LICENSE").read_bytes()).hexdigest()
expect(f"file://LICENSE;md5={checksum}" in yocto, "Yocto has another LICENSE")
expect(f'SUMMARY = "{description}"' in yocto, "Yocto describes the library in other words")
expect(description in config, "Buildroot describes the library in other words")
expect(f"PANELKIT_VERSION = {version}\n" in buildroot, "Buildroot has another version")
for option in re.findall(r"BR2_PACKAGE_PANELKIT_\w+", buildroot):
    expect(f"config {option}\n" in config, f"Buildroot's Config.in does not offer {option}")
for recipe in (yocto, buildroot):
    expect("Apache-2.0" in recipe, "a recipe has another licence")

changelog = text("packaging", "debian", "changelog")
expect(changelog.startswith(f"panelkit ({version}) "), "Debian's changelog has another version")
expect(re.search(rf"^## {re.escape(version)}\b", text("CHANGELOG.md"), re.M),
       f"CHANGELOG.md has no section for {version}")

if complaints:
    sys.exit("\n".join(complaints))
print(f"the recipes name the {len(options)} options and version {version}")
