#pragma once
// Where drafts lie: what has been entered and not saved, beside the ship's files.
//
//   DRAFT1.DAT   the draft of one running copy of the program (another copy has DRAFT2.DAT, ...)
//   DRAFT1.LCK   says that this copy is running; its claim ends with the copy, however it ends
//   DRAFT1.OLD   the last draft that the officer did not want
//   DRAFT1.BAD   the last draft that could not be used
//
// A draft that nobody claims was left by a copy that was killed. On a drive without locks nobody
// can tell: a draft found there is taken for one that was left, and one copy runs there at a time.
//
// A number whose draft cannot be read, or that is no file but a folder or a device, is passed over:
// this copy keeps its own under the next one and touches neither.

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"

namespace mainwindow {

class DraftKeeper {
 public:
  /// The folder without a backslash at its end; when it is empty nothing is found or kept. The
  /// files must outlive the keeper.
  DraftKeeper(platform::Files& files, std::string folder);

  struct Left {
    std::string path;
    std::string text;  ///< what it holds; empty also when it is larger than any draft
    /// Why one cannot tell what it holds; it then stays as it is, for a start that can.
    platform::FileError error = platform::FileError::kNone;
    bool locked = true;  ///< false where another copy could not say that it is still running
  };
  /// The next draft that was left behind, or nothing when there is no more. It is this copy's until
  /// the next call, unless it has an error; one that is still there then stays as it is.
  [[nodiscard]] std::optional<Left> next_left();
  /// Of the draft that next_left() gave: it is taken over, and the file is from now on this copy's
  /// own.
  void take_over();
  enum class Why { kNotWanted, kNotUsable };
  /// Of the same: the file gets another name, in place of an earlier one put aside for that reason.
  /// Where it lies now, or nothing when that failed and it stays where it is.
  std::optional<std::string> put_aside(Why why);
  /// Of the same: both its files have been written, so it goes. Where it cannot, it stays as it is.
  void discard();

  /// Keeps the text in this copy's own file unless it is the text kept last. False when that
  /// failed: the file then holds what was kept before, or nothing.
  [[nodiscard]] bool keep(std::string_view text);
  /// The observation was saved or given up: the file goes. `done` is what it would be kept as now;
  /// until something else was to be kept, that text is not kept again.
  void drop(std::string_view done);
  /// Where this copy keeps its draft, for messages.
  [[nodiscard]] std::string own_path() const;
  /// False where no lock keeps another copy from keeping its draft in the same file.
  [[nodiscard]] bool locked() const { return claim_ == nullptr || claim_->is_locked(); }

 private:
  [[nodiscard]] std::string path(int number, std::string_view ending) const;
  /// The number of the draft that next_left() gave is from now on this copy's, unless it has one.
  void own_looked_at();

  platform::Files& files_;
  std::string folder_;
  int looked_at_ = 0;                         ///< number of the draft that next_left() gave last
  std::unique_ptr<platform::Claim> looking_;  ///< the claim to it
  int own_ = 0;                               ///< number of this copy's draft, 0 for none
  std::unique_ptr<platform::Claim> claim_;    ///< the claim to it
  std::string kept_;                          ///< what need not be kept any more
  bool in_file_ = false;                      ///< this copy's file may be there
};

}  // namespace mainwindow
