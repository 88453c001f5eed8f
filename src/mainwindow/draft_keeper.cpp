#include "mainwindow/draft_keeper.h"

#include <utility>

#include "elements/form/draft.h"
#include "platform/paths.h"
#include "text/numbers.h"

namespace mainwindow {
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

bool DraftKeeper::is_there(int number) const {
  return files_.is_file(path(number, kDraft));
}

std::optional<DraftKeeper::Left> DraftKeeper::next_left() {
  if (folder_.empty()) return std::nullopt;
  looking_.reset();
  while (looked_at_ < kCopies) {
    ++looked_at_;
    auto claim = files_.claim(path(looked_at_, kClaim));
    if (!claim) continue;
    if (is_there(looked_at_)) {
      looking_ = std::move(claim);
      const std::string found = path(looked_at_, kDraft);
      return Left{found, files_.read(found, elements::kLargestDraft).value.value_or("")};
    }
    if (own_ != 0) continue;
    own_ = looked_at_;
    claim_ = std::move(claim);
  }
  return std::nullopt;
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
  if (files_.copy(from, to) != platform::FileError::kNone ||
      files_.remove(from) != platform::FileError::kNone)
    return std::nullopt;
  if (own_ == 0) {
    own_ = looked_at_;
    claim_ = std::move(looking_);
  }
  return to;
}

bool DraftKeeper::keep(std::string_view text) {
  if (folder_.empty() || text == kept_) return true;
  if (own_ == 0 || files_.replace(own_path(), text) != platform::FileError::kNone) return false;
  kept_ = text;
  in_file_ = true;
  return true;
}

void DraftKeeper::drop(std::string_view done) {
  kept_ = done;
  if (!in_file_) return;
  in_file_ = files_.remove(own_path()) != platform::FileError::kNone && is_there(own_);
}

std::string DraftKeeper::own_path() const {
  return path(own_ == 0 ? 1 : own_, kDraft);
}

}  // namespace mainwindow
