#pragma once
// The two files of a save: the report in a file of its own, and one line more in the logbook.
//
// A save either happens or leaves both files as they were:
//   1. the report is staged beside its place (nothing that searches for reports sees it);
//   2. the line is appended to the logbook, in one write;
//   3. the staged report is renamed over its place;
//   4. when that fails, the line is taken back and the staged file removed.
// A program killed before step 2 leaves both files old, after step 3 both new. Between the two the
// logbook holds a whole line whose report was not replaced: each file is whole, and saving the
// observation again brings both up to date.

#include <optional>
#include <string>
#include <string_view>

#include "observation/Struct_Weather.h"
#include "platform/ports.h"

namespace observation {

inline constexpr std::string_view kReportExtension = ".tlx";
inline constexpr std::string_view kLogbookName = "immt5.log";

/// "YYMMDDHH.tlx" from the last two figures of Year and Month, YY and GG as stored; only ".tlx"
/// when none is entered.
[[nodiscard]] std::string report_file_name(const Struct_Weather& record);

/// Name of the report three hours before the given hour (UTC). Every year divisible by 4 has a 29
/// February, centuries too.
[[nodiscard]] std::string earlier_report_file_name(int year, int month, int day, int hour);
/// The same for the record's date and hour, in the folder, as report_path() puts it there.
[[nodiscard]] std::string earlier_report_path(const std::string& folder,
                                              const Struct_Weather& record);

/// What a report's file name tells of its date, which the report itself does not hold.
struct ReportDate {
  std::string year, month, day, hour;  ///< four and two figures
};
/// From a name or path ending in "YYMMDDHH.tlx" (the years 2000 to 2099), else nothing.
[[nodiscard]] std::optional<ReportDate> report_date(std::string_view name);

/// What is wrong with a record's date and hour: the first field at fault and what it may hold.
struct DateFault {
  std::string_view field;  ///< "Year", "Month", "YY" or "GG"
  std::size_t figures;     ///< how many it has, no more and no less
  int low, high;           ///< the numbers that it may be
};
/// Nothing when year, month, day and hour are set with exactly 4, 2, 2 and 2 figures, form a date
/// of the calendar and the hour is 0-23. The figures are counted because they name the report: "6"
/// and "06" would be two files of one hour, and "1" and "11" behind one another could name another.
[[nodiscard]] std::optional<DateFault> date_fault(const Struct_Weather& record);
/// True when there is no such fault.
[[nodiscard]] bool has_valid_date(const Struct_Weather& record);

/// Folder and name, with a backslash put between when there is none; without a folder the name.
[[nodiscard]] std::string report_path(const std::string& folder, const Struct_Weather& record);
/// The logbook of the folder, with a backslash put between when there is none.
[[nodiscard]] std::string logbook_path(const std::string& folder);

/// The message as it is written: every "&" a space.
[[nodiscard]] std::string report_file_content(std::string_view message);

struct SaveRequest {
  std::string report_path;
  std::string logbook_path;
  std::string message;       ///< of encode_report()
  std::string logbook_line;  ///< of encode_logbook(), without line end
  bool replace = false;      ///< an existing report may be replaced
};

enum class SaveOutcome {
  kSaved,
  kAlreadyExists,  ///< the report exists and `replace` was not set; nothing was written
  kReportFailed,   ///< the report could not be written; both files are as they were
  kLogbookFailed,  ///< the line could not be appended; both files are as they were
  kLineLeft,  ///< the report could not be written and the line not taken back: the logbook has it
};

struct SaveResult {
  SaveOutcome outcome = SaveOutcome::kSaved;
  platform::FileError error = platform::FileError::kNone;  ///< why, when it failed
};

/// Writes both files, or neither.
[[nodiscard]] SaveResult save(platform::Files& files, const SaveRequest& request);

}  // namespace observation
