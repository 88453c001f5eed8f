// Whatever is entered in whatever order, the form and its record stay one.

#include <gtest/gtest.h>

#include <random>

#include "elements/field_codes.h"
#include "elements/form_under_test.h"
#include "observation/report_encoder.h"

namespace {

using elements::Field;
using form_test::Form;

const char* const kTexts[] = {"",    "0",   "1",    "4",    "5",     "9",      "00",   "01",
                              "12",  "15",  "18",   "29",   "31",    "36",     "90",   "97",
                              "99",  "100", "180",  "360",  "0.4",   "1.5",    "10.0", "-1.0",
                              "/",   "//",  "x",    "1 2",  "\xff",  "1013.2", "0156", "9987",
                              "930", "869", "2014", "2015", "99999", " 7 ",    "14.5", "-25"};

class Sequence {
 public:
  explicit Sequence(unsigned seed) : random_(seed) {
    form_.ship.card.type = CardType::kHeightAndTemperature;
    form_.ship.wind_input_method =
        pick(2) == 0 ? WindInputMethod::kTrueWind : WindInputMethod::kApparentWind;
    form_.ship.dew_point_method =
        pick(2) == 0 ? DewPointMethod::kDirect : DewPointMethod::kComputed;
    form_.rebuild();
    form_.form->messages_suppressed = true;
  }

  void step() {
    elements::ObservationForm& form = *form_.form;
    const auto field = static_cast<Field>(pick(elements::kFields));
    const auto group = static_cast<observation::Group>(pick(observation::kGroups));
    const std::string before = form_.state(field);
    switch (pick(12)) {
      case 0:
        form.choose_hemispheres(pick(3) - 1, pick(3) - 1);
        break;
      case 1:
        form.toggle_freeze();
        break;
      case 2:
        form_.items.not_observed[static_cast<std::size_t>(pick(12))] = pick(2) == 0;
        form.items_changed();
        break;
      case 3:
        form.change([&](Struct_Weather& r) { r.ww = "61"; });
        break;
      case 4: {
        std::string typed = form.group_text(group);
        if (!typed.empty())
          typed[static_cast<std::size_t>(pick(typed.size()))] = "0123456789/*x"[pick(13)];
        const Struct_Weather record = form.record();
        if (!form.leave_group(group, typed)) {
          EXPECT_TRUE(form.record() == record);
        }
        break;
      }
      default:
        if (!form_.enter(field, kTexts[pick(std::size(kTexts))])) {
          EXPECT_EQ(form_.state(field), before);
        }
        break;
    }
    check();
  }

 private:
  template <class Count>
  int pick(Count count) {
    return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(random_);
  }

  void check() {
    const elements::ObservationForm& form = *form_.form;
    for (std::size_t i = 0; i < elements::kFields; ++i) {
      const auto field = static_cast<Field>(i);
      std::string Struct_Weather::*const member = elements::member_of(field);
      if (member == nullptr || form.in_error(field)) continue;
      EXPECT_EQ(elements::figures_of(field, form.text(field)), form.record().*member)
          << elements::name_of(field);
    }
    for (const observation::GroupRow& row : observation::group_rows())
      EXPECT_EQ(form.group_text(row.group), observation::group_text(form.record(), row.group));
    std::string message;
    std::string missing;
    observation::encode_report(form.record(), message, missing,
                               observation::wants_wet_bulb(form_.ship), text::Language::kEnglish);
    EXPECT_EQ(form.report(), message);
    EXPECT_EQ(form.missing(), missing);
    EXPECT_TRUE(form.record().PPPP.empty() || form.record().PPPP.size() == 4 ||
                form.record().PPPP == "////");
    EXPECT_EQ(elements::quadrant_of(form.north_south(), form.east_west()),
              form.record().Qc == "/" ? "" : form.record().Qc);
  }

  std::mt19937 random_;
  Form form_;
};

TEST(FormSequences, TextsRecordAndGroupsStayOne) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    Sequence sequence(seed);
    for (int i = 0; i < 150 && !testing::Test::HasFailure(); ++i) sequence.step();
  }
}

}  // namespace
