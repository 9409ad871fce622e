#!/usr/bin/python3
"""clang-tidy over the sources, by the release build's commands and with what Qt's tools made in it.

    tools/lint.py [FILES...]      only these .cpp files, instead of all

All sources are read several of a folder at a time: most of the work is in Qt's headers, which such a unit has once. Where
a unit has findings, its sources are linted one by one, and what that finds counts: in a unit, two sources with helpers
of one name are in each other's way.
"""

import concurrent.futures
import itertools
import json
import os
import re
import subprocess
import sys
import tempfile

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
BUILD = os.path.join(ROOT, "build", "release")
UNIT = 8  # sources; larger ones leave a processor idle at the end
OWN_FILES = r"/(src|tests|bench|data)/[^.]*\.(h|cpp)$"


def commands():
    """The command that compiles each source; sources that this platform's build leaves out have none."""
    with open(os.path.join(BUILD, "compile_commands.json"), encoding="utf-8") as file:
        return {entry["file"]: entry for entry in reversed(json.load(file))}


def tidy(build, source, *options):
    """What clang-tidy says of a source, or an empty text."""
    # -Werror would turn clang's own warnings into errors that no check can switch off.
    done = subprocess.run(["clang-tidy", "-p", build, "--quiet", "--extra-arg=-Wno-error", *options, source],
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    said = "\n".join(line for line in done.stdout.splitlines()
                     if line and not re.search(r"generated\.$|^Error while processing ", line))
    return (said or f"clang-tidy ended with {done.returncode}") if done.returncode else ""


def lint_one_by_one(sources):
    return [said for said in (tidy(BUILD, source) for source in sources) if said]


def unused_names(source):
    """What clang says of a source on its own, but not of one in a unit: constants and aliases that nothing uses."""
    with open(source, encoding="utf-8") as file:
        text = file.read()
    declared = re.findall(r"^(?:namespace |(?:static const|constexpr) [^;()=]*?)\b(\w+)(?:\[\w*\])* ?[={]", text, re.MULTILINE)
    return [f"{source}: {name} is not used" for name in declared if len(re.findall(rf"\b{name}\b", text)) == 1]


def lint_unit(sources, known):
    """The findings in sources of one folder."""
    if len(sources) == 1:
        return lint_one_by_one(sources)
    with tempfile.TemporaryDirectory(dir=os.path.join(ROOT, "build")) as folder:
        unit = os.path.join(folder, "unit.cpp")
        with open(unit, "w", encoding="utf-8") as file:
            file.writelines(f'#include "{source}" // NOLINT(bugprone-suspicious-include)\n' for source in sources)
        entry = known[sources[0]]
        command = entry["command"].replace(sources[0], unit)
        with open(os.path.join(folder, "compile_commands.json"), "w", encoding="utf-8") as file:
            json.dump([{**entry, "command": command, "file": unit}], file)
        found = tidy(folder, unit, f"--config-file={ROOT}/.clang-tidy", f"--header-filter={OWN_FILES}")
    return lint_one_by_one(sources) if found else [name for source in sources for name in unused_names(source)]


def units(sources, known):
    """Sources that one command fits: of a folder, and with the same options."""
    def kind(source):
        options = re.findall(r"-(?:D|I|isystem )\S+", known[source]["command"])
        return os.path.dirname(source), sorted(options)

    for _, group in itertools.groupby(sorted(sources, key=kind), kind):
        group = list(group)
        yield from (group[i:i + UNIT] for i in range(0, len(group), UNIT))


def main(files):
    known = commands()
    if files:
        work = [[os.path.realpath(file)] for file in files if os.path.realpath(file) in known]
    else:
        listed = subprocess.run(["git", "ls-files", "*.cpp"], cwd=ROOT, stdout=subprocess.PIPE, text=True, check=True)
        sources = [os.path.join(ROOT, name) for name in listed.stdout.split()]
        work = list(units([source for source in sources if source in known], known))
    count = sum(map(len, work))
    if count == 0:
        sys.exit("No source is named in the release build's commands.")
    print(f"Linting {count} sources ...", flush=True)
    findings = 0
    # The largest first, so that all processors end together.
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for done in pool.map(lambda sources: lint_unit(sources, known), sorted(work, key=len, reverse=True)):
            for said in done:
                print(said, flush=True)
                findings += 1
    if findings:
        sys.exit("The linter has findings.")
    print(f"Lint: {count} sources, no findings")


if __name__ == "__main__":
    main(sys.argv[1:])
