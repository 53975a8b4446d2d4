"""A separate screen with a window manager, and the desktop program driven by keys and mouse."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

PROGRAMS = pathlib.Path(os.environ.get("QUILLET_BIN", "build/release/bin")).resolve()
KEPT = pathlib.Path(os.environ.get("QUILLET_SHOTS", "build/test-logs")).resolve()
PATIENCE = 20  # seconds that anything may take to appear


def wait_for(what, condition, patience=PATIENCE):
    """Waits until a condition is true and returns its value; a failure says what it waited for."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        if answer := condition():
            return answer
        time.sleep(0.05)
    raise AssertionError(f"timed out waiting for {what}")


def start_x_server():
    """Starts Xvfb on a free display number; returns its process and the display's name."""
    read, write = os.pipe()
    # A server that resets when its last client leaves throws out whoever is just connecting.
    server = subprocess.Popen(
        ["Xvfb", "-noreset", "-displayfd", str(write), "-screen", "0", "1920x1080x24",
         "-nolisten", "tcp"], pass_fds=[write], stderr=subprocess.DEVNULL)
    os.close(write)
    with os.fdopen(read) as pipe:
        return server, ":" + pipe.readline().strip()


class Screen:
    """An X server with openbox and its own home folder. A failure while it is open leaves a
    picture."""

    def __init__(self, name="screen"):
        self.name = name
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="quillet-home-"))
        (self.home / "Documents").mkdir()
        self.server, display = start_x_server()
        self.environment = {
            **{k: v for k, v in os.environ.items() if not k.startswith(("QT_", "XDG_", "LC_"))},
            "DISPLAY": display, "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.home),
            "XDG_CONFIG_DIRS": str(self.home / "machine"), "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb"}
        os.chmod(self.home, 0o700)
        self.manager = subprocess.Popen(["openbox"], env=self.environment,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("the window manager", lambda: "_NET_SUPPORTING_WM_CHECK(WINDOW)" in self.output(
            "xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))
        self.program = None

    def __enter__(self):
        return self

    def __exit__(self, kind, error, trace):
        if error:
            print("picture:", self.keep_picture(self.name))
        self.close()

    def output(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True,
                              timeout=PATIENCE, check=False).stdout

    def close(self):
        for process in (self.program, self.manager, self.server):
            if process and process.poll() is None:
                process.kill()
                process.wait()
        shutil.rmtree(self.home, ignore_errors=True)

    # The program

    def start(self, name="quillet", *arguments, **environment):
        self.program = subprocess.Popen([PROGRAMS / name, *arguments], cwd=self.home,
                                        env={**self.environment, **environment})
        self.window("Quillet ..( - .+)?")

    def windows(self, title):
        return self.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()

    def window(self, title):
        """Waits for a window whose whole title matches, and gives it the focus."""
        found = wait_for(f"a window titled {title}; there are {self.titles()}",
                         lambda: self.windows(title))[0]
        self.output("xdotool", "windowactivate", "--sync", found)
        return found

    def titles(self):
        return [self.output("xdotool", "getwindowname", w).strip() for w in self.windows(".+")]

    def gone(self):
        wait_for("the program's end", lambda: self.program.poll() is not None)
        return self.program.returncode

    # Its user

    def keys(self, *keys):
        self.output("xdotool", "key", "--delay", "30", *keys)

    def type(self, text):
        self.output("xdotool", "type", "--delay", "15", text)

    def clipboard(self):
        """The clipboard's text as another program gets it; empty if there is none."""
        from Xlib import X, display
        connection = display.Display(self.environment["DISPLAY"])
        asker = connection.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        answer = connection.intern_atom("ANSWER")
        asker.convert_selection(connection.intern_atom("CLIPBOARD"),
                                connection.intern_atom("UTF8_STRING"), answer, X.CurrentTime)
        while connection.next_event().type != X.SelectionNotify:
            pass
        text = asker.get_full_property(answer, X.AnyPropertyType)
        connection.close()
        return text.value.decode() if text else ""

    def drag(self, start, end):
        steps = [((start[0] * (8 - i) + end[0] * i) // 8, (start[1] * (8 - i) + end[1] * i) // 8)
                 for i in range(9)]
        self.output("xdotool", "mousemove", *map(str, steps[0]), "mousedown", "1")
        for step in steps[1:]:
            self.output("xdotool", "mousemove", "--sync", *map(str, step))
        self.output("xdotool", "mouseup", "1")

    def click(self, x, y):
        self.output("xdotool", "mousemove", str(x), str(y), "click", "1")

    def place_of(self, title):
        """Returns a function that turns a window's coordinates in twips into the screen's."""
        window = self.window(title)
        x, y = map(int, re.findall(r"Absolute upper-left [XY]:\s*(-?\d+)",
                                   self.output("xwininfo", "-id", window)))
        stored = wait_for("the zoom", lambda: re.search(r"Zoom=(\d+)", self.settings()))
        scale = int(stored.group(1)) / 100 / 15
        return lambda left, top: (round(x + left * scale), round(y + top * scale))

    def settings(self):
        path = self.home / ".config/velmor/quillet.ini"
        return path.read_text(encoding="utf-8") if path.exists() else ""

    def keep_picture(self, name):
        KEPT.mkdir(parents=True, exist_ok=True)
        with open(KEPT / f"{name}.png", "wb") as file:
            subprocess.run(["import", "-window", "root", "png:-"], env=self.environment, stdout=file,
                           check=False, timeout=PATIENCE)
        return KEPT / f"{name}.png"
