#pragma once
// What a save finds missing and wrong, line by line, and where on the form each is put right.

#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/context.h"
#include "observation/Struct_Weather.h"
#include "text/texts.h"

namespace mainwindow {

/// A line of the list.
struct SaveError {
  std::string text;
  /// Names of the controls where it can be put right; some may be locked on this ship. None where
  /// there is no such place.
  std::vector<std::string_view> where = {};
};

/// The groups that lack something, in the order of the report, then the rules that the record
/// breaks, in the language of the moment.
[[nodiscard]] std::vector<SaveError> errors_of(const Struct_Weather& record,
                                               const ShipFixedData& ship, const text::Texts& texts);

}  // namespace mainwindow
