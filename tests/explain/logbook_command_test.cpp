// kavrel-cli logbook as a user runs it: the real program, real files.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "fakes/command_folder.h"
#include "fakes/rounds.h"
#include "fakes/sample_logbook.h"
#include "observation/logbook_encoder.h"

namespace {

namespace fs = std::filesystem;
using fakes::logbook_line;

using fakes::Outcome;

class LogbookCommand : public testing::Test {
 protected:
  fakes::CommandFolder temp_;

  Outcome shell(const std::string& command) const { return temp_.shell(command); }
};

std::size_t lines_in(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

TEST_F(LogbookCommand, PrintsEachLineAsJsonCsvOrNames) {
  temp_.write("a.log", logbook_line(14, 0) + "\r\n" + logbook_line(14, 3));
  for (const char* const input : {"a.log", "<a.log", "- <a.log"}) {
    const Outcome json = shell(std::string("$CLI logbook ") + input);
    EXPECT_EQ(json.status, 0) << json.error;
    EXPECT_EQ(lines_in(json.out), 2U);
    EXPECT_TRUE(json.out.starts_with("{\"line\":1,\"Year\":\"2014\",\"Month\":\"11\","))
        << json.out;
    EXPECT_NE(json.out.find("\n{\"line\":2,"), std::string::npos);
    EXPECT_NE(json.out.find("\"ship\":{\"temperature_unit\":\"0.1\""), std::string::npos);
  }
  const Outcome csv = shell("$CLI logbook --format csv a.log");
  EXPECT_EQ(lines_in(csv.out), 3U);
  EXPECT_TRUE(csv.out.starts_with("line,Year,Month,YY,GG,")) << csv.out;
  EXPECT_NE(csv.out.find("\n1,2014,11,14,00,"), std::string::npos) << csv.out;
  std::istringstream rows(csv.out);
  std::string heading;
  std::getline(rows, heading);
  for (std::string row; std::getline(rows, row);)
    EXPECT_EQ(std::count(row.begin(), row.end(), ','),
              std::count(heading.begin(), heading.end(), ','));
  const Outcome names = shell("$CLI logbook --format names a.log");
  EXPECT_TRUE(names.out.starts_with("# line 1\n")) << names.out;
  EXPECT_NE(names.out.find("\nTTT="), std::string::npos);
}

// What is printed as NAME=VALUE is encoded to the lines that it was read from, whichever ships they
// are of and however their methods change from line to line.
TEST_F(LogbookCommand, NamesAreEncodedToTheSameLinesAgain) {
  std::mt19937 engine(7);
  const auto below = [&](unsigned n) { return static_cast<int>(engine() % n); };
  std::string log;
  for (int i = 0; i < 400; ++i) {
    ShipFixedData ship;
    ship.call_sign = below(2) != 0 ? "JXKV" : "*******";
    ship.temperature_unit = std::array{0.1, 0.5, 1.0}.at(static_cast<std::size_t>(below(3)));
    ship.sea_temperature_method = static_cast<SeaTemperatureMethod>(below(4));
    ship.dew_point_method = static_cast<DewPointMethod>(below(2));
    ship.humidity_method = static_cast<HumidityMethod>(below(2));
    ship.humidity_unit = below(2) != 0 ? 0.1 : 1.0;
    ship.aws_fitted = below(2) != 0;
    ship.imo_number = below(2) != 0 ? "9074729" : "";
    ship.vosclim_cargo_height = below(2) != 0 ? "07" : "";
    ship.vosclim_load_line_departure = below(2) != 0 ? "-05" : "";
    KeyObservationItems items;
    if (below(3) == 0) items.not_observed.fill(true);
    Struct_Weather record(ship, items);
    for (const WeatherField& field : weather_fields()) {
      constexpr std::string_view kTwo[] = {"YY", "GG", "VV", "dd", "ff", "ww", "PwPw", "HwHw"};
      if (std::ranges::find(kTwo, field.name) != std::end(kTwo) && below(4) != 0)
        record.*field.member = std::to_string(10 + below(89));
      if ((field.name == "TTT" || field.name == "TdTdTd" || field.name == "TwTwTw") &&
          below(4) != 0)
        record.*field.member = std::to_string(100 + below(300));
    }
    record.SnTd = below(2) != 0 ? "0" : "1";
    record.Sw = below(2) != 0 ? "2" : "";
    record.Ss = std::to_string(below(8));
    record.dw2dw2 = below(2) != 0 ? "00" : "";
    record.Year = "2014";
    log += observation::encode_logbook(record, ship, items) + "\n";
  }
  temp_.write("a.log", log);
  const Outcome again = shell("$CLI logbook --format names a.log | $CLI encode");
  EXPECT_EQ(again.status, 0) << again.error;
  std::istringstream wanted(log);
  std::istringstream got(again.out);
  std::string line;
  std::string json;
  int lines = 0;
  for (; std::getline(wanted, line); ++lines) {
    ASSERT_TRUE(std::getline(got, json)) << lines;
    EXPECT_NE(json.find("\"logbook\":\"" + line + "\""), std::string::npos) << line << "\n" << json;
  }
  EXPECT_EQ(lines, 400);
}

TEST_F(LogbookCommand, NamesADamagedLineAndGoesOn) {
  std::string damaged = logbook_line(14, 3);
  damaged[30] = '\x1b';
  temp_.write("a.log", "short\n" + logbook_line(14, 0) + "\n\n" + damaged + "\n" +
                           std::string(3000, 'x') + "\n" + std::string(172, '\0') + "\n" +
                           logbook_line(14, 6) + "\n");
  const Outcome outcome = shell("$CLI logbook a.log");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(lines_in(outcome.out), 3U) << outcome.out;
  EXPECT_TRUE(outcome.error.starts_with(
      "kavrel-cli: a.log:1: damaged: a line has 172 characters, this one 5\n"
      "kavrel-cli: a.log:3: damaged: a line has 172 characters, this one 0\n"
      "kavrel-cli: a.log:4: damaged: cannot be read in columns 31-33\n"
      "kavrel-cli: a.log:5: damaged: a line has 172 characters, this one more than 1024\n"
      "kavrel-cli: a.log:6: damaged: its columns are shifted or overwritten\n"))
      << outcome.error;
  EXPECT_EQ(lines_in(outcome.error), 5U);
  EXPECT_NE(outcome.out.find("\"unread\":\"31-33\""), std::string::npos);
  EXPECT_NE(outcome.out.find("{\"line\":7,"), std::string::npos);
}

TEST_F(LogbookCommand, CheckTellsByItsStatus) {
  temp_.write("sound.log", logbook_line(14, 0) + "\n" + logbook_line(14, 3) + "\n");
  temp_.write("faulty.log",
              logbook_line(14, 0) + "\n" + logbook_line(14, 3, {{"VV", "50"}}) + "\n");
  temp_.write("empty.log", "");
  const Outcome sound = shell("$CLI logbook --check sound.log");
  EXPECT_EQ(sound.status, 0);
  EXPECT_EQ(sound.out,
            "Lines: 2 (sound: 2, with errors: 0, with doubts: 0)\n"
            "JXKV: 2, from 2014-11-14 00 UTC to 2014-11-14 03 UTC\n");
  const Outcome faulty = shell("$CLI logbook --check --language ja faulty.log");
  EXPECT_EQ(faulty.status, 1);
  EXPECT_NE(faulty.out.find("50は符号表4377にありません"), std::string::npos) << faulty.out;
  EXPECT_EQ(shell("$CLI logbook --check empty.log").status, 1) << "it may have been lost";
  EXPECT_EQ(shell("$CLI logbook --check <faulty.log").status, 1);
  EXPECT_EQ(shell("$CLI logbook --check none.log").status, 2);
  EXPECT_EQ(shell("$CLI logbook none.log").status, 2);
  EXPECT_EQ(shell("mkdir folder; $CLI logbook --check folder").status, 2);
  EXPECT_EQ(shell("$CLI logbook --check sound.log >/dev/full").status, 2);
  EXPECT_EQ(shell("$CLI logbook sound.log >/dev/full").status, 2);
}

TEST_F(LogbookCommand, CheckWritesAListForPrograms) {
  temp_.write("a.log", logbook_line(14, 0) + "\nx\n" + logbook_line(14, 3, {{"VV", "50"}}) + "\n");
  const std::string list =
      "{\"file\":\"a.log\",\"line\":2,\"first_column\":0,\"last_column\":0,\"columns\":[],"
      "\"element\":\"\","
      "\"kind\":\"length\",\"rule\":\"\",\"severity\":\"error\","
      "\"text\":\"The line has 1 character; a line of this layout has 172.\"}\n"
      "{\"file\":\"a.log\",\"line\":3,\"first_column\":22,\"last_column\":23,"
      "\"columns\":[[22,23]],\"element\":\"VV\","
      "\"kind\":\"code\",\"rule\":\"\",\"severity\":\"error\","
      "\"text\":\"50 is not in code table 4377.\"}\n";
  const Outcome json = shell("$CLI logbook --check --json a.log");
  EXPECT_EQ(json.status, 1);
  EXPECT_EQ(json.out, list);
  const Outcome both = shell("$CLI logbook --check --list found a.log");
  EXPECT_EQ(both.status, 1);
  EXPECT_TRUE(both.out.starts_with("Lines: 3 (sound: 1, ")) << both.out;
  EXPECT_EQ(temp_.content("found"), list);
  EXPECT_EQ(shell("$CLI logbook --check --list /dev/full a.log").status, 2);
  EXPECT_EQ(shell("$CLI logbook --check --list none/found a.log").status, 2);
}

TEST_F(LogbookCommand, NeverWritesItsListOverTheLogbook) {
  const std::string log = logbook_line(14, 0) + "\n";
  temp_.write("a.log", log);
  for (const char* const list : {"a.log", "./a.log", "link"}) {
    const Outcome outcome =
        shell(std::string("ln -sf a.log link; $CLI logbook --check --list ") + list + " a.log");
    EXPECT_EQ(outcome.status, 2) << list;
    EXPECT_EQ(temp_.content("a.log"), log);
  }
}

TEST_F(LogbookCommand, RefusesWordsThatItDoesNotKnow) {
  for (const char* const words :
       {"--format", "--format xml a", "--what a", "a b", "--check --format csv a", "--json a",
        "--list x a", "--language ja a", "--check --language de a", "--check --json --list x a",
        "--check --list"}) {
    const Outcome outcome = shell(std::string("$CLI logbook ") + words);
    EXPECT_EQ(outcome.status, 2) << words;
    EXPECT_NE(outcome.error.find("usage: kavrel-cli logbook"), std::string::npos) << words;
    EXPECT_EQ(outcome.out, "") << words;
  }
}

// Through a pipe, in an address space of 18 megabytes, of which the program itself takes twelve: two
// thousand lines of changing hours and ships, and as many characters as 70,000 lines have in such
// as are longer than any of the layout, which are quick to read.
TEST_F(LogbookCommand, DoesNotHoldTheLinesOfALongLogInMemory) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the sanitizer takes an address space of its own";
#endif
  temp_.write("line", logbook_line(14, 0, {{"TTT", "1/2"}}));
  const std::string make =
      "awk 'BEGIN { getline line <\"line\"; for (i = 0; i < 2000; ++i) {"
      " printf \"%s%04d%02d%02d%02d%s%06d%s\\n\", substr(line, 1, 1), 2000 + i % 90,"
      " 1 + i % 12, 1 + i % 28, i % 24, substr(line, 12, 60), i, substr(line, 78)"
      " } x = sprintf(\"%1000s\", \"\"); for (i = 0; i < 12000; ++i) print x; print line }'";
  const Outcome check = shell(make + " | (ulimit -v 18000; $CLI logbook --check)");
  EXPECT_EQ(check.status, 1) << check.error;
  EXPECT_TRUE(check.out.starts_with("Lines: 14001 (sound: 0, with errors: 14001, "))
      << check.out.substr(0, 1000);
  const Outcome read = shell(make +
                             " | (ulimit -v 18000; $CLI logbook --format csv 2>/dev/null)"
                             " | tail -n 1 | cut -c 1-17");
  EXPECT_EQ(read.out, "14001,2014,11,14,\n") << read.error;
}

// A fleet's logs under GNU parallel: one status and one list for all, whichever ends first.
TEST_F(LogbookCommand, ChecksAThousandLogsInParallel) {
  if (std::system("command -v parallel >/dev/null 2>&1") != 0)
    GTEST_SKIP() << "GNU parallel is not installed";
  const int kLogs = fakes::rounds(1000);
  fs::create_directory(temp_ / "fleet");
  for (int ship = 0; ship < kLogs; ++ship) {
    std::string log;
    for (int hour = 0; hour < 12; hour += 3) {
      // Of every tenth ship one line has a slip.
      std::string line = ship % 10 == 0 && hour == 6 ? logbook_line(14, hour, {{"VV", "50"}})
                                                     : logbook_line(14, hour);
      log += line.replace(71, 7, "S" + std::to_string(100000 + ship)) + "\n";
    }
    temp_.write("fleet/ship" + std::to_string(ship) + ".log", log);
  }
  const Outcome outcome = shell(
      "find fleet -name '*.log' | parallel -j2 --will-cite '$CLI logbook --check --json {}' "
      "| sort >found.jsonl; $CLI logbook --check fleet/ship1.log");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  const std::string found = temp_.content("found.jsonl");
  EXPECT_EQ(lines_in(found), static_cast<std::size_t>(kLogs / 10));
  EXPECT_EQ(found.find("ship1.log"), std::string::npos);
  EXPECT_NE(found.find("{\"file\":\"fleet/ship90.log\",\"line\":3,"), std::string::npos);
}

}  // namespace
