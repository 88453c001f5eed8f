#pragma once
// The dialogs of the elements by their numbers. A new dialog is one row here.

#include <span>
#include <string>

#include "elements/form/observation_form.h"
#include "mainwindow/LandWatch.h"
#include "mainwindow/context.h"
#include "ui/services.h"

namespace mainwindow {

/// What an opener works with.
struct Opening {
  ui::Services& services;
  MainWindowContext& context;
  elements::ObservationForm& form;
  std::string last_quadrant;  ///< Qc of the ship's last saved report, empty when there is none
  LandWatch* land = nullptr;  ///< none: no land is known
};

/// Constructs the element's dialog from the form's values, runs it, and on OK puts its result back.
/// False, with nothing changed, when it was not confirmed. (The barometer card is the one thing
/// that the pressure screen may store while it is still open.)
using Opener = bool (*)(Opening&);

/// Why an element is not entered on this ship; kInUse when it is.
enum class Use { kInUse, kNotObserved, kOtherMethod };

struct ElementRow {
  int element = 0;
  Opener open = nullptr;  ///< never nullptr: every element has its dialog
  /// True when this ship enters the element by another method; nullptr: it has only one.
  bool (*by_other_method)(const ShipFixedData&) = nullptr;
};
/// An element is not observed when all of its fields are switched off.
[[nodiscard]] Use use_of(const ElementRow& row, const MainWindowContext& context);
[[nodiscard]] std::span<const ElementRow> element_rows();
/// The row of that number, or nullptr (99, numbers outside the table).
[[nodiscard]] const ElementRow* find_element(int element);

}  // namespace mainwindow
