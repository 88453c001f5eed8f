#!/usr/bin/env python3
"""Checks resources/strings.txt against src/text/ids.h and writes the table as C++.

A line is: id, tab, text (UTF-8; \\n \\r \\t \\\\ escapes). "#" starts a comment line. Ids are unique; every named id of
ids.h has a text; every text goes to code page 932 and back, so that it can be shown on an older system and printed.
"""
import re
import sys


def fail(message):
    sys.exit("strings: " + message)


def main():
    table_path, ids_path, out_path = sys.argv[1:4]
    entries = {}
    with open(table_path, encoding="utf-8", newline="\n") as table:
        for number, line in enumerate(table, 1):
            line = line[:-1] if line.endswith("\n") else line
            if not line or line.startswith("#"):
                continue
            where = f"{table_path}:{number}: "
            left, tab, text = line.partition("\t")
            if not tab or not left.isascii() or not left.isdigit():
                fail(where + "want: id, tab, text")
            if int(left) in entries:
                fail(where + f"id {left} again")
            if re.search(r"\\(?![nrt\\])", re.sub(r"\\\\", "", text)) or "\t" in text:
                fail(where + "unknown escape or a raw tab")
            plain = re.sub(r"\\(.)", lambda m: {"n": "\n", "r": "\r", "t": "\t", "\\": "\\"}[m[1]], text)
            try:
                if plain.encode("cp932").decode("cp932") != plain:
                    fail(where + "does not survive code page 932")
            except UnicodeEncodeError as error:
                fail(where + str(error))
            if plain.count("/*E*/") > 1 and int(left) != 33208:
                fail(where + "two language markers")
            entries[int(left)] = plain
    with open(ids_path, encoding="utf-8") as ids:
        named = {}
        for name, value in re.findall(r"constexpr Id (k\w+){(\d+)};", ids.read()):
            if int(value) in named:
                fail(f"{name} and {named[int(value)]} name the same id {value}")
            if int(value) not in entries:
                fail(f"{name} = {value} has no text")
            named[int(value)] = name

    def literal(text):
        out = []
        for byte in text.encode("utf-8"):
            out.append(chr(byte) if 32 <= byte < 127 and chr(byte) not in '"\\?' else f"\\{byte:03o}")
        return '"' + "".join(out) + '"'

    with open(out_path, "w", encoding="ascii") as out:
        for number in sorted(entries):
            text = entries[number]
            out.write(f"{{{number}, std::string_view({literal(text)}, {len(text.encode('utf-8'))})}},\n")


main()
