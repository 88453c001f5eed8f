#pragma once
// Files on Windows, and the manual of how they are kept whole.
//
//   replace a file   stage(): write ".kavrel-PID-N.part" in the same folder, flush, close
//                    commit(): move it over the old file, through to the disk
//                    discard(): remove what was staged
//   A crash before the move leaves the old file and perhaps a ".part" beside it, which no search of
//   the program matches; from the move on the new file is there. A file keeps its attributes.
//
//   note             as replace, but the move is not written through
//
//   log              lock_log(): open, lock, look whether the path still names what was opened.
//                    append(): set room aside; one write; flush. What did not go in whole is cut
//                    off again under the same lock. cut(): shorten, flush. An empty file that was
//                    created for the lock goes with it.
//   A file that is deleted while it is open keeps its name until everybody has closed it, and who
//   opens it meanwhile would write into what goes. So a logbook or claim that goes is renamed first.
//   The lock lies far behind the content: a locked part of a file can be read by nobody else, and
//   the logbook is to be read while it is saved into. It is tried, never waited for without end; a
//   file system without locks serves one program at a time, and is_locked() says so.
//
// Everything is opened so that others may read, write, rename and delete it. Another program may be
// less polite (a virus scanner looks at what was just written): a move that it forbids is tried
// again for a second, then it is kLocked, as is any other refusal for sharing.
//
// What is opened is looked at before anything else is done with it: "NUL" and "COM1" are devices in
// every folder. Whether a folder may be written is asked by writing, for the read-only mark of a
// folder means something else here.

#include <memory>
#include <string>

#include "platform/system/staged_files.h"
#include "platform/win32/system_calls.h"

namespace platform::win32 {

/// What an error of the system means to the program.
[[nodiscard]] FileError file_error(DWORD error_number);

class Win32Files : public StagedFiles {
 public:
  /// Both must outlive the object. The current folder is at first that of the process.
  Win32Files(const PathMap& drives, SystemCalls& calls);

  [[nodiscard]] Result<std::string> read(const std::string& path,
                                         std::uint64_t largest = 64U << 20U) const override;
  [[nodiscard]] Result<std::string> read_part(const std::string& path, std::uint64_t from,
                                              std::uint64_t count) const override;
  [[nodiscard]] FileError commit(const StagedFile& staged, Over over = Over::kReplace) override;
  void discard(const StagedFile& staged) override;
  [[nodiscard]] Result<std::unique_ptr<LockedLog>> lock_log(const std::string& path) override;
  [[nodiscard]] bool is_running(std::uint64_t process) const override;
  [[nodiscard]] Look look(const std::string& path) const override;
  /// The lock on the file is the claim; the system takes it off when the process ends. The file
  /// goes with a claim that is given up, and stays after a crash.
  [[nodiscard]] Result<std::unique_ptr<Claim>> claim(const std::string& path) override;
  [[nodiscard]] std::optional<DateTime> modified(const std::string& path) const override;
  /// A name that is no text (half a character) cannot be said in the program and is left out, and so
  /// is what the system hides for itself.
  [[nodiscard]] Result<std::vector<FolderEntry>> list(const std::string& folder) const override;
  [[nodiscard]] FileError create_folder(const std::string& path) override;
  [[nodiscard]] FileError remove(const std::string& path) override;
  [[nodiscard]] FileError clear_read_only(const std::string& path) override;
  [[nodiscard]] std::optional<std::uint64_t> free_space(const std::string& path) const override;
  [[nodiscard]] bool same(const std::string& a, const std::string& b) const override;

 protected:
  [[nodiscard]] Result<std::unique_ptr<Beside>> beside(const std::string& path) override;
  void forget_cached(const std::string& path) override;
  [[nodiscard]] FileError move_over(const StagedFile& staged) override;
  [[nodiscard]] std::uint64_t process() const override;

 private:
  class Open;
  class New;
  class Log;
  class LockClaim;

  [[nodiscard]] Result<std::wstring> os(const std::string& path) const;
  /// kNone for a regular file that was opened.
  [[nodiscard]] FileError regular(const Open& file) const;
  [[nodiscard]] Result<std::string> part_of(HANDLE file, std::uint64_t from,
                                            std::uint64_t count) const;
  /// Of what the path leads to.
  [[nodiscard]] std::optional<BY_HANDLE_FILE_INFORMATION> about(const std::wstring& path) const;
  [[nodiscard]] Look look_at(const std::wstring& path) const;
  /// Why an existing file may not be replaced.
  [[nodiscard]] FileError why_protected(const std::wstring& path) const;
  [[nodiscard]] FileError move(const StagedFile& staged, DWORD flags) const;
  /// Removes a file that is open and locked, so that who has opened it too finds at once that the
  /// path no longer names it.
  void take_away(const std::wstring& path) const;

  SystemCalls& calls_;
};

}  // namespace platform::win32
