// Any bytes as a tile of the sea map. A checksum is hard to guess, so the bytes are tried twice: as
// they are, and with the last line that they should have. What is taken is a tile in which every
// place can be asked for and that can be drawn, and nothing that differs from it by a byte is taken.

#include "map/tiles/coast.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "fakes/fake_files.h"
#include "fakes/tile_text.h"
#include "fuzz.h"
#include "map/map_drawing.h"
#include "map/map_view.h"
#include "text/checksum.h"
#include "text/texts.h"

namespace {

constexpr map::Tile kTile{-60, 40, -20, -10};

bool is_blank(char c) {
  return c == ' ' || c == '\n';
}

// The lines, ended with what they hold when they are right.
std::string with_end(std::string text) {
  if (!text.empty() && text.back() != '\n') text.push_back('\n');
  int rings = 0;
  int numbers = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find('\n', at);
    const std::string_view line = std::string_view(text).substr(at, end - at);
    if (line.starts_with("land ") || line.starts_with("water "))
      ++rings;
    else if (!line.starts_with("#") && !line.starts_with("kavrel") && !line.starts_with("tile"))
      for (std::size_t n = 0; n < line.size(); ++n)
        if (!is_blank(line[n]) && (n == 0 || is_blank(line[n - 1]))) ++numbers;
    at = end + 1;
  }
  return tile_text::ended(std::move(text), rings, numbers / 2);
}

bool is_within(const map::CoastPoint& point) {
  const auto units = [](int degrees) { return degrees * map::kUnitsOfDegree; };
  return point.longitude >= units(kTile.west) && point.longitude <= units(kTile.east) &&
         point.latitude >= units(kTile.south) && point.latitude <= units(kTile.north);
}

// By every edge, in another direction than the program looks: to the north.
bool is_in_rings(const map::Coast& coast, map::Place place) {
  const double x = place.longitude * map::kUnitsOfDegree;
  const double y = place.latitude * map::kUnitsOfDegree;
  bool inside = false;
  for (const map::Ring& ring : coast.rings()) {
    map::CoastPoint from = ring.points.back();
    for (const map::CoastPoint to : ring.points) {
      if ((from.longitude > x) != (to.longitude > x)) {
        const double part = (x - from.longitude) / (to.longitude - from.longitude);
        if (from.latitude + part * (to.latitude - from.latitude) > y) inside = !inside;
      }
      from = to;
    }
  }
  return inside;
}

void check(const map::Coast& coast) {
  for (const map::Ring& ring : coast.rings()) {
    fuzz::expect(!ring.points.empty(), "a ring has points");
    map::CoastPoint from = ring.points.back();
    for (const map::CoastPoint to : ring.points) {
      fuzz::expect(is_within(to), "a point lies in its tile");
      fuzz::expect(
          ring.south_west.longitude <= to.longitude && ring.south_west.latitude <= to.latitude &&
              ring.north_east.longitude >= to.longitude && ring.north_east.latitude >= to.latitude,
          "a point lies in what its ring spans");
      const map::Place place{to.latitude / 1000.0, to.longitude / 1000.0};
      if (!coast.is_cut(from, to))
        fuzz::expect(coast.is_near(place, 0.01), "a coast is near to itself");
      from = to;
    }
  }
  // Between all points, so on no edge's end; an edge that leads straight through is passed over.
  for (double latitude = -9.9993; latitude < 40; latitude += 4.997) {
    for (double longitude = -59.9993; longitude < -20; longitude += 3.997) {
      const map::Place place{latitude, longitude};
      if (!coast.is_near(place, 0.01))
        fuzz::expect(coast.is_land(place) == is_in_rings(coast, place), "land is what rings hold");
      if (coast.is_near(place, 1)) fuzz::expect(coast.is_near(place, 2), "near is near for more");
    }
  }
  // Far off, beyond the poles and turns away: any answer, but an answer.
  for (const map::Place place : {map::Place{90, 180}, {-90, -180}, {0, 720}, {40, -20}, {-10, -60}})
    (void)(coast.is_land(place) || coast.is_near(place, 2));
}

bool is_somewhere(ui::Point point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

bool is_drawn(const ui::Shape& shape) {
  if (const auto* const area = std::get_if<ui::Area>(&shape))
    return area->outline.size() > 2 && std::ranges::all_of(area->outline, is_somewhere);
  if (const auto* const line = std::get_if<ui::Polyline>(&shape))
    return line->points.size() > 1 && std::ranges::all_of(line->points, is_somewhere);
  if (const auto* const marker = std::get_if<ui::Marker>(&shape)) return is_somewhere(marker->at);
  return is_somewhere(std::get<ui::ShortText>(shape).at);
}

// At every step, from the middle of the tile, from a corner and from over its rim.
void draw(const std::string& tile) {
  fakes::FakeFiles files;
  files.add_file(std::string("C:\\SeaMap\\").append(map::file_name(kTile)), tile);
  map::SeaMap sea_map(files, "C:\\SeaMap");
  const text::Texts texts;
  for (const map::Place ship : {map::Place{15, -40}, {40, -20}, {-10.5, -60.5}}) {
    for (int step = 0; step < map::kSteps; ++step) {
      const map::MapView view = map::view_around(ship, static_cast<map::Step>(step));
      const ui::Drawing drawing =
          map::map_drawing({.at = ship, .course = 45.0, .speed = 12.0}, view, 200, sea_map, texts);
      fuzz::expect(std::ranges::all_of(drawing.ground, is_drawn) &&
                       std::ranges::all_of(drawing.shapes, is_drawn),
                   "what is drawn has a place");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Input input(data, size);
  if (const auto coast = map::parse_coast(input.text(), kTile)) check(*coast);
  const std::string whole = with_end(std::string(input.text()));
  const auto coast = map::parse_coast(whole, kTile);
  if (!coast) return 0;
  check(*coast);
  draw(whole);
  for (std::size_t at = 0; at < whole.size(); at += 1 + whole.size() / 64) {
    fuzz::expect(!map::parse_coast(whole.substr(0, at), kTile), "no part is taken");
    std::string changed = whole;
    changed[at] = static_cast<char>(static_cast<unsigned char>(changed[at]) ^ (1U + at % 255));
    fuzz::expect(!map::parse_coast(changed, kTile), "no changed byte is taken", whole, changed);
  }
  return 0;
}
