#include "elements/CTemperatureAndDewDlg.h"

#include <utility>

#include "elements/formulas/relative_humidity.h"
#include "text/ids.h"

namespace id = text::id;

CTemperatureAndDewDlg::CTemperatureAndDewDlg(ui::Services& services, Values values)
    : OkCancelHelpDialog(services, "CTemperatureAndDewDlg", {id::kAirAndDewTitle}),
      air(*this, services,
          {"air_group", "air_whole", "air_tenths", id::kAirGroup, id::kAirWhole,
           id::kAirTemperatureHighQuestion, id::kAirTemperatureLowQuestion}),
      dew(*this, services,
          {"dew_group", "dew_whole", "dew_tenths", id::kDewPointGroup, id::kDewPointWhole,
           id::kDewPointHighQuestion, id::kDewPointLowQuestion}),
      computed_group(*this, "computed_group", {id::kComputedGroup}),
      humidity(*this, "humidity", {id::kComputedHumidity}),
      values_(std::move(values)) {
  humidity.unit = {id::kUnitPercent};
  air.on_change = [this] { recompute(); };
  dew.on_change = [this] { recompute(); };
}

void CTemperatureAndDewDlg::on_open() {
  air.set(values_.air);
  dew.set(values_.dew);
  recompute();
}

void CTemperatureAndDewDlg::recompute() {
  humidity.content.clear();
  if (!air.well_formed() || !dew.well_formed()) return;
  if (const auto texts = elements::humidity_of_texts(air.text(), dew.text()))
    humidity.content = texts->display;
}

void CTemperatureAndDewDlg::on_ok() {
  for (CTemperatureEntry* const entry : {&air, &dew}) {
    if (ui::Control* const refused = entry->check()) {
      focus(*refused);
      return;
    }
  }
  if (!air.empty() && !dew.empty() && dew.value() > air.value()) {
    refuse(dew.whole, id::kDewPointAboveAir);
    return;
  }
  values_ = {air.text(), dew.text()};
  close(ui::kOk);
}
