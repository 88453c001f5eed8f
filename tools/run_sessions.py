#!/usr/bin/env python3
"""Plays scripted sessions and compares what they print with their transcripts.

  run_sessions.py --cli KAVREL_CLI FOLDER [NAME...]    plays the sessions (all when none is named); --emulator PROGRAM runs
                                                       a KAVREL_CLI of another system, --jobs N as many at a time
  run_sessions.py --script FOLDER NAME...              prints scripts as the program is given them
  run_sessions.py --orphans FOLDER                     fails on files that belong to no session, and on scripts written twice

Sessions lie in the folders below FOLDER, and no two bear one name: "NAME" means the same as "SUBFOLDER/NAME". NAME.session is
a script, NAME.transcript what it must print, byte for byte. Each session runs in a room of its own: a new root, a new program
folder, a cleared environment and a clock that stands still.

A script whose first line is "# locales: en ja" is played once in each of these languages: "NAME.en" and "NAME.ja" are its two
plays, NAME.en.transcript and NAME.ja.transcript what they must print. A line of it that begins with "[en] " or "[ja] " is a
command of that play only, as where a text is expected.

The comment block at the top of a session may hold, in lines of the form "# key: value":

  locales        the languages it is played in, in the first line only
  locale         en or ja (en), of a script that is played once
  status         exit status, 0 when left out (1: an expectation failed, 2: a command could not be carried out)
  clock          UTC (2014-11-15T11:50)
  tz             time zone of the local clock (UTC0)
  root-files     folder roots/NAME that is copied to where C: is; later ones are laid over earlier ones; all files bear the
                 time of the clock
  program-files  folder roots/NAME that is copied to the program folder (program)
  map            none: the sea map's tiles do not lie in the program folder (left out: those that lie beside the program
                 do, but where program-files brings its own)
  read-only      a path on C: that nobody may write
  printer        none: there is none; fails: its queue takes nothing (left out: "answer print" prints each line of the
                 document into the transcript; a PDF file that is saved holds the lines alone, and says so)
  leaves         a path on C: (the last part may be a pattern) whose content the transcript ends with

On a difference NAME.actual (NAME.en.actual) is left beside the session; scripts/accept-sessions NAME takes it over.
"""
import argparse
import collections
import concurrent.futures
import contextlib
import datetime
import difflib
import fnmatch
import functools
import os
import re
import shutil
import signal
import stat
import subprocess
import sys
import tempfile

LANGUAGES = ("en", "ja")
DEFAULTS = {"status": "0", "locale": "en", "clock": "2014-11-15T11:50", "tz": "UTC0", "printer": "", "map": ""}
LISTS = {"root-files", "program-files", "read-only", "leaves"}


class Wrong(Exception):
    """A session that cannot be played, with the reason."""


# One play of a script: `name` is what its transcript is called, `base` the path without an ending of the script.
Play = collections.namedtuple("Play", "name base locale options")


def read_options(path):
    options = dict(DEFAULTS)
    options.update({key: [] for key in LISTS})
    options["locales"] = None
    with open(path, encoding="utf-8") as session:
        for number, line in enumerate(session, 1):
            if not line.startswith("#"):
                break
            found = re.match(r"#\s*([a-z][a-z-]*):\s*(.*?)\s*$", line)
            if not found:
                continue
            key, value = found.groups()
            if key == "locales":
                options[key] = value.split()
                # Whoever makes a test of each play reads the first line alone.
                if number != 1:
                    raise Wrong(f"{path}:{number}: locales stands in the first line")
            elif key in LISTS:
                options[key].append(value)
            elif key in options:
                options[key] = value
            else:
                raise Wrong(f"{path}:{number}: unknown option {key}")
    if options["status"] not in {"0", "1", "2"}:
        raise Wrong(f"{path}: status is 0, 1 or 2")
    if options["printer"] not in {"", "none", "fails"}:
        raise Wrong(f"{path}: printer is none or fails")
    if options["locales"] is not None and (len(options["locales"]) < 2 or not set(options["locales"]) <= set(LANGUAGES)):
        raise Wrong(f"{path}: locales are {' '.join(LANGUAGES)}")
    return options


@functools.cache
def scripts_of(folder):
    """The scripts in all folders, by name: their paths without an ending."""
    scripts, twice = {}, []
    for place, folders, names in os.walk(folder):
        if place == folder and "roots" in folders:
            folders.remove("roots")
        for name in sorted(names):
            if name.endswith(".session"):
                base = name[:-8]
                twice += [base] if base in scripts else []
                scripts[base] = os.path.join(place, base)
    if twice:
        raise Wrong(f"two sessions are called {', '.join(sorted(twice))}")
    return dict(sorted(scripts.items()))


def plays_of(base):
    """The plays of a script, one for each of its languages."""
    options = read_options(base + ".session")
    if options["locales"] is None:
        return [Play(os.path.basename(base), base, options["locale"], options)]
    return [Play(f"{os.path.basename(base)}.{locale}", base, locale, options) for locale in options["locales"]]


def plays_named(folder, wanted):
    """All plays that NAME, NAME.LOCALE or either behind SUBFOLDER/ means."""
    place, name = os.path.split(wanted)
    scripts = scripts_of(folder)
    base = scripts.get(name) or scripts.get(os.path.splitext(name)[0])
    if base and place in ("", os.path.relpath(os.path.dirname(base), folder)):
        found = [play for play in plays_of(base) if name in (play.name, os.path.basename(base))]
        if found:
            return found
    raise Wrong(f"no session {wanted}")


def script_of(play):
    """The script as the program is given it: without the lines of other languages."""
    with open(play.base + ".session", "rb") as file:
        lines = file.read().splitlines(keepends=True)
    script = b""
    for number, line in enumerate(lines, 1):
        mark = re.match(rb"\[([a-z]+)\] ", line)
        if mark and mark[1].decode() not in (play.options["locales"] or []):
            raise Wrong(f"{play.base}.session:{number}: a line of a language that it is not played in")
        if not mark or mark[1].decode() == play.locale:
            script += line[mark.end():] if mark else line
    return script


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


def set_time(root, clock):
    """Lists show when a file was written, which no checkout keeps."""
    moment = datetime.datetime.fromisoformat(clock).replace(tzinfo=datetime.timezone.utc).timestamp()
    for folder, _, names in os.walk(root):
        for name in names:
            os.utime(os.path.join(folder, name), (moment, moment), follow_symlinks=False)


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


def play_it(cli, folder, play):
    """Status (negative: killed by a signal) and what was printed."""
    options, script = play.options, script_of(play)
    with tempfile.TemporaryDirectory(prefix="kavrel-session-") as room:
        root, program = os.path.join(room, "root"), os.path.join(room, "root", "program")
        os.makedirs(root)
        os.makedirs(program)
        lay_out(folder, options["root-files"], root)
        lay_out(folder, options["program-files"] or ["program"], program)
        tiles = os.path.join(program, "SeaMap")
        if options["map"] != "none" and not os.path.exists(tiles):
            os.symlink(os.path.join(os.path.dirname(cli[-1]), "SeaMap"), tiles)
        set_time(root, options["clock"])
        locked = [on_disk(root, path) for path in options["read-only"]]
        for target in locked:
            set_writable(target, False)
        command = [*cli, "session", "--root", root, "--program", program, "--locale", play.locale,
                   "--clock", options["clock"]]
        if options["printer"]:
            command += ["--printer", options["printer"]]
        environment = {"PATH": os.defpath, "HOME": room, "TZ": options["tz"], "LC_ALL": "C"}
        for name_kept in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "KAVREL_WINE_PREFIX"):
            if name_kept in os.environ:
                environment[name_kept] = os.environ[name_kept]
        # An emulator lets a program fall now and then before it has begun. One that begins prints at once what it reads.
        for _ in range(4 if len(cli) > 1 else 1):
            done = subprocess.run(command, input=script, stdout=subprocess.PIPE, stderr=subprocess.PIPE, cwd=room,
                                  env=environment, check=False)
            if done.stdout or done.returncode == int(options["status"]):
                break
        for target in locked:
            set_writable(target, True)
        printed = done.stdout + "".join(left_behind(root, path) for path in options["leaves"]).encode("utf-8")
        if room.encode() in printed:
            raise Wrong(f"{play.name}: the transcript tells where this computer keeps the files")
        return int(options["status"]), done.returncode, printed, done.stderr.decode("utf-8", "replace")


def difference(expected, actual, name):
    """Empty when equal. The lengths come first: a transcript that merely ends early must not pass."""
    if expected == actual:
        return ""
    old, new = (text.decode("utf-8", "backslashreplace").split("\n") for text in (expected, actual))
    head = f"{name}: {len(old) - 1} lines expected, {len(new) - 1} printed\n"
    return head + "\n".join(difflib.unified_diff(old, new, name + ".transcript", name + ".actual", lineterm=""))


def transcript_of(play):
    return os.path.join(os.path.dirname(play.base), play.name + ".transcript")


def has_links(folder, play):
    """A link of this system's is none to a program of another one that is run here."""
    roots = [os.path.join(folder, "roots", name) for name in play.options["root-files"] + play.options["program-files"]]
    return any(os.path.islink(os.path.join(place, name)) for root in roots for place, folders, names in os.walk(root)
               for name in folders + names)


def check(cli, folder, play):
    """The reasons why the play fails; none when it passes."""
    name, transcript = play.name, transcript_of(play)
    left = os.path.join(os.path.dirname(play.base), name + ".actual")
    wanted, status, printed, errors = play_it(cli, folder, play)
    # The emulator's server, which many programs ask at once, lets one fall now and then before it has begun.
    if len(cli) > 1 and "wine client error" in errors:
        wanted, status, printed, errors = play_it(cli, folder, play)
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
        # Whoever plays sessions without the right to write here sees the difference all the same.
        with contextlib.suppress(PermissionError), open(left, "wb") as file:
            file.write(printed)
    elif os.path.exists(left):
        with contextlib.suppress(PermissionError):
            os.remove(left)
    return reasons


def commands_of(base):
    """What a script does and on which files, whatever its language and comments: scripts that agree are one."""
    with open(base + ".session", encoding="utf-8") as file:
        lines = [line.strip() for line in file]
    options = {key: value for key, value in read_options(base + ".session").items() if not key.startswith("locale")}
    return repr((options, [line for line in lines if line and not line.startswith("#")]))


def orphans(folder):
    """Files that belong to no session, sessions without a transcript or outside the folders, scripts that repeat another, and
    unused sample files."""
    used, known, reasons, done = {"program"}, {"README.md"}, [], {}
    for base in scripts_of(folder).values():
        script = os.path.relpath(base + ".session", folder)
        known.add(script)
        if os.path.dirname(script) == "":
            reasons.append(f"{script} lies in no folder")
        if (first := done.setdefault(commands_of(base), script)) != script:
            reasons.append(f"{script} does what {first} does: play one in both languages")
        for play in plays_of(base):
            script_of(play)
            used.update(play.options["root-files"] + play.options["program-files"])
            transcript = os.path.relpath(transcript_of(play), folder)
            known.update({transcript, transcript[:-len(".transcript")] + ".actual"})
            if not os.path.exists(os.path.join(folder, transcript)):
                reasons.append(f"{script} has no transcript {os.path.basename(transcript)}")
    for place, folders, names in os.walk(folder):
        if place == folder and "roots" in folders:
            folders.remove("roots")
        files = [os.path.relpath(os.path.join(place, name), folder) for name in names]
        reasons += [f"{file} belongs to no session" for file in sorted(files) if file not in known]
    roots = os.path.join(folder, "roots")
    for entry in sorted(os.listdir(roots)) if os.path.isdir(roots) else []:
        if entry not in used:
            reasons.append(f"roots/{entry} is used by no session")
    return reasons


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--cli")
    parser.add_argument("--emulator")
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--orphans", action="store_true")
    parser.add_argument("--script", action="store_true")
    parser.add_argument("folder")
    parser.add_argument("names", nargs="*")
    arguments = parser.parse_intermixed_args()
    try:
        if arguments.orphans:
            reasons = orphans(arguments.folder)
        else:
            names = arguments.names or scripts_of(arguments.folder)
            plays = [play for name in names for play in plays_named(arguments.folder, name)]
            if arguments.script:
                for play in plays:
                    sys.stdout.buffer.write(script_of(play))
                return
            left_out = sum(bool(arguments.emulator) and has_links(arguments.folder, play) for play in plays)
            plays = [play for play in plays if not (arguments.emulator and has_links(arguments.folder, play))]
            reasons = [] if plays else ["no sessions"]
            cli = [os.path.abspath(program) for program in (arguments.emulator, arguments.cli) if program]
            with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
                for wrong in pool.map(lambda play: check(cli, arguments.folder, play), plays):
                    reasons += wrong
            left_out = f", {left_out} left out for their links" if left_out else ""
            print(f"{len(plays)} sessions, {len(reasons)} failures{left_out}")
    except (Wrong, OSError) as error:
        reasons = [str(error)]
    for reason in reasons:
        print(reason)
    sys.exit(1 if reasons else 0)


main()
