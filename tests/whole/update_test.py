#!/usr/bin/python3
"""Starts the whole program without stored settings: with the update servers up, and without any
network. Run as root, for the FTP server and for the network namespace.

usage: update_test.py FOLDER_OF_THE_PROGRAMS"""

import os
import re
import shutil
import socket
import subprocess
import sys
import time
import unittest

os.environ["QUILLET_BIN"] = sys.argv.pop(1)
sys.path.insert(0, os.path.join(os.path.dirname(__file__), "../support"))
from desktop import PROGRAMS, Screen, wait_for  # noqa: E402
from seen import Desktop, ReadableScreen  # noqa: E402
from update_servers import UpdateServers  # noqa: E402

FEES = "UpdateUS_v0101.dat"
NEW_FEE = ("OpeningRangeValue2,0.40", "OpeningRangeValue2,0.450")  # one byte longer
WHOLE_LOG = """\
Started app
Loading splash movie
Playing splash movie
Setting system defaults
DL's
Open internet connection 1|2|3|4|5|9 - okay
DL - Special actions 1
Start HTTP 1|2|5|6 - okay
DL - Special actions 2
Getting header info 1|2|3|4|5|6|7|8|5|6|7|8|9 - okay (no fail point)
DL - Special actions 3|4|5|6 - okay
Closing Http Session 1|2|3|4 - okay (no fail point)
Performing primary special actions
DL - Update file 1|2|3
DL - Update files 5
Start FTP 1|2|5|9 - okay
DL - Update file 6
Matching files 1|3|4|5|6|7 - okay
DL - Update file 7
Proc FTP 1|2|4
Deleting file 1|2 (No such file or directory)|3 - Success
Proc FTP 5
Deleting file 1|3 - Success
Proc FTP 8 - okay
DL - Update file 8|9 - okay
Found skip date of TODAY
DL - Scrolling message 1|2|3
Start HTTP 1|2|5|6 - okay
DL - Scrolling message 4
Getting header info 1|2|3|4|5|6|7|8|5|6|7|8|9 - okay (no fail point)
DL - Scrolling message 5|6|7|8 - okay
Closing Http Session 1|2|3|4 - okay (no fail point)|1|4 - okay (no fail point)
Closing Internet Session 1|2|3|4 - okay (no fail point)
Splash pause
Execute secondary special actions
Display main
End startup
End app"""


def comments(folder):
    """The log's comments, without their times."""
    path = folder / "QlDebug.log"
    lines = path.read_text(encoding="utf-8").splitlines() if path.exists() else []
    return [line[21:] for line in lines if re.match(r"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d  ", line)]


def unfolded(log):
    """Every line of the log; "Procedure 1|2" stands for "Procedure 1" and "Procedure 2"."""
    for line in log.splitlines():
        first, *others = line.split("|")
        yield first
        procedure = re.match(r"\D*", first).group()
        yield from (procedure + step for step in others)


class Update(unittest.TestCase):
    def at_home(self, screen):
        """A copy of the program in a writable folder."""
        folder = screen.home / "program"
        folder.mkdir()
        for name in ("quillet", FEES):
            shutil.copy(PROGRAMS / name, folder)
        return folder

    def serve(self, screen):
        """Starts the servers, tells the program their names and returns their files' folder."""
        servers = UpdateServers()
        self.addCleanup(servers.close)
        self.name_servers(screen, servers.web, servers.ftp)
        return servers.files

    @staticmethod
    def name_servers(screen, web, ftp):
        settings = screen.home / "machine/velmor/quillet.ini"
        settings.parent.mkdir(parents=True)
        key = "Velmor\\Quillet%20US\\Config\\"
        settings.write_text(f"[Software]\n{key}WebServer={web}\n{key}FtpServer={ftp}\n")

    @staticmethod
    def start(screen, *command):
        screen.program = subprocess.Popen(command, cwd=screen.home, env=screen.environment)

    def test_first_start_fetches_the_fees_and_leads_to_a_saved_auction(self):
        with ReadableScreen("update") as screen:
            program = self.at_home(screen)
            served = self.serve(screen)
            fees = (program / FEES).read_text(encoding="utf-8").replace(*NEW_FEE)
            (served / "ftp" / FEES).write_text(fees, encoding="utf-8")
            (served / "web/getAction.asp").write_text("10,New fees from today")
            (served / "web/getAbout.asp").write_text("Welcome,\\nseller")
            self.start(screen, program / "quillet", "debug=true")
            screen.window("Information")
            self.assertTrue(screen.windows("Quillet"), "the splash covers the start")
            self.assertEqual((program / FEES).read_text(encoding="utf-8"), fees)
            screen.keys("Return")
            self.go_through_the_wizard(screen)
            self.assertNotIn("FTPSkipFlag", screen.settings())
            today = time.strftime("%A, %B %-d, %Y")
            log = comments(program)
            self.assertIn(today, "".join(log))
            log = [re.sub(r"(?<=skip date of ).*", "TODAY", line) for line in log]
            self.assertEqual(log, list(unfolded(WHOLE_LOG)))

    def go_through_the_wizard(self, screen):
        screen.window("Quillet US - Default Configuration")
        seen = Desktop(screen)
        seen.look("Auction Type", "Standard Auction", "radio button")
        screen.keys("alt+Right")
        seen.look("Outlay", "Starting Price", "text")
        seen.type("Outlay", "Starting Price", "5")
        fee = seen.control("Selling Costs", "Insertion Fee", "figure")
        wait_for("the fee of today", lambda: fee.get_name() == "$0.45")
        screen.keys("alt+Right", "alt+Right", "alt+Right")
        seen.look("Postage", "Manual", "text")
        screen.keys("alt+f")
        screen.window("Quillet US")
        screen.keys("ctrl+s")
        screen.window("Save.*")
        screen.keys("ctrl+a")
        screen.type(str(screen.home / "Documents/first.qlt"))
        screen.keys("Return")
        screen.window("Quillet US - first")
        saved = (screen.home / "Documents/first.qlt").read_text(encoding="utf-8")
        self.assertRegex(saved, r"\[OUTLAY\]0\|5\|0\|0\|1\|False\[OUTLAY\]")
        screen.keys("ctrl+q")
        self.assertEqual(screen.gone(), 0)

    def test_without_a_network_the_window_stands_within_three_seconds(self):
        with ReadableScreen("offline") as screen:
            program = self.at_home(screen)
            begin = time.monotonic()
            self.start(screen, "unshare", "-n", program / "quillet", "DEBUG=TRUE")
            screen.window("Quillet US - Default Configuration")
            self.assertLess(time.monotonic() - begin, 3)
            wait_for("the end of the start", lambda: comments(program)[-1:] == ["End startup"])
            self.assertEqual(comments(program)[5:7], ["Open internet connection 1", "Splash pause"])

    def test_a_key_on_the_splash_ends_downloads_that_have_taken_three_seconds(self):
        with Screen("hurried") as screen, socket.create_server(("127.0.0.1", 0)) as silent:
            program = self.at_home(screen)
            self.name_servers(screen, "", "127.0.0.1:%d" % silent.getsockname()[1])
            self.start(screen, program / "quillet", "debug=true")
            wait_for("the downloads", lambda: "Start FTP 1" in comments(program))
            begin = time.monotonic()
            wait_for("the end of them", lambda: screen.keys("space") or
                     "DL - Out of time" in comments(program))
            self.assertTrue(2 < time.monotonic() - begin < 8)
            screen.window("Quillet US - Default Configuration")
            self.assertIn("DL - Update file 10 - fail", comments(program))
            self.assertIn("FTPSkipFlag", screen.settings())

    def test_a_file_that_is_no_use_leaves_the_fees_of_before(self):
        fees = (PROGRAMS / FEES).read_text(encoding="utf-8")
        files = {"a key twice": fees + "openingranges,7\n",
                 "a page": "<html><head><title>Sorry, not today</title></head></html>\n",
                 "cut off": fees[:len(fees) // 2],
                 "too large": fees + "\n" * 2**20}
        with Screen("refused") as screen:
            program = self.at_home(screen)
            served = self.serve(screen)
            for name, text in files.items():
                with self.subTest(name):
                    (served / "ftp" / FEES).write_text(text, encoding="utf-8")
                    shutil.rmtree(screen.home / ".config", ignore_errors=True)
                    (program / "QlDebug.log").unlink(missing_ok=True)
                    self.start(screen, program / "quillet", "debug=true")
                    screen.window("Quillet US - Default Configuration")
                    screen.program.kill()
                    screen.program.wait()
                    self.assertIn("DL - Update file 10 - fail", comments(program))
                    self.assertIn("FTPSkipFlag", screen.settings())
                    self.assertEqual({p.name for p in program.iterdir()},
                                     {"quillet", FEES, "QlDebug.log"})
                    self.assertEqual((program / FEES).read_text(encoding="utf-8"), fees)


if __name__ == "__main__":
    unittest.main(verbosity=2)
