// The command as a user runs it: the real programs, real files.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "fakes/command_folder.h"

namespace {

namespace fs = std::filesystem;

using fakes::Outcome;

int messages(const std::string& bytes) {
  int count = 0;
  for (auto at = bytes.find("BUFR"); at != std::string::npos; at = bytes.find("BUFR", at + 1))
    ++count;
  return count;
}

class BufrCommand : public testing::Test {
 protected:
  void file(const std::string& name, const std::string& content) const {
    folder_.write(name, content);
  }
  std::string slurp(const std::string& name) const { return folder_.content(name); }

  /// Runs "kavrel-cli bufr" in the folder with words that need no quoting; its input is a pipe.
  Outcome run(const std::string& arguments, const std::string& input = "") const {
    return folder_.shell("cat | env -i $CLI bufr " + arguments, input);
  }

  bool exists(const char* name) const { return fs::exists(folder_ / name); }

  fakes::CommandFolder folder_;
};

const char* const kObservation =
    "ship.call_sign=JXKV\nYear=2014\nMonth=11\nYY=15\nGG=12\nQc=1\nLaDeg=35\nLaMin=42\n"
    "LoDeg=165\nLoMin=18\n";
const char* const kReport = "BBXX JXKV 15124 99357 11653 41/// ///// 8//// 222// .....\n";

TEST_F(BufrCommand, WritesOneMessageBehindTheOther) {
  file("two.obs", std::string(kObservation) + "\nYear=2014\nMonth=11\nYY=15\nGG=15\n");
  const Outcome outcome = run("two.obs");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(outcome.error, "");
  EXPECT_EQ(messages(outcome.out), 2);
  EXPECT_TRUE(outcome.out.starts_with("BUFR"));
  EXPECT_TRUE(outcome.out.ends_with("7777"));
  // From standard input and into a file it is the same.
  EXPECT_EQ(run("--output -", slurp("two.obs")).out, outcome.out);
  EXPECT_EQ(run("--output out.bufr two.obs").status, 0);
  EXPECT_EQ(slurp("out.bufr"), outcome.out);
}

TEST_F(BufrCommand, OfAReportIsTheSameAsOfItsObservation) {
  // A report says nothing of the ship, so neither does this observation; and its weather was not left out.
  file("one.obs", std::string(kObservation) + "iw=4\niX=1\n");
  file("14111512.tlx", kReport);
  const std::string message = run("one.obs").out;
  EXPECT_EQ(messages(message), 1);
  EXPECT_EQ(run("14111512.tlx").out, message);
  EXPECT_EQ(run("--date 2014-11", kReport).out, message);
  EXPECT_EQ(run("--date 2014-11 14111512.tlx").out, message);
  EXPECT_NE(run("--date 2014-10", kReport).out, message);
}

TEST_F(BufrCommand, WantsTheDateOfAReport) {
  file("report.txt", kReport);
  const Outcome outcome = run("report.txt");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_NE(outcome.error.find("reports hold no year and month: --date YYYY-MM"), std::string::npos)
      << outcome.error;
  EXPECT_EQ(run("", kReport).error.find("--date YYYY-MM") == std::string::npos, false);
}

TEST_F(BufrCommand, RefusesAReportOfAnotherDateThanItsName) {
  for (const char* name : {"14111612.tlx", "14111515.tlx"}) {
    file(name, kReport);
    const Outcome outcome = run(name);
    EXPECT_EQ(outcome.status, 2) << name;
    EXPECT_EQ(outcome.out, "") << name;
    EXPECT_NE(outcome.error.find("the file's name tells another date and hour"), std::string::npos)
        << outcome.error;
  }
  file("14111512.tlx", kReport);
  EXPECT_EQ(run("--date 2014-12 14111512.tlx").status, 2);
}

TEST_F(BufrCommand, RefusesADateThatIsNone) {
  file("wrong.obs", std::string(kObservation) + "\nYear=2014\nMonth=02\nYY=30\nGG=12\n");
  const Outcome outcome = run("--output out.bufr wrong.obs");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.error.find("wrong.obs:12: Year, Month, YY and GG are no date and hour: YY is 2 "
                               "figures, 01 to 28"),
            std::string::npos)
      << outcome.error;
  EXPECT_FALSE(exists("out.bufr"));
  EXPECT_FALSE(exists("out.bufr.part"));
  EXPECT_EQ(run("--date 2014-02", "BBXX JXKV 30124 99357 11653 41/// ///// 222//=\n").status, 2);
  EXPECT_EQ(run("", "TTT=152\n").status, 2);
}

TEST_F(BufrCommand, NamesWhatItLeavesOut) {
  const Outcome outcome =
      run("--date 2014-01", "#\nBBXX JXKV 15124 99357 11653 41/// /4505 70007 333 91131=\n");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(messages(outcome.out), 1);
  EXPECT_NE(outcome.error.find(":2: left missing: dd=45\n"), std::string::npos) << outcome.error;
  EXPECT_NE(outcome.error.find(":2: not placed: 333"), std::string::npos) << outcome.error;
}

TEST_F(BufrCommand, TellsLinesOfReportsInOneLineAndInMany) {
  const Outcome outcome = run("--date 2014-01",
                              "BBXX A 15124 99357 11653 41/// /4505\n\nBBXX B 15124 99357\n"
                              "11653 41/// /4605=\nBBXX C 15124 99357 11653 41/// /4705=\n");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(messages(outcome.out), 3);
  for (const char* line :
       {":1: left missing: dd=45\n", ":3: left missing: dd=46\n", ":5: left missing: dd=47\n"})
    EXPECT_NE(outcome.error.find(line), std::string::npos) << line << outcome.error;
}

TEST_F(BufrCommand, NamesOneShipByItsWigosIdentifier) {
  file("one.obs", kObservation);
  const std::string plain = run("one.obs").out;
  const Outcome outcome = run("--wigos 0-22000-0-ABC1234 one.obs");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_GT(outcome.out.size(), plain.size());
  const Outcome wrong = run("--wigos 0-70000-0-ABC1234 one.obs");
  EXPECT_EQ(wrong.status, 2);
  EXPECT_EQ(wrong.error.substr(0, wrong.error.find('\n')),
            "kavrel-cli: --wigos 0-70000-0-ABC1234: the issuer is a number from 0 to 65534");
  file("two.obs",
       std::string(kObservation) + "\nCallSign=OTHER\nYear=2014\nMonth=11\nYY=15\nGG=15\n");
  EXPECT_EQ(run("two.obs").status, 0);
  const Outcome two = run("--wigos 0-22000-0-ABC1234 two.obs");
  EXPECT_EQ(two.status, 2);
  EXPECT_EQ(two.out, "");
  EXPECT_NE(two.error.find("here is another (OTHER behind JXKV)"), std::string::npos) << two.error;
}

TEST_F(BufrCommand, TellsWrongArguments) {
  for (const char* words : {"--date", "--date 2014", "--date 2014-13", "--date 14-01", "--output",
                            "--wigos", "--wigos 0", "--unknown", "a b"}) {
    const Outcome outcome = run(words);
    EXPECT_EQ(outcome.status, 2) << words;
    EXPECT_NE(outcome.error.find("usage: kavrel-cli bufr"), std::string::npos) << words;
  }
}

TEST_F(BufrCommand, TellsAnInputThatHoldsNothing) {
  EXPECT_NE(run("", "").error.find("holds no observation"), std::string::npos);
  EXPECT_NE(run("--date 2014-01", "").error.find("holds no report"), std::string::npos);
  EXPECT_NE(run("--date 2014-01", "no word of it\n").error.find("holds no report"),
            std::string::npos);
  EXPECT_EQ(run("").status, 2);
  EXPECT_NE(run("nowhere.obs").error.find("nowhere.obs"), std::string::npos);
  EXPECT_EQ(run("nowhere.obs").status, 2);
  EXPECT_NE(run(".").error.find("is a folder"), std::string::npos);
}

TEST_F(BufrCommand, TellsAnOutputThatCannotBeWritten) {
  file("one.obs", kObservation);
  const Outcome full = run("one.obs >/dev/full");
  EXPECT_EQ(full.status, 2);
  EXPECT_NE(full.error.find("the output cannot be written"), std::string::npos) << full.error;
  EXPECT_EQ(run("--output /dev/full one.obs").status, 2);
  EXPECT_EQ(run("one.obs >&-").status, 2);
  const Outcome nowhere = run("--output none/out.bufr one.obs");
  EXPECT_EQ(nowhere.status, 2);
  EXPECT_NE(nowhere.error.find("none/out.bufr cannot be written: No such file or directory"),
            std::string::npos)
      << nowhere.error;
  fs::create_directory(folder_ / "out");
  EXPECT_EQ(run("--output out one.obs").status, 2);
  EXPECT_TRUE(fs::is_directory(folder_ / "out"));
  // A device is written, not replaced.
  EXPECT_EQ(run("--output /dev/null one.obs").status, 0);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(BufrCommand, EndsQuietlyWithTheReaderOfItsOutput) {
  std::string many;
  for (int i = 0; i < 2000; ++i) many += std::string(kObservation) + "\n";
  file("many.obs", many);
  const Outcome outcome =
      folder_.shell("(env -i $CLI bufr many.obs; echo $? >status) | head -c 4 && cat status");
  EXPECT_EQ(outcome.out, "BUFR141\n");
  EXPECT_EQ(outcome.error, "");
}

TEST_F(BufrCommand, WritesNotOverWhatItReads) {
  file("one.obs", kObservation);
  const Outcome outcome = run("--output ./one.obs one.obs");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.error, "kavrel-cli: ./one.obs is what is read\n");
  EXPECT_EQ(slurp("one.obs"), kObservation);
}

TEST_F(BufrCommand, LeavesTheFileThatWasThereWhenItFails) {
  file("out.bufr", "as it was");
  EXPECT_EQ(run("--output out.bufr", "TTT=152\n").status, 2);
  EXPECT_EQ(slurp("out.bufr"), "as it was");
  EXPECT_EQ(run("--output out.bufr", kObservation).status, 0);
  EXPECT_EQ(messages(slurp("out.bufr")), 1);
  EXPECT_FALSE(exists("out.bufr.part"));
}

TEST_F(BufrCommand, SurvivesAnyBytes) {
  std::mt19937 dice(7);
  const auto below = [&](int n) { return std::uniform_int_distribution<int>(0, n - 1)(dice); };
  for (int i = 0; i < 40; ++i) {
    std::string bytes = i % 2 == 0 ? kReport : kObservation;
    for (int change = 0; change < 1 + i; ++change)
      bytes[static_cast<std::size_t>(below(static_cast<int>(bytes.size())))] =
          static_cast<char>(below(256));
    file("bytes", bytes);
    for (const char* arguments : {"bytes", "--date 2014-01 bytes"}) {
      const Outcome outcome = run(arguments);
      EXPECT_TRUE(outcome.status == 0 || outcome.status == 2) << outcome.status << bytes;
      // Said, and without control characters, or done.
      EXPECT_EQ(outcome.status == 2 && outcome.error.empty(), false);
      EXPECT_EQ(outcome.error.find('\x1b'), std::string::npos);
      EXPECT_EQ(messages(outcome.out) > 0, outcome.status == 0);
    }
  }
}

}  // namespace
