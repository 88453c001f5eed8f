#pragma once
// Asks for the name of a new folder and creates it.

#include <string>

#include "ui/dialog.h"

class CCreateDir : public ui::OkCancelDialog {
 public:
  /// `parent` is the folder beneath which it is created, with or without "\" at its end.
  CCreateDir(ui::Services& services, std::string parent);

  /// Path of the folder after OK; it was created unless it was there already.
  [[nodiscard]] const std::string& path() const { return path_; }

  ui::Edit folder_name;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  std::string parent_;
  std::string path_;
};

namespace archive {
/// True for a name that a folder can have on every drive and that the settings file can keep: no
/// control characters, none of \ / : * ? " < > |, no ";" (which starts a comment there), not only
/// points.
[[nodiscard]] bool is_folder_name(std::string_view name);
}  // namespace archive
