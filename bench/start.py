#!/usr/bin/python3
"""Measures the time from exec until the window answers, and the idle program's memory.

Usage: start.py FOLDER-OF-QUILLET [RUNS]

Runs on a screen of its own, in turn with other installed desktop calculators as the baseline. A
window is ready when it answers the window manager's ping, which a program does from its event
loop. Quillet's splash is clicked away as soon as it appears.
"""

import os
import pathlib
import signal
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

from Xlib import X, display, protocol
from Xlib.ext import xtest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/whole"))
from desktop import start_x_server  # noqa: E402

LIMIT = 30  # seconds for one start
SMALLEST = 100  # pixels; anything smaller isn't a program's window


class Watcher:
    """Watches for new windows, and checks that they answer."""

    def __init__(self, name):
        self.display = display.Display(name)
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask |
                                    X.StructureNotifyMask)
        self.protocols = self.display.intern_atom("WM_PROTOCOLS")
        self.ping = self.display.intern_atom("_NET_WM_PING")

    def event(self, end):
        while not self.display.pending_events():
            if time.monotonic() > end:
                raise TimeoutError("no window in time")
            time.sleep(0.0005)
        return self.display.next_event()

    def next_window(self, end):
        while True:
            event = self.event(end)
            if event.type == X.MapNotify:
                size = event.window.get_geometry()
                if size.width > SMALLEST and size.height > SMALLEST:
                    return event.window, size

    def await_answer(self, window, end):
        data = (32, [self.ping, X.CurrentTime, window.id, 0, 0])
        window.send_event(protocol.event.ClientMessage(
            window=window, client_type=self.protocols, data=data))
        self.display.flush()
        while True:
            event = self.event(end)
            if event.type & 0x7F == X.ClientMessage and event.client_type == self.protocols:
                return

    def click(self, size):
        xtest.fake_input(self.display, X.MotionNotify, x=size.x + size.width // 2,
                         y=size.y + size.height // 2)
        xtest.fake_input(self.display, X.ButtonPress, 1)
        xtest.fake_input(self.display, X.ButtonRelease, 1)
        self.display.flush()


def resident_megabytes(process):
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text(encoding="ascii")
    return next(int(line.split()[1]) for line in status.splitlines() if "VmRSS" in line) / 1000


def start(watcher, command, environment, splash):
    """Milliseconds until the first lasting window answers, and megabytes two seconds later."""
    begin = time.monotonic()
    end = begin + LIMIT
    process = subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    try:
        window, size = watcher.next_window(end)
        if splash:
            watcher.click(size)
            window, size = watcher.next_window(end)
        watcher.await_answer(window, end)
        milliseconds = (time.monotonic() - begin) * 1000
        time.sleep(2)
        return milliseconds, resident_megabytes(process)
    finally:
        process.send_signal(signal.SIGKILL)
        process.wait()
        watcher.display.sync()
        while watcher.display.pending_events():
            watcher.display.next_event()


def measure(quillet, runs, environment):
    watcher = Watcher(environment["DISPLAY"])
    programs = {"quillet": ([quillet], True)}
    for other in ("galculator", "speedcrunch"):
        if shutil.which(other):
            programs[other] = ([other], False)
    figures = {program: [] for program in programs}
    for _ in range(runs):
        for program, (command, splash) in programs.items():
            figures[program].append(start(watcher, command, environment, splash))
    for program, pairs in figures.items():
        times, sizes = zip(*pairs)
        print(f"{program:12} {statistics.median(times):6.0f} ms "
              f"({min(times):.0f} to {max(times):.0f}) {statistics.median(sizes):6.1f} MB")


def main():
    quillet = str(pathlib.Path(sys.argv[1]).resolve() / "quillet")
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 7
    server, name = start_x_server()
    with tempfile.TemporaryDirectory(prefix="quillet-bench-") as home, server:
        environment = {**{k: v for k, v in os.environ.items() if not k.startswith(("QT_", "XDG_"))},
                       "DISPLAY": name, "HOME": home, "XDG_RUNTIME_DIR": home, "LANG": "C.UTF-8",
                       "QT_QPA_PLATFORM": "xcb"}
        try:
            measure(quillet, runs, environment)
        finally:
            server.kill()


if __name__ == "__main__":
    main()
