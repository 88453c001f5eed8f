#include "mainwindow/save_flow.h"

#include <algorithm>
#include <utility>

#include "archive/CShowStatusDlg.h"
#include "elements/CSaveErrorInfoDlg.h"
#include "explain/doubts/doubts.h"
#include "explain/past_observations.h"
#include "media/removable_disk.h"
#include "observation/control_characters.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "observation/report_file.h"
#include "observation/values.h"
#include "text/ids.h"
#include "text/reasons.h"
#include "text/strings.h"

namespace mainwindow {
namespace {

namespace id = text::id;
using observation::SaveOutcome;

observation::Report report_of(const Saving& saving) {
  return observation::make_report(saving.record, observation::wants_wet_bulb(saving.ship));
}

// One message is one line: its own line breaks become blanks, so that neither its words nor two
// messages run together.
std::string in_one_line(std::string_view text) {
  std::string line = text::replace_all(text, "\r\n", "\n");
  line = text::replace_all(line, " \n", "\n");
  return text::replace_all(line, "\n", " ");
}

// What stands below the errors. The ship's own reports of the last days are read for it.
std::vector<SaveError> doubts_of(ui::Services& services, const Saving& saving) {
  const auto hour = observation::values_of(saving.record).hour;
  std::vector<observation::PastObservation> past;
  if (hour)
    past =
        explain::past_observations(services.files, {saving.folders.reports, saving.folders.logbook},
                                   saving.ship, saving.items, *hour - explain::kLongestPast, *hour);
  return doubts_about(saving.record, past, services.texts);
}

// Where the officer is led who chose no line: to what is missing and wrong, and to what is only
// doubted where that is all.
std::vector<SaveError> to_correct(const std::vector<SaveError>& errors) {
  const auto first_doubt = std::find_if(errors.begin(), errors.end(),
                                        [](const SaveError& error) { return error.doubt; });
  if (first_doubt == errors.begin()) return errors;
  return {errors.begin(), first_doubt};
}

// What the officer wants done about the errors; nothing to save them as they are.
std::optional<SaveEnd> ask_about(ui::Services& services, const Saving& saving,
                                 const std::vector<SaveError>& errors) {
  std::vector<std::string> lines;
  lines.reserve(errors.size());
  for (const SaveError& error : errors) lines.push_back(error.text);
  CSaveErrorInfoDlg dialog(services, std::move(lines));
  const int answer = services.windows.run_modal(dialog);
  if (answer == CSaveErrorInfoDlg::kSaveAs) return std::nullopt;
  if (answer == CSaveErrorInfoDlg::kNoSave) return SaveEnd::kNotSaved;
  if (saving.correct) {
    const int chosen = dialog.chosen();
    saving.correct(chosen < 0 ? to_correct(errors)
                              : std::vector{errors[static_cast<std::size_t>(chosen)]});
  }
  return SaveEnd::kCorrect;
}

SaveEnd end_with(ui::Services& services, text::Id message, SaveEnd end) {
  services.messages.error(message);
  return end;
}

bool may_replace(ui::Services& services) {
  return services.messages.question(id::kAskReplaceReport, ui::QuestionMode::kYesNo,
                                    services.texts.get(id::kExitQuestionTitle)) == ui::kYes;
}

observation::SaveRequest request_of(const Saving& saving, const std::string& message) {
  observation::SaveRequest request;
  request.report_path = observation::report_path(saving.folders.reports, saving.record);
  request.logbook_path = observation::logbook_path(saving.folders.logbook);
  request.message = message;
  request.logbook_line = observation::encode_logbook(saving.record, saving.ship, saving.items);
  return request;
}

// True when the officer wants the logbook to be tried again.
bool wants_retry(ui::Services& services, const std::string& logbook) {
  const text::Texts& texts = services.texts;
  ui::CMessageBox1 box(text::fill(texts.get(id::kLogbookLocked), {logbook}),
                       std::string(texts.get(id::kButtonRetry)),
                       std::string(texts.get(id::kButtonGiveUp)));
  box.box().buttons[0].name = "retry";
  box.box().buttons[1].name = "cancel";
  box.box().text_id = id::kLogbookLocked;
  return services.messages.show(box) == ui::kYes;
}

// True when the officer wants to save without waiting for the drive of an earlier report.
bool wants_to_leave(ui::Services& services, const observation::Recovery& recovery) {
  const text::Texts& texts = services.texts;
  const std::string question =
      text::fill(texts.get(id::kAskLeaveUnreachable),
                 {recovery.report, std::to_string(recovery.line), recovery.failed,
                  texts.get(text::reason_of(recovery.error))});
  return services.messages.question(question, {}, ui::QuestionMode::kYesNo,
                                    id::kAskLeaveUnreachable) == ui::kYes;
}

std::optional<observation::SaveResult> given_up(ui::Services& services) {
  services.messages.error(id::kSaveCancelled);
  return std::nullopt;
}

// Nothing once the officer has said No or Cancel, and been told of it; else how the writing went.
std::optional<observation::SaveResult> write(ui::Services& services, const Saving& saving,
                                             observation::SaveRequest request) {
  const std::uint64_t bytes = observation::room_for(request);
  bool exists = services.files.is_file(request.report_path);
  while (true) {
    // Asked before the disks: a report on a disk that is not in yet is asked about when it is.
    if (exists && !request.replace) {
      // The Yes is for the report that is there now; one that cannot be read cannot be told from
      // another.
      request.replaces = services.files.read(request.report_path).value;
      if (saving.exists) saving.exists(request.report_path);
      if (!may_replace(services)) return std::nullopt;
      request.replace = true;
    }
    for (const std::string& folder : {saving.folders.reports, saving.folders.logbook})
      if (!media::disk_is_ready(services, folder, bytes)) return given_up(services);
    const auto result = observation::save(services.files, request);
    tell_recovery(services, saving.folders, result.recovered);
    if (result.recovered.unreachable) {
      if (!wants_to_leave(services, result.recovered)) return given_up(services);
      request.leave_unreachable = true;
    } else if (result.error == platform::FileError::kLocked) {
      if (!wants_retry(services, request.logbook_path)) return given_up(services);
    } else if (result.outcome != SaveOutcome::kAlreadyExists) {
      return result;
    } else {
      exists = true;
      request.replace = false;
    }
  }
}

void tell_closed_line(ui::Services& services, std::uint64_t line, const std::string& logbook) {
  if (line == 0) return;
  services.messages.error_filled(id::kLogbookLineClosed, {std::to_string(line), logbook});
}

// What the officer must know besides whether the save went well.
void tell_remarks(ui::Services& services, const observation::SaveResult& result,
                  const std::string& logbook) {
  if (result.without_lock) services.messages.error_filled_once(id::kLogbookWithoutLock, {logbook});
  tell_closed_line(services, result.closed_line, logbook);
  if (result.outcome == SaveOutcome::kLineLeft)
    services.messages.error_filled(id::kSaveLineLeft, {logbook});
}

// The notice of old, and below it the file and the cause that it does not name.
void tell_failure(ui::Services& services, const std::string& path, platform::FileError why) {
  const text::Texts& texts = services.texts;
  services.messages.error_filled(
      id::kSaveFailed, {},
      text::fill(texts.get(id::kFileNotSaved), {path, texts.get(text::reason_of(why))}));
}

}  // namespace

bool has_date(const Struct_Weather& record) {
  return observation::report_file_name(record) != observation::kReportExtension &&
         observation::has_valid_date(record);
}

std::vector<SaveError> save_errors(const Saving& saving, const text::Texts& texts) {
  std::vector<SaveError> errors = errors_of(saving.record, saving.ship, texts);
  errors.insert(errors.end(), saving.remarks.begin(), saving.remarks.end());
  for (SaveError& error : errors) error.text = in_one_line(error.text);
  return errors;
}

SaveEnd save_observation(ui::Services& services, const Saving& saving) {
  // A damaged text must not tear the record, whatever let it in.
  if (const auto field = observation::control_character_field(saving.record, saving.ship)) {
    services.messages.error_filled(id::kControlCharacter, {*field});
    return SaveEnd::kNotSaved;
  }
  if (!has_date(saving.record)) return end_with(services, id::kNoDateEntered, SaveEnd::kNotSaved);
  std::vector<SaveError> errors = save_errors(saving, services.texts);
  for (SaveError& doubt : doubts_of(services, saving)) errors.push_back(std::move(doubt));
  if (!errors.empty()) {
    if (const auto end = ask_about(services, saving, errors)) return *end;
  }
  // Without a folder the files would go wherever the program happens to run.
  if (saving.folders.reports.empty() || saving.folders.logbook.empty())
    return end_with(services, id::kSaveFailed, SaveEnd::kNotSaved);
  const observation::SaveRequest request = request_of(saving, report_of(saving).text);
  std::optional<observation::SaveResult> result;
  {
    // Gone with its block, before the end of the save is told.
    const CShowStatusDlg notice(services, id::kNowSaving);
    result = write(services, saving, request);
  }
  if (!result) return SaveEnd::kNotSaved;
  if (result->outcome == SaveOutcome::kSaved && saving.written) saving.written();
  tell_remarks(services, *result, request.logbook_path);
  if (result->outcome == SaveOutcome::kSaved) {
    services.messages.information(id::kSaved);
    return SaveEnd::kSaved;
  }
  tell_failure(services, result->failed, result->error);
  return SaveEnd::kNotSaved;
}

bool is_saved(ui::Services& services, const Saving& saving) {
  if (!has_date(saving.record) || saving.folders.reports.empty() || saving.folders.logbook.empty())
    return false;
  return observation::is_saved(services.files, request_of(saving, report_of(saving).text));
}

void tell_recovery(ui::Services& services, const Folders& folders,
                   const observation::Recovery& recovery) {
  using observation::Recovered;
  const std::string line = std::to_string(recovery.line);
  switch (recovery.outcome) {
    case Recovered::kNothing:
      break;
    case Recovered::kFinished:
      services.messages.information_filled(id::kSaveFinished, {recovery.report, line});
      break;
    case Recovered::kTakenBack:
      services.messages.error_filled(id::kSaveTakenBack, {recovery.report});
      break;
    case Recovered::kLineLeft:
      services.messages.error_filled(id::kSaveLineWithoutReport, {recovery.report, line});
      break;
    case Recovered::kPutAside:
      services.messages.error_filled(id::kSaveNoteDamaged,
                                     {observation::damaged_journal_path(folders.logbook)});
      break;
  }
  tell_closed_line(services, recovery.closed_line, observation::logbook_path(folders.logbook));
}

std::string recover_save(ui::Services& services, const Folders& folders) {
  const auto recovery = recover_and_tell(services, folders);
  return recovery.outcome == observation::Recovered::kFinished ? recovery.report : std::string();
}

observation::Recovery recover_and_tell(ui::Services& services, const Folders& folders) {
  auto recovery = observation::recover(services.files, folders.reports, folders.logbook);
  tell_recovery(services, folders, recovery);
  if (recovery.unreachable)
    services.messages.error_filled(id::kSaveUnreachable,
                                   {recovery.report, std::to_string(recovery.line), recovery.failed,
                                    services.texts.get(text::reason_of(recovery.error))});
  else if (recovery.error != platform::FileError::kNone)
    services.messages.file_error(id::kSaveNotRecovered, recovery.failed, recovery.error);
  return recovery;
}

}  // namespace mainwindow
