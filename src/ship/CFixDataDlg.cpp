#include "ship/CFixDataDlg.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ship/CKataInputDlg.h"
#include "ship/CKataSelectDlg.h"
#include "ship/CVosClimDlg.h"
#include "ship/data/ship_identity.h"
#include "text/ids.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

constexpr double kTemperatureUnits[] = {0.1, 0.5, 1.0};
constexpr double kHumidityUnits[] = {0.1, 1.0};

// The card's part of what OK checks, in this order.
constexpr CardField kOkOrder[] = {
    CardField::kType,
    CardField::kCheckDate,
    CardField::kCheckPort,
    CardField::kInstrumentalCorrection,
    CardField::kLoadingState,
    CardField::kHeightFullLoad,
    CardField::kTotalCorrectionFullLoad,
    CardField::kHeightBallast,
    CardField::kTotalCorrectionBallast,
    CardField::kTotalCorrection,
};

// Line of a unit; the finest for anything unknown.
template <std::size_t n>
int line_of(const double (&units)[n], double unit) {
  for (std::size_t i = 0; i < n; ++i) {
    if (unit > units[i] - 0.01 && unit < units[i] + 0.01) return static_cast<int>(i);
  }
  return 0;
}

template <std::size_t n>
double unit_of(const double (&units)[n], int line) {
  return units[static_cast<std::size_t>(std::clamp(line, 0, static_cast<int>(n) - 1))];
}

template <class Method>
Method method_of(const ui::Choice& choice) {
  return static_cast<Method>(std::max(choice.selected, 0));
}

}  // namespace

CFixDataDlg::CFixDataDlg(ui::Services& services, std::string path, bool auto_accept,
                         const std::string& reports, const std::string& logbook,
                         std::optional<ShipFixedData> in_force)
    : OkCancelHelpDialog(services, "CFixDataDlg", {id::kFixTitle}),
      ship(*this, "ship", {id::kFixShip}),
      call_sign(*this, "call_sign", {id::kFixCallSign}),
      imo_number(*this, "imo_number", {id::kFixImoNumber}),
      temperature(*this, "temperature", {id::kFixTemperature}),
      temperature_unit(*this, "temperature_unit", {id::kFixTemperatureUnit},
                       {{id::kFixUnitTenth}, {id::kFixUnitHalf}, {id::kFixUnitWhole}}),
      dew_point_method(*this, "dew_point_method", {id::kFixDewPoint},
                       {{id::kFixDewPointDirect}, {id::kFixDewPointComputed}}),
      sea_temperature_method(
          *this, "sea_temperature_method", {id::kFixSeaTemperature},
          {{id::kFixIntake}, {id::kFixBucket}, {id::kFixHullSensor}, {id::kFixOther}}),
      humidity_method(*this, "humidity_method", {id::kFixHumidityMethod},
                      {{id::kFixHumidityDirect}, {id::kFixHumidityComputed}}),
      humidity_unit(*this, "humidity_unit", {id::kFixHumidityUnit},
                    {{id::kFixHumidityTenth}, {id::kFixHumidityWhole}}),
      equipment(*this, "equipment", {id::kFixEquipment}),
      wave_recorder(*this, "wave_recorder", {id::kFixWaveRecorder}, {{id::kFixYes}, {id::kFixNo}}),
      aws_fitted(*this, "aws_fitted", {id::kFixAws}, {{id::kFixNo}, {id::kFixYes}}),
      aws_manufacturer(*this, "aws_manufacturer", {id::kFixManufacturer}),
      vosclim(*this, "vosclim", {id::kFixVosClim},
              {{id::kFixVosClimRegistered}, {id::kFixVosClimUnregistered}}),
      vosclim_inputting(*this, "vosclim_inputting", {id::kFixVosClimInputting}),
      card(*this, "card", {id::kFixCard}),
      card_text(*this, "card_text", {id::kFixCardText}),
      card_button(*this, "card_button", {id::kFixCardButton}),
      card_type(*this, "card_type", {id::kFixCardType}),
      barometer_check_date(*this, "barometer_check_date", {id::kCardDate}),
      barometer_check_port(*this, "barometer_check_port", {id::kCardPort}),
      total_correction(*this, "total_correction", {id::kCardTotal}),
      instrumental_correction(*this, "instrumental_correction", {id::kCardInstrumental}),
      loading_state(*this, "loading_state", {id::kCardLoading},
                    {{id::kCardFullLoad}, {id::kCardBallast}}),
      full_load(*this, "full_load", {id::kCardFullLoad}),
      height_full_load(*this, "height_full_load", {id::kCardHeight}),
      total_correction_full_load(*this, "total_correction_full_load", {id::kCardTotal}),
      ballast(*this, "ballast", {id::kCardBallast}),
      height_ballast(*this, "height_ballast", {id::kCardHeight}),
      total_correction_ballast(*this, "total_correction_ballast", {id::kCardTotal}),
      wind(*this, "wind", {id::kFixWind}),
      wind_input_method(*this, "wind_input_method", {id::kFixWindInput},
                        {{id::kFixTrueWind}, {id::kFixApparentWind}}),
      wind_speed_method(*this, "wind_speed_method", {id::kFixWindSpeed},
                        {{id::kFixBeaufort}, {id::kFixAnemometer}}),
      folders(*this, "folders", {id::kFixFolders}),
      report_folder(*this, "report_folder", {id::kFixReportFolder}),
      logbook_folder(*this, "logbook_folder", {id::kFixLogbookFolder}),
      path_(std::move(path)),
      auto_accept_(auto_accept),
      in_force_(std::move(in_force)) {
  report_folder.set(reports);
  logbook_folder.set(logbook);
  set_up_ship();
  set_up_card();
  set_up_methods();
}

// A full-width space goes another way in each of these fields, so they narrow for themselves.
void CFixDataDlg::set_up_ship() {
  imo_number.figures = true;
  call_sign.narrow = imo_number.narrow = aws_manufacturer.narrow = false;
  call_sign.on_leave = [this] { return check_call_sign(); };
  imo_number.on_leave = [this] { return check_imo_number(); };
  aws_manufacturer.on_leave = [this] { return check_manufacturer(); };
}

void CFixDataDlg::set_up_card() {
  for (ui::ReadOnly* const shown : {&total_correction, &instrumental_correction,
                                    &total_correction_full_load, &total_correction_ballast}) {
    shown->unit = {id::kCardUnitPressure};
    shown->max_length = 5;
  }
  height_full_load.spoken = {id::kSpokenHeightFullLoad};
  total_correction_full_load.spoken = {id::kSpokenCorrectionFullLoad};
  height_ballast.spoken = {id::kSpokenHeightBallast};
  total_correction_ballast.spoken = {id::kSpokenCorrectionBallast};
  height_full_load.unit = height_ballast.unit = {id::kCardUnitHeight};
  // A text takes no focus: the button is for the keyboard.
  card_text.on_press = card_button.on_press = [this] { edit_card(); };
  // Widths of the values, for the front ends.
  barometer_check_date.max_length = 10;
  barometer_check_port.max_length = 24;
  card_type.max_length = 1;
  height_full_load.max_length = height_ballast.max_length = 3;
  loading_state.enabled = false;
  loading_state.why_locked = services().texts.get(id::kFixLockedLoading);
}

void CFixDataDlg::set_up_methods() {
  wind_input_method.on_change = wind_speed_method.on_change = [this] { check_wind(); };
  humidity_method.on_change = [this] { apply_humidity_method(); };
  aws_fitted.on_change = [this] { apply_aws(); };
  vosclim.on_change = [this] { apply_vosclim(); };
  vosclim_inputting.on_press = [this] { edit_vosclim(); };
}

void CFixDataDlg::read_file() {
  const auto loaded =
      load_fixed_data(services().files, path_, services().clock, services().code_page);
  file_read_ = loaded.outcome;
  accepted_ = loaded.values;
  // The file is shown while it is the one that was saved; else what holds for this run.
  if (in_force_ &&
      (file_read_ != FileRead::kRead ||
       loaded.values != as_read_back(*in_force_, services().clock.utc(), services().code_page)))
    accepted_ = *in_force_;
  if (file_read_ == FileRead::kUnreadable) {
    services().messages.file_error(
        in_force_ ? id::kShipFileUnreadableInForce : id::kShipFileUnreadable, path_, loaded.error);
  }
}

void CFixDataDlg::on_open() {
  read_file();
  draft_ = accepted_;
  show_values();
  // A file of a wrong size, or one that cannot be read, is not taken unseen.
  if (auto_accept_ && (file_read_ == FileRead::kRead || file_read_ == FileRead::kMissing))
    close(ui::kOk);
}

void CFixDataDlg::show_values() {
  call_sign.set(draft_.call_sign);
  imo_number.set(draft_.imo_number);
  show_card();
  wind_input_method.selected = last_wind_input_ = static_cast<int>(draft_.wind_input_method);
  wind_speed_method.selected = last_wind_speed_ = static_cast<int>(draft_.wind_speed_method);
  temperature_unit.selected = line_of(kTemperatureUnits, draft_.temperature_unit);
  dew_point_method.selected = static_cast<int>(draft_.dew_point_method);
  sea_temperature_method.selected = static_cast<int>(draft_.sea_temperature_method);
  humidity_method.selected = static_cast<int>(draft_.humidity_method);
  humidity_unit.selected = line_of(kHumidityUnits, draft_.humidity_unit);
  wave_recorder.selected = draft_.wave_recorder ? 0 : 1;
  aws_fitted.selected = draft_.aws_fitted ? 1 : 0;
  aws_manufacturer.set(draft_.aws_manufacturer);
  vosclim.selected = draft_.vosclim ? 0 : 1;
  apply_humidity_method();
  apply_aws();
  apply_vosclim();
}

void CFixDataDlg::show_card() {
  const BarometerCard& shown = draft_.card;
  const bool one = shown.type == CardType::kHeightAndTemperature;
  const bool two = shown.type == CardType::kTotalCorrection;
  card_type.set(services().texts.get(one ? id::kCardTypeOne : two ? id::kCardTypeTwo : text::Id()));
  barometer_check_date.set(shown.check_date);
  barometer_check_port.set(shown.check_port);
  total_correction.set(shown.total_correction);
  instrumental_correction.set(shown.instrumental_correction);
  loading_state.selected = static_cast<int>(shown.loading_state);
  height_full_load.set(shown.height_full_load);
  total_correction_full_load.set(shown.total_correction_full_load);
  height_ballast.set(shown.height_ballast);
  total_correction_ballast.set(shown.total_correction_ballast);
}

void CFixDataDlg::read_values() {
  draft_.call_sign = call_sign.content;
  draft_.imo_number = imo_number.content;
  draft_.wind_input_method = method_of<WindInputMethod>(wind_input_method);
  draft_.wind_speed_method = method_of<WindSpeedMethod>(wind_speed_method);
  draft_.temperature_unit = unit_of(kTemperatureUnits, temperature_unit.selected);
  draft_.dew_point_method = method_of<DewPointMethod>(dew_point_method);
  draft_.sea_temperature_method = method_of<SeaTemperatureMethod>(sea_temperature_method);
  draft_.humidity_method = method_of<HumidityMethod>(humidity_method);
  draft_.humidity_unit = unit_of(kHumidityUnits, humidity_unit.selected);
  draft_.wave_recorder = wave_recorder.selected == 0;
  draft_.aws_fitted = aws_fitted.selected == 1;
  draft_.aws_manufacturer = draft_.aws_fitted ? aws_manufacturer.content : std::string();
  draft_.vosclim = vosclim.selected == 0;
}

// The placeholder counts as not entered, and so as empty, until OK asks for a call sign.
bool CFixDataDlg::check_call_sign() {
  call_sign.set(tidy_identifier(call_sign.content));
  if (is_call_sign(call_sign.content) || call_sign.content == kCallSignPlaceholder) return true;
  return refuse(call_sign, id::kCallSignForm);
}

bool CFixDataDlg::check_imo_number() {
  imo_number.set(tidy_identifier(imo_number.content));
  return is_imo_number(imo_number.content) || refuse(imo_number, id::kImoNumberForm);
}

bool CFixDataDlg::check_manufacturer() {
  aws_manufacturer.set(tidy_manufacturer(aws_manufacturer.content));
  return is_manufacturer(aws_manufacturer.content) ||
         refuse(aws_manufacturer, id::kManufacturerForm);
}

// Apparent wind cannot be estimated: the choice made last is taken back.
bool CFixDataDlg::check_wind() {
  if (method_of<WindInputMethod>(wind_input_method) == WindInputMethod::kApparentWind &&
      method_of<WindSpeedMethod>(wind_speed_method) == WindSpeedMethod::kBeaufortScale) {
    services().messages.error(id::kApparentWithBeaufort);
    wind_input_method.selected = last_wind_input_;
    wind_speed_method.selected = last_wind_speed_;
    return false;
  }
  last_wind_input_ = wind_input_method.selected;
  last_wind_speed_ = wind_speed_method.selected;
  return true;
}

void CFixDataDlg::apply_aws() {
  const bool fitted = aws_fitted.selected == 1;
  if (!fitted) aws_manufacturer.set("");
  aws_manufacturer.enabled = fitted;
  aws_manufacturer.why_locked =
      fitted ? std::string_view() : services().texts.get(id::kFixLockedManufacturer);
}

void CFixDataDlg::apply_humidity_method() {
  const bool computed = method_of<HumidityMethod>(humidity_method) == HumidityMethod::kComputed;
  // What is computed comes in whole percent.
  if (computed) humidity_unit.selected = 1;
  humidity_unit.item_disabled = {computed, false};
}

void CFixDataDlg::apply_vosclim() {
  const bool registered = vosclim.selected == 0;
  vosclim_inputting.enabled = registered;
  vosclim_inputting.why_locked =
      registered ? std::string_view() : services().texts.get(id::kFixLockedVosClim);
}

void CFixDataDlg::edit_vosclim() {
  if (enter_vosclim_loading(services(), draft_)) go_on_from(vosclim_inputting);
}

// On to the next field, so that Enter opens neither this dialog again nor that of the next button.
void CFixDataDlg::go_on_from(const ui::Button& button) {
  if (focused() != &button) return;
  ui::Control* next = neighbour(&button, true);
  while (next->kind == ui::Kind::kButton && next->role == ui::Role::kNone)
    next = neighbour(next, true);
  focus(*next);
}

void CFixDataDlg::edit_card() {
  CKataSelectDlg select(services(), draft_.card.type);
  if (services().windows.run_modal(select) != ui::kOk) return;
  BarometerCard copy = draft_.card;
  copy.type = select.type();
  if (!renew_card(services(), copy)) return;
  draft_.card = std::move(copy);
  show_card();
  go_on_from(card_button);
}

bool CFixDataDlg::check_card() {
  const auto fault =
      first_card_fault(draft_.card, services().clock.local(), services().code_page, kOkOrder);
  // The card's fields only show; the button leads to where they are entered.
  return !fault || refuse(card_button, fault->message, fault->argument);
}

// The texts' forms are checked again, because Help lets a field go unchecked, and the wind, because
// a file may hold what could not be chosen.
void CFixDataDlg::on_ok() {
  call_sign.set(tidy_identifier(call_sign.content));
  if (call_sign.content.empty() || call_sign.content == kCallSignPlaceholder) {
    refuse(call_sign, id::kCallSignMissing);
    return;
  }
  if (!check_call_sign() || !check_card() || !check_imo_number()) return;
  if (aws_manufacturer.enabled && !check_manufacturer()) return;
  if (!check_wind()) {
    focus(wind_input_method);
    return;
  }
  read_values();
  accepted_ = draft_;
  close(ui::kOk);
}
