#include "ship/data/barometer_date.h"

#include "platform/calendar.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace {

constexpr int kFirstDay = 20000101;

}  // namespace

bool is_slashed_date(std::string_view text) {
  return text.size() == 10 && text[4] == '/' && text[7] == '/' &&
         text::is_all_digits(text.substr(0, 4)) && text::is_all_digits(text.substr(5, 2)) &&
         text::is_all_digits(text.substr(8));
}

bool is_check_date_missing(std::string_view text) {
  const std::string plain = text::without_spaces(text);
  return plain.empty() || plain == kCheckDatePlaceholder;
}

std::string normalised_check_date(std::string_view text) {
  std::string plain = text::without_spaces(text);
  const auto first = plain.find('/');
  const auto second = plain.find('/', first == std::string::npos ? first : first + 1);
  if (second == std::string::npos || plain.find('/', second + 1) != std::string::npos) return plain;
  std::string month = plain.substr(first + 1, second - first - 1);
  std::string day = plain.substr(second + 1);
  for (std::string* const part : {&month, &day}) {
    if (part->size() == 1 && text::is_all_digits(*part)) part->insert(0, 1, '0');
  }
  return plain.substr(0, first) + "/" + month + "/" + day;
}

bool is_check_date(std::string_view text, const platform::DateTime& today) {
  const std::string date = text::without_spaces(text);
  if (!is_slashed_date(date)) return false;
  const std::string_view figures = date;
  const int year = text::leading_int(figures.substr(0, 4));
  const int month = text::leading_int(figures.substr(5, 2));
  const int day = text::leading_int(figures.substr(8, 2));
  const int number = year * 10000 + month * 100 + day;
  if (number < kFirstDay || number > today.year * 10000 + today.month * 100 + today.day)
    return false;
  return platform::is_calendar_date(year, month, day);
}

std::string slashed_date(const platform::DateTime& date) {
  return text::format_digits(date.year, 4) + "/" + text::format_digits(date.month, 2) + "/" +
         text::format_digits(date.day, 2);
}
