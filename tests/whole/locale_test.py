#!/usr/bin/python3
"""The whole program where the comma parts the decimals: typing, totals, saving and loading.

usage: locale_test.py FOLDER_OF_THE_PROGRAMS"""

import os
import re
import shutil
import sys
import unittest

os.environ["QUILLET_BIN"] = sys.argv.pop(1)
from desktop import PROGRAMS, wait_for  # noqa: E402
from seen import Desktop, ReadableScreen  # noqa: E402

FEES = "UpdateUS_v0101.dat"
SECOND_TIER = "OpeningRangeStart2,1\nOpeningRangeEnd2,9\nOpeningRangeValue2,2\n"
SAVED = "[OUTLAY]12,5|3,75|0|30|1|False[OUTLAY]"


class Comma(unittest.TestCase):
    def test_a_seller_with_a_comma_types_saves_and_loads(self):
        with ReadableScreen("comma") as screen:
            screen.environment["LC_ALL"] = "de_DE.UTF-8"
            program = self.with_whole_fees(screen)
            screen.start(program)
            screen.keys("ctrl+1")
            seen = Desktop(screen)
            seen.look("Outlay", "Outlay", "text")
            for name, text in (("Outlay", "12,5"), ("Starting Price", "3,75"),
                               ("Estimated End Price", "30")):
                seen.type("Outlay", name, text)
            profit = self.figures(seen)
            self.assertRegex(profit, r"^\$1\d,\d\d ")
            auction = screen.home / "Documents/komma.qlt"
            self.name_file(screen, "ctrl+s", "Save.*", auction)
            self.assertIn(SAVED, auction.read_text(encoding="utf-8"))
            screen.keys("ctrl+n")
            screen.window("Quillet US")
            self.name_file(screen, "ctrl+o", "Open.*", auction)
            self.assertEqual(self.figures(seen), profit)

    @staticmethod
    def with_whole_fees(screen):
        """A copy of the program; its fees have no fractions, which such a seller's file can't
        hold."""
        folder = screen.home / "program"
        folder.mkdir()
        shutil.copy(PROGRAMS / "quillet", folder)
        fees = (PROGRAMS / FEES).read_text(encoding="utf-8")
        fees = re.sub(r"(?m)^((?!CurrencyFormat).*)\.\d+$", r"\1", fees)
        fees = re.sub(r"(?m)^OpeningRange\w+2,.*\n", "", fees) + SECOND_TIER
        (folder / FEES).write_text(fees, encoding="utf-8")
        return folder / "quillet"

    @staticmethod
    def figures(seen):
        """Waits for the insertion fee of the entries, and gives the profit."""
        seen.look("Selling Costs", "Profit", "figure")
        fee = seen.control("Selling Costs", "Insertion Fee", "figure")
        wait_for("the insertion fee", lambda: fee.get_name() == "$2,00")
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
