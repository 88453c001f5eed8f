#include "archive/logbook_listing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "archive/print_documents.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"

namespace {

using archive::LogbookListing;
using platform::FileError;
using Lines = std::vector<std::string>;

constexpr platform::DateTime kNow{2014, 11, 15, 20, 50, 0};
constexpr const char* kLog = "C:\\log\\immt5.log";

// 172 characters that tell which record they are of.
std::string record(std::size_t number) {
  std::string text = std::to_string(number) + ":";
  for (std::size_t i = text.size(); i < 172; ++i)
    text += static_cast<char>('A' + (number + i) % 26);
  return text;
}

Lines all_of(const ui::Document& document) {
  return document.lines(0, document.size());
}

// What is printed of records with these texts, by the rules of logbook_lines().
Lines expected(const Lines& records) {
  Lines lines = archive::logbook_heading(kNow);
  for (std::size_t i = 0; i < records.size(); ++i) {
    for (std::string& line : archive::logbook_lines(i + 1, records[i]))
      lines.push_back(std::move(line));
  }
  return lines;
}

Lines listed(const std::string& content) {
  fakes::FakeFiles files;
  files.add_file(kLog, content);
  const LogbookListing listing(files, kLog, kNow);
  EXPECT_EQ(listing.error(), FileError::kNone);
  EXPECT_EQ(listing.size(), 2 + 3 * listing.records());
  Lines lines = all_of(listing);
  for (const std::string& line : lines) EXPECT_LE(ui::columns_of(line), listing.widest());
  return lines;
}

TEST(LogbookListing, NumbersTheRecordsThatAreLongEnough) {
  const std::string just = std::string(108, 'b');
  EXPECT_EQ(
      listed(record(1) + "\n" + std::string(107, 'a') + "\n" + just + "\n\n" + record(3) + "\n"),
      expected({record(1), just, record(3)}));
}

TEST(LogbookListing, LineEndsCountNothing) {
  const std::string short_one = std::string(107, 'a');
  const std::string just = std::string(108, 'b');
  EXPECT_EQ(listed(short_one + "\r\n" + just + "\r\n" + record(2) + "\r\n"),
            expected({just, record(2)}));
  // The last record may have no line end, or half of one.
  EXPECT_EQ(listed(record(1) + "\n" + record(2)), expected({record(1), record(2)}));
  EXPECT_EQ(listed(record(1) + "\n" + record(2) + "\r"), expected({record(1), record(2)}));
  EXPECT_EQ(listed(short_one + "\r"), expected({}));
  EXPECT_EQ(listed(short_one), expected({}));
  // Inside a record it is a character like others.
  EXPECT_EQ(listed(short_one + "\rX\n"), expected({short_one + "\rX"}));
}

TEST(LogbookListing, OfNoRecordsIsTheHeadingAlone) {
  for (const std::string content : {"", "\n", "\r\n\r\n", "x\n", "\n\n\n"})
    EXPECT_EQ(listed(content), expected({})) << testing::PrintToString(content);
}

TEST(LogbookListing, SurvivesWhateverTheFileHolds) {
  const std::string zeros(120, '\0');
  const std::string long_line(1 << 20, 'L');
  const std::string longer_line(5 << 20, 'M');
  EXPECT_EQ(listed(zeros + "\n" + long_line + "\r\n" + std::string(50, '\0') + "\n" + longer_line +
                   "\n" + record(4) + "\n"),
            expected({zeros, long_line.substr(0, 172), longer_line.substr(0, 172), record(4)}));
}

// Lengths around those that matter, with both line ends, so that the pieces in which the file is
// read end at every place of a record, of its line end and of what is skipped.
TEST(LogbookListing, IsTheSameWhereverAPieceEnds) {
  std::string content;
  Lines records;
  for (std::size_t i = 0; i < 40000; ++i) {
    constexpr std::size_t kLengths[] = {0, 1, 106, 107, 108, 109, 156, 171, 172, 173, 174, 300};
    std::string line = std::to_string(i);
    line.resize(kLengths[(i * 7) % std::size(kLengths)], static_cast<char>('a' + i % 26));
    content += line + (i % 3 == 0 ? "\r\n" : "\n");
    if (line.size() >= 108) records.push_back(line);
  }
  EXPECT_EQ(listed(content), expected(records));
}

TEST(LogbookListing, AnyPageInAnyOrderIsThatPartOfTheWhole) {
  fakes::FakeFiles files;
  std::string content;
  Lines records;
  for (std::size_t i = 1; i <= 5000; ++i) {
    content += record(i) + "\r\n";
    records.push_back(record(i));
  }
  files.add_file(kLog, content);
  const LogbookListing listing(files, kLog, kNow);
  const Lines whole = expected(records);
  const auto part = [&](std::size_t first, std::size_t count) {
    const std::size_t from = std::min(first, whole.size());
    const std::size_t to = std::min(from + count, whole.size());
    return Lines(whole.begin() + static_cast<std::ptrdiff_t>(from),
                 whole.begin() + static_cast<std::ptrdiff_t>(to));
  };
  for (std::size_t first = 0; first < whole.size() + 100; first += 58)
    ASSERT_EQ(listing.lines(first, 58), part(first, 58)) << first;
  for (std::size_t i = 0; i < 400; ++i) {
    const std::size_t first = i * 7919 % (whole.size() + 10);
    ASSERT_EQ(listing.lines(first, i % 70), part(first, i % 70)) << first;
  }
  for (const std::size_t first : {0UL, 1UL, 2UL, 3UL, 4UL, 15000UL, 15001UL, 15002UL, 99999UL})
    EXPECT_EQ(listing.lines(first, 5), part(first, 5)) << first;
  EXPECT_EQ(listing.error(), FileError::kNone);
}

// Counts what is read, and how much of it at once.
class CountingFiles : public fakes::NoFiles {
 public:
  explicit CountingFiles(std::size_t records) : count_(records) {}
  mutable std::uint64_t read_bytes = 0;
  mutable std::uint64_t largest = 0;

  // A logbook that exists nowhere as a whole: each record is its number and a row of points.
  [[nodiscard]] platform::Result<std::string> read_part(const std::string&, std::uint64_t from,
                                                        std::uint64_t count) const override {
    const std::uint64_t end = std::min<std::uint64_t>(from + count, count_ * kLine);
    std::string part;
    for (std::uint64_t at = from; at < end; at += kLine - at % kLine) {
      std::string line = std::to_string(at / kLine + 1);
      line.resize(kLine - 1, '.');
      line += '\n';
      const std::uint64_t begin = at % kLine;
      part += line.substr(begin, std::min(kLine - begin, end - at));
    }
    read_bytes += part.size();
    largest = std::max<std::uint64_t>(largest, count);
    return part;
  }

 private:
  static constexpr std::uint64_t kLine = 173;
  std::size_t count_;
};

TEST(LogbookListing, HoldsAndReadsNoMoreOfALongLogbookThanItShows) {
  constexpr std::size_t kRecords = 300000;
  const CountingFiles files(kRecords);
  const LogbookListing listing(files, kLog, kNow);
  ASSERT_EQ(listing.records(), kRecords);
  EXPECT_LE(files.largest, 1U << 20U);
  EXPECT_LE(files.read_bytes, 2 * kRecords * 173);
  // A page anywhere costs a piece or two, not the way there from the beginning.
  for (std::size_t page : {9000U, 20U, 14999U, 7500U, 1U}) {
    files.read_bytes = 0;
    const Lines lines = listing.lines(2 + page * 60, 60);
    ASSERT_EQ(lines.size(), 60U);
    const std::string number = std::to_string(page * 20 + 1);
    EXPECT_EQ(lines[0].substr(0, 10 + number.size()),
              ("  " + number + "        ").substr(0, 10) + number);
    EXPECT_LE(files.read_bytes, 1U << 20U) << page;
  }
}

// ---- A file that changes meanwhile

TEST(LogbookListing, KeepsItsSizeWhenTheFileGrows) {
  fakes::FakeFiles files;
  files.add_file(kLog, record(1) + "\n");
  const LogbookListing listing(files, kLog, kNow);
  files.add_file(kLog, record(1) + "\n" + record(2) + "\n");
  EXPECT_EQ(all_of(listing), expected({record(1)}));
  EXPECT_EQ(listing.error(), FileError::kNone);
}

// More records than one piece holds, so that the end has to be read anew.
std::string long_log(std::size_t records) {
  std::string content;
  for (std::size_t i = 1; i <= records; ++i) content += record(i) + "\n";
  return content;
}

TEST(LogbookListing, SaysSoWhenTheFileBecomesShorter) {
  constexpr std::size_t kRecords = 10000;
  fakes::FakeFiles files;
  files.add_file(kLog, long_log(kRecords));
  const LogbookListing listing(files, kLog, kNow);
  files.add_file(kLog, long_log(10));
  EXPECT_EQ(listing.size(), 2 + 3 * kRecords);
  const Lines first = listing.lines(0, 11);
  EXPECT_EQ(first, expected({record(1), record(2), record(3)}));
  EXPECT_EQ(listing.error(), FileError::kNone);
  const Lines last = listing.lines(2 + 3 * (kRecords - 1), 3);
  EXPECT_EQ(last, Lines(3));
  EXPECT_EQ(listing.error(), FileError::kOther);
  EXPECT_EQ(all_of(listing).size(), listing.size());
}

TEST(LogbookListing, SaysWhyWhenTheFileIsGone) {
  fakes::FakeFiles files;
  files.add_file(kLog, long_log(10000));
  const LogbookListing listing(files, kLog, kNow);
  ASSERT_EQ(files.remove(kLog), FileError::kNone);
  EXPECT_EQ(listing.lines(2, 3), Lines(3));
  EXPECT_EQ(listing.error(), FileError::kNotFound);
}

TEST(LogbookListing, OfAFileThatCannotBeReadIsTheHeadingAndTheReason) {
  const fakes::FakeFiles files;
  const LogbookListing listing(files, kLog, kNow);
  EXPECT_EQ(all_of(listing), expected({}));
  EXPECT_EQ(listing.error(), FileError::kNotFound);
}

}  // namespace
