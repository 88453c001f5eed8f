#!/usr/bin/env python3
"""Makes the help pages: make_help.py TOPICS FOLDER SOURCE...

TOPICS is resources/help/topics.txt. A page "Capter11-1" becomes FOLDER/Kavrel_E/Capter11-1_E.htm and its Japanese twin; any
other page "Cloud" becomes FOLDER/Cloud_E/index.htm and its twin. The start page of the manual lists its topics. Every topic
and help file that the SOURCEs name must have its page, and no page may be left that nobody opens.
"""
import html
import os
import re
import sys

MANUAL = "Kavrel"
KEYS = {
    "E": "Tab and Shift+Tab move between the fields. Enter is OK, Escape is Cancel, F1 opens this page. "
         "A value that is refused keeps the cursor in its field.",
    "J": "TabとShift+Tabで欄を移動します。EnterでOK、Escでキャンセル、F1でこのページを開きます。"
         "受け付けられない値のときは、カーソルはその欄に残ります。",
}
TITLE = {"E": "Software user's manual", "J": "ソフトウェア利用の手引き"}


def read_topics(path):
    """{page: {"E": (title, lines), "J": (title, lines)}} in the order of the file."""
    topics, half = {}, None
    with open(path, encoding="utf-8") as source:
        for number, line in enumerate(source, 1):
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            if line.startswith("== "):
                halves, half = topics.setdefault(line[3:], {}), None
                if halves:
                    sys.exit(f"{path}:{number}: {line[3:]} twice")
            elif re.match("[EJ] ", line):
                half = halves.setdefault(line[0], (line[2:], []))
            elif half is None:
                sys.exit(f"{path}:{number}: text before a title")
            else:
                half[1].append(line)
    for page, halves in topics.items():
        if set(halves) != {"E", "J"} or not all(lines for _, lines in halves.values()):
            sys.exit(f"{path}: {page} is not told in both languages")
    return topics


def wanted_pages(sources):
    """What the program opens: topic files without their language, and base names of help files."""
    text = "".join(open(path, encoding="utf-8").read() for path in sources)
    topics = set(re.findall(r'"(\w[\w-]*)_E\.htm"', text))
    files = set(re.findall(r'kHelpFile, "(\w+)"', text))
    return topics | files - {MANUAL}


def body(lines):
    shown, in_table = "", False
    for line in lines:
        row = line.startswith("| ")
        if row != in_table:
            shown += "<table border=\"1\" cellpadding=\"3\">\n" if row else "</table>\n"
            in_table = row
        cells = [html.escape(cell.strip()) for cell in line[1:].split("|")]
        shown += "<tr>" + "".join(f"<td>{c}</td>" for c in cells) + "</tr>\n" if row else f"<p>{html.escape(line)}</p>\n"
    return shown + ("</table>\n" if in_table else "")


def write(path, language, title, content):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as page:
        page.write(f'<!DOCTYPE html>\n<html lang="{"en" if language == "E" else "ja"}">\n<head><meta charset="utf-8">'
                   f"<title>{html.escape(title)}</title></head>\n<body>\n<h1>{html.escape(title)}</h1>\n{content}</body>\n"
                   "</html>\n")


def main():
    source, folder, *users = sys.argv[1:]
    topics = read_topics(source)
    wanted = wanted_pages(users)
    if lost := wanted - set(topics):
        sys.exit(f"{source}: no page for {', '.join(sorted(lost))}")
    if left := set(topics) - wanted:
        sys.exit(f"{source}: nobody opens {', '.join(sorted(left))}")
    for language in "EJ":
        manual = os.path.join(folder, f"{MANUAL}_{language}")
        links = ""
        for page, halves in topics.items():
            title, lines = halves[language]
            if page.startswith("Capter"):
                name = f"{page}_{language}.htm"
                back = f'<p><a href="index.htm">{html.escape(TITLE[language])}</a></p>\n'
                write(os.path.join(manual, name), language, title, body(lines) + f"<p>{KEYS[language]}</p>\n" + back)
                links += f'<li><a href="{name}">{html.escape(title)}</a></li>\n'
            else:
                write(os.path.join(folder, f"{page}_{language}", "index.htm"), language, title, body(lines))
        write(os.path.join(manual, "index.htm"), language, TITLE[language], f"<ul>\n{links}</ul>\n")


main()
