#include "elements/form/observation_form.h"

#include <utility>

#include "codetables/tables/quadrant.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wind_figures.h"
#include "elements/form/derivation.h"
#include "elements/form/entry_check.h"
#include "elements/form/field_codes.h"
#include "elements/form/typed_group.h"
#include "elements/form/vosclim_fields.h"
#include "elements/formulas/barometer_correction.h"
#include "elements/formulas/psychrometer.h"
#include "text/ids.h"
#include "text/strings.h"

namespace elements {

namespace id = text::id;

namespace {

bool is_same_hour(const Struct_Weather& a, const Struct_Weather& b) {
  return a.Year == b.Year && a.Month == b.Month && a.YY == b.YY && a.GG == b.GG;
}

}  // namespace

ObservationForm::ObservationForm(const ShipFixedData& ship, const KeyObservationItems& items,
                                 const platform::Clock& clock)
    : around_{ship, items, clock} {
  now_.record = Struct_Weather(ship, items);
  now_.dew_point_method = ship.dew_point_method;
  now_.sea_temperature_method = ship.sea_temperature_method;
  items_changed();
}

bool ObservationForm::switched_off(Field field) const {
  return is_switched_off(row_of(field), around_.items);
}

bool ObservationForm::in_error(Field field) const {
  return now_[field].wrong || is_impossible(field, record());
}

std::vector<Remark> ObservationForm::remarks() const {
  std::vector<Remark> remarks;
  for (const FieldRow& row : field_rows()) {
    // A date that does not exist stops a save in its own way.
    const bool wrong = row.field == Field::kYY ? now_[row.field].wrong : in_error(row.field);
    if (!wrong) continue;
    Notice notice = range_notice(row.field, record(), around_.clock);
    notice.below = {};  // the list has one line for each
    remarks.push_back({std::move(notice), row.field});
  }
  const ShipFixedData& ship = around_.ship;
  if (ship.dew_point_method == DewPointMethod::kComputed && dew_point_is_of_bulbs(now_) &&
      !now_.dew_point_as_sent) {
    if (!dew_point_of_bulbs(now_, ship)) {
      remarks.push_back({{id::kDewPointOfEarlierBulbs}, Field::kDryBulb});
    } else if (ship.card.type == CardType::kNotChosen) {
      remarks.push_back({{id::kDoubledPressure}, Field::kReading});
    }
  }
  return remarks;
}

std::vector<Remark> ObservationForm::unacceptable() const {
  std::vector<Remark> remarks;
  for (const FieldRow& row : field_rows()) {
    if (in_error(row.field) || is_unused(row) || is_acceptable(now_, around_, row.field)) continue;
    Notice notice = range_notice(row.field, record(), around_.clock);
    notice.below = {};
    remarks.push_back({std::move(notice), row.field});
  }
  return remarks;
}

std::vector<Field> ObservationForm::sent_though_unused() const {
  std::vector<Field> fields;
  for (const FieldRow& row : field_rows()) {
    const bool says_something = now_[row.field].text.find_first_not_of('/') != std::string::npos;
    if (is_unused(row) && says_something) fields.push_back(row.field);
  }
  return fields;
}

bool ObservationForm::asks_for(Field field) const {
  static constexpr std::string_view kNoSwell = "00";
  if (in_error(field)) return true;
  const auto is_filled = [this](Field other) { return !text(other).empty(); };
  switch (field) {
    // One without the other is half a group.
    case Field::kGGExact:
    case Field::kgg:
      return is_filled(Field::kGGExact) || is_filled(Field::kgg);
    case Field::kPPPP:
      return in_error(Field::kReading) || !is_filled(Field::kReading) || record().PPPP.empty() ||
             record().PPPP != now_.pppp_of_reading;
    case Field::kPw1Pw1:
    case Field::kHw1Hw1:
      return is_filled(Field::kPw1Pw1) || is_filled(Field::kHw1Hw1) || record().dw1dw1 != kNoSwell;
    // As soon as there is a swell, or none was seen ("00"), it says whether there is a second one.
    case Field::kdw2dw2:
      return is_filled(field) || is_filled(Field::kdw1dw1) || is_filled(Field::kPw1Pw1) ||
             is_filled(Field::kHw1Hw1);
    case Field::kPw2Pw2:
    case Field::kHw2Hw2:
      return is_filled(Field::kPw2Pw2) || is_filled(Field::kHw2Hw2) ||
             (!record().dw2dw2.empty() && record().dw2dw2 != kNoSwell);
    default:
      return true;
  }
}

bool ObservationForm::asks_for_freeze() const {
  const auto wet = air_temperature_of(entered(Field::kWetBulb));
  return now_.wet_bulb == WetBulbState::kIced || (wet && can_be_iced(*wet));
}

observation::Report ObservationForm::report() const {
  return observation::make_report(record(), observation::wants_wet_bulb(around_.ship));
}

void ObservationForm::type(Field field, std::string_view text) {
  if (switched_off(field)) return;
  Entry& entry = now_[field];
  // The first key keeps what was accepted; those behind it must not.
  if (!entry.before_typing) entry.before_typing = entry.text;
  entry.text = text;
}

Answer ObservationForm::leave(Field field, Confirmed confirmed) {
  if (switched_off(field)) return {};
  Entry& entry = now_[field];
  if (!entry.before_typing) {
    if (!is_impossible(field, record())) return {};
    now_.error_flag = true;
    return refused(field == Field::kYY ? Notice{id::kDateInvalid}
                                       : range_notice(field, record(), around_.clock));
  }
  std::string value;
  if (const auto typed = text::trim(entry.text); !typed.empty()) {
    CheckedEntry checked = check_entry(now_, around_, field, typed, confirmed);
    if (!checked.answer.accepted()) {
      entry.wrong = now_.error_flag = true;
      return checked.answer;
    }
    value = std::move(checked.value);
  }
  const Struct_Weather before = record();
  const bool had_wind = true_wind_of(now_).has_value();
  const std::string earlier = entry.entered();
  // Where there was no reading, the pressure was typed by hand and is not of one.
  const bool nothing_to_clear = field == Field::kReading && earlier.empty();
  if (!value.empty()) {
    store(now_, field, value, around_.ship);
  } else if (!nothing_to_clear) {
    clear(now_, field);
  }
  entry.show(value);
  // Not everything that is entered goes into the record (the apparent wind).
  if (value != earlier) now_.modified = true;
  follow(before, row_of(field).follows, had_wind, {field});
  if (confirmed != kEveryQuestion) now_.error_flag = false;
  return {};
}

Answer ObservationForm::leave(observation::Group group, std::string_view typed,
                              Confirmed confirmed) {
  TypedGroup entry = type_group(record(), around_, group, typed, confirmed);
  if (!entry.answer.accepted()) return entry.answer;
  const Struct_Weather before = std::exchange(now_.record, std::move(entry.record));
  // Signs change what other fields show (the temperature behind its sign, the speed of 99 and
  // more), so the fields are right before anything is computed from them.
  show_changes(now_, before, around_.ship);
  Follows what = Follows::kNothing;
  for (const Field field : entry.changed) what = what | row_of(field).follows;
  follow(before, what, true_wind_of(now_).has_value());
  return {};
}

// What every entry ends with.
void ObservationForm::follow(const Struct_Weather& before, Follows what, bool had_wind,
                             const std::vector<Field>& but) {
  if (has(what, Follows::kDewPoint)) now_.dew_point_as_sent = false;
  if (has(what, Follows::kTrueWind)) now_.vosclim_as_sent = false;
  // Until the apparent wind is whole it says nothing, and a true wind that was sent stays; a text
  // that was refused there does not, for the fields are locked.
  if (has(what, Follows::kTrueWind) && !had_wind && !true_wind_of(now_)) {
    what = without(what, Follows::kTrueWind);
    for (const Field field : {Field::kdd, Field::kff}) {
      if (now_[field].before_typing) now_[field].show(now_.entered(field));
    }
  }
  finish(before, what, but);
}

// What every change of the record ends with.
void ObservationForm::finish(const Struct_Weather& before, Follows what,
                             const std::vector<Field>& but) {
  // The next observation is entered over the one that was sent: it has no values but its own.
  if (!is_same_hour(record(), before)) now_.vosclim_as_sent = false;
  now_ = derived(std::move(now_), around_.ship, what);
  show_changes(now_, before, around_.ship, but);
  // Whoever enters weather observes it, whatever the report said that is being corrected.
  if (record().ww != before.ww || record().W1 != before.W1 || record().W2 != before.W2)
    now_.record.iX = Struct_Weather(around_.ship, around_.items).iX;
  if (!(record() == before)) now_.modified = true;
}

void ObservationForm::choose_hemispheres(int north_south, int east_west) {
  const std::string quadrant = codetables::quadrant_of(north_south, east_west);
  now_.north_south = north_south;
  now_.east_west = east_west;
  if (quadrant != record().Qc) now_.review_due = now_.modified = true;
  now_.record.Qc = quadrant;
}

void ObservationForm::toggle_freeze() {
  const auto wet = air_temperature_of(entered(Field::kWetBulb));
  if (wet) put({}, toggled_wet_bulb(now_.wet_bulb, *wet));
}

void ObservationForm::store_put(Field field, std::string_view text) {
  Entry& entry = now_[field];
  const std::string earlier = entry.entered();
  std::string value(text);
  if (text::trim(text).empty()) {
    clear(now_, field);
    value.clear();
  } else {
    store(now_, field, value, around_.ship);
    // A speed loses its decimals, as it does when it is typed.
    if (field == Field::kff) value = shown(row_of(field), record(), around_.ship);
  }
  entry.show(value);
  if (value != earlier) now_.modified = true;
}

void ObservationForm::put(const std::vector<Value>& values, std::optional<WetBulbState> wet_bulb) {
  const Struct_Weather before = record();
  const bool had_wind = true_wind_of(now_).has_value();
  Follows what = wet_bulb ? Follows::kDewPoint : Follows::kNothing;
  now_.wet_bulb = wet_bulb.value_or(now_.wet_bulb);
  std::vector<Field> fields;
  for (const auto& [field, text] : values) {
    fields.push_back(field);
    store_put(field, text);
    what = what | row_of(field).follows;
  }
  // The sign of the wet bulb tells its state, so a state alone stores the value anew.
  if (wet_bulb && fields.empty()) {
    fields.push_back(Field::kWetBulb);
    if (const std::string wet = entered(Field::kWetBulb); !wet.empty())
      store(now_, Field::kWetBulb, wet, around_.ship);
  }
  follow(before, what, had_wind, fields);
}

void ObservationForm::change(const std::function<void(Struct_Weather&)>& change,
                             std::initializer_list<Field> of_dialog) {
  const Struct_Weather before = record();
  change(now_.record);
  finish(before, Follows::kNothing);
  for (const Field field : of_dialog)
    now_[field].show(shown(row_of(field), record(), around_.ship));
}

void ObservationForm::ship_changed() {
  const ShipFixedData& ship = around_.ship;
  const Struct_Weather before = record();
  const bool was_modified = modified();
  Struct_Weather& record = now_.record;
  const Struct_Weather fresh(ship, around_.items);
  if (!codetables::is_metres_per_second(record.iw)) record.iw = fresh.iw;
  record.CallSign = fresh.CallSign;
  record.ShipFixed = fresh.ShipFixed;
  if (std::exchange(now_.dew_point_method, ship.dew_point_method) != ship.dew_point_method) {
    // The same temperatures stand in other fields now.
    for (const FieldRow& row : field_rows()) {
      if (row.shown_with || row.codec == Codec::kWetBulb)
        now_[row.field].show(shown(row, record, ship));
    }
  }
  // The method stands in the sign's figure. One that was chosen for this observation alone stays.
  if (codetables::sea_temperature_method(record.Ss) == now_.sea_temperature_method)
    record.Ss = codetables::sea_temperature_sign(ship.sea_temperature_method,
                                                 codetables::is_below_zero(record.Ss));
  now_.sea_temperature_method = ship.sea_temperature_method;
  // The wave recorder may have come or gone.
  put_unused_aside();
  // Taken once the ship's own texts are in: they alone make nothing unsaved.
  const Struct_Weather as_entered = record;
  Follows what = of_card();
  // Without a whole apparent wind a true one that stands there was entered as such.
  // So was the one of a report that was sent, which shows what it was computed from.
  if (now_.vosclim_as_sent)
    show_vosclim(now_, ship);
  else if (true_wind_of(now_))
    what = what | Follows::kTrueWind;
  finish(before, what);
  now_.modified = was_modified || !(record == as_entered);
}

void ObservationForm::card_changed() {
  // A copy, for finish() compares with what was there before.
  finish(Struct_Weather(record()), of_card());
}

// What a change of ship or card brings with it.
Follows ObservationForm::of_card() const {
  const Follows what = Follows::kReductionAgain | Follows::kDewPoint;
  return now_.dew_point_as_sent ? without(what, Follows::kDewPoint) : what;
}

void ObservationForm::items_changed() {
  const bool was_modified = modified();
  put_unused_aside();
  now_.modified = was_modified;
}

// Not observed, or measured by no instrument of this ship.
bool ObservationForm::is_unused(const FieldRow& row) const {
  return switched_off(row.field) || (row.needs_wave_recorder && !around_.ship.wave_recorder);
}

// An unused element gives its entry up and gets it back.
void ObservationForm::put_unused_aside() {
  for (const FieldRow& row : field_rows()) {
    Entry& entry = now_[row.field];
    if (is_unused(row) == entry.put_aside.has_value()) continue;
    // Present and past weather are filled, so that their group says "not observed"; other elements
    // stay empty.
    const bool filled = !row.not_observed.empty();
    // With them goes the indicator of their group. An observation that was sent keeps its own until
    // one of the items is another.
    if (filled) now_.record.iX = Struct_Weather(around_.ship, around_.items).iX;
    if (entry.put_aside) {
      const std::string back = *std::exchange(entry.put_aside, std::nullopt);
      if (filled) clear(now_, row.field);
      if (!back.empty()) put(row.field, back);
      continue;
    }
    entry.put_aside = entry.entered();
    clear(now_, row.field);
    entry.show({});
    if (!filled || !switched_off(row.field)) continue;
    entry.text = row.not_observed;
    store(now_, row.field, entry.text, around_.ship);
  }
}

void ObservationForm::load(const Entries& entries) {
  now_ = entries;
  now_.record.CallSign = around_.ship.call_sign;
  now_.record.ShipFixed = around_.ship.imo_number;
}

void ObservationForm::load_record(const Struct_Weather& record) {
  const ShipFixedData& ship = around_.ship;
  Entries loaded;
  loaded.record = record;
  loaded.dew_point_method = ship.dew_point_method;
  loaded.sea_temperature_method = ship.sea_temperature_method;
  loaded.north_south = codetables::north_south_of(record.Qc);
  loaded.east_west = codetables::east_west_of(record.Qc);
  if (codetables::has_iced_bulb(record.Sw, record.TbTbTb)) loaded.wet_bulb = WetBulbState::kIced;
  for (const FieldRow& row : field_rows()) {
    Entry& entry = loaded[row.field];
    entry.text = shown(row, record, ship);
    // What this ship does not observe any more was observed then: it stays until it is switched on
    // again, and then it comes back as any entry put aside.
    if (is_unused(row)) entry.put_aside = entry.text;
  }
  // A dew point beside its bulbs is theirs, and does not outlive them.
  if (record.has_wet_bulb()) loaded.dew_point_of_bulbs = record.SnTd + record.TdTdTd;
  loaded.dew_point_as_sent = true;
  loaded.vosclim_as_sent = has_any_vosclim(record);
  show_vosclim(loaded, ship);
  now_ = std::move(loaded);
}

Doubts ObservationForm::take_doubts() {
  return {std::exchange(now_.review_due, false), std::exchange(now_.doubled_pressure_due, false)};
}

}  // namespace elements
