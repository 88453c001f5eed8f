// The commands as a user runs them: the real program, real files.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "observation/save_journal.h"

namespace {

namespace fs = std::filesystem;

struct Outcome {
  int status = -1;  ///< exit status; a signal is told as its negative number
  std::string out, error;
};

std::string slurp(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

class Cli : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "kavrel-cli-test.XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
    fs::create_directory(folder_ / "reports");
    fs::create_directory(folder_ / "logbook");
  }
  void TearDown() override { fs::remove_all(folder_); }

  std::string file(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
    return (folder_ / name).string();
  }

  /// Runs the program with words that need no quoting; `input` goes to its standard input, through
  /// a pipe.
  Outcome run(const std::string& arguments, const std::string& input = "") const {
    fs::remove(folder_ / "stdout");
    const std::string in = file("stdin", input);
    const std::string command = "cd '" + folder_.string() + "' && cat '" + in + "' | env -i " +
                                std::string(KAVREL_CLI) + " " + arguments +
                                (arguments.find('>') == std::string::npos ? " >stdout" : "") +
                                " 2>stderr";
    const int raw = std::system(command.c_str());
    Outcome outcome;
    outcome.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -WTERMSIG(raw);
    outcome.out = slurp(folder_ / "stdout");
    outcome.error = slurp(folder_ / "stderr");
    return outcome;
  }

  /// The status of a command whose reader leaves after one line ("head"), when it has more to write
  /// than a pipe holds; what it says about that is in "stderr".
  std::string status_before_a_leaving_reader(const std::string& arguments) const {
    const std::string command = "cd '" + folder_.string() + "' && (env -i " + KAVREL_CLI + " " +
                                arguments + " 2>stderr; echo $? >status) | head -n 1 >head";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return slurp(folder_ / "status");
  }

  std::vector<std::string> saved() const {
    std::vector<std::string> names;
    for (const char* sub : {"reports", "logbook"})
      for (const auto& entry : fs::directory_iterator(folder_ / sub))
        names.push_back(entry.path().filename().string());
    return names;
  }

  fs::path folder_;
};

const char* const kObservation =
    "ship.call_sign=JXKV\nship.wind_speed_method=1\nYear=2014\nMonth=11\nYY=15\nGG=12\nQc=1\n"
    "LaDeg=35\nLaMin=42\nLoDeg=165\nLoMin=18\n";
const char* const kReport = "BBXX JXKV 15124 99357 11653 41/// ///// 8//// 222// .....";

TEST_F(Cli, EncodePrintsOneJsonObjectALine) {
  const Outcome outcome = run("encode", std::string(kObservation) + "\nYY=16\n");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(outcome.error, "");
  std::istringstream lines(outcome.out);
  std::string first;
  std::string second;
  std::string third;
  ASSERT_TRUE(std::getline(lines, first));
  ASSERT_TRUE(std::getline(lines, second));
  EXPECT_FALSE(std::getline(lines, third));
  EXPECT_TRUE(first.starts_with("{\"report\":\"" + std::string(kReport) +
                                "\",\"missing\":\"GroupIrIxvv   No value input\\r\\n"))
      << first;
  EXPECT_NE(first.find("\",\"logbook\":\"32014111512135716530/"), std::string::npos) << first;
  EXPECT_TRUE(second.starts_with("{\"report\":\"BBXX JXKV 16//4 99/// ")) << second;
}

TEST_F(Cli, EncodeGivesTheMissingListInJapaneseWhenAsked) {
  const Outcome outcome = run("encode --language ja", kObservation);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out.find("GroupNddff   未入力です\\r\\n"), std::string::npos) << outcome.out;
  EXPECT_EQ(outcome.out.find("No value"), std::string::npos);
}

TEST_F(Cli, EncodeAsksForTheWetBulbGroupWhenTheDewPointIsComputed) {
  const std::string wet = "Sw=0\nTbTbTb=130\n";
  EXPECT_EQ(run("encode", kObservation + wet).out.find(" 80130 "), std::string::npos);
  EXPECT_NE(run("encode", kObservation + wet + "ship.dew_point_method=1\n").out.find(" 80130 "),
            std::string::npos);
}

TEST_F(Cli, EncodeReadsAFileAsItReadsStandardInput) {
  const std::string name = file("a.obs", kObservation);
  EXPECT_EQ(run("encode " + name).out, run("encode", kObservation).out);
  EXPECT_EQ(run("encode " + name).out, run("encode - ", kObservation).out);
}

TEST_F(Cli, NoObservationIsNoError) {
  for (const char* text : {"", "\n\n", "# nothing\n", "ship.call_sign=JXKV\n"}) {
    const Outcome outcome = run("encode", text);
    EXPECT_EQ(outcome.status, 0) << text;
    EXPECT_EQ(outcome.out + outcome.error, "") << text;
  }
}

struct WrongRow {
  const char* what;
  std::string text;
  const char* told;  ///< behind the file's name
};

TEST_F(Cli, WrongInputIsToldWithFileLineAndReasonAndNothingIsWritten) {
  const WrongRow rows[] = {
      {"unknown name", std::string(kObservation) + "Pressure=1\n",
       ":12: unknown name \"Pressure\""},
      {"no equals", std::string(kObservation) + "VV 97\n", ":12: \"VV 97\" is no line NAME=VALUE"},
      {"bad number", std::string(kObservation) + "ship.card_type=one\n",
       ":12: the value of \"ship.card_type\" is not a number"},
      {"not storable", std::string(kObservation) + "ship.temperature_unit=0.7\n",
       ":12: the value of \"ship.temperature_unit\" cannot be stored"},
      {"control characters", std::string(kObservation) + "VV=\x1b[2J\n",
       ":12: the value of \"VV\" cannot be stored"},
      {"control characters in a name", std::string(kObservation) + "\x1b[2J=1\n",
       ":12: unknown name \"\\x1B[2J\""},
      {"a line of megabytes", std::string(kObservation) + "VV=" + std::string(3 << 20, '9') + "\n",
       ":12: the line is longer than 1024 bytes"},
      {"a second observation", std::string(kObservation) + "\nYY=16\nbad\n",
       ":14: \"bad\" is no line NAME=VALUE"},
  };
  for (const WrongRow& row : rows) {
    const std::string name = file("wrong.obs", row.text);
    const Outcome encoded = run("encode " + name);
    EXPECT_EQ(encoded.status, 2) << row.what;
    EXPECT_EQ(encoded.out, "") << row.what;
    EXPECT_EQ(encoded.error, "kavrel-cli: " + name + row.told + "\n");
    const Outcome saved_outcome = run("save --reports reports --logbook logbook " + name);
    EXPECT_EQ(saved_outcome.status, 2) << row.what;
    EXPECT_EQ(saved_outcome.out, "") << row.what;
    EXPECT_EQ(saved_outcome.error, encoded.error);
    EXPECT_TRUE(saved().empty()) << row.what;
  }
}

TEST_F(Cli, ARecordOfMegabytesIsRefused) {
  std::string text;
  while (text.size() < (2U << 20U)) text += "LogText1=" + std::string(800, 'x') + "\n";
  const Outcome outcome = run("encode " + file("long.obs", text));
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_NE(outcome.error.find("the observation is longer than 65536 bytes"), std::string::npos);
}

TEST_F(Cli, ThroughAPipeOnlyWholeLinesComeBeforeAFault) {
  const Outcome outcome = run("encode", std::string(kObservation) + "\nYY=16\nbad\n");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 1);
  EXPECT_TRUE(outcome.out.ends_with("\"}\n"));
  EXPECT_NE(outcome.error.find("standard input:14: "), std::string::npos) << outcome.error;
}

TEST_F(Cli, FilesThatCannotBeReadAreTold) {
  for (const char* command : {"encode ", "read ", "save --reports reports --logbook logbook "}) {
    Outcome outcome = run(command + std::string("reports"));
    EXPECT_EQ(outcome.status, 2) << command;
    EXPECT_EQ(outcome.error, "kavrel-cli: reports: is a folder\n");
    outcome = run(command + std::string("none.obs"));
    EXPECT_EQ(outcome.status, 2) << command;
    EXPECT_EQ(outcome.error, "kavrel-cli: none.obs: No such file or directory\n");
    if (geteuid() != 0) {
      fs::permissions(file("secret", kObservation), fs::perms::none);
      outcome = run(command + std::string("secret"));
      EXPECT_EQ(outcome.status, 2) << command;
      EXPECT_EQ(outcome.error, "kavrel-cli: secret: Permission denied\n");
      fs::permissions(folder_ / "secret", fs::perms::owner_all);
    }
  }
}

TEST_F(Cli, WrongArgumentsAreToldWithTheUsage) {
  for (const char* arguments :
       {"", "unknown", "encode --language", "encode --language fr", "encode --quick", "encode a b",
        "read --all", "read a b", "save", "save --reports reports", "save --logbook", "save --root",
        "save --x", "save --reports reports --logbook logbook a b"}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_NE(outcome.error.find("usage: kavrel-cli"), std::string::npos) << arguments;
  }
  EXPECT_EQ(run("--help").status, 0);
}

// Nobody may take for done what nobody was told of.
TEST_F(Cli, OutputThatCannotBeWrittenIsToldByEveryCommand) {
  const std::string observed = file("a.obs", kObservation);
  const std::string report = file("a.tlx", kReport);
  const std::string script = file("a.session", "# a comment\n");
  const std::string commands[] = {"--help",
                                  "encode " + observed,
                                  "read " + report,
                                  "explain " + report,
                                  "save --replace --reports reports --logbook logbook " + observed,
                                  "logbook logbook/immt5.log",
                                  "session --root . " + script};
  for (const std::string& command : commands) {
    for (const char* const where : {">/dev/full", ">&-"}) {
      const Outcome outcome = run(command + " " + where);
      EXPECT_EQ(outcome.status, 2) << command << where;
      EXPECT_NE(outcome.error, "") << command << where;
      EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1) << outcome.error;
    }
  }
}

TEST_F(Cli, ACommandThatOnlyPrintsEndsQuietlyWithItsReader) {
  std::string observed;
  std::string reports;
  for (int i = 0; i < 2000; ++i) {
    observed += std::string(kObservation) + "\n";
    reports += kReport + std::string("\n");
  }
  const std::string many = file("many.obs", observed);
  const std::string names = file("many.tlx", reports);
  run("save --replace --reports reports --logbook logbook " + file("a.obs", kObservation));
  std::string lines;
  for (int i = 0; i < 2000; ++i) lines += slurp(folder_ / "logbook" / "immt5.log");
  const std::string log = file("many.log", lines);
  for (const std::string& command :
       {"encode " + many, "read " + names, "explain " + names, "explain --language ja " + names,
        "logbook " + log, "logbook --format csv " + log, "logbook --check --json " + log}) {
    EXPECT_EQ(status_before_a_leaving_reader(command), "141\n") << command;
    EXPECT_EQ(slurp(folder_ / "stderr"), "") << command;
    const std::string first = slurp(folder_ / "head");
    EXPECT_EQ(std::count(first.begin(), first.end(), '\n'), 1) << command;
  }
}

TEST_F(Cli, ASaveWhoseReaderWentAwayIsTold) {
  const std::string observed = file("a.obs", kObservation);
  const std::string command = "cd '" + folder_.string() + "' && (sleep 0.3; env -i " + KAVREL_CLI +
                              " save --reports reports --logbook logbook " + observed +
                              " 2>stderr; echo $? >status) | true";
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(slurp(folder_ / "status"), "2\n");
  EXPECT_NE(slurp(folder_ / "stderr").find("saved, but standard output cannot be written"),
            std::string::npos);
  EXPECT_EQ(slurp(folder_ / "reports" / "14111512.tlx"), kReport);
}

TEST_F(Cli, WithoutStandardOutputNothingIsWrittenIntoTheFiles) {
  const std::string name = file("a.obs", kObservation);
  for (const char* const closed : {">&- 2>stderr", ">&- 2>&-", "<&- >&- 2>&-"}) {
    run("save --replace --reports reports --logbook logbook " + name + " " + closed + " #");
    EXPECT_EQ(slurp(folder_ / "reports" / "14111512.tlx"), kReport) << closed;
  }
  EXPECT_EQ(slurp(folder_ / "logbook" / "immt5.log").size(), 3 * 173U);
}

TEST_F(Cli, WhatIsSavedAndCannotBeToldIsNamedAndNoMoreIsSaved) {
  const std::string name =
      file("two.obs", std::string(kObservation) + "\n" + kObservation + "GG=18\n");
  const Outcome outcome = run("save --reports reports --logbook logbook " + name + " >/dev/full");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.error,
            "kavrel-cli: " + name + ":1: saved, but standard output cannot be written\n");
  EXPECT_TRUE(fs::exists(folder_ / "reports" / "14111512.tlx"));
  EXPECT_FALSE(fs::exists(folder_ / "reports" / "14111518.tlx"));
  EXPECT_EQ(slurp(folder_ / "logbook" / "immt5.log").size(), 173U);
}

TEST_F(Cli, AScriptThatCannotBeReadIsToldWithTheReason) {
  Outcome outcome = run("session --root . reports");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.error, "session: cannot read reports: is a folder\n");
  outcome = run("session --root . none.session");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.error, "session: cannot read none.session: No such file or directory\n");
  outcome = run("session --root . <reports");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.error, "line 1: the script cannot be read\n");
  if (geteuid() != 0) {
    fs::permissions(file("secret", "start\n"), fs::perms::none);
    outcome = run("session --root . secret");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.error, "session: cannot read secret: Permission denied\n");
    fs::permissions(folder_ / "secret", fs::perms::owner_all);
  }
}

TEST_F(Cli, ReadPrintsTheFieldsAndNamesTheRest) {
  const Outcome outcome =
      run("read",
          "FROM SHIP\nBBXX LF5$ 15121 99357 11653 41/97\n62718 40132 872xx 222// 70033=\nNNNN\n");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(outcome.out,
            "# not placed: FROM SHIP (outside the report)\n"
            "YY=15\nGG=12\niw=1\nQc=1\nLoDeg=165\nLaDeg=35\nLaMin=42\nLoMin=18\nh=/\nVV=97\n"
            "iR=4\niX=1\nN=6\ndd=27\nff=18\nPPPP=0132\nDs=/\nVs=/\nCallSign=LF5$\n"
            "# not placed: 872xx (not a group of five figures)\n"
            "# not placed: 70033 (a group without a field)\n");
}

TEST_F(Cli, EachReportReadHasTheDewPointMethodOfItsOwnGroups) {
  const std::string wet = "BBXX A 15124 99357 11653 41497 62718 84531 22213 80130 .....";
  const std::string dry = "BBXX B 15124 99357 11653 41497 62718 84531 22213 .....";
  const Outcome read = run("read", dry + "\n" + wet + "\n" + wet + "\n" + dry + "\n" + dry);
  ASSERT_EQ(read.status, 0) << read.error;
  std::string methods;
  std::istringstream lines(read.out);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("ship.dew_point_method=")) methods += line.back();
    if (line.starts_with("CallSign=")) methods += line.back();
  }
  EXPECT_EQ(methods, "B1AA0BB") << read.out;
  const Outcome again = run("encode", read.out);
  std::size_t asked_for = 0;
  for (auto at = again.out.find(" 80130 "); at != std::string::npos;
       at = again.out.find(" 80130 ", at + 1))
    ++asked_for;
  EXPECT_EQ(asked_for, 2U) << again.out;
  EXPECT_EQ(again.out.find("Group8SnTbTbTb"), std::string::npos) << again.out;
}

TEST_F(Cli, AByteOrderMarkInFrontOfATextIsPassedOver) {
  const std::string mark = "\xEF\xBB\xBF";
  const Outcome marked = run("encode " + file("marked.obs", mark + kObservation));
  EXPECT_EQ(marked.status, 0) << marked.error;
  EXPECT_EQ(marked.out, run("encode", kObservation).out);
  EXPECT_EQ(run("encode", mark + kObservation).out, marked.out) << "through a pipe";
  EXPECT_EQ(run("read", mark + kReport).out, run("read", kReport).out);
  EXPECT_EQ(run("encode", kObservation + mark + "VV=97\n").status, 2) << "elsewhere it is an error";
}

TEST_F(Cli, LineEndsOfOtherSystemsAndAMissingLastOneChangeNothing) {
  const std::string two = std::string(kObservation) + "\nYY=16\n";
  const Outcome expected = run("encode", two);
  ASSERT_EQ(expected.status, 0) << expected.error;
  std::string returns;
  for (const char c : two) returns += c == '\n' ? "\r\n" : std::string(1, c);
  EXPECT_EQ(run("encode", returns).out, expected.out);
  EXPECT_EQ(run("encode", two.substr(0, two.size() - 1)).out, expected.out);
}

TEST_F(Cli, ReadShowsControlCharactersByTheirNumber) {
  const Outcome outcome = run("read", "BBXX JXKV 15124 99357 11653 \x1b[2J 東");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_NE(outcome.out.find("# not placed: \\x1B[2J ("), std::string::npos) << outcome.out;
  EXPECT_NE(outcome.out.find("# not placed: 東 ("), std::string::npos) << outcome.out;
}

TEST_F(Cli, WhatWasReadEncodesToTheSameReports) {
  const Outcome first = run("encode " + std::string(KAVREL_SOURCE) + "/examples/north_pacific.obs");
  ASSERT_EQ(first.status, 0) << first.error;
  const std::string report = first.out.substr(11, first.out.find("\",\"missing") - 11);
  const Outcome read = run("read", report + "\n" + kReport);
  ASSERT_EQ(read.status, 0) << read.error;
  const Outcome again = run("encode", read.out);
  ASSERT_EQ(again.status, 0) << again.error;
  EXPECT_NE(again.out.find("{\"report\":\"" + report + "\""), std::string::npos) << again.out;
  EXPECT_NE(again.out.find("{\"report\":\"" + std::string(kReport) + "\""), std::string::npos);
}

TEST_F(Cli, AReportIsReadWholeWhateverItsShipIsCalled) {
  for (const std::string name : {"NNNN", "BBXX", "222", "ICE"}) {
    const std::string report = "BBXX " + name + " 15124 99357 11653 41/// ///// 8//// 222// .....";
    for (const std::string& text :
         {report, "BBXX " + name + "\n15124\n" + report.substr(report.find("99357")),
          "ZCZC\n" + report + "\nNNNN\n"}) {
      const Outcome outcome = run("read", text + "\n" + kReport);
      EXPECT_EQ(outcome.status, 0) << outcome.error;
      const Outcome again = run("encode", outcome.out);
      EXPECT_EQ(std::count(again.out.begin(), again.out.end(), '\n'), 2) << text << again.out;
      EXPECT_TRUE(again.out.starts_with("{\"report\":\"" + report)) << text << again.out;
    }
  }
}

TEST_F(Cli, RealReportsAreReadOneByOne) {
  const Outcome outcome = run("read " + std::string(KAVREL_TEST_DATA) + "/ship_reports.txt");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  std::size_t reports = 0;
  for (auto at = outcome.out.find("CallSign="); at != std::string::npos;
       at = outcome.out.find("CallSign=", at + 1))
    ++reports;
  EXPECT_EQ(reports, 29U);
  EXPECT_NE(outcome.out.find("# not placed: 872xx ("), std::string::npos);
  EXPECT_NE(outcome.out.find("# not placed: ICE //// ("), std::string::npos);
}

TEST_F(Cli, TextWithoutReportOrEndIsRefused) {
  Outcome outcome = run("read", "no report here\n");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.error, "kavrel-cli: standard input: holds no report (no word BBXX)\n");
  std::string endless = "BBXX JXKV 15124\n";
  while (endless.size() < 40000) endless += "40132 40132 40132\n";
  outcome = run("read", endless);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.error.find("no report is longer than"), std::string::npos) << outcome.error;
}

TEST_F(Cli, SaveWritesBothFilesAndSaysWhere) {
  const Outcome outcome = run("save --reports reports --logbook logbook/", kObservation);
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  const fs::path report = folder_ / "reports" / "14111512.tlx";
  const fs::path logbook = folder_ / "logbook" / "immt5.log";
  EXPECT_EQ(outcome.out, "report " + report.string() + "\nlogbook " + logbook.string() + "\n");
  EXPECT_EQ(slurp(report), kReport);
  const std::string line = slurp(logbook);
  EXPECT_EQ(line.size(), 173U);
  EXPECT_EQ(line.back(), '\n');
  EXPECT_TRUE(line.starts_with("32014111512135716530")) << line;
  EXPECT_EQ(saved().size(), 2U);
}

TEST_F(Cli, ExistingReportIsReplacedOnlyWhenAskedAndTheLogbookGrows) {
  const std::string save = "save --reports reports --logbook logbook ";
  ASSERT_EQ(run(save, kObservation).status, 0);
  const std::string line = slurp(folder_ / "logbook" / "immt5.log");
  const Outcome refused = run(save, std::string(kObservation) + "VV=97\n");
  EXPECT_EQ(refused.status, 2);
  EXPECT_NE(refused.error.find("14111512.tlx exists"), std::string::npos) << refused.error;
  EXPECT_EQ(slurp(folder_ / "reports" / "14111512.tlx"), kReport);
  EXPECT_EQ(slurp(folder_ / "logbook" / "immt5.log"), line);
  EXPECT_EQ(run(save + "--replace", kObservation).status, 0);
  EXPECT_EQ(slurp(folder_ / "logbook" / "immt5.log"), line + line);
}

TEST_F(Cli, TwoObservationsOfOneHourInAFileNeedLeaveToReplace) {
  const std::string name = file("twice.obs", std::string(kObservation) + "\n" + kObservation);
  const std::string save = "save --reports reports --logbook logbook ";
  const Outcome refused = run(save + name);
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.error,
            "kavrel-cli: " + name +
                ":13: the observation of line 1 has the same report; --replace would "
                "replace it\n");
  EXPECT_EQ(refused.out, "");
  EXPECT_TRUE(saved().empty());
  EXPECT_EQ(run(save + "--replace " + name).status, 0);
  EXPECT_EQ(slurp(folder_ / "logbook" / "immt5.log").size(), 2 * 173U);
}

TEST_F(Cli, ReportsAndLogbookMayShareAFolderWithABlankInItsName) {
  fs::create_directory(folder_ / "sea reports");
  const Outcome outcome = run("save --reports 'sea reports' --logbook 'sea reports'", kObservation);
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(slurp(folder_ / "sea reports" / "14111512.tlx"), kReport);
  EXPECT_EQ(slurp(folder_ / "sea reports" / "immt5.log").size(), 173U);
}

// Figures too many or too few would give two hours one name, or one hour two.
TEST_F(Cli, SaveTakesDatesOfFourTwoTwoAndTwoFiguresAndEncodeAnyOther) {
  struct Row {
    const char *line, *allowed;
  };
  for (const Row& row :
       {Row{"Month=011", "Month is 2 figures, 01 to 12"},
        Row{"Month=1", "Month is 2 figures, 01 to 12"},
        Row{"Year=14", "Year is 4 figures, 0000 to 9999"},
        Row{"Year=", "Year is 4 figures, 0000 to 9999"}, Row{"YY=5", "YY is 2 figures, 01 to 30"},
        Row{"YY=31", "YY is 2 figures, 01 to 30"}, Row{"GG=6", "GG is 2 figures, 00 to 23"},
        Row{"GG=24", "GG is 2 figures, 00 to 23"}, Row{"GG=//", "GG is 2 figures, 00 to 23"}}) {
    const std::string name =
        file("date.obs", std::string(kObservation) + "\n" + kObservation + row.line + "\n");
    const Outcome outcome = run("save --replace --reports reports --logbook logbook " + name);
    EXPECT_EQ(outcome.status, 2) << row.line;
    EXPECT_EQ(outcome.error,
              "kavrel-cli: " + name +
                  ":13: Year, Month, YY and GG are no date and hour: " + row.allowed + "\n");
    EXPECT_EQ(outcome.out, "") << row.line;
    EXPECT_TRUE(saved().empty()) << row.line;
    EXPECT_EQ(run("encode " + name).status, 0) << row.line;
  }
}

TEST_F(Cli, SavingNothingIsAnError) {
  for (const char* text : {"", "\n\n", "# nothing\n", "ship.call_sign=JXKV\n"}) {
    const std::string save = "save --reports reports --logbook logbook ";
    const Outcome piped = run(save, text);
    EXPECT_EQ(piped.status, 2) << text;
    EXPECT_EQ(piped.error, "kavrel-cli: standard input: holds no observation\n") << text;
    const std::string name = file("none.obs", text);
    EXPECT_EQ(run(save + name).error, "kavrel-cli: " + name + ": holds no observation\n");
    EXPECT_TRUE(saved().empty());
  }
}

TEST_F(Cli, SaveRefusesWithoutADateAndWithoutAFolder) {
  Outcome outcome = run("save --reports reports --logbook logbook", "YY=15\nGG=12\n");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.error,
            "kavrel-cli: standard input:1: Year, Month, YY and GG are no date and hour: "
            "Year is 4 figures, 0000 to 9999\n");
  outcome = run("save --reports reports --logbook none", kObservation);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.error, "kavrel-cli: none is no folder\n");
  EXPECT_TRUE(saved().empty());
}

TEST_F(Cli, AFailedSaveLeavesBothFilesAsTheyWere) {
  fs::create_directory(folder_ / "logbook" / "immt5.log");  // nobody can append to a folder
  const Outcome outcome = run("save --reports reports --logbook logbook", kObservation);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.error.find("immt5.log cannot be written: "), std::string::npos)
      << outcome.error;
  EXPECT_EQ(saved(), std::vector<std::string>{"immt5.log"});
}

// ---- What a save leaves and finds

TEST_F(Cli, SaveLeavesNothingBesideItsFilesAndClearsWhatDeadProcessesLeft) {
  const std::string name = file("a.obs", kObservation);
  ASSERT_EQ(run("save --reports reports --logbook logbook " + name).status, 0);
  const std::string report = slurp(folder_ / "reports/14111512.tlx");
  const std::string line = slurp(folder_ / "logbook/immt5.log");
  EXPECT_EQ(saved().size(), 2U) << "and nothing beside them";
  // A staged file of a process that is no more is cleared by the next save.
  file("reports/.kavrel-999999999-0.part", "x");
  file("logbook/.kavrel-999999999-1.part", "x");
  const Outcome again = run("save --reports reports --logbook logbook --replace " + name);
  EXPECT_EQ(again.status, 0) << again.error;
  EXPECT_EQ(again.error, "");
  EXPECT_EQ(slurp(folder_ / "logbook/immt5.log"), line + line);
  EXPECT_EQ(saved().size(), 2U);
}

TEST_F(Cli, SavePutsADamagedNoteAsideAndSaysSo) {
  const std::string name = file("a.obs", kObservation);
  file("logbook/.kavrel-save", "damaged");
  const Outcome outcome = run("save --reports reports --logbook logbook " + name);
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(outcome.error,
            "kavrel-cli: what was noted about an interrupted save is damaged and has been put "
            "aside as " +
                (folder_ / "logbook/.kavrel-save-damaged").string() + "\n");
  EXPECT_EQ(slurp(folder_ / "logbook/.kavrel-save-damaged"), "damaged");
  EXPECT_EQ(run("save --reports reports --logbook logbook --replace " + name).error, "")
      << "told once";
}

TEST_F(Cli, SaveSaysThatAFolderWithABackslashInItsPathCannotBeUsed) {
  fs::create_directories(folder_ / "a\\b" / "c");
  const std::string name = file("a.obs", kObservation);
  for (const char* const given : {"'a\\b'", "'a\\b/c'"}) {
    const Outcome outcome =
        run(std::string("save --reports ") + given + " --logbook logbook " + name);
    EXPECT_EQ(outcome.status, 2);
    const std::string bare(given + 1, std::string_view(given).size() - 2);
    EXPECT_EQ(outcome.error,
              "kavrel-cli: " + bare + " cannot be used: a \"\\\" stands in its path\n");
  }
  EXPECT_TRUE(saved().empty());
}

/// What a program with its C: in "root" left of a save of reports in C:\out.
void interrupt(const fs::path& folder) {
  const std::string staged = ".kavrel-999999999-0.part";
  const std::string content = "BBXX INTERRUPTED";
  observation::Journal journal;
  journal.folder = "C:\\out\\";
  journal.report = "14111506.tlx";
  journal.staged = staged;
  journal.log_existed = false;
  journal.appended = "LINE\n";
  journal.content = observation::mark_of(content);
  fs::create_directories(folder / "root/out");
  for (const auto& [name, text] : {std::pair("root/out/" + staged, content),
                                   {"logbook/immt5.log", journal.appended},
                                   {"logbook/.kavrel-save", observation::write_journal(journal)}})
    std::ofstream(folder / name, std::ios::binary) << text;
}

TEST_F(Cli, SaveFinishesWhatTheProgramOfThatRootLeft) {
  interrupt(folder_);
  const std::string name = file("a.obs", kObservation);
  const Outcome outcome = run("save --root root --reports reports --logbook logbook " + name);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.error.find("14111506.tlx: its interrupted save has been finished"),
            std::string::npos)
      << outcome.error;
  EXPECT_EQ(slurp(folder_ / "root/out/14111506.tlx"), "BBXX INTERRUPTED");
  EXPECT_TRUE(slurp(folder_ / "logbook/immt5.log").starts_with("LINE\n3"));
  EXPECT_FALSE(fs::exists(folder_ / "logbook/.kavrel-save"));
}

TEST_F(Cli, SaveFinishesWhatWasLeftInItsOwnFolderWhateverThatWasCalled) {
  interrupt(folder_);
  const Outcome outcome =
      run("save --reports root/out --logbook logbook " + file("a.obs", kObservation));
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(slurp(folder_ / "root/out/14111506.tlx"), "BBXX INTERRUPTED");
}

TEST_F(Cli, SaveLeavesWhatItCannotReachToTheProgram) {
  interrupt(folder_);
  const std::string note = slurp(folder_ / "logbook/.kavrel-save");
  const Outcome outcome =
      run("save --root none --reports reports --logbook logbook " + file("a.obs", kObservation));
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_NE(outcome.error.find("the save of 14111506.tlx was interrupted and its folder cannot be "
                               "reached: C:\\out\\: no such drive or no medium in it; line 1 of " +
                               (folder_ / "logbook/immt5.log").string()),
            std::string::npos)
      << outcome.error;
  EXPECT_EQ(slurp(folder_ / "logbook/.kavrel-save"), note);
  EXPECT_EQ(slurp(folder_ / "logbook/immt5.log"), "LINE\n");
  EXPECT_TRUE(fs::is_empty(folder_ / "reports"));
}

TEST_F(Cli, SaveTellsADamagedLastLine) {
  const std::string name = file("a.obs", kObservation);
  file("logbook/immt5.log", "whole\nhal");
  const Outcome outcome = run("save --reports reports --logbook logbook " + name);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.error, "kavrel-cli: " + (folder_ / "logbook/immt5.log").string() +
                               ": line 2 had no end and is damaged; it has been closed\n");
  EXPECT_TRUE(slurp(folder_ / "logbook/immt5.log").starts_with("whole\nhal\n3"));
}

TEST_F(Cli, SaveNeverWaitsForAPipeAndNamesIt) {
  const std::string name = file("a.obs", kObservation);
  for (const char* pipe : {"reports/14111512.tlx", "logbook/immt5.log"}) {
    ASSERT_EQ(::mkfifo((folder_ / pipe).c_str(), 0600), 0);
    const Outcome outcome = run("save --reports reports --logbook logbook " + name);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_NE(outcome.error.find((folder_ / pipe).string() +
                                 " cannot be written: a folder or a device, not a file"),
              std::string::npos)
        << outcome.error;
    EXPECT_EQ(saved().size(), 1U) << "only the pipe";
    fs::remove(folder_ / pipe);
  }
}

TEST_F(Cli, SaveAboveTheLimitOfSizeIsAFullDisk) {
  const std::string name = file("a.obs", kObservation);
  const std::string command = "cd '" + folder_.string() + "' && (ulimit -f 0; exec " + KAVREL_CLI +
                              " save --reports reports --logbook logbook a.obs) 2>&1 | cat >out";
  ASSERT_EQ(std::system(command.c_str()), 0);
  EXPECT_NE(slurp(folder_ / "out").find("cannot be written: no space left"), std::string::npos)
      << slurp(folder_ / "out");
  EXPECT_TRUE(saved().empty());
}

TEST_F(Cli, SaveGivesUpAHeldLogbook) {
  const std::string name = file("a.obs", kObservation);
  file("logbook/immt5.log", "held\n");
  const int held = ::open((folder_ / "logbook/immt5.log").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(held, LOCK_EX), 0);
  const Outcome outcome = run("save --reports reports --logbook logbook " + name);
  ::close(held);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.error.find("immt5.log cannot be written: another program is using it"),
            std::string::npos)
      << outcome.error;
  EXPECT_EQ(slurp(folder_ / "logbook/immt5.log"), "held\n");
  EXPECT_EQ(saved().size(), 1U);
}

// The program of its own that makes BUFR is built only where its library is.
TEST_F(Cli, BufrNamesTheProgramThatItNeeds) {
  std::error_code error;
  fs::create_hard_link(KAVREL_CLI, folder_ / "kavrel-cli", error);
  if (error) fs::copy_file(KAVREL_CLI, folder_ / "kavrel-cli");
  const auto bufr = [&] {
    const std::string command =
        "cd '" + folder_.string() + "' && ./kavrel-cli bufr one.obs >stdout 2>stderr";
    const int raw = std::system(command.c_str());
    EXPECT_TRUE(WIFEXITED(raw));
    EXPECT_EQ(WEXITSTATUS(raw), 2);
    EXPECT_EQ(slurp(folder_ / "stdout"), "");
    return slurp(folder_ / "stderr");
  };
  EXPECT_EQ(bufr(),
            "kavrel-cli: bufr needs the program kavrel-bufr beside this one, which is not there; "
            "it is built where ecCodes is installed (libeccodes-dev)\n");
  // Text that no system takes for a program, and may not be run.
  file("kavrel-bufr", "");
  EXPECT_EQ(bufr(),
            "kavrel-cli: bufr needs the program kavrel-bufr beside this one, which cannot be "
            "started: Permission denied\n");
}

}  // namespace
