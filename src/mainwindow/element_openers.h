#pragma once
// The dialogs of the elements by their numbers. A new dialog is one row here.

#include <span>

#include "mainwindow/context.h"
#include "observation/Struct_Weather.h"
#include "ui/services.h"

namespace mainwindow {

/// What an opener works with.
struct Opening {
  ui::Services& services;
  MainWindowContext& context;
  Struct_Weather& record;
};

/// Constructs the element's dialog from the record, runs it, and on OK writes its result back.
/// False, with nothing changed, when it was not confirmed.
using Opener = bool (*)(Opening&);

/// Why an element is not entered on this ship; kInUse when it is.
enum class Use { kInUse, kNotObserved, kOtherMethod };

struct ElementRow {
  int element = 0;
  Use (*use)(const MainWindowContext&) = nullptr;
  Opener open = nullptr;  ///< nullptr: no dialog
};
[[nodiscard]] std::span<const ElementRow> element_rows();
/// The row of that number, or nullptr (99, numbers outside the table).
[[nodiscard]] const ElementRow* find_element(int element);

}  // namespace mainwindow
