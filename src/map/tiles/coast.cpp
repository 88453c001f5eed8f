#include "map/tiles/coast.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "text/checksum.h"
#include "text/numbers.h"

namespace map {
namespace {

constexpr int kBandsOfDegree = 4;
constexpr int kDecimals = 3;  // and as many figures before the point, at most

constexpr double degrees(std::int32_t units) {
  return static_cast<double>(units) / kUnitsOfDegree;
}

// ---- Reading

// Takes words off a text, separated by blanks.
class Words {
 public:
  explicit Words(std::string_view line) : rest_(line) {}

  // Empty behind the last one.
  std::string_view next() {
    const std::size_t start = rest_.find_first_not_of(' ');
    if (start == std::string_view::npos) return {};
    rest_.remove_prefix(start);
    const std::string_view word = rest_.substr(0, rest_.find(' '));
    rest_.remove_prefix(word.size());
    return word;
  }

 private:
  std::string_view rest_;
};

template <class Number>
std::optional<Number> whole(std::string_view word) {
  Number number = 0;
  const char* const end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  if (word.empty() || error != std::errc() || stop != end) return std::nullopt;
  return number;
}

std::string hexadecimal(std::uint64_t number) {
  constexpr int kFigures = 16;
  std::string figures(kFigures, '0');
  for (auto figure = figures.rbegin(); figure != figures.rend(); ++figure, number /= kFigures)
    *figure = "0123456789abcdef"[number % kFigures];
  return figures;
}

// "-17.12" as -17120. One to three figures, and where there is a point one to three behind it.
std::optional<std::int32_t> units(std::string_view word) {
  const bool negative = word.starts_with('-');
  if (negative) word.remove_prefix(1);
  std::int32_t number = 0;
  int figures = 0;  // on this side of the point
  bool behind_point = false;
  for (const char c : word) {
    if (c == '.' && figures > 0 && !behind_point) {
      behind_point = true;
      figures = 0;
    } else if (c >= '0' && c <= '9' && figures < kDecimals) {
      number = number * 10 + (c - '0');
      ++figures;
    } else {
      return std::nullopt;
    }
  }
  if (figures == 0) return std::nullopt;
  for (int have = behind_point ? figures : 0; have < kDecimals; ++have) number *= 10;
  return negative ? -number : number;
}

class Reader {
 public:
  explicit Reader(const Tile& tile) : tile_(tile) {}

  // False when the line is wrong.
  bool take(std::string_view line) {
    if (line.size() > kLongestLine || done_) return false;
    if (line.starts_with("end ")) return end(line);
    sum_.add(line);
    sum_.add("\n");
    if (line.starts_with('#')) return true;
    if (lines_++ == 0) return line == "kavrel sea map 1";
    if (lines_ == 2) return is_header(line);
    if (missing_ > 0) return points(line);
    return ring(line);
  }

  std::optional<Coast> result() && {
    if (!done_) return std::nullopt;
    return Coast(tile_, std::move(rings_));
  }

 private:
  bool is_header(std::string_view line) const {
    Words words(line);
    return words.next() == "tile" && words.next() == file_name(tile_) &&
           whole<int>(words.next()) == tile_.west && whole<int>(words.next()) == tile_.north &&
           whole<int>(words.next()) == tile_.east && whole<int>(words.next()) == tile_.south &&
           words.next().empty();
  }

  bool ring(std::string_view line) {
    Words words(line);
    const std::string_view kind = words.next();
    const auto count = whole<std::uint32_t>(words.next());
    if ((kind != "land" && kind != "water") || !count || *count == 0 || !words.next().empty())
      return false;
    Ring ring;
    ring.water = kind == "water";
    missing_ = *count;
    rings_.push_back(std::move(ring));
    return true;
  }

  bool points(std::string_view line) {
    Words words(line);
    std::size_t taken = 0;
    for (std::string_view word = words.next(); !word.empty(); word = words.next(), ++taken) {
      const auto longitude = units(word);
      const auto latitude = units(words.next());
      if (!longitude || !latitude || missing_ == 0 || !is_within(*longitude, *latitude))
        return false;
      rings_.back().points.push_back({*longitude, *latitude});
      ++points_;
      --missing_;
    }
    return taken > 0;
  }

  [[nodiscard]] bool is_within(std::int32_t longitude, std::int32_t latitude) const {
    return longitude >= tile_.west * kUnitsOfDegree && longitude <= tile_.east * kUnitsOfDegree &&
           latitude >= tile_.south * kUnitsOfDegree && latitude <= tile_.north * kUnitsOfDegree;
  }

  // Compared as a text: no other spelling of the same numbers passes.
  bool end(std::string_view line) {
    std::string expected = "end ";
    expected.append(text::format_int(static_cast<long long>(rings_.size())));
    expected.push_back(' ');
    expected.append(text::format_int(static_cast<long long>(points_)));
    expected.push_back(' ');
    expected.append(hexadecimal(sum_.value()));
    done_ = lines_ >= 2 && missing_ == 0 && line == expected;
    return done_;
  }

  const Tile& tile_;
  std::vector<Ring> rings_;
  text::Checksum sum_;
  std::size_t lines_ = 0;    // but comments
  std::size_t missing_ = 0;  // points of the ring that is being read
  std::size_t points_ = 0;
  bool done_ = false;
};

}  // namespace

Coast::Coast(const Tile& tile, std::vector<Ring> rings) : tile_(tile), rings_(std::move(rings)) {
  for (Ring& ring : rings_) {
    ring.south_west = ring.north_east = ring.points.front();
    for (const CoastPoint point : ring.points) {
      ring.south_west = {std::min(ring.south_west.longitude, point.longitude),
                         std::min(ring.south_west.latitude, point.latitude)};
      ring.north_east = {std::max(ring.north_east.longitude, point.longitude),
                         std::max(ring.north_east.latitude, point.latitude)};
    }
  }
  const auto each_edge = [this](const auto& use) {
    for (const Ring& ring : rings_) {
      CoastPoint from = ring.points.back();
      for (const CoastPoint to : ring.points) {
        const auto [low, high] = std::minmax(from.latitude, to.latitude);
        use(Edge{from, to}, band_of(degrees(low)), band_of(degrees(high)));
        from = to;
      }
    }
  };
  // Counted first, then put in their places.
  const int all_bands = (tile.north - tile.south) * kBandsOfDegree;
  const auto bands = static_cast<std::size_t>(all_bands);
  band_begins_.assign(bands + 1, 0);
  each_edge([this](const Edge&, std::size_t first, std::size_t last) {
    for (std::size_t band = first; band <= last; ++band) ++band_begins_[band + 1];
  });
  for (std::size_t band = 0; band < bands; ++band) band_begins_[band + 1] += band_begins_[band];
  edges_.resize(band_begins_.back());
  std::vector<std::size_t> next(band_begins_.begin(), band_begins_.end() - 1);
  each_edge([&](const Edge& edge, std::size_t first, std::size_t last) {
    for (std::size_t band = first; band <= last; ++band) edges_[next[band]++] = edge;
  });
}

std::size_t Coast::band_of(double latitude) const {
  const int bands = (tile_.north - tile_.south) * kBandsOfDegree;
  const double from_south = (latitude - tile_.south) * kBandsOfDegree;
  return static_cast<std::size_t>(std::clamp(from_south, 0.0, bands - 1.0));
}

bool Coast::is_cut(CoastPoint from, CoastPoint to) const {
  const auto along = [](std::int32_t a, std::int32_t b, int limit) {
    return a == limit * kUnitsOfDegree && b == a;
  };
  return along(from.longitude, to.longitude, tile_.west) ||
         along(from.longitude, to.longitude, tile_.east) ||
         along(from.latitude, to.latitude, tile_.north) ||
         along(from.latitude, to.latitude, tile_.south);
}

// Counts the edges that a line to the east of the place meets. An end of an edge on the line counts
// as above it, so that a place on the north limit is one within; the south pole, which is no tile's
// north limit, is looked at from just above.
bool Coast::is_land(Place place) const {
  constexpr double kJustAbove = -kPole + 0.5 / kUnitsOfDegree;
  const double y = std::max(place.latitude, kJustAbove) * kUnitsOfDegree;
  double x = wrapped(place.longitude);
  if (x < tile_.west) x += kAround;
  x *= kUnitsOfDegree;
  bool inside = false;
  const std::size_t band = band_of(y / kUnitsOfDegree);
  for (std::size_t at = band_begins_[band]; at < band_begins_[band + 1]; ++at) {
    const auto& [from, to] = edges_[at];
    if ((from.latitude >= y) == (to.latitude >= y)) continue;
    const double part = (y - from.latitude) / (to.latitude - from.latitude);
    if (from.longitude + part * (to.longitude - from.longitude) > x) inside = !inside;
  }
  return inside;
}

// Within so few miles the globe is flat: a degree of longitude is shorter by the cosine of the
// latitude.
bool Coast::is_near(Place place, double miles) const {
  const double reach = miles / kMilesOfLatitudeDegree;
  if (place.latitude + reach < tile_.south || place.latitude - reach > tile_.north) return false;
  const double shorter = shortening(place.latitude);
  const double middle = (tile_.west + tile_.east) / 2.0;
  const double longitude = middle + wrapped(place.longitude - middle);
  const std::size_t first = band_of(place.latitude - reach);
  const std::size_t last = band_of(place.latitude + reach);
  for (std::size_t at = band_begins_[first]; at < band_begins_[last + 1]; ++at) {
    const auto& [from, to] = edges_[at];
    const double y1 = degrees(from.latitude) - place.latitude;
    const double y2 = degrees(to.latitude) - place.latitude;
    if ((y1 > reach && y2 > reach) || (y1 < -reach && y2 < -reach)) continue;
    const double x1 = (degrees(from.longitude) - longitude) * shorter;
    const double x2 = (degrees(to.longitude) - longitude) * shorter;
    if ((x1 > reach && x2 > reach) || (x1 < -reach && x2 < -reach)) continue;
    if (is_cut(from, to)) continue;
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    const double length = dx * dx + dy * dy;
    const double along = length > 0 ? std::clamp(-(x1 * dx + y1 * dy) / length, 0.0, 1.0) : 0.0;
    if (std::hypot(x1 + along * dx, y1 + along * dy) <= reach) return true;
  }
  return false;
}

std::optional<Coast> parse_coast(std::string_view text, const Tile& tile) {
  Reader reader(tile);
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    // The last line, too, ends in a line end: else it may have been cut short.
    if (end == std::string_view::npos || !reader.take(text.substr(0, end))) return std::nullopt;
    text.remove_prefix(end + 1);
  }
  return std::move(reader).result();
}

}  // namespace map
