// A usual observation by codes, from the first field to the saved report, by key presses alone; and
// how many it takes.

#include <gtest/gtest.h>

#include <QApplication>
#include <string>
#include <string_view>

#include "desktop_world.h"
#include "fakes/fake_files.h"
#include "fakes/sample_observation.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "observation/logbook_encoder.h"

namespace {

// The fields in their order and what is typed into each; a Space chooses north or east. The field
// is reached by moving on or by Tab, whichever the window wants.
constexpr fakes::Entry kObservation[] = {
    {"Year", "2014"},      {"Month", "11"},    {"YY", "15"},         {"GG", "12"},
    {"LaDeg", "35"},       {"LaMin", "42"},    {"north_south", " "}, {"LoDeg", "165"},
    {"LoMin", "18"},       {"east_west", " "}, {"Ds", "1"},          {"Vs", "3"},
    {"reading", "1010.8"}, {"a", "2"},         {"ppp", "1.4"},       {"dry_bulb", "15.2"},
    {"wet_bulb", "13.0"},  {"dd", "27"},       {"ff", "18"},         {"TwTwTw", "17.8"},
    {"PwPw", "06"},        {"HwHw", "2.0"},    {"dw1dw1", "25"},     {"Pw1Pw1", "09"},
    {"Hw1Hw1", "2.5"},     {"dw2dw2", "00"},   {"VV", "97"},         {"ww", "25"},
    {"W1", "8"},           {"W2", "2"},        {"N", "6"},           {"Nh", "4"},
    {"CH", "1"},           {"CM", "3"},        {"CL", "5"},          {"h", "300"},
};
constexpr const char* kReport =
    "BBXX JXKV 15124 99357 11653 41497 62718 10152 20114 40132 52014 72582 84531 22213 00178 20604 "
    "325// 40905 80130 .....";

struct Count {
  int keys = 0;
  int tabs = 0;
};

// As of the sample observation.
ShipFixedData ship_of_the_sample() {
  ShipFixedData ship = fakes::psychrometer_ship();
  ship.card.total_correction = "+2.4";
  ship.wind_speed_method = WindSpeedMethod::kAnemometer;
  return ship;
}
KeyObservationItems without_ice() {
  KeyObservationItems items;
  items.set_observed(ObservationItem::IsEsEsRs, false);
  items.set_observed(ObservationItem::ciSibiDizi, false);
  return items;
}

// The main window, with folders to save into.
class CountedWindow {
 public:
  explicit CountedWindow(bool moves_on) {
    files.add_folder("C:\\out");
    files.add_folder("C:\\log");
    folders.reports = "C:\\out\\";
    folders.logbook = "C:\\log\\";
    services.moves_on = moves_on;
    screen.open();
    window = std::make_unique<desktop::ScreenWindow>(screen, nullptr);
    tests::show(*window);
  }

  void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ++count.keys;
    if (pressed == Qt::Key_Tab) ++count.tabs;
    tests::press(pressed, modifiers);
  }
  void type(std::string_view text) {
    for (const char c : text) {
      ++count.keys;
      tests::type(std::string_view(&c, 1));
    }
  }
  /// By Tab, if the focus is not there yet. Without passing over, every field on the way costs one.
  void go_to(const std::string& name, bool passes_over) {
    for (int i = 0; i < 9 && screen.focused()->name != name; ++i) {
      if (!passes_over) {
        for (ui::Control* const control : screen.controls()) control->passed_over = false;
      }
      key(Qt::Key_Tab);
    }
    ASSERT_EQ(name, screen.focused()->name);
    ASSERT_TRUE(window->binding(name)->owns(QApplication::focusWidget())) << name;
  }

  tests::DesktopWorld world;
  fakes::FakeFiles files;
  ui::Services services = world.over(files);
  ShipFixedData ship = ship_of_the_sample();
  KeyObservationItems items = without_ice();
  mainwindow::Folders folders;
  CVelmaranDlg screen{services, {ship, items, folders, {}}};
  std::unique_ptr<desktop::ScreenWindow> window;
  Count count;
};

Count enter_and_save(bool moves_on, bool passes_over) {
  CountedWindow w(moves_on);
  for (const fakes::Entry& entry : kObservation) {
    w.go_to(entry.control, passes_over);
    if (testing::Test::HasFatalFailure()) return {};
    w.type(entry.text);
  }
  const auto told = tests::messages_of([&w] { w.key(Qt::Key_S, Qt::ControlModifier); });
  EXPECT_EQ((std::vector<std::string>{"Save success"}), told);
  EXPECT_EQ(kReport, w.screen.report());
  EXPECT_EQ(kReport, w.files.content("C:\\out\\14111512.tlx").value_or("no report"));
  // One line of the logbook, and it is that of the record.
  const std::string logbook = w.files.content("C:\\log\\immt5.log").value_or("no logbook");
  EXPECT_TRUE(logbook.starts_with("3201411151213")) << logbook;
  return w.count;
}

// The figures themselves, a Space for each hemisphere and Ctrl+S are wanted in any case.
int keys_without_tab() {
  int keys = 1;
  for (const fakes::Entry& entry : kObservation)
    keys += static_cast<int>(std::string_view(entry.text).size());
  return keys;
}

TEST(KeyPresses, OfAUsualObservationByCodes) {
  const Count before = enter_and_save(false, false);
  const Count now = enter_and_save(true, true);
  EXPECT_EQ(before.keys - before.tabs, keys_without_tab());
  EXPECT_EQ(now.keys - now.tabs, keys_without_tab());
  // A Tab is left behind what has no fixed number of figures, and behind a hemisphere.
  std::string waits;
  for (const fakes::Entry& entry : kObservation) {
    const auto field = elements::field_named(entry.control);
    if (!field || !elements::is_of_fixed_width(elements::row_of(*field)))
      waits.append(entry.control).append(" ");
  }
  EXPECT_EQ(
      waits,
      "Year north_south LoDeg east_west reading ppp dry_bulb wet_bulb ff TwTwTw HwHw Hw1Hw1 h ");
  EXPECT_EQ(now.tabs, std::count(waits.begin(), waits.end(), ' ') - 1) << "h is the last";
  RecordProperty("keys_before", before.keys);
  RecordProperty("tabs_before", before.tabs);
  RecordProperty("keys_now", now.keys);
  RecordProperty("tabs_now", now.tabs);
  std::cout << "keys before " << before.keys << ", of them Tab " << before.tabs << "; now "
            << now.keys << ", of them Tab " << now.tabs << "\n";
}

}  // namespace
