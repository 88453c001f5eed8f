// The screen of the VOSClim data: what it takes, what it refuses, how it ends.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/fake_ports.h"
#include "ship/CVosClimDlg.h"
#include "ship/ship_data.h"
#include "text/ids.h"
#include "text/strings.h"

namespace {

namespace id = text::id;
using fakes::dump;
using fakes::enter;
using text::Language;
using Values = CVosClimDlg::Values;

struct Bench {
  fakes::World world;
  CVosClimDlg screen;
  explicit Bench(Values values = {}, Language language = Language::kEnglish)
      : screen((world.texts.language = language, world.services), std::move(values)) {
    screen.open();
  }
};

TEST(VosClimScreen, ShowsTheTwoValuesUnderTheirHeading) {
  const struct {
    Language language;
    std::vector<std::string> texts;
  } rows[] = {{Language::kEnglish,
               {"Inputting data of VOSClim", "VOSClim registration ship",
                "Height of deck cargo in meters above summer maximum load line",
                "Departure of summer maximum load line from actual sea level"}},
              {Language::kJapanese,
               {"ＶＯＳＣｌｉｍのデータ入力", "VOSClim登録船", "夏期満載喫水線からの甲板積荷の高さ",
                "夏期満載喫水線と実際の海面との差"}}};
  for (const auto& row : rows) {
    Bench b({"07", "-12"}, row.language);
    EXPECT_EQ((std::vector<std::string>{b.screen.title(), b.screen.caption(b.screen.registration),
                                        b.screen.caption(b.screen.cargo_height),
                                        b.screen.caption(b.screen.departure)}),
              row.texts);
    EXPECT_EQ(b.screen.unit(b.screen.cargo_height) + b.screen.unit(b.screen.departure), "mm");
    EXPECT_EQ(b.screen.cargo_height.content, "07");
    EXPECT_EQ(b.screen.departure.content, "-12");
    EXPECT_EQ(b.screen.cargo_height.max_length, 2);
    EXPECT_EQ(b.screen.departure.max_length, 3);
    EXPECT_EQ(b.screen.focused(), &b.screen.cargo_height);
  }
}

TEST(VosClimScreen, ShowsAValueAsItIsKeptWhenItsFieldIsLeft) {
  const struct {
    const char* name;
    const char* typed;
    const char* shown;
  } rows[] = {
      {"cargo_height", "", ""},     {"cargo_height", "7", "07"},  {"cargo_height", "12", "12"},
      {"cargo_height", "７", "07"}, {"cargo_height", " 5", "05"}, {"cargo_height", "　5", "05"},
      {"departure", "", ""},        {"departure", "4", "+04"},    {"departure", "-12", "-12"},
      {"departure", "-3", "-03"},   {"departure", "+5", "+05"},   {"departure", " 5", "+05"},
      {"departure", "－３", "-03"}, {"departure", "−3", "-03"},   {"departure", "＋１２", "+12"},
      {"departure", "- 5", "-05"}};
  for (const auto& row : rows) {
    Bench b({"99", "+99"});
    ui::Control& field = *b.screen.find(row.name);
    ASSERT_TRUE(enter(b.screen, field, row.typed));
    b.screen.key(ui::Key::kTab);
    EXPECT_EQ(field.content, row.shown) << row.name << " " << row.typed;
    EXPECT_NE(b.screen.focused(), &field) << row.typed;
    b.screen.press(b.screen.ok);
    EXPECT_EQ(b.screen.result(), ui::kOk);
    const bool height = std::string(row.name) == "cargo_height";
    EXPECT_EQ(b.screen.values(), (height ? Values{row.shown, "+99"} : Values{"99", row.shown}));
  }
}

// By Tab and by OK, also when Help let the field go meanwhile.
TEST(VosClimScreen, RefusesWhatIsNoFigureAndGivesTheFocusBack) {
  const std::pair<const char*, const char*> rows[] = {
      {"cargo_height", "A1"}, {"cargo_height", "-1"}, {"cargo_height", "1."}, {"cargo_height", "*"},
      {"cargo_height", "//"}, {"cargo_height", "Ａ"}, {"departure", "-"},     {"departure", "+"},
      {"departure", "123"},   {"departure", "+1x"},   {"departure", "1-2"},   {"departure", "*"},
      {"departure", "///"},   {"departure", "ー３"}};
  for (const auto& [name, typed] : rows) {
    for (const Language language : {Language::kEnglish, Language::kJapanese}) {
      for (const std::string by : {"Tab", "OK", "Help, OK"}) {
        Bench b({"07", "-12"}, language);
        ui::Control& field = *b.screen.find(name);
        ASSERT_TRUE(enter(b.screen, field, typed));
        if (by == "Help, OK") b.screen.press(b.screen.help);
        const unsigned serial = b.screen.focus_serial();
        b.world.windows.expect(id::kNoDigitalString);
        if (by == "Tab")
          b.screen.key(ui::Key::kTab);
        else
          b.screen.press(b.screen.ok);
        ASSERT_EQ(b.world.windows.boxes.size(), 1U) << typed;
        EXPECT_EQ(b.world.windows.boxes[0].text,
                  language == Language::kEnglish ? "No digital string" : "数字を入力して下さい");
        EXPECT_EQ(b.screen.focused(), &field) << typed << " by " << by;
        EXPECT_NE(b.screen.focus_serial(), serial) << "selected again";
        EXPECT_EQ(b.screen.selection_length(), -1);
        EXPECT_EQ(field.content, text::narrow(typed));
        EXPECT_FALSE(b.screen.result());
        EXPECT_EQ(b.screen.values(), (Values{"07", "-12"}));
        // Corrected it goes through.
        b.screen.type(field, "8");
        b.screen.press(b.screen.ok);
        EXPECT_EQ(b.screen.result(), ui::kOk);
      }
    }
  }
}

TEST(VosClimScreen, HandsBackWhatItWasGivenWhenItIsConfirmedAsItOpened) {
  for (const Values& values :
       {Values{"", ""}, Values{"07", "-12"}, Values{"00", "+00"}, Values{"", "-00"}}) {
    Bench b(values);
    b.screen.press(b.screen.help);
    b.screen.press(b.screen.ok);
    EXPECT_EQ(b.screen.result(), ui::kOk);
    EXPECT_EQ(b.screen.values(), values);
    EXPECT_TRUE(b.world.windows.boxes.empty());
  }
}

// Whatever stands in a file is shown, and goes no further as long as it is none.
TEST(VosClimScreen, ShowsAValueOfAFileThatIsNoneAndRefusesItsOk) {
  const struct {
    Values values;
    const char* refused;
  } rows[] = {{{"1x", "+04"}, "cargo_height"},
              {{"//", ""}, "cargo_height"},
              {{"07", "+"}, "departure"},
              {{"07", "-x1"}, "departure"},
              {{"", "+1/"}, "departure"}};
  for (const auto& row : rows) {
    Bench b(row.values);
    EXPECT_EQ(b.screen.cargo_height.content, row.values.cargo_height);
    EXPECT_EQ(b.screen.departure.content, row.values.departure);
    const std::string before = dump(b.screen);
    b.world.windows.expect(id::kNoDigitalString);
    b.screen.press(b.screen.ok);
    EXPECT_FALSE(b.screen.result());
    EXPECT_EQ(b.screen.focused()->name, row.refused);
    EXPECT_EQ(dump(b.screen), before);
    b.screen.type(*b.screen.find(row.refused), "");
    b.screen.press(b.screen.ok);
    EXPECT_EQ(b.screen.result(), ui::kOk);
  }
}

TEST(VosClimScreen, IsNotCheckedForCancelAndThenChangesNothing) {
  for (const bool by_box : {false, true}) {
    for (const char* const typed : {"A1", "8"}) {
      Bench b({"07", "-12"});
      ASSERT_TRUE(enter(b.screen, b.screen.cargo_height, typed));
      if (by_box)
        b.screen.close_box();
      else
        b.screen.press(b.screen.cancel);
      EXPECT_EQ(b.screen.result(), ui::kCancel);
      EXPECT_EQ(b.screen.values(), (Values{"07", "-12"}));
      EXPECT_TRUE(b.world.windows.boxes.empty());
    }
  }
}

TEST(VosClimScreen, TakesTheLongestInputAndStrayBytes) {
  Bench b;
  ASSERT_TRUE(enter(b.screen, b.screen.cargo_height, std::string(100, '1')));
  ASSERT_TRUE(enter(b.screen, b.screen.departure, "\xff\xfe"));
  b.world.windows.expect(id::kNoDigitalString);
  b.screen.key(ui::Key::kEnter);
  EXPECT_FALSE(b.screen.result());
  EXPECT_EQ(b.screen.cargo_height.content, "11");
  EXPECT_EQ(b.screen.focused(), &b.screen.departure);
}

}  // namespace
