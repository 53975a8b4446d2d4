#!/usr/bin/env python3
"""Starts the desktop program installed in a system in a folder, as a user would:
installed_test.py FOLDER."""

import os
import pathlib
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests" / "whole"))
from desktop import Screen  # noqa: E402

SYSTEM = pathlib.Path(sys.argv.pop(1)).resolve()
HOME = SYSTEM / "home/seller"
SAMPLE = "/usr/share/doc/quillet/examples/used-camera.qlt"


class SystemScreen(Screen):
    """A screen of this machine, with programs that run in the system and see nothing else of it."""

    def start(self, name="quillet", *arguments, **environment):
        user = HOME.stat()
        inside = {"DISPLAY": self.environment["DISPLAY"], "HOME": "/home/seller",
                  "LANG": "C.UTF-8", "PATH": "/usr/bin:/bin", **environment}
        self.program = subprocess.Popen(
            [name, *arguments], env=inside, cwd="/",
            preexec_fn=lambda: (os.chroot(SYSTEM), os.chdir("/home/seller"),
                                os.setgroups([]), os.setgid(user.st_gid), os.setuid(user.st_uid)))


class Installed(unittest.TestCase):
    def start_and_close(self, title, picture, *command):
        with SystemScreen(f"{picture}-failed") as screen:
            screen.start(*command)
            screen.window(title)
            screen.keep_picture(picture)
            screen.keys("ctrl+q")
            self.assertEqual(screen.gone(), 0)

    def test_opens_the_auction_that_it_is_given(self):
        self.start_and_close("Quillet US - used-camera", "deb-us", "quillet", SAMPLE)
        self.assertTrue((HOME / ".config/velmor/quillet.ini").exists())

    def test_the_other_region_starts_too(self):
        self.start_and_close("Quillet UK - Default Configuration", "deb-uk", "quillet-uk")


if __name__ == "__main__":
    unittest.main(verbosity=2)
