#pragma once
// The barometer reading, its reduction to sea level and the actual time of observation.

#include <functional>
#include <string>

#include "ship/data/ShipFixedData.h"
#include "ui/dialog.h"

class CSeaSurfacePressureDlg : public ui::OkCancelHelpDialog {
 public:
  enum class TimeChoice { kUnder10Minutes = 0, kMoreThan10Minutes = 1 };

  struct Values {
    /// Barometer reading of the form. Out: whole + "." + tenths, or empty when the observer closed
    /// without a pressure.
    std::string reading;
    /// Dry bulb in the psychrometer method, else the air temperature. In only.
    std::string air_temperature;
    /// Actual hour and minute (UTC), two figures each. They count when time_choice says so.
    std::string hour;
    std::string minute;
    TimeChoice time_choice = TimeChoice::kUnder10Minutes;
    /// Working copy; handed to CardActions::store on every OK.
    BarometerCard card;
  };

  /// What the screen asks of its caller.
  struct CardActions {
    /// Opens the card entry on the copy; true when it was confirmed.
    std::function<bool(BarometerCard&)> renew;
    /// Writes the card to the ship's fixed data and saves them. OK does this first, also when the
    /// pressure is then refused or left empty.
    std::function<void(const BarometerCard&)> store;
  };

  CSeaSurfacePressureDlg(ui::Services& services, Values values, CardActions actions);

  /// After kOk, what the observer entered; until then, what was handed in.
  [[nodiscard]] const Values& values() const { return values_; }

  ui::Label reading_group;
  ui::Combo reading_whole;
  ui::Combo reading_tenths;
  ui::ReadOnly reading;
  ui::ReadOnly air_temperature;
  ui::ReadOnly total_correction;
  ui::ReadOnly sea_level_pressure;
  ui::Label time_group;
  ui::Choice time_choice;
  ui::Combo hour;
  ui::Combo minute;
  ui::Label card_group;
  ui::ReadOnly check_date;
  ui::ReadOnly check_place;
  ui::Button renew;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  void fill_lists();
  void connect();
  void show_card();
  void time_choice_changed();
  void renew_card();
  void recalculate();
  bool check_digits(const ui::Control& field, text::Id message);
  bool check_time(ui::Control& field, int largest);
  bool validate();

  Values values_;
  CardActions actions_;
  BarometerCard card_;
  std::string kept_hour_;
  std::string kept_minute_;
  bool tenths_typed_ = false;
};
