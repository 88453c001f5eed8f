#include <memory>
#include <optional>
#include <string>

#include "archive/CShowStatusDlg.h"
#include "explain/CLogbookCheckDlg.h"
#include "explain/log/logbook_check.h"
#include "mainwindow/copy_flow.h"
#include "mainwindow/copy_folder.h"
#include "mainwindow/copy_messages.h"
#include "mainwindow/save_flow.h"
#include "media/removable_disk.h"
#include "media/verified_copy.h"
#include "observation/logbook_reader.h"
#include "observation/report_file.h"
#include "observation/save_journal.h"
#include "platform/paths.h"
#include "text/ids.h"

namespace mainwindow {
namespace {

namespace id = text::id;
using media::CopyOutcome;
using media::CopyResult;
using platform::FileError;
using platform::There;

class CopyLogbook {
 public:
  CopyLogbook(ui::Services& services, const MainWindowContext& context)
      : services_(services),
        context_(context),
        messages_(services),
        from_(observation::logbook_path(context.folders.logbook)) {}

  void run() {
    if (!source_is_there() || !faults_are_known() || !choose_place()) return;
    const std::optional<CopyResult> result = copy();
    if (!result) return;
    switch (result->outcome) {
      case CopyOutcome::kDone:
        services_.messages.information(id::kLogbookCopied);
        if (messages_.wants(id::kAskDeleteLogbook)) remove();
        break;
      case CopyOutcome::kSameFile:
        services_.messages.error(id::kChooseAnotherFolder);
        break;
      default:
        messages_.failed(id::kLogbookCopyFailed, *result);
    }
  }

 private:
  bool source_is_there() {
    if (context_.folders.logbook.empty()) {
      services_.messages.error(id::kNoLogbook);
      return false;
    }
    if (!media::disk_is_ready(services_, context_.folders.logbook, 0)) return cancelled();
    const auto recovery = recover_and_tell(services_, context_.folders);
    // All but the folder of its report: then the line that it left is a whole one.
    if (recovery.error != FileError::kNone && !recovery.unreachable) {
      messages_.told(id::kLogbookCopyFailed, from_, id::kReasonSaveInterrupted);
      return false;
    }
    const platform::Look found = services_.files.look(from_);
    bytes_ = found.size;
    if (found.there == There::kFile) return true;
    if (found.there == There::kNo)
      services_.messages.error(id::kNoLogbook);
    else
      messages_.told(found.there == There::kCannotTell ? id::kLogbookCopyFailed : id::kNoLogbook,
                     from_, platform::why_no_file(found));
    return false;
  }

  /// True when the logbook is sound, or the officer wants it copied as it is: faults are found on
  /// board or months later ashore. What cannot be read is told by the copy.
  bool faults_are_known() {
    explain::LogbookCheck check(services_.texts.language);
    const auto error = observation::for_each_line(services_.files, from_,
                                                  [&](std::string_view line) { check.take(line); });
    if (error != FileError::kNone) return true;
    const explain::Summary& found = check.finish();
    if (found.is_sound()) return true;
    for (;;) {
      switch (messages_.ask_about_faults(found)) {
        case ui::kOk: {
          CLogbookCheckDlg dialog(services_, found.words());
          services_.windows.run_modal(dialog);
          break;
        }
        case ui::kNo:
          return true;
        default:
          return cancelled();
      }
    }
  }

  bool choose_place() {
    const auto folder = choose_copy_folder(services_, context_, Copied::kLogbook);
    if (!folder) return false;
    to_ = platform::join(*folder, observation::kLogbookName);
    return true;
  }

  /// Nothing once the officer has given up, and been told of it.
  std::optional<CopyResult> copy() {
    platform::clear_staged(services_.files, context_.folders.logbook_copies);
    // A disk may have been exchanged, and somebody may have put a file there, while it was asked.
    while (true) {
      if (!media::disk_is_ready(services_, context_.folders.logbook_copies, bytes_)) {
        cancelled();
        return std::nullopt;
      }
      if (services_.files.same(from_, to_)) return CopyResult{CopyOutcome::kSameFile};
      const auto place = media::look_at_place(services_.files, to_);
      if (!place.ok()) return CopyResult{CopyOutcome::kFailed, place.error, to_};
      if (place.value->content && !messages_.wants(id::kAskOverwriteLogbook)) {
        cancelled();
        return std::nullopt;
      }
      const CShowStatusDlg notice(services_, id::kNowCopying);
      const CopyResult result = copy_locked(*place.value);
      if (result.outcome != CopyOutcome::kPlaceChanged) return result;
    }
  }

  CopyResult copy_locked(const media::Place& place) {
    const auto lock = services_.files.lock_log(from_);
    // What may not be written by us is not written by another copy of the program either.
    if (!lock.ok() && lock.error != FileError::kAccessDenied)
      return {CopyOutcome::kFailed, lock.error, from_};
    // Created for the lock: it has gone since it was looked at.
    if (lock.ok() && (*lock.value)->created())
      return {CopyOutcome::kFailed, FileError::kNotFound, from_};
    return media::copy_file(services_.files, from_, to_, place);
  }

  void remove() {
    const auto lock = services_.files.lock_log(from_);
    if (!lock.ok()) {
      messages_.not_removed(from_, CopyResult{CopyOutcome::kFailed, lock.error, from_});
      return;
    }
    if (!(*lock.value)->is_locked())
      services_.messages.error_filled_once(id::kLogbookWithoutLock, {from_});
    if (is_noted()) {
      messages_.not_removed(from_, std::string(services_.texts.get(id::kReasonSaveInterrupted)));
      return;
    }
    messages_.not_removed(from_, media::remove_copied(services_.files, from_, to_));
  }

  /// What is noted of an interrupted save tells of this very logbook.
  [[nodiscard]] bool is_noted() const {
    return services_.files.look(platform::join(context_.folders.logbook, observation::kJournalName))
               .there != There::kNo;
  }

  bool cancelled() {
    services_.messages.error(id::kLogbookCopyCancelled);
    return false;
  }

  ui::Services& services_;
  const MainWindowContext& context_;
  CopyMessages messages_;
  std::string from_;
  std::string to_;
  std::uint64_t bytes_ = 0;
};

}  // namespace

void copy_logbook(ui::Services& services, const MainWindowContext& context) {
  CopyLogbook(services, context).run();
}

}  // namespace mainwindow
