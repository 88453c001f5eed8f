// From the list of a save back to the field: each line leads to where it is put right.

#include "mainwindow/save_errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "elements/form/cross_rules.h"
#include "fakes/doubt_examples.h"
#include "mainwindow/entry_messages.h"
#include "mainwindow/form_rows.h"
#include "observation/report_groups.h"
#include "window.h"

namespace {

namespace id = text::id;
using main_window::Opened;

void enter_date(Opened& opened) {
  for (const auto& [name, text] :
       {std::pair{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}, {"GG", "12"}})
    opened.type(name, text);
}

// Saves, chooses the line that begins so (none when it is empty), and goes back to correct.
void correct(Opened& opened, const std::string& line) {
  opened.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
    ui::Control& errors = *screen.find("errors");
    const auto at = std::find_if(errors.items.begin(), errors.items.end(),
                                 [&](const std::string& item) { return item.starts_with(line); });
    ASSERT_NE(at, errors.items.end()) << line << "\n" << fakes::lines_of(errors);
    if (!line.empty()) screen.choose(errors, static_cast<int>(at - errors.items.begin()));
    screen.press(*screen.find("correct"));
  });
  opened.menu("Save weather report");
}

struct Row {
  const char* line;
  const char* field;
};

// The ship reads its dew point and types its true wind; nothing but the date is entered. The
// quadrant is said by the hemispheres.
TEST(SaveErrors, EachMissingGroupLeadsToItsFirstEmptyField) {
  const Row rows[] = {
      {"Group99LaLaLa", "LaDeg"},
      {"GroupQcLoLoLoLo", "north_south"},
      {"GroupIrIxvv", "VV"},
      {"GroupNddff", "dd"},
      {"Group1SnTTT", "air_temperature"},
      {"Group2SnTdTdTd", "dew_point"},
      {"Group4PPPP", "reading"},
      {"Group5appp", "a"},
      {"GroupNhChCmCl", "Nh"},
      {"Group222DsDv", "Ds"},
      {"Group0SnTwTwTw", "TwTwTw"},
  };
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  for (const Row& row : rows) {
    correct(*opened, row.line);
    ASSERT_NE(nullptr, opened->window.focused());
    EXPECT_EQ(row.field, opened->window.focused()->name) << row.line;
  }
}

// What is there already is passed over, also the first field of the group.
TEST(SaveErrors, AHalfEnteredGroupLeadsToItsOtherHalf) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->type("LaDeg", "35");
  opened->type("a", "2");
  opened->type("Ds", "3");
  for (const Row& row :
       {Row{"Group99LaLaLa", "LaMin"}, Row{"Group5appp", "ppp"}, Row{"Group222DsDv", "Vs"}}) {
    correct(*opened, row.line);
    EXPECT_EQ(row.field, opened->window.focused()->name) << row.line;
  }
  opened->type("LoDeg", "140");
  opened->type("LoMin", "30");
  correct(*opened, "GroupQcLoLoLoLo");
  EXPECT_EQ("north_south", opened->window.focused()->name);
}

TEST(SaveErrors, WithoutALineTheFirstPlaceOnTheFormIsNext) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  correct(*opened, "");
  EXPECT_EQ("LaDeg", opened->window.focused()->name);
  opened->type("LaDeg", "35");
  opened->type("LaMin", "20");
  opened->choose("north_south", 0);
  correct(*opened, "");
  EXPECT_EQ("LoDeg", opened->window.focused()->name);
}

// As Escape, the close box and Enter on the list as it opened do.
TEST(SaveErrors, EveryWayBackLeadsToAField) {
  for (int way = 0; way < 3; ++way) {
    const auto opened = std::make_unique<Opened>();
    enter_date(*opened);
    opened->world.windows.expect_screen("CSaveErrorInfoDlg", [way](ui::Screen& screen) {
      if (way == 0) screen.key(ui::Key::kEnter);
      if (way == 1) screen.key(ui::Key::kEscape);
      if (way == 2) screen.close_box();
    });
    opened->menu("Save weather report");
    EXPECT_EQ("LaDeg", opened->window.focused()->name) << way;
  }
}

// Without "Correct" nothing is to be corrected now: the focus stays.
TEST(SaveErrors, NoSaveLeavesTheFocusWhereItWas) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  ASSERT_TRUE(opened->window.move_focus(opened->control("N")));
  opened->world.windows.expect_screen("CSaveErrorInfoDlg", [](ui::Screen& screen) {
    screen.choose(*screen.find("errors"), 0);
    screen.press(*screen.find("no_save"));
  });
  opened->menu("Save weather report");
  EXPECT_EQ("N", opened->window.focused()->name);
}

// Made impossible by another entry: the text stands there still and is in the list.
TEST(SaveErrors, ARefusedEntryLeadsToItsField) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->type("LaDeg", "89");
  opened->type("LaMin", "30");
  // No minutes beyond the pole.
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("LaDeg"), "90"));
  ASSERT_TRUE(opened->window.move_focus(opened->control("N")));
  ASSERT_TRUE(opened->window.form().in_error(elements::Field::kLaMin));
  const auto remarks = opened->window.form().remarks();
  ASSERT_EQ(1U, remarks.size());
  const std::string line =
      mainwindow::worded(remarks.front().notice, opened->world.texts).substr(0, 12);
  correct(*opened, line);
  EXPECT_EQ("LaMin", opened->window.focused()->name);
}

TEST(SaveErrors, EveryGroupOfTheListAndEveryRuleHasAPlaceOnTheForm) {
  const auto opened = std::make_unique<Opened>();
  const text::Texts texts;
  const auto is_field = [&](std::string_view name) {
    return std::any_of(mainwindow::field_rows().begin(), mainwindow::field_rows().end(),
                       [&](const mainwindow::FieldRow& row) { return row.name == name; });
  };
  ShipFixedData ship;
  ship.dew_point_method = DewPointMethod::kComputed;  // asks for the wet bulb as well
  const auto errors = mainwindow::errors_of(Struct_Weather(ship, {}), ship, texts);
  EXPECT_GE(errors.size(), 12U);
  for (const mainwindow::SaveError& error : errors) {
    EXPECT_TRUE(std::any_of(error.where.begin(), error.where.end(), is_field)) << error.text;
    for (const std::string_view name : error.where)
      EXPECT_NE(nullptr, opened->window.find(name)) << error.text << ": " << name;
  }
  for (const elements::CrossRule& rule : elements::cross_rules()) {
    bool has_field = false;
    for (const elements::FieldRow& row : elements::field_rows())
      has_field =
          has_field || rule.raised_by.contains(row.field) || rule.also_about.contains(row.field);
    EXPECT_TRUE(has_field) << rule.message;
  }
}

TEST(SaveErrors, ABrokenRuleLeadsToOneOfItsFields) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->type("GGExact", "11");
  ASSERT_TRUE(opened->window.move_focus(opened->control("N")));
  correct(*opened, std::string(opened->world.texts.get(id::kHalfAnExactTime)).substr(0, 20));
  EXPECT_EQ("gg", opened->window.focused()->name);
}

// Whatever is doubted, there is a field to look at it in.
TEST(SaveErrors, EachDoubtHasAFieldOnTheForm) {
  const auto opened = std::make_unique<Opened>();
  for (const doubt_examples::Example& example : doubt_examples::examples()) {
    const auto doubts =
        mainwindow::doubts_about(doubt_examples::record_of(example.raises),
                                 doubt_examples::past_of(example), opened->world.texts);
    ASSERT_EQ(doubts.size(), 1U) << example.doubt;
    EXPECT_TRUE(doubts.front().doubt);
    EXPECT_TRUE(doubts.front().text.starts_with("Doubt: ")) << doubts.front().text;
    EXPECT_FALSE(doubts.front().where.empty()) << example.doubt;
    bool can_go_there = false;
    for (const std::string_view name : doubts.front().where) {
      const ui::Control& field = opened->control(name);
      can_go_there = can_go_there || (field.can_focus() && !field.read_only);
    }
    // The wave recorder's fields are locked on a ship without one.
    EXPECT_EQ(can_go_there, !example.doubt.starts_with("measured")) << example.doubt;
  }
}

TEST(SaveErrors, ADoubtLeadsToItsField) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->type("VV", "97");
  opened->type("ww", "45");
  correct(*opened, "Doubt: Fog (ww 45)");
  EXPECT_EQ("VV", opened->window.focused()->name);
  // The pressure was typed itself: it is not the reading, which is empty, that is doubted.
  opened->type("VV", "92");
  opened->files.add_file("C:\\out\\14111509.tlx",
                         "BBXX JXKV 15094 99353 11442 41/// ///// 40232 .....");
  opened->type("PPPP", "1012.1");
  opened->type("a", "2");
  opened->type("ppp", "1.1");
  correct(*opened, "Doubt: The pressure was 1023.2 hPa");
  EXPECT_EQ("PPPP", opened->window.focused()->name);
}

// Of the two choices that make the quadrant, the one that is doubted: not the other, which stands
// first on the form, nor the degrees.
TEST(SaveErrors, ADoubtAboutTheHemisphereLeadsToItsChoice) {
  struct Slip {
    const char* half;
    const char* other;
  };
  for (const Slip& slip : {Slip{"north_south", "east_west"}, {"east_west", "north_south"}}) {
    const auto opened = std::make_unique<Opened>();
    opened->files.add_file("C:\\out\\14111509.tlx",
                           "BBXX JXKV 15094 99353 11442 41/// ///// 40232 .....");
    enter_date(*opened);
    for (const auto& [name, text] :
         {std::pair{"LaDeg", "35"}, {"LaMin", "18"}, {"LoDeg", "144"}, {"LoMin", "30"}})
      opened->type(name, text);
    opened->window.choose(opened->control(slip.other), 0);
    // In the middle of nowhere she is warned about as soon as she is there.
    opened->world.windows.expect_screen("CHour3ErrorDlg",
                                        [](ui::Screen& screen) { screen.key(ui::Key::kEnter); });
    opened->window.choose(opened->control(slip.half), 1);
    correct(*opened, "Doubt: By her positions the ship would");
    EXPECT_EQ(slip.half, opened->window.focused()->name);
  }
}

}  // namespace
