#include "archive/report_list.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <utility>

#include "archive/CFindFile.h"
#include "codetables/tables/quadrant.h"
#include "observation/report_reader.h"
#include "platform/paths.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "ui/printer.h"

namespace archive {
namespace {

namespace id = text::id;
using observation::ReportDate;

constexpr std::size_t kFewestOfName = 12;  // "14111512.tlx"
constexpr std::size_t kMostOfName = 28;    // a longer name moves its own line only
constexpr std::size_t kDate = 13;          // "2014/11/15 12"
constexpr std::size_t kPosition = 13;      // "35.7N  165.3E"
constexpr std::size_t kRoomOfBox = 3;
constexpr std::string_view kGap = "   ";

std::string shown_name(const ListedReport& report, ReportNames names) {
  std::string name = report.name;
  if (names == ReportNames::kWithoutExtension)
    name.erase(name.size() - observation::kReportExtension.size());
  return name;
}

std::string shown_date(const ReportDate& date) {
  std::string text = date.year;
  for (const auto& [gap, part] :
       {std::pair<char, const std::string&>{'/', date.month}, {'/', date.day}, {' ', date.hour}}) {
    text.push_back(gap);
    text.append(part);
  }
  return text;
}

std::string degrees(int tenths, char positive, char negative, int width) {
  std::string text = text::format_fixed(std::abs(tenths) / 10.0, 1, width);
  text.push_back(tenths < 0 ? negative : positive);
  return text;
}

std::string shown_position(const TenthsPosition& at) {
  std::string text = degrees(codetables::signed_latitude(at), 'N', 'S', 4);
  text.append("  ").append(degrees(codetables::signed_longitude(at), 'E', 'W', 5));
  return text;
}

void pad(std::string& text, std::size_t columns) {
  const std::size_t has = ui::columns_of(text);
  if (has < columns) text.append(columns - has, ' ');
}

// Name, date, position, time of the file.
struct Columns {
  std::size_t name, date, position;
};

Columns columns_for(std::span<const ListedReport> reports, ReportNames names) {
  std::size_t widest = kFewestOfName;
  for (const ListedReport& report : reports)
    widest = std::max(widest, ui::columns_of(shown_name(report, names)));
  return {std::min(widest, kMostOfName), kDate, kPosition};
}

std::string line_of(const Columns& columns, std::string name, std::string date,
                    std::string position, std::string_view time) {
  pad(name, columns.name);
  pad(date, columns.date);
  pad(position, columns.position);
  std::string line = std::move(name);
  for (const std::string_view part : {std::string_view(date), std::string_view(position), time})
    line.append(kGap).append(part);
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

auto written(const ListedReport& report) {
  const platform::DateTime at = report.modified.value_or(platform::DateTime());
  return std::tuple(at.year, at.month, at.day, at.hour, at.minute, at.second);
}

// Dated ones by their date, the others behind them by the time of the file; equal ones by name.
bool is_newer(const ListedReport& a, const ListedReport& b) {
  if (a.date && b.date) return a.name > b.name;
  if (a.date.has_value() != b.date.has_value()) return a.date.has_value();
  return std::pair(written(b), a.name) < std::pair(written(a), b.name);
}

}  // namespace

ReportList list_reports(platform::Files& files, const std::string& folder) {
  ReportList list;
  if (folder.empty()) return list;
  std::vector<std::string> found;
  list.error = CFindFile(files).find(folder, observation::kReportExtension, found);
  for (std::string& path : found) {
    // The finder also knows names that only hold the extension: "x.tlx.bak".
    if (!path.ends_with(observation::kReportExtension)) continue;
    ListedReport report;
    report.name = platform::name_part(path);
    report.date = observation::report_date(path);
    report.modified = files.modified(path);
    const auto text = files.read(path, observation::kLargestReport);
    if (text.ok()) report.position = observation::read_report_position(*text.value);
    report.path = std::move(path);
    list.reports.push_back(std::move(report));
  }
  std::sort(list.reports.begin(), list.reports.end(), is_newer);
  return list;
}

void show_reports(ui::Control& heading, ui::Control& list, std::span<const ListedReport> reports,
                  ReportNames names, const text::Texts& texts, std::optional<bool> ticked) {
  const Columns columns = columns_for(reports, names);
  const auto word = [&](text::Id which) { return std::string(texts.get(which)); };
  heading.font = ui::kFixedPitch;
  heading.literal_caption = line_of(columns, word(id::kReportListName), word(id::kReportListDate),
                                    word(id::kReportListPosition), texts.get(id::kReportListTime));
  // The boxes take up the room of some characters in front of each line.
  if (ticked) heading.literal_caption.insert(0, kRoomOfBox, ' ');
  list.font = ui::kFixedPitch;
  list.selected = -1;
  list.items.clear();
  for (const ListedReport& report : reports) {
    list.items.push_back(line_of(columns, shown_name(report, names),
                                 report.date ? shown_date(*report.date) : std::string(),
                                 report.position ? shown_position(*report.position) : std::string(),
                                 report.modified ? file_time(*report.modified) : std::string()));
  }
  list.item_ticked.clear();
  if (ticked) list.item_ticked.assign(reports.size(), *ticked);
}

std::string file_time(const platform::DateTime& time) {
  std::string text = text::format_int(time.year);
  text.append("/").append(text::format_int(time.month, 2, '0'));
  text.append("/").append(text::format_int(time.day, 2, '0'));
  text.append("  ").append(text::format_int(time.hour, 2, '0'));
  text.append(":").append(text::format_int(time.minute, 2, '0'));
  return text;
}

}  // namespace archive
