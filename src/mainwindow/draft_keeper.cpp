#include "mainwindow/draft_keeper.h"

#include <utility>

#include "elements/form/draft.h"
#include "platform/paths.h"
#include "text/numbers.h"

namespace mainwindow {

using platform::FileError;
using platform::There;

namespace {

// More copies of the program than anybody runs at a time.
constexpr int kCopies = 9;
constexpr std::string_view kDraft = ".DAT";
constexpr std::string_view kClaim = ".LCK";
constexpr std::string_view kNotWantedAside = ".OLD";
constexpr std::string_view kNotUsableAside = ".BAD";

}  // namespace

DraftKeeper::DraftKeeper(platform::Files& files, std::string folder)
    : files_(files), folder_(std::move(folder)) {}

std::string DraftKeeper::path(int number, std::string_view ending) const {
  return platform::join(folder_, "DRAFT") + text::format_int(number) + std::string(ending);
}

std::optional<DraftKeeper::Left> DraftKeeper::next_left() {
  if (folder_.empty()) return std::nullopt;
  looking_.reset();
  while (looked_at_ < kCopies) {
    ++looked_at_;
    const std::string draft = path(looked_at_, kDraft);
    auto claim = files_.claim(path(looked_at_, kClaim));
    if (claim.error == FileError::kLocked) continue;
    const platform::Look found = files_.look(draft);
    if (found.there == There::kFolder || found.there == There::kOther) continue;
    if (!claim.ok()) {
      // Whoever cannot claim does not know whether the copy that wrote it is still running.
      if (found.there == There::kFile) return Left{draft, {}, claim.error};
      continue;
    }
    const bool locked = (*claim.value)->is_locked();
    looking_ = std::move(*claim.value);
    if (found.there == There::kNo) {
      own_looked_at();
      looking_.reset();
      continue;
    }
    if (found.there == There::kCannotTell) return Left{draft, {}, found.error};
    if (found.size > elements::kLargestDraft) return Left{draft, {}, FileError::kNone, locked};
    const auto text = files_.read(draft, elements::kLargestDraft);
    return Left{draft, text.value.value_or(""), text.error, locked};
  }
  return std::nullopt;
}

void DraftKeeper::own_looked_at() {
  if (own_ != 0) return;
  own_ = looked_at_;
  claim_ = std::move(looking_);
}

void DraftKeeper::take_over() {
  own_ = looked_at_;
  claim_ = std::move(looking_);
  in_file_ = true;
}

std::optional<std::string> DraftKeeper::put_aside(Why why) {
  const std::string from = path(looked_at_, kDraft);
  const std::string to =
      path(looked_at_, why == Why::kNotWanted ? kNotWantedAside : kNotUsableAside);
  // A kill between the two leaves both, and the draft is offered once more.
  if (files_.copy(from, to) != FileError::kNone || files_.remove(from) != FileError::kNone)
    return std::nullopt;
  own_looked_at();
  return to;
}

void DraftKeeper::discard() {
  if (files_.remove(path(looked_at_, kDraft)) == FileError::kNone) own_looked_at();
}

bool DraftKeeper::keep(std::string_view text) {
  if (folder_.empty() || text == kept_) return true;
  if (own_ == 0 || files_.replace(own_path(), text) != FileError::kNone) return false;
  kept_ = text;
  in_file_ = true;
  return true;
}

void DraftKeeper::drop(std::string_view done) {
  kept_ = done;
  if (!in_file_) return;
  in_file_ =
      files_.remove(own_path()) != FileError::kNone && files_.look(own_path()).there != There::kNo;
}

std::string DraftKeeper::own_path() const {
  // Without a place of its own it names the first, for a message.
  return path(own_ == 0 ? 1 : own_, kDraft);
}

}  // namespace mainwindow
