#pragma once
// Saving an observation: the report in a file of its own and one line more in the logbook.
//
// In this order: control characters, the date, the lack of groups, the rules that are broken and
// what is to be doubted, also beside the ship's last reports (CSaveErrorInfoDlg), the notice "Now saving", the question about an existing report, a removable
// drive's disk and room, both files, the result. Whatever is answered and whatever fails, both
// files are as they were or both are written, and nothing of the observation is changed.

#include <functional>
#include <string>
#include <vector>

#include "mainwindow/context.h"
#include "mainwindow/save_errors.h"
#include "observation/Struct_Weather.h"
#include "observation/report_file.h"
#include "ui/services.h"

namespace mainwindow {

/// How a save ended. Only kSaved wrote anything (but see observation::SaveOutcome::kLineLeft).
enum class SaveEnd {
  kSaved,
  kNotSaved,  ///< refused, given up or failed; the officer has been told
  kCorrect,   ///< the officer chose to go back and correct
};

/// What a save looks at. The remarks are listed with what is missing and wrong: entries that were
/// refused and still stand in their fields, doubts about computed values; the record does not hold
/// them.
struct Saving {
  const Struct_Weather& record;
  const ShipFixedData& ship;
  const KeyObservationItems& items;
  const Folders& folders;
  std::vector<SaveError> remarks;
  /// Called once both files are written, before the officer is told: a program that is killed while
  /// the message is open has saved all the same.
  std::function<void()> written = {};
  /// Called when the officer goes back to correct, with the line that he chose, or with all of them;
  /// then without the doubts, where there is more than doubts.
  std::function<void(const std::vector<SaveError>& errors)> correct = {};
  /// Called before the question about a report that is there already, which does not name it.
  std::function<void(const std::string& report)> exists = {};
};

/// The observation has a date and an hour that there are: without them nothing is saved.
[[nodiscard]] bool has_date(const Struct_Weather& record);

/// What is missing and wrong, each text in one line, in the language of the moment; empty when the
/// observation is complete and sound. Without what is only to be doubted.
[[nodiscard]] std::vector<SaveError> save_errors(const Saving& saving, const text::Texts& texts);

/// Runs the whole save with its messages and questions.
SaveEnd save_observation(ui::Services& services, const Saving& saving);

/// True when the report and the logbook hold already what a save would write now.
[[nodiscard]] bool is_saved(ui::Services& services, const Saving& saving);

/// Tells the officer what became of a save that had been interrupted, if there was one.
void tell_recovery(ui::Services& services, const Folders& folders,
                   const observation::Recovery& recovery);

/// For a start, once the folders are known: finishes or takes back an interrupted save and tells
/// it, or why it can be neither now. The name of the report whose saving was finished, empty when
/// none was.
std::string recover_save(ui::Services& services, const Folders& folders);
/// The same for whoever goes on to use the two files.
observation::Recovery recover_and_tell(ui::Services& services, const Folders& folders);

}  // namespace mainwindow
