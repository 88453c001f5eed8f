#!/usr/bin/env python3
"""Attacks a save with real faults: fault_attack.py [--every N] [--table FILE] KAVREL_CLI

Plays "kavrel-cli save" again and again and lets each of its system calls fail (strace's injection of an error) or ends the
process there (a kill), lets the disk die from a call on, fills a small file system, takes a half of each write, and lets
several writers save at once. After each fault another observation is saved, which recovers what the fault left. Then the
pair of files must be old or new, both: the report and its line in the logbook, never a double line, never a torn one, and
nothing left lying beside them.

--every N plays every Nth point only (a short run), --table FILE writes the table of points and outcomes as Markdown.
The exit status is 1 when a point ends otherwise.
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

# What a save asks of the system. Each call of these is a point.
CALLS = ("openat", "read", "write", "pwrite64", "fsync", "fdatasync", "fallocate", "ftruncate", "flock", "newfstatat", "fstat",
         "statx", "access", "faccessat2", "fchmod", "rename", "renameat", "renameat2", "link", "linkat", "unlink", "unlinkat",
         "close", "getdents64", "pread64", "lseek", "kill", "mkdir", "mkdirat")
ERRORS = ("EIO", "ENOSPC", "EACCES", "EMFILE", "EINTR")
COLUMNS = 172

OBSERVATION = """ship.call_sign=JXKV
ship.imo_number=9074729
ship.temperature_unit=0.1
Year=2014
Month=11
YY={day:02}
GG=12
Qc=1
LaDeg=35
LaMin=42
LoDeg=165
LoMin=18
VV={visibility}
"""


HEADING = """# What becomes of a save under real faults

Written by `scripts/test-faults`, which runs the built `kavrel-cli save` again and again: each of its system calls fails with each
of several errors, or is the last one before a kill, or the first one of a dying disk; files may not grow beyond a size; a
small file system fills up; eight copies save at once. Behind each point another observation is saved, which recovers what was
left. Then report and logbook line must be old or new, both; no line twice, none torn, nothing left lying beside them.

- new: neither file is there; append: the logbook is there; replace: the report of that hour is there too
- both old, both new: as they were, or saved; "once recovered": by the next save, which says so
- both new, though not told as saved: the kill or the error came when both files were there

"""


class Room:
    """A folder with both files as they are before a save, and the ways to look at them."""

    def __init__(self, cli, top, scenario):
        self.cli, self.top, self.scenario = cli, top, scenario
        self.reports, self.logbook = os.path.join(top, "reports"), os.path.join(top, "logbook")
        self.observed = self.write("a.obs", OBSERVATION.format(day=15, visibility=97))
        self.other = self.write("b.obs", OBSERVATION.format(day=16, visibility=96))
        os.mkdir(self.reports)
        os.mkdir(self.logbook)
        if scenario != "new":
            # An hour before: the logbook is there; in "replace" the same hour was saved with another visibility.
            day = 15 if scenario == "replace" else 14
            before = self.write("before.obs", OBSERVATION.format(day=day, visibility=95))
            done = self.save(before)
            if done.returncode != 0:
                sys.exit(f"the room cannot be made: {done.stderr}")
        self.old = self.look()

    def write(self, name, text):
        path = os.path.join(self.top, name)
        with open(path, "w", encoding="ascii") as file:
            file.write(text)
        return path

    def command(self, observation):
        return [self.cli, "save", "--replace", "--reports", self.reports, "--logbook", self.logbook, observation]

    def save(self, observation, *trace):
        environment = {"PATH": os.environ["PATH"], "HOME": self.top, "KAVREL_ROOT": os.path.join(self.top, "root")}
        return subprocess.run([*trace, *self.command(observation)], capture_output=True, text=True, check=False,
                              env=environment, timeout=120, errors="replace")

    def look(self):
        """(report of the observed hour or None, lines of the logbook)."""
        report, lines = None, []
        with contextlib.suppress(FileNotFoundError), open(os.path.join(self.reports, "14111512.tlx"), "rb") as file:
            report = file.read()
        with contextlib.suppress(FileNotFoundError), open(os.path.join(self.logbook, "immt5.log"), "rb") as file:
            lines = file.read().split(b"\n")
        return report, lines

    def left_over(self):
        known = {"14111412.tlx", "14111512.tlx", "14111612.tlx", "immt5.log"}
        return [name for folder in (self.reports, self.logbook) for name in os.listdir(folder) if name not in known]


def outcome(room, new, run):
    """What became of a fault: the outcome's name, or a text that begins with "WRONG"."""
    right_away = room.look()
    recovered = room.save(room.other)
    if recovered.returncode != 0:
        return f"WRONG: the next save does not go through: {recovered.stderr.strip()}"
    report, lines = room.look()
    if not lines or lines[-1] != b"":
        return "WRONG: the logbook's last line has no end"
    lines = lines[:-1]
    if any(len(line) != COLUMNS for line in lines):
        return "WRONG: a torn line"
    if rest := room.left_over():
        return f"WRONG: left over: {', '.join(sorted(rest))}"
    mine = lines[:-1]  # the last one is the other observation's
    old_lines = [line for line in room.old[1] if line]
    new_lines = [line for line in new[1] if line]
    told = "is there" in run.stderr or "already" in run.stderr
    if mine == old_lines and report == room.old[0]:
        if run.returncode == 0:
            return "WRONG: told as saved, but both files are old"
        same = [line for line in right_away[1] if line] == old_lines and right_away[0] == room.old[0]
        return "both old" if same else "both old, once recovered"
    if mine == new_lines and report == new[0]:
        if run.returncode == 0:
            return "both new"
        if run.returncode > 0 and not told and right_away != (report, lines[:-1] + [b""]):
            return "both new, once recovered"
        return "both new, though not told as saved"
    return f"WRONG: {len(mine)} lines of {len(old_lines)}/{len(new_lines)}, report " + (
        "old" if report == room.old[0] else "new" if report == new[0] else "neither")


class Attack:
    def __init__(self, cli, every):
        self.cli, self.every = cli, every
        self.table = collections.Counter()
        self.wrong, self.points = [], 0

    def count(self, kind, scenario, result, where):
        self.points += 1
        if result.startswith("WRONG"):
            self.wrong.append(f"{scenario}: {kind} at {where}: {result}")
            result = "WRONG"
        self.table[(scenario, kind, result)] += 1

    @contextlib.contextmanager
    def room(self, scenario, folder=None):
        top = tempfile.mkdtemp(prefix="kavrel-fault.", dir=folder)
        try:
            yield Room(self.cli, top, scenario)
        finally:
            shutil.rmtree(top, ignore_errors=True)

    def calls_of(self, scenario):
        """How often each call comes in a save that nothing disturbs, and both files after it."""
        with self.room(scenario) as room:
            trace = os.path.join(room.top, "trace")
            run = room.save(room.observed, "strace", "-f", "-qq", "-o", trace, "-e", "trace=" + ",".join("?" + c for c in CALLS))
            if run.returncode != 0:
                sys.exit(f"{scenario}: an undisturbed save fails: {run.stderr}")
            with open(trace, encoding="utf-8", errors="replace") as file:
                found = re.findall(r"^\d+ +(\w+)\(", file.read(), re.MULTILINE)
            return collections.Counter(found), room.look()

    def play(self, scenario):
        counts, new = self.calls_of(scenario)
        # One after the other, so that every Nth of them is spread over all calls.
        points = [(call, n) for call in CALLS for n in range(1, counts[call] + 1)]
        for at, (call, n) in enumerate(points):
            ways = [("error", f"error={error}:when={n}") for error in ERRORS]
            ways += [("kill", f"signal=KILL:when={n}"), ("dying disk", f"error=EIO:when={n}+")]
            for way, (kind, how) in enumerate(ways):
                if (at + way) % self.every:
                    continue
                with self.room(scenario) as room:
                    run = room.save(room.observed, "strace", "-f", "-qq", "-o", "/dev/null", "-e", f"inject={call}:{how}")
                    self.count(kind, scenario, outcome(room, new, run), f"{call} {how}")

    def half_writes(self, scenario):
        """A limit on the size of files lets each write that crosses it go in half, and the next one fail."""
        _, new = self.calls_of(scenario)
        for limit in range(0, 800, 10 * self.every):
            with self.room(scenario) as room:
                run = room.save(room.observed, "prlimit", f"--fsize={limit}")
                self.count("half write", scenario, outcome(room, new, run), f"files of at most {limit} bytes")

    def full_disk(self):
        """A file system with so little room that the save runs into its end somewhere."""
        top = tempfile.mkdtemp(prefix="kavrel-full.")
        mounted = False
        try:
            mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=64k", "none", top], capture_output=True,
                                     check=False).returncode == 0
            if not mounted:
                return False
            for free in range(0, 32768, 1024 * self.every):
                for scenario in ("new", "replace"):
                    _, new = self.calls_of(scenario)
                    with self.room(scenario, top) as room:
                        filler = os.path.join(room.top, "filler")
                        with open(filler, "wb") as file, contextlib.suppress(OSError):
                            room_left = os.statvfs(top).f_bavail * os.statvfs(top).f_frsize
                            file.write(b"x" * max(0, room_left - free))
                        run = room.save(room.observed)
                        with contextlib.suppress(FileNotFoundError):
                            os.remove(filler)
                        self.count("full disk", scenario, outcome(room, new, run), f"{free} bytes free")
            return True
        finally:
            if mounted:
                subprocess.run(["umount", top], check=False)
            shutil.rmtree(top, ignore_errors=True)

    def writers(self, number):
        """Several copies of the program save other hours into one logbook at the same time."""
        with self.room("new") as room:
            runs = []
            for hour in range(number):
                text = OBSERVATION.format(day=15, visibility=97).replace("GG=12", f"GG={3 * (hour % 8):02}")
                text = text.replace("YY=15", f"YY={15 + hour // 8}")
                runs.append(subprocess.Popen(room.command(room.write(f"w{hour}.obs", text)), stdout=subprocess.DEVNULL,
                                             stderr=subprocess.PIPE))
            for run in runs:
                run.wait()
            lines = room.look()[1][:-1]
            good = len(lines) == number and len(set(lines)) == number and all(len(line) == COLUMNS for line in lines)
            good = good and all(run.returncode == 0 for run in runs)
            self.count("writers at once", "new", "both new" if good else f"WRONG: {len(lines)} lines of {number}",
                       f"{number} writers")
            for run in runs:
                run.stderr.close()

    def markdown(self):
        kinds = ["error", "kill", "dying disk", "half write", "full disk", "writers at once"]
        results = sorted({result for _, _, result in self.table})
        shown = "| scenario | fault | points | " + " | ".join(results) + " |\n|---" * 1
        shown += "|---" * (len(results) + 2) + "|\n"
        for scenario in ("new", "append", "replace"):
            for kind in kinds:
                row = {result: self.table[(scenario, kind, result)] for result in results}
                if total := sum(row.values()):
                    shown += f"| {scenario} | {kind} | {total} | " + " | ".join(str(row[r] or "") for r in results) + " |\n"
        return shown


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--table")
    parser.add_argument("cli")
    arguments = parser.parse_args()
    attack = Attack(os.path.abspath(arguments.cli), max(1, arguments.every))
    for scenario in ("new", "append", "replace"):
        attack.play(scenario)
        attack.half_writes(scenario)
    if not attack.full_disk():
        print("full disk: not played, nothing may be mounted here")
    attack.writers(8)
    table = attack.markdown()
    print(table)
    if arguments.table:
        with open(arguments.table, "w", encoding="utf-8") as file:
            file.write(HEADING + table)
    for line in attack.wrong:
        print(line)
    print(f"{attack.points} points, {len(attack.wrong)} wrong")
    return 1 if attack.wrong or attack.points == 0 else 0


sys.exit(main())
