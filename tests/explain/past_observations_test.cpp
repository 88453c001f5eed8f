// What the ship has reported before.

#include "explain/past_observations.h"

#include <gtest/gtest.h>

#include "fakes/fake_files.h"
#include "fakes/sample_ship.h"
#include "observation/logbook_encoder.h"

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

/// A line of the second of January 2000.
std::string line(const std::string& hour, const std::string& pressure,
                 const ShipFixedData& ship = fakes::sample_ship()) {
  Struct_Weather record(ship, KeyObservationItems());
  record.Year = "2000";
  record.Month = "01";
  record.YY = "02";
  record.GG = hour;
  record.PPPP = pressure;
  record.SnT = "1";
  record.TTT = "052";
  return observation::encode_logbook(record, ship, KeyObservationItems()) + "\n";
}

std::vector<PastObservation> found_with_logbook(fakes::FakeFiles& files) {
  return explain::past_observations(files, {kFolder, "C:\\log\\"}, fakes::sample_ship(),
                                    KeyObservationItems(), 24, 48);
}

TEST(PastObservations, AreTheLinesOfTheLogbookWhereThereIsNoReport) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\00010206.tlx", report("0106"));
  files.add_file("C:\\log\\immt5.log",
                 line("09", "0200") + line("06", "0201") + line("03", "0202") + line("09", "0203"));
  const auto past = found_with_logbook(files);
  ASSERT_EQ(past.size(), 3U);
  EXPECT_EQ(past[0].hour, 27);
  EXPECT_EQ(past[0].values.hour, 27);
  EXPECT_EQ(past[0].from, PastObservation::From::kLogbook);
  EXPECT_DOUBLE_EQ(past[0].values.pressure.value(), 1020.2);
  EXPECT_DOUBLE_EQ(past[0].values.air.value(), -5.2);
  EXPECT_EQ(past[1].from, PastObservation::From::kReport) << "the report wins";
  EXPECT_DOUBLE_EQ(past[1].values.pressure.value(), 1010.6);
  EXPECT_DOUBLE_EQ(past[2].values.pressure.value(), 1020.3) << "the last line of an hour counts";
}

TEST(PastObservations, AreNotThoseOfAnotherShipNorOfADamagedLine) {
  fakes::FakeFiles files;
  ShipFixedData other = fakes::sample_ship();
  other.call_sign = "JXKVA";
  const std::string sound = line("06", "0200");
  std::string shifted = line("09", "0201");
  shifted.erase(30, 1).insert(100, "0");
  std::string no_date = line("12", "0202");
  no_date.replace(7, 2, "32");
  files.add_file("C:\\log\\immt5.log", line("03", "0203", other) + shifted + no_date + "\n\r\n" +
                                           line("15", "0204").substr(0, 100) + "\n" +
                                           std::string(1000, '\0') + "\n" +
                                           sound.substr(0, 172));  // no end: it was cut off there
  const auto past = found_with_logbook(files);
  ASSERT_EQ(past.size(), 1U);
  EXPECT_EQ(past[0].hour, 30);
}

TEST(PastObservations, SurviveALogbookThatIsNotThereOrCannotBeRead) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\00010206.tlx", report("0106"));
  EXPECT_EQ(found_with_logbook(files).size(), 1U);
  files.add_file("C:\\log\\immt5.log", line("09", "0200"));
  files.fail_path("C:\\log\\immt5.log", platform::FileError::kAccessDenied);
  EXPECT_EQ(found_with_logbook(files).size(), 1U);
}

// A logbook of any length is read in pieces, and a line that two of them share is one.
TEST(PastObservations, FindALineWhereverItStandsInALongLogbook) {
  fakes::FakeFiles files;
  ShipFixedData other = fakes::sample_ship();
  other.call_sign = "OTHER";
  const std::string filling = line("00", "0100", other);
  std::string log;
  for (int i = 0; i < 4000; ++i) {
    log += filling;
    if (i % 500 == 0) log += line(i / 500 < 4 ? "03" : "06", "020" + std::to_string(i / 500));
  }
  files.add_file("C:\\log\\immt5.log", log);
  const auto past = found_with_logbook(files);
  ASSERT_EQ(past.size(), 2U);
  EXPECT_DOUBLE_EQ(past[0].values.pressure.value(), 1020.3);
  EXPECT_DOUBLE_EQ(past[1].values.pressure.value(), 1020.7);
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
