#pragma once
// Opening a saved report to be corrected: from the file of the report, its name and its line in the
// logbook back to the observation.
//
//   year and month        from the file's name; day and hour too where the report lacks them
//   call sign             the ship's: it is the one that is sent
//   what the report says  as it says it
//   relative humidity, VOSClim data, whether a second swell was none
//                         from the last line of the logbook that agrees with the report
//
// Without such a line a second swell that the report does not show was none, if the ship observes
// it, and a humidity that this ship computes is that of the report's temperatures.

#include <optional>
#include <string>
#include <vector>

#include "elements/form/correction.h"
#include "mainwindow/context.h"
#include "observation/Struct_Weather.h"
#include "ui/services.h"

namespace mainwindow {

struct OpenedReport {
  Struct_Weather record;
  elements::Correction correction;
  /// What the officer is to know before he corrects, besides what is unplaced; in the language of
  /// the moment.
  std::vector<std::string> notes;
};

/// The report of the file, whatever it holds. Nothing when there is none in it or it cannot be read;
/// the officer has been told why, and the file is as it was.
[[nodiscard]] std::optional<OpenedReport> open_report(ui::Services& services,
                                                      const MainWindowContext& context,
                                                      const std::string& path);

/// A line for each part of the file that is not in the form, in the language of the moment; of very
/// many the first, and how many more.
[[nodiscard]] std::vector<std::string> unplaced_lines(const ui::Services& services,
                                                      const elements::Correction& correction);

/// Tells what is unplaced and the notes in one message, if there is anything to tell.
void tell_notes(ui::Services& services, const OpenedReport& opened);

}  // namespace mainwindow
