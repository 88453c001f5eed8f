#pragma once
// Where copies go.

#include <optional>
#include <string>

#include "mainwindow/context.h"
#include "ui/services.h"

namespace mainwindow {

enum class Copied { kReports, kLogbook };

/// Asks for the folder to copy to and keeps it for the next time; proposed is that of the last time,
/// or else the removable drive. Nothing when the officer cancels.
[[nodiscard]] std::optional<std::string> choose_copy_folder(ui::Services& services,
                                                            const MainWindowContext& context,
                                                            Copied what);

}  // namespace mainwindow
