#!/usr/bin/env python3
"""Tests of make_sea_map.py with made-up rings: land is in the tiles where it was before, no coast is lost and none is added."""
import math
import random
import unittest

import make_sea_map as maker

UNIT = maker.UNIT


def units(*degrees):
    """Points of (longitude, latitude) in degrees."""
    return [(round(x * UNIT), round(y * UNIT)) for x, y in degrees]


def edges_of(ring):
    return list(zip(ring, ring[1:] + ring[:1]))


def is_cut(tile, start, end):
    """Whether an edge runs along a limit of the tile, and so counts as no coast."""
    return (start[0] == end[0] and start[0] in (tile.west, tile.east)
            or start[1] == end[1] and start[1] in (tile.north, tile.south))


def crossed(rings, x, y):
    """Whether a point is within an odd number of rings, by the edges north of it. x must not be that of a point."""
    inside = False
    for ring in rings:
        for (x1, y1), (x2, y2) in edges_of(ring):
            if (x1 > x) != (x2 > x) and y1 + (x - x1) * (y2 - y1) / (x2 - x1) > y:
                inside = not inside
    return inside


def length(start, end):
    return math.dist(start, end)


class MadeUp(unittest.TestCase):
    def make(self, *rings):
        """The tiles that have land, by name; what holds for all tiles is checked."""
        made = maker.make_tiles(list(rings))
        self.assertEqual(len(made), 33)
        for tile, drawn in made.items():
            for water, ring in drawn:
                for x, y in ring:
                    self.assertTrue(tile.west <= x <= tile.east and tile.south <= y <= tile.north, (tile.name(), x, y))
                self.assertEqual(water, self.layer(drawn, ring) % 2 == 1, tile.name())
        self.check_limits(made)
        return {tile.name()[:-4]: (tile, drawn) for tile, drawn in made.items() if drawn}

    def layer(self, drawn, ring):
        """In how many others a ring lies."""
        (x1, y1), (x2, y2) = ring[0], ring[1]
        return sum(other is not ring and crossed([other], (x1 + x2) / 2 + 0.1, (y1 + y2) / 2) for _, other in drawn)

    def check_limits(self, made):
        """Where a coast ends at a limit, it goes on beyond it, and land along a limit is on both sides of it."""
        ends, along = {}, {}
        for tile, drawn in made.items():
            for _, ring in drawn:
                for start, end in edges_of(ring):
                    if not is_cut(tile, start, end):
                        for x, y in (start, end):
                            if x in (tile.west, tile.east) or y in (tile.north, tile.south):
                                ends.setdefault((maker.wrapped(x), y), []).append(tile.name())
                    elif start[0] == end[0]:
                        side = "west" if start[0] == tile.east else "east"
                        limit = along.setdefault(("meridian", maker.wrapped(start[0])), {"west": [], "east": []})
                        limit[side].append(sorted((start[1], end[1])))
                    elif abs(start[1]) != maker.POLE:
                        side = "north" if start[1] == tile.south else "south"
                        limit = along.setdefault(("parallel", start[1]), {"north": [], "south": []})
                        limit[side].append(sorted((start[0], end[0])))
        for where, tiles in ends.items():
            self.assertEqual(len(tiles) % 2, 0, (where, tiles))
        for limit, sides in along.items():
            one, other = (self.joined(spans) for spans in sides.values())
            self.assertEqual(one, other, limit)

    def joined(self, spans):
        """The same spans, those that touch as one; they must not overlap."""
        result = []
        for low, high in sorted(spans):
            if result and result[-1][1] == low:
                result[-1][1] = high
            else:
                self.assertTrue(not result or result[-1][1] < low, spans)
                result.append([low, high])
        return result

    def coast(self, made):
        """The length of all coasts, those of rocks of two points twice."""
        return sum(length(*edge) for tile, drawn in made.values() for _, ring in drawn for edge in edges_of(ring)
                   if not is_cut(tile, *edge))

    def land_at(self, made, longitude, latitude):
        x, y = longitude * UNIT, latitude * UNIT
        for tile, drawn in made.values():
            if tile.west < x < tile.east and tile.south < y < tile.north:
                return crossed([ring for _, ring in drawn], math.floor(x) + 0.5, math.floor(y) + 0.5)
        return False

    def perimeter(self, ring):
        return sum(length(*edge) for edge in edges_of(ring))

    # ---- Rings and limits

    def test_a_ring_within_a_tile_stays_as_it_is(self):
        ring = units((30, 50), (31, 50), (31, 51), (30, 51))
        made = self.make(ring)
        self.assertEqual([(name, drawn) for name, (_, drawn) in made.items()], [("E020N90", [(False, ring)])])

    def test_a_ring_that_touches_a_limit_from_within_makes_nothing_beyond(self):
        for ring in (units((21, 50), (20, 50.5), (21, 51)), units((25, 41), (26, 40), (27, 41)),
                     units((21, 41), (20, 40), (22, 41)), units((30, 42), (30, 40), (31, 41), (31, 40), (32, 42))):
            made = self.make(ring)
            self.assertEqual(list(made), ["E020N90"])
            self.assertEqual(len(made["E020N90"][1]), 1)
            self.assertAlmostEqual(self.coast(made), self.perimeter(ring))

    def test_a_ring_over_a_limit_is_closed_along_it_on_both_sides(self):
        ring = units((19, 50), (21, 50), (21, 52), (19, 52))
        made = self.make(ring)
        self.assertEqual(sorted(made), ["E020N90", "W020N90"])
        self.assertEqual({point for point in made["E020N90"][1][0][1]},
                         set(units((20, 50), (21, 50), (21, 52), (20, 52))))
        self.assertAlmostEqual(self.coast(made), self.perimeter(ring))

    def test_a_ring_over_four_tiles(self):
        ring = units((19, 39), (21, 39), (21, 41), (19, 41))
        made = self.make(ring)
        self.assertEqual(sorted(made), ["E020N40", "E020N90", "W020N40", "W020N90"])
        for name, corner in (("E020N90", (21, 41)), ("W020N90", (19, 41)), ("W020N40", (19, 39)), ("E020N40", (21, 39))):
            (_, part), = made[name][1]
            self.assertEqual(set(part), set(units((20, 40), corner, (20, corner[1]), (corner[0], 40))))
        self.assertAlmostEqual(self.coast(made), self.perimeter(ring))

    def test_a_ring_over_the_corner_of_a_row_of_six_tiles(self):
        ring = units((-1, -59), (1, -59), (1, -61), (-1, -61))
        made = self.make(ring)
        self.assertEqual(sorted(made), ["W000S60", "W020S10", "W060S60"])
        self.assertAlmostEqual(self.coast(made), self.perimeter(ring))

    def test_an_edge_through_the_corner_itself(self):
        ring = units((19, 39), (21, 41), (19, 41))
        made = self.make(ring)
        self.assertEqual(sorted(made), ["E020N90", "W020N40", "W020N90"])
        self.assertAlmostEqual(self.coast(made), self.perimeter(ring))

    def test_the_sea_between_two_bays_at_a_limit_stays_sea(self):
        # A comb whose teeth reach over 20 E.
        ring = units((18, 50), (22, 50), (22, 51), (19, 51), (19, 52), (22, 52), (22, 53), (19, 53), (19, 54), (22, 54),
                     (22, 55), (18, 55))
        made = self.make(ring)
        self.assertEqual(len(made["E020N90"][1]), 3)
        self.assertEqual(len(made["W020N90"][1]), 1)
        for latitude, land in ((50.5, True), (51.5, False), (52.5, True), (53.5, False), (54.5, True)):
            for longitude in (19.9, 20.1):
                self.assertEqual(self.land_at(made, longitude, latitude), land, (longitude, latitude))
        self.assertAlmostEqual(self.coast(made), self.perimeter(ring))

    def test_a_bay_that_touches_a_limit_in_one_point(self):
        ring = units((18, 50), (22, 50), (22, 51), (20, 52), (22, 53), (22, 54), (18, 54))
        made = self.make(ring)
        self.assertTrue(self.land_at(made, 19.99, 52))
        self.assertFalse(self.land_at(made, 20.5, 52))
        self.assertAlmostEqual(self.coast(made), self.perimeter(ring))

    def test_a_hole_over_a_limit(self):
        outside = units((15, 45), (25, 45), (25, 55), (15, 55))
        hole = units((18, 50), (18, 52), (22, 52), (22, 50))
        made = self.make(outside, hole)
        for longitude in (19.5, 20.5):
            self.assertFalse(self.land_at(made, longitude, 51))
            self.assertTrue(self.land_at(made, longitude, 49))
            self.assertTrue(self.land_at(made, longitude, 53))
        self.assertFalse(any(water for _, drawn in made.values() for water, _ in drawn))
        self.assertAlmostEqual(self.coast(made), self.perimeter(outside) + self.perimeter(hole))

    def test_a_hole_that_touches_a_limit_from_within(self):
        made = self.make(units((15, 45), (25, 45), (25, 55), (15, 55)), units((20, 50), (22, 51), (22, 49)))
        self.assertFalse(self.land_at(made, 21, 50))
        self.assertTrue(self.land_at(made, 19.9, 50))
        self.assertTrue(self.land_at(made, 20.1, 51))

    def test_an_island_in_a_hole_is_painted_after_it(self):
        island = units((29, 50), (30, 50), (30, 51))
        hole = units((28, 49), (28, 53), (32, 53), (32, 49))
        outside = units((25, 45), (35, 45), (35, 55), (25, 55))
        made = self.make(island, hole, outside)
        self.assertEqual(made["E020N90"][1], [(False, outside), (True, hole), (False, island)])

    def test_a_tile_all_of_land_is_a_ring_of_its_limits(self):
        made = self.make(units((10, -20), (110, -20), (110, 60), (10, 60)))
        tile, drawn = made["E020N40"]
        self.assertEqual(drawn, [(False, units((20, 40), (60, 40), (60, -10), (20, -10)))])
        self.assertEqual(tile.name(), "E020N40.src")
        self.assertEqual(len(made), 12)

    def test_a_lake_in_a_tile_all_of_land(self):
        lake = units((30, 10), (31, 10), (31, 11))
        made = self.make(units((10, -20), (110, -20), (110, 60), (10, 60)), lake)
        self.assertEqual(made["E020N40"][1][1], (True, lake))

    def test_rocks_of_two_and_three_points_stay(self):
        rock, flat = units((30, 50), (30.01, 50.01)), units((31, 50), (31.01, 50), (31.02, 50))
        made = self.make(rock, flat)
        self.assertEqual(made["E020N90"][1], [(False, rock), (False, flat)])

    def test_a_rock_on_a_limit_is_there_on_both_sides(self):
        rock = units((19.99, 50), (20.01, 50.01))
        made = self.make(rock)
        self.assertEqual(sorted(made), ["E020N90", "W020N90"])
        self.assertAlmostEqual(self.coast(made), self.perimeter(rock), delta=1)

    # ---- The date line and the pole

    def test_a_ring_that_steps_over_the_date_line(self):
        ring = units((179, 70), (-179, 70), (-179, 71), (179, 71))
        made = self.make(ring)
        self.assertEqual(sorted(made), ["E140N90", "W180N90"])
        self.assertTrue(self.land_at(made, 179.99, 70.5))
        self.assertTrue(self.land_at(made, -179.99, 70.5))
        self.assertAlmostEqual(self.coast(made), UNIT * 6)

    def test_two_rings_that_meet_at_the_date_line_have_no_coast_there(self):
        for side in (180, -180):
            made = self.make(units((178, 65), (side, 65), (side, 68), (178, 68)),
                             units((-178, 65), (-side, 65), (-side, 66), (-side, 68), (-178, 68)))
            self.assertEqual(sorted(made), ["E140N90", "W180N90"])
            self.assertAlmostEqual(self.coast(made), UNIT * (4 + 4 + 3 + 3))

    def test_a_ring_around_the_pole_is_closed_over_it(self):
        for backwards in (False, True):
            coast = [(x, -70 - (x % 3)) for x in range(-180, 180)]
            ring = units(*(coast[::-1] if backwards else coast))
            made = self.make(ring)
            self.assertEqual(sorted(made), ["E060S60", "E120S60", "W000S60", "W060S60", "W120S60", "W180S60"])
            for longitude in range(-179, 180, 7):
                self.assertTrue(self.land_at(made, longitude + 0.5, -89.9), longitude)
                self.assertFalse(self.land_at(made, longitude + 0.5, -69.9), longitude)
            self.assertEqual(len([ring for _, drawn in made.values() for ring in drawn]), 6)

    def test_a_ring_around_the_pole_with_edges_along_the_date_line(self):
        made = self.make(units((-180, -84), (-170, -80), *((x, -70) for x in range(-160, 161, 10)), (170, -80)))
        self.assertTrue(self.land_at(made, -179.99, -85))
        self.assertFalse(self.land_at(made, -179.99, -83))

    def test_longitudes_of_any_turn_are_of_one_tile(self):
        for x, west in ((-180, -180), (179.999, 140), (-140.001, -180), (-140, -140)):
            for turn in (-360, 0, 360):
                edge = units((x + turn, 50.1), (x + turn + 0.001, 50.2))
                self.assertEqual(maker.tile_of_edge(*edge).west, west * UNIT)

    # ---- Any ring

    def test_any_ring_over_limits_keeps_its_land_and_its_coast(self):
        chance = random.Random(4)

        def one_of(*values):
            """As choice(), whose results another Python need not repeat."""
            return values[int(chance.random() * len(values))]

        for middle_x, middle_y in ((20, 40), (180, 40), (180, -60), (0, -60), (-60, -60), (100, -10), (-20, 39.5)) * 20:
            count = one_of(3, 5, 12, 60)
            turns = sorted(chance.random() * 2 * math.pi for _ in range(count))
            ring = []
            for turn in turns:
                far = one_of(1, 3, 0.02, 8) * chance.random()
                x = (middle_x + far * math.cos(turn) + 180) % 360 - 180
                ring += maker.in_units([(x, middle_y + far * math.sin(turn))])
            with self.subTest(ring=ring):
                made = self.make(ring)
                flat = maker.unwrapped(ring)[0]
                # Points are rounded along each limit, so an edge is longer or shorter by a little.
                self.assertAlmostEqual(self.coast(made), self.perimeter(flat), delta=4 * len(ring))
                for _ in range(40):
                    x, y = middle_x + chance.uniform(-4, 4), middle_y + chance.uniform(-4, 4)
                    expected = {crossed([flat], (x + turn) * UNIT + dx, y * UNIT + dy)
                                for turn in (-360, 0, 360) for dx in (-2, 2) for dy in (-2, 2)
                                if min(px for px, _ in flat) <= (x + turn) * UNIT <= max(px for px, _ in flat)}
                    if len(expected) == 1:  # else it is too near to a coast to tell
                        self.assertEqual(self.land_at(made, (x + 180) % 360 - 180, y), expected.pop(), (x, y))

    # ---- From the file

    def test_arcs_are_joined_and_walked_backwards(self):
        topology = {"transform": {"scale": [0.5, 2], "translate": [10, 20]},
                    "arcs": [[[0, 0], [2, 0], [0, 1]], [[0, 0], [0, 1], [2, 0]]],
                    "objects": {"land": {"geometries": [{"arcs": [[[0, -2]]]}]}}}
        self.assertEqual(maker.read_rings(topology), [[(10, 20), (11, 20), (11, 22), (10, 22)]])

    def test_only_the_mark_at_the_origin_is_left_out(self):
        self.assertTrue(maker.is_marker([(-0.005, -0.004), (0.005, -0.004), (0.005, 0.005)]))
        self.assertFalse(maker.is_marker([(-0.005, 0.1), (0.005, 0.1), (0.005, 0.11)]))

    def test_no_point_is_rounded_onto_a_limit(self):
        self.assertEqual(maker.in_units([(20.0003, 50.1234), (19.9998, 40.0001), (30, 39.9999), (30.0006, 30)]),
                         [(20001, 50123), (19999, 40001), (30000, 39999), (30001, 30000)])
        self.assertEqual(maker.in_units([(179.9998, 50), (-179.9998, 50)]), [(179999, 50000), (-179999, 50000)])

    def test_a_point_of_the_data_on_a_limit_is_moved_off_it_but_not_at_the_date_line(self):
        self.assertEqual(maker.in_units([(100, -2.7), (100, -2.8), (-60.0000000001, 40), (180, 1), (-180, 1)]),
                         [(100001, -2700), (100001, -2800), (-59999, 40001), (180000, 1000), (-180000, 1000)])

    # ---- What is written

    def test_degrees_have_no_more_figures_than_they_need(self):
        for number, text in ((0, "0"), (12300, "12.3"), (-5, "-0.005"), (180000, "180"), (-17120, "-17.12"), (-90000, "-90")):
            self.assertEqual(maker.degrees(number), text)

    def test_the_checksum_is_the_known_one(self):
        self.assertEqual(f"{maker.checksum(b''):016x} {maker.checksum(b'foobar'):016x}", "cbf29ce484222325 85944171f73967e8")

    def test_lines_are_short_and_counted(self):
        ring = [(30000 + x, 50001 + x % 7) for x in range(200)]
        tile = maker.TILE_AT[20 * UNIT, 90 * UNIT]
        lines = maker.tile_text(tile, [(False, ring), (True, ring[:4])]).splitlines()
        self.assertLessEqual(max(map(len, lines)), 600)
        self.assertGreater(max(map(len, lines)), 580)
        self.assertEqual(lines[1:4], ["kavrel sea map 1", "tile E020N90.src 20 90 60 40", "land 200"])
        self.assertIn("water 4", lines)
        self.assertRegex(lines[-1], "^end 2 204 [0-9a-f]{16}$")
        self.assertEqual(sum(line[0].isdigit() and len(line.split()) for line in lines), 2 * 204)


if __name__ == "__main__":
    unittest.main()
