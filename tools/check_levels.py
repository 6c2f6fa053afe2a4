#!/usr/bin/env python3
"""Holds the sources to the table of rooms and levels in src/README.md.

check_levels.py [ROOT]   prints each breach as FILE:LINE: WHAT, and exits 1 if there is one.

A room may use the rooms of lower levels and, inside its level, those in brackets behind its name. A room whose
level is a dash stands apart: it may use just those in brackets, and no room may use it. A room may lie in a folder of
several (src/engines/effects/); the last part of its folder is its name. The map names just the rooms that there are.
"""

import re
import sys
from dataclasses import dataclass
from pathlib import Path

MAX_LINES = 500
# Where Qt may be known: the window layer, what drives it, and what renders pictures for the build with its tests.
QT_PLACES = re.compile(r"(src|tests|bench)/(qt|tour|strips)/|src/resources/([^/]+/)*tool/|src/frames/tool/|tests/(art|frames)/")
QT_HEADER = re.compile(r"(Qt\w+/)?(Q[A-Za-z]\w*|q\w+\.h|qt?\w+/q\w+\.h)$")

ROW = re.compile(r"\|\s*(\d+|[-–—])\s*\|([^|]*`src/[^|]*)\|")
ROOM = re.compile(r"`src/([\w/]+)/`(?:\s*\(([^)]*)\))?")
INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)[>"]')
ROOM_CALL = re.compile(r"fotarium_room\s*\(\s*([\w/]+)([^)]*)\)")
LINK_CALL = re.compile(r"target_link_libraries\s*\(\s*room_(\w+)([^)]*)\)")


@dataclass
class Room:
    folder: str  # below src/
    level: int | None  # None: stands apart
    beside: list[str]  # the rooms in brackets


def read_map(path):
    """The rooms of the table by name, in its order, and the table's own faults as (line number, what)."""
    rooms, faults = {}, []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        row = ROW.match(line)
        if not row:
            continue
        level = int(row[1]) if row[1].isdigit() else None
        for folder, brackets in ROOM.findall(row[2]):
            name = folder.rpartition("/")[2]
            beside = re.findall(r"\w+", brackets)
            for other in beside:
                # Naming only rooms that stand above keeps the use of rooms free of circles.
                if other not in rooms or (level is not None and not is_at_most(rooms[other], level)):
                    faults.append((number, f"room {name} names {other}, which is no room of its level or a lower "
                                           f"one further up in the table"))
            rooms[name] = Room(folder, level, beside)
            if not (path.parent / folder).is_dir():
                faults.append((number, f"there is no room src/{folder}/"))
    return rooms, faults


def is_at_most(room, level):
    return room.level is not None and room.level <= level


def room_of(rooms, place):
    """The room that a path below src/ leads to; None if to none."""
    return next((name for name, room in rooms.items() if place.startswith(room.folder + "/")), None)


def may_use(rooms, user, used):
    if user == used:
        return True
    mine, other = rooms[user], rooms[used]
    if other.level is None:
        return False
    return used in mine.beside or (mine.level is not None and other.level < mine.level)


def check_includes(rooms, root, path, lines):
    """Yields (line number, what) for each include that the map forbids."""
    place = path.relative_to(root).as_posix()
    top, _, rest = place.partition("/")
    room = room_of(rooms, rest) if top == "src" else None
    for number, line in enumerate(lines, 1):
        include = INCLUDE.match(line)
        if not include:
            continue
        bracket, name = include.groups()
        used = room_of(rooms, name)
        if QT_HEADER.match(name):
            if not QT_PLACES.match(place):
                yield number, f"includes the Qt header {name}"
        elif used:
            if room and not may_use(rooms, room, used):
                yield number, f"room {room} may not use {name}"
        elif bracket == '"' and not is_own_file(root, path, name):
            yield number, f"{name} leads to no room of the map"


def is_own_file(root, path, name):
    """A file beside the includer, of the build tool that it belongs to, one of the tests' or benchmarks' own, or what
    Qt's moc makes of the includer."""
    if ".." in name.split("/"):
        return False
    own_top = root / path.relative_to(root).parts[0]
    tool = next((folder for folder in path.parents if folder.name == "tool"), path.parent)
    return (("/" not in name and (path.parent / name).is_file())
            or (tool / name).is_file()
            or (own_top.name != "src" and (own_top / name).is_file())
            or name in (f"{path.stem}.moc", f"moc_{path.stem}.cpp"))


def check_links(rooms, lines):
    """Yields (line number, what) for each library that a room links against the map."""
    text = "\n".join(line.split("#")[0] for line in lines)
    for call in [*ROOM_CALL.finditer(text), *LINK_CALL.finditer(text)]:
        number = text.count("\n", 0, call.start()) + 1
        room = call[1].rpartition("/")[2]
        if room not in rooms or (call.re is ROOM_CALL and call[1] != rooms[room].folder):
            yield number, f"room {call[1]} is not in the map"
            continue
        for used in re.findall(r"\broom_(\w+)", call[2]):
            if used not in rooms:
                yield number, f"room {room} links room_{used}, which is not in the map"
            elif not may_use(rooms, room, used):
                yield number, f"room {room} may not link room_{used}"
        if re.search(r"\bQt\d?::", call[2]) and not QT_PLACES.match(f"src/{rooms[room].folder}/"):
            yield number, f"room {room} links Qt"


def check(root):
    """All breaches as lines of text, and how many files were looked at."""
    rooms, faults = read_map(root / "src/README.md")
    breaches = [f"src/README.md:{number}: {what}" for number, what in faults]
    if not rooms:
        return ["src/README.md:1: no table of rooms and levels"], 0
    for folder in sorted({path.parent for path in (root / "src").glob("*/**/*") if path.is_file()}):
        place = folder.relative_to(root / "src").as_posix()
        if not room_of(rooms, place + "/"):
            breaches.append(f"src/{place}:1: is not in the map")

    count = 0
    for top in ("src", "tests", "bench"):
        for path in sorted((root / top).rglob("*")):
            # Vector pictures are drawn, and expected pictures are compared; nobody reads them.
            if not path.is_file() or path.suffix == ".svg" or path.name == "figures.txt" or "__pycache__" in path.parts:
                continue
            try:
                lines = path.read_text(encoding="utf-8").splitlines()
            except UnicodeDecodeError:
                continue
            count += 1
            found = []
            if len(lines) > MAX_LINES:
                found.append((MAX_LINES + 1, f"{len(lines)} lines; {MAX_LINES} are what a person reads in one sitting"))
            if path.suffix in (".h", ".cpp"):
                found += check_includes(rooms, root, path, lines)
            elif path.name == "CMakeLists.txt":
                found += check_links(rooms, lines)
            breaches += [f"{path.relative_to(root).as_posix()}:{number}: {what}" for number, what in found]
    return breaches, count


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent.parent).resolve()
    breaches, count = check(root)
    for breach in breaches:
        print(breach)
    print(f"{count} files looked at, {len(breaches)} breaches of the map in src/README.md")
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
