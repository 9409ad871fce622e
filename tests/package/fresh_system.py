#!/usr/bin/python3
"""The Debian package from its first installation on a fresh system to its purge, in the hands of an ordinary user.

    fresh_system.py ROOT OLDER.deb NEWER.deb PICTURES

ROOT is a fresh Debian in a folder, which this changes; PICTURES is the folder for the window's pictures. The screen and the
hands are this machine's; what they work on runs in ROOT, which shares /tmp. tools/package.sh starts this as user 1000, as
those on a session bus must be one user, but with the power to start programs as root.
"""

import configparser
import hashlib
import os
import pathlib
import shlex
import shutil
import stat
import subprocess
import sys
import tempfile
import time
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "end_to_end"))

import tool  # noqa: E402
from desktop import Desktop, ask, hands, press, type_text, wait_for, windows_of  # noqa: E402
from screen import whole_picture, window_picture  # noqa: E402

NAME = "coordinate-system-manager"
PROGRAM = "coordsystem_manager"
MODELS = f"/var/lib/{NAME}/GeoidData"
USER, COLLEAGUE = 1000, 1001
HOME = "/home/surveyor"
ELLIPSOID = "Plant 1 & 2"


def digest(content):
    return hashlib.sha256(content).hexdigest()


def become_root():
    os.setresuid(0, 0, 0)


class System:
    """The fresh Debian. Its paths are written as they are inside; `outside` gives them as this process sees them."""

    def __init__(self, root):
        self.root = root

    def outside(self, path):
        return self.root + path

    def enter(self, uid, folder):
        """Before a program starts: puts it into the system for good, as that user. With root's id go its powers."""
        become_root()
        os.chroot(self.root)
        os.setgroups([])
        os.setresgid(uid, uid, uid)
        os.setresuid(uid, uid, uid)
        os.chdir(folder)

    def start(self, command, uid, environment, folder=HOME, **streams):
        path = {"PATH": "/usr/local/bin:/usr/bin:/bin" + (":/usr/sbin:/sbin" if uid == 0 else "")}
        return subprocess.Popen(command, env={**path, **environment}, preexec_fn=lambda: self.enter(uid, folder),
                                stdin=subprocess.DEVNULL, **streams)

    def run(self, *command, uid=0):
        """The exit code of a command, and all that it said."""
        environment = {"DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C.UTF-8", "HOME": "/root" if uid == 0 else HOME}
        process = self.start(command, uid, environment, "/", stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        said = process.communicate()[0].decode()
        return process.returncode, said

    def do(self, *command):
        code, said = self.run(*command)
        assert code == 0, f"{command} ended with {code}: {said}"
        return said

    def apt(self, *arguments):
        return self.do("apt-get", "-q", "-y", "--no-install-recommends", *arguments)

    def install(self, deb):
        """A package's file, put where apt in there can read it, with what it depends on."""
        return self.apt("install", "--reinstall", "/var/tmp/" + os.path.basename(deb))

    def files(self):
        """Every path but the records of what was installed when, what is the users' and what is mounted."""
        left_out = ["/var/lib/dpkg", "/var/lib/apt", "/var/cache", "/var/log", "/home", "/proc", "/tmp", "/var/tmp", "/dev"]
        prunes = [word for path in left_out for word in ("-path", path, "-prune", "-o")]
        return set(self.do("find", "/", *prunes, "-print").splitlines())

    def package_files(self):
        """What the package put there, but for folders."""
        paths = self.do("dpkg", "-L", NAME).split()
        return [path for path in paths if os.path.islink(self.outside(path)) or os.path.isfile(self.outside(path))]


class PackagedTool(tool.Tool):
    """The tool as the package has installed it, started by its user in one of the two ways."""

    def __init__(self, desktop, system, folder):  # pylint: disable=super-init-not-called; nothing is installed here
        self.desktop = desktop
        self.system = system
        self.command_line = None
        self.home = system.outside(HOME)
        self.data = os.path.join(self.home, "Documents", "ArvelaGnss", "Data")
        self.geoid_data = system.outside(MODELS)
        self.process = None
        self.errors = open(os.path.join(folder, "stderr.txt"), "w+", encoding="utf-8", errors="replace")

    def launch(self, language="C"):
        passed = ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON")
        environment = {name: os.environ[name] for name in passed}
        environment.update(HOME=HOME, USER="surveyor", LANG=language + ".UTF-8")
        return self.system.start(self.command_line, USER, environment, stdout=self.errors, stderr=self.errors)

    def start_from_terminal(self):
        self.command_line = ["/bin/bash", "-l", "-c", "exec " + PROGRAM]
        self.start()

    def start(self):
        super().start()
        with open(f"/proc/{self.process.pid}/status", encoding="ascii") as file:
            status = dict(line.rstrip("\n").split(":\t", 1) for line in file)
        assert (status["Uid"].split(), int(status["CapEff"], 16)) == ([str(USER)] * 4, 0), "the user has no powers"

    def start_from_menu(self):
        """As a desktop does: by the line Exec of the entry, once the program of TryExec is there."""
        entry = self.menu_entry()
        assert self.system.run("which", entry["TryExec"], uid=USER)[0] == 0, "what the menu's entry starts is not there"
        self.command_line = shlex.split(entry["Exec"])
        self.start()

    def menu_entry(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(self.system.outside(f"/usr/share/applications/{PROGRAM}.desktop"), encoding="utf-8")
        return entry["Desktop Entry"]


class FreshSystem(unittest.TestCase):
    system = older = newer = pictures = desktop = folder = None

    def setUp(self):
        self.tool = PackagedTool(self.desktop, self.system, self.folder)
        self.addCleanup(self.tool.close)
        self.addCleanup(self.tell_of_failure)
        self.began = time.monotonic()

    def tell_of_failure(self):
        result = self._outcome.result
        if result.failures or result.errors:
            whole_picture(os.path.join(self.pictures, "failed.png"))
            for window in windows_of(self.tool.process.pid) if self.tool.process else []:
                print("\n".join(window.describe()), file=sys.stderr)
            print(self.tool.told(), file=sys.stderr)

    def done(self, step):
        print(f"{time.monotonic() - self.began:6.1f} s  {step}", flush=True)

    # What a user does

    def semi_major_axis(self):
        return self.tool.tab("Ellipsoid").find("text", "Semi-major axis a")

    def edit_and_save(self, figure):
        system = self.tool.items()[4]
        self.tool.item(system).click()
        wait_for(lambda: self.tool.item(system).selected, f"{system!r} to be selected")
        self.semi_major_axis().fill(figure)
        wait_for(lambda: self.tool.save_enabled, "Save to be enabled")
        self.tool.save()

    def see_edit(self, figure):
        self.tool.item(self.tool.items()[4]).click()
        wait_for(lambda: self.semi_major_axis().text == figure, "the saved edit")

    def look_up_in_registry(self):
        """PROJ's database is found, and the module that reads it."""
        self.tool.tab("Definition").find("push button", "From registry...").click()
        dialog = self.tool.dialog("From registry")
        type_text("british national grid")
        dialog.find("table cell", "27700")
        press("Escape")
        self.tool.gone("From registry")

    def see_languages(self):
        """The texts in other languages are found: the window bears the name that the menu's entry promises."""
        for language in ("de", "es", "fr", "zh_CN"):
            name = self.tool.menu_entry()[f"Name[{language}]"]
            self.assertNotEqual(name, tool.TITLE)
            process = self.tool.launch(language)
            wait_for(lambda: name in [w.name for w in windows_of(process.pid)], f"the window {name!r}")
            process.kill()
            process.wait()

    def add_ellipsoid(self):
        self.tool.command(self.tool.item(tool.ROOT), "Edit Ellipsoid")
        self.tool.dialog("Edit Ellipsoid", "Add").find("push button", "Add").click()
        entry = self.tool.dialog("Edit Ellipsoid", "OK")
        entry.find("combo box").find("text").fill(ELLIPSOID)
        entry.find("text", "ellipsoid a(m)").fill("6378200")
        entry.find("text", "ellipsoid f").fill("300")
        entry.find("push button", "OK").click()
        self.tool.gone("Edit Ellipsoid", "OK")
        press("Escape")
        self.tool.gone("Edit Ellipsoid")

    def add_geoid(self, name):
        """Adds a geoid model whose file is NAME.ggf in the user's home; the digest of its content."""
        content = os.urandom(200_000)
        with open(self.system.outside(f"{HOME}/{name}.ggf"), "wb") as model:
            model.write(content)
        self.tool.command(self.tool.item(tool.ROOT), "AddGeoid")
        self.tool.dialog("New Geoid", "Add").find("push button", "Add").click()
        entry = self.tool.dialog("New Geoid", "OK")
        entry.find("combo box", nth=0).find("text").fill(name)
        entry.find("push button", "Browser").click()
        self.tool.dialog("selete file").find("text", "File name:").fill(f"{HOME}/{name}.ggf")
        press("Return")
        self.tool.gone("selete file")
        self.tool.dialog("New Geoid", "OK").find("push button", "OK").click()
        self.tool.gone("New Geoid", "OK")
        press("Escape")
        self.tool.gone("New Geoid")
        return digest(content)

    def see_custom(self, command, title, nth, names):
        """A dialog lists these names of the user's own."""
        self.tool.command(self.tool.item(tool.ROOT), command)
        listed = self.tool.dialog(title, "Add")
        entries = listed.all("combo box")[nth].entries()
        self.assertTrue(set(names) <= set(entries), f"{names} in {entries}")
        press("Escape")
        self.tool.gone(title)

    def take_picture(self, name):
        hands("mousemove", 1, 1)
        window = ask("xdotool", "search", "--onlyvisible", "--name", f"^{tool.TITLE}$").split()[0]
        self.assertIn(f'"{self.tool.menu_entry()["StartupWMClass"]}"', ask("xprop", "-id", window, "WM_CLASS"),
                      "a desktop must know whose window it is")
        window_picture(window, os.path.join(self.pictures, name + ".png"))

    def leave(self):
        self.assertEqual(self.tool.exit(), 0)
        # A dialog's window may be gone while Qt still asks where it is.
        told = [line for line in self.tool.told().splitlines() if "XCB error: 3 (BadWindow)" not in line]
        self.assertEqual(told, [], "the tool has nothing to complain of")

    # What must be so

    def models(self):
        """The geoid models there are."""
        return {path.name: digest(path.read_bytes()) for path in pathlib.Path(self.tool.geoid_data).iterdir()}

    def users_files(self):
        """The user's catalogue, ellipsoids and geoid entries."""
        found = {path: digest(path.read_bytes()) for path in pathlib.Path(self.tool.data).rglob("*") if path.is_file()}
        self.assertGreaterEqual(len(found), 3)
        return found

    def assert_installed(self, deb):
        version = self.system.do("dpkg-query", "-W", "-f=${Version} ${db:Status-Status}", NAME)
        self.assertEqual(version, os.path.basename(deb).split("_")[1] + " installed")
        self.assert_models_folder(0o1777, 0)

    def assert_models_folder(self, mode, group):
        there = os.stat(self.tool.geoid_data)
        self.assertEqual((oct(stat.S_IMODE(there.st_mode)), there.st_uid, there.st_gid), (oct(mode), 0, group))

    def assert_no_file_left(self, files):
        left = [path for path in files if os.path.lexists(self.system.outside(path))]
        self.assertEqual(left, [])

    def assert_colleague_can_only_add(self, model):
        """Another user adds models, and neither removes, renames nor changes the first one's."""
        path = f"{MODELS}/{model}"
        for command in (f"rm -f {path}", f"mv {path} {path}.old", f"echo x >{path}", f"mv -f /dev/null {path}",
                        f"touch /usr/libexec/{NAME}/etc/Vornhalde/data/x"):
            self.assertNotEqual(self.system.run("sh", "-c", command, uid=COLLEAGUE)[0], 0, command)
        self.assertEqual(self.system.run("sh", "-c", f"cmp {path} {path} && touch {MODELS}/theirs.vgf && "
                                         f"rm {MODELS}/theirs.vgf", uid=COLLEAGUE), (0, ""))

    def test_life_of_the_package(self):
        self.system.install(self.older)
        self.assert_installed(self.older)
        self.done("installed with its dependencies")

        self.tool.start_from_terminal()
        self.look_up_in_registry()
        self.edit_and_save("6378137.25")
        self.add_ellipsoid()
        models = {"Valley.ggf": self.add_geoid("Valley")}
        self.take_picture("from-terminal")
        self.leave()
        self.assertEqual(self.models(), models)
        self.assert_colleague_can_only_add("Valley.ggf")
        data = self.users_files()
        self.done("used from a terminal")

        self.system.install(self.newer)
        self.assert_installed(self.newer)
        self.assertEqual((self.models(), self.users_files()), (models, data))
        self.done("upgraded")

        icon = self.tool.menu_entry()["Icon"]
        for size in (16, 22, 24, 32, 48, 64, 128, 256, 512):
            drawn = self.system.outside(f"/usr/share/icons/hicolor/{size}x{size}/apps/{icon}.png")
            self.assertEqual(ask("identify", "-format", "%wx%h", drawn), f"{size}x{size}")
        self.assertTrue(os.path.exists(self.system.outside(f"/usr/share/icons/hicolor/scalable/apps/{icon}.svg")))
        self.tool.start_from_menu()
        self.see_edit("6378137.25")
        self.see_custom("Edit Ellipsoid", "Edit Ellipsoid", 0, [ELLIPSOID])
        self.see_custom("AddGeoid", "New Geoid", 0, ["Valley"])
        models["Ridge.ggf"] = self.add_geoid("Ridge")
        self.edit_and_save("6378137.5")
        self.take_picture("from-menu")
        self.leave()
        self.see_languages()
        self.assertEqual(self.models(), models)
        data = self.users_files()
        self.done("used from the menu")

        files = self.system.package_files()
        self.assertIn(f"/usr/bin/{PROGRAM}", files)
        self.system.apt("remove", NAME)
        self.assert_no_file_left(files)
        self.assertEqual((self.models(), self.users_files()), (models, data))
        self.done("removed")

        self.system.install(self.newer)
        self.assert_installed(self.newer)
        self.tool.start_from_terminal()
        self.see_edit("6378137.5")
        self.see_custom("AddGeoid", "New Geoid", 0, ["Valley", "Ridge"])
        self.leave()
        self.assertEqual(self.models(), models)
        self.done("installed again, and used")

        # Who may add models is the administrator's to say.
        self.system.do("dpkg-statoverride", "--update", "--add", "root", "staff", "2775", MODELS)
        self.system.install(self.newer)
        self.assert_models_folder(0o2775, 50)
        self.system.do("dpkg-statoverride", "--remove", MODELS)

        self.system.apt("purge", NAME)
        self.assert_no_file_left(files)
        self.assertEqual((self.models(), self.users_files()), (models, data), "a purge leaves what is the users'")
        self.system.do("rm", "-r", f"/var/lib/{NAME}")
        bare = self.system.files()
        self.system.install(self.newer)
        self.system.apt("purge", NAME)
        self.assertEqual(self.system.files() ^ bare, set(), "nothing is left where nobody added a model")
        self.assertFalse([path for path in bare if NAME in path or PROGRAM in path])
        self.done("purged")


def prepare(system, packages):
    """Lets two users in, puts the packages where apt can read them, and brings apt up to date."""
    for uid, name in ((USER, "surveyor"), (COLLEAGUE, "colleague")):
        system.do("useradd", "--create-home", "--shell", "/bin/bash", "--uid", str(uid), name)
    for package in packages:
        shutil.copy(package, system.outside("/var/tmp"))
    system.do("apt-get", "-q", "update")


def main(root, older, newer, pictures):
    began = time.monotonic()
    system = System(root)
    prepare(system, (older, newer))
    print(f"{time.monotonic() - began:6.1f} s  prepared", flush=True)
    FreshSystem.system, FreshSystem.older, FreshSystem.newer, FreshSystem.pictures = system, older, newer, pictures
    with tempfile.TemporaryDirectory(prefix="package-", dir="/tmp") as folder:
        os.environ.update(HOME=folder)
        FreshSystem.folder = folder
        FreshSystem.desktop = Desktop(folder)
        try:
            FreshSystem.desktop.open()
            program = unittest.main(module="__main__", argv=[sys.argv[0]], exit=False)
        finally:
            FreshSystem.desktop.close()
    sys.exit(not program.result.wasSuccessful())


if __name__ == "__main__":
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    main(*sys.argv[1:])
