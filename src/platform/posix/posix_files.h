#pragma once
// Files on this operating system, and the manual of how they are kept whole.
//
//   replace a file   stage(): write ".kavrel-PID-N.part" in the same folder, flush, close
//                    commit(): rename over the old file, flush the folder
//                    discard(): remove what was staged
//   A crash before the rename leaves the old file and perhaps a ".part" beside it, which no search
//   of the program matches; from the rename on the new file is there. A file keeps its permissions.
//
//   append           lock; set room aside; one write; flush. What did not go in whole is cut off
//                    again under the same lock, and a file that the append created is removed.
//   A crash before the write leaves the old file (perhaps a new empty one), after it the new one.
//   The room set aside beforehand is what makes a write that ends half-way on a full disk
//   impossible on the file systems that can do it.
//
//   take back        lock; only when the file still ends where the append left it, cut it there.
//
// A file or folder that nobody may write counts as read-only for the system's administrator too.

#include <string>

#include "platform/ports.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/system_calls.h"

namespace platform::posix {

/// What an errno value means to the program.
[[nodiscard]] FileError file_error(int error_number);

class PosixFiles : public Files {
 public:
  /// Both must outlive the object. The current folder is at first that of the process.
  PosixFiles(const DriveMap& drives, SystemCalls& calls);

  [[nodiscard]] Result<std::string> read(const std::string& path,
                                         std::uint64_t largest = 64U << 20U) const override;
  [[nodiscard]] Result<StagedFile> stage(const std::string& path,
                                         std::string_view content) override;
  [[nodiscard]] FileError commit(const StagedFile& staged) override;
  void discard(const StagedFile& staged) override;
  [[nodiscard]] Result<AppendMark> append(const std::string& path,
                                          std::string_view content) override;
  [[nodiscard]] FileError take_back(const AppendMark& mark) override;
  [[nodiscard]] Look look(const std::string& path) const override;
  [[nodiscard]] std::optional<DateTime> modified(const std::string& path) const override;
  /// A name that holds a "\" cannot be said in a program path and is left out.
  [[nodiscard]] Result<std::vector<FolderEntry>> list(const std::string& folder) const override;
  [[nodiscard]] FileError create_folder(const std::string& path) override;
  [[nodiscard]] FileError copy(const std::string& from, const std::string& to) override;
  [[nodiscard]] FileError remove(const std::string& path) override;
  [[nodiscard]] FileError clear_read_only(const std::string& path) override;
  [[nodiscard]] std::optional<std::uint64_t> free_space(const std::string& path) const override;
  [[nodiscard]] bool same(const std::string& a, const std::string& b) const override;
  [[nodiscard]] std::string current_folder() const override { return current_folder_; }
  /// Nothing happens when there is no such folder.
  void set_current_folder(const std::string& folder) override;

 private:
  class Open;
  class Locked;

  [[nodiscard]] Result<std::string> os(const std::string& path) const;
  [[nodiscard]] std::optional<struct stat> about(const std::string& path) const;
  [[nodiscard]] FileError folder_writable(const std::string& os_path) const;
  [[nodiscard]] FileError write_all(int file, std::string_view content) const;
  [[nodiscard]] FileError fill(int file, std::string_view content,
                               const std::optional<struct stat>& old) const;
  /// All of the content behind the end of the locked file, or nothing of it.
  [[nodiscard]] FileError append_locked(const Locked& log, std::string_view content) const;
  [[nodiscard]] FileError write_once(const Locked& log, std::string_view content) const;
  [[nodiscard]] FileError flush_folder(const std::string& os_path) const;

  const DriveMap& drives_;
  SystemCalls& calls_;
  std::string current_folder_;
  unsigned staged_count_ = 0;
};

}  // namespace platform::posix
