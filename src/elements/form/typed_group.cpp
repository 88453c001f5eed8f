#include "elements/form/typed_group.h"

#include <algorithm>
#include <string>
#include <utility>

#include "codetables/tables/minutes.h"
#include "codetables/tables/quadrant.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "elements/form/cross_rules.h"
#include "elements/form/entry_check.h"
#include "elements/form/field_codes.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

namespace id = text::id;
using observation::Figures;
using observation::Group;
using observation::GroupRow;
using observation::Symbol;
using W = Struct_Weather;
using Member = std::string W::*;

constexpr std::string_view kIceWord = "ICE ";

// Signs and indicators, which are no field of the form: the figures that may stand there.
struct SignRow {
  Member member;
  std::string_view allowed;
  text::Id message;
};
constexpr SignRow kSigns[] = {
    {&W::SnT, codetables::kTemperatureSigns, id::kSignRange},
    {&W::SnTd, codetables::kTemperatureSigns, id::kSignRange},
    {&W::Sw, codetables::kWetBulbSigns, id::kSignRange},
    {&W::Ss, codetables::kSeaTemperatureSigns, id::kInputError},
    {&W::Qc, codetables::kQuadrants, id::kInputError},
};

const SignRow* sign_row(Member member) {
  const auto* const at = std::find_if(std::begin(kSigns), std::end(kSigns),
                                      [&](const SignRow& row) { return row.member == member; });
  return at == std::end(kSigns) ? nullptr : at;
}

// What the ship and the program put into the record.
bool is_given(Member member) {
  return member == &W::iR || member == &W::iX || member == &W::iw;
}

bool all_of(std::string_view figures, char c) {
  return figures.find_first_not_of(c) == std::string_view::npos;
}

// A temperature's figures and its sign are two symbols and one value.
bool has_sign(const FieldRow& row) {
  return row.codec == Codec::kTemperature || row.codec == Codec::kWetBulb ||
         row.codec == Codec::kSeaTemperature;
}

// A value is known with its sign, its hemisphere and its degrees, or not at all: "2/050" would be
// sent as a temperature of which nobody knows whether it is above zero. Only the hemisphere may
// still be to come ("*"), for it is chosen beside the figures.
bool values_are_whole(const GroupRow& row, std::string_view figures) {
  const auto has_digit = [](std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
  };
  std::size_t place = row.indicator.size();
  for (const Symbol& symbol : row.used()) {
    const std::string_view part = figures.substr(place, symbol.width);
    const std::string_view behind = figures.substr(place += symbol.width);
    const bool leads =
        sign_row(symbol.field) != nullptr || symbol.field == &W::LaDeg || symbol.field == &W::LoDeg;
    if (!leads) continue;
    if (all_of(part, '/') && !all_of(behind, '/')) return false;
    if (all_of(part, '*') && sign_row(symbol.field) != nullptr && symbol.field != &W::Qc &&
        has_digit(behind))
      return false;
  }
  return true;
}

// The group's figures with its indicator, however it was typed; empty when length or characters
// cannot be right.
std::string figures_of_group(const GroupRow& row, std::string_view typed) {
  std::string text = text::without_spaces(text::trim(typed));
  if (row.group == Group::kICE) {
    // The word has a field of its own and may be typed along or not.
    if (text.starts_with("ICE")) text.erase(0, 3);
    text.insert(0, kIceWord);
  }
  const bool fits =
      text.size() == row.width() && text.starts_with(row.indicator) &&
      text.find_first_not_of("0123456789/*", row.indicator.size()) == std::string::npos;
  return fits ? text : std::string();
}

std::string emptied_group(const GroupRow& row) {
  return std::string(row.indicator) + std::string(row.width() - row.indicator.size(), '*');
}

// A record with the symbols of one group typed over it. Each step answers whether it is accepted;
// the record is thrown away when one is not.
class Trial {
 public:
  Trial(const W& before, const Surroundings& around, const GroupRow& row)
      : before_(before), record_(before), around_(around), row_(row) {}

  [[nodiscard]] Answer take(std::string_view figures, Confirmed confirmed) {
    std::size_t place = row_.indicator.size();
    for (const Symbol& symbol : row_.used()) {
      if (Answer answer = take_symbol(symbol, figures.substr(place, symbol.width));
          !answer.accepted())
        return answer;
      place += symbol.width;
    }
    take_minus_from_zero();
    for (const auto check : {&Trial::check_signed_values, &Trial::check_rules}) {
      if (Answer answer = (this->*check)(); !answer.accepted()) return answer;
    }
    return ask(confirmed);
  }

  // A sign alone changes a temperature as well, and ice on the bulb the dew point.
  [[nodiscard]] std::vector<Field> changed() const {
    std::vector<Field> fields = changed_;
    for (const FieldRow& row : field_rows()) {
      if (!has_sign(row) || field_of(row.member, around_.ship) != row.field) continue;
      if (shown_from_record(row.field, record_) != shown_from_record(row.field, before_) ||
          (row.codec == Codec::kWetBulb && record_.*row.beside != before_.*row.beside))
        fields.push_back(row.field);
    }
    return fields;
  }
  [[nodiscard]] const W& record() const { return record_; }

 private:
  Answer take_symbol(const Symbol& symbol, std::string_view figures) {
    if (symbol.figures == Figures::kTenths) return take_tenths(symbol.field, figures);
    // What was not typed over was accepted once, perhaps by a Yes, and is not judged again.
    if (figures == std::string_view(record_.*symbol.field)) return {};
    if (all_of(figures, '*')) return empty(symbol.field);
    if (figures.find('*') != std::string_view::npos || is_given(symbol.field))
      return refused(id::kInputError);
    if (const SignRow* const sign = sign_row(symbol.field)) return take_sign(*sign, figures);
    if (symbol.field == &W::fff) return take_large_speed(figures);
    return take_figures(symbol.field, figures);
  }

  // A tenth of a degree becomes the first minute that gives it.
  Answer take_tenths(Member member, std::string_view figure) {
    std::string& minutes = record_.*member;
    // Minutes that give this tenth already stay: 44' must not become 42'.
    if (figure == "*" || figure == "/") {
      minutes.clear();
    } else if (minutes.empty() || text::leading_int(figure) !=
                                      codetables::tenths_of_minutes(text::leading_int(minutes))) {
      minutes = codetables::minutes_of_tenth(figure.front());
    }
    changed_.push_back(*field_of(member, around_.ship));
    return {};
  }

  Answer empty(Member member) {
    // Neither what the ship and the program put there nor a masked second swell direction is an
    // entry that could be taken away.
    if (is_given(member) || (member == &W::dw2dw2 && record_.dw2dw2 == "00")) return {};
    const auto field = field_of(member, around_.ship);
    // Solidi that the program put there stay.
    if (field && is_switched_off(row_of(*field), around_.items)) return {};
    if (member == &W::fff) {
      forget_large_speed();
    } else {
      (record_.*member).clear();
    }
    if (member == &W::ff) record_.fff.clear();
    // What was computed from it is due.
    if (field && sign_row(member) == nullptr) changed_.push_back(*field);
    return {};
  }

  Answer take_sign(const SignRow& sign, std::string_view figures) {
    if (!all_of(figures, '/') && sign.allowed.find(figures) == std::string_view::npos)
      return refused(sign.message);
    record_.*sign.member = figures;
    // The value has changed with its sign, so its rules and what follows from it are due.
    if (const auto field = field_of(sign.member, around_.ship)) changed_.push_back(*field);
    return {};
  }

  Answer take_figures(Member member, std::string_view figures) {
    const bool unknown = all_of(figures, '/');
    // 99 says that 00fff holds the speed; until that is typed it is 99, as in the field.
    if (member == &W::ff) record_.fff = figures == "99" ? "099" : "";
    const auto field = field_of(member, around_.ship);
    if (!field || is_switched_off(row_of(*field), around_.items)) return refused(id::kInputError);
    if (!unknown) {
      if (Answer answer = check_figures(*field, figures); !answer.accepted()) return answer;
    }
    changed_.push_back(*field);
    if (member == &W::PPPP) {
      store_pppp(record_, std::string(figures));
    } else if (unknown && row_.written == observation::Written::kWhenSet) {
      // A group that is written only when it is set: solidi say that it is not.
      (record_.*member).clear();
    } else {
      record_.*member = figures;
    }
    return {};
  }

  // Without its 00fff a speed of 99 and more is not known: the 99 alone would be sent as one.
  void forget_large_speed() {
    if (!record_.fff.empty() && record_.ff == "99") record_.ff.clear();
    record_.fff.clear();
  }

  // 00fff holds a speed of 99 and more, and is not written without one.
  Answer take_large_speed(std::string_view figures) {
    constexpr int kLowest = 99;
    changed_.push_back(Field::kff);
    if (all_of(figures, '/')) {
      forget_large_speed();
      return {};
    }
    if (!text::is_all_digits(figures) || text::leading_int(figures) < kLowest)
      return refused(id::kLargeSpeedRange);
    questions_.push_back(row_of(Field::kff).editor.question);
    record_.ff = "99";
    record_.fff = figures;
    return {};
  }

  // The field's own test on the figures as the field would show them.
  Answer check_figures(Field field, std::string_view figures) {
    const FieldRow& row = row_of(field);
    if (row.codec == Codec::kPressure) {
      Answer answer = check_pressure(figures).answer;
      if (answer.kind != Answer::Kind::kAsks) return answer;
      questions_.push_back(answer.notice.message);
      return {};
    }
    // A value with a sign is tested when both are there.
    if (has_sign(row)) return text::is_all_digits(figures) ? Answer{} : refused(id::kInputError);
    W trial = record_;
    trial.*row.member = figures;
    // Behind 99 the record shows the speed of fff, but these two figures are what was typed.
    const std::string shown =
        row.codec == Codec::kSpeed ? std::string(figures) : shown_from_record(field, trial);
    const Checked checked =
        check_field(row.editor, shown, bounds_of(field, record_, around_.clock));
    if (checked.verdict == Verdict::kRefused) return refused(range_of(field));
    if (checked.verdict == Verdict::kAsks) questions_.push_back(row.editor.question);
    return {};
  }

  // Minus zero is zero, also where its sign is typed: for the value that this group holds. A bulb
  // with ice on it keeps the sign that says so.
  void take_minus_from_zero() {
    for (const Symbol& symbol : row_.used()) {
      const auto field = field_of(symbol.field, around_.ship);
      if (!field || record_.*symbol.field != "000") continue;
      const FieldRow& row = row_of(*field);
      if (!has_sign(row) || symbol.field != row.member) continue;
      std::string& sign = record_.*row.beside;
      if (row.codec != Codec::kSeaTemperature) {
        if (sign == "1") sign = "0";
      } else if (const auto method = codetables::sea_temperature_method(sign)) {
        sign = codetables::sea_temperature_sign(*method, false);
      }
    }
  }

  Answer check_signed_values() {
    for (const FieldRow& row : field_rows()) {
      if (!has_sign(row)) continue;
      const std::string now = shown_from_record(row.field, record_);
      if (now == shown_from_record(row.field, before_) || !text::strict_number(now)) continue;
      if (check_field(row.editor, now).verdict == Verdict::kRefused)
        return refused(range_of(row.field));
    }
    return {};
  }

  // Rules that the group's fields raise: those of the figures that were typed anew, and those that
  // were kept before. Who types the direction 00 beside a speed of 12 has typed both.
  Answer check_rules() {
    for (const Field field : changed_) {
      if (const CrossRule* const rule = broken_by(field, record_)) return refused(rule->message);
    }
    for (const Symbol& symbol : row_.used()) {
      const auto field = field_of(symbol.field, around_.ship);
      if (!field) continue;
      const CrossRule* const rule = broken_by(*field, record_);
      if (rule != nullptr && !rule->broken(before_)) return refused(rule->message);
    }
    for (const Field field : changed_) {
      if ((field == Field::kLaMin || field == Field::kLoMin) && is_impossible(field, record_))
        return refused(range_of(field));
    }
    return {};
  }

  [[nodiscard]] Answer ask(Confirmed confirmed) const {
    std::vector<text::Id> questions = questions_;
    for (const Field field : changed_) {
      const FieldRow& row = row_of(field);
      if (row.member == nullptr || (record_.*row.member).empty()) continue;
      if (const text::Id question =
              question_about(field, shown_from_record(field, record_), record_);
          question)
        questions.push_back(question);
    }
    return asked(questions, confirmed);
  }

  [[nodiscard]] Notice range_of(Field field) const {
    return range_notice(field, record_, around_.clock);
  }

  const W& before_;
  W record_;
  const Surroundings& around_;
  const GroupRow& row_;
  std::vector<Field> changed_;
  std::vector<text::Id> questions_;
};

}  // namespace

TypedGroup type_group(const Struct_Weather& before, const Surroundings& around, Group group,
                      std::string_view typed, Confirmed confirmed) {
  const GroupRow& row = observation::row_of(group);
  const std::string figures =
      text::trim(typed).empty() ? emptied_group(row) : figures_of_group(row, typed);
  if (figures == observation::group_text(before, group)) return {{}, before, {}};
  if (figures.empty() || !values_are_whole(row, figures))
    return {refused(id::kInputError), before, {}};
  Trial trial(before, around, row);
  Answer answer = trial.take(figures, confirmed);
  return {std::move(answer), trial.record(), trial.changed()};
}

}  // namespace elements
