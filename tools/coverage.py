"""Adds up what gcov says of a build with --coverage, for tools/coverage.sh: coverage.py SOURCE_TREE BUILD_TREE."""

import collections
import glob
import json
import os
import subprocess
import sys

AIM = 95.0  # per cent of lines


def measured(build):
    """What gcov says of every file that was compiled into a room, one JSON document for each object file."""
    notes = sorted(glob.glob(os.path.join(build, "src", "**", "*.gcno"), recursive=True))
    for start in range(0, len(notes), 50):
        told = subprocess.run(["gcov", "--json-format", "--stdout", "--branch-probabilities", *notes[start:start + 50]],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True).stdout
        for line in told.splitlines():
            document = json.loads(line)
            for file in document["files"]:
                yield os.path.normpath(os.path.join(document["current_working_directory"], file["file"])), file


def ranges(numbers):
    """3, 4, 5, 9 as "3-5, 9"."""
    parts = []
    for number in sorted(numbers):
        if parts and number == parts[-1][1] + 1:
            parts[-1][1] = number
        else:
            parts.append([number, number])
    return ", ".join(str(a) if a == b else f"{a}-{b}" for a, b in parts)


def share(part, whole):
    return 100.0 * part / whole if whole else 100.0


def main(root, build):
    source = os.path.join(os.path.realpath(root), "src")
    lines = collections.defaultdict(collections.Counter)  # path: line: how often it ran, in whichever program
    branches = collections.defaultdict(collections.Counter)  # path: (line, nth branch of it): likewise
    for path, file in measured(build):
        path = os.path.realpath(path)
        if not path.startswith(source + os.sep):
            continue
        for line in file["lines"]:
            lines[path][line["line_number"]] += line["count"]
            # What is thrown where nothing catches is the end of the program anyhow.
            for nth, branch in enumerate(b for b in line["branches"] if not b["throw"]):
                branches[path][line["line_number"], nth] += branch["count"]

    rooms = collections.defaultdict(lambda: [0, 0, 0, 0])
    for path in lines:
        room = os.path.relpath(os.path.dirname(path), source)
        for name in (room, "all"):
            total = rooms[name]
            total[0] += sum(count > 0 for count in lines[path].values())
            total[1] += len(lines[path])
            total[2] += sum(count > 0 for count in branches[path].values())
            total[3] += len(branches[path])
    print(f"{'room':42} {'lines':>14}   {'branches':>14}")
    for room, (run, all_lines, taken, all_branches) in sorted(rooms.items(), key=lambda item: (item[0] == "all", item[0])):
        print(f"{room:42} {run:5}/{all_lines:5} {share(run, all_lines):5.1f}%  "
              f"{taken:5}/{all_branches:5} {share(taken, all_branches):5.1f}%")
    print("\nNot run:")
    for path in sorted(lines):
        missed = [line for line, count in lines[path].items() if count == 0]
        if missed:
            print(f"  src/{os.path.relpath(path, source)}: {ranges(missed)}")
    run, all_lines = rooms["all"][:2]
    if share(run, all_lines) < AIM:
        sys.exit(f"Fewer than {AIM:.0f} % of the lines are run.")


if __name__ == "__main__":
    main(*sys.argv[1:])
