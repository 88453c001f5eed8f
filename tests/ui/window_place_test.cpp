#include "ui/window_place.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(WindowPlace, IsKeptAsFiguresAndReadBack) {
  for (const ui::WindowPlace& place :
       {ui::WindowPlace{{100, 50, 1200, 700}, false}, ui::WindowPlace{{-1920, -5, 1, 1}, true},
        ui::WindowPlace{{0, 0, 99999, 99999}, false}}) {
    const auto read = ui::window_place(ui::text_of(place));
    ASSERT_TRUE(read.has_value()) << ui::text_of(place);
    EXPECT_TRUE(*read == place) << ui::text_of(place);
  }
  EXPECT_EQ(ui::text_of({{100, 50, 1200, 700}, true}), "100 50 1200 700 1");
}

TEST(WindowPlace, IsNothingWhereTheTextIsNone) {
  for (const char* const text :
       {"", " ", "100", "100 50 1200 700", "100 50 1200 700 2", "100 50 1200 700 -1",
        "100 50 0 700 0", "100 50 1200 -700 0", "a 50 1200 700 0", "100 50 1200 700 0 ",
        "100  50 1200 700 0", " 100 50 1200 700 0", "100 50 1200 700 0 7", "1e3 50 1200 700 0",
        "9999999999 50 1200 700 0", "100,50,1200,700,0", "100.5 50 1200 700 0", "- 50 1200 700 0"})
    EXPECT_FALSE(ui::window_place(text).has_value()) << text;
}

TEST(WindowPlace, SurvivesEveryByte) {
  for (int byte = 0; byte < 256; ++byte) {
    std::string text = "100 50 1200 700 1";
    for (std::size_t at = 0; at < text.size(); ++at) {
      std::string damaged = text;
      damaged[at] = static_cast<char>(byte);
      const auto read = ui::window_place(damaged);
      if (read) {
        EXPECT_TRUE(read->place.width > 0 && read->place.height > 0);
      }
    }
  }
}

}  // namespace
