#!/usr/bin/env python3
"""Checks what scripts/run shows without a display: check_sample_run.py OUTPUT.

The report and the logbook record of examples/north_pacific.obs stand here as a person writes them down by hand from the
observation, group by group and column by column; nothing is taken from the program. Both must be shown, and both files
must exist where the output says and hold what it shows.
"""
import os
import sys

# What is in the air and in the sea of the example, as FM 13 SHIP says it.
REPORT = (
    "BBXX JXKV "
    "15124 "  # the 15th, 12 UTC, knots by anemometer
    "99357 "  # 35 degrees 42 minutes: 42 / 6 is 7 tenths
    "11653 "  # north and east, 165 degrees 18 minutes
    "41497 "  # no rain measured, weather given, cloud base figure 4, visibility 97
    "62718 "  # 6 oktas, 270 degrees, 18 knots
    "10152 "  # air +15.2
    "20108 "  # dew point +10.8
    "40132 "  # 1013.2 hPa
    "52014 "  # rising, 1.4 hPa
    "72582 "  # showers, after showers and clouds
    "84531 "  # 4 oktas of low clouds, types 5, 3 and 1
    "22213 "  # north-east, 11 to 15 knots
    "00178 "  # sea +17.8 by intake
    "20604 "  # wind waves of 6 s and 4 half metres
    "32531 "  # swells from 250 and 310 degrees
    "40905 "  # 9 s, 5 half metres
    "51103 "  # 11 s, 3 half metres
    "80130 "  # wet bulb +13.0, measured
    "....."
)

# Columns of the IMMT-5 record: (first, last, content).
RECORD = [
    (1, 1, "3"),  # temperatures in tenths
    (2, 11, "2014111512"),
    (12, 19, "13571653"),  # quadrant, 35.7, 165.3
    (20, 20, "0"),
    (21, 24, "4976"),  # h, VV, N
    (25, 29, "27418"),  # dd, iw, ff
    (30, 33, "0152"),
    (34, 37, "5108"),  # dew point above zero, computed
    (38, 41, "0132"),
    (42, 45, "2582"),  # ww, W1, W2
    (46, 49, "4531"),  # Nh, CL, CM, CH
    (50, 54, "01781"),  # sea, by intake
    (55, 59, "00604"),  # wind waves, estimated
    (60, 65, "250905"),  # first swell
    (66, 69, "////"),  # no ice on the ship is looked for
    (70, 71, "4 "),
    (72, 78, "JXKV   "),
    (79, 84, "JP3014"),
    (85, 88, "    "),
    (89, 92, "0130"),  # wet bulb
    (93, 96, "2014"),  # a, ppp
    (97, 98, "13"),  # Ds, Vs
    (99, 104, "311103"),  # second swell
    (105, 109, "/////"),  # no sea ice is looked for
    (110, 132, "8500000000000000000000 "),
    (133, 151, " " * 19),  # no VOSClim data
    (152, 159, "0000 000"),
    (160, 163, "0750"),
    (164, 164, "4"),  # humidity computed, in whole percents
    (165, 165, "0"),  # no automatic weather station
    (166, 172, "9074729"),
]


def record():
    line = ""
    for first, last, content in RECORD:
        if first != len(line) + 1 or last - first + 1 != len(content):
            sys.exit(f"columns {first}-{last} of the expected record do not fit")
        line += content
    return line


def after(lines, start):
    """What follows on the line that begins so, which must be there once."""
    found = [line[len(start):] for line in lines if line.startswith(start)]
    if len(found) != 1:
        sys.exit(f"the output has {len(found)} lines that begin with '{start}', not one")
    return found[0]


def held(path, name):
    if os.path.basename(path) != name:
        sys.exit(f"{path} is not named {name}")
    try:
        with open(path, "rb") as file:
            return file.read()
    except OSError as error:
        sys.exit(f"the output names {path}: {error.strerror}")


def must_be(what, found, wanted):
    if found != wanted:
        sys.exit(f"{what}\n   is {found!r}\n  not {wanted!r}")


def main():
    with open(sys.argv[1], encoding="utf-8") as output:
        lines = output.read().split("\n")
    report, logbook = after(lines, "report "), after(lines, "logbook ")
    shown = [lines.index(f"Weather report ({report}):") if f"Weather report ({report}):" in lines else -1,
             lines.index(f"Logbook record ({logbook}):") if f"Logbook record ({logbook}):" in lines else -1]
    if -1 in shown:
        sys.exit("the output does not show what it saved")
    must_be("the report shown", lines[shown[0] + 1], REPORT)
    must_be("the logbook record shown", lines[shown[1] + 1], record())
    must_be("what follows the record", lines[shown[1] + 2:], [""])
    must_be("the report's file", held(report, "14111512.tlx"), REPORT.encode())
    must_be("the logbook", held(logbook, "immt5.log"), (record() + "\n").encode())
    print("the sample observation came out as it must")


if __name__ == "__main__":
    main()
