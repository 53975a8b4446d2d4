#!/usr/bin/python3
"""The whole desktop program on a screen with a window manager, with real key and mouse events."""

import functools
import os
import pathlib
import re
import shutil
import signal
import subprocess
import unittest

from desktop import PROGRAMS, Screen, wait_for

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "data/samples"


def on_a_screen(test):
    """Runs a test on its own screen, and keeps a picture if the test fails."""
    @functools.wraps(test)
    def run(self):
        with Screen(test.__name__) as self.screen:
            test(self)
    return run


class WholeProgram(unittest.TestCase):
    @on_a_screen
    def test_first_start_enters_saves_and_is_asked_before_leaving(self):
        screen = self.screen
        screen.start()
        screen.keys("ctrl+1")
        self.focus_first_box()
        for text in ("40", "1", None, "149", "1"):
            if text:
                screen.type(text)
            screen.keys("Tab")
        screen.window(r"Quillet US\*")
        screen.keys("ctrl+s")
        screen.window("Save.*")
        screen.keys("ctrl+a")
        screen.type(str(screen.home / "Documents/camera.qlt"))
        screen.keys("Return")
        screen.window("Quillet US - camera")
        saved = (screen.home / "Documents/camera.qlt").read_text(encoding="utf-8")
        self.assertRegex(saved, r"\[OUTLAY\]40\|1\|0\|149\|1\|False\[OUTLAY\]")
        self.focus_first_box()
        screen.keys("Up", "Tab")
        screen.window(r"Quillet US - camera\*")
        screen.keys("ctrl+q")
        screen.window("Quillet US")
        screen.keys("Escape")
        screen.window(r"Quillet US - camera\*")
        screen.keys("ctrl+q")
        screen.window("Quillet US")
        screen.keys("alt+n")
        self.assertEqual(screen.gone(), 0)
        self.assertEqual((screen.home / "Documents/camera.qlt").read_text(encoding="utf-8"), saved)

    @on_a_screen
    def test_a_dragged_section_stays_where_it_was_put(self):
        screen = self.screen
        screen.start()
        screen.keys("ctrl+comma")
        at = screen.place_of("Quillet US - Default Configuration")
        # The PayPal section is at 5760, 1560 in the view, which begins at 1590.
        screen.click(*at(1590 + 5760 + 1500, 1560 + 150))
        screen.drag(at(1590 + 5760 + 900, 1560 + 100), at(1590 + 5760 + 900 + 1200, 1560 + 100 + 600))
        wait_for("the stored place",
                 lambda: re.search(r"PayPal\\\\?Left=\"?6960", screen.settings().replace("%20", " ")))
        screen.keys("ctrl+q")
        self.assertEqual(screen.gone(), 0)
        before = screen.settings()
        screen.start()
        screen.keys("ctrl+q")
        self.assertEqual(screen.gone(), 0)
        place = re.compile(r"PayPal\\\\?(?:Left|Top)=\"?(\d+)")
        self.assertEqual(place.findall(before), place.findall(screen.settings()))

    @on_a_screen
    def test_a_file_on_the_command_line_opens_in_the_calculator(self):
        screen = self.screen
        file = os.fsencode(screen.home) + b"/caf\xe9.qlt"
        shutil.copy(SAMPLES / "carburetor.qlt", file)
        screen.start("quillet", "--style", "fusion", "/x", file, "Debug=True")
        screen.window("Quillet US - caf\ufffd")
        self.assertNotIn("Main", screen.settings())
        screen.program.send_signal(signal.SIGTERM)
        self.assertEqual(screen.gone(), 0)
        self.assertIn("Forms\\Main\\Left", screen.settings())

    @on_a_screen
    def test_what_if_finds_a_price_uses_it_and_takes_it_back(self):
        screen = self.screen
        file = screen.home / "Documents/camera.qlt"
        shutil.copy(SAMPLES / "used-camera.qlt", file)
        screen.start("quillet", file)
        screen.keys("ctrl+3")
        screen.window("What if - Quillet US")
        screen.type("20")
        screen.keys("Return", "alt+u")  # the goal, then "Use it"
        wait_for("the star", lambda: screen.windows(r"Quillet US - camera\*"))
        screen.keys("alt+t")
        copied = wait_for("the copied text", screen.clipboard)
        self.assertRegex(copied, r"\nProfit\t20\.0\d\t")
        self.assertRegex(copied, r"\nAs it is: standard auction\t\d+\.\d\d\t20\.0\d\t0\.00\n")
        screen.keys("ctrl+z")
        wait_for("the star's end", lambda: screen.windows("Quillet US - camera"))
        moved = screen.window("What if - Quillet US")
        screen.output("xdotool", "windowmove", "--sync", moved, "111", "77")
        screen.keys("Escape")
        wait_for("the window's end", lambda: not screen.windows("What if.*"))
        place = re.compile(r"WhatIf\\(?:Left|Top)=(\d+)")
        stored = wait_for("the stored place", lambda: place.findall(screen.settings()))
        screen.window("Quillet US - camera")
        screen.keys("ctrl+3")
        screen.window("What if - Quillet US")
        screen.keys("Escape")
        wait_for("the window's end", lambda: not screen.windows("What if.*"))
        screen.window("Quillet US - camera")
        screen.keys("ctrl+q")
        self.assertEqual(screen.gone(), 0)
        self.assertEqual(place.findall(screen.settings()), stored)
        self.assertEqual(file.read_text(encoding="utf-8"),
                         (SAMPLES / "used-camera.qlt").read_text(encoding="utf-8"))

    @on_a_screen
    def test_a_schedule_that_is_missing_or_useless_is_said_and_ends_the_program(self):
        screen = self.screen
        folder = screen.home / "program"
        folder.mkdir()
        shutil.copy(PROGRAMS / "quillet", folder)
        for schedule in (None, "Final,1\nFINAL,2\n"):
            if schedule:
                (folder / "UpdateUS_v0101.dat").write_text(schedule)
            screen.start(folder / "quillet", SAMPLES / "carburetor.qlt")
            screen.keys("Return")
            self.assertEqual(screen.gone(), 1)
            self.assertEqual(screen.titles(), [])

    def test_version_and_help_need_no_screen(self):
        for program, edition in (("quillet", "Quillet US"), ("quillet-uk", "Quillet UK")):
            told = subprocess.run([PROGRAMS / program, "--version"], capture_output=True, text=True,
                                  env={"LANG": "C.UTF-8"}, timeout=20, check=True)
            self.assertRegex(told.stdout, rf"^{edition} \d+\.\d+\.\d+\n$")
        told = subprocess.run([PROGRAMS / "quillet", "--prices"], capture_output=True, text=True,
                              env={"LANG": "C.UTF-8"}, timeout=20, check=False)
        self.assertNotEqual(told.returncode, 0)
        self.assertIn("prices", told.stderr)

    def focus_first_box(self):
        """Clicks into the outlay's box, at 1800, 360 in a section at 240, 1560 in the view."""
        at = self.screen.place_of("Quillet US.*")
        self.screen.click(*at(1590 + 240 + 1800 + 500, 1560 + 360 + 140))
        self.screen.keys("ctrl+a")


if __name__ == "__main__":
    unittest.main(verbosity=2)
