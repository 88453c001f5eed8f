#include "elements/CLookWindDlg.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

constexpr int kFullCircle = 360;

}  // namespace

const CLookWindDlg::DegreesField CLookWindDlg::kDegreesFields[] = {
    {&CLookWindDlg::heading, 1, id::kHeadingRange},
    {&CLookWindDlg::course, 0, id::kCourseRange},
    {&CLookWindDlg::direction, 0, id::kApparentDirectionRange},
};
// The fields hold these widths. An anemometer's tenths go to 999.9 here; the form's field, which is
// not read from one, ends at 999.
const CLookWindDlg::SpeedField CLookWindDlg::kSpeedFields[] = {
    {&CLookWindDlg::ship_speed, 99.9, 4},
    {&CLookWindDlg::speed, 999.9, 5},
};

CLookWindDlg::CLookWindDlg(ui::Services& services, elements::ApparentWindTexts values)
    : OkCancelHelpDialog(services, "CLookWindDlg", {id::kApparentWindTitle}),
      ship_group(*this, "ship_group", {id::kShipMovementGroup}),
      heading(*this, "heading", {id::kHeading}, 3),
      course(*this, "course", {id::kCourse}, 3),
      ship_speed(*this, "ship_speed", {id::kShipSpeed}, 5),
      wind_group(*this, "wind_group", {id::kApparentWindGroup}),
      hint(*this, "hint", {id::kApparentWindHint}),
      direction(*this, "direction", {id::kApparentDirection}, 3),
      speed(*this, "speed", {id::kApparentSpeed}, 5),
      true_group(*this, "true_group", {id::kTrueWindGroup}),
      true_direction(*this, "true_direction", {id::kComputedDirection}),
      true_speed(*this, "true_speed", {id::kComputedSpeed}),
      values_(std::move(values)) {
  for (ui::Control* const field :
       std::initializer_list<ui::Control*>{&heading, &course, &ship_speed, &direction, &speed})
    field->figures = true;
  true_direction.unit = {id::kUnitTensOfDegrees};
  true_speed.unit = {id::kUnitKnots};
  for (const DegreesField& row : kDegreesFields) {
    (this->*row.field).on_leave = [this, &row] { return check(row); };
    (this->*row.field).on_change = [this] { recompute(); };
  }
  for (const SpeedField& row : kSpeedFields) {
    (this->*row.field).on_leave = [this, &row] { return check(row); };
    (this->*row.field).on_change = [this] { recompute(); };
  }
}

void CLookWindDlg::on_open() {
  heading.set(values_.heading);
  course.set(values_.course);
  ship_speed.set(values_.ship_speed);
  direction.set(values_.direction);
  speed.set(values_.speed);
  recompute();
}

elements::ApparentWindTexts CLookWindDlg::entered() const {
  return {direction.content, speed.content, heading.content, course.content, ship_speed.content};
}

// What OK would refuse gives no true wind while it is typed either.
bool CLookWindDlg::acceptable() const {
  const auto degrees_kept = [this](const DegreesField& row) {
    const std::string& typed = (this->*row.field).content;
    return text::trim(typed).empty() || text::whole_number(typed, row.lowest, kFullCircle);
  };
  const auto speed_kept = [this](const SpeedField& row) {
    const std::string& typed = (this->*row.field).content;
    return text::trim(typed).empty() || !refusal(row, typed);
  };
  return std::all_of(std::begin(kDegreesFields), std::end(kDegreesFields), degrees_kept) &&
         std::all_of(std::begin(kSpeedFields), std::end(kSpeedFields), speed_kept);
}

void CLookWindDlg::recompute() {
  const auto found = acceptable() ? elements::true_wind_of_texts(entered()) : std::nullopt;
  true_direction.content = found ? found->direction : "";
  true_speed.content = found ? found->speed : "";
}

bool CLookWindDlg::check(const DegreesField& row) {
  const Speaking of(*this, this->*row.field);
  const std::string& typed = (this->*row.field).content;
  if (text::trim(typed).empty() || text::whole_number(typed, row.lowest, kFullCircle)) {
    recompute();  // full-width figures are figures only now
    return true;
  }
  services().messages.error(row.message);
  return false;
}

text::Id CLookWindDlg::refusal(const SpeedField& row, std::string_view typed) {
  const auto knots = text::strict_number(text::trim(typed));
  if (!knots) return id::kNotANumber;
  return *knots < 0.0 || *knots > row.largest ? id::kInputError : text::Id();
}

bool CLookWindDlg::check(const SpeedField& row) {
  ui::Edit& field = this->*row.field;
  const Speaking of(*this, field);
  if (text::trim(field.content).empty()) return true;
  if (const text::Id message = refusal(row, field.content); message) {
    services().messages.error(message);
    return false;
  }
  const double knots = text::leading_number(field.content);
  field.set(text::format_fixed(knots + 0.0, 1, row.width));  // "-0" is 0
  recompute();
  return true;
}

void CLookWindDlg::on_ok() {
  for (const DegreesField& row : kDegreesFields) {
    if (check(row)) continue;
    focus(this->*row.field);
    return;
  }
  for (const SpeedField& row : kSpeedFields) {
    if (check(row)) continue;
    focus(this->*row.field);
    return;
  }
  values_ = entered();
  close(ui::kOk);
}
