#!/usr/bin/env python3
"""Writes the dialog layouts, one entry a class: {"CEyeShotDlg", R"(...)"}."""
import os
import sys


def main():
    with open(sys.argv[1], "w", encoding="utf-8") as out:
        for path in sorted(sys.argv[2:], key=os.path.basename):
            name = os.path.splitext(os.path.basename(path))[0]
            with open(path, encoding="utf-8") as layout:
                out.write(f'{{"{name}", R"LAYOUT({layout.read()})LAYOUT"}},\n')
        out.write('{"", ""},\n')


main()
