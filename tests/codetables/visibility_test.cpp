#include <gtest/gtest.h>

#include "codetables/CEyeShotDlg.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "ui/dump.h"

namespace {

struct Band {
  const char* english;
  const char* japanese;
  const char* code;
};

constexpr Band kBands[] = {
    {"Unknown", "不明", "//"},
    {"50km<=VV", "50km以上", "99"},
    {"20km<=VV<50km", "20km≦VV<50km", "98"},
    {"10km<=VV<20km", "10km≦VV<20km", "97"},
    {"4km<=VV<10km", "4km≦VV<10km", "96"},
    {"2km<=VV<4km", "2km≦VV<4km", "95"},
    {"1km<=VV<2km", "1km≦VV<2km", "94"},
    {"500m<=VV<1000m", "500m≦VV<1km", "93"},
    {"200m<=VV<500m", "200m≦VV<500m", "92"},
    {"50m<=VV<200m", "50m≦VV<200m", "91"},
    {"VV<50m", "50m未満", "90"},
};

struct Visibility : testing::Test {
  fakes::World world;
};

TEST_F(Visibility, ShowsElevenBandsEachWithItsCode) {
  for (const bool japanese : {false, true}) {
    if (japanese) world.japanese();
    CEyeShotDlg dialog(world.services, "");
    dialog.open();
    ASSERT_EQ(dialog.choice.items.size(), std::size(kBands));
    for (std::size_t i = 0; i < std::size(kBands); ++i) {
      EXPECT_EQ(dialog.choice.items[i], japanese ? kBands[i].japanese : kBands[i].english);
      EXPECT_EQ(dialog.choice.item_codes[i], kBands[i].code);
    }
  }
}

TEST_F(Visibility, HasItsHeadingsTitleAndButtons) {
  const CEyeShotDlg dialog(world.services, "");
  EXPECT_EQ(dialog.title(), "Horizontal visibility");
  EXPECT_EQ(dialog.caption(dialog.heading), "Horizontal visibility (VV)");
  EXPECT_EQ(dialog.caption(dialog.group), "[Visibility (Horizontal visibility)]");
  EXPECT_EQ(dialog.caption(dialog.ok), "OK");
  EXPECT_EQ(dialog.caption(dialog.cancel), "Cancel");
  EXPECT_EQ(dialog.caption(dialog.help), "Help");
  world.japanese();
  EXPECT_EQ(dialog.title(), "水平視程");
}

TEST_F(Visibility, EveryBandReopensSelectedAndEveryChoiceGivesItsCode) {
  for (std::size_t i = 0; i < std::size(kBands); ++i) {
    CEyeShotDlg reopened(world.services, kBands[i].code);
    reopened.open();
    EXPECT_EQ(reopened.choice.selected, static_cast<int>(i)) << kBands[i].code;
    CEyeShotDlg dialog(world.services, "");
    dialog.open();
    fakes::choose_text(dialog, dialog.choice, kBands[i].english);
    EXPECT_EQ(dialog.code(), "");
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.result(), ui::kOk);
    EXPECT_EQ(dialog.code(), kBands[i].code);
  }
}

TEST_F(Visibility, CodeOutsideTheSeaScaleChoosesNothingAndOkKeepsIt) {
  for (const std::string vv : {"", "     ", "50", "89", "00", "100", "/", "x", "9", "-95"}) {
    CEyeShotDlg dialog(world.services, vv);
    dialog.open();
    EXPECT_EQ(dialog.choice.selected, -1) << vv;
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.result(), ui::kOk);
    EXPECT_EQ(dialog.code(), vv);
  }
}

TEST_F(Visibility, CodeIsReadAsANumber) {
  for (const char* vv : {" 95", "95 ", "095", "95.4"}) {
    CEyeShotDlg dialog(world.services, vv);
    dialog.open();
    EXPECT_EQ(dialog.choice.selected_text(), "2km<=VV<4km") << vv;
  }
}

TEST_F(Visibility, CancelKeepsTheCode) {
  for (int way = 0; way < 3; ++way) {
    CEyeShotDlg dialog(world.services, "95");
    dialog.open();
    dialog.choose(dialog.choice, 0);
    if (way == 0) dialog.press(dialog.cancel);
    if (way == 1) dialog.key(ui::Key::kEscape);
    if (way == 2) dialog.close_box();
    EXPECT_EQ(dialog.result(), ui::kCancel);
    EXPECT_EQ(dialog.code(), "95");
  }
}

TEST_F(Visibility, HelpOpensItsTopic) {
  CEyeShotDlg dialog(world.services, "");
  dialog.open();
  dialog.press(dialog.help);
  world.japanese();
  dialog.press(dialog.help);
  EXPECT_EQ(world.help_viewer.shown,
            (std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter11-12_E.htm",
                                      "C:\\program\\help\\Kavrel_J.CHM::/Capter11-12_J.htm"}));
}

TEST_F(Visibility, WrittenOutAsTextEachLineHasItsCode) {
  CEyeShotDlg dialog(world.services, "90");
  dialog.open();
  const std::string shown = ui::describe(ui::view_of(dialog, dialog.choice));
  EXPECT_NE(shown.find("// \"Unknown\", 99 \"50km<=VV\""), std::string::npos) << shown;
}

}  // namespace
