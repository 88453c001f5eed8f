#include "codetables/tables/humidity_figures.h"

#include "codetables/tables/temperature_figures.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {

HumidityTexts humidity_texts(Percent humidity) {
  HumidityTexts texts;
  texts.display = zero_filled_tenths(humidity.value);
  texts.logbook = texts.display.size() == 4 ? "0" + texts.display : texts.display;
  std::erase(texts.logbook, '.');
  return texts;
}

std::string humidity_of_logbook(std::string_view figures) {
  if (!text::is_all_digits(figures)) return {};
  return text::format_fixed(text::leading_int(figures) / 10.0, 1, 4, '0');
}

HumidityCheck check_humidity(std::string_view text, bool whole_percent) {
  if (!text::is_number(text, text::kSignedDecimal)) return HumidityCheck::kNotANumber;
  // A humidity of the form may carry its decimal ("53.0"); in whole percent it must then be 0.
  const auto point = text.find('.');
  if (whole_percent && point != std::string_view::npos &&
      text.find_first_not_of('0', point + 1) != std::string_view::npos)
    return HumidityCheck::kNotANumber;
  const bool negative = text.starts_with('-');
  return !negative && text::leading_number(text) <= 100.0 ? HumidityCheck::kAccepted
                                                          : HumidityCheck::kOutOfRange;
}

std::string shown_humidity(std::string_view text, bool whole_percent) {
  text = text::trim(text);
  if (text.empty()) return {};
  if (whole_percent) return text::format_int(text::leading_int(text), 2, '0');
  return text::format_fixed(text::leading_number(text), 1, 4, '0');
}

}  // namespace codetables
