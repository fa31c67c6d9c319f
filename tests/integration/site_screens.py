#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Shows pages of the documentation's site in headless Chromium, as wide as on a desk, on a phone and
on a small phone, by day and at night: no page scrolls sideways, every picture is loaded, the colours
follow the system's, the menu opens, and the search finds a class. The screens stay as pictures.

Needs Debian's chromium, chromium-driver and python3-selenium.

usage: site_screens.py SITE PICTURES
"""

import pathlib
import sys

from selenium import webdriver
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

PAGES = ("index", "first-screen", "from-packages", "kept-behaviour", "spiconbutton", "sprollingtext",
         "sptablelist", "mradiomovepoint", "classSpTableList", "annotated", "functions")
WIDTHS = {"desk": 1280, "phone": 390, "small-phone": 360}
PICTURED = ("index", "spiconbutton", "sprollingtext", "sptablelist", "classSpTableList")
PATIENCE = 20  # s
DARK = 80  # of 255; darker is a ground for the night


def start(dark):
    options = webdriver.ChromeOptions()
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                     "--hide-scrollbars"):
        options.add_argument(argument)
    browser = webdriver.Chrome(options=options)
    browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [
        {"name": "prefers-color-scheme", "value": "dark" if dark else "light"}]})
    return browser


def show(browser, site, page, width):
    browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
        "width": width, "height": 900, "deviceScaleFactor": 1, "mobile": width < 600})
    browser.get((site / (page + ".html")).as_uri())


def faults_of(browser, width, dark):
    """What is wrong with the page that is shown."""
    wide = browser.execute_script("return document.documentElement.scrollWidth")
    if wide > width:
        yield f"scrolls sideways: {wide} px"
    missing = browser.execute_script("""return [...document.images].filter(
        image => image.getClientRects().length && !image.naturalWidth).map(image => image.src)""")
    if missing:
        yield f"does not show {missing}"
    ground = browser.execute_script("return getComputedStyle(document.body).backgroundColor")
    red = int(ground.strip("rgb() ").split(",")[0])
    if (red < DARK) != dark:
        yield f"has the ground {ground}"


def picture(browser, path):
    height = browser.execute_script("return document.documentElement.scrollHeight")
    width = browser.execute_script("return innerWidth")
    browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
        "width": width, "height": min(height, 4000), "deviceScaleFactor": 1, "mobile": width < 600})
    browser.save_screenshot(str(path))


def look_at_pages(browser, site, pictures, dark):
    faults = []
    for page in PAGES:
        for device, width in WIDTHS.items():
            show(browser, site, page, width)
            faults += [f"{page} on a {device}, {'dark' if dark else 'light'}: {fault}"
                       for fault in faults_of(browser, width, dark)]
            if page in PICTURED and device != "small-phone":
                picture(browser, pictures / f"{page}-{device}-{'dark' if dark else 'light'}.png")
    return faults


def use(browser, site, pictures):
    """What a reader on a phone touches: the menu, and the search."""
    show(browser, site, "index", WIDTHS["phone"])
    link = browser.find_element(By.CSS_SELECTOR, "nav a[href='sptablelist.html']")
    if link.is_displayed():
        return ["the menu is open from the start"]
    browser.find_element(By.CSS_SELECTOR, "label.menu").click()
    if not link.is_displayed():
        return ["the menu does not open"]
    browser.save_screenshot(str(pictures / "menu-phone.png"))
    link.click()
    if not browser.current_url.endswith("sptablelist.html"):
        return [f"the menu leads to {browser.current_url}"]
    field = browser.find_element(By.ID, "MSearchField")
    field.click()
    field.send_keys("SpRoll")
    wait = WebDriverWait(browser, PATIENCE)
    wait.until(lambda b: b.find_element(By.ID, "MSearchResultsWindow").is_displayed())
    browser.switch_to.frame("MSearchResults")
    wait.until(lambda b: any(entry.is_displayed() and "SpRollingText" in entry.text
                             for entry in b.find_elements(By.CLASS_NAME, "SRResult")))
    browser.switch_to.default_content()
    browser.save_screenshot(str(pictures / "search-phone.png"))
    return []


def main():
    site, pictures = (pathlib.Path(name).resolve() for name in sys.argv[1:3])
    pictures.mkdir(parents=True, exist_ok=True)
    faults = []
    for dark in (False, True):
        browser = start(dark)
        try:
            faults += look_at_pages(browser, site, pictures, dark)
            faults += use(browser, site, pictures)
        finally:
            browser.quit()
    print("\n".join(faults) or f"{len(PAGES)} pages look as they should; see {pictures}")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
