#!/usr/bin/python3
"""The whole program with a decimal comma: typing, totals, saving and loading.

usage: locale_test.py FOLDER_OF_THE_PROGRAMS"""

import os
import pathlib
import shutil
import sys
import unittest

os.environ["QUILLET_BIN"] = sys.argv.pop(1)
from desktop import wait_for  # noqa: E402
from seen import Desktop, ReadableScreen  # noqa: E402

CAMERA = pathlib.Path(__file__).resolve().parents[2] / "data/samples/used-camera.qlt"
SAVED = "[OUTLAY]12,5|3,75|0|30|1|False[OUTLAY]"


class Comma(unittest.TestCase):
    def test_a_seller_with_a_comma_types_saves_and_loads(self):
        with ReadableScreen("comma") as screen:
            screen.environment["LC_ALL"] = "de_DE.UTF-8"
            screen.start()
            screen.keys("ctrl+1")
            seen = Desktop(screen)
            seen.look("Outlay", "Outlay", "text")
            for name, text in (("Outlay", "12,5"), ("Starting Price", "3,75"),
                               ("Estimated End Price", "30")):
                seen.type("Outlay", name, text)
            # 0,40 for the listing and 5,25 % of 25, then 3,25 % of 5 for the sale
            self.assertEqual(self.figures(seen), "$15,63 (108%)")
            auction = screen.home / "Documents/komma.qlt"
            self.name_file(screen, "ctrl+s", "Save.*", auction)
            self.assertIn(SAVED, auction.read_text(encoding="utf-8"))
            shutil.copy(CAMERA, screen.home / "Documents")  # saved with decimal points
            self.name_file(screen, "ctrl+o", "Open.*", screen.home / "Documents" / CAMERA.name)
            self.assertEqual(self.figures(seen), "$96,74 (185%)")
            screen.keys("ctrl+n")
            screen.window("Quillet US")
            self.name_file(screen, "ctrl+o", "Open.*", auction)
            self.assertEqual(self.figures(seen), "$15,63 (108%)")

    @staticmethod
    def figures(seen):
        """Waits for the entries' insertion fee and returns the profit."""
        seen.look("Selling Costs", "Profit", "figure")
        fee = seen.control("Selling Costs", "Insertion Fee", "figure")
        wait_for("the insertion fee", lambda: fee.get_name() == "$0,40")
        return seen.control("Selling Costs", "Profit", "figure").get_name()

    @staticmethod
    def name_file(screen, keys, title, path):
        screen.keys(keys)
        screen.window(title)
        screen.keys("ctrl+a")
        screen.type(str(path))
        screen.keys("Return")
        screen.window(f"Quillet US - {path.stem}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
