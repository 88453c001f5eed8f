#include "explain/plain/plain_words.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "explain/plain/group_words.h"
#include "explain/plain/other_groups.h"
#include "explain/plain/sentence.h"
#include "observation/report_file.h"
#include "observation/report_groups.h"
#include "observation/report_reader.h"
#include "observation/report_text.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace explain {
namespace {

namespace id = text::id;
using observation::Group;
using observation::GroupSet;
using observation::ReadWord;
using observation::Unplaced;

// A text of a report on one line, its control characters and line ends as blanks.
std::string on_one_line(std::string_view text) {
  std::string line(text);
  std::replace_if(line.begin(), line.end(), text::is_control, ' ');
  return line;
}

/// Puts the lines of a report together, in its order.
class Telling {
 public:
  Telling(const Heard& heard, const std::vector<ReadWord>& words, text::Language language)
      : heard_(heard), words_(words), language_(language) {
    lines_.reserve(words.size() + 4);
    for (const ReadWord& word : words)
      if (const auto group = meant_by(word)) meant_.insert(*group);
  }

  /// `before`: the first word stands in front of the report.
  std::vector<PlainLine> tell(bool before) {
    if (before) tell_unplaced(words_[at_++]);
    begin();
    for (; at_ < words_.size(); ++at_) {
      const ReadWord& word = words_[at_];
      if (!word.why) {
        tell_word(word);
        continue;
      }
      if (*word.why == Unplaced::kOutsideReport) tell_missing(observation::kGroups);
      tell_unplaced(word);
    }
    tell_missing(observation::kGroups);
    return std::move(lines_);
  }

 private:
  void begin() {
    Sentence sentence(language_);
    sentence.say(id::kPlainReport);
    add("BBXX", sentence);
    // Something stands in its place, if only a word that is none.
    const bool has_call_sign = at_ < words_.size() && !words_[at_].group &&
                               (!words_[at_].why || *words_[at_].why == Unplaced::kCallSign);
    if (has_call_sign) return;
    Sentence missing(language_);
    missing.not_reported(id::kPlainNameCallSign);
    add({}, missing);
  }

  void add(std::string_view group, Sentence& sentence, GroupSet of = {}) {
    const Told told = sentence.told();
    lines_.push_back({on_one_line(group), sentence.take(), told, of});
  }

  void tell_word(const ReadWord& word) {
    Sentence sentence(language_);
    GroupSet of;
    if (word.group) {
      tell_missing(static_cast<std::size_t>(*word.group));
      say_group(sentence, heard_, *word.group);
      of.insert(*word.group);
    } else {
      sentence.say(id::kPlainCallSign, {word.text});
    }
    add(word.text, sentence, of);
  }

  void tell_unplaced(const ReadWord& word) {
    Sentence sentence(language_);
    Told told = Told::kNotUnderstood;
    if (*word.why == Unplaced::kOtherSection) {
      told = say_later_section(sentence, word.text);
    } else if (*word.why == Unplaced::kNoField) {
      told = say_without_field(sentence, word);
    } else if (*word.why == Unplaced::kIcePlainText) {
      told = say_ice(sentence, word.text);
    } else {
      sentence.say(sentence.get(observation::words_of(*word.why)));
      if (*word.why == Unplaced::kOutsideReport) told = Told::kNoPlace;
    }
    lines_.push_back({on_one_line(word.text), sentence.take(), told, {}});
  }

  // Solidi behind ICE, though not five of them, are no plain language.
  static Told say_ice(Sentence& sentence, std::string_view word) {
    constexpr std::string_view kIce = "ICE";
    if (word.find_first_not_of("/ ", kIce.size()) == std::string_view::npos) {
      sentence.not_reported(id::kPlainNameIce);
      return sentence.told();
    }
    sentence.say(id::kPlainPlainLanguage);
    return Told::kNoPlace;
  }

  Told say_later_section(Sentence& sentence, std::string_view word) {
    struct Mark {
      std::string_view word;
      Section section;
      text::Id name;
    };
    constexpr Mark kMarks[] = {{"333", Section::kThree, id::kPlainSection3},
                               {"444", Section::kFour, id::kPlainSection4},
                               {"555", Section::kFive, id::kPlainSection5}};
    const auto* const mark = std::find_if(std::begin(kMarks), std::end(kMarks),
                                          [&](const Mark& each) { return each.word == word; });
    if (mark != std::end(kMarks)) {
      tell_missing(observation::kGroups);
      later_ = mark->section;
      sentence.say(mark->name);
      return Told::kNoPlace;
    }
    if (!observation::is_group(word)) {
      sentence.say(sentence.get(observation::words_of(Unplaced::kNotAGroup)));
      return Told::kNotUnderstood;
    }
    return say_other(sentence, later_, word);
  }

  Told say_without_field(Sentence& sentence, const ReadWord& word) const {
    const Told told =
        say_other(sentence, word.in_section_2 ? Section::kTwo : Section::kOne, word.text);
    if (told == Told::kNoPlace)
      sentence.say(sentence.get(observation::words_of(Unplaced::kNoField)));
    return told;
  }

  Told say_other(Sentence& sentence, Section section, std::string_view word) const {
    const std::string_view before =
        at_ == 0 ? std::string_view() : std::string_view(words_[at_ - 1].text);
    say_other_group(sentence, heard_, section, word, before);
    const Told told = sentence.told();
    return told == Told::kSaid ? Told::kNoPlace : told;
  }

  // One line for all usual groups up to `beyond` that are not there.
  void tell_missing(std::size_t beyond) {
    Sentence sentence(language_);
    GroupSet of;
    for (; asked_ < beyond; ++asked_) {
      const auto group = static_cast<Group>(asked_);
      if (meant_.contains(group) || !is_usual(heard_, group)) continue;
      sentence.not_reported(name_of_missing(group));
      of.insert(group);
    }
    if (!of.empty()) add({}, sentence, of);
  }

  // The group that a word is, or that a damaged one was meant for: of such a one nobody can say that
  // it is not reported.
  std::optional<Group> meant_by(const ReadWord& word) {
    if (word.group) return word.group;
    if (!word.why) return std::nullopt;
    if (*word.why != Unplaced::kNotAGroup && *word.why != Unplaced::kOutOfRange &&
        *word.why != Unplaced::kNoField)
      return std::nullopt;
    const Group first = word.in_section_2 ? Group::k222DsVs : Group::k1SnTTT;
    const Group last = word.in_section_2 ? Group::kICE : Group::k9GGgg;
    for (auto at = static_cast<std::size_t>(first); at <= static_cast<std::size_t>(last); ++at) {
      const observation::GroupRow& row = observation::group_rows()[at];
      if (word.text.starts_with(row.indicator)) return row.group;
    }
    return std::nullopt;
  }

  const Heard& heard_;
  const std::vector<ReadWord>& words_;
  text::Language language_;
  std::vector<PlainLine> lines_;
  GroupSet meant_;
  std::size_t at_ = 0;
  std::size_t asked_ = 0;  ///< the first group that nobody asked for yet
  Section later_ = Section::kThree;
};

}  // namespace

std::vector<PlainLine> plain_words(std::string_view report, YearMonth when,
                                   text::Language language) {
  // A ship's own indicators must not stand in for those that a report lacks.
  static const Struct_Weather kNothing = [] {
    Struct_Weather nothing{ShipFixedData(), KeyObservationItems()};
    for (const WeatherField& field : weather_fields()) (nothing.*field.member).clear();
    return nothing;
  }();
  constexpr std::size_t kUsualWords = 40;
  std::vector<ReadWord> words;
  words.reserve(kUsualWords);
  const auto read = observation::read_report(report, kNothing, &words);
  if (!read) return {};
  const observation::Values values = observation::values_of(read->record);
  const bool before = !observation::find_report(report)->before.empty();
  return Telling({read->record, values, when}, words, language).tell(before);
}

YearMonth year_month_of(std::string_view file_name) {
  const auto date = observation::report_date(file_name);
  if (!date) return {};
  const YearMonth when{text::leading_int(date->year), text::leading_int(date->month)};
  constexpr int kMonths = 12;
  return when.month >= 1 && when.month <= kMonths ? when : YearMonth{};
}

std::string aligned(const std::vector<PlainLine>& lines) {
  constexpr std::size_t kWidest = 11;
  std::size_t width = 0;
  for (const PlainLine& line : lines)
    if (line.group.size() <= kWidest) width = std::max(width, line.group.size());
  std::string text;
  for (const PlainLine& line : lines) {
    text.append(line.group);
    // A text that is longer than any group stands in a line of its own.
    if (line.group.size() > width)
      text.append("\n").append(width + 2, ' ');
    else
      text.append(width + 2 - line.group.size(), ' ');
    text.append(line.sentence).append("\n");
  }
  return text;
}

}  // namespace explain
