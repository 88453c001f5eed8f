#!/usr/bin/env python3
"""Writes a session for every real report: its figures are typed field by field into the main window.

  make_report_sessions.py TESTS            writes real_report_NN.session, one for each line of the data file, into
                                           TESTS/sessions/generated/real_reports, which holds nothing else
  make_report_sessions.py --check TESTS    fails when a session there is not what this program writes, or when the report in
                                           its transcript is not the real one, changed by the rules below and nothing else
  make_report_sessions.py --list TESTS     the changes, as the table of docs/real-reports.md

The reports come from ships whose programs follow other practices, so not every one can come out as it went in. Each
difference has a rule, and the rules are the whole list.
"""
import os
import re
import sys

RULES = {
    "ship": "The call sign is the ship's own.",
    "hour": "A report belongs to a main or intermediate synoptic hour; the time screen refuses any other.",
    "knots": "Wind speeds are in knots (iw 3 or 4): metres a second are turned into knots before they are typed.",
    "iX": "The station is manned: iX is 1, or 3 when neither present nor past weather is observed.",
    "always": "8NhCLCMCH and 222DsVs are written in every report.",
    "missing": "A group without any figure is left out, and the word ICE with its group.",
    "visibility": "Visibility is reported in the codes 90 to 99; another code is not observed here.",
    "letters": "A figure that is no figure cannot be typed: a solidus stands for it, or for the whole value.",
    "steady": "A steady pressure (a = 4) has not changed: another amount is refused, and 000 stands for it.",
    "dew point": "With a wet bulb the dew point is computed from both bulbs.",
    "other": "Groups behind the sea ice and national ones (70HHH, 333) are not written.",
    "end": "The report ends in a blank and five full stops.",
}

METRES = ["49", "99", "199", "299", "599", "999", "1499", "1999", "2499", "2500"]  # cloud base of each code figure
KNOTS = 3600 / 1852

# Latitude and longitude groups of the reports that were sent from a coast or a harbour, by the chart: the Firth of Clyde,
# Dublin, the Flemish coast (twice), Cook Strait, the coast of Holland, Galveston. There the program warns of land.
NEAR_LAND = {("99556", "70051"), ("99533", "70062"), ("99513", "10032"), ("99413", "31748"), ("99524", "10048"),
             ("99293", "70948")}


def split(text):
    """The report's groups by name. Section 2 begins behind 222DsVs; what no name fits is "other"."""
    words = text.split()
    groups = dict(zip(("time", "latitude", "longitude", "visibility", "wind"), words[2:7]))
    section, seen = 1, ""
    for word in words[7:]:
        head = word[0]
        if groups.get("other") or word == "333" or (word.startswith("70") and section == 2):
            groups.setdefault("other", word)
        elif word.startswith("222") and section == 1:
            section, seen = 2, ""
            groups["movement"] = word
        elif word == "ICE" or "ice" in groups:
            groups["ice"] = word
        elif head > seen:
            seen = head
            groups[f"{section}:{head}"] = word
        else:
            groups.setdefault("other", word)
    return groups


def degrees(figures):
    """A value in tenths behind its sign, as it is typed; nothing when a figure is missing."""
    sign, value = figures[0], figures[1:]
    if not value.isdigit() or not sign.isdigit():
        return ""
    return ("-" if int(sign) % 2 else "") + f"{int(value) / 10:.1f}"


def metres(figures):
    return f"{int(figures) / 2:.1f}" if figures.isdigit() else "//"


class Typed:
    """What is typed for a report, the report that must come out, and the rules that changed it."""

    def __init__(self, text):
        self.text, self.groups = text, split(text)
        self.rules, self.lines, self.out = ["ship", "end"], [], []
        self.wet_bulb = self.groups.get("2:8", "8////")[2:].isdigit() and "2:8" in self.groups
        self.anemometer = self.groups["time"][4] in "14"
        self.weather = "1:7" in self.groups and self.groups["1:7"] != "7////"
        self.type_all()

    def note(self, rule):
        if rule not in self.rules:
            self.rules.append(rule)

    def set(self, field, value):
        if value:
            self.lines.append(f"set {field} {value}")

    def figure(self, field, figure):
        """A code figure: typed when it is one, or a solidus; another character cannot be."""
        if not re.fullmatch(r"[0-9]+|/+", figure):
            self.note("letters")
            return "/" * len(figure)
        self.set(field, figure)
        return figure

    def type_all(self):
        self.type_place()
        self.type_wind()
        self.type_measured()
        self.type_weather()
        self.type_sea()
        self.out.append(".....")

    def type_place(self):
        time, lat, lon = self.groups["time"], self.groups["latitude"], self.groups["longitude"]
        self.lines += ["key F1", "set year 2014", "set month 11", f"set day {time[:2]}", f"set hour {time[2:4]}", "press ok"]
        hour = int(time[2:4])
        if hour % 3:
            self.note("hour")
            self.lines += ["expect-message synoptic hour", "answer ok", f"set hour {hour // 3 * 3:02}", "press ok"]
            time = f"{time[:2]}{hour // 3 * 3:02}{time[4:]}"
        iw = "4" if self.anemometer else "3"
        if time[4] != iw:
            self.note("knots")
        self.set("LaDeg", lat[2:4])
        self.set("LaMin", f"{int(lat[4]) * 6:02}")
        self.lines.append(f"choose north_south {0 if lon[0] in '17' else 1}")
        self.set("LoDeg", lon[1:4])
        self.set("LoMin", f"{int(lon[4]) * 6:02}")
        self.lines.append(f"choose east_west {0 if lon[0] in '13' else 1}")
        if (lat, lon) in NEAR_LAND:
            self.lines.append("press ok")
        self.out += ["BBXX", "JABC", time[:4] + iw, lat, lon]

    def type_wind(self):
        seen, wind = self.groups["visibility"], self.groups["wind"]
        ix = "1" if self.weather else "3"
        if seen[1] != ix:
            self.note("iX")
        height, code = seen[2], seen[3:]
        if height.isdigit():
            self.set("h", METRES[int(height)])
        if not re.fullmatch(r"9[0-9]|//", code):
            self.note("visibility")
            code = "//"
        self.set("VV", code)
        self.out.append("4" + ix + height + code)
        total, direction, speed = wind[0], wind[1:3], wind[3:]
        self.figure("N", total)
        self.set("dd", direction)
        if speed.isdigit():
            if self.groups["time"][4] in "01":
                speed = f"{int(int(speed) * KNOTS + 0.5):02}"
            self.set("ff", speed)
        self.out.append(total + direction + speed)

    def type_measured(self):
        air, dew, wet = self.groups.get("1:1"), self.groups.get("1:2"), self.groups.get("2:8")
        pressure, tendency = self.groups.get("1:4", "4////"), self.groups.get("1:5", "5////")
        if pressure[1:].isdigit():
            hectopascal = int(pressure[1:]) / 10
            hectopascal += 1000 if hectopascal < 500 else 0
            self.set("reading" if self.wet_bulb else "PPPP", f"{hectopascal:.1f}")
        if air:
            self.set("dry_bulb" if self.wet_bulb else "air_temperature", degrees(air[1:]))
            self.out.append(air)
        if self.wet_bulb:
            self.set("wet_bulb", degrees(wet[1:]))
            self.note("dew point")
            self.out.append("2....")  # computed: its sign and figures stand in the transcript
        elif dew and degrees(dew[1:]):
            self.set("dew_point", degrees(dew[1:]))
            self.out.append(dew)
        elif dew:
            self.note("letters" if dew != "2////" else "missing")
        self.keep(pressure, "4////" if "1:4" in self.groups else None)
        self.figure("a", tendency[1])
        if tendency[1] == "4" and tendency[2:].strip("0"):
            self.note("steady")
            self.set("ppp", f"{int(tendency[2:]) / 10:.1f}")
            self.lines += ["key Tab", "expect-message equal 000", "answer ok"]
            tendency = "54000"
        if tendency[2:].isdigit():
            self.set("ppp", f"{int(tendency[2:]) / 10:.1f}")
        self.keep(tendency, "5////" if "1:5" in self.groups else None)

    def keep(self, group, missing):
        """A group as it is, or left out because nothing is in it."""
        if group[1:].strip("/"):
            self.out.append(group)
        elif missing:
            self.note("missing")

    def type_weather(self):
        weather, cloud = self.groups.get("1:7", "7////"), self.groups.get("1:8")
        if self.weather:
            for field, figure in (("ww", weather[1:3]), ("W1", weather[3]), ("W2", weather[4])):
                self.figure(field, figure)
        self.keep(weather, "7////" if "1:7" in self.groups else None)
        if cloud is None:
            self.note("always")
        group = "8"
        for field, figure in zip(("Nh", "CL", "CM", "CH"), (cloud or "8////")[1:]):
            group += self.figure(field, figure) if cloud else "/"
        self.out.append(group)
        movement = self.groups.get("movement")
        if movement is None:
            self.note("always")
            movement = "222//"
        else:
            self.figure("Ds", movement[3])
            self.figure("Vs", movement[4])
        self.out.append(movement)

    def type_sea(self):
        sea = self.groups.get("2:0")
        if sea:
            self.lines += ["focus TwTwTw", "key F1", f"set temperature {degrees(sea[1:])}",
                           f"choose method {int(sea[1]) // 2}", "press ok"]
            self.out.append(sea)
        swell = {}
        for head, fields in (("1", ("PwaPwa", "HwaHwa")), ("2", ("PwPw", "HwHw")), ("3", ("dw1dw1", "dw2dw2")),
                             ("4", ("Pw1Pw1", "Hw1Hw1")), ("5", ("Pw2Pw2", "Hw2Hw2"))):
            group = self.groups.get("2:" + head)
            if group is None:
                continue
            first, second = group[1:3], group[3:]
            if group[1:].strip("/"):
                self.set(fields[0], first)
                self.set(fields[1], second if head == "3" else metres(second))
            swell[head] = group
        for head, group in swell.items():
            self.keep(group, head)
        for name in ("2:6", "ice"):
            if name in self.groups:
                self.note("missing")
        if self.wet_bulb:
            self.out.append(self.groups["2:8"])
        elif "2:8" in self.groups:
            self.note("missing")
        if "other" in self.groups:
            self.note("other")

    def roots(self):
        by_beaufort = "ship_beaufort_wet_bulb" if self.wet_bulb else "ship_all_typed"
        by_anemometer = "ship_anemometer" + ("_wet_bulb" if self.wet_bulb else "")
        ship = by_anemometer if self.anemometer else by_beaufort
        return ["folders", ship, "items_all" if self.weather else "items_no_weather"]

    def session(self):
        head = [f"# root-files: {root}" for root in self.roots()]
        head += ["# A real report, typed field by field:", "#   " + self.text, "# What differs when it comes out:"]
        head += ["# - " + RULES[rule] for rule in self.rules]
        head += ["# Made by tools/make_report_sessions.py; change it there.", "", "start"]
        return "\n".join(head + self.lines + ["key Tab", "report", "close", "answer no"]) + "\n"

    def came_out(self, transcript):
        """The reason why the transcript's report is not the expected one, or nothing."""
        found = re.findall(r'^  report "(.*)"$', transcript, re.M)
        expected = " ".join(self.out)
        if len(found) != 1 or not re.fullmatch(expected[:-5].replace("/", "[/]") + r"\.{5}", found[0]):
            return f"expected {expected}, the report is {found}"
        return None


def read_reports(tests):
    with open(os.path.join(tests, "data", "ship_reports.txt"), encoding="utf-8") as file:
        return [Typed(line.strip()) for line in file if line.startswith("BBXX")]


def path_of(tests, number, ending):
    return os.path.join(tests, "sessions", "generated", "real_reports", f"real_report_{number:02}{ending}")


def problems(tests, reports):
    folder, wrong = os.path.dirname(path_of(tests, 1, "")), []
    wanted = {os.path.basename(path_of(tests, number, ".session")) for number in range(1, len(reports) + 1)}
    for name in sorted(os.listdir(folder)):
        if name.endswith(".session") and name not in wanted:
            wrong.append(f"{name} is not what tools/make_report_sessions.py writes")
    for number, report in enumerate(reports, 1):
        name, texts = path_of(tests, number, ""), []
        for ending in (".session", ".transcript"):
            texts.append(open(name + ending, encoding="utf-8", newline="").read() if os.path.exists(name + ending) else "")
        if texts[0] != report.session():
            wrong.append(f"{name}.session is not what tools/make_report_sessions.py writes")
        if reason := report.came_out(texts[1]):
            wrong.append(f"{name}: {reason}")
    page = os.path.join(os.path.dirname(os.path.abspath(tests)), "docs", "real-reports.md")
    with open(page, encoding="utf-8") as file:
        if table(tests, reports) not in file.read():
            wrong.append("the table of docs/real-reports.md is not what --list prints")
    return wrong


def table(tests, reports):
    lines = ["| # | Report | Comes out as | Rules |", "| --- | --- | --- | --- |"]
    for number, report in enumerate(reports, 1):
        path = path_of(tests, number, ".transcript")
        transcript = open(path, encoding="utf-8").read() if os.path.exists(path) else ""
        found = re.findall(r'^  report "(.*)"$', transcript, re.M)
        rules = ", ".join(rule for rule in report.rules if rule not in ("ship", "end"))
        lines.append(f"| {number} | `{report.text}` | `{found[0] if found else '?'}` | {rules or '-'} |")
    return "\n".join(lines) + "\n"


def main():
    tests = sys.argv[-1]
    reports = read_reports(tests)
    if sys.argv[1] == "--list":
        sys.stdout.write("".join(f"- **{name}**: {text}\n" for name, text in RULES.items()) + "\n")
        sys.stdout.write(table(tests, reports))
    elif sys.argv[1] == "--check":
        wrong = problems(tests, reports)
        print("\n".join(wrong))
        sys.exit(1 if wrong else 0)
    else:
        for number, report in enumerate(reports, 1):
            with open(path_of(tests, number, ".session"), "w", encoding="utf-8", newline="\n") as file:
                file.write(report.session())


main()
