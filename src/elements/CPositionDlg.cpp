#include "elements/CPositionDlg.h"

#include <utility>

#include "codetables/tables/quadrant.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace id = text::id;

namespace {

// Lines of both choices: 0 is north or east.
constexpr int kSouthOrWest = 1;

CPositionDlg::Sides sides_of(const std::string& quadrant) {
  return {codetables::north_south_of(quadrant), codetables::east_west_of(quadrant)};
}

}  // namespace

CPositionDlg::CPositionDlg(ui::Services& services, Values values, std::string last_quadrant,
                           LandTest is_on_land, Sides chosen)
    : OkCancelHelpDialog(services, "CPositionDlg", {id::kPositionTitle}),
      last_report_hint(*this, "last_report_hint", {id::kLastReportHint}),
      latitude_degrees(*this, "latitude_degrees", {id::kPositionLatitude}, 2),
      latitude_minutes(*this, "latitude_minutes", {}, 2),
      latitude_side(*this, "latitude_side", {}, {{id::kNorth}, {id::kSouth}}),
      longitude_degrees(*this, "longitude_degrees", {id::kPositionLongitude}, 3),
      longitude_minutes(*this, "longitude_minutes", {}, 2),
      longitude_side(*this, "longitude_side", {}, {{id::kEast}, {id::kWest}}),
      values_(std::move(values)),
      last_quadrant_(std::move(last_quadrant)),
      is_on_land_(std::move(is_on_land)),
      chosen_(chosen),
      la_deg_(services, latitude_degrees, 0, 90, 2, id::kLatitudeDegreesRange),
      la_min_(services, latitude_minutes, 0, 59, 2, id::kLatitudeMinutesRange),
      lo_deg_(services, longitude_degrees, 0, 180, 3, id::kLongitudeDegreesRange),
      lo_min_(services, longitude_minutes, 0, 59, 2, id::kLongitudeMinutesRange) {
  latitude_minutes.spoken = {id::kSpokenLatitudeMinutes};
  latitude_side.spoken = {id::kSpokenNorthSouth};
  longitude_minutes.spoken = {id::kSpokenLongitudeMinutes};
  longitude_side.spoken = {id::kSpokenEastWest};
  for (ui::Control* const degrees : {&latitude_degrees, &longitude_degrees})
    degrees->unit = {id::kPositionDegrees};
  for (ui::Control* const minutes : {&latitude_minutes, &longitude_minutes}) {
    minutes->unit = {id::kPositionMinutes};
    minutes->items = text::numbered_lines(0, 59, 2);
  }
  for (ui::Control* const field : std::initializer_list<ui::Control*>{
           &latitude_degrees, &latitude_minutes, &longitude_degrees, &longitude_minutes}) {
    field->figures = true;
    field->moves_on_when_full = field != &longitude_degrees;  // those are typed as 5 and as 005
  }
  latitude_side.on_change = [this] {
    latitude_offered_ = false;
    show_hint();
  };
  longitude_side.on_change = [this] {
    longitude_offered_ = false;
    show_hint();
  };
}

void CPositionDlg::on_open() {
  la_deg_.open(values_.LaDeg);
  la_min_.open(values_.LaMin);
  lo_deg_.open(values_.LoDeg);
  lo_min_.open(values_.LoMin);
  const Sides own = sides_of(values_.Qc);
  const Sides last = sides_of(last_quadrant_);
  const auto show = [](ui::Choice& side, int of_form, int of_record, int of_last) {
    const int known = of_form >= 0 ? of_form : of_record;
    side.selected = known >= 0 ? known : of_last;
    return known < 0 && of_last >= 0;
  };
  latitude_offered_ = show(latitude_side, chosen_.latitude, own.latitude, last.latitude);
  longitude_offered_ = show(longitude_side, chosen_.longitude, own.longitude, last.longitude);
  show_hint();
}

void CPositionDlg::show_hint() {
  last_report_hint.visible = latitude_offered_ || longitude_offered_;
  if (latitude_offered_ && longitude_offered_) {
    last_report_hint.caption = {id::kLastReportHint};
  } else if (last_report_hint.visible) {
    last_report_hint.caption = {latitude_offered_ ? id::kLastLatitudeSideHint
                                                  : id::kLastLongitudeSideHint};
  }
}

bool CPositionDlg::complete() {
  for (const CFigureField* const part : {&la_deg_, &la_min_, &lo_deg_, &lo_min_}) {
    if (!part->number()) return refuse(part->field(), part->message());
  }
  if (*la_deg_.number() == 90 && *la_min_.number() > 0)
    return refuse(latitude_minutes, id::kBeyondThePole);
  if (*lo_deg_.number() == 180 && *lo_min_.number() > 0)
    return refuse(longitude_minutes, id::kBeyondTheDateLine);
  if (latitude_side.selected < 0) return refuse(latitude_side, id::kNoLatitudeSide);
  if (longitude_side.selected < 0) return refuse(longitude_side, id::kNoLongitudeSide);
  return true;
}

bool CPositionDlg::is_on_land() const {
  if (!is_on_land_) return false;
  const double latitude = *la_deg_.number() + *la_min_.number() / 60.0;
  const double longitude = *lo_deg_.number() + *lo_min_.number() / 60.0;
  return is_on_land_(latitude_side.selected == kSouthOrWest ? -latitude : latitude,
                     longitude_side.selected == kSouthOrWest ? -longitude : longitude);
}

void CPositionDlg::on_ok() {
  if (!complete()) return;
  const Speaking of(*this, latitude_degrees);
  if (is_on_land() &&
      services().messages.question(id::kOnLandQuestion, ui::QuestionMode::kYesNo) != ui::kYes) {
    focus(latitude_degrees);
    return;
  }
  values_ = {la_deg_.figures(), la_min_.figures(), lo_deg_.figures(), lo_min_.figures(),
             codetables::quadrant_of(latitude_side.selected, longitude_side.selected)};
  close(ui::kOk);
}
