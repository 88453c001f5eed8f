#pragma once
// The ship's fixed data. The barometer card is shown here and entered in its own screens.

#include <optional>
#include <string>

#include "ship/data/ShipFixedData.h"
#include "ship/data/barometer_card.h"
#include "ship/data/ship_files.h"
#include "ui/dialog.h"

class CFixDataDlg : public ui::OkCancelHelpDialog {
 public:
  /// `path` is that of FIXDATA.DAT, read when the screen opens. With `auto_accept` the screen
  /// closes at once with OK, unchecked, when the file was read or there is none. A file of a wrong
  /// size or one that cannot be read (which the officer is told) leaves it open with the defaults.
  ///
  /// Once the program runs, `in_force` is what it works with, and that is shown unless the file
  /// says the same: a file that is missing, damaged, not the one last saved, or that could not be
  /// written, never takes its place. The screen never writes.
  CFixDataDlg(ui::Services& services, std::string path, bool auto_accept,
              const std::string& reports = {}, const std::string& logbook = {},
              std::optional<ShipFixedData> in_force = std::nullopt);

  /// The data as accepted by OK; before that, and after Cancel, as they were shown
  /// first.
  [[nodiscard]] ShipFixedData values() const { return accepted_; }
  [[nodiscard]] FileRead file_read() const { return file_read_; }

  ui::Label ship;
  ui::Edit call_sign;
  ui::Edit imo_number;
  ui::Label temperature;
  ui::Choice temperature_unit;
  ui::Choice dew_point_method;
  ui::Choice sea_temperature_method;
  ui::Choice humidity_method;
  ui::Choice humidity_unit;
  ui::Label equipment;
  ui::Choice wave_recorder;
  ui::Choice aws_fitted;
  ui::Edit aws_manufacturer;
  ui::Choice vosclim;
  ui::Button vosclim_inputting;
  ui::Label card;
  ui::Label card_text;     ///< the clickable text that leads to the card's screens
  ui::Button card_button;  ///< the same for the keyboard
  ui::ReadOnly card_type;
  ui::ReadOnly barometer_check_date;
  ui::ReadOnly barometer_check_port;
  ui::ReadOnly total_correction;
  ui::ReadOnly instrumental_correction;
  ui::Choice loading_state;
  ui::Label full_load;
  ui::ReadOnly height_full_load;
  ui::ReadOnly total_correction_full_load;
  ui::Label ballast;
  ui::ReadOnly height_ballast;
  ui::ReadOnly total_correction_ballast;
  ui::Label wind;
  ui::Choice wind_input_method;
  ui::Choice wind_speed_method;
  ui::Label folders;
  ui::ReadOnly report_folder;
  ui::ReadOnly logbook_folder;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  void set_up_ship();
  void set_up_card();
  void set_up_methods();
  void read_file();
  void show_values();
  void show_card();
  void read_values();

  bool check_call_sign();
  bool check_imo_number();
  bool check_manufacturer();
  bool check_wind();

  void apply_aws();
  void apply_humidity_method();
  void apply_vosclim();
  void edit_vosclim();
  void edit_card();
  void go_on_from(const ui::Button& button);
  bool check_card();

  std::string path_;
  bool auto_accept_;
  std::optional<ShipFixedData> in_force_;
  FileRead file_read_ = FileRead::kMissing;
  ShipFixedData accepted_;
  ShipFixedData draft_;
  int last_wind_input_ = 0;
  int last_wind_speed_ = 0;
};
