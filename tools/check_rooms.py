#!/usr/bin/env python3
"""Fails when a room includes or declares what belongs to one that it must not know, or the core includes Qt or an
operating-system header.

A room is a folder of src/; what it may know besides itself stands in the table below, and nowhere else. Folders of data
and formulas have no screens in their row, so no file of theirs can include one.
"""
import os
import re
import sys

# Data: what is known of an observation and a ship, without a screen. The library kavrel_data holds these and no others, so
# the linker says so too (tests/CMakeLists.txt links it alone).
DATA = {
    "text": {"platform"},
    "platform": set(),
    "usage": {"text"},
    "codetables/tables": {"text"},
    "ship/data": {"text", "platform", "codetables/tables"},
    "elements/formulas": {"text", "codetables/tables", "ship/data"},
    "observation": {"text", "platform", "codetables/tables", "ship/data"},
    "map/tiles": {"text", "platform"},
    "elements/form": {"text", "platform", "ship/data", "codetables/tables", "elements/formulas", "observation"},
    "explain/plain": {"text", "platform", "ship/data", "codetables/tables", "elements/formulas", "observation"},
    "explain/doubts": {"text", "platform", "ship/data", "codetables/tables", "elements/formulas", "observation", "map/tiles"},
    "explain/log": {"text", "platform", "ship/data", "codetables/tables", "elements/formulas", "observation", "explain/doubts",
                    "elements/form"},
}
ALL_DATA = set(DATA)
# Dialogs of elements and of the ship do not look at whole observations.
ELEMENT_DATA = ALL_DATA - {"usage", "elements/form", "map/tiles", "explain/plain", "explain/doubts", "explain/log"}
KNOWS = DATA | {
    "ui": {"text", "platform"},
    "paper": {"ui", "text"},
    "ship": {"ui"} | ELEMENT_DATA - {"observation"},
    "elements": {"ui"} | ELEMENT_DATA,
    "codetables": {"ui"} | ELEMENT_DATA,
    "map": {"text", "platform", "ui", "map/tiles"},
    "archive": {"text", "platform", "ui", "observation", "codetables/tables"},
    "media": {"text", "platform", "ui", "archive"},
    "explain": {"ui", "archive"} | ALL_DATA,
    "mainwindow": {"ui", "explain", "ship", "elements", "codetables", "archive", "media", "map"} | ALL_DATA,
    "app": {"ui", "ship", "archive", "media", "mainwindow", "map/tiles", "text", "platform", "observation", "ship/data"},
    "headless": {"text", "platform", "ui", "app", "observation", "ship/data"},
    "platform/system": {"platform", "text"},
    "platform/posix": {"platform", "platform/system", "text"},
    "platform/win32": {"platform", "platform/system", "text"},
    "desktop": {"text", "platform", "ui", "app", "paper", "platform/system", "usage"},
    "win32": {"text", "platform", "ui", "app", "paper", "platform/system", "platform/win32", "usage"},
    "bufr": {"text", "platform", "observation", "ship/data", "codetables/tables", "cli", "usage"},
    "cli": {"text", "usage", "platform", "platform/system", "observation", "ship/data", "ui", "app", "headless",
            "codetables/tables", "explain/plain", "explain/doubts", "explain/log"},
}

STANDARD = set("""algorithm array atomic bit bitset cassert cctype cerrno charconv chrono cmath compare concepts cstddef
cstdint cstdio cstdlib cstring deque exception filesystem fstream functional initializer_list iomanip ios iosfwd iostream
istream iterator limits list map memory memory_resource mutex new numbers numeric optional ostream queue random ranges
ratio set source_location span sstream stdexcept string string_view system_error thread tuple type_traits typeindex
unordered_map unordered_set utility variant vector""".split())
OUTSIDE_CORE = {"platform/posix", "platform/win32", "desktop", "win32", "cli", "bufr"}
# The core reaches files, clock and environment only through its ports.
NOT_IN_CORE = {"filesystem", "fstream", "iostream", "cstdio", "chrono", "thread", "mutex"}


def may_name(room, other):
    """A room opens its own namespace and those of rooms that it may include; a room within another shares its namespace."""
    return any(known == other or known.startswith(other + "/") for known in KNOWS[room] | {room})


def main():
    src = sys.argv[1]
    wrong = [f"{room}: a room of the table, but no folder" for room in sorted(KNOWS)
             if not os.path.isdir(os.path.join(src, room))]
    for folder, _, files in os.walk(src):
        for name in sorted(files):
            if not name.endswith((".h", ".cpp")):
                continue
            path = os.path.relpath(os.path.join(folder, name), src)
            room = os.path.dirname(path)
            if room not in KNOWS:
                wrong.append(f"{path}: {room} is no room")
                continue
            with open(os.path.join(src, path), encoding="utf-8") as source:
                for number, line in enumerate(source, 1):
                    opened = re.match(r"namespace (\w+)\b", line)
                    if opened and opened.group(1) in KNOWS and not may_name(room, opened.group(1)):
                        wrong.append(f"{path}:{number}: {room} must not declare what belongs to {opened.group(1)}")
                    found = re.match(r'\s*#\s*include\s*([<"])([^>"]+)[>"]', line)
                    if not found:
                        continue
                    where = f"{path}:{number}: "
                    kind, header = found.groups()
                    if kind == "<":
                        if room in OUTSIDE_CORE:
                            continue
                        if header not in STANDARD:
                            wrong.append(where + f"<{header}> is not the standard library")
                        elif header in NOT_IN_CORE and room != "headless":
                            wrong.append(where + f"<{header}> goes around the ports")
                        continue
                    other = os.path.dirname(header)
                    if other == "" and header.endswith(".inc"):
                        continue
                    allowed = KNOWS[room] | {room}
                    if other not in allowed:
                        wrong.append(where + f"{room} must not know {other}")
    for line in wrong:
        print(line)
    sys.exit(1 if wrong else 0)


main()
