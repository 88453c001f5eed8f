#pragma once
// Files in memory, for every room's tests. Errors are scripted, every fallible operation is counted
// and logged, and a kill of the program can be placed before or after any of them.
//
//   fakes::FakeFiles files;
//   files.add_folder("C:\\out\\");
//   files.add_file("C:\\kavrel\\kavrel.ini", "[KAVREL]\n");
//   files.fail_next(fakes::FakeFiles::Operation::kAppend, platform::FileError::kNoSpace);
//   files.fail_at(3, platform::FileError::kAccessDenied);  // the third operation from now on
//   ... EXPECT_EQ(files.log(), (std::vector<std::string>{"stage C:\\out\\a.tlx", ...}));
//
// Paths are compared without regard to case; "/" and a final "\" make no difference.

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports.h"

namespace fakes {

class FakeFiles : public platform::Files {
 public:
  enum class Operation {
    kRead,
    kStage,
    kCommit,
    kDiscard,
    kNote,
    kLock,
    kReadLog,
    kAppend,
    kCut,
    kList,
    kCreateFolder,
    kCopy,
    kRemove,
    kClearReadOnly,
    kReadPart,
  };
  /// Thrown where kill_before() or kill_after() says that the program died. What lies in the fake
  /// afterwards is what the next start of the program finds.
  struct Killed {};

  // ---- What is there

  /// Puts the file there with all its folders; an existing one is overwritten.
  void add_file(const std::string& path, std::string content);
  /// The folder and all above it.
  void add_folder(const std::string& path);
  void set_modified(const std::string& path, platform::DateTime when);
  void set_read_only(const std::string& path, bool read_only = true);
  /// Another program holds the logbook until this is undone.
  void set_held(const std::string& path, bool held = true);
  /// The file system knows no locks.
  void set_lockless() { lockless_ = true; }
  /// The program is started again: what it staged before is that of a process that is no more.
  void restart() { ++process_; }
  /// Bytes free on a drive; writing more is kNoSpace. Unlimited when never set.
  void set_free_space(char drive, std::uint64_t bytes);
  /// A pipe, a device or a socket lies there, in its folder.
  void add_other(const std::string& path);
  /// Everything on the drive answers kMediumMissing.
  void set_medium_missing(char drive, bool missing = true);

  /// Content of a file, or nothing when there is none.
  [[nodiscard]] std::optional<std::string> content(const std::string& path) const;
  /// Every file that is there, with its path as first written, in path order.
  [[nodiscard]] std::map<std::string, std::string> snapshot() const;

  // ---- Scripted errors

  /// The next operation of that kind fails; several calls queue up.
  void fail_next(Operation operation, platform::FileError error);
  /// The n-th operation from now on (1 = the next) fails, whatever it is. Discarding cannot fail.
  void fail_at(int n, platform::FileError error);
  /// Every operation on that path fails.
  void fail_path(const std::string& path, platform::FileError error);
  /// Looking at that path cannot tell what is there, whatever is.
  void fail_look(const std::string& path, platform::FileError error);
  /// The program dies before (after) the n-th operation from now on.
  void kill_before(int n);
  void kill_after(int n);
  /// Forgets all scripted errors and kills.
  void heal();

  // ---- What was done

  /// Operations so far, such as "read C:\\a", "copy C:\\a D:\\b"; failed ones end in " !".
  [[nodiscard]] const std::vector<std::string>& log() const { return log_; }
  void clear_log() { log_.clear(); }
  /// Number of operations so far.
  [[nodiscard]] int operations() const { return count_; }

  // ---- The port

  [[nodiscard]] platform::Result<std::string> read(const std::string& path,
                                                   std::uint64_t largest = 64U
                                                                           << 20U) const override;
  [[nodiscard]] platform::Result<std::string> read_part(const std::string& path, std::uint64_t from,
                                                        std::uint64_t count) const override;
  [[nodiscard]] platform::Result<platform::StagedFile> stage(const std::string& path,
                                                             std::string_view content) override;
  /// Logged as "stage"; what `next` does is logged behind it. A kill leaves what was written.
  [[nodiscard]] platform::Result<platform::StagedFile> stage_pieces(
      const std::string& path, const platform::NextPiece& next) override;
  [[nodiscard]] platform::FileError commit(const platform::StagedFile& staged,
                                           platform::Over over = platform::Over::kReplace) override;
  void discard(const platform::StagedFile& staged) override;
  [[nodiscard]] platform::FileError note(const std::string& path,
                                         std::string_view content) override;
  [[nodiscard]] platform::Result<std::unique_ptr<platform::LockedLog>> lock_log(
      const std::string& path) override;
  [[nodiscard]] bool is_running(std::uint64_t process) const override {
    return process == process_;
  }
  [[nodiscard]] platform::Look look(const std::string& path) const override;
  /// An error in a folder that is read-only or not there. A claim leaves no file.
  [[nodiscard]] platform::Result<std::unique_ptr<platform::Claim>> claim(
      const std::string& path) override;
  [[nodiscard]] std::optional<platform::DateTime> modified(const std::string& path) const override;
  [[nodiscard]] platform::Result<std::vector<platform::FolderEntry>> list(
      const std::string& folder) const override;
  [[nodiscard]] platform::FileError create_folder(const std::string& path) override;
  [[nodiscard]] platform::FileError copy(const std::string& from, const std::string& to) override;
  [[nodiscard]] platform::FileError remove(const std::string& path) override;
  [[nodiscard]] platform::FileError clear_read_only(const std::string& path) override;
  [[nodiscard]] std::optional<std::uint64_t> free_space(const std::string& path) const override;
  [[nodiscard]] bool same(const std::string& a, const std::string& b) const override;
  [[nodiscard]] std::string current_folder() const override { return current_folder_; }
  void set_current_folder(const std::string& folder) override { current_folder_ = folder; }

 private:
  class Log;

  struct Node {
    std::string path;  ///< as first written
    bool folder = false;
    bool other = false;  ///< neither a file nor a folder
    bool read_only = false;
    std::string content;
    platform::DateTime modified;
  };

  [[nodiscard]] std::string key(const std::string& path) const;
  [[nodiscard]] static std::string parent(const std::string& key);
  [[nodiscard]] bool missing(const std::string& path) const;
  [[nodiscard]] const Node* find(const std::string& path) const;
  [[nodiscard]] Node* find(const std::string& path);
  Node& put(const std::string& path, std::string content);
  /// Counts and logs the operation; the scripted error, or kNone when it may go on.
  platform::FileError begin(Operation operation, const std::string& path,
                            const std::string& second = "") const;
  /// Ends an operation: a real failure is marked in the log, a kill behind it takes place.
  platform::FileError end(platform::FileError error) const;
  /// kNone where a file can be read.
  [[nodiscard]] platform::FileError readable(const std::string& path) const;
  [[nodiscard]] platform::FileError writable(const std::string& path, std::uint64_t more) const;

  std::vector<Node> nodes_;
  std::set<std::string> held_;
  std::uint64_t process_ = 1;
  unsigned staged_count_ = 0;
  bool lockless_ = false;
  mutable bool killed_ = false;
  std::map<char, std::uint64_t> free_space_;
  std::set<char> missing_;
  std::set<std::string> claimed_;
  std::map<std::string, platform::FileError> path_errors_;
  std::map<std::string, platform::FileError> look_errors_;
  mutable std::map<Operation, std::vector<platform::FileError>> next_errors_;
  mutable std::map<int, platform::FileError> errors_at_;
  std::set<int> kills_before_;
  std::set<int> kills_after_;
  mutable int count_ = 0;
  mutable std::vector<std::string> log_;
  std::string current_folder_ = "C:\\";
};

}  // namespace fakes
