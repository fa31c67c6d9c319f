#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The head unit in a browser: what the page shows is what the head unit paints, and it can be
touched there. usage: web.py <panelkit-headunit> [unittest's arguments]"""

import base64
import os
import pathlib
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

from selenium import webdriver
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.chrome.service import Service

PATIENCE = 30  # s, until something has to have come true
SIZE = (1024, 600)
PROGRAM = os.path.abspath(sys.argv.pop(1))
ROOT = pathlib.Path(__file__).resolve().parents[2]


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


READ_CANVAS = """
    const canvas = document.querySelector('canvas');
    const data = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height).data;
    let text = '';
    for (let i = 0; i < data.length; i += 32768)
        text += String.fromCharCode.apply(null, data.subarray(i, i + 32768));
    return btoa(text);
"""


def rows_of(data):
    """Three bytes a pixel, row by row."""
    length = 3 * SIZE[0]
    return [data[at:at + length] for at in range(0, len(data), length)]


def title_of(rows):
    """The bar above a page, without the clock at its end."""
    return [row[:3 * SIZE[0] // 2] for row in rows[:60]]


class Web(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.grab = os.path.join(cls.folder.name, "grab.ppm")
        cls.port = free_port()
        cls.server = subprocess.Popen(
            [ROOT / "tools/serve-web", PROGRAM, "--port", str(cls.port), "--grab", cls.grab,
             "--settings", os.path.join(cls.folder.name, "settings.ini"),
             "--log", os.path.join(cls.folder.name, "log")],
            cwd=cls.folder.name, stdout=subprocess.PIPE, text=True)
        cls.addClassCleanup(cls.end_server)
        cls.address = cls.server.stdout.readline().strip()
        options = webdriver.ChromeOptions()
        for argument in ("--headless=new", "--no-sandbox", "--disable-gpu",
                         "--disable-dev-shm-usage", "--window-size=1300,900"):
            options.add_argument(argument)
        cls.browser = webdriver.Chrome(options=options, service=Service("/usr/bin/chromedriver"))
        cls.addClassCleanup(cls.browser.quit)
        cls.browser.get(cls.address)
        cls.wait_until(lambda: cls.browser.execute_script(
            "const c = document.querySelector('canvas'); return c && c.width") == SIZE[0])

    @classmethod
    def end_server(cls):
        cls.server.send_signal(signal.SIGINT)
        cls.server.wait(PATIENCE)
        cls.server.stdout.close()

    @staticmethod
    def wait_until(holds):
        end = time.monotonic() + PATIENCE
        while not holds():
            if time.monotonic() > end:
                raise TimeoutError
            time.sleep(0.2)

    @classmethod
    def head_unit(cls):
        """The process of the head unit, a child of the server."""
        children = pathlib.Path(f"/proc/{cls.server.pid}/task/{cls.server.pid}/children")
        for child in children.read_text().split():
            if "panelkit-headunit" in pathlib.Path(f"/proc/{child}/cmdline").read_text():
                return int(child)
        raise LookupError

    def painted(self):
        """The rows that the head unit paints, as it says itself: red, green and blue."""
        pathlib.Path(self.grab).unlink(missing_ok=True)
        os.kill(self.head_unit(), signal.SIGUSR1)
        self.wait_until(lambda: os.path.exists(self.grab))
        head, data = pathlib.Path(self.grab).read_bytes().split(b"\n255\n", 1)
        self.assertEqual(head, b"P6\n%d %d" % SIZE)
        return rows_of(data)

    def shown(self):
        """The rows that the browser shows."""
        data = bytearray(base64.b64decode(self.browser.execute_script(READ_CANVAS)))
        del data[3::4]  # all of it is opaque
        return rows_of(bytes(data))

    def assert_alike(self):
        """Both show the same, in every pixel, once what was sent has come."""
        try:
            self.wait_until(lambda: self.shown() == self.painted())
        except TimeoutError:
            self.fail("the browser shows something else than the head unit paints")
        return self.shown()

    def at(self, x, y):
        """The pointer above a place of the screen, which the page may show larger or smaller."""
        canvas = self.browser.find_element(By.CSS_SELECTOR, "canvas")
        scale = canvas.size["width"] / SIZE[0]
        return ActionChains(self.browser, duration=20).move_to_element_with_offset(
            canvas, round((x - SIZE[0] / 2) * scale), round((y - SIZE[1] / 2) * scale))

    def test_1_shows_the_home_screen(self):
        rows = self.assert_alike()
        self.assertEqual(len(rows), SIZE[1])
        self.assertGreater(len(set(rows)), 100)

    def test_2_click_on_a_tile_opens_its_page(self):
        home = self.assert_alike()
        self.at(640, 160).click().perform()
        self.wait_until(lambda: self.shown() != home)
        self.assert_alike()

    def test_3_drag_scrolls_a_list(self):
        before = self.assert_alike()
        self.at(400, 480).click_and_hold().perform()
        self.at(400, 400).perform()
        self.at(400, 200).release().perform()
        time.sleep(3)  # what was flung has come to rest
        after = self.assert_alike()
        self.assertEqual(title_of(before), title_of(after))
        self.assertNotEqual(before[100:], after[100:])

    def test_4_finger_taps_too(self):
        before = self.assert_alike()
        left, top, width = self.browser.execute_script(
            "const r = document.querySelector('canvas').getBoundingClientRect();"
            "return [r.left, r.top, r.width]")
        home_key = {"x": left + 60 * width / SIZE[0], "y": top + 42 * width / SIZE[0]}
        for kind, points in (("touchStart", [home_key]), ("touchEnd", [])):
            self.browser.execute_cdp_cmd("Input.dispatchTouchEvent",
                                         {"type": kind, "touchPoints": points})
        self.wait_until(lambda: self.shown() != before)
        self.assert_alike()

    def test_5_listens_at_the_loopback_only(self):
        listeners = pathlib.Path("/proc/net/tcp").read_text() + \
            pathlib.Path("/proc/net/tcp6").read_text()
        sockets = {os.readlink(link) for link in
                   pathlib.Path(f"/proc/{self.head_unit()}/fd").iterdir() if link.is_symlink()}
        own = [line.split() for line in listeners.splitlines()
               if f"socket:[{line.split()[9]}]" in sockets and line.split()[3] == "0A"]
        self.assertEqual(len(own), 1)
        self.assertIn(own[0][1].split(":")[0],
                      ("0100007F", "0000000000000000FFFF00000100007F"))

    def test_6_ctrl_c_ends_all(self):
        head_unit = self.head_unit()
        self.server.send_signal(signal.SIGINT)
        self.server.wait(PATIENCE)
        self.assertFalse(os.path.exists(f"/proc/{head_unit}"))
        with socket.socket() as probe:
            self.assertNotEqual(probe.connect_ex(("127.0.0.1", self.port)), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
