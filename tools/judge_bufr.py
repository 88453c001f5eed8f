#!/usr/bin/env python3
"""Judges BUFR messages by what ecCodes' own decoder says of them.

    judge_bufr.py CLI                          ten thousand random observations: written here, encoded by
                                               "CLI bufr", decoded by bufr_dump, compared with the rules below
    judge_bufr.py CLI --reports FILE YYYY-MM   the reports of FILE
    judge_bufr.py --compare OBSERVATIONS BUFR [WIGOS]

The rules are those of the WMO regulations for reporting SHIP data in table-driven code form, worked out here from the
figures once more, in fractions and by the descriptors of the template one after the other. Nothing is shared with the
program: neither its table nor ecCodes' names of elements.
"""
import calendar
import datetime
import math
import os
import random
import subprocess
import sys
import tempfile
from fractions import Fraction
from pathlib import Path

SEED = 20141115
# Fewer for a quick answer, see tests/fakes/rounds.h.
COUNT = 1_500 if os.environ.get("KAVREL_TESTS") == "soon" else 10_000


# --- what the message must say --------------------------------------------------------------------------------------

def number(text):
    return int(text) if text.isascii() and text.isdigit() else None


def unset(text):
    return text.strip("/*") == ""


def solidi(text):
    return text != "" and text.strip("/") == ""


def half_up(value, step):
    """To the nearest multiple of the step, halves upward."""
    return math.floor(Fraction(value) / step + Fraction(1, 2)) * step


def within(value, low, high):
    return value if value is not None and low <= value <= high else None


def celsius(tenths, minus):
    if tenths is None:
        return None
    return Fraction(27315, 100) + Fraction(-tenths if minus else tenths, 10)


def signed(sign, figures):
    return celsius(number(figures), sign == "1") if sign in ("0", "1") else None


def when(o):
    at = datetime.datetime(number(o["Year"]), number(o["Month"]), number(o["YY"]), number(o["GG"]))
    hour, minute = within(number(o["GGExact"]), 0, 23), within(number(o["gg"]), 0, 59)
    if hour is None or minute is None:
        return at
    # The day on which this clock time lies nearest to the standard hour.
    days = [at.replace(hour=hour, minute=minute) + datetime.timedelta(days=d) for d in (0, -1, 1)]
    return min(days, key=lambda day: abs(day.replace(minute=0) - at))


def where(o):
    parts = [number(o[name]) for name in ("LaDeg", "LaMin", "LoDeg", "LoMin")]
    if None in parts or o["Qc"] not in ("1", "3", "5", "7") or parts[1] > 59 or parts[3] > 59:
        return None, None
    north, east = parts[0] + Fraction(parts[1], 60), parts[2] + Fraction(parts[3], 60)
    if north > 90 or east > 180:
        return None, None
    north, east = half_up(north, Fraction(1, 100)), half_up(east, Fraction(1, 100))
    return (-north if o["Qc"] in "35" else north), (-east if o["Qc"] in "57" else east)


SPEEDS = {0: 0, 1: 2, 2: 4, 3: 7, 4: 9, 5: 12, 6: 14, 7: 17, 8: 20, 9: 21}
BASES = [0, 50, 100, 200, 300, 600, 1000, 1500, 2000, 2500]
SEA_VISIBILITY = {90: 0, 91: 50, 92: 200, 93: 500, 94: 1000, 95: 2000, 96: 4000, 97: 10000, 98: 20000, 99: 50000}
COVERS = {0: 0, 1: 13, 2: 25, 3: 38, 4: 50, 5: 63, 6: 75, 7: 88, 8: 100, 9: 113}
ICING = {1: 0b1000, 2: 0b0100, 3: 0b1100, 4: 0b0010, 5: 0b1010}
WET_BULBS = {"0": (False, 0), "1": (True, 0), "2": (True, 1), "5": (False, 2), "6": (True, 2), "7": (True, 3)}
SEA_METHODS = {"0": 0, "1": 0, "2": 1, "3": 1, "4": 2, "5": 2, "6": 14, "7": 14}


def visibility(code):
    if code is None or 51 <= code <= 55:
        return None
    if code <= 50:
        return 100 * code
    if code <= 80:
        return 1000 * (code - 50)
    if code <= 88:
        return 35000 + 5000 * (code - 81)
    return 70000 if code == 89 else SEA_VISIBILITY[code]


def barometer(ship):
    if ship.get("card_type") != "0":
        return None
    name = {"0": "height_full_load", "1": "height_ballast"}.get(ship.get("loading_state"))
    return number(ship.get(name, "0")) or None


def cloud(o):
    """Significance, amount, base, and the three types."""
    n, nh, h = number(o["N"]), number(o["Nh"]), number(o["h"])
    kinds = [number(o[name]) for name in ("CL", "CM", "CH")]
    looked = nh is not None or any(kind is not None for kind in kinds)
    types = []
    for name, kind, none, invisible in zip(("CL", "CM", "CH"), kinds, (30, 20, 10), (62, 61, 60)):
        if kind is not None:
            types.append(none + kind)
        elif n == 0 and unset(o[name]):
            types.append(none)
        elif n == 9 and unset(o[name]):
            types.append(invisible)
        elif looked and solidi(o[name]):
            types.append(invisible)
        else:
            types.append(None)
    low, middle, high = kinds
    if n == 9:
        significance = 5
    elif n == 0:
        significance = 62
    elif low:
        significance = 7
    elif low == 0 and middle:
        significance = 8
    elif low == 0 and middle == 0 and high:
        significance = 0
    else:
        significance = None
    return [significance, n if n in (0, 9) else nh, None if n == 0 or h is None else BASES[h]] + types


def weather(o):
    ww, w1, w2, ix = (number(o[name]) for name in ("ww", "W1", "W2", "iX"))
    automatic = ix == 7
    if ww is not None:
        present = ww + (100 if automatic else 0)
    elif unset(o["ww"]) and unset(o["W1"]) and unset(o["W2"]):
        present = {2: 508, 5: 508, 3: 509, 6: 509}.get(ix)
    else:
        present = None
    past = [None if w is None else w + (10 if automatic else 0) for w in (w1, w2)]
    hours = {0: -6, 3: -3}.get(int(o["GG"]) % 6)
    return [present, None if past == [None, None] else hours] + past


def wind(o):
    if o["ff"] == "99":
        speed = within(number(o["fff"]), 99, 999)
    else:
        speed = number(o["ff"]) if unset(o["fff"]) else None
    metres_per_second = None
    if speed is not None and o["iw"] in tuple("0134"):
        metres_per_second = half_up(speed * Fraction(1852, 3600) if o["iw"] in "34" else speed, Fraction(1, 10))
    tens = number(o["dd"])
    if tens is not None and 1 <= tens <= 36:
        direction = 10 * tens
    else:
        direction = 0 if tens == 0 and metres_per_second == 0 else None
    if metres_per_second is not None and metres_per_second > Fraction(4094, 10):
        metres_per_second = None
    if direction is None and metres_per_second is None:
        return [None] * 5
    flags = {"0": 0, "1": 8, "3": 4, "4": 12}.get(o["iw"])
    return [flags, 2, -10, direction, metres_per_second]


def sea_ice(o):
    names = ("ci", "bi", "zi", "Si")
    reported = any(number(o[name]) is not None for name in names + ("Di",))
    values = [number(o[name]) if number(o[name]) is not None else unable if reported and solidi(o[name]) else None
              for name, unable in zip(names, (14, 14, 30, 30))]
    edge = number(o["Di"])
    return values + [45 * edge if edge is not None and 1 <= edge <= 8 else None]


def half_metres(text):
    value = number(text)
    return None if value is None else Fraction(value, 2)


def waves(o):
    seconds = lambda text: within(number(text), 0, 62)
    measured = [None, seconds(o["PwaPwa"]), half_metres(o["HwaHwa"])]
    by_wind = [None, seconds(o["PwPw"]), half_metres(o["HwHw"])]
    swells = []
    for which in "12":
        tens = number(o[f"dw{which}dw{which}"])
        swells.append([10 * tens if tens is not None and 1 <= tens <= 36 else None, seconds(o[f"Pw{which}Pw{which}"]),
                       half_metres(o[f"Hw{which}Hw{which}"])])
    if o["dw1dw1"] == "00" and (o["dw2dw2"] == "00" or unset(o["dw2dw2"])):
        swells[0] = [0, 0, 0]
    return measured + by_wind + swells[0] + swells[1]


def whole(o):
    """Without the fields of which figures are lacking or too many: nobody knows what such a value is."""
    result = dict(o)
    for name, width in WIDTHS.items():
        widths = (1, 2) if name in ("LaMin", "LoMin") else (width,)
        if not unset(o[name]) and (o[name].strip("0123456789/") or len(o[name]) not in widths):
            result[name] = ""
    return result


def expected(o, ship, wigos):
    """Every element of the template in its order: descriptor and value, None for a missing one."""
    o = whole(o)
    at, (north, east) = when(o), where(o)
    course = number(o["Ds"])
    pressure = number(o["PPPP"])
    if pressure is not None:
        pressure = 10 * (pressure + (10000 if pressure < 5000 else 0))
    a = within(number(o["a"]), 0, 8)
    change = number(o["ppp"]) if a is not None else None
    if a == 4 and change != 0:
        change = None  # steady: risen or fallen, nobody says
    if change is not None:
        change = within(-10 * change if a >= 5 else 10 * change, -5000, 5220)
    minus, method = WET_BULBS.get(o["Sw"], (None, None))
    wet = None if minus is None else celsius(number(o["TbTbTb"]), minus)
    sea = celsius(number(o["TwTwTw"]), o["Ss"] in tuple("1357")) if o["Ss"] in SEA_METHODS else None
    sea = within(sea, 0, Fraction(32766, 100))
    humidity = number(o["LogExtra"])
    if humidity is not None:
        humidity = within(half_up(Fraction(humidity, 10), 1), 0, 100)
    call = o["CallSign"]
    station = number(o["iX"])
    knots = number(o["Vs"])
    thickness = number(o["EsEs"])
    cover = number(o["N"])
    clouds, ices, sky = cloud(o), sea_ice(o), weather(o)
    rows = []
    if wigos:
        series, issuer, issue, local = wigos.split("-", 3)
        rows += [("001125", int(series)), ("001126", int(issuer)), ("001127", int(issue)), ("001128", local)]
    rows += [("001011", call if call.strip("*") and len(call) <= 9 else None),
             ("001012", None if course is None or course == 9 else 45 * course),
             ("001013", None if knots is None else SPEEDS[knots]),
             ("002001", None if station is None or not 1 <= station <= 7 else 1 if station <= 3 else 0),
             ("004001", at.year), ("004002", at.month), ("004003", at.day), ("004004", at.hour), ("004005", at.minute),
             ("005002", north), ("006002", east),
             ("007030", None), ("007031", barometer(ship)),
             ("010004", None), ("010051", pressure), ("010061", change), ("010063", a),
             ("007032", None), ("007033", None), ("012101", signed(o["SnT"], o["TTT"])),
             ("002039", method if wet is not None else None), ("012102", wet),
             ("012103", signed(o["SnTd"], o["TdTdTd"])), ("013003", humidity),
             ("007032", None), ("007033", None), ("020001", visibility(number(o["VV"]))),
             ("007033", None), ("007032", None), ("013023", None), ("007032", None),
             ("020010", None if cover is None else COVERS[cover])]
    rows += zip(("008002", "020011", "020013", "020012", "020012", "020012"), clouds)
    rows += [("031001", 0), ("008002", None),
             ("020031", None if thickness is None else Fraction(thickness, 100)),
             ("020032", within(number(o["Rs"]), 0, 4)), ("020033", ICING.get(number(o["Is"])))]
    rows += zip(("020034", "020035", "020036", "020037", "020038"), ices)
    rows += [("002038", SEA_METHODS[o["Ss"]] if sea is not None else None), ("007063", None), ("022043", sea),
             ("007063", None)]
    rows += zip(("022001", "022011", "022021", "022002", "022012", "022022", "022003", "022013", "022023", "022003",
                 "022013", "022023"), waves(o))
    rows += zip(("020003", "004024", "020004", "020005"), sky)
    rows += [(code, None) for code in ("007032", "004024", "013011", "004024", "013011", "007032", "007033", "004024",
                                       "004024", "012111", "004024", "004024", "012112", "007032", "007033")]
    rows += zip(("002002", "008021", "004025", "011001", "011002"), wind(o))
    rows += [(code, None) for code in ("008021", "004025", "011043", "011041", "004025", "011043", "011041")]
    return rows


HEADER = {"edition": "4", "masterTableNumber": "0", "bufrHeaderCentre": "65535", "bufrHeaderSubCentre": "65535",
          "updateSequenceNumber": "0", "dataCategory": "1", "internationalDataSubCategory": "0",
          "dataSubCategory": "255", "localTablesVersionNumber": "0", "numberOfSubsets": "1", "observedData": "1",
          "compressedData": "0", "typicalYear": "", "typicalMonth": "", "typicalDay": "", "typicalHour": "",
          "typicalMinute": "0", "typicalSecond": "0"}


def header_of(o):
    """What sections 1 and 3 must say: the standard time, whatever the clock said."""
    return HEADER | {"typicalYear": str(int(o["Year"])), "typicalMonth": str(int(o["Month"])),
                     "typicalDay": str(int(o["YY"])), "typicalHour": str(int(o["GG"]))}


# --- what went in ---------------------------------------------------------------------------------------------------

NAMES = """Year Month YY GG iw Qc LoDeg LaDeg LaMin LoMin h VV iX N dd ff fff SnT TTT SnTd TdTdTd PPPP a ppp ww W1 W2 Nh CL
CM CH gg GGExact Ds Vs Ss TwTwTw PwaPwa HwaHwa PwPw HwHw dw1dw1 dw2dw2 Pw1Pw1 Hw1Hw1 Pw2Pw2 Hw2Hw2 Is EsEs Rs Sw TbTbTb
ci Si bi Di zi CallSign LogExtra""".split()


def read_observations(text):
    """(fields, ship) of each block; lines ship. stay in force, and give what a field has unless it is given."""
    ship, items = {}, {}
    for block in text.split("\n\n"):
        fields = {}
        for line in block.splitlines():
            if line.startswith("#") or not line.strip():
                continue
            name, value = (part.strip() for part in line.split("=", 1))
            if name.startswith("ship."):
                ship[name[5:]] = value
            elif name.startswith("item."):
                items[name[5:]] = value
            else:
                fields[name] = value
        if not fields:
            continue
        weather_off = items.get("ww", "0") == "1" and items.get("W1W2", "0") == "1"
        usual = {"CallSign": ship.get("call_sign", "*******"), "iX": "3" if weather_off else "1",
                 "iw": "4" if ship.get("wind_speed_method") == "1" else "3"}
        yield {name: fields.get(name, usual.get(name, "")) for name in NAMES}, dict(ship)


WIDTHS = {"YY": 2, "GG": 2, "Qc": 1, "LoDeg": 3, "LaDeg": 2, "LaMin": 2, "LoMin": 2, "h": 1, "VV": 2, "N": 1, "dd": 2,
          "ff": 2, "SnT": 1, "TTT": 3, "SnTd": 1, "TdTdTd": 3, "PPPP": 4, "a": 1, "ppp": 3, "ww": 2, "W1": 1, "W2": 1,
          "Nh": 1, "CL": 1, "CM": 1, "CH": 1, "Ds": 1, "Vs": 1, "Ss": 1, "TwTwTw": 3, "PwaPwa": 2, "HwaHwa": 2,
          "PwPw": 2, "HwHw": 2, "dw1dw1": 2, "dw2dw2": 2, "Pw1Pw1": 2, "Hw1Hw1": 2, "Pw2Pw2": 2, "Hw2Hw2": 2, "Is": 1,
          "EsEs": 2, "Rs": 1, "Sw": 1, "TbTbTb": 3, "ci": 1, "Si": 1, "bi": 1, "Di": 1, "zi": 1, "LogExtra": 4,
          "iw": 1, "iX": 1, "fff": 3, "gg": 2, "GGExact": 2}

EDGES = {"SnT": "01", "SnTd": "01", "Ss": "01234567", "Qc": "1357", "Sw": "0125670125673", "a": "0123456780123456784",
         "dd": ["00", "01", "18", "36", "99", "37"], "dw1dw1": ["00", "36", "99"], "dw2dw2": ["00", "36", "99"],
         "N": "089", "CL": "0", "CM": "0", "LaDeg": ["00", "89", "90"], "LoDeg": ["000", "179", "180"],
         "LaMin": ["00", "0", "59", "30"], "LoMin": ["00", "5", "59"], "PPPP": ["8700", "0699", "9999", "0000"],
         "TTT": ["020", "000", "999"], "LogExtra": ["1000", "0535", "0000"], "Di": "09", "ff": ["00", "45", "99"],
         "ppp": ["000", "522", "523", "500", "501"], "PwPw": ["00", "62", "63", "99"], "VV": ["00", "50", "51", "89"]}


def random_field(dice, name):
    kind = dice.randrange(10)
    if kind == 0:
        return ""
    width = WIDTHS[name]
    if kind == 1:
        return "/" * width
    if kind <= 4 and name in EDGES:
        return dice.choice(EDGES[name])
    figures = "".join(dice.choice("0123456789") for _ in range(width))
    if kind == 9:
        # A figure that could not be read, one too many or too few, one that is none.
        return dice.choice([figures] * 4 + ["/" + figures[1:], figures + "0", figures[1:], "x" + figures[1:]])
    return figures


def random_observations(dice, count, call_signs):
    blocks = []
    for _ in range(count):
        year, month = dice.randrange(2000, 2040), dice.randrange(1, 13)
        last = calendar.monthrange(year, month)[1]
        day = dice.choice([1, last, dice.randrange(1, last + 1)])
        lines = [f"Year={year}", f"Month={month:02}", f"YY={day:02}",
                 f"GG={dice.choice([0, 3, 6, 9, 12, 15, 18, 21, dice.randrange(24)]):02}"]
        sparse = dice.randrange(8) == 0
        for name in WIDTHS:
            if name in ("YY", "GG", "iw", "iX", "fff", "gg", "GGExact") or (sparse and dice.randrange(4)):
                continue
            lines.append(f"{name}={random_field(dice, name)}")
        if dice.randrange(3) == 0:
            lines.append(f"fff={dice.randrange(99, 250):03}")
        if dice.randrange(3) == 0:
            lines += [f"GGExact={dice.choice(['00', '23', '11', '24', '//'])}", f"gg={dice.choice(['00', '50', '59', '60'])}"]
        if dice.randrange(3) == 0:
            lines.append(f"iX={dice.randrange(9)}")
        if dice.randrange(3) == 0:
            lines.append(f"iw={dice.choice(['0', '1', '2', '3', '4', '/'])}")
        if dice.randrange(3) == 0:
            lines += [f"ship.card_type={dice.choice([-1, 0, 1])}", f"ship.loading_state={dice.choice([-1, 0, 1])}",
                      f"ship.height_full_load={dice.randrange(201)}", f"ship.height_ballast={dice.randrange(201)}",
                      f"ship.wind_speed_method={dice.randrange(2)}", f"item.ww={dice.randrange(2)}",
                      f"item.W1W2={dice.randrange(2)}", f"ship.call_sign={dice.choice(call_signs)}"]
        blocks.append("\n".join(lines))
    return "\n\n".join(blocks) + "\n"


# --- what ecCodes says of it ----------------------------------------------------------------------------------------

def output_of(command):
    """The lines that it prints; a word of complaint is an error."""
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True) as tool:
        yield from tool.stdout
        errors = tool.stderr.read()
    if tool.returncode != 0 or errors.strip():
        raise SystemExit(f"{command[0]}: status {tool.returncode} {errors}")


def decoded_elements(path):
    """(descriptor, value) of each message's elements. Read line by line: the whole would fill a memory."""
    elements, value = None, None
    for line in output_of(["bufr_dump", "-jf", path]):
        name, _, rest = line.strip().rstrip(",").partition(" : ")
        if name == '"key"' and rest == '"subsetNumber"':
            if elements is not None:
                yield elements
            elements = []
        elif name == '"value"':
            value = rest
        elif name == '"code"':
            elements.append((rest.strip('"'), value))
    if elements is not None:
        yield elements


def decoded(path):
    """(header, elements) of each message of the file."""
    headers = output_of(["bufr_get", "-p", ",".join(HEADER), path])
    for elements in decoded_elements(path):
        yield dict(zip(HEADER, next(headers, "").split())), elements
    if next(headers, None) is not None:
        yield {}, []


def same(value, text):
    if value is None or text == "null":
        return value is None and text == "null"
    if isinstance(value, str):
        return text.strip('"').rstrip() == value
    return abs(Fraction(text) - value) < Fraction(1, 10**6)


def compare(observations, bufr, wigos=None):
    """The differences, at most some; and how many messages there were."""
    wrong, count, values = [], 0, 0
    messages = decoded(bufr)
    for o, ship in observations:
        count += 1
        message = next(messages, None)
        if message is None:
            wrong.append(f"message {count}: there is none")
            break
        header, elements = message
        for key, value in header_of(o).items():
            if header.get(key) != value:
                wrong.append(f"message {count}: {key} is {header.get(key)}, not {value}")
        rows = expected(o, ship, wigos)
        if [code for code, _ in rows] != [code for code, _ in elements]:
            wrong.append(f"message {count}: other descriptors: {[code for code, _ in elements]}")
            continue
        for (code, value), (_, text) in zip(rows, elements):
            values += value is not None
            if not same(value, text):
                shown = value if value is None or isinstance(value, str) else float(value)
                wrong.append(f"message {count}: {code} is {text}, not {shown}: {o}")
    if next(messages, None) is not None:
        wrong.append("more messages than observations")
    return wrong, count, values


def run(cli, arguments, text=None):
    result = subprocess.run([cli, *arguments], input=text, capture_output=True, text=True, check=False)
    if result.returncode != 0:
        raise SystemExit(f"{' '.join(arguments)}: status {result.returncode}\n{result.stderr[-2000:]}")
    return result.stdout


def judge_random(cli, folder):
    dice = random.Random(SEED)
    wrong, count, values = [], 0, 0
    for name, share, wigos, calls in (("random", COUNT - 500, None, ["JXKV", "*******", "7ABC123", "SHIP", "A", "ABCDEFGHI",
                                                                    "ABCDEFGHIJ"]),
                                      ("wigos", 500, "0-22000-0-A1b2C3d4E5f6G7h8", ["JXKV"])):
        text = "ship.call_sign=JXKV\n" + random_observations(dice, share, calls)
        source, bufr = folder / (name + ".obs"), folder / (name + ".bufr")
        source.write_text(text)
        run(cli, ["bufr", "--output", str(bufr), str(source)] + (["--wigos", wigos] if wigos else []))
        result = compare(read_observations(text), bufr, wigos)
        wrong, count, values = wrong + result[0], count + result[1], values + result[2]
    return wrong, count, values


def judge_reports(cli, folder, path, date):
    bufr = folder / "reports.bufr"
    run(cli, ["bufr", "--date", date, "--output", str(bufr), path])
    year, month = date.split("-")
    # Each of these observations is of a ship of its own.
    observations = [(o | {"Year": year, "Month": month}, {}) for o, _ in read_observations(run(cli, ["read", path]))]
    reports = sum(line.startswith("BBXX") for line in Path(path).read_text().splitlines())
    wrong, count, values = compare(observations, bufr)
    if count != reports:
        wrong.append(f"{count} messages of {reports} reports")
    return wrong, count, values


def main():
    words = sys.argv[1:]
    with tempfile.TemporaryDirectory() as room:
        folder = Path(room)
        if words[0] == "--compare":
            result = compare(read_observations(Path(words[1]).read_text()), words[2], *words[3:])
        elif len(words) > 1 and words[1] == "--reports":
            result = judge_reports(words[0], folder, words[2], words[3])
        else:
            result = judge_random(words[0], folder)
    wrong, count, values = result
    for line in wrong[:20]:
        print(line)
    if not wrong and (count == 0 or values == 0):
        wrong = ["nothing was compared"]
    print(f"{count} messages, {values} values that are not missing: {len(wrong)} differences")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
