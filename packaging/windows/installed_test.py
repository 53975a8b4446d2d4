#!/usr/bin/env python3
"""Installs the Windows program under Wine as a user would, uses it and uninstalls it:
installed_test.py SETUP.EXE."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

TESTS = pathlib.Path(__file__).resolve().parents[2] / "tests"
sys.path[:0] = [str(TESTS / "whole"), str(TESTS / "support")]
from desktop import Screen, wait_for  # noqa: E402
from update_servers import UpdateServers  # noqa: E402

WINE = next(p for p in ("/usr/lib/wine/wine64", shutil.which("wine64")) if p and os.path.exists(p))
SETUP = pathlib.Path(sys.argv.pop(1)).resolve()
PORTABLE = SETUP.with_name(SETUP.name.replace("setup.exe", "portable.zip"))
DATA = TESTS.parent / "data"
SAMPLES = DATA / "samples"
SETTINGS = r"HKCU\Software\Velmor\Quillet US"
CONFIG = SETTINGS + r"\Config"
OPENING = r"HKCU\Software\Classes\Quillet.Auction\shell\open\command"
MACHINE = r"HKLM\Software\Velmor\Quillet US\Config"
TITLE = "Quillet US( - Default Configuration)?"


class WineScreen(Screen):
    """A screen with its own Windows under Wine, removed at the end."""

    def __init__(self, name):
        super().__init__(name, "1600x1000")
        del self.environment["QT_QPA_PLATFORM"]
        self.environment |= {
            "WINEPREFIX": str(self.home / "prefix"), "WINEARCH": "win64", "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "winemenubuilder.exe,mscoree,mshtml="}
        self.wine("wineboot", "-i", seconds=240)
        self.user = next(p for p in (self.home / "prefix/drive_c/users").iterdir()
                         if p.name != "Public")
        self.folder = self.user / "AppData/Local/Programs/Quillet"

    def wine(self, *command, seconds=120):
        return subprocess.run([WINE, *map(str, command)], env=self.environment, cwd=self.home,
                              capture_output=True, text=True, errors="replace", timeout=seconds,
                              check=False)

    def registry(self, key, *what):
        """What reg.exe prints about a key; empty if there is no such key or value."""
        done = self.wine("reg", "query", key, *what)
        return done.stdout if done.returncode == 0 else ""

    def start_installed(self, *words):
        self.open(TITLE, self.folder / "quillet.exe", *words)

    def open(self, title, *command):
        """Starts a command that opens such a window; it counts as the program until it ends."""
        self.program = subprocess.Popen([WINE, *command], env=self.environment, cwd=self.home,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.window(title)

    # A key pressed before its window has the focus is lost.

    def press(self, key, what, condition):
        """Presses a key, and once more if it had no effect."""
        try:
            self.keys(key)
            wait_for(what, condition, patience=3)
        except AssertionError:
            self.keys(key)
            wait_for(what, condition)

    def ask(self, key, title):
        """Presses a key that opens such a window."""
        self.press(key, title, lambda: self.windows(title))
        self.window(title)

    def end(self):
        wait_for("the program's end",
                 lambda: self.keys("alt+F4") or self.program.poll() is not None)

    def close(self):
        server = pathlib.Path(WINE).with_name("wineserver")
        subprocess.run([server, "-k"], env=self.environment, timeout=60, check=False)
        super().close()


class Installed(unittest.TestCase):
    """The tests build on each other, in the order of their names."""

    @classmethod
    def setUpClass(cls):
        cls.screen = WineScreen("windows")
        cls.addClassCleanup(cls.screen.close)

    def tearDown(self):
        if self.screen.program and self.screen.program.poll() is None:
            self.screen.program.kill()
            self.screen.program.wait()

    def install(self):
        self.assertEqual(self.screen.wine(SETUP, "/S").returncode, 0)

    def expect_no_program(self):
        wait_for("the end of the program folder", lambda: not self.screen.folder.exists())

    def test_1_the_installer_puts_one_program_without_libraries(self):
        self.install()
        files = {p.name for p in self.screen.folder.iterdir()}
        schedules = {p.name for p in DATA.glob("UpdateUS_*.dat")}
        self.assertEqual(files, {"quillet.exe", "quillet-calc.exe", "Licences", "uninstall.exe",
                                 *schedules})
        self.assertTrue(list(self.screen.user.rglob("Start Menu/**/Quillet.lnk")))
        self.assertRegex(self.screen.registry(OPENING, "/ve"), r'Programs\\Quillet\\quillet\.exe" "%1"')

    def test_2_the_program_calculates_and_keeps_its_settings_in_the_registry(self):
        self.screen.start_installed()
        self.screen.keep_picture("windows-start")
        zoom = self.screen.registry(CONFIG, "/v", "Zoom")
        self.screen.keys("ctrl+minus")
        wait_for("another zoom in the registry",
                 lambda: self.screen.registry(CONFIG, "/v", "Zoom") not in ("", zoom))
        self.screen.keep_picture("windows-zoomed")
        self.screen.end()
        self.assertIn(r"\Forms", self.screen.registry(SETTINGS, "/s"))

    def test_3_windows_own_dialogs_save_and_open_auctions(self):
        screen = self.screen
        screen.start_installed()
        screen.ask("ctrl+1", "Quillet US")
        screen.ask("ctrl+s", "Save As")
        screen.keep_picture("windows-save")
        screen.keys("ctrl+a")
        screen.type("Blue vase")
        screen.keys("Return")
        screen.window("Quillet US - Blue vase")
        saved = next(screen.home.rglob("Blue vase.qlt"))
        self.assertEqual(saved.parent.name, "Documents")
        self.assertIn("[OUTLAY]", saved.read_text(encoding="utf-8"))
        saved.rename(saved.with_name("Red vase.qlt"))
        screen.ask("ctrl+o", "Open")
        screen.keys("ctrl+a")
        screen.type("Red vase.qlt")
        screen.keys("Return")
        screen.window("Quillet US - Red vase")
        screen.end()

    def test_4_a_double_click_opens_an_auction(self):
        auction = self.screen.user / "Großes Sofa.qlt"
        shutil.copy(SAMPLES / "lathe.qlt", auction)
        # As Explorer does it; Wine's own `start` only knows the machine's file types.
        program = re.search(r'REG_SZ +"(.+)" "%1"', self.screen.registry(OPENING, "/ve")).group(1)
        self.screen.open("Quillet US - Gro.+es Sofa", program,
                         rf"C:\users\{self.screen.user.name}\{auction.name}")
        self.screen.keep_picture("windows-opened")
        self.screen.end()

    def test_5_a_link_opens_in_the_browser(self):
        called = self.screen.home / "called"
        browser = self.screen.home / "browser"
        browser.write_text(f'#!/bin/sh\necho "$1" > {called}\n', encoding="utf-8")
        browser.chmod(0o755)
        self.screen.wine("reg", "add", r"HKCU\Software\Wine\WineBrowser", "/v", "Browsers", "/d",
                         browser)
        self.screen.start_installed()
        self.screen.ask("F1", "About.*")
        self.screen.keep_picture("windows-about")
        self.screen.keys("shift+Tab", "space")
        wait_for("the browser", called.exists)
        self.assertRegex(called.read_text(encoding="utf-8"), r"^https?://\S+$")
        self.screen.keys("Escape")
        self.screen.end()

    def test_6_a_start_fetches_the_fees_from_real_servers(self):
        # The servers weren't up before, and the program makes only one failed attempt a day.
        mark = self.screen.registry(CONFIG, "/v", "FTPSkipFlag")
        self.assertRegex(mark, r"REG_SZ +\d+\.\d+")
        self.screen.wine("reg", "delete", CONFIG, "/v", "FTPSkipFlag", "/f")
        schedule = self.screen.folder / "UpdateUS_v0101.dat"
        before = schedule.read_bytes()
        with UpdateServers() as servers:
            for name, server in (("WebServer", servers.web), ("FtpServer", servers.ftp)):
                self.screen.wine("reg", "add", MACHINE, "/v", name, "/d", server)
            (servers.files / "web/getAction.asp").write_text("0,nothing", encoding="utf-8")
            (servers.files / "ftp" / schedule.name).write_bytes(before + b"\n")
            self.screen.start_installed("DEBUG=TRUE")
            self.screen.end()
        log = (self.screen.folder / "QlDebug.log").read_text(encoding="utf-8")
        self.assertEqual(schedule.read_bytes(), before + b"\n", log)
        self.assertIn("DL - Special actions 6 - okay", log)
        self.assertIn("Proc FTP 8 - okay", log)
        self.assertIn("DL - Update file 9 - okay", log)
        self.assertEqual(self.screen.registry(CONFIG, "/v", "FTPSkipFlag"), "", log)

    def test_7_uninstalling_leaves_nothing_but_the_settings(self):
        title = "Quillet Uninstall ?"
        self.screen.open(title, self.screen.folder / "uninstall.exe")
        self.screen.press("Return", "the question", lambda: len(self.screen.windows(title)) == 2)
        self.screen.keep_picture("windows-uninstall")
        self.screen.keys("Return")  # the default answer, No
        self.expect_no_program()
        self.screen.keys("Return")
        self.assertFalse(list(self.screen.user.rglob("Quillet.lnk")))
        for key in (r"HKCU\Software\Classes\Quillet.Auction", r"HKCU\Software\Classes\.qlt",
                    r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillet"):
            self.assertEqual(self.screen.registry(key), "", key)
        self.assertIn("Quillet US", self.screen.registry(SETTINGS, "/s"))

    def test_8_the_switch_takes_the_settings_too(self):
        self.install()
        self.screen.wine(self.screen.folder / "uninstall.exe", "/S", "/SETTINGS")
        self.expect_no_program()
        wait_for("the end of the settings",
                 lambda: not self.screen.registry(r"HKCU\Software\Velmor"))

    def test_9_the_portable_archive_runs_where_it_is_unpacked(self):
        shutil.unpack_archive(PORTABLE, self.screen.user)
        self.screen.open(TITLE, self.screen.user / "Quillet/quillet.exe")
        self.screen.end()


if __name__ == "__main__":
    unittest.main(verbosity=2)
