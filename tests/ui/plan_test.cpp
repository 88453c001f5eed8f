// What a front end is told to draw.

#include "ui/plan.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>

#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "ui/dialog.h"

namespace {

using Type = ui::PlanNode::Type;
using ui::CaptionPlace;

// A plan on one line: "rows(line(left [beside] space) buttons(space ok))".
std::string written(const ui::PlanNode& node) {
  static const std::map<Type, std::string> kNames = {
      {Type::kRows, "rows"},   {Type::kColumns, "columns"}, {Type::kGroup, "group"},
      {Type::kGrid, "grid"},   {Type::kLine, "line"},       {Type::kButtons, "buttons"},
      {Type::kLines, "lines"}, {Type::kFlow, "flow"}};
  static const std::map<CaptionPlace, std::string> kCaptions = {{CaptionPlace::kNone, ""},
                                                                {CaptionPlace::kBeside, "<"},
                                                                {CaptionPlace::kAbove, "^"},
                                                                {CaptionPlace::kColumn, "|"}};
  if (node.type == Type::kSpace) return "space";
  if (node.type == Type::kControl) {
    return node.name + kCaptions.at(node.caption) +
           (node.has_unit ? node.room_behind_unit ? "+unit+room" : "+unit" : "");
  }
  std::string out = kNames.at(node.type);
  if (!node.name.empty()) out += " " + node.name;
  if (node.columns > 0) out += " " + std::to_string(node.columns);
  for (const ui::PlanNode& each : node.beside) out += " " + written(each);
  out += "(";
  for (const ui::PlanNode& child : node.children)
    out += (out.back() == '(' ? "" : " ") + written(child);
  return out + ")";
}

void for_all(const ui::PlanNode& node, const std::function<void(const ui::PlanNode&)>& look) {
  look(node);
  for (const ui::PlanNode& each : node.beside) for_all(each, look);
  for (const ui::PlanNode& child : node.children) for_all(child, look);
}

// Its class has no layout.
class Fields : public ui::OkCancelDialog {
 public:
  explicit Fields(ui::Services& services)
      : OkCancelDialog(services, "CFieldsDlg", {text::id::kHelpLabel}) {
    number.unit = {text::id::kUnitCelsius};
    value.max_length = 4;
  }
  ui::Label title{*this, "title", {text::id::kHelpLabel}};
  ui::Edit number{*this, "number", {text::id::kHelpLabel}, 3};
  ui::Edit remark{*this, "remark", {text::id::kHelpLabel}};
  ui::Edit bare{*this, "bare", {}, 3};
  ui::ReadOnly value{*this, "value", {text::id::kHelpLabel}};
  ui::Tick tick{*this, "tick", {text::id::kHelpLabel}};
};

// What stands in a grid, row by row: "number:0 number@1 | bare@0+2".
std::string cells(const ui::PlanNode& grid) {
  std::string out;
  int row = 0;
  for (const ui::GridCell& cell : ui::cells_of(grid)) {
    for (; row < cell.row; ++row) out += " |";
    if (!out.empty()) out += " ";
    const bool part = cell.holds == ui::GridCell::Holds::kPart;
    out += part ? written(*cell.node) : cell.node->name;
    out += cell.holds == ui::GridCell::Holds::kCaption ? ":" : "@";
    out += std::to_string(cell.column);
    if (cell.columns > 1) out += "+" + std::to_string(cell.columns);
  }
  return out;
}

class APlan : public testing::Test {
 protected:
  APlan() { screen.open(); }
  std::string by(const std::string& layout) {
    const auto parsed = ui::parse_layout(layout);
    EXPECT_EQ(parsed.error, "");
    return written(ui::plan_of(screen, parsed.root).body);
  }
  fakes::World world;
  Fields screen{world.services};
};

TEST_F(APlan, StacksWhatHasNoLayoutWithItsButtonsOnOneLine) {
  EXPECT_EQ(written(ui::plan_of(screen).body),
            "rows(line(title space) line(number<+unit space) line(remark<) line(bare space) "
            "line(value< space) line(tick space) buttons(space ok cancel))");
}

TEST_F(APlan, PutsEachCaptionWhereTheLayoutSays) {
  EXPECT_EQ(by("row number^ value- tick bare\nrow remark title\nbuttons ok cancel\n"),
            "rows(line(number^+unit+room value tick bare space) line(remark< title) "
            "buttons(space ok cancel))");
}

TEST_F(APlan, GivesTheCaptionsOfAGridAColumn) {
  EXPECT_EQ(by("grid 2\n  number value\n  bare tick\n  remark^ title-\nend\nok cancel\n"),
            "rows(grid 2(line(number|+unit+room value|) line(bare tick) line(remark^ title)) "
            "line(ok cancel space))");
}

TEST_F(APlan, GoesOnInTheNextLineOfAGridThatIsFull) {
  EXPECT_EQ(by("grid 1\n  number value\n  rows\n    tick\n  end\n  bare\nend\n"
               "row title remark\nbuttons ok cancel\n"),
            "rows(grid 1(line(number|+unit+room) line(value|) rows(line(tick space)) line(bare)) "
            "line(title remark<) buttons(space ok cancel))");
}

TEST_F(APlan, GivesEachControlOfAGridTwoOfItsColumns) {
  const auto in_grid = [this](const std::string& layout) {
    const ui::Plan plan = ui::plan_of(screen, ui::parse_layout(layout).root);
    return cells(plan.body.children.front());
  };
  EXPECT_EQ(in_grid("grid 2\n  number value\n  bare tick\n  remark^ title-\nend\nok cancel\n"),
            "number:0 number@1 value:2 value@3 | bare@0+2 tick@2+2 | remark@0+2 title@2+2");
  EXPECT_EQ(in_grid("grid 2\n  number\n  rows\n    tick\n  end\n  bare\nend\nok cancel\n"),
            "number:0 number@1 | rows(line(tick space))@0+4 | bare@0+2");
}

TEST_F(APlan, KeepsRowsBesideAColumnTogether) {
  EXPECT_EQ(
      by("columns\n  rows\n    number\n  end\n  group title\n    value\n    bare\n  end\nend\n"
         "rows\n  remark tick\n  space\nend\nbuttons ok cancel\n"),
      "rows(columns(rows(line(number<+unit space) space) "
      "group title(line(value< space) line(bare space))) "
      "rows(line(remark< tick) space) buttons(space ok cancel))");
}

TEST_F(APlan, LetsTheNamesOfAFlowsRowsFlowOneByOne) {
  EXPECT_EQ(by("flow\n  row number^ value-\n  bare\n  rows\n    remark\n  end\n"
               "  group title\n    tick\n  end\nend\nbuttons ok cancel\n"),
            "rows(flow(number^+unit+room value bare rows(line(remark<) space) "
            "group title(line(tick space))) buttons(space ok cancel))");
}

TEST_F(APlan, PutsControlsBesideTheTitleOfAGroup) {
  EXPECT_EQ(by("group title tick value- nobody\n  number bare\nend\nremark\nbuttons ok cancel\n"),
            "rows(group title tick value(line(number<+unit bare space)) line(remark<) "
            "buttons(space ok cancel))");
}

TEST_F(APlan, KeepsTheFootOutOfTheBody) {
  const auto parsed = ui::parse_layout("number value\nfoot\n  bare\n  buttons ok cancel\nend\n");
  EXPECT_EQ(parsed.error, "");
  const ui::Plan plan = ui::plan_of(screen, parsed.root);
  // What the layout forgot scrolls with the body: the foot has little room.
  EXPECT_EQ(written(plan.body), "rows(line(number<+unit value< space) title remark tick)");
  EXPECT_EQ(written(plan.foot), "rows(line(bare space) buttons(space ok cancel))");
}

TEST_F(APlan, PutsThePicturesOfItsLinesIntoAChoice) {
  ui::Choice choice{screen, "choice", {}, {}};
  ui::Picture first{screen, "first", {text::id::kHelpLabel}};
  ui::Picture second{screen, "second"};
  EXPECT_EQ(by("lines choice 2\n  first second\nend\nlines nobody 2\nend\n"
               "title number remark bare value tick ok cancel\n"),
            "rows(lines choice 2(first second) "
            "line(title number<+unit remark< bare value< tick ok cancel))");
}

TEST_F(APlan, PassesOverStrangersAndPutsWhatIsForgottenLast) {
  EXPECT_EQ(by("group stranger\n  number nobody\nend\nbuttons ok nothing\n"),
            "rows(group(line(number<+unit space)) buttons(space ok) "
            "title remark bare value tick cancel)");
}

TEST_F(APlan, KnowsAMenuBarThatDoesNotScroll) {
  class WithMenu : public Fields {
   public:
    explicit WithMenu(ui::Services& services) : Fields(services) {
      set_menu({{{text::id::kHelpLabel}, {}, {}, true}});
    }
  };
  EXPECT_FALSE(ui::plan_of(screen).has_menu);
  WithMenu with_menu(world.services);
  with_menu.open();
  EXPECT_TRUE(ui::plan_of(with_menu).has_menu);
}

TEST_F(APlan, MakesRoomForWhatAFieldMayHold) {
  struct Row {
    int max_length;
    std::size_t shown;
    ui::Extent edit;
    ui::Extent value;
  };
  for (const Row& row : {
           // With a largest length there is room for that, whatever is shown.
           Row{1, 0, {1, 2, 1, false}, {4, 2, 1, false}},
           Row{4, 9, {4, 5, 1, false}, {4, 5, 1, false}},
           Row{24, 0, {24, 25, 1, false}, {24, 25, 1, false}},
           // A wide field takes what the window has.
           Row{25, 0, {24, 0, 1, true}, {25, 26, 1, false}},
           Row{60, 0, {24, 0, 1, true}, {40, 61, 1, false}},
           // Without one the room follows what is shown, within bounds.
           Row{0, 0, {8, 0, 1, true}, {4, 0, 1, true}},
           Row{0, 7, {8, 0, 1, true}, {7, 0, 1, true}},
           Row{0, 8, {9, 0, 1, true}, {8, 0, 1, true}},
           Row{0, 23, {24, 0, 1, true}, {23, 0, 1, true}},
           Row{0, 41, {24, 0, 1, true}, {40, 0, 1, true}},
       }) {
    for (ui::Control* const control :
         {static_cast<ui::Control*>(&screen.bare), static_cast<ui::Control*>(&screen.value)}) {
      control->max_length = row.max_length;
      control->content.clear();
      for (std::size_t i = 0; i < row.shown; ++i) control->content += "雨";
    }
    const auto says = std::to_string(row.max_length) + " " + std::to_string(row.shown);
    EXPECT_TRUE(ui::extent_of(screen.bare) == row.edit) << says;
    EXPECT_TRUE(ui::extent_of(screen.value) == row.value) << says;
  }
}

TEST_F(APlan, MakesRoomForTheLinesOfAListWithinReason) {
  ui::List list{screen, "list"};
  for (const auto& [lines, room] :
       std::map<std::size_t, int>{{0, 4}, {4, 4}, {5, 5}, {14, 14}, {15, 14}, {300, 14}}) {
    list.items.assign(lines, "x");
    EXPECT_EQ(ui::extent_of(list).least_lines, room) << lines;
    EXPECT_TRUE(ui::extent_of(list).grows);
  }
}

TEST_F(APlan, PutsTheLinesOfAShortChoiceSideBySide) {
  ui::Choice choice{screen, "choice", {}, {}};
  const std::string half = "二十四字二十四字二十四字二十四字二十四字二十四字";
  choice.items = {half, half};
  EXPECT_EQ(ui::look_of(choice), ui::ChoiceLook::kSideBySide);
  choice.items = {half, half + "a"};
  EXPECT_EQ(ui::look_of(choice), ui::ChoiceLook::kBelow);
  choice.items = {"a", "b"};
  choice.item_codes = {"0", "1"};
  EXPECT_EQ(ui::look_of(choice), ui::ChoiceLook::kBehindCodes);
}

// ---- Every screen of the program

class EveryPlan : public testing::TestWithParam<fakes::ScreenCase> {
 protected:
  ui::PlanNode in(text::Language language) {
    world.texts.language = language;
    screen = GetParam().make(world.services);
    screen->open();
    const ui::Plan plan = ui::plan_of(*screen);
    EXPECT_EQ(plan.has_menu, !screen->menu().empty());
    ui::PlanNode all;
    all.children = {plan.body, plan.foot};
    return all;
  }
  fakes::World world;
  std::unique_ptr<ui::Screen> screen;
};

TEST_P(EveryPlan, ShowsEachControlOnceWithAllThatBelongsToIt) {
  const ui::PlanNode body = in(text::Language::kEnglish);
  std::map<std::string, int> shown;
  for_all(body, [&](const ui::PlanNode& node) {
    if (node.name.empty()) return;
    ++shown[node.name];
    const ui::Control* const control = screen->find(node.name);
    ASSERT_NE(control, nullptr) << node.name;
    EXPECT_EQ(node.has_unit, control->unit.id.number != 0) << node.name;
    if (node.caption == CaptionPlace::kNone) return;
    EXPECT_FALSE(ui::shows_own_caption(control->kind)) << node.name;
    EXPECT_NE(screen->caption(*control), "") << node.name;
  });
  for (const ui::Control* const control : screen->controls())
    EXPECT_EQ(shown[control->name], 1) << control->name;
  EXPECT_EQ(shown.size(), screen->controls().size());
}

TEST_P(EveryPlan, IsTheSameInBothLanguages) {
  const ui::PlanNode english = in(text::Language::kEnglish);
  const ui::PlanNode japanese = in(text::Language::kJapanese);
  EXPECT_EQ(written(english), written(japanese));
  EXPECT_TRUE(english == japanese);
}

// Where nothing on a line grows, its room goes to the end of it; buttons stand at the right.
TEST_P(EveryPlan, LeavesRoomAtOneEndOfALineOnly) {
  for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
    const ui::PlanNode body = in(language);
    std::function<void(const ui::PlanNode&)> check = [&](const ui::PlanNode& node) {
      if (node.type == Type::kGrid) {
        for (const ui::PlanNode& line : node.children) {
          if (line.type == Type::kLine) {
            EXPECT_LE(line.children.size(), static_cast<std::size_t>(node.columns));
          } else {
            check(line);
          }
        }
        return;
      }
      const bool line = node.type == Type::kLine;
      if (line || node.type == Type::kButtons) {
        ASSERT_FALSE(node.children.empty());
        bool grows = false;
        int spaces = 0;
        for (const ui::PlanNode& child : node.children) {
          if (child.type == Type::kSpace) ++spaces;
          if (child.type == Type::kControl)
            grows = grows || ui::extent_of(*screen->find(child.name)).grows;
        }
        EXPECT_EQ(spaces, line && grows ? 0 : 1) << written(node);
        if (spaces == 1) {
          const ui::PlanNode& end = line ? node.children.back() : node.children.front();
          EXPECT_EQ(end.type, Type::kSpace) << written(node);
        }
      }
      for (const ui::PlanNode& child : node.children) check(child);
    };
    check(body);
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, EveryPlan, testing::ValuesIn(fakes::all_screens()),
                         [](const auto& row) { return std::string(row.param.class_name); });

}  // namespace
