#pragma once
// Files on this operating system, and the manual of how they are kept whole.
//
//   replace a file   stage(): write ".kavrel-PID-N.part" in the same folder, flush, close
//                    commit(): rename over the old file, flush the folder
//                    discard(): remove what was staged
//   A crash before the rename leaves the old file and perhaps a ".part" beside it, which no search
//   of the program matches; from the rename on the new file is there. A file keeps its permissions.
//
//   note             as replace, but the folder is not flushed
//
//   log              lock_log(): open, lock, look whether the path still names what was opened.
//                    append(): set room aside; one write; flush. What did not go in whole is cut
//                    off again under the same lock. cut(): shorten, flush. An empty file that was
//                    created for the lock goes with it.
//   A crash before the write leaves the old file (perhaps a new empty one), after it the new one.
//   The room set aside beforehand is what makes a write that ends half-way on a full disk
//   impossible on the file systems that can do it. The lock is tried, never waited for without end;
//   a file system without locks serves one program at a time, and is_locked() says so.
//
// What is opened is looked at before anything else is done with it: a pipe by the name of a report
// would be waited for, a device would swallow it. A new file can be read and written by its owner,
// whatever the user's mask takes away.
//
// A file or folder that nobody may write counts as read-only for the system's administrator too.

#include <memory>
#include <string>

#include "platform/ports.h"
#include "platform/posix/posix_drive_map.h"
#include "platform/posix/system_calls.h"
#include "platform/system/staged_files.h"

namespace platform::posix {

/// What an errno value means to the program.
[[nodiscard]] FileError file_error(int error_number);

class PosixFiles : public StagedFiles {
 public:
  /// Both must outlive the object. The current folder is at first that of the process.
  PosixFiles(const PathMap& drives, SystemCalls& calls);

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
  /// A name that holds a "\" cannot be said in a program path and is left out.
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

  /// kNone for a regular file that was opened for reading.
  [[nodiscard]] FileError regular(const Open& file) const;
  [[nodiscard]] Result<std::string> part_of(int file, std::uint64_t from,
                                            std::uint64_t count) const;
  [[nodiscard]] std::optional<struct stat> about(const std::string& path) const;
  [[nodiscard]] Look look_at(const std::string& os_path) const;
  [[nodiscard]] FileError folder_writable(const std::string& os_path) const;
  /// Renames where nothing of the new name is, with whatever the file system can do.
  [[nodiscard]] FileError rename_new(const std::string& from, const std::string& to) const;
  /// A file that was just created, with no less than its owner needs.
  void let_owner_use(int file) const;
  [[nodiscard]] FileError flush_folder(const std::string& os_path) const;

  SystemCalls& calls_;
};

}  // namespace platform::posix
