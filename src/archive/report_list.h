#pragma once
// The reports of a folder, as every list of reports shows them.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "observation/report_file.h"
#include "platform/ports.h"
#include "text/texts.h"
#include "ui/control.h"

namespace archive {

struct ListedReport {
  std::string path;
  std::string name;                             ///< with its extension, without the folder
  std::optional<observation::ReportDate> date;  ///< of the observation, from the name
  /// What the text says; nothing for a file that cannot be read, is no report, or is longer than
  /// any.
  std::optional<TenthsPosition> position;
  std::optional<platform::DateTime> modified;  ///< local time
};

struct ReportList {
  std::vector<ListedReport> reports;
  /// Why the folder could not be read; then there are no reports.
  platform::FileError error = platform::FileError::kNone;
};

/// The files of the folder whose names end in ".tlx", the newest observation first; those whose
/// name tells no date stand behind the others, the one that was written last first. An empty folder
/// name is no error and gives none.
[[nodiscard]] ReportList list_reports(platform::Files& files, const std::string& folder);

enum class ReportNames { kWhole, kWithoutExtension };

/// Fills a list with a line for each report, in columns: name, date and hour of the observation,
/// position, time of the file; and the label above it with their heading, in the language of the
/// moment. What is not known is left blank. Both take a font of fixed pitch; nothing is selected.
/// With `ticked` each line has a box, and all are ticked or none is.
void show_reports(ui::Control& heading, ui::Control& list, std::span<const ListedReport> reports,
                  ReportNames names, const text::Texts& texts, std::optional<bool> ticked = {});

/// "2014/11/15  09:05": year, month and day, two blanks, hour and minute.
[[nodiscard]] std::string file_time(const platform::DateTime& time);

}  // namespace archive
