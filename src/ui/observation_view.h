#pragma once
// What a window that holds an observation lets others look at.

#include <string>
#include <utility>
#include <vector>

namespace ui {

/// Implemented by the screen that owns the observation, beside Screen; a front end finds it by a
/// dynamic_cast of the open screen. Looking changes nothing.
class ObservationView {
 public:
  virtual ~ObservationView() = default;
  /// The record's fields that are set, name and value, in the record's order.
  [[nodiscard]] virtual std::vector<std::pair<std::string, std::string>> record_fields() const = 0;
  /// The report as it would be sent now.
  [[nodiscard]] virtual std::string report() const = 0;
};

}  // namespace ui
