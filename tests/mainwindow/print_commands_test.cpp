// The commands that print leave the observation being entered alone.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "window.h"

namespace {

using main_window::Opened;

struct PrintCommand {
  const char* path;
  const char* screen;
};
constexpr PrintCommand kPrintCommands[] = {
    {"File/Print/Selected weather report", "CQFPrintDlg"},
    {"File/Print/All weather reports", "CPrintAllTLXDlg"},
    {"File/Print/Marine meteorological logbook", "CLogPrintDlg"},
};

TEST(PrintCommands, OpenTheirDialogsOverAnUntouchedObservation) {
  for (const PrintCommand& row : kPrintCommands) {
    for (const bool typed : {false, true}) {
      const auto opened = std::make_unique<Opened>();
      if (typed) opened->type("VV", "97");
      const std::string before = opened->state();
      opened->world.windows.expect_screen(row.screen, [&](ui::Screen& screen) {
        EXPECT_EQ(opened->state(), before) << row.path;
        EXPECT_TRUE(opened->window.command_in_progress());
        screen.press(*screen.find("cancel"));
      });
      opened->menu(row.path);
      opened->world.windows.verify();
      EXPECT_EQ(opened->state(), before) << row.path;
      EXPECT_EQ(opened->window.unsaved(), typed);
      EXPECT_FALSE(opened->window.command_in_progress());
    }
  }
}

}  // namespace
