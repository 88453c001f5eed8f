// Any bytes are read as a settings file. What is looked up is the same before and after writing and
// reading again, and a file written once is written the same ever after.

#include "app/CIniEx.h"
#include "app/ini_text.h"
#include "fuzz.h"

namespace {

using Sections = std::vector<app::IniSection>;

/// Lines that begin with "=" lose that sign each time they are written, as the format has it, and
/// may even become a header; the rules below hold for files without them.
bool has_line_without_key(const Sections& sections) {
  for (const auto& section : sections)
    for (const auto& entry : section.entries)
      if (entry.key.empty() && !entry.value.empty()) return true;
  return false;
}

void check_lookups(const Sections& before, const Sections& after) {
  fuzz::expect(before.size() == after.size(), "as many sections");
  for (std::size_t i = 0; i < before.size(); ++i) {
    fuzz::expect(before[i].name == after[i].name && before[i].named == after[i].named,
                 "same sections", before[i].name, after[i].name);
    fuzz::expect(before[i].entries.size() == after[i].entries.size(), "as many entries");
    for (std::size_t n = 0; n < before[i].entries.size(); ++n) {
      const auto& a = before[i].entries[n];
      const auto& b = after[i].entries[n];
      fuzz::expect(a.key == b.key, "same keys", a.key, b.key);
      fuzz::expect(app::without_comment(a.value) == app::without_comment(b.value), "same values",
                   a.value, b.value);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Input input(data, size);
  const Sections sections = app::parse_ini(input.text());
  const std::string written = app::write_ini(sections);
  if (has_line_without_key(sections)) return 0;
  const Sections again = app::parse_ini(written);
  check_lookups(sections, again);
  const std::string second = app::write_ini(again);
  fuzz::expect(second == written, "written the same ever after", written, second);
  return 0;
}
