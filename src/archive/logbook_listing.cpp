#include "archive/logbook_listing.h"

#include <algorithm>
#include <utility>

#include "archive/print_documents.h"

namespace archive {

std::string_view Pieces::at(std::uint64_t place) {
  constexpr std::uint64_t kPiece = 256U << 10U;
  if (place < start_ || place >= start_ + piece_.size()) {
    platform::Result<std::string> read = files_.read_part(path_, place, kPiece);
    if (!read.ok()) error_ = read.error;
    piece_ = std::move(read.value).value_or(std::string());
    start_ = place;
  }
  return std::string_view(piece_).substr(static_cast<std::size_t>(place - start_));
}

LogbookListing::LogbookListing(const platform::Files& files, std::string path,
                               const platform::DateTime& now)
    : heading_(logbook_heading(now)), pieces_(files, std::move(path)) {
  constexpr std::size_t kMostMarks = 1024;
  std::uint64_t place = 0;
  for (auto record = record_from(place); record; record = record_from(place)) {
    if (records_ % stride_ == 0) marks_.push_back(place);
    ++records_;
    place = record->next;
    if (marks_.size() < kMostMarks) continue;
    // Every other one is enough: a long logbook has as many marks as a short one.
    for (std::size_t i = 0; 2 * i < marks_.size(); ++i) marks_[i] = marks_[2 * i];
    marks_.resize(kMostMarks / 2);
    stride_ *= 2;
  }
}

std::size_t LogbookListing::size() const {
  return heading_.size() + records_ * kLinesOfRecord;
}

std::size_t LogbookListing::widest() const {
  // Behind a number of any length that a disk has room for, a record is narrower.
  return std::max(heading_[0].size(), heading_[1].size());
}

platform::FileError LogbookListing::error() const {
  if (pieces_.error() == platform::FileError::kNone && shortened_)
    return platform::FileError::kOther;
  return pieces_.error();
}

// The next line that is printed. However long lines are, no more of them is held than is printed.
std::optional<LogbookListing::Record> LogbookListing::record_from(std::uint64_t place) const {
  for (;;) {
    Record record;
    std::uint64_t length = 0;
    char last = '\0';
    bool ended = false;
    while (!ended) {
      const std::string_view piece = pieces_.at(place + length);
      if (piece.empty()) break;
      const auto end = piece.find('\n');
      ended = end != std::string_view::npos;
      const std::string_view part = piece.substr(0, end);
      record.columns.append(part.substr(0, kPrintedColumns - record.columns.size()));
      if (!part.empty()) last = part.back();
      length += part.size();
    }
    if (length == 0 && !ended) return std::nullopt;
    record.next = place + length + (ended ? 1 : 0);
    if (length > 0 && last == '\r') --length;
    if (length >= kLeastColumns) {
      record.columns.resize(
          static_cast<std::size_t>(std::min<std::uint64_t>(length, record.columns.size())));
      return record;
    }
    place = record.next;
  }
}

LogbookListing::Mark LogbookListing::mark_before(std::size_t record) const {
  const std::size_t mark = record / stride_;
  if (last_.record <= record && last_.record >= mark * stride_) return last_;
  return {mark * stride_, marks_[mark]};
}

std::vector<std::string> LogbookListing::lines(std::size_t first, std::size_t count) const {
  std::vector<std::string> result;
  if (first >= size()) return result;
  const std::size_t end = first + std::min(count, size() - first);
  result.reserve(end - first);
  std::size_t line = first;
  for (; line < end && line < heading_.size(); ++line) result.push_back(heading_[line]);
  if (line == end) return result;
  const std::size_t wanted = (line - heading_.size()) / kLinesOfRecord;
  Mark at = mark_before(wanted);
  for (; line < end; ++at.record) {
    // A page may end within a record, with which the next one begins then.
    last_ = at;
    const std::optional<Record> record = record_from(at.place);
    if (record) at.place = record->next;
    shortened_ = shortened_ || !record;
    if (at.record < wanted) continue;
    std::vector<std::string> three = record ? logbook_lines(at.record + 1, record->columns)
                                            : std::vector<std::string>(kLinesOfRecord);
    for (std::size_t part = (line - heading_.size()) % kLinesOfRecord;
         part < kLinesOfRecord && line < end; ++part, ++line)
      result.push_back(std::move(three[part]));
  }
  return result;
}

}  // namespace archive
