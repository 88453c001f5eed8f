#include "codetables/CPastWeatherDlg1.h"

#include <algorithm>

#include "codetables/tables/code_tables.h"
#include "text/ids.h"

namespace id = text::id;
using codetables::PastWeather;

namespace {

struct BoxRow {
  std::string_view name;
  int code;
};

// The heaviest weather first.
constexpr BoxRow kBoxes[] = {
    {"thunder", 9},
    {"shower", 8},
    {"snow", 7},
    {"rain", 6},
    {"drizzle", 5},
    {"fog", 4},
    {"sandstorm", 3},
    {"cloud_more_than_half", 2},
    {"cloud_changing", 1},
    {"cloud_half_or_less", 0},
    {"not_observed", codetables::kPastWeatherNotObserved},
};

}  // namespace

CPastWeatherDlg1::CPastWeatherDlg1(ui::Services& services, int W1, int W2)
    : OkCancelHelpDialog(services, "CPastWeatherDlg1", {id::kPastWeatherTitle}),
      heading(*this, "heading", {id::kPastWeatherHeading}),
      hint(*this, "hint", {id::kPastWeatherHint}),
      group(*this, "group", {id::kPastWeatherGroup}),
      boxes_(make_boxes()),
      code_(*this, "code", {id::kPastWeatherCode}),
      codes_{W1, W2} {
  code_.max_length = 2;
  for (const Box& box : boxes_) box.tick->on_change = [this, &box] { ticked(box); };
}

CPastWeatherDlg1::~CPastWeatherDlg1() = default;

std::vector<CPastWeatherDlg1::Box> CPastWeatherDlg1::make_boxes() {
  // The table's rows are in the order of the codes, the solidus last.
  const auto rows = codetables::table_of("W1")->rows;
  std::vector<Box> made;
  for (const BoxRow& row : kBoxes) {
    const text::Id text = rows[static_cast<std::size_t>(row.code)].text;
    made.push_back({row.code, std::make_unique<ui::Tick>(*this, row.name, text::Ref{text})});
  }
  return made;
}

void CPastWeatherDlg1::on_open() {
  const auto ticks = codetables::past_weather_ticks(codes_);
  for (const Box& box : boxes_) box.tick->checked = ticks.at(static_cast<std::size_t>(box.code));
  show_code();
}

// Of the three states of the sky one alone is true; a record that has two keeps them until a person
// ticks one.
void CPastWeatherDlg1::ticked(const Box& box) {
  touched_ = true;
  if (box.tick->checked && codetables::is_cloud_state(box.code)) {
    for (const Box& other : boxes_) {
      if (other.code != box.code && codetables::is_cloud_state(other.code))
        other.tick->checked = false;
    }
  }
  show_code();
}

PastWeather CPastWeatherDlg1::chosen() const {
  if (!touched_) return codes_;
  codetables::PastWeatherTicks ticks{};
  for (const Box& box : boxes_) ticks.at(static_cast<std::size_t>(box.code)) = box.tick->checked;
  return codetables::past_weather_of(ticks);
}

void CPastWeatherDlg1::show_code() {
  const PastWeather codes = chosen();
  code_.content = codetables::past_weather_figure(codes.W1);
  code_.content += codetables::past_weather_figure(codes.W2);
}

void CPastWeatherDlg1::on_ok() {
  codes_ = chosen();
  close(ui::kOk);
}
