#!/usr/bin/python3
"""How fast the tool is, as one table: each figure beside what can't be done without, measured by turns in the same run.

    bench/speed/speed.py [BUILD FOLDER, default build/release] [ROWS, a regular expression]

Every measurement is a process of its own. A figure is the median of its runs; the spread goes from the first to the third
quartile. Ratios are made run by run, so that what else the machine does touches both sides.
"""

import glob
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass

sys.dont_write_bytecode = True
ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
sys.path[:0] = [os.path.join(ROOT, "tools"), os.path.join(ROOT, "bench", "startup")]
from screen import Screen  # noqa: E402
from startup import measure  # noqa: E402

SYSTEMS = 100000
DATA = "Documents/ArvelaGnss/Data"


@dataclass
class Row:
    title: str
    unit: str
    target: float  # of the ratio; of the measured figure itself where there is no reference
    measured: list
    reference: list = None
    beside: str = "-"  # what the reference is

    def line(self):
        """The row of the table, in Markdown."""
        values, text = self.measured, "-"
        if self.reference:
            values = [one / other for one, other in zip(self.measured, self.reference)]
            text = f"{self.beside}: {statistics.median(self.reference):.1f} {self.unit}"
        low, middle, high = statistics.quantiles(values, method="inclusive")
        form, unit = (".2f", "") if self.reference else (".1f", " " + self.unit)
        return (f"| {self.title} | {statistics.median(self.measured):.1f} {self.unit} | {text} "
                f"| {middle:{form}} ({low:{form}} to {high:{form}}) | {self.target:g}{unit} "
                f"| {'reached' if middle <= self.target else '**missed**'} |")


def by_turns(runs, *sides):
    """What the sides give, run by run; the first run, which warms the disk's cache up, is left out."""
    results = [[side() for side in sides] for _ in range(runs + 1)][1:]
    return [list(result) for result in zip(*results)]


class Speed:
    """All measurements of one build."""

    def __init__(self, build, folder):
        self.build = build
        self.files = os.path.join(folder, "files")
        self.large = os.path.join(folder, "large")
        self.on_disk = tempfile.mkdtemp(dir=build)
        self.empty = os.path.join(folder, "empty")
        for path in self.files, self.large, self.empty:
            os.makedirs(path)

    def close(self):
        shutil.rmtree(self.on_disk)

    def run(self, name, *arguments):
        """The numbers that a program of bench/speed prints."""
        program = os.path.join(self.build, "benchmarks", "bench_speed_" + name)
        done = subprocess.run([program, *arguments], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
        if done.returncode:
            sys.exit(f"{name} {' '.join(arguments)[:80]} failed: {done.stderr}")
        return [float(word) for word in done.stdout.split()]

    def duration(self, name, *arguments):
        """Milliseconds from a program's start to its end."""
        started = time.perf_counter()
        self.run(name, *arguments)
        return (time.perf_counter() - started) * 1000

    def large_catalogue(self):
        """The data folder of a home whose catalogue is a large one."""
        data = os.path.join(self.large, DATA)
        if not os.path.exists(data):
            os.makedirs(data)
            self.run("catalogue", "make", data, str(SYSTEMS))
        return data

    def wkt_files(self):
        """A file to warm up with, and 500 more."""
        if not os.listdir(self.files):
            self.run("import", "files", self.files, "501")
        return sorted(glob.glob(os.path.join(self.files, "*")))

    def starts(self, runs, home, *sides):
        """What `sides` give by turns, each called with a function that starts a program with that home: milliseconds to
        its window, MiB of its own."""
        screen = Screen()
        screen.open(managed=False)
        environment = {**os.environ, "HOME": home, "TMPDIR": home, "XDG_RUNTIME_DIR": home}
        watch = subprocess.Popen(["stdbuf", "-oL", "xev", "-root", "-event", "substructure"], env=environment,
                                 stdout=subprocess.PIPE, text=True)

        def start(name):
            seconds, memory = measure(os.path.join(self.build, "bin", name), environment, watch.stdout)
            return seconds * 1000, memory

        try:
            return by_turns(runs, *[lambda side=side: side(start) for side in sides])
        finally:
            watch.terminate()
            watch.wait()
            screen.close()

    def start(self):
        tool, empty = self.starts(21, self.empty, lambda start: start("coordsystem_manager"),
                                  lambda start: start("bench_startup_empty_window"))
        for index, title, unit in (0, "start to the shown window, starter catalogue", "ms"), (1, "its private memory", "MiB"):
            yield Row(title, unit, 1.4, [one[index] for one in tool], [one[index] for one in empty], "an empty QWidget")

    def parse(self, data):
        return self.run("catalogue", "parse", data)[0]

    def start_large(self):
        data = self.large_catalogue()
        tool, parse = self.starts(7, self.large, lambda start: start("coordsystem_manager")[0],
                                  lambda start: self.parse(data))
        yield Row(f"start with {SYSTEMS:,} systems, tree included", "ms", 2.0, tool, parse, "pugixml parsing its file")

    def load(self):
        data = self.large_catalogue()
        load, parse = by_turns(9, lambda: self.run("catalogue", "load", data)[0], lambda: self.parse(data))
        yield Row(f"load of {SYSTEMS:,} systems", "ms", 1.4, load, parse, "pugixml parsing its file")

    def save(self):
        for title, folder in ("in memory", os.path.join(self.empty, "saved")), ("on the disk", os.path.join(self.on_disk, "saved")):
            shutil.copytree(self.large_catalogue(), folder)
            save, write = by_turns(7, lambda: self.run("catalogue", "save", folder)[0],
                                   lambda: self.run("catalogue", "write", folder)[0])
            yield Row(f"save of {SYSTEMS:,} systems {title}", "ms", 1.5, save, write, "writing its bytes, with fsync")
            shutil.rmtree(folder)

    def memory(self):
        folder = os.path.join(self.empty, "memory")
        shutil.copytree(self.large_catalogue(), folder)
        size, held, peak = zip(*[[one / 1e6 for one in self.run("catalogue", "memory", folder)] for _ in range(3)])
        shutil.rmtree(folder)
        yield Row(f"memory with {SYSTEMS:,} systems loaded", "MB", 2.0, held, size, "its file")
        yield Row("memory at most in a save of them", "MB", 1.2, peak, held, "loaded")

    def first_import(self):
        file = self.wkt_files()[0]
        chosen, cold, alone = by_turns(11, lambda: self.run("window", "first", file)[0],
                                       lambda: self.run("import", "first", file)[0],
                                       lambda: self.duration("gdal", file) - self.duration("nothing"))
        linked = "a program linked to PROJ and GDAL"
        yield Row("first import, from the file's choice in the dialog on, tree rebuilt", "ms", 1.1, chosen, alone, linked)
        yield Row("first import, the module loaded only then", "ms", 1.1, cold, alone, linked)

    def registry(self):
        opened, slowest = zip(*[self.run("window", "registry") for _ in range(5)])
        yield Row("registry list, first time", "ms", 100, opened)
        yield Row("registry list, slowest letter typed", "ms", 8, slowest)

    def click(self):
        runs = [self.run("window", "clicks") for _ in range(5)]
        yield Row("click on a system until it is painted, every tab open, slowest tab", "ms", 8, [max(run[::2]) for run in runs])
        yield Row("longest pause while the tab finds out more of it", "ms", 50, [max(run[1::2]) for run in runs])

    def check(self):
        yield Row('click on "Check", first time, the mouse at the tabs for 0.1 s', "ms", 50, [self.run("window", "tab", "Check")[0] for _ in range(5)])

    def imports(self):
        files = self.wkt_files()
        tool, alone = by_turns(5, lambda: self.run("window", "import", *files)[0], lambda: self.run("gdal", *files)[0])
        yield Row("500 files imported, tree rebuilt, progress shown", "ms", 1.1, tool, alone, "GDAL alone")


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as lines:
        model = next(line.split(":")[1].strip() for line in lines if line.startswith("model name"))
    return f"{os.cpu_count()} cores, {model}, load {os.getloadavg()[0]:.1f} at the start"


def main():
    build = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else "build/release")
    wanted = re.compile(sys.argv[2] if len(sys.argv) > 2 else "")
    measurements = ["start", "start_large", "load", "save", "memory", "first_import", "registry", "click", "check", "imports"]
    print(machine(), "\n\n| what | measured | beside | ratio or time (spread) | target | |\n|---|---|---|---|---|---|")
    # A disk in memory: what the tool's own work costs, without the disk's moods.
    with tempfile.TemporaryDirectory(dir="/dev/shm" if os.path.isdir("/dev/shm") else None) as folder:
        speed = Speed(build, folder)
        try:
            for name in measurements:
                if wanted.search(name):
                    for row in getattr(speed, name)():
                        print(row.line(), flush=True)
        finally:
            speed.close()


if __name__ == "__main__":
    main()
