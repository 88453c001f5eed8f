#pragma once
// How a content is staged beside its place, alike on every system: written under a name that no
// search finds, whole or a piece at a time, flushed, and removed again where something failed. What
// only a system can do is its own; posix_files.h and win32_files.h tell what comes before and after.

#include <functional>
#include <memory>
#include <string>

#include "platform/system/system.h"

namespace platform {

class StagedFiles : public Files {
 public:
  [[nodiscard]] Result<StagedFile> stage(const std::string& path, std::string_view content) final;
  [[nodiscard]] Result<StagedFile> stage_pieces(const std::string& path,
                                                const NextPiece& next) final;
  [[nodiscard]] FileError note(const std::string& path, std::string_view content) final;
  [[nodiscard]] FileError copy(const std::string& from, const std::string& to) final;
  [[nodiscard]] std::string current_folder() const final { return current_folder_; }
  /// Nothing happens when there is no such folder.
  void set_current_folder(const std::string& folder) final;

 protected:
  /// The map must outlive the object. The current folder is at first that of the process.
  explicit StagedFiles(const PathMap& drives);

  /// A file that is written beside the one whose place it will take. It closes itself.
  class Beside {
   public:
    Beside() = default;
    virtual ~Beside() = default;
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    /// A new file of this path, open for writing; kExists where something has the name.
    [[nodiscard]] virtual FileError make(const std::string& path) = 0;
    /// Writes at its end, and tells how much of the content went in.
    [[nodiscard]] virtual Result<std::size_t> write(std::string_view content) = 0;
    /// Gives it what it keeps of the old file, flushes and closes it.
    [[nodiscard]] virtual FileError finish() = 0;
  };
  /// For the place of this path; why nothing may be put there, else.
  [[nodiscard]] virtual Result<std::unique_ptr<Beside>> beside(const std::string& path) = 0;
  /// What lies there already and cannot be replaced by a file.
  [[nodiscard]] static FileError why_no_place(const Look& there);
  /// What is read of the file next comes from the medium, where the system can do it.
  virtual void forget_cached(const std::string& path) = 0;
  /// commit() that nothing is flushed for.
  [[nodiscard]] virtual FileError move_over(const StagedFile& staged) = 0;
  /// The number of this process.
  [[nodiscard]] virtual std::uint64_t process() const = 0;

  /// The path as this computer's.
  [[nodiscard]] Result<std::string> to_os(const std::string& path) const {
    return drives_.to_os(path, current_folder_);
  }
  /// Under which nothing was staged yet by this object; a crash may have left a file of that name.
  [[nodiscard]] std::string next_name() const { return staged_name(process(), staged_count_++); }

  /// So often a name is tried that something else has.
  static constexpr int kTries = 1000;

 private:
  /// Puts a content into a file.
  using Write = std::function<FileError(Beside&)>;
  [[nodiscard]] Result<StagedFile> stage_with(const std::string& path, const Write& write);

  const PathMap& drives_;
  std::string current_folder_;
  mutable unsigned staged_count_ = 0;
};

}  // namespace platform
