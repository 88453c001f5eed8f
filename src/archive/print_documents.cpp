#include "archive/print_documents.h"

#include <algorithm>

#include "archive/report_list.h"
#include "text/numbers.h"
#include "text/strings.h"
#include "ui/printer.h"

namespace archive {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kTimeCaption = "         Print Date & Time     ";
constexpr std::string_view kFile = "File        ";
constexpr std::string_view kRuler =
    "....*....1....*....2....*....3....*....4....*....5....*....6....*....7....*....8";
// A printed column for each byte that is no printable ASCII, line ends apart.
constexpr char kUnprintable = '?';

bool is_printable(char c) {
  return c >= ' ' && c <= '~';
}

// "%<width>s"
std::string right_aligned(std::string_view text, std::size_t width) {
  std::string result(width - std::min(width, text.size()), ' ');
  return result.append(text);
}

std::string two_figures(int value) {
  return text::format_int(value, 2, '0');
}

std::string time_line(const platform::DateTime& now) {
  return std::string(kTimeCaption).append(file_time(now));
}

// What a file holds, each line end one "\n" and none at its end.
std::string as_lines(std::string_view text) {
  text = text::without_byte_order_mark(text);
  const auto last = text.find_last_not_of(kLineEnd);
  text = text.substr(0, last == std::string_view::npos ? 0 : last + 1);
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') continue;
    const bool ends_line = text[i] == '\n' || text[i] == '\r';
    result += ends_line ? '\n' : is_printable(text[i]) ? text[i] : kUnprintable;
  }
  return result;
}

// A name as it stands in a line; a name may hold even a line end.
std::string printable_name(std::string_view name) {
  std::string result(name);
  std::replace_if(result.begin(), result.end(), text::is_control, kUnprintable);
  return result;
}

}  // namespace

std::string stamp(const platform::DateTime& time) {
  return text::format_int(time.year) + two_figures(time.month) + two_figures(time.day) + "_" +
         two_figures(time.hour) + two_figures(time.minute);
}

std::vector<std::string> lines_of(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = std::min(text.find(kLineEnd), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + kLineEnd.size(), text.size()));
  }
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

// With "_" for every blank, as the rules are worded: an underscore of the file's own counts as a
// blank, and is printed as one.
std::string prepared_report(std::string_view text, std::size_t indent) {
  // Sections 0 and 1 have at least so many characters beside the call sign.
  constexpr std::size_t kFirstSections = 33;
  std::string result = text::replace_all(as_lines(text), " ", "_");
  const auto call_sign = result.find('_');
  const auto behind = result.find('_', call_sign == std::string::npos ? call_sign : call_sign + 1);
  if (behind != std::string::npos) {
    const auto section_2 = result.find("_222", behind - call_sign + kFirstSections);
    if (section_2 != std::string::npos)
      result.insert(section_2, std::string("\n").append(indent, ' '));
    result = text::replace_all(result, "__ICE__", "_");
  }
  return text::replace_all(text::replace_all(result, "_", " "), "\n", kLineEnd);
}

std::string single_report_text(std::string_view file_name, std::string_view text,
                               const platform::DateTime& now) {
  constexpr std::size_t kWidth = 60;
  std::string result(kFile);
  result.append(printable_name(file_name)).append(kLineEnd);
  result.append(right_aligned(time_line(now), kWidth)).append(kLineEnd).append(kLineEnd);
  result.append(kRuler).append(kLineEnd).append(kLineEnd);
  return result.append(prepared_report(text, 0));
}

std::string report_block(std::string_view file_name, std::string_view text) {
  std::string result = printable_name(file_name);
  // In columns of the paper: a Japanese character has two.
  result.append(kFile.size() - std::min(kFile.size(), ui::columns_of(result)), ' ');
  result.append(prepared_report(text, kFile.size()));
  return result.append(kLineEnd).append(kLineEnd);
}

std::string all_reports_text(std::span<const std::string* const> blocks,
                             const platform::DateTime& now) {
  constexpr std::size_t kWidth = 92;
  if (blocks.empty()) return {};
  std::string result = right_aligned(time_line(now), kWidth).append(kLineEnd);
  result.append(kFile).append(kRuler).append(kLineEnd);
  for (const std::string* const block : blocks) result.append(*block);
  return result;
}

std::vector<std::string> logbook_heading(const platform::DateTime& now) {
  constexpr std::size_t kWidth = 74;
  const std::string time = time_line(now);
  return {std::string("File   immt5.log").append(right_aligned(text::trim(time), kWidth)),
          std::string("Seq      ").append(kRuler)};
}

std::vector<std::string> logbook_lines(std::size_t number, std::string_view record) {
  constexpr std::size_t kMargin = 10;
  constexpr std::size_t kFold = 78;
  std::string columns(record.substr(0, kPrintedColumns));
  std::replace_if(
      columns.begin(), columns.end(), [](char c) { return !is_printable(c); }, kUnprintable);
  const std::string_view all = columns;
  std::string sequence = "  " + text::format_int(static_cast<long long>(number));
  sequence.append(kMargin - std::min(kMargin, sequence.size()), ' ');
  const std::string margin(kMargin, ' ');
  return {std::string(sequence).append(all.substr(0, kFold)),
          std::string(margin).append(all.substr(std::min(kFold, all.size()), kFold)),
          std::string(margin).append(all.substr(std::min(2 * kFold, all.size())))};
}

}  // namespace archive
