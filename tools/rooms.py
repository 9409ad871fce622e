#!/usr/bin/python3
"""The rooms of src/ as the build has them, from the <build>/rooms.txt that cmake/Room.cmake writes.

    tools/rooms.py [BUILD FOLDER]

prints for every folder "folder|what it may include|what it must include one of|widgets": the folders that its library
sees through its links, those that it links for itself alone, and "widgets" where it links Qt's.
"""

import os
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
RELEASE = os.path.join(ROOT, "build", "release")


class Room:
    """One target. `links` names what it links, `shared` what its users link with it, `loads` what must be built with it."""

    def __init__(self, line):
        self.folder, self.name, self.type, *lists = line.split("|")
        links, interface, loads = (dict.fromkeys(filter(None, names.split(";"))) for names in lists)
        self.shared = [name for name in interface if not name.startswith("$<LINK_ONLY:")]
        self.links = list(links) or self.shared  # an interface has no links of its own
        self.loads = list(loads)

    @property
    def is_program(self):
        return self.type == "EXECUTABLE"


def read(build=RELEASE):
    """The rooms by their targets' names, in the build's order."""
    path = os.path.join(build, "rooms.txt")
    if not os.path.exists(path):
        sys.exit(f"There is no {path}: configure that build first.")
    with open(path, encoding="utf-8") as lines:
        rooms = {room.name: room for room in map(Room, lines.read().splitlines())}
    if not rooms:
        sys.exit(f"{path} names no room.")
    return rooms


def seen(rooms, room):
    """The names of the rooms and libraries that `room` links, and what those share."""
    found = set()
    left = list(room.links)
    while left:
        name = left.pop()
        if name not in found:
            found.add(name)
            left += rooms[name].shared if name in rooms else []
    return found


def main():
    rooms = read(*sys.argv[1:])

    def folders(names):
        return " ".join(sorted({rooms[name].folder for name in names if name in rooms}))

    # A program is no room: it settles who stands behind the interfaces.
    for folder in dict.fromkeys(room.folder for room in rooms.values()):
        own = [room for room in rooms.values() if room.folder == folder and not room.is_program]
        sees = set().union(*(seen(rooms, room) for room in own))
        alone = {name for room in own for name in room.links if name not in room.shared}
        print(folder, folders(sees), folders(alone), "widgets" if "Qt5::Widgets" in sees else "", sep="|")


if __name__ == "__main__":
    main()
