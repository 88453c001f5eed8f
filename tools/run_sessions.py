#!/usr/bin/env python3
"""Plays scripted sessions and compares what they print with their transcripts.

  run_sessions.py --cli KAVREL_CLI FOLDER [NAME...]    plays the sessions (all when none is named)
  run_sessions.py --orphans FOLDER                     fails on files that belong to no session

NAME.session is a script, NAME.transcript what it must print, byte for byte. Each session runs in a room of its own: a new
root, a new program folder, a cleared environment and a clock that stands still. The comment block at the top of a session
may hold, in lines of the form "# key: value":

  status         exit status, 0 when left out (1: an expectation failed, 2: a command could not be carried out)
  locale         en or ja (en)
  clock          UTC (2014-11-15T11:50)
  tz             time zone of the local clock (UTC0)
  root-files     folder roots/NAME that is copied to where C: is; later ones are laid over earlier ones
  program-files  folder roots/NAME that is copied to the program folder (program)
  read-only      a path on C: that nobody may write
  printer        none
  leaves         a path on C: (the last part may be a pattern) whose content the transcript ends with

On a difference NAME.actual is left beside the session; scripts/accept-sessions NAME takes it over.
"""
import argparse
import difflib
import fnmatch
import os
import re
import shutil
import signal
import stat
import subprocess
import sys
import tempfile

DEFAULTS = {"status": "0", "locale": "en", "clock": "2014-11-15T11:50", "tz": "UTC0", "printer": ""}
LISTS = {"root-files", "program-files", "read-only", "leaves"}


class Wrong(Exception):
    """A session that cannot be played, with the reason."""


def read_options(path):
    options = dict(DEFAULTS)
    options.update({key: [] for key in LISTS})
    with open(path, encoding="utf-8") as session:
        for number, line in enumerate(session, 1):
            if not line.startswith("#"):
                break
            found = re.match(r"#\s*([a-z][a-z-]*):\s*(.*?)\s*$", line)
            if not found:
                continue
            key, value = found.groups()
            if key in LISTS:
                options[key].append(value)
            elif key in options:
                options[key] = value
            else:
                raise Wrong(f"{path}:{number}: unknown option {key}")
    if options["status"] not in {"0", "1", "2"}:
        raise Wrong(f"{path}: status is 0, 1 or 2")
    return options


def on_disk(root, path):
    """A path of the program's C: in the folder that plays it."""
    if not path.upper().startswith("C:\\"):
        raise Wrong(f"not on C: {path}")
    return os.path.join(root, *path[3:].split("\\"))


def lay_out(folder, names, target):
    for name in names:
        source = os.path.join(folder, "roots", name)
        if not os.path.isdir(source):
            raise Wrong(f"no folder {source}")
        # git keeps no empty folder, so one is marked by a file that is not copied.
        # A link stays one, so that it may lead nowhere.
        shutil.copytree(source, target, symlinks=True, dirs_exist_ok=True, ignore=shutil.ignore_patterns(".keep"))


def set_writable(path, writable):
    mode = stat.S_IMODE(os.stat(path).st_mode)
    os.chmod(path, mode | 0o200 if writable else mode & ~0o222)


def quoted(line):
    escapes = {"\n": "\\n", "\r": "\\r", "\t": "\\t", '"': '\\"', "\\": "\\\\", "\u3000": "\\u3000"}
    return '"' + "".join(escapes.get(c, c if c.isprintable() else f"\\x{ord(c):02X}") for c in line) + '"'


def left_behind(root, pattern):
    """What a session left in a file: its size and its lines."""
    path = on_disk(root, pattern)
    folder, last = os.path.split(path)
    names = sorted(os.listdir(folder)) if os.path.isdir(folder) else []
    names = [name for name in names if fnmatch.fnmatchcase(name, last)]
    if not names:
        return f"--- {pattern}: nothing there\n"
    shown = ""
    for name in names:
        shown += f"--- {pattern[:len(pattern) - len(last)]}{name}"
        if os.path.isdir(os.path.join(folder, name)):
            shown += ": a folder\n"
            continue
        with open(os.path.join(folder, name), "rb") as file:
            content = file.read()
        shown += f": {len(content)} bytes\n"
        try:
            text = content.decode("utf-8")
        except UnicodeDecodeError:
            text = content.decode("cp932", "backslashreplace")
        shown += "".join(quoted(line) + "\n" for line in re.findall(r"[^\n]*\n|[^\n]+", text))
    return shown


def play(cli, folder, name):
    """Status (negative: killed by a signal) and what was printed."""
    path = os.path.join(folder, name + ".session")
    options = read_options(path)
    with tempfile.TemporaryDirectory(prefix="kavrel-session-") as room:
        root, program = os.path.join(room, "root"), os.path.join(room, "root", "program")
        os.makedirs(root)
        os.makedirs(program)
        lay_out(folder, options["root-files"], root)
        lay_out(folder, options["program-files"] or ["program"], program)
        locked = [on_disk(root, path) for path in options["read-only"]]
        for target in locked:
            set_writable(target, False)
        command = [cli, "session", "--root", root, "--program", program, "--locale", options["locale"],
                   "--clock", options["clock"]]
        if options["printer"] == "none":
            command.append("--no-printer")
        environment = {"PATH": os.defpath, "HOME": room, "TZ": options["tz"], "LC_ALL": "C"}
        for name_kept in ("ASAN_OPTIONS", "UBSAN_OPTIONS"):
            if name_kept in os.environ:
                environment[name_kept] = os.environ[name_kept]
        with open(path, "rb") as script:
            done = subprocess.run(command, stdin=script, stdout=subprocess.PIPE, stderr=subprocess.PIPE, cwd=room,
                                  env=environment, check=False)
        for target in locked:
            set_writable(target, True)
        printed = done.stdout + "".join(left_behind(root, path) for path in options["leaves"]).encode("utf-8")
        if room.encode() in printed:
            raise Wrong(f"{name}: the transcript tells where this computer keeps the files")
        return int(options["status"]), done.returncode, printed, done.stderr.decode("utf-8", "replace")


def difference(expected, actual, name):
    """Empty when equal. The lengths come first: a transcript that merely ends early must not pass."""
    if expected == actual:
        return ""
    old, new = (text.decode("utf-8", "backslashreplace").split("\n") for text in (expected, actual))
    head = f"{name}: {len(old) - 1} lines expected, {len(new) - 1} printed\n"
    return head + "\n".join(difflib.unified_diff(old, new, name + ".transcript", name + ".actual", lineterm=""))


def check(cli, folder, name):
    """The reasons why the session fails; none when it passes."""
    transcript = os.path.join(folder, name + ".transcript")
    left = os.path.join(folder, name + ".actual")
    wanted, status, printed, errors = play(cli, folder, name)
    reasons = []
    if status < 0:
        reasons.append(f"{name}: crashed with {signal.Signals(-status).name}\n{errors}")
    elif status != wanted:
        reasons.append(f"{name}: exit status {status}, expected {wanted}\n{errors}")
    expected = b""
    if os.path.exists(transcript):
        with open(transcript, "rb") as file:
            expected = file.read()
    else:
        reasons.append(f"{name}: no transcript")
    if changed := difference(expected, printed, name):
        reasons.append(changed)
    if reasons:
        with open(left, "wb") as file:
            file.write(printed)
    elif os.path.exists(left):
        os.remove(left)
    return reasons


def session_names(folder):
    return sorted(name[:-8] for name in os.listdir(folder) if name.endswith(".session"))


def orphans(folder):
    """Files that belong to no session, and sessions without a transcript."""
    names = set(session_names(folder))
    used, reasons = {"program"}, []
    for name in sorted(names):
        options = read_options(os.path.join(folder, name + ".session"))
        used.update(options["root-files"] + options["program-files"])
        if not os.path.exists(os.path.join(folder, name + ".transcript")):
            reasons.append(f"{name}.session has no transcript")
    for entry in sorted(os.listdir(folder)):
        base, ending = os.path.splitext(entry)
        if entry in {"roots", "README.md"}:
            continue
        if ending not in {".session", ".transcript", ".actual"} or base not in names:
            reasons.append(f"{entry} belongs to no session")
    roots = os.path.join(folder, "roots")
    for entry in sorted(os.listdir(roots)) if os.path.isdir(roots) else []:
        if entry not in used:
            reasons.append(f"roots/{entry} is used by no session")
    return reasons


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--cli")
    parser.add_argument("--orphans", action="store_true")
    parser.add_argument("folder")
    parser.add_argument("names", nargs="*")
    arguments = parser.parse_args()
    try:
        if arguments.orphans:
            reasons = orphans(arguments.folder)
        else:
            names = arguments.names or session_names(arguments.folder)
            reasons = [] if names else ["no sessions"]
            for name in names:
                reasons += check(os.path.abspath(arguments.cli), arguments.folder, name)
            print(f"{len(names)} sessions, {len(reasons)} failures")
    except (Wrong, OSError) as error:
        reasons = [str(error)]
    for reason in reasons:
        print(reason)
    sys.exit(1 if reasons else 0)


main()
