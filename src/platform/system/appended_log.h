#pragma once
// A file that two copies of the program write to its end, one after the other, alike on every system:
// opened or made, locked with patience, looked at again, appended to in one write and cut back where
// that failed. What only a system can do is its own.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/ports.h"

namespace platform {

class Patience;

class AppendedLog : public LockedLog {
 public:
  /// Opens and locks the file, and makes it when there is none. Between opening and locking another
  /// copy of the program may have removed or replaced it; then what was opened is no longer what the
  /// path names, and the whole is done again. kLocked when somebody has it for longer than three
  /// seconds. To be called once, before anything else.
  [[nodiscard]] FileError open();

  [[nodiscard]] bool is_locked() const final { return is_locked_; }
  [[nodiscard]] bool created() const final { return created_; }
  [[nodiscard]] std::uint64_t size() const final { return size_; }
  [[nodiscard]] FileError append(std::string_view content) final;
  [[nodiscard]] FileError cut(std::uint64_t size) final;
  void drop_if_empty() final { drop_ = true; }

 protected:
  /// How a step on the way to the lock went.
  enum class Step {
    kDone,
    kMissing,   ///< there is no such file; of a lock: the file system knows none
    kInTheWay,  ///< something has the name, yet it could not be opened
    kBusy,      ///< somebody has it, and may have done with it soon
    kFailed,
  };
  struct Outcome {
    Step step = Step::kDone;
    FileError error = FileError::kNone;  ///< where it failed, or is busy for too long
  };

  /// Opens the file that is there: kDone, kMissing, kBusy or kFailed.
  [[nodiscard]] virtual Outcome open_old() = 0;
  /// Makes it: kDone, kBusy, kFailed, or kInTheWay, with an error where one cannot even tell of what.
  [[nodiscard]] virtual Outcome make_new() = 0;
  /// What was opened and is no file that can be appended to.
  [[nodiscard]] virtual FileError why_unfit() const = 0;
  /// Asks once for the lock: kDone, kMissing, kBusy or kFailed.
  [[nodiscard]] virtual Outcome lock_once() = 0;
  /// The size of the file, as others wrote until the lock was had; nothing when the path names
  /// another by now, or none.
  [[nodiscard]] virtual Result<std::optional<std::uint64_t>> look_again() const = 0;
  /// Its size now, when that can be told.
  [[nodiscard]] virtual std::optional<std::uint64_t> size_now() const = 0;
  /// False when the medium has no room for so many bytes behind the end. With the room set aside a
  /// write cannot stop half-way on a full disk; not every file system can do it, and then the cutting
  /// back has to serve.
  [[nodiscard]] virtual bool set_room_aside(std::size_t count) = 0;
  /// One write at the end; how much of it went in.
  [[nodiscard]] virtual Result<std::size_t> write_once(std::string_view content) = 0;
  [[nodiscard]] virtual FileError set_size(std::uint64_t size) = 0;
  /// Its bytes onto the medium.
  [[nodiscard]] virtual FileError flush() = 0;
  /// The name of a new file onto the medium, where that is not done with its bytes.
  [[nodiscard]] virtual FileError flush_name() { return FileError::kNone; }
  /// A clock in milliseconds.
  [[nodiscard]] virtual std::int64_t now() const = 0;
  virtual void pause(int milliseconds) const = 0;

  /// Whether the file goes with the lock; to be asked while it is still open. Without locks somebody
  /// may have written since.
  [[nodiscard]] bool goes_with_lock() const { return drop_ && size_ == 0 && size_now() == 0U; }

 private:
  [[nodiscard]] Result<bool> lock(Patience& patience);
  [[nodiscard]] FileError put_behind_end(std::string_view content);

  std::uint64_t size_ = 0;
  bool is_locked_ = true;
  bool created_ = false;
  bool drop_ = false;
};

}  // namespace platform
