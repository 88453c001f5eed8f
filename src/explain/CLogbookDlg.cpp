#include "explain/CLogbookDlg.h"

#include <algorithm>
#include <utility>

#include "archive/CShowStatusDlg.h"
#include "explain/CLogbookCheckDlg.h"
#include "explain/CPlainWordsDlg.h"
#include "explain/log/logbook_check.h"
#include "observation/report_encoder.h"
#include "observation/report_file.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/reasons.h"

namespace id = text::id;
using explain::LogOrder;
using platform::FileError;

namespace {

std::string number(std::size_t n) {
  return text::format_int(static_cast<long long>(n));
}

}  // namespace

CLogbookDlg::CLogbookDlg(ui::Services& services, const std::string& folder,
                         const ShipFixedData& ship, const KeyObservationItems& items)
    : OkDialog(services, "CLogbookDlg", {id::kLogbookTitle}),
      heading(*this, "heading"),
      observations(*this, "observations"),
      remark(*this, "remark"),
      order(*this, "order", {id::kLogSortBy}),
      open_line(*this, "open_line", {id::kLogOpen}),
      show_all(*this, "show_all", {id::kLogShowAll}),
      check(*this, "check", {id::kLogCheck}),
      help(*this, "help", {id::kHelpLabel}, ui::Role::kHelp),
      list_(services.files, folder, ship, items),
      ship_(ship),
      no_folder_(folder.empty()) {
  heading.font = ui::kFixedPitch;
  observations.font = ui::kFixedPitch;
  observations.spoken = {id::kLogbookTitle};
  observations.on_press = [this] { open_chosen(); };
  // In the order of explain::LogOrder.
  order.item_refs = {{id::kLogByNewest}, {id::kLogByOldest}, {id::kLogByNorth},
                     {id::kLogByEast},   {id::kLogByWind},   {id::kLogByPressure},
                     {id::kLogByWaves},  {id::kLogByDamage}, {id::kLogByFile}};
  order.selected = 0;
  order.on_change = [this] {
    if (order.selected < 0) return;
    list_.sort(static_cast<LogOrder>(order.selected));
    fill();
  };
  open_line.on_press = [this] { open_chosen(); };
  show_all.on_press = [this] {
    all_ = true;
    fill();
    focus(observations);
  };
  check.on_press = [this] { run_check(); };
  // The key that opened it closes it as well: a look, and back.
  ok.shortcut = "F4";
}

void CLogbookDlg::on_open() {
  fill();
  focus(observations);
}

bool CLogbookDlg::on_enter_or_escape(ui::Key key) {
  if (key != ui::Key::kEnter || list_.size() == 0) return false;
  // Who has chosen an order looks at the list next, and does not want it closed.
  if (focused() == &order)
    focus(observations);
  else if (focused() == &observations)
    open_chosen();
  else
    return false;
  return true;
}

void CLogbookDlg::fill() {
  const text::Texts& texts = services().texts;
  heading.literal_caption = explain::LogbookList::heading(texts);
  const std::size_t shown = all_ ? list_.size() : std::min(list_.size(), kShownAtFirst);
  observations.items.clear();
  observations.items.reserve(shown);
  for (std::size_t place = 0; place < shown; ++place)
    observations.items.push_back(list_.text(place, texts));
  observations.selected = shown > 0 ? 0 : -1;
  const std::string_view why = shown > 0 ? std::string_view() : texts.get(id::kLogNothing);
  for (ui::Control* const control :
       std::initializer_list<ui::Control*>{&open_line, &check, &order}) {
    control->enabled = shown > 0;
    control->why_locked = why;
  }
  show_all.enabled = shown < list_.size();
  show_all.why_locked = show_all.enabled ? std::string_view() : texts.get(id::kLogAllShown);
  show_remark();
}

void CLogbookDlg::show_remark() {
  const text::Texts& texts = services().texts;
  const FileError error = list_.error();
  std::string text;
  if (no_folder_)
    text = texts.get(id::kLogNoFolder);
  else if (error == FileError::kNotFound)
    text = text::fill(texts.get(id::kLogNoFile), {list_.path()});
  else if (error != FileError::kNone)
    text = text::fill(texts.get(id::kLogUnreadableFile),
                      {list_.path(), texts.get(text::reason_of(error)), number(list_.size())});
  else if (list_.size() == 0)
    text = text::fill(texts.get(id::kLogEmpty), {list_.path()});
  else
    text = text::fill(texts.get(id::kLogShown),
                      {number(observations.items.size()), number(list_.size())});
  remark.literal_caption = std::move(text);
}

void CLogbookDlg::open_chosen() {
  if (observations.selected < 0) return;
  const auto place = static_cast<std::size_t>(observations.selected);
  const auto read = list_.record(place);
  if (!read) {
    const Speaking of(*this, observations);
    services().messages.error_filled(id::kLogLineDamaged, {number(list_.number(place))});
    return;
  }
  const Struct_Weather& record = read->record;
  std::string title = record.CallSign;
  title.append(" ").append(record.Year).append("/").append(record.Month).append("/");
  title.append(record.YY).append(" ").append(record.GG).append(" UTC");
  const auto report = observation::make_report(record, observation::wants_wet_bulb(read->ship));
  CPlainWordsDlg dialog(services(), std::move(title), report.text,
                        {text::leading_int(record.Year), text::leading_int(record.Month)});
  services().windows.run_modal(dialog);
}

void CLogbookDlg::run_check() {
  explain::LogbookCheck checked(language());
  {
    const CShowStatusDlg notice(services());
    for (const std::string& line : list_.lines()) checked.take(line);
  }
  CLogbookCheckDlg dialog(services(), checked.finish().words());
  services().windows.run_modal(dialog);
}
