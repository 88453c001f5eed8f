#include "elements/CCountDewDlg.h"

#include <utility>

#include "codetables/tables/temperature_figures.h"
#include "elements/formulas/relative_humidity.h"
#include "text/ids.h"

namespace id = text::id;
using elements::WetBulbState;

namespace {

// The order of the choice's lines.
constexpr WetBulbState kStates[] = {WetBulbState::kNotIced, WetBulbState::kIced,
                                    WetBulbState::kNotSet};

}  // namespace

CCountDewDlg::CCountDewDlg(ui::Services& services, Values values)
    : OkCancelHelpDialog(services, "CCountDewDlg", {id::kPsychrometerTitle}),
      dry(*this, services,
          {"dry_group", "dry_whole", "dry_tenths", id::kDryBulbGroup, id::kDryBulbWhole,
           id::kAirTemperatureHighQuestion, id::kAirTemperatureLowQuestion}),
      wet(*this, services,
          {"wet_group", "wet_whole", "wet_tenths", id::kWetBulbGroup, id::kWetBulbWhole,
           id::kWetBulbHighQuestion, id::kWetBulbLowQuestion}),
      wet_bulb_state(*this, "wet_bulb_state", {id::kWetBulbState},
                     {{id::kWetBulbNotIced}, {id::kWetBulbIced}, {id::kWetBulbUnknown}}),
      computed_group(*this, "computed_group", {id::kComputedGroup}),
      dew_point(*this, "dew_point", {id::kComputedDewPoint}),
      humidity(*this, "humidity", {id::kComputedHumidity}),
      values_(std::move(values)),
      state_before_(values_.state) {
  dew_point.unit = {id::kUnitCelsius};
  wet_bulb_state.spoken = {id::kSpokenWetBulbState};
  humidity.unit = {id::kUnitPercent};
  dry.on_change = [this] { recompute(); };
  wet.on_change = [this] { recompute(); };
  wet_bulb_state.on_change = [this] { state_changed(); };
}

void CCountDewDlg::on_open() {
  dry.set(values_.dry);
  wet.set(values_.wet);
  choose_state(values_.state);
  recompute();
}

WetBulbState CCountDewDlg::chosen_state() const {
  return wet_bulb_state.selected < 0 ? WetBulbState::kNotSet : kStates[wet_bulb_state.selected];
}

void CCountDewDlg::choose_state(WetBulbState state) {
  for (int line = 0; line < 3; ++line) {
    if (kStates[line] == state) wet_bulb_state.selected = line;
  }
}

bool CCountDewDlg::iced_but_warm() const {
  return chosen_state() == WetBulbState::kIced && !wet.empty() &&
         !elements::can_be_iced({wet.value()});
}

// Ice on a bulb that is too warm for it: the choice goes back to what it was.
void CCountDewDlg::state_changed() {
  if (iced_but_warm()) {
    services().messages.error(id::kIcedWetBulbTooWarm);
    choose_state(state_before_);
    return;
  }
  state_before_ = chosen_state();
  recompute();
}

void CCountDewDlg::recompute() {
  dew_point.content.clear();
  humidity.content.clear();
  if (!dry.well_formed() || !wet.well_formed()) return;
  const auto found = elements::dew_point_of_texts(dry.text(), wet.text(), values_.reading,
                                                  values_.card, chosen_state());
  if (!found) return;
  dew_point.content = codetables::computed_dew_point_figures(*found).text;
  if (const auto texts = elements::humidity_of_texts(dry.text(), dew_point.content))
    humidity.content = texts->display;
}

void CCountDewDlg::on_ok() {
  for (CTemperatureEntry* const entry : {&dry, &wet}) {
    if (ui::Control* const refused = entry->check()) {
      focus(*refused);
      return;
    }
  }
  if (!dry.empty() && !wet.empty() && wet.value() > dry.value()) {
    refuse(wet.whole, id::kWetBulbAboveDryBulb);
    return;
  }
  if (iced_but_warm()) {
    refuse(wet.whole, id::kIcedWetBulbTooWarm);
    return;
  }
  values_.dry = dry.text();
  values_.wet = wet.text();
  values_.state = chosen_state();
  close(ui::kOk);
}
