#include "observation/report_file.h"

#include <algorithm>

#include "text/numbers.h"
#include "text/strings.h"

namespace observation {
namespace {

constexpr std::string_view kLineEnd = "\n";

// Every fourth year has a 29 February here: reports are looked for by this calendar, and it must
// name the files as it always has.
int days_of(int year, int month) {
  switch (month) {
    case 4:
    case 6:
    case 9:
    case 11:
      return 30;
    case 2:
      return year % 4 == 0 ? 29 : 28;
    default:
      return 31;
  }
}

int days_of_calendar(int year, int month) {
  const bool common_century = year % 100 == 0 && year % 400 != 0;
  return month == 2 && common_century ? 28 : days_of(year, month);
}

std::string_view last_two(std::string_view figures) {
  return figures.size() > 2 ? figures.substr(figures.size() - 2) : figures;
}

bool ends_in_backslash(std::string_view folder) {
  return !folder.empty() && folder.back() == '\\';
}

// A folder that somebody wrote into the settings by hand may lack its backslash; the report would
// then lie beside the folder, where nobody looks for it.
std::string in_folder(const std::string& folder, std::string_view name) {
  const bool as_it_stands = folder.empty() || ends_in_backslash(folder);
  return folder + (as_it_stands ? "" : "\\") + std::string(name);
}

}  // namespace

std::string report_file_name(const Struct_Weather& record) {
  std::string name(last_two(record.Year));
  name.append(record.Month).append(record.YY).append(record.GG).append(kReportExtension);
  return name;
}

std::string earlier_report_file_name(int year, int month, int day, int hour) {
  hour -= 3;
  if (hour < 0) {
    hour += 24;
    --day;
  }
  if (day < 1) {
    --month;
    if (month < 1) {
      month = 12;
      --year;
    }
    day = days_of(year, month);
  }
  std::string name(last_two(text::format_digits(year, 2)));
  for (const int part : {month, day, hour}) name.append(text::format_int(part, 2));
  std::replace(name.begin(), name.end(), ' ', '0');
  return name.append(kReportExtension);
}

std::string earlier_report_path(const std::string& folder, const Struct_Weather& record) {
  return in_folder(folder, earlier_report_file_name(
                               text::leading_int(record.Year), text::leading_int(record.Month),
                               text::leading_int(record.YY), text::leading_int(record.GG)));
}

std::optional<ReportDate> report_date(std::string_view name) {
  constexpr std::size_t kFigures = 8;
  if (!name.ends_with(kReportExtension)) return std::nullopt;
  name.remove_suffix(kReportExtension.size());
  if (const auto at = name.find_last_of("\\/:"); at != std::string_view::npos)
    name.remove_prefix(at + 1);
  if (name.size() != kFigures || !text::is_all_digits(name)) return std::nullopt;
  return ReportDate{"20" + std::string(name.substr(0, 2)), std::string(name.substr(2, 2)),
                    std::string(name.substr(4, 2)), std::string(name.substr(6, 2))};
}

std::optional<DateFault> date_fault(const Struct_Weather& record) {
  // Year and month are sound by the time that the days of the month are asked for.
  const auto days = [&] {
    return days_of_calendar(text::leading_int(record.Year), text::leading_int(record.Month));
  };
  const auto is_wrong = [](const std::string& part, const DateFault& rule) {
    if (part.size() != rule.figures || !text::is_all_digits(part)) return true;
    const int number = text::leading_int(part);
    return number < rule.low || number > rule.high;
  };
  if (const DateFault year{"Year", 4, 0, 9999}; is_wrong(record.Year, year)) return year;
  if (const DateFault month{"Month", 2, 1, 12}; is_wrong(record.Month, month)) return month;
  if (const DateFault day{"YY", 2, 1, days()}; is_wrong(record.YY, day)) return day;
  if (const DateFault hour{"GG", 2, 0, 23}; is_wrong(record.GG, hour)) return hour;
  return std::nullopt;
}

bool has_valid_date(const Struct_Weather& record) {
  return !date_fault(record);
}

std::string report_path(const std::string& folder, const Struct_Weather& record) {
  return in_folder(folder, report_file_name(record));
}

std::string logbook_path(const std::string& folder) {
  return folder + (ends_in_backslash(folder) ? "" : "\\") + std::string(kLogbookName);
}

std::string report_file_content(std::string_view message) {
  std::string content(message);
  std::replace(content.begin(), content.end(), '&', ' ');
  return content;
}

SaveResult save(platform::Files& files, const SaveRequest& request) {
  using platform::FileError;
  if (!request.replace && files.is_file(request.report_path))
    return {SaveOutcome::kAlreadyExists, FileError::kNone};

  const auto staged = files.stage(request.report_path, report_file_content(request.message));
  if (!staged.ok()) return {SaveOutcome::kReportFailed, staged.error};

  const auto line =
      files.append(request.logbook_path, request.logbook_line + std::string(kLineEnd));
  if (!line.ok()) {
    files.discard(*staged.value);
    return {SaveOutcome::kLogbookFailed, line.error};
  }

  const FileError failed = files.commit(*staged.value);
  if (failed == FileError::kNone) return {};
  const bool taken_back = files.take_back(*line.value) == FileError::kNone;
  files.discard(*staged.value);
  return {taken_back ? SaveOutcome::kReportFailed : SaveOutcome::kLineLeft, failed};
}

}  // namespace observation
