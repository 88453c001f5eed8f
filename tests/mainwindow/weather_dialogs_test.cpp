// The dialogs of present and past weather on the form: confirmed as they open they change nothing,
// whatever is entered.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "text/numbers.h"
#include "window.h"

namespace {

using main_window::Opened;

void ok(ui::Screen& screen) {
  screen.press(*screen.find("ok"));
}

void expect_unchanged(Opened& opened, const char* field, const char* dialog) {
  ASSERT_TRUE(opened.window.move_focus(opened.control(field)));
  const auto record = opened.window.record_fields();
  const std::string report = opened.window.report();
  const std::string title = opened.window.title();
  opened.world.windows.expect_screen(dialog, ok);
  opened.window.key(ui::Key::kF1);
  EXPECT_EQ(opened.window.record_fields(), record);
  EXPECT_EQ(opened.window.report(), report);
  EXPECT_EQ(opened.window.title(), title);
  for (const char* const shown : {"ww", "W1", "W2"}) {
    EXPECT_EQ(opened.shown(shown),
              opened.window.form().record().*find_weather_field(shown)->member);
    EXPECT_EQ(opened.control(shown).mark, "");
  }
}

TEST(PresentWeather, ConfirmedAsItOpensChangesNothing) {
  const auto opened = std::make_unique<Opened>();
  std::vector<std::string> codes = text::numbered_lines(0, 99, 2);
  for (const char* const other : {"", "//"}) codes.emplace_back(other);
  for (const std::string& code : codes) {
    SCOPED_TRACE(code);
    opened->type("ww", code);
    ASSERT_EQ(opened->window.form().record().ww, code);
    expect_unchanged(*opened, "ww", "CNowWeatherDlg");
  }
}

TEST(PastWeather, ConfirmedAsItOpensChangesNoPair) {
  const std::string figures = "0123456789/_";
  const auto opened = std::make_unique<Opened>();
  for (const char first : figures) {
    for (const char second : figures) {
      SCOPED_TRACE(std::string(1, first) + second);
      opened->type("W1", first == '_' ? "" : std::string(1, first));
      opened->type("W2", second == '_' ? "" : std::string(1, second));
      expect_unchanged(*opened, "W1", "CPastWeatherDlg1");
    }
  }
}

TEST(PastWeather, OfOneFieldLeavesTheOtherWhereItIsTheSame) {
  const auto opened = std::make_unique<Opened>();
  opened->type("W1", "6");
  opened->type("W2", "5");
  opened->world.windows.expect_screen("CPastWeatherDlg1", [](ui::Screen& screen) {
    screen.tick(*screen.find("drizzle"), false);
    screen.tick(*screen.find("sandstorm"), true);
    ok(screen);
  });
  opened->press("label_past_weather");
  EXPECT_EQ(opened->shown("W1"), "6");
  EXPECT_EQ(opened->shown("W2"), "3");
  EXPECT_EQ(opened->shown("group_7wwW1W2"), "7**63");
}

}  // namespace
