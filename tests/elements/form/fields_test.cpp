// The table of fields against what the report and the program know without it.

#include "elements/form/fields.h"

#include <gtest/gtest.h>

#include "elements/form/entries.h"
#include "observation/report_groups.h"
#include "text/texts.h"

namespace {

using elements::Field;
using elements::FieldRow;
using W = Struct_Weather;

TEST(Fields, HaveTextsInBothLanguages) {
  for (const FieldRow& row : elements::field_rows()) {
    for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
      if (row.label) {
        EXPECT_NE(text::resolve(elements::label_ref(row.label), language), "") << row.name;
      }
      if (row.unit.id) {
        EXPECT_NE(text::resolve(row.unit, language), "") << row.name;
      }
      for (const text::Id id : {row.editor.message, row.editor.check_text, row.editor.question}) {
        if (id) {
          EXPECT_NE(text::bilingual(id, language), "") << row.name;
        }
      }
    }
  }
}

TEST(Fields, AreFoundByTheirNamesAndOthersAreNot) {
  for (const FieldRow& row : elements::field_rows()) {
    EXPECT_EQ(elements::field_named(row.name), row.field);
    EXPECT_EQ(&elements::row_of(row.field), &row);
  }
  for (const char* const name : {"", "yy", "north_south", "PPPP "})
    EXPECT_EQ(elements::field_named(name), std::nullopt) << name;
}

// A symbol that is sent stands in a field, but for the quadrant, which is chosen, and for what the
// ship and the program put in.
TEST(Fields, StandForEverySymbolOfTheReportWithEitherDewPointMethod) {
  for (const DewPointMethod method : {DewPointMethod::kDirect, DewPointMethod::kComputed}) {
    ShipFixedData ship;
    ship.dew_point_method = method;
    const bool computed = method == DewPointMethod::kComputed;
    EXPECT_EQ(elements::field_of(&W::TTT, ship),
              computed ? Field::kDryBulb : Field::kAirTemperature);
    EXPECT_EQ(elements::field_of(&W::SnT, ship),
              computed ? Field::kDryBulb : Field::kAirTemperature);
    EXPECT_EQ(elements::field_of(&W::TdTdTd, ship), Field::kDewPoint);
    EXPECT_EQ(elements::field_of(&W::fff, ship), Field::kff);
    for (const observation::GroupRow& group : observation::group_rows()) {
      for (const observation::Symbol& symbol : group.used()) {
        const bool given = symbol.field == &W::iR || symbol.field == &W::iX ||
                           symbol.field == &W::iw || symbol.field == &W::Qc;
        EXPECT_EQ(elements::field_of(symbol.field, ship).has_value(), !given)
            << static_cast<int>(group.group);
      }
    }
  }
}

// An element that no switch concerns is never off; each switch has a field.
TEST(Fields, AreSwitchedOffByTheirItemAlone) {
  for (std::size_t i = 0; i < kObservationItems; ++i) {
    KeyObservationItems items;
    items.not_observed[i] = true;
    int off = 0;
    for (const FieldRow& row : elements::field_rows()) {
      const bool is_off = elements::is_switched_off(row, items);
      EXPECT_EQ(is_off, row.item == static_cast<ObservationItem>(i)) << row.name;
      off += is_off ? 1 : 0;
    }
    EXPECT_LT(0, off) << i;
  }
}

}  // namespace
