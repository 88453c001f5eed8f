#!/usr/bin/env python3
"""Kills the program after each entry and starts it again: nothing that was accepted may be lost.

  draft_kill_test.py KAVREL_CLI SESSIONS_FOLDER [EMULATOR]

The program is fed through a pipe, one command at a time, and killed with SIGKILL while it waits for the next: once after the
entry was taken, once in the middle of the next field. A second start must offer the draft, and Yes must show every entry.
A third plays two copies at once: the one that lives keeps its draft from the other.
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile

ENTRIES = [("Year", "2014"), ("Month", "11"), ("YY", "15"), ("GG", "12"), ("LaDeg", "35"), ("LaMin", "42"),
           ("LoDeg", "165"), ("LoMin", "18"), ("reading", "1010.8"), ("dry_bulb", "15.2"), ("wet_bulb", "13.0"),
           ("TwTwTw", "17.8"), ("N", "6"), ("Nh", "4"), ("h", "300"), ("ww", "25"), ("W1", "8"), ("W2", "2")]
# Where an emulator keeps its settings.
OF_EMULATOR = {key: value for key, value in os.environ.items() if key.startswith("KAVREL_WINE")}


class Program:
    """One copy of the program on the files of `room`."""

    def __init__(self, cli, room):
        program = os.path.join(room, "program")
        if not os.path.exists(os.path.join(program, "SeaMap")):
            os.symlink(os.path.join(os.path.dirname(cli[-1]), "SeaMap"), os.path.join(program, "SeaMap"))
        command = [*cli, "session", "--root", os.path.join(room, "root"), "--program", program,
                   "--locale", "en", "--clock", "2014-11-15T11:50"]
        self.process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                        env={"PATH": os.defpath, "HOME": room, "TZ": "UTC0", "LC_ALL": "C", **OF_EMULATOR})

    def tell(self, *commands):
        """Hands the commands over and returns what was printed until the program waits again."""
        printed = ""
        # A comment is repeated when the program reads on: by then it has done all that came before.
        for command in commands:
            self.process.stdin.write(command + "\n# read on\n")
            self.process.stdin.flush()
            line = ""
            while line != "# read on\n":
                line = self.process.stdout.readline()
                if not line:
                    raise SystemExit(f"the program ended at {command!r}:\n{printed}")
                printed += line
        return printed

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()
        self.process.stdin.close()
        self.process.stdout.close()


def lay_out(room, sessions):
    for name in ("folders", "ship_psychrometer"):
        shutil.copytree(os.path.join(sessions, "roots", name), os.path.join(room, "root"), dirs_exist_ok=True)
    shutil.copytree(os.path.join(sessions, "roots", "program"), os.path.join(room, "program"))


def value_of(program, name):
    shown = program.tell("show " + name)
    return shown.split(' = "', 1)[1].split('"', 1)[0] if ' = "' in shown else None


def check(reasons, holds, reason):
    if not holds:
        reasons.append(reason)


def killed_after_each_entry(cli, room, reasons):
    drafts = os.path.join(room, "root", "kavrel", "file")
    program = Program(cli, room)
    program.tell("start")
    for count, (name, value) in enumerate(ENTRIES, 1):
        program.tell(f"set {name} {value}", "key Tab")
        typing = count < len(ENTRIES) and count % 2 == 0
        if typing:
            program.tell(f"set {ENTRIES[count][0]} {ENTRIES[count][1][:1]}")
        program.kill()
        left = sorted(entry for entry in os.listdir(drafts) if entry.startswith("DRAFT"))
        check(reasons, left == ["DRAFT1.DAT", "DRAFT1.LCK"], f"after {name}: {left}")
        program = Program(cli, room)
        opened = program.tell("start")
        check(reasons, "An observation that was not saved was found" in opened, f"after {name}: {opened}")
        opened = program.tell("answer yes")
        check(reasons, "report not saved" in opened, f"after {name}: {opened}")
        for entered, text in ENTRIES[:count]:
            shown = value_of(program, entered)
            check(reasons, shown == text, f"killed after {name}: {entered} is {shown!r}, entered was {text!r}")
        if reasons:
            break
    program.kill()


def two_copies(cli, room, reasons):
    first = Program(cli, room)
    first.tell("start", "set N 5", "key Tab")
    second = Program(cli, room)
    opened = second.tell("start")
    check(reasons, "not saved was found" not in opened, f"the living draft was offered: {opened}")
    second.tell("set Nh 3", "key Tab")
    second.kill()
    first.kill()
    third = Program(cli, room)
    third.tell("start", "answer yes")
    check(reasons, value_of(third, "N") == "5", "the first copy's entry is lost")
    fourth = Program(cli, room)
    fourth.tell("start", "answer yes")
    check(reasons, value_of(fourth, "Nh") == "3", "the second copy's entry is lost")
    for program in (third, fourth):
        program.kill()


def main():
    cli, sessions = [os.path.abspath(program) for program in (*sys.argv[3:4], sys.argv[1])], sys.argv[2]
    reasons = []
    for play in (killed_after_each_entry, two_copies):
        with tempfile.TemporaryDirectory(prefix="kavrel-kill-") as room:
            lay_out(room, sessions)
            play(cli, room, reasons)
    for reason in reasons:
        print(reason)
    sys.exit(1 if reasons else 0)


main()
