#!/usr/bin/python3
"""The Windows program as a user has it: installed by its installer, in a window of Wine's, by mouse and by keyboard.

    end_to_end.py [PICTURES]      the folder for the pictures, build/pictures/windows unless it is named

Wine tells nothing of what a window shows, unlike the desktop of tests/end_to_end: so this goes by the keyboard, clicks where the
window's corners and the tab bar are, reads fields through the clipboard and the rest from what is saved. Exit code 0 when all holds.
"""

import contextlib
import os
import shutil
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree as xml

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
BUILD = os.path.join(ROOT, "build", "windows")
sys.path.insert(0, os.path.join(ROOT, "tools"))
from screen import Screen, ask, await_true, window_picture  # noqa: E402

TITLE = "Coordinate System Manager"
PLACE = r"C:\Programme\测量 CSM"  # no folder of the user's own, and in no code page but one
PATIENCE = 60  # seconds; Wine is slow to start

AUSTRIA = ('PROJCS["MGI / Austria M31",GEOGCS["MGI",DATUM["Militar-Geographische Institut",SPHEROID["Bessel 1841",'
           '6377397.155,299.1528128]],PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]],'
           'PROJECTION["Transverse_Mercator"],PARAMETER["latitude_of_origin",0],PARAMETER["central_meridian",13.3333333333333],'
           'PARAMETER["scale_factor",1],PARAMETER["false_easting",450000],PARAMETER["false_northing",-5000000],UNIT["metre",1]]')


def hands(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True, stdout=subprocess.DEVNULL)


def press(*keys):
    for key in keys:
        hands("key", "--clearmodifiers", key)
        time.sleep(0.15)


def type_text(text):
    hands("type", "--delay", "20", "--", text)
    time.sleep(0.3)


def clipboard(text=None):
    """What another program would paste, or with a text: what it has copied."""
    if text is None:
        return ask("xclip", "-selection", "clipboard", "-out")
    subprocess.run(["xclip", "-selection", "clipboard", "-in"], input=text.encode(), check=True,
                   stdout=subprocess.DEVNULL)
    return text


class Window:
    """A window on the screen, by its title."""

    def __init__(self, title):
        self.id = await_true(lambda: self.find(title), f"the window {title!r}", PATIENCE)
        await_true(lambda: ask("xdotool", "getactivewindow").strip() == self.id, f"{title!r} to be active")
        time.sleep(1)  # until Wine has laid it out

    @staticmethod
    def find(title):
        return next(iter(ask("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()), None)

    def size(self):
        lines = dict(line.split("=") for line in ask("xdotool", "getwindowgeometry", "--shell", self.id).splitlines())
        return int(lines["WIDTH"]), int(lines["HEIGHT"])

    def click(self, x, y, button=1):
        """Negative ones are counted from the right or from the bottom."""
        width, height = self.size()
        hands("mousemove", "--window", self.id, x if x >= 0 else width + x, y if y >= 0 else height + y)
        time.sleep(0.2)
        hands("click", button)
        time.sleep(0.5)

    def is_gone(self):
        return self.id not in ask("xdotool", "search", "--onlyvisible", "--name", ".").split()


class Wine:
    """A Windows of its own, and the program installed in it."""

    def __init__(self, prefix):
        self.drive = os.path.join(prefix, "drive_c")
        self.installed = self.path(PLACE)
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith(("LC_", "LANGUAGE", "QT_", "WINE"))}
        self.environment.update(WINEPREFIX=prefix, WINEDEBUG="-all", LANG="C.UTF-8",
                                WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=")
        self.run("wineboot", "--init")
        fonts = os.path.join(self.drive, "windows", "Fonts")
        for folder in ("dejavu", "wqy"):
            shutil.copytree(os.path.join("/usr/share/fonts/truetype", folder), fonts, dirs_exist_ok=True)
        self.wait_for_all()

    def path(self, windows):
        return os.path.join(self.drive, *windows.split("\\")[1:])

    def start(self, *command):
        return subprocess.Popen(["/usr/lib/wine/wine64", *command], env=self.environment, cwd="/",
                                stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def run(self, *command):
        return self.start(*command).wait(300)

    def wait_for_all(self):
        subprocess.run(["/usr/lib/wine/wineserver64", "--wait"], env=self.environment, check=True)

    def registered(self, key):
        return self.run("reg", "query", key) == 0

    def tool(self):
        return self.start(PLACE + r"\bin\coordsystem_manager.exe")


def said(what):
    print(f"{time.strftime('%H:%M:%S')}  {what}", flush=True)


class Story:
    """What the user does, one after another; each step finds what the one before left."""

    def __init__(self, wine, pictures):
        self.wine = wine
        self.pictures = pictures
        self.documents = os.path.join(wine.drive, "users", os.environ.get("USER", "root"), "Documents")
        self.catalogue = os.path.join(self.documents, "ArvelaGnss", "Data", "CoordinateSystem_custom.vcs")
        self.process = None
        self.window = None

    def picture(self, window, name):
        window_picture(window.id, os.path.join(self.pictures, f"{name}.png"))
