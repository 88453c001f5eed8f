#pragma once
// What the two dialogs that print reports share: their list, and the text of a report.

#include <optional>
#include <string>
#include <vector>

#include "archive/page_view.h"
#include "archive/report_list.h"
#include "ui/services.h"

namespace archive {

/// Fills the list and the heading above it with the reports of the folder. What stands in the way
/// of a list is told in the view. `ticked` as in show_reports().
[[nodiscard]] std::vector<ListedReport> list_for_printing(ui::Services& services,
                                                          const std::string& folder,
                                                          ui::Control& heading, ui::Control& list,
                                                          PageView& pages,
                                                          std::optional<bool> ticked = {});

struct ReadReport {
  std::string content;  ///< empty for a file that cannot be read or is longer than any report
  std::string remark;   ///< its name and why, for the person; empty when it was read
};
[[nodiscard]] ReadReport read_report(const ui::Services& services, const std::string& path);

/// The name without ".tlx".
[[nodiscard]] std::string without_extension(const std::string& name);

}  // namespace archive
