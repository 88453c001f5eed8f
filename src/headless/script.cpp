#include "headless/script.h"

#include <algorithm>

#include "text/strings.h"
#include "ui/dump.h"

namespace headless {
namespace {

std::string_view without_indent(std::string_view line) {
  while (!line.empty() && (line.front() == ' ' || line.front() == '\t')) line.remove_prefix(1);
  return line;
}

// Place behind the closing quote of a text that begins with one; npos when it is not closed.
std::size_t end_of_quoted(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '\\') {
      ++i;
    } else if (text[i] == '"') {
      return i + 1;
    }
  }
  return std::string_view::npos;
}

int hex_digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// One escape, the backslash already taken; an unknown one stands for itself.
void take_escape(std::string_view& rest, std::string& out) {
  const char c = rest.front();
  rest.remove_prefix(1);
  if (c == 'n') {
    out += '\n';
  } else if (c == 'r') {
    out += '\r';
  } else if (c == 't') {
    out += '\t';
  } else if (c == 'u' && rest.starts_with("3000")) {
    out += "\u3000";
    rest.remove_prefix(4);
  } else if (c == 'x' && rest.size() >= 2 && hex_digit(rest[0]) >= 0 && hex_digit(rest[1]) >= 0) {
    out += static_cast<char>(hex_digit(rest[0]) * 16 + hex_digit(rest[1]));
    rest.remove_prefix(2);
  } else {
    if (c != '"' && c != '\\') out += '\\';
    out += c;
  }
}

std::string unescape(std::string_view inside) {
  std::string result;
  while (!inside.empty()) {
    const char c = inside.front();
    inside.remove_prefix(1);
    if (c == '\\' && !inside.empty()) {
      take_escape(inside, result);
    } else {
      result += c;
    }
  }
  return result;
}

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::string_view Line::verb() const {
  const std::string_view line = without_indent(text);
  if (line.starts_with('#')) return line.substr(0, 1);
  return line.substr(0, line.find_first_of(" \t"));
}

std::string_view Line::rest() const {
  const std::string_view line = without_indent(text);
  const auto at = line.find_first_of(" \t");
  return at == std::string_view::npos ? std::string_view() : line.substr(at + 1);
}

std::optional<Line> ScriptReader::next() {
  Line line;
  bool any = false;
  bool too_long = false;
  for (int c = source_.get(); c != std::istream::traits_type::eof(); c = source_.get()) {
    any = true;
    if (c == '\n') break;
    if (line.text.size() < kLongestLine) {
      line.text += static_cast<char>(c);
    } else {
      too_long = true;
    }
  }
  // A script that breaks off must not pass for one that ended.
  const bool unreadable = source_.bad();
  if (!any && !unreadable) return std::nullopt;
  line.number = ++number_;
  if (line.number == 1)
    line.text.erase(0, line.text.size() - text::without_byte_order_mark(line.text).size());
  if (line.text.ends_with('\r')) line.text.pop_back();
  if (unreadable) {
    line.unusable = "the script cannot be read";
  } else if (too_long) {
    line.unusable = "a line longer than " + std::to_string(kLongestLine) + " bytes";
  } else if (!ui::is_utf8(line.text)) {
    line.unusable = "bytes that are not UTF-8";
  }
  return line;
}

std::optional<NameAndText> split_name(std::string_view rest) {
  rest = without_indent(rest);
  if (rest.empty()) return std::nullopt;
  NameAndText result;
  std::size_t end = 0;
  if (rest.front() == '"') {
    end = end_of_quoted(rest);
    if (end == std::string_view::npos) return std::nullopt;
    result.is_label = true;
    result.name = unescape(rest.substr(1, end - 2));
  } else {
    end = std::min(rest.find_first_of(" \t"), rest.size());
    result.name = rest.substr(0, end);
  }
  if (end < rest.size()) result.text = rest.substr(end + 1);
  return result;
}

bool is_quoted(std::string_view written) {
  written = text::trim(written);
  return written.starts_with('"') && end_of_quoted(written) == written.size();
}

std::string plain_text(std::string_view written) {
  if (!is_quoted(written)) return std::string(written);
  written = text::trim(written);
  return unescape(written.substr(1, written.size() - 2));
}

bool same_word(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lower(x) == lower(y); });
}

}  // namespace headless
