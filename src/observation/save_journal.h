#pragma once
// What a save notes beside the logbook before it touches it, so that whoever finds the two files of
// a save half done can finish it or take it back. Text in, text out; no file is touched here.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"

namespace observation {

/// Names that no search for reports or logbooks matches.
inline constexpr std::string_view kJournalName = ".kavrel-save";
inline constexpr std::string_view kDamagedJournalName = ".kavrel-save-damaged";

/// A content as the journal knows it again.
struct Mark {
  std::uint64_t length = 0;
  std::uint64_t checksum = 0;
  bool operator==(const Mark&) const = default;
};
[[nodiscard]] Mark mark_of(std::string_view content);

struct Journal {
  std::string folder;       ///< of the reports, as the save had it
  std::string report;       ///< name of the report, without a folder
  std::string staged;       ///< name of the staged report, without a folder
  bool replace = false;     ///< a report of that name may be replaced
  bool log_existed = true;  ///< there was a logbook
  std::uint64_t log_size = 0;
  std::string appended;  ///< all that goes behind those bytes
  Mark content;          ///< of the report
  bool operator==(const Journal&) const = default;
};

/// True for what report_file_name() makes of an observation that has a date: figures and ".tlx".
[[nodiscard]] bool is_report_name(std::string_view name);

[[nodiscard]] std::string write_journal(const Journal& journal);
/// Nothing for whatever write_journal() did not write, whole, in this version: a journal that was
/// damaged, or made to rename or remove another file, is no journal.
[[nodiscard]] std::optional<Journal> read_journal(std::string_view text);

/// What lies in the logbook behind the bytes that were there before the save.
enum class LineFound {
  kNone,      ///< nothing
  kPart,      ///< the beginning of what was appended, and nothing behind it
  kLast,      ///< all of it, and nothing behind it
  kFollowed,  ///< all of it, and more behind it
  kForeign,   ///< something else, or the logbook is shorter than it was
};
/// `size` is that of the logbook, `behind` what it holds from journal.log_size on, at least as many
/// bytes as were appended when there are so many. A power failure may leave zeros where the rest of
/// a line should be.
[[nodiscard]] LineFound line_found(const Journal& journal, std::uint64_t size,
                                   std::string_view behind);

struct Found {
  LineFound line = LineFound::kNone;
  bool report_is_it = false;  ///< the report in its place has the content of this save
  bool staged_is_it = false;  ///< the staged report is there, and has it
};

enum class Repair {
  kDone,        ///< both are there: only the journal is left over
  kFinish,      ///< the line is there: rename the staged report
  kTakeBack,    ///< cut the logbook back and discard the staged report
  kLeaveLine,   ///< the line is there, and the report as it was saved is not (any more)
  kDoNotTrust,  ///< the journal does not tell of this logbook
};
[[nodiscard]] Repair decide(const Found& found);

}  // namespace observation
