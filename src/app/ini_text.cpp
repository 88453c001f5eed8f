#include "app/ini_text.h"

#include <algorithm>

#include "text/strings.h"

namespace app {

namespace {

bool is_header(std::string_view line) {
  return line.size() >= 2 && line.front() == '[' && line.back() == ']';
}

IniEntry entry_of(std::string_view line) {
  const auto at = line.find('=');
  if (at == std::string_view::npos) return {std::string(line), {}};
  return {std::string(line.substr(0, at)), std::string(line.substr(at + 1))};
}

}  // namespace

std::vector<IniSection> parse_ini(std::string_view text) {
  std::vector<IniSection> sections;
  text = text::without_byte_order_mark(text);
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    auto line = text.substr(0, end);
    text.remove_prefix(std::min(text.size(), end + 1));
    // However many there are: read again after a save, a value must be the same.
    while (line.ends_with('\r')) line.remove_suffix(1);
    if (is_header(line)) {
      sections.push_back({true, std::string(line.substr(1, line.size() - 2)), {}});
      continue;
    }
    if (sections.empty()) sections.emplace_back();
    sections.back().entries.push_back(entry_of(line));
  }
  return sections;
}

std::string write_ini(const std::vector<IniSection>& sections) {
  std::string text;
  for (const IniSection& section : sections) {
    if (section.named) text.append("[").append(section.name).append("]\n");
    for (const IniEntry& entry : section.entries)
      // A line that had no "=" gets one, as it always has.
      text.append(entry.key).append(entry.key.empty() ? "" : "=").append(entry.value).append("\n");
  }
  return text;
}

std::string_view without_comment(std::string_view value) {
  return value.substr(0, value.rfind(';'));
}

}  // namespace app
