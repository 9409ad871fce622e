#!/usr/bin/python3
"""A virtual screen with a window manager, and pictures of windows on it.

    tools/screen.py PICTURE.png PROGRAM [ARGUMENTS...]

shows a program on a screen of its own, saves a picture of its window, and ends it.
"""

import os
import random
import subprocess
import sys
import tempfile
import time


def ask(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False).stdout


def await_true(condition, what, seconds=30):
    until = time.monotonic() + seconds
    while not (result := condition()):
        if time.monotonic() > until:
            raise TimeoutError(f"waited {seconds} s for {what}")
        time.sleep(0.05)
    return result


class Screen:
    """An X server, and a window manager where it is wanted, from `open` to `close`; DISPLAY is set meanwhile."""

    def __init__(self):
        self.processes = []

    def open(self, managed=True):
        # The server would start anew when its first client, a mere question, leaves: the window manager would be lost.
        command = "Xvfb -displayfd 1 -screen 0 1280x1024x24 -dpi 96 -nolisten tcp -noreset"
        os.environ["DISPLAY"] = ":" + self.start(command.split(), first_line=True)
        os.environ.pop("WAYLAND_DISPLAY", None)
        if managed:
            self.start(["openbox", "--sm-disable"])
            await_true(lambda: "window id" in ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "the window manager")

    def start(self, command, first_line=False):
        """Starts what shall live as long as the screen; gives the first line that it prints."""
        output = subprocess.PIPE if first_line else subprocess.DEVNULL
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.DEVNULL)
        self.processes.append(process)
        return process.stdout.readline().decode().strip() if first_line else None

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
            if process.stdout:
                process.stdout.close()
        self.processes.clear()


def whole_picture(path):
    subprocess.run(["import", "-window", "root", path], check=False)


def window_picture(window, path, *options):
    """What the place of the X window `window` shows, its frame included, once it holds still and holds more than a few
    colours. `options` are ImageMagick's for the picture."""
    with tempfile.TemporaryDirectory() as folder:
        shots = [os.path.join(folder, f"{i}.png") for i in (0, 1)]

        def still():
            for shot in shots:
                whole_picture(shot)
                # Never in step with a cursor that blinks.
                time.sleep(random.uniform(0.1, 0.6))
            return (not subprocess.run(["cmp", "-s", *shots], check=False).returncode
                    and int(ask("identify", "-format", "%k", shots[1])) > 16)

        await_true(still, "the window to be painted and to hold still")
        place = {name.strip(): value.strip() for name, _, value in
                 (line.partition(":") for line in ask("xwininfo", "-id", window).splitlines())}
        x, y, width, height = (int(place[name]) for name in
                               ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        frame = ask("xprop", "-id", window, "_NET_FRAME_EXTENTS").split("=")[1].split(",")
        left, right, top, bottom = (int(extent) for extent in frame)
        area = f"{width + left + right}x{height + top + bottom}+{x - left}+{y - top}"
        subprocess.run(["convert", shots[1], "-crop", area, "+repage", *options, path], check=True)


def main(path, *command):
    screen = Screen()
    program = None
    try:
        screen.open()
        with tempfile.TemporaryFile("w+") as said:
            program = subprocess.Popen(command, stdout=said, stderr=said)

            def window():
                if program.poll() is not None:
                    said.seek(0)
                    sys.exit(f"{command[0]} ended without showing a window: {said.read()}")
                return ask("xdotool", "search", "--onlyvisible", "--pid", str(program.pid)).split()[-1:]

            window_picture(await_true(window, "a window")[0], path)
    finally:
        if program:
            program.kill()
            program.wait()
        screen.close()


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
