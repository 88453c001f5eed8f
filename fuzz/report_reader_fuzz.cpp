// Any bytes are read; what was placed encodes to a report that reads back whole and encodes to the
// same bytes, and nothing of the text is lost: every word is placed or named, and told in plain words
// once.

#include <algorithm>

#include "explain/doubts/doubts.h"
#include "explain/plain/plain_words.h"
#include "fuzz.h"
#include "observation/report_encoder.h"
#include "observation/report_reader.h"
#include "observation/report_text.h"

namespace {

Struct_Weather blank() {
  Struct_Weather record({}, {});
  for (const WeatherField& field : weather_fields()) (record.*field.member).clear();
  return record;
}

std::string encode(Struct_Weather record) {
  // A new record has these two, and its encoder copies them as they stand.
  if (record.iR.empty()) record.iR = "4";
  if (record.iX.empty()) record.iX = "1";
  std::string message;
  std::string missing;
  observation::encode_report(record, message, missing, true, text::Language::kEnglish);
  return message;
}

std::size_t characters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return c != ' ' && !(c >= '\t' && c <= '\r'); }));
}

std::size_t placed_characters(const Struct_Weather& before, const Struct_Weather& record) {
  std::size_t sum = record.CallSign.size();
  const Struct_Weather& none = before;
  for (const auto& row : observation::group_rows()) {
    const auto used = row.used();
    const bool placed = std::any_of(used.begin(), used.end(), [&](const auto& symbol) {
      return record.*symbol.field != none.*symbol.field;
    });
    if (!placed) continue;
    sum += row.width();
    if (row.group == observation::Group::kICE) --sum;  // the blank behind the word
    // Minutes whose hour was not entered go out, and are read, as "930".
    if (row.group == observation::Group::k9GGgg && record.GGExact.empty()) sum -= 2;
  }
  return sum;
}

void expect_told(std::string_view text, const observation::ReadReport* read) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    const auto lines = explain::plain_words(text, {}, language);
    fuzz::expect(lines.empty() == (read == nullptr), "a report read is a report told");
    for (const explain::PlainLine& line : lines)
      fuzz::expect(!line.sentence.empty(), "every word has a sentence", line.group);
    if (read != nullptr)
      (void)explain::doubts_of(observation::values_of(read->record),
                               std::span<const observation::PastObservation>(), language);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Input input(data, size);
  (void)observation::read_report_position(input.text());
  const auto found = observation::find_report(input.text());
  const auto first = observation::read_report(input.text(), blank());
  fuzz::expect(found.has_value() == first.has_value(), "a report found is a report read");
  expect_told(input.text(), first ? &*first : nullptr);
  if (!first) return 0;

  std::size_t named = 0;
  for (const auto& each : first->unplaced)
    if (each.why != observation::Unplaced::kOutsideReport) named += characters(each.text);
  fuzz::expect(named + placed_characters(blank(), first->record) == characters(found->body),
               "every character of the body is placed or named", found->body);

  const std::string once = encode(first->record);
  const auto second = observation::read_report(once, blank());
  fuzz::expect(second.has_value(), "an encoded report is a report", once);
  fuzz::expect(second->unplaced.empty(), "an encoded report is placed whole", once,
               second->unplaced.empty() ? "" : second->unplaced.front().text);
  const std::string twice = encode(second->record);
  fuzz::expect(once == twice, "reading and encoding again changes nothing", once, twice);
  return 0;
}
