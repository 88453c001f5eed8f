#!/usr/bin/env python3
"""What the uncut data says of more than a million places: the answers that the sea map's tiles are tested with.

    judge_sea_map.py land-10m.json tests/data/sea_map

The data is Natural Earth's 1:10m land as a TopoJSON file. Nothing here is shared with the program that makes the tiles, nor
with the one that reads them: rings are neither unwrapped nor cut nor closed, a place lies on land when the lines north of it,
along its meridian, wind around it, and distances to the coast are those of great circles. What the files look like and where
the places lie is told in tests/data/sea_map/README.md.
"""
import itertools
import json
import math
import sys

SIDE = 1000  # rows of the globe, and places in each of them
ALONG = 10000  # places along a limit
BESIDE = 0.05  # degrees of latitude, or as many miles of longitude: at most so far from the limit
# The limits of the tiles: parallels from west to east, meridians from north to south.
PARALLELS = (40, -10, -60)
MERIDIANS = tuple((x, 84, -60) for x in range(-180, 180, 40)) + tuple((x, -60, -89) for x in range(-180, 180, 60))
MILE = math.radians(1 / 60)
AT_COAST, COASTAL, SURELY_OFF = 0.3, 1.9, 2.1  # nautical miles
STRIPS = 10000  # of longitude, all around
CELL = 3 * MILE  # the side of the cubes in which coasts are looked up
STEP = 1.5 * MILE  # along a coast that is put into cubes; SURELY_OFF and half of it are less than CELL


def place(row, column):
    """Latitude and longitude in degrees: somewhere in a cell of a grid whose cells are all of one area."""
    up, along = (shuffled(2 * (row * SIDE + column) + which) / 2**64 for which in (0, 1))
    return (math.degrees(math.asin(1 - 2 * (row + up) / SIDE)), -180 + 360 * (column + along) / SIDE)


def places_at_limits():
    """A list for each limit."""
    lines = []
    for line in range(len(PARALLELS) + len(MERIDIANS)):
        places = []
        for n in range(ALONG):
            number = 2 * (SIDE * SIDE + ALONG * line + n)
            part = (n + shuffled(number) / 2**64) / ALONG
            beside = BESIDE * (2 * shuffled(number + 1) / 2**64 - 1)
            if line < len(PARALLELS):
                places.append((PARALLELS[line] + beside, -180 + 360 * part))
            else:
                meridian, north, south = MERIDIANS[line - len(PARALLELS)]
                latitude = north + (south - north) * part
                places.append((latitude, off(meridian + beside / math.cos(math.radians(latitude)), 0)))
        lines.append(places)
    return lines


def shuffled(number):
    """A number below 2^64 that looks like chance (splitmix64)."""
    mask = 2**64 - 1
    number = (number + 1) * 0x9E3779B97F4A7C15 & mask
    number = (number ^ number >> 30) * 0xBF58476D1CE4E5B9 & mask
    number = (number ^ number >> 27) * 0x94D049BB133111EB & mask
    return number ^ number >> 31


def read_edges(topology):
    """(longitude, latitude, longitude, latitude) of each edge of the land, land always on the same side."""
    (east, north), (west, south) = topology["transform"]["scale"], topology["transform"]["translate"]
    edges = []
    for geometry in topology["objects"]["land"]["geometries"]:
        for numbers in itertools.chain.from_iterable(geometry["arcs"]):
            points = []
            for number in numbers:
                arc = topology["arcs"][max(number, ~number)]
                line = [(west + x * east, south + y * north)
                        for x, y in itertools.accumulate(arc, lambda a, b: (a[0] + b[0], a[1] + b[1]))]
                points += line if number >= 0 else reversed(line)
            # The data's mark at 0 N 0 E is no land.
            if max(map(abs, itertools.chain.from_iterable(points))) > 0.01:
                edges += [(*a, *b) for a, b in zip(points, points[1:]) if a != b]
    return edges


def off(longitude, reference):
    """How far east a longitude is of another one, from -180 up to 180."""
    return (longitude - reference + 180) % 360 - 180


class Land:
    """Says whether a place lies on land."""

    def __init__(self, edges):
        self.strips = [[] for _ in range(STRIPS)]
        for edge in edges:
            width = off(edge[2], edge[0])
            if width == 0:
                continue  # along a meridian: nothing is north of it that was not before
            low = min(edge[0], edge[0] + width)
            first = math.floor((low + 180) / 360 * STRIPS - 1e-6)
            last = math.floor((low + abs(width) + 180) / 360 * STRIPS + 1e-6)
            for strip in range(first, last + 1):
                self.strips[strip % STRIPS].append((*edge[:2], width, edge[3] - edge[1]))

    def holds(self, latitude, longitude):
        turns = 0
        for x, y, width, height in self.strips[int((longitude + 180) / 360 * STRIPS) % STRIPS]:
            ahead = off(longitude, x)
            if ahead < 0 and width < 0 and ahead >= width or ahead >= 0 and width > 0 and ahead < width:
                if y + height * ahead / width > latitude:
                    turns += 1 if width > 0 else -1
        return turns != 0


def vector(latitude, longitude):
    latitude, longitude = math.radians(latitude), math.radians(longitude)
    return (math.cos(latitude) * math.cos(longitude), math.cos(latitude) * math.sin(longitude), math.sin(latitude))


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def angle(a, b):
    return 2 * math.asin(min(1, math.dist(a, b) / 2))


def distance(point, start, end):
    """From a point of the unit sphere to an arc of a great circle, in radians."""
    axis = cross(start, end)
    length = math.hypot(*axis)
    # Beside the arc when it is on the inner side of both planes that stand upright on its ends.
    if length > 0 and dot(cross(axis, start), point) > 0 > dot(cross(axis, end), point):
        return abs(math.asin(dot(axis, point) / length))
    return min(angle(point, start), angle(point, end))


class Coast:
    """Says how far off the nearest coast is, as long as that is not more than SURELY_OFF miles."""

    def __init__(self, edges):
        self.cells = {}
        for west, south, east, north in edges:
            if abs(west) == abs(east) == 180:
                continue  # where the data was cut apart
            start, end = vector(south, west), vector(north, east)
            steps = math.ceil(angle(start, end) / STEP)
            for step in range(steps + 1):
                part = step / steps
                chord = [a + (b - a) * part for a, b in zip(start, end)]
                on_globe = [c / math.hypot(*chord) for c in chord]
                cell = self.cells.setdefault(tuple(math.floor(c / CELL) for c in on_globe), [])
                if not cell or cell[-1] != (start, end):
                    cell.append((start, end))

    def miles(self, latitude, longitude):
        point = vector(latitude, longitude)
        x, y, z = (math.floor(c / CELL) for c in point)
        nearest = math.inf
        for a in (x - 1, x, x + 1):
            for b in (y - 1, y, y + 1):
                for c in (z - 1, z, z + 1):
                    for start, end in self.cells.get((a, b, c), ()):
                        nearest = min(nearest, distance(point, start, end))
        return nearest / MILE


def answer(land, miles):
    """One letter: see tests/data/sea_map/README.md."""
    if miles < AT_COAST:
        return "x"
    if land:
        return "L"
    return "c" if miles < COASTAL else "?" if miles <= SURELY_OFF else "."


def runs(answers):
    """ "LLLc" as "3L c"."""
    counted = ((letter, len(list(same))) for letter, same in itertools.groupby(answers))
    return " ".join(f"{count}{letter}" if count > 1 else letter for letter, count in counted)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with open(sys.argv[1], encoding="utf-8") as file:
        edges = read_edges(json.load(file))
    land, coast = Land(edges), Coast(edges)
    globe = [[place(row, column) for column in range(SIDE)] for row in range(SIDE)]
    for name, rows in (("globe.txt", globe), ("limits.txt", places_at_limits())):
        with open(f"{sys.argv[2]}/{name}", "w", encoding="ascii") as file:
            for row in rows:
                file.write(runs(answer(land.holds(*where), coast.miles(*where)) for where in row) + "\n")


if __name__ == "__main__":
    main()
