// Whatever is entered in whatever order, the form and its record stay one.

#include <gtest/gtest.h>

#include "elements/form/field_codes.h"
#include "elements/form/random_entries.h"
#include "observation/report_encoder.h"

namespace {

using elements::Codec;
using elements::Field;
using form_test::Form;

class Sequence {
 public:
  explicit Sequence(unsigned seed) : entries_(seed) { entries_.set_up(form_); }

  void step() {
    entries_.step(form_);
    check();
  }

 private:
  void check() {
    const elements::ObservationForm& form = *form_.form;
    for (std::size_t i = 0; i < elements::kFields; ++i) {
      const auto field = static_cast<Field>(i);
      const elements::FieldRow& row = elements::row_of(field);
      // The codecs that need nothing but the text.
      const bool plain = row.codec == Codec::kFigures || row.codec == Codec::kHalfMetres ||
                         row.codec == Codec::kCloudBase || row.codec == Codec::kTendency;
      if (!plain || form.in_error(field)) continue;
      EXPECT_EQ(elements::figures_of(field, form.text(field)), form.record().*row.member)
          << elements::name_of(field);
    }
    std::string message;
    std::string missing;
    observation::encode_report(form.record(), message, missing,
                               observation::wants_wet_bulb(form_.ship), text::Language::kEnglish);
    const observation::Report report = form.report();
    EXPECT_EQ(report.text, message);
    EXPECT_EQ(observation::missing_list(report.missing, text::Language::kEnglish), missing);
    EXPECT_TRUE(form.record().PPPP.empty() || form.record().PPPP.size() == 4 ||
                form.record().PPPP == "////");
    EXPECT_EQ(codetables::quadrant_of(form.entries().north_south, form.entries().east_west),
              form.record().Qc == "/" ? "" : form.record().Qc);
  }

  form_test::RandomEntries entries_;
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
