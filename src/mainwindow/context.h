#pragma once
// What the main window shares with the application, which owns all of it for the whole run.

#include <functional>
#include <string>
#include <string_view>

#include "map/tiles/SeaMap.h"
#include "ship/data/KeyObservationItems.h"
#include "ship/data/ShipFixedData.h"

namespace mainwindow {

/// Folders and files of the settings. A folder is as the settings have it: it usually ends in a
/// backslash, and is empty when it was never chosen.
struct Folders {
  std::string reports;        ///< where report files are written
  std::string logbook;        ///< where the logbook is written
  std::string report_copies;  ///< where copies of reports went last
  std::string logbook_copies;
  std::string removable_root;  ///< "A:\" of the removable drive, empty when there is none
  std::string fixed_data;      ///< path of FIXDATA.DAT
  std::string key_items;       ///< path of MOKSDATA.DAT
  /// Where what is not saved yet is kept, without a backslash at its end; empty: it is not kept.
  std::string drafts = {};
  std::string finished_report = {};  ///< whose interrupted saving this start finished; else empty
};

/// The application's values are changed in place, then told through the callbacks; a callback that
/// is not set is not called.
struct MainWindowContext {
  ShipFixedData& ship;
  KeyObservationItems& items;
  Folders& folders;
  std::function<void()> save_fixed_data;  ///< writes `ship` to FIXDATA.DAT
  /// What is land, and what the position is drawn on; none: no land is known, and no position is
  /// drawn.
  map::SeaMap* sea_map = nullptr;
  /// Keeps a folder under a key of the settings file.
  std::function<void(std::string_view key, std::string_view folder)> keep_folder = {};
  /// Where the window stood last (ui/window_place.h); empty: nobody knows.
  std::string place = {};
  /// Remembers where the window stands when it is closed.
  std::function<void(const std::string& place)> keep_place = {};
};

}  // namespace mainwindow
