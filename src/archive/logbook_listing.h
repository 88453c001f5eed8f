#pragma once
// A logbook as it is printed: a heading, and three lines for each record. Years of records are
// never held: the file is read once from end to end to count them, and again wherever somebody
// looks.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports.h"
#include "ui/printer.h"

namespace archive {

/// Reads a file piece by piece and keeps the last piece.
class Pieces {
 public:
  Pieces(const platform::Files& files, std::string path) : files_(files), path_(std::move(path)) {}

  /// Some bytes from there on, valid until the next call; none at the end of the file, or when it
  /// cannot be read.
  [[nodiscard]] std::string_view at(std::uint64_t place);
  /// Why it could not be read, once that happened.
  [[nodiscard]] platform::FileError error() const { return error_; }

 private:
  const platform::Files& files_;
  std::string path_;
  std::string piece_;
  std::uint64_t start_ = 0;
  platform::FileError error_ = platform::FileError::kNone;
};

class LogbookListing : public ui::Document {
 public:
  /// The file as it is now. The heading has this time.
  LogbookListing(const platform::Files& files, std::string path, const platform::DateTime& now);

  [[nodiscard]] std::size_t size() const override;
  [[nodiscard]] std::size_t widest() const override;
  /// A record that is no longer there has empty lines.
  [[nodiscard]] std::vector<std::string> lines(std::size_t first, std::size_t count) const override;

  [[nodiscard]] std::size_t records() const { return records_; }
  /// Why a part of the logbook is not among the lines that were given out; kOther also when the
  /// file has become shorter meanwhile.
  [[nodiscard]] platform::FileError error() const;

 private:
  struct Record {
    std::string columns;     ///< the first of them, without a line end
    std::uint64_t next = 0;  ///< where the line behind it begins
  };
  /// A place from which to go on: the first line of record `record` (from 0) is not before `place`.
  struct Mark {
    std::size_t record = 0;
    std::uint64_t place = 0;
  };

  [[nodiscard]] std::optional<Record> record_from(std::uint64_t place) const;
  [[nodiscard]] Mark mark_before(std::size_t record) const;

  std::vector<std::string> heading_;
  mutable Pieces pieces_;
  std::size_t records_ = 0;
  std::vector<std::uint64_t> marks_;  ///< of the records 0, stride_, 2 * stride_, …
  std::size_t stride_ = 1;
  mutable Mark last_;  ///< the record that was given out last
  mutable bool shortened_ = false;
};

}  // namespace archive
