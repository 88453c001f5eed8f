#include "mainwindow/last_position.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "archive/CFindFile.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"

namespace mainwindow {
namespace {

constexpr int kHoursOfDay = 24;

}  // namespace

std::vector<SavedPosition> last_saved_positions(platform::Files& files, const std::string& folder,
                                                std::size_t count, std::string_view before) {
  if (folder.empty()) return {};
  std::vector<std::string> found;
  CFindFile(files).find(folder, observation::kReportExtension, found);
  const auto end = observation::report_hour(before);
  std::vector<std::pair<int, std::string>> dated;
  for (const std::string& path : found) {
    const auto hour = observation::report_hour(path);
    if (hour && (!end || *hour < *end)) dated.emplace_back(*hour, path);
  }
  std::sort(dated.rbegin(), dated.rend());
  std::vector<SavedPosition> positions;
  for (const auto& [hour, path] : dated) {
    if (positions.size() == count) break;
    const platform::Result<std::string> text = files.read(path, observation::kLargestReport);
    if (!text.ok()) continue;
    if (const auto position = observation::read_report_position(*text.value))
      positions.push_back({*position, hour});
  }
  return positions;
}

std::vector<TenthsPosition> track_of(const std::vector<SavedPosition>& saved,
                                     std::string_view observation) {
  // What is older belongs to another passage: a line to it would cross land.
  constexpr int kLongestAgo = 2 * kHoursOfDay;
  std::vector<TenthsPosition> track;
  if (saved.empty()) return track;
  const int now = observation::report_hour(observation).value_or(saved.front().hour);
  for (const SavedPosition& position : saved) {
    if (position.hour < now - kLongestAgo) break;
    track.push_back(position.at);
  }
  return track;
}

}  // namespace mainwindow
