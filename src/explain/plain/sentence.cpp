#include "explain/plain/sentence.h"

#include <algorithm>
#include <utility>

#include "codetables/tables/code_tables.h"
#include "codetables/tables/wind_figures.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace explain {
namespace {

namespace id = text::id;

constexpr bool is_small(char c) {
  return c >= 'a' && c <= 'z';
}
constexpr bool is_capital(char c) {
  return c >= 'A' && c <= 'Z';
}

// "10 km" of "10km".
std::string spaced(std::string_view quantity) {
  const auto unit = quantity.find_first_not_of("0123456789.");
  std::string text(quantity.substr(0, unit));
  if (unit == std::string_view::npos) return text;
  if (quantity[unit] != ' ') text.push_back(' ');
  return text.append(quantity.substr(unit));
}

// The limits of a class of heights or distances as words. The tables have them for a drop-down:
// "10km<=VV<20km", "VV<50m", "2500m<=h, or no clouds"; a text without limits comes back as it is.
std::string limits_in_words(const Sentence& sentence, std::string meaning,
                            std::string_view symbol) {
  constexpr std::string_view kNotAbove = "<=";
  const std::string limits = text::replace_all(meaning, "≦", kNotAbove);
  std::string beyond(symbol);
  beyond.push_back('<');
  const auto under = limits.find(beyond);
  std::string from(kNotAbove);
  from.append(symbol);
  const auto at_least = limits.find(from);
  const bool english = sentence.language() == text::Language::kEnglish;
  const auto quantity = [english](std::string_view text) {
    return english ? spaced(text) : std::string(text);
  };
  if (under == std::string::npos && at_least == std::string::npos) return meaning;
  if (under == std::string::npos) {
    const std::string_view rest = std::string_view(limits).substr(at_least + from.size());
    return sentence.filled(id::kPlainAtLeast,
                           {quantity(std::string_view(limits).substr(0, at_least)), rest});
  }
  const std::string high = quantity(std::string_view(limits).substr(under + beyond.size()));
  if (at_least == std::string::npos) return sentence.filled(id::kPlainUnder, {high});
  return sentence.filled(id::kPlainFromTo,
                         {quantity(std::string_view(limits).substr(0, at_least)), high});
}

// In a list the words of a table stand under a heading, which some repeat in brackets: "Clouds
// generally dissolving … (Characteristic change of the state of sky)". Said alone it tells nothing.
// "9/10 or more (, but not 10/10)" lacks what stood in front of its comma.
void take_brackets_of_a_list(const Sentence& sentence, std::string_view symbol, std::string& says) {
  if (symbol == "ww") {
    // "00-03  Characteristic change of the state of sky"
    std::string_view heading = text::trim(sentence.get(id::kPresentWeatherGroup00));
    heading.remove_prefix(std::min(heading.find(' '), heading.size()));
    const bool english = sentence.language() == text::Language::kEnglish;
    const std::string_view open = english ? " (" : "（";
    const std::string_view close = english ? ")" : "）";
    std::string bracket(open);
    bracket.append(text::trim(heading)).append(close);
    if (says.ends_with(bracket)) says.erase(says.size() - bracket.size());
  }
  constexpr std::string_view kDangling = "(, ";
  if (const auto at = says.find(kDangling); at != std::string::npos)
    says.erase(at + 1, kDangling.size() - 1);
}

// Figures whose words name the element themselves: "No CL clouds", "Icing from ocean spray".
bool names_its_element(std::string_view symbol, std::string_view figures) {
  struct Row {
    std::string_view symbol;
    std::string_view figures;
  };
  constexpr Row kRows[] = {{"CL", "0"},     {"CM", "0"},      {"CH", "0"}, {"Is", "12345"},
                           {"Rs", "01234"}, {"ci", "016789"}, {"bi", "0"}, {"Di", "12345678"}};
  return std::any_of(std::begin(kRows), std::end(kRows), [&](const Row& row) {
    return row.symbol == symbol && row.figures.find(figures) != std::string_view::npos;
  });
}

// How much of the words the end of the name tells already: "concentration" of "sea ice
// concentration" and "concentration less than 3/10". Whole words only; in Japanese two characters
// at least, for single ones meet by chance.
std::size_t repeated_at(std::string_view name, std::string_view words) {
  constexpr std::size_t kTwoCharacters = 6;
  for (std::size_t at = 0; at + kTwoCharacters <= name.size(); ++at) {
    const std::string_view end = name.substr(at);
    if (!words.starts_with(end)) continue;
    const bool is_latin = is_small(end.front());
    if (is_latin && at > 0 && name[at - 1] != ' ') continue;
    if (is_latin && !words.substr(end.size()).starts_with(' ')) continue;
    return end.size();
  }
  return 0;
}

}  // namespace

bool is_not_reported(std::string_view figures) {
  return figures.find_first_not_of('/') == std::string_view::npos;
}

std::string speed_words(const Sentence& sentence, const Heard& heard, double speed) {
  const std::string figures = text::format_fixed(speed, 0);
  const std::string& iw = heard.record.iw;
  const auto knots = codetables::knots_of(figures, iw);
  if (!sentence.meaning_of("iw", iw) || !knots) return sentence.filled(id::kPlainNoUnit, {figures});
  const text::Id words = codetables::is_metres_per_second(iw) ? id::kPlainMetresPerSecond
                         : figures == "1"                     ? id::kPlainOneKnot
                                                              : id::kPlainKnots;
  return sentence.filled(words, {figures, text::format_int(codetables::beaufort_force(*knots))});
}

std::string Sentence::within(std::string words) {
  const bool is_word = words.size() > 2 && is_capital(words[0]) && is_small(words[1]) &&
                       (is_small(words[2]) || words[2] == ' ');
  const bool is_cloud =
      words.size() > 2 && words[2] == ' ' && !words.starts_with("No ") && !words.starts_with("Up ");
  if (is_word && !is_cloud) words[0] = static_cast<char>(words[0] - 'A' + 'a');
  return words;
}

void Sentence::say(std::string_view piece) {
  fill_in(piece, {});
}

void Sentence::say(text::Id id, std::initializer_list<std::string_view> arguments) {
  fill_in(get(id), arguments);
}

void Sentence::fill_in(std::string_view format, std::initializer_list<std::string_view> arguments) {
  if (!text_.empty()) text_.append(get(id::kPlainBetween));
  const std::size_t start = text_.size();
  text::append_filled(text_, format, arguments);
  if (start < text_.size() && is_small(text_[start]))
    text_[start] = static_cast<char>(text_[start] - 'a' + 'A');
  said_ = true;
}

void Sentence::not_reported(text::Id name) {
  if (!missing_.empty()) missing_.append(get(id::kSpokenBetween));
  missing_.append(get(name));
}

void Sentence::unusual(text::Id why, std::initializer_list<std::string_view> arguments) {
  say(id::kPlainUnusual, {filled(why, arguments)});
  unusual_ = true;
}

void Sentence::unreadable(text::Id name, std::string_view figures) {
  say(id::kPlainUnreadable, {get(name), figures});
  wrong_ = true;
}

void Sentence::impossible(text::Id name, std::string_view figures) {
  say(id::kPlainImpossible, {get(name), figures});
  wrong_ = true;
}

std::optional<std::string> Sentence::meaning_of(std::string_view symbol,
                                                std::string_view figures) const {
  auto words = codetables::meaning(*codetables::table_of(symbol), figures, language_);
  if (!words) return std::nullopt;
  std::string says(text::trim(*words));
  // Long lines of a table are broken for their dialog.
  std::replace(says.begin(), says.end(), '\n', ' ');
  if (symbol == "VV" || symbol == "h")
    return within(limits_in_words(*this, std::move(says), symbol));
  take_brackets_of_a_list(*this, symbol, says);
  return within(std::move(says));
}

void Sentence::code(text::Id name, std::string_view symbol, std::string_view figures) {
  if (is_not_reported(figures)) {
    not_reported(name);
  } else if (const auto words = meaning_of(symbol, figures)) {
    if (names_its_element(symbol, figures))
      say(*words);
    else if (const auto repeated = repeated_at(get(name), *words); repeated > 0)
      say(std::string(get(name)).append(*words, repeated));
    else
      say(id::kPlainColon, {get(name), *words});
  } else if (!text::is_all_digits(figures)) {
    unreadable(name, figures);
  } else {
    say(id::kPlainNoCode, {get(name), figures});
    wrong_ = true;
  }
}

void Sentence::meaning(text::Id name, std::string_view symbol, std::string_view figures) {
  const auto words = is_not_reported(figures) ? std::nullopt : meaning_of(symbol, figures);
  if (words)
    say(*words);
  else
    code(name, symbol, figures);
}

std::string_view Sentence::point(int degrees) const {
  constexpr int kPoints = 16;
  constexpr int kHalfDegreesInAPoint = 45;
  const int point = (degrees * 2 + kHalfDegreesInAPoint / 2) / kHalfDegreesInAPoint % kPoints;
  return get(id::kPlainNorth + point);
}

std::string Sentence::degrees(int degrees) {
  return text::format_int(degrees, 3, '0');
}

std::string Sentence::compass(int degrees) const {
  return filled(id::kPlainPoint, {point(degrees), Sentence::degrees(degrees)});
}

Told Sentence::told() const {
  if (wrong_) return Told::kNotUnderstood;
  if (unusual_) return Told::kUnusual;
  return said_ || missing_.empty() ? Told::kSaid : Told::kNotReported;
}

std::string Sentence::take() {
  if (!missing_.empty()) say(id::kPlainNotReported, {missing_});
  if (!text_.empty()) text_.append(text::trim(get(id::kPlainBetween)));
  return std::move(text_);
}

}  // namespace explain
