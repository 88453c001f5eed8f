#include "elements/CThumidityDlg.h"

#include <utility>

#include "codetables/tables/humidity_figures.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

CThumidityDlg::CThumidityDlg(ui::Services& services, std::string humidity, double unit)
    : OkCancelHelpDialog(services, "CThumidityDlg", {id::kHumidityTitle}),
      value(*this, "value", {id::kHumidityValue}),
      humidity_(std::move(humidity)),
      whole_percent_(unit >= 1.0) {
  value.max_length = 5;
  value.figures = true;
  value.unit = {id::kUnitPercent};
  value.on_leave = [this] { return check(); };
}

void CThumidityDlg::on_open() {
  value.set(codetables::shown_humidity(humidity_, whole_percent_));
}

bool CThumidityDlg::check() {
  const Speaking of(*this, value);
  const std::string_view typed = text::trim(value.content);
  if (typed.empty()) return true;
  switch (codetables::check_humidity(typed, whole_percent_)) {
    case codetables::HumidityCheck::kAccepted:
      value.set(codetables::shown_humidity(typed, whole_percent_));
      return true;
    case codetables::HumidityCheck::kNotANumber:
      services().messages.error(id::kInvalidValue);
      return false;
    case codetables::HumidityCheck::kOutOfRange:
      services().messages.error(id::kHumidityRange);
      return false;
  }
  return false;
}

void CThumidityDlg::on_ok() {
  if (!check()) {
    focus(value);
    return;
  }
  humidity_ = text::trim(value.content);
  close(ui::kOk);
}
