#include "mainwindow/last_position.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "archive/CFindFile.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"

namespace mainwindow {
namespace {

// Sorts by date; nothing for the name of no report.
std::optional<std::string> key_of(const std::string& path) {
  const auto date = observation::report_date(path);
  if (!date) return std::nullopt;
  std::string key = date->year;
  return key.append(date->month).append(date->day).append(date->hour);
}

}  // namespace

std::vector<TenthsPosition> last_saved_positions(platform::Files& files, const std::string& folder,
                                                 std::size_t count, std::string_view before) {
  if (folder.empty()) return {};
  std::vector<std::string> found;
  CFindFile(files).find(folder, observation::kReportExtension, found);
  const auto end = key_of(std::string(before));
  std::vector<std::pair<std::string, std::string>> dated;  // date in figures, path
  for (const std::string& path : found) {
    auto key = key_of(path);
    if (key && (!end || *key < *end)) dated.emplace_back(*std::move(key), path);
  }
  std::sort(dated.rbegin(), dated.rend());
  std::vector<TenthsPosition> positions;
  for (const auto& [date, path] : dated) {
    if (positions.size() == count) break;
    const platform::Result<std::string> text = files.read(path, observation::kLargestReport);
    if (!text.ok()) continue;
    if (const auto position = observation::read_report_position(*text.value))
      positions.push_back(*position);
  }
  return positions;
}

}  // namespace mainwindow
