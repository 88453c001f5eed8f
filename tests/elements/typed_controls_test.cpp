// A tab or a line end that is typed or pasted into a field never gets into the record.

#include <gtest/gtest.h>

#include <string>

#include "elements/form/form_under_test.h"
#include "observation/control_characters.h"
#include "observation/report_groups.h"

namespace {

using form_test::Form;

std::string control_characters() {
  std::string all;
  for (int c = 0; c < 0x20; ++c) all += static_cast<char>(c);
  return all + '\x7f';
}

void expect_sound(const Form& form, std::string_view where, const std::string& typed) {
  const auto field = observation::control_character_field(form.record(), form.ship);
  EXPECT_EQ(field, std::nullopt) << *field << " after " << where << " took "
                                 << testing::PrintToString(typed);
}

TEST(TypedControls, ReachTheRecordFromNoField) {
  for (std::size_t i = 0; i < elements::kFields; ++i) {
    const auto field = static_cast<elements::Field>(i);
    Form form;
    form.suppressed = true;
    for (const std::string value : {"1", "12", "2014", "1013.2", "-12.5", "//", "00"}) {
      for (const char control : control_characters()) {
        for (std::size_t at = 0; at <= value.size(); ++at) {
          std::string typed = value;
          typed.insert(at, 1, control);
          (void)form.enter(field, typed);
          expect_sound(form, elements::name_of(field), typed);
        }
      }
    }
  }
}

TEST(TypedControls, ReachTheRecordFromNoGroup) {
  for (const observation::GroupRow& row : observation::group_rows()) {
    Form form;
    form.suppressed = true;
    std::string value(row.indicator);
    value.resize(row.width(), '1');
    for (const char control : control_characters()) {
      for (std::size_t at = 0; at <= value.size(); ++at) {
        std::string typed = value;
        typed.insert(at, 1, control);
        (void)form.enter(row.group, typed);
        expect_sound(form, value, typed);
        if (at == value.size()) continue;
        typed = value;
        typed[at] = control;
        (void)form.enter(row.group, typed);
        expect_sound(form, value, typed);
      }
    }
  }
}

}  // namespace
