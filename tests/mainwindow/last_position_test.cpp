// The position of the last saved report, from which a new observation takes its hemispheres.

#include "mainwindow/last_position.h"

#include <gtest/gtest.h>

#include "fakes/fake_files.h"

namespace {

constexpr const char* kFolder = "C:\\out\\";

std::string report(const char* position) {
  return std::string("BBXX JXKV 15124 ") + position + " 41498 52710 .....";
}

TEST(LastPosition, IsThatOfTheNewestReportByItsName) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\14123118.tlx", report("99353 11400"));
  files.add_file("C:\\out\\15010100.tlx", report("99101 71200"));
  files.add_file("C:\\out\\14111512.tlx", report("99200 31400"));
  const auto position = mainwindow::last_saved_position(files, kFolder);
  ASSERT_TRUE(position.has_value());
  EXPECT_EQ(7, position->quadrant);
  EXPECT_EQ(101, position->latitude);
  EXPECT_EQ(1200, position->longitude);
}

TEST(LastPosition, PassesOverReportsWithoutAReadablePosition) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\14111512.tlx", report("99200 31400"));
  files.add_file("C:\\out\\14111515.tlx", report("99/// /////"));
  files.add_file("C:\\out\\14111518.tlx", "no report at all");
  files.add_file("C:\\out\\14111521.tlx", report("99100 51400"));
  files.fail_next(fakes::FakeFiles::Operation::kRead, platform::FileError::kAccessDenied);
  const auto position = mainwindow::last_saved_position(files, kFolder);
  ASSERT_TRUE(position.has_value());
  EXPECT_EQ(3, position->quadrant);
}

TEST(LastPosition, IsNothingWithoutReports) {
  fakes::FakeFiles files;
  EXPECT_FALSE(mainwindow::last_saved_position(files, "").has_value());
  EXPECT_FALSE(mainwindow::last_saved_position(files, "C:\\nowhere\\").has_value());
  files.add_folder(kFolder);
  files.add_file("C:\\out\\notes.txt", report("99353 11400"));
  files.add_file("C:\\out\\last.tlx", report("99353 11400"));
  EXPECT_FALSE(mainwindow::last_saved_position(files, kFolder).has_value());
}

}  // namespace
