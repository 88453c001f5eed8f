#include "codetables/CCodeTableDlg.h"

#include <utility>
#include <vector>

#include "text/ids.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

std::vector<text::Ref> lines_of(const CodeTable& table) {
  std::vector<text::Ref> lines;
  for (const CodeTableRow& row : table.rows) lines.push_back({row.text});
  return lines;
}

}  // namespace

CCodeTableDlg::CCodeTableDlg(ui::Services& services, const CodeTable& table, std::string code)
    : OkCancelHelpDialog(services, table.class_name, {table.title}),
      heading(*this, "heading", {table.heading}),
      group(*this, "group", {table.group}),
      choice(*this, "choice", {}, lines_of(table)),
      table_(table),
      code_(std::move(code)) {
  for (const CodeTableRow& row : table.rows) choice.item_codes.emplace_back(row.code);
}

std::string CCodeTableDlg::code_to_choose(const std::string& code) const {
  return std::string(text::trim(code));
}

void CCodeTableDlg::on_open() {
  const std::string wanted = code_to_choose(code_);
  for (std::size_t i = 0; i < table_.rows.size(); ++i) {
    if (table_.rows[i].code == wanted) choice.selected = static_cast<int>(i);
  }
}

void CCodeTableDlg::on_ok() {
  if (choice.selected >= 0) code_ = table_.rows[static_cast<std::size_t>(choice.selected)].code;
  close(ui::kOk);
}
