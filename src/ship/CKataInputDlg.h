#pragma once
// Entry of a barometer correction card. The fields that the card's type does not use are hidden.

#include <array>

#include "ship/data/ShipFixedData.h"
#include "ship/data/barometer_card.h"
#include "ui/dialog.h"

class CKataInputDlg : public ui::OkCancelHelpDialog {
 public:
  /// Works on a copy; `card.type` is the type that was chosen.
  CKataInputDlg(ui::Services& services, BarometerCard card);

  /// The card as accepted by OK; before that, and after Cancel, as it was handed in.
  [[nodiscard]] const BarometerCard& card() const { return accepted_; }

  ui::Label prompt;
  ui::Edit barometer_check_date;
  ui::Edit barometer_check_port;
  ui::ReadOnly card_type;
  ui::Button change_type;
  ui::Edit total_correction;
  ui::Edit instrumental_correction;
  ui::Label full_load;
  ui::Edit height_full_load;
  ui::Edit total_correction_full_load;
  ui::Label ballast;
  ui::Edit height_ballast;
  ui::Edit total_correction_ballast;
  ui::Choice loading_state;

 protected:
  void on_open() override;
  void on_ok() override;
  void on_help() override;

 private:
  struct TypedField {
    CardField field;
    ui::Edit* edit;
    bool typed = false;  ///< something was typed since the screen opened or the type changed
  };

  void set_up_checks();
  void show_card();
  void show_type();
  void read_fields();
  bool leave(const TypedField& left);
  [[nodiscard]] bool is_filled(CardField field) const;
  bool refuse_fault(const CardFault& fault);
  void on_change_type();
  bool ask_loading_state();

  BarometerCard accepted_;
  BarometerCard draft_;
  std::array<TypedField, 8> fields_;
};

/// Opens the card's screen with a copy of the card; true when OK accepted it, and then `card` is
/// the new one. Used where the card is renewed without the ship fixed data screen.
[[nodiscard]] bool renew_card(ui::Services& services, BarometerCard& card);
