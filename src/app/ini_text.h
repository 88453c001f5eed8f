#pragma once
// The text of a settings file as sections of entries, and back.
//
// A line "[NAME]" starts a section. Any other line is an entry: its key is the text before the
// first "=", its value the text after it. Comments have no grammar of their own: they are keys
// without a value, or the end of a value.

#include <string>
#include <string_view>
#include <vector>

namespace app {

struct IniEntry {
  std::string key;  ///< the whole line where there is no "="
  std::string value;
};

struct IniSection {
  bool named = false;  ///< false for the lines before the first header
  std::string name;
  std::vector<IniEntry> entries;
};

/// Any bytes are taken. Lines end in "\n" or "\r\n"; a byte order mark at the beginning is passed
/// over, for it would hide the first header.
[[nodiscard]] std::vector<IniSection> parse_ini(std::string_view text);

/// Each entry becomes key, "=" and value; the "=" is left out when the key is empty. So a line that
/// had no "=" comes back with one at its end, on purpose; an empty line stays empty.
[[nodiscard]] std::string write_ini(const std::vector<IniSection>& sections);

/// The value without its trailing comment: all from the last ";" on is cut off, nothing is trimmed.
[[nodiscard]] std::string_view without_comment(std::string_view value);

}  // namespace app
