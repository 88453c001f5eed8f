#include "archive/CPrintAllTLXDlg.h"

#include <algorithm>
#include <utility>

#include "archive/print_documents.h"
#include "archive/print_service.h"
#include "archive/printed_reports.h"
#include "text/ids.h"

namespace id = text::id;

CPrintAllTLXDlg::CPrintAllTLXDlg(ui::Services& services, std::string folder)
    : Screen(services, "CPrintAllTLXDlg", {id::kPrintAllTitle}),
      heading(*this, "heading"),
      reports(*this, "reports"),
      select_all(*this, "select_all", {id::kSelectAll}),
      select_none(*this, "select_none", {id::kSelectNone}),
      chosen(*this, "chosen"),
      pages(
          *this, services,
          {[this] { return document(); }, "Print Failed",
           [this] { return "reports_" + archive::stamp(this->services().clock.local()); }, folder}),
      folder_(std::move(folder)) {
  reports.on_change = [this] {
    // Also told when another line is only gone to.
    if (reports.item_ticked != shown_) show_document();
  };
  select_all.on_press = [this] { tick_all(true); };
  select_none.on_press = [this] { tick_all(false); };
}

void CPrintAllTLXDlg::on_open() {
  listed_ = archive::list_for_printing(services(), folder_, heading, reports, pages, false);
  read();
  show_document();
  focus(reports);
}

void CPrintAllTLXDlg::read() {
  blocks_.clear();
  std::string first;
  std::size_t unread = 0;
  for (const archive::ListedReport& report : listed_) {
    const archive::ReadReport text = archive::read_report(services(), report.path);
    blocks_.push_back(archive::report_block(report.name, text.content));
    if (text.remark.empty()) continue;
    if (unread++ == 0) first = text.remark;
  }
  if (listed_.empty()) return;
  std::string remark;
  if (unread > 0) {
    remark = text::fill(services().texts.get(id::kSomeUnreadable), {std::to_string(unread)});
    remark.append(" ").append(first);
  }
  pages.tell(std::move(remark));
}

void CPrintAllTLXDlg::tick_all(bool on) {
  reports.item_ticked.assign(listed_.size(), on);
  show_document();
}

void CPrintAllTLXDlg::show_document() {
  shown_ = reports.item_ticked;
  pages.show(assembled());
}

std::shared_ptr<const ui::Document> CPrintAllTLXDlg::assembled() {
  const std::vector<bool>& ticked = reports.item_ticked;
  const bool all = std::find(ticked.begin(), ticked.end(), true) == ticked.end();
  std::vector<const std::string*> printed;
  for (std::size_t i = 0; i < blocks_.size(); ++i) {
    if (all || ticked[i]) printed.push_back(&blocks_[i]);
  }
  chosen.literal_caption =
      text::fill(services().texts.get(id::kReportsChosen),
                 {std::to_string(printed.size()), std::to_string(blocks_.size())});
  if (printed.empty()) return nullptr;
  return ui::document_of(
      archive::lines_of(archive::all_reports_text(printed, services().clock.local())));
}

std::shared_ptr<const ui::Document> CPrintAllTLXDlg::document() {
  if (folder_.empty()) return nullptr;
  read();
  std::shared_ptr<const ui::Document> all = assembled();
  if (all == nullptr) services().messages.error(id::kNoReportExists, "No File Print");
  return all;
}
