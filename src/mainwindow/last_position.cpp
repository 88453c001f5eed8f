#include "mainwindow/last_position.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "archive/CFindFile.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"

namespace mainwindow {
std::optional<TenthsPosition> last_saved_position(platform::Files& files,
                                                  const std::string& folder) {
  if (folder.empty()) return std::nullopt;
  std::vector<std::string> found;
  CFindFile(files).find(folder, observation::kReportExtension, found);
  std::vector<std::pair<std::string, std::string>> dated;  // date in figures, path
  for (const std::string& path : found) {
    if (const auto date = observation::report_date(path))
      dated.emplace_back(date->year + date->month + date->day + date->hour, path);
  }
  // The newest first: where it tells no position, the one before it is asked.
  std::sort(dated.rbegin(), dated.rend());
  for (const auto& [date, path] : dated) {
    const platform::Result<std::string> text = files.read(path, observation::kLargestReport);
    if (!text.ok()) continue;
    if (const auto position = observation::read_report_position(*text.value)) return position;
  }
  return std::nullopt;
}

}  // namespace mainwindow
