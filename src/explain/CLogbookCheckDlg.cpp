#include "explain/CLogbookCheckDlg.h"

#include <utility>

#include "text/ids.h"

namespace id = text::id;

CLogbookCheckDlg::CLogbookCheckDlg(ui::Services& services, std::string words)
    : OkDialog(services, "CLogbookCheckDlg", {id::kLogCheckTitle}),
      summary(*this, "summary", {id::kLogCheckFound}),
      help(*this, "help", {id::kHelpLabel}, ui::Role::kHelp) {
  // A finding takes three lines, and several are to be seen together.
  constexpr int kLinesShown = 20;
  constexpr int kCharacters = 80;
  summary.most_lines = kLinesShown;
  summary.max_length = kCharacters;
  summary.content = std::move(words);
}

void CLogbookCheckDlg::on_open() {
  focus(summary);
}
