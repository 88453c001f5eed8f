#include "explain/CPlainWordsDlg.h"

#include <utility>

#include "explain/plain_list.h"
#include "text/ids.h"

namespace id = text::id;

CPlainWordsDlg::CPlainWordsDlg(ui::Services& services, std::string title, std::string report,
                               explain::YearMonth when)
    : OkDialog(services, "CPlainWordsDlg", {}),
      words(*this, "words", {id::kPlainWordsLabel}),
      help(*this, "help", {id::kHelpLabel}, ui::Role::kHelp),
      title_(std::move(title)),
      report_(std::move(report)),
      when_(when) {}

void CPlainWordsDlg::on_open() {
  constexpr int kLinesShown = 20;
  words.most_lines = kLinesShown;
  explain::put_lines(words, explain::plain_words(report_, when_, language()));
  if (words.items.empty()) words.items.emplace_back(services().texts.get(id::kPlainNoReport));
  focus(words);
}
