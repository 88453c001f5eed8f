// Where boxes stand, worked out by hand: no window is needed for it.

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

#include "win32/boxes.h"

namespace {

using win32::Box;
using win32::kNoLimit;
using win32::Place;
using win32::Span;

// A part of so much room, which remembers where it was placed.
class Part : public Box {
 public:
  Part(Span across, Span down) : across_(across), down_(down) {}
  [[nodiscard]] bool shown() const override { return !hidden; }
  [[nodiscard]] Span across() const override { return across_; }
  [[nodiscard]] Span down(int /*width*/) const override { return down_; }
  void place(const Place& place) override { at = place; }

  bool hidden = false;
  Place at;

 private:
  Span across_;
  Span down_;
};

// As high as a text of so many characters is at this width.
class Text : public Part {
 public:
  explicit Text(int characters) : Part({10, 40, kNoLimit, true}, {}), characters_(characters) {}
  [[nodiscard]] Span down(int width) const override {
    const int lines = (characters_ + width - 1) / width;
    return {lines, lines, lines, false};
  }

 private:
  int characters_;
};

constexpr Span fixed(int size) {
  return {size, size, size, false};
}

constexpr Span at_least(int least, int wanted) {
  return {least, wanted, kNoLimit, true};
}

Part& part(win32::Holder& in, Span across, Span down) {
  return in.add<Part>(across, down);
}

using Sizes = std::vector<int>;

TEST(SharedOut, LeavesEachItsWishWhereTheRoomIsJustThat) {
  EXPECT_EQ(win32::shared_out(std::vector<Span>{fixed(10), at_least(5, 20)}, 30), (Sizes{10, 20}));
}

TEST(SharedOut, GivesTheRestToThoseThatGrowInEqualParts) {
  const std::vector<Span> wishes{fixed(10), at_least(0, 20), at_least(0, 30)};
  EXPECT_EQ(win32::shared_out(wishes, 81), (Sizes{10, 30, 41}));
}

TEST(SharedOut, GoesOnWithTheOthersWhereOneHasItsMost) {
  const std::vector<Span> wishes{{0, 10, 15, true}, {0, 10, kNoLimit, true}};
  EXPECT_EQ(win32::shared_out(wishes, 60), (Sizes{15, 45}));
}

TEST(SharedOut, LeavesTheRestWhereNobodyGrows) {
  EXPECT_EQ(win32::shared_out(std::vector<Span>{fixed(10), fixed(5)}, 100), (Sizes{10, 5}));
}

TEST(SharedOut, TakesWhatIsMissingFromThoseThatCanDoWithLess) {
  const std::vector<Span> wishes{fixed(10), {10, 30, kNoLimit, false}, {0, 20, kNoLimit, false}};
  // 20 too few; they have 20 each to spare.
  EXPECT_EQ(win32::shared_out(wishes, 40), (Sizes{10, 20, 10}));
}

TEST(SharedOut, NeverGoesBelowTheLeast) {
  EXPECT_EQ(win32::shared_out(std::vector<Span>{fixed(10), at_least(5, 20)}, 3), (Sizes{10, 5}));
}

TEST(Row, PlacesPartsSideBySideWithGapsAndInTheMiddleOfItsHeight) {
  win32::Row row(4);
  Part& low = part(row, fixed(30), fixed(10));
  Part& high = part(row, at_least(20, 20), at_least(20, 20));
  EXPECT_EQ(row.across(), (Span{54, 54, kNoLimit, true}));
  EXPECT_EQ(row.down(100), (Span{20, 20, kNoLimit, true}));
  row.place({5, 7, 100, 20});
  EXPECT_EQ(low.at, (Place{5, 12, 30, 10}));
  EXPECT_EQ(high.at, (Place{39, 7, 66, 20}));
}

TEST(Row, GivesNoRoomAndNoGapToWhatIsHidden) {
  win32::Row row(4);
  Part& first = part(row, fixed(10), fixed(10));
  Part& hidden = part(row, fixed(50), fixed(50));
  Part& last = part(row, fixed(20), fixed(10));
  hidden.hidden = true;
  EXPECT_EQ(row.across().wanted, 34);
  EXPECT_EQ(row.down(34).wanted, 10);
  row.place({0, 0, 34, 10});
  EXPECT_EQ(last.at, (Place{14, 0, 20, 10}));
  first.hidden = last.hidden = true;
  EXPECT_FALSE(row.shown());
}

TEST(Row, PutsSpaceInFrontOfButtonsWithoutAGap) {
  win32::Row row(8);
  row.add<win32::Space>();
  Part& ok = part(row, fixed(30), fixed(10));
  Part& cancel = part(row, fixed(30), fixed(10));
  row.place({0, 0, 100, 10});
  EXPECT_EQ(ok.at, (Place{32, 0, 30, 10}));
  EXPECT_EQ(cancel.at, (Place{70, 0, 30, 10}));
}

TEST(Column, PlacesPartsOneBelowTheOtherAndLeavesTheRestBelow) {
  win32::Column column(3);
  Part& narrow = part(column, fixed(30), fixed(10));
  Part& wide = part(column, at_least(20, 50), fixed(10));
  EXPECT_EQ(column.across(), (Span{30, 50, kNoLimit, true}));
  EXPECT_EQ(column.down(50).wanted, 23);
  column.place({1, 2, 60, 100});
  EXPECT_EQ(narrow.at, (Place{1, 2, 30, 10}));
  EXPECT_EQ(wide.at, (Place{1, 15, 60, 10}));
}

TEST(Column, LetsWhatGrowsTakeTheHeightThatIsLeft) {
  win32::Column column(5);
  Part& list = part(column, at_least(20, 50), {20, 40, kNoLimit, true});
  Part& below = part(column, fixed(10), fixed(10));
  column.place({0, 0, 50, 100});
  EXPECT_EQ(list.at, (Place{0, 0, 50, 85}));
  EXPECT_EQ(below.at.top, 90);
  column.place({0, 0, 50, 40});
  EXPECT_EQ(list.at.height, 25);
}

TEST(Column, IsAsHighAsItsTextsAreAtItsWidth) {
  win32::Column column(0);
  column.add<Text>(100);
  part(column, fixed(5), fixed(7));
  EXPECT_EQ(column.down(50).wanted, 9);
  EXPECT_EQ(column.down(20).wanted, 12);
}

TEST(Flow, GoesOnBelowWhereTheWidthIsShort) {
  win32::Flow flow(6, 2);
  Part& first = part(flow, fixed(40), fixed(10));
  Part& second = part(flow, fixed(40), fixed(20));
  Part& third = part(flow, fixed(40), fixed(10));
  EXPECT_EQ(flow.across(), (Span{40, 132, kNoLimit, false}));
  EXPECT_EQ(flow.down(132).wanted, 20);
  EXPECT_EQ(flow.down(90).wanted, 32);
  EXPECT_EQ(flow.down(40).wanted, 44);
  flow.place({0, 0, 90, 32});
  EXPECT_EQ(first.at, (Place{0, 5, 40, 10}));
  EXPECT_EQ(second.at, (Place{46, 0, 40, 20}));
  EXPECT_EQ(third.at, (Place{0, 22, 40, 10}));
}

TEST(Flow, LetsWhatGrowsMakeDoWithItsLeastBeforeItGoesBelow) {
  win32::Flow flow(10, 2);
  Part& form = part(flow, at_least(40, 60), fixed(10));
  Part& map = part(flow, at_least(30, 90), at_least(10, 10));
  EXPECT_EQ(flow.across().wanted, 160);
  flow.place({0, 0, 100, 50});
  EXPECT_EQ(form.at, (Place{0, 20, 50, 10}));
  EXPECT_EQ(map.at, (Place{60, 0, 40, 50}));
  EXPECT_EQ(flow.down(79).wanted, 22);
}

TEST(Grid, LinesUpCaptionsAndValues) {
  win32::Grid grid(8, 6, win32::Grid::Rest::kBehind);
  const auto cell = [&](int row, int column, int width, int height) -> Part& {
    auto made = std::make_unique<Part>(fixed(width), fixed(height));
    Part& box = *made;
    grid.add_cell(std::move(made), row, column);
    return box;
  };
  cell(0, 0, 30, 10);
  Part& value = cell(0, 1, 20, 20);
  cell(1, 0, 50, 10);
  Part& below = cell(1, 1, 40, 20);
  EXPECT_EQ(grid.across(), (Span{98, 98, kNoLimit, true}));
  EXPECT_EQ(grid.down(98).wanted, 46);
  grid.place({0, 0, 200, 46});
  EXPECT_EQ(value.at, (Place{58, 0, 20, 20}));
  EXPECT_EQ(below.at, (Place{58, 26, 40, 20}));
}

TEST(Grid, LeavesOutARowOfWhichNothingIsShown) {
  win32::Grid grid(8, 6, win32::Grid::Rest::kBehind);
  std::vector<Part*> cells;
  for (int row = 0; row < 3; ++row) {
    auto made = std::make_unique<Part>(fixed(10), fixed(10));
    cells.push_back(made.get());
    grid.add_cell(std::move(made), row, 0);
  }
  cells[1]->hidden = true;
  EXPECT_EQ(grid.down(10).wanted, 26);
  grid.place({0, 0, 10, 26});
  EXPECT_EQ(cells[2]->at, (Place{0, 16, 10, 10}));
}

TEST(Grid, WidensTheLastOfSeveralColumnsForWhatStandsInThemAll) {
  win32::Grid grid(10, 0, win32::Grid::Rest::kBehind);
  grid.add_cell(std::make_unique<Part>(fixed(20), fixed(10)), 0, 0);
  grid.add_cell(std::make_unique<Part>(fixed(20), fixed(10)), 0, 1);
  grid.add_cell(std::make_unique<Part>(fixed(80), fixed(10)), 1, 0, 2);
  EXPECT_EQ(grid.across().wanted, 80);
}

TEST(Grid, SharesTheRestAmongItsColumns) {
  win32::Grid grid(10, 5, win32::Grid::Rest::kAllColumns);
  auto made = std::make_unique<Part>(at_least(20, 20), at_least(10, 10));
  Part& right = *made;
  grid.add_cell(std::make_unique<Part>(at_least(20, 20), at_least(10, 10)), 0, 0);
  grid.add_cell(std::move(made), 0, 1);
  grid.place({0, 0, 110, 30});
  EXPECT_EQ(right.at, (Place{60, 0, 50, 30}));
}

TEST(Padded, HasRoomOnItsFourSidesAndSaysWhereItStands) {
  auto made = std::make_unique<Part>(fixed(20), fixed(10));
  Part& within = *made;
  win32::Padded frame(std::move(made), {1, 2, 3, 4}, true);
  EXPECT_EQ(frame.across(), (Span{24, 24, kNoLimit, true}));
  EXPECT_EQ(frame.down(24).wanted, 16);
  frame.place({10, 10, 50, 16});
  EXPECT_EQ(within.at, (Place{11, 12, 46, 10}));
  EXPECT_EQ(frame.stands(), (Place{10, 10, 50, 16}));
}

}  // namespace
