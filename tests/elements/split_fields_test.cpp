// Fields of whole figures and tenths: a point goes on to the tenths, and nothing typed is dropped.

#include <gtest/gtest.h>

#include <memory>

#include "elements/CCountDewDlg.h"
#include "elements/CSeaSurfacePressureDlg.h"
#include "elements/CTemperatureAndDewDlg.h"
#include "elements/dialog_checks.h"
#include "fakes/all_screens.h"
#include "text/ids.h"

namespace {

namespace id = text::id;

struct Pair {
  const char* class_name;
  const char* whole;
  const char* tenths;
  text::Id wrong_whole;  ///< message for what is no whole number
};
constexpr Pair kPairs[] = {
    {"CSeaSurfacePressureDlg", "reading_whole", "reading_tenths", id::kBarometerReadingRange},
    {"CCountDewDlg", "dry_whole", "dry_tenths", id::kInvalidValue},
    {"CCountDewDlg", "wet_whole", "wet_tenths", id::kInvalidValue},
    {"CTemperatureAndDewDlg", "air_whole", "air_tenths", id::kInvalidValue},
    {"CTemperatureAndDewDlg", "dew_whole", "dew_tenths", id::kInvalidValue},
};

struct SplitFields : testing::TestWithParam<Pair> {
  fakes::World world;
  std::unique_ptr<ui::Screen> screen;
  ui::Control* whole = nullptr;
  ui::Control* tenths = nullptr;

  void open() {
    for (const fakes::ScreenCase& row : fakes::all_screens()) {
      if (row.class_name == GetParam().class_name) screen = row.make(world.services);
    }
    screen->open();
    whole = screen->find(GetParam().whole);
    tenths = screen->find(GetParam().tenths);
    ASSERT_TRUE(screen->move_focus(*whole));
    screen->type(*tenths, "7");
  }
  // As a window tells it: each key gives the text as it stands then, of the field that has the
  // focus; what is selected is replaced.
  void type_keys(const std::vector<std::string>& keys) {
    bool replaces = true;
    for (const std::string& key : keys) {
      ui::Control& field = *screen->focused();
      const unsigned serial = screen->focus_serial();
      screen->type(field, replaces ? key : field.content + key);
      replaces = screen->focus_serial() != serial;
    }
  }
};

TEST_P(SplitFields, GoOnToTheTenthsAtEveryPoint) {
  for (const std::string point : {".", ",", "．", "，", "。", "、", "｡", "､"}) {
    open();
    screen->type(*whole, "19" + point + "3");
    EXPECT_EQ(whole->content + "|" + tenths->content, "19|3") << point;
    EXPECT_EQ(screen->focused(), tenths);

    open();
    type_keys({"1", "9", point, "3"});
    EXPECT_EQ(whole->content + "|" + tenths->content, "19|3") << point << " key by key";
    EXPECT_EQ(screen->focused(), tenths);
  }
}

TEST_P(SplitFields, GoOnBehindAFullFieldToo) {
  open();
  const std::string longest(static_cast<std::size_t>(whole->max_length), '0');
  screen->type(*whole, longest + ".3");
  EXPECT_EQ(screen->find(GetParam().whole)->content, longest);
  EXPECT_EQ(tenths->content, "3");
}

TEST_P(SplitFields, ShowAndRefuseWhatCannotBePlaced) {
  // Nothing typed is lost: it stands there, and whatever way the field is left, it is refused.
  for (const std::string typed : {"1009.34", "1.2.3.4", "1..", "10095.3", "x1"}) {
    for (const std::string leave : {"Tab", "Help and OK", "OK", "Enter"}) {
      open();
      screen->type(*whole, typed);
      EXPECT_EQ(whole->content, typed);
      EXPECT_EQ(tenths->content, "7") << typed;
      EXPECT_EQ(screen->focused(), whole) << typed;
      const bool is_long = typed.size() > static_cast<std::size_t>(whole->max_length);
      world.windows.expect(is_long ? id::kTextTooLong : GetParam().wrong_whole);
      if (leave == "Tab") screen->key(ui::Key::kTab);
      if (leave == "Enter") screen->key(ui::Key::kEnter);
      if (leave == "Help and OK") screen->press(*screen->find("help"));
      if (leave == "OK" || leave == "Help and OK") screen->press(*screen->find("ok"));
      EXPECT_FALSE(screen->result()) << typed;
      EXPECT_EQ(screen->focused(), whole) << typed;
      EXPECT_EQ(whole->content, typed);
      world.windows.verify();
    }
  }
}

TEST_P(SplitFields, StayOnAWholePartThatIsRefusedAtThePoint) {
  open();
  world.windows.expect(GetParam().wrong_whole);
  screen->type(*whole, "x.3");
  EXPECT_EQ(whole->content + "|" + tenths->content, "x|3") << "nothing typed is dropped";
  EXPECT_EQ(screen->focused(), whole);
}

TEST_P(SplitFields, RefuseALetterBehindThePoint) {
  open();
  screen->type(*whole, "19.x");
  EXPECT_EQ(tenths->content, "x");
  EXPECT_EQ(screen->focused(), tenths);
  world.windows.expect(id::kInvalidValue);
  screen->press(*screen->find("ok"));
  EXPECT_FALSE(screen->result());
  EXPECT_EQ(screen->focused(), tenths);
}

TEST_P(SplitFields, RefuseTypedTenthsWithoutAWholePart) {
  const bool pressure = GetParam().wrong_whole == id::kBarometerReadingRange;
  for (const text::Language language : checks::kBothLanguages) {
    for (const char* const how : {"typed", "point"}) {
      world.texts.language = language;
      open();
      if (how == std::string("point")) {
        screen->type(*whole, ".3");
      } else {
        screen->type(*whole, "");
        fakes::enter(*screen, *tenths, "3");
      }
      checks::refused(
          world, *screen, [&] { screen->press(*screen->find("ok")); },
          pressure ? id::kSeaLevelPressureMissing : id::kTenthsAlone, *whole);
    }
  }
}

TEST_P(SplitFields, LetTheTenthsOfAnEarlierValueGoWithItsWholePart) {
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    if (row.class_name == GetParam().class_name) screen = row.make(world.services);
  }
  screen->open();
  whole = screen->find(GetParam().whole);
  tenths = screen->find(GetParam().tenths);
  EXPECT_NE(tenths->content, "");
  fakes::enter(*screen, *whole, "");
  screen->press(*screen->find("ok"));
  EXPECT_EQ(screen->result(), ui::kOk);
}

INSTANTIATE_TEST_SUITE_P(Pairs, SplitFields, testing::ValuesIn(kPairs), [](const auto& row) {
  return std::string(row.param.class_name) + "_" + row.param.whole;
});

TEST(SplitFieldsTable, HoldsEveryFieldThatContinuesInAnother) {
  fakes::World world;
  std::size_t found = 0;
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    const auto screen = row.make(world.services);
    for (const ui::Control* const control : screen->controls()) {
      if (control->continues_in != nullptr) ++found;
    }
  }
  EXPECT_EQ(found, std::size(kPairs));
}

TEST(SplitFieldsOfThePressure, GiveTheReadingThatWasTyped) {
  fakes::World world;
  CSeaSurfacePressureDlg::Values values;
  values.reading = "1013.7";
  values.card.type = CardType::kTotalCorrection;
  CSeaSurfacePressureDlg screen(world.services, values, {});
  screen.open();
  screen.type(screen.reading_whole, "1009.3");
  EXPECT_EQ(screen.sea_level_pressure.content, "1009.3");
  screen.press(screen.ok);
  EXPECT_EQ(screen.values().reading, "1009.3");
}

}  // namespace
