#include "elements/form/observation_form.h"

#include <algorithm>
#include <utility>

#include "codetables/tables/quadrant.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "elements/form/field_codes.h"
#include "elements/formulas/barometer_correction.h"
#include "observation/report_encoder.h"
#include "text/strings.h"

namespace elements {

using observation::Group;

ObservationForm::ObservationForm(const ShipFixedData& ship, const KeyObservationItems& items,
                                 const text::Texts& texts, text::Messages& messages,
                                 const platform::Clock& clock)
    : ship_(ship),
      items_(items),
      language_(texts),
      messages_(messages),
      clock_(clock),
      record_(ship, items),
      dew_point_method_(ship.dew_point_method),
      sea_temperature_method_(ship.sea_temperature_method) {
  items_changed();
  modified_ = false;
}

bool ObservationForm::switched_off(Field field) const {
  const auto item = item_of(field);
  return item && !items_.observed(*item);
}

const std::string& ObservationForm::entered(Field field) const {
  return typed_[at(field)] ? before_typing_[at(field)] : texts_[at(field)];
}

bool ObservationForm::any_error() const {
  for (std::size_t i = 0; i < kFields; ++i) {
    if (in_error(static_cast<Field>(i))) return true;
  }
  return false;
}

bool ObservationForm::take_review_due() {
  return std::exchange(review_due_, false);
}

bool ObservationForm::take_doubled_pressure_due() {
  return std::exchange(doubled_pressure_due_, false);
}

std::string ObservationForm::group_text(Group group) const {
  return observation::group_text(record_, group);
}

std::string ObservationForm::report() const {
  std::string message;
  std::string missing;
  observation::encode_report(record_, message, missing, observation::wants_wet_bulb(ship_),
                             language_.language);
  return message;
}

std::string ObservationForm::missing() const {
  std::string message;
  std::string missing;
  observation::encode_report(record_, message, missing, observation::wants_wet_bulb(ship_),
                             language_.language);
  return missing;
}

void ObservationForm::type(Field field, std::string_view text) {
  if (switched_off(field)) return;
  if (!typed_[at(field)]) before_typing_[at(field)] = slot(field);
  slot(field) = text;
  typed_[at(field)] = true;
}

void ObservationForm::store_put(Field field, std::string_view text) {
  const std::string earlier = entered(field);
  if (text::trim(text).empty()) {
    clear(field);
  } else {
    slot(field) = text;
    store(field, slot(field));
    // A speed loses its decimals, as it does when it is typed.
    if (field == Field::kff) slot(field) = shown(field, record_);
  }
  typed_[at(field)] = error_[at(field)] = false;
  modified_ = modified_ || slot(field) != earlier;
}

void ObservationForm::put(Field field, std::string_view text) {
  const Struct_Weather before = record_;
  store_put(field, text);
  follow(field);
  show_changes(before, field);
  touch(before);
}

void ObservationForm::put_bulbs(std::string_view dry, std::string_view wet, WetBulbState state) {
  const Struct_Weather before = record_;
  wet_bulb_ = state;
  store_put(Field::kDryBulb, dry);
  store_put(Field::kWetBulb, wet);
  follow(Field::kDryBulb);
  touch(before);
}

void ObservationForm::put_wet_bulb_state(WetBulbState state) {
  const Struct_Weather before = record_;
  wet_bulb_ = state;
  if (const std::string wet = entered(Field::kWetBulb); !wet.empty()) store(Field::kWetBulb, wet);
  compute_dew_point();
  touch(before);
}

void ObservationForm::toggle_freeze() {
  const auto wet = air_temperature_of(entered(Field::kWetBulb));
  if (!wet) return;
  put_wet_bulb_state(toggled_wet_bulb(wet_bulb_, *wet));
}

void ObservationForm::choose_hemispheres(int north_south, int east_west) {
  const Struct_Weather before = record_;
  north_south_ = north_south;
  east_west_ = east_west;
  record_.Qc = codetables::quadrant_of(north_south, east_west);
  if (record_.Qc != before.Qc) review_due_ = true;
  touch(before);
}

void ObservationForm::change(const std::function<void(Struct_Weather&)>& change,
                             std::initializer_list<Field> of_dialog) {
  const Struct_Weather before = record_;
  change(record_);
  show_changes(before);
  for (const Field field : of_dialog) {
    slot(field) = shown(field, record_);
    typed_[at(field)] = error_[at(field)] = false;
  }
  touch(before);
}

void ObservationForm::ship_changed() {
  const Struct_Weather before = record_;
  const bool was_modified = modified_;
  const Struct_Weather fresh(ship_, items_);
  record_.iw = fresh.iw;
  record_.CallSign = fresh.CallSign;
  record_.ShipFixed = fresh.ShipFixed;
  if (dew_point_method_ != ship_.dew_point_method) {
    // The same air temperature stands in another field now.
    dew_point_method_ = ship_.dew_point_method;
    for (const Field field :
         {Field::kDryBulb, Field::kWetBulb, Field::kAirTemperature, Field::kDewPoint}) {
      slot(field) = shown(field, record_);
      typed_[at(field)] = error_[at(field)] = false;
    }
  }
  // The method stands in the sign's figure. One that was chosen for this observation alone stays.
  const auto method = codetables::sea_temperature_method(record_.Ss);
  if (method == sea_temperature_method_)
    record_.Ss = codetables::sea_temperature_sign(ship_.sea_temperature_method,
                                                  codetables::is_below_zero(record_.Ss));
  sea_temperature_method_ = ship_.sea_temperature_method;
  put_unused_aside();
  const Struct_Weather as_entered = record_;
  reduce_again();
  compute_dew_point();
  if (true_wind_of_texts(apparent_wind())) compute_true_wind();
  show_changes(before);
  modified_ = was_modified || !(record_ == as_entered);
}

void ObservationForm::items_changed() {
  const bool was_modified = modified_;
  record_.iX = Struct_Weather(ship_, items_).iX;
  put_unused_aside();
  modified_ = was_modified;
}

// An element that is not observed, or that no instrument measures any more, gives its entry up and
// gets it back.
void ObservationForm::put_unused_aside() {
  for (std::size_t i = 0; i < kFields; ++i) {
    const auto field = static_cast<Field>(i);
    const bool off = switched_off(field);
    const bool unused = off || (needs_wave_recorder(field) && !ship_.wave_recorder);
    if (unused == put_aside_[i].has_value()) continue;
    // Present and past weather are filled, so that their group says "not observed"; other elements
    // stay empty.
    const bool filled = field == Field::kww || field == Field::kW1 || field == Field::kW2;
    if (put_aside_[i]) {
      const std::string entry = *std::exchange(put_aside_[i], std::nullopt);
      if (filled) clear(field);
      if (!entry.empty()) put(field, entry);
      continue;
    }
    put_aside_[i] = entered(field);
    clear(field);
    typed_[i] = error_[i] = false;
    if (filled && off) store(field, slot(field) = field == Field::kww ? "//" : "/");
  }
}

FormState ObservationForm::state() const {
  FormState state{before_group_ ? *before_group_ : entries(),
                  {},
                  put_aside_,
                  pppp_of_reading_,
                  dew_point_of_bulbs_,
                  dew_point_method_,
                  sea_temperature_method_,
                  error_flag_,
                  modified_,
                  review_due_,
                  doubled_pressure_due_};
  for (std::size_t i = 0; i < kFields; ++i) {
    if (state.entries.typed[i]) state.before_typing[i] = before_typing_[i];
  }
  return state;
}

void ObservationForm::load(const FormState& state) {
  restore(state.entries);
  record_.CallSign = ship_.call_sign;  // the ship's, whatever the state was made with
  record_.ShipFixed = ship_.imo_number;
  before_typing_ = state.before_typing;
  put_aside_ = state.put_aside;
  pppp_of_reading_ = state.pppp_of_reading;
  dew_point_of_bulbs_ = state.dew_point_of_bulbs;
  dew_point_method_ = state.dew_point_method;
  sea_temperature_method_ = state.sea_temperature_method;
  error_flag_ = state.error_flag;
  modified_ = state.modified;
  review_due_ = state.review_due;
  doubled_pressure_due_ = state.doubled_pressure_due;
}

void ObservationForm::touch(const Struct_Weather& before) {
  if (!(record_ == before)) modified_ = true;
}

void ObservationForm::show_changes(const Struct_Weather& before, std::optional<Field> except) {
  for (std::size_t i = 0; i < kFields; ++i) {
    const auto field = static_cast<Field>(i);
    std::string now = shown(field, record_);
    if (field == except || now == shown(field, before)) continue;
    texts_[i] = std::move(now);
    typed_[i] = error_[i] = false;
  }
  if (record_.Qc != before.Qc) {
    north_south_ = codetables::north_south_of(record_.Qc);
    east_west_ = codetables::east_west_of(record_.Qc);
  }
  const auto place = [](const Struct_Weather& r) {
    return std::array<std::string, 9>{r.Year,  r.Month, r.YY,    r.GG,   r.Qc,
                                      r.LaDeg, r.LaMin, r.LoDeg, r.LoMin};
  };
  if (place(record_) != place(before)) review_due_ = true;
  if (record_.Sw == before.Sw && record_.TbTbTb == before.TbTbTb) return;
  if (codetables::has_iced_bulb(record_.Sw, record_.TbTbTb)) {
    wet_bulb_ = WetBulbState::kIced;
  } else if (wet_bulb_ == WetBulbState::kIced) {
    wet_bulb_ = WetBulbState::kNotSet;
  }
}

std::string ObservationForm::shown(Field field, const Struct_Weather& record) const {
  switch (field) {
    case Field::kDryBulb:
      return ship_.dew_point_method == DewPointMethod::kComputed
                 ? codetables::temperature_shown(record.SnT, record.TTT)
                 : std::string();
    case Field::kAirTemperature:
      return ship_.dew_point_method == DewPointMethod::kComputed
                 ? std::string()
                 : codetables::temperature_shown(record.SnT, record.TTT);
    case Field::kDewPoint:
      return ship_.dew_point_method == DewPointMethod::kComputed
                 ? std::string()
                 : codetables::temperature_shown(record.SnTd, record.TdTdTd);
    default:
      return shown_from_record(field, record);
  }
}

}  // namespace elements
