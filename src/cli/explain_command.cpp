#include <iostream>

#include "cli/commands.h"
#include "cli/observations.h"
#include "cli/reports.h"
#include "explain/plain/plain_words.h"
#include "observation/report_reader.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace cli {
namespace {

explain::YearMonth year_month(std::string_view date) {
  return {text::leading_int(date.substr(0, 4)), text::leading_int(date.substr(5))};
}

}  // namespace

int explain_command(const usage::Words& words) {
  const text::Language language = words.language();
  const explain::YearMonth when = words.has("--date") ? year_month(words.value("--date"))
                                                      : explain::year_month_of(words.file());
  Input input(words.file());
  bool first = true;
  const auto explain_report = [&](std::string_view text) {
    if (!first) std::cout << "\n";
    first = false;
    std::cout << explain::aligned(explain::plain_words(text, when, language));
  };
  const auto name_outside = [&](std::string_view text) {
    const std::string_view line = text::trim(text);
    if (line.empty()) return;
    std::cout << shown(line) << "  "
              << text::bilingual(observation::words_of(observation::Unplaced::kOutsideReport),
                                 language)
              << "\n";
  };
  return for_each_report(input, explain_report, name_outside);
}

}  // namespace cli
