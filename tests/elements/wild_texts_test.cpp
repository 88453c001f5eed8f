#include <gtest/gtest.h>

#include <random>
#include <string>

#include "codetables/tables/cloud_base.h"
#include "codetables/tables/pressure_tendency.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/visibility.h"
#include "codetables/tables/wave_height.h"
#include "codetables/tables/wind_figures.h"
#include "elements/formulas/psychrometer.h"
#include "elements/formulas/relative_humidity.h"
#include "elements/formulas/sea_level_pressure.h"
#include "elements/formulas/true_wind.h"
#include "elements/formulas/true_wind_rules.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace {

// Texts of number-like characters, with stray bytes among them; the same ones in every run.
class WildTexts {
 public:
  std::string next() {
    static constexpr std::string_view kAlphabet = "0123456789999....--++eE/ \t\xFFx";
    std::string result;
    const auto length = random_() % 9;
    for (std::size_t i = 0; i < length; ++i) result += kAlphabet[random_() % kAlphabet.size()];
    return result;
  }

 private:
  std::mt19937 random_{20141115};
};

TEST(WildTexts, GiveAResultOrARefusal) {
  WildTexts wild;
  for (int i = 0; i < 50000; ++i) {
    const std::string a = wild.next();
    const std::string b = wild.next();
    SCOPED_TRACE("\"" + a + "\" \"" + b + "\"");
    BarometerCard card;
    card.type = static_cast<CardType>(i % 3 - 1);
    card.loading_state = static_cast<LoadingState>(i % 2);
    card.total_correction = card.instrumental_correction = b;
    card.height_full_load = card.height_ballast = b;

    if (const auto pressure = elements::reduce_reading(a, card, elements::air_temperature_of(b))) {
      EXPECT_EQ(pressure->pppp.size(), 4U);
      EXPECT_TRUE(text::is_all_digits(pressure->reading.substr(0, 4)));
      if (pressure->range != codetables::PressureRange::kRefused) {
        EXPECT_TRUE(text::is_all_digits(pressure->pppp));
      }
    }
    EXPECT_LE(elements::split_reading(a).whole.size(), 4U);
    if (codetables::is_tendency_amount(a) && !a.empty() &&
        codetables::check_tendency(b, a) == codetables::TendencyCheck::kAccepted) {
      EXPECT_EQ(codetables::tendency_stored(a).size(), 3U);
    }
    if (const auto dew =
            elements::dew_point_of_texts(a, b, b, card, elements::WetBulbState::kIced)) {
      const auto figures = codetables::temperature_figures(*dew);
      EXPECT_EQ(figures.figures.size(), 3U);
      EXPECT_TRUE(text::is_all_digits(figures.figures));
    }
    if (const auto humidity = elements::humidity_of_texts(a, b)) {
      EXPECT_EQ(humidity->logbook.size(), 4U);
    }
    if (codetables::check_humidity(a, i % 2 == 0) == codetables::HumidityCheck::kAccepted) {
      EXPECT_LE(text::leading_number(codetables::shown_humidity(a, i % 2 == 0)), 100.0);
    }
    if (const auto wind = elements::true_wind_of_texts({a, b, a, b, a})) {
      EXPECT_TRUE(text::is_all_digits(wind->direction) && text::is_all_digits(wind->speed));
    }
    EXPECT_LE(codetables::wind_figures(a, b).fff.size(), 3U);
    EXPECT_LE(codetables::cloud_base_metres(a).size(), 4U);
    EXPECT_FALSE(codetables::half_metre_figures(a).empty() && !a.empty());
  }
}

}  // namespace
