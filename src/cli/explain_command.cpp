#include <iostream>
#include <optional>

#include "cli/commands.h"
#include "cli/observations.h"
#include "cli/reports.h"
#include "explain/plain/plain_words.h"
#include "observation/report_reader.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace cli {
namespace {

constexpr const char* kUsage = "kavrel-cli explain [--language en|ja] [--date YYYY-MM] [FILE]";

explain::YearMonth year_month(std::string_view date) {
  return {text::leading_int(date.substr(0, 4)), text::leading_int(date.substr(5))};
}

/// What the words of the command say.
struct Wanted {
  text::Language language = text::Language::kEnglish;
  std::optional<explain::YearMonth> when;
  std::string file;
  std::string wrong;  ///< why they cannot be followed
};

Wanted wanted_by(const std::vector<std::string>& arguments) {
  Wanted wanted;
  for (std::size_t i = 0; i < arguments.size() && wanted.wrong.empty(); ++i) {
    const std::string& word = arguments[i];
    const std::string value = i + 1 < arguments.size() ? arguments[i + 1] : std::string();
    if (word == "--language") {
      ++i;
      if (value.empty())
        wanted.wrong = "--language wants en or ja";
      else if (value != "en" && value != "ja")
        wanted.wrong = "unknown language " + value;
      wanted.language = value == "ja" ? text::Language::kJapanese : text::Language::kEnglish;
    } else if (word == "--date") {
      ++i;
      if (is_year_and_month(value))
        wanted.when = year_month(value);
      else
        wanted.wrong = "--date is a year and a month, YYYY-MM";
    } else if (word.starts_with("--") || !wanted.file.empty()) {
      wanted.wrong = "unknown argument " + word;
    } else {
      wanted.file = word;
    }
  }
  return wanted;
}

}  // namespace

int explain_command(const std::vector<std::string>& arguments) {
  const Wanted wanted = wanted_by(arguments);
  if (!wanted.wrong.empty()) return usage(wanted.wrong, kUsage);
  const explain::YearMonth when = wanted.when.value_or(explain::year_month_of(wanted.file));
  Input input(wanted.file);
  bool first = true;
  const auto explain_report = [&](std::string_view text) {
    if (!first) std::cout << "\n";
    first = false;
    std::cout << explain::aligned(explain::plain_words(text, when, wanted.language));
  };
  const auto name_outside = [&](std::string_view text) {
    const std::string_view line = text::trim(text);
    if (line.empty()) return;
    std::cout << shown(line) << "  "
              << text::bilingual(observation::words_of(observation::Unplaced::kOutsideReport),
                                 wanted.language)
              << "\n";
  };
  return for_each_report(input, explain_report, name_outside);
}

}  // namespace cli
