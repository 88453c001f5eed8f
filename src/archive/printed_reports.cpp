#include "archive/printed_reports.h"

#include <utility>

#include "archive/print_service.h"
#include "platform/paths.h"
#include "text/ids.h"

namespace id = text::id;
using platform::FileError;

namespace archive {

std::vector<ListedReport> list_for_printing(ui::Services& services, const std::string& folder,
                                            ui::Control& heading, ui::Control& list,
                                            PageView& pages, std::optional<bool> ticked) {
  ReportList found = list_reports(services.files, folder);
  show_reports(heading, list, found.reports, ReportNames::kWhole, services.texts, ticked);
  if (folder.empty()) pages.tell(std::string(services.texts.get(id::kNoReportFolder)));
  if (found.error != FileError::kNone) pages.tell(unreadable(services.texts, folder, found.error));
  return std::move(found.reports);
}

ReadReport read_report(const ui::Services& services, const std::string& path) {
  platform::Result<std::string> read = services.files.read(path, observation::kLargestReport);
  if (read.ok()) return {std::move(*read.value), {}};
  const std::string_view name = platform::name_part(path);
  if (services.files.look(path).size > observation::kLargestReport)
    return {{}, text::fill(services.texts.get(id::kReportTooLong), {name})};
  return {{}, unreadable(services.texts, name, read.error)};
}

std::string without_extension(const std::string& name) {
  return name.substr(0, name.size() - observation::kReportExtension.size());
}

}  // namespace archive
