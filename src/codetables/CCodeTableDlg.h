#pragma once
// The engine of every dialog that picks codes from code tables: the lines of each table with the
// code beside each, the line of the record's code chosen. A dialog is a row of code_pickers.h.

#include <memory>
#include <string>
#include <vector>

#include "codetables/code_pickers.h"
#include "observation/Struct_Weather.h"
#include "ui/dialog.h"

class CCodeTableDlg : public ui::OkCancelHelpDialog {
 public:
  /// `picker` must outlive the dialog. A code of the record that its table does not have chooses
  /// no line.
  CCodeTableDlg(ui::Services& services, const codetables::CodePicker& picker,
                const Struct_Weather& record);
  ~CCodeTableDlg() override;

  /// After kOk, puts the chosen codes into the record. One without a choice, and until then every
  /// one, is what it was when the dialog was made.
  void put_into(Struct_Weather& record) const;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  /// One of the codes: where the record holds it, what was chosen last, its lines.
  struct Picked {
    const codetables::PickedCode& row;
    std::string Struct_Weather::*member;
    std::string code;
    std::unique_ptr<ui::Choice> choice;
    std::unique_ptr<ui::Picture> drawing;  ///< where the row has one
  };
  [[nodiscard]] std::vector<std::unique_ptr<ui::Control>> labels(const codetables::CodePicker&);
  [[nodiscard]] std::vector<Picked> picked(const codetables::CodePicker&, const Struct_Weather&);
  [[nodiscard]] std::vector<std::unique_ptr<ui::Control>> pictures();
  void show_drawings();

  // In reading order, as all controls are.
  std::vector<std::unique_ptr<ui::Control>> labels_;
  std::vector<Picked> picked_;
  std::vector<std::unique_ptr<ui::Control>> pictures_;
};
