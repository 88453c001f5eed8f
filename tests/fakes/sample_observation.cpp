#include "fakes/sample_observation.h"

#include <string_view>

#include "fakes/fake_ports.h"
#include "fakes/sample_ship.h"

namespace fakes {
namespace {

constexpr Entry kEntries[] = {
    {"Year", "2014"},
    {"Month", "11"},
    {"YY", "15"},
    {"GG", "12"},
    {"GGExact", ""},
    {"gg", ""},
    {"LaDeg", "35"},
    {"LaMin", "42"},
    {"north_south", "#0"},
    {"LoDeg", "165"},
    {"LoMin", "18"},
    {"east_west", "#0"},
    {"Ds", "1"},
    {"Vs", "3"},
    {"reading", "1010.8"},
    {"PPPP", ""},
    {"a", "2"},
    {"ppp", "1.4"},
    {"dry_bulb", "15.2"},
    {"wet_bulb", "13.0"},
    {"freeze", ""},
    {"relative_humidity", ""},
    {"dd", "27"},
    {"ff", "18"},
    {"TwTwTw", "17.8"},
    {"PwPw", "6"},
    {"HwHw", "2.0"},
    {"dw1dw1", "25"},
    {"Pw1Pw1", "9"},
    {"Hw1Hw1", "2.5"},
    {"dw2dw2", "31"},
    {"Pw2Pw2", "11"},
    {"Hw2Hw2", "1.5"},
    {"VV", "97"},
    {"ww", "25"},
    {"W1", "8"},
    {"W2", "2"},
    {"N", "6"},
    {"Nh", "4"},
    {"CH", "1"},
    {"CM", "3"},
    {"CL", "5"},
    {"h", "300"},
};

}  // namespace

std::span<const Entry> sample_entries() {
  return kEntries;
}

SampleShip::SampleShip() {
  ship_ = psychrometer_ship();
  ship_.card.total_correction = "+2.4";
  ship_.wind_speed_method = WindSpeedMethod::kAnemometer;
  items_.set_observed(ObservationItem::IsEsEsRs, false);
  items_.set_observed(ObservationItem::ciSibiDizi, false);
}

SampleMainWindow::SampleMainWindow(ui::Services& services)
    : CVelmaranDlg(services, {ship_, items_, folders_, {}, &sea_.sea_map}) {}

bool enter_sample(ui::Screen& main_window) {
  for (const Entry& entry : kEntries) {
    const std::string_view text = entry.text;
    ui::Control* const control = main_window.find(entry.control);
    if (control == nullptr) return false;
    if (text.empty()) continue;
    if (!main_window.move_focus(*control)) return false;
    if (text.front() == '#') {
      main_window.choose(*control, text[1] - '0');
    } else {
      main_window.type(*control, text);
    }
  }
  main_window.key(ui::Key::kTab);
  return true;
}

}  // namespace fakes
