#include "mainwindow/element_openers.h"

#include <algorithm>

#include "codetables/CCodeTableDlg.h"
#include "codetables/code_pickers.h"
#include "elements/CCountDewDlg.h"
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

// A member of the record and where the dialog holds what it hands back.
struct HandedBack {
  std::string Struct_Weather::*member;
  const std::string& result;
};

// Runs the dialog. On OK the record takes its results as they are, and the element's fields show
// them.
bool fill_record(Opening& opening, ui::Screen& dialog, std::initializer_list<HandedBack> results,
                 std::initializer_list<Field> fields) {
  if (!confirmed(opening, dialog)) return false;
  opening.form.change(
      [&](Struct_Weather& record) {
        for (const HandedBack& row : results) record.*row.member = row.result;
      },
      fields);
  return true;
}

// A field and where the dialog holds what it hands back for it.
struct PutBack {
  Field field;
  const std::string& result;
};

// Runs the dialog. On OK its results go into the fields, in this order, with all that follows.
bool fill_fields(Opening& opening, ui::Screen& dialog, std::initializer_list<PutBack> results) {
  if (!confirmed(opening, dialog)) return false;
  for (const PutBack& row : results) opening.form.put(row.field, text::trim(row.result));
  return true;
}

// The dialogs that pick codes. A field that shows one of them is named for it.
template <const codetables::CodePicker& picker>
bool pick(Opening& opening) {
  CCodeTableDlg dialog(opening.services, picker, opening.form.record());
  if (!confirmed(opening, dialog)) return false;
  Struct_Weather chosen = opening.form.record();
  dialog.put_into(chosen);
  for (const codetables::PickedCode& picked : picker.codes) {
    std::string Struct_Weather::*const member = find_weather_field(picked.symbol)->member;
    const Field field = elements::field_named(picked.symbol).value();
    // A text that says the same stays as it was typed: 350 metres, for the code of 300 to 600.
    if (opening.form.record().*member == chosen.*member && !opening.form.in_error(field)) continue;
    opening.form.change([&](Struct_Weather& record) { record.*member = chosen.*member; }, {field});
  }
  return true;
}

using R = Struct_Weather;

bool open_time(Opening& opening) {
  const R& record = opening.form.record();
  CUTCTimeDlg1 dialog(opening.services, {record.Year, record.Month, record.YY, record.GG});
  const CUTCTimeDlg1::Values& v = dialog.values();
  return fill_record(opening, dialog,
                     {{&R::Year, v.Year}, {&R::Month, v.Month}, {&R::YY, v.YY}, {&R::GG, v.GG}},
                     {Field::kYear, Field::kMonth, Field::kYY, Field::kGG});
}

bool open_position(Opening& opening) {
  const R& record = opening.form.record();
  CPositionDlg dialog(opening.services,
                      {record.LaDeg, record.LaMin, record.LoDeg, record.LoMin, record.Qc},
                      opening.last_quadrant, opening.context.is_on_land,
                      {opening.form.north_south(), opening.form.east_west()});
  const CPositionDlg::Values& v = dialog.values();
  return fill_record(opening, dialog,
                     {{&R::LaDeg, v.LaDeg},
                      {&R::LaMin, v.LaMin},
                      {&R::LoDeg, v.LoDeg},
                      {&R::LoMin, v.LoMin},
                      {&R::Qc, v.Qc}},
                     {Field::kLaDeg, Field::kLaMin, Field::kLoDeg, Field::kLoMin});
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
  form.type(Field::kReading, text::format_fixed(text::leading_number(reading), 1, 4));
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
  form.put(Field::kGGExact, exact ? result.hour : std::string());
  form.put(Field::kgg, exact ? result.minute : std::string());
  take_reading(form, result.reading);
  return true;
}

bool open_tendency(Opening& opening) {
  const R& record = opening.form.record();
  CPresureTendencyDlg dialog(opening.services, record.a, record.ppp);
  return fill_record(opening, dialog, {{&R::a, dialog.a()}, {&R::ppp, dialog.ppp()}},
                     {Field::ka, Field::kppp});
}

bool open_psychrometer(Opening& opening) {
  elements::ObservationForm& form = opening.form;
  CCountDewDlg dialog(opening.services, {form.text(Field::kDryBulb), form.text(Field::kWetBulb),
                                         form.wet_bulb_state(), form.entered(Field::kReading),
                                         opening.context.ship.card});
  if (!confirmed(opening, dialog)) return false;
  form.put_bulbs(dialog.values().dry, dialog.values().wet, dialog.values().state);
  return true;
}

bool open_dew_point(Opening& opening) {
  const elements::ObservationForm& form = opening.form;
  CTemperatureAndDewDlg dialog(opening.services,
                               {form.text(Field::kAirTemperature), form.text(Field::kDewPoint)});
  return fill_fields(
      opening, dialog,
      {{Field::kAirTemperature, dialog.values().air}, {Field::kDewPoint, dialog.values().dew}});
}

bool open_humidity(Opening& opening) {
  CThumidityDlg dialog(opening.services, opening.form.text(Field::kHumidity),
                       opening.context.ship.humidity_unit);
  return fill_fields(opening, dialog, {{Field::kHumidity, dialog.humidity()}});
}

bool open_sea_temperature(Opening& opening) {
  const R& record = opening.form.record();
  CSea_SurfaceTemperatureDlg dialog(opening.services, {record.Ss, record.TwTwTw},
                                    opening.context.ship.sea_temperature_method);
  return fill_record(opening, dialog,
                     {{&R::Ss, dialog.values().Ss}, {&R::TwTwTw, dialog.values().TwTwTw}},
                     {Field::kTwTwTw});
}

bool open_apparent_wind(Opening& opening) {
  const elements::ObservationForm& form = opening.form;
  CLookWindDlg dialog(
      opening.services,
      {form.text(Field::kApparentDirection), form.text(Field::kApparentSpeed),
       form.text(Field::kHeading), form.text(Field::kCourse), form.text(Field::kShipSpeed)});
  const elements::ApparentWindTexts& v = dialog.values();
  return fill_fields(opening, dialog,
                     {{Field::kApparentDirection, v.direction},
                      {Field::kApparentSpeed, v.speed},
                      {Field::kHeading, v.heading},
                      {Field::kCourse, v.course},
                      {Field::kShipSpeed, v.ship_speed}});
}

bool open_true_wind(Opening& opening) {
  const elements::ObservationForm& form = opening.form;
  CTrueDirWindDlg dialog(opening.services, form.text(Field::kdd), form.text(Field::kff));
  return fill_fields(opening, dialog,
                     {{Field::kdd, dialog.direction()}, {Field::kff, dialog.speed()}});
}

constexpr ElementRow kRows[] = {
    {kObservationTime, always, open_time},
    {kPosition, always, open_position},
    {kCourseAndSpeed, always, pick<codetables::kMovement>},
    {kPressure, always, open_pressure},
    {kPressureTendency, always, open_tendency},
    {kPsychrometer, dew_point_by<DewPointMethod::kComputed>, open_psychrometer},
    {kTemperatureAndDewPoint, dew_point_by<DewPointMethod::kDirect>, open_dew_point},
    {kSeaTemperature, always, open_sea_temperature},
    {kApparentWind, wind_by<WindInputMethod::kApparentWind>, open_apparent_wind},
    {kWindWave, item_is_observed<ObservationItem::PwHw>},
    {kSwell, a_swell_is_observed},
    {kVisibility, item_is_observed<ObservationItem::VV>, pick<codetables::kVisibility>},
    {kPresentWeather, item_is_observed<ObservationItem::ww>},
    {kPastWeather, item_is_observed<ObservationItem::W1W2>},
    {kCloudAmount, item_is_observed<ObservationItem::N>, pick<codetables::kTotalCloud>},
    {kLowestCloud, item_is_observed<ObservationItem::Nh>, pick<codetables::kLowestCloud>},
    {kUpperCloud, item_is_observed<ObservationItem::CLCMCH>, pick<codetables::kHighCloud>},
    {kMiddleCloud, item_is_observed<ObservationItem::CLCMCH>, pick<codetables::kMiddleCloud>},
    {kLowerCloud, item_is_observed<ObservationItem::CLCMCH>, pick<codetables::kLowCloud>},
    {kIceAccretion, item_is_observed<ObservationItem::IsEsEsRs>},
    {kCloudHeight, item_is_observed<ObservationItem::h>, pick<codetables::kCloudBase>},
    {kIceConcentration, item_is_observed<ObservationItem::ciSibiDizi>},
    {kIceStage, item_is_observed<ObservationItem::ciSibiDizi>, pick<codetables::kIceStage>},
    {kIceBearing, item_is_observed<ObservationItem::ciSibiDizi>, pick<codetables::kIceEdge>},
    {kIceTrend, item_is_observed<ObservationItem::ciSibiDizi>, pick<codetables::kIceTrend>},
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
