#pragma once
// One random entry after the other: typed, put, chosen, switched off.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "elements/form/form_under_test.h"

namespace form_test {

inline const char* const kTexts[] = {
    "",     "0",    "1",    "4",    "5",    "9",    "00",    "01",  "12",   "15",
    "18",   "29",   "31",   "36",   "90",   "97",   "99",    "100", "180",  "360",
    "0.4",  "1.5",  "10.0", "-1.0", "/",    "//",   "x",     "1 2", "\xff", "1013.2",
    "0156", "9987", "930",  "869",  "2014", "2015", "99999", " 7 ", "14.5", "-25"};

/// The same seed gives the same entries.
class RandomEntries {
 public:
  explicit RandomEntries(unsigned seed) : random_(seed) {}

  /// A ship of any methods, with a card.
  void set_up(Form& form) {
    form.ship.card.type = CardType::kHeightAndTemperature;
    form.ship.wind_input_method =
        pick(2) == 0 ? WindInputMethod::kTrueWind : WindInputMethod::kApparentWind;
    form.ship.dew_point_method = pick(2) == 0 ? DewPointMethod::kDirect : DewPointMethod::kComputed;
    form.rebuild();
    form.suppressed = true;
  }

  /// One entry; a refused one must leave everything but its own field as it was.
  void step(Form& on) {
    elements::ObservationForm& form = *on.form;
    const auto field = static_cast<elements::Field>(pick(elements::kFields));
    const auto group = static_cast<observation::Group>(pick(observation::kGroups));
    const std::string before = on.state(field);
    switch (pick(12)) {
      case 0: {
        const int north_south = pick(3) - 1;
        form.choose_hemispheres(north_south, pick(3) - 1);
        break;
      }
      case 1:
        form.toggle_freeze();
        break;
      case 2: {
        const int item = pick(12);
        on.items.not_observed[static_cast<std::size_t>(item)] = pick(2) == 0;
        form.items_changed();
        break;
      }
      case 3:
        form.change([&](Struct_Weather& r) { r.ww = "61"; });
        break;
      case 4: {
        std::string typed = observation::group_text(form.record(), group);
        const auto place = static_cast<std::size_t>(pick(typed.empty() ? 1 : typed.size()));
        const char figure = "0123456789/*x"[pick(13)];
        if (!typed.empty()) typed[place] = figure;
        const Struct_Weather record = form.record();
        if (!on.enter(group, typed)) {
          EXPECT_TRUE(form.record() == record);
        }
        break;
      }
      default:
        if (!on.enter(field, kTexts[pick(std::size(kTexts))])) {
          EXPECT_EQ(on.state(field), before);
        }
        break;
    }
  }

  template <class Count>
  int pick(Count count) {
    return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(random_);
  }

 private:
  std::mt19937 random_;
};

}  // namespace form_test
