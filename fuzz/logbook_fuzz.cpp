// The logbook read back and checked: any bytes. What is read is written again as it stood, but for
// the columns that are named; the check of the same bytes says the same twice, in both languages.

#include "explain/log/logbook_check.h"
#include "fuzz.h"
#include "observation/logbook_encoder.h"
#include "observation/logbook_record.h"

namespace {

void read_back(std::string_view line) {
  const auto read = observation::record_of_line(line, {}, {});
  const auto columns = observation::LogbookLine::of(line);
  fuzz::expect(columns.has_value() || !read.has_value(), "a line of another length is not read",
               line);
  if (!read) return;
  const observation::LogbookSource source{read->record, read->ship, read->items};
  for (const observation::LogbookColumn& column : observation::logbook_columns()) {
    std::string again;
    observation::write_column(again, column, source);
    bool named = false;
    for (const auto* const each : read->unread) named = named || each == &column;
    fuzz::expect(named || again == columns->text_of(column), "a column is written again or named",
                 line, again);
  }
}

std::string check(std::string_view text, text::Language language) {
  std::string told;
  explain::LogbookCheck check(language, [&](const explain::Finding& finding) {
    told.append(finding.kind->name).append(finding.rule).append(finding.place.symbols);
    told.append(finding.text).append("\n");
  });
  while (!text.empty()) {
    const auto end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    read_back(line);
    check.take(line);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return told + check.finish().words();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Input input(data, size);
  const std::string_view text = input.text();
  const std::string told = check(text, text::Language::kEnglish);
  const std::string again = check(text, text::Language::kEnglish);
  fuzz::expect(told == again, "the same is told twice", told, again);
  (void)check(text, text::Language::kJapanese);
  return 0;
}
