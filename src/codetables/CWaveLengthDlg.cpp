#include "codetables/CWaveLengthDlg.h"

#include <cmath>

#include "codetables/tables/sea_waves.h"
#include "elements/formulas/wave_period.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

// The period, or why there is none to enter.
struct Found {
  std::string period;
  text::Id refusal;
};

Found period_of(std::string_view typed) {
  const auto metres = text::strict_number(text::trim(typed));
  if (!metres || *metres <= 0.0) return {{}, id::kWaveLengthNoNumber};
  const double seconds = elements::deep_water_period({*metres}).value;
  if (seconds < 1.0) return {{}, id::kWaveLengthTooShort};
  if (seconds > codetables::kLongestWavePeriodOffered) return {{}, id::kWaveLengthTooLong};
  return {text::format_digits(std::lround(seconds), 2), {}};
}

}  // namespace

CWaveLengthDlg::CWaveLengthDlg(ui::Services& services)
    : OkCancelHelpDialog(services, "CWaveLengthDlg", {id::kWaveLengthTitle}),
      length(*this, "length", {id::kWaveLength}, 6),
      period_shown(*this, "period", {id::kWaveLengthPeriod}) {
  length.figures = true;
  length.unit = {id::kFormMetres};
  period_shown.unit = {id::kUnitSeconds};
  period_shown.max_length = 2;
  length.on_change = [this] { period_shown.set(period_of(text::narrow(length.content)).period); };
  length.on_leave = [this] { return text::trim(length.content).empty() || check(); };
}

bool CWaveLengthDlg::check() {
  const Speaking of(*this, length);
  const Found found = period_of(length.content);
  period_shown.set(found.period);
  if (!found.refusal) return true;
  services().messages.error(found.refusal);
  return false;
}

void CWaveLengthDlg::on_ok() {
  if (!check()) {
    focus(length);
    return;
  }
  accepted_ = period_shown.content;
  close(ui::kOk);
}
