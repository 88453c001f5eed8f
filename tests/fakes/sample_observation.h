#pragma once
// One complete observation of a merchant ship in the North Pacific, as the officer types it into
// the main window: every group that a ship without ice and wave recorder can fill.

#include <span>

#include "fakes/sample_sea_map.h"
#include "mainwindow/CVelmaranDlg.h"

namespace fakes {

/// A field of the main window in tab order and what is typed; "#0" picks the first line of a
/// choice, and "" passes on.
struct Entry {
  const char* control;
  const char* text;
};
[[nodiscard]] std::span<const Entry> sample_entries();

/// The report of exactly these entries.
inline constexpr const char* kSampleReport =
    "BBXX JXKV 15124 99357 11653 41497 62718 10152 20114 40132 52014 72582 84531 22213 00178 20604 "
    "32531 40905 51103 80130 .....";

/// The main window of that ship with what it needs of the application.
class SampleShip {
 protected:
  SampleShip();
  ShipFixedData ship_;
  KeyObservationItems items_;
  mainwindow::Folders folders_;
  SampleSeaMap sea_;
};
class SampleMainWindow : private SampleShip, public CVelmaranDlg {
 public:
  explicit SampleMainWindow(ui::Services& services);
};

/// Enters the observation without a front end. False at the first field that would not take its
/// text.
[[nodiscard]] bool enter_sample(ui::Screen& main_window);

}  // namespace fakes
