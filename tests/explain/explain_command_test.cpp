// kavrel-cli explain as it is run.

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "fakes/command_folder.h"

namespace {

using fakes::Outcome;

class ExplainCommand : public testing::Test {
 protected:
  void file(const std::string& name, const std::string& content) const {
    folder_.write(name, content);
  }

  /// The words need no quoting.
  Outcome run(const std::string& arguments, const std::string& input = "") const {
    return folder_.shell("env -i $CLI explain " + arguments, input);
  }

 private:
  fakes::CommandFolder folder_;
};

constexpr const char* kReport = "BBXX JXKV 15124 99357 11653 43/// ///// 22200 =\n";

TEST_F(ExplainCommand, TellsEachReportWithABlankLineBetween) {
  const Outcome outcome = run("", std::string(kReport) + "# a note\nZCZC\n" + kReport);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.error, "");
  const std::string report =
      "BBXX   Report from a ship.\n"
      "JXKV   Call sign JXKV.\n"
      "15124  Day 15, 12 UTC. Wind speed obtained from anemometer, in knots.\n"
      "99357  Latitude 35.7° N.\n"
      "11653  Longitude 165.3° E.\n"
      "43///  Amount of precipitation omitted (not available). Manned station, present and past "
      "weather omitted (no observation, data not available). Not reported: height of the cloud "
      "base, visibility.\n"
      "/////  Not reported: total cloud amount, wind direction, wind speed.\n"
      "       Not reported: air temperature, dew point, pressure, pressure tendency.\n"
      "22200  Ship's course over the past three hours: position unchanged (stationary). Ship's "
      "speed over the past three hours: under 1 knot.\n"
      "       Not reported: sea surface temperature, wind waves, swell.\n";
  EXPECT_EQ(outcome.out, report + "ZCZC  outside the report\n\n" + report);
}

TEST_F(ExplainCommand, TakesYearAndMonthOfTheFilesNameOrAsTheyAreGiven) {
  file("14111512.tlx", kReport);
  EXPECT_NE(run("14111512.tlx").out.find("15 November 2014, 12 UTC."), std::string::npos);
  EXPECT_NE(run("--date 2015-03 14111512.tlx").out.find("15 March 2015, 12 UTC."),
            std::string::npos);
  EXPECT_NE(run("--language ja --date 2015-03", kReport).out.find("2015年3月15日12時（UTC）。"),
            std::string::npos);
}

TEST_F(ExplainCommand, RefusesWhatReadRefuses) {
  EXPECT_EQ(run("", "no report\n").status, 2);
  EXPECT_EQ(run("", "").status, 2);
  EXPECT_EQ(run("missing.tlx").status, 2);
  for (const char* const words : {"--language", "--language de", "--date", "--date 2014-13",
                                  "--date 201411", "--date 2014", "--other", "a b"}) {
    const Outcome outcome = run(words, kReport);
    EXPECT_EQ(outcome.status, 2) << words;
    EXPECT_NE(outcome.error.find("usage: kavrel-cli explain"), std::string::npos) << words;
    EXPECT_EQ(outcome.out, "") << words;
  }
}

TEST_F(ExplainCommand, LetsNoControlCharacterThrough) {
  const Outcome outcome = run("", "\x1b[2J\nBBXX JXKV 15124 \x1b[2J 99357 11653 \x07\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out.find('\x1b'), std::string::npos);
  EXPECT_EQ(outcome.out.find('\x07'), std::string::npos);
}

TEST_F(ExplainCommand, ExplainsTheRealReports) {
  for (const char* const language : {"en", "ja"}) {
    const Outcome outcome =
        run(std::string("--language ") + language + " " + KAVREL_TEST_DATA + "/ship_reports.txt");
    EXPECT_EQ(outcome.status, 0);
    std::size_t reports = 0;
    for (auto at = outcome.out.find("BBXX  "); at != std::string::npos;
         at = outcome.out.find("BBXX  ", at + 1))
      ++reports;
    EXPECT_GT(reports, 25U);
  }
}

}  // namespace
