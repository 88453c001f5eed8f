#include <gtest/gtest.h>

#include "elements/CDvDsDlg.h"
#include "elements/dialog_checks.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

using Values = CDvDsDlg::Values;

constexpr const char* kCodes[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "/"};

struct MovementScreen : testing::Test {
  fakes::World world;
};

TEST_F(MovementScreen, ShowsEachCodeBesideItsMeaningInBothLanguages) {
  struct Row {
    const char* course_en;
    const char* course_ja;
    const char* speed_en;
    const char* speed_ja;
  };
  const Row rows[] = {
      {"Position unchanged (stationary)", "位置に変化なし（停船）", "Under 1 knot", "1ノット未満"},
      {"Northeast (NE)", "北東（NE）", "1 to under 6 knots", "1ノット以上6ノット未満"},
      {"East (E)", "東（E）", "6 to under 11 knots", "6ノット以上11ノット未満"},
      {"Southeast (SE)", "南東（SE）", "11 to under 16 knots", "11ノット以上16ノット未満"},
      {"South (S)", "南（S）", "16 to under 21 knots", "16ノット以上21ノット未満"},
      {"Southwest (SW)", "南西（SW）", "21 to under 26 knots", "21ノット以上26ノット未満"},
      {"West (W)", "西（W）", "26 to under 31 knots", "26ノット以上31ノット未満"},
      {"Northwest (NW)", "北西（NW）", "31 to under 36 knots", "31ノット以上36ノット未満"},
      {"North (N)", "北（N）", "36 to under 40 knots", "36ノット以上40ノット未満"},
      // Exactly 40 knots belongs here.
      {"Unknown", "不明", "40 knots or more", "40ノット以上"},
      {"Not observed", "観測せず", "Unknown", "不明"},
  };
  CDvDsDlg english(world.services, {});
  english.open();
  EXPECT_EQ(english.title(), "Ship's course and speed");
  world.japanese();
  CDvDsDlg japanese(world.services, {});
  japanese.open();
  EXPECT_EQ(japanese.title(), "船の針路と速度補助入力");
  ASSERT_EQ(english.course.items.size(), std::size(rows));
  ASSERT_EQ(english.speed.items.size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(english.course.items[i], rows[i].course_en);
    EXPECT_EQ(japanese.course.items[i], rows[i].course_ja);
    EXPECT_EQ(english.speed.items[i], rows[i].speed_en);
    EXPECT_EQ(japanese.speed.items[i], rows[i].speed_ja);
    EXPECT_EQ(english.course.item_codes[i], kCodes[i]);
    EXPECT_EQ(english.speed.item_codes[i], kCodes[i]);
  }
}

TEST_F(MovementScreen, EveryCodeOpensOnItsLineAndComesBack) {
  for (const char* ds : kCodes) {
    for (const char* vs : kCodes) {
      CDvDsDlg dialog(world.services, {ds, vs});
      dialog.open();
      EXPECT_EQ(dialog.course.item_codes[static_cast<std::size_t>(dialog.course.selected)], ds);
      EXPECT_EQ(dialog.speed.item_codes[static_cast<std::size_t>(dialog.speed.selected)], vs);
      dialog.press(dialog.ok);
      EXPECT_EQ(dialog.values(), (Values{ds, vs}));
    }
  }
}

TEST_F(MovementScreen, ChosenFiguresGoToDsAndVs) {
  CDvDsDlg dialog(world.services, {"1", "2"});
  dialog.open();
  dialog.choose(dialog.course, 10);
  dialog.choose(dialog.speed, 9);
  EXPECT_EQ(dialog.values(), (Values{"1", "2"}));
  dialog.key(ui::Key::kEnter);
  EXPECT_EQ(dialog.result(), ui::kOk);
  EXPECT_EQ(dialog.values(), (Values{"/", "9"}));
}

TEST_F(MovementScreen, OkWithoutAChoiceLeavesTheCode) {
  for (const Values& in : {Values{"", ""}, Values{"x", "10"}}) {
    CDvDsDlg dialog(world.services, in);
    dialog.open();
    EXPECT_EQ(dialog.course.selected, -1);
    EXPECT_EQ(dialog.speed.selected, -1);
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.values(), in);
  }
}

TEST_F(MovementScreen, CancelHandsBackWhatWasHandedIn) {
  CDvDsDlg dialog(world.services, {"1", "2"});
  dialog.open();
  dialog.choose(dialog.course, 0);
  dialog.press(dialog.cancel);
  EXPECT_EQ(dialog.result(), ui::kCancel);
  EXPECT_EQ(dialog.values(), (Values{"1", "2"}));
}

TEST_F(MovementScreen, HelpOpensItsTopic) {
  CDvDsDlg dialog(world.services, {});
  dialog.open();
  checks::help_opens(world, dialog, dialog.help, "11-3");
}

}  // namespace
