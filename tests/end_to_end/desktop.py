"""A virtual desktop and a person at it.

The eyes are the accessibility bus, on which Qt tells every widget's kind, name, text, state and place on the screen, as
it does for a screen reader; the hands are X's own mouse and keyboard events. So a test names what a person would look
for, and no position is written down anywhere.
"""

import functools
import itertools
import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
from screen import Screen, ask  # noqa: E402

PATIENCE = 30  # seconds until a condition counts as never coming true; sanitizers and busy machines are slow


class NotSeen(AssertionError):
    """What a person waited for did not come to the screen."""


def wait_for(condition, what, seconds=PATIENCE):
    """The first result of `condition` that is true. What vanishes while it is looked at counts as not there yet.

    `what` names what is waited for, or is a function that says it once the wait was in vain.
    """
    until = time.monotonic() + seconds
    while True:
        while GLib.MainContext.default().iteration(False):
            pass  # delivers what the accessibility bus has to tell
        try:
            result = condition()
        except GLib.Error:
            result = None
        if result:
            return result
        if time.monotonic() > until:
            raise NotSeen(f"waited {seconds} s for {what() if callable(what) else what}")
        time.sleep(0.02)


class Desktop(Screen):
    """A screen with a window manager and a session bus of its own, from `open` to `close`.

    The accessibility library keeps to the first bus that it met, so a process has one desktop at most.
    """

    def __init__(self, folder):
        super().__init__()
        self.folder = folder
        self.menus = []
        self.listener = None

    def open(self, managed=True):
        runtime = os.path.join(self.folder, "run")
        os.makedirs(runtime, mode=0o700)
        for name in ("DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS"):
            os.environ.pop(name, None)
        os.environ.update(XDG_RUNTIME_DIR=runtime, NO_AT_BRIDGE="0", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        super().open(managed)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.start(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--nosyslog", "--print-address=1"], first_line=True)
        # What was remembered could be out of date.
        Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
        # Menus are no window's children: they are only told of as they open.
        self.listener = Atspi.EventListener.new(self._on_showing)
        self.listener.register("object:state-changed:showing")

    def copy(self, text):
        """Has a text in the clipboard, as if copied from another program."""
        holder = subprocess.Popen(["xclip", "-selection", "clipboard", "-in", "-quiet"], stdin=subprocess.PIPE,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.processes.append(holder)
        holder.stdin.write(text.encode())
        holder.stdin.close()
        wait_for(lambda: ask("xclip", "-selection", "clipboard", "-out") == text, "the text in the clipboard")

    def _on_showing(self, event):
        try:
            if event.source.get_role_name() == "popup menu" and event.detail1:
                self.menus.append(Widget(event.source))
        except GLib.Error:
            pass  # it is gone again already

    def menu(self):
        """The menu that is open, as soon as there is one."""
        return wait_for(lambda: next((m for m in reversed(self.menus) if m.showing), None), "a menu")


def visible_windows(pid):
    """The X windows of a process that are on the screen, lists and menus that dropped down included."""
    return ask("xdotool", "search", "--onlyvisible", "--pid", str(pid)).split()


def active_window():
    return ask("xdotool", "getactivewindow").strip()


def hands(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True, stdout=subprocess.DEVNULL)


def press(*keys):
    hands("key", "--clearmodifiers", *keys)


def type_text(text):
    hands("type", "--delay", "2", "--", text)


class Widget:
    """One widget, item or window as a person sees it."""

    def __init__(self, accessible):
        self.accessible = accessible

    @functools.cached_property
    def kind(self):
        return self.accessible.get_role_name()

    @property
    def name(self):
        return self.accessible.get_name()

    @property
    def text(self):
        """What is written in a field."""
        return Atspi.Text.get_text(self.accessible, 0, -1)

    @property
    def place(self):
        extents = self.accessible.get_extents(Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def _is(self, state):
        return self.accessible.get_state_set().contains(state)

    @property
    def showing(self):
        return self._is(Atspi.StateType.SHOWING)

    @property
    def enabled(self):
        return self._is(Atspi.StateType.ENABLED)

    @property
    def focused(self):
        return self._is(Atspi.StateType.FOCUSED)

    @property
    def selected(self):
        return self._is(Atspi.StateType.SELECTED)

    @property
    def active(self):
        return self._is(Atspi.StateType.ACTIVE)

    @property
    def editable(self):
        return self._is(Atspi.StateType.EDITABLE)

    def children(self):
        found = (self.accessible.get_child_at_index(i) for i in range(self.accessible.get_child_count()))
        return [Widget(child) for child in found if child]

    def walk(self):
        """This widget and all below it, in the order of the screen reader. Passed over: what is not on the screen, and
        what is inside a drop-down list other than this one."""
        yield self
        for child in self.children():
            if not child.showing:
                continue
            if child.kind == "combo box":
                yield child
            else:
                yield from child.walk()

    def _matching(self, kind, name):
        return (w for w in self.walk() if w.kind == kind and (name is None or w.name == name))

    def all(self, kind, name=None):
        return list(self._matching(kind, name))

    def find(self, kind, name=None, nth=0):
        """The nth widget of that kind and name below this one, as soon as it is there."""
        what = f"a {kind}" + (f" named {name!r}" if name is not None else "") + (f" (no. {nth})" if nth else "")
        return wait_for(lambda: next(itertools.islice(self._matching(kind, name), nth, None), None), what)

    def entries(self):
        """All entries of a drop-down list, whether it is open or not."""
        return [entry.name for part in self.children() if part.kind == "list" for entry in part.children()]

    def names(self, kind):
        return [w.name for w in self.all(kind)]

    def _middle(self):
        # A window that was just shown still moves, so the place must hold still for a moment.
        def still():
            before = self.place
            time.sleep(0.04)
            return before if before == self.place and before[2] > 0 else None

        x, y, width, height = wait_for(still, f"{self.name!r} to stand still")
        return x + min(width // 2, 120), y + height // 2

    def click(self, button=1):
        hands("mousemove", *self._middle(), "click", button)

    def double_click(self):
        hands("mousemove", *self._middle(), "click", "--repeat", 2, "--delay", 40, 1)

    def right_click(self):
        self.click(3)

    def fill(self, text):
        """Replaces what is written in a field, as a person does: click, select all, type."""
        self.click()
        wait_for(lambda: self.focused, f"the focus on {self.name!r}")
        press("ctrl+a")
        if text:
            type_text(text)
        else:
            press("Delete")
        wait_for(lambda: self.text == text, lambda: f"{text!r} in {self.name!r}, which holds {self.text!r}")

    def choose(self, text):
        """Chooses an entry of a drop-down list: opens it, goes down to the entry, confirms."""
        pid = self.accessible.get_process_id()
        index = self.entries().index(text)
        before = len(visible_windows(pid))
        self.click()
        wait_for(lambda: len(visible_windows(pid)) > before, f"the list of {self.name!r} to drop down")
        press("Home")
        if index > 0:
            hands("key", "--repeat", index, "--delay", 2, "Down")
        press("Return")
        wait_for(lambda: self.name == text, f"{text!r} to be chosen")

    def describe(self, depth=0):
        """The widgets below, for a person who wonders why a test saw nothing."""
        lines = ["  " * depth + f"{self.kind} {self.name!r} {self.place}" + ("" if self.enabled else " disabled")]
        for child in self.children():
            if child.showing:
                lines += child.describe(depth + 1)
        return lines


def windows_of(pid):
    """The top-level windows and menus of a process that are on the screen."""
    desktop = Atspi.get_desktop(0)
    found = []
    for i in range(desktop.get_child_count()):
        try:
            application = desktop.get_child_at_index(i)
            if application and application.get_process_id() == pid:
                found += [w for w in Widget(application).children() if w.showing]
        except GLib.Error:
            continue
    return found
