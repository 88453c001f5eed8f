#include "archive/CQFModifyDlg.h"

#include <utility>

#include "text/ids.h"
#include "text/reasons.h"
#include "ui/printer.h"

namespace id = text::id;
using archive::ReportNames;

CQFModifyDlg::CQFModifyDlg(ui::Services& services, std::string folder)
    : OkCancelDialog(services, "CQFModifyDlg", {id::kModifyTitle}),
      heading(*this, "heading"),
      reports(*this, "reports"),
      remark(*this, "remark"),
      folder_(std::move(folder)) {
  reports.on_press = [this] { on_ok(); };
}

void CQFModifyDlg::on_open() {
  archive::ReportList list = archive::list_reports(services().files, folder_);
  const text::Texts& texts = services().texts;
  if (list.error != platform::FileError::kNone)
    remark.set(text::fill(texts.get(id::kModifyFolderUnreadable),
                          {folder_, texts.get(text::reason_of(list.error))}));
  remark.spoken = {id::kSpokenRemark};
  remark.visible = !remark.content.empty();
  listed_ = std::move(list.reports);
  archive::show_reports(heading, reports, listed_, ReportNames::kWithoutExtension, texts);
  focus(reports);
}

void CQFModifyDlg::on_ok() {
  if (folder_.empty()) return;
  const auto at = static_cast<std::size_t>(reports.selected);
  if (reports.selected < 0 || at >= listed_.size()) {
    static_cast<void>(refuse(reports, id::kModifyNothingChosen));
    return;
  }
  chosen_ = listed_[at].path;
  close(ui::kOk);
}
