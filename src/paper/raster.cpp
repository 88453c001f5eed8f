#include "paper/raster.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "paper/stroke.h"

namespace paper {
namespace {

// An edge of an outline, downwards.
struct Edge {
  double top;
  double bottom;
  double x;      ///< at its top
  double slope;  ///< to the right for each dot down
  int turn;
};

std::vector<Edge> edges_of(const std::vector<std::vector<ui::Point>>& outlines) {
  std::vector<Edge> edges;
  for (const auto& outline : outlines) {
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const ui::Point a = outline[i];
      const ui::Point b = outline[(i + 1) % outline.size()];
      if (a.y == b.y) continue;
      const double slope = (b.x - a.x) / (b.y - a.y);
      if (a.y < b.y) {
        edges.push_back({a.y, b.y, a.x, slope, 1});
      } else {
        edges.push_back({b.y, a.y, b.x, slope, -1});
      }
    }
  }
  std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.top < b.top; });
  return edges;
}

struct Crossing {
  double x;
  int turn;
};

// Adds what a piece of a row covers of each of its pixels.
void cover(std::vector<float>& row, double from, double to, double share) {
  const auto last = static_cast<double>(row.size());
  from = std::clamp(from, 0.0, last);
  to = std::clamp(to, 0.0, last);
  if (!(to > from)) return;
  const auto first_pixel = static_cast<std::size_t>(from);
  const auto last_pixel = static_cast<std::size_t>(to);
  if (first_pixel == last_pixel) {
    row[first_pixel] += static_cast<float>((to - from) * share);
    return;
  }
  row[first_pixel] += static_cast<float>((static_cast<double>(first_pixel + 1) - from) * share);
  for (std::size_t i = first_pixel + 1; i < last_pixel; ++i) row[i] += static_cast<float>(share);
  if (last_pixel < row.size())
    row[last_pixel] += static_cast<float>((to - static_cast<double>(last_pixel)) * share);
}

}  // namespace

Raster::Raster(Pixels pixels)
    : pixels_(pixels),
      clip_{0, 0, static_cast<double>(pixels.width), static_cast<double>(pixels.height)},
      cover_(static_cast<std::size_t>(std::max(0, pixels.width))) {}

void Raster::clip(const Box& box) {
  const auto whole = [](double edge, int most) {
    return std::round(std::clamp(edge, 0.0, static_cast<double>(most)));
  };
  clip_ = {whole(box.left, pixels_.width), whole(box.top, pixels_.height),
           whole(box.right, pixels_.width), whole(box.bottom, pixels_.height)};
}

void Raster::clip_no_more() {
  clip_ = {0, 0, static_cast<double>(pixels_.width), static_cast<double>(pixels_.height)};
}

void Raster::fill(const std::vector<ui::Point>& outline, Colour colour, bool exact) {
  fill_all({outline}, colour, exact, false);
}

void Raster::stroke(const std::vector<ui::Point>& line, const Pen& pen) {
  fill_all(outlines_of(line, pen), pen.colour, false, true);
}

void Raster::fill_circle(ui::Point centre, double radius, Colour colour) {
  fill_all({circle_of(centre, radius)}, colour, false, true);
}

void Raster::stroke_circle(ui::Point centre, double radius, const Pen& pen) {
  fill_all({circle_of(centre, radius + pen.width / 2),
            circle_of(centre, std::max(0.0, radius - pen.width / 2))},
           pen.colour, false, false);
}

void Raster::fill_all(const Outlines& outlines, Colour colour, bool exact, bool winding) {
  constexpr int kSmooth = 4;  // lines that a row of pixels is looked at on
  const int lines = exact ? 1 : kSmooth;
  const double share = 1.0 / lines;
  const std::vector<Edge> edges = edges_of(outlines);
  if (edges.empty()) return;
  const int last_row = static_cast<int>(clip_.bottom);
  const int left = static_cast<int>(clip_.left);
  const int right = static_cast<int>(clip_.right);
  auto next = edges.begin();
  std::vector<const Edge*> met;
  std::vector<Crossing> crossings;
  const auto first_row =
      static_cast<int>(std::clamp(std::floor(edges.front().top), clip_.top, clip_.bottom));
  for (int row = first_row; row < last_row; ++row) {
    if (next == edges.end() && met.empty()) break;
    std::fill(cover_.begin() + left, cover_.begin() + right, 0.0F);
    for (int line = 0; line < lines; ++line) {
      const double y = row + (line + 0.5) * share;
      for (; next != edges.end() && next->top <= y; ++next) met.push_back(&*next);
      std::erase_if(met, [y](const Edge* edge) { return edge->bottom <= y; });
      crossings.clear();
      for (const Edge* const edge : met)
        crossings.push_back({edge->x + (y - edge->top) * edge->slope, edge->turn});
      std::sort(crossings.begin(), crossings.end(),
                [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
      int turns = 0;
      for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        turns += winding ? crossings[i].turn : 1;
        const bool inside = winding ? turns != 0 : turns % 2 != 0;
        if (!inside) continue;
        double from = std::max(crossings[i].x, clip_.left);
        double to = std::min(crossings[i + 1].x, clip_.right);
        if (exact) {  // pixels whose middle lies within
          from = std::ceil(from - 0.5);
          to = std::ceil(to - 0.5);
        }
        cover(cover_, from, to, share);
      }
    }
    blend(row, left, right, colour);
  }
}

void Raster::blend(int row, int from, int to, Colour colour) {
  std::uint32_t* const pixels = pixels_.first + std::ptrdiff_t{row} * pixels_.width;
  const std::uint32_t full = (std::uint32_t{colour.red} << 16U) |
                             (std::uint32_t{colour.green} << 8U) | std::uint32_t{colour.blue};
  for (int x = from; x < to; ++x) {
    const float covered = cover_[static_cast<std::size_t>(x)];
    if (covered <= 0) continue;
    constexpr float kAll = 0.999F;
    if (covered >= kAll) {
      pixels[x] = full;
      continue;
    }
    std::uint32_t mixed = 0;
    for (const unsigned shift : {16U, 8U, 0U}) {
      const auto old = static_cast<float>((pixels[x] >> shift) & 0xFFU);
      const auto ink = static_cast<float>((full >> shift) & 0xFFU);
      mixed |= static_cast<std::uint32_t>(std::lround(old + (ink - old) * covered)) << shift;
    }
    pixels[x] = mixed;
  }
}

}  // namespace paper
