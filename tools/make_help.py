#!/usr/bin/env python3
"""Makes the help pages: make_help.py TOPICS FOLDER FACTS STRINGS IDS SOURCE...

TOPICS is resources/help/topics.txt, whose head describes its format. A page "Capter11-1" becomes
FOLDER/Kavrel_E/Capter11-1_E.htm and its Japanese twin; any other page "Cloud" becomes FOLDER/Cloud_E/index.htm and its twin;
"Kavrel" is the start page of the manual. What a page repeats of the program is taken from the program: texts from STRINGS by
their names in IDS; code tables, drawings, groups and the figures of the examples from FACTS, a program (tools/help_facts.cpp).

Held here, so that no wrong page is made: every topic and help file that the SOURCEs name has its page, and every page is
opened by them or linked from one that is; links lead to pages; both languages have the same headings, tables and links, and a
dialog's page has the headings that all of them have; every text can be encoded in code page 932; every example is used.
"""
import argparse
import html
import json
import os
import re
import struct
import subprocess
import sys
import zlib

MANUAL = "Kavrel"
LANGUAGES = {"E": 0, "J": 1}
# Labels that have an id for each language: the Japanese ones, and how much further the English ones stand.
LABEL_PAIRS = ((11000, 11073, 74), (11900, 11915, 40))
TITLE = {"E": "Software user's manual", "J": "ソフトウェア利用の手引き"}
# The headings of the dialogs' pages, in their order; a page without codes has no code table.
HEADINGS = {
    "observed": ("What is observed, and how", "観測の対象と方法"),
    "purpose": ("What it is for", "この画面の役割"),
    "type": ("What to type or choose", "入力のしかた"),
    "example": ("Example", "例"),
    "codes": ("Code table", "符号表"),
    "refuses": ("What is refused, and how to get out", "受け付けられないとき"),
}
REFUSALS = {"E": ["The program says", "What to do"], "J": ["表示される文", "どうするか"]}
# Below what is refused, on every dialog's page.
WAY_OUT = {
    "E": "A refused value stays in its field until it is corrected or emptied. Escape leaves the dialog without any "
         "change; Enter is OK. [[Capter2|All keys]].",
    "J": "受け付けられない値は、訂正するか空にするまで欄に残ります。Escapeでは何も変えずに画面を閉じます。EnterはOKです。"
         "[[Capter2|すべてのキー]]",
}
ORDER = re.compile(r"(observed|purpose) type example (codes )?refuses")
# Headings no larger than a narrow window bears: the help stands beside a dialog.
STYLE = "<style>h1 { font-size: x-large } h2 { font-size: large }</style>"
TABLE = '<table border="1" cellspacing="0" cellpadding="4" style="border-collapse: collapse; border-color: #808080">\n'


def fail(message):
    sys.exit("help: " + message)


# ---- The topics

class Half:
    def __init__(self, title):
        self.title, self.lines = title, []


def read_topics(path):
    """{page: {"E": Half, "J": Half}} in the order of the file, and the examples {name: entries}."""
    topics, examples, halves, half = {}, {}, None, None
    with open(path, encoding="utf-8") as source:
        for number, line in enumerate(source, 1):
            line, where = line.rstrip("\n"), f"{path}:{number}: "
            try:
                line.encode("cp932")
            except UnicodeEncodeError as error:
                fail(where + str(error))
            if not line or line.startswith("#"):
                continue
            if line.startswith("== "):
                if line[3:] in topics:
                    fail(where + f"{line[3:]} twice")
                halves, half = topics.setdefault(line[3:], {}), None
            elif line.startswith("@example "):
                _, name, entries = line.split(" ", 2)
                if name in examples:
                    fail(where + f"example {name} twice")
                examples[name] = entries
            elif re.match("[EJ] ", line):
                if line[0] in halves:
                    fail(where + "this language again")
                half = halves.setdefault(line[0], Half(line[2:]))
            elif half is None:
                fail(where + "text before a title")
            else:
                half.lines.append(line)
    for page, halves in topics.items():
        if set(halves) != {"E", "J"} or not all(half.lines for half in halves.values()):
            fail(f"{path}: {page} is not told in both languages")
    return topics, examples


def wanted_pages(sources):
    """What the program opens: the pages of dialogs, and all pages that are opened."""
    text = "".join(open(path, encoding="utf-8").read() for path in sources)
    topics = set(re.findall(r'"(\w[\w-]*)_E\.htm"', text))
    files = set(re.findall(r'kHelpFile, "(\w+)"', text))
    return topics, topics | files | {MANUAL}


def links_of(half):
    return re.findall(r"\[\[([\w-]+)", "\n".join(half.lines))


def headings_of(half):
    return [line[2:] for line in half.lines if line.startswith("! ")]


def check(topics, dialogs, wanted):
    if lost := wanted - set(topics):
        fail(f"no page for {', '.join(sorted(lost))}")
    for page, halves in topics.items():
        for half in halves.values():
            if bad := [link for link in links_of(half) if link not in topics]:
                fail(f"{page}: no page {', '.join(bad)}")
        english, japanese = halves["E"], halves["J"]
        # Headings that are not all pages' differ by language, so they are counted.
        shared = [[h if h in HEADINGS else "" for h in headings_of(half)] for half in (english, japanese)]
        kinds = [[line.split()[0] for line in half.lines if line[0] in "|@->"] for half in (english, japanese)]
        directives = [[line for line in half.lines if re.match("@(codes|beaufort)", line)] for half in (english, japanese)]
        used = [sorted(re.findall(r"{\w[^}|]*}", "\n".join(half.lines))) for half in (english, japanese)]
        for what, (left, right) in (("headings", shared), ("tables", kinds), ("codes", directives), ("figures", used),
                                    ("links", (sorted(links_of(english)), sorted(links_of(japanese))))):
            if left != right:
                fail(f"{page}: the languages differ in their {what}: {left} {right}")
        if page in dialogs and not ORDER.fullmatch(" ".join(headings_of(english))):
            fail(f"{page}: the headings are {headings_of(english)}")
    reached, new = set(), set(wanted)
    while new:
        reached |= new
        new = {link for page in new for link in links_of(topics[page]["E"])} - reached
    # The manual's start page lists all its pages.
    if left := {page for page in topics if page not in reached and not page.startswith("Capter")}:
        fail(f"nobody opens {', '.join(sorted(left))}")


# ---- What the program tells

def read_texts(strings, ids):
    """{name: (English, Japanese)} of every named text."""
    table = {}
    with open(strings, encoding="utf-8") as source:
        for line in source:
            number, tab, text = line.rstrip("\n").partition("\t")
            if tab and number.isdigit():
                text = re.sub(r"\\(.)", lambda m: {"n": " ", "r": "", "t": " ", "\\": "\\"}[m[1]], text)
                table[int(number)] = tuple(text.split("/*E*/")) if "/*E*/" in text else (text, text)
    for first, last, to_english in LABEL_PAIRS:
        for number in set(table) & set(range(first, last + 1)):
            table[number] = (table[number + to_english][0], table[number][1])
    with open(ids, encoding="utf-8") as source:
        return {name: table[int(number)] for name, number in re.findall(r"constexpr Id (k\w+){(\d+)};", source.read())}


def read_facts(program, examples):
    lines = "".join(f"{name} {entries}\n" for name, entries in examples.items())
    # A program for another system is run by what KAVREL_EMULATOR names.
    emulator = os.environ.get("KAVREL_EMULATOR")
    command = [emulator, program] if emulator else [program]
    done = subprocess.run(command, input=lines, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        fail(done.stderr.strip())
    return json.loads(done.stdout)


# ---- Drawings

INKS = {"text": (40, 40, 40), "faint": (190, 190, 190), "mark": (20, 70, 160), "land": (225, 215, 190),
        "water": (200, 222, 240), "ice": (255, 255, 255), "caution": (200, 130, 0), "alarm": (190, 30, 30),
        "coast": (90, 90, 90)}
PAPER = (255, 255, 255)
FINE = 3  # points a pixel is divided into, across and down


def fill(canvas, points, ink):
    """Fills a polygon by lines, the parts between its odd and even edges."""
    height, width = len(canvas), len(canvas[0])
    for y in range(max(0, int(min(p[1] for p in points))), min(height, int(max(p[1] for p in points)) + 1)):
        middle, crossed = y + 0.5, []
        for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
            if (y1 <= middle) != (y2 <= middle):
                crossed.append(x1 + (middle - y1) * (x2 - x1) / (y2 - y1))
        crossed.sort()
        for left, right in zip(crossed[::2], crossed[1::2]):
            first, last = max(0, round(left)), min(width, round(right))
            if last > first:
                canvas[y][first:last] = bytes([ink]) * (last - first)


def stroke(canvas, points, ink, thick):
    for (x1, y1), (x2, y2) in zip(points, points[1:]):
        length = ((x2 - x1) ** 2 + (y2 - y1) ** 2) ** 0.5 or 1
        dx, dy = (x2 - x1) / length * thick / 2, (y2 - y1) / length * thick / 2
        # Lengthened by half the thickness, so that corners close.
        fill(canvas, [(x1 - dx - dy, y1 - dy + dx), (x2 + dx - dy, y2 + dy + dx), (x2 + dx + dy, y2 + dy - dx),
                      (x1 - dx + dy, y1 - dy - dx)], ink)


def head(canvas, tail, tip, ink, long):
    """The head of an arrow."""
    length = ((tip[0] - tail[0]) ** 2 + (tip[1] - tail[1]) ** 2) ** 0.5 or 1
    dx, dy = (tip[0] - tail[0]) / length * long, (tip[1] - tail[1]) / length * long
    fill(canvas, [tip, (tip[0] - dx - dy / 2, tip[1] - dy + dx / 2), (tip[0] - dx + dy / 2, tip[1] - dy - dx / 2)], ink)


def png(drawing, width, height):
    """The drawing on paper, with a frame around it."""
    inks = [PAPER] + list(INKS.values())
    index = {name: number + 1 for number, name in enumerate(INKS)}
    canvas = [bytearray(width * FINE) for _ in range(height * FINE)]
    (x1, x2), (y1, y2) = drawing["x"], drawing["y"]
    across, up = width * FINE / (x2 - x1), height * FINE / (y2 - y1)
    if drawing["same_scale"]:
        across = up = min(abs(across), abs(up))
    left, top = (width * FINE - across * (x2 - x1)) / 2, (height * FINE - up * (y2 - y1)) / 2

    def place(points):
        return [(left + (x - x1) * across, height * FINE - top - (y - y1) * up) for x, y in points]

    for shape in drawing["shapes"]:
        if "area" in shape:
            fill(canvas, place(shape["area"]), index[shape["ink"]])
        else:
            points, ink = place(shape["line"]), index[shape["ink"]]
            stroke(canvas, points, ink, FINE * (3 if shape["thick"] else 1.4))
            if shape["arrow"]:
                head(canvas, points[-2], points[-1], ink, 10 * FINE)
    edge = FINE * 0.5
    right, bottom = width * FINE - edge, height * FINE - edge
    stroke(canvas, [(edge, edge), (right, edge), (right, bottom), (edge, bottom), (edge, edge)], index["faint"], FINE)
    pixels = bytearray()
    for row in range(height):
        pixels.append(0)
        lines = canvas[row * FINE:(row + 1) * FINE]
        for column in range(width):
            points = b"".join(line[column * FINE:(column + 1) * FINE] for line in lines)
            for part in range(3):
                pixels.append(sum(inks[point][part] for point in points) // len(points))

    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(bytes(pixels), 9)) +
            chunk(b"IEND", b""))


# ---- Pages

class Pages:
    def __init__(self, topics, texts, facts, folder):
        self.topics, self.texts, self.facts, self.folder = topics, texts, facts, folder
        self.used, self.drawn = set(), set()

    def address(self, page, language, of_manual):
        """Where a page lies, seen from another."""
        if page == MANUAL:
            name = f"{MANUAL}_{language}/index.htm"
        elif page.startswith("Capter"):
            name = f"{MANUAL}_{language}/{page}_{language}.htm"
        else:
            name = f"{page}_{language}/index.htm"
        return name.removeprefix(f"{MANUAL}_{language}/") if of_manual and name.startswith(MANUAL) else "../" + name

    def figure(self, name, page, language):
        """What stands for {name}: a text of the program, or what an example gave."""
        if name in self.texts:
            # As it is read: places that are filled stay open, access keys are not told.
            shown = re.sub(r"\(&\w\)|&", "", self.texts[name][LANGUAGES[language]])
            return shown.strip().replace("%s", "…")
        word, _, item = name.partition(".")
        if word == "period" and item in self.facts["wave_periods"]:
            return self.facts["wave_periods"][item]
        if word in ("force", "waves") and item.isdigit():
            row = [row for row in self.facts["beaufort"] if row["from"] <= int(item)][-1]
            return str(row["force" if word == "force" else "height"])
        if item in self.facts["examples"].get(word, {}):
            self.used.add(word)
            return self.facts["examples"][word][item]
        return fail(f"{page}: nothing is known of {{{name}}}")

    def inline(self, text, page, language):
        def link(match):
            target, _, words = match[1].partition("|")
            words = words or self.topics[target][language].title
            of_manual = page == MANUAL or page.startswith("Capter")
            return f'<a href="{self.address(target, language, of_manual)}">{words}</a>'

        text = re.sub(r"{(\w[\w. -]*)}", lambda m: self.figure(m[1], page, language), text)
        text = html.escape(text, quote=False)
        text = re.sub(r"\*\*(.+?)\*\*", r"<b>\1</b>", text)
        return re.sub(r"\[\[(.+?)\]\]", link, text)

    def picture(self, symbol, row, words):
        if "picture" in row:
            return f'<img src="../../pictures/{row["picture"]}" width="160" alt="{html.escape(words)}">'
        if "drawing" in row:
            name = f"{symbol}{row['figures']}.png"
            path = os.path.join(self.folder, "drawings", name)
            if name not in self.drawn:
                self.drawn.add(name)
                os.makedirs(os.path.dirname(path), exist_ok=True)
                with open(path, "wb") as out:
                    out.write(png(row["drawing"], 112, 84))
            return f'<img src="../drawings/{name}" width="112" height="84" alt="{html.escape(words)}">'
        return ""

    def codes(self, symbol, page, language):
        table = self.facts["tables"].get(symbol) or fail(f"{page}: no code table of {symbol}")
        drawn = any("picture" in row or "drawing" in row for row in table["rows"])
        head = {"E": [symbol, "Picture", "Meaning"], "J": [symbol, "図", "意味"]}[language]
        rows = [[head[0]] + head[1:2] * drawn + head[2:]]
        for row in table["rows"]:
            words = row["text"][LANGUAGES[language]]
            rows.append([f"<b>{row['figures']}</b>"] + [self.picture(symbol, row, words)] * drawn +
                        [html.escape(words, quote=False)])
        caption = {"E": f"{symbol}: WMO code table {table['number']}", "J": f"{symbol}：WMO符号表 {table['number']}"}
        return f"<p>{caption[language]}</p>\n" + shown_table(rows)

    def beaufort(self, language, looks):
        """The scale: force, knots and heights of the program's own; how the sea looks is told by the page."""
        head = {"E": ["Force", "Wind (kn)", "Look of the sea", "Probable height of the waves (m)"],
                "J": ["階級", "風速(kn)", "海面の状態", "標準的な波高(m)"]}[language]
        if len(looks) != len(self.facts["beaufort"]):
            fail(f"BeaufortScale: {len(looks)} looks of the sea")
        rows = [head]
        for row, look in zip(self.facts["beaufort"], looks):
            knots = (f"{row['from']}" + {"E": " and over", "J": "以上"}[language] if row["to"] is None else
                     f"{row['from']}" if row["from"] == row["to"] else f"{row['from']}-{row['to']}")
            if row["force"] == 0:
                knots = {"E": "under 1", "J": "1未満"}[language]
            rows.append([f"<b>{row['force']}</b>", knots, html.escape(look, quote=False), row["height"]])
        return shown_table(rows)

    def groups(self, told, page, language, examples):
        """The groups of the report in their order; `told` says what is in each. A group's example is that of the first of
        the examples that has it in its report."""
        self.used |= set(examples)
        names = [row["name"] for row in self.facts["groups"]]
        if [name for name, _ in told] != names:
            fail(f"{page}: the groups are {names}")
        head = {"E": ["Group", "What it holds", "Example"], "J": ["群", "内容", "例"]}[language]
        rows = [head]
        for row, (name, words) in zip(self.facts["groups"], told):
            widths = "+".join(str(width) for width in row["widths"])
            figures = (f"{row['indicator'].strip()} + " if row["indicator"] else "") + widths
            shown = [group for group in (self.facts["examples"][example][name] for example in examples
                                         if self.facts["examples"][example][name] in self.facts["examples"][example]["report"])
                     if re.search("[0-9]", group[len(row["indicator"]):])]
            rows.append([f"<b>{html.escape(name)}</b><br>{figures}", self.inline(words, page, language),
                         shown[0] if shown else fail(f"{page}: no example has {name}")])
        return shown_table(rows)

    def body(self, page, language):
        shown, rows, refusals, items, told = "", [], [], [], []
        looks = [line[2:] for line in self.topics["BeaufortScale"][language].lines if line.startswith("~ ")]
        for line in self.topics[page][language].lines + [""]:
            if rows and not line.startswith("|"):
                shown, rows = shown + shown_table(rows), []
            if refusals and not line.startswith("> "):
                shown, refusals = shown + shown_table([REFUSALS[language]] + refusals), []
            if items and not line.startswith("- "):
                shown, items = shown + "<ul>" + "".join(f"<li>{item}</li>\n" for item in items) + "</ul>\n", []
            if line.startswith("! "):
                heading = HEADINGS[line[2:]][LANGUAGES[language]] if line[2:] in HEADINGS else line[2:]
                shown += f"<h2>{html.escape(heading)}</h2>\n"
            elif line.startswith("| "):
                rows.append([self.inline(cell.strip(), page, language) for cell in line[1:].split(" | ")])
            elif line.startswith("> "):
                refusals.append([self.inline(cell.strip(), page, language) for cell in line[1:].split(" | ")])
            elif line.startswith("- "):
                items.append(self.inline(line[2:], page, language))
            elif line.startswith("@codes "):
                shown += "".join(self.codes(symbol, page, language) for symbol in line.split()[1:])
            elif line == "@beaufort":
                shown += self.beaufort(language, looks)
            elif line.startswith("@group "):
                told.append(tuple(part.strip() for part in line[len("@group "):].split(" | ", 1)))
            elif line.startswith("@groups "):
                shown += self.groups(told, page, language, line.split()[1:])
            elif line == "@pages":
                others = [other for other in self.topics
                          if other.startswith("Capter") and other not in links_of(self.topics[page][language])]
                shown += "<ul>" + "".join(f"<li>{self.inline(f'[[{p}]]', page, language)}</li>\n" for p in others) + "</ul>\n"
            elif line.startswith("@"):
                fail(f"{page}: {line}")
            elif line and not line.startswith("~ "):
                shown += f"<p>{self.inline(line, page, language)}</p>\n"
        return shown

    def write(self, page, language):
        title = self.topics[page][language].title
        path = os.path.join(self.folder, self.address(page, language, False).removeprefix("../"))
        way_out, back = "", ""
        if "refuses" in headings_of(self.topics[page][language]):
            way_out = f"<p>{self.inline(WAY_OUT[language], page, language)}</p>\n"
        if page != MANUAL:
            of_manual = page.startswith("Capter")
            back = f'<p><a href="{self.address(MANUAL, language, of_manual)}">{html.escape(TITLE[language])}</a></p>\n'
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as out:
            out.write(f'<!DOCTYPE html>\n<html lang="{"en" if language == "E" else "ja"}">\n<head><meta charset="utf-8">'
                      f"{STYLE}<title>{html.escape(title)}</title></head>\n<body>\n<h1>{html.escape(title)}</h1>\n"
                      f"{self.body(page, language)}{way_out}{back}</body>\n</html>\n")


def shown_table(rows):
    """The first row is the heading."""
    head, *others = rows
    shown = TABLE + "<tr>" + "".join(f"<th align=\"left\">{cell}</th>" for cell in head) + "</tr>\n"
    for row in others:
        shown += "<tr>" + "".join(f"<td>{cell}</td>" for cell in row) + "</tr>\n"
    return shown + "</table>\n"


def main():
    parser = argparse.ArgumentParser()
    for name in ("topics", "folder", "facts", "strings", "ids"):
        parser.add_argument(name)
    parser.add_argument("sources", nargs="+")
    given = parser.parse_args()
    topics, examples = read_topics(given.topics)
    dialogs, wanted = wanted_pages(given.sources)
    check(topics, dialogs, wanted)
    pages = Pages(topics, read_texts(given.strings, given.ids), read_facts(given.facts, examples), given.folder)
    for page in topics:
        for language in LANGUAGES:
            pages.write(page, language)
    if left := set(examples) - pages.used:
        fail(f"nobody shows the example {', '.join(sorted(left))}")


if __name__ == "__main__":
    main()
