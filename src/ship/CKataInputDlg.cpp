#include "ship/CKataInputDlg.h"

#include <algorithm>
#include <utility>

#include "ship/CFullEmptySelect.h"
#include "ship/CKataSelectDlg.h"
#include "ship/data/barometer_date.h"
#include "ship/data/ship_text.h"
#include "text/ids.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

// Twelve Japanese characters are the 24 bytes that FIXDATA.DAT has for the port.
constexpr int kPortLength = 12;
constexpr int kHeightLength = 3;
constexpr int kCorrectionLength = 5;

// What OK checks, in this order. The loading state is no fault here: it is asked for.
constexpr CardField kOkOrder[] = {
    CardField::kCheckDate,
    CardField::kCheckPort,
    CardField::kType,
    CardField::kInstrumentalCorrection,
    CardField::kHeightFullLoad,
    CardField::kTotalCorrectionFullLoad,
    CardField::kHeightBallast,
    CardField::kTotalCorrectionBallast,
    CardField::kTotalCorrection,
};

std::string BarometerCard::*member(CardField field) {
  return field == CardField::kCheckDate ? &BarometerCard::check_date : card_text(field);
}

}  // namespace

CKataInputDlg::CKataInputDlg(ui::Services& services, BarometerCard card)
    : OkCancelHelpDialog(services, "CKataInputDlg", {id::kCardTitle}),
      prompt(*this, "prompt", {id::kCardPrompt}),
      barometer_check_date(*this, "barometer_check_date", {id::kCardDate}),
      barometer_check_port(*this, "barometer_check_port", {id::kCardPort}, kPortLength),
      card_type(*this, "card_type", {id::kCardType}),
      change_type(*this, "change_type", {id::kCardChangeType}),
      total_correction(*this, "total_correction", {id::kCardTotal}, kCorrectionLength),
      instrumental_correction(*this, "instrumental_correction", {id::kCardInstrumental},
                              kCorrectionLength),
      full_load(*this, "full_load", {id::kCardFullLoad}),
      height_full_load(*this, "height_full_load", {id::kCardHeight}, kHeightLength),
      total_correction_full_load(*this, "total_correction_full_load", {id::kCardTotal},
                                 kCorrectionLength),
      ballast(*this, "ballast", {id::kCardBallast}),
      height_ballast(*this, "height_ballast", {id::kCardHeight}, kHeightLength),
      total_correction_ballast(*this, "total_correction_ballast", {id::kCardTotal},
                               kCorrectionLength),
      loading_state(*this, "loading_state", {id::kCardLoading},
                    {{id::kCardFullLoad}, {id::kCardBallast}}),
      accepted_(card),
      draft_(std::move(card)),
      fields_{{{CardField::kCheckDate, &barometer_check_date},
               {CardField::kCheckPort, &barometer_check_port},
               {CardField::kTotalCorrection, &total_correction},
               {CardField::kInstrumentalCorrection, &instrumental_correction},
               {CardField::kHeightFullLoad, &height_full_load},
               {CardField::kTotalCorrectionFullLoad, &total_correction_full_load},
               {CardField::kHeightBallast, &height_ballast},
               {CardField::kTotalCorrectionBallast, &total_correction_ballast}}} {
  for (ui::Edit* const edit : {&total_correction, &instrumental_correction,
                               &total_correction_full_load, &total_correction_ballast})
    edit->unit = {id::kCardUnitPressure};
  height_full_load.unit = height_ballast.unit = {id::kCardUnitHeight};
  height_full_load.spoken = {id::kSpokenHeightFullLoad};
  total_correction_full_load.spoken = {id::kSpokenCorrectionFullLoad};
  height_ballast.spoken = {id::kSpokenHeightBallast};
  total_correction_ballast.spoken = {id::kSpokenCorrectionBallast};
  for (ui::Edit* const edit :
       {&total_correction, &instrumental_correction, &height_full_load, &total_correction_full_load,
        &height_ballast, &total_correction_ballast, &barometer_check_date})
    edit->figures = true;
  card_type.max_length = 1;
  set_up_checks();
}

void CKataInputDlg::set_up_checks() {
  for (TypedField& field : fields_) {
    field.edit->on_change = [&field] { field.typed = true; };
    field.edit->on_leave = [this, &field] { return leave(field); };
  }
  change_type.on_press = [this] { on_change_type(); };
}

void CKataInputDlg::on_open() {
  show_card();
}

void CKataInputDlg::show_card() {
  for (TypedField& field : fields_) {
    field.edit->set(draft_.*member(field.field));
    field.typed = false;
  }
  loading_state.selected = static_cast<int>(draft_.loading_state);
  show_type();
}

void CKataInputDlg::show_type() {
  const bool one = draft_.type == CardType::kHeightAndTemperature;
  const bool two = draft_.type == CardType::kTotalCorrection;
  const text::Id shown = one ? id::kCardTypeOne : two ? id::kCardTypeTwo : text::Id();
  card_type.set(services().texts.get(shown));
  total_correction.visible = two;
  for (ui::Control* const control : std::initializer_list<ui::Control*>{
           &instrumental_correction, &full_load, &height_full_load, &total_correction_full_load,
           &ballast, &height_ballast, &total_correction_ballast, &loading_state})
    control->visible = one;
}

// Fields to the draft, tidied. Help lets a field go unnarrowed, so this is done again for all.
void CKataInputDlg::read_fields() {
  for (const TypedField& field : fields_) {
    std::string value = field.edit->content;
    // What the file would change is changed here, where the officer sees it.
    if (field.field == CardField::kCheckPort) value = as_kept(value, services().code_page);
    value = text::trim(text::narrow(value));
    if (field.field == CardField::kCheckDate) value = normalised_check_date(value);
    if (value != field.edit->content) field.edit->set(value);
    draft_.*member(field.field) = std::move(value);
  }
  draft_.loading_state = loading_state.selected == 0   ? LoadingState::kFullLoad
                         : loading_state.selected == 1 ? LoadingState::kInBallast
                                                       : LoadingState::kNotChosen;
}

// A field left empty, or a date left as its placeholder, is asked for by OK, so that the fields can
// be filled in any order.
bool CKataInputDlg::leave(const TypedField& left) {
  read_fields();
  if (left.edit->content.empty()) return true;
  if (left.field == CardField::kCheckDate && is_check_date_missing(left.edit->content)) return true;
  const auto partner = compared_field(left.field);
  const auto fault = card_field_fault(draft_, left.field, services().clock.local(),
                                      services().code_page, partner && is_filled(*partner));
  return !fault || refuse_fault(*fault);
}

// A new card starts with zeros. While nobody typed in the partner its zero is no value to compare
// with: else the first height entered would be refused for being above it.
bool CKataInputDlg::is_filled(CardField field) const {
  const auto* const at = std::find_if(fields_.begin(), fields_.end(),
                                      [&](const TypedField& f) { return f.field == field; });
  return at != fields_.end() && (at->typed || draft_.*member(field) != card_default(field));
}

// The type is the one field that is not typed.
bool CKataInputDlg::refuse_fault(const CardFault& fault) {
  const auto* const at = std::find_if(fields_.begin(), fields_.end(),
                                      [&](const TypedField& f) { return f.field == fault.field; });
  ui::Control* const control =
      at == fields_.end() ? &change_type : static_cast<ui::Control*>(at->edit);
  return refuse(*control, fault.message, fault.argument);
}

void CKataInputDlg::on_change_type() {
  CKataSelectDlg select(services(), draft_.type);
  if (services().windows.run_modal(select) != ui::kOk || select.type() == draft_.type) return;
  read_fields();
  change_card_type(draft_, select.type());
  show_card();
}

bool CKataInputDlg::ask_loading_state() {
  CFullEmptySelect select(services());
  if (services().windows.run_modal(select) != ui::kOk) return false;
  draft_.loading_state = select.state();
  loading_state.selected = static_cast<int>(draft_.loading_state);
  return true;
}

void CKataInputDlg::on_ok() {
  read_fields();
  if (const auto fault =
          first_card_fault(draft_, services().clock.local(), services().code_page, kOkOrder)) {
    refuse_fault(*fault);
    return;
  }
  const bool state_missing = draft_.type == CardType::kHeightAndTemperature &&
                             draft_.loading_state == LoadingState::kNotChosen;
  if (state_missing && !ask_loading_state()) {
    focus(loading_state);
    return;
  }
  accepted_ = draft_;
  close(ui::kOk);
}

// The card is explained in the topic of the ship fixed data.
void CKataInputDlg::on_help() {
  services().help.show(text::dialog_topic("CFixDataDlg"));
}

bool renew_card(ui::Services& services, BarometerCard& card) {
  CKataInputDlg input(services, card);
  if (services.windows.run_modal(input) != ui::kOk) return false;
  card = input.card();
  return true;
}
