#pragma once
// The application: start-up, the main window, shut-down.
//
//   app::CVelmaranApp program({clock, locale, drives, files, code_page, printer, windows,
//                             help});
//   return program.run();

#include "app/Settings.h"
#include "app/dialogs.h"
#include "map/tiles/SeaMap.h"
#include "platform/ports.h"
#include "text/help.h"
#include "text/texts.h"
#include "ui/messages.h"
#include "ui/printer.h"
#include "ui/services.h"

namespace app {

/// The program's whole world; all of it must outlive the application.
struct Ports {
  platform::Clock& clock;
  platform::Locale& locale;
  platform::Drives& drives;
  platform::Files& files;
  platform::CodePage& code_page;
  ui::Printer& printer;
  ui::Windows& windows;
  platform::HelpViewer& help;
};

class CVelmaranApp {
 public:
  explicit CVelmaranApp(const Ports& ports, Dialogs dialogs = real_dialogs());

  /// The whole run. 0, or 1 when start-up ended silently: no settings file can be opened, or it
  /// names no language on a Japanese system. Nothing has been shown or, but for a seeded settings
  /// file, written then.
  int run();

  // The steps of the run, in their order.

  /// Locale, settings file, language, working folders. False ends the start-up.
  [[nodiscard]] bool read_settings();
  /// Letter and root of the removable drive.
  void find_removable();
  /// Asks for a working folder that is not there; empty when the officer cancels. One of which one
  /// cannot tell is named, with the reason, and stays unless the officer chooses another: what is
  /// saved into it tells whether it can be used.
  void check_folder(WorkingFolder which);
  /// Ship fixed data; FIXDATA.DAT is written when there was none and the officer confirmed, never
  /// when one cannot tell whether there is one.
  void ask_fixed_data();
  /// Observation items.
  void ask_key_items();
  /// The main window, until it is closed.
  void show_main_window();
  /// Removable drive and language go back to the settings file.
  void write_settings();

  [[nodiscard]] const Settings& settings() const { return settings_; }
  [[nodiscard]] const ShipFixedData& ship() const { return ship_; }
  [[nodiscard]] const KeyObservationItems& items() const { return items_; }
  [[nodiscard]] ui::Services& services() { return services_; }

 private:
  void create_folders();
  /// Asks whether a folder that cannot be looked at is to be used all the same.
  [[nodiscard]] bool may_be_used(const std::string& folder, platform::FileError why);
  /// Writes FIXDATA.DAT; the officer is told when that fails.
  void save_ship();
  void keep_folder(std::string_view key, std::string_view folder);
  /// Sets values in the file and saves it; the officer is told when that fails.
  void keep(const std::function<bool(CIniEx&)>& set);

  text::Texts texts_;
  ui::Messages messages_;
  text::HelpLauncher help_;
  ui::Services services_;
  Dialogs dialogs_;
  SettingsPlaces places_;
  Settings settings_;
  map::SeaMap sea_map_;
  ShipFixedData ship_;
  KeyObservationItems items_;
};

}  // namespace app
