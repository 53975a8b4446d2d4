"""The screen as a screen reader sees it: controls are found by name and role in the accessibility
tree, clicked with the mouse and typed into. Needs Debian's own Python."""

import os
import subprocess

from desktop import Screen, wait_for


class ReadableScreen(Screen):
    """A screen whose programs expose their controls to a screen reader."""

    def __init__(self, name="screen"):
        super().__init__(name)
        self.bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"],
                                    env=self.environment, stdout=subprocess.PIPE,
                                    stderr=subprocess.DEVNULL, text=True)
        self.environment.update(DBUS_SESSION_BUS_ADDRESS=self.bus.stdout.readline().strip(),
                                QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1")
        os.environ.update({key: self.environment[key] for key in
                           ("DISPLAY", "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS")})
        global Atspi
        import gi  # after the bus, which it looks for at once
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi

    def close(self):
        super().close()
        self.bus.kill()
        self.bus.wait()


class Desktop:
    """A program on its screen, seen as a screen reader sees it."""

    def __init__(self, screen):
        self.screen = screen
        self.application = wait_for("the program in the accessibility tree", self.newest)
        self.application.set_cache_mask(Atspi.Cache.NONE)
        self.controls = {}

    def look(self, section, name, role):
        """Reads what is on view once this control is there."""
        self.controls = wait_for(f"the {role} {name!r}", lambda: self.read((section, name, role)))

    @staticmethod
    def newest():
        desktop = Atspi.get_desktop(0)
        found = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
        found = [a for a in found if a and a.get_name().startswith("Quillet")]
        return found[-1] if found else None

    def read(self, wanted):
        """Everything on view, by section, name and role; None without the wanted control."""
        controls = {}

        def walk(node, section):
            for child in (node.get_child_at_index(i) for i in range(node.get_child_count())):
                if child is None or not child.get_state_set().contains(Atspi.StateType.SHOWING):
                    continue
                role, name = child.get_role_name(), child.get_name()
                told = child.get_description() or name[:len("Section Total")]
                if role == "label" and (told == "Section Total" or child.get_description()):
                    role, name = "figure", told
                controls.setdefault((section, name, role), []).append(child)
                inner = name if role == "filler" and name and child.get_child_count() > 2 else section
                walk(child, inner)

        walk(self.application, "")
        return controls if wanted in controls else None

    def control(self, section, name, role):
        found = self.controls.get((section, name, role), [])
        if len(found) != 1:
            raise AssertionError(f"{len(found)} controls are {role} {name!r} of {section!r}")
        return found[0]

    def click(self, control):
        place = control.get_extents(Atspi.CoordType.SCREEN)
        self.screen.click(place.x + 8, place.y + place.height // 2)

    def type(self, section, name, text):
        box = self.control(section, name, "text")
        self.click(box)
        self.screen.keys("ctrl+a")
        self.screen.type(text)
        self.screen.keys("Tab")
