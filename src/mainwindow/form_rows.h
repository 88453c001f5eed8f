#pragma once
// The form as rows: its labelled groups and captions, its fields in tab order, and the report's
// groups at the bottom.

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "elements/form/fields.h"
#include "observation/report_groups.h"
#include "ship/data/KeyObservationItems.h"

namespace mainwindow {

using enum elements::Element;
using elements::Element;
using elements::label_ref;

/// A label over the fields of an element, which opens its dialog; one over several elements opens
/// that of the first. It does nothing when its field is switched off; a caption also moves the
/// focus on to the field behind its own.
struct LabelRow {
  std::string_view name;
  text::Id label;
  elements::Field of = {};
  bool caption = false;

  [[nodiscard]] Element element() const { return elements::row_of(of).element; }
  /// The item that switches it off.
  [[nodiscard]] std::optional<ObservationItem> item() const { return elements::row_of(of).item; }
};
[[nodiscard]] std::span<const LabelRow> label_rows();

enum class FieldKind : std::uint8_t {
  kEdit,
  kNorthSouth,
  kEastWest,
  kLoadingState,
  kFreeze,
};

/// A control of the form: an entry field, or what is chosen beside one.
struct FieldRow {
  std::string_view name;
  text::Id label = {};  ///< main label, or none
  Element element = kNoElement;
  FieldKind kind = FieldKind::kEdit;
  const elements::FieldRow* field = nullptr;  ///< of an edit
  elements::Field place = {};                 ///< itself; of a choice the field before it
};
/// In tab order.
[[nodiscard]] std::span<const FieldRow> field_rows();

/// A group of the report under its fixed caption.
struct ReportGroupRow {
  observation::Group group;
  std::string_view name;
  std::string_view caption;
};
[[nodiscard]] std::span<const ReportGroupRow> report_group_rows();

/// Characters of the longest group.
inline constexpr int kGroupWidth = 9;

/// Caption of the call sign, which stands in front of the groups.
inline constexpr std::string_view kCallSignCaption = "CALLSIGN";
/// Caption of the word in front of the sea-ice group.
inline constexpr std::string_view kIceCaption = "I C E";

}  // namespace mainwindow
