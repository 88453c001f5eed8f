#include "archive/print_service.h"

#include <optional>
#include <utility>

#include "archive/CBrowseForFolder.h"
#include "platform/paths.h"
#include "text/ids.h"
#include "text/reasons.h"

namespace id = text::id;
using platform::FileError;
using platform::There;
using ui::PrintResult;

namespace archive {

std::string unreadable(const text::Texts& texts, std::string_view path, FileError why) {
  return text::fill(texts.get(id::kUnreadable), {path, texts.get(text::reason_of(why))});
}

ui::Sheets sheets_of(const ui::Services& services, std::shared_ptr<const ui::Document> document) {
  ui::Sheets sheets;
  sheets.name = "Print";
  sheets.lines = std::move(document);
  sheets.language = services.texts.language;
  return sheets;
}

void tell_printed(ui::Services& services, PrintResult result, std::string_view failed) {
  switch (result) {
    case PrintResult::kSuccess:
      services.messages.information(id::kPrintSuccess, "Print Success");
      break;
    case PrintResult::kCancelled:
      services.messages.error(id::kPrintCancelled, "Print CANCEL");
      break;
    case PrintResult::kFailed:
      services.messages.error(id::kPrintFailed, failed);
      break;
  }
}

PrintResult print(ui::Services& services, const ui::Sheets& sheets) {
  if (services.printer.has_default_printer()) return services.printer.print(sheets);
  services.messages.error(id::kNoPrinter,
                          "NO printer in your computer\r\nPlease install printer first");
  return PrintResult::kFailed;
}

void save_as_pdf(ui::Services& services, const ui::Sheets& sheets, const std::string& folder,
                 const std::string& name, const std::function<bool()>& broken) {
  ui::Messages& messages = services.messages;
  const std::optional<std::string> chosen =
      CBrowseForFolder(services.windows, std::string(services.texts.get(id::kPdfFolder)), folder)
          .show();
  if (!chosen) return;
  const std::string path = platform::join(*chosen, name);
  const platform::Look found = services.files.look(path);
  if (found.there == There::kFile) {
    const std::string question = text::fill(services.texts.get(id::kAskReplacePdf), {path});
    if (messages.question(question, {}, ui::QuestionMode::kYesNo, id::kAskReplacePdf) != ui::kYes)
      return;
  } else if (found.there != There::kNo) {
    messages.file_error(id::kPdfNotSaved, path, platform::why_no_file(found));
    return;
  }
  const std::optional<std::string> pdf = services.printer.pdf(sheets);
  if (!pdf) {
    messages.error(id::kPdfNotMade);
    return;
  }
  if (broken()) return;
  // Not there a moment ago: what has come since is nobody's to replace unasked.
  const platform::Result<platform::StagedFile> staged = services.files.stage(path, *pdf);
  FileError error = staged.error;
  if (staged.ok()) {
    error =
        services.files.commit(*staged.value, found.there == There::kFile ? platform::Over::kReplace
                                                                         : platform::Over::kRefuse);
    if (error != FileError::kNone) services.files.discard(*staged.value);
  }
  if (error != FileError::kNone) {
    messages.file_error(id::kPdfNotSaved, path, error);
    return;
  }
  messages.information_filled(id::kPdfSaved, {path});
}

}  // namespace archive
