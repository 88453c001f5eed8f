#include "explain/CPlainWordsDlg.h"

#include <utility>

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
  const auto lines = explain::plain_words(report_, when_, language());
  words.set(lines.empty() ? std::string(services().texts.get(id::kPlainNoReport))
                          : explain::aligned(lines));
  focus(words);
}
