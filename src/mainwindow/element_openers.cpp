#include "mainwindow/element_openers.h"

#include <algorithm>

#include "codetables/CEyeShotDlg.h"
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
#include "mainwindow/entry_messages.h"
#include "mainwindow/form_rows.h"
#include "ship/CKataInputDlg.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace mainwindow {
namespace {

template <DewPointMethod method>
bool dew_point_not_by(const ShipFixedData& ship) {
  return ship.dew_point_method != method;
}

bool humidity_is_computed(const ShipFixedData& ship) {
  return ship.humidity_method == HumidityMethod::kComputed;
}

template <WindInputMethod method>
bool wind_not_by(const ShipFixedData& ship) {
  return ship.wind_input_method != method;
}

using elements::Field;

bool confirmed(Opening& opening, ui::Screen& dialog) {
  return opening.services.windows.run_modal(dialog) == ui::kOk;
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
                      {opening.form.entries().north_south, opening.form.entries().east_west});
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
  opening.form.put({{Field::kDs, dialog.values().Ds}, {Field::kVs, dialog.values().Vs}});
  return true;
}

// The reading is taken as if it had been typed: an unusual pressure at sea level asks, and No keeps
// the pressure that was there. Where no reading was or is given, a pressure that was typed by hand
// is the only one there is, and stays.
void take_reading(Opening& opening, const std::string& reading) {
  elements::ObservationForm& form = opening.form;
  if (reading.empty()) {
    if (!form.entered(Field::kReading).empty()) form.put(Field::kReading, {});
    form.change([](Struct_Weather&) {}, {Field::kReading});
    return;
  }
  form.type(Field::kReading, text::format_fixed(text::leading_number(reading), 1, 4));
  settle(opening.services.messages, opening.services.texts,
         [&](elements::Confirmed confirmed) { return form.leave(Field::kReading, confirmed); });
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
  form.put({{Field::kGGExact, exact ? std::string_view(result.hour) : std::string_view()},
            {Field::kgg, exact ? std::string_view(result.minute) : std::string_view()}});
  take_reading(opening, result.reading);
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
                                         form.entries().wet_bulb, form.entered(Field::kReading),
                                         opening.context.ship.card});
  if (!confirmed(opening, dialog)) return false;
  form.put({{Field::kDryBulb, dialog.values().dry}, {Field::kWetBulb, dialog.values().wet}},
           dialog.values().state);
  return true;
}

bool open_dew_point(Opening& opening) {
  elements::ObservationForm& form = opening.form;
  CTemperatureAndDewDlg dialog(opening.services,
                               {form.text(Field::kAirTemperature), form.text(Field::kDewPoint)});
  if (!confirmed(opening, dialog)) return false;
  form.put(
      {{Field::kAirTemperature, dialog.values().air}, {Field::kDewPoint, dialog.values().dew}});
  return true;
}

bool open_humidity(Opening& opening) {
  CThumidityDlg dialog(opening.services, opening.form.text(Field::kHumidity),
                       opening.context.ship.humidity_unit);
  if (!confirmed(opening, dialog)) return false;
  opening.form.put(Field::kHumidity, dialog.humidity());
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
  form.put({{Field::kApparentDirection, text::trim(v.direction)},
            {Field::kApparentSpeed, text::trim(v.speed)},
            {Field::kHeading, text::trim(v.heading)},
            {Field::kCourse, text::trim(v.course)},
            {Field::kShipSpeed, text::trim(v.ship_speed)}});
  return true;
}

bool open_true_wind(Opening& opening) {
  elements::ObservationForm& form = opening.form;
  CTrueDirWindDlg dialog(opening.services, form.text(Field::kdd), form.text(Field::kff));
  if (!confirmed(opening, dialog)) return false;
  form.put({{Field::kdd, dialog.direction()}, {Field::kff, dialog.speed()}});
  return true;
}

bool open_visibility(Opening& opening) {
  CEyeShotDlg dialog(opening.services, opening.form.record().VV);
  if (!confirmed(opening, dialog)) return false;
  opening.form.put(Field::kVV, dialog.code());
  return true;
}

constexpr ElementRow kRows[] = {
    {kObservationTime, open_time},
    {kPosition, open_position},
    {kCourseAndSpeed, open_course_and_speed},
    {kPressure, open_pressure},
    {kPressureTendency, open_tendency},
    {kPsychrometer, open_psychrometer, dew_point_not_by<DewPointMethod::kComputed>},
    {kTemperatureAndDewPoint, open_dew_point, dew_point_not_by<DewPointMethod::kDirect>},
    {kSeaTemperature, open_sea_temperature},
    {kApparentWind, open_apparent_wind, wind_not_by<WindInputMethod::kApparentWind>},
    {kWindWave},
    {kSwell},
    {kVisibility, open_visibility},
    {kPresentWeather},
    {kPastWeather},
    {kCloudAmount},
    {kLowestCloud},
    {kUpperCloud},
    {kMiddleCloud},
    {kLowerCloud},
    {kIceAccretion},
    {kCloudHeight},
    {kIceConcentration},
    {kIceStage},
    {kIceBearing},
    {kIceTrend},
    {kTrueWind, open_true_wind, wind_not_by<WindInputMethod::kTrueWind>},
    {kRelativeHumidity, open_humidity, humidity_is_computed},
};

}  // namespace

std::span<const ElementRow> element_rows() {
  return kRows;
}

Use use_of(const ElementRow& row, const MainWindowContext& context) {
  bool has_fields = false;
  bool observed = false;
  for (const elements::FieldRow& field : elements::field_rows()) {
    if (field.element != row.element) continue;
    has_fields = true;
    observed = observed || !elements::is_switched_off(field, context.items);
  }
  if (has_fields && !observed) return Use::kNotObserved;
  const bool other = row.by_other_method != nullptr && row.by_other_method(context.ship);
  return other ? Use::kOtherMethod : Use::kInUse;
}

const ElementRow* find_element(int element) {
  const auto* const at =
      std::find_if(std::begin(kRows), std::end(kRows),
                   [&](const ElementRow& row) { return row.element == element; });
  return at == std::end(kRows) ? nullptr : at;
}

}  // namespace mainwindow
