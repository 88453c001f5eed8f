#include "media/verified_copy.h"

#include <utility>

#include "text/checksum.h"

namespace media {
namespace {

using platform::FileError;
using platform::Files;
using platform::Result;

CopyResult failed(FileError error, std::string path) {
  return {CopyOutcome::kFailed, error, std::move(path)};
}

/// Hands a file over piece by piece.
class Pieces {
 public:
  Pieces(const Files& files, const std::string& path) : files_(files), path_(path) {}

  /// Empty behind the end.
  Result<std::string> next() {
    constexpr std::uint64_t kPiece = 1U << 20U;
    auto piece = files_.read_part(path_, at_, kPiece);
    error_ = piece.error;
    if (piece.ok()) at_ += piece.value->size();
    return piece;
  }
  /// Why there was no next piece.
  [[nodiscard]] FileError error() const { return error_; }

 private:
  const Files& files_;
  const std::string& path_;
  std::uint64_t at_ = 0;
  FileError error_ = FileError::kNone;
};

Result<Content> content_of(const Files& files, const std::string& path) {
  Pieces pieces(files, path);
  Content content;
  text::Checksum sum;
  while (true) {
    const auto piece = pieces.next();
    if (!piece.ok()) return piece.error;
    if (piece.value->empty()) break;
    content.length += piece.value->size();
    sum.add(*piece.value);
  }
  content.checksum = sum.value();
  return content;
}

/// kDone when both hold the same bytes.
CopyResult compare(const Files& files, const std::string& from, const std::string& copy) {
  Pieces source(files, from);
  Pieces target(files, copy);
  while (true) {
    const auto one = source.next();
    if (!one.ok()) return failed(one.error, from);
    const auto other = target.next();
    if (!other.ok()) return failed(other.error, copy);
    if (*one.value != *other.value) return {CopyOutcome::kDiffers, FileError::kNone, copy};
    if (one.value->empty()) return {};
  }
}

/// Into its place, unless that holds something else than it did.
CopyResult put(Files& files, const platform::StagedFile& staged, const Place& expected) {
  const auto now = look_at_place(files, staged.path);
  if (!now.ok()) return failed(now.error, staged.path);
  // A file that has gone meanwhile is none to replace; one that comes now is another one.
  if (now.value->content && now.value->content != expected.content)
    return {CopyOutcome::kPlaceChanged};
  const FileError error =
      files.commit(staged, now.value->content ? platform::Over::kReplace : platform::Over::kRefuse);
  if (error == FileError::kExists) return {CopyOutcome::kPlaceChanged};
  return error == FileError::kNone ? CopyResult{} : failed(error, staged.path);
}

}  // namespace

Result<Place> look_at_place(const Files& files, const std::string& path) {
  const platform::Look found = files.look(path);
  if (found.there == platform::There::kNo) return Place{};
  if (found.there != platform::There::kFile) return platform::why_no_file(found);
  const auto content = content_of(files, path);
  if (!content.ok()) return content.error;
  return Place{*content.value};
}

CopyResult copy_file(Files& files, const std::string& from, const std::string& to,
                     const Place& place) {
  if (files.same(from, to)) return {CopyOutcome::kSameFile};
  Pieces source(files, from);
  const auto staged = files.stage_pieces(to, [&] { return source.next(); });
  if (!staged.ok()) {
    const bool unreadable = source.error() != FileError::kNone;
    return failed(staged.error, unreadable ? from : to);
  }
  CopyResult result = compare(files, from, staged.value->temporary);
  if (result.failed == staged.value->temporary) result.failed = to;
  if (result.outcome == CopyOutcome::kDone) result = put(files, *staged.value, place);
  if (result.outcome != CopyOutcome::kDone) files.discard(*staged.value);
  return result;
}

CopyResult remove_copied(Files& files, const std::string& from, const std::string& copy) {
  if (files.same(from, copy)) return {CopyOutcome::kSameFile};
  CopyResult result = compare(files, from, copy);
  if (result.outcome != CopyOutcome::kDone) return result;
  // Asked twice: a disk that fails for a moment answers "no", and this would be the only file.
  if (files.same(from, copy)) return {CopyOutcome::kSameFile};
  const FileError error = files.remove(from);
  return error == FileError::kNone ? result : failed(error, from);
}

}  // namespace media
