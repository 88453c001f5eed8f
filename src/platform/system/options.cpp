#include "platform/system/options.h"

#include "platform/calendar.h"
#include "text/numbers.h"

namespace platform {

namespace {

constexpr unsigned kJapaneseLocale = 0x0411;
constexpr unsigned kEnglishLocale = 0x0409;

}  // namespace

std::optional<DateTime> parse_date_time(std::string_view text) {
  constexpr std::string_view kShape = "0000-00-00T00:00:00";
  constexpr std::size_t kWithoutSeconds = 16;
  if (text.size() != kShape.size() && text.size() != kWithoutSeconds) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (kShape[i] == '0' ? !digit : text[i] != kShape[i]) return std::nullopt;
  }
  const auto number = [&](std::size_t at, std::size_t length) {
    return at < text.size() ? text::leading_int(text.substr(at, length)) : 0;
  };
  const DateTime wanted{number(0, 4),  number(5, 2),  number(8, 2),
                        number(11, 2), number(14, 2), number(17, 2)};
  constexpr int kHours = 24;
  constexpr int kSixty = 60;
  const bool exists = is_calendar_date(wanted.year, wanted.month, wanted.day) &&
                      wanted.hour < kHours && wanted.minute < kSixty && wanted.second < kSixty;
  return exists ? std::optional(wanted) : std::nullopt;
}

std::optional<DateTime> given_time(const std::string& clock, std::vector<std::string>& problems) {
  auto time = parse_date_time(clock);
  if (!clock.empty() && !time)
    problems.push_back("--clock: \"" + clock + "\" is no time such as 2014-11-15T11:50");
  return time;
}

std::string no_folder_problem(const std::string& root) {
  return "--root: \"" + root + "\" is not a folder and could not be made one";
}

unsigned locale_id_of(std::string_view name) {
  // "ja_JP.UTF-8", "ja@..." and "ja-JP" are Japanese; "jam" is another language.
  const auto language = name.substr(0, name.find_first_of("_.@-"));
  return language == "ja" || language == "japanese" ? kJapaneseLocale : kEnglishLocale;
}

}  // namespace platform
