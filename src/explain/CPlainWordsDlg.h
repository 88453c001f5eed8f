#pragma once
// A report in plain words, to be read.

#include <string>

#include "explain/plain/plain_words.h"
#include "ui/dialog.h"

class CPlainWordsDlg : public ui::OkDialog {
 public:
  /// `title` says which report it is, above its lines; `when` its year and month, where they are
  /// known.
  CPlainWordsDlg(ui::Services& services, std::string title, std::string report,
                 explain::YearMonth when = {});

  [[nodiscard]] std::string title() const override { return title_; }

  ui::List words;  ///< a line for each group
  ui::Button help;

 protected:
  void on_open() override;

 private:
  std::string title_;
  std::string report_;
  explain::YearMonth when_;
};
