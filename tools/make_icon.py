#!/usr/bin/env python3
"""Writes the program's icon as Windows wants it: make_icon.py OUT.ico SIZE.png...

A file of icons is a list of pictures; each may be a PNG as it is.
"""
import struct
import sys


def size_of(png):
    """Width and height, which stand at the beginning of a PNG."""
    if png[:8] != b"\x89PNG\r\n\x1a\n":
        sys.exit("no PNG")
    return struct.unpack(">II", png[16:24])


def main():
    pictures = []
    for name in sys.argv[2:]:
        with open(name, "rb") as file:
            pictures.append(file.read())
    head = struct.pack("<HHH", 0, 1, len(pictures))
    at = len(head) + 16 * len(pictures)
    for picture in pictures:
        width, height = size_of(picture)
        # 256 is written as 0.
        head += struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, 1, 32, len(picture), at)
        at += len(picture)
    with open(sys.argv[1], "wb") as file:
        file.write(head + b"".join(pictures))


main()
