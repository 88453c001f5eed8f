#include "desktop/flow_layout.h"

#include <algorithm>

namespace desktop {

FlowLayout::FlowLayout(int beside, int below) : below_(below) {
  setContentsMargins(0, 0, 0, 0);
  setSpacing(beside);
}

// A layout within takes itself out of this one, which must still be whole then.
FlowLayout::~FlowLayout() {
  while (count() > 0) delete takeAt(0);
}

void FlowLayout::add_column(QLayout* column) {
  addChildLayout(column);
  addItem(column);
}

void FlowLayout::addItem(QLayoutItem* item) {
  items_.emplace_back(item);
  invalidate();
}

QLayoutItem* FlowLayout::itemAt(int index) const {
  const bool there = index >= 0 && index < count();
  return there ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  if (index < 0 || index >= count()) return nullptr;
  QLayoutItem* const taken = items_[static_cast<std::size_t>(index)].release();
  items_.erase(items_.begin() + index);
  if (QLayout* const column = taken->layout(); column != nullptr && column->parent() == this)
    column->setParent(nullptr);
  invalidate();
  return taken;
}

void FlowLayout::invalidate() {
  wishes_.clear();
  QLayout::invalidate();
}

const std::vector<FlowLayout::Wish>& FlowLayout::wishes() const {
  if (!wishes_.empty()) return wishes_;
  for (const auto& item : items_) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint().expandedTo(item->minimumSize());
    Wish wish{item.get(), size, size.width(), item->expandingDirections()};
    // What takes up the room left makes do with little before it goes below.
    if ((wish.grows & Qt::Horizontal) != 0) wish.size.setWidth(item->minimumSize().width());
    wishes_.push_back(wish);
  }
  return wishes_;
}

// One that is wider than the width has a line of its own.
std::vector<FlowLayout::Line> FlowLayout::lines(int width) const {
  const std::vector<Wish>& all = wishes();
  std::vector<Line> lines;
  for (std::size_t i = 0; i < all.size(); ++i) {
    const bool fits =
        !lines.empty() && lines.back().width + spacing() + all[i].size.width() <= width;
    if (!fits) lines.push_back({i, i, -spacing(), 0, false});
    Line& line = lines.back();
    line.end = i + 1;
    line.width += spacing() + all[i].size.width();
    line.height = std::max(line.height, all[i].size.height());
    line.grows_down = line.grows_down || (all[i].grows & Qt::Vertical) != 0;
  }
  return lines;
}

QSize FlowLayout::sizeHint() const {
  QSize on_one_line(0, 0);
  for (const Wish& wish : wishes()) {
    if (on_one_line.width() > 0) on_one_line.rwidth() += spacing();
    on_one_line.rwidth() += wish.wide;
    on_one_line.setHeight(std::max(on_one_line.height(), wish.size.height()));
  }
  return on_one_line;
}

QSize FlowLayout::minimumSize() const {
  QSize least(0, 0);
  for (const Wish& wish : wishes()) least = least.expandedTo(wish.size);
  return least;
}

int FlowLayout::heightForWidth(int width) const {
  int height = -below_;
  for (const Line& line : lines(width)) height += below_ + line.height;
  return std::max(height, 0);
}

Qt::Orientations FlowLayout::expandingDirections() const {
  Qt::Orientations directions;
  for (const Wish& wish : wishes()) directions |= wish.grows;
  return directions;
}

void FlowLayout::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  const std::vector<Line> all = lines(place.width());
  int left_over = place.height() - heightForWidth(place.width());
  int top = place.top();
  for (const Line& line : all) {
    const int more = line.grows_down || all.size() == 1 ? std::max(left_over, 0) : 0;
    left_over -= more;
    place_line(line, {place.left(), top, place.width(), line.height + more});
    top += line.height + more + below_;
  }
}

void FlowLayout::place_line(const Line& line, const QRect& place) const {
  const std::vector<Wish>& all = wishes();
  const auto takes_up = [](const Wish& wish) { return (wish.grows & Qt::Horizontal) != 0; };
  const auto begin = all.begin() + static_cast<std::ptrdiff_t>(line.first);
  const auto end = all.begin() + static_cast<std::ptrdiff_t>(line.end);
  const bool one_grows = std::any_of(begin, end, takes_up);
  const auto shares = [&](const Wish& wish) {
    return one_grows ? takes_up(wish) : wish.item->layout() != nullptr;
  };
  auto sharing = static_cast<int>(std::count_if(begin, end, shares));
  int left_over = std::max(place.width() - line.width, 0);
  int left = place.left();
  for (auto at = begin; at != end; ++at) {
    int width = std::min(at->size.width(), place.width());
    if (shares(*at)) {
      const int more = left_over / sharing;
      --sharing;
      left_over -= more;
      width += more;
    }
    at->item->setGeometry({left, place.top(), width, place.height()});
    left += width + spacing();
  }
}

}  // namespace desktop
