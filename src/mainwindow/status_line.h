#pragma once
// What the line at the bottom says of the field that has the focus: what stands in it in words, what
// may be typed, why it is locked, and what F1 opens.

#include <string>
#include <string_view>

#include "elements/form/observation_form.h"
#include "mainwindow/form_rows.h"
#include "text/texts.h"

namespace mainwindow {

/// A field as the line speaks of it.
struct StatusOf {
  const elements::ObservationForm& form;
  elements::Surroundings around;
  const text::Texts& texts;
};

/// Of a field of the form; `typed` is what stands in it now, taken or not, `why_locked` none for one
/// that is open.
[[nodiscard]] std::string field_status(const StatusOf& of, const FieldRow& row,
                                       std::string_view typed, text::Id why_locked);

/// Of a group of the report.
[[nodiscard]] std::string group_status(const StatusOf& of, const ReportGroupRow& row,
                                       std::string_view typed);

}  // namespace mainwindow
