#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "archive/CShowStatusDlg.h"
#include "archive/CTlxSelectDlg.h"
#include "archive/report_list.h"
#include "mainwindow/copy_flow.h"
#include "mainwindow/copy_folder.h"
#include "mainwindow/copy_messages.h"
#include "mainwindow/save_flow.h"
#include "media/removable_disk.h"
#include "media/verified_copy.h"
#include "observation/report_file.h"
#include "platform/paths.h"
#include "text/ids.h"

namespace mainwindow {
namespace {

namespace id = text::id;
using media::CopyOutcome;
using media::CopyResult;
using platform::FileError;
using platform::There;

struct Report {
  std::string name;
  std::string from;
  std::string to;
  media::Place allowed = {};  ///< what the officer has allowed to be replaced
};

/// What becomes of the reports that exist at the destination.
enum class Existing { kAsk, kOverwrite, kKeep };

enum class Step {
  kCopied,
  kNext,  ///< not copied; the others follow
  kEnd,   ///< the officer has ended the command
};

class CopyReports {
 public:
  CopyReports(ui::Services& services, const MainWindowContext& context)
      : services_(services), context_(context), messages_(services) {}

  void run() {
    if (!choose_reports() || !choose_folder()) return;
    if (is_source()) {
      services_.messages.error(id::kChooseAnotherFolder);
      return;
    }
    if (!copy_all()) {
      // Of a single report its own message has said it.
      if (reports_.size() > 1)
        services_.messages.error_filled(
            id::kCopyEnded, {std::to_string(copied_.size()), std::to_string(reports_.size())});
      return;
    }
    if (!are_many()) return;
    const std::string copied = std::to_string(copied_.size());
    const std::string chosen = std::to_string(reports_.size());
    if (copied_.empty()) {
      services_.messages.error_filled(id::kCopyEnded, {copied, chosen});
      return;
    }
    services_.messages.information_filled(id::kReportsCopied, {copied, chosen});
    remove_many();
  }

 private:
  [[nodiscard]] bool are_many() const { return reports_.size() > kFewReports; }

  // ---- What, and where to

  bool choose_reports() {
    const Folders& folders = context_.folders;
    // Told by the folder that cannot be read then.
    (void)media::disk_is_ready(services_, folders.reports, 0);
    (void)recover_and_tell(services_, folders);
    archive::ReportList list = archive::list_reports(services_.files, folders.reports);
    const bool is_gone = list.error == FileError::kNotFound;
    if (list.error != FileError::kNone && !is_gone) {
      services_.messages.file_error(id::kFolderNotReadable, folders.reports, list.error);
      return false;
    }
    if (list.reports.empty()) {
      services_.messages.error(id::kNoReports);
      return false;
    }
    CTlxSelectDlg dialog(services_, std::move(list.reports));
    if (services_.windows.run_modal(dialog) != ui::kOk) return false;
    for (const archive::ListedReport& report : dialog.chosen_reports())
      reports_.push_back({report.name, report.path, {}});
    return true;
  }

  bool choose_folder() {
    const auto folder = choose_copy_folder(services_, context_, Copied::kReports);
    if (!folder) return false;
    for (Report& report : reports_) report.to = platform::join(*folder, report.name);
    return true;
  }

  /// Before the first is copied: a folder where one of them is the very file is the wrong one.
  [[nodiscard]] bool is_source() const {
    return std::any_of(reports_.begin(), reports_.end(), [&](const Report& report) {
      return services_.files.same(report.from, report.to);
    });
  }

  // ---- Copying

  /// False when the officer has ended it.
  bool copy_all() {
    platform::clear_staged(services_.files, context_.folders.report_copies);
    if (are_many() && !ask_about_existing()) return false;
    std::optional<CShowStatusDlg> notice;
    if (are_many()) notice.emplace(services_, id::kNowCopying);
    for (std::size_t i = 0; i < reports_.size(); ++i) {
      const std::size_t left = reports_.size() - i - 1;
      const Step step = copy_one(reports_[i], left);
      if (step == Step::kEnd) return false;
      if (step != Step::kCopied) continue;
      copied_.push_back(&reports_[i]);
      if (are_many()) continue;
      services_.messages.information_filled(id::kReportCopied, {reports_[i].name});
      const int answer = ask(id::kAskDeleteReport, reports_[i], left);
      if (answer == ui::kOk) (void)remove(reports_[i]);
      if (answer == ui::kCancel) return false;
    }
    return true;
  }

  /// One question for all that exist. False when there is no disk.
  bool ask_about_existing() {
    if (!media::disk_is_ready(services_, context_.folders.report_copies, 0)) return false;
    std::size_t existing = 0;
    for (Report& report : reports_) {
      // One that cannot be read is told when its turn comes.
      const auto place = media::look_at_place(services_.files, report.to);
      if (place.ok()) report.allowed = *place.value;
      if (report.allowed.content) ++existing;
    }
    if (existing == 0) return true;
    const std::string question =
        text::fill(services_.texts.get(id::kAskOverwriteReports),
                   {std::to_string(existing), std::to_string(reports_.size())});
    switch (messages_.ask_for_all(question, id::kAskOverwriteReports, id::kButtonOverwriteAll)) {
      case ForAll::kYes:
        existing_ = Existing::kOverwrite;
        break;
      case ForAll::kNo:
        existing_ = Existing::kKeep;
        break;
      case ForAll::kEach:
        break;
    }
    return true;
  }

  Step copy_one(Report& report, std::size_t left) {
    bool is_asked = existing_ == Existing::kAsk;
    while (true) {
      const std::uint64_t bytes = services_.files.look(report.from).size;
      if (!media::disk_is_ready(services_, context_.folders.report_copies, bytes)) {
        services_.messages.error_filled(id::kReportCopyCancelled, {report.name});
        return Step::kEnd;
      }
      const auto place = media::look_at_place(services_.files, report.to);
      if (!place.ok()) return failed({CopyOutcome::kFailed, place.error, report.to}, left);
      if (place.value->content) {
        if (existing_ == Existing::kKeep) return Step::kNext;
        if (is_asked || place.value->content != report.allowed.content) {
          if (const auto answer = refused(report, left)) return *answer;
        }
      }
      report.allowed = *place.value;
      const CopyResult result = copy_file(report);
      if (result.outcome == CopyOutcome::kDone) return Step::kCopied;
      if (result.outcome != CopyOutcome::kPlaceChanged) return failed(result, left);
      is_asked = true;
    }
  }

  CopyResult copy_file(const Report& report) {
    // Of many there is one notice for all of them; of few each has gone before it is told.
    std::optional<CShowStatusDlg> notice;
    if (!are_many()) notice.emplace(services_, id::kNowCopying);
    return media::copy_file(services_.files, report.from, report.to, report.allowed);
  }

  /// What follows when a report that exists may not be overwritten; nothing when it may.
  std::optional<Step> refused(const Report& report, std::size_t left) {
    const int answer = ask(id::kAskOverwriteReport, report, left);
    if (answer == ui::kOk) return std::nullopt;
    services_.messages.error_filled(id::kReportCopyCancelled, {report.name});
    return answer == ui::kNo ? Step::kNext : Step::kEnd;
  }

  Step failed(const CopyResult& result, std::size_t left) {
    messages_.failed(id::kReportCopyFailed, result);
    if (left == 0) return Step::kNext;
    return messages_.wants(id::kAskCopyOn, {std::to_string(left)}) ? Step::kNext : Step::kEnd;
  }

  // ---- Deleting

  void remove_many() {
    const std::string question =
        text::fill(services_.texts.get(id::kAskDeleteReports), {std::to_string(copied_.size())});
    const ForAll answer =
        messages_.ask_for_all(question, id::kAskDeleteReports, id::kButtonDeleteAll);
    if (answer == ForAll::kNo) return;
    for (std::size_t i = 0; i < copied_.size(); ++i) {
      const std::size_t left = copied_.size() - i - 1;
      if (answer == ForAll::kEach) {
        const int one = ask(id::kAskDeleteReport, *copied_[i], left);
        if (one == ui::kCancel) return;
        if (one == ui::kNo) continue;
      }
      if (!remove(*copied_[i]) && answer == ForAll::kYes && left > 0 &&
          !messages_.wants(id::kAskDeleteOn, {std::to_string(left)}))
        return;
    }
  }

  /// Under the logbook's lock, so that no other copy of the program saves this report meanwhile.
  /// False, and told, when it stays.
  bool remove(const Report& report) {
    const std::string logbook = observation::logbook_path(context_.folders.logbook);
    std::unique_ptr<platform::LockedLog> lock;
    if (services_.files.look(logbook).there == There::kFile) {
      auto taken = services_.files.lock_log(logbook);
      if (taken.error == FileError::kLocked) {
        messages_.not_removed(report.from, CopyResult{CopyOutcome::kFailed, taken.error, logbook});
        return false;
      }
      if (taken.ok()) lock = std::move(*taken.value);
    }
    const CopyResult result = media::remove_copied(services_.files, report.from, report.to);
    messages_.not_removed(report.from, result);
    return result.outcome == CopyOutcome::kDone;
  }

  /// kOk for Yes, kNo, or kCancel, which is offered as the way out of those that are left.
  [[nodiscard]] int ask(text::Id question, const Report& report, std::size_t left) {
    if (left > 0) return messages_.wants_or_end(question, {report.name});
    return messages_.wants(question, {report.name}) ? ui::kOk : ui::kNo;
  }

  ui::Services& services_;
  const MainWindowContext& context_;
  CopyMessages messages_;
  std::vector<Report> reports_;
  std::vector<const Report*> copied_;
  Existing existing_ = Existing::kAsk;
};

}  // namespace

void copy_reports(ui::Services& services, const MainWindowContext& context) {
  CopyReports(services, context).run();
}

}  // namespace mainwindow
