#include "archive/CQFPrintDlg.h"

#include <utility>

#include "archive/print_documents.h"
#include "archive/print_service.h"
#include "archive/printed_reports.h"
#include "text/ids.h"

namespace id = text::id;

CQFPrintDlg::CQFPrintDlg(ui::Services& services, std::string folder)
    : Screen(services, "CQFPrintDlg", {id::kPrintReportTitle}),
      heading(*this, "heading"),
      reports(*this, "reports"),
      pages(*this, services,
            {[this] { return document(); }, "Print FAILED",
             [this] { return archive::without_extension(chosen()->name); }, folder}),
      folder_(std::move(folder)) {
  reports.on_change = [this] { pages.show(read()); };
}

void CQFPrintDlg::on_open() {
  listed_ = archive::list_for_printing(services(), folder_, heading, reports, pages);
  focus(reports);
}

const archive::ListedReport* CQFPrintDlg::chosen() const {
  const auto at = static_cast<std::size_t>(reports.selected);
  return reports.selected >= 0 && at < listed_.size() ? &listed_[at] : nullptr;
}

std::shared_ptr<const ui::Document> CQFPrintDlg::read() {
  const archive::ListedReport* const report = chosen();
  if (report == nullptr) {
    pages.tell({});
    return nullptr;
  }
  const archive::ReadReport text = archive::read_report(services(), report->path);
  pages.tell(text.remark);
  return ui::document_of(archive::lines_of(
      archive::single_report_text(report->name, text.content, services().clock.local())));
}

std::shared_ptr<const ui::Document> CQFPrintDlg::document() {
  if (folder_.empty()) return nullptr;
  if (chosen() != nullptr) return read();
  services().messages.error(id::kNoReportToPrint, "No File Select");
  return nullptr;
}
