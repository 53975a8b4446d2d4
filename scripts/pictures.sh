#!/usr/bin/env bash
# Retakes the pictures of README.md and docs/guide.md from the running program, so that they stay
# true: scripts/pictures.sh [FOLDER], by default docs.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/lib.sh
need_packages run test
build release quillet
PYTHONPATH=tests/whole /usr/bin/python3 - "${1:-docs}" <<'END'
import pathlib
import subprocess
import sys
import time

from desktop import Screen

FOLDER = pathlib.Path(sys.argv[1]).resolve()
CAMERA = pathlib.Path("data/samples/used-camera.qlt").resolve()
CAMERA_TODAY = pathlib.Path("data/samples/today/camera.qlt").resolve()


class Album(Screen):
    def take(self, name, title):
        """Takes a picture of one window, without its frame, once it has drawn itself."""
        window = self.window(title)
        time.sleep(1)
        subprocess.run(["import", "-window", window, FOLDER / f"{name}.png"],
                       env=self.environment, check=True, timeout=60)
        print(f"{name}.png")

    def set(self, **values):
        """Stores values of the section Config, and a window size that holds all sections."""
        window = {"Left": 1500, "Top": 750, "Width": 14700, "Height": 10950, "WindowState": 0}
        values = {f"Config\\{name}": value for name, value in {"Zoom": 100, **values}.items()} | {
            f"Forms\\Main\\{name}": value for name, value in window.items()}
        file = self.home / ".config/velmor/quillet.ini"
        file.parent.mkdir(parents=True, exist_ok=True)
        lines = [f"Velmor\\Quillet%20US\\{name}={value}\n" for name, value in values.items()]
        file.write_text("[Software]\n" + "".join(lines), encoding="utf-8")


with Album("wizard") as screen:
    screen.set()
    screen.start()
    screen.keys("alt+n")
    screen.take("wizard", "Quillet US.*")

with Album("calculator") as screen:
    screen.set()
    screen.start("quillet", CAMERA)
    screen.keys("ctrl+1")
    screen.take("calculator", "Quillet US - used-camera")
    screen.keys("ctrl+3")
    screen.take("what-if", "What if - Quillet US")
    screen.keys("Escape")
    screen.window("Quillet US - used-camera")
    screen.keys("ctrl+comma")
    screen.take("configure", "Quillet US - Default Configuration")

with Album("today") as screen:
    screen.set(Schedule="UpdateUS_2026-10.dat")
    screen.start("quillet", CAMERA_TODAY)
    screen.keys("ctrl+1")
    screen.take("today", "Quillet US - camera")
END
