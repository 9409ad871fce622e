#!/usr/bin/python3
"""The Windows program as a user has it: installed by its installer, in a window of Wine's, by mouse and by keyboard.

    end_to_end.py [PICTURES]      the folder for the pictures, build/pictures/windows unless it is named

Wine tells nothing of what a window shows, unlike the desktop of tests/end_to_end: so this goes by the keyboard, clicks where the
window's corners and the tab bar are, reads fields through the clipboard and the rest from what is saved. Exit code 0 when all holds.
"""

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
from screen import Screen, ask, await_true, whole_picture, window_picture  # noqa: E402

TITLE = "Coordinate System Manager"
PLACE = r"C:\Programme\测量 CSM"  # no folder of the user's own, and in no code page but one
UNINSTALL_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\CoordinateSystemManager"
PATIENCE = 60  # seconds; Wine is slow to start

AUSTRIA = ('PROJCS["MGI / Austria M31",GEOGCS["MGI",DATUM["Militar-Geographische Institut",SPHEROID["Bessel 1841",'
           '6377397.155,299.1528128]],PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]],'
           'PROJECTION["Transverse_Mercator"],PARAMETER["latitude_of_origin",0],PARAMETER["central_meridian",13.3333333333333],'
           'PARAMETER["scale_factor",1],PARAMETER["false_easting",450000],PARAMETER["false_northing",-5000000],UNIT["metre",1]]')

# What Windows has, and Wine would replace by the first that it finds.
FONTS = {"MS Shell Dlg": "DejaVu Sans", "MS Shell Dlg 2": "DejaVu Sans", "Segoe UI": "DejaVu Sans", "Tahoma": "DejaVu Sans",
         "Courier New": "DejaVu Sans Mono"}


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
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith(("LC_", "LANGUAGE", "QT_", "WINE"))}
        home = os.path.join(prefix, "home")
        for name in ("Desktop", "Documents"):  # which are the user's in Wine as well
            os.makedirs(os.path.join(home, name))
        self.environment.update(HOME=home, WINEPREFIX=prefix, WINEDEBUG="-all", LANG="C.UTF-8",
                                WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=")
        self.run("wineboot", "--init")
        fonts = os.path.join(self.drive, "windows", "Fonts")
        for folder in ("dejavu", "wqy"):
            shutil.copytree(os.path.join("/usr/share/fonts/truetype", folder), fonts, dirs_exist_ok=True)
        for font, other in FONTS.items():
            self.run("reg", "add", r"HKCU\Software\Wine\Fonts\Replacements", "/v", font, "/d", other, "/f")
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

    def asked(self, variable):
        """The value of a Windows variable."""
        said = subprocess.run(["/usr/lib/wine/wine64", "cmd", "/c", f"echo %{variable}%"], env=self.environment, check=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        return said.decode().strip()

    def end(self):
        subprocess.run(["/usr/lib/wine/wineserver64", "--kill"], env=self.environment, stderr=subprocess.DEVNULL,
                       check=False)
        self.wait_for_all()

    def tool(self):
        return self.start(PLACE + r"\bin\coordsystem_manager.exe")


class Story:
    """What a user does, one after another: each step finds what the one before left."""

    FIGURE = "6378137.25"
    IMPORTED = "MGI / Austria M31"
    MODEL = "model.ggf"

    def __init__(self, wine, pictures):
        self.wine = wine
        self.pictures = pictures
        self.documents = wine.path(wine.asked("USERPROFILE") + r"\Documents")
        self.catalogue = os.path.join(self.documents, "ArvelaGnss", "Data", "CoordinateSystem_custom.vcs")
        self.start_menu = wine.path(wine.asked("APPDATA") + r"\Microsoft\Windows\Start Menu\Programs")
        self.installed = {}
        self.process = None
        self.window = None

    def tell(self):
        for step in (self.install, self.edit, self.open_again, self.import_file, self.take_from_registry, self.draw_map,
                     self.uninstall):
            print(f"{time.strftime('%H:%M:%S')}  {step.__doc__}", flush=True)
            step()

    # The steps

    def install(self):
        """The installer, with no window, into a folder whose name no code page has"""
        setup = next(os.path.join(BUILD, "new", name) for name in os.listdir(os.path.join(BUILD, "new"))
                     if name.endswith("-setup.exe"))
        # The installer takes the rest of its command line for the folder, without quotes.
        code = self.wine.run("Z:" + setup, "/S", *("/D=" + PLACE).split())
        assert code == 0, f"the installer ended with {code}"
        assert os.path.exists(self.file("bin", "coordsystem_manager.exe")), os.listdir(self.wine.drive)
        assert os.path.exists(self.shortcut()), "no entry in the start menu"
        assert self.wine.registered(UNINSTALL_KEY), "nothing to uninstall it by"
        self.installed = self.installed_files()

    def edit(self):
        """Start, click, edit, save, close"""
        self.start()
        self.picture(self.window, "start")
        assert not os.path.exists(self.catalogue), "something is written before the user saves"
        self.click_row(2)
        self.tab_to("6378137")
        type_text(self.FIGURE)
        press("Return")
        self.picture(self.window, "edited")
        self.save_with(self.FIGURE)
        self.leave()

    def open_again(self):
        """Start again, with a second one that ends by itself"""
        self.start()
        self.click_row(2)
        self.tab_to(self.FIGURE)
        code = self.wine.tool().wait(PATIENCE)
        assert code == 0, f"the second one ended with {code}"
        assert self.process.poll() is None
        assert len(ask("xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$").split()) == 1, "there are two windows"

    def import_file(self):
        """Import of Documents\\测量\\Österreich M31.prj"""
        folder = os.path.join(self.documents, "测量")
        os.makedirs(folder)
        with open(os.path.join(folder, "Österreich M31.prj"), "w", encoding="utf-8") as file:
            file.write(AUSTRIA)
        self.click_row(1)
        press("Menu", "Down", "Return")
        dialog = Window("Selecte WKT file")
        clipboard(os.path.join(folder, "Österreich M31.prj").replace(self.wine.drive, "C:").replace("/", "\\"))
        press("ctrl+v")
        self.picture(dialog, "import")
        press("Return")
        await_true(dialog.is_gone, "the file dialog to close", PATIENCE)
        time.sleep(2)
        self.picture(self.window, "imported")
        self.save_with(self.IMPORTED)

    def take_from_registry(self):
        """The registry's dialog: British National Grid in the first system's place"""
        self.click_row(1)
        press("Right")  # the tree is folded after an import
        self.click_row(2)
        press("Tab")
        press("ctrl+shift+Tab")  # to the last tab
        self.window.click(-60, -94)
        dialog = Window("From registry")
        type_text("27700")
        time.sleep(1)
        self.picture(dialog, "registry")
        press("Return")
        await_true(dialog.is_gone, "the registry's dialog to close", PATIENCE)
        time.sleep(1)
        self.picture(self.window, "taken over")
        self.save_with("0.9996012717")

    def draw_map(self):
        """The map of the distortion"""
        press("ctrl+shift+Tab")
        self.picture(self.window, "check")
        self.window.click(379, 98)
        time.sleep(2)
        self.picture(self.window, "map")
        before, after = (int(ask("identify", "-format", "%k", self.path_of(name))) for name in ("check", "map"))
        assert after > before + 100, f"{after} colours, {before} without a map"

    def uninstall(self):
        """The uninstaller: a geoid model and the catalogue stay"""
        self.leave()
        assert self.installed_files() == self.installed, "the program has written into its own folder"
        model = self.file("etc", "Vornhalde", "data", "GeoidData", self.MODEL)
        with open(model, "w", encoding="utf-8") as file:
            file.write("a model")
        code = self.wine.run(PLACE + r"\uninstall.exe", "/S")
        assert code == 0, f"the uninstaller ended with {code}"
        self.wine.wait_for_all()
        left = self.installed_files()
        assert set(left) == {model}, left
        assert os.path.exists(self.catalogue)
        assert not os.path.exists(self.shortcut()) and not self.wine.registered(UNINSTALL_KEY)

    # What they are made of

    def file(self, *names):
        return os.path.join(self.wine.path(PLACE), *names)

    def installed_files(self):
        """Each with the time of its last change."""
        return {path: os.path.getmtime(path) for folder, _, names in os.walk(self.wine.path(PLACE))
                for path in (os.path.join(folder, name) for name in names)}

    def shortcut(self):
        return os.path.join(self.start_menu, TITLE + ".lnk")

    def start(self):
        self.process = self.wine.tool()
        self.window = Window(TITLE)

    def leave(self):
        press("alt+F4")
        question = Window("information")
        self.picture(question, "question")
        press("alt+y")
        code = self.process.wait(PATIENCE)
        assert code == 0, f"the tool ended with {code}"

    def click_row(self, row):
        self.window.click(120, 21 + 15 * row)

    def tab_to(self, figure):
        """Goes from field to field until one shows the figure, and selects it."""
        seen = []
        while len(seen) < 30:
            press("Tab")
            clipboard("-")
            press("ctrl+a", "ctrl+c")
            seen.append(clipboard())
            if seen[-1] == figure:
                return
        raise AssertionError(f"no field shows {figure}, only {seen}")

    def save_with(self, text):
        """Saves by the button, after which the catalogue holds the text."""
        self.window.click(-138, -27)

        def is_saved():
            if not os.path.exists(self.catalogue):
                return False
            with open(self.catalogue, encoding="utf-8") as file:
                return text in file.read()

        await_true(is_saved, f"{text!r} in the catalogue", PATIENCE)
        xml.parse(self.catalogue)

    def path_of(self, picture):
        return os.path.join(self.pictures, f"{picture}.png")

    def picture(self, window, name):
        window_picture(window.id, self.path_of(name))


def main(pictures):
    os.makedirs(pictures, exist_ok=True)
    screen = Screen()
    with tempfile.TemporaryDirectory(prefix="windows-") as folder:
        try:
            screen.open()
            wine = Wine(folder)
            try:
                Story(wine, pictures).tell()
            except (AssertionError, TimeoutError) as problem:
                whole_picture(os.path.join(pictures, "failed.png"))
                sys.exit(f"FAILED: {problem}; the screen is in {pictures}/failed.png")
            finally:
                wine.end()
        finally:
            screen.close()
    print("All of it holds.")


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else os.path.join(ROOT, "build", "pictures", "windows"))
