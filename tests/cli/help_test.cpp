// What kavrel-cli answers about itself, and what it says of wrong words, as a user meets it.

#include <gtest/gtest.h>

#include "fakes/command_folder.h"
#include "usage/help.h"
#include "usage/programs.h"

namespace {

using fakes::Outcome;

class CliHelp : public testing::Test {
 protected:
  [[nodiscard]] Outcome run(const std::string& words, const std::string& input = "") const {
    return folder_.shell("\"$CLI\" " + words, input);
  }

  fakes::CommandFolder folder_;
};

TEST_F(CliHelp, TheProgramNamesItsCommands) {
  const Outcome outcome = run("--help");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.error, "");
  for (const char* name : {"encode", "read", "logbook", "explain", "save", "bufr", "session"})
    EXPECT_NE(outcome.out.find(std::string("\n  ") + name + " "), std::string::npos) << name;
  const std::string japanese = run("--language ja --help").out;
  EXPECT_NE(japanese.find("気象電報を群ごとに平文で説明する"), std::string::npos) << japanese;
  EXPECT_EQ(run("--help --language ja").out, japanese);
}

TEST_F(CliHelp, EveryCommandTellsItsRowAndReadsNothing) {
  for (const usage::Command& command : usage::cli_commands()) {
    const std::string name(command.name);
    const Outcome english = run(name + " --help", "no observation");
    EXPECT_EQ(english.status, 0) << name;
    EXPECT_EQ(english.error, "") << name;
    EXPECT_EQ(english.out, usage::help(command, text::Language::kEnglish));
    // The session has a language of its own.
    const char* const japanese =
        name == "session" ? " --help --locale ja" : " --help --language ja";
    EXPECT_EQ(run(name + japanese).out, usage::help(command, text::Language::kJapanese));
  }
}

TEST_F(CliHelp, TheVersionIsOneLineForEveryCommand) {
  for (const char* words : {"--version", "encode --version", "bufr --version", "session --version"})
    EXPECT_EQ(run(words).out, usage::version_line(usage::cli_program())) << words;
}

TEST_F(CliHelp, WrongWordsAreNamedAndPointToTheHelp) {
  struct Row {
    const char* words;
    const char* reason;
    const char* more;
  };
  const Row rows[] = {
      {"", "a command is wanted", "kavrel-cli --help tells more\n"},
      {"frobnicate", "unknown command frobnicate", "kavrel-cli --help tells more\n"},
      {"--frobnicate", "unknown option --frobnicate", "kavrel-cli --help tells more\n"},
      {"encode --quick", "unknown option --quick", "kavrel-cli encode --help tells more\n"},
      {"logbook --json", "--json, --list and --language go with --check",
       "kavrel-cli logbook --help tells more\n"},
      {"save", "--reports and --logbook are wanted", "kavrel-cli save --help tells more\n"},
      {"bufr --date x", "--date is a year and a month, YYYY-MM, not \"x\"",
       "kavrel-cli bufr --help tells more\n"},
      {"session --printer off", "--printer is none or fails, not \"off\"",
       "kavrel-cli session --help tells more\n"},
      {"read $(printf '\\033[2J') b", "unknown argument b", "kavrel-cli read --help tells more\n"},
      {"read a $(printf '\\033[2J')", "unknown argument \\x1B[2J",
       "kavrel-cli read --help tells more\n"},
  };
  for (const Row& row : rows) {
    const Outcome outcome = run(row.words);
    EXPECT_EQ(outcome.status, 2) << row.words;
    EXPECT_EQ(outcome.out, "") << row.words;
    EXPECT_TRUE(outcome.error.starts_with(
        std::string("kavrel-cli: ").append(row.reason).append("\nusage: kavrel-cli")))
        << outcome.error;
    EXPECT_TRUE(outcome.error.ends_with(row.more)) << outcome.error;
  }
}

TEST_F(CliHelp, ADashIsStandardInputForEveryCommand) {
  const std::string observed =
      "ship.call_sign=JXKV\nship.wind_speed_method=1\nYear=2014\nMonth=11\nYY=15\nGG=12\nQc=1\n"
      "LaDeg=35\nLaMin=42\nLoDeg=165\nLoMin=18\n";
  const std::string report = "BBXX JXKV 15124 99357 11653 41/// ///// 8//// 222// .....";
  EXPECT_NE(run("encode -", observed).out.find(report), std::string::npos);
  EXPECT_NE(run("read -", report).out.find("LaDeg=35\n"), std::string::npos);
  EXPECT_NE(run("explain -", report).out.find("JXKV"), std::string::npos);
  EXPECT_EQ(folder_.shell("mkdir r l && \"$CLI\" save --reports r --logbook l -", observed).status,
            0);
  EXPECT_NE(run("logbook - <l/immt5.log").out.find("\"LaDeg\":\"35\""), std::string::npos);
  EXPECT_EQ(run("session --root . -", "# nothing\n").status, 0);
}

}  // namespace
