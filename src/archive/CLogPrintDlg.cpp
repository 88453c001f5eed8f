#include "archive/CLogPrintDlg.h"

#include <algorithm>
#include <utility>

#include "archive/CFindFile.h"
#include "archive/names.h"
#include "archive/print_documents.h"
#include "archive/print_service.h"
#include "observation/report_file.h"
#include "text/ids.h"

namespace id = text::id;
using platform::FileError;

CLogPrintDlg::CLogPrintDlg(ui::Services& services, std::string folder)
    : Screen(services, "CLogPrintDlg", {id::kPrintLogbookTitle}),
      logbooks(*this, "logbooks", {id::kLogbooksToPrint}),
      pages(*this, services,
            {[this] { return document(); }, "Print Failed",
             [this] { return "immt5_" + archive::stamp(this->services().clock.local()); }, folder,
             [this] { return broken(); }}),
      folder_(std::move(folder)) {
  logbooks.on_change = [this] { chosen(); };
}

void CLogPrintDlg::on_open() {
  if (folder_.empty()) {
    pages.tell(std::string(services().texts.get(id::kNoLogbookFolder)));
    return;
  }
  const FileError error =
      CFindFile(services().files).find(folder_, observation::kLogbookName, logbooks.items);
  std::sort(logbooks.items.begin(), logbooks.items.end(), archive::comes_before);
  if (error != FileError::kNone) pages.tell(archive::unreadable(services().texts, folder_, error));
}

void CLogPrintDlg::chosen() {
  if (path().empty()) {
    listing_ = nullptr;
    pages.tell({});
  } else {
    read();
  }
  pages.show(listing_);
}

void CLogPrintDlg::read() {
  listing_ =
      std::make_shared<archive::LogbookListing>(services().files, path(), services().clock.local());
  const FileError error = listing_->error();
  pages.tell(error == FileError::kNone ? std::string()
                                       : archive::unreadable(services().texts, path(), error));
}

std::shared_ptr<const ui::Document> CLogPrintDlg::document() {
  if (path().empty()) {
    services().messages.error(id::kNoFileSelected, "NO FILE SELECTED");
    return nullptr;
  }
  read();
  return listing_;
}

bool CLogPrintDlg::broken() {
  const FileError error = listing_->error();
  if (error != FileError::kNone) services().messages.file_error(id::kUnreadable, path(), error);
  return error != FileError::kNone;
}
