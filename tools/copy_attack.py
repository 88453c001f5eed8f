#!/usr/bin/env python3
"""Attacks copying with real faults: copy_attack.py [--every N] KAVREL_CLI SESSIONS_FOLDER

Plays a session that copies the logbook, overwrites an older copy or not, and deletes the source, again and again. From the
moment on that it looks at the copy's folder, each of its system calls fails (strace's injection of an error), or the process
ends there (a kill), or the disk dies from that call on. After each fault the logbook must be whole or, where its copy is whole,
gone; and the copy's place holds the older copy or the new one. Then an undisturbed copy must go through and leave nothing
lying beside it.

--every N plays every Nth point only (a short run). The exit status is 1 when a point ends otherwise.
"""
import argparse
import collections
import contextlib
import os
import re
import shutil
import subprocess
import sys
import tempfile

CALLS = ("openat", "read", "write", "pread64", "fsync", "flock", "newfstatat", "fstat", "statx", "access", "faccessat2", "fchmod",
         "rename", "renameat", "renameat2", "link", "linkat", "unlink", "unlinkat", "close", "getdents64", "kill", "fadvise64",
         "statfs")
ERRORS = ("EIO", "ENOSPC", "EACCES", "EINTR")
ROOTS = ("folders", "ship", "all_observed", "copy_files")
OLDER = "copy_earlier"

COPY = """start
menu File/Copy the marine meteorological logbook
choose tree C:\\copies
press ok
{overwrite}answer ok
answer yes
close
answer yes
"""


class Room:
    """A computer with a logbook, and an older copy of it or none."""

    def __init__(self, cli, sessions, top, older):
        self.cli, self.top = cli, top
        self.root = os.path.join(top, "root")
        for name in (*ROOTS, OLDER) if older else ROOTS:
            shutil.copytree(os.path.join(sessions, "roots", name), self.root, dirs_exist_ok=True,
                            ignore=shutil.ignore_patterns(".keep"))
        shutil.copytree(os.path.join(sessions, "roots", "program"), os.path.join(top, "program"))
        self.source = os.path.join(self.root, "kavrel", "data", "log", "immt5.log")
        self.copy = os.path.join(self.root, "copies", "immt5.log")
        self.old_source, self.old_copy = self.look()

    def play(self, older, *trace):
        script = COPY.format(overwrite="answer yes\n" if older else "")
        command = [self.cli, "session", "--root", self.root, "--program", os.path.join(self.top, "program"), "--locale", "en",
                   "--clock", "2014-11-15T11:50"]
        environment = {"PATH": os.environ["PATH"], "HOME": self.top, "TZ": "UTC0", "LC_ALL": "C"}
        return subprocess.run([*trace, *command], input=script, capture_output=True, text=True, check=False, env=environment,
                              timeout=120, errors="replace")

    def look(self):
        """What the two files hold; nothing for one that is not there."""
        found = []
        for path in (self.source, self.copy):
            content = None
            with contextlib.suppress(FileNotFoundError), open(path, "rb") as file:
                content = file.read()
            found.append(content)
        return tuple(found)


def outcome(room, run):
    """What became of a fault; a text that begins with "WRONG" where something is lost or torn."""
    source, copy = room.look()
    if source is None and copy != room.old_source:
        return "WRONG: the source is gone and the copy is not whole"
    if source not in (None, room.old_source):
        return "WRONG: the source is torn"
    if copy not in (room.old_copy, room.old_source):
        return "WRONG: the copy is neither old nor new"
    said = "succeeded" in run.stdout
    if said and copy != room.old_source:
        return "WRONG: told as copied, but it is not"
    result = "deleted" if source is None else "copied" if copy == room.old_source else "as before"
    if source is not None:
        again = room.play(copy is not None)
        if room.look() != (None, room.old_source):
            return f"WRONG: the next copy does not go through: {again.stdout[-300:]}{again.stderr}"
    left = [name for folder in (room.source, room.copy) for name in os.listdir(os.path.dirname(folder)) if name.startswith(".")]
    # What was staged where the source was deleted at once is cleared by the next copy into that folder.
    if left and source is not None:
        return f"WRONG: left over: {', '.join(sorted(left))}"
    return result


class Attack:
    def __init__(self, cli, sessions, every):
        self.cli, self.sessions, self.every = cli, sessions, every
        self.table = collections.Counter()
        self.wrong, self.points = [], 0

    @contextlib.contextmanager
    def room(self, older):
        top = tempfile.mkdtemp(prefix="kavrel-copy.")
        try:
            yield Room(self.cli, self.sessions, top, older)
        finally:
            shutil.rmtree(top, ignore_errors=True)

    def points_of(self, older):
        """(call, which one of its kind) from the first that names the copy's folder to the last that names the logbook."""
        with self.room(older) as room:
            trace = os.path.join(room.top, "trace")
            run = room.play(older, "strace", "-f", "-qq", "-o", trace, "-e", "trace=" + ",".join("?" + c for c in CALLS))
            if run.returncode != 0 or room.look() != (None, room.old_source):
                sys.exit(f"an undisturbed copy fails: {run.stdout}{run.stderr}")
            with open(trace, encoding="utf-8", errors="replace") as file:
                lines = [line for line in file if re.match(r"\d+ +\w+\(", line)]
        named = [at for at, line in enumerate(lines) if "copies/immt5.log" in line or "log/immt5.log" in line]
        first = next(at for at, line in enumerate(lines) if "copies/immt5.log" in line)
        seen, points = collections.Counter(), []
        for at, line in enumerate(lines[:named[-1] + 1]):
            call = re.match(r"\d+ +(\w+)\(", line)[1]
            seen[call] += 1
            if at >= first:
                points.append((call, seen[call]))
        return points

    def play(self, older):
        for at, (call, n) in enumerate(self.points_of(older)):
            ways = [("error", f"error={error}:when={n}") for error in ERRORS]
            ways += [("kill", f"signal=KILL:when={n}"), ("dying disk", f"error=EIO:when={n}+")]
            for way, (kind, how) in enumerate(ways):
                if (at + way) % self.every:
                    continue
                with self.room(older) as room:
                    run = room.play(older, "strace", "-f", "-qq", "-o", "/dev/null", "-e", f"inject={call}:{how}")
                    result = outcome(room, run)
                self.points += 1
                if result.startswith("WRONG"):
                    self.wrong.append(f"{'older copy' if older else 'no copy'}: {kind} at {call} {how}: {result}")
                    result = "WRONG"
                self.table[(kind, result)] += 1


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("cli")
    parser.add_argument("sessions")
    arguments = parser.parse_args()
    attack = Attack(os.path.abspath(arguments.cli), os.path.abspath(arguments.sessions), max(1, arguments.every))
    for older in (False, True):
        attack.play(older)
    for (kind, result), count in sorted(attack.table.items()):
        print(f"{kind}: {result}: {count}")
    for line in attack.wrong:
        print(line)
    print(f"{attack.points} points, {len(attack.wrong)} wrong")
    return 1 if attack.wrong or attack.points == 0 else 0


sys.exit(main())
