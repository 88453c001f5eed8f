#pragma once
// The screens that the application opens, as functions, so that a test can put its own in their
// place and look at every branch of the start-up alone.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "mainwindow/context.h"
#include "ship/data/KeyObservationItems.h"
#include "ship/data/ShipFixedData.h"
#include "ui/services.h"

namespace app {

/// What a screen held when it closed, and whether it was confirmed.
template <class T>
struct Answer {
  bool confirmed = false;
  T values{};
};

enum class WorkingFolder { kReports, kLogbook };

struct FixedDataQuestion {
  std::string path;     ///< of FIXDATA.DAT
  bool exists = false;  ///< something is there: the screen accepts itself when it was read
  std::string reports;  ///< folders, shown only
  std::string logbook;
};

struct Dialogs {
  /// Keeps a chosen folder under its settings key.
  using Write = std::function<void(std::string_view key, std::string_view folder)>;

  /// The folder chosen (already kept through `write`), or nothing when cancelled.
  std::function<std::optional<std::string>(ui::Services&, WorkingFolder,
                                           const std::string& proposed, Write write)>
      working_folder;
  std::function<Answer<ShipFixedData>(ui::Services&, const FixedDataQuestion&)> fixed_data;
  /// Writes MOKSDATA.DAT itself.
  std::function<Answer<KeyObservationItems>(ui::Services&, const std::string& path, bool exists)>
      key_items;
  std::function<void(ui::Services&, const mainwindow::MainWindowContext&)> main_window;
};

/// The program's own.
[[nodiscard]] Dialogs real_dialogs();

}  // namespace app
