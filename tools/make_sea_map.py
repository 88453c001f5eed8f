#!/usr/bin/env python3
"""Makes the tiles of the sea map: coastlines cut into 33 text files. Run when the data is changed, not at each build.

    make_sea_map.py land-10m.json resources/SeaMap

The data is Natural Earth's 1:10m land as a TopoJSON file. Everything is reckoned in whole thousandths of a degree, so that
two neighbours have the same point where a coast goes from one into the other. What the files look like is told in
src/map/tiles/coast.h, what is special about the data in resources/SeaMap/README.md.
"""
import argparse
import json
import pathlib

UNIT = 1000  # of a degree
AROUND = 360 * UNIT
DATE_LINE = 180 * UNIT
POLE = 90 * UNIT
LONGEST_LINE = 600

# north, south, width of a tile, all in degrees
ROWS = ((90, 40, 40), (40, -10, 40), (-10, -60, 40), (-60, -90, 60))
PARALLELS = tuple(UNIT * degrees for degrees in (90, 40, -10, -60, -90))


def west_edges(width):
    """The meridians that limit the tiles of a row; the date line is one of them, and from there they go to the east."""
    return tuple(UNIT * west for west in range(-180, 180, width))


MERIDIANS = tuple(west_edges(width) for _, _, width in ROWS)


def row_of(doubled_latitude):
    """The row of a latitude that is handed over twice as large, so that the middle of an edge is whole."""
    for row, (_, south, _) in enumerate(ROWS[:-1]):
        if doubled_latitude > 2 * UNIT * south:
            return row
    return len(ROWS) - 1


def wrapped(longitude):
    return (longitude + DATE_LINE) % AROUND - DATE_LINE


# ---- From the data to rings


def read_rings(topology):
    """Every ring of the land as a list of (longitude, latitude) in degrees, its last point not the first one again."""
    scale, shift = topology["transform"]["scale"], topology["transform"]["translate"]
    arcs = []
    for steps in topology["arcs"]:
        x = y = 0
        arc = []
        for dx, dy in steps:
            x, y = x + dx, y + dy
            arc.append((x * scale[0] + shift[0], y * scale[1] + shift[1]))
        arcs.append(arc)
    rings = []
    for geometry in topology["objects"]["land"]["geometries"]:
        for polygon in geometry["arcs"]:
            for numbers in polygon:
                ring = []
                for number in numbers:
                    # A number below zero is the arc of its complement, backwards.
                    ring += (arcs[number] if number >= 0 else arcs[~number][::-1])[:-1]
                rings.append(ring)
    return rings


def is_marker(ring):
    """The data has a square of half a mile around 0 N 0 E, where there is only sea."""
    return all(abs(x) < 0.01 and abs(y) < 0.01 for x, y in ring)


def rounded(degrees, limits):
    """To whole units, but never onto a limit: two such points in a row would make a coast look like a cut."""
    exact = degrees * UNIT
    units = round(exact)
    if units not in limits:
        return units
    on_limit = abs(exact - units) < 1e-6
    # At the date line the data itself is cut. Other meridians are there by chance, since their distance from it is a ninth
    # of the globe, and so a whole number of the data's own units.
    if on_limit and abs(units) == DATE_LINE:
        return units
    return units + (1 if on_limit or exact > units else -1)


ALL_MERIDIANS = frozenset(x for meridians in MERIDIANS for x in meridians) | {DATE_LINE}


def in_units(ring):
    return [(rounded(x, ALL_MERIDIANS), rounded(y, PARALLELS)) for x, y in ring]


def unwrapped(ring):
    """The same ring without the step from 180 W to 180 E, and how far around the globe it leads: 0, or a turn to the east
    or west when it goes around a pole."""
    path = [ring[0]]
    for x, y in ring[1:] + ring[:1]:
        step = wrapped(x - path[-1][0])
        path.append((path[-1][0] + step, y))
    return path[:-1], path[-1][0] - path[0][0]


# ---- Cutting at the limits


def crossings(start, end, axis, limits, avoided=()):
    """The points of an edge where it goes over limits of one axis, in order and rounded along the limit, but not to an
    avoided place unless all of the edge is there."""
    (a, b) = (start[axis], end[axis])
    other = 1 - axis
    points = []
    for limit in limits:
        if min(a, b) < limit < max(a, b):
            over, under = (end[other] - start[other]) * (limit - a), b - a
            along = start[other] + (2 * over + under) // (2 * under)
            if along in avoided:
                middle = start[other] + end[other] - 2 * along
                along += (middle > 0) - (middle < 0)
            points.append((limit, along) if axis == 0 else (along, limit))
    return sorted(points, key=lambda point: abs(point[axis] - a))


def meridians_between(x, y, row):
    """The limits of a row from x to y, any number of turns around."""
    low, high = min(x, y), max(x, y)
    limits = []
    for turn in range((low - DATE_LINE) // AROUND, (high + DATE_LINE) // AROUND + 1):
        limits += [meridian + turn * AROUND for meridian in MERIDIANS[row]]
    return limits


def cut(path):
    """The path with a point on every limit that it goes over, so that each edge belongs to one tile."""
    by_row = [path[0]]
    for end in path[1:]:
        by_row += crossings(by_row[-1], end, 1, PARALLELS) + [end]
    points = [by_row[0]]
    for end in by_row[1:]:
        start = points[-1]
        row = row_of(start[1] + end[1])
        # A corner that was made by rounding would leave a piece of the edge along the parallel.
        points += crossings(start, end, 0, meridians_between(start[0], end[0], row), PARALLELS) + [end]
    return points


def cut_ring(ring):
    """A ring in units, cut; its last point is its first one again, a turn off where it goes around a pole."""
    points, turn = unwrapped(ring)
    path = cut(points + [(points[0][0] + turn, points[0][1])])
    if turn == 0:
        return path
    # It goes around a pole and does not hold it: opened at the date line and closed over the pole.
    assert abs(turn) == AROUND
    at = next(at for at, (x, _) in enumerate(path) if wrapped(x) == -DATE_LINE)
    path = path[at:-1] + [(x + turn, y) for x, y in path[:at + 1]]
    pole = -POLE if sum(y for _, y in path) < 0 else POLE
    return cut(path + [(path[-1][0], pole), (path[0][0], pole), path[0]])


class Tile:
    def __init__(self, west, north, east, south):
        self.west, self.north, self.east, self.south = west, north, east, south
        self.width, self.height = east - west, north - south
        self.around = 2 * (self.width + self.height)

    def name(self):
        return (f"{'E' if self.west > 0 else 'W'}{abs(self.west) // UNIT:03}"
                f"{'N' if self.north > 0 else 'S'}{abs(self.north) // UNIT:02}.src")

    def along_limit(self, point):
        """How far a point of the limits is from the north-west corner, clockwise; None for one within."""
        x, y = point
        if y == self.north and x < self.east:
            return x - self.west
        if x == self.east and y > self.south:
            return self.width + self.north - y
        if y == self.south and x > self.west:
            return self.width + self.height + self.east - x
        if x == self.west:
            return self.around - (self.north - y) if y < self.north else 0
        return None

    def on_limit(self, at):
        """The point that along_limit() says is so far."""
        at %= self.around
        if at < self.width:
            return (self.west + at, self.north)
        if at < self.width + self.height:
            return (self.east, self.north - (at - self.width))
        if at < 2 * self.width + self.height:
            return (self.east - (at - self.width - self.height), self.south)
        return (self.west, self.north - (self.around - at))

    def corners_between(self, start, end):
        """The corners that one passes clockwise from one place of the limits to another, further one."""
        corners = (0, self.width, self.width + self.height, 2 * self.width + self.height)
        passed = sorted(corner + turn for corner in corners for turn in (0, self.around, 2 * self.around))
        return [self.on_limit(at) for at in passed if start < at < end]


TILES = tuple(Tile(west, UNIT * north, west + UNIT * width, UNIT * south)
              for (north, south, width), wests in zip(ROWS, MERIDIANS) for west in wests)
TILE_AT = {(tile.west, tile.north): tile for tile in TILES}


def tile_of_edge(start, end):
    """The tile of an edge that crosses no limit; None when it runs along one and therefore is no coast."""
    row = row_of(start[1] + end[1])
    if start[1] == end[1] and start[1] in PARALLELS:
        return None
    if start[0] == end[0] and wrapped(start[0]) in MERIDIANS[row]:
        return None
    middle = (start[0] + end[0] + AROUND) % (2 * AROUND) - AROUND
    west = max(meridian for meridian in MERIDIANS[row] if 2 * meridian <= middle)
    return TILE_AT[west, UNIT * ROWS[row][0]]


def moved_into(tile, point):
    """The point by a whole turn, so that it lies in the tile, limits included."""
    x = point[0] - (point[0] - tile.west) // AROUND * AROUND
    return (x, point[1])


def moved_edge(tile, start, end):
    """Both ends; one on the east limit of a tile is also on its west limit when that is the date line's other side."""
    a, b = moved_into(tile, start), moved_into(tile, end)
    # The turn of the end that lies further within is the edge's.
    turn = start[0] - a[0] if a[0] - tile.west <= tile.width else end[0] - b[0]
    if start[0] - turn + end[0] - turn < 2 * tile.west:
        turn -= AROUND
    return (start[0] - turn, start[1]), (end[0] - turn, end[1])


class Pieces:
    """What belongs to one tile: rings that never leave it, and pieces of coast that begin and end at its limits."""

    def __init__(self):
        self.rings = []
        self.chains = []


def take_apart(rings):
    """The pieces of each tile, of rings that were cut."""
    pieces = {tile: Pieces() for tile in TILES}
    for path in rings:
        edges = []
        for start, end in zip(path, path[1:]):
            if start == end:
                continue
            tile = tile_of_edge(start, end)
            edges.append((tile, *(moved_edge(tile, start, end) if tile else (start, end))))
        # It begins where it comes into a tile.
        first = next((at for at, (tile, _, _) in enumerate(edges) if tile is not edges[at - 1][0]), None)
        if first is None:
            if edges and edges[0][0]:
                pieces[edges[0][0]].rings.append([start for _, start, _ in edges])
            continue
        chain, owner = [], None
        for tile, start, end in edges[first:] + edges[:first]:
            if tile is not owner:
                if owner:
                    pieces[owner].chains.append(chain)
                chain, owner = [start], tile
            chain.append(end)
        if owner:
            pieces[owner].chains.append(chain)
    return pieces


# ---- Putting a tile together


def is_inside(path, x, y):
    """Whether a point is within a closed path, by the edges east of it. y must not be that of a point of the path."""
    inside = False
    for (x1, y1), (x2, y2) in zip(path, path[1:] + path[:1]):
        if (y1 > y) != (y2 > y) and x1 + (y - y1) * (x2 - x1) / (y2 - y1) > x:
            inside = not inside
    return inside


def is_land(rings, x, y):
    """Whether a point is within an odd number of cut rings, which may lead around the globe."""
    inside = False
    for path in rings:
        longitudes = [point[0] for point in path]
        low, high = min(longitudes), max(longitudes)
        for turn in range((low - x) // AROUND, (high - x) // AROUND + 1):
            moved = x + turn * AROUND
            if low <= moved <= high:
                inside ^= is_inside(path[:-1], moved, y)
    return inside


def land_along_limits(tile, chains, rings):
    """The parts of the limits that lie in land, from and to clockwise. The coast of the pieces says where land begins and
    ends; one look at the rings says which it is somewhere between."""
    ends = sorted(tile.along_limit(point) for chain in chains for point in (chain[0], chain[-1]))
    spans = list(zip(ends, ends[1:] + [ends[0] + tile.around])) if ends else [(0, tile.around)]
    widest = max(range(len(spans)), key=lambda at: spans[at][1] - spans[at][0])
    # Not exactly on a limit: half a unit within, where no point of a ring is.
    x, y = tile.on_limit((spans[widest][0] + spans[widest][1]) // 2)
    x += -1 if x == tile.east else 1 if x == tile.west else 0
    y += -0.5 if y > tile.south else 0.5
    land = is_land(rings, x, y)
    parts = []
    for span in spans[widest:] + spans[:widest]:
        if land and span[0] < span[1]:
            parts.append(span)
        land = not land
    return parts


def joined(tile, chains, parts):
    """Closed rings of pieces of coast and of parts of the limits. At each place of the limits as many end as begin, so that
    any way to go on leads back; a ring ends as soon as it is back at a place where it was."""
    lines = [(tile.along_limit(chain[0]), tile.along_limit(chain[-1]), chain) for chain in chains]
    for start, end in parts:
        corners = tile.corners_between(start, end)
        lines.append((start % tile.around, end % tile.around,
                      [tile.on_limit(start), *corners, tile.on_limit(end)]))
    at_place = {}
    for number, (start, end, _) in enumerate(lines):
        at_place.setdefault(start, []).append(number)
        at_place.setdefault(end, []).append(number)
    used = [False] * len(lines)
    rings = []
    for first, (place, _, _) in enumerate(lines):
        if used[first]:
            continue
        way, places = [], [place]
        while True:
            number = next((n for n in at_place[places[-1]] if not used[n]), None)
            if number is None:
                break
            used[number] = True
            start, end, points = lines[number]
            if start == places[-1]:
                way.append(points)
                places.append(end)
            else:
                way.append(points[::-1])
                places.append(start)
            if places[-1] in places[:-1]:
                back = places.index(places[-1])
                rings.append([point for points in way[back:] for point in points[:-1]])
                del way[back:], places[back + 1:]
        assert not way, tile.name()
    return rings


def box(ring):
    longitudes, latitudes = [x for x, _ in ring], [y for _, y in ring]
    return min(longitudes), min(latitudes), max(longitudes), max(latitudes)


def in_order(rings):
    """(is water, ring) in the order of painting: first what lies in nothing, then what lies in that, and so on."""
    boxes = [box(ring) for ring in rings]
    layers = []
    for number, ring in enumerate(rings):
        west, south, east, north = boxes[number]
        layer = 0
        for other, (w, s, e, n) in enumerate(boxes):
            if other != number and w <= west and s <= south and e >= east and n >= north:
                # Rings may touch, so one point does not decide. A quarter of a unit off no edge ends.
                seen = [ring[0], ring[len(ring) // 3], ring[2 * len(ring) // 3]]
                layer += sum(is_inside(rings[other], x, y + 0.25) for x, y in seen) >= 2
        layers.append(layer)
    order = sorted(range(len(rings)), key=lambda number: layers[number])
    return [(layers[number] % 2 == 1, rings[number]) for number in order]


def make_tiles(rings):
    """For each tile its rings in the order of painting, of rings in units."""
    cut_rings = [cut_ring(ring) for ring in rings]
    made = {}
    for tile, pieces in take_apart(cut_rings).items():
        parts = land_along_limits(tile, pieces.chains, cut_rings)
        made[tile] = in_order(joined(tile, pieces.chains, parts) + pieces.rings)
    return made


# ---- Writing


def degrees(units):
    """12300 as "12.3"."""
    whole, part = divmod(abs(units), UNIT)
    text = f"{whole}.{part:03}".rstrip("0").rstrip(".")
    return "-" + text if units < 0 else text


def checksum(data):
    """Fowler, Noll and Vo's 1a with 64 bits, as src/text/checksum.h has it."""
    value = 14695981039346656037
    for byte in data:
        value = (value ^ byte) * 1099511628211 & 0xFFFFFFFFFFFFFFFF
    return value


def tile_text(tile, rings):
    limits = " ".join(str(units // UNIT) for units in (tile.west, tile.north, tile.east, tile.south))
    lines = ["# Natural Earth 1:10m land, public domain; made by tools/make_sea_map.py",
             "kavrel sea map 1", f"tile {tile.name()} {limits}"]
    for water, ring in rings:
        lines.append(f"{'water' if water else 'land'} {len(ring)}")
        line = ""
        for x, y in ring:
            pair = f"{degrees(x)} {degrees(y)}"
            if len(line) + 1 + len(pair) > LONGEST_LINE:
                lines.append(line)
                line = ""
            line += f" {pair}" if line else pair
        lines.append(line)
    text = "".join(line + "\n" for line in lines)
    points = sum(len(ring) for _, ring in rings)
    return text + f"end {len(rings)} {points} {checksum(text.encode('ascii')):016x}\n"


def main():
    arguments = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    arguments.add_argument("land", type=pathlib.Path, help="land-10m.json")
    arguments.add_argument("folder", type=pathlib.Path, help="where the tiles are written")
    given = arguments.parse_args()
    rings = read_rings(json.loads(given.land.read_text(encoding="utf-8")))
    made = make_tiles([in_units(ring) for ring in rings if not is_marker(ring)])
    for tile, tile_rings in made.items():
        (given.folder / tile.name()).write_text(tile_text(tile, tile_rings), encoding="ascii", newline="\n")


if __name__ == "__main__":
    main()
