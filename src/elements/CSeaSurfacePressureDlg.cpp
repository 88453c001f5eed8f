#include "elements/CSeaSurfacePressureDlg.h"

#include <utility>

#include "elements/formulas/sea_level_pressure.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

// The list of whole readings: every pressure that is possible at sea level.
constexpr int kLowestWhole = codetables::kLowestPressure;
constexpr int kHighestWhole = codetables::kBeyondPressures - 1;

}  // namespace

CSeaSurfacePressureDlg::CSeaSurfacePressureDlg(ui::Services& services, Values values,
                                               CardActions actions)
    : OkCancelHelpDialog(services, "CSeaSurfacePressureDlg", {id::kPressureTitle}),
      reading_group(*this, "reading_group", {id::kPressureReadingGroup}),
      reading_whole(*this, "reading_whole", {id::kPressureWhole}, 4),
      reading_tenths(*this, "reading_tenths", {id::kPressureTenths}, 1),
      reading(*this, "reading", {id::kPressureReading}),
      air_temperature(*this, "air_temperature", {id::kPressureAirTemperature}),
      total_correction(*this, "total_correction", {id::kPressureCorrection}),
      sea_level_pressure(*this, "sea_level_pressure", {id::kPressureSeaLevel}),
      time_group(*this, "time_group", {id::kPressureTimeGroup}),
      time_choice(*this, "time_choice", {}, {{id::kPressureTimeNear}, {id::kPressureTimeFar}}),
      hour(*this, "hour", {id::kPressureHour}, 2),
      minute(*this, "minute", {id::kPressureMinute}, 2),
      card_group(*this, "card_group", {id::kPressureCardGroup}),
      check_date(*this, "check_date", {id::kPressureCheckDate}),
      check_place(*this, "check_place", {id::kPressureCheckPlace}),
      renew(*this, "renew", {id::kPressureRenew}),
      values_(std::move(values)),
      actions_(std::move(actions)),
      card_(values_.card) {
  fill_lists();
  connect();
}

void CSeaSurfacePressureDlg::fill_lists() {
  reading_whole.items = text::numbered_lines(kLowestWhole, kHighestWhole, 4);
  reading_tenths.items = text::numbered_lines(0, 9, 1);
  hour.items = text::numbered_lines(0, 23, 2);
  minute.items = text::numbered_lines(0, 59, 2);
  for (ui::Control* const field :
       std::initializer_list<ui::Control*>{&reading_whole, &reading_tenths, &hour, &minute}) {
    field->figures = true;
    field->moves_on_when_full = field != &reading_whole;
  }
  for (ui::Control* const in_hectopascal : std::initializer_list<ui::Control*>{
           &reading_tenths, &reading, &total_correction, &sea_level_pressure})
    in_hectopascal->unit = {id::kUnitHectopascal};
  air_temperature.unit = {id::kUnitCelsius};
}

void CSeaSurfacePressureDlg::connect() {
  reading_whole.continues_in = &reading_tenths;
  reading_whole.on_change = [this] { recalculate(); };
  reading_tenths.on_change = [this] {
    tenths_typed_ = true;
    recalculate();
  };
  reading_whole.on_leave = [this] {
    return check_digits(reading_whole, id::kBarometerReadingRange);
  };
  reading_tenths.on_leave = [this] { return check_digits(reading_tenths, id::kInvalidValue); };
  time_choice.on_change = [this] { time_choice_changed(); };
  hour.on_leave = [this] { return check_time(hour, 23); };
  minute.on_leave = [this] { return check_time(minute, 59); };
  renew.on_press = [this] { renew_card(); };
}

void CSeaSurfacePressureDlg::on_open() {
  const elements::ReadingParts parts = elements::split_reading(values_.reading);
  reading_whole.set(parts.whole);
  reading_tenths.set(parts.tenths);
  air_temperature.content = values_.air_temperature;
  kept_hour_ = values_.hour;
  kept_minute_ = values_.minute;
  time_choice.selected = static_cast<int>(values_.time_choice);
  time_choice_changed();
  show_card();
  recalculate();
}

void CSeaSurfacePressureDlg::show_card() {
  check_date.content = card_.check_date;
  check_place.content = card_.check_port;
}

// The actual time counts only when it is far from the nominal hour; meanwhile it is kept aside.
void CSeaSurfacePressureDlg::time_choice_changed() {
  const bool entered = time_choice.selected == static_cast<int>(TimeChoice::kMoreThan10Minutes);
  // The fields are still enabled as the choice before this one left them.
  if (!entered && hour.enabled && !(hour.content.empty() && minute.content.empty())) {
    kept_hour_ = hour.content;
    kept_minute_ = minute.content;
  }
  hour.set(entered ? kept_hour_ : "");
  minute.set(entered ? kept_minute_ : "");
  for (ui::Control* const field :
       {static_cast<ui::Control*>(&hour), static_cast<ui::Control*>(&minute)}) {
    field->enabled = entered;
    field->why_locked =
        entered ? std::string() : std::string(services().texts.get(id::kPressureTimeLocked));
  }
}

void CSeaSurfacePressureDlg::renew_card() {
  BarometerCard renewed = card_;
  if (!actions_.renew || !actions_.renew(renewed)) return;
  card_ = std::move(renewed);
  show_card();
  recalculate();
}

// Shows the reading reduced to sea level; while a part is missing or is no number, what was shown
// before stays.
void CSeaSurfacePressureDlg::recalculate() {
  if (text::is_all_digits(reading_whole.content)) {
    // The list writes 0998, an older reading 998: both stand on the same line.
    const int whole = text::leading_int(reading_whole.content);
    if (whole >= kLowestWhole && whole <= kHighestWhole)
      reading_whole.selected = whole - kLowestWhole;
  }
  if (!text::is_all_digits(reading_whole.content) || !text::is_all_digits(reading_tenths.content))
    return;
  reading.content = reading_whole.content + "." + reading_tenths.content;
  const elements::Hectopascal read{text::leading_number(reading.content)};
  const elements::Hectopascal correction = elements::total_correction(
      read, card_, elements::air_temperature_of(values_.air_temperature));
  total_correction.content = elements::total_correction_text(correction);
  sea_level_pressure.content = text::format_fixed(read.value + correction.value, 1);
}

bool CSeaSurfacePressureDlg::check_digits(const ui::Control& field, text::Id message) {
  const Speaking of(*this, field);
  if (!field.content.empty() && !text::is_all_digits(field.content)) {
    services().messages.error(message);
    return false;
  }
  recalculate();
  return true;
}

bool CSeaSurfacePressureDlg::check_time(ui::Control& field, int largest) {
  const Speaking of(*this, field);
  // OK asks for a time that is missing, blanks included.
  if (text::trim(field.content).empty()) return true;
  const auto number = text::whole_number(field.content, 0, largest);
  if (!number) {
    services().messages.error(id::kInvalidValue);
    return false;
  }
  field.set(text::format_digits(*number, 2));
  return true;
}

bool CSeaSurfacePressureDlg::validate() {
  if (reading_whole.content.empty()) return refuse(reading_whole, id::kSeaLevelPressureMissing);
  if (reading_tenths.content.empty()) reading_tenths.set("0");
  recalculate();
  const codetables::Hectopascal shown{text::leading_number(sea_level_pressure.content)};
  if (codetables::pressure_range(shown) == codetables::PressureRange::kRefused)
    return refuse(reading_whole, id::kBarometerReadingRange);
  if (time_choice.selected == static_cast<int>(TimeChoice::kMoreThan10Minutes)) {
    // An empty one does not come here; one of blanks does.
    if (text::trim(hour.content).empty()) return refuse(hour, id::kUtcHourMissing);
    if (text::trim(minute.content).empty()) return refuse(minute, id::kUtcMinuteMissing);
  }
  return true;
}

void CSeaSurfacePressureDlg::on_ok() {
  if (actions_.store) actions_.store(card_);
  values_.card = card_;
  // Tenths that were typed were meant for a reading: they are not given up without a word. Those of
  // the earlier reading go with its whole part.
  const bool tenths_alone = tenths_typed_ && !reading_tenths.content.empty();
  const bool no_pressure = reading_whole.content.empty() && !tenths_alone && hour.content.empty() &&
                           minute.content.empty();
  const bool far = time_choice.selected == static_cast<int>(TimeChoice::kMoreThan10Minutes);
  if (!no_pressure) {
    // Nothing is said, as it always was: the screen stays until the time is whole or near.
    if (far && (hour.content.empty() || minute.content.empty())) return;
    if (!validate()) return;
  }
  values_.reading = no_pressure ? "" : reading_whole.content + "." + reading_tenths.content;
  values_.hour = hour.content;
  values_.minute = minute.content;
  values_.time_choice = far ? TimeChoice::kMoreThan10Minutes : TimeChoice::kUnder10Minutes;
  close(ui::kOk);
}
