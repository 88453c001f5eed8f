#pragma once
// The texts that are printed, as one string each, lines separated by "\r\n": a single report, all
// reports one after another, and what stands around the records of a logbook. Text that comes out
// of a file is plain ASCII afterwards: whatever else a damaged file holds is a "?" in its place, so
// that columns stay in line.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports.h"

namespace archive {

/// "20141105_0905", local time, for the names of files.
[[nodiscard]] std::string stamp(const platform::DateTime& time);

/// The lines of a text, without the empty ones at its end, which would only cost a page.
[[nodiscard]] std::vector<std::string> lines_of(std::string_view text);

/// A report file's text as it is printed: section 2 ("222…") begins a new line, `indent` blanks
/// further in, unless it stands so early that it cannot be section 2; the word ICE between two blanks
/// on each side goes. Line ends of the file itself, of whatever kind, become "\r\n"; those at its
/// end go.
[[nodiscard]] std::string prepared_report(std::string_view text, std::size_t indent);

/// Heading, ruler and text of one report.
[[nodiscard]] std::string single_report_text(std::string_view file_name, std::string_view text,
                                             const platform::DateTime& now);

/// A report among all reports: the file's name, wide enough that the text stands under the ruler,
/// and the text, section 2 on a line of its own under it. A file that could not be read has no text.
[[nodiscard]] std::string report_block(std::string_view file_name, std::string_view text);

/// Heading and ruler above the blocks. Empty when there are none.
[[nodiscard]] std::string all_reports_text(std::span<const std::string* const> blocks,
                                           const platform::DateTime& now);

/// The two lines above the records of a logbook.
[[nodiscard]] std::vector<std::string> logbook_heading(const platform::DateTime& now);

/// Columns of a logbook record that are printed, and those that the shortest printed line has.
inline constexpr std::size_t kPrintedColumns = 172;
inline constexpr std::size_t kLeastColumns = 108;
inline constexpr std::size_t kLinesOfRecord = 3;

/// The record with this number (from 1), folded into kLinesOfRecord lines. `record` has no line end;
/// what it has behind kPrintedColumns is cut off.
[[nodiscard]] std::vector<std::string> logbook_lines(std::size_t number, std::string_view record);

}  // namespace archive
