// Minus zero is zero: whatever road a temperature takes, what rounds to 0.0 has the positive sign.

#include <gtest/gtest.h>

#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "elements/CCountDewDlg.h"
#include "elements/CSea_SurfaceTemperatureDlg.h"
#include "elements/CTemperatureAndDewDlg.h"
#include "elements/form/form_under_test.h"
#include "text/numbers.h"

namespace {

using elements::Field;

// Texts that are zero, and some that are not, with the sign of code table 3845.
struct Row {
  const char* whole;
  const char* tenths;
  const char* text;
  const char* sign;
};
constexpr Row kRows[] = {{"-0", "0", "0.0", "0"},  {"-00", "0", "00.0", "0"},
                         {"-0", "", "0.0", "0"},   {"0", "0", "0.0", "0"},
                         {"-0", "1", "-0.1", "1"}, {"0", "1", "0.1", "0"},
                         {"-1", "0", "-1.0", "1"}, {"－０", "０", "0.0", "0"}};

struct Roads {
  form_test::Form psychrometer;
  form_test::Form direct;

  Roads() {
    direct.ship.dew_point_method = DewPointMethod::kDirect;
    direct.rebuild();
  }
};

template <class Entry>
void type(ui::Screen& screen, Entry& entry, const Row& row) {
  fakes::enter(screen, entry.whole, row.whole);
  fakes::enter(screen, entry.tenths, row.tenths);
}

TEST(MinusZero, OfBothBulbsIsZero) {
  for (const Row& row : kRows) {
    Roads roads;
    CCountDewDlg screen(roads.psychrometer.world.services, {});
    screen.open();
    type(screen, screen.dry, row);
    type(screen, screen.wet, row);
    screen.press(screen.ok);
    ASSERT_EQ(screen.result(), ui::kOk);
    EXPECT_EQ(screen.values().dry, row.text);
    EXPECT_EQ(screen.values().wet, row.text);
    roads.psychrometer.form->put(
        {{Field::kDryBulb, screen.values().dry}, {Field::kWetBulb, screen.values().wet}},
        screen.values().state);
    EXPECT_EQ(roads.psychrometer.record().SnT, row.sign) << row.whole;
    EXPECT_EQ(roads.psychrometer.record().Sw, row.sign) << row.whole;
    EXPECT_EQ(roads.psychrometer.form->text(Field::kDryBulb), row.text);
  }
}

TEST(MinusZero, OfAirAndDewPointIsZero) {
  for (const Row& row : kRows) {
    Roads roads;
    CTemperatureAndDewDlg screen(roads.direct.world.services, {});
    screen.open();
    type(screen, screen.air, row);
    type(screen, screen.dew, row);
    screen.press(screen.ok);
    ASSERT_EQ(screen.result(), ui::kOk);
    EXPECT_EQ(screen.values().air, row.text);
    EXPECT_EQ(screen.values().dew, row.text);
    roads.direct.form->put(Field::kAirTemperature, screen.values().air);
    roads.direct.form->put(Field::kDewPoint, screen.values().dew);
    EXPECT_EQ(roads.direct.record().SnT, row.sign) << row.whole;
    EXPECT_EQ(roads.direct.record().SnTd, row.sign) << row.whole;
  }
}

TEST(MinusZero, OfTheSeaIsZeroAndShownSo) {
  for (const char* const typed : {"-0", "-0.0", "-0.04", "-.0", "－０．０", "0", "-0.00"}) {
    for (const int method : {0, 1, 2, 3}) {
      fakes::World world;
      CSea_SurfaceTemperatureDlg screen(world.services, {}, SeaTemperatureMethod::kIntake);
      screen.open();
      fakes::enter(screen, screen.temperature, typed);
      fakes::choose_text(screen, screen.method, screen.method.items[static_cast<size_t>(method)]);
      EXPECT_EQ(screen.temperature.content, "0.0") << typed;
      screen.press(screen.ok);
      EXPECT_EQ(screen.values().Ss, text::format_int(2 * method)) << typed;
      EXPECT_EQ(screen.values().TwTwTw, "000") << typed;
    }
  }
}

TEST(MinusZero, TypedOnTheFormIsZeroInTheRecord) {
  for (const char* const typed : {"-0", "-0.0", "-00.0"}) {
    Roads roads;
    for (const Field field : {Field::kDryBulb, Field::kWetBulb, Field::kTwTwTw})
      EXPECT_TRUE(roads.psychrometer.enter(field, typed)) << typed;
    for (const Field field : {Field::kAirTemperature, Field::kDewPoint})
      EXPECT_TRUE(roads.direct.enter(field, typed)) << typed;
    EXPECT_EQ(roads.psychrometer.record().SnT, "0") << typed;
    EXPECT_EQ(roads.psychrometer.record().Sw, "0") << typed;
    EXPECT_EQ(roads.direct.record().SnT, "0") << typed;
    EXPECT_EQ(roads.direct.record().SnTd, "0") << typed;
    const std::string& Ss = roads.psychrometer.record().Ss;
    EXPECT_EQ((Ss.front() - '0') % 2, 0) << typed << " " << Ss;
  }
}

// Every tenth and every hundredth of a degree there is: sign 1 exactly where a figure is not 0.
TEST(MinusZero, HasASignOnlyWhereThereIsAFigure) {
  for (int hundredths = -4000; hundredths <= 4000; ++hundredths) {
    const elements::Celsius t{hundredths / 100.0};
    const auto figures = codetables::temperature_figures(t);
    const bool below = hundredths < 0 && figures.figures != "000";
    EXPECT_EQ(figures.sign, below ? "1" : "0") << hundredths;
    EXPECT_EQ(figures.text.starts_with('-'), below) << hundredths;
    const auto sea = codetables::sea_temperature_figures(t, SeaTemperatureMethod::kBucket);
    EXPECT_EQ(sea.Ss, below ? "3" : "2") << hundredths;
    EXPECT_EQ(sea.TwTwTw, figures.figures) << hundredths;
  }
}

}  // namespace
