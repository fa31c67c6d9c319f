#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The head unit over the accessibility bus, as a test engineer drives it: with the module and the
script of examples/uitest. usage: uitest.py <panelkit-headunit> [unittest's arguments]"""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAM = os.path.abspath(sys.argv.pop(1))
EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples/uitest"
sys.path.insert(0, str(EXAMPLES))
sys.dont_write_bytecode = True

from uitest import NotFound, Screen, wait_for  # noqa: E402


class UiTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.head_unit = subprocess.Popen(
            [PROGRAM, "--settings", self.folder / "settings.ini", "--log", self.folder / "log"],
            stderr=subprocess.DEVNULL)
        self.addCleanup(self.end_head_unit)
        self.screen = Screen("PanelKit head unit", patience=30)
        self.screen.find("radioTile")

    def end_head_unit(self):
        self.head_unit.terminate()
        self.head_unit.wait(10)

    def open(self, page):
        self.screen.find(page + "Tile").press()
        wait_for("page", lambda: not self.screen.is_there(page + "Tile"))

    def holds(self, what, holds):
        self.assertTrue(wait_for(what, holds))

    def test_it_is_the_process(self):
        self.assertEqual(self.screen.process, self.head_unit.pid)

    def test_a_button_is_found_by_its_identifier_and_pressed(self):
        tile = self.screen.find("radioTile", role="push button")
        self.assertEqual((tile.name, tile.actions), ("Radio", ["Press"]))
        self.assertFalse(self.screen.is_there("scanKey"))
        tile.press()
        self.assertTrue(self.screen.find("scanKey").has("enabled"))

    def test_a_button_is_found_by_its_name(self):
        self.screen.find(name="Radio", role="push button").press()
        self.screen.find(name="AM").press()

    def test_what_is_not_there_is_not_found(self):
        with self.assertRaises(NotFound):
            self.screen.find("scanKey", patience=0.2)

    def test_a_slider_is_read_and_moved(self):
        self.open("sound")
        bass = self.screen.find("bass", role="slider")
        self.assertEqual(bass.range, (-10, 10))
        for value in (3, -10, 10, 0):
            bass.value = value
            self.holds("value", lambda: bass.value == value)
        bass.do("Increase")
        self.holds("value", lambda: bass.value == 1)

    def test_the_visible_rows_of_a_list(self):
        self.open("phone")
        contacts = self.screen.find("list", role="list")
        rows = contacts.rows()
        names = [row.name for row in rows]
        self.assertGreaterEqual(len(names), 4)
        self.assertEqual(names, sorted(names))
        self.assertEqual(len(set(names)), len(names))
        bottom = contacts.rectangle[1] + contacts.rectangle[3]
        self.assertTrue(all(row.rectangle[1] < bottom for row in rows))
        start, end = contacts.place(0.4, 0.8), contacts.place(0.4, 0.2)
        self.screen.drag(start, end)
        self.holds("other rows", lambda: contacts.rows()[0].name not in (names[0], ""))

    def test_a_row_is_pressed(self):
        self.open("phone")
        rows = self.screen.find("list", role="list").rows()
        rows[1].press()
        self.screen.find("hangUpKey").press()
        wait_for("end of the call", lambda: not self.screen.is_there("hangUpKey"))

    def test_a_switch_is_turned(self):
        self.open("sound")
        self.screen.find(name="Effects", role="push button").press()
        switch = self.screen.find("loudness", role="check box")
        before = switch.has("checked")
        switch.toggle()
        self.holds("switch", lambda: switch.has("checked") != before)

    def test_a_key_is_held(self):
        self.open("radio")
        preset = self.screen.find("preset9")
        before = preset.name
        preset.long_press()
        self.holds("preset", lambda: self.screen.find("preset9").name != before)

    def test_a_finger_touches_a_place(self):
        self.screen.touch(self.screen.find("soundTile").place(0.5, 0.5))
        self.screen.find("bass")

    def test_the_example_says_what_it_finds(self):
        picture = self.folder / "screen.png"
        said = subprocess.run([EXAMPLES / "example.py", picture], check=True, text=True,
                              stdout=subprocess.PIPE, timeout=60).stdout.splitlines()
        self.assertRegex(said[0], r"^The bass is at -?\d of -10 to 10\.$")
        self.assertEqual(said[1], "The bass is at 3.")
        self.assertGreaterEqual(len(said), 6)
        self.assertEqual(picture.read_bytes()[:4], b"\x89PNG")
        self.assertGreater(picture.stat().st_size, 10_000)


if __name__ == "__main__":
    unittest.main(verbosity=2)
