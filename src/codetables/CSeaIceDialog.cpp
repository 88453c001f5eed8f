#include "codetables/CSeaIceDialog.h"

#include <utility>

#include "codetables/code_choice.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

constexpr int kFigures = 2;
constexpr int kLargest = 99;  // centimetres
constexpr int kMostTyped = 4;
constexpr std::string_view kNotReported = "//";

// A typed thickness as two figures, also of one alone; empty for what is none.
std::string thickness_figures(std::string_view typed) {
  const bool solidi = typed == kNotReported || typed == kNotReported.substr(1);
  if (solidi) return std::string(kNotReported);
  if (typed.size() > kFigures || !text::is_all_digits(typed)) return {};
  return text::format_digits(text::leading_int(typed), kFigures);
}

}  // namespace

CSeaIceDialog::CSeaIceDialog(ui::Services& services, Values values)
    : OkCancelHelpDialog(services, "CSeaIceDialog", {id::kIcingTitle}),
      kind_group(*this, "kind_group", {id::kIcingCauseGroup}),
      kind(*this, "kind", {}, {}),
      thickness(*this, "thickness", {id::kIcingThickness}, kMostTyped),
      rate_heading(*this, "rate_heading", {id::kIcingRateHeading}),
      rate_group(*this, "rate_group", {id::kIcingRateGroup}),
      rate(*this, "rate", {}, {}),
      values_(std::move(values)) {
  codetables::offer(kind, codetables::table_of("Is")->rows);
  codetables::offer(rate, codetables::table_of("Rs")->rows);
  thickness.items = text::numbered_lines(0, kLargest, kFigures);
  thickness.figures = true;
  thickness.unit = {id::kFormCentimetres};
  thickness.on_leave = [this] { return check_thickness(); };
}

// A field is narrowed when it is left, also one that nobody typed into; what does not fit into it
// is not shown.
void CSeaIceDialog::on_open() {
  kind.selected = codetables::line_of(kind, codetables::figures_of(values_.Is));
  rate.selected = codetables::line_of(rate, codetables::figures_of(values_.Rs));
  if (text::length(values_.EsEs) <= kMostTyped) opened_with_ = text::narrow(values_.EsEs);
  thickness.set(opened_with_);
}

// What was handed in is not refused when the focus merely passes through.
bool CSeaIceDialog::check_thickness() {
  const Speaking of(*this, thickness);
  if (thickness.content == opened_with_) return true;
  const std::string_view typed = text::trim(thickness.content);
  const std::string figures = thickness_figures(typed);
  if (figures.empty() && !typed.empty()) {
    services().messages.error(id::kIcingThicknessRange);
    return false;
  }
  thickness.set(figures);
  return true;
}

void CSeaIceDialog::on_ok() {
  values_.Is = codetables::code_after(kind, values_.Is);
  if (thickness.content != opened_with_) values_.EsEs = thickness.content;
  values_.Rs = codetables::code_after(rate, values_.Rs);
  close(ui::kOk);
}
