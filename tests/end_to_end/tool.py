"""The installed tool in a user's hands: each test gets an installation and a home folder of its own."""

import argparse
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

from desktop import Desktop, active_window, hands, press, type_text, visible_windows, wait_for, windows_of
from screen import whole_picture

TITLE = "Coordinate System Manager"
ROOT = "CoordSysGroup"


class Tool:
    """One installation of the tool, its user's home, and at most one running process of it."""

    def __init__(self, desktop, folder, build):
        self.desktop = desktop
        self.prefix = os.path.join(folder, "installed")
        self.home = os.path.join(folder, "home")
        self.scratch = os.path.join(folder, "tmp")
        os.makedirs(self.home)
        os.makedirs(self.scratch)
        subprocess.run(["cmake", "--install", build, "--prefix", self.prefix], check=True, stdout=subprocess.DEVNULL)
        self.data = os.path.join(self.home, "Documents", "ArvelaGnss", "Data")
        self.geoid_data = os.path.join(self.prefix, "etc", "Vornhalde", "data", "GeoidData")
        self.process = None
        self.errors = open(os.path.join(folder, "stderr.txt"), "w+", encoding="utf-8", errors="replace")

    def launch(self):
        """Starts a process of the tool, whether or not one runs."""
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith(("XDG_", "LC_", "LANGUAGE"))}
        environment.update(HOME=self.home, TMPDIR=self.scratch, LANG="C.UTF-8",
                           XDG_RUNTIME_DIR=os.environ["XDG_RUNTIME_DIR"])
        return subprocess.Popen([os.path.join(self.prefix, "bin", "coordsystem_manager")], env=environment,
                                cwd=self.home, stdin=subprocess.DEVNULL, stdout=self.errors, stderr=self.errors)

    def start(self):
        self.process = self.launch()
        wait_for(lambda: self.process.poll() is not None or self._window(TITLE), "the main window")
        assert self.process.poll() is None, f"the tool ended with {self.process.returncode}: {self.told()}"
        wait_for(lambda: self.main.active, "the main window to be active")

    def told(self):
        self.errors.flush()
        self.errors.seek(0)
        return self.errors.read()

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()

    def close(self):
        if self.process and self.process.poll() is None:
            self.kill()
        self.errors.close()

    def ended(self):
        """The exit code, as soon as the process ends."""
        wait_for(lambda: self.process.poll() is not None, "the process to end")
        return self.process.returncode

    # What is on the screen

    def _window(self, title, button=None):
        return next((w for w in reversed(windows_of(self.process.pid))
                     if w.name == title and (button is None or w.all("push button", button))), None)

    @property
    def main(self):
        return wait_for(lambda: self._window(TITLE), "the main window")

    def dialog(self, title, button=None):
        """The dialog of that title, ready for the keyboard. Where dialogs share a title, a button tells them apart."""
        dialog = wait_for(lambda: self._window(title, button), f"the dialog {title!r}")
        wait_for(lambda: dialog.active, f"the dialog {title!r} to be active")
        return dialog

    def gone(self, title, button=None):
        wait_for(lambda: self._window(title, button) is None, f"{title!r} to close")

    def titles(self):
        return [w.name for w in windows_of(self.process.pid)]

    @property
    def tree(self):
        return self.main.find("tree")

    def item(self, name):
        return self.tree.find("table cell", name)

    def items(self):
        """The names in the tree, top to bottom, as far as its items are unfolded, also those that must be scrolled to."""
        return [item.name for item in self.tree.children() if item.kind == "table cell"]

    def button(self, name):
        return self.main.find("push button", name)

    @property
    def save_enabled(self):
        return self.button("Save").enabled

    def tab(self, name):
        """Turns to a tab of the parameter panel."""
        main = self.main
        main.find("page tab", name).click()
        main.find("page tab list", name)  # it bears the name of the tab in front
        return main

    def scroll_to(self, name):
        """Turns the wheel over the tree until an item is in sight; its name is the first of that text in the tree."""
        tree = self.tree
        item = next(item for item in tree.children() if item.name == name)
        x, y, width, height = tree.place
        hands("mousemove", x + width // 2, y + height // 2)

        def in_sight():
            _, top, _, item_height = item.place
            if y <= top and top + item_height <= y + height:
                return True
            hands("click", 5 if top > y else 4)
            return False

        wait_for(in_sight, f"{name!r} to be scrolled to")

    def unfold(self, name):
        """Unfolds a folded group of the tree."""
        before = len(self.items())
        self.item(name).double_click()
        wait_for(lambda: len(self.items()) != before, f"{name!r} to unfold")

    def menu_at(self, item):
        item.right_click()
        return self.desktop.menu()

    def command(self, item, entry):
        """Chooses an entry of an item's context menu."""
        self.menu_at(item).find("menu item", entry).click()

    def answer(self, title, text, button):
        """Reads a message box and presses one of its buttons."""
        box = self.dialog(title)
        wait_for(lambda: text in box.names("label"), lambda: f"{text!r}, not {box.names('label')}")
        window = active_window()
        box.find("push button", button).click()
        # By its X window: the next box may well take over this one's title and place on the accessibility bus.
        wait_for(lambda: window not in visible_windows(self.process.pid), f"{title!r} to close")

    def input_name(self, title, name, button="Ok"):
        """Types into the name dialog, which must be ready for it, and presses a button."""
        dialog = self.dialog(title)
        field = dialog.find("text")
        wait_for(lambda: field.focused, "the name field to have the focus")
        press("ctrl+a")
        type_text(name) if name else press("Delete")
        wait_for(lambda: field.text == name, f"{name!r} in the name field")
        dialog.find("push button", button).click()

    def save(self):
        self.button("Save").click()
        wait_for(lambda: not self.save_enabled, "Save to be done")

    def exit(self):
        """Leaves by the Exit button with nothing unsaved; the exit code."""
        self.button("Exit").click()
        self.answer("information", "Do you want to exit program?", "Yes")
        return self.ended()

    # What lies on the disk

    def file(self, name):
        return xml.parse(os.path.join(self.data, name)).getroot()

    def mapped_libraries(self):
        """The shared libraries that the process has mapped."""
        with open(f"/proc/{self.process.pid}/maps", encoding="utf-8") as maps:
            return set(re.findall(r"\S*/(lib[^/\s]+\.so[^/\s]*)", maps.read()))


class ToolTest(unittest.TestCase):
    """A test with the tool installed and not started."""

    desktop = None
    build = None

    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="end-to-end-")
        self.addCleanup(shutil.rmtree, self.folder)
        self.tool = Tool(self.desktop, self.folder, self.build)
        self.addCleanup(self.tool.close)
        self.addCleanup(self.keep_picture_of_failure)

    def keep_picture_of_failure(self):
        result = self._outcome.result
        if any(test is self for test, _ in result.failures + result.errors):
            path = os.path.join(self.build, "tests", f"{self.id()}.png")
            whole_picture(path)
            print(f"The screen as {self.id()} failed: {path}", file=sys.stderr)
            for window in windows_of(self.tool.process.pid) if self.tool.process else []:
                print("\n".join(window.describe()), file=sys.stderr)
            print(self.tool.told(), file=sys.stderr)


def run():
    """The main program of every end-to-end test: --build FOLDER [unittest's arguments]."""
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", required=True, help="the build tree whose tool is tested")
    arguments, rest = parser.parse_known_args()
    ToolTest.build = arguments.build
    with tempfile.TemporaryDirectory(prefix="end-to-end-desktop-") as folder:
        ToolTest.desktop = Desktop(folder)
        try:
            ToolTest.desktop.open()
            program = unittest.main(module="__main__", argv=[sys.argv[0], "--verbose", *rest], exit=False)
        finally:
            ToolTest.desktop.close()
    sys.exit(not program.result.wasSuccessful())
