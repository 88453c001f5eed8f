#include "platform/system/appended_log.h"

#include "platform/system/patience.h"

namespace platform {

namespace {

constexpr int kTries = 1000;
// Milliseconds.
constexpr int kPatience = 3000;

}  // namespace

FileError AppendedLog::open() {
  Patience patience(now() + kPatience);
  for (int i = 0; i < kTries; ++i) {
    Outcome opened = open_old();
    created_ = opened.step == Step::kMissing;
    if (created_) opened = make_new();
    if (opened.step == Step::kInTheWay) {
      // There and not there: a link that leads nowhere, or somebody was quicker.
      if (opened.error != FileError::kNone) return opened.error;
      continue;
    }
    if (opened.step == Step::kBusy) {
      if (const int wait = patience.next_pause(now()); wait > 0) {
        pause(wait);
        continue;
      }
    }
    if (opened.step != Step::kDone) return opened.error;
    const auto locked = lock(patience);
    if (!locked.ok()) return locked.error;
    if (!*locked.value) continue;
    drop_ = created_;
    return FileError::kNone;
  }
  return FileError::kOther;
}

// False when the whole is to be done again.
Result<bool> AppendedLog::lock(Patience& patience) {
  if (const FileError error = why_unfit(); error != FileError::kNone) return error;
  // An empty file that this object created stays when it cannot be locked: nobody can tell whether
  // another copy of the program has begun to write into it.
  for (;;) {
    const Outcome asked = lock_once();
    is_locked_ = is_locked_ && asked.step != Step::kMissing;
    if (asked.step == Step::kDone || asked.step == Step::kMissing) break;
    // Anything but "somebody has it" does not get better by waiting.
    if (asked.step != Step::kBusy) return asked.error;
    const int wait = patience.next_pause(now());
    if (wait == 0) return FileError::kLocked;
    pause(wait);
  }
  const auto seen = look_again();
  if (!seen.ok()) return seen.error;
  if (!*seen.value) return false;
  size_ = **seen.value;
  // Another copy may have written between our creating the file and locking it.
  if (size_ > 0) created_ = false;
  return true;
}

FileError AppendedLog::append(std::string_view content) {
  if (!content.empty() && !set_room_aside(content.size())) return FileError::kNoSpace;
  const FileError error = put_behind_end(content);
  if (error == FileError::kNone) {
    size_ += content.size();
  } else if (cut(size_) != FileError::kNone) {
    size_ = size_now().value_or(size_ + content.size());
  }
  return error;
}

FileError AppendedLog::put_behind_end(std::string_view content) {
  const auto count = write_once(content);
  if (!count.ok()) return count.error;
  // What went in is not gone on with: a line is one write or none.
  if (*count.value != content.size()) return FileError::kNoSpace;
  if (const FileError error = flush(); error != FileError::kNone) return error;
  // A new name is safe only with its folder; the bytes of an old file need no more.
  return created_ ? flush_name() : FileError::kNone;
}

FileError AppendedLog::cut(std::uint64_t size) {
  if (const FileError error = set_size(size); error != FileError::kNone) return error;
  size_ = size;
  // It is cut, flushed or not: a refusal would say that the line is still there.
  (void)flush();
  return FileError::kNone;
}

}  // namespace platform
