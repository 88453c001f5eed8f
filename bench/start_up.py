#!/usr/bin/env python3
"""Runs the program's start, two windows with next to nothing in them and a scripted start in turns: start_up.py ROUNDS ROOT PROGRAM.

Prints the medians of wall time, processor time (steadier on a busy computer) and peak memory of each, and the program's share of the windows'. Any
window with a text pays for reading the fonts, so the window with one label and one field is what a start is held against."""
import os
import statistics
import sys
import time


def run(command):
    """Milliseconds of wall time and of processor time, and peak memory in MiB."""
    begin = time.perf_counter()
    child = os.posix_spawn(command[0], command, dict(os.environ, QT_LOGGING_RULES="*=false"))
    _, status, usage = os.wait4(child, 0)
    wall = (time.perf_counter() - begin) * 1000
    if os.waitstatus_to_exitcode(status) != 0:
        sys.exit(f"{command[0]} failed")
    return wall, (usage.ru_utime + usage.ru_stime) * 1000, usage.ru_maxrss / 1024


def main():
    rounds, root, program = int(sys.argv[1]), sys.argv[2], sys.argv[3]
    script = os.path.join(program, "start.session")
    with open(script, "w", encoding="utf-8") as session:
        session.write("start\nclose\n")
    commands = {
        "empty window": ["build/release/bench/bare_window"],
        "label and field": ["build/release/bench/bare_window", "text"],
        "desktop program": ["build/release/bench/program_start", root, program],
        "scripted program": ["build/release/src/kavrel-cli", "session", "--root", root, "--program", program, script],
    }
    results = {name: [] for name in commands}
    silent = os.open(os.devnull, os.O_WRONLY)
    output = os.dup(1)
    for number in range(rounds + 1):
        for name, command in commands.items():
            os.dup2(silent, 1)
            result = run(command)
            os.dup2(output, 1)
            if number > 0:  # the first round fills the caches
                results[name].append(result)
    medians = {name: [statistics.median(column) for column in zip(*values)] for name, values in results.items()}
    for name, (wall, processor, memory) in medians.items():
        print(f"{name:16} {wall:7.1f} ms, {processor:7.1f} ms of processor time, {memory:5.1f} MiB")
    for floor in ("empty window", "label and field"):
        shares = [a / b for a, b in zip(medians["desktop program"], medians[floor])]
        print(f"desktop program / {floor}: {shares[0]:.2f}, {shares[1]:.2f} in processor time, {shares[2]:.2f} in memory")


if __name__ == "__main__":
    main()
