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
  const auto positions = mainwindow::last_saved_positions(files, kFolder, 1);
  ASSERT_EQ(1U, positions.size());
  EXPECT_EQ(7, positions[0].at.quadrant);
  EXPECT_EQ(101, positions[0].at.latitude);
  EXPECT_EQ(1200, positions[0].at.longitude);
}

TEST(LastPosition, PassesOverReportsWithoutAReadablePosition) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\14111512.tlx", report("99200 31400"));
  files.add_file("C:\\out\\14111515.tlx", report("99/// /////"));
  files.add_file("C:\\out\\14111518.tlx", "no report at all");
  files.add_file("C:\\out\\14111521.tlx", report("99100 51400"));
  files.fail_next(fakes::FakeFiles::Operation::kRead, platform::FileError::kAccessDenied);
  const auto positions = mainwindow::last_saved_positions(files, kFolder, 2);
  ASSERT_EQ(1U, positions.size());
  EXPECT_EQ(3, positions[0].at.quadrant);
}

TEST(LastPosition, IsNothingWithoutReports) {
  fakes::FakeFiles files;
  EXPECT_TRUE(mainwindow::last_saved_positions(files, "", 1).empty());
  EXPECT_TRUE(mainwindow::last_saved_positions(files, "C:\\nowhere\\", 1).empty());
  files.add_folder(kFolder);
  files.add_file("C:\\out\\notes.txt", report("99353 11400"));
  files.add_file("C:\\out\\last.tlx", report("99353 11400"));
  EXPECT_TRUE(mainwindow::last_saved_positions(files, kFolder, 1).empty());
}

TEST(LastPositions, AreTheNewestFirstAndThoseBeforeAReport) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\14123118.tlx", report("99353 11400"));
  files.add_file("C:\\out\\15010100.tlx", report("99101 71200"));
  files.add_file("C:\\out\\14111512.tlx", report("99200 31400"));
  const auto latitudes = [&](std::size_t count, std::string_view before) {
    std::vector<int> found;
    for (const auto& at : mainwindow::last_saved_positions(files, kFolder, count, before))
      found.push_back(at.at.latitude);
    return found;
  };
  using Found = std::vector<int>;
  EXPECT_EQ(latitudes(8, ""), (Found{101, 353, 200}));
  EXPECT_EQ(latitudes(2, ""), (Found{101, 353}));
  EXPECT_EQ(latitudes(8, "15010100.tlx"), (Found{353, 200}));
  EXPECT_EQ(latitudes(8, "14111512.tlx"), Found{});
  EXPECT_EQ(latitudes(8, "15010103.tlx"), (Found{101, 353, 200}));
  EXPECT_EQ(latitudes(8, "no date.tlx"), (Found{101, 353, 200}));
}

TEST(Track, IsOfTheTwoDaysBeforeTheObservation) {
  const std::vector<mainwindow::SavedPosition> saved = {
      {{1, 350, 1400}, 1000}, {{1, 340, 1400}, 997}, {{1, 330, 1400}, 952}, {{1, 320, 1400}, 951}};
  EXPECT_EQ(mainwindow::track_of(saved, "").size(), 3U) << "before the newest one";
  EXPECT_TRUE(mainwindow::track_of({}, "").empty());
  // 1,000 hours are 41 days and 16 hours: 11 February 2000, 16 UTC.
  EXPECT_EQ(mainwindow::track_of(saved, "00021118.tlx").size(), 2U);
  EXPECT_EQ(mainwindow::track_of(saved, "00021316.tlx").size(), 1U);
  EXPECT_EQ(mainwindow::track_of(saved, "00021317.tlx").size(), 0U);
  EXPECT_EQ(mainwindow::track_of(saved, "14111512.tlx").size(), 0U);
}

}  // namespace
