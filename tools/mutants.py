"""Plants the faults of a table one at a time, for tools/mutants.sh: mutants.py SOURCES FOLDER [FILTER].

A line of the table is: file, text before, text after, separated by tabs; "\\n" in a text is a line break, "#" starts a
comment. The text before stands in the file exactly once, else the row does not apply any more. FOLDER holds a copy of the
sources that may be spoilt, its build, and the results.
"""

import hashlib
import os
import re
import shutil
import subprocess
import sys
import time

TEST_TIMEOUT = 120  # seconds; a test that hangs has noticed
BUILD_TIMEOUT = 1200


class Row:
    def __init__(self, line):
        self.file, before, after = line.rstrip("\n").split("\t")
        self.before, self.after = (text.replace("\\n", "\n") for text in (before, after))
        self.key = hashlib.sha1(line.encode()).hexdigest()[:12]

    def __str__(self):
        return f"{self.file}: {self.before!r} -> {self.after!r}"


def table(path, pattern):
    with open(path, encoding="utf-8") as file:
        rows = [Row(line) for line in file if line.strip() and not line.startswith("#")]
    return [row for row in rows if re.search(pattern, str(row))]


class Builder:
    def __init__(self, tree, build):
        self.tree = tree
        self.build = build
        listed = subprocess.run(["ctest", "--test-dir", build, "-N", "-LE", "e2e"], stdout=subprocess.PIPE, text=True,
                                check=True).stdout
        self.tests = re.findall(r"Test +#\d+: (test_\S+)", listed)
        self.by_folder = {}
        for folder, _, names in os.walk(os.path.join(tree, "tests")):
            if "CMakeLists.txt" in names:
                added = re.search(r"add_room_test\((\w+)", content_of(os.path.join(folder, "CMakeLists.txt")).decode())
                if added:
                    self.by_folder[os.path.relpath(folder, os.path.join(tree, "tests"))] = added[1]

    def tests_of_room(self, file):
        """The room's own test program: it knows best, and is soonest built."""
        folder = os.path.relpath(os.path.dirname(file), "src")
        while folder and folder not in self.by_folder:
            folder = os.path.dirname(folder)
        return [self.by_folder[folder]] if folder else []

    def make(self, tests):
        return subprocess.run(["cmake", "--build", self.build, "-j", "2", "--target", *tests],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=BUILD_TIMEOUT,
                              check=False).returncode == 0

    def affected(self, since):
        """The tests that may see what was built since then: those linked anew, or all where what is loaded changed."""
        def is_new(*path):
            path = os.path.join(self.build, *path)
            return os.path.exists(path) and os.path.getmtime(path) >= since
        if is_new("lib", "libvorn_projection.so") or is_new("etc", "Vornhalde", "data", "CoordinateSystem.vcs"):
            return self.tests
        return [test for test in self.tests if is_new("tests", test)]

    def failing(self, tests):
        """The first tests that fail; none when all pass."""
        if not tests:
            return []
        run = subprocess.run(["ctest", "--test-dir", self.build, "-j", "2", "--timeout", str(TEST_TIMEOUT),
                              "--stop-on-failure", "-R", "^(" + "|".join(tests) + ")$"],
                             stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
        failed = re.findall(r"^\s+\d+ - (\S+) \(", run.stdout, re.MULTILINE)
        return failed if failed or run.returncode == 0 else ["?"]

    def judge(self, row):
        path = os.path.join(self.tree, row.file)
        if not os.path.exists(path):
            return "does not apply"
        with open(path, encoding="utf-8") as file:
            content = file.read()
        if content.count(row.before) != 1:
            return "does not apply"
        since = time.time() - 1
        with open(path, "w", encoding="utf-8") as file:
            file.write(content.replace(row.before, row.after))
        try:
            own = self.tests_of_room(row.file)
            if own and not self.make(own):
                return "does not build"
            failed = self.failing(own)
            if not failed:
                if not self.make(self.tests):
                    return "does not build"
                failed = self.failing([test for test in self.affected(since) if test not in own])
            return "killed by " + ", ".join(failed) if failed else "SURVIVES"
        finally:
            with open(path, "w", encoding="utf-8") as file:
                file.write(content)


def content_of(path):
    try:
        with open(path, "rb") as file:
            return file.read()
    except FileNotFoundError:
        return None


def copy_sources(sources, tree):
    """Makes `tree` hold what git knows of `sources`; files that are the same stay untouched, so that they are not built
    again. Returns a digest of all that the programs and tests are made of."""
    listed = subprocess.run(["git", "-C", sources, "ls-files", "-z"], stdout=subprocess.PIPE, check=True).stdout
    digest = hashlib.sha1()
    kept = set()
    for name in sorted(listed.decode().split("\0")[:-1]):
        content = content_of(os.path.join(sources, name))
        if content is None:
            continue
        path = os.path.join(tree, name)
        kept.add(path)
        if content != content_of(path):
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as file:
                file.write(content)
        if name.startswith(("src/", "tests/", "data/", "cmake/", "CMake")):
            digest.update(name.encode() + b"\0" + content)
    for folder, _, names in os.walk(tree):
        for path in (os.path.join(folder, name) for name in names):
            if path not in kept:
                os.remove(path)
    return digest.hexdigest()


def configure(tree, build):
    if os.path.exists(os.path.join(build, "build.ninja")):
        # A room's tests may have come or gone.
        subprocess.run(["cmake", build], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
        return
    launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
    # Compiled quickly rather than well; a fault may leave something unused.
    subprocess.run(["cmake", "-S", tree, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-g0",
                    *launcher], stdout=subprocess.DEVNULL, check=True)


def known_results(path, state):
    """What an earlier run found in this very state of the tree."""
    try:
        with open(path, encoding="utf-8") as file:
            lines = file.read().splitlines()
    except FileNotFoundError:
        lines = []
    if not lines or lines[0] != state:
        with open(path, "w", encoding="utf-8") as file:
            file.write(state + "\n")
        return {}
    return dict(line.split("\t", 1) for line in lines[1:])


def main(sources, folder, pattern=""):
    rows = table(os.path.join(sources, "tools", "mutants.txt"), pattern)
    tree, build, results_path = (os.path.join(folder, name) for name in ("tree", "build", "results.txt"))
    os.makedirs(tree, exist_ok=True)
    results = known_results(results_path, copy_sources(sources, tree))
    configure(tree, build)
    builder = Builder(tree, build)
    if not builder.make(builder.tests) or builder.failing(builder.tests):
        sys.exit("The tests must pass before a fault is planted.")
    verdicts = []
    for number, row in enumerate(rows, 1):
        verdict = results.get(row.key)
        if verdict is None:
            verdict = builder.judge(row)
            with open(results_path, "a", encoding="utf-8") as file:
                file.write(f"{row.key}\t{verdict}\n")
        verdicts.append(verdict)
        print(f"{number}/{len(rows)} {verdict}: {row}", flush=True)

    def count(start):
        return sum(verdict.startswith(start) for verdict in verdicts)

    print(f"\n{len(rows)} faults: {count('killed')} killed, {count('SURVIVES')} survive, "
          f"{count('does not apply')} do not apply any more, {count('does not build')} do not build")
    for verdict, row in zip(verdicts, rows):
        if not verdict.startswith("killed"):
            print(f"  {verdict}: {row}")
    sys.exit(count("SURVIVES") > 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
