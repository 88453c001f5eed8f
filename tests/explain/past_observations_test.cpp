// What the ship has reported before.

#include "explain/past_observations.h"

#include <gtest/gtest.h>

#include "fakes/fake_files.h"
#include "fakes/sample_ship.h"

namespace {

using observation::PastObservation;

constexpr const char* kFolder = "C:\\out\\";

std::string report(const std::string& pressure) {
  return "BBXX JXKV 15124 99357 11653 41497 62718 10152 20114 4" + pressure + " 52014 22213";
}

std::vector<PastObservation> found(fakes::FakeFiles& files, int first, int beyond) {
  return explain::past_observations(files, {kFolder, ""}, fakes::sample_ship(),
                                    KeyObservationItems(), first, beyond);
}

TEST(PastObservations, AreTheReportsOfTheseHoursTheOldestFirst) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\00010206.tlx", report("0106"));
  files.add_file("C:\\out\\00010203.tlx", report("0103"));
  files.add_file("C:\\out\\00010200.tlx", report("0100"));
  files.add_file("C:\\out\\00010209.tlx", report("0109"));
  files.add_file("C:\\out\\00010204.tlx", "no report at all");
  files.add_file("C:\\out\\notes.tlx", report("0111"));
  const auto past = found(files, 27, 33);
  ASSERT_EQ(past.size(), 2U);
  EXPECT_EQ(past[0].hour, 27);
  EXPECT_DOUBLE_EQ(past[0].values.pressure.value(), 1010.3);
  EXPECT_EQ(past[0].values.hour, 27) << "the date is the file's, not that of the group YYGGiw";
  EXPECT_EQ(past[1].hour, 30);
  EXPECT_DOUBLE_EQ(past[1].values.pressure.value(), 1010.6);
  EXPECT_EQ(past[1].from, PastObservation::From::kReport);
}

TEST(PastObservations, AreNoneWhereNothingCanBeRead) {
  fakes::FakeFiles files;
  EXPECT_TRUE(found(files, 0, 100).empty());
  files.add_file("C:\\out\\00010203.tlx", report("0103"));
  files.fail_next(fakes::FakeFiles::Operation::kRead, platform::FileError::kAccessDenied);
  EXPECT_TRUE(found(files, 0, 100).empty());
  EXPECT_TRUE(
      explain::past_observations(files, {}, fakes::sample_ship(), KeyObservationItems(), 0, 100)
          .empty());
}

}  // namespace
