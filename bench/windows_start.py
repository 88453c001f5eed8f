#!/usr/bin/env python3
"""Puts the program for Windows beside the system's own editor, both run by Wine: windows_start.py ROUNDS FOLDER ROOT [WINE].

FOLDER holds kavrel.exe with what lies beside it, ROOT is the program's C:. Prints each one's size on the disk, and the medians of
the wall time to its first window on the display and of its memory then, in turns. A display must be there (xvfb-run)."""
import ctypes
import glob
import os
import statistics
import subprocess
import sys
import time

NOTEPAD = "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/notepad.exe"
PATIENCE = 120  # seconds
VIEWABLE = 2


class Attributes(ctypes.Structure):
    """XWindowAttributes, as far as it is read; the rest is room."""

    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int), ("height", ctypes.c_int),
                ("before", ctypes.c_char * 76), ("map_state", ctypes.c_int), ("rest", ctypes.c_char * 64)]


class Display:
    def __init__(self):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XSetErrorHandler.restype = ctypes.c_void_p
        # A window may go while it is asked about.
        self.ignore = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda display, error: 0)
        self.x11.XSetErrorHandler(self.ignore)
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        if not self.display:
            sys.exit("no display")
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def has_window(self):
        """True when something as large as a window is seen."""
        root, parent = ctypes.c_ulong(), ctypes.c_ulong()
        children, count = ctypes.POINTER(ctypes.c_ulong)(), ctypes.c_uint()
        self.x11.XQueryTree(self.display, self.root, ctypes.byref(root), ctypes.byref(parent), ctypes.byref(children),
                            ctypes.byref(count))
        found = False
        for child in children[:count.value]:
            seen = Attributes()
            if self.x11.XGetWindowAttributes(self.display, ctypes.c_ulong(child), ctypes.byref(seen)):
                found = found or (seen.map_state == VIEWABLE and seen.width > 100 and seen.height > 100)
        if children:
            self.x11.XFree(children)
        return found


def memory_of(pid):
    """MiB that the process holds, without what it shares with others; and all of it that lies in memory."""
    values = {}
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as lines:
        for line in lines:
            words = line.split()
            if len(words) == 3 and words[2] == "kB":
                values[words[0]] = int(words[1]) / 1024
    return values["Private_Clean:"] + values["Private_Dirty:"], values["Rss:"]


def wait_until(condition, what):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            sys.exit(f"waited too long until {what}")
        time.sleep(0.005)


def run(display, command):
    wait_until(lambda: not display.has_window(), "the display is empty")
    begin = time.monotonic()
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as child:
        wait_until(display.has_window, f"{command[-1]} shows a window")
        wall = (time.monotonic() - begin) * 1000
        time.sleep(1)  # what it reads behind its window
        own, all_of_it = memory_of(child.pid)
        child.kill()
    return wall, own, all_of_it


def size_of(*patterns):
    files = [path for pattern in patterns for path in glob.glob(pattern, recursive=True) if os.path.isfile(path)]
    return sum(os.path.getsize(path) for path in files) / 1024


def main():
    rounds, folder, root = int(sys.argv[1]), os.path.realpath(sys.argv[2]), os.path.realpath(sys.argv[3])
    wine = sys.argv[4] if len(sys.argv) > 4 else "tools/wine"
    commands = {
        "kavrel": [wine, f"{folder}/kavrel.exe", "--root", root, "--locale", "en"],
        "notepad": [wine, "notepad"],
    }
    sizes = {"kavrel": size_of(f"{folder}/kavrel.exe"), "notepad": size_of(NOTEPAD)}
    display = Display()
    results = {name: [] for name in commands}
    for number in range(rounds + 1):
        for name, command in commands.items():
            result = run(display, command)
            if number > 0:  # the first round fills the caches
                results[name].append(result)
    for name, values in results.items():
        wall, own, all_of_it = (statistics.median(column) for column in zip(*values))
        print(f"{name:8} {sizes[name]:7.0f} kB, first window after {wall:6.0f} ms, {own:5.1f} MiB of its own, {all_of_it:5.1f} MiB in all")
    print(f"all that lies beside kavrel.exe: {size_of(folder + '/**') - sizes['kavrel']:.0f} kB")


if __name__ == "__main__":
    main()
