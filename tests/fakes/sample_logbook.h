#pragma once
// A logbook of some days with what an officer may find in one: a correction, a slip of the pen, a
// damaged line.

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "fakes/fake_files.h"
#include "fakes/sample_ship.h"
#include "ship/data/KeyObservationItems.h"
#include "ui/services.h"

namespace fakes {

/// One line, without its end, of the sample ship: an observation of November 2014 that no rule and
/// no doubt speaks against, and the figures that are to be others ("PPPP", "9987").
[[nodiscard]] std::string logbook_line(
    int day, int hour,
    std::initializer_list<std::pair<std::string_view, std::string_view>> others = {});

/// Two days of them, westward bound; the second hour is there twice, the fifth has the figure of
/// no visibility, the last line was cut off.
[[nodiscard]] std::string sample_log();

/// The services given, but with that logbook in kLogFolder.
inline constexpr const char* kLogFolder = "C:\\kavrel\\data\\log\\";
class SampleLog {
 public:
  explicit SampleLog(ui::Services& others);

 protected:
  FakeFiles log_files_;
  ui::Services log_services_;
  ShipFixedData log_ship_ = sample_ship();
  KeyObservationItems log_items_;
};

}  // namespace fakes
