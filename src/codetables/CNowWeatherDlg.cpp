#include "codetables/CNowWeatherDlg.h"

#include <utility>

#include "text/ids.h"

namespace id = text::id;
using codetables::PresentWeatherPlace;

CNowWeatherDlg::CNowWeatherDlg(ui::Services& services, std::string ww)
    : OkCancelHelpDialog(services, "CNowWeatherDlg", {id::kPresentWeatherTitle}),
      choice(
          *this, "choice", {},
          {{id::kPrecipitationNow}, {id::kNoPrecipitationNow}, {id::kPresentWeatherNotObserved}}),
      group_title(*this, "group_title", {id::kPresentWeatherGroups}),
      group(*this, "group"),
      line_title(*this, "line_title", {id::kPresentWeatherLines}),
      line(*this, "line"),
      code(*this, "code", {id::kPresentWeatherCode}),
      ww_(std::move(ww)),
      opened_(codetables::present_weather_place(ww_)) {
  code.max_length = 2;
  choice.on_change = [this] { choice_changed(); };
  group.on_change = [this] { group_changed(); };
  line.on_change = [this] { show_code(); };
}

void CNowWeatherDlg::on_open() {
  choice.selected = opened_.choice;
  choice_changed();
}

PresentWeatherPlace CNowWeatherDlg::chosen() const {
  return {choice.selected, group.selected, line.selected};
}

std::string CNowWeatherDlg::chosen_code() const {
  if (choice.selected < 0 || chosen() == opened_) return ww_;
  return codetables::present_weather_code(chosen()).value_or("");
}

// The lists offer what belongs to the choice and to the group; the code that was handed in is
// chosen again where it is among them, so that a look at another group loses nothing.
void CNowWeatherDlg::choice_changed() {
  fill_groups();
  group_changed();
}

void CNowWeatherDlg::group_changed() {
  fill_lines();
  show_code();
}

void CNowWeatherDlg::fill_groups() {
  group.item_refs.clear();
  group.items.clear();
  for (const auto& one : codetables::present_weather_groups(choice.selected))
    group.item_refs.push_back({one.text});
  group.selected = choice.selected == opened_.choice ? opened_.group : -1;
  group.enabled = !group.item_refs.empty();
  relabel();
}

void CNowWeatherDlg::fill_lines() {
  line.item_refs.clear();
  line.items.clear();
  line.item_codes.clear();
  for (const auto& row : codetables::present_weather_lines(choice.selected, group.selected)) {
    line.item_refs.push_back({row.text});
    line.item_codes.emplace_back(row.figures);
  }
  const bool as_opened = choice.selected == opened_.choice && group.selected == opened_.group;
  line.selected = as_opened ? opened_.line : line.item_refs.size() == 1 ? 0 : -1;
  line.enabled = !line.item_refs.empty();
  relabel();
}

void CNowWeatherDlg::show_code() {
  code.content = chosen_code();
}

void CNowWeatherDlg::on_ok() {
  const bool begun = choice.selected >= 0 && chosen() != opened_;
  if (begun && chosen_code().empty()) {
    // Neither the old code, which the lists no longer show, nor one that nobody chose.
    refuse(group.selected < 0 ? group : line, id::kPresentWeatherNoLine);
    return;
  }
  ww_ = chosen_code();
  close(ui::kOk);
}
