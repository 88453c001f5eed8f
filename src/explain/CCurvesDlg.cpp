#include "explain/CCurvesDlg.h"

#include <algorithm>
#include <utility>

#include "archive/print_documents.h"
#include "archive/print_service.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace id = text::id;
using explain::Chart;
using explain::Curve;
using explain::CurvePoint;

CCurvesDlg::CCurvesDlg(ui::Services& services, explain::Days days, Curve start, std::string folder,
                       std::string ship)
    : OkDialog(services, "CCurvesDlg", {id::kCurvesTitle}),
      point(*this, "point"),
      keys(*this, "keys", {id::kCurvesKeys}),
      pressure(*this, "pressure"),
      temperature(*this, "temperature"),
      wind(*this, "wind"),
      waves(*this, "waves"),
      remark(*this, "remark"),
      print(*this, "print", {id::kPrint}),
      save_pdf(*this, "save_pdf", {id::kSaveAsPdf}),
      help(*this, "help", {id::kHelpLabel}, ui::Role::kHelp),
      days_(std::move(days)),
      hours_(explain::hours_of(days_)),
      start_(start),
      folder_(std::move(folder)),
      ship_(std::move(ship)) {
  point.spoken = {id::kCurvesChosen};
  point.read_only = true;
  select_on_focus(0);  // it is read, not typed over
  point.on_arrow = [this](ui::Key key) { go(key); };
  pressure.spoken = {id::kSpokenChartPressure};
  temperature.spoken = {id::kSpokenChartTemperature};
  wind.spoken = {id::kSpokenChartWind};
  waves.spoken = {id::kSpokenChartWaves};
  for (const Shown& each : shown()) {
    // A transcript tells the point in words at each step; `show` tells what is drawn.
    each.picture->repeats = true;
    each.picture->on_point = [this, chart = each.chart](ui::Point place) {
      const auto found = explain::nearest(days_, chart, place);
      focus(point);
      if (!found) return;
      chosen_ = *found;
      show();
    };
  }
  // The key that opened it closes it as well: a look, and back.
  ok.shortcut = "F3";
  print.on_press = [this] {
    archive::tell_printed(this->services(), archive::print(this->services(), sheets()),
                          "Print FAILED");
  };
  save_pdf.on_press = [this] {
    const std::string name = "curves_" + archive::stamp(this->services().clock.local()) + ".pdf";
    archive::save_as_pdf(this->services(), sheets(), folder_, name, [] { return false; });
  };
}

std::array<CCurvesDlg::Shown, explain::kCharts> CCurvesDlg::shown() {
  return {{{Chart::kPressure, &pressure},
           {Chart::kTemperature, &temperature},
           {Chart::kWind, &wind},
           {Chart::kWaves, &waves}}};
}

void CCurvesDlg::on_open() {
  if (!hours_.empty()) {
    chosen_ = CurvePoint{start_, hours_.back()};
    if (!explain::has_values(days_, start_)) go_to_curve(1);
  }
  for (ui::Button* const button : {&print, &save_pdf}) {
    button->enabled = !hours_.empty();
    if (!button->enabled) button->why_locked = services().texts.get(id::kCurvesNothing);
  }
  if (!hours_.empty() && !days_.entered) remark.caption = {id::kCurvesNoHour};
  remark.visible = static_cast<bool>(remark.caption.id);
  show();
  focus(point);
}

void CCurvesDlg::go(ui::Key key) {
  constexpr int kHoursOfDay = 24;
  if (!chosen_) return;
  const auto at = static_cast<int>(std::lower_bound(hours_.begin(), hours_.end(), chosen_->hour) -
                                   hours_.begin());
  const int last = static_cast<int>(hours_.size()) - 1;
  // A day away, or as far as there are observations.
  const auto at_hour = [&](int hour) {
    return static_cast<int>(std::lower_bound(hours_.begin(), hours_.end(), hour) - hours_.begin());
  };
  switch (key) {
    case ui::Key::kLeft:
      return go_to_hour(at - 1);
    case ui::Key::kRight:
      return go_to_hour(at + 1);
    case ui::Key::kHome:
      return go_to_hour(0);
    case ui::Key::kEnd:
      return go_to_hour(last);
    case ui::Key::kPageUp:
      return go_to_hour(at_hour(chosen_->hour - kHoursOfDay));
    case ui::Key::kPageDown:
      return go_to_hour(at_hour(chosen_->hour + kHoursOfDay));
    case ui::Key::kUp:
      return go_to_curve(-1);
    case ui::Key::kDown:
      return go_to_curve(1);
    default:
      return;
  }
}

void CCurvesDlg::go_to_hour(int at) {
  const int last = static_cast<int>(hours_.size()) - 1;
  chosen_->hour = hours_[static_cast<std::size_t>(std::clamp(at, 0, last))];
  show();
}

// Round from the last to the first; curves without a value are passed by.
void CCurvesDlg::go_to_curve(int steps) {
  int at = static_cast<int>(chosen_->curve);
  for (int tried = 0; tried < explain::kCurves; ++tried) {
    at = (at + steps + explain::kCurves) % explain::kCurves;
    if (!explain::has_values(days_, static_cast<Curve>(at))) continue;
    chosen_->curve = static_cast<Curve>(at);
    break;
  }
  show();
}

void CCurvesDlg::show() {
  const text::Texts& texts = services().texts;
  for (const Shown& each : shown())
    each.picture->drawing =
        std::make_shared<const ui::Drawing>(explain::drawing_of(days_, each.chart, texts, chosen_));
  point.set(chosen_ ? explain::words_of(days_, *chosen_, texts)
                    : std::string(texts.get(id::kCurvesNothing)));
}

std::string CCurvesDlg::days_text() const {
  constexpr int kHoursOfDay = 24;
  const text::Texts& texts = services().texts;
  const auto clock = [](int hour) { return text::format_int(hour % kHoursOfDay, 2, '0'); };
  const int first = hours_.front();
  return text::fill(texts.get(id::kCurvesDays),
                    {explain::date_text(first, texts), clock(first),
                     explain::date_text(days_.last, texts), clock(days_.last)});
}

// Without the mark of the chosen point, and higher than on a screen: four of them fill a page.
ui::Sheets CCurvesDlg::sheets() const {
  constexpr int kMostPoints = 10;
  constexpr int kTaller = 2;
  const text::Texts& texts = services().texts;
  std::string heading(texts.get(id::kCurvesTitle));
  if (!ship_.empty()) heading.append("   ").append(ship_);
  ui::Sheets sheets =
      archive::sheets_of(services(), ui::document_of({std::move(heading), days_text()}));
  sheets.size.most_points = kMostPoints;
  for (const Chart chart : {Chart::kPressure, Chart::kTemperature, Chart::kWind, Chart::kWaves}) {
    sheets.drawings.push_back(explain::drawing_of(days_, chart, texts, std::nullopt));
    sheets.drawings.back().lines *= kTaller;
  }
  return sheets;
}
