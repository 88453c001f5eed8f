#pragma once
// What printing and saving as PDF have in common for every dialog: each tells the officer how it
// ended.

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "ui/services.h"

namespace archive {

/// "PATH can not be read (why)."
[[nodiscard]] std::string unreadable(const text::Texts& texts, std::string_view path,
                                     platform::FileError why);

/// The sheets of a document as every printout is made, in the language of the moment.
[[nodiscard]] ui::Sheets sheets_of(const ui::Services& services,
                                   std::shared_ptr<const ui::Document> document);

/// Takes the sheets through the system's print dialog to the printer. A computer without a printer
/// is told and counts as a failure.
[[nodiscard]] ui::PrintResult print(ui::Services& services, const ui::Sheets& sheets);
/// Tells the officer how printing ended; `failed` is the literal for a failure.
void tell_printed(ui::Services& services, ui::PrintResult result, std::string_view failed);

/// Asks for a folder, beginning at `folder`, and saves the sheets there as a PDF file of that name.
/// An existing file is replaced only after a Yes, and then as a whole or not at all. What hinders
/// it is named. `broken` is asked once the pages are made: when it says true, having told the reason,
/// nothing is saved.
void save_as_pdf(ui::Services& services, const ui::Sheets& sheets, const std::string& folder,
                 const std::string& name, const std::function<bool()>& broken);

}  // namespace archive
