#pragma once
// The engine of every dialog that picks one code from a code table: the lines of the table with the
// code beside each, the line of the current code chosen. A dialog is a table and a constructor.

#include <span>
#include <string>
#include <string_view>

#include "ui/dialog.h"

/// A line of a code table.
struct CodeTableRow {
  std::string_view code;  ///< "95", "/" …
  text::Id text;          ///< what it means
};

/// A code table and how its dialog is headed. Texts are ids of the string table.
struct CodeTable {
  std::string_view class_name;  ///< names the layout and the help topic
  text::Id title;
  text::Id heading;
  text::Id group;  ///< title of the frame around the lines
  std::span<const CodeTableRow> rows;
};

class CCodeTableDlg : public ui::OkCancelHelpDialog {
 public:
  /// `code` is the record's current code; a code that the table does not have chooses no line.
  CCodeTableDlg(ui::Services& services, const CodeTable& table, std::string code);

  /// After kOk, the code chosen; without a choice, and until then, what was handed in.
  [[nodiscard]] const std::string& code() const { return code_; }

  ui::Label heading;
  ui::Label group;
  ui::Choice choice;

 protected:
  void on_open() override;
  void on_ok() override;
  /// The code of the table that the record's code stands for; the default takes blanks off.
  [[nodiscard]] virtual std::string code_to_choose(const std::string& code) const;

 private:
  const CodeTable& table_;
  std::string code_;
};
