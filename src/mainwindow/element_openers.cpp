#include "mainwindow/element_openers.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "codetables/CCodeTableDlg.h"
#include "codetables/CICECiDlg.h"
#include "codetables/CNowWeatherDlg.h"
#include "codetables/CPastWeatherDlg1.h"
#include "codetables/CSeaIceDialog.h"
#include "codetables/CSwellWaveDlg.h"
#include "codetables/CWindDlg.h"
#include "codetables/code_pickers.h"
#include "codetables/tables/past_weather.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/wind_figures.h"
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
#include "elements/form/position_review.h"
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

// A dialog that is confirmed as it opened changes nothing: what stands in its fields is not entered
// once more, for what is computed from it may have been typed over since. A refused text that
// stands there does give way to what the dialog said.
bool stands(const elements::ObservationForm& form, Field field, std::string_view value) {
  return form.text(field) == value && form.entered(field) == value && !form.in_error(field);
}

// Puts what does not stand there yet.
void put(elements::ObservationForm& form, std::vector<elements::ObservationForm::Value> values) {
  std::erase_if(values, [&](const auto& value) { return stands(form, value.field, value.text); });
  form.put(values);
}

// Runs the dialog. On OK its results go into the fields, with all that follows.
bool fill_fields(Opening& opening, ui::Screen& dialog, std::initializer_list<PutBack> results) {
  if (!confirmed(opening, dialog)) return false;
  std::vector<elements::ObservationForm::Value> values;
  for (const PutBack& row : results) values.push_back({row.field, text::trim(row.result)});
  put(opening.form, std::move(values));
  return true;
}

// Puts a code that a dialog chose; the field that shows it is named for it. It goes into the record
// as it is, without the rules between fields: a lowest cloud that is more than the total cloud may be
// the first of two that are being mended, and the list before a save names what still does not fit.
void put_code(Opening& opening, std::string_view symbol, const std::string& code) {
  std::string Struct_Weather::*const member = find_weather_field(symbol)->member;
  const Field field = elements::field_named(symbol).value();
  // A text that says the same stays as it was typed: 350 metres, for the code of 300 to 600.
  if (opening.form.record().*member == code && !opening.form.in_error(field)) return;
  opening.form.change([&](Struct_Weather& record) { record.*member = code; }, {field});
}

// The same for a dialog that hands back to the letter what it did not change, also a refused text:
// such a field stays as it is.
bool fill_fields_changed(Opening& opening, ui::Screen& dialog,
                         std::initializer_list<PutBack> results) {
  if (!confirmed(opening, dialog)) return false;
  std::vector<elements::ObservationForm::Value> values;
  for (const PutBack& row : results) {
    if (row.result != opening.form.text(row.field)) values.push_back({row.field, row.result});
  }
  put(opening.form, std::move(values));
  return true;
}

// The dialogs that pick codes.
template <const codetables::CodePicker& picker>
bool pick(Opening& opening) {
  CCodeTableDlg dialog(opening.services, picker, opening.form.record());
  if (!confirmed(opening, dialog)) return false;
  Struct_Weather chosen = opening.form.record();
  dialog.put_into(chosen);
  for (const codetables::PickedCode& picked : picker.codes)
    put_code(opening, picked.symbol, chosen.*find_weather_field(picked.symbol)->member);
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
  LandWatch no_land(nullptr);
  LandWatch& land = opening.land == nullptr ? no_land : *opening.land;
  CPositionDlg dialog(opening.services,
                      {record.LaDeg, record.LaMin, record.LoDeg, record.LoMin, record.Qc},
                      opening.last_quadrant,
                      [&](double latitude, double longitude) {
                        const map::Place place{latitude, longitude};
                        return !land.is_confirmed(place) && land.is_land(place);
                      },
                      {opening.form.entries().north_south, opening.form.entries().east_west});
  const CPositionDlg::Values& v = dialog.values();
  if (!fill_record(opening, dialog,
                   {{&R::LaDeg, v.LaDeg},
                    {&R::LaMin, v.LaMin},
                    {&R::LoDeg, v.LoDeg},
                    {&R::LoMin, v.LoMin},
                    {&R::Qc, v.Qc}},
                   {Field::kLaDeg, Field::kLaMin, Field::kLoDeg, Field::kLoMin}))
    return false;
  // Whatever the question was, it is answered.
  if (const auto at = elements::signed_position(record))
    land.confirm({at->latitude, at->longitude});
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
  const codetables::Hectopascal read{text::leading_number(reading)};
  if (stands(form, Field::kReading, codetables::pressure_text(read))) return;
  form.type(Field::kReading, text::format_fixed(read.value, 1, 4));
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
  put(form, {{Field::kGGExact, exact ? std::string_view(result.hour) : std::string_view()},
             {Field::kgg, exact ? std::string_view(result.minute) : std::string_view()}});
  take_reading(opening, result.reading);
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
                                         form.entries().wet_bulb, form.entered(Field::kReading),
                                         opening.context.ship.card});
  if (!confirmed(opening, dialog)) return false;
  const CCountDewDlg::Values& v = dialog.values();
  if (stands(form, Field::kDryBulb, v.dry) && stands(form, Field::kWetBulb, v.wet) &&
      v.state == form.entries().wet_bulb)
    return true;
  form.put({{Field::kDryBulb, v.dry}, {Field::kWetBulb, v.wet}}, v.state);
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

bool open_present_weather(Opening& opening) {
  CNowWeatherDlg dialog(opening.services, opening.form.record().ww);
  if (!confirmed(opening, dialog)) return false;
  put_code(opening, "ww", dialog.ww());
  return true;
}

bool open_past_weather(Opening& opening) {
  const R& record = opening.form.record();
  const codetables::PastWeather before{codetables::past_weather_number(record.W1),
                                       codetables::past_weather_number(record.W2)};
  CPastWeatherDlg1 dialog(opening.services, before.W1, before.W2);
  if (!confirmed(opening, dialog)) return false;
  const auto figure = [](int now, int then, const std::string& was) {
    return now == then ? was : codetables::past_weather_figure(now);
  };
  put_code(opening, "W1", figure(dialog.W1(), before.W1, record.W1));
  put_code(opening, "W2", figure(dialog.W2(), before.W2, record.W2));
  return true;
}

bool open_wind_wave(Opening& opening) {
  const elements::ObservationForm& form = opening.form;
  CWindDlg dialog(opening.services, {form.text(Field::kPwPw), form.text(Field::kHwHw)},
                  codetables::knots_of(form.entered(Field::kff), form.record().iw));
  return fill_fields_changed(
      opening, dialog,
      {{Field::kPwPw, dialog.values().period}, {Field::kHwHw, dialog.values().height}});
}

bool open_swell(Opening& opening) {
  const elements::ObservationForm& form = opening.form;
  CSwellWaveDlg dialog(
      opening.services,
      {{form.text(Field::kdw1dw1), form.text(Field::kPw1Pw1), form.text(Field::kHw1Hw1)},
       {form.text(Field::kdw2dw2), form.text(Field::kPw2Pw2), form.text(Field::kHw2Hw2)}},
      {!form.switched_off(Field::kdw1dw1), !form.switched_off(Field::kdw2dw2)});
  const CSwellWaveDlg::Values& v = dialog.values();
  return fill_fields_changed(opening, dialog,
                             {{Field::kdw1dw1, v.first.direction},
                              {Field::kPw1Pw1, v.first.period},
                              {Field::kHw1Hw1, v.first.height},
                              {Field::kdw2dw2, v.second.direction},
                              {Field::kPw2Pw2, v.second.period},
                              {Field::kHw2Hw2, v.second.height}});
}

bool open_ice_accretion(Opening& opening) {
  const R& record = opening.form.record();
  CSeaIceDialog dialog(opening.services, {record.Is, record.EsEs, record.Rs});
  if (!confirmed(opening, dialog)) return false;
  put_code(opening, "Is", dialog.values().Is);
  put_code(opening, "EsEs", dialog.values().EsEs);
  put_code(opening, "Rs", dialog.values().Rs);
  return true;
}

bool open_ice_concentration(Opening& opening) {
  CICECiDlg dialog(opening.services, opening.form.record().ci);
  if (!confirmed(opening, dialog)) return false;
  put_code(opening, "ci", dialog.ci());
  return true;
}

constexpr ElementRow kRows[] = {
    {kObservationTime, open_time},
    {kPosition, open_position},
    {kCourseAndSpeed, pick<codetables::kMovement>},
    {kPressure, open_pressure},
    {kPressureTendency, open_tendency},
    {kPsychrometer, open_psychrometer, dew_point_not_by<DewPointMethod::kComputed>},
    {kTemperatureAndDewPoint, open_dew_point, dew_point_not_by<DewPointMethod::kDirect>},
    {kSeaTemperature, open_sea_temperature},
    {kApparentWind, open_apparent_wind, wind_not_by<WindInputMethod::kApparentWind>},
    {kWindWave, open_wind_wave},
    {kSwell, open_swell},
    {kVisibility, pick<codetables::kVisibility>},
    {kPresentWeather, open_present_weather},
    {kPastWeather, open_past_weather},
    {kCloudAmount, pick<codetables::kTotalCloud>},
    {kLowestCloud, pick<codetables::kLowestCloud>},
    {kUpperCloud, pick<codetables::kHighCloud>},
    {kMiddleCloud, pick<codetables::kMiddleCloud>},
    {kLowerCloud, pick<codetables::kLowCloud>},
    {kIceAccretion, open_ice_accretion},
    {kCloudHeight, pick<codetables::kCloudBase>},
    {kIceConcentration, open_ice_concentration},
    {kIceStage, pick<codetables::kIceStage>},
    {kIceBearing, pick<codetables::kIceEdge>},
    {kIceTrend, pick<codetables::kIceTrend>},
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
