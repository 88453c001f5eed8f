#include "win32/boxes.h"

#include <algorithm>
#include <utility>

namespace win32 {
namespace {

void take_missing(std::vector<int>& sizes, std::span<const Span> wishes, int missing) {
  int to_spare = 0;
  for (const Span& wish : wishes) to_spare += wish.wanted - wish.least;
  for (std::size_t i = 0; i < wishes.size() && to_spare > 0 && missing > 0; ++i) {
    const int own = wishes[i].wanted - wishes[i].least;
    // In proportion to what each can spare; the last one takes what rounding left.
    const int taken = missing >= to_spare
                          ? own
                          : static_cast<int>(static_cast<long long>(missing) * own / to_spare);
    sizes[i] -= taken;
    missing -= taken;
    to_spare -= own;
  }
}

void give_rest(std::vector<int>& sizes, std::span<const Span> wishes, int rest) {
  for (;;) {
    std::vector<std::size_t> takers;
    for (std::size_t i = 0; i < wishes.size(); ++i)
      if (wishes[i].grows && sizes[i] < wishes[i].most) takers.push_back(i);
    if (takers.empty() || rest <= 0) return;
    auto left = static_cast<int>(takers.size());
    const int before = rest;
    for (const std::size_t i : takers) {
      const int more = std::min(rest / left, wishes[i].most - sizes[i]);
      sizes[i] += more;
      rest -= more;
      --left;
    }
    if (rest == before) return;
  }
}

int sum(const std::vector<int>& sizes) {
  int total = 0;
  for (const int size : sizes) total += size;
  return total;
}

// The gap in front of each part: none in front of the first that stands apart, none around space.
std::vector<int> gaps_of(const std::vector<Box*>& parts, int gap) {
  std::vector<int> gaps;
  bool first = true;
  for (const Box* const part : parts) {
    const bool apart = part->stands_apart();
    gaps.push_back(apart && !first ? gap : 0);
    first = first && !apart;
  }
  return gaps;
}

// Along the direction in which the parts stand one behind the other.
Span one_behind_the_other(std::span<const Span> wishes, int gaps) {
  Span all{gaps, gaps, kNoLimit, false};
  for (const Span& wish : wishes) {
    all.least += wish.least;
    all.wanted += wish.wanted;
    all.grows = all.grows || wish.grows;
  }
  return all;
}

void widen(Span& all, const Span& wish) {
  all.least = std::max(all.least, wish.least);
  all.wanted = std::max(all.wanted, wish.wanted);
  all.grows = all.grows || wish.grows;
}

// In the direction in which all of them have the same room.
Span beside_each_other(std::span<const Span> wishes) {
  Span all;
  for (const Span& wish : wishes) widen(all, wish);
  return all;
}

std::vector<Span> across_of(const std::vector<Box*>& parts) {
  std::vector<Span> wishes;
  wishes.reserve(parts.size());
  for (const Box* const part : parts) wishes.push_back(part->across());
  return wishes;
}

// A part in a room that may be larger than it can be: at its left, and in the middle of its height.
void place_in(Box& box, const Span& across, const Place& room) {
  const int width = std::min(room.width, across.most);
  const int height = std::min(room.height, box.down(width).most);
  box.place({room.left, room.top + (room.height - height) / 2, width, height});
}

}  // namespace

std::vector<int> shared_out(std::span<const Span> wishes, int room) {
  std::vector<int> sizes;
  sizes.reserve(wishes.size());
  for (const Span& wish : wishes) sizes.push_back(wish.wanted);
  const int rest = room - sum(sizes);
  if (rest < 0) take_missing(sizes, wishes, -rest);
  if (rest > 0) give_rest(sizes, wishes, rest);
  return sizes;
}

bool Holder::shown() const {
  return std::any_of(parts_.begin(), parts_.end(),
                     [](const auto& part) { return part->stands_apart() && part->shown(); });
}

std::vector<Box*> Holder::shown_parts() const {
  std::vector<Box*> shown;
  for (const auto& part : parts_)
    if (part->shown()) shown.push_back(part.get());
  return shown;
}

Span Row::across() const {
  const auto parts = shown_parts();
  return one_behind_the_other(across_of(parts), sum(gaps_of(parts, gap_)));
}

Span Row::down(int width) const {
  const auto parts = shown_parts();
  const auto wishes = across_of(parts);
  const auto widths = shared_out(wishes, width - sum(gaps_of(parts, gap_)));
  std::vector<Span> heights;
  for (std::size_t i = 0; i < parts.size(); ++i)
    if (parts[i]->stands_apart()) heights.push_back(parts[i]->down(widths[i]));
  return beside_each_other(heights);
}

void Row::place(const Place& place) {
  const auto parts = shown_parts();
  const auto gaps = gaps_of(parts, gap_);
  const auto wishes = across_of(parts);
  const auto widths = shared_out(wishes, place.width - sum(gaps));
  int left = place.left;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    left += gaps[i];
    place_in(*parts[i], wishes[i], {left, place.top, widths[i], place.height});
    left += widths[i];
  }
}

Span Column::across() const {
  std::vector<Span> wishes;
  for (const Box* const part : shown_parts())
    if (part->stands_apart()) wishes.push_back(part->across());
  return beside_each_other(wishes);
}

Span Column::down(int width) const {
  const auto parts = shown_parts();
  std::vector<Span> heights;
  for (const Box* const part : parts)
    heights.push_back(part->down(std::min(width, part->across().most)));
  return one_behind_the_other(heights, sum(gaps_of(parts, gap_)));
}

void Column::place(const Place& place) {
  const auto parts = shown_parts();
  const auto gaps = gaps_of(parts, gap_);
  const auto wishes = across_of(parts);
  std::vector<Span> heights;
  for (std::size_t i = 0; i < parts.size(); ++i)
    heights.push_back(parts[i]->down(std::min(place.width, wishes[i].most)));
  const auto shares = shared_out(heights, place.height - sum(gaps));
  int top = place.top;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    top += gaps[i];
    place_in(*parts[i], wishes[i], {place.left, top, place.width, shares[i]});
    top += shares[i];
  }
}

std::vector<Flow::Line> Flow::lines(int width) const {
  std::vector<Line> lines;
  for (Box* const box : shown_parts()) {
    const Span across = box->across();
    const int own = across.grows ? across.least : std::max(across.wanted, across.least);
    // One that is wider than the flow has a line of its own.
    if (lines.empty() || lines.back().width + beside_ + own > width) {
      lines.emplace_back();
      lines.back().width = -beside_;
    }
    Line& line = lines.back();
    line.parts.push_back({box, across, own});
    line.width += beside_ + own;
  }
  for (Line& line : lines) share_out(line, width);
  return lines;
}

void Flow::share_out(Line& line, int width) const {
  std::vector<Span> wishes;
  for (const Part& part : line.parts) {
    const int own = std::min(part.width, width);
    wishes.push_back({std::min(part.across.least, own), own, part.across.most, part.across.grows});
  }
  const int gaps = beside_ * (static_cast<int>(line.parts.size()) - 1);
  const auto widths = shared_out(wishes, width - gaps);
  for (std::size_t i = 0; i < widths.size(); ++i) {
    line.parts[i].width = widths[i];
    widen(line.down, line.parts[i].box->down(widths[i]));
  }
}

int Flow::height_of(const std::vector<Line>& lines) const {
  int height = -below_;
  for (const Line& line : lines) height += below_ + line.down.wanted;
  return std::max(height, 0);
}

Span Flow::across() const {
  const auto parts = shown_parts();
  const auto wishes = across_of(parts);
  Span all{0, std::max(beside_ * (static_cast<int>(parts.size()) - 1), 0), kNoLimit, false};
  for (const Span& wish : wishes) {
    all.least = std::max(all.least, wish.grows ? wish.least : wish.wanted);
    all.wanted += wish.wanted;
    all.grows = all.grows || wish.grows;
  }
  return all;
}

Span Flow::down(int width) const {
  const auto all = lines(width);
  Span span;
  span.least = span.wanted = height_of(all);
  span.grows =
      std::any_of(all.begin(), all.end(), [](const Line& line) { return line.down.grows; });
  return span;
}

void Flow::place(const Place& place) {
  auto all = lines(place.width);
  int rest = place.height - height_of(all);
  int top = place.top;
  for (const Line& line : all) {
    const int more = line.down.grows || all.size() == 1 ? std::max(rest, 0) : 0;
    rest -= more;
    const int height = line.down.wanted + more;
    int left = place.left;
    for (const Part& part : line.parts) {
      place_in(*part.box, part.across, {left, top, part.width, height});
      left += part.width + beside_;
    }
    top += height + below_;
  }
}

void Grid::add_cell(std::unique_ptr<Box> box, int row, int column, int columns, Side side) {
  cells_.push_back({&add(std::move(box)), row, column, columns, side});
}

std::vector<Span> Grid::column_wishes() const {
  std::vector<Span> wishes;
  for (const Cell& cell : cells_) {
    const auto end = static_cast<std::size_t>(cell.column + cell.columns);
    if (wishes.size() < end) wishes.resize(end);
    if (!cell.box->shown() || cell.columns > 1) continue;
    widen(wishes[static_cast<std::size_t>(cell.column)], cell.box->across());
  }
  // What stands in several columns widens the last of them where they are too narrow.
  for (const Cell& cell : cells_) {
    if (!cell.box->shown() || cell.columns == 1) continue;
    Span missing = cell.box->across();
    for (int i = 0; i < cell.columns; ++i) {
      const Span& column = wishes[static_cast<std::size_t>(cell.column + i)];
      const int gap = i > 0 ? beside_ : 0;
      missing.least -= column.least + gap;
      missing.wanted -= column.wanted + gap;
    }
    Span& last = wishes[static_cast<std::size_t>(cell.column + cell.columns - 1)];
    last.least += std::max(missing.least, 0);
    last.wanted += std::max(missing.wanted, 0);
    last.wanted = std::max(last.wanted, last.least);
  }
  for (std::size_t i = 0; i < wishes.size(); ++i)
    wishes[i].grows =
        rest_ == Rest::kAllColumns || (rest_ == Rest::kLastColumn && i + 1 == wishes.size());
  return wishes;
}

std::vector<int> Grid::widths(int width) const {
  const auto wishes = column_wishes();
  return shared_out(wishes, width - beside_ * (static_cast<int>(wishes.size()) - 1));
}

int Grid::width_of(const Cell& cell, const std::vector<int>& widths) const {
  int width = beside_ * (cell.columns - 1);
  for (int i = 0; i < cell.columns; ++i) width += widths[static_cast<std::size_t>(cell.column + i)];
  return width;
}

// A row in which nothing is shown has no height and no gap; its wish is below 0.
std::vector<Span> Grid::row_wishes(const std::vector<int>& widths) const {
  std::vector<Span> wishes;
  for (const Cell& cell : cells_) {
    const auto row = static_cast<std::size_t>(cell.row);
    if (wishes.size() <= row) wishes.resize(row + 1, Span{0, 0, -1, false});
    if (!cell.box->shown()) continue;
    wishes[row].most = kNoLimit;
    widen(wishes[row], cell.box->down(std::min(width_of(cell, widths), cell.box->across().most)));
  }
  return wishes;
}

Span Grid::across() const {
  const auto wishes = column_wishes();
  Span all =
      one_behind_the_other(wishes, beside_ * std::max(static_cast<int>(wishes.size()) - 1, 0));
  all.grows = true;
  return all;
}

Span Grid::down(int width) const {
  const auto rows = row_wishes(widths(width));
  const auto shown = static_cast<int>(
      std::count_if(rows.begin(), rows.end(), [](const Span& row) { return row.most > 0; }));
  return one_behind_the_other(rows, below_ * std::max(shown - 1, 0));
}

void Grid::place(const Place& place) {
  const auto columns = widths(place.width);
  auto rows = row_wishes(columns);
  const auto shown = static_cast<int>(
      std::count_if(rows.begin(), rows.end(), [](const Span& row) { return row.most > 0; }));
  const auto heights = shared_out(rows, place.height - below_ * std::max(shown - 1, 0));
  std::vector<int> tops;
  int top = place.top;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    tops.push_back(top);
    if (rows[i].most > 0) top += heights[i] + below_;
  }
  for (const Cell& cell : cells_) {
    if (!cell.box->shown()) continue;
    int left = place.left;
    for (int i = 0; i < cell.column; ++i) left += columns[static_cast<std::size_t>(i)] + beside_;
    const Span across = cell.box->across();
    int width = width_of(cell, columns);
    if (cell.side == Side::kRight && across.wanted < width) {
      left += width - across.wanted;
      width = across.wanted;
    }
    const auto row = static_cast<std::size_t>(cell.row);
    place_in(*cell.box, across, {left, tops[row], width, heights[row]});
  }
}

Span Padded::across() const {
  Span span = within_->across();
  span.least += sides_.left + sides_.right;
  span.wanted += sides_.left + sides_.right;
  span.most = kNoLimit;
  span.grows = span.grows || framed_;
  return span;
}

Span Padded::down(int width) const {
  Span span = within_->down(width - sides_.left - sides_.right);
  span.least += sides_.top + sides_.bottom;
  span.wanted += sides_.top + sides_.bottom;
  span.most = kNoLimit;
  return span;
}

void Padded::place(const Place& place) {
  place_ = place;
  within_->place({place.left + sides_.left, place.top + sides_.top,
                  std::max(place.width - sides_.left - sides_.right, 0),
                  std::max(place.height - sides_.top - sides_.bottom, 0)});
}

}  // namespace win32
