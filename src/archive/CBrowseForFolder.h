#pragma once
// The system's own folder browser.

#include <optional>
#include <string>
#include <utility>

#include "ui/windows.h"

class CBrowseForFolder {
 public:
  CBrowseForFolder(ui::Windows& windows, std::string caption, std::string initial)
      : windows_(windows), caption_(std::move(caption)), initial_(std::move(initial)) {}

  /// The folder chosen, without "\" at its end except that of a drive; nothing when it was
  /// cancelled.
  [[nodiscard]] std::optional<std::string> show() const;

 private:
  ui::Windows& windows_;
  std::string caption_;
  std::string initial_;
};
