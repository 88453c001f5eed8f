#!/usr/bin/env python3
"""Tests of judge_sea_map.py with made-up land."""
import math
import unittest

import judge_sea_map as judge


def topology(*polygons):
    """Land of polygons, each a list of rings, each a list of (longitude, latitude) in whole degrees."""
    arcs, geometry = [], []
    for rings in polygons:
        numbers = []
        for ring in rings:
            closed = ring + ring[:1]
            steps = [closed[0]] + [(b[0] - a[0], b[1] - a[1]) for a, b in zip(closed, closed[1:])]
            numbers.append([len(arcs)])
            arcs.append([list(step) for step in steps])
        geometry.append(numbers)
    return {"transform": {"scale": [1, 1], "translate": [0, 0]}, "arcs": arcs,
            "objects": {"land": {"geometries": [{"arcs": geometry}]}}}


class Judge(unittest.TestCase):
    def land(self, *polygons):
        return judge.Land(judge.read_edges(topology(*polygons)))

    def miles(self, where, *polygons):
        return judge.Coast(judge.read_edges(topology(*polygons))).miles(*where)

    def test_land_in_a_ring_and_not_in_its_hole(self):
        land = self.land([[(10, 0), (10, 10), (20, 10), (20, 0)], [(14, 4), (16, 4), (16, 6), (14, 6)]])
        for latitude, longitude, expected in ((5, 12, True), (5, 15, False), (3, 15, True), (7, 15, True), (11, 15, False),
                                              (-1, 15, False), (5, 9, False), (5, 21, False), (5, -165, False)):
            self.assertEqual(land.holds(latitude, longitude), expected, (latitude, longitude))

    def test_both_directions_of_a_ring_are_land(self):
        ring = [(10, 0), (10, 10), (20, 10), (20, 0)]
        for way in (ring, ring[::-1]):
            self.assertTrue(self.land([way]).holds(5, 15))

    def test_a_ring_over_the_date_line(self):
        land = self.land([[(178, 0), (178, 10), (-178, 10), (-178, 0)]])
        for longitude, expected in ((179.9, True), (-179.9, True), (-180, True), (177, False), (-177, False), (0, False)):
            self.assertEqual(land.holds(5, longitude), expected, longitude)

    def test_a_ring_around_the_pole_is_land_up_to_it(self):
        land = self.land([[(x, -70) for x in range(180, -180, -10)]])
        for latitude, expected in ((-69.9, False), (-70.1, True), (-89.99, True), (0, False)):
            for longitude in (-179.9, -3, 0, 77, 179.9):
                self.assertEqual(land.holds(latitude, longitude), expected, (latitude, longitude))

    def test_the_mark_at_the_origin_is_no_land(self):
        mark = {"transform": {"scale": [0.005, 0.005], "translate": [0, 0]},
                "arcs": [[[-1, -1], [0, 2], [2, 0], [0, -2], [-2, 0]]],
                "objects": {"land": {"geometries": [{"arcs": [[[0]]]}]}}}
        self.assertEqual(judge.read_edges(mark), [])

    def test_distances_are_those_of_great_circles(self):
        square = [[(10, 0), (10, 10), (20, 10), (20, 0)]]
        self.assertAlmostEqual(self.miles((-1 / 60, 15), square), 1, places=3)
        self.assertAlmostEqual(self.miles((5, 20 + 1.5 / 60), square), 1.5 * math.cos(math.radians(5)), places=3)
        # Beyond a corner.
        self.assertAlmostEqual(self.miles((-0.6 / 60, 20 + 0.8 / 60), square), 1, places=3)
        # Within land, too, and a degree of longitude is short in the north.
        self.assertAlmostEqual(self.miles((5, 10 + 1 / 60), square), math.cos(math.radians(5)), places=3)
        self.assertAlmostEqual(self.miles((80.5, 1 + 10 / 60), [[(1, 80), (1, 81), (0, 81)]]),
                               10 * math.cos(math.radians(80.5)), places=2)

    def test_a_coast_is_found_over_the_date_line(self):
        square = [[(178, 0), (178, 10), (180, 10), (180, 0)]]
        # Not the edge along the date line itself, where the data was cut apart.
        self.assertEqual(self.miles((5, -179.99), square), math.inf)
        self.assertAlmostEqual(self.miles((10.01, -179.999), square), 0.6, places=2)

    def test_angles_of_any_size_are_right(self):
        for degrees in (0, 1e-4, 1, 90, 179):
            self.assertAlmostEqual(judge.angle(judge.vector(0, 10), judge.vector(0, 10 + degrees)), math.radians(degrees))

    def test_letters(self):
        for land, miles, letter in ((True, 0.2, "x"), (False, 0.2, "x"), (True, 0.4, "L"), (True, math.inf, "L"),
                                    (False, 0.4, "c"), (False, 1.8, "c"), (False, 2, "?"), (False, 2.2, "."),
                                    (False, math.inf, ".")):
            self.assertEqual(judge.answer(land, miles), letter, (land, miles))

    def test_runs(self):
        self.assertEqual(judge.runs("LLLc.."), "3L c 2.")

    def test_places_are_spread_over_the_globe(self):
        self.assertEqual([f"{judge.shuffled(n):016x}" for n in (0, 1, 2)],
                         ["e220a8397b1dcdaf", "6e789e6aa1b965f4", "06c45d188009454f"])
        latitude, longitude = judge.place(0, 0)
        self.assertTrue(86.3 < latitude < 90 and -180 <= longitude < -179.64)
        latitude, longitude = judge.place(999, 999)
        self.assertTrue(-90 < latitude < -86.3 and 179.64 <= longitude < 180)
        limits = judge.places_at_limits()
        self.assertEqual([len(places) for places in limits], [10000] * 18)
        self.assertTrue(all(abs(latitude - 40) <= 0.05 for latitude, _ in limits[0]))
        self.assertTrue(all(179 < abs(longitude) <= 180 for _, longitude in limits[3]))


if __name__ == "__main__":
    unittest.main()
