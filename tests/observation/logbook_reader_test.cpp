// The line of a report in the logbook is found by all that both tell, and gives back the rest.

#include "observation/logbook_reader.h"

#include <gtest/gtest.h>

#include "fakes/fake_files.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "observation/report_reader.h"
#include "records.h"

namespace {

using observation::ColumnTells;
using observation::LogbookColumn;
using observation::LogbookLines;
using records::full;
using records::ship;
using records::with;

constexpr const char* kLog = "C:\\log\\immt5.log";

std::string line_of(const Struct_Weather& record, const ShipFixedData& fixed = ship(),
                    const KeyObservationItems& items = {}) {
  return observation::encode_logbook(record, fixed, items);
}

/// What the record's report gives back, with the year and month of the file's name.
Struct_Weather reported(const Struct_Weather& record, bool wet_bulb = true) {
  auto read =
      observation::read_report(observation::make_report(record, wet_bulb).text, records::fresh());
  EXPECT_TRUE(read);
  read->record.Year = record.Year;
  read->record.Month = record.Month;
  return read->record;
}

LogbookLines lines_of(const Struct_Weather& report) {
  return {report, ship(), KeyObservationItems()};
}

TEST(LogbookColumns, SayOfEveryFieldWhetherAReportCarriesIt) {
  for (const LogbookColumn& column : observation::logbook_columns()) {
    if (column.field == nullptr) continue;
    bool carried = column.field == &Struct_Weather::Year ||
                   column.field == &Struct_Weather::Month ||
                   column.field == &Struct_Weather::CallSign;
    for (const observation::GroupRow& row : observation::group_rows())
      for (const observation::Symbol& symbol : row.used())
        carried = carried || symbol.field == column.field;
    EXPECT_EQ(column.tells, carried ? ColumnTells::kReport : ColumnTells::kMore)
        << int{column.first};
  }
}

TEST(LogbookLines, HoldTheLineOfTheirReportAndGiveBackWhatItDoesNotCarry) {
  const Struct_Weather record = full();
  Struct_Weather report = reported(record);
  ASSERT_EQ(report.LogExtra + report.VosClim1, "");
  const LogbookLines lines = lines_of(report);
  ASSERT_TRUE(lines.holds(line_of(record)));
  lines.complete(report, line_of(record));
  EXPECT_EQ(report.LogExtra, record.LogExtra);
  EXPECT_EQ(report.VosClim1 + " " + report.VosClim2 + " " + report.VosClim3 + " " +
                report.VosClim4 + " " + report.VosClim5,
            "085 012 016 07 230");
  EXPECT_EQ(line_of(report), line_of(record));
}

// One other figure anywhere that the report tells of, and the line is another report's.
TEST(LogbookLines, DoNotHoldALineWithOneOtherFigure) {
  const LogbookLines lines = lines_of(reported(full()));
  const std::string line = line_of(full());
  for (const LogbookColumn& column : observation::logbook_columns()) {
    for (std::size_t at = column.first - 1U; at < column.last; ++at) {
      std::string other = line;
      other[at] = line[at] == '9' ? '8' : '9';
      // A sign of the dew point may be that of either method, never of another temperature.
      EXPECT_EQ(lines.holds(other), column.tells != ColumnTells::kReport) << at + 1;
    }
  }
}

TEST(LogbookLines, SurviveAnyBytes) {
  Struct_Weather report = reported(full());
  const LogbookLines lines = lines_of(report);
  const std::string line = line_of(full());
  for (const std::string& other :
       {std::string(), std::string("x"), line.substr(1), line + " ", std::string(172, '\0'),
        std::string(172, '\xff'), std::string(5000, '2')})
    EXPECT_FALSE(lines.holds(other));
  // What no field can hold is left: every byte in the columns that are taken from the line.
  for (const char byte : {'\0', '\n', '\xff', '*', ' ', 'x', '-'}) {
    std::string damaged = line;
    for (const LogbookColumn& column : observation::logbook_columns())
      if (column.tells == ColumnTells::kMore) damaged[column.first] = byte;
    ASSERT_TRUE(lines.holds(damaged));
    Struct_Weather completed = report;
    lines.complete(completed, damaged);
    EXPECT_TRUE(completed == report) << static_cast<int>(byte);
  }
}

TEST(LogbookLines, TellASecondSwellThatWasNoneFromOneThatWasNotObserved) {
  struct Row {
    const char *second, *back;
  };
  for (const Row& row : {Row{"00", "00"}, {"//", "//"}, {"", "//"}}) {
    for (const char* const first : {"25", "99", "//", ""}) {
      Struct_Weather record = full();
      records::set(record,
                   {{"dw1dw1", first}, {"dw2dw2", row.second}, {"Pw2Pw2", ""}, {"Hw2Hw2", ""}});
      Struct_Weather report = reported(record);
      const LogbookLines lines = lines_of(report);
      ASSERT_TRUE(lines.holds(line_of(record))) << row.second << first;
      lines.complete(report, line_of(record));
      EXPECT_EQ(report.dw2dw2, row.back) << first;
      EXPECT_EQ(line_of(report), line_of(record)) << first;
    }
  }
  // A period without a direction is sent, and was observed beside "none".
  Struct_Weather odd = full();
  records::set(odd, {{"dw2dw2", "00"}, {"Hw2Hw2", ""}});
  Struct_Weather report = reported(odd);
  ASSERT_TRUE(lines_of(report).holds(line_of(odd)));
  lines_of(report).complete(report, line_of(odd));
  EXPECT_EQ(line_of(report), line_of(odd));
}

// Methods and items change between a save and its correction.
TEST(LogbookLines, HoldALineOfAnotherMethod) {
  const Struct_Weather record = full();
  ShipFixedData psychrometer = ship();
  psychrometer.dew_point_method = DewPointMethod::kComputed;
  KeyObservationItems recorder;
  recorder.set_observed(ObservationItem::PwHw, false);
  const LogbookLines lines = lines_of(reported(record));
  EXPECT_TRUE(lines.holds(line_of(record, psychrometer)));
  EXPECT_TRUE(lines.holds(line_of(record, ship(), recorder)));
}

// The wet bulb that a ship of the direct method has read stands in the logbook alone.
TEST(LogbookLines, GiveBackAWetBulbThatWasNotSent) {
  const Struct_Weather record = full();
  Struct_Weather report = reported(record, false);
  ASSERT_EQ(report.TbTbTb, "");
  const LogbookLines lines = lines_of(report);
  ASSERT_TRUE(lines.holds(line_of(record)));
  lines.complete(report, line_of(record));
  EXPECT_EQ(report.Sw + report.TbTbTb, "0130");
}

// ---- In the file

Struct_Weather humid(const char* figures) {
  Struct_Weather record = full();
  record.LogExtra = figures;
  return record;
}

struct Log {
  fakes::FakeFiles files;
  LogbookLines lines = lines_of(reported(full()));
  [[nodiscard]] std::string found(const std::string& content) {
    files.add_file(kLog, content);
    const auto result = observation::find_last_line(files, kLog, lines);
    EXPECT_TRUE(result.ok());
    return result.value.value_or("?");
  }
};

TEST(LastLine, IsTheLastOneThatAgreesWhateverStandsBehindIt) {
  Log log;
  const std::string first = line_of(humid("0530"));
  const std::string last = line_of(humid("0810"));
  const std::string other = line_of(with({{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}}));
  EXPECT_EQ(log.found(""), "");
  EXPECT_EQ(log.found("\n\n\r\n"), "");
  EXPECT_EQ(log.found(other + "\n"), "");
  EXPECT_EQ(log.found(first + "\n" + other + "\n" + last + "\n" + other + "\n"), last);
  EXPECT_EQ(log.found(first + "\r\n" + last), last) << "other line ends, and none";
  EXPECT_EQ(log.found(std::string(400000, 'x') + "\n" + last + "\n" + std::string(400000, '\0')),
            last);
  EXPECT_EQ(log.found("\xEF\xBB\xBF" + last + "\r\n"), last) << "saved by an editor";
  EXPECT_EQ(log.found("x" + last + "\n" + last + "x\n"), "") << "whole lines only";
}

// Wherever a piece of the file ends: the line is found.
TEST(LastLine, IsFoundAcrossTheEndOfAPiece) {
  Log log;
  const std::string line = line_of(full());
  constexpr std::size_t kPiece = 1U << 18U;
  for (const std::size_t before : {kPiece - 174, kPiece - 173, kPiece - 172, kPiece - 100,
                                   kPiece - 1, kPiece, 3 * kPiece - 5}) {
    EXPECT_EQ(log.found(std::string(before - 1, 'x') + "\n" + line + "\n"), line) << before;
    EXPECT_EQ(log.found(std::string(before - 1, 'x') + "\n" + line), line) << before;
  }
}

TEST(LastLine, IsAskedForInPiecesAndItsErrorComesBack) {
  Log log;
  log.files.add_folder("C:\\log");
  using platform::FileError;
  EXPECT_EQ(observation::find_last_line(log.files, kLog, log.lines).error, FileError::kNotFound);
  (void)log.found(std::string(600000, 'x'));
  for (const std::string& operation : log.files.log())
    EXPECT_TRUE(operation.starts_with("read_part"));
  for (int n = 1; n <= 4; ++n) {
    log.files.fail_at(n, FileError::kMediumMissing);
    EXPECT_EQ(observation::find_last_line(log.files, kLog, log.lines).error,
              FileError::kMediumMissing);
    log.files.heal();
  }
}

}  // namespace
