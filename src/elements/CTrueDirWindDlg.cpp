#include "elements/CTrueDirWindDlg.h"

#include <utility>

#include "codetables/tables/wind_figures.h"
#include "elements/formulas/true_wind_rules.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;
using elements::TrueWindRule;

namespace {

constexpr std::string_view kUnknown = "//";

text::Id message_of(TrueWindRule rule) {
  switch (rule) {
    case TrueWindRule::kCalmWithSpeed:
      return id::kCalmDirectionWithSpeed;
    case TrueWindRule::kDirectionWithoutSpeed:
      return id::kDirectionWithoutSpeed;
    case TrueWindRule::kDirectionBelowOneKnot:
      return id::kDirectionBelowOneKnot;
    case TrueWindRule::kKept:
      break;
  }
  return {};
}

}  // namespace

CTrueDirWindDlg::CTrueDirWindDlg(ui::Services& services, std::string direction, std::string speed)
    : OkCancelHelpDialog(services, "CTrueDirWindDlg", {id::kTrueWindTitle}),
      direction_field(*this, "direction", {id::kTrueDirection}, 2),
      speed_field(*this, "speed", {id::kTrueSpeed}, 5),
      direction_unknown(*this, "direction_unknown", {id::kTrueDirectionUnknown}),
      speed_unknown(*this, "speed_unknown", {id::kTrueSpeedUnknown}),
      direction_(std::move(direction)),
      speed_(std::move(speed)) {
  direction_field.figures = speed_field.figures = true;
  direction_field.moves_on_when_full = true;
  direction_field.unit = {id::kUnitTensOfDegrees};
  speed_field.unit = {id::kUnitKnots};
  direction_field.on_leave = [this] { return check_direction(); };
  speed_field.on_leave = [this] { return check_speed(); };
  direction_unknown.on_change = [this] {
    unknown_changed(direction_field, direction_unknown, kept_direction_);
  };
  speed_unknown.on_change = [this] { unknown_changed(speed_field, speed_unknown, kept_speed_); };
}

void CTrueDirWindDlg::on_open() {
  direction_field.set(direction_);
  speed_field.set(speed_);
  direction_unknown.checked = direction_ == kUnknown;
  speed_unknown.checked = speed_ == kUnknown;
  direction_field.enabled = !direction_unknown.checked;
  speed_field.enabled = !speed_unknown.checked;
}

// The box replaces its field; taking the tick away brings the field's text back.
void CTrueDirWindDlg::unknown_changed(ui::Edit& field, const ui::Tick& unknown, std::string& kept) {
  if (unknown.checked) kept = field.content;
  field.set(unknown.checked ? std::string(kUnknown) : kept);
  field.enabled = !unknown.checked;
}

bool CTrueDirWindDlg::check_direction() {
  const Speaking of(*this, direction_field);
  const std::string typed(text::trim(direction_field.content));
  if (!typed.empty() && !codetables::is_true_direction(typed)) {
    services().messages.error(id::kInputError);
    return false;
  }
  if (typed.size() == 1) direction_field.set("0" + typed);
  return true;
}

bool CTrueDirWindDlg::check_speed() {
  const Speaking of(*this, speed_field);
  const std::string_view typed = text::trim(speed_field.content);
  if (typed.empty() || typed == kUnknown) return true;
  if (!text::is_number(typed, text::kTypedSpeed)) {
    services().messages.error(id::kNotANumber);
    return false;
  }
  if (text::leading_number(typed) > codetables::kLargestSpeed) {
    services().messages.error(id::kInputError);
    return false;
  }
  return true;
}

void CTrueDirWindDlg::on_ok() {
  if (!check_direction()) {
    focus(direction_field);
    return;
  }
  if (!check_speed()) {
    focus(speed_field);
    return;
  }
  // The rules tell blanks from nothing, so they see the fields as they are.
  const TrueWindRule rule = elements::check_true_wind(direction_field.content, speed_field.content);
  if (rule != TrueWindRule::kKept) {
    refuse(direction_field, message_of(rule));
    return;
  }
  direction_ = elements::true_wind_direction(text::trim(direction_field.content));
  speed_ = text::trim(speed_field.content);
  close(ui::kOk);
}
