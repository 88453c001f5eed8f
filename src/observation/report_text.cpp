#include "observation/report_text.h"

#include <algorithm>
#include <cstdint>

#include "text/strings.h"

namespace observation {
namespace {

constexpr std::size_t kGroupWidth = 5;
constexpr std::size_t kFullStops = 5;

bool is_blank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');  // tab and the line and page ends
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

// Takes the next word off the text.
std::string_view take_word(std::string_view& rest, bool* line_broken = nullptr) {
  std::size_t start = 0;
  while (start < rest.size() && is_blank(rest[start])) {
    if (line_broken != nullptr && (rest[start] == '\n' || rest[start] == '\r')) *line_broken = true;
    ++start;
  }
  std::size_t end = start;
  while (end < rest.size() && !is_blank(rest[end])) ++end;
  const std::string_view word = rest.substr(start, end - start);
  rest.remove_prefix(end);
  return word;
}

// Length of the end mark at the end of a word, 0 when there is none.
std::size_t end_mark(std::string_view word) {
  // NNNN ends the line as a word of its own; "=" and full stops may stick to the last group.
  if (word == "NNNN") return word.size();
  if (word.ends_with('=')) return word.size() - (word.find_last_not_of('=') + 1);
  const std::size_t dots = word.size() - (word.find_last_not_of('.') + 1);
  return dots >= kFullStops ? dots : 0;
}

// Nearly every word may be a call sign, also one that ends a report when it stands elsewhere. It is
// one when what every report goes on with follows: YYGGiw and the group that begins with 99.
enum class CallSign : std::uint8_t { kNo, kYes, kTextTooShort };

CallSign begins_with_call_sign(std::string_view text) {
  Words words(text);
  (void)words.next();
  const Word day = words.next();
  if (day.empty()) return CallSign::kTextTooShort;
  if (!is_group(day.text())) return CallSign::kNo;
  const Word latitude = words.next();
  if (latitude.empty()) return CallSign::kTextTooShort;
  const std::string_view figures = latitude.text();
  return is_latitude_group(figures.substr(0, figures.size() - end_mark(figures))) ? CallSign::kYes
                                                                                  : CallSign::kNo;
}

}  // namespace

bool is_figures(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(),
                                      [](char c) { return (c >= '0' && c <= '9') || c == '/'; });
}

bool is_group(std::string_view word) {
  return word.size() == kGroupWidth && is_figures(word);
}

bool is_latitude_group(std::string_view word) {
  return is_group(word) && word.starts_with("99");
}

std::optional<FoundReport> find_report(std::string_view text) {
  FoundReport found;
  std::string_view rest = text::without_byte_order_mark(text);
  const std::string_view whole = rest;
  std::string_view word = take_word(rest);
  while (!word.empty() && word != "BBXX") word = take_word(rest);
  if (word.empty()) return std::nullopt;
  const auto offset = [&](std::string_view part) {
    return static_cast<std::size_t>(part.data() - text.data());
  };
  found.before = trimmed(whole.substr(0, offset(word) - offset(whole)));
  const std::string_view start = rest;
  found.body = start;
  found.length = text.size();
  for (bool first = true; !(word = take_word(rest)).empty(); first = false) {
    const bool next_report = word == "BBXX";
    const std::size_t mark = next_report ? 0 : end_mark(word);
    if (!next_report && mark == 0) continue;
    if (first) {
      const CallSign call_sign = begins_with_call_sign(text.substr(offset(word)));
      if (call_sign == CallSign::kYes) continue;
      found.open = call_sign == CallSign::kTextTooShort;
    }
    const std::size_t end = next_report ? offset(word) : offset(word) + word.size() - mark;
    found.body = start.substr(0, end - offset(start));
    found.after = trimmed(text.substr(end + mark));
    found.ended = true;
    found.length = end + mark;
    break;
  }
  found.body = trimmed(found.body);
  return found;
}

Word::Word(std::string_view first, std::string_view second) : is_joined_(true) {
  std::copy(second.begin(), second.end(), std::copy(first.begin(), first.end(), joined_.begin()));
}

std::string_view Word::text() const {
  return is_joined_ ? std::string_view(joined_.data(), joined_.size()) : text_;
}

std::string_view Words::take() {
  line_broken_ = false;
  return take_word(rest_, &line_broken_);
}

Word Words::next() {
  const std::string_view word = take();
  const bool first = first_;
  first_ = false;
  // The call sign is no group, and the section marks are whole with three figures.
  if (first || word.size() >= kGroupWidth || !is_figures(word) || word == "333" || word == "444" ||
      word == "555")
    return Word(word);
  const std::string_view before = rest_;
  const std::string_view following = take();
  if (line_broken_ && is_figures(following) && word.size() + following.size() == kGroupWidth)
    return {word, following};
  rest_ = before;
  return Word(word);
}

}  // namespace observation
