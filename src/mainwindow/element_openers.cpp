#include "mainwindow/element_openers.h"

#include <algorithm>

#include "codetables/CEyeShotDlg.h"
#include "codetables/tables/pressure_figures.h"
#include "elements/CCountDewDlg.h"
#include "elements/CDvDsDlg.h"
#include "elements/CLookWindDlg.h"
#include "elements/CPositionDlg.h"
#include "elements/CPresureTendencyDlg.h"
#include "elements/CSeaSurfacePressureDlg.h"
#include "elements/CSea_SurfaceTemperatureDlg.h"
#include "elements/CTemperatureAndDewDlg.h"
#include "elements/CThumidityDlg.h"
#include "elements/CTrueDirWindDlg.h"
#include "elements/CUTCTimeDlg1.h"
#include "elements/formulas/sea_level_pressure.h"
#include "mainwindow/form_rows.h"
#include "ship/CKataInputDlg.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace mainwindow {
namespace {

Use always(const MainWindowContext& /*context*/) {
  return Use::kInUse;
}

template <ObservationItem item>
Use item_is_observed(const MainWindowContext& context) {
  return context.items.observed(item) ? Use::kInUse : Use::kNotObserved;
}

Use a_swell_is_observed(const MainWindowContext& context) {
  return context.items.observed(ObservationItem::dw1Pw1Hw1) ||
                 context.items.observed(ObservationItem::dw2Pw2Hw2)
             ? Use::kInUse
             : Use::kNotObserved;
}

template <DewPointMethod method>
Use dew_point_by(const MainWindowContext& context) {
  return context.ship.dew_point_method == method ? Use::kInUse : Use::kOtherMethod;
}

Use humidity_is_read(const MainWindowContext& context) {
  return context.ship.humidity_method == HumidityMethod::kDirect ? Use::kInUse : Use::kOtherMethod;
}

template <WindInputMethod method>
Use wind_by(const MainWindowContext& context) {
  return context.ship.wind_input_method == method ? Use::kInUse : Use::kOtherMethod;
}

using elements::Field;

bool confirmed(Opening& opening, ui::Screen& dialog) {
  return opening.services.windows.run_modal(dialog) == ui::kOk;
}

// A dialog that is confirmed as it opened changes nothing: what stands in its fields is not entered
// once more, for what is computed from it may have been typed over since. A refused text that
// stands there does give way to what the dialog said.
bool stands(const elements::ObservationForm& form, Field field, std::string_view value) {
  return form.text(field) == value && form.entered(field) == value && !form.in_error(field);
}

void put(elements::ObservationForm& form, Field field, std::string_view value) {
  if (!stands(form, field, value)) form.put(field, value);
}

bool open_time(Opening& opening) {
  const Struct_Weather& record = opening.form.record();
  CUTCTimeDlg1 dialog(opening.services, {record.Year, record.Month, record.YY, record.GG});
  if (!confirmed(opening, dialog)) return false;
  opening.form.change(
      [&](Struct_Weather& r) {
        const CUTCTimeDlg1::Values& v = dialog.values();
        r.Year = v.Year;
        r.Month = v.Month;
        r.YY = v.YY;
        r.GG = v.GG;
      },
      {Field::kYear, Field::kMonth, Field::kYY, Field::kGG});
  return true;
}

bool open_position(Opening& opening) {
  const Struct_Weather& record = opening.form.record();
  CPositionDlg dialog(opening.services,
                      {record.LaDeg, record.LaMin, record.LoDeg, record.LoMin, record.Qc},
                      opening.last_quadrant, opening.context.is_on_land,
                      {opening.form.north_south(), opening.form.east_west()});
  if (!confirmed(opening, dialog)) return false;
  opening.form.change(
      [&](Struct_Weather& r) {
        const CPositionDlg::Values& v = dialog.values();
        r.LaDeg = v.LaDeg;
        r.LaMin = v.LaMin;
        r.LoDeg = v.LoDeg;
        r.LoMin = v.LoMin;
        r.Qc = v.Qc;
      },
      {Field::kLaDeg, Field::kLaMin, Field::kLoDeg, Field::kLoMin});
  return true;
}

bool open_course_and_speed(Opening& opening) {
  CDvDsDlg dialog(opening.services, {opening.form.record().Ds, opening.form.record().Vs});
  if (!confirmed(opening, dialog)) return false;
  put(opening.form, Field::kDs, dialog.values().Ds);
  put(opening.form, Field::kVs, dialog.values().Vs);
  return true;
}

// The reading is taken as if it had been typed: an unusual pressure at sea level asks, and No keeps
// the pressure that was there. Where no reading was or is given, a pressure that was typed by hand
// is the only one there is, and stays.
void take_reading(elements::ObservationForm& form, const std::string& reading) {
  if (reading.empty()) {
    if (!form.entered(Field::kReading).empty()) form.put(Field::kReading, {});
    form.change([](Struct_Weather&) {}, {Field::kReading});
    return;
  }
  const codetables::Hectopascal read{text::leading_number(reading)};
  if (stands(form, Field::kReading, codetables::pressure_text(read))) return;
  form.type(Field::kReading, text::format_fixed(read.value, 1, 4));
  static_cast<void>(form.leave(Field::kReading));
}

bool open_pressure(Opening& opening) {
  using Dialog = CSeaSurfacePressureDlg;
  elements::ObservationForm& form = opening.form;
  MainWindowContext& context = opening.context;
  const bool psychrometer = context.ship.dew_point_method == DewPointMethod::kComputed;
  Dialog::Values values;
  // What stands in the field, also refused, where the screen can show it.
  const std::string& standing = form.text(Field::kReading);
  const bool shows = elements::is_reading(elements::cut_to_one_decimal(standing));
  values.reading = shows ? standing : form.entered(Field::kReading);
  values.air_temperature = form.entered(psychrometer ? Field::kDryBulb : Field::kAirTemperature);
  values.hour = form.record().GGExact;
  values.minute = form.record().gg;
  values.time_choice = form.record().has_exact_time() ? Dialog::TimeChoice::kMoreThan10Minutes
                                                      : Dialog::TimeChoice::kUnder10Minutes;
  values.card = context.ship.card;
  Dialog::CardActions actions;
  actions.renew = [&](BarometerCard& card) { return renew_card(opening.services, card); };
  actions.store = [&](const BarometerCard& card) {
    if (card == context.ship.card) return;
    context.ship.card = card;
    if (context.save_fixed_data) context.save_fixed_data();
  };
  Dialog dialog(opening.services, std::move(values), std::move(actions));
  const BarometerCard before = context.ship.card;
  const bool ok = confirmed(opening, dialog);
  if (!(before == context.ship.card)) form.card_changed();
  if (!ok) return false;
  const Dialog::Values& result = dialog.values();
  const bool exact = result.time_choice == Dialog::TimeChoice::kMoreThan10Minutes;
  put(form, Field::kGGExact, exact ? result.hour : std::string());
  put(form, Field::kgg, exact ? result.minute : std::string());
  take_reading(form, result.reading);
  return true;
}

bool open_tendency(Opening& opening) {
  const Struct_Weather& record = opening.form.record();
  CPresureTendencyDlg dialog(opening.services, record.a, record.ppp);
  if (!confirmed(opening, dialog)) return false;
  opening.form.change(
      [&](Struct_Weather& r) {
        r.a = dialog.a();
        r.ppp = dialog.ppp();
      },
      {Field::ka, Field::kppp});
  return true;
}

bool open_psychrometer(Opening& opening) {
  elements::ObservationForm& form = opening.form;
  CCountDewDlg dialog(opening.services, {form.text(Field::kDryBulb), form.text(Field::kWetBulb),
                                         form.wet_bulb_state(), form.entered(Field::kReading),
                                         opening.context.ship.card});
  if (!confirmed(opening, dialog)) return false;
  const CCountDewDlg::Values& v = dialog.values();
  if (stands(form, Field::kDryBulb, v.dry) && stands(form, Field::kWetBulb, v.wet) &&
      v.state == form.wet_bulb_state())
    return true;
  form.put_bulbs(v.dry, v.wet, v.state);
  return true;
}

bool open_dew_point(Opening& opening) {
  elements::ObservationForm& form = opening.form;
  CTemperatureAndDewDlg dialog(opening.services,
                               {form.text(Field::kAirTemperature), form.text(Field::kDewPoint)});
  if (!confirmed(opening, dialog)) return false;
  put(form, Field::kAirTemperature, dialog.values().air);
  put(form, Field::kDewPoint, dialog.values().dew);
  return true;
}

bool open_humidity(Opening& opening) {
  CThumidityDlg dialog(opening.services, opening.form.text(Field::kHumidity),
                       opening.context.ship.humidity_unit);
  if (!confirmed(opening, dialog)) return false;
  put(opening.form, Field::kHumidity, dialog.humidity());
  return true;
}

bool open_sea_temperature(Opening& opening) {
  const Struct_Weather& record = opening.form.record();
  CSea_SurfaceTemperatureDlg dialog(opening.services, {record.Ss, record.TwTwTw},
                                    opening.context.ship.sea_temperature_method);
  if (!confirmed(opening, dialog)) return false;
  opening.form.change(
      [&](Struct_Weather& r) {
        r.Ss = dialog.values().Ss;
        r.TwTwTw = dialog.values().TwTwTw;
      },
      {Field::kTwTwTw});
  return true;
}

bool open_apparent_wind(Opening& opening) {
  elements::ObservationForm& form = opening.form;
  CLookWindDlg dialog(
      opening.services,
      {form.text(Field::kApparentDirection), form.text(Field::kApparentSpeed),
       form.text(Field::kHeading), form.text(Field::kCourse), form.text(Field::kShipSpeed)});
  if (!confirmed(opening, dialog)) return false;
  const elements::ApparentWindTexts& v = dialog.values();
  put(form, Field::kApparentDirection, text::trim(v.direction));
  put(form, Field::kApparentSpeed, text::trim(v.speed));
  put(form, Field::kHeading, text::trim(v.heading));
  put(form, Field::kCourse, text::trim(v.course));
  put(form, Field::kShipSpeed, text::trim(v.ship_speed));
  return true;
}

bool open_true_wind(Opening& opening) {
  elements::ObservationForm& form = opening.form;
  CTrueDirWindDlg dialog(opening.services, form.text(Field::kdd), form.text(Field::kff));
  if (!confirmed(opening, dialog)) return false;
  put(form, Field::kdd, dialog.direction());
  put(form, Field::kff, dialog.speed());
  return true;
}

bool open_visibility(Opening& opening) {
  CEyeShotDlg dialog(opening.services, opening.form.record().VV);
  if (!confirmed(opening, dialog)) return false;
  put(opening.form, Field::kVV, dialog.code());
  return true;
}

constexpr ElementRow kRows[] = {
    {kObservationTime, always, open_time},
    {kPosition, always, open_position},
    {kCourseAndSpeed, always, open_course_and_speed},
    {kPressure, always, open_pressure},
    {kPressureTendency, always, open_tendency},
    {kPsychrometer, dew_point_by<DewPointMethod::kComputed>, open_psychrometer},
    {kTemperatureAndDewPoint, dew_point_by<DewPointMethod::kDirect>, open_dew_point},
    {kSeaTemperature, always, open_sea_temperature},
    {kApparentWind, wind_by<WindInputMethod::kApparentWind>, open_apparent_wind},
    {kWindWave, item_is_observed<ObservationItem::PwHw>},
    {kSwell, a_swell_is_observed},
    {kVisibility, item_is_observed<ObservationItem::VV>, open_visibility},
    {kPresentWeather, item_is_observed<ObservationItem::ww>},
    {kPastWeather, item_is_observed<ObservationItem::W1W2>},
    {kCloudAmount, item_is_observed<ObservationItem::N>},
    {kLowestCloud, item_is_observed<ObservationItem::Nh>},
    {kUpperCloud, item_is_observed<ObservationItem::CLCMCH>},
    {kMiddleCloud, item_is_observed<ObservationItem::CLCMCH>},
    {kLowerCloud, item_is_observed<ObservationItem::CLCMCH>},
    {kIceAccretion, item_is_observed<ObservationItem::IsEsEsRs>},
    {kCloudHeight, item_is_observed<ObservationItem::h>},
    {kIceConcentration, item_is_observed<ObservationItem::ciSibiDizi>},
    {kIceStage, item_is_observed<ObservationItem::ciSibiDizi>},
    {kIceBearing, item_is_observed<ObservationItem::ciSibiDizi>},
    {kIceTrend, item_is_observed<ObservationItem::ciSibiDizi>},
    {kTrueWind, wind_by<WindInputMethod::kTrueWind>, open_true_wind},
    {kRelativeHumidity, humidity_is_read, open_humidity},
};

}  // namespace

std::span<const ElementRow> element_rows() {
  return kRows;
}

const ElementRow* find_element(int element) {
  const auto* const at =
      std::find_if(std::begin(kRows), std::end(kRows),
                   [&](const ElementRow& row) { return row.element == element; });
  return at == std::end(kRows) ? nullptr : at;
}

}  // namespace mainwindow
