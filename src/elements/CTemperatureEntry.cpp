#include "elements/CTemperatureEntry.h"

#include "codetables/tables/temperature_figures.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

CTemperatureEntry::CTemperatureEntry(ui::Screen& owner, ui::Services& services, const Texts& texts)
    : group(owner, texts.group_name, {texts.group_label}),
      whole(owner, texts.whole_name, {texts.whole_label}, 3),
      tenths(owner, texts.tenths_name, {id::kTemperatureTenths}, 1),
      owner_(owner),
      services_(services),
      texts_(texts) {
  for (char digit = '0'; digit <= '9'; ++digit) tenths.items.emplace_back(1, digit);
  whole.continues_in = &tenths;
  whole.figures = tenths.figures = true;
  tenths.moves_on_when_full = true;
  tenths.unit = {id::kUnitCelsius};
  const auto changed = [this] {
    if (on_change) on_change();
  };
  whole.on_change = changed;
  tenths.on_change = [this, changed] {
    tenths_typed_ = true;
    changed();
  };
  whole.on_leave = [this] { return check_whole(); };
  tenths.on_leave = [this] { return check_tenths(); };
}

void CTemperatureEntry::set(std::string_view text) {
  text = text::trim(text);
  not_observed_ = !text.empty() && text.find_first_not_of('/') == std::string_view::npos
                      ? std::string(text)
                      : std::string();
  if (!not_observed_.empty()) text = {};
  const auto point = text.find('.');
  whole.set(text.substr(0, point));
  tenths.set(point == std::string_view::npos ? std::string_view() : text.substr(point + 1, 1));
}

std::string CTemperatureEntry::text() const {
  return empty() && text::trim(tenths.content).empty() ? not_observed_ : joined();
}

std::string CTemperatureEntry::joined() const {
  return codetables::joined_temperature(whole.content, tenths.content);
}

double CTemperatureEntry::value() const {
  return text::leading_number(text());
}

bool CTemperatureEntry::well_formed() const {
  const std::string_view degrees = text::trim(whole.content);
  const std::string_view decimals = text::trim(tenths.content);
  return (degrees.empty() || text::is_number(degrees, text::kSignedWhole)) &&
         (decimals.empty() || text::is_all_digits(decimals));
}

ui::Control* CTemperatureEntry::check() {
  if (!check_whole()) return &whole;
  if (!check_tenths()) return &tenths;
  // The whole degrees may come after the tenths, so they are asked for by OK only. The tenths of an
  // earlier temperature go with its whole degrees.
  if (tenths_typed_ && text::trim(whole.content).empty() && !text::trim(tenths.content).empty()) {
    const ui::Screen::Speaking of(owner_, whole);
    services_.messages.error(id::kTenthsAlone);
    return &whole;
  }
  return nullptr;
}

bool CTemperatureEntry::check_whole() {
  const ui::Screen::Speaking of(owner_, whole);
  const std::string degrees(text::trim(whole.content));
  if (degrees.empty()) return true;
  if (!text::is_number(degrees, text::kSignedWhole)) {
    services_.messages.error(id::kInvalidValue);
    return false;
  }
  const codetables::TemperatureRange range = codetables::temperature_range(degrees);
  if (range != codetables::TemperatureRange::kUsual && degrees != confirmed_) {
    const text::Id question =
        range == codetables::TemperatureRange::kAbove ? texts_.high_question : texts_.low_question;
    if (services_.messages.question(question, ui::QuestionMode::kYesNo) != ui::kYes) return false;
    confirmed_ = degrees;
  }
  if (on_change) on_change();  // full-width figures are figures only now
  return true;
}

bool CTemperatureEntry::check_tenths() {
  const ui::Screen::Speaking of(owner_, tenths);
  const std::string_view decimals = text::trim(tenths.content);
  if (!decimals.empty() && !text::is_all_digits(decimals)) {
    services_.messages.error(id::kInvalidValue);
    return false;
  }
  if (decimals.empty() && !text::trim(whole.content).empty()) {
    tenths.set("0");
    if (on_change) on_change();
  }
  return true;
}
