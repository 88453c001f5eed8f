// Typing a whole group of the report.

#include <algorithm>
#include <array>
#include <utility>

#include "codetables/tables/minutes.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/quadrant.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "elements/form/field_codes.h"
#include "elements/form/observation_form.h"
#include "elements/formulas/sea_level_pressure.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

namespace id = text::id;
using observation::Figures;
using observation::Group;
using observation::Symbol;
using W = Struct_Weather;

constexpr std::string_view kIceWord = "ICE ";

// Signs and indicators, which are no field of the form: the figures that may stand there.
struct SignRow {
  std::string W::*member;
  std::string_view allowed;
  text::Id message;
};
constexpr SignRow kSigns[] = {
    {&W::SnT, "01", id::kSignRange},
    {&W::SnTd, "01", id::kSignRange},
    {&W::Sw, "012", id::kSignRange},
    {&W::Ss, "01234567", id::kInputError},
    {&W::Qc, codetables::kQuadrants, id::kInputError},
};

std::string signed_value(Field field, const W& record) {
  if (field == Field::kDewPoint) return codetables::temperature_shown(record.SnTd, record.TdTdTd);
  if (field == Field::kWetBulb || field == Field::kTwTwTw) return shown_from_record(field, record);
  return codetables::temperature_shown(record.SnT, record.TTT);
}

// The field whose editor tests these figures; nothing for signs and indicators.
struct MemberField {
  std::string W::*member;
  Field field;
};
constexpr MemberField kSignedFields[] = {
    {&W::TdTdTd, Field::kDewPoint},
    {&W::TbTbTb, Field::kWetBulb},
    {&W::TwTwTw, Field::kTwTwTw},
};

const SignRow* sign_row(std::string W::*member) {
  const auto* const at = std::find_if(std::begin(kSigns), std::end(kSigns),
                                      [&](const SignRow& row) { return row.member == member; });
  return at == std::end(kSigns) ? nullptr : at;
}

// Symbols of a group that is written only when it is set: solidi say that it is not.
bool is_kept_group(std::string W::*member) {
  return member == &W::gg || member == &W::GGExact;
}

// Minus zero is zero, also where its sign is typed: for the value that this group holds. A bulb
// with ice on it keeps the sign that says so.
void take_minus_from_zero(const observation::GroupRow& row, W& record) {
  const auto holds = [&](std::string W::*member) {
    return std::any_of(row.used().begin(), row.used().end(),
                       [&](const Symbol& symbol) { return symbol.field == member; });
  };
  const auto mend = [&](std::string W::*sign, std::string W::*figures) {
    if (holds(figures) && record.*figures == "000" && record.*sign == "1") record.*sign = "0";
  };
  mend(&W::SnT, &W::TTT);
  mend(&W::SnTd, &W::TdTdTd);
  mend(&W::Sw, &W::TbTbTb);
  const auto method = codetables::sea_temperature_method(record.Ss);
  if (holds(&W::TwTwTw) && record.TwTwTw == "000" && method)
    record.Ss = codetables::sea_temperature_sign(*method, false);
}

bool all_of(std::string_view figures, char c) {
  return figures.find_first_not_of(c) == std::string_view::npos;
}

// A value is known with its sign, its hemisphere and its degrees, or not at all: "2/050" would be
// sent as a temperature of which nobody knows whether it is above zero. Only the hemisphere may
// still be to come ("*"), for it is chosen beside the figures.
bool values_are_whole(const observation::GroupRow& row, std::string_view figures) {
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
std::string figures_of_group(Group group, std::string_view typed) {
  std::string text = text::without_spaces(text::trim(typed));
  const observation::GroupRow& row = observation::row_of(group);
  if (group == Group::kICE) {
    if (text.starts_with("ICE")) text.erase(0, 3);
    text.insert(0, kIceWord);
  }
  const bool fits =
      text.size() == row.width() && text.starts_with(row.indicator) &&
      text.find_first_not_of("0123456789/*", row.indicator.size()) == std::string::npos;
  return fits ? text : std::string();
}

}  // namespace

void ObservationForm::restore(const FormEntries& entries) {
  record_ = entries.record;
  texts_ = entries.texts;
  typed_ = entries.typed;
  error_ = entries.error;
  wet_bulb_ = entries.wet_bulb;
  north_south_ = entries.north_south;
  east_west_ = entries.east_west;
}

Field ObservationForm::air_field() const {
  return ship_.dew_point_method == DewPointMethod::kComputed ? Field::kDryBulb
                                                             : Field::kAirTemperature;
}

bool ObservationForm::leave_group(Group group, std::string_view typed) {
  const observation::GroupRow& row = observation::row_of(group);
  std::string figures = figures_of_group(group, typed);
  if (text::trim(typed).empty()) {
    figures = std::string(row.indicator) + std::string(row.width() - row.indicator.size(), '*');
    // What the ship and the program put there is not emptied with the rest.
    std::size_t place = row.indicator.size();
    for (const Symbol& symbol : row.used()) {
      const bool fixed = symbol.field == &W::iR || symbol.field == &W::iX || symbol.field == &W::iw;
      if (fixed) figures.replace(place, symbol.width, record_.*symbol.field);
      place += symbol.width;
    }
  }
  if (figures.empty()) return refuse(id::kInputError);
  if (figures == group_text(group)) return true;
  if (!values_are_whole(row, figures)) return refuse(id::kInputError);

  TypedGroup entry;
  before_group_ = entries();
  bool accepted = take_symbols(row, figures, entry);
  if (accepted) {
    take_minus_from_zero(row, record_);
    accepted = group_accepted(row, before_group_->record, entry);
  }
  const FormEntries before = *std::exchange(before_group_, std::nullopt);
  if (!accepted) {
    restore(before);
    return false;
  }
  // Signs change what other fields show (the temperature behind its sign, the speed of 99 and
  // more).
  Struct_Weather after = std::move(record_);
  record_ = before.record;
  change([&](Struct_Weather& record) { record = std::move(after); });
  // A sign alone changes a temperature as well, and ice on the bulb the dew point.
  for (const Field field : {air_field(), Field::kDewPoint, Field::kWetBulb}) {
    if (signed_value(field, record_) != signed_value(field, before.record) ||
        (field == Field::kWetBulb && record_.Sw != before.record.Sw))
      entry.taken.push_back(field);
  }
  for (const Field field : entry.taken) follow(field);
  touch(before.record);
  return true;
}

bool ObservationForm::take_symbols(const observation::GroupRow& row, std::string_view figures,
                                   TypedGroup& typed) {
  std::size_t place = row.indicator.size();
  for (const Symbol& symbol : row.used()) {
    const std::string_view part = figures.substr(place, symbol.width);
    place += symbol.width;
    if (symbol.figures == Figures::kTenths) {
      take_tenths(symbol.field, part, typed);
    } else if (!take_symbol(symbol.field, part, typed)) {
      return false;
    }
  }
  return true;
}

// Rules that the group's fields raise: those of the figures that were typed anew, and those that
// were kept before. Who types the direction 00 beside a speed of 12 has typed both.
bool ObservationForm::rules_kept(const observation::GroupRow& row, const Struct_Weather& before,
                                 const std::vector<Field>& taken) const {
  for (const Field field : taken) {
    if (const CrossRule* const rule = broken_by(field, record_)) return refuse(rule->message);
  }
  for (const Symbol& symbol : row.used()) {
    const auto field = field_of_member(symbol.field);
    if (!field) continue;
    const CrossRule* const rule = broken_by(*field, record_);
    if (rule != nullptr && !rule->broken(before)) return refuse(rule->message);
  }
  return true;
}

// What the symbols must keep together: values with their signs, the rules of the editors that were
// run, and last the questions.
bool ObservationForm::group_accepted(const observation::GroupRow& row, const Struct_Weather& before,
                                     const TypedGroup& typed) {
  for (const Field field : {air_field(), Field::kDewPoint, Field::kWetBulb, Field::kTwTwTw}) {
    if (!signed_value_accepted(field, before)) return false;
  }
  if (!rules_kept(row, before, typed.taken)) return false;
  for (const Field field : typed.taken) {
    if ((field == Field::kLaMin || field == Field::kLoMin) && impossible(field))
      return refuse_range(field);
  }
  for (const text::Id question : typed.questions) {
    if (!ask(question)) return false;
  }
  for (const Field field : typed.taken) {
    const std::string Struct_Weather::*const member = member_of(field);
    if (member == nullptr || (record_.*member).empty()) continue;
    if (!confirmed(field, shown_from_record(field, record_))) return false;
  }
  return true;
}

// A temperature's figures and its sign are typed as two symbols, and tested as one value.
bool ObservationForm::signed_value_accepted(Field field, const Struct_Weather& before) {
  const std::string now = signed_value(field, record_);
  if (now == signed_value(field, before) || !text::strict_number(now)) return true;
  return check_field(editor_of(field), now).verdict != Verdict::kRefused || refuse_range(field);
}

// A tenth of a degree becomes the first minute that gives it.
void ObservationForm::take_tenths(std::string W::*member, std::string_view figure,
                                  TypedGroup& typed) {
  if (figure == "*" || figure == "/") {
    (record_.*member).clear();
  } else if (text::leading_int(figure) !=
                 codetables::tenths_of_minutes(text::leading_int(record_.*member)) ||
             (record_.*member).empty()) {
    record_.*member = codetables::minutes_of_tenth(figure.front());
  }
  typed.taken.push_back(member == &W::LaMin ? Field::kLaMin : Field::kLoMin);
}

bool ObservationForm::take_symbol(std::string W::*member, std::string_view figures,
                                  TypedGroup& typed) {
  std::string& field_text = record_.*member;
  if (figures == std::string_view(field_text)) return true;
  // A masked second swell direction is no entry.
  if (all_of(figures, '*')) {
    if (member == &W::dw2dw2 && field_text == "00") return true;
    const auto field = field_of_member(member);
    if (field && switched_off(*field)) return true;  // solidi that the program put there
    if (member == &W::fff) {
      forget_large_speed();
    } else {
      field_text.clear();
    }
    if (member == &W::ff) record_.fff.clear();
    // What was computed from it is due.
    if (field) typed.taken.push_back(*field);
    return true;
  }
  if (figures.find('*') != std::string_view::npos) return refuse(id::kInputError);
  if (member == &W::iR || member == &W::iX || member == &W::iw) return refuse(id::kInputError);
  if (const SignRow* const sign = sign_row(member)) {
    if (!all_of(figures, '/') && sign->allowed.find(figures) == std::string_view::npos)
      return refuse(sign->message);
    field_text = figures;
    // The value has changed with its sign, so its rules and what follows from it are due.
    if (const auto field = field_of_sign(member)) typed.taken.push_back(*field);
    return true;
  }
  const bool unknown = all_of(figures, '/');
  if (member == &W::fff) return take_large_speed(figures, typed);
  // 99 says that 00fff holds the speed; until that is typed it is 99, as in the field.
  if (member == &W::ff) record_.fff = figures == "99" ? "099" : "";
  const auto field = field_of_member(member);
  if (!field || switched_off(*field)) return refuse(id::kInputError);
  if (!unknown && !take_field(*field, figures, typed)) return false;
  typed.taken.push_back(*field);
  if (member == &W::PPPP) {
    store_pppp(record_, std::string(figures));
  } else if (unknown && is_kept_group(member)) {
    field_text.clear();
  } else {
    field_text = figures;
  }
  return true;
}

std::optional<Field> ObservationForm::field_of_sign(std::string W::*member) const {
  if (member == &W::SnT) return air_field();
  if (member == &W::SnTd) return Field::kDewPoint;
  if (member == &W::Sw) return Field::kWetBulb;
  if (member == &W::Ss) return Field::kTwTwTw;
  return std::nullopt;  // the quadrant
}

std::optional<Field> ObservationForm::field_of_member(std::string W::*member) const {
  if (member == &W::TTT) return air_field();
  if (member == &W::PPPP) return Field::kPPPP;
  if (member == &W::ff || member == &W::fff) return Field::kff;
  for (const MemberField& row : kSignedFields) {
    if (row.member == member) return row.field;
  }
  for (std::size_t i = 0; i < kFields; ++i) {
    if (member_of(static_cast<Field>(i)) == member) return static_cast<Field>(i);
  }
  return std::nullopt;  // signs, and what the ship and the program put in
}

// Without its 00fff a speed of 99 and more is not known: the 99 alone would be sent as one.
void ObservationForm::forget_large_speed() {
  if (!record_.fff.empty() && record_.ff == "99") record_.ff.clear();
  record_.fff.clear();
}

// 00fff holds a speed of 99 and more, and is not written without one.
bool ObservationForm::take_large_speed(std::string_view figures, TypedGroup& typed) {
  constexpr int kLowest = 99;
  typed.taken.push_back(Field::kff);
  if (all_of(figures, '/')) {
    forget_large_speed();
    return true;
  }
  if (!text::is_all_digits(figures) || text::leading_int(figures) < kLowest)
    return refuse(id::kLargeSpeedRange);
  typed.questions.push_back(editor_of(Field::kff).warning);
  record_.ff = "99";
  record_.fff = figures;
  return true;
}

// The field's own test on the figures as the field would show them.
bool ObservationForm::take_field(Field field, std::string_view figures, TypedGroup& typed) {
  if (field == Field::kPPPP) {
    std::string value(figures);
    return pressure_accepted(field, value);
  }
  // A value with a sign is tested when both are there.
  const bool has_sign = field == air_field() || field == Field::kDewPoint ||
                        field == Field::kWetBulb || field == Field::kTwTwTw;
  if (has_sign) return text::is_all_digits(figures) || refuse(id::kInputError);
  std::string shown_text(figures);
  if (std::string W::*const member = member_of(field)) {
    Struct_Weather trial = record_;
    trial.*member = figures;
    shown_text = shown_from_record(field, trial);
  }
  const Checked checked = check_field(editor_of(field), shown_text, bounds_of(field));
  if (checked.verdict == Verdict::kRefused) return refuse_range(field);
  if (checked.verdict == Verdict::kAsks) typed.questions.push_back(editor_of(field).warning);
  return true;
}

}  // namespace elements
