#pragma once
// What a save finds missing and wrong, line by line, and where on the form each is put right.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/context.h"
#include "observation/Struct_Weather.h"
#include "observation/past_observation.h"
#include "text/texts.h"

namespace mainwindow {

/// A line of the list.
struct SaveError {
  std::string text;
  /// Names of the controls where it can be put right; some may be locked on this ship. None where
  /// there is no such place.
  std::vector<std::string_view> where = {};
  /// Only to be looked at once more: nothing is wrong by any rule, and its text says that it is one.
  bool doubt = false;
};

/// The groups that lack something, in the order of the report, then the rules that the record
/// breaks, in the language of the moment.
[[nodiscard]] std::vector<SaveError> errors_of(const Struct_Weather& record,
                                               const ShipFixedData& ship, const text::Texts& texts);

/// What is to be doubted of the record beside those that the ship made before (explain/doubts), in
/// the language of the moment.
[[nodiscard]] std::vector<SaveError> doubts_about(
    const Struct_Weather& record, std::span<const observation::PastObservation> past,
    const text::Texts& texts);

}  // namespace mainwindow
