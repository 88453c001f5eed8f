#pragma once
// Help in the system's viewer of pages.

#include <functional>
#include <optional>
#include <string>

#include "platform/ports.h"
#include "text/texts.h"

namespace win32 {

/// Opens a file of this computer with the program that the system has for it, beside this one.
[[nodiscard]] bool open_page(const std::string& path);

class Help : public platform::HelpViewer {
 public:
  /// File of this computer that holds the page of a help path, or nothing when there is none.
  using Page = std::function<std::optional<std::string>(const std::string& path)>;
  /// Opens such a file; false where that cannot be.
  using Open = std::function<bool(const std::string& file)>;
  /// Tells the person something under a title, both in the language in which help was asked for.
  using Tell = std::function<void(const std::string& title, const std::string& words)>;
  Help(Page page, Tell tell, Open open = &open_page)
      : page_(std::move(page)), tell_(std::move(tell)), open_(std::move(open)) {}

  /// Without a page, or where nothing opens it, the person is told so, and the result is false.
  bool show(const std::string& path) override;

 private:
  Page page_;
  Tell tell_;
  Open open_;
};

}  // namespace win32
