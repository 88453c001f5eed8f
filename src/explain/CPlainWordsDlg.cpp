#include "explain/CPlainWordsDlg.h"

#include <utility>

#include "explain/plain_list.h"
#include "text/ids.h"

namespace id = text::id;

CPlainWordsDlg::CPlainWordsDlg(ui::Services& services, std::string title, std::string report,
                               explain::YearMonth when)
    : OkDialog(services, "CPlainWordsDlg", {id::kPlainTitle}),
      words(*this, "words"),
      help(*this, "help", {id::kHelpLabel}, ui::Role::kHelp),
      report_(std::move(report)),
      when_(when) {
  words.literal_caption = std::move(title);
}

void CPlainWordsDlg::on_open() {
  constexpr int kLinesShown = 20;
  words.most_lines = kLinesShown;
  explain::put_lines(words, explain::plain_words(report_, when_, language()));
  if (words.items.empty()) words.items.emplace_back(services().texts.get(id::kPlainNoReport));
  focus(words);
}
