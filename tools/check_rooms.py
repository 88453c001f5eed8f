#!/usr/bin/env python3
"""Fails when a room includes one that it must not know, or the core includes Qt or an operating-system header.

A room is a folder of src/. The table below is the whole of who may know whom; "ship" and "elements" hold data and
formulas beside their dialogs, so files that must not know screens are checked by name.
"""
import os
import re
import sys

KNOWS = {
    "text": {"platform"},
    "platform": set(),
    "platform/posix": {"platform", "text"},
    "observation": {"text", "platform", "ship:data"},
    "ship": {"text", "platform", "ui", "ship"},
    "elements": {"text", "platform", "ui", "ship:data", "observation", "map"},
    "codetables": {"text", "platform", "ui", "ship:data", "observation"},
    "archive": {"text", "platform", "ui", "observation"},
    "media": {"text", "platform", "ui", "archive"},
    "map": {"text", "platform", "ui"},
    "ui": {"text", "platform"},
    "mainwindow": {"text", "platform", "ui", "ship", "elements", "codetables", "archive", "media", "map", "observation"},
    "app": {"text", "platform", "ui", "ship", "archive", "media", "mainwindow", "observation"},
    "headless": {"text", "platform", "ui", "app", "observation", "ship:data"},
    "desktop": {"text", "platform", "ui", "app", "platform/posix"},
    "cli": {"text", "platform", "platform/posix", "observation", "ship", "ui", "app", "headless"},
}
SHIP_DATA = {"ship/ShipFixedData.h", "ship/KeyObservationItems.h"}
# Files of functions and data in rooms that also hold dialogs: these know no screen.
def knows_screens(path):
    return re.match(r"C[A-Z]", os.path.basename(path)) is not None

STANDARD = set("""algorithm array atomic bit bitset cassert cctype cerrno charconv chrono cmath compare concepts cstddef
cstdint cstdio cstdlib cstring deque exception filesystem fstream functional initializer_list iomanip ios iosfwd iostream
istream iterator limits list map memory memory_resource mutex new numbers numeric optional ostream queue random ranges
ratio set source_location span sstream stdexcept string string_view system_error thread tuple type_traits typeindex
unordered_map unordered_set utility variant vector""".split())
OUTSIDE_CORE = {"platform/posix", "desktop", "cli"}
# The core reaches files, clock and environment only through its ports.
NOT_IN_CORE = {"filesystem", "fstream", "iostream", "cstdio", "chrono", "thread", "mutex"}


def main():
    src = sys.argv[1]
    wrong = []
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
                    if other == "ship" and header in SHIP_DATA and ("ship:data" in allowed or "ship" in allowed):
                        continue
                    if other not in allowed:
                        wrong.append(where + f"{room} must not know {other}")
                    elif other == "ui" and room in {"ship", "elements", "map", "archive", "media"} and not knows_screens(path):
                        wrong.append(where + "data and formulas must not know screens")
    for line in wrong:
        print(line)
    sys.exit(1 if wrong else 0)


main()
