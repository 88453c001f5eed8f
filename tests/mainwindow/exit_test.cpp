// The exit procedure: the menu's Exit and the window's close box.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "window.h"

namespace {

namespace id = text::id;
using main_window::Opened;

struct Road {
  const char* name;
  std::function<void(Opened&)> leave;
};
const Road kRoads[] = {
    {"menu", [](Opened& opened) { opened.menu("File/Exit"); }},
    {"close box", [](Opened& opened) { opened.window.close_box(); }},
};

TEST(Exit, AsksWhetherToEndWhenNothingIsUnsaved) {
  for (const Road& road : kRoads) {
    for (const char* const answer : {"yes", "no", "close"}) {
      const auto opened = std::make_unique<Opened>();
      const std::string before = opened->state();
      opened->world.windows.expect(id::kAskExit, answer);
      road.leave(*opened);
      const ui::MessageBox& box = opened->world.windows.boxes.at(0);
      EXPECT_EQ("Brenmoor", box.title);
      EXPECT_EQ("Exit KAVREL for WIN ", box.text);
      EXPECT_EQ(2U, box.buttons.size());
      EXPECT_EQ(std::string(answer) == "yes", opened->window.result().has_value())
          << road.name << " " << answer;
      EXPECT_EQ(before, opened->state());
      EXPECT_FALSE(opened->window.exiting());
      EXPECT_FALSE(opened->window.command_in_progress());
    }
  }
}

TEST(Exit, AsksInJapanese) {
  const auto opened = std::make_unique<Opened>();
  opened->world.japanese();
  opened->world.windows.expect_text("気象船舶報入力システムを終了します", "no");
  opened->window.close_box();
  opened->type("VV", "97");
  opened->world.windows.expect_text("気象電報を保存しますか？", "cancel");
  opened->window.close_box();
}

TEST(Exit, WithAnUnsavedReportAndCancelLeavesEverythingAsItWas) {
  for (const Road& road : kRoads) {
    for (const char* const answer : {"cancel", "close"}) {
      const auto opened = std::make_unique<Opened>();
      opened->type("VV", "97");
      ASSERT_TRUE(opened->window.unsaved());
      const std::string before = opened->state();
      opened->world.windows.expect(id::kAskSaveOnExit, answer);
      road.leave(*opened);
      EXPECT_EQ("Brenmoor", opened->world.windows.boxes.at(0).title);
      EXPECT_EQ("Do you want to save this report?", opened->world.windows.boxes.at(0).text);
      EXPECT_EQ(3U, opened->world.windows.boxes.at(0).buttons.size());
      EXPECT_FALSE(opened->window.result().has_value()) << road.name;
      EXPECT_EQ(before, opened->state()) << road.name;
      EXPECT_FALSE(opened->window.exiting());
      EXPECT_FALSE(opened->window.command_in_progress());
    }
  }
}

TEST(Exit, WithAnUnsavedReportAndNoClosesWithoutSaving) {
  for (const Road& road : kRoads) {
    const auto opened = std::make_unique<Opened>();
    opened->type("VV", "97");
    opened->world.windows.expect(id::kAskSaveOnExit, "no");
    road.leave(*opened);
    EXPECT_TRUE(opened->window.result().has_value()) << road.name;
    EXPECT_TRUE(opened->files.snapshot().empty());
  }
}

}  // namespace
