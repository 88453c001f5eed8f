#include "elements/CPresureTendencyDlg.h"

#include <algorithm>
#include <utility>

#include "codetables/tables/code_tables.h"
#include "elements/tendency_curves.h"
#include "text/ids.h"
#include "text/strings.h"

namespace id = text::id;
using codetables::TendencyKind;

namespace {

text::Id line_of(char code) {
  const auto rows = codetables::table_of("a")->rows;
  return std::find_if(rows.begin(), rows.end(),
                      [&](const codetables::CodeRow& row) { return row.figures.front() == code; })
      ->text;
}

}  // namespace

CPresureTendencyDlg::CPresureTendencyDlg(ui::Services& services, std::string a, std::string ppp)
    : OkCancelHelpDialog(services, "CPresureTendencyDlg", {id::kTendencyTitle}),
      choice(*this, "choice"),
      kind_group(*this, "kind_group", {id::kTendencyKindGroup}),
      kind(*this, "kind"),
      characteristic_group(*this, "characteristic_group", {id::kTendencyCharacteristicGroup}),
      characteristic(*this, "characteristic"),
      curves(*this, "curves", {id::kTendencyCurves}),
      amount(*this, "amount", {id::kTendencyAmount}, 6),
      code(*this, "code", {id::kTendencyCode}),
      a_(std::move(a)),
      ppp_(std::move(ppp)) {
  kind.item_refs = {
      {id::kTendencyRisen}, {id::kTendencySame}, {id::kTendencyDescended}, {id::kTendencyUnknown}};
  amount.figures = true;
  amount.unit = {id::kUnitHectopascal};
  kind.on_change = [this] { kind_changed(); };
  characteristic.on_change = [this] { show_chosen(); };
  curves.on_point = [this](ui::Point place) { choose_curve(place); };
  amount.on_leave = [this] { return leave_amount(); };
}

void CPresureTendencyDlg::on_open() {
  amount.set(codetables::tendency_shown(ppp_));
  kind.selected = static_cast<int>(codetables::tendency_kind(a_, amount.content));
  fill_characteristics();
  characteristic.selected = codetables::characteristic_line(chosen_kind(), a_);
  show_chosen();
}

TendencyKind CPresureTendencyDlg::chosen_kind() const {
  return static_cast<TendencyKind>(kind.selected);
}

std::string CPresureTendencyDlg::chosen_code() const {
  if (kind.selected < 0) return a_;
  return codetables::characteristic(chosen_kind(), characteristic.selected, a_);
}

void CPresureTendencyDlg::fill_characteristics() {
  characteristic.item_refs.clear();
  characteristic.items.clear();
  characteristic.selected = -1;
  choice.literal_caption = kind.selected_text();
  if (kind.selected < 0) return;
  for (const char one : codetables::characteristics(chosen_kind()))
    characteristic.item_refs.push_back({line_of(one)});
  relabel();
}

// Another kind offers other characteristics: the current one when it is among them, else the first,
// so that what OK stores always belongs to the kind that is shown.
void CPresureTendencyDlg::kind_changed() {
  fill_characteristics();
  if (kind.selected >= 0) {
    const int line = codetables::characteristic_line(chosen_kind(), a_);
    characteristic.selected = line < 0 ? 0 : line;
  }
  show_chosen();
}

void CPresureTendencyDlg::show_chosen() {
  code.content = chosen_code();
  const std::string_view offered =
      kind.selected < 0 ? std::string_view() : codetables::characteristics(chosen_kind());
  curves.drawing = elements::tendency_drawing(offered, characteristic.selected);
}

void CPresureTendencyDlg::choose_curve(ui::Point place) {
  const int cell = elements::tendency_cell(place);
  if (static_cast<std::size_t>(cell) >= characteristic.items.size()) return;
  characteristic.selected = cell;
  focus(characteristic);
  show_chosen();
}

bool CPresureTendencyDlg::leave_amount() {
  const std::string typed = text::without_spaces(amount.content);
  if (!codetables::is_tendency_amount(typed)) {
    services().messages.error(id::kTendencyAmountRange);
    return false;
  }
  // No characteristic yet: the rule for a steady pressure waits for OK.
  if (!check_amount("/", typed)) return false;
  amount.set(codetables::tendency_amount_text(typed));
  return true;
}

bool CPresureTendencyDlg::check_amount(const std::string& characteristic_code,
                                       const std::string& typed) {
  const Speaking of(*this, amount);
  switch (codetables::check_tendency(characteristic_code, typed)) {
    case codetables::TendencyCheck::kAccepted:
      return true;
    case codetables::TendencyCheck::kSteadyWithAmount:
      services().messages.error(id::kSteadyWithAmount);
      return false;
    case codetables::TendencyCheck::kTooLarge:
      services().messages.error(id::kTendencyAmountRange);
      return false;
    case codetables::TendencyCheck::kAsks:
      break;
  }
  const std::string stored = codetables::tendency_stored(typed);
  if (stored == confirmed_) return true;
  if (services().messages.question(id::kTendencyAmountQuestion, ui::QuestionMode::kYesNo) !=
      ui::kYes)
    return false;
  confirmed_ = stored;
  return true;
}

void CPresureTendencyDlg::on_ok() {
  const std::string typed = text::without_spaces(amount.content);
  // Whether it is a number was tested when the field was left; new is the characteristic.
  const std::string new_a = chosen_code();
  if (!check_amount(new_a, typed)) {
    focus(amount);
    return;
  }
  a_ = new_a;
  ppp_ = codetables::tendency_stored(typed);
  close(ui::kOk);
}
