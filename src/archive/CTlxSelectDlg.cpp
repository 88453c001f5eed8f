#include "archive/CTlxSelectDlg.h"

#include <algorithm>
#include <utility>

#include "text/ids.h"

namespace id = text::id;
using archive::ReportNames;

CTlxSelectDlg::CTlxSelectDlg(ui::Services& services, std::vector<archive::ListedReport> listed)
    : OkCancelHelpDialog(services, "CTlxSelectDlg", {id::kSelectReportsTitle}),
      heading(*this, "heading"),
      reports(*this, "reports"),
      select_all(*this, "select_all", {id::kSelectAll}),
      select_none(*this, "select_none", {id::kSelectNone}),
      count(*this, "count"),
      listed_(std::move(listed)) {
  count.spoken = {id::kSpokenChosen};
  reports.on_change = [this] { show_count(); };
  select_all.on_press = [this] { tick_all(true); };
  select_none.on_press = [this] { tick_all(false); };
}

void CTlxSelectDlg::on_open() {
  archive::show_reports(heading, reports, listed_, ReportNames::kWhole, services().texts, true);
  // A line to begin with: Space ticks the one that the arrows have led to.
  if (!listed_.empty()) reports.selected = 0;
  show_count();
  focus(reports);
}

void CTlxSelectDlg::tick_all(bool on) {
  reports.item_ticked.assign(listed_.size(), on);
  show_count();
}

void CTlxSelectDlg::show_count() {
  const auto ticked = std::count(reports.item_ticked.begin(), reports.item_ticked.end(), true);
  count.content = text::fill(
      services().texts.get(id::kReportsToCopy),
      {std::to_string(static_cast<std::size_t>(ticked)), std::to_string(listed_.size())});
}

void CTlxSelectDlg::on_ok() {
  std::vector<archive::ListedReport> chosen;
  for (std::size_t i = 0; i < listed_.size(); ++i)
    if (reports.item_ticked[i]) chosen.push_back(listed_[i]);
  if (chosen.empty()) {
    const Speaking of(*this, reports);
    services().messages.error(id::kNoFileSelected, "NO FILE SELECTED");
    focus(reports);
    return;
  }
  chosen_ = std::move(chosen);
  close(ui::kOk);
}
